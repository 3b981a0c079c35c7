#include "contract/SozlesTemel.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "contract/Faiz.h"
#include "core/Genel.h"
#include "master/MusteriListesi.h"

namespace contract {

SozlesTemel::SozlesTemel(QWidget* ust)
    : ekran::Form(ust), musteriler_(new master::MusteriListesi(this)) {}

SozlesTemel::~SozlesTemel() {
  // The grid outlives the record set while the widgets are torn down.
  dGridDetay->Bagla(nullptr);
}

void SozlesTemel::Form_Unload() {
  rsSozlesme.reset();
  dGridDetay->Bagla(nullptr);
  rsDetay = db::Kayitlar();
  rsMusteri = db::Kayitlar();
}

void SozlesTemel::AcilisHazirla() {
  musteriBazinda_ = Genel::MusteriBazinda;
  ekran::FormOrtala(this, kYukseklik, kGenislik);
  lblFaizGun->clear();
  txtMusteriNo->clear();
}

void SozlesTemel::cmdExit_Click() { Kapat(); }

// --- building the screen

QLabel* SozlesTemel::Etiket(const QString& yazi) {
  auto* l = new QLabel(yazi);
  etiketler_ << l;
  return l;
}

QHBoxLayout* SozlesTemel::MusteriCercevesiKur(int harf) {
  frmSearch = new QGroupBox(QStringLiteral("Müşteri"));
  frmSearch->setObjectName(QStringLiteral("frmSearch"));
  lblSoyadAd = Etiket(QStringLiteral("Soyad, Ad:"));
  cmbAd = MusteriKutusu(musteriler_, harf);
  txtMusteriNo = GizliKutu(this, QStringLiteral("txtMusteriNo"));
  auto* h = new QHBoxLayout(frmSearch);
  h->addWidget(lblSoyadAd);
  h->addWidget(cmbAd, 1);
  return h;
}

void SozlesTemel::DetayGirisiKur(int harf) {
  frmCek = new QGroupBox(QStringLiteral("Belge  Giriş - Düzeltme"));
  frmCek->setObjectName(QStringLiteral("frmCek"));
  const DetayGirisi g = contract::DetayGirisiKur(harf);
  txtVade = g.txtVade;
  txtGun = g.txtGun;
  txtMeblag = g.txtMeblag;
  cmdDetayEkle = g.cmdDetayEkle;
  cmdVazgec = g.cmdVazgec;
  cmdDetaySil = g.cmdDetaySil;
  cmdCekDuzelt = g.cmdCekDuzelt;
}

void SozlesTemel::DuzenKur(QLayout* rakamlar, QLayout* izgaraAlti, QLayout* komutlar) {
  auto* duzen = new QVBoxLayout(this);
  duzen->addWidget(frmSearch);
  duzen->addLayout(rakamlar);
  duzen->addWidget(frmCek);
  duzen->addWidget(dGridDetay, 1);
  duzen->addLayout(izgaraAlti);
  duzen->addLayout(komutlar);
}

DetayGirisi SozlesTemel::Giris() const {
  return {txtVade, txtGun, txtMeblag, cmdDetayEkle, cmdVazgec, cmdDetaySil, cmdCekDuzelt};
}

TutarAlanlari SozlesTemel::Tutarlar() const {
  return {txtTutar, txtFaizTutar, txtOdenecek, lblFaizGun};
}

// --- routines and handlers

void SozlesTemel::MusteriBul() {
  contract::MusteriBul(rsMusteri, musteriler_, cmbAd, txtMusteriNo->text());
}

bool SozlesTemel::cmbAd_Validate() {
  // Opening its own list is no leaving.
  if (QApplication::activePopupWidget() || !Ayriliyor(cmbAd)) return true;
  // At rest, an empty list is no pick to refuse: cmdNew tells the clerk to
  // pick a customer. A new record over all contracts needs one.
  return MusteriSecimi(cmbAd, musteriler_, txtMusteriNo, KayitDurum == 0);
}

void SozlesTemel::HesaplaKilit() {
  HesaplaKilitUygula(Hesapla, txtTutar, txtFaizTutar, txtOdenecek);
}

bool SozlesTemel::txtTarih_Validate() {
  return !Ayriliyor(txtTarih) || ekran::TarihDuzelt(txtTarih);
}

bool SozlesTemel::txtValor_Validate() {
  if (!Ayriliyor(txtValor)) return true;
  if (const auto yeni = faiz::ValorAlani(txtValor->text())) ilaveGun = *yeni;
  return true;
}

}  // namespace contract
