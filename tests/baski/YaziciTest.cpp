// The printer: what a setting names, a file, a command, a device that isn't
// there, a folder that isn't there, and the pauses that only a device waits.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>

#include "core/Yazici.h"

namespace {

QByteArray Oku(const QString& yol) {
  QFile f(yol);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("(yok)");
}

baski::Sonuc Akis() {
  return baski::Akis::Calistir([](baski::Akis& a) {
    a.Satir("BIR");
    a.Bayt(baski::kSayfa);
    a.Bekle();
    a.Satir(baski::Cevir(QStringLiteral("İKİ")));
  });
}

TEST(Yazici, AyarinGosterdigiYer) {
  struct Vaka {
    const char* ayar;
    yazici::Hedef::Tur tur;
    const char* yol;
  };
  const Vaka vakalar[] = {
      {"LPT1", yazici::Hedef::Tur::Dosya, "/dev/lp0"},
      {"lpt3:", yazici::Hedef::Tur::Dosya, "/dev/lp2"},
      {"LPT4", yazici::Hedef::Tur::Dosya, "LPT4"},
      {" |lp -d OKI -o raw ", yazici::Hedef::Tur::Komut, "lp -d OKI -o raw"},
      {"/dev/usb/lp0", yazici::Hedef::Tur::Dosya, "/dev/usb/lp0"},
      {"/tmp/fatura.prn", yazici::Hedef::Tur::Dosya, "/tmp/fatura.prn"},
  };
  for (const Vaka& v : vakalar) {
    const yazici::Hedef h = yazici::Coz(QString::fromUtf8(v.ayar));
    EXPECT_EQ(h.tur, v.tur) << v.ayar;
    EXPECT_EQ(h.yol.toStdString(), v.yol) << v.ayar;
  }
}

TEST(Yazici, DosyayaYazarBeklemez) {
  QTemporaryDir d;
  const QString yol = d.filePath(QStringLiteral("fatura.prn"));
  int bekleme = 0;
  const auto say = [&bekleme](int) { ++bekleme; };
  EXPECT_EQ(yazici::Gonder(yol, Akis(), say), QString());
  EXPECT_EQ(Oku(yol), QByteArray("BIR\r\n\x0c\r\n\x98K\x98\r\n"));
  EXPECT_EQ(bekleme, 0);  // a file is no printer
  // Written anew each time, readable by its owner only.
  EXPECT_EQ(yazici::Gonder(yol, baski::Akis::Calistir([](baski::Akis& a) { a.Satir("X"); }), say),
            QString());
  EXPECT_EQ(Oku(yol), QByteArray("X\r\n"));
  EXPECT_EQ(QFile::permissions(yol) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST(Yazici, KomutaGirdiOlarak) {
  QTemporaryDir d;
  const QString yol = d.filePath(QStringLiteral("boru.prn"));
  EXPECT_EQ(yazici::Gonder(QStringLiteral("|cat > '%1'").arg(yol), Akis()), QString());
  EXPECT_EQ(Oku(yol), QByteArray("BIR\r\n\x0c\r\n\x98K\x98\r\n"));
  // A command that isn't there, and one that fails: the reason.
  const QString yok = yazici::Gonder(QStringLiteral("|velmora-olmayan-komut -x"), Akis());
  EXPECT_TRUE(yok.startsWith(QStringLiteral(
      "Yazdırma komutu başarısız oldu (velmora-olmayan-komut -x), çıkış kodu 127.\n")))
      << yok.toStdString();
  EXPECT_TRUE(yok.contains(QStringLiteral("not found"))) << yok.toStdString();
  EXPECT_EQ(yazici::Gonder(QStringLiteral("|exit 3"), Akis()),
            QStringLiteral("Yazdırma komutu başarısız oldu (exit 3), çıkış kodu 3."));
  EXPECT_EQ(yazici::Gonder(QStringLiteral("|"), Akis()), QStringLiteral("Yazdırma komutu boş."));
}

TEST(Yazici, AcilamayanYerler) {
  QTemporaryDir d;
  // A device that isn't there never becomes a plain file.
  EXPECT_EQ(yazici::Gonder(QStringLiteral("/dev/velmora-yok"), Akis()),
            QStringLiteral("Yazıcı açılamadı (/dev/velmora-yok): böyle bir dosya ya da dizin yok"));
  EXPECT_FALSE(QFile::exists(QStringLiteral("/dev/velmora-yok")));
  const QString klasor = d.filePath(QStringLiteral("yok/fatura.prn"));
  EXPECT_EQ(yazici::Gonder(klasor, Akis()),
            QStringLiteral("Yazıcı açılamadı (%1): böyle bir dosya ya da dizin yok").arg(klasor));
  EXPECT_EQ(yazici::Gonder(d.path(), Akis()),
            QStringLiteral("Yazıcı açılamadı (%1): bu bir dizin").arg(d.path()));
  EXPECT_EQ(yazici::Gonder(QString(), Akis()), QStringLiteral("Yazıcı tanımlı değil."));
  // Without permission (root may write anywhere).
  if (::geteuid() != 0) {
    const QString kapali = d.filePath(QStringLiteral("kapali.prn"));
    QFile(kapali).open(QIODevice::WriteOnly);
    ::chmod(QFile::encodeName(kapali).constData(), 0400);
    EXPECT_EQ(yazici::Gonder(kapali, Akis()),
              QStringLiteral("Yazıcı açılamadı (%1): erişim izni yok").arg(kapali));
  }
}

TEST(Yazici, AygitBeklemeyleYazar) {
  // /dev/null is a character device: the pause is waited out there, and
  // what went before it was written first.
  if (!QFile::exists(QStringLiteral("/dev/null"))) GTEST_SKIP();
  int bekleme = 0;
  EXPECT_EQ(yazici::Gonder(QStringLiteral("/dev/null"), Akis(),
                           [&bekleme](int ms) {
                             EXPECT_EQ(ms, baski::kBekleme);
                             ++bekleme;
                           }),
            QString());
  EXPECT_EQ(bekleme, 1);
}

}  // namespace
