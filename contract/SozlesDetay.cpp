// The cheques and notes of the contract on show: the entry, the grid, the
// totals worked out from them, and adding, changing and deleting a line. Every
// change of a line saves the contract before and after it.

#include <QHeaderView>
#include <vector>

#include "contract/Faiz.h"
#include "contract/frmSozBul.h"
#include "contract/frmSozles.h"
#include "core/Genel.h"
#include "core/Mesaj.h"

namespace {

const QString kCek = QStringLiteral("Çek");
const QString kSenet = QStringLiteral("Senet");

}  // namespace

QString frmSozles::MeblagYazisi(double deger) {
  QString s = faiz::ParaYazisi(deger);
  const QChar ondalik = Genel::Bolge().ondalik;
  const int sifir = s.startsWith(QLatin1Char('-')) ? 1 : 0;
  if (s.size() > sifir + 1 && s[sifir] == QLatin1Char('0') && s[sifir + 1] == ondalik)
    s.remove(sifir, 1);
  return s;
}

// --- the grid

void frmSozles::DetayAc() {
  // The day count of rule D in SQL: the override, or the days from the
  // contract date on screen plus ilaveGun, and with the weekend setting on a
  // Saturday two days more and a Sunday one.
  const QString haftaSonu =
      Genel::HaftaSonu
          ? QStringLiteral(" + CASE Weekday(Vadesi) WHEN 1 THEN 1 WHEN 7 THEN 2 ELSE 0 END")
          : QString();
  const QString sql =
      QStringLiteral(
          "SELECT GirisNo, SozlesmeNo, Tip, Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, Gun, "
          "Meblag, Doviz, Karsilik, Odenmesi, "
          "CASE WHEN Gun = 0 THEN GunFarki(?, Vadesi) + ?") +
      haftaSonu +
      QStringLiteral(
          " ELSE Gun END AS Gunu, SozlesmeSeri, MeblagTL, SozlesmeID, "
          "CASE WHEN Odenmesi < ? THEN 'Tahsil' WHEN Odenmesi IS NULL THEN 'Ksız' ELSE '' END "
          "AS Durum FROM SozlesmeDetay WHERE SozlesmeID = ?");
  const QString simdi =
      QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss"));
  rsDetay =
      Genel::Baglanti.Sorgu(sql, {Genel::TarihSql(txtTarih->text()), ilaveGun, simdi, SozlesmeID});
  DetayBagla();
}

void frmSozles::DetayDuzAc() {
  rsDetay = Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT * FROM SozlesmeDetay WHERE SozlesmeID = ?"), {SozlesmeID});
  DetayBagla();
}

void frmSozles::DetayBagla() {
  dGridDetay->Bagla(&rsDetay);
  // The grid's columns in their order; whatever else the set holds stays
  // hidden. GirisNo and SozlesmeNo are bound but of no use to the clerk.
  struct Sutun {
    const char* ad;
    int harf;  // width in characters; 0 stretches
  };
  static constexpr Sutun kSutunlar[] = {{"GirisNo", 6},  {"SozlesmeNo", 8}, {"Tip", 6},
                                        {"Kesideci", 0}, {"Banka", 12},     {"Sube", 12},
                                        {"HesapNo", 11}, {"CekNo", 10},     {"Vadesi", 10},
                                        {"Gunu", 5},     {"Meblag", 13},    {"Durum", 6}};
  QHeaderView* baslik = dGridDetay->horizontalHeader();
  for (int i = 0; i < rsDetay.AlanSayisi(); ++i) dGridDetay->setColumnHidden(i, true);
  const int harf = dGridDetay->fontMetrics().horizontalAdvance(QStringLiteral("0123456789")) / 10;
  int yer = 0;
  for (const Sutun& s : kSutunlar) {
    const int alan = rsDetay.AlanNo(QString::fromLatin1(s.ad));
    if (alan < 0) continue;
    baslik->moveSection(baslik->visualIndex(alan), yer++);
    dGridDetay->setColumnHidden(alan, yer <= 2);
    if (s.harf == 0) {
      baslik->setSectionResizeMode(alan, QHeaderView::Stretch);
    } else {
      baslik->setSectionResizeMode(alan, QHeaderView::Interactive);
      baslik->resizeSection(alan, harf * s.harf + 12);
    }
  }
}

// --- totals

void frmSozles::TutarHesap() {
  faiz::Girdi girdi;
  girdi.Tarih = Genel::TarihOku(txtTarih->text());
  girdi.FaizOran = faiz::OranDegeri(txtFaizOran->text());
  girdi.ilaveGun = ilaveGun;
  girdi.Hesapla = Hesapla;
  girdi.HaftaSonu = Genel::HaftaSonu;
  girdi.OrtalamaGun = Genel::OrtalamaGun;

  const int vade = rsDetay.AlanNo(QStringLiteral("Vadesi"));
  const int gun = rsDetay.AlanNo(QStringLiteral("Gun"));
  const int meblag = rsDetay.AlanNo(QStringLiteral("Meblag"));
  const int cekNo = rsDetay.AlanNo(QStringLiteral("CekNo"));
  const int kesideci = rsDetay.AlanNo(QStringLiteral("Kesideci"));
  const auto metin = [this](int satir, int alan) {
    const QVariant v = rsDetay.Deger(satir, alan);
    return db::NullMu(v) ? QString() : v.toString();
  };
  std::vector<faiz::Satir> satirlar(std::size_t(rsDetay.RecordCount()));
  for (int i = 0; i < rsDetay.RecordCount(); ++i) {
    faiz::Satir& s = satirlar[std::size_t(i)];
    s.Vadesi = QDate::fromString(metin(i, vade).left(10), Qt::ISODate);
    s.Gun = faiz::GunOku(metin(i, gun));
    s.Meblag = rsDetay.Deger(i, meblag).toDouble();
    if (i == 0) {
      s.CekNo = metin(i, cekNo);
      s.Kesideci = metin(i, kesideci);
    }
  }

  const faiz::Sonuc sonuc = faiz::TutarHesap(girdi, satirlar);
  DetaySayisi = sonuc.DetaySayisi;
  if (sonuc.GunYazisi) GunYazisi = *sonuc.GunYazisi;
  if (sonuc.OrtGun) Genel::OrtGun = *sonuc.OrtGun;
  if (sonuc.txtTutar) txtTutar->setText(*sonuc.txtTutar);
  if (sonuc.txtFaizTutar) txtFaizTutar->setText(*sonuc.txtFaizTutar);
  if (sonuc.txtOdenecek) txtOdenecek->setText(*sonuc.txtOdenecek);
  if (sonuc.Odenecek) Odenecek = *sonuc.Odenecek;
  if (sonuc.lblFaizGun) lblFaizGun->setText(*sonuc.lblFaizGun);

  // The set stands behind its last row: no line is taken in until the clerk
  // picks one in the grid.
  rsDetay.Move(rsDetay.RecordCount());
  dGridDetay->selectionModel()->clear();
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
  // A line being changed doesn't count against the limit.
  if (DetaySayisi >= Genel::DetayLimit && DetayDurum != 1) {
    mesaj::Uyari(QStringLiteral("Bir Sözleşmeyle İlişkilendirilecek Belge Sayısı En Fazla %1 dir. "
                                "Lütfen Yeni Bir Sözleşme Açınız")
                     .arg(Genel::DetayLimit));
    return false;
  }
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
  if (!Genel::TarihOku(txtVade->text()).isValid())
    return uyari(txtVade, QStringLiteral("Lütfen Vade Bilgisini Girin!!"));
  if (!Genel::SayiMi(txtGun->text()))
    return uyari(txtGun, QStringLiteral("Lütfen Gün bilgisine Gün Sayısını ya da 0 Girin!!"));
  if (!Genel::SayiMi(txtMeblag->text()))
    return uyari(txtMeblag, QStringLiteral("Lütfen Meblağn bilgisini Girin!!"));
  return true;
}

void frmSozles::DetayYaz() {
  const QVariant vade = Genel::TarihSql(txtVade->text());
  // The day field holds a whole number of days; a fraction rounds as the
  // table's integer column takes it.
  const qint64 gun = txtGun->text().isEmpty()
                         ? 0
                         : qint64(Genel::YuvarlaBankaci(Genel::SayiOku(txtGun->text()), 0));
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
    mesaj::Kritik(HataMetni() + QLatin1Char('\n') + h.metin(), QStringLiteral("Hata Açıklaması"));
  } catch (const Genel::SayiHatasi& h) {
    mesaj::Kritik(HataMetni() + QLatin1Char('\n') + h.metin + QStringLiteral(" Sayı Değil"),
                  QStringLiteral("Hata Açıklaması"));
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
  txtVade->setText(Genel::TarihEkran(rsDetay.Fields(QStringLiteral("Vadesi"))));
  txtGun->setText(metin("Gun"));
  const QVariant meblag = rsDetay.Fields(QStringLiteral("Meblag"));
  txtMeblag->setText(db::NullMu(meblag) ? QString() : MeblagYazisi(meblag.toDouble()));
  const QString tip = metin("Tip");
  if (!tip.isEmpty()) cmbTip->setCurrentText(tip);
  GirisNo = rsDetay.Fields(QStringLiteral("GirisNo")).toInt();
  cmbDoviz->setCurrentText(metin("Doviz"));
  for (QWidget* w : std::initializer_list<QWidget*>{txtKesideci, txtBanka, txtSube, txtHesapNo,
                                                    txtCekNo, txtVade, txtMeblag, cmbTip, cmbDoviz})
    w->setEnabled(true);
  cmdDetayEkle->setText(QStringLiteral("Kaydet"));
  cmdDetaySil->setVisible(true);
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
    mesaj::Kritik(HataMetni() + QLatin1Char('\n') + h.metin(), QStringLiteral("Hata Açıklaması"));
  }
}

void frmSozles::cmdVazgec_Click() {
  const bool alinmis = DetayDurum == 1;
  CekBosalt();
  if (alinmis) {
    cmdDetayEkle->setText(QStringLiteral("Ekle"));
    cmdDetaySil->hide();
  } else if (cmbTip->isEnabled()) {
    cmbTip->setFocus();
  }
}
