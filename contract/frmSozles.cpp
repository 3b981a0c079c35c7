// The contract screen: building it, opening it, showing a contract, the two
// modes, the customer, navigation and the buttons that lead to other screens.
// Saving, changing and deleting contracts are in SozlesKayit.cpp, the lines in
// SozlesDetay.cpp.

#include "contract/frmSozles.h"

#include <QFocusEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

#include "contract/Faiz.h"
#include "contract/SozlesOrtak.h"
#include "contract/frmSozBul.h"
#include "contract/rptBordro.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "master/MusteriListesi.h"

namespace {

const QColor kZemin(255, 192, 128);

using contract::Dugme;
using contract::SayiMetni;
using contract::YeriniKoru;

}  // namespace

frmSozles::frmSozles(QWidget* ust) : contract::SozlesTemel(ust) {
  Kur();
  KurDavranis();
}

void frmSozles::Kur() {
  contract::ZeminBoya(this, kZemin);

  const auto etiket = [this](const QString& yazi) { return Etiket(yazi); };
  const int harf = contract::HarfGenisligi(this);
  const auto genislik = [harf](QWidget* w, int n) { contract::Genislik(w, harf, n); };

  // --- the customer
  QHBoxLayout* musteri = MusteriCercevesiKur(harf);
  cmdMusDetay = Dugme(QStringLiteral("cmdMusDetay"), QStringLiteral("?"));
  cmdBilgiGoster =
      Dugme(QStringLiteral("cmdBilgiGoster"), QStringLiteral("&Müşterinin Sözleşmelerini  Göster"));
  txtOldSeriNo = contract::GizliKutu(this, QStringLiteral("txtOldSeriNo"));
  musteri->addWidget(cmdMusDetay);
  musteri->addSpacing(8);
  musteri->addWidget(cmdBilgiGoster);

  // --- the contract
  txtTarih = ekran::Kutu(QStringLiteral("txtTarih"));
  txtSozlesmeNo = ekran::Kutu(QStringLiteral("txtSozlesmeNo"), 10);
  txtSozlesmeNo->setReadOnly(true);
  cmdSozNoBul = Dugme(QStringLiteral("cmdSozNoBul"), QStringLiteral("?"));
  txtTutar = ekran::Kutu(QStringLiteral("txtTutar"), 20);
  txtFaizTutar = ekran::Kutu(QStringLiteral("txtFaizTutar"), 20);
  txtOdenecek = ekran::Kutu(QStringLiteral("txtOdenecek"), 20);
  txtOdenecek->setReadOnly(true);
  for (QLineEdit* k : {txtTutar, txtFaizTutar, txtOdenecek}) k->setAlignment(Qt::AlignRight);
  Frame1 = new QGroupBox(QStringLiteral("Oranlar"));
  Frame1->setObjectName(QStringLiteral("Frame1"));
  txtFaizOran = ekran::Kutu(QStringLiteral("txtFaizOran"), 10);
  txtGecikmeOran = ekran::Kutu(QStringLiteral("txtGecikmeOran"), 10);
  txtIskontoOran = ekran::Kutu(QStringLiteral("txtIskontoOran"), 10);
  txtValor = ekran::Kutu(QStringLiteral("txtValor"), 2);
  chkHesapla = new QCheckBox(QStringLiteral("Hesapla"));
  chkHesapla->setObjectName(QStringLiteral("chkHesapla"));
  cmbDoviz = new QComboBox;
  cmbDoviz->setObjectName(QStringLiteral("cmbDoviz"));
  ekran::AnahtarListesi(cmbDoviz);
  ekran::SinirKur(cmbDoviz->lineEdit(), 3);
  lblFaizGun = etiket(QString());
  contract::FaizGunEtiketiKur(lblFaizGun, harf);
  lblToplam = etiket(QString());
  lblToplam->setObjectName(QStringLiteral("lblToplam"));
  lblToplam->setAlignment(Qt::AlignCenter);
  lblToplam->setMinimumWidth(harf * 20);

  genislik(txtTarih, 10);
  genislik(txtSozlesmeNo, 10);
  genislik(txtValor, 3);
  for (QLineEdit* k : {txtTutar, txtFaizTutar, txtOdenecek}) genislik(k, 15);
  for (QLineEdit* k : {txtFaizOran, txtGecikmeOran, txtIskontoOran}) genislik(k, 6);
  genislik(cmbDoviz, 6);
  cmdSozNoBul->setFixedWidth(cmdSozNoBul->sizeHint().height() + 4);
  cmdMusDetay->setFixedWidth(cmdMusDetay->sizeHint().height() + 4);

  auto* sozlesme = new QGridLayout;
  sozlesme->setHorizontalSpacing(8);
  sozlesme->setVerticalSpacing(6);
  const auto ikili = [](QWidget* a, QWidget* b) {
    auto* h = new QHBoxLayout;
    h->setSpacing(2);
    h->addWidget(a);
    h->addWidget(b);
    h->addStretch();
    return h;
  };
  sozlesme->addWidget(etiket(QStringLiteral("Tarih:")), 0, 0);
  sozlesme->addWidget(txtTarih, 0, 1);
  sozlesme->addWidget(etiket(QStringLiteral("Sözleşme No:")), 0, 2);
  sozlesme->addLayout(ikili(txtSozlesmeNo, cmdSozNoBul), 0, 3);
  sozlesme->addWidget(etiket(QStringLiteral("Valör:")), 0, 4);
  sozlesme->addLayout(ikili(txtValor, chkHesapla), 0, 5);
  sozlesme->addWidget(etiket(QStringLiteral("Tutar:")), 1, 0);
  sozlesme->addWidget(txtTutar, 1, 1);
  sozlesme->addWidget(etiket(QStringLiteral("Faiz Tutar:")), 1, 2);
  sozlesme->addWidget(txtFaizTutar, 1, 3);
  sozlesme->addWidget(etiket(QStringLiteral("ÖdenecekTutar:")), 1, 4);
  sozlesme->addWidget(txtOdenecek, 1, 5);
  sozlesme->addWidget(lblFaizGun, 1, 6);
  sozlesme->setColumnStretch(6, 1);
  sozlesme->setRowStretch(2, 1);
  {
    auto* oranlar = new QGridLayout(Frame1);
    oranlar->setVerticalSpacing(4);
    oranlar->addWidget(etiket(QStringLiteral("Faiz:")), 0, 0);
    oranlar->addWidget(txtFaizOran, 0, 1);
    oranlar->addWidget(etiket(QStringLiteral("Gecikme:")), 1, 0);
    oranlar->addWidget(txtGecikmeOran, 1, 1);
    oranlar->addWidget(etiket(QStringLiteral("İskonto:")), 2, 0);
    oranlar->addWidget(txtIskontoOran, 2, 1);
  }

  // --- the lines
  DetayGirisiKur(harf);
  cmbTip = new QComboBox;
  cmbTip->setObjectName(QStringLiteral("cmbTip"));
  cmbTip->addItems({QStringLiteral("Çek"), QStringLiteral("Senet")});
  cmbTip->setCurrentIndex(-1);
  txtKesideci = ekran::Kutu(QStringLiteral("txtKesideci"), 50);
  txtBanka = ekran::Kutu(QStringLiteral("txtBanka"), 20);
  txtSube = ekran::Kutu(QStringLiteral("txtSube"), 20);
  txtHesapNo = ekran::Kutu(QStringLiteral("txtHesapNo"), 20);
  txtCekNo = ekran::Kutu(QStringLiteral("txtCekNo"), 20);
  genislik(cmbTip, 7);
  for (QLineEdit* k : {txtBanka, txtSube, txtHesapNo, txtCekNo}) genislik(k, 14);
  {
    auto* g = new QGridLayout(frmCek);
    g->setHorizontalSpacing(8);
    g->setVerticalSpacing(6);
    g->addWidget(etiket(QStringLiteral("Belge Tipi:")), 0, 0);
    g->addWidget(cmbTip, 0, 1);
    g->addWidget(etiket(QStringLiteral("Keşideci:")), 0, 2);
    g->addWidget(txtKesideci, 0, 3, 1, 5);
    g->addWidget(etiket(QStringLiteral("Banka:")), 1, 0);
    g->addWidget(txtBanka, 1, 1);
    g->addWidget(etiket(QStringLiteral("Şube:")), 1, 2);
    g->addWidget(txtSube, 1, 3);
    g->addWidget(etiket(QStringLiteral("Hesap No:")), 1, 4);
    g->addWidget(txtHesapNo, 1, 5);
    g->addWidget(etiket(QStringLiteral("Çek No:")), 1, 6);
    g->addWidget(txtCekNo, 1, 7);
    g->addWidget(etiket(QStringLiteral("Vade:")), 2, 0);
    g->addWidget(txtVade, 2, 1);
    g->addWidget(etiket(QStringLiteral("Gün:")), 2, 2);
    g->addWidget(txtGun, 2, 3, Qt::AlignLeft);
    g->addWidget(etiket(QStringLiteral("Meblağ:")), 2, 4);
    auto* tutar = new QHBoxLayout;
    tutar->setSpacing(4);
    tutar->addWidget(txtMeblag);
    tutar->addWidget(cmbDoviz);
    tutar->addStretch();
    g->addLayout(tutar, 2, 5, 1, 3);
    auto* dugmeler = new QVBoxLayout;
    dugmeler->setSpacing(4);
    for (QPushButton* d : {cmdDetayEkle, cmdVazgec, cmdDetaySil}) dugmeler->addWidget(d);
    dugmeler->addStretch();
    g->addLayout(dugmeler, 0, 8, 3, 1);
    g->setColumnStretch(9, 1);
  }

  dGridDetay = contract::DetayIzgarasi(7);

  // --- commands
  cmdNew = Dugme(QStringLiteral("cmdNew"), QStringLiteral("&Yeni Sözleşme Gir"));
  cmdEdit = Dugme(QStringLiteral("cmdEdit"), QStringLiteral("Değiştir"));
  cmdSave = Dugme(QStringLiteral("cmdSave"), QStringLiteral("&Kaydet"));
  cmdCancel = Dugme(QStringLiteral("cmdCancel"), QStringLiteral("&Vazgeç"));
  cmdsil = Dugme(QStringLiteral("cmdsil"), QStringLiteral("Sil"));
  cmdFind = Dugme(QStringLiteral("cmdFind"), QStringLiteral("Sözleşme Ara"));
  cmdFatura = Dugme(QStringLiteral("cmdFatura"), QStringLiteral("Fatura"));
  cmdYazdir = Dugme(QStringLiteral("cmdYazdir"), QStringLiteral("Yazdır"));
  cmdBordro = Dugme(QStringLiteral("cmdBordro"), QStringLiteral("Bordro"));
  cmdFirst = Dugme(QStringLiteral("cmdFirst"), QStringLiteral("<<"));
  cmdPrev = Dugme(QStringLiteral("cmdPrev"), QStringLiteral("<"));
  cmdNext = Dugme(QStringLiteral("cmdNext"), QStringLiteral(">"));
  cmdLast = Dugme(QStringLiteral("cmdLast"), QStringLiteral(">>"));
  cmdExit = Dugme(QStringLiteral("cmdExit"), QStringLiteral("&Çıkış"));
  for (QPushButton* d : {cmdFirst, cmdPrev, cmdNext, cmdLast}) genislik(d, 3);
  YeriniKoru(cmdFind);
  YeriniKoru(cmdBilgiGoster);

  // Contract fields on the left, rates on the right.
  auto* ust = new QHBoxLayout;
  ust->addLayout(sozlesme, 1);
  ust->addWidget(Frame1);

  auto* hareket = new QHBoxLayout;
  for (QPushButton* d : {cmdFirst, cmdPrev}) hareket->addWidget(d);
  hareket->addWidget(lblToplam);
  for (QPushButton* d : {cmdNext, cmdLast}) hareket->addWidget(d);
  hareket->addStretch();
  hareket->addWidget(cmdCekDuzelt);

  auto* komutlar = new QHBoxLayout;
  for (QPushButton* d : {cmdNew, cmdEdit, cmdSave, cmdCancel, cmdsil}) komutlar->addWidget(d);
  komutlar->addSpacing(12);
  komutlar->addWidget(cmdFind);
  komutlar->addStretch();
  for (QPushButton* d : {cmdFatura, cmdYazdir, cmdBordro}) komutlar->addWidget(d);
  komutlar->addSpacing(12);
  komutlar->addWidget(cmdExit);

  DuzenKur(ust, hareket, komutlar);

  // Everything Gorunum hides keeps its place.
  for (QWidget* w :
       std::initializer_list<QWidget*>{txtTarih, txtSozlesmeNo, txtValor, Frame1, txtTutar,
                                       txtFaizTutar, txtOdenecek, dGridDetay, chkHesapla, cmdYazdir,
                                       cmdBordro, cmdFatura, cmdSozNoBul, frmCek, cmdCekDuzelt})
    YeriniKoru(w);
  for (QLabel* l : etiketler_) YeriniKoru(l);
}

void frmSozles::KurDavranis() {
  // Leaving a field; the grid, the line entry and the commands both screens
  // have. An engine failure a handler leaves is shown and the screen stays.
  OrtakDavranis(this);
  ekran::AyrilirkenKontrol(txtTutar, [this] { return AlanKontrol(txtTutar, false); });
  ekran::AyrilirkenKontrol(txtFaizTutar, [this] { return AlanKontrol(txtFaizTutar, false); });
  ekran::AyrilirkenKontrol(txtOdenecek, [this] { return AlanKontrol(txtOdenecek, false); });
  for (QLineEdit* k : {txtFaizOran, txtGecikmeOran, txtIskontoOran})
    ekran::AyrilirkenKontrol(k, [this, k] {
      OranKontrol(k);
      return true;
    });
  ekran::AyrilirkenKontrol(txtValor, [this] { return txtValor_Validate(); });
  // The locks the screen starts with: the number until a contract is opened
  // for change, the payable amount always.
  ekran::SaltOkunur(txtSozlesmeNo, true);
  ekran::SaltOkunur(txtOdenecek, true);
  for (QWidget* w :
       std::initializer_list<QWidget*>{cmdCancel, cmdVazgec, cmdExit, cmdSozNoBul, cmdMusDetay})
    ekran::KontrolTetiklemez(w);

  // Focus and keys the screen watches itself.
  for (QWidget* w :
       std::initializer_list<QWidget*>{cmbAd, cmbTip, txtKesideci, txtBanka, txtSube, txtHesapNo})
    w->installEventFilter(this);

  // What else the clerk sets off, guarded the same way.
  using contract::Korumali;
  connect(chkHesapla, &QCheckBox::clicked, this, Korumali(this, &frmSozles::chkHesapla_Click));
  connect(cmbTip, &QComboBox::activated, this, Korumali(this, &frmSozles::cmbTip_Click));
  const auto bagla = [this](QPushButton* d, void (frmSozles::*f)()) {
    contract::KorumaliBagla(this, d, f);
  };
  bagla(cmdBilgiGoster, &frmSozles::cmdBilgiGoster_Click);
  bagla(cmdMusDetay, &frmSozles::cmdMusDetay_Click);
  bagla(cmdSozNoBul, &frmSozles::cmdSozNoBul_Click);
  bagla(cmdEdit, &frmSozles::cmdEdit_Click);
  bagla(cmdSave, &frmSozles::cmdSave_Click);
  bagla(cmdCancel, &frmSozles::cmdCancel_Click);
  bagla(cmdsil, &frmSozles::cmdsil_Click);
  bagla(cmdFirst, &frmSozles::cmdFirst_Click);
  bagla(cmdPrev, &frmSozles::cmdPrev_Click);
  bagla(cmdNext, &frmSozles::cmdNext_Click);
  bagla(cmdLast, &frmSozles::cmdLast_Click);
  bagla(cmdFind, &frmSozles::cmdFind_Click);
  bagla(cmdFatura, &frmSozles::cmdFatura_Click);
  bagla(cmdYazdir, &frmSozles::cmdYazdir_Click);
}

// --- opening and closing

void frmSozles::Form_Load() {
  AcilisHazirla();
  setWindowTitle(musteriBazinda_
                     ? QStringLiteral("Sözleşme Bilgileri (Müşteri Bazında Gruplu)")
                     : QStringLiteral("Sözleşme Bilgileri (Sözleşme Numarası Bazında)"));
  cmdFind->setVisible(!musteriBazinda_);
  cmdBilgiGoster->setVisible(musteriBazinda_);

  cmbDoviz->clear();
  db::Kayitlar doviz = Genel::Baglanti.Sorgu(QStringLiteral("SELECT KOD FROM DOVIZKOD"));
  for (doviz.MoveFirst(); !doviz.Eof(); doviz.MoveNext())
    cmbDoviz->addItem(doviz.Metin(QStringLiteral("KOD")));
  cmbDoviz->setCurrentIndex(-1);

  MusteriDoldur();
  if (!musteriBazinda_)
    rsSozlesme = Genel::Baglanti.Sorgu(
        QStringLiteral("SELECT SozlesmeID FROM Sozlesme ORDER BY Tarih, SozlesmeSeri, SozlesmeNo"));
  KayitDurum = 0;
  Goster();
}

void frmSozles::MusteriDoldur() {
  contract::MusteriDoldur(rsMusteri, musteriler_, cmbAd, kMusteriSiniri);
}

// --- showing a contract

db::Kayitlar frmSozles::KayitOku() const {
  if (!rsSozlesme || !rsSozlesme->SatirVar()) return {};
  return Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Sozlesme WHERE SozlesmeID = ?"),
                               {rsSozlesme->Fields(0)});
}

void frmSozles::Goster() {
  const db::Kayitlar kayit = KayitOku();
  if (!kayit.SatirVar()) {
    bosalt();
    KontrolText(false);
    KontrolButon(QStringLiteral("Bos"));
  } else {
    const auto alan = [&kayit](const char* ad) { return kayit.Fields(QString::fromLatin1(ad)); };
    const QVariant hesapla = alan("Hesapla");
    Hesapla = !(db::NullMu(hesapla) || hesapla.toDouble() == 0);
    HesaplaKilit();
    chkHesapla->setChecked(Hesapla);

    ilaveGun = contract::KayitGoster(kayit, txtTarih, txtTutar, txtFaizOran, txtValor);
    txtIskontoOran->setText(SayiMetni(alan("IskontoOran")));
    txtGecikmeOran->setText(SayiMetni(alan("GecikmeOran")));
    txtSozlesmeNo->setText(SayiMetni(alan("SozlesmeNo")));

    SozlesmeID = alan("SozlesmeID").toInt();
    const QString seri = kayit.Metin(QStringLiteral("SozlesmeSeri"));
    SeriKod = seri.leftJustified(2, QLatin1Char(' '), true);
    txtOldSeriNo->setText(seri);

    if (!musteriBazinda_) {
      txtMusteriNo->setText(SayiMetni(alan("MusteriNo")));
      MusteriBul();
    }

    contract::FaizTutariGoster(kayit, Tutarlar(), Odenecek);

    lblToplam->setText(QStringLiteral("Kayıt:  %1 / %2")
                           .arg(rsSozlesme->AbsolutePosition())
                           .arg(rsSozlesme->RecordCount()));

    KontrolText(false);
    KontrolButon(QStringLiteral("Normal"));
    DetayAc();
  }
  if (musteriBazinda_) cmbAd->setEnabled(true);
  TutarHesap();
}

void frmSozles::bosalt() {
  for (QLineEdit* k : {txtTarih, txtSozlesmeNo, txtTutar, txtFaizTutar, txtFaizOran, txtGecikmeOran,
                       txtIskontoOran, txtOdenecek})
    k->clear();
  lblToplam->clear();
  lblFaizGun->clear();
  SozlesmeID = 0;
  ilaveGun = Genel::IlaveGun;
  Hesapla = Genel::Hesapla;
  chkHesapla->setChecked(Hesapla);
  HesaplaKilit();
  txtValor->setText(faiz::ValorYazisi(ilaveGun));
  // A set without rows (the rowid is never Null), so that the grid keeps its
  // columns.
  rsDetay =
      Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM SozlesmeDetay WHERE GirisNo IS NULL"));
  DetayBagla();
}

void frmSozles::KontrolText(bool Durum) {
  for (QWidget* w : std::initializer_list<QWidget*>{
           txtTarih,    txtSozlesmeNo,  txtTutar,       txtFaizTutar, txtOdenecek,
           txtFaizOran, txtGecikmeOran, txtIskontoOran, txtValor,     txtKesideci,
           txtBanka,    txtSube,        txtHesapNo,     txtCekNo,     txtVade,
           txtGun,      txtMeblag,      cmbTip,         cmbDoviz,     chkHesapla})
    w->setEnabled(Durum);
  if (!musteriBazinda_) cmbAd->setEnabled(false);
}

void frmSozles::KontrolButon(const QString& Mod) {
  const bool normal = Mod == QLatin1String("Normal");
  const bool duzen = Mod == QLatin1String("Edit");
  const bool bos = Mod == QLatin1String("Bos");
  for (QWidget* w : {cmdFirst, cmdLast, cmdPrev, cmdNext, cmdEdit, cmdsil, cmdFind, cmdBordro})
    w->setEnabled(normal);
  cmdNew->setEnabled(normal || bos);
  for (QWidget* w : {cmdSave, cmdCancel, cmdDetayEkle, cmdVazgec}) w->setEnabled(duzen);
  // Their screens may not be there yet.
  cmdFatura->setEnabled(normal && ekran::Hazir(QStringLiteral("frmFatura")));
  cmdYazdir->setEnabled(normal && ekran::Hazir(QStringLiteral("SozlesmeYazdir")));
  if (normal) cmdSozNoBul->setEnabled(false);
  cmdMusDetay->setEnabled(normal || duzen);
  Gorunum(!bos);
  cmdDetaySil->setVisible(false);
  if (Genel::SadeceGoster)
    for (QWidget* w : {cmdCekDuzelt, cmdDetayEkle, cmdDetaySil, cmdEdit, cmdNew, cmdSave, cmdsil,
                       cmdYazdir, cmdBordro})
      w->setEnabled(false);
}

void frmSozles::Gorunum(bool Durum) {
  for (QWidget* w : std::initializer_list<QWidget*>{
           txtTarih,     txtSozlesmeNo, txtValor,   Frame1,    cmbTip,       txtKesideci,
           txtBanka,     txtSube,       txtHesapNo, txtCekNo,  txtVade,      txtMeblag,
           cmbDoviz,     cmdDetayEkle,  cmdVazgec,  txtTutar,  txtFaizTutar, dGridDetay,
           chkHesapla,   cmdYazdir,     cmdBordro,  cmdFatura, cmdSozNoBul,  frmCek,
           cmdCekDuzelt, txtOdenecek})
    w->setVisible(Durum);
  for (QLabel* l : etiketler_) l->setVisible(Durum);
  lblSoyadAd->setVisible(true);
}

// --- the customer

int frmSozles::SeciliMusteri() const { return contract::SeciliMusteri(cmbAd, musteriler_); }

void frmSozles::cmbAd_GotFocus() {
  // The old contract goes while another customer is picked.
  if (musteriBazinda_) Gorunum(false);
}

void frmSozles::cmdBilgiGoster_Click() {
  const int i = SeciliMusteri();
  if (i < 0) {
    mesaj::Kritik(QStringLiteral("Lütfen Listeden Bir Müşteri Seçiniz"),
                  QStringLiteral("Müşteri Seçimi"));
    cmbAd->setFocus();
    return;
  }
  cmbAd->setCurrentIndex(i);
  txtMusteriNo->setText(QString::number(musteriler_->At(i).deger));
  BilgiBul();
}

void frmSozles::BilgiBul() {
  if (!musteriBazinda_) return;
  bool sayi = false;
  const qint64 no = txtMusteriNo->text().trimmed().toLongLong(&sayi);
  rsSozlesme = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT SozlesmeID FROM Sozlesme WHERE MusteriNo = ? ORDER BY Tarih"),
      {sayi ? QVariant(no) : db::Null()});
  Goster();
}

void frmSozles::cmdMusDetay_Click() {
  bool sayi = false;
  const qint64 no = txtMusteriNo->text().trimmed().toLongLong(&sayi);
  try {
    if (!sayi) throw db::Hata(QStringLiteral("MusteriNo"));
    const db::Kayitlar rs =
        Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Musteri WHERE MusteriNo = ?"), {no});
    QString metin = QStringLiteral("Müşteri Detayı Bulunamadı");
    if (rs.SatirVar()) {
      const auto m = [&rs](const char* ad) { return rs.Metin(QString::fromLatin1(ad)); };
      metin = m("Soyadi") + QLatin1Char(' ') + m("Adi") + QLatin1Char('\n') + m("Adres") +
              QLatin1Char('\n') + m("Ilce") + QLatin1Char('/') + m("Il_Ad");
    }
    mesaj::Goster(metin, QStringLiteral("Müşteri Bilgisi"), mesaj::Tur::Duz);
  } catch (const db::Hata&) {
    mesaj::Kritik(QStringLiteral("Veritabanı açılamadı"), QStringLiteral("HATA"));
  }
}

// --- moving

void frmSozles::cmdFirst_Click() {
  if (!rsSozlesme) return;
  rsSozlesme->MoveFirst();
  Goster();
}

void frmSozles::cmdPrev_Click() {
  if (!rsSozlesme) return;
  rsSozlesme->MovePrevious();
  if (rsSozlesme->Bof()) rsSozlesme->MoveFirst();
  Goster();
}

void frmSozles::cmdNext_Click() {
  if (!rsSozlesme) return;
  rsSozlesme->MoveNext();
  if (rsSozlesme->Eof()) rsSozlesme->MoveLast();
  Goster();
}

void frmSozles::cmdLast_Click() {
  if (!rsSozlesme) return;
  rsSozlesme->MoveLast();
  Goster();
}

bool frmSozles::SozlesmeyeGit(qint32 id) {
  return rsSozlesme && rsSozlesme->Find(QStringLiteral("SozlesmeID"), id, true);
}

void frmSozles::cmdFind_Click() {
  {
    frmSozBul bul(this);
    bul.exec();
  }
  if (BulunanSozlesmeID == 0 || !rsSozlesme) return;
  const int konum = rsSozlesme->AbsolutePosition();
  if (!SozlesmeyeGit(BulunanSozlesmeID)) {
    mesaj::Kritik(QStringLiteral("Kayit Yok"), QStringLiteral("Arama Sonucu"));
    rsSozlesme->setAbsolutePosition(konum);
  }
  Goster();
}

// --- other screens

void frmSozles::cmdFatura_Click() { ekran::AcVeyaCalistir(QStringLiteral("frmFatura")); }

void frmSozles::cmdYazdir_Click() { ekran::AcVeyaCalistir(QStringLiteral("SozlesmeYazdir")); }

void frmSozles::cmdBordro_Click() {
  contract::BordroEtiketleri e;
  e.Musteri = cmbAd->currentText();
  e.FaizOran = txtFaizOran->text();
  e.Seri = Genel::SozlesmeSeri;
  e.SozlesmeNo = txtSozlesmeNo->text();
  e.Tarih = txtTarih->text();
  e.OrtGun = Genel::OrtGun;
  contract::BordroGoster(SozlesmeID, e, this);
}

// --- fields

bool frmSozles::Ayriliyor(QWidget* w) { return contract::Ayriliyor(w); }

void frmSozles::chkHesapla_Click() {
  Hesapla = chkHesapla->isChecked();
  HesaplaKilit();
}

bool frmSozles::AlanKontrol(QLineEdit* kutu, bool Meblag) {
  return !Ayriliyor(kutu) || contract::TutarKontrol(kutu, Meblag);
}

void frmSozles::OranKontrol(QLineEdit* kutu) {
  if (Ayriliyor(kutu)) contract::OranKontrol(kutu);
}

bool frmSozles::eventFilter(QObject* o, QEvent* e) {
  if (e->type() == QEvent::FocusIn && o == cmbAd &&
      static_cast<QFocusEvent*>(e)->reason() != Qt::PopupFocusReason) {
    cmbAd_GotFocus();
  } else if (e->type() == QEvent::FocusOut) {
    const Qt::FocusReason neden = static_cast<QFocusEvent*>(e)->reason();
    if (o == cmbTip && neden != Qt::PopupFocusReason && neden != Qt::ActiveWindowFocusReason)
      cmbTip_LostFocus();
    // Each of the four remembers what it was left with.
    if (o == txtKesideci) SonDeger[Kesideci] = txtKesideci->text();
    if (o == txtBanka) SonDeger[Banka] = txtBanka->text();
    if (o == txtSube) SonDeger[Sube] = txtSube->text();
    if (o == txtHesapNo) SonDeger[HesapNo] = txtHesapNo->text();
  } else if (e->type() == QEvent::KeyRelease) {
    const int tus = static_cast<QKeyEvent*>(e)->key();
    if (tus == Qt::Key_F3) {
      if (o == txtKesideci) txtKesideci->setText(SonDeger[Kesideci]);
      if (o == txtBanka) txtBanka->setText(SonDeger[Banka]);
      if (o == txtSube) txtSube->setText(SonDeger[Sube]);
      if (o == txtHesapNo) txtHesapNo->setText(SonDeger[HesapNo]);
    } else if (tus == Qt::Key_F4 && o == txtKesideci) {
      txtKesideci->setText(SonDeger[Kesideci]);
      txtBanka->setText(SonDeger[Banka]);
      txtSube->setText(SonDeger[Sube]);
      txtHesapNo->setText(SonDeger[HesapNo]);
    }
  }
  return ekran::Form::eventFilter(o, e);
}

namespace contract {

void SozlesmeEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmSozles"), [] { return new frmSozles; });
}

}  // namespace contract
