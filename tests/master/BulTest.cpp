// The customer search: what each criterion finds, in which order, how the
// count reads, and what reaches the customer register; and the address label
// printed from the register.

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QProcess>
#include <QStandardPaths>
#include <memory>
#include <tuple>

#include "core/Rapor.h"
#include "master/frmBul.h"
#include "master/frmMusteri.h"
#include "master/rptEtiket.h"
#include "tests/master/Ortak.h"
#include "tests/support/Klavye.h"

using namespace Qt::StringLiterals;

namespace {

class BulTest : public test::Ortam {
 protected:
  // Rows of number, surname, name, legal status and the columns `ek` names.
  static void Musteriler(const char* degerler, const char* ek = "") {
    test::Sql(u"INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum%1) VALUES "_s.arg(
                  QLatin1String(ek)) +
              QString::fromUtf8(degerler));
  }
  frmBul& Bul() {
    if (!bul_) {
      musteri_.Form_Load();
      bul_ = std::make_unique<frmBul>(&musteri_);
      bul_->show();
    }
    return *bul_;
  }
  // The names found, in the order listed.
  QString Ara(const char* metin, bool adres = false, bool icinde = false) {
    frmBul& b = Bul();
    QApplication::setActiveWindow(&b);
    b.cmbKriter->setFocus();
    QTest::keyClick(b.cmbKriter, adres ? Qt::Key_End : Qt::Key_Home);
    if (b.chkAraTip->isChecked() != icinde) {
      b.chkAraTip->setFocus();
      QTest::keyClick(b.chkAraTip, Qt::Key_Space);
    }
    test::Yaz(b.txtAranacak, QString::fromUtf8(metin));
    test::Tikla(b.cmdAra);
    QStringList adlar;
    for (b.rsBulunan.MoveFirst(); !b.rsBulunan.Eof(); b.rsBulunan.MoveNext())
      adlar << b.rsBulunan.Metin(u"AdSoyad"_s);
    b.rsBulunan.MoveFirst();
    return adlar.join(',');
  }
  // The captions of the columns on show.
  QString Basliklar() {
    QStringList l;
    for (int i = 0; i < bul_->rsBulunan.AlanSayisi(); ++i)
      if (!bul_->grdSonuc->isColumnHidden(i))
        l << bul_->grdSonuc->model()->headerData(i, Qt::Horizontal).toString();
    return l.join(',');
  }
  frmMusteri musteri_;
  std::unique_ptr<frmBul> bul_;
};

TEST_F(BulTest, IkiKriterBasindaVeIcindeTurkceVeOzelKarakterle) {
  Musteriler(
      "(1, 'Yılmaz', 'Ali', 1), (2, 'ALİOĞLU', 'MEHMET', 11), (3, 'ÇAKIR', 'İSMAİL', 1), "
      "(4, 'CAN', 'ALİ', 1), (5, 'IŞIK', 'ALİ', 10), (6, 'O''NEİL', 'ALİ', 10), "
      "(7, '%YÜZDE', 'SAN.', 10), (8, 'ALT_ÇİZGİ', 'LTD.', 10), (9, 'ALTINÇİZGİ', 'LTD.', 10)");
  Musteriler(
      "(10, 'ARSLAN', 'AHMET', 1, 'Ankara Cad. No:4', 'Merkez', 'Bolu'), "
      "(11, 'BULUT', 'AYŞE', 1, 'Gül Sok. 3', 'Yenimahalle', 'Ankara'), "
      "(12, 'CAN', 'EMRE', 1, NULL, 'Sincan', 'Ankara'), "
      "(13, 'DEMİR', 'OSMAN', 1, 'Fatih Mah. Ankara Sok.', 'Kadıköy', 'İstanbul')",
      ", Adres, Ilce, Il_Ad");
  // Persons with the first name first; the order is Turkish (C, Ç, ... I, İ).
  const std::tuple<const char*, bool, bool, const char*> aramalar[] = {
      {"ALİ", false, false, "ALİ CAN,Ali Yılmaz,ALİOĞLU MEHMET"},
      {"ALİ", false, true, "ALİ CAN,Ali Yılmaz,ALİOĞLU MEHMET,IŞIK ALİ,O'NEİL ALİ"},
      {"IŞ", false, false, "IŞIK ALİ"},
      {"YILMAZ", false, true, "Ali Yılmaz"},
      {"ÇAK", false, true, "İSMAİL ÇAKIR"},
      // What is typed stands for itself.
      {"O'NE", false, false, "O'NEİL ALİ"},
      {"%", false, false, "%YÜZDE SAN."},
      {"ALT_", false, false, "ALT_ÇİZGİ LTD."},
      {"\\", false, true, ""},
      // Address, district and province at once; a Null address is no obstacle.
      {"ank", true, false, "AHMET ARSLAN,AYŞE BULUT,EMRE CAN"},
      {"ANK", true, true, "AHMET ARSLAN,AYŞE BULUT,EMRE CAN,OSMAN DEMİR"},
      {"SİNC", true, false, "EMRE CAN"}};
  for (const auto& [metin, adres, icinde, bulunan] : aramalar)
    EXPECT_EQ(Ara(metin, adres, icinde), QString::fromUtf8(bulunan))
        << metin << (adres ? " by address" : "") << (icinde ? " anywhere" : "");
  EXPECT_EQ(Basliklar(), u"Ad Soyad,Adres,İlçe,Şehir"_s);
  // Only blanks, an empty text once trimmed: everybody, by name with the number hidden.
  EXPECT_EQ(Ara("   ").count(','), 12);
  EXPECT_EQ(Basliklar(), u"Ad Soyad"_s);
  EXPECT_FALSE(bul_->grdSonuc->isHidden());
}

TEST_F(BulTest, KucukHarfTurkceBuyugeDonerSayiBinlikGrupluYazilir) {
  frmBul& b = Bul();
  b.txtAranacak->setFocus();
  for (const QChar c : u"alıi"_s) {
    QKeyEvent tus(QEvent::KeyPress, 0, Qt::NoModifier, QString(c));
    QApplication::sendEvent(b.txtAranacak, &tus);
  }
  EXPECT_EQ(b.txtAranacak->text(), u"ALIİ"_s);
  // "#,###": nothing at all for none.
  test::Sql(
      u"WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 1234) "
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) SELECT x, 'KAYA', 'AD', 10 FROM "
      "n; UPDATE Musteri SET Soyadi = 'TEK' WHERE MusteriNo = 1"_s);
  for (const auto& [metin, sayi] : {std::pair{"KAYA", "1.233"}, {"TEK", "1"}, {"YOK", ""}}) {
    Ara(metin);
    EXPECT_EQ(b.lblcount->text(), QString::fromUtf8(sayi) + " Adet Kayıt Listelendi");
  }
}

TEST_F(BulTest, SecilenMusteriKayitEkranindaGosterilir) {
  Musteriler("(1, 'AKSOY', 'CEM', 1), (2, 'BAYRAK', 'DENİZ', 1), (3, 'BAYKAL', 'EDA', 1)");
  frmBul& b = Bul();
  // The row picked by the button or a double click; with no hits the customer
  // on show stays.
  const std::tuple<const char*, int, bool, const char*> secimler[] = {
      {"BAY", 1, false, "3"}, {"BAY", 0, true, "2"}, {"YOK", 0, false, "2"}};
  for (const auto& [metin, satir, cift, no] : secimler) {
    b.show();
    Ara(metin, false, true);
    b.grdSonuc->selectRow(satir);
    cift ? b.grdSonuc_DblClick() : b.cmdSec_Click();
    EXPECT_FALSE(b.isVisible());
    EXPECT_EQ(musteri_.txtMusteriNo->text(), QString::fromUtf8(no)) << metin << satir;
  }
  EXPECT_TRUE(MesajMetinleri().isEmpty());
}

TEST_F(BulTest, EtiketAdiHukukiDurumaGoreVeNullHepsiniSiler) {
  // A person needs no father's name; a Null name part empties the whole.
  Musteriler(
      "(1, 'YILMAZ', 'ALİ', 1, 'VELİ'), (2, 'ÖZ GIDA', 'SAN. VE TİC.', 11, 'LTD. ŞTİ.'), "
      "(3, 'KAYA', 'AYŞE', 1, NULL), (4, 'DEMİR', 'İNŞAAT', 10, NULL), "
      "(5, 'ŞEN', NULL, NULL, 'HASAN')",
      ", BabaAdi");
  QStringList adlar;
  for (const char* no : {"1", "2", "3", "4", "5"}) {
    db::Kayitlar rs = master::EtiketVerisi(no);
    ASSERT_EQ(rs.RecordCount(), 1) << no;
    adlar << (db::NullMu(rs.Fields(u"AdSoyad"_s)) ? u"NULL"_s : rs.Metin(u"AdSoyad"_s));
  }
  EXPECT_EQ(adlar.join('|'), u"ALİ YILMAZ|ÖZ GIDA SAN. VE TİC. LTD. ŞTİ.|AYŞE KAYA|NULL|NULL"_s);
  EXPECT_EQ(master::EtiketVerisi(u"1"_s).Alanlar(),
            (QStringList{"AdSoyad", "Adres", "PostaKod", "Ilce", "Il_Ad"}));
}

TEST_F(BulTest, EtiketEkrandanAcilirVePdfOlur) {
  Musteriler("(7, 'ÇİFTÇİ', 'HASAN', 1, 'YUSUF', 'Gül Sok. No:3', '06100', 'Çankaya', 'Ankara')",
             ", BabaAdi, Adres, PostaKod, Ilce, Il_Ad");
  musteri_.show();
  musteri_.Form_Load();
  musteri_.cmdEtiket_Click();
  auto* pencere = musteri_.findChild<rapor::RaporPenceresi*>();
  ASSERT_NE(pencere, nullptr);
  EXPECT_TRUE(pencere->isVisible());
  const db::Kayitlar& veri = pencere->rapor().kayitlar;
  ASSERT_EQ(veri.RecordCount(), 1);
  EXPECT_EQ(veri.Deger(0, 0).toString(), u"HASAN ÇİFTÇİ"_s);
  const QString yol = veriDizini() + u"/etiket.pdf"_s;
  ASSERT_TRUE(pencere->PdfKaydet(yol));
  EXPECT_EQ(rapor::SayfaSayisi(pencere->rapor()), 1);
  QFile pdf(yol);
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.read(5) == "%PDF-");
  const QString cevirici = QStandardPaths::findExecutable(u"pdftotext"_s);
  if (cevirici.isEmpty()) GTEST_SKIP() << "pdftotext yok: PDF'in metni denetlenmedi";
  QProcess p;
  p.start(cevirici, {u"-layout"_s, yol, u"-"_s});
  ASSERT_TRUE(p.waitForFinished(30000));
  const QString metin = QString::fromUtf8(p.readAllStandardOutput());
  for (const char* parca : {"HASAN ÇİFTÇİ", "Gül Sok. No:3", "06100", "Çankaya", "Ankara"})
    EXPECT_TRUE(metin.contains(QString::fromUtf8(parca))) << parca << "\n" << metin.toStdString();
}

}  // namespace
