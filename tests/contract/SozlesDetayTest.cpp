// The cheques and notes of the contract screen: the checks of a line in their
// order, the limit, notes, the last values, quotes in the texts, taking a
// stored line in to change or delete it, and the state column of the grid.

#include <gtest/gtest.h>

#include <QMouseEvent>

#include "tests/contract/SozlesEkran.h"

namespace {

using test::Isle;

class SozlesDetay : public test::SozlesEkran {
 protected:
  // Customer 12 with contract 1: number 7, 4 March 2005, rate 5.
  void SetUp() override {
    SozlesEkran::SetUp();
    Musteri(12, QStringLiteral("YILMAZ"), QStringLiteral("ALİ"));
    Sozlesme(1, 7, 12, QStringLiteral("2005-03-04"));
  }

  // A double click on a row of the grid, as the mouse gives it.
  static void CiftTikla(frmSozles* f, int satir) {
    QWidget* alan = f->dGridDetay->viewport();
    const int sutun = f->rsDetay.AlanNo(QStringLiteral("Kesideci"));
    const QPoint p =
        f->dGridDetay->visualRect(f->dGridDetay->model()->index(satir, sutun)).center();
    const QPoint g = alan->mapToGlobal(p);
    for (QEvent::Type t : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                           QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
      QMouseEvent e(t, p, g, Qt::LeftButton,
                    t == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                    Qt::NoModifier);
      QApplication::sendEvent(alan, &e);
    }
    Isle();
  }

  static db::Kayitlar Satirlar() {
    return Sorgu(QStringLiteral("SELECT * FROM SozlesmeDetay ORDER BY GirisNo"));
  }
};

TEST_F(SozlesDetay, EkleKontrolleriSirasiyla) {
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  EXPECT_EQ(f->cmbTip->currentIndex(), -1);
  f->txtSozlesmeNo->clear();
  struct Adim {
    QWidget* alan;
    QString mesaj, deger;
  };
  const Adim adimlar[] = {
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
  for (const Adim& a : adimlar) {
    MesajlariTemizle();
    ASSERT_TRUE(Bas(f->cmdDetayEkle));
    ASSERT_EQ(Mesajlar().size(), 1) << a.mesaj.toStdString();
    EXPECT_EQ(SonMesaj(), a.mesaj);
    EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Uyarı"));
    EXPECT_EQ(Mesajlar().back().tur, mesaj::Tur::Kritik);
    EXPECT_EQ(QApplication::focusWidget(), a.alan) << a.mesaj.toStdString();
    EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 0);
    Yaz(a.alan, a.deger);
  }
  // Nothing picked in the type list: its first item, without a word.
  EXPECT_EQ(f->cmbTip->currentText(), QStringLiteral("Çek"));
  MesajlariTemizle();
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
  EXPECT_EQ(Deger(QStringLiteral("SELECT Tip FROM SozlesmeDetay")).toString(),
            QStringLiteral("Çek"));
  EXPECT_EQ(f->txtFaizTutar->text(), QStringLiteral("50,00"));
  // The entry is empty again for the next line, of the same type.
  EXPECT_EQ(f->txtKesideci->text(), QString());
  EXPECT_EQ(f->txtGun->text(), QStringLiteral("0"));
  EXPECT_EQ(f->cmbDoviz->currentText(), QStringLiteral("TRL"));
  EXPECT_EQ(f->cmbTip->currentText(), QStringLiteral("Çek"));
  EXPECT_EQ(f->cmdDetayEkle->text(), QStringLiteral("Ekle"));
}

TEST_F(SozlesDetay, SatirSiniriYeniSatiraUygulanir) {
  for (int i = 0; i < 22; ++i) Satir(1, QStringLiteral("2005-04-04"), 100 + i);
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  EXPECT_EQ(f->DetaySayisi, 22);
  Kalem k;
  k.vade = QStringLiteral("05.04.2005");
  k.meblag = QStringLiteral("1");
  ASSERT_TRUE(KalemGir(f.get(), k));
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(SonMesaj(),
            QStringLiteral("Bir Sözleşmeyle İlişkilendirilecek Belge Sayısı En Fazla 22 "
                           "dir. Lütfen Yeni Bir Sözleşme Açınız"));
  EXPECT_EQ(Mesajlar().back().baslik, QString());
  EXPECT_EQ(Mesajlar().back().tur, mesaj::Tur::Unlem);
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 22);
  // Any of the 22 can still be changed.
  MesajlariTemizle();
  CiftTikla(f.get(), 21);
  EXPECT_EQ(f->DetayDurum, 1);
  Yaz(f->txtMeblag, QStringLiteral("5000"));
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
  EXPECT_EQ(Deger(QStringLiteral("SELECT max(Meblag) FROM SozlesmeDetay")).toDouble(), 5000);
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 22);
}

TEST_F(SozlesDetay, SenetBankasizVeMusteriAdiyla) {
  Satir(1, QStringLiteral("2005-04-04"), 1000);
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  Yaz(f->txtBanka, QStringLiteral("İŞ BANKASI"));
  Sec(f->cmbTip, QStringLiteral("Senet"));
  for (QLineEdit* k : {f->txtBanka, f->txtSube, f->txtHesapNo, f->txtCekNo}) {
    EXPECT_TRUE(k->text().isEmpty());
    EXPECT_FALSE(k->isEnabled());
  }
  Yaz(f->txtVade, QString());  // leaving the type list names the drawer
  EXPECT_EQ(f->txtKesideci->text(), QStringLiteral("ALİ YILMAZ"));
  Sec(f->cmbTip, QStringLiteral("Çek"));
  EXPECT_TRUE(f->txtBanka->isEnabled());

  // A stored cheque made into a note keeps its bank, branch, account and number.
  CiftTikla(f.get(), 0);
  EXPECT_TRUE(f->txtBanka->isEnabled());
  EXPECT_EQ(f->txtBanka->text(), QStringLiteral("ZİRAAT"));
  Sec(f->cmbTip, QStringLiteral("Senet"));
  Yaz(f->txtVade, QString());
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  db::Kayitlar d = Satirlar();
  EXPECT_EQ(d.Metin(QStringLiteral("Tip")), QStringLiteral("Senet"));
  EXPECT_EQ(d.Metin(QStringLiteral("Kesideci")), QStringLiteral("ALİ YILMAZ"));
  EXPECT_EQ(d.Metin(QStringLiteral("Banka")), QStringLiteral("ZİRAAT"));
  EXPECT_EQ(d.Metin(QStringLiteral("CekNo")), QStringLiteral("100"));
  // After the line the type list runs its click: a note's fields stay off.
  EXPECT_FALSE(f->txtBanka->isEnabled());
}

TEST_F(SozlesDetay, SonDegerlerF3VeF4Ile) {
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  Kalem k;
  k.kesideci = QStringLiteral("HASAN ÇELİK");
  k.banka = QStringLiteral("VAKIF");
  k.sube = QStringLiteral("ULUS");
  k.hesapNo = QStringLiteral("777");
  k.cekNo = QStringLiteral("C-9");
  k.vade = QStringLiteral("04.04.2005");
  k.meblag = QStringLiteral("250");
  ASSERT_TRUE(KalemGir(f.get(), k));
  ASSERT_TRUE(f->txtKesideci->text().isEmpty());
  Yaz(f->txtKesideci, QString());
  Tus(f->txtKesideci, Qt::Key_F4);
  EXPECT_EQ(f->txtKesideci->text(), k.kesideci);
  EXPECT_EQ(f->txtBanka->text(), k.banka);
  EXPECT_EQ(f->txtSube->text(), k.sube);
  EXPECT_EQ(f->txtHesapNo->text(), k.hesapNo);
  EXPECT_TRUE(f->txtCekNo->text().isEmpty());
  EXPECT_EQ(f->txtMeblag->text(), QString());
  // Each field remembers what it was left with, and F3 brings back its own.
  Yaz(f->txtSube, QStringLiteral("SIHHİYE"));
  Yaz(f->txtBanka, QString());
  f->txtBanka->clear();
  f->txtSube->clear();
  Tus(f->txtBanka, Qt::Key_F3);
  EXPECT_EQ(f->txtBanka->text(), k.banka);
  EXPECT_TRUE(f->txtSube->text().isEmpty());
  Tus(f->txtBanka, Qt::Key_F4);  // F4 works in the drawer's field only
  EXPECT_TRUE(f->txtSube->text().isEmpty());
  Yaz(f->txtSube, QString());
  Tus(f->txtSube, Qt::Key_F3);
  EXPECT_EQ(f->txtSube->text(), QStringLiteral("SIHHİYE"));
}

TEST_F(SozlesDetay, TirnakliMetinlerOlduguGibiYazilir) {
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  Kalem k;
  k.kesideci = QStringLiteral("O'HARA");
  k.banka = QStringLiteral("B'NK");
  k.sube = QStringLiteral("Ş'BE");
  k.hesapNo = QStringLiteral("1'2");
  k.cekNo = QStringLiteral("'--");
  k.vade = QStringLiteral("04.04.2005");
  k.meblag = QStringLiteral("100");
  ASSERT_TRUE(KalemGir(f.get(), k));
  db::Kayitlar d = Satirlar();
  const auto metinler = [&d] {
    QStringList l;
    for (const char* a : {"Kesideci", "Banka", "Sube", "HesapNo", "CekNo"})
      l << d.Metin(QString::fromLatin1(a));
    return l.join('|');
  };
  EXPECT_EQ(metinler(), QStringLiteral("O'HARA|B'NK|Ş'BE|1'2|'--"));
  CiftTikla(f.get(), 0);
  for (QLineEdit* kutu : {f->txtKesideci, f->txtBanka, f->txtSube, f->txtHesapNo, f->txtCekNo})
    Yaz(kutu, kutu->text() + QStringLiteral("'x"));
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('|').toStdString();
  d = Satirlar();
  EXPECT_EQ(metinler(), QStringLiteral("O'HARA'x|B'NK'x|Ş'BE'x|1'2'x|'--'x"));
}

TEST_F(SozlesDetay, SatirAlinirDegisirSilinir) {
  Satir(1, QStringLiteral("2005-04-04"), 0.5, 30);
  Satir(1, QStringLiteral("2005-05-04"), 1000, 0, QStringLiteral("200"));
  Satir(1, QStringLiteral("2099-01-01"), 10, 0, QStringLiteral("300"));
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE SozlesmeDetay SET Odenmesi = NULL WHERE GirisNo = 2"));
  auto f = Ac(false);
  // Where each paper stands: collected, bounced, still to come.
  EXPECT_EQ(Hucre(f.get(), 0, QStringLiteral("Durum")), QStringLiteral("Tahsil"));
  EXPECT_EQ(Hucre(f.get(), 1, QStringLiteral("Durum")), QStringLiteral("Ksız"));
  EXPECT_EQ(Hucre(f.get(), 2, QStringLiteral("Durum")), QString());
  EXPECT_EQ(Hucre(f.get(), 0, QStringLiteral("Meblag")), QStringLiteral(",50"));

  // DÜZELT does nothing until a row is picked, and browsing, a double click
  // takes nothing in.
  ASSERT_TRUE(Bas(f->cmdCekDuzelt));
  EXPECT_EQ(f->KayitDurum, 0);
  CiftTikla(f.get(), 0);
  EXPECT_EQ(f->DetayDurum, 3);
  EXPECT_TRUE(f->txtKesideci->text().isEmpty());
  // A row picked: DÜZELT opens the contract for change and takes it in.
  f->dGridDetay->selectRow(1);
  ASSERT_TRUE(Bas(f->cmdCekDuzelt));
  EXPECT_EQ(f->KayitDurum, 1);
  EXPECT_EQ(f->DetayDurum, 1);
  EXPECT_EQ(f->txtCekNo->text(), QStringLiteral("200"));
  EXPECT_EQ(f->txtVade->text(), QStringLiteral("04.05.2005"));
  EXPECT_EQ(f->txtMeblag->text(), QStringLiteral("1.000,00"));
  EXPECT_EQ(f->cmdDetayEkle->text(), QStringLiteral("Kaydet"));
  EXPECT_FALSE(f->cmdDetaySil->isHidden());
  EXPECT_EQ(QApplication::focusWidget(), f->txtVade);
  // Changed: the bounced paper gets its payment date anew from the due date.
  Yaz(f->txtVade, QStringLiteral("11.05.2005"));
  ASSERT_TRUE(Bas(f->cmdDetayEkle));
  db::Kayitlar d = Sorgu(QStringLiteral("SELECT * FROM SozlesmeDetay WHERE GirisNo = 2"));
  EXPECT_EQ(d.Metin(QStringLiteral("Odenmesi")), QStringLiteral("2005-05-11"));
  EXPECT_EQ(d.Metin(QStringLiteral("Vadesi")), QStringLiteral("2005-05-11"));
  EXPECT_EQ(f->cmdDetayEkle->text(), QStringLiteral("Ekle"));
  EXPECT_TRUE(f->cmdDetaySil->isHidden());
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 3);

  // Taken in and dropped: the stored line stays as it was.
  CiftTikla(f.get(), 0);
  EXPECT_EQ(f->txtMeblag->text(), QStringLiteral(",50"));
  Yaz(f->txtMeblag, QStringLiteral("9"));
  ASSERT_TRUE(Bas(f->cmdVazgec));
  EXPECT_EQ(f->DetayDurum, 3);
  EXPECT_EQ(f->cmdDetayEkle->text(), QStringLiteral("Ekle"));
  EXPECT_TRUE(f->cmdDetaySil->isHidden());
  EXPECT_TRUE(f->txtMeblag->text().isEmpty());
  EXPECT_EQ(Deger(QStringLiteral("SELECT Meblag FROM SozlesmeDetay WHERE GirisNo = 1")).toDouble(),
            0.5);
  // Deleting asks first; no keeps it.
  CiftTikla(f.get(), 2);
  Cevap(mesaj::Dugme::Hayir);
  ASSERT_TRUE(Bas(f->cmdDetaySil));
  EXPECT_EQ(SonMesaj(), QStringLiteral("Çek Kayıdı Silinecek, Emin misiniz? "));
  EXPECT_EQ(Mesajlar().back().baslik, QStringLiteral("Onay"));
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay")).toInt(), 3);
  // Yes: gone, and the contract's totals are stored anew.
  Cevap(mesaj::Dugme::Evet);
  ASSERT_TRUE(Bas(f->cmdDetaySil));
  EXPECT_EQ(Deger(QStringLiteral("SELECT count(*) FROM SozlesmeDetay WHERE GirisNo = 3")).toInt(),
            0);
  EXPECT_EQ(Deger(QStringLiteral("SELECT Tutar FROM Sozlesme")).toDouble(), 1000.5);
  EXPECT_EQ(f->txtTutar->text(), QStringLiteral("1.000,50"));
  EXPECT_EQ(f->KayitDurum, 1);
  EXPECT_TRUE(f->cmdDetaySil->isHidden());
  EXPECT_EQ(QApplication::focusWidget(), f->cmbTip);
}

TEST_F(SozlesDetay, SadeceGosterenCiftTiklamayiYokSayar) {
  Satir(1, QStringLiteral("2005-04-04"), 1000);
  auto f = Ac(false);
  ASSERT_TRUE(Bas(f->cmdEdit));
  Genel::SadeceGoster = true;
  CiftTikla(f.get(), 0);
  EXPECT_EQ(f->DetayDurum, 3);
  EXPECT_TRUE(f->txtBanka->text().isEmpty());
}

}  // namespace
