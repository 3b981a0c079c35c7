#include "reports/frmMusteriBilgi.h"

#include <QApplication>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "master/MusteriListesi.h"
#include "reports/IzgaraCsv.h"
#include "reports/MusteriBilgi.h"
#include "reports/Ortak.h"

using reports::Dugme;

frmMusteriBilgi::frmMusteriBilgi() : musteriler_(new master::MusteriListesi(this)) {
  setWindowTitle(QStringLiteral("Müşteri Risk Durumu"));
  setAutoFillBackground(true);
  QPalette p = palette();
  p.setColor(QPalette::Window, QColor(255, 192, 128));
  setPalette(p);

  cmbAd = new QComboBox;
  cmbAd->setObjectName(QStringLiteral("cmbAd"));
  ekran::AnahtarListesi(cmbAd);
  cmbAd->setModel(musteriler_);
  cmbAd->setMinimumWidth(fontMetrics().averageCharWidth() * 36);
  cmbAd->installEventFilter(this);
  if (cmbAd->lineEdit()) cmbAd->lineEdit()->installEventFilter(this);
  txtMusteriNo = ekran::Kutu(QStringLiteral("txtMusteriNo"));
  txtMusteriNo->hide();
  txtBastar = ekran::Kutu(QStringLiteral("txtBastar"), 10, false);
  txtSonTar = ekran::Kutu(QStringLiteral("txtSonTar"), 10, false);
  lblRaporTip = new QLabel;
  lblRaporTip->setObjectName(QStringLiteral("lblRaporTip"));
  QFont kalin = lblRaporTip->font();
  kalin.setBold(true);
  lblRaporTip->setFont(kalin);
  dGridDetay = new ekran::Izgara;
  dGridDetay->setObjectName(QStringLiteral("dGridDetay"));
  {
    ekran::IzgaraModeli* m = dGridDetay->Model();
    m->BelgeSutunlari(QStringLiteral("Gun"));
    m->Basliklar({{"Meblag", "Meblağ"}, {"Doviz", "Döviz"}});
    m->SayiBicimi(QStringLiteral("Meblag"), 2);
  }
  txtAdet = ekran::Kutu(QStringLiteral("txtAdet"), 0, false);
  txtToplam = ekran::Kutu(QStringLiteral("txtToplam"), 0, false);
  for (QLineEdit* k : {txtAdet, txtToplam}) {
    k->setAlignment(Qt::AlignRight);
    ekran::SaltOkunur(k, true);
  }
  lblTutar[0] = new QLabel(QStringLiteral("Toplam Belge Sayısı:"));
  lblTutar[1] = new QLabel(QStringLiteral("Toplam Tutar:"));
  lblDetayDurum = new QLabel;
  lblDetayDurum->setObjectName(QStringLiteral("lblDetayDurum"));
  cmdBilgiGoster = Dugme("cmdBilgiGoster", QStringLiteral("Tüm Belgeleri Göster"));
  cmdRisk = Dugme("cmdRisk", QStringLiteral("Risk Bilgisini Göster"));
  cmdKarsiliksiz = Dugme("cmdKarsiliksiz", QStringLiteral("Karşılıksız Belgeleri Göster"));
  cmdOdenen = Dugme("cmdOdenen", QStringLiteral("Ödenen Belgeleri Göster"));
  cmdCsv = csv::CsvDugmesi();
  cmdExit = Dugme("cmdExit", QStringLiteral("Çıkış"));
  ekran::KontrolTetiklemez(cmdExit);

  auto* secim = new QGridLayout;
  secim->addWidget(new QLabel(QStringLiteral("Soyad, Ad:")), 0, 0);
  secim->addWidget(cmbAd, 0, 1, 1, 3);
  secim->addWidget(new QLabel(QStringLiteral("Başlangıç Tarihi:")), 1, 0);
  secim->addWidget(txtBastar, 1, 1);
  secim->addWidget(new QLabel(QStringLiteral("Bitiş Tarihi:")), 1, 2);
  secim->addWidget(txtSonTar, 1, 3);
  secim->setColumnStretch(4, 1);
  auto* komutlar = new QHBoxLayout;
  for (QPushButton* d : {cmdBilgiGoster, cmdRisk, cmdKarsiliksiz, cmdOdenen})
    komutlar->addWidget(d);
  komutlar->addStretch();
  auto* alt = new QGridLayout;
  alt->addWidget(lblTutar[0], 0, 0);
  alt->addWidget(txtAdet, 0, 1);
  alt->addWidget(lblTutar[1], 0, 2);
  alt->addWidget(txtToplam, 0, 3);
  alt->addWidget(lblDetayDurum, 1, 0, 1, 4);
  alt->setColumnStretch(4, 1);
  auto* son = new QHBoxLayout;
  son->addStretch();
  son->addWidget(cmdCsv);
  son->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addLayout(secim);
  ana->addLayout(komutlar);
  ana->addWidget(lblRaporTip);
  ana->addWidget(dGridDetay, 1);
  ana->addLayout(alt);
  ana->addLayout(son);
  ana->addWidget(txtMusteriNo);

  ekran::AyrilirkenKontrol(cmbAd, [this] { return cmbAd_Validate(); });
  reports::RaporTarihi(txtBastar);
  reports::RaporTarihi(txtSonTar);
  const auto goster = [this](int tip) {
    return [this, tip] { ekran::Korumali([this, tip] { Goster(tip); }); };
  };
  connect(cmdBilgiGoster, &QPushButton::clicked, this, goster(musteribilgi::Tum));
  connect(cmdRisk, &QPushButton::clicked, this, goster(musteribilgi::Risk));
  connect(cmdKarsiliksiz, &QPushButton::clicked, this, goster(musteribilgi::Karsiliksiz));
  connect(cmdOdenen, &QPushButton::clicked, this, goster(musteribilgi::Odenen));
  connect(cmdCsv, &QPushButton::clicked, this, [this] { cmdCsv_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Kapat(); });
  Gorunum(false);
}

frmMusteriBilgi::~frmMusteriBilgi() { dGridDetay->Bagla(nullptr); }

void frmMusteriBilgi::Form_Load() {
  ekran::FormOrtala(this, 7000, 11000);
  txtMusteriNo->clear();
  rsMusteri = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT MusteriNo, Soyadi, Adi, Bulunacak FROM MusteriQry"));
  const int adet = std::min(rsMusteri.RecordCount(), kMusteriSiniri);
  const int ad = rsMusteri.AlanNo(QStringLiteral("Bulunacak"));
  QVector<master::MusteriListesi::Oge> ogeler;
  ogeler.reserve(adet);
  for (int i = 0; i < adet; ++i) {
    const QVariant v = rsMusteri.Deger(i, ad);
    ogeler.push_back(
        {db::NullMu(v) ? QString() : v.toString(), rsMusteri.Deger(i, 0).toLongLong()});
  }
  musteriler_->Doldur(std::move(ogeler));
  cmbAd->setCurrentIndex(-1);
  cmbAd->setEditText(QString());
}

void frmMusteriBilgi::Form_Unload() {
  dGridDetay->Bagla(nullptr);
  rsBelge = db::Kayitlar();
  rsMusteri = db::Kayitlar();
}

bool frmMusteriBilgi::eventFilter(QObject* o, QEvent* e) {
  // Coming to the choice of customer hides the list of the last choice.
  if (e->type() == QEvent::FocusIn && (o == cmbAd || o == cmbAd->lineEdit())) Gorunum(false);
  return ekran::Form::eventFilter(o, e);
}

bool frmMusteriBilgi::cmbAd_Validate() {
  if (QApplication::activePopupWidget()) return true;  // its own list opening
  const QString metin = cmbAd->currentText();
  if (metin.isEmpty()) {
    txtMusteriNo->setText(QStringLiteral("0"));
    return true;
  }
  const int satir = musteriler_->Bul(metin);
  if (satir < 0) {
    mesaj::Kritik(QStringLiteral("Lütfen Listeden Bir Müşteri Seçiniz"),
                  QStringLiteral("Müşteri Seçimi"));
    return false;
  }
  if (cmbAd->currentIndex() != satir) cmbAd->setCurrentIndex(satir);
  txtMusteriNo->setText(QString::number(musteriler_->At(satir).deger));
  return true;
}

void frmMusteriBilgi::Goster(int tip) {
  musteribilgi::Secim s;
  s.musteriNo = txtMusteriNo->text().toLongLong();
  s.tip = musteribilgi::Gorunum(tip);
  s.bas = txtBastar->text();
  s.son = txtSonTar->text();
  s.bugun = QDate::currentDate();
  const musteribilgi::Sorgu q = musteribilgi::SorguKur(s);

  dGridDetay->Bagla(nullptr);
  rsBelge = db::Kayitlar();
  rsBelge = Genel::Baglanti.Sorgu(q.metin, q.deger);
  const musteribilgi::Ozet o = musteribilgi::Ozetle(rsBelge);
  rsBelge.MoveFirst();
  lblRaporTip->setText(q.baslik);
  txtToplam->setText(musteribilgi::ToplamYazisi(o));
  txtAdet->setText(QString::number(o.adet));
  lblDetayDurum->setText(musteribilgi::OrtalamaYazisi(o));
  dGridDetay->Bagla(&rsBelge);
  Gorunum(true);
}

void frmMusteriBilgi::Gorunum(bool goster) {
  for (QWidget* w : std::initializer_list<QWidget*>{dGridDetay, lblRaporTip, txtToplam, lblTutar[0],
                                                    lblTutar[1], txtAdet, lblDetayDurum, cmdCsv})
    w->setVisible(goster);
  if (!goster) lblDetayDurum->clear();
}

void frmMusteriBilgi::cmdCsv_Click() {
  if (dGridDetay->isVisible())
    csv::IzgaraKaydet(dGridDetay, QStringLiteral("musteri-bilgi.csv"), this);
}

namespace reports {
void MusteriBilgiEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmMusteriBilgi"), [] { return new frmMusteriBilgi; });
}
}  // namespace reports
