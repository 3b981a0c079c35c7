// The cheques and notes of the contract on show: the entry, the grid, the
// totals worked out from them, and adding, changing and deleting a line. Every
// change of a line saves the contract before and after it.

#include <QLineEdit>
#include <vector>

#include "contract/Faiz.h"
#include "contract/SozlesOrtak.h"
#include "contract/frmSozBul.h"
#include "contract/frmSozles.h"
#include "core/Genel.h"
#include "core/Mesaj.h"

namespace {

const QString kCek = QStringLiteral("Çek");
const QString kSenet = QStringLiteral("Senet");

}  // namespace

QString frmSozles::MeblagYazisi(double deger) { return contract::MeblagYazisi(deger); }

// --- the grid

void frmSozles::DetayAc() {
  rsDetay = contract::DetayIzgarasiAc(QStringLiteral("SozlesmeDetay"), true, txtTarih->text(),
                                      ilaveGun, SozlesmeID);
  DetayBagla();
}

void frmSozles::DetayDuzAc() {
  rsDetay = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT * FROM SozlesmeDetay WHERE SozlesmeID = ?"), {SozlesmeID});
  DetayBagla();
}

void frmSozles::DetayBagla() {
  dGridDetay->Bagla(&rsDetay);
  // GirisNo and SozlesmeNo are bound but of no use to the clerk.
  static constexpr contract::IzgaraSutunu kSutunlar[] = {{"GirisNo", 6, false},
                                                         {"SozlesmeNo", 8, false},
                                                         {"Tip", 6},
                                                         {"Kesideci", 0},
                                                         {"Banka", 12},
                                                         {"Sube", 12},
                                                         {"HesapNo", 11},
                                                         {"CekNo", 10},
                                                         {"Vadesi", 10},
                                                         {"Gunu", 5},
                                                         {"Meblag", 13},
                                                         {"Durum", 6}};
  contract::DetaySutunlari(dGridDetay, rsDetay, kSutunlar);
}

// --- totals

void frmSozles::TutarHesap() {
  const faiz::Girdi girdi = contract::FaizGirdisi(txtTarih, txtFaizOran, ilaveGun, Hesapla);
  const faiz::Sonuc sonuc = faiz::TutarHesap(girdi, contract::FaizSatirlari(rsDetay));
  contract::SonucuYaz(sonuc, Tutarlar(), DetaySayisi, GunYazisi, Odenecek);
  contract::IzgaraSonunda(rsDetay, dGridDetay);
}

// --- the entry

void frmSozles::CekBosalt() {
  if (cmbTip->currentText().isEmpty()) cmbTip->setCurrentIndex(cmbTip->findText(kCek));
  for (QLineEdit* k : {txtKesideci, txtBanka, txtSube, txtHesapNo, txtCekNo, txtVade, txtMeblag})
    k->clear();
  txtGun->setText(QStringLiteral("0"));
  if (cmbDoviz->currentText().isEmpty()) cmbDoviz->setCurrentText(QStringLiteral("TRL"));
  DetayDurum = 3;
}

void frmSozles::cmbTip_Click() {
  // A note has no bank, branch, account or number.
  const bool senet = cmbTip->currentText() == kSenet;
  for (QLineEdit* k : {txtBanka, txtSube, txtHesapNo, txtCekNo}) {
    if (senet) k->clear();
    k->setEnabled(!senet);
  }
}

void frmSozles::cmbTip_LostFocus() {
  // The drawer of a note is the customer himself.
  if (cmbTip->currentText() == kSenet) txtKesideci->setText(cmbAd->currentText());
}

bool frmSozles::DetayKontrol() {
  const auto uyari = [](QWidget* alan, const QString& metin) {
    mesaj::Kritik(metin, QStringLiteral("Uyarı"));
    if (alan->isEnabled()) alan->setFocus();
    return false;
  };
  if (!contract::DetayLimitiKontrol(DetaySayisi, DetayDurum)) return false;
  if (txtSozlesmeNo->text().trimmed().isEmpty())
    return uyari(txtSozlesmeNo, QStringLiteral("Lütfen Sözleşme Numarası Girin!!"));
  if (txtKesideci->text().trimmed().isEmpty())
    return uyari(txtKesideci, QStringLiteral("Lütfen Keşideciyi Girin!!"));
  if (cmbTip->currentIndex() < 0) cmbTip->setCurrentIndex(0);
  if (cmbTip->currentText() != kSenet) {
    if (txtBanka->text().trimmed().isEmpty())
      return uyari(txtBanka, QStringLiteral("Lütfen Bankayı Girin!!"));
    if (txtSube->text().trimmed().isEmpty())
      return uyari(txtSube, QStringLiteral("Lütfen Şubeyi Girin!!"));
    if (txtHesapNo->text().trimmed().isEmpty())
      return uyari(txtHesapNo, QStringLiteral("Lütfen Hesap No'sunu Girin!!"));
    if (txtCekNo->text().trimmed().isEmpty())
      return uyari(txtCekNo, QStringLiteral("Lütfen Çek No'sunu Girin!!"));
  }
  return contract::VadeGunMeblagKontrol(txtVade, txtGun, txtMeblag);
}

void frmSozles::DetayYaz() {
  const QVariant vade = Genel::TarihSql(txtVade->text());
  const qint64 gun = contract::GunDegeri(txtGun->text());
  const QString meblag = txtMeblag->text();
  if (DetayDurum != 1) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, "
                       "Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag, "
                       "Doviz) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {SozlesmeID, SeriKod, contract::SozlesmeNoOku(txtSozlesmeNo->text()).value_or(0),
         cmbTip->currentText(), txtKesideci->text(), txtBanka->text(), txtSube->text(),
         txtHesapNo->text(), txtCekNo->text(), vade, vade, gun, Genel::SayiOku(meblag),
         cmbDoviz->currentText()});
    return;
  }
  // A changed line keeps what stands in the fields left empty: a cheque made
  // into a note keeps its bank.
  QString sql = QStringLiteral("UPDATE SozlesmeDetay SET Tip = ?");
  QVariantList degerler = {cmbTip->currentText()};
  const std::pair<const char*, QLineEdit*> metinler[] = {{"Kesideci", txtKesideci},
                                                         {"Banka", txtBanka},
                                                         {"Sube", txtSube},
                                                         {"HesapNo", txtHesapNo},
                                                         {"CekNo", txtCekNo}};
  for (const auto& [sutun, kutu] : metinler) {
    if (kutu->text().isEmpty()) continue;
    sql += QStringLiteral(", %1 = ?").arg(QLatin1String(sutun));
    degerler << kutu->text();
  }
  sql += QStringLiteral(", Vadesi = ?, Odenmesi = ?, Gun = ?");
  degerler << vade << vade << gun;
  if (!meblag.isEmpty()) {
    sql += QStringLiteral(", Meblag = ?");
    degerler << Genel::SayiOku(meblag);
  }
  sql += QStringLiteral(", Doviz = ? WHERE GirisNo = ?");
  degerler << cmbDoviz->currentText() << GirisNo;
  DetayDurum = 3;
  Genel::Baglanti.Calistir(sql, degerler);
}

void frmSozles::cmdDetayEkle_Click() {
  if (!DetayKontrol()) return;
  try {
    // The contract exists before its first line.
    if (!SozlesmeKaydet()) {
      mesaj::Kritik(QStringLiteral("Bir Hata Oldu, Lütfen Sipariş Numarasını Kontrol Ediniz"),
                    QStringLiteral("HATA"));
      return;
    }
    DetayYaz();
    txtSozlesmeNo->setEnabled(false);
    DetayDuzAc();
    cmdDetayEkle->setText(QStringLiteral("Ekle"));
    CekBosalt();
    TutarHesap();
    cmdDetaySil->hide();
    // The new totals are stored, and the contract is open for change again.
    cmdSave_Click();
    cmdEdit_Click();
    cmbTip->setFocus();
    cmbTip_Click();
  } catch (const db::Hata& h) {
    contract::DetayHatasi(h.metin());
  } catch (const Genel::SayiHatasi& h) {
    contract::DetayHatasi(h.metin + QStringLiteral(" Sayı Değil"));
  }
}

// --- a stored line

void frmSozles::SatiriAl() {
  const auto metin = [this](const char* ad) { return rsDetay.Metin(QString::fromLatin1(ad)); };
  txtKesideci->setText(metin("Kesideci"));
  txtBanka->setText(metin("Banka"));
  txtSube->setText(metin("Sube"));
  txtHesapNo->setText(metin("HesapNo"));
  txtCekNo->setText(metin("CekNo"));
  GirisNo = contract::SatiriGiriseAl(rsDetay, Giris());
  const QString tip = metin("Tip");
  if (!tip.isEmpty()) cmbTip->setCurrentText(tip);
  cmbDoviz->setCurrentText(metin("Doviz"));
  for (QWidget* w : std::initializer_list<QWidget*>{txtKesideci, txtBanka, txtSube, txtHesapNo,
                                                    txtCekNo, txtVade, txtMeblag, cmbTip, cmbDoviz})
    w->setEnabled(true);
  contract::GirisDugmeleri(Giris(), true);
  DetayDurum = 1;
  txtVade->setFocus();
}

void frmSozles::dGridDetay_DblClick() {
  // Only a contract open for change takes a line in.
  if (Genel::SadeceGoster || cmdEdit->isEnabled() || !rsDetay.SatirVar()) return;
  SatiriAl();
}

void frmSozles::cmdCekDuzelt_Click() {
  if (cmdEdit->isEnabled() && rsDetay.SatirVar()) cmdEdit_Click();
  if (rsDetay.SatirVar() && KayitDurum == 1) SatiriAl();
}

void frmSozles::cmdDetaySil_Click() {
  if (!mesaj::EvetMi(cmbTip->currentText() + QStringLiteral(" Kayıdı Silinecek, Emin misiniz? "),
                     QStringLiteral("Onay"), mesaj::Tur::Duz))
    return;
  try {
    const QVariant giris =
        rsDetay.SatirVar() ? rsDetay.Fields(QStringLiteral("GirisNo")) : QVariant(GirisNo);
    Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM SozlesmeDetay WHERE GirisNo = ?"),
                             {giris});
    DetayDuzAc();
    cmdDetayEkle->setText(QStringLiteral("Ekle"));
    CekBosalt();
    TutarHesap();
    cmdSave_Click();
    cmdEdit_Click();
    cmbTip->setFocus();
    cmdDetaySil->hide();
  } catch (const db::Hata& h) {
    contract::DetayHatasi(h.metin());
  }
}

void frmSozles::cmdVazgec_Click() {
  const bool alinmis = DetayDurum == 1;
  CekBosalt();
  if (alinmis) {
    contract::GirisDugmeleri(Giris(), false);
  } else if (cmbTip->isEnabled()) {
    cmbTip->setFocus();
  }
}
