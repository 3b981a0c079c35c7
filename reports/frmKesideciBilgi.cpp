#include "reports/frmKesideciBilgi.h"

#include <QDate>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "reports/IzgaraCsv.h"
#include "reports/Kesideci.h"
#include "reports/Ortak.h"
#include "reports/Tahsilat.h"

using reports::Dugme;

frmKesideciBilgi::frmKesideciBilgi() {
  setWindowTitle(QStringLiteral("Keşideciye Göre Belgeler"));
  txtAranacak = ekran::Kutu(QStringLiteral("txtAranacak"));
  chkBas = new QCheckBox(QStringLiteral("başlayan"));
  chkBas->setObjectName(QStringLiteral("chkBas"));
  cmdDoldur = Dugme("cmdDoldur", QStringLiteral("Listele"));
  lstKesideci = new QListWidget;
  lstKesideci->setObjectName(QStringLiteral("lstKesideci"));
  lstKesideci->setSelectionMode(QAbstractItemView::MultiSelection);
  lstKesideci->setUniformItemSizes(true);
  txtBastar = ekran::Kutu(QStringLiteral("txtBastar"), 10, false);
  txtSonTar = ekran::Kutu(QStringLiteral("txtSonTar"), 10, false);
  reports::RaporTarihi(txtBastar);
  reports::RaporTarihi(txtSonTar);
  cmdBilgiGoster = Dugme("cmdBilgiGoster", QStringLiteral("Göster"));
  cmdCsv = csv::CsvDugmesi();
  cmdExit = Dugme("cmdExit", QStringLiteral("Çıkış"));
  ekran::KontrolTetiklemez(cmdExit);
  dGridDetay = new ekran::Izgara;
  dGridDetay->setObjectName(QStringLiteral("dGridDetay"));
  {
    ekran::IzgaraModeli* m = dGridDetay->Model();
    m->Basliklar({{"Bulunacak", "Müşteri"},
                  {"SozlesmeNo", "Söz.No"},
                  {"Kesideci", "Keşideci"},
                  {"Sube", "Şube"},
                  {"HesapNo", "Hesap No"},
                  {"CekNo", "Çek No"},
                  {"Meblag", "Meblağ"},
                  {"Doviz", "Döviz"}});
    m->TarihBicimi(QStringLiteral("Vadesi"));
    m->SayiBicimi(QStringLiteral("Meblag"), 2);
    for (const char* gizli : {"Gun", "Karsilik", "Odenmesi", "SozlesmeSeri", "MeblagTL"})
      m->Gizle(QString::fromLatin1(gizli));
  }
  cmdRiskli = Dugme("cmdRiskli", QStringLiteral("Riskli Keşideciler"));
  cmdRiskliCsv = csv::CsvDugmesi();
  cmdRiskliCsv->setObjectName(QStringLiteral("cmdRiskliCsv"));
  grdRiskli = new ekran::Izgara;
  grdRiskli->setObjectName(QStringLiteral("grdRiskli"));
  {
    ekran::IzgaraModeli* m = grdRiskli->Model();
    for (const csv::Sutun& c : kesideci::RiskSutunlari()) {
      m->Baslik(c.alan, c.baslik);
      if (c.bicim == csv::Sutun::Bicim::Sayi) m->SayiBicimi(c.alan, c.basamak, c.gruplu);
    }
  }
  grdRiskli->hide();
  cmdRiskliCsv->hide();
  txtAdet = ekran::Kutu(QStringLiteral("txtAdet"), 0, false);
  txtToplam = ekran::Kutu(QStringLiteral("txtToplam"), 0, false);
  for (QLineEdit* k : {txtAdet, txtToplam}) {
    k->setAlignment(Qt::AlignRight);
    ekran::SaltOkunur(k, true);
  }
  lblTutar[0] = new QLabel(QStringLiteral("Toplam Belge Sayısı:"));
  lblTutar[1] = new QLabel(QStringLiteral("Toplam Tutar:"));

  auto* arama = new QHBoxLayout;
  arama->addWidget(new QLabel(QStringLiteral("Keşideci:")));
  arama->addWidget(txtAranacak, 1);
  arama->addWidget(chkBas);
  arama->addWidget(cmdDoldur);
  arama->addWidget(cmdRiskli);
  auto* tarihler = new QHBoxLayout;
  tarihler->addWidget(new QLabel(QStringLiteral("Başlangıç Tarihi:")));
  tarihler->addWidget(txtBastar);
  tarihler->addWidget(new QLabel(QStringLiteral("Bitiş Tarihi:")));
  tarihler->addWidget(txtSonTar);
  tarihler->addWidget(cmdBilgiGoster);
  tarihler->addStretch();
  auto* alt = new QHBoxLayout;
  alt->addWidget(lblTutar[0]);
  alt->addWidget(txtAdet);
  alt->addWidget(lblTutar[1]);
  alt->addWidget(txtToplam);
  alt->addStretch();
  alt->addWidget(cmdCsv);
  alt->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addLayout(arama);
  auto* listeler = new QHBoxLayout;
  listeler->addWidget(lstKesideci, 1);
  auto* riskli = new QVBoxLayout;
  riskli->addWidget(grdRiskli, 1);
  riskli->addWidget(cmdRiskliCsv, 0, Qt::AlignRight);
  listeler->addLayout(riskli, 2);
  ana->addLayout(listeler);
  ana->addLayout(tarihler);
  ana->addWidget(dGridDetay, 1);
  ana->addLayout(alt);

  connect(cmdDoldur, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { cmdDoldur_Click(); }); });
  connect(cmdBilgiGoster, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { Goster(); }); });
  connect(cmdCsv, &QPushButton::clicked, this, [this] { cmdCsv_Click(); });
  connect(cmdRiskli, &QPushButton::clicked, this,
          [this] { ekran::Korumali([this] { cmdRiskli_Click(); }); });
  connect(grdRiskli, &ekran::Izgara::CiftTiklandi, this,
          [this] { ekran::Korumali([this] { grdRiskli_DblClick(); }); });
  connect(cmdRiskliCsv, &QPushButton::clicked, this, [this] { cmdRiskliCsv_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Kapat(); });
  Gorunum(false);
}

frmKesideciBilgi::~frmKesideciBilgi() {
  dGridDetay->Bagla(nullptr);
  grdRiskli->Bagla(nullptr);
}

void frmKesideciBilgi::Form_Load() { ekran::FormOrtala(this, 7170, 10200); }

void frmKesideciBilgi::cmdDoldur_Click() {
  lstKesideci->clear();
  const kesideci::Sorgu q = kesideci::AramaSorgusu(txtAranacak->text(), chkBas->isChecked());
  const db::Kayitlar rs = Genel::Baglanti.Sorgu(q.metin, q.deger);
  QStringList adlar;
  adlar.reserve(rs.RecordCount());
  for (int i = 0; i < rs.RecordCount(); ++i) adlar << rs.Deger(i, 0).toString();
  lstKesideci->addItems(adlar);
}

void frmKesideciBilgi::KesideciYok() {
  mesaj::Bilgi(QStringLiteral("İlk olarak Keşideci Seçmelisiniz"), QStringLiteral("UYARI"));
  txtAranacak->setFocus();
}

void frmKesideciBilgi::Goster() {
  if (lstKesideci->count() == 0) return KesideciYok();
  QStringList isaretli;
  for (const QListWidgetItem* o : lstKesideci->selectedItems()) isaretli << o->text();
  dGridDetay->Bagla(nullptr);
  rsBelge = db::Kayitlar();
  if (isaretli.isEmpty()) return KesideciYok();
  const kesideci::Sorgu q = kesideci::BelgeSorgusu(isaretli, txtBastar->text(), txtSonTar->text());
  rsBelge = Genel::Baglanti.Sorgu(q.metin, q.deger);
  double toplam = 0;
  const int meblag = rsBelge.AlanNo(QStringLiteral("Meblag"));
  for (int i = 0; i < rsBelge.RecordCount(); ++i) toplam += rsBelge.Deger(i, meblag).toDouble();
  rsBelge.MoveFirst();
  txtToplam->setText(tahsilat::TutarYazisi(toplam));
  txtAdet->setText(QString::number(rsBelge.RecordCount()));
  dGridDetay->Bagla(&rsBelge);
  Gorunum(true);
}

void frmKesideciBilgi::Gorunum(bool goster) {
  for (QWidget* w : std::initializer_list<QWidget*>{dGridDetay, txtToplam, lblTutar[0], lblTutar[1],
                                                    txtAdet, cmdCsv})
    w->setVisible(goster);
}

void frmKesideciBilgi::cmdCsv_Click() {
  if (dGridDetay->isVisible()) csv::IzgaraKaydet(dGridDetay, QStringLiteral("kesideci.csv"), this);
}

void frmKesideciBilgi::cmdRiskli_Click() {
  const kesideci::Sorgu q = kesideci::RiskSorgusu(QDate::currentDate());
  grdRiskli->Bagla(nullptr);
  rsRiskli = db::Kayitlar();
  rsRiskli = Genel::Baglanti.Sorgu(q.metin, q.deger);
  grdRiskli->Bagla(&rsRiskli);
  grdRiskli->show();
  cmdRiskliCsv->show();
}

void frmKesideciBilgi::grdRiskli_DblClick() {
  if (!rsRiskli.SatirVar()) return;
  const QString ad = rsRiskli.Metin(QStringLiteral("Kesideci"));
  // The drawer's own entries are marked, and only they; a list without them
  // is filled by the drawer's name first.
  if (lstKesideci->findItems(ad, Qt::MatchExactly).isEmpty()) {
    txtAranacak->setText(ad);
    chkBas->setChecked(true);
    cmdDoldur_Click();
  }
  lstKesideci->clearSelection();
  const QList<QListWidgetItem*> ogeler = lstKesideci->findItems(ad, Qt::MatchExactly);
  for (QListWidgetItem* o : ogeler) o->setSelected(true);
  if (!ogeler.isEmpty()) lstKesideci->scrollToItem(ogeler.front());
  Goster();
}

void frmKesideciBilgi::cmdRiskliCsv_Click() {
  if (grdRiskli->isVisible())
    csv::IzgaraKaydet(grdRiskli, QStringLiteral("riskli-kesideciler.csv"), this);
}

namespace reports {
void KesideciEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmKesideciBilgi"), [] { return new frmKesideciBilgi; });
}
}  // namespace reports
