// The customer search: what each criterion finds, in which order, how the
// count reads, and what reaches the customer register.

#include <QApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <memory>

#include "core/Genel.h"
#include "master/frmBul.h"
#include "master/frmMusteri.h"
#include "tests/support/Ortam.h"

namespace {

class BulTest : public test::Ortam {
 protected:
  static void Musteri(qint64 no, const QVariant& soyadi, const QVariant& adi, int hukuki,
                      const QVariant& adres = QVariant(), const QVariant& ilce = QVariant(),
                      const QVariant& il = QVariant()) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum, Adres, Ilce, "
                       "Il_Ad) VALUES (?, ?, ?, ?, ?, ?, ?)"),
        {no, soyadi, adi, hukuki, adres, ilce, il});
  }

  void SetUp() override {
    test::Ortam::SetUp();
    musteri_ = std::make_unique<frmMusteri>();
  }
  void TearDown() override {
    bul_.reset();
    musteri_.reset();
    test::Ortam::TearDown();
  }

  frmBul& Bul() {
    if (!bul_) {
      musteri_->Form_Load();
      bul_ = std::make_unique<frmBul>(musteri_.get());
      bul_->show();
    }
    return *bul_;
  }

  // The names found, in the order listed.
  QStringList Ara(const QString& metin, bool adres = false, bool icinde = false) {
    frmBul& b = Bul();
    b.cmbKriter->setCurrentIndex(adres ? 1 : 0);
    b.chkAraTip->setChecked(icinde);
    b.txtAranacak->setText(metin);
    b.cmdAra_Click();
    QStringList adlar;
    for (b.rsBulunan.MoveFirst(); !b.rsBulunan.Eof(); b.rsBulunan.MoveNext())
      adlar << b.rsBulunan.Metin(QStringLiteral("AdSoyad"));
    b.rsBulunan.MoveFirst();
    return adlar;
  }

  std::unique_ptr<frmMusteri> musteri_;
  std::unique_ptr<frmBul> bul_;
};

TEST_F(BulTest, AdSoyadBasindaVeIcindeTurkceHarfle) {
  Musteri(1, "Yılmaz", "Ali", 1);
  Musteri(2, "ALİOĞLU", "MEHMET", 11);
  Musteri(3, "ÇAKIR", "İSMAİL", 1);
  Musteri(4, "CAN", "ALİ", 1);
  Musteri(5, "IŞIK", "ALİ", 10);
  // From the start: "ALİ" finds the persons named Ali and the firm whose title starts so.
  EXPECT_EQ(Ara("ALİ"), (QStringList{"ALİ CAN", "Ali Yılmaz", "ALİOĞLU MEHMET"}));
  // Anywhere in the name; the order is Turkish (C, Ç, ... I, İ).
  EXPECT_EQ(Ara("ALİ", false, true),
            (QStringList{"ALİ CAN", "Ali Yılmaz", "ALİOĞLU MEHMET", "IŞIK ALİ"}));
  EXPECT_EQ(Ara("IŞ"), QStringList{"IŞIK ALİ"});
  EXPECT_EQ(Ara("YILMAZ", false, true), QStringList{"Ali Yılmaz"});
  EXPECT_EQ(Ara("ÇAK", false, true), QStringList{"İSMAİL ÇAKIR"});
  // The grid: the number hidden, the name under its caption.
  frmBul& b = Bul();
  EXPECT_FALSE(b.grdSonuc->isHidden());
  EXPECT_TRUE(b.grdSonuc->isColumnHidden(0));
  EXPECT_EQ(b.grdSonuc->model()->headerData(1, Qt::Horizontal).toString(),
            QStringLiteral("Ad Soyad"));
  EXPECT_EQ(b.lblcount->text(), QStringLiteral("1 Adet Kayıt Listelendi"));
}

TEST_F(BulTest, KucukHarfTurkceBuyugeDoner) {
  frmBul& b = Bul();
  b.txtAranacak->setFocus();
  for (const QChar c : QStringLiteral("alıi")) {
    QKeyEvent tus(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
    QApplication::sendEvent(b.txtAranacak, &tus);
  }
  EXPECT_EQ(b.txtAranacak->text(), QStringLiteral("ALIİ"));
}

TEST_F(BulTest, OzelKarakterlerDuzKarakterdir) {
  Musteri(1, "O'NEİL", "ALİ", 10);
  Musteri(2, "%YÜZDE", "SAN.", 10);
  Musteri(3, "ALT_ÇİZGİ", "LTD.", 10);
  Musteri(4, "ALTINÇİZGİ", "LTD.", 10);
  EXPECT_EQ(Ara("O'NE"), QStringList{"O'NEİL ALİ"});
  EXPECT_EQ(Ara("%"), QStringList{"%YÜZDE SAN."});
  EXPECT_EQ(Ara("ALT_"), QStringList{"ALT_ÇİZGİ LTD."});
  EXPECT_EQ(Ara("\\", false, true), QStringList());
  EXPECT_EQ(Bul().lblcount->text(), QStringLiteral(" Adet Kayıt Listelendi"));
  // Only blanks: everybody.
  EXPECT_EQ(Ara("   ").size(), 4);
}

TEST_F(BulTest, AdresIlceVeIlBirlikteAranir) {
  Musteri(1, "ARSLAN", "AHMET", 1, "Ankara Cad. No:4", "Merkez", "Bolu");
  Musteri(2, "BULUT", "AYŞE", 1, "Gül Sok. 3", "Yenimahalle", "Ankara");
  Musteri(3, "CAN", "EMRE", 1, QVariant(), "Sincan", "Ankara");
  Musteri(4, "DEMİR", "OSMAN", 1, "Fatih Mah. Ankara Sok.", "Kadıköy", "İstanbul");
  EXPECT_EQ(Ara("ank", true), (QStringList{"AHMET ARSLAN", "AYŞE BULUT", "EMRE CAN"}));
  EXPECT_EQ(Ara("ANK", true, true),
            (QStringList{"AHMET ARSLAN", "AYŞE BULUT", "EMRE CAN", "OSMAN DEMİR"}));
  // A Null address is found by its district.
  EXPECT_EQ(Ara("SİNC", true), QStringList{"EMRE CAN"});
  frmBul& b = Bul();
  QStringList basliklar;
  for (int i = 0; i < b.rsBulunan.AlanSayisi(); ++i)
    if (!b.grdSonuc->isColumnHidden(i))
      basliklar << b.grdSonuc->model()->headerData(i, Qt::Horizontal).toString();
  EXPECT_EQ(basliklar, (QStringList{"Ad Soyad", "Adres", "İlçe", "Şehir"}));
}

TEST_F(BulTest, SayiBinlikGrupluYazilir) {
  Genel::Baglanti.Calistir(QStringLiteral(
      "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 1234) "
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) SELECT x, 'KAYA', 'AD', 10 FROM "
      "n"));
  Ara("KAYA");
  EXPECT_EQ(Bul().lblcount->text(), QStringLiteral("1.234 Adet Kayıt Listelendi"));
}

TEST_F(BulTest, SecilenMusteriKayitEkranindaGosterilir) {
  Musteri(1, "AKSOY", "CEM", 1);
  Musteri(2, "BAYRAK", "DENİZ", 1);
  Musteri(3, "BAYKAL", "EDA", 1);
  frmBul& b = Bul();
  // Before any search: just closes.
  b.cmdSec_Click();
  EXPECT_FALSE(b.isVisible());
  EXPECT_EQ(musteri_->txtMusteriNo->text(), QStringLiteral("1"));

  b.show();
  EXPECT_EQ(Ara("BAY", false, true), (QStringList{"DENİZ BAYRAK", "EDA BAYKAL"}));
  b.grdSonuc->selectRow(1);
  b.cmdSec_Click();
  EXPECT_FALSE(b.isVisible());
  EXPECT_EQ(musteri_->txtMusteriNo->text(), QStringLiteral("3"));
  EXPECT_EQ(musteri_->txtAdi->text(), QStringLiteral("EDA"));

  b.show();
  Ara("BAY", false, true);
  b.grdSonuc->selectRow(0);
  b.grdSonuc_DblClick();
  EXPECT_EQ(musteri_->txtMusteriNo->text(), QStringLiteral("2"));

  // No hits: just closes, the customer on show stays.
  b.show();
  EXPECT_TRUE(Ara("YOK").isEmpty());
  b.cmdSec_Click();
  EXPECT_FALSE(b.isVisible());
  EXPECT_EQ(musteri_->txtMusteriNo->text(), QStringLiteral("2"));
  EXPECT_TRUE(MesajMetinleri().isEmpty());
}

}  // namespace
