// Number and date helpers, printer characters, key filters and amounts in words.

#include <gtest/gtest.h>

#include "core/Genel.h"
#include "tests/support/Ortam.h"

using namespace Genel;
using namespace Qt::StringLiterals;

namespace {

class Yardimci : public ::testing::Test {
 protected:
  void SetUp() override { TearDown(); }
  void TearDown() override {
    BolgeTurkce();
    BinlikAyirici = u"."_s;
  }
};

TEST_F(Yardimci, SayiOkuTurkceBicim) {
  EXPECT_EQ(SayiOku(QString()), 0.0);
  // A point typed as a decimal point ("12.5") is a group separator and vanishes.
  const std::pair<const char*, double> okunan[] = {{",", 0},           {"0,5", 0.5},
                                                   {"1.000.000", 1e6}, {"1.234,56", 1234.56},
                                                   {"12.5", 125},      {"-7,25", -7.25}};
  for (const auto& [metin, deger] : okunan) EXPECT_EQ(SayiOku(QString(metin)), deger) << metin;
  EXPECT_THROW(SayiOku(u"1abc"_s), SayiHatasi);
  EXPECT_THROW(SayiOku(u"1,2,3"_s), SayiHatasi);
  double x = 9;
  EXPECT_FALSE(SayiOkuDene(u"-"_s, x));
  EXPECT_EQ(x, 9.0);
}

// A number of the entry checks needs a digit: what SayiOku reads as 0 without
// one is nothing typed. The value comes only with a yes.
TEST_F(Yardimci, SayiMiRakamIster) {
  const std::pair<const char*, double> sayilar[] = {
      {"0", 0}, {" 5 ", 5}, {"1.234,5", 1234.5}, {"-7,25", -7.25}, {",5", 0.5}};
  for (const auto& [metin, deger] : sayilar) {
    double x = 9;
    EXPECT_TRUE(SayiMi(QString::fromLatin1(metin), &x)) << metin;
    EXPECT_EQ(x, deger) << metin;
  }
  for (const char* metin : {"", "   ", ",", "-", "abc", "1abc", "1,2,3", "12.5,5,"}) {
    double x = 9;
    EXPECT_FALSE(SayiMi(QString::fromLatin1(metin), &x)) << metin;
    EXPECT_EQ(x, 9.0) << metin;
  }
  EXPECT_TRUE(SayiMi(u"12"_s));
}

TEST_F(Yardimci, SayiOkuAyiraclariIzler) {
  Bolge().ondalik = QLatin1Char('.');
  Bolge().binlik = QLatin1Char(',');
  BinlikAyirici = u","_s;
  EXPECT_EQ(SayiOku(u"1,234.5"_s), 1234.5);
  EXPECT_EQ(ParaFormat(u"1234.5"_s), u"1,234.50"_s);
  BinlikAyiriciBul();
  EXPECT_EQ(BinlikAyirici, u","_s);
  // Without a separator nothing is removed.
  BinlikAyirici.clear();
  EXPECT_THROW(SayiOku(u"1,234.5"_s), SayiHatasi);
}

TEST_F(Yardimci, ParaKurVeYuvarlama) {
  EXPECT_EQ(ParaFormat(QString()), u"0,00"_s);
  // Halves go away from zero on the decimal value the number shows.
  const char* const para[][2] = {
      {" 1234,5 ", "1.234,50"}, {"0,5", "0,50"},     {"-1234567,891", "-1.234.567,89"},
      {"10,125", "10,13"},      {"10,375", "10,38"}, {"1,005", "1,01"},
      {"-0,005", "-0,01"},      {"-0,004", "0,00"}};
  for (const auto& [metin, beklenen] : para) EXPECT_EQ(ParaFormat(metin), beklenen) << metin;
  EXPECT_EQ(KurFormat(u"1234,5"_s), u"1.234,50000"_s);
  EXPECT_EQ(SayiYaz(999999.995, 2), u"1.000.000,00"_s);

  // Half up, then banker's rounding (halves to the even digit).
  const double yukari[][3] = {{10.125, 2, 10.13},
                              {-2.5, 0, -3.0},
                              {0.1 + 0.2, 2, 0.3},
                              {0.004, 2, 0.0},
                              {123456789012.345, 2, 123456789012.35}};
  for (const auto& y : yukari) EXPECT_DOUBLE_EQ(YuvarlaYarimYukari(y[0], int(y[1])), y[2]) << y[0];
  const double bankaci[][3] = {
      {10.125, 2, 10.12}, {10.375, 2, 10.38}, {10.1251, 2, 10.13}, {2.5, 0, 2.0}, {3.5, 0, 4.0}};
  for (const auto& y : bankaci) EXPECT_DOUBLE_EQ(YuvarlaBankaci(y[0], int(y[1])), y[2]) << y[0];
}

TEST_F(Yardimci, KucukYardimcilarVeTusFiltreleri) {
  EXPECT_EQ(IkiHane(0) + IkiHane(7) + IkiHane(10), u"000710"_s);
  EXPECT_EQ(SagaDoldur(u"ABC"_s, 3), u"ABC"_s);
  EXPECT_EQ(SagaDoldur(u"ABCDEF"_s, 3), u"ABC"_s);
  EXPECT_EQ(SagaDoldur(u"AB"_s, 4), u"AB  "_s);
  EXPECT_EQ(AramaAnahtari(u"AK"_s, u"ALİ VELİ"_s, u"B."_s), u"AKALİVELİB"_s);

  QString buyuk;
  for (QChar c : u"iıIş5"_s) buyuk += BuyukHarf(c);
  EXPECT_EQ(buyuk, u"İIIŞ5"_s);
  for (QChar c : u"0123456789.,\b\x1b"_s) EXPECT_EQ(SayiTusu(c), c) << int(c.unicode());
  for (QChar c : u"\ra-"_s) EXPECT_TRUE(SayiTusu(c).isNull()) << int(c.unicode());
}

TEST_F(Yardimci, DosKarakterSadeceTurkHarfleri) {
  const QByteArray b = DosKarakter(u"öÖüÜçÇşŞğĞıİ aZ09-"_s);
  const unsigned char beklenen[] = {148, 153, 129, 154, 135, 128, 159, 158, 167, 166, 141, 152};
  ASSERT_EQ(b.size(), 12 + 6);
  for (int i = 0; i < 12; ++i) EXPECT_EQ((unsigned char)b[i], beklenen[i]) << i;
  EXPECT_EQ(b.mid(12), QByteArray(" aZ09-"));
  // Everything else goes out in the Turkish Windows code page; "?" only for
  // what that page lacks.
  const struct {
    const char16_t* metin;
    QByteArray bayt;
  } digerleri[] = {
      {u"100 €", QByteArray("100 \x80")},
      {u"“a” – b…", QByteArray("\x93"
                               "a\x94 \x96 b\x85")},
      {u"é½§", QByteArray("\xE9\xBD\xA7")},
      {u"Ðý€", QByteArray("??\x80")},  // Latin-1 letters whose places the Turkish ones took
      {u"Ω→", QByteArray("??")},
  };
  for (const auto& d : digerleri)
    EXPECT_EQ(DosKarakter(QString::fromUtf16(d.metin)).toHex(), d.bayt.toHex())
        << QString::fromUtf16(d.metin).toStdString();
}

TEST_F(Yardimci, TarihTamamlama) {
  const QDate bugun(2026, 11, 23);
  const auto tamamla = [&](QString s) { return TarihTamamla(s, bugun) ? s : u"HATA:"_s + s; };
  EXPECT_EQ(tamamla(QString()), QString());
  // What a clerk types every day: day and month in this year, and the short
  // forms with "-" (not cut into parts as if they were digits).
  const char* const gunluk[][2] = {
      {"311205", "31.12.2005"}, {"31122005", "31.12.2005"}, {"3112", "31.12.2026"},
      {"31/12", "31.12.2026"},  {"1.2.2005", "01.02.2005"}, {"01-02-2005", "01.02.2005"},
      {"010299", "01.02.1999"}, {"1.12", "01.12.2026"},     {"12.1", "12.01.2026"},
      {"1/12", "01.12.2026"},   {"1.5", "01.05.2026"},      {"31.12", "31.12.2026"},
      {"1-1-05", "01.01.2005"}, {"01-01-05", "01.01.2005"}, {"1-1-2005", "01.01.2005"},
      {"5/6/07", "05.06.2007"}, {"1.1.5", "HATA:1.1.5"},    {"1.1.205", "HATA:1.1.205"},
      {"31.2", "HATA:31.2"},    {"1-12", "HATA:1-12"},      {"1.1-2005", "HATA:1.1-2005"},
      {"3113", "HATA:3113"},    {"300205", "HATA:300205"},  {"abc", "HATA:abc"}};
  for (const auto& [yazilan, beklenen] : gunluk)
    EXPECT_EQ(tamamla(QString::fromUtf8(yazilan)), QString::fromUtf8(beklenen)) << yazilan;
  EXPECT_EQ(TarihSql(u"09.10.2026"_s).toString(), u"2026-10-09"_s);
  EXPECT_FALSE(TarihSql(QString()).isValid());
  EXPECT_EQ(TarihEkran(u"2026-10-09"_s), u"09.10.2026"_s);
}

TEST(Yaziyla, TablodakiTutarlar) {
  // "_" stands for " Yeni Lira ".
  const QString ornekler =
      "1=BİR_; 15=ONBEŞ_; 101=YÜZBİR_; 215=İKİYÜZONBEŞ_; 1000=BİN_; 1001=BİNBİR_; 2000=İKİBİN_; "
      "11000=ONBİRBİN_; 21000=YİRMİBİRBİN_; 100000=YÜZBİN_; 1000000=BİRMİLYON _; "
      "1001000=BİRMİLYON BİN_; "
      "1234567.89=BİRMİLYON İKİYÜZOTUZDÖRTBİNBEŞYÜZALTMIŞYEDİ_SEKSENDOKUZ Yeni Kuruş; "
      "0.5=_ELLİ Yeni Kuruş; -5=Eksi BEŞ_; 0=_; 12.996=ONİKİ_YÜZ Yeni Kuruş; "
      "1000000000000=BİRTRİLYON _; 2001001001=İKİMİLYAR BİRMİLYON BİNBİR_; "
      "999999999999999=DOKUZYÜZDOKSANDOKUZTRİLYON DOKUZYÜZDOKSANDOKUZMİLYAR "
      "DOKUZYÜZDOKSANDOKUZMİLYON DOKUZYÜZDOKSANDOKUZBİNDOKUZYÜZDOKSANDOKUZ_";
  for (const QString& o : ornekler.split(u"; "_s))
    EXPECT_EQ(YaziyaCevir(o.section('=', 0, 0).toDouble()),
              o.section('=', 1).replace('_', u" Yeni Lira "_s))
        << o.toStdString();
  EXPECT_EQ(UcHaneYazi(0), QString());
  EXPECT_EQ(UcHaneYazi(-3), QString());
  EXPECT_EQ(UcHaneYazi(100) + '|' + UcHaneYazi(999) + '|' + UcHaneYazi(40),
            u"YÜZ|DOKUZYÜZDOKSANDOKUZ|KIRK"_s);
}

}  // namespace
