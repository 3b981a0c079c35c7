// The contract screen as a clerk uses it, in both modes.

#include <gtest/gtest.h>

#include <QTimer>
#include <tuple>

#include "contract/frmSozBul.h"
#include "tests/contract/SozlesEkran.h"
#include "tests/support/Klavye.h"

namespace {

using test::Isle;

class Sozles : public test::SozlesEkran {
 protected:
  // The worked example and a note, typed once a customer is picked and cmdNew pressed.
  void IkiKalemliSozlesme(frmSozles* f) {
    Yaz(f->txtTarih, "040305");
    Yaz(f->txtSozlesmeNo, "7");
    Yaz(f->txtFaizOran, "5");
    Yaz(f->txtGecikmeOran, "2");
    Yaz(f->txtIskontoOran, "1,50");
    ASSERT_TRUE(KalemGir(f, {.gun = "30", .meblag = "1000"}));
    EXPECT_EQ(QApplication::focusWidget(), f->cmbTip);  // ready for the next line
    // The note's drawer comes by itself. 60 days to 3 May plus 3:
    // 300 × 63 × 5 × 12 / 36000 = 31,50.
    ASSERT_TRUE(
        KalemGir(f, {.tip = "Senet", .kesideci = {}, .vade = "03.05.2005", .meblag = "300"}));
    EXPECT_EQ(Rakamlar(f) + ' ' + Sutun(f, "Gunu"), "1.300,00|81,50|1.218,50|Muhtelif Gün 30|63");
    EXPECT_EQ(Basinca(f->cmdSave), "");
    EXPECT_EQ(Kayit(f), "7|Kayıt:  1 / 1");
    EXPECT_EQ(Satirlar(),
              "7|Çek|MEHMET KAYA|ZİRAAT|KIZILAY|12345|A-1001|2005-04-04|2005-04-04|30|1000\n"
              "7|Senet|ALİ YILMAZ|||||2005-05-03|2005-05-03|0|300");
    EXPECT_EQ(
        Tablo("SELECT SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
              "FaizTutar, FaizOran, GecikmeOran, IskontoOran, Gun, ilaveGun, Doviz, "
              "Hesapla, Yaziyla FROM Sozlesme"),
        "1|AB|7|12|2005-03-04|1300|81.5|5|2|1.5|Muhtelif|3|TRL|1|" + Genel::YaziyaCevir(1218.5));
    EXPECT_NEAR(Genel::OrtGun, (1000.0 * 30 + 300.0 * 63) / 1300, 1e-12);
  }
};

TEST_F(Sozles, HepsiKipindeSozlesmeSatirSatirGirilir) {
  Musteri(13, "KAYA", "AYŞE");
  auto* f = Ac(false);
  EXPECT_EQ(f->windowTitle(), "Sözleşme Bilgileri (Sözleşme Numarası Bazında)");
  EXPECT_TRUE(!f->cmdFind->isHidden() && f->cmdBilgiGoster->isHidden());
  EXPECT_EQ(Etkin(f), "cmdNew cmdCekDuzelt");
  EXPECT_TRUE(f->frmCek->isHidden() && f->dGridDetay->isHidden() && !f->lblSoyadAd->isHidden());
  ASSERT_TRUE(Bas(f->cmdNew));
  EXPECT_EQ(QApplication::focusWidget(), f->cmbAd);
  EXPECT_EQ(f->cmbAd->currentText(), "");
  Yaz(f->cmbAd, "ali yılmaz");
  IkiKalemliSozlesme(f);
  EXPECT_EQ(f->cmbAd->currentText(), "ALİ YILMAZ");
}

TEST_F(Sozles, MusteriKipindeSozlesmeSatirSatirGirilir) {
  auto* f = Ac(true);
  EXPECT_EQ(f->windowTitle(), "Sözleşme Bilgileri (Müşteri Bazında Gruplu)");
  EXPECT_TRUE(f->cmdFind->isHidden() && !f->cmdBilgiGoster->isHidden());
  EXPECT_EQ(Etkin(f), "cmdNew cmdCekDuzelt cmbAd");
  EXPECT_FALSE(f->rsSozlesme.has_value());
  EXPECT_EQ(Basinca(f->cmdNew), "Kritik Giriş Hatası: Önce Bir Müşteri Seçmelisiniz");
  EXPECT_TRUE(QApplication::focusWidget() == f->cmbAd && f->KayitDurum == 0);
  Yaz(f->cmbAd, "VELİ");  // leaving the list without a customer is refused
  EXPECT_FALSE(Bas(f->cmdNew));
  EXPECT_EQ(Kutular(), "Kritik Müşteri Seçimi: Lütfen Listeden Bir Müşteri Seçiniz");
  // A new contract before his contracts are asked for: the first save opens the set.
  Yaz(f->cmbAd, "ALİ YILMAZ");
  ASSERT_TRUE(Bas(f->cmdNew));
  EXPECT_EQ(f->txtMusteriNo->text(), "12");
  IkiKalemliSozlesme(f);
  EXPECT_TRUE(f->cmbAd->isEnabled());
}

// What is typed into the customer and currency lists is a whole key, in any
// case: "ALİ" begins two names but is none of them.
TEST_F(Sozles, YazilanMusteriVeDovizTamamlanmaz) {
  Musteri(30, "YILDIZ", "ALİCAN");
  Musteri(31, "YILMAZ", "");  // no first name: a blank stands beside the surname
  auto* f = Ac(true);
  test::ListeyeYaz(f->cmbAd, "ALİ", Qt::Key_unknown);
  EXPECT_FALSE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(Kutular(), "Kritik Müşteri Seçimi: Lütfen Listeden Bir Müşteri Seçiniz");
  EXPECT_EQ(f->cmbAd->currentText() + ' ' + f->txtMusteriNo->text(), "ALİ ");
  const std::pair<const char*, const char*> adlar[] = {{"alican yıldız", "30"}, {"yılmaz", "31"}};
  for (const auto& [ad, no] : adlar) {
    test::ListeyeYaz(f->cmbAd, QString::fromUtf8(ad), Qt::Key_unknown);
    ASSERT_TRUE(Bas(f->cmdBilgiGoster));
    EXPECT_EQ(f->txtMusteriNo->text(), no);
  }
  EXPECT_EQ(f->cmbAd->count(), 3);
  ASSERT_TRUE(Bas(f->cmdNew));
  test::ListeyeYaz(f->cmbDoviz, "US", Qt::Key_unknown);
  EXPECT_EQ(f->cmbDoviz->currentText() + Kutular(), "US");
}

TEST_F(Sozles, MusterininSozlesmeleriTarihSirasiyla) {
  Musteri(13, "KAYA", "AYŞE");
  Musteri(14, "DEMİR", "CAN");
  Sozlesme(1, 10, 12, "2005-05-01");
  Sozlesme(2, 11, 13, "2005-04-01");
  Sozlesme(3, 12, 12, "2005-03-01");
  auto* f = Ac(true);
  Yaz(f->cmbAd, "AYŞE KAYA");
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(Kayit(f), "11|Kayıt:  1 / 1");
  // Another customer hides the old contract until his are asked for.
  Yaz(f->cmbAd, "ALİ YILMAZ");
  EXPECT_TRUE(f->txtTarih->isHidden() && f->dGridDetay->isHidden() && !f->lblSoyadAd->isHidden());
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(Kayit(f), "12|Kayıt:  1 / 2");
  ASSERT_TRUE(Bas(f->cmdNext));
  EXPECT_EQ(Kayit(f), "10|Kayıt:  2 / 2");
  Yaz(f->cmbAd, "CAN DEMİR");
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(Etkin(f), "cmdNew cmdCekDuzelt cmbAd");
  ASSERT_TRUE(Bas(f->cmdNew));
  EXPECT_TRUE(f->KayitDurum == 2 && f->txtMusteriNo->text() == "14");
  EXPECT_EQ(Kutular(), "");
}

TEST_F(Sozles, GezinmeVeGosterilenKayit) {
  Sozlesme(1, 30, 12, "2005-03-04", 4.5, db::Null(), db::Null());
  Sozlesme(2, 20, 12, "2005-03-01");
  Sozlesme(3, 10, 99, "2005-03-09");  // customer gone
  auto* f = Ac(false);
  EXPECT_EQ(Kayit(f) + ' ' + f->cmbAd->currentText(), "20|Kayıt:  1 / 3 ALİ YILMAZ");
  EXPECT_EQ(Basinca(f->cmdMusDetay),
            "Düz Müşteri Bilgisi: YILMAZ ALİ\nAtatürk Cad. 5\nÇankaya/Ankara");
  ASSERT_TRUE(Bas(f->cmdPrev));
  EXPECT_EQ(Kayit(f), "20|Kayıt:  1 / 3");
  // Hesapla Null is off and unlocks the amounts; a Null ilaveGun shows as -1.
  ASSERT_TRUE(Bas(f->cmdNext));
  EXPECT_EQ(Metinler({f->txtFaizOran, f->txtValor}), "4,5|-1");
  EXPECT_TRUE(!f->chkHesapla->isChecked() && !f->txtTutar->isReadOnly() &&
              f->txtOdenecek->isReadOnly());
  ASSERT_TRUE(Bas(f->cmdLast));
  ASSERT_TRUE(Bas(f->cmdNext));
  EXPECT_EQ(Kayit(f), "10|Kayıt:  3 / 3");
  ASSERT_TRUE(Bas(f->cmdMusDetay));
  const QString yok = "Kritik Arama: Aranan Kayıt Bulunamadı!\n";
  EXPECT_EQ(Kutular(), yok + yok + "Düz Müşteri Bilgisi: Müşteri Detayı Bulunamadı");
  ASSERT_TRUE(Bas(f->cmdFirst));
  EXPECT_EQ(Kayit(f), "20|Kayıt:  1 / 3");
  // No invoice and print screens here; a station that only shows changes nothing.
  EXPECT_EQ(Etkin(f), "cmdNew cmdEdit cmdsil cmdFind cmdBordro cmdNext cmdMusDetay cmdCekDuzelt");
  Genel::SadeceGoster = true;
  f->Goster();
  EXPECT_EQ(Etkin(f), "cmdFind cmdNext cmdMusDetay");
}

TEST_F(Sozles, KaydetKontrolleriSirasiyla) {
  Sozlesme(1, 7, 12, "2005-03-01");
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdNew));
  Yaz(f->cmbAd, "ALİ YILMAZ");
  // Each refusal names its field; a number beyond 32 bits is refused by the write.
  const QString hata =
      "Kritik Hata: Bir Hata Oldu, Lütfen Bilgileri Kontrol Edin\nSözleşme Numarası ";
  const QString sinir = hata + "Sayı Sınırının Dışında (En Fazla 2147483647)";
  const std::tuple<QWidget*, QString, QString> adimlar[] = {
      {f->txtSozlesmeNo, "Kritik Uyarı: Lütfen Sözleşme Numarası Girin!!", "12a"},
      {f->txtTarih, "Kritik Hatalı Giriş: Lütfen Tarih Bilgisini Doldurun", "05.03.2005"},
      {f->txtFaizOran, "Kritik Hatalı Giriş: Lütfen Faiz Oranı Bilgisini Girin", "3"},
      {f->txtGecikmeOran, "Kritik Hatalı Giriş: Lütfen Gecikme Oranı Bilgisini Girin", "0"},
      {f->txtIskontoOran, "Kritik Hatalı Giriş: Lütfen İskonto Oranı Bilgisini Girin", "1"},
      {f->cmdSave, hata + "Sayı Değil", "9999999999"},
      {f->cmdSave, sinir, {}},
  };
  for (const auto& [odak, mesaj, deger] : adimlar) {
    EXPECT_EQ(Basinca(f->cmdSave), mesaj);
    EXPECT_EQ(QApplication::focusWidget(), odak) << mesaj.toStdString();
    if (!deger.isNull()) Yaz(odak == f->cmdSave ? f->txtSozlesmeNo : odak, deger);
  }
  ASSERT_TRUE(KalemGir(f, {}));
  EXPECT_EQ(Kutular(),
            sinir + "\nKritik HATA: Bir Hata Oldu, Lütfen Sipariş Numarasını Kontrol Ediniz");
  EXPECT_EQ(Tablo("SELECT count(*) FROM Sozlesme UNION ALL SELECT count(*) FROM SozlesmeDetay"),
            "1\n0");
  EXPECT_EQ(Metinler({f->txtSozlesmeNo, f->txtTarih, f->txtMeblag}),
            "9999999999|05.03.2005|100,00");
  // Leading zeros are the same number; no lines, the words "Sıfır".
  Yaz(f->txtSozlesmeNo, "008");
  EXPECT_EQ(Basinca(f->cmdSave), "");
  EXPECT_EQ(Tablo("SELECT SozlesmeNo, Tarih, Tutar, FaizTutar, FaizOran, GecikmeOran, "
                  "IskontoOran, Yaziyla FROM Sozlesme WHERE SozlesmeID = 2"),
            "8|2005-03-05|0|0|3|0|1|Sıfır");
  EXPECT_EQ(Rakamlar(f) + ' ' + Kayit(f), "0|0|0| 8|Kayıt:  2 / 2");
}

TEST_F(Sozles, FaturaKilidiNumaraDegisikligiVeSilme) {
  Sozlesme(1, 7, 12, "2005-03-04");
  Satir(1, "2005-04-04", 1000);
  Sozlesme(2, 9, 12, "2005-03-05");
  Satir(2, "2005-04-05", 500);
  const QString fatura =
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, SozlesmeNo) VALUES ('FA', 42, 1, 7)";
  const QString numaralar =
      "SELECT s.SozlesmeNo, d.SozlesmeNo, f.SozlesmeNo FROM Sozlesme s JOIN SozlesmeDetay d "
      "USING (SozlesmeID) LEFT JOIN Fatura f USING (SozlesmeID) ORDER BY SozlesmeID";
  Calistir(fatura);
  auto* f = Ac(false);
  for (QPushButton* d : {f->cmdEdit, f->cmdsil, f->cmdCekDuzelt}) {
    f->dGridDetay->selectRow(0);  // a line picked for cmdCekDuzelt
    EXPECT_EQ(Basinca(d),
              "Kritik FATURA KESİLMİŞ: Bu Sözleşme için Kesilmiş 42 Nolu Fatura var, Değişiklik "
              "Yapmadan Önce Faturayı Silmelisiniz!")
        << d->objectName().toStdString();
    EXPECT_EQ(f->KayitDurum, 0);
  }
  EXPECT_EQ(Tablo(numaralar), "7|7|7\n9|9|NULL");

  // Without it: an invoice written meanwhile and stray line numbers stay with an
  // unchanged number ("007") and follow a new one, other contracts' rows never.
  const std::tuple<QWidget*, const char*, const char*> degisiklikler[] = {
      {f->txtSozlesmeNo, "007", "7|99|7\n9|99|NULL"},
      {f->txtSozlesmeNo, "15", "15|15|15\n9|99|NULL"},
      {f->txtTarih, "10.03.2005", "15|15|7\n9|99|NULL"}};
  Calistir("UPDATE SozlesmeDetay SET SozlesmeNo = 99");
  for (const auto& [alan, deger, beklenen] : degisiklikler) {
    Calistir("DELETE FROM Fatura");
    ASSERT_TRUE(Bas(f->cmdEdit));
    EXPECT_TRUE(f->KayitDurum == 1 && f->txtTarih->isEnabled() && !f->txtSozlesmeNo->isReadOnly());
    Calistir(fatura);
    Yaz(alan, deger);
    EXPECT_EQ(Basinca(f->cmdSave), "");
    EXPECT_EQ(Tablo(numaralar), beklenen) << deger;
  }
  // Moved in the date order by its new date, it stays on screen.
  EXPECT_EQ(Kayit(f), "15|Kayıt:  2 / 2");
  Calistir("DELETE FROM Fatura");

  const QString kalan =
      "SELECT SozlesmeID FROM Sozlesme UNION ALL SELECT SozlesmeID FROM SozlesmeDetay";
  Cevap(mesaj::Dugme::Hayir);
  EXPECT_EQ(Basinca(f->cmdsil),
            "Düz Emin Misiniz?: Müşteriye Ait Sözleşme, Çek Senet Kayıtlarıyla Birlikte "
            "Silinecektir. ");
  EXPECT_EQ(Tablo(kalan), "1\n2\n1\n2");
  Cevap(mesaj::Dugme::Evet);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Tablo(kalan) + ' ' + Kayit(f), "2\n2 9|Kayıt:  1 / 1");
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Tablo(kalan), "");
  EXPECT_EQ(Etkin(f), "cmdNew cmdCekDuzelt");
}

TEST_F(Sozles, SonrakiNumaraOnerilir) {
  // The highest number of this series among the contracts of the latest date.
  Sozlesme(1, 500, 12, "2005-03-01");
  Sozlesme(2, 12, 12, "2005-03-04");
  Sozlesme(3, 40, 12, "2005-03-04");
  Calistir("UPDATE Sozlesme SET SozlesmeSeri = 'CD' WHERE SozlesmeID = 3");
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdNew));
  Yaz(f->cmbAd, "ALİ YILMAZ");
  ASSERT_TRUE(Bas(f->cmdSozNoBul));
  EXPECT_TRUE(f->txtSozlesmeNo->text() == "13" && QApplication::focusWidget() == f->txtFaizOran);
  Genel::SozlesmeSeri = QStringLiteral("EF");
  EXPECT_EQ(Basinca(f->cmdSozNoBul), "Kritik : Hiç Sözlesme Girmemissiniz");
  EXPECT_EQ(QApplication::focusWidget(), f->txtSozlesmeNo);
}

// The worked examples as the screen shows them; their arithmetic is Faiz's.
TEST_F(Sozles, OrnekRakamlarEkranda) {
  Sozlesme(1, 1, 12, "2005-03-01", 1.0125);  // 1000 × 30 × r × 12 / 36000 = 10,125
  Satir(1, "2005-04-04", 1000, 30);
  Sozlesme(2, 3, 12, "2005-03-04", 5);  // Friday 4 March, due Saturday 5 March
  Satir(2, "2005-03-05", 1000);
  Sozlesme(3, 4, 12, "2005-03-07", 0);  // Muhtelif: 30 and 60 days on 100 and 300
  Satir(3, "2005-04-04", 100, 30);
  Satir(3, "2005-04-04", 300, 60);
  Sozlesme(4, 5, 12, "2005-03-08", 5, 3, 0);  // the marker line keeps the typed amounts
  Calistir("UPDATE Sozlesme SET Tutar = 777, FaizTutar = 7 WHERE SozlesmeID = 4");
  Satir(4, "2005-04-04", 1000, 30, "X", "X");

  Genel::OrtalamaGun = true;
  auto* f = Ac(false);
  EXPECT_EQ(Rakamlar(f), "1.000,00|10,13|989,88|30 Gün");
  f->cmdNext_Click();
  for (const bool haftaSonu : {false, true}) {
    Genel::HaftaSonu = haftaSonu;
    f->Goster();
    const QString gun = haftaSonu ? "6" : "4";
    EXPECT_EQ(Sutun(f, "Gunu") + ' ' + f->lblFaizGun->text(), gun + ' ' + gun + " Gün");
  }
  f->cmdNext_Click();
  EXPECT_EQ(Rakamlar(f) + ' ' + f->GunYazisi, "400,00|0|400,00|52,50 Gün 52,50");
  EXPECT_EQ(Genel::OrtGun, 52.5);
  f->cmdNext_Click();
  EXPECT_EQ(Rakamlar(f), "777,00|7,00|770,00|");
}

TEST_F(Sozles, AlanKurallariVeUcDegerler) {
  Sozlesme(1, 1, 12, "2005-03-04", 5);
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  Yaz(f->txtFaizOran, "1abc");
  Yaz(f->txtMeblag, "250000,01");
  Yaz(f->txtGun, "");
  Yaz(f->txtValor, "5");
  Yaz(f->txtTarih, QString());
  EXPECT_EQ(Metinler({f->txtFaizOran, f->txtMeblag, f->txtGun}), "1|0,25|0");
  EXPECT_EQ(f->ilaveGun, 6);
  Yaz(f->txtMeblag, "on lira");
  Yaz(f->txtGun, QString());
  EXPECT_EQ(Kutular(), "Kritik UYARI: Bir Miktar Girmelisiniz");
  EXPECT_EQ(QApplication::focusWidget(), f->txtMeblag);
  Yaz(f->txtMeblag, "");
  // Due before the contract date and 90 years ahead: the days of rule D (ilaveGun 6).
  Yaz(f->txtFaizOran, "5");
  ASSERT_TRUE(KalemGir(f, {.vade = "20.02.2005", .meblag = "1000"}));
  ASSERT_TRUE(KalemGir(f, {.vade = "04.03.2095", .meblag = "1000"}));
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(Sutun(f, "Gunu"), "-6|32878");
  EXPECT_EQ(Rakamlar(f), "2.000,00|54.786,67|-52.786,67|Muhtelif Gün");
  EXPECT_TRUE(f->txtTutar->isReadOnly());
  f->chkHesapla->click();
  EXPECT_TRUE(!f->Hesapla && !f->txtTutar->isReadOnly() && f->txtOdenecek->isReadOnly());
}

// A locked amount box never holds the focus. With Hesapla off, Tab passes
// the payable amount by; a click into an empty locked amount of a new
// contract takes no focus, so that clicking elsewhere asks for no amount.
TEST_F(Sozles, KilitliTutarOdagiTutmaz) {
  Genel::Hesapla = false;
  auto* f = Ac(true);
  Yaz(f->cmbAd, "ALİ YILMAZ");
  ASSERT_TRUE(Bas(f->cmdNew));
  ASSERT_EQ(QApplication::focusWidget(), f->txtTarih);
  QTest::keyClicks(f->txtTarih, "040305");
  QStringList gecilen;
  for (int i = 0; i < 9; ++i) {
    QWidget* odak = QApplication::focusWidget();
    if (odak == f->txtTutar || odak == f->txtFaizTutar) QTest::keyClicks(odak, "100");
    QTest::keyClick(odak, Qt::Key_Tab);
    Isle();
    gecilen << QApplication::focusWidget()->objectName();
  }
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(gecilen.join(' '),
            "txtSozlesmeNo cmdSozNoBul txtValor chkHesapla txtTutar txtFaizTutar txtFaizOran "
            "txtGecikmeOran txtIskontoOran");

  ASSERT_TRUE(Bas(f->cmdCancel));
  Genel::Hesapla = true;
  ASSERT_TRUE(Bas(f->cmdNew));
  QTest::keyClicks(f->txtTarih, "040305");
  for (QLineEdit* kilitli : {f->txtTutar, f->txtFaizTutar, f->txtOdenecek}) {
    QTest::mouseClick(f->txtTarih, Qt::LeftButton);
    QTest::mouseClick(kilitli, Qt::LeftButton);
    Isle();
    EXPECT_NE(QApplication::focusWidget(), kilitli) << kilitli->objectName().toStdString();
    QTest::mouseClick(f->txtGecikmeOran, Qt::LeftButton);
    Isle();
    EXPECT_EQ(Kutular(), "") << kilitli->objectName().toStdString();
    EXPECT_EQ(QApplication::focusWidget(), f->txtGecikmeOran);
  }
}

// A change that moves the contract in the set's order or out of it reads the
// set anew (a contract written meanwhile then counts); gone from the
// customer's set, its place shows the next one.
TEST_F(Sozles, DegisiklikSiradaYerDegistirinceSetYenidenOkunur) {
  Musteri(13, "KAYA", "AYŞE");
  const std::tuple<bool, const char*, const char*, const char*> durumlar[] = {
      {false, "txtFaizOran", "6", "7|Kayıt:  1 / 2"},
      {false, "txtGecikmeOran", "3", "7|Kayıt:  1 / 2"},
      {false, "txtTarih", "04.03.2005", "7|Kayıt:  2 / 3"},
      {false, "txtSozlesmeNo", "10", "10|Kayıt:  1 / 3"},
      {true, "txtFaizOran", "6", "7|Kayıt:  1 / 2"},
      {true, "txtTarih", "06.03.2005", "7|Kayıt:  3 / 3"},
      {true, "cmbAd", "AYŞE KAYA", "8|Kayıt:  1 / 2"},
  };
  for (const auto& [musteriBazinda, alan, deger, kayit] : durumlar) {
    SCOPED_TRACE(std::string(alan) + (musteriBazinda ? " by customer" : ""));
    Calistir("DELETE FROM Sozlesme");
    Sozlesme(1, 7, 12, "2005-03-01");
    Sozlesme(2, 9, 12, "2005-03-05");
    auto* f = Ac(musteriBazinda);
    if (musteriBazinda) {
      Yaz(f->cmbAd, "ALİ YILMAZ");
      ASSERT_TRUE(Bas(f->cmdBilgiGoster));
    }
    Sozlesme(3, 8, 12, "2005-03-03");
    ASSERT_TRUE(Bas(f->cmdEdit));
    Yaz(f->findChild<QWidget*>(alan), deger);
    EXPECT_EQ(Basinca(f->cmdSave), "");
    EXPECT_EQ(Kayit(f), kayit);
  }
}

TEST_F(Sozles, MotorHatasiGosterilirEkranCalismayaDevamEder) {
  Sozlesme(1, 7, 12, "2005-03-01");
  Sozlesme(2, 9, 12, "2005-03-05");
  auto* f = Ac(false);
  const QString kapali = "Kritik HATA: Bir Hata Oluştu\nVeri tabanı açık değil";
  Genel::Baglanti.Kapat();
  for (QPushButton* d : {f->cmdNext, f->cmdLast, f->cmdEdit, f->cmdsil, f->cmdNew}) {
    ASSERT_TRUE(Bas(d)) << d->objectName().toStdString();
    EXPECT_EQ(Kutular(), kapali) << d->objectName().toStdString();
  }
  Genel::Baglanti.Ac(Genel::VeriTabaniYolu());
  ASSERT_TRUE(Bas(f->cmdFirst));
  EXPECT_EQ(Kayit(f), "7|Kayıt:  1 / 2");
  Calistir("DROP TABLE Fatura");
  EXPECT_EQ(Basinca(f->cmdEdit), "Kritik HATA: Bir Hata Oluştu\nno such table: Fatura");
  EXPECT_EQ(f->KayitDurum, 0);
  ASSERT_TRUE(Bas(f->cmdNext));
  EXPECT_EQ(Kayit(f), "9|Kayıt:  2 / 2");
  ASSERT_TRUE(Bas(f->cmdNew));
  Yaz(f->cmbAd, "ALİ YILMAZ");
  Genel::Baglanti.Kapat();
  EXPECT_EQ(Basinca(f->cmdSozNoBul), kapali);
  Genel::Baglanti.Ac(Genel::VeriTabaniYolu());
  ASSERT_TRUE(Bas(f->cmdSozNoBul));
  EXPECT_EQ(f->txtSozlesmeNo->text(), "10");
  EXPECT_EQ(Kutular(), "");
}

TEST_F(Sozles, SozlesmeAranirBulunurBordroAcilir) {
  Sozlesme(1, 7, 12, "2005-03-04", 4.5);
  Satir(1, "2005-04-04", 1000);
  Satir(1, "2005-05-04", 500);
  Sozlesme(2, 8, 12, "2005-03-05");
  Sozlesme(3, 9, 12, "2005-03-06");
  auto* f = Ac(false);
  // The find dialog hands back a contract, 0 when cancelled.
  ASSERT_TRUE(Bas(f->cmdNext));
  const auto ara = [f](qint64 id) {
    QTimer::singleShot(0, [id] {
      BulunanSozlesmeID = id;
      qobject_cast<QDialog*>(QApplication::activeModalWidget())->reject();
    });
    f->cmdFind_Click();
    QApplication::setActiveWindow(f);
    Isle();
  };
  ara(3);
  EXPECT_EQ(Kayit(f), "9|Kayıt:  3 / 3");
  ara(0);
  EXPECT_EQ(Kayit(f), "9|Kayıt:  3 / 3");
  // A contract the screen's set doesn't hold: "Kayit Yok", and back.
  ASSERT_TRUE(Bas(f->cmdPrev));
  Sozlesme(4, 10, 12, "2005-03-07");
  ara(4);
  EXPECT_EQ(Kutular(), "Kritik Arama Sonucu: Kayit Yok");
  EXPECT_EQ(Kayit(f), "8|Kayıt:  2 / 3");
  ASSERT_TRUE(Bas(f->cmdFirst));
  ASSERT_TRUE(Bas(f->cmdBordro));
  auto* p = f->findChild<rapor::RaporPenceresi*>();
  ASSERT_NE(p, nullptr);
  EXPECT_EQ(p->rapor().kayitlar.RecordCount(), 2);
  EXPECT_EQ(Basliklar(p->rapor()).section('|', 0, 3),
            "Müşteri:   ALİ YILMAZ|Tarih: 04.03.2005|Sözleşme No: AB 7|Faiz Oranı:   4,5");
  p->close();
}

}  // namespace
