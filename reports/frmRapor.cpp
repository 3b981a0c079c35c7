#include "reports/frmRapor.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "core/Rapor.h"
#include "reports/Gelir.h"
#include "reports/IzgaraCsv.h"
#include "reports/Ortak.h"
#include "reports/rptSozlesmeler.h"

using reports::Dugme;

frmRapor::frmRapor() {
  setWindowTitle(QStringLiteral("Gelir Raporu"));
  txtBastar = ekran::Kutu(QStringLiteral("txtBastar"), 10, false);
  txtSonTar = ekran::Kutu(QStringLiteral("txtSonTar"), 10, false);
  reports::RaporTarihi(txtBastar);
  reports::RaporTarihi(txtSonTar);
  cmdBilgiGoster = Dugme("cmdBilgiGoster", QStringLiteral("Göster"));
  cmdYazdir = Dugme("cmdYazdir", QStringLiteral("Yazdır"));
  cmdCsv = csv::CsvDugmesi();
  cmdExit = Dugme("cmdExit", QStringLiteral("&Çıkış"));
  ekran::KontrolTetiklemez(cmdExit);
  dGridDetay = new ekran::Izgara;
  dGridDetay->setObjectName(QStringLiteral("dGridDetay"));
  dGridDetay->horizontalHeader()->setSectionsClickable(true);
  {
    ekran::IzgaraModeli* m = dGridDetay->Model();
    m->Baslik(QStringLiteral("SozlesmeSeri"), QStringLiteral("Seri"));
    m->Baslik(QStringLiteral("SozlesmeNo"), QStringLiteral("No"));
    m->Baslik(QStringLiteral("Tarih"), QStringLiteral("Tarih"));
    m->TarihBicimi(QStringLiteral("Tarih"));
    m->Baslik(QStringLiteral("AdSoyad"), QStringLiteral("Müşteri"));
    // "###,###,###.00": no leading zero below one.
    const auto tutar = [m](const char* alan, const QString& baslik) {
      ekran::IzgaraModeli::Sutun& s = m->Ayar(QString::fromLatin1(alan));
      s.baslik = baslik;
      s.hiza = Qt::AlignRight | Qt::AlignVCenter;
      s.yaz = [](const QVariant& v) { return rapor::Bicimle(v, QStringLiteral("###,###,###.00")); };
    };
    tutar("Tutar", QStringLiteral("Tutar"));
    tutar("FaizTutar", QStringLiteral("Faiz"));
    tutar("BMVergisi", QStringLiteral("BMVergisi"));
    tutar("Odenecek2", QStringLiteral("Ödenen"));
  }
  txtAdet = ekran::Kutu(QStringLiteral("txtAdet"), 0, false);
  const char* const adlar[] = {"txtToplam0", "txtToplam1", "txtToplam2", "txtToplam3"};
  for (int i = 0; i < 4; ++i) txtToplam[i] = ekran::Kutu(QString::fromLatin1(adlar[i]), 0, false);
  for (QLineEdit* k : {txtAdet, txtToplam[0], txtToplam[1], txtToplam[2], txtToplam[3]}) {
    k->setAlignment(Qt::AlignRight);
    ekran::SaltOkunur(k, true);
  }
  const QString basliklar[] = {QStringLiteral("Toplam Tutar:"), QStringLiteral("Faiz Geliri:"),
                               QStringLiteral("Ödenen:"), QStringLiteral("BM Vergisi:"),
                               QStringLiteral("Belge Adedi:")};
  for (int i = 0; i < 5; ++i) Label3[i] = new QLabel(basliklar[i]);

  auto* baslik = new QLabel(QStringLiteral("Gelir Durum Raporu"));
  QFont f = baslik->font();
  f.setBold(true);
  f.setPointSizeF(f.pointSizeF() * 1.4);
  baslik->setFont(f);
  auto* secim = new QHBoxLayout;
  secim->addWidget(new QLabel(QStringLiteral("Başlangıç Tarihi:")));
  secim->addWidget(txtBastar);
  secim->addWidget(new QLabel(QStringLiteral("Bitiş Tarihi:")));
  secim->addWidget(txtSonTar);
  secim->addWidget(cmdBilgiGoster);
  secim->addStretch();
  auto* toplamlar = new QGridLayout;
  toplamlar->addWidget(Label3[4], 0, 0);
  toplamlar->addWidget(txtAdet, 0, 1);
  for (int i = 0; i < 4; ++i) {
    toplamlar->addWidget(Label3[i], 1 + i / 2, (i % 2) * 2);
    toplamlar->addWidget(txtToplam[i], 1 + i / 2, (i % 2) * 2 + 1);
  }
  toplamlar->setColumnStretch(4, 1);
  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  for (QPushButton* d : {cmdYazdir, cmdCsv, cmdExit}) dugmeler->addWidget(d);
  auto* ana = new QVBoxLayout(this);
  ana->addWidget(baslik);
  ana->addLayout(secim);
  ana->addWidget(dGridDetay, 1);
  ana->addLayout(toplamlar);
  ana->addLayout(dugmeler);

  connect(cmdBilgiGoster, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { cmdBilgiGoster_Click(); }); });
  connect(cmdYazdir, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { cmdYazdir_Click(); }); });
  connect(cmdCsv, &QPushButton::clicked, this, [this] { cmdCsv_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Kapat(); });
  connect(dGridDetay->horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int s) { dGridDetay_HeadClick(s); });
}

frmRapor::~frmRapor() { dGridDetay->Bagla(nullptr); }

void frmRapor::Form_Load() {
  ekran::FormOrtala(this, 6180, 10830);
  Gorunum(false);
}

void frmRapor::Form_Unload() {
  dGridDetay->Bagla(nullptr);
  rsGelir = db::Kayitlar();
}

void frmRapor::Gorunum(bool goster) {
  for (QWidget* w : std::initializer_list<QWidget*>{txtAdet, txtToplam[0], txtToplam[1],
                                                    txtToplam[2], txtToplam[3], Label3[0],
                                                    Label3[1], Label3[2], Label3[3], Label3[4]})
    w->setVisible(goster);
}

void frmRapor::cmdBilgiGoster_Click() {
  const gelir::Sorgu q = gelir::SorguKur(txtBastar->text(), txtSonTar->text());
  dGridDetay->Bagla(nullptr);
  rsGelir = db::Kayitlar();
  listeVar_ = false;
  rsGelir = Genel::Baglanti.Sorgu(q.metin, q.deger);
  listeVar_ = true;
  const gelir::Toplamlar t = gelir::Topla(rsGelir);
  rsGelir.MoveFirst();
  txtAdet->setText(QString::number(t.adet));
  txtToplam[0]->setText(Genel::SayiYaz(t.Tutar, 2));
  txtToplam[1]->setText(Genel::SayiYaz(t.FaizTutar, 2));
  txtToplam[2]->setText(Genel::SayiYaz(t.Odenecek2, 2));
  txtToplam[3]->setText(Genel::SayiYaz(t.BMVergisi, 2));
  dGridDetay->Bagla(&rsGelir);
  Gorunum(true);
}

void frmRapor::dGridDetay_HeadClick(int sutun) {
  if (listeVar_) dGridDetay->sortByColumn(sutun, Qt::AscendingOrder);
}

void frmRapor::cmdYazdir_Click() {
  if (!listeVar_) {
    mesaj::Bilgi(QStringLiteral("Önce Göster ile listeyi alınız."), QStringLiteral("UYARI"));
    return;
  }
  const QString tarihler = QStringLiteral("Tarih Aralığı: ") + txtBastar->text() +
                           QStringLiteral(" - ") + txtSonTar->text();
  rapor::Goster(reports::rptSozlesmeler(rsGelir, tarihler), this);
}

void frmRapor::cmdCsv_Click() {
  if (listeVar_) csv::IzgaraKaydet(dGridDetay, QStringLiteral("gelir-raporu.csv"), this);
}

namespace reports {
void GelirEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmRapor"), [] { return new frmRapor; });
}
}  // namespace reports
