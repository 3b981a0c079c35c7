// The contract screen as a clerk uses it: whole contracts typed in both
// modes, the checks of a save in their order, browsing, the invoice lock,
// deleting and renumbering, and the figures of the worked examples.

#include <gtest/gtest.h>

#include <QTimer>

#include "contract/Faiz.h"
#include "contract/frmSozBul.h"
#include "core/Rapor.h"
#include "tests/contract/SozlesEkran.h"

namespace {

using test::Isle;

class Sozles : public test::SozlesEkran {
 protected:
  // The contract of the worked example with a second line, a note: typed
  // after a customer is picked and cmdNew pressed.
  void IkiKalemliSozlesme(frmSozles* f) {
    Yaz(f->txtTarih, QStringLiteral("040305"));
    Yaz(f->txtSozlesmeNo, QStringLiteral("7"));
    Yaz(f->txtFaizOran, QStringLiteral("5"));
    EXPECT_EQ(f->txtTarih->text(), QStringLiteral("04.03.2005"));
    Yaz(f->txtGecikmeOran, QStringLiteral("2"));
    Yaz(f->txtIskontoOran, QStringLiteral("1,50"));
    Kalem cek;
    cek.vade = QStringLiteral("04.04.2005");
    cek.gun = QStringLiteral("30");
    cek.meblag = QStringLiteral("1000");
    ASSERT_TRUE(KalemGir(f, cek));
    EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
    EXPECT_EQ(f->txtIskontoOran->text(), QStringLiteral("1,5"));
    EXPECT_EQ(f->txtTutar->text(), QStringLiteral("1.000,00"));
    EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("50,00"));
    EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("950,00"));
    EXPECT_EQ(f->lblFaizGun->text(), QStringLiteral("30 Gün"));
    // The contract was written first, then its line; it stays open for change.
    db::Kayitlar s = Sorgu(QStringLiteral("SELECT * FROM Sozlesme"));
    ASSERT_EQ(s.RecordCount(), 1);
    EXPECT_EQ(s.Fields(QStringLiteral("Tutar")).toDouble(), 1000);
    EXPECT_EQ(s.Fields(QStringLiteral("FaizTutar")).toDouble(), 50);
    EXPECT_EQ(s.Metin(QStringLiteral("Yaziyla")), Genel::YaziyaCevir(950));
    EXPECT_EQ(f->KayitDurum, 1);
    EXPECT_TRUE(f->cmdSave->isEnabled() && !f->cmdNew->isEnabled());
    EXPECT_EQ(QApplication::focusWidget(), f->cmbTip);

    Kalem senet;
    senet.tip = QStringLiteral("Senet");
    senet.kesideci = QString();  // the customer's name comes by itself
    senet.vade = QStringLiteral("03.05.2005");
    senet.meblag = QStringLiteral("300");
    ASSERT_TRUE(KalemGir(f, senet));
    EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
    // 60 days to 3 May plus 3: 300 × 63 × 5 × 12 / 36000 = 31,50.
    EXPECT_EQ(f->txtTutar->text(), QStringLiteral("1.300,00"));
    EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("81,50"));
    EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("1.218,50"));
    EXPECT_EQ(f->lblFaizGun->text(), QStringLiteral("Muhtelif Gün"));
    ASSERT_EQ(f->rsDetay.RecordCount(), 2);
    EXPECT_EQ(Hucre(f, 1, QStringLiteral("Gunu")), QStringLiteral("63"));
    EXPECT_EQ(Hucre(f, 1, QStringLiteral("Vadesi")), QStringLiteral("03.05.2005"));
    EXPECT_EQ(Hucre(f, 1, QStringLiteral("Meblag")), QStringLiteral("300,00"));
    EXPECT_EQ(Hucre(f, 1, QStringLiteral("Durum")), QStringLiteral("Tahsil"));

    ASSERT_TRUE(Bas(f->cmdSave));
    EXPECT_EQ(f->KayitDurum, 0);
    EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  1 / 1"));
    db::Kayitlar d = Sorgu(QStringLiteral("SELECT * FROM SozlesmeDetay ORDER BY GirisNo"));
    ASSERT_EQ(d.RecordCount(), 2);
    d.MoveLast();
    EXPECT_EQ(d.Metin(QStringLiteral("Tip")), QStringLiteral("Senet"));
    EXPECT_EQ(d.Metin(QStringLiteral("Kesideci")), QStringLiteral("ALİ YILMAZ"));
    EXPECT_EQ(d.Metin(QStringLiteral("Banka")), QString());
    EXPECT_EQ(d.Metin(QStringLiteral("Odenmesi")), QStringLiteral("2005-05-03"));
    s = Sorgu(QStringLiteral("SELECT * FROM Sozlesme"));
    const QStringList beklenen = {
        "SozlesmeSeri=AB", "SozlesmeNo=7", "MusteriNo=12",  "Tarih=2005-03-04", "Tutar=1300",
        "FaizTutar=81.5",  "FaizOran=5",   "GecikmeOran=2", "IskontoOran=1.5",  "Gun=Muhtelif",
        "ilaveGun=3",      "Doviz=TRL",    "Hesapla=1",     "SozlesmeID=1"};
    for (const QString& b : beklenen) {
      const QString alan = b.section('=', 0, 0);
      EXPECT_EQ(alan + '=' + s.Fields(alan).toString(), b);
    }
    EXPECT_EQ(s.Metin(QStringLiteral("Yaziyla")), Genel::YaziyaCevir(1218.5));
    EXPECT_NEAR(Genel::OrtGun, (1000.0 * 30 + 300.0 * 63) / 1300, 1e-12);
  }
};

TEST_F(Sozles, IkiKipBaslikVeDugmeleriyleAcilir) {
  {
    auto f = Ac(false);
    EXPECT_EQ(f->windowTitle(), QStringLiteral("Sözleşme Bilgileri (Sözleşme Numarası Bazında)"));
    EXPECT_FALSE(f->cmdFind->isHidden());
    EXPECT_TRUE(f->cmdBilgiGoster->isHidden());
    // No contracts: "Bos", only a new one can be started, the contract part hides.
    EXPECT_TRUE(f->cmdNew->isEnabled());
    for (QWidget* w :
         {f->cmdEdit, f->cmdsil, f->cmdSave, f->cmdNext, f->cmdFind, f->cmdBordro, f->cmdMusDetay})
      EXPECT_FALSE(w->isEnabled()) << w->objectName().toStdString();
    EXPECT_TRUE(f->txtTarih->isHidden() && f->frmCek->isHidden() && f->dGridDetay->isHidden());
    EXPECT_TRUE(f->lblFaizGun->isHidden());
    EXPECT_FALSE(f->lblSoyadAd->isHidden());
    EXPECT_FALSE(f->cmbAd->isEnabled());
  }
  auto f = Ac(true);
  EXPECT_EQ(f->windowTitle(), QStringLiteral("Sözleşme Bilgileri (Müşteri Bazında Gruplu)"));
  EXPECT_TRUE(f->cmdFind->isHidden());
  EXPECT_FALSE(f->cmdBilgiGoster->isHidden());
  EXPECT_TRUE(f->cmbAd->isEnabled());
  EXPECT_FALSE(f->rsSozlesme.has_value());
}

TEST_F(Sozles, HepsiKipindeSozlesmeSatirSatirGirilir) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Musteri(13, QStringLiteral("KAYA"), QStringLiteral("AYŞE"));
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdNew));
  // Over all contracts the customer is picked first.
  EXPECT_EQ(QApplication::focusWidget(), f->cmbAd);
  EXPECT_TRUE(f->cmbAd->currentText().isEmpty());
  Yaz(f->cmbAd, QStringLiteral("ali yılmaz"));
  IkiKalemliSozlesme(f.get());
  EXPECT_EQ(f->cmbAd->currentText(), QStringLiteral("ALİ YILMAZ"));
  EXPECT_FALSE(f->cmbAd->isEnabled());
}

TEST_F(Sozles, MusteriKipindeSozlesmeSatirSatirGirilir) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  auto f = Ac(true);
  // Nothing picked yet.
  ASSERT_TRUE(Bas(f->cmdNew));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Önce Bir Müşteri Seçmelisiniz"));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Giriş Hatası"));
  EXPECT_EQ(QApplication::focusWidget(), f->cmbAd);
  EXPECT_EQ(f->KayitDurum, 0);
  MesajlariTemizle();
  // Leaving the list without a customer is refused.
  Yaz(f->cmbAd, QStringLiteral("VELİ"));
  EXPECT_FALSE(Bas(f->cmdNew));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Lütfen Listeden Bir Müşteri Seçiniz"));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Müşteri Seçimi"));
  MesajlariTemizle();
  // Picked, and a new contract without asking for his contracts first: the
  // first save opens the set.
  Yaz(f->cmbAd, QStringLiteral("ALİ YILMAZ"));
  ASSERT_TRUE(Bas(f->cmdNew));
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("12"));
  EXPECT_FALSE(f->cmbAd->isEnabled());
  IkiKalemliSozlesme(f.get());
  ASSERT_TRUE(f->rsSozlesme.has_value());
  EXPECT_EQ(f->rsSozlesme->RecordCount(), 1);
  EXPECT_TRUE(f->cmbAd->isEnabled());
}

TEST_F(Sozles, MusterininSozlesmeleriTarihSirasiyla) {
  Musteri(1, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Musteri(2, QStringLiteral("KAYA"), QStringLiteral("AYŞE"));
  Musteri(3, QStringLiteral("DEMİR"), QStringLiteral("CAN"));
  Sozlesme(1, 10, 1, QStringLiteral("2005-05-01"));
  Sozlesme(2, 11, 2, QStringLiteral("2005-04-01"));
  Sozlesme(3, 12, 1, QStringLiteral("2005-03-01"));
  auto f = Ac(true);
  Yaz(f->cmbAd, QStringLiteral("AYŞE KAYA"));
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("11"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  1 / 1"));
  // Picking another customer hides the old contract until his are asked for.
  Yaz(f->cmbAd, QStringLiteral("ALİ YILMAZ"));
  EXPECT_TRUE(f->txtTarih->isHidden() && f->dGridDetay->isHidden());
  EXPECT_FALSE(f->lblSoyadAd->isHidden());
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("12"));
  EXPECT_FALSE(f->txtTarih->isHidden());
  ASSERT_TRUE(Bas(f->cmdNext));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("10"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  2 / 2"));
  // A customer without contracts: "Bos", and a new one can be started.
  Yaz(f->cmbAd, QStringLiteral("CAN DEMİR"));
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(f->rsSozlesme->RecordCount(), 0);
  EXPECT_TRUE(f->cmdNew->isEnabled() && !f->cmdEdit->isEnabled());
  EXPECT_TRUE(f->txtTarih->isHidden());
  ASSERT_TRUE(Bas(f->cmdNew));
  EXPECT_EQ(f->KayitDurum, 2);
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("3"));
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
}

TEST_F(Sozles, GezinmeVeGosterilenKayit) {
  Musteri(5, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 30, 5, QStringLiteral("2005-03-04"), 4.5, db::Null(), db::Null());
  Sozlesme(2, 20, 5, QStringLiteral("2005-03-01"));
  Sozlesme(3, 10, 99, QStringLiteral("2005-03-09"));  // customer gone
  auto f = Ac(false);
  // Date order.
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("20"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  1 / 3"));
  EXPECT_EQ(f->cmbAd->currentText(), QStringLiteral("ALİ YILMAZ"));
  EXPECT_FALSE(f->cmbAd->isEnabled());
  ASSERT_TRUE(Bas(f->cmdPrev));  // at the start it stays
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  1 / 3"));
  ASSERT_TRUE(Bas(f->cmdNext));
  // Stored as they stand; Hesapla Null is off and unlocks the amounts; a Null
  // ilaveGun shows as -1.
  EXPECT_EQ(f->txtFaizOran->text(), QStringLiteral("4,5"));
  EXPECT_FALSE(f->chkHesapla->isChecked());
  EXPECT_FALSE(f->txtTutar->isReadOnly());
  EXPECT_TRUE(f->txtOdenecek->isReadOnly());
  EXPECT_EQ(f->txtValor->text(), QStringLiteral("-1"));
  EXPECT_EQ(f->ilaveGun, 0);
  EXPECT_TRUE(MesajMetinleri().isEmpty());
  ASSERT_TRUE(Bas(f->cmdLast));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Aranan Kayıt Bulunamadı!"));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Arama"));
  ASSERT_TRUE(Bas(f->cmdNext));  // at the end it stays
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("10"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  3 / 3"));
  ASSERT_TRUE(Bas(f->cmdFirst));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("20"));
  // The buttons of browsing; the invoice and print screens aren't there.
  for (QWidget* w : {f->cmdEdit, f->cmdsil, f->cmdFind, f->cmdBordro, f->cmdMusDetay, f->cmdNew})
    EXPECT_TRUE(w->isEnabled()) << w->objectName().toStdString();
  for (QWidget* w :
       std::initializer_list<QWidget*>{f->cmdSave, f->cmdCancel, f->cmdDetayEkle, f->cmdVazgec,
                                       f->cmdSozNoBul, f->cmdFatura, f->cmdYazdir, f->txtTarih})
    EXPECT_FALSE(w->isEnabled()) << w->objectName().toStdString();
}

TEST_F(Sozles, KaydetKontrolleriSirasiyla) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 7, 12, QStringLiteral("2005-03-01"));
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdNew));
  Yaz(f->cmbAd, QStringLiteral("ALİ YILMAZ"));
  struct Adim {
    QLineEdit* alan;
    QString mesaj, baslik, deger;
  };
  const Adim adimlar[] = {
      {f->txtSozlesmeNo, "Lütfen Sözleşme Numarası Girin!!", "Uyarı", "8"},
      {f->txtTarih, "Lütfen Tarih Bilgisini Doldurun", "Hatalı Giriş", "05.03.2005"},
      {f->txtFaizOran, "Lütfen Faiz Oranı Bilgisini Girin", "Hatalı Giriş", "3"},
      {f->txtGecikmeOran, "Lütfen Gecikme Oranı Bilgisini Girin", "Hatalı Giriş", "0"},
      {f->txtIskontoOran, "Lütfen İskonto Oranı Bilgisini Girin", "Hatalı Giriş", "1"},
  };
  for (const Adim& a : adimlar) {
    MesajlariTemizle();
    ASSERT_TRUE(Bas(f->cmdSave));
    ASSERT_EQ(Mesajlar().size(), 1);
    EXPECT_EQ(SonMesaj(), a.mesaj);
    EXPECT_EQ(Mesajlar().back().baslik, a.baslik);
    EXPECT_EQ(Mesajlar().back().tur, mesaj::Tur::Kritik);
    EXPECT_EQ(QApplication::focusWidget(), a.alan) << a.mesaj.toStdString();
    EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM Sozlesme")).toInt(), 1);
    Yaz(a.alan, a.deger);
  }
  MesajlariTemizle();
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
  // No lines: the amounts read "0" and the words "Sıfır".
  db::Kayitlar s = Sorgu(QStringLiteral("SELECT * FROM Sozlesme WHERE SozlesmeID = 2"));
  ASSERT_TRUE(s.SatirVar());
  EXPECT_EQ(s.Metin(QStringLiteral("Yaziyla")), QStringLiteral("Sıfır"));
  EXPECT_EQ(s.Fields(QStringLiteral("SozlesmeNo")).toInt(), 8);
  EXPECT_EQ(f->txtTutar->text(), QStringLiteral("0"));
  EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("0"));
  EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("0"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  2 / 2"));
}

TEST_F(Sozles, HataliSozlesmeNumarasiHicbirSeyYazmaz) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  auto f = Ac(true);
  Yaz(f->cmbAd, QStringLiteral("ALİ YILMAZ"));
  ASSERT_TRUE(Bas(f->cmdNew));
  Yaz(f->txtTarih, QStringLiteral("04.03.2005"));
  Yaz(f->txtFaizOran, QStringLiteral("5"));
  Yaz(f->txtGecikmeOran, QStringLiteral("2"));
  Yaz(f->txtIskontoOran, QStringLiteral("1"));
  const std::pair<QString, QString> sayilar[] = {
      {"12a", "Sözleşme Numarası Sayı Değil"},
      {"9999999999", "Sözleşme Numarası Sayı Sınırının Dışında (En Fazla 2147483647)"}};
  for (const auto& [no, neden] : sayilar) {
    Yaz(f->txtSozlesmeNo, no);
    MesajlariTemizle();
    ASSERT_TRUE(Bas(f->cmdSave));
    ASSERT_EQ(Mesajlar().size(), 1);
    EXPECT_EQ(SonMesaj(), "Bir Hata Oldu, Lütfen Bilgileri Kontrol Edin\n" + neden);
    EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Hata"));
    EXPECT_EQ(Mesajlar().back().tur, mesaj::Tur::Kritik);
    // A line added to it: the save's message, then the command's own.
    MesajlariTemizle();
    Kalem k;
    k.vade = QStringLiteral("04.04.2005");
    k.meblag = QStringLiteral("100");
    ASSERT_TRUE(KalemGir(f.get(), k));
    ASSERT_EQ(Mesajlar().size(), 2);
    EXPECT_EQ(SonMesaj(),
              QStringLiteral("Bir Hata Oldu, Lütfen Sipariş Numarasını Kontrol Ediniz"));
    EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("HATA"));
    // Nothing written, everything typed still there, still a new contract.
    EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM Sozlesme")).toInt(), 0);
    EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 0);
    EXPECT_EQ(f->txtSozlesmeNo->text(), no);
    EXPECT_EQ(f->txtTarih->text(), QStringLiteral("04.03.2005"));
    EXPECT_EQ(f->txtMeblag->text(), QStringLiteral("100,00"));
    EXPECT_EQ(f->KayitDurum, 2);
    EXPECT_TRUE(f->cmdSave->isEnabled());
    EXPECT_FALSE(f->rsSozlesme.has_value());
  }
  // Leading zeros are the same number.
  Yaz(f->txtSozlesmeNo, QStringLiteral("007"));
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Deger(QStringLiteral("SELECT SozlesmeNo FROM Sozlesme")).toInt(), 7);
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("7"));
}

TEST_F(Sozles, FaturaVarkenDegistirmeVeSilmeReddedilir) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 7, 12, QStringLiteral("2005-03-04"));
  Satir(1, QStringLiteral("2005-04-04"), 1000);
  Sozlesme(2, 8, 12, QStringLiteral("2005-03-05"));
  Genel::Baglanti.Calistir(
      QStringLiteral("INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID) VALUES ('FA', 42, 1)"));
  auto f = Ac(false);
  const QString uyari = QStringLiteral(
      "Bu Sözleşme için Kesilmiş 42 Nolu Fatura var, Değişiklik Yapmadan Önce Faturayı "
      "Silmelisiniz!");
  for (QPushButton* d : {f->cmdEdit, f->cmdsil, f->cmdCekDuzelt}) {
    MesajlariTemizle();
    f->dGridDetay->selectRow(0);  // a line picked for cmdCekDuzelt
    ASSERT_TRUE(Bas(d));
    ASSERT_EQ(Mesajlar().size(), 1) << d->objectName().toStdString();
    EXPECT_EQ(SonMesaj(), uyari);
    EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("FATURA KESİLMİŞ"));
    EXPECT_EQ(f->KayitDurum, 0);
    EXPECT_FALSE(f->txtTarih->isEnabled());
  }
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 1);

  // Without the invoice: change is allowed, and a delete asked no is nothing.
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Fatura"));
  ASSERT_TRUE(Bas(f->cmdEdit));
  EXPECT_EQ(f->KayitDurum, 1);
  EXPECT_TRUE(f->txtTarih->isEnabled());
  EXPECT_FALSE(f->txtSozlesmeNo->isReadOnly());
  ASSERT_TRUE(Bas(f->cmdCancel));
  EXPECT_EQ(f->KayitDurum, 0);
  MesajlariTemizle();
  Cevap(mesaj::Dugme::Hayir);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(
      SonMesaj(),
      QStringLiteral("Müşteriye Ait Sözleşme, Çek Senet Kayıtlarıyla Birlikte Silinecektir. "));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Emin Misiniz?"));
  EXPECT_EQ(Mesajlar().back().dugmeler, mesaj::Dugmeler::EvetHayir);
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM Sozlesme")).toInt(), 2);
  // Yes: the contract goes with its lines; the other one comes on screen.
  Cevap(mesaj::Dugme::Evet);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM Sozlesme")).toInt(), 1);
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 0);
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("8"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  1 / 1"));
  // The last one gone: "Bos".
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM Sozlesme")).toInt(), 0);
  EXPECT_TRUE(f->cmdNew->isEnabled() && !f->cmdEdit->isEnabled());
  EXPECT_TRUE(f->txtTarih->isHidden());
}

TEST_F(Sozles, NumaraDegisikligiSatirlaraVeFaturayaGider) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 7, 12, QStringLiteral("2005-03-04"));
  Satir(1, QStringLiteral("2005-04-04"), 1000);
  Sozlesme(2, 9, 12, QStringLiteral("2005-03-05"));
  Satir(2, QStringLiteral("2005-04-05"), 500);
  const auto sayi = [](const char* sql) { return Deger(QString::fromLatin1(sql)).toInt(); };
  const auto fatura = [] {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, "
                       "SozlesmeNo) VALUES ('FA', 1, 1, 7)"));
  };
  auto f = Ac(false);
  // An invoice written while the contract is open, and lines whose number
  // went astray: an unchanged number leaves both alone ("007" is 7).
  ASSERT_TRUE(Bas(f->cmdEdit));
  fatura();
  Genel::Baglanti.Calistir(QStringLiteral("UPDATE SozlesmeDetay SET SozlesmeNo = 99"));
  Yaz(f->txtSozlesmeNo, QStringLiteral("007"));
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(sayi("SELECT SozlesmeNo FROM SozlesmeDetay WHERE SozlesmeID = 1"), 99);
  EXPECT_EQ(sayi("SELECT SozlesmeNo FROM Fatura"), 7);
  // A new number goes to its lines and its invoice, not to other contracts.
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Fatura"));
  ASSERT_TRUE(Bas(f->cmdEdit));
  fatura();
  Yaz(f->txtSozlesmeNo, QStringLiteral("15"));
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
  EXPECT_EQ(sayi("SELECT SozlesmeNo FROM Sozlesme WHERE SozlesmeID = 1"), 15);
  EXPECT_EQ(sayi("SELECT SozlesmeNo FROM SozlesmeDetay WHERE SozlesmeID = 1"), 15);
  EXPECT_EQ(sayi("SELECT SozlesmeNo FROM Fatura"), 15);
  EXPECT_EQ(sayi("SELECT SozlesmeNo FROM SozlesmeDetay WHERE SozlesmeID = 2"), 99);
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("15"));
  // A new date moves the contract in the date order: it stays on screen.
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Fatura"));
  ASSERT_TRUE(Bas(f->cmdEdit));
  Yaz(f->txtTarih, QStringLiteral("10.03.2005"));
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(f->SozlesmeID, 1);
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  2 / 2"));
}

TEST_F(Sozles, SonrakiNumaraOnerilir) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdNew));
  Yaz(f->cmbAd, QStringLiteral("ALİ YILMAZ"));
  ASSERT_TRUE(Bas(f->cmdSozNoBul));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Hiç Sözlesme Girmemissiniz"));
  EXPECT_EQ(Mesajlar().back().baslik, QString());
  EXPECT_EQ(QApplication::focusWidget(), f->txtSozlesmeNo);
  // The highest number of this series among the contracts of the latest date.
  Sozlesme(1, 500, 12, QStringLiteral("2005-03-01"));
  Sozlesme(2, 12, 12, QStringLiteral("2005-03-04"));
  Sozlesme(3, 3, 12, QStringLiteral("2005-03-04"));
  Genel::Baglanti.Calistir(QStringLiteral(
      "UPDATE Sozlesme SET SozlesmeSeri = 'CD', SozlesmeNo = 40 WHERE SozlesmeID = 3"));
  MesajlariTemizle();
  ASSERT_TRUE(Bas(f->cmdSozNoBul));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("13"));
  EXPECT_EQ(QApplication::focusWidget(), f->txtFaizOran);
  Genel::SozlesmeSeri = QStringLiteral("EF");
  ASSERT_TRUE(Bas(f->cmdSozNoBul));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Hiç Sözlesme Girmemissiniz"));
}

TEST_F(Sozles, MusteriDetayi) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 7, 12, QStringLiteral("2005-03-04"));
  Sozlesme(2, 8, 77, QStringLiteral("2005-03-05"));
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdMusDetay));
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(SonMesaj(), QStringLiteral("YILMAZ ALİ\nAtatürk Cad. 5\nÇankaya/Ankara"));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Müşteri Bilgisi"));
  EXPECT_EQ(Mesajlar().back().tur, mesaj::Tur::Duz);
  ASSERT_TRUE(Bas(f->cmdNext));
  MesajlariTemizle();
  ASSERT_TRUE(Bas(f->cmdMusDetay));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Müşteri Detayı Bulunamadı"));
}

// The worked examples, as the screen shows them when a contract comes on.
TEST_F(Sozles, OrnekRakamlarEkranda) {
  Musteri(1, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  // 1000 × 30 × r × 12 / 36000: 10,125 and 10,375 of interest.
  Sozlesme(1, 1, 1, QStringLiteral("2005-03-01"), 1.0125);
  Satir(1, QStringLiteral("2005-04-04"), 1000, 30);
  Sozlesme(2, 2, 1, QStringLiteral("2005-03-02"), 1.0375);
  Satir(2, QStringLiteral("2005-04-04"), 1000, 30);
  // Friday 4 March, due Saturday 5 March, ilaveGun 3.
  Sozlesme(3, 3, 1, QStringLiteral("2005-03-04"), 5);
  Satir(3, QStringLiteral("2005-03-05"), 1000);
  // Muhtelif: 30 and 60 days on 100 and 300.
  Sozlesme(4, 4, 1, QStringLiteral("2005-03-07"), 0);
  Satir(4, QStringLiteral("2005-04-04"), 100, 30);
  Satir(4, QStringLiteral("2005-04-04"), 300, 60);
  // The marker line keeps the typed amounts.
  Sozlesme(5, 5, 1, QStringLiteral("2005-03-08"), 5, 3, 0);
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE Sozlesme SET Tutar = 777, FaizTutar = 7 WHERE SozlesmeID = 5"));
  Satir(5, QStringLiteral("2005-04-04"), 1000, 30, QStringLiteral("X"), QStringLiteral("X"));

  Genel::OrtalamaGun = true;
  auto f = Ac(false);
  EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("10,13"));
  EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("989,88"));
  f->cmdNext_Click();
  EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("10,38"));
  EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("989,62"));
  f->cmdNext_Click();
  for (const bool haftaSonu : {false, true}) {
    Genel::HaftaSonu = haftaSonu;
    f->Goster();
    const QString gun = haftaSonu ? QStringLiteral("6") : QStringLiteral("4");
    // The grid's SQL and the totals count the same days.
    EXPECT_EQ(Hucre(f.get(), 0, QStringLiteral("Gunu")), gun);
    EXPECT_EQ(f->lblFaizGun->text(), gun + QStringLiteral(" Gün"));
  }
  f->cmdNext_Click();
  EXPECT_EQ(f->lblFaizGun->text(), QStringLiteral("52,50 Gün"));
  EXPECT_EQ(f->GunYazisi, QStringLiteral("52,50"));
  EXPECT_EQ(Genel::OrtGun, 52.5);
  EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("0"));  // rate 0
  EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("400,00"));
  f->cmdNext_Click();
  EXPECT_EQ(f->txtTutar->text(), QStringLiteral("777,00"));
  EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("7,00"));
  EXPECT_EQ(f->txtOdenecek->text(), QStringLiteral("770,00"));
}

TEST_F(Sozles, AlanKurallariVeUcDegerler) {
  Musteri(1, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 1, 1, QStringLiteral("2005-03-04"), 5);
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  // Rates: the leading number, never an unusable text.
  const std::pair<QString, QString> oranlar[] = {
      {"1abc", "1"}, {"4,50", "4,5"}, {"0,75", "0"}, {"abc", "0"}};
  for (const auto& [yazilan, kalan] : oranlar) {
    Yaz(f->txtFaizOran, yazilan);
    Yaz(f->txtGecikmeOran, QString());
    EXPECT_EQ(f->txtFaizOran->text(), kalan) << yazilan.toStdString();
  }
  // Amounts: the old-lira rule, and a text that is no amount keeps the focus.
  const std::pair<QString, QString> tutarlar[] = {
      {"250000", "250.000,00"}, {"250000,01", "0,25"}, {"1.234.567", "1,23"}, {"", "0,00"}};
  for (const auto& [yazilan, kalan] : tutarlar) {
    Yaz(f->txtMeblag, yazilan);
    Yaz(f->txtGun, QString());
    EXPECT_EQ(f->txtMeblag->text(), kalan) << yazilan.toStdString();
  }
  Yaz(f->txtMeblag, QStringLiteral("on lira"));
  Yaz(f->txtGun, QString());
  EXPECT_EQ(SonMesaj(), QStringLiteral("Bir Miktar Girmelisiniz"));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("UYARI"));
  EXPECT_EQ(QApplication::focusWidget(), f->txtMeblag);
  f->txtMeblag->clear();
  // Day field left empty shows 0; the valor sets ilaveGun.
  Yaz(f->txtGun, QString());
  f->txtGun->clear();
  Yaz(f->txtValor, QStringLiteral("5"));
  EXPECT_EQ(f->txtGun->text(), QStringLiteral("0"));
  Yaz(f->txtTarih, QString());
  EXPECT_EQ(f->ilaveGun, 6);
  // Hesapla off: the amounts can be typed, the payable amount never.
  f->chkHesapla->click();
  EXPECT_FALSE(f->Hesapla);
  EXPECT_FALSE(f->txtTutar->isReadOnly());
  EXPECT_TRUE(f->txtOdenecek->isReadOnly());
  f->chkHesapla->click();
  EXPECT_TRUE(f->txtTutar->isReadOnly());

  // Due before the contract date, 90 years ahead, an override of 999: no
  // message, and the figures of the rule (ilaveGun is 6 now).
  MesajlariTemizle();
  Yaz(f->txtFaizOran, QStringLiteral("5"));
  const qint64 gunler[] = {-12 + 6, QDate(2005, 3, 4).daysTo(QDate(2095, 3, 4)) + 6, 999};
  const std::pair<QString, QString> kalemler[] = {
      {"20.02.2005", "0"}, {"04.03.2095", "0"}, {"04.04.2005", "999"}};
  double faiz = 0;
  for (int i = 0; i < 3; ++i) {
    Kalem k;
    k.vade = kalemler[i].first;
    k.gun = kalemler[i].second;
    k.meblag = QStringLiteral("1000");
    ASSERT_TRUE(KalemGir(f.get(), k));
    EXPECT_EQ(Hucre(f.get(), i, QStringLiteral("Gunu")), QString::number(gunler[i]));
    faiz += faiz::SatirFaizi(1000, gunler[i], 5);
  }
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
  EXPECT_EQ(f->txtFaizTutar->text(), faiz::ParaYazisi(faiz));
  EXPECT_EQ(f->lblFaizGun->text(), QStringLiteral("Muhtelif Gün"));
}

TEST_F(Sozles, SozlesmeAranirBulunur) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 7, 12, QStringLiteral("2005-03-01"));
  Sozlesme(2, 8, 12, QStringLiteral("2005-03-02"));
  Sozlesme(3, 9, 12, QStringLiteral("2005-03-03"));
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdNext));
  // The dialog is answered once it waits: a number searched and the hit
  // picked, or cancelled.
  const auto ara = [&f](const QString& no) {
    auto* bekle = new QTimer;
    QObject::connect(bekle, &QTimer::timeout, [bekle, no] {
      auto* d = qobject_cast<frmSozBul*>(QApplication::activeModalWidget());
      if (!d) return;
      bekle->stop();
      bekle->deleteLater();
      if (no.isEmpty()) return d->CancelButton_Click();
      d->txtSozlesmeNo->setText(no);
      d->OKButton_Click();
      d->lstSonuc->setCurrentRow(0);
      d->lstSonuc_DblClick();
    });
    bekle->start(0);
    ASSERT_TRUE(Bas(f->cmdFind));
    QApplication::setActiveWindow(f.get());  // back from the dialog
    Isle();
  };
  ara(QStringLiteral("9"));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("9"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  3 / 3"));
  ara(QString());
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("9"));
  // A contract the screen's set doesn't hold: "Kayit Yok", and back.
  ASSERT_TRUE(Bas(f->cmdPrev));
  Sozlesme(4, 10, 12, QStringLiteral("2005-03-04"));
  ara(QStringLiteral("10"));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Kayit Yok"));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Arama Sonucu"));
  EXPECT_EQ(f->txtSozlesmeNo->text(), QStringLiteral("8"));
  EXPECT_EQ(f->lblToplam->text(), QStringLiteral("Kayıt:  2 / 3"));
}

TEST_F(Sozles, BordroEkrandakiEtiketlerle) {
  Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 7, 12, QStringLiteral("2005-03-04"), 4.5);
  Satir(1, QStringLiteral("2005-04-04"), 1000);
  Satir(1, QStringLiteral("2005-05-04"), 500);
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdBordro));
  auto* p = f->findChild<rapor::RaporPenceresi*>();
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(p->rapor().kayitlar.RecordCount(), 2);
  QStringList basliklar;
  for (const rapor::Yazi& y : p->rapor().sayfaBasligi.yazilar) basliklar << y.metin;
  for (const char* b :
       {"Müşteri:   ALİ YILMAZ", "Faiz Oranı:   4,5", "Sözleşme No: AB 7", "Tarih: 04.03.2005"})
    EXPECT_TRUE(basliklar.contains(QString::fromUtf8(b))) << b;
  p->close();
}

TEST_F(Sozles, SadeceGosterenIstasyon) {
  Genel::SadeceGoster = true;
  Musteri(1, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
  Sozlesme(1, 1, 1, QStringLiteral("2005-03-04"));
  Satir(1, QStringLiteral("2005-04-04"), 1000);
  auto f = Ac(false);
  for (QWidget* w : {f->cmdCekDuzelt, f->cmdDetayEkle, f->cmdEdit, f->cmdNew, f->cmdSave, f->cmdsil,
                     f->cmdYazdir, f->cmdBordro})
    EXPECT_FALSE(w->isEnabled()) << w->objectName().toStdString();
  EXPECT_TRUE(f->cmdNext->isEnabled() && f->cmdMusDetay->isEnabled());
}

}  // namespace
