// The cheques and notes of the contract screen.

#include <tuple>

#include "tests/contract/SozlesEkran.h"

namespace {

class SozlesDetay : public test::SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Sozlesme(1, 7, 12, "2005-03-04");
  }
  static void CiftTikla(frmSozles* f, int satir) { SozlesEkran::CiftTikla(f, satir, "Kesideci"); }
};

TEST_F(SozlesDetay, EkleKontrolleriSirasiyla) {
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  ASSERT_EQ(f->cmbTip->currentIndex(), -1);
  f->txtSozlesmeNo->clear();
  const std::tuple<QWidget*, QString, QString> adimlar[] = {
      {f->txtSozlesmeNo, "Lütfen Sözleşme Numarası Girin!!", "7"},
      {f->txtKesideci, "Lütfen Keşideciyi Girin!!", "MEHMET KAYA"},
      {f->txtBanka, "Lütfen Bankayı Girin!!", "ZİRAAT"},
      {f->txtSube, "Lütfen Şubeyi Girin!!", "KIZILAY"},
      {f->txtHesapNo, "Lütfen Hesap No'sunu Girin!!", "123"},
      {f->txtCekNo, "Lütfen Çek No'sunu Girin!!", "  "},
      {f->txtCekNo, "Lütfen Çek No'sunu Girin!!", "A-1"},
      {f->txtVade, "Lütfen Vade Bilgisini Girin!!", "04.04.2005"},
      {f->txtGun, "Lütfen Gün bilgisine Gün Sayısını ya da 0 Girin!!", "30"},
      {f->txtMeblag, "Lütfen Meblağn bilgisini Girin!!", "1000"},
  };
  for (const auto& [alan, mesaj, deger] : adimlar) {
    EXPECT_EQ(Basinca(f->cmdDetayEkle), "Kritik Uyarı: " + mesaj);
    EXPECT_EQ(QApplication::focusWidget(), alan) << mesaj.toStdString();
    Yaz(alan, deger);
  }
  EXPECT_EQ(Satirlar(), "");
  // Nothing picked in the type list: its first item; the entry empties, the type stays.
  EXPECT_EQ(Basinca(f->cmdDetayEkle), "");
  EXPECT_EQ(Satirlar(), "7|Çek|MEHMET KAYA|ZİRAAT|KIZILAY|123|A-1|2005-04-04|2005-04-04|30|1000");
  EXPECT_EQ(Tablo("SELECT Tutar, FaizTutar FROM Sozlesme"), "1000|50");
  EXPECT_EQ(Giris(f), "Çek|||||||0||TRL");
}

TEST_F(SozlesDetay, SatirSiniriYeniSatiraUygulanir) {
  for (int i = 0; i < 21; ++i) Satir(1, "2005-04-04", 100 + i);
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  ASSERT_TRUE(KalemGir(f, {}));
  EXPECT_EQ(Kutular(), "");
  ASSERT_TRUE(KalemGir(f, {}));
  EXPECT_EQ(Kutular(),
            "Ünlem : Bir Sözleşmeyle İlişkilendirilecek Belge Sayısı En Fazla 22 dir. Lütfen Yeni "
            "Bir Sözleşme Açınız");
  // Any of the 22 can still be changed.
  CiftTikla(f, 21);
  Yaz(f->txtMeblag, "5000");
  EXPECT_EQ(Basinca(f->cmdDetayEkle), "");
  EXPECT_EQ(Tablo("SELECT count(*), max(Meblag) FROM SozlesmeDetay"), "22|5000");
}

TEST_F(SozlesDetay, SenetBankasizVeMusteriAdiyla) {
  Satir(1, "2005-04-04", 1000);
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  Yaz(f->txtBanka, "İŞ BANKASI");
  Yaz(f->cmbTip, "Senet");
  Yaz(f->txtVade, QString());  // leaving the type list names the drawer
  EXPECT_EQ(Giris(f), "Senet|ALİ YILMAZ||||||||");
  EXPECT_TRUE(f->txtKesideci->isEnabled() && !f->txtBanka->isEnabled() &&
              !f->txtSube->isEnabled() && !f->txtHesapNo->isEnabled() && !f->txtCekNo->isEnabled());
  Yaz(f->cmbTip, "Çek");
  EXPECT_TRUE(f->txtBanka->isEnabled());

  // A stored cheque made into a note keeps its bank, branch, account and number.
  CiftTikla(f, 0);
  Yaz(f->cmbTip, "Senet");
  Yaz(f->txtVade, QString());
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  EXPECT_EQ(Satirlar(), "7|Senet|ALİ YILMAZ|ZİRAAT|KIZILAY|1|100|2005-04-04|2005-04-04|0|1000");
  EXPECT_FALSE(f->txtBanka->isEnabled());
}

TEST_F(SozlesDetay, TirnakliMetinlerVeSonDegerler) {
  auto* f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  // A quote is just a character, written by insert and by update.
  ASSERT_TRUE(KalemGir(
      f,
      {.kesideci = "O'HARA", .banka = "B'NK", .sube = "Ş'BE", .hesapNo = "1'2", .cekNo = "'--"}));
  const QString metinler = "SELECT Kesideci, Banka, Sube, HesapNo, CekNo FROM SozlesmeDetay";
  EXPECT_EQ(Tablo(metinler), "O'HARA|B'NK|Ş'BE|1'2|'--");
  // F4 in the drawer's field brings back the four fields as they were left.
  ASSERT_EQ(Giris(f), "Çek|||||||0||TRL");
  Yaz(f->txtKesideci, QString());
  QTest::keyClick(f->txtKesideci, Qt::Key_F4);
  EXPECT_EQ(Giris(f), "Çek|O'HARA|B'NK|Ş'BE|1'2|||0||TRL");
  // F3 brings back a field's own; F4 works in the drawer's field only.
  Yaz(f->txtSube, "SIHHİYE");
  Yaz(f->txtBanka, QString());
  f->txtBanka->clear();
  f->txtSube->clear();
  QTest::keyClick(f->txtBanka, Qt::Key_F3);
  QTest::keyClick(f->txtBanka, Qt::Key_F4);
  EXPECT_EQ(Metinler({f->txtBanka, f->txtSube}), "B'NK|");
  Yaz(f->txtSube, QString());
  QTest::keyClick(f->txtSube, Qt::Key_F3);
  EXPECT_EQ(f->txtSube->text(), "SIHHİYE");

  // A station that only shows takes no line in.
  Genel::SadeceGoster = true;
  CiftTikla(f, 0);
  EXPECT_EQ(f->DetayDurum, 3);
  Genel::SadeceGoster = false;
  CiftTikla(f, 0);
  for (QLineEdit* kutu : {f->txtKesideci, f->txtBanka, f->txtSube, f->txtHesapNo, f->txtCekNo})
    Yaz(kutu, kutu->text() + "'x");
  EXPECT_EQ(Basinca(f->cmdDetayEkle), "");
  EXPECT_EQ(Tablo(metinler), "O'HARA'x|B'NK'x|Ş'BE'x|1'2'x|'--'x");
}

TEST_F(SozlesDetay, SatirAlinirDegisirSilinir) {
  Satir(1, "2005-04-04", 0.5, 30);
  Satir(1, "2005-05-04", 1000, 0, "200");
  Satir(1, "2099-01-01", 10, 0, "300");
  Calistir("UPDATE SozlesmeDetay SET Odenmesi = NULL WHERE GirisNo = 2");
  const QString vadeler = "SELECT GirisNo, Vadesi, Odenmesi, Meblag FROM SozlesmeDetay";
  auto* f = Ac(false);
  // Where each paper stands: collected, bounced, still to come.
  EXPECT_EQ(Sutun(f, "Durum"), "Tahsil|Ksız|");
  EXPECT_EQ(Sutun(f, "Meblag"), ",50|1.000,00|10,00");

  // Browsing, DÜZELT without a picked row and a double click take nothing in.
  ASSERT_TRUE(Bas(f->cmdCekDuzelt));
  EXPECT_EQ(f->KayitDurum, 0);
  CiftTikla(f, 0);
  EXPECT_EQ(f->DetayDurum, 3);
  f->dGridDetay->selectRow(1);
  ASSERT_TRUE(Bas(f->cmdCekDuzelt));
  EXPECT_TRUE(f->KayitDurum == 1 && f->DetayDurum == 1);
  EXPECT_EQ(Giris(f), "Çek|MEHMET KAYA|ZİRAAT|KIZILAY|1|200|04.05.2005|0|1.000,00|TRL");
  EXPECT_TRUE(f->cmdDetayEkle->text() == "Kaydet" && !f->cmdDetaySil->isHidden());
  EXPECT_EQ(QApplication::focusWidget(), f->txtVade);
  // Changed: the bounced paper gets its payment date anew from the due date.
  Yaz(f->txtVade, "11.05.2005");
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  const QString degisti =
      "1|2005-04-04|2005-04-04|0.5\n2|2005-05-11|2005-05-11|1000\n"
      "3|2099-01-01|2099-01-01|10";
  EXPECT_EQ(Tablo(vadeler), degisti);
  EXPECT_TRUE(f->cmdDetayEkle->text() == "Ekle" && f->cmdDetaySil->isHidden());

  CiftTikla(f, 0);
  Yaz(f->txtMeblag, "9");
  ASSERT_TRUE(Bas(f->cmdVazgec));
  EXPECT_TRUE(f->DetayDurum == 3 && Giris(f) == "Çek|||||||0||TRL");
  EXPECT_TRUE(f->cmdDetayEkle->text() == "Ekle" && f->cmdDetaySil->isHidden());
  // Deleting asks first; yes stores the contract's totals anew.
  for (const mesaj::Dugme cevap : {mesaj::Dugme::Hayir, mesaj::Dugme::Evet}) {
    EXPECT_EQ(Tablo(vadeler), degisti);
    CiftTikla(f, 2);
    Cevap(cevap);
    EXPECT_EQ(Basinca(f->cmdDetaySil), "Düz Onay: Çek Kayıdı Silinecek, Emin misiniz? ");
  }
  EXPECT_EQ(Tablo("SELECT group_concat(GirisNo) FROM SozlesmeDetay UNION ALL SELECT Tutar FROM "
                  "Sozlesme"),
            "1,2\n1000.5");
  EXPECT_EQ(f->txtTutar->text(), "1.000,50");
  EXPECT_TRUE(f->KayitDurum == 1 && f->cmdDetaySil->isHidden());
  EXPECT_EQ(QApplication::focusWidget(), f->cmbTip);
}

}  // namespace
