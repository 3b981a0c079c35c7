#include "invoice/frmFaturaEk.h"

#include <QApplication>
#include <QComboBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "core/Yazdirma.h"
#include "db/Kayitlar.h"
#include "invoice/FaturaBaski.h"
#include "invoice/FaturaHesap.h"
#include "invoice/FaturaOrtak.h"
#include "master/frmMusteri.h"

using invoice::Dugme;
using invoice::TutarKutusu;

frmFaturaEk::frmFaturaEk(frmMusteri* musteri, QWidget* ust)
    : FaturaEkrani("frmFaturaEk", QStringLiteral("Ek Fatura"), false, ust), musteri_(musteri) {
  Kur();
}

void frmFaturaEk::Kur() {
  txtTarih = ekran::Kutu(QStringLiteral("txtTarih"), 0, false);
  txtTarih->setMaximumWidth(110);
  ekran::TarihKutusu(txtTarih);
  txtAciklama = ekran::Kutu(QStringLiteral("txtAciklama"));

  // --- layout
  auto* ust = new QGridLayout;
  ust->addWidget(new QLabel(QStringLiteral("Tarih: ")), 0, 0);
  ust->addWidget(txtTarih, 0, 1);
  ust->addWidget(new QLabel(QStringLiteral("Fatura No:")), 1, 0);
  ust->addLayout(NoSatiri(), 1, 1);
  ust->addWidget(new QLabel(QStringLiteral("Sayın:")), 2, 0, Qt::AlignTop);
  ust->addLayout(MusteriSatirlari(), 2, 1);
  ust->addWidget(new QLabel(QStringLiteral("Açıklama")), 3, 0);
  ust->addWidget(txtAciklama, 3, 1);
  ust->setColumnStretch(1, 1);
  Yerlestir(ust, Rakamlar(QStringLiteral("Pul Masrafı:")), {cmdSave, cmdYazdir});

  // --- behaviour: Hesapla on every change of the percent and the fee, and
  // when the percent or the amount is left; the stamp duty counts at the
  // next run.
  ekran::AyrilirkenKontrol(txtTutar, [this] {
    double deger = 0;
    if (Genel::SayiOkuDene(txtTutar->text().trimmed(), deger))
      txtTutar->setText(Genel::SayiYaz(deger, 2));
    Hesapla();
    return true;
  });
  ekran::AyrilirkenKontrol(txtBMOran, [this] {
    Hesapla();
    return true;
  });
  ekran::AyrilirkenKontrol(txtFaturaSeri, [this] { return txtFaturaSeri_Validate(); });
  for (QLineEdit* k : {txtBMOran, txtMasraf})
    connect(k, &QLineEdit::textChanged, this, [this] { Hesapla(); });
  Bagla(cmdFatNo, &frmFaturaEk::cmdFatNo_Click);
  Bagla(cmdSave, &frmFaturaEk::cmdSave_Click);
  Bagla(cmdYazdir, &frmFaturaEk::cmdYazdir_Click);
  Bagla(cmdExit, &frmFaturaEk::cmdExit_Click);
}

void frmFaturaEk::Form_Load() {
  yuklendi_ = false;
  txtPul->setText(fatura::SayiBicimi(0));
  txtPul->setVisible(Genel::PulBedeli);
  lblPul->setVisible(Genel::PulBedeli);
  txtBMOran->setText(QString::fromUtf16(fatura::kVarsayilanOran));
  txtFaturaSeri->setText(Genel::FaturaSeri);
  txtMusteriNo->setText(musteri_->cmbNo->currentText());
  cmdYazdir->setEnabled(false);

  MusteriGoster();
  yuklendi_ = true;
}

void frmFaturaEk::FatNoBul() { NoGoster(fatura::EkSonrakiNo(Genel::Baglanti, Genel::FaturaSeri)); }

bool frmFaturaEk::cmdSave_Click() {
  if (!NoGirildi()) return false;
  fatura::Satir s = Satiri(true);
  s.Tarih = txtTarih->text();
  s.Aciklama = txtAciklama->text();
  // Any failure but the refusal of a contract's number has one message,
  // without the engine's text.
  const QString baslik = QString::fromUtf16(fatura::kCiftNumara);
  bool yazildi = false;
  try {
    yazildi = fatura::EkKaydet(Genel::Baglanti, s);
    if (!yazildi) {
      mesaj::Kritik(QString::fromUtf16(fatura::kSozlesmeFaturasi), baslik);
      return false;
    }
  } catch (const fatura::Red&) {
  } catch (const db::Hata&) {
  }
  if (!yazildi) {
    mesaj::Kritik(QStringLiteral("Kayıt Eklenemedi! Lütfen Bilgileri Kontol Edin!"), baslik);
    return false;
  }
  cmdYazdir->setEnabled(true);
  return true;
}

void frmFaturaEk::cmdExit_Click() { close(); }

void frmFaturaEk::cmdYazdir_Click() {
  FaturaEkYazdir(fatura::BicimSec(true, Genel::SahipAdi) == fatura::Bicim::EkSabit);
}

void frmFaturaEk::FaturaEkYazdir(bool sabit) {
  cmdSave_Click();
  bool sayi = false;
  const qint64 no = txtFaturaNo->text().trimmed().toLongLong(&sayi);
  SatiriYazdir(fatura::EkFaturaSatiri(Genel::Baglanti, txtFaturaSeri->text(), sayi ? no : 0),
               sabit ? fatura::Bicim::EkSabit : fatura::Bicim::Ek);
}

namespace invoice {

void FaturaEkEkraniKaydet() {
  ekran::KomutKaydet(QStringLiteral("frmFaturaEk"), [] {
    frmMusteri* m = IcindekiEkran<frmMusteri>(QStringLiteral("frmMusteri"));
    if (!m) return;
    frmFaturaEk f(m, m->window());
    f.Form_Load();
    f.exec();
  });
}

}  // namespace invoice
