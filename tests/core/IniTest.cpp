// The settings file: reading and writing single values, bad files, and the
// loading of every setting.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/Genel.h"
#include "tests/support/Ortam.h"

using namespace Genel;
using namespace Qt::StringLiterals;

namespace {

class Ini : public test::Ortam {
 protected:
  void Yaz(const QByteArray& icerik) {
    QFile f(IniDosya);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(icerik);
  }
  QByteArray Oku() {
    QFile f(IniDosya);
    if (!f.open(QIODevice::ReadOnly)) return {};
    return f.readAll();
  }
  QString Deger(const char* b, const char* a, const char* v = "YOK") {
    return IniOku(IniDosya, QString::fromUtf8(b), QString::fromUtf8(a), QString::fromUtf8(v));
  }
};

TEST_F(Ini, DosyaYokkenVarsayilanlar) {
  ASSERT_FALSE(QFile::exists(IniDosya));
  EXPECT_EQ(Deger("Fatura", "Printer", "LPT2"), u"LPT2"_s);
  AyarOku();
  EXPECT_EQ(QList<int>({BasBosluk, SonBosluk, IlaveGun, IsimBas, TarihBas, TutarBas, DetayLimit}),
            QList<int>({11, 10, 3, 24, 59, 58, 22}));
  EXPECT_EQ(PrinterFatura + '|' + PrinterSozlesme, u"LPT2|LPT1"_s);
  EXPECT_EQ(QList<bool>({PulBedeli, Hesapla, MasrafGoster, DetayToplamYaz, Sayfabasi, HaftaSonu,
                         OrtalamaGun, SadeceGoster}),
            QList<bool>({true, true, true, true, false, false, false, false}));
  EXPECT_TRUE(SahipAdi.isEmpty());
}

TEST_F(Ini, OkumaKurallari) {
  Yaz("[fatura]\r\n"
      "  basbosluk = 12abc\r\n"
      "SonBosluk=abc\r\n"
      "Sayfabasi=5\r\n"
      "TarihBas=7.5\r\n"
      "TutarBas=99999\r\n"
      "satir esittir yok\r\n"
      "[Hesap]\r\n"
      "HaftaSonu=5\r\n"
      "[Sozlesme]\r\n"
      "DetayLimit=1\r\n"
      "Hesapla=2\r\n"
      "Printer=\\\\sunucu\\yazici\r\n"
      "[Kurulum]\r\n"
      "SahipAdi=Deniz Aksoy\r\n"
      "[FATURA]\r\n"
      "IsimBas=30");  // no final newline, second header of a section
  AyarOku();
  // Leading digits, names without regard to case, 7.5 rounded, cut at the
  // largest int16; only the first header of a section counts.
  EXPECT_EQ(QList<int>({BasBosluk, SonBosluk, TarihBas, TutarBas, DetayLimit, IsimBas}),
            QList<int>({12, 0, 8, 32767, 2, 24}));
  // On above 0 (Sayfabasi), at exactly 1 (HaftaSonu, Hesapla).
  EXPECT_EQ(QList<bool>({Sayfabasi, HaftaSonu, Hesapla}), QList<bool>({true, false, false}));
  EXPECT_EQ(PrinterSozlesme, u"\\\\sunucu\\yazici"_s);
  EXPECT_EQ(SahipAdi, u"Deniz Aksoy"_s);
}

TEST_F(Ini, YazmakDigerSatirlariKorur) {
  Yaz("; ofis ayarları\n[Fatura]\nPrinter=LPT3\n; not\nBasBosluk=4\n\n[Hesap]\nIlaveGun=2\n");
  IniYaz(IniDosya, u"FATURA"_s, u"basbosluk"_s, u"9"_s);
  IniYaz(IniDosya, u"Fatura"_s, u"SonBosluk"_s, u"3"_s);
  IniYaz(IniDosya, u"Yeni"_s, u"A"_s, u"x\r\ny"_s);
  EXPECT_EQ(Oku(), QByteArray("; ofis ayarları\n[Fatura]\nPrinter=LPT3\n; not\nbasbosluk=9\n"
                              "SonBosluk=3\n\n[Hesap]\nIlaveGun=2\n\n[Yeni]\nA=x  y\n"));
  EXPECT_EQ(Deger("Yeni", "a"), u"x  y"_s);
  EXPECT_EQ(Deger("Hesap", "IlaveGun"), u"2"_s);
  EXPECT_EQ(Deger("Hesap", "Yok"), u"YOK"_s);
  EXPECT_EQ(Deger("Yok", "IlaveGun"), u"YOK"_s);
}

TEST_F(Ini, BozukDosyalarOkunurVeYazilir) {
  QByteArray uzun(10000, 'x');
  Yaz("[Fatura]\r\nPrinter=" + uzun + "\r\n[Fatura]\r\nPrinter=ikinci\r\n=bos anahtar\r\n[Hesap");
  // The value buffer holds 254 characters.
  EXPECT_EQ(Deger("Fatura", "Printer").size(), 254);
  IniYaz(IniDosya, u"Hesap"_s, u"IlaveGun"_s, u"4"_s);
  // CRLF stays CRLF, and the file reads as before with the new value.
  const QByteArray b = Oku();
  EXPECT_TRUE(b.endsWith("\r\n"));
  EXPECT_FALSE(b.contains("\r\r"));
  EXPECT_EQ(Deger("Hesap", "IlaveGun"), u"4"_s);
  EXPECT_EQ(Deger("Fatura", "Printer").size(), 254);
  AyarOku();
  EXPECT_EQ(IlaveGun, 4);
}

TEST_F(Ini, YazilamayanDosyaSessizKalir) {
  const QString eski = IniDosya;
  IniDosya = ayarDizini() + u"/yok/olmayan/velmora.ini"_s;
  IniYaz(IniDosya, u"Fatura"_s, u"Printer"_s, u"X"_s);
  EXPECT_EQ(Deger("Fatura", "Printer", "LPT2"), u"LPT2"_s);
  EXPECT_TRUE(Mesajlar().isEmpty());
  IniDosya = eski;
}

}  // namespace
