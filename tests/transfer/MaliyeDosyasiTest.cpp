// The small rules of the transfer file, as tables of cases, and what a run
// leaves on the disk when something fails.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/Genel.h"
#include "tests/support/Ortam.h"
#include "transfer/MaliyeAktarim.h"
#include "transfer/MaliyeDosyasi.h"
#include "transfer/MaliyeSema.h"

namespace {

using aktarim::EtiketSatiri;

TEST(MaliyeKurallari, LimitKurali) {
  const struct {
    double yazilan, limit;
  } durumlar[] = {
      {250000, 250000}, {250000.4, 0}, {250000.5, 0},    {250001, 0}, {50000000, 50},
      {2500000, 2},     {3500000, 4},  {10000.5, 10001}, {0, 0},      {1500000, 2},
  };
  for (const auto& d : durumlar) EXPECT_EQ(aktarim::LimitKurali(d.yazilan), d.limit) << d.yazilan;
}

TEST(MaliyeKurallari, DonemSonuSubatHep28) {
  const QDate sonlar[] = {{2008, 2, 28},  {2005, 2, 28},  {2005, 4, 30},
                          {2005, 11, 30}, {2004, 12, 31}, {2005, 7, 31}};
  for (const QDate& d : sonlar) EXPECT_EQ(aktarim::DonemSonu(d.month(), d.year()), d);
  EXPECT_EQ(aktarim::DonemBasi(3, 2005), QDate(2005, 3, 1));
}

TEST(MaliyeKurallari, SifirDoldur) {
  const struct {
    const char* metin;
    int genislik;
    const char* sonuc;
    bool kisa, sifir;
  } durumlar[] = {
      {"", 10, "0000000000", true, true},
      {"0000000000", 10, "0000000000", false, true},
      {"123", 10, "0000000123", true, false},
      {"1 2", 10, "0000000102", true, false},
      {"12345678901", 10, "12345678901", false, false},  // cut by the writer
      {"ABCDEFGHIJ", 10, "0000000000", false, true},
      {"ABC", 10, "0000000000", true, true},
      {"12AB", 10, "00000012AB", true, false},
      {"0A12", 10, "0000000000", true, true},
      {"", 11, "00000000000", true, true},
      {"12 34", 11, "00000012034", true, false},
  };
  for (const auto& d : durumlar) {
    const aktarim::Doldurma s = aktarim::SifirDoldur(QString::fromUtf8(d.metin), d.genislik);
    EXPECT_EQ(s.metin, QString::fromUtf8(d.sonuc)) << d.metin;
    EXPECT_EQ(s.kisa, d.kisa) << d.metin;
    EXPECT_EQ(s.sifir, d.sifir) << d.metin;
  }
}

TEST(MaliyeKurallari, SozNoVeTutar) {
  EXPECT_EQ(aktarim::SozNo("A", "123"), "A000000123");
  EXPECT_EQ(aktarim::SozNo("", "5"), "0000000005");
  EXPECT_EQ(aktarim::SozNo("ABCDEF", "123456"), "ABCDEF123456");
  EXPECT_EQ(aktarim::SozNo("A", ""), "A000000000");
  const struct {
    double deger;
    int basamak;
    const char* metin;
  } durumlar[] = {{10, 2, "10.00"},
                  {10000000, 0, "10000000"},
                  {1234567.5, 2, "1234567.50"},
                  {0.5, 0, "1"},
                  {-0.004, 2, "0.00"},
                  {-1.005, 2, "-1.01"},
                  {1234567500000, 0, "1234567500000"},
                  {0.125, 2, "0.13"},
                  {2.675, 2, "2.68"}};
  for (const auto& d : durumlar)
    EXPECT_EQ(aktarim::TutarYaz(d.deger, d.basamak), d.metin) << d.deger;
}

TEST(MaliyeKurallari, EtiketYaz) {
  // Empty and not required: nothing; required: the empty element.
  EXPECT_EQ(EtiketSatiri("", "pk", 5, false), "");
  EXPECT_EQ(EtiketSatiri("", "soyad", 20, true), "<soyad></soyad>");
  // 20 characters with an ampersand stay whole; the 21st goes before the escape.
  EXPECT_EQ(EtiketSatiri("ABCDEFGHIJ&LMNOPQRST", "soyad", 20, true),
            "<soyad>ABCDEFGHIJ&amp;LMNOPQRST</soyad>");
  EXPECT_EQ(EtiketSatiri("ABCDEFGHIJ&LMNOPQRSTU", "soyad", 20, true),
            "<soyad>ABCDEFGHIJ&amp;LMNOPQRST</soyad>");
  EXPECT_EQ(EtiketSatiri("<a> & \"b\" 'c'", "ad", 16, true), "<ad>&lt;a&gt; &amp; \"b\" 'c'</ad>");
  // The cut may fall inside an entity's source: it counts raw characters.
  EXPECT_EQ(EtiketSatiri("ŞÇĞÜÖİ<", "ad", 6, true), "<ad>ŞÇĞÜÖİ</ad>");
  // Control characters XML cannot hold are left out; a tab stays.
  EXPECT_EQ(EtiketSatiri(QString("A") + QChar(1) + "B\r\nC\tD" + QChar(0x1f), "ad", 16, true),
            "<ad>ABC\tD</ad>");
  // A value of only control characters is not empty: the element stands, empty.
  EXPECT_EQ(EtiketSatiri(QString(QChar(7)), "pk", 5, false), "<pk></pk>");
  // On an amount element a comma becomes a point; elsewhere it stays.
  EXPECT_EQ(EtiketSatiri("1,50", "otutartl", 18, true), "<otutartl>1.50</otutartl>");
  EXPECT_EQ(EtiketSatiri("1,50", "ad", 16, true), "<ad>1,50</ad>");
  // 10,000 characters are cut to the width; a pair of surrogates is never split.
  EXPECT_EQ(EtiketSatiri(QString(10000, QChar('x')), "ilceadi", 15, false),
            "<ilceadi>" + QString(15, QChar('x')) + "</ilceadi>");
  EXPECT_EQ(EtiketSatiri("AB" + QString::fromUtf8("😀") + "CD", "pk", 3, true),
            "<pk>AB" + QString::fromUtf8("😀") + "</pk>");
  EXPECT_EQ(EtiketSatiri(QString(QChar(0xD800)) + "A", "pk", 5, true), "<pk>A</pk>");
}

class MaliyeDisk : public test::Ortam {
 protected:
  aktarim::Istek Istek(const QString& klasor) {
    aktarim::Istek i;
    i.bas = QDate(2005, 1, 1);
    i.son = QDate(2005, 3, 31);
    i.limit = 10000;
    i.bugun = QDate(2005, 4, 1);
    i.klasor = klasor;
    return i;
  }
  static QByteArray Oku(const QString& yol) {
    QFile f(yol);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(yok)");
  }
  static void Yaz(const QString& yol, const QByteArray& b) {
    QFile f(yol);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(b);
  }
};

TEST_F(MaliyeDisk, MotorHatasindaEskiDosyaKalir) {
  QTemporaryDir d;
  const QString xml = QDir(d.path()).filePath("Velmora.xml");
  Yaz(xml, "eski tam dosya");
  Genel::Baglanti.Calistir("DROP TABLE Kur");
  Genel::Baglanti.Calistir(
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi) VALUES (1, 'A', 'B');"
      "INSERT INTO Sozlesme(SozlesmeID, MusteriNo, Tarih, Tutar, Doviz) "
      "VALUES (1, 1, '2005-01-05', 20000, 'USD')");
  EXPECT_THROW(aktarim::Hazirla(Genel::Baglanti, Istek(d.path())), db::Hata);
  EXPECT_EQ(Oku(xml), "eski tam dosya");
  EXPECT_EQ(QDir(d.path()).entryList(QDir::Files), QStringList{"Velmora.xml"});
  // A folder that is a file can't hold the transfer file.
  EXPECT_THROW(aktarim::Hazirla(Genel::Baglanti, Istek(xml)), aktarim::DosyaHatasi);
}

TEST_F(MaliyeDisk, KontrolListesiSekmeliTumSutunlar) {
  Genel::Baglanti.Calistir(
      "INSERT INTO Musteri(MusteriNo, VergiKimlikNo, Soyadi, Adi, IlKod, Uyruk) "
      "VALUES (4, '12', 'TAB\tLI', 'ŞÜ', 6, 1);"
      "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
      "FaizTutar, Doviz) VALUES (1, 'A', 7, 4, '2005-02-03', 12345.5, 10, 'TRL');"
      "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Doviz) "
      "VALUES (1, '2005-03-01', '2005-03-02', 20000, 'TRL')");
  QTemporaryDir d;
  const aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, Istek(d.path()));
  const QString yol = aktarim::KontrolListesiYaz(Genel::Baglanti, Istek(d.path()), d.path());
  const QByteArray beklenen =
      "VergiKimlikNo\tMusteriNo\tSoyadi\tAdi\tBabaAdi\tAdres\tIlce\tPostaKod\tIl_Ad\tIlKod\t"
      "TCKimlikNo\tVekilDurum\tVekilVergiKimlik\tVekilSoyadi\tVekilAdi\tUyruk\tHukukiDurum\t"
      "TIP\tDoviz\tTarih\tTutar\tFaizTutar\tSozlesmeSeri\tSozlesmeNo\t\r\n"
      "12\t4\tTAB\tLI\tŞÜ\t\t\t\t\t\t6\t\t\t\t\t\t1\t\t1\tTRL\t03.02.2005\t12345,5\t10\tA\t7\t\r\n"
      "12\t4\tTAB\tLI\tŞÜ\t\t\t\t\t\t6\t\t\t\t\t\t1\t\t2\tTRL\t02.03.2005\t20000\t0\t \t \t\r\n";
  EXPECT_EQ(Oku(yol), beklenen);
  // A second write replaces the file with the same content; the rows read
  // into a record set give the same bytes as the rows read one by one.
  aktarim::KontrolListesiYaz(aktarim::KontrolSatirlari(Genel::Baglanti, Istek(d.path())), d.path());
  EXPECT_EQ(Oku(yol), beklenen);
}

TEST_F(MaliyeDisk, SemaBozukDosyayiYakalarIlkHatayiSoyler) {
  Genel::Baglanti.Calistir(
      "UPDATE Firma SET IlKod = 6;"
      "INSERT INTO Musteri(MusteriNo, VergiKimlikNo, Soyadi, Adi, IlKod, Uyruk) "
      "VALUES (4, '1234567890', 'KAYA', 'ALİ', 6, 2);"
      "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
      "FaizTutar, Doviz) VALUES (1, 'A', 7, 4, '2005-02-03', 12345.5, 10, 'TRL')");
  QTemporaryDir d;
  aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, Istek(d.path()));
  ASSERT_EQ(s.semaHatasi, "");
  const QByteArray iyi = Oku(s.dosya);
  const aktarim::Varyant yeni = aktarim::VaryantSec(2005), eski = aktarim::VaryantSec(2004);
  // A new lira file is no old lira file: its amounts have decimals.
  EXPECT_TRUE(aktarim::SemayaUygunMu(s.dosya, eski).contains("odvertoplamtutar"));

  const struct {
    const char* once;
    const char* sonra;
    const char* hata;  // part of the first fault
  } bozuk[] = {
      {"<otutartl>12345.50</otutartl>", "<otutartl>12345,50</otutartl>", "otutartl"},
      {"<soyad>KAYA</soyad>", "<soyad>KAYAKAYAKAYAKAYAKAYA1</soyad>", "soyad"},
      {"<ad>ALİ</ad>\r\n", "", "babaadi"},
      {"<ilkodu>06</ilkodu>\r\n<ulkekodu>052</ulkekodu>\r\n</adres>\r\n<tckn>",
       "<ilkodu>6</ilkodu>\r\n<ulkekodu>052</ulkekodu>\r\n</adres>\r\n<tckn>", "ilkodu"},
      {"</subeadi>", "</subead>", "satır"},
      {"<soztar>20050203</soztar>", "<soztar>2005023</soztar>", "soztar"},
  };
  const QString yol = QDir(d.path()).filePath("bozuk.xml");
  for (const auto& b : bozuk) {
    QByteArray metin = iyi;
    ASSERT_TRUE(metin.contains(b.once)) << b.once;
    Yaz(yol, metin.replace(b.once, b.sonra));
    const QString hata = aktarim::SemayaUygunMu(yol, yeni);
    EXPECT_TRUE(hata.contains(b.hata)) << b.sonra << " -> " << hata.toStdString();
  }

  // Amounts too long for their elements, in a row far behind the first piece
  // the check reads, then in the head: the file is kept, the first fault told.
  Genel::Baglanti.Calistir(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)"
      " INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Doviz)"
      " SELECT 1, '2005-05-01', '2005-03-01', 10000 + i, 'TRL' FROM n;"
      "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Doviz)"
      " VALUES (1, '2005-05-01', '2005-03-02', 1e17, 'TRL')");
  s = aktarim::Hazirla(Genel::Baglanti, Istek(d.path()));
  EXPECT_TRUE(s.semaHatasi.contains("tahtutartl")) << s.semaHatasi.toStdString();
  EXPECT_EQ(s.semaHatasi, aktarim::SemayaUygunMu(s.dosya, yeni));
  EXPECT_TRUE(Oku(s.dosya).contains("<gonkayitsayisi>3002</gonkayitsayisi>"));
  Genel::Baglanti.Calistir("UPDATE Sozlesme SET Tutar = 1e17");
  s = aktarim::Hazirla(Genel::Baglanti, Istek(d.path()));
  EXPECT_TRUE(s.semaHatasi.startsWith("satır 18:")) << s.semaHatasi.toStdString();
  EXPECT_TRUE(s.semaHatasi.contains("odvertoplamtutar")) << s.semaHatasi.toStdString();
}

}  // namespace
