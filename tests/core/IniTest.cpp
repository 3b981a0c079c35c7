// The settings file: reading and writing single values, bad files, and the
// loading of every setting.

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/Genel.h"
#include "tests/support/Ortam.h"

using namespace Genel;

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
  EXPECT_EQ(Deger("Fatura", "Printer", "LPT2"), QStringLiteral("LPT2"));
  AyarOku();
  EXPECT_EQ(BasBosluk, 11);
  EXPECT_EQ(SonBosluk, 10);
  EXPECT_EQ(IlaveGun, 3);
  EXPECT_EQ(IsimBas, 24);
  EXPECT_EQ(TarihBas, 59);
  EXPECT_EQ(TutarBas, 58);
  EXPECT_EQ(DetayLimit, 22);
  EXPECT_EQ(PrinterFatura, QStringLiteral("LPT2"));
  EXPECT_EQ(PrinterSozlesme, QStringLiteral("LPT1"));
  EXPECT_TRUE(PulBedeli);
  EXPECT_TRUE(Hesapla);
  EXPECT_TRUE(MasrafGoster);
  EXPECT_TRUE(DetayToplamYaz);
  EXPECT_FALSE(Sayfabasi);
  EXPECT_FALSE(HaftaSonu);
  EXPECT_FALSE(OrtalamaGun);
  EXPECT_FALSE(SadeceGoster);
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
  EXPECT_EQ(BasBosluk, 12);  // leading digits; names without regard to case
  EXPECT_EQ(SonBosluk, 0);
  EXPECT_TRUE(Sayfabasi);    // on above 0
  EXPECT_FALSE(HaftaSonu);   // on at exactly 1
  EXPECT_FALSE(Hesapla);
  EXPECT_EQ(TarihBas, 8);
  EXPECT_EQ(TutarBas, 32767);
  EXPECT_EQ(DetayLimit, 2);
  EXPECT_EQ(IsimBas, 24);  // only the first header of a section counts
  EXPECT_EQ(PrinterSozlesme, QStringLiteral("\\\\sunucu\\yazici"));
  EXPECT_EQ(SahipAdi, QStringLiteral("Deniz Aksoy"));
}

TEST_F(Ini, YazmakDigerSatirlariKorur) {
  Yaz("; ofis ayarları\n[Fatura]\nPrinter=LPT3\n; not\nBasBosluk=4\n\n[Hesap]\nIlaveGun=2\n");
  IniYaz(IniDosya, QStringLiteral("FATURA"), QStringLiteral("basbosluk"), QStringLiteral("9"));
  IniYaz(IniDosya, QStringLiteral("Fatura"), QStringLiteral("SonBosluk"), QStringLiteral("3"));
  IniYaz(IniDosya, QStringLiteral("Yeni"), QStringLiteral("A"), QStringLiteral("x\r\ny"));
  EXPECT_EQ(Oku(),
            QByteArray("; ofis ayarları\n[Fatura]\nPrinter=LPT3\n; not\nbasbosluk=9\n"
                       "SonBosluk=3\n\n[Hesap]\nIlaveGun=2\n\n[Yeni]\nA=x  y\n"));
  EXPECT_EQ(Deger("Yeni", "a"), QStringLiteral("x  y"));
  EXPECT_EQ(Deger("Hesap", "IlaveGun"), QStringLiteral("2"));
  EXPECT_EQ(Deger("Hesap", "Yok"), QStringLiteral("YOK"));
  EXPECT_EQ(Deger("Yok", "IlaveGun"), QStringLiteral("YOK"));
}

TEST_F(Ini, BozukDosyalarOkunurVeYazilir) {
  QByteArray uzun(10000, 'x');
  Yaz("[Fatura]\r\nPrinter=" + uzun + "\r\n[Fatura]\r\nPrinter=ikinci\r\n=bos anahtar\r\n[Hesap");
  // The value buffer holds 254 characters.
  EXPECT_EQ(Deger("Fatura", "Printer").size(), 254);
  IniYaz(IniDosya, QStringLiteral("Hesap"), QStringLiteral("IlaveGun"), QStringLiteral("4"));
  // CRLF stays CRLF, and the file reads as before with the new value.
  const QByteArray b = Oku();
  EXPECT_TRUE(b.endsWith("\r\n"));
  EXPECT_FALSE(b.contains("\r\r"));
  EXPECT_EQ(Deger("Hesap", "IlaveGun"), QStringLiteral("4"));
  EXPECT_EQ(Deger("Fatura", "Printer").size(), 254);
  AyarOku();
  EXPECT_EQ(IlaveGun, 4);
}

TEST_F(Ini, YazilamayanDosyaSessizKalir) {
  const QString eski = IniDosya;
  IniDosya = ayarDizini() + QStringLiteral("/yok/olmayan/velmora.ini");
  IniYaz(IniDosya, QStringLiteral("Fatura"), QStringLiteral("Printer"), QStringLiteral("X"));
  EXPECT_EQ(Deger("Fatura", "Printer", "LPT2"), QStringLiteral("LPT2"));
  EXPECT_TRUE(Mesajlar().isEmpty());
  IniDosya = eski;
}

}  // namespace
