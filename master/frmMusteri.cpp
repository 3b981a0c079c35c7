#include "master/frmMusteri.h"

#include <QApplication>
#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QListView>
#include <QVBoxLayout>
#include <algorithm>
#include <limits>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "core/Rapor.h"
#include "master/MusteriListesi.h"
#include "master/frmBul.h"
#include "master/rptEtiket.h"

namespace {

QComboBox* Liste(const QString& ad, const QStringList& ogeler = {}) {
  auto* c = new QComboBox;
  c->setObjectName(ad);
  c->addItems(ogeler);
  return c;
}

QPushButton* Dugme(const QString& ad, const QString& yazi) {
  auto* d = new QPushButton(yazi);
  d->setObjectName(ad);
  d->setAutoDefault(false);
  return d;
}

QLabel* Etiket(const QString& yazi) { return new QLabel(yazi); }

// Keeps a widget's place in the layout while it is hidden, so that nothing
// jumps when the proxy frame or the search frame comes and goes.
void YeriniKoru(QWidget* w) {
  QSizePolicy p = w->sizePolicy();
  p.setRetainSizeWhenHidden(true);
  w->setSizePolicy(p);
}

// The editable lists of numbers and names: their texts are keys, and
// nothing measures thirty thousand entries to find a width.
void AramaListesi(QComboBox* c, master::MusteriListesi* model) {
  ekran::AnahtarListesi(c);
  c->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  c->setModel(model);
  c->setMaxVisibleItems(20);
  if (auto* v = qobject_cast<QListView*>(c->view())) v->setUniformItemSizes(true);
}

}  // namespace

frmMusteri::frmMusteri(QWidget* ust)
    : ekran::Form(ust),
      noModeli_(new master::MusteriListesi(this)),
      adModeli_(new master::MusteriListesi(this)) {
  setWindowTitle(QStringLiteral("Müşteri Giriş"));
  Kur();
}

frmMusteri::~frmMusteri() {
  // Closing hides the lists only after this part of the screen is gone: a
  // number or name left typed in one must not start its look-up then.
  for (QComboBox* liste : {cmbNo, cmbAd}) {
    liste->removeEventFilter(this);
    liste->disconnect(this);
  }
}

void frmMusteri::Kur() {
  // --- the search frame
  frmSearch = new QGroupBox(QStringLiteral("Bilgi Arama"));
  frmSearch->setObjectName(QStringLiteral("frmSearch"));
  cmbNo = Liste(QStringLiteral("cmbNo"));
  cmbAd = Liste(QStringLiteral("cmbAd"));
  AramaListesi(cmbNo, noModeli_);
  AramaListesi(cmbAd, adModeli_);
  auto* arama = new QHBoxLayout(frmSearch);
  arama->addWidget(Etiket(QStringLiteral("No:")));
  arama->addWidget(cmbNo, 1);
  arama->addSpacing(12);
  arama->addWidget(Etiket(QStringLiteral("Soyad, Ad:")));
  arama->addWidget(cmbAd, 3);
  YeriniKoru(frmSearch);

  // --- the record
  txtMusteriNo = ekran::Kutu(QStringLiteral("txtMusteriNo"), 20, false);
  cmdKodBelirle = Dugme(QStringLiteral("cmdKodBelirle"), QStringLiteral("?"));
  txtVergiKimlikNo = ekran::Kutu(QStringLiteral("txtVergiKimlikNo"), 10);
  txtVergiDairesi = ekran::Kutu(QStringLiteral("txtVergiDairesi"), 20);
  txtSoyadi = ekran::Kutu(QStringLiteral("txtSoyadi"), 20);
  txtAdi = ekran::Kutu(QStringLiteral("txtAdi"), 16);
  txtBabaAdi = ekran::Kutu(QStringLiteral("txtBabaAdi"), 16);
  txtAdres = ekran::Kutu(QStringLiteral("txtAdres"), 50);
  txtIlce = ekran::Kutu(QStringLiteral("txtIlce"), 15);
  txtPostaKod = ekran::Kutu(QStringLiteral("txtPostaKod"), 5);
  cmbIl = Liste(QStringLiteral("cmbIl"));
  cmbIl->setMaxVisibleItems(20);
  txtUlkeKod = ekran::Kutu(QStringLiteral("txtUlkeKod"), 3);
  txtTCKimlikNo = ekran::Kutu(QStringLiteral("txtTCKimlikNo"), 11);
  cmbUyruk = Liste(QStringLiteral("cmbUyruk"), {QStringLiteral("TC"), QStringLiteral("Yabancı")});
  cmbHukukiBolum = Liste(QStringLiteral("cmbHukukiBolum"));
  cmbHukukiYapi = Liste(QStringLiteral("cmbHukukiYapi"));
  cmbVekilDurum = Liste(QStringLiteral("cmbVekilDurum"),
                        {QStringLiteral("Yok"), QStringLiteral("Veli"), QStringLiteral("Vasi"),
                         QStringLiteral("Kayyım"), QStringLiteral("Vekil")});
  Frame1 = new QGroupBox(QStringLiteral("Vekil "));
  Frame1->setObjectName(QStringLiteral("Frame1"));
  txtVekilVergiKimlikNo = ekran::Kutu(QStringLiteral("txtVekilVergiKimlikNo"), 10, false);
  txtVekilSoyad = ekran::Kutu(QStringLiteral("txtVekilSoyad"), 20, false);
  txtVekilad = ekran::Kutu(QStringLiteral("txtVekilad"), 16, false);
  YeriniKoru(Frame1);

  // Widths follow the limits, so that the clerk sees how much fits.
  const int harf = fontMetrics().horizontalAdvance(QStringLiteral("ŞMAĞÜ")) / 5;
  const auto genislik = [harf](QWidget* w, int n) { w->setFixedWidth(harf * n + 14); };
  genislik(txtMusteriNo, 11);
  genislik(txtVergiKimlikNo, 11);
  genislik(txtVergiDairesi, 20);
  genislik(txtSoyadi, 20);
  genislik(txtAdi, 20);
  genislik(txtBabaAdi, 20);
  genislik(txtIlce, 15);
  genislik(txtPostaKod, 6);
  genislik(cmbIl, 15);
  genislik(txtUlkeKod, 6);
  genislik(txtTCKimlikNo, 11);
  genislik(cmbUyruk, 6);
  genislik(cmbHukukiBolum, 15);
  genislik(cmbVekilDurum, 11);
  genislik(txtVekilVergiKimlikNo, 11);
  genislik(txtVekilSoyad, 20);
  genislik(txtVekilad, 16);
  cmbNo->setMinimumWidth(harf * 9);
  cmdKodBelirle->setFixedWidth(cmdKodBelirle->sizeHint().height() + 4);

  auto* izgara = new QGridLayout;
  izgara->setHorizontalSpacing(8);
  izgara->setVerticalSpacing(6);
  izgara->setColumnMinimumWidth(2, 16);
  izgara->setColumnStretch(5, 1);
  int satir = 0;
  // Left pair of a row; a field that spans the row to the right edge grows.
  const auto sol = [&](const QString& etiket, QWidget* alan, bool satirBoyu = false) {
    izgara->addWidget(Etiket(etiket), satir, 0);
    if (satirBoyu)
      izgara->addWidget(alan, satir, 1, 1, 5);
    else
      izgara->addWidget(alan, satir, 1, Qt::AlignLeft);
  };
  const auto sag = [&](const QString& etiket, QWidget* alan) {
    izgara->addWidget(Etiket(etiket), satir, 3);
    izgara->addWidget(alan, satir, 4, Qt::AlignLeft);
  };
  const auto yanyana = [](QWidget* a, QWidget* b, int uzayan) {
    auto* w = new QWidget;
    auto* h = new QHBoxLayout(w);
    h->setContentsMargins(0, 0, 0, 0);
    h->addWidget(a, uzayan == 0);
    h->addWidget(b, uzayan == 1);
    if (uzayan < 0) h->addStretch();
    return w;
  };

  sol(QStringLiteral("Müşteri Numarası:"), yanyana(txtMusteriNo, cmdKodBelirle, -1));
  ++satir;
  sol(QStringLiteral("Vergi Kimlik No:"), txtVergiKimlikNo);
  sag(QStringLiteral("Vergi Dairesi:"), txtVergiDairesi);
  ++satir;
  sol(QStringLiteral("Soyadı / Ünvan:"), txtSoyadi);
  ++satir;
  sol(QStringLiteral("Adı / Ünvan Devam 1:"), txtAdi);
  ++satir;
  sol(QStringLiteral("Baba Adı / Ünvan Devam 2:"), txtBabaAdi);
  ++satir;
  txtAdres->setMinimumWidth(harf * 36);
  sol(QStringLiteral("Adres:"), txtAdres, true);
  ++satir;
  sol(QStringLiteral("İlçe:"), txtIlce);
  sag(QStringLiteral("Posta Kodu:"), txtPostaKod);
  ++satir;
  sol(QStringLiteral("İl:"), cmbIl);
  sag(QStringLiteral("Ülke Kodu:"), txtUlkeKod);
  ++satir;
  sol(QStringLiteral("TC Kimlik No:"), txtTCKimlikNo);
  sag(QStringLiteral("Uyruk:"), cmbUyruk);
  ++satir;
  sol(QStringLiteral("Hukuki Yapı:"), yanyana(cmbHukukiBolum, cmbHukukiYapi, 1), true);
  ++satir;
  sol(QStringLiteral("Vekil Durumu:"), cmbVekilDurum);
  ++satir;

  auto* vekil = new QGridLayout(Frame1);
  vekil->setHorizontalSpacing(8);
  vekil->addWidget(Etiket(QStringLiteral("Vergi Kimlik No:")), 0, 0);
  vekil->addWidget(txtVekilVergiKimlikNo, 0, 1, Qt::AlignLeft);
  vekil->addWidget(Etiket(QStringLiteral("Soyadı:")), 0, 2);
  vekil->addWidget(txtVekilSoyad, 0, 3, Qt::AlignLeft);
  vekil->addWidget(Etiket(QStringLiteral("Adı:")), 0, 4);
  vekil->addWidget(txtVekilad, 0, 5, Qt::AlignLeft);
  vekil->setColumnStretch(6, 1);
  izgara->addWidget(Frame1, satir, 0, 1, 6);

  // --- moving and commands
  cmdFirst = Dugme(QStringLiteral("cmdFirst"), QStringLiteral("İlk Kayıt"));
  cmdPrev = Dugme(QStringLiteral("cmdPrev"), QStringLiteral("Önceki"));
  cmdNext = Dugme(QStringLiteral("cmdNext"), QStringLiteral("Sonraki"));
  cmdLast = Dugme(QStringLiteral("cmdLast"), QStringLiteral("Son Kayıt"));
  lblDurum = new QLabel;
  lblDurum->setObjectName(QStringLiteral("lblDurum"));
  lblDurum->setAlignment(Qt::AlignCenter);
  lblDurum->setMinimumWidth(harf * 16);
  lblDurum->setFrameShape(QFrame::StyledPanel);
  cmdNew = Dugme(QStringLiteral("cmdNew"), QStringLiteral("&Yeni Kayıt"));
  cmdEdit = Dugme(QStringLiteral("cmdEdit"), QStringLiteral("&Değiştir"));
  cmdSave = Dugme(QStringLiteral("cmdSave"), QStringLiteral("&Kaydet"));
  cmdCancel = Dugme(QStringLiteral("cmdCancel"), QStringLiteral("&Vazgeç"));
  cmdsil = Dugme(QStringLiteral("cmdsil"), QStringLiteral("Sil"));
  cmdExit = Dugme(QStringLiteral("cmdExit"), QStringLiteral("&Çıkış"));
  cmdAra = Dugme(QStringLiteral("cmdAra"), QStringLiteral("Bul"));
  cmdEtiket = Dugme(QStringLiteral("cmdEtiket"), QStringLiteral("Etiket Yazdır"));

  auto* hareket = new QHBoxLayout;
  hareket->addStretch();
  hareket->addWidget(cmdFirst);
  hareket->addWidget(cmdPrev);
  hareket->addWidget(lblDurum);
  hareket->addWidget(cmdNext);
  hareket->addWidget(cmdLast);
  hareket->addStretch();

  auto* komutlar = new QHBoxLayout;
  for (QPushButton* d : {cmdNew, cmdEdit, cmdSave, cmdCancel, cmdsil}) komutlar->addWidget(d);
  komutlar->addSpacing(16);
  komutlar->addWidget(cmdAra);
  komutlar->addWidget(cmdEtiket);
  komutlar->addStretch();
  komutlar->addWidget(cmdExit);

  mnuCubuk = new QMenuBar(this);
  mnuCubuk->setObjectName(QStringLiteral("mnuCubuk"));
  mnuFaturaEk = mnuCubuk->addAction(QStringLiteral("Sözleşmesiz Fatura Basımı"));
  mnuFaturaEk->setObjectName(QStringLiteral("mnuFaturaEk"));

  auto* duzen = new QVBoxLayout(this);
  duzen->setMenuBar(mnuCubuk);
  duzen->addWidget(frmSearch);
  duzen->addSpacing(4);
  duzen->addLayout(izgara);
  duzen->addStretch();
  duzen->addLayout(hareket);
  duzen->addSpacing(4);
  duzen->addLayout(komutlar);

  // --- behaviour
  ekran::AyrilirkenKontrol(txtMusteriNo, [this] { return txtMusteriNo_Validate(); });
  ekran::KontrolTetiklemez(cmdKodBelirle);
  ekran::KontrolTetiklemez(cmdCancel);

  connect(cmbNo, &QComboBox::activated, this, [this] { cmbNo_Click(); });
  connect(cmbAd, &QComboBox::activated, this, [this] { cmbAd_Click(); });
  ekran::EnterKur(cmbNo, [this] { cmbNo_Click(); });
  ekran::EnterKur(cmbAd, [this] { cmbAd_Sec(); });
  cmbNo->installEventFilter(this);
  cmbAd->installEventFilter(this);
  connect(cmbVekilDurum, &QComboBox::currentIndexChanged, this, [this] { cmbVekilDurum_Click(); });
  connect(cmbHukukiBolum, &QComboBox::activated, this, [this] { cmbHukukiBolum_Click(); });

  connect(cmdFirst, &QPushButton::clicked, this, [this] { cmdFirst_Click(); });
  connect(cmdPrev, &QPushButton::clicked, this, [this] { cmdPrev_Click(); });
  connect(cmdNext, &QPushButton::clicked, this, [this] { cmdNext_Click(); });
  connect(cmdLast, &QPushButton::clicked, this, [this] { cmdLast_Click(); });
  connect(cmdNew, &QPushButton::clicked, this, [this] { cmdNew_Click(); });
  connect(cmdEdit, &QPushButton::clicked, this, [this] { cmdEdit_Click(); });
  connect(cmdSave, &QPushButton::clicked, this, [this] { cmdSave_Click(); });
  connect(cmdCancel, &QPushButton::clicked, this, [this] { cmdCancel_Click(); });
  connect(cmdsil, &QPushButton::clicked, this, [this] { cmdsil_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
  connect(cmdKodBelirle, &QPushButton::clicked, this, [this] { cmdKodBelirle_Click(); });
  connect(cmdAra, &QPushButton::clicked, this, [this] { cmdAra_Click(); });
  connect(cmdEtiket, &QPushButton::clicked, this, [this] { cmdEtiket_Click(); });
  connect(mnuFaturaEk, &QAction::triggered, this, [this] { mnuFaturaEk_Click(); });

  cmbVekilDurum_Click();
}

// --- opening

void frmMusteri::Form_Load() {
  ekran::FormOrtala(this, 8900, 11200);
  AramaAcik = -1;
  IlDoldur();
  HukukiBolumDoldur();
  rsMusteri =
      Genel::Baglanti.Sorgu(QStringLiteral("SELECT MusteriNo FROM Musteri ORDER BY MusteriNo"));
  ComboDoldur();
  Kontrol(false);
  Goster();
}

void frmMusteri::Form_Activate() {
  mnuFaturaEk->setEnabled(ekran::Hazir(QStringLiteral("frmFaturaEk")));
}

void frmMusteri::IlDoldur() {
  cmbIl->clear();
  db::Kayitlar rs = Genel::Baglanti.Sorgu(QStringLiteral("SELECT IlKod, Il FROM Il_Trafik_Kodu"));
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
    cmbIl->addItem(rs.Metin(QStringLiteral("Il")), rs.Fields(QStringLiteral("IlKod")));
}

void frmMusteri::HukukiBolumDoldur() {
  cmbHukukiBolum->clear();
  db::Kayitlar rs =
      Genel::Baglanti.Sorgu(QStringLiteral("SELECT DISTINCT Kategori FROM HukukiDurum"));
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
    cmbHukukiBolum->addItem(rs.Metin(QStringLiteral("Kategori")));
  cmbHukukiBolum->setCurrentIndex(-1);
}

// --- showing the record

QString frmMusteri::ListeAdi(const QVariant& hukukiDurum, const QString& soyadi,
                             const QString& adi) const {
  if (!db::NullMu(hukukiDurum) && hukukiDurum.toLongLong() == 1)
    return adi + QLatin1Char(' ') + soyadi;
  return soyadi + QLatin1Char(' ') + adi;
}

// Position 33 whatever the list holds; a shorter list stands on its first.
void frmMusteri::IlSec(int konum) {
  if (konum < 0 || konum >= cmbIl->count())
    konum = cmbIl->count() > kVarsayilanIl ? kVarsayilanIl : 0;
  cmbIl->setCurrentIndex(cmbIl->count() > 0 ? konum : -1);
}

void frmMusteri::Goster() {
  // A stored record is on show from here on: nothing new is being entered.
  if (KayitTipi == 1) {
    KayitTipi = 0;
    frmSearch->show();
  }
  Kontrol(false);
  db::Kayitlar kayit;
  if (rsMusteri.SatirVar())
    kayit = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Musteri WHERE MusteriNo = ?"),
                                  {rsMusteri.Fields(0)});
  if (!kayit.SatirVar()) {
    KontrolDurum(QStringLiteral("Bos"));
    return;
  }
  const auto metin = [&kayit](const char* alan) { return kayit.Metin(QString::fromLatin1(alan)); };
  txtMusteriNo->setText(metin("MusteriNo"));
  txtVergiKimlikNo->setText(metin("VergiKimlikNo"));
  txtVergiDairesi->setText(metin("VergiDairesi"));
  txtSoyadi->setText(metin("Soyadi"));
  txtAdi->setText(metin("Adi"));
  txtBabaAdi->setText(metin("BabaAdi"));
  txtAdres->setText(metin("Adres"));
  txtIlce->setText(metin("Ilce"));
  txtPostaKod->setText(metin("PostaKod"));
  txtUlkeKod->setText(metin("UlkeKod"));
  txtTCKimlikNo->setText(metin("TCKimlikNo"));
  txtVekilVergiKimlikNo->setText(metin("VekilVergiKimlik"));
  txtVekilSoyad->setText(metin("VekilSoyadi"));
  txtVekilad->setText(metin("VekilAdi"));

  // The lists' texts, standing on their entries when the lists hold them.
  const QString no = metin("MusteriNo");
  const int satir = rsMusteri.Satir();
  if (satir < noModeli_->Adet() && noModeli_->At(satir).metin == no) {
    cmbNo->setCurrentIndex(satir);
  } else {
    cmbNo->setCurrentIndex(-1);
    cmbNo->setEditText(no);
  }
  const QVariant hukuki = kayit.Fields(QStringLiteral("HukukiDurum"));
  const QString ad = ListeAdi(hukuki, metin("Soyadi"), metin("Adi"));
  const int adSatiri = cmbNo->currentIndex() >= 0 ? adModeli_->DegerSatiri(satir) : -1;
  if (adSatiri >= 0 && adModeli_->At(adSatiri).metin == ad) {
    cmbAd->setCurrentIndex(adSatiri);
  } else {
    cmbAd->setCurrentIndex(-1);
    cmbAd->setEditText(ad);
  }
  gosterilenNo_ = no;
  gosterilenAd_ = ad;

  const QVariant il = kayit.Fields(QStringLiteral("IlKod"));
  IlSec(!db::NullMu(il) && il.toInt() > 0 ? il.toInt() - 1 : kVarsayilanIl);
  const QVariant uyruk = kayit.Fields(QStringLiteral("Uyruk"));
  const int u = db::NullMu(uyruk) ? 0 : uyruk.toInt();
  cmbUyruk->setCurrentIndex(u > 0 && u <= cmbUyruk->count() ? u - 1 : 0);
  // An old row without a proxy state has none: "Yok".
  const QVariant vekil = kayit.Fields(QStringLiteral("VekilDurum"));
  const int v = db::NullMu(vekil) ? 0 : vekil.toInt();
  cmbVekilDurum->setCurrentIndex(v >= 0 && v < cmbVekilDurum->count() ? v : 0);
  cmbVekilDurum_Click();

  lblDurum->setText(QStringLiteral("Kayıt: %1/%2")
                        .arg(rsMusteri.AbsolutePosition())
                        .arg(rsMusteri.RecordCount()));

  if (db::NullMu(hukuki)) {
    cmbHukukiBolum->setCurrentIndex(-1);
    cmbHukukiYapi->setCurrentIndex(-1);
  } else {
    db::Kayitlar durum = Genel::Baglanti.Sorgu(
        QStringLiteral("SELECT * FROM HukukiDurum WHERE DurumKod = ?"), {hukuki});
    if (durum.SatirVar()) {
      cmbHukukiBolum->setCurrentIndex(
          cmbHukukiBolum->findText(durum.Metin(QStringLiteral("Kategori")), Qt::MatchExactly));
      cmbHukukiBolum_Click();
      cmbHukukiYapi->setCurrentIndex(
          cmbHukukiYapi->findText(durum.Metin(QStringLiteral("Durum")), Qt::MatchExactly));
    }
  }
  Kontrol(false);
  KontrolDurum(QStringLiteral("Normal"));
}

void frmMusteri::Kontrol(bool Durum) {
  for (QWidget* w : std::initializer_list<QWidget*>{
           txtMusteriNo, txtVergiKimlikNo, txtVergiDairesi, txtSoyadi, txtAdi, txtBabaAdi, txtAdres,
           txtIlce, txtPostaKod, cmbIl, txtUlkeKod, txtTCKimlikNo, cmbUyruk, cmbHukukiBolum,
           cmbHukukiYapi, cmbVekilDurum, txtVekilVergiKimlikNo, txtVekilSoyad, txtVekilad})
    w->setEnabled(Durum);
  if (KayitTipi == 1) {
    IlSec(kVarsayilanIl);
    cmbVekilDurum->setCurrentIndex(0);
    cmbUyruk->setCurrentIndex(0);
    txtMusteriNo->setReadOnly(false);
  } else {
    txtMusteriNo->setReadOnly(true);
  }
}

void frmMusteri::KontrolDurum(const QString& Islem) {
  const std::initializer_list<QWidget*> hareket = {cmdFirst, cmdPrev, cmdNext, cmdLast};
  if (Islem == QLatin1String("Bos")) {
    for (QWidget* w : std::initializer_list<QWidget*>{cmdFirst, cmdPrev, cmdNext, cmdLast, cmdEdit,
                                                      cmdSave, cmdCancel, cmdsil, cmdKodBelirle,
                                                      cmdAra, cmdEtiket, cmbNo, cmbAd})
      w->setEnabled(false);
    cmdNew->setEnabled(true);
  } else if (Islem == QLatin1String("Edit")) {
    cmdSave->setEnabled(true);
    cmdCancel->setEnabled(true);
    if (KayitTipi == 1) cmdKodBelirle->setEnabled(true);
    for (QWidget* w : hareket) w->setEnabled(false);
    for (QWidget* w : {cmdsil, cmdEdit, cmdNew}) w->setEnabled(false);
  } else if (Islem == QLatin1String("Normal")) {
    for (QWidget* w : hareket) w->setEnabled(true);
    for (QWidget* w :
         std::initializer_list<QWidget*>{cmdNew, cmdEdit, cmdsil, cmdAra, cmdEtiket, cmbNo, cmbAd})
      w->setEnabled(true);
    for (QWidget* w : {cmdSave, cmdCancel, cmdKodBelirle}) w->setEnabled(false);
  }
  cmdExit->setEnabled(true);
}

void frmMusteri::bosalt() {
  for (QLineEdit* k :
       {txtMusteriNo, txtVergiKimlikNo, txtVergiDairesi, txtSoyadi, txtAdi, txtBabaAdi, txtAdres,
        txtIlce, txtPostaKod, txtTCKimlikNo, txtVekilVergiKimlikNo, txtVekilSoyad, txtVekilad})
    k->clear();
  IlSec(kVarsayilanIl);
  txtUlkeKod->setText(QStringLiteral("TR"));
  cmbUyruk->setCurrentIndex(0);
  cmbHukukiBolum->setCurrentIndex(-1);
  cmbHukukiBolum_Click();
  cmbVekilDurum->setCurrentIndex(0);
}

// --- the lists of numbers and names

void frmMusteri::ComboDoldur() {
  noModeli_->Doldur({});
  adModeli_->Doldur({});
  listelerEski_ = false;
  if (rsMusteri.RecordCount() == 0) return;
  if (!rsMusteri.SatirVar()) {
    rsMusteri.MoveFirst();
    return;
  }
  // From the current row on, at most kListeSiniri entries.
  const int adet = std::min(rsMusteri.RecordCount() - rsMusteri.Satir(), kListeSiniri);
  db::Kayitlar rs = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT MusteriNo, HukukiDurum, Soyadi, Adi FROM Musteri "
                     "WHERE MusteriNo >= ? ORDER BY MusteriNo LIMIT ?"),
      {rsMusteri.Fields(0), adet});
  QVector<master::MusteriListesi::Oge> numaralar, adlar;
  numaralar.reserve(rs.RecordCount());
  adlar.reserve(rs.RecordCount());
  for (int i = 0; i < rs.RecordCount(); ++i) {
    numaralar.push_back({rs.Deger(i, 0).toString(), i});
    const auto metin = [&rs, i](int alan) {
      const QVariant v = rs.Deger(i, alan);
      return db::NullMu(v) ? QString() : v.toString();
    };
    adlar.push_back({ListeAdi(rs.Deger(i, 1), metin(2), metin(3)), i});
  }
  noModeli_->Doldur(std::move(numaralar));
  adModeli_->SiraliDoldur(std::move(adlar));
  rsMusteri.MoveFirst();
}

void frmMusteri::AdGuncelle(qint64 no, const QString& ad) {
  const QString metin = QString::number(no);
  for (int i = 0; i < noModeli_->Adet(); ++i) {
    if (noModeli_->At(i).metin != metin) continue;
    const int satir = adModeli_->DegerSatiri(noModeli_->At(i).deger);
    if (satir >= 0 && adModeli_->At(satir).metin != ad) adModeli_->SiraliDegistir(satir, ad);
    return;
  }
}

bool frmMusteri::NumarayaGit(const QString& no) {
  bool tamam = false;
  const qint64 aranan = no.trimmed().toLongLong(&tamam);
  if (tamam) {
    // The set is in number order: halve it.
    int alt = 0, ust = rsMusteri.RecordCount() - 1;
    while (alt <= ust) {
      const int orta = (alt + ust) / 2;
      const qint64 x = rsMusteri.Deger(orta, 0).toLongLong();
      if (x == aranan) {
        rsMusteri.Move(orta);
        return true;
      }
      if (x < aranan)
        alt = orta + 1;
      else
        ust = orta - 1;
    }
  }
  rsMusteri.Move(rsMusteri.RecordCount());
  return false;
}

void frmMusteri::cmbAd_Click() {
  if (!AramaAcik || cmbAd->currentIndex() < 0) return;
  const qint64 deger = adModeli_->At(cmbAd->currentIndex()).deger;
  AramaAcik = 0;
  const int noSatiri = noModeli_->DegerSatiri(deger);
  if (noSatiri >= 0) cmbNo->setCurrentIndex(noSatiri);
  if (!NumarayaGit(cmbNo->currentText())) {
    mesaj::Kritik(QStringLiteral("Aranan Kayıt Bulunamadı!"), QStringLiteral("Arama"));
    rsMusteri.MoveFirst();
  }
  Goster();
  AramaAcik = -1;
}

void frmMusteri::cmbAd_Sec() {
  const QString yazi = cmbAd->currentText();
  const int simdiki = cmbAd->currentIndex();
  if (simdiki < 0 || cmbAd->itemText(simdiki) != yazi) {
    const int i = adModeli_->Bul(yazi);
    if (i < 0) return;  // nothing picked
    cmbAd->setCurrentIndex(i);
  }
  cmbAd_Click();
}

void frmMusteri::cmbNo_Click() {
  if (!AramaAcik) return;
  if (!NumarayaGit(cmbNo->currentText())) {
    mesaj::Kritik(QStringLiteral("Aranan Kayıt Bulunamadı!"), QStringLiteral("Arama"));
    rsMusteri.MoveFirst();
  }
  Goster();
  AramaAcik = -1;
}

// Leaving a list after typing into it picks what was typed, as Enter does.
bool frmMusteri::eventFilter(QObject* o, QEvent* e) {
  // A list's own popup, or a message box shown over the screen, takes the
  // focus without the clerk leaving the list.
  const auto neden =
      e->type() == QEvent::FocusOut ? static_cast<QFocusEvent*>(e)->reason() : Qt::OtherFocusReason;
  if (e->type() == QEvent::FocusOut && neden != Qt::PopupFocusReason &&
      neden != Qt::ActiveWindowFocusReason) {
    QWidget* yeni = QApplication::focusWidget();
    const bool icinde = yeni && (yeni == o || static_cast<QWidget*>(o)->isAncestorOf(yeni));
    if (o == cmbNo && !icinde && cmbNo->currentText() != gosterilenNo_) cmbNo_Click();
    if (o == cmbAd && !icinde && cmbAd->currentText() != gosterilenAd_) cmbAd_Sec();
  }
  return ekran::Form::eventFilter(o, e);
}

void frmMusteri::KisiBul(qint32 MusteriKod) {
  cmbNo->setCurrentIndex(-1);
  cmbNo->setEditText(QString::number(MusteriKod));
  AramaAcik = -1;
  cmbNo_Click();
}

// --- fields

void frmMusteri::cmbVekilDurum_Click() {
  Frame1->setVisible(cmbVekilDurum->currentText() != QLatin1String("Yok"));
}

void frmMusteri::cmbHukukiBolum_Click() {
  cmbHukukiYapi->clear();
  if (cmbHukukiBolum->currentIndex() < 0) return;
  db::Kayitlar rs = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT DurumKod, Durum FROM HukukiDurum WHERE Kategori = ?"),
      {cmbHukukiBolum->currentText()});
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
    cmbHukukiYapi->addItem(rs.Metin(QStringLiteral("Durum")),
                           rs.Fields(QStringLiteral("DurumKod")));
  // The first item added to an empty list becomes its selection: a status the
  // clerk never chose would be saved.
  cmbHukukiYapi->setCurrentIndex(-1);
}

qint64 frmMusteri::MusteriNoOku() {
  const QString metin = txtMusteriNo->text().trimmed();
  const bool rakam = !metin.isEmpty() && std::all_of(metin.begin(), metin.end(), [](QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
  });
  bool tamam = false;
  const qint64 no = rakam ? metin.toLongLong(&tamam) : 0;
  if (!tamam || no == 0) {
    mesaj::Kritik(QStringLiteral("Müşteri Numarası Sayı Olmalı"),
                  QStringLiteral("Nümerik Değer Hatası"));
    return 0;
  }
  if (no > std::numeric_limits<qint32>::max()) {
    mesaj::Kritik(QStringLiteral("Müşteri Numarası En Fazla %1 Olabilir")
                      .arg(std::numeric_limits<qint32>::max()),
                  QStringLiteral("Nümerik Değer Hatası"));
    return 0;
  }
  return no;
}

bool frmMusteri::txtMusteriNo_Validate() { return MusteriNoOku() != 0; }

// --- commands

void frmMusteri::cmdNew_Click() {
  frmSearch->hide();
  KayitTipi = 1;
  bosalt();
  Kontrol(true);
  KontrolDurum(QStringLiteral("Edit"));
  txtMusteriNo->setFocus();
}

void frmMusteri::cmdEdit_Click() {
  KayitTipi = 0;
  Kontrol(true);
  KontrolDurum(QStringLiteral("Edit"));
  txtSoyadi->setFocus();
}

void frmMusteri::cmdCancel_Click() {
  frmSearch->show();
  KayitTipi = 0;
  Goster();
}

void frmMusteri::cmdKodBelirle_Click() {
  const QVariant son = Genel::Baglanti.Deger(QStringLiteral("SELECT max(MusteriNo) FROM Musteri"));
  txtMusteriNo->setText(db::NullMu(son) ? QStringLiteral("1")
                                        : QString::number(son.toLongLong() + 1));
  txtSoyadi->setFocus();
}

void frmMusteri::cmdSave_Click() {
  const qint64 no = MusteriNoOku();
  if (no == 0) {
    txtMusteriNo->setFocus();
    return;
  }
  const QString anahtar =
      Genel::AramaAnahtari(txtSoyadi->text(), txtAdi->text(), txtBabaAdi->text());
  const QVariant bulunan = master::AyniAnahtarliMusteri(anahtar);
  const bool ayniIsim = !db::NullMu(bulunan);

  const QVariant hukuki =
      cmbHukukiYapi->currentIndex() >= 0 ? cmbHukukiYapi->currentData() : db::Null();
  const QVariantList degerler = {no,
                                 txtVergiKimlikNo->text(),
                                 txtSoyadi->text(),
                                 txtAdi->text(),
                                 txtBabaAdi->text(),
                                 txtAdres->text(),
                                 txtIlce->text(),
                                 txtPostaKod->text(),
                                 cmbIl->currentIndex() >= 0 ? cmbIl->currentData() : db::Null(),
                                 cmbIl->currentText(),
                                 txtUlkeKod->text(),
                                 txtTCKimlikNo->text(),
                                 cmbUyruk->currentIndex() + 1,
                                 std::max(cmbVekilDurum->currentIndex(), 0),
                                 txtVekilVergiKimlikNo->text(),
                                 txtVekilSoyad->text(),
                                 txtVekilad->text(),
                                 txtVergiDairesi->text(),
                                 hukuki,
                                 anahtar};
  const QString ekle = QStringLiteral(
      "INSERT INTO Musteri(MusteriNo, VergiKimlikNo, Soyadi, Adi, BabaAdi, Adres, Ilce, "
      "PostaKod, IlKod, Il_Ad, UlkeKod, TCKimlikNo, Uyruk, VekilDurum, VekilVergiKimlik, "
      "VekilSoyadi, VekilAdi, VergiDairesi, HukukiDurum, Aranacak) "
      "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)");
  const auto eklenemedi = [this] {
    mesaj::Kritik(QStringLiteral("Kayıt Eklenemedi! Müşteri Numarasını Kontol Edin!"),
                  QStringLiteral("Çift Müşteri Numarası"));
    txtMusteriNo->setFocus();
  };

  bool yeniSatir = false;
  if (KayitTipi == 1) {
    if (ayniIsim) {
      mesaj::Kritik(QStringLiteral("Bu Müşteri Daha Önce Kaydedilmiş"));
      txtMusteriNo->setText(bulunan.toString());
    } else {
      try {
        Genel::Baglanti.Calistir(ekle, degerler);
      } catch (const db::Hata&) {
        eklenemedi();
        return;
      }
      yeniSatir = true;
    }
  } else if (!ayniIsim || bulunan.toLongLong() == no) {
    // The row is replaced whole or not at all.
    try {
      db::Islem islem(Genel::Baglanti);
      Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Musteri WHERE MusteriNo = ?"), {no});
      Genel::Baglanti.Calistir(ekle, degerler);
      islem.Onayla();
    } catch (const db::Hata&) {
      eklenemedi();
      return;
    }
    if (!listelerEski_) AdGuncelle(no, ListeAdi(hukuki, txtSoyadi->text(), txtAdi->text()));
  } else {
    mesaj::Kritik(QStringLiteral("Bu Müşteri Daha Önce Kaydedilmiş"));
  }

  frmSearch->show();
  KayitTipi = 0;
  // Only a new row changes the set; an edit keeps every number where it was.
  if (yeniSatir || listelerEski_) {
    rsMusteri.Requery();
    ComboDoldur();
  }
  NumarayaGit(txtMusteriNo->text());
  Goster();
  KontrolDurum(QStringLiteral("Normal"));
}

void frmMusteri::cmdsil_Click() {
  const QString no = txtMusteriNo->text().trimmed();
  const QVariant sozlesme = Genel::Baglanti.Deger(
      QStringLiteral("SELECT count(*) FROM Sozlesme WHERE MusteriNo = ?"), {no.toLongLong()});
  if (sozlesme.toLongLong() > 0) {
    mesaj::Kritik(QStringLiteral("Müşterinin Ödünç Kaydı Var, Silinemez"), QStringLiteral("Uyarı"));
    return;
  }
  if (!mesaj::EvetMi(QStringLiteral("Kayıt Silinecek! Onaylıyor musunuz?"), QStringLiteral("Onay")))
    return;
  try {
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Musteri WHERE MusteriNo = ?"),
                             {no.toLongLong()});
  } catch (const db::Hata& h) {
    mesaj::Kritik(h.metin(), QStringLiteral("Uyarı"));
    return;
  }
  rsMusteri.Requery();
  listelerEski_ = true;
  Goster();
}

void frmMusteri::cmdFirst_Click() {
  rsMusteri.MoveFirst();
  Goster();
}

void frmMusteri::cmdPrev_Click() {
  rsMusteri.MovePrevious();
  if (rsMusteri.Bof()) rsMusteri.MoveFirst();
  Goster();
}

void frmMusteri::cmdNext_Click() {
  rsMusteri.MoveNext();
  if (rsMusteri.Eof()) rsMusteri.MoveLast();
  Goster();
}

void frmMusteri::cmdLast_Click() {
  rsMusteri.MoveLast();
  Goster();
}

void frmMusteri::cmdEtiket_Click() {
  rapor::Goster(master::rptEtiket(master::EtiketVerisi(txtMusteriNo->text())), this);
}

void frmMusteri::cmdAra_Click() {
  frmBul bul(this, this);
  bul.exec();
}

void frmMusteri::mnuFaturaEk_Click() {
  // A blocking dialogue of this screen (a registered command), or a screen.
  if (txtMusteriNo->text().isEmpty() || !ekran::Hazir(QStringLiteral("frmFaturaEk"))) return;
  ekran::AcVeyaCalistir(QStringLiteral("frmFaturaEk"));
}

void frmMusteri::cmdExit_Click() { Kapat(); }

namespace master {

// The candidates are read through the index on Aranacak, a few ranges of the
// case forms of the key's first letters, and compared here.
QVariant AyniAnahtarliMusteri(const QString& anahtar) {
  const QString aranan = db::TurkceBuyuk(anahtar);
  QVariant bulunan;
  for (const db::Aralik& aralik : db::TurkceAraliklar(anahtar)) {
    db::Kayitlar rs =
        aralik.ust.isEmpty()
            ? Genel::Baglanti.Sorgu(
                  QStringLiteral("SELECT MusteriNo, Aranacak FROM Musteri WHERE Aranacak >= ?"),
                  {aralik.alt})
            : Genel::Baglanti.Sorgu(QStringLiteral("SELECT MusteriNo, Aranacak FROM Musteri "
                                                   "WHERE Aranacak >= ? AND Aranacak < ?"),
                                    {aralik.alt, aralik.ust});
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
      const QVariant no = rs.Fields(0);
      if (db::TurkceBuyuk(rs.Metin(QStringLiteral("Aranacak"))) == aranan &&
          (db::NullMu(bulunan) || no.toLongLong() < bulunan.toLongLong()))
        bulunan = no;
    }
  }
  return bulunan;
}

void MusteriEkranlariKaydet() {
  ekran::Kaydet(QStringLiteral("frmMusteri"), [] { return new frmMusteri; });
}

}  // namespace master
