// Number and date helpers, printer characters, key filters and amounts in words.

#include <gtest/gtest.h>

#include "core/Genel.h"
#include "tests/support/Ortam.h"

using namespace Genel;

namespace {

class Yardimci : public ::testing::Test {
 protected:
  void SetUp() override {
    BolgeTurkce();
    BinlikAyirici = QStringLiteral(".");
  }
  void TearDown() override {
    BolgeTurkce();
    BinlikAyirici = QStringLiteral(".");
  }
};

TEST_F(Yardimci, SayiOkuTurkceBicim) {
  EXPECT_EQ(SayiOku(QString()), 0.0);
  EXPECT_EQ(SayiOku(QStringLiteral(",")), 0.0);
  EXPECT_EQ(SayiOku(QStringLiteral("0,5")), 0.5);
  EXPECT_EQ(SayiOku(QStringLiteral("1.000.000")), 1000000.0);
  EXPECT_EQ(SayiOku(QStringLiteral("1.234,56")), 1234.56);
  // A point typed as a decimal point is a group separator and vanishes.
  EXPECT_EQ(SayiOku(QStringLiteral("12.5")), 125.0);
  EXPECT_EQ(SayiOku(QStringLiteral("-7,25")), -7.25);
  EXPECT_THROW(SayiOku(QStringLiteral("1abc")), SayiHatasi);
  EXPECT_THROW(SayiOku(QStringLiteral("1,2,3")), SayiHatasi);
  double x = 9;
  EXPECT_FALSE(SayiOkuDene(QStringLiteral("-"), x));
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
  EXPECT_TRUE(SayiMi(QStringLiteral("12")));
}

TEST_F(Yardimci, SayiOkuAyiraclariIzler) {
  Bolge().ondalik = QLatin1Char('.');
  Bolge().binlik = QLatin1Char(',');
  BinlikAyirici = QStringLiteral(",");
  EXPECT_EQ(SayiOku(QStringLiteral("1,234.5")), 1234.5);
  EXPECT_EQ(ParaFormat(QStringLiteral("1234.5")), QStringLiteral("1,234.50"));
  BinlikAyiriciBul();
  EXPECT_EQ(BinlikAyirici, QStringLiteral(","));
  // Without a separator nothing is removed.
  BinlikAyirici.clear();
  EXPECT_THROW(SayiOku(QStringLiteral("1,234.5")), SayiHatasi);
}

TEST_F(Yardimci, ParaVeKurFormati) {
  EXPECT_EQ(ParaFormat(QString()), QStringLiteral("0,00"));
  EXPECT_EQ(ParaFormat(QStringLiteral(" 1234,5 ")), QStringLiteral("1.234,50"));
  EXPECT_EQ(ParaFormat(QStringLiteral("0,5")), QStringLiteral("0,50"));
  EXPECT_EQ(ParaFormat(QStringLiteral("-1234567,891")), QStringLiteral("-1.234.567,89"));
  EXPECT_EQ(KurFormat(QStringLiteral("1234,5")), QStringLiteral("1.234,50000"));
  // Halves go away from zero on the decimal value the number shows.
  EXPECT_EQ(ParaFormat(QStringLiteral("10,125")), QStringLiteral("10,13"));
  EXPECT_EQ(ParaFormat(QStringLiteral("10,375")), QStringLiteral("10,38"));
  EXPECT_EQ(ParaFormat(QStringLiteral("1,005")), QStringLiteral("1,01"));
  EXPECT_EQ(ParaFormat(QStringLiteral("-0,005")), QStringLiteral("-0,01"));
  EXPECT_EQ(ParaFormat(QStringLiteral("-0,004")), QStringLiteral("0,00"));
  EXPECT_EQ(SayiYaz(999999.995, 2), QStringLiteral("1.000.000,00"));
}

TEST_F(Yardimci, YuvarlamaTurleri) {
  EXPECT_DOUBLE_EQ(YuvarlaYarimYukari(10.125, 2), 10.13);
  EXPECT_DOUBLE_EQ(YuvarlaBankaci(10.125, 2), 10.12);
  EXPECT_DOUBLE_EQ(YuvarlaBankaci(10.375, 2), 10.38);
  EXPECT_DOUBLE_EQ(YuvarlaBankaci(10.1251, 2), 10.13);
  EXPECT_DOUBLE_EQ(YuvarlaBankaci(2.5, 0), 2.0);
  EXPECT_DOUBLE_EQ(YuvarlaBankaci(3.5, 0), 4.0);
  EXPECT_DOUBLE_EQ(YuvarlaYarimYukari(-2.5, 0), -3.0);
  EXPECT_DOUBLE_EQ(YuvarlaYarimYukari(0.1 + 0.2, 2), 0.3);
  EXPECT_DOUBLE_EQ(YuvarlaYarimYukari(0.004, 2), 0.0);
  EXPECT_DOUBLE_EQ(YuvarlaYarimYukari(123456789012.345, 2), 123456789012.35);
}

TEST_F(Yardimci, KucukYardimcilar) {
  EXPECT_EQ(IkiHane(0), QStringLiteral("00"));
  EXPECT_EQ(IkiHane(7), QStringLiteral("07"));
  EXPECT_EQ(IkiHane(10), QStringLiteral("10"));
  EXPECT_EQ(SagaDoldur(QStringLiteral("ABC"), 3), QStringLiteral("ABC"));
  EXPECT_EQ(SagaDoldur(QStringLiteral("ABCDEF"), 3), QStringLiteral("ABC"));
  EXPECT_EQ(SagaDoldur(QStringLiteral("AB"), 4), QStringLiteral("AB  "));
  EXPECT_EQ(AramaAnahtari(QStringLiteral("AK"), QStringLiteral("ALİ VELİ"), QStringLiteral("B.")),
            QStringLiteral("AKALİVELİB"));
}

TEST_F(Yardimci, DosKarakterSadeceTurkHarfleri) {
  const QByteArray b = DosKarakter(QStringLiteral("öÖüÜçÇşŞğĞıİ aZ09-"));
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
      {u"“a” – b…", QByteArray("\x93" "a\x94 \x96 b\x85")},
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
  const auto tamamla = [&](QString s) {
    return TarihTamamla(s, bugun) ? s : QStringLiteral("HATA:") + s;
  };
  EXPECT_EQ(tamamla(QStringLiteral("311205")), QStringLiteral("31.12.2005"));
  EXPECT_EQ(tamamla(QStringLiteral("31122005")), QStringLiteral("31.12.2005"));
  EXPECT_EQ(tamamla(QStringLiteral("3112")), QStringLiteral("31.12.2026"));
  EXPECT_EQ(tamamla(QStringLiteral("31/12")), QStringLiteral("31.12.2026"));
  EXPECT_EQ(tamamla(QStringLiteral("1.2.2005")), QStringLiteral("01.02.2005"));
  EXPECT_EQ(tamamla(QStringLiteral("01-02-2005")), QStringLiteral("01.02.2005"));
  EXPECT_EQ(tamamla(QStringLiteral("010299")), QStringLiteral("01.02.1999"));
  // What a clerk types every day: day and month in this year, and the short
  // forms with "-" (not cut into parts as if they were digits).
  const char* const gunluk[][2] = {
      {"1.12", "01.12.2026"},     {"12.1", "12.01.2026"},     {"1/12", "01.12.2026"},
      {"1.5", "01.05.2026"},      {"31.12", "31.12.2026"},    {"1-1-05", "01.01.2005"},
      {"01-01-05", "01.01.2005"}, {"1-1-2005", "01.01.2005"}, {"5/6/07", "05.06.2007"},
      {"1.1.5", "HATA:1.1.5"},    {"1.1.205", "HATA:1.1.205"}, {"31.2", "HATA:31.2"},
      {"1-12", "HATA:1-12"},      {"1.1-2005", "HATA:1.1-2005"}};
  for (const auto& [yazilan, beklenen] : gunluk)
    EXPECT_EQ(tamamla(QString::fromUtf8(yazilan)), QString::fromUtf8(beklenen)) << yazilan;
  EXPECT_EQ(tamamla(QStringLiteral("3113")), QStringLiteral("HATA:3113"));
  EXPECT_EQ(tamamla(QStringLiteral("300205")), QStringLiteral("HATA:300205"));
  EXPECT_EQ(tamamla(QStringLiteral("abc")), QStringLiteral("HATA:abc"));
  EXPECT_EQ(tamamla(QString()), QString());
  EXPECT_EQ(TarihSql(QStringLiteral("09.10.2026")).toString(), QStringLiteral("2026-10-09"));
  EXPECT_FALSE(TarihSql(QString()).isValid());
  EXPECT_EQ(TarihEkran(QStringLiteral("2026-10-09")), QStringLiteral("09.10.2026"));
}

TEST_F(Yardimci, TusFiltreleri) {
  EXPECT_EQ(BuyukHarf(QLatin1Char('i')), QChar(0x0130));
  EXPECT_EQ(BuyukHarf(QChar(0x0131)), QLatin1Char('I'));
  EXPECT_EQ(BuyukHarf(QLatin1Char('I')), QLatin1Char('I'));
  EXPECT_EQ(BuyukHarf(QChar(0x015F)), QChar(0x015E));
  EXPECT_EQ(BuyukHarf(QLatin1Char('5')), QLatin1Char('5'));
  for (QChar c : QStringLiteral("0123456789.,")) EXPECT_EQ(SayiTusu(c), c);
  EXPECT_EQ(SayiTusu(QChar(8)), QChar(8));
  EXPECT_EQ(SayiTusu(QChar(27)), QChar(27));
  EXPECT_TRUE(SayiTusu(QChar(13)).isNull());
  EXPECT_TRUE(SayiTusu(QLatin1Char('a')).isNull());
  EXPECT_TRUE(SayiTusu(QLatin1Char('-')).isNull());
}

TEST(Yaziyla, TablodakiTutarlar) {
  const QList<QPair<double, QString>> ornekler = {
      {1, QStringLiteral("BİR Yeni Lira ")},
      {15, QStringLiteral("ONBEŞ Yeni Lira ")},
      {101, QStringLiteral("YÜZBİR Yeni Lira ")},
      {215, QStringLiteral("İKİYÜZONBEŞ Yeni Lira ")},
      {1000, QStringLiteral("BİN Yeni Lira ")},
      {1001, QStringLiteral("BİNBİR Yeni Lira ")},
      {2000, QStringLiteral("İKİBİN Yeni Lira ")},
      {11000, QStringLiteral("ONBİRBİN Yeni Lira ")},
      {21000, QStringLiteral("YİRMİBİRBİN Yeni Lira ")},
      {100000, QStringLiteral("YÜZBİN Yeni Lira ")},
      {1000000, QStringLiteral("BİRMİLYON  Yeni Lira ")},
      {1001000, QStringLiteral("BİRMİLYON BİN Yeni Lira ")},
      {1234567.89,
       QStringLiteral(
           "BİRMİLYON İKİYÜZOTUZDÖRTBİNBEŞYÜZALTMIŞYEDİ Yeni Lira SEKSENDOKUZ Yeni Kuruş")},
      {0.5, QStringLiteral(" Yeni Lira ELLİ Yeni Kuruş")},
      {-5, QStringLiteral("Eksi BEŞ Yeni Lira ")},
      {0, QStringLiteral(" Yeni Lira ")},
      {12.996, QStringLiteral("ONİKİ Yeni Lira YÜZ Yeni Kuruş")},
      {1000000000000.0, QStringLiteral("BİRTRİLYON  Yeni Lira ")},
      {2001001001.0, QStringLiteral("İKİMİLYAR BİRMİLYON BİNBİR Yeni Lira ")},
      {999999999999999.0,
       QStringLiteral(
           "DOKUZYÜZDOKSANDOKUZTRİLYON DOKUZYÜZDOKSANDOKUZMİLYAR "
           "DOKUZYÜZDOKSANDOKUZMİLYON DOKUZYÜZDOKSANDOKUZBİNDOKUZYÜZDOKSANDOKUZ Yeni Lira ")},
  };
  for (const auto& [tutar, metin] : ornekler) EXPECT_EQ(YaziyaCevir(tutar), metin) << tutar;
}

TEST(Yaziyla, UcHane) {
  EXPECT_EQ(UcHaneYazi(0), QString());
  EXPECT_EQ(UcHaneYazi(-3), QString());
  EXPECT_EQ(UcHaneYazi(100), QStringLiteral("YÜZ"));
  EXPECT_EQ(UcHaneYazi(999), QStringLiteral("DOKUZYÜZDOKSANDOKUZ"));
  EXPECT_EQ(UcHaneYazi(40), QStringLiteral("KIRK"));
}

}  // namespace
