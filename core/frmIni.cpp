#include "core/frmIni.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"

namespace {

// The number boxes are narrow; the printer boxes take the width they get.
QLineEdit* AyarKutusu(const char* ad, int sinir = 0) {
  QLineEdit* k = ekran::Kutu(QString::fromLatin1(ad), sinir);
  k->setMaximumWidth(70);
  return k;
}

QCheckBox* Kutucuk(const char* ad, const QString& baslik) {
  auto* k = new QCheckBox(baslik);
  k->setObjectName(QString::fromLatin1(ad));
  return k;
}

QComboBox* YaziciListesi(const char* ad) {
  auto* c = new QComboBox;
  c->setObjectName(QString::fromLatin1(ad));
  c->setMinimumWidth(90);
  return c;
}

const QString kDiger = QStringLiteral("Diğer");

}  // namespace

frmIni::frmIni() {
  setWindowTitle(QStringLiteral("Program Çalışma Ayarları"));

  Frame1 = new QGroupBox(QStringLiteral("Fatura Yazıcı Ayarları"));
  Frame1->setObjectName(QStringLiteral("Frame1"));
  cmbFatura = YaziciListesi("cmbFatura");
  txtFatura = AyarKutusu("txtFatura");
  txtFatura->setMaximumWidth(QWIDGETSIZE_MAX);
  txtBasBosluk = AyarKutusu("txtBasBosluk");
  txtSonBosluk = AyarKutusu("txtSonBosluk");
  txtIsimBas = AyarKutusu("txtIsimBas", 2);
  txtTarihBas = AyarKutusu("txtTarihBas", 2);
  txtVergiBas = AyarKutusu("txtVergiBas", 2);
  txtTarihAtla = AyarKutusu("txtTarihAtla", 2);
  txtVergiAtla = AyarKutusu("txtVergiAtla", 2);
  txtTutarSatir = AyarKutusu("txtTutarSatir", 2);
  txtTutarBosluk = AyarKutusu("txtTutarBosluk", 2);
  txtDetayAtla = AyarKutusu("txtDetayAtla", 2);
  txtYeniSayfaAtla = AyarKutusu("txtYeniSayfaAtla", 2);
  chkSayfaBasi = Kutucuk("chkSayfaBasi", QStringLiteral("Sayfa sonunda yeni sayfa işareti gönder"));
  chkPulBedeli = Kutucuk("chkPulBedeli", QStringLiteral("Pul Bedelini Yazdır"));

  auto* fatura = new QGridLayout(Frame1);
  auto* yazici1 = new QHBoxLayout;
  yazici1->addWidget(cmbFatura);
  yazici1->addWidget(txtFatura, 1);
  fatura->addWidget(new QLabel(QStringLiteral("Yazıcı:")), 0, 0);
  fatura->addLayout(yazici1, 0, 1, 1, 3);
  const QList<QPair<QString, QLineEdit*>> sol = {{QStringLiteral("Baş Boşluk:"), txtBasBosluk},
                                                 {QStringLiteral("Son Boşluk:"), txtSonBosluk},
                                                 {QStringLiteral("Müşteri Boşluk"), txtIsimBas},
                                                 {QStringLiteral("Tarih Boşluk"), txtTarihBas},
                                                 {QStringLiteral("Vergi Boşluk"), txtVergiBas}};
  const QList<QPair<QString, QLineEdit*>> sag = {
      {QStringLiteral("Tarih Satır Atla:"), txtTarihAtla},
      {QStringLiteral("Vergi Satır Atla"), txtVergiAtla},
      {QStringLiteral("Tutar Satır Atla"), txtTutarSatir},
      {QStringLiteral("Tutar Boşluk:"), txtTutarBosluk},
      {QStringLiteral("Detay Satır Atla:"), txtDetayAtla},
      {QStringLiteral("Yeni Sayfa Atla:"), txtYeniSayfaAtla}};
  for (int i = 0; i < sol.size(); ++i) {
    fatura->addWidget(new QLabel(sol[i].first), i + 1, 0);
    fatura->addWidget(sol[i].second, i + 1, 1);
  }
  for (int i = 0; i < sag.size(); ++i) {
    fatura->addWidget(new QLabel(sag[i].first), i + 1, 2);
    fatura->addWidget(sag[i].second, i + 1, 3);
  }
  fatura->addWidget(chkSayfaBasi, 7, 0, 1, 4);
  fatura->addWidget(chkPulBedeli, 8, 0, 1, 3);
  cmdOnizleme = new QPushButton(QStringLiteral("Önizleme"));
  cmdOnizleme->setObjectName(QStringLiteral("cmdOnizleme"));
  cmdOnizleme->setToolTip(
      QStringLiteral("Son faturayı bu ekrandaki değerlerle kağıda düşeceği gibi gösterir"));
  fatura->addWidget(cmdOnizleme, 8, 3);

  Frame2 = new QGroupBox(QStringLiteral("Sözleşme Ayarları"));
  Frame2->setObjectName(QStringLiteral("Frame2"));
  cmbSozlesme = YaziciListesi("cmbSozlesme");
  txtSozlesme = AyarKutusu("txtSozlesme");
  txtSozlesme->setMaximumWidth(QWIDGETSIZE_MAX);
  txtIlave = AyarKutusu("txtIlave");
  txtLimitAdet = AyarKutusu("txtLimitAdet");
  txtDetayBasBosluk = AyarKutusu("txtDetayBasBosluk");
  chkHesapla = Kutucuk("chkHesapla", QStringLiteral("Faiz Miktarını Hesapla"));
  chkHaftaSonu = Kutucuk("chkHaftaSonu", QStringLiteral("Hafta Sonunu Dikkate Al"));
  chkOrtalamaGun = Kutucuk("chkOrtalamaGun", QStringLiteral("Ortalama Günü Tam Yazdır"));
  chkDetayToplam = Kutucuk("chkDetayToplam", QStringLiteral("Detay Toplamını Yazdır"));
  chkMasraf = Kutucuk("chkMasraf", QStringLiteral("Masrafları Sözleşmede Göster"));
  cmdSipTanim = new QPushButton(QStringLiteral("Sözleşme Alanları Tanımlama"));
  cmdSipTanim->setObjectName(QStringLiteral("cmdSipTanim"));

  auto* sozlesme = new QGridLayout(Frame2);
  auto* yazici2 = new QHBoxLayout;
  yazici2->addWidget(cmbSozlesme);
  yazici2->addWidget(txtSozlesme, 1);
  sozlesme->addWidget(new QLabel(QStringLiteral("Yazıcı:")), 0, 0);
  sozlesme->addLayout(yazici2, 0, 1, 1, 3);
  sozlesme->addWidget(new QLabel(QStringLiteral("İlave Gün:")), 1, 0);
  sozlesme->addWidget(txtIlave, 1, 1);
  sozlesme->addWidget(new QLabel(QStringLiteral("En Fazla Detay Belge Adedi")), 2, 0);
  sozlesme->addWidget(txtLimitAdet, 2, 1);
  sozlesme->addWidget(new QLabel(QStringLiteral("Detay Baş Boşluk:")), 3, 0);
  sozlesme->addWidget(txtDetayBasBosluk, 3, 1);
  sozlesme->addWidget(chkHesapla, 1, 2, 1, 2);
  sozlesme->addWidget(chkHaftaSonu, 2, 2, 1, 2);
  sozlesme->addWidget(chkOrtalamaGun, 3, 2, 1, 2);
  sozlesme->addWidget(chkDetayToplam, 4, 2, 1, 2);
  sozlesme->addWidget(chkMasraf, 5, 2, 1, 2);
  sozlesme->addWidget(cmdSipTanim, 5, 0, 1, 2);

  chkIslem = Kutucuk("chkIslem", QStringLiteral("Sadece Görüntüleyebilir"));
  chkYTL = Kutucuk("chkYTL", QStringLiteral("YTL Çalış"));
  chkYTL->setChecked(true);
  chkYTL->setVisible(false);
  cmdKaydet = new QPushButton(QStringLiteral("Kaydet"));
  cmdKaydet->setObjectName(QStringLiteral("cmdKaydet"));
  cmdVazgec = new QPushButton(QStringLiteral("Vazgeç"));
  cmdVazgec->setObjectName(QStringLiteral("cmdVazgec"));

  auto* alt = new QHBoxLayout;
  alt->addWidget(chkIslem);
  alt->addWidget(chkYTL);
  alt->addStretch();
  alt->addWidget(cmdKaydet);
  alt->addWidget(cmdVazgec);

  auto* ana = new QVBoxLayout(this);
  ana->addWidget(Frame1);
  ana->addWidget(Frame2);
  ana->addStretch();
  ana->addLayout(alt);

  const QStringList yazicilar = {QStringLiteral("LPT1"), QStringLiteral("LPT2"),
                                 QStringLiteral("LPT3"), kDiger};
  cmbFatura->addItems(yazicilar);
  cmbSozlesme->addItems(yazicilar);
  connect(cmbFatura, &QComboBox::activated, this, [this] { cmbFatura_Click(); });
  connect(cmbSozlesme, &QComboBox::activated, this, [this] { cmbSozlesme_Click(); });
  connect(cmdKaydet, &QPushButton::clicked, this, [this] { cmdKaydet_Click(); });
  connect(cmdVazgec, &QPushButton::clicked, this, [this] { cmdVazgec_Click(); });
  connect(cmdSipTanim, &QPushButton::clicked, this, [this] { cmdSipTanim_Click(); });
  connect(cmdOnizleme, &QPushButton::clicked, this, [this] { cmdOnizleme_Click(); });
}

void frmIni::Form_Load() {
  ekran::FormOrtala(this, 6915, 6420);
  cmdSipTanim->setEnabled(ekran::KayitliMi(QStringLiteral("frmSipYazTanim")));
  cmdOnizleme->setEnabled(ekran::KomutVar(QStringLiteral("FaturaOnizleme")));
}

void frmIni::YaziciGoster(QComboBox* liste, QLineEdit* kutu, const QString& deger) {
  kutu->setText(deger);
  if (!deger.startsWith(QStringLiteral("LPT"))) {
    liste->setCurrentIndex(liste->findText(kDiger));
    kutu->setVisible(true);
  } else {
    kutu->setVisible(false);
    // A port beyond the three of the list has no entry of its own.
    const int i = liste->findText(deger);
    liste->setCurrentIndex(i);
  }
}

void frmIni::Form_Activate() {
  const QString& F = Genel::IniDosya;
  txtBasBosluk->setText(Genel::IniOku(F, QStringLiteral("Fatura"), QStringLiteral("BasBosluk"),
                                      QStringLiteral("15")));
  txtSonBosluk->setText(Genel::IniOku(F, QStringLiteral("Fatura"), QStringLiteral("SonBosluk"),
                                      QStringLiteral("10")));
  txtIlave->setText(
      Genel::IniOku(F, QStringLiteral("Hesap"), QStringLiteral("IlaveGun"), QStringLiteral("1")));
  YaziciGoster(cmbFatura, txtFatura,
               Genel::IniOku(F, QStringLiteral("Fatura"), QStringLiteral("Printer"),
                             QStringLiteral("LPT2")));
  YaziciGoster(cmbSozlesme, txtSozlesme,
               Genel::IniOku(F, QStringLiteral("Sozlesme"), QStringLiteral("Printer"),
                             QStringLiteral("LPT1")));

  txtIsimBas->setText(QString::number(Genel::IsimBas));
  txtTarihBas->setText(QString::number(Genel::TarihBas));
  txtVergiBas->setText(QString::number(Genel::VergiBas));
  txtTarihAtla->setText(QString::number(Genel::TarihAtla));
  txtVergiAtla->setText(QString::number(Genel::VergiAtla));
  txtTutarSatir->setText(QString::number(Genel::TutarSatirAtla));
  txtTutarBosluk->setText(QString::number(Genel::TutarBas));
  txtDetayAtla->setText(QString::number(Genel::DetaySatirAtla));
  txtYeniSayfaAtla->setText(QString::number(Genel::YeniSayfaAtla));
  txtDetayBasBosluk->setText(QString::number(Genel::DetayBasBosluk));
  chkSayfaBasi->setChecked(Genel::Sayfabasi);
  chkPulBedeli->setChecked(Genel::PulBedeli);
  chkHesapla->setChecked(Genel::Hesapla);
  chkHaftaSonu->setChecked(Genel::HaftaSonu);
  chkOrtalamaGun->setChecked(Genel::OrtalamaGun);
  chkDetayToplam->setChecked(Genel::DetayToplamYaz);
  chkMasraf->setChecked(Genel::MasrafGoster);
  chkIslem->setChecked(Genel::SadeceGoster);

  // The file's own text is shown; the global takes it, at least 2.
  const QString limit = Genel::IniOku(F, QStringLiteral("Sozlesme"), QStringLiteral("DetayLimit"),
                                      QStringLiteral("22"));
  txtLimitAdet->setText(limit);
  Genel::DetayLimit = std::max(2, Genel::AyarSayisi(limit));
}

void frmIni::YaziciSecildi(QComboBox* liste, QLineEdit* kutu) {
  if (liste->currentText() == kDiger) {
    kutu->clear();
    kutu->setVisible(true);
    kutu->setFocus();
  } else {
    kutu->setText(liste->currentText());
    kutu->setVisible(false);
  }
}

void frmIni::cmbFatura_Click() { YaziciSecildi(cmbFatura, txtFatura); }
void frmIni::cmbSozlesme_Click() { YaziciSecildi(cmbSozlesme, txtSozlesme); }

void frmIni::cmdKaydet_Click() {
  if (txtFatura->text().isEmpty() || txtSozlesme->text().isEmpty()) {
    mesaj::Kritik(QStringLiteral("Geçersiz Yazıcı Tanımı"), QStringLiteral("HATA"));
    return;
  }
  const QString& F = Genel::IniDosya;
  const auto yaz = [&F](const char* bolum, const char* anahtar, const QString& deger) {
    Genel::IniYaz(F, QString::fromLatin1(bolum), QString::fromLatin1(anahtar), deger);
  };
  const auto bayrak = [](QCheckBox* k) {
    return k->isChecked() ? QStringLiteral("1") : QStringLiteral("0");
  };
  yaz("Fatura", "BasBosluk", txtBasBosluk->text());
  yaz("Fatura", "SonBosluk", txtSonBosluk->text());
  yaz("Hesap", "IlaveGun", txtIlave->text());
  yaz("Fatura", "Printer", txtFatura->text());
  yaz("Sozlesme", "Printer", txtSozlesme->text());
  yaz("Fatura", "IsimBas", txtIsimBas->text());
  yaz("Fatura", "TarihAtla", txtTarihAtla->text());
  yaz("Fatura", "VergiAtla", txtVergiAtla->text());
  yaz("Fatura", "TarihBas", txtTarihBas->text());
  yaz("Fatura", "VergiBas", txtVergiBas->text());
  yaz("Fatura", "TutarSatirAtla", txtTutarSatir->text());
  yaz("Fatura", "TutarBas", txtTutarBosluk->text());
  yaz("Fatura", "DetaySatirAtla", txtDetayAtla->text());
  yaz("Fatura", "YeniSayfaAtla", txtYeniSayfaAtla->text());
  yaz("Sozlesme", "DetayLimit", txtLimitAdet->text());
  yaz("Sozlesme", "DetayBasBosluk", txtDetayBasBosluk->text());
  yaz("Fatura", "Sayfabasi", bayrak(chkSayfaBasi));
  yaz("Fatura", "PulBedeli", bayrak(chkPulBedeli));
  yaz("Sozlesme", "Hesapla", bayrak(chkHesapla));
  yaz("Hesap", "HaftaSonu", bayrak(chkHaftaSonu));
  yaz("Sozlesme", "OrtalamaGun", bayrak(chkOrtalamaGun));
  yaz("Sozlesme", "DetayToplamYaz", bayrak(chkDetayToplam));
  yaz("Sozlesme", "MasrafGoster", bayrak(chkMasraf));
  yaz("Koruma", "SadeceGoster", bayrak(chkIslem));
  yaz("Hesap", "YTL", bayrak(chkYTL));
  Genel::AyarOku();
  Kapat();
}

void frmIni::cmdVazgec_Click() { Kapat(); }

void frmIni::cmdSipTanim_Click() { ekran::Ac(QStringLiteral("frmSipYazTanim")); }

void frmIni::cmdOnizleme_Click() { ekran::KomutCalistir(QStringLiteral("FaturaOnizleme")); }
