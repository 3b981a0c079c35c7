#include "invoice/frmFatura.h"

#include <QApplication>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

#include "contract/frmSozles.h"
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

using invoice::Dugme;
using invoice::TutarKutusu;

frmFatura::frmFatura(frmSozles* sozlesme, QWidget* ust)
    : FaturaEkrani("frmFatura", QStringLiteral("Fatura"), true, ust), sozlesme_(sozlesme) {
  Kur();
}

void frmFatura::Kur() {
  txtTarih = ekran::Kutu(QStringLiteral("txtTarih"));
  txtSozlesmeNo = ekran::Kutu(QStringLiteral("txtSozlesmeNo"));
  for (QLineEdit* k : {txtTarih, txtSozlesmeNo}) {
    ekran::SaltOkunur(k, true);
    k->setMaximumWidth(110);
  }
  txtSozlesmeTutar = TutarKutusu(QStringLiteral("txtSozlesmeTutar"), true);
  txtSozlesmeSeri = new QLineEdit(this);
  txtSozlesmeSeri->setObjectName(QStringLiteral("txtSozlesmeSeri"));
  txtSozlesmeSeri->hide();
  cmdsil = Dugme("cmdsil", QStringLiteral("Sil"));

  // --- layout
  auto* ust = new QGridLayout;
  ust->addWidget(new QLabel(QStringLiteral("Tarih: ")), 0, 0);
  ust->addWidget(txtTarih, 0, 1);
  ust->addWidget(new QLabel(QStringLiteral("Sözleşme No:")), 0, 2);
  ust->addWidget(txtSozlesmeNo, 0, 3);
  ust->addWidget(new QLabel(QStringLiteral("Fatura No:")), 1, 0);
  ust->addLayout(NoSatiri(), 1, 1, 1, 3);
  ust->addWidget(new QLabel(QStringLiteral("Sayın:")), 2, 0, Qt::AlignTop);
  ust->addLayout(MusteriSatirlari(), 2, 1, 1, 3);
  ust->setColumnStretch(3, 1);
  Yerlestir(ust, Rakamlar(QStringLiteral("Pul Bedeli:"), txtSozlesmeTutar),
            {cmdSave, cmdsil, cmdYazdir});

  // --- behaviour
  invoice::ParaAlani(txtPul);
  ekran::AyrilirkenKontrol(txtFaturaSeri, [this] { return txtFaturaSeri_Validate(); });
  for (QLineEdit* k : {txtBMOran, txtMasraf, txtPul})
    connect(k, &QLineEdit::textChanged, this, [this] { Hesapla(); });
  Bagla(cmdFatNo, &frmFatura::cmdFatNo_Click);
  Bagla(cmdSave, &frmFatura::cmdSave_Click);
  Bagla(cmdsil, &frmFatura::cmdsil_Click);
  Bagla(cmdYazdir, &frmFatura::cmdYazdir_Click);
  Bagla(cmdExit, &frmFatura::cmdExit_Click);
}

// --- opening

void frmFatura::Form_Load() {
  yuklendi_ = false;
  // Steps 1 to 4: the contract from the contract screen.
  txtSozlesmeTutar->setText(sozlesme_->txtTutar->text());
  txtSozlesmeNo->setText(sozlesme_->txtSozlesmeNo->text());
  txtTarih->setText(sozlesme_->txtTarih->text());
  txtMusteriNo->setText(sozlesme_->txtMusteriNo->text());
  txtSozlesmeSeri->setText(sozlesme_->txtOldSeriNo->text());
  SozlesmeID = sozlesme_->SozlesmeID;
  txtTutar->setText(sozlesme_->txtFaizTutar->text());

  // Step 5: the customer.
  MusteriGoster();

  // Steps 1, 3 and 6: the defaults, or what the saved invoice says.
  std::optional<baski::Kayit> kayitli;
  const db::Kayitlar fatura = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT * FROM Fatura WHERE SozlesmeID = ?"), {SozlesmeID});
  if (fatura.SatirVar()) kayitli = baski::Kayit::Oku(fatura);
  const fatura::Acilis a = fatura::AcilisDegerleri(txtSozlesmeTutar->text(), Genel::PulBedeli,
                                                   Genel::FaturaSeri, kayitli);
  txtPul->setText(a.Pul);
  txtPul->setVisible(a.PulGorunur);
  lblPul->setVisible(a.PulGorunur);
  txtBMOran->setText(a.BMOran);
  txtFaturaSeri->setText(a.FaturaSeri);
  FaturaVar = a.FaturaVar;
  cmdYazdir->setEnabled(FaturaVar);
  if (FaturaVar) {
    txtFaturaNo->setText(a.FaturaNo);
    txtMasraf->setText(a.Masraf);
  }

  // Steps 7 and 8.
  yuklendi_ = true;
  Hesapla();
  if (Genel::SadeceGoster)
    for (QPushButton* d : {cmdSave, cmdsil, cmdYazdir}) d->setEnabled(false);
}

// --- figures

void frmFatura::FatNoBul() {
  NoGoster(fatura::SonrakiNo(Genel::Baglanti, Genel::FaturaSeri, QDate::currentDate()));
}

// --- commands

bool frmFatura::cmdSave_Click() {
  if (!NoGirildi()) return false;
  fatura::Satir s = Satiri(false);
  s.Tarih = txtTarih->text();
  s.SozlesmeSeri = txtSozlesmeSeri->text();
  s.SozlesmeNo = txtSozlesmeNo->text();
  s.SozlesmeID = SozlesmeID;
  QString neden;
  try {
    fatura::Kaydet(Genel::Baglanti, s, FaturaVar);
  } catch (const fatura::Red& r) {
    neden = r.neden;
  } catch (const db::Hata& h) {
    neden = h.metin();
  }
  if (!neden.isNull()) {
    mesaj::Kritik(QString::fromUtf16(fatura::kKayitHatasi) + neden,
                  QString::fromUtf16(fatura::kCiftNumara));
    return false;
  }
  cmdYazdir->setEnabled(true);
  FaturaVar = true;
  return true;
}

void frmFatura::cmdsil_Click() {
  if (!mesaj::EvetMi(txtSozlesmeNo->text() +
                         QStringLiteral(" Numaralı Sözleşme için Kesilen Fatura Silinecektir."),
                     QStringLiteral("ONAY")))
    return;
  fatura::Sil(Genel::Baglanti, SozlesmeID);
  mesaj::Goster(QStringLiteral("Silindi"), QStringLiteral("Fatura Sil"));
  txtFaturaNo->clear();
}

void frmFatura::cmdExit_Click() { close(); }

void frmFatura::cmdYazdir_Click() {
  FaturaYazdir(fatura::BicimSec(false, Genel::SahipAdi) == fatura::Bicim::FaturaSabit);
}

void frmFatura::FaturaYazdir(bool sabit) {
  cmdSave_Click();
  SatiriYazdir(fatura::FaturaSatiri(Genel::Baglanti, SozlesmeID, sabit),
               sabit ? fatura::Bicim::FaturaSabit : fatura::Bicim::Fatura);
}

namespace invoice {

void FaturaEkraniKaydet() {
  ekran::KomutKaydet(QStringLiteral("frmFatura"), [] {
    frmSozles* s = IcindekiEkran<frmSozles>(QStringLiteral("frmSozles"));
    if (!s) return;
    frmFatura f(s, s->window());
    f.Form_Load();
    f.exec();
  });
}

}  // namespace invoice
