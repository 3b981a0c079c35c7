// The printer: what a setting names, a file, a command, a device, places that
// can't be opened, and the pauses that only a device waits.

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
  using T = yazici::Hedef::Tur;
  const struct {
    const char* ayar;
    T tur;
    const char* yol;
  } vakalar[] = {
      {"LPT1", T::Dosya, "/dev/lp0"},
      {"lpt3:", T::Dosya, "/dev/lp2"},
      {"LPT4", T::Dosya, "LPT4"},
      {" |lp -d OKI -o raw ", T::Komut, "lp -d OKI -o raw"},
      {"/dev/usb/lp0", T::Dosya, "/dev/usb/lp0"},
      {"/tmp/fatura.prn", T::Dosya, "/tmp/fatura.prn"},
  };
  for (const auto& v : vakalar) {
    const yazici::Hedef h = yazici::Coz(QString::fromUtf8(v.ayar));
    EXPECT_EQ(h.tur, v.tur) << v.ayar;
    EXPECT_EQ(h.yol.toStdString(), v.yol) << v.ayar;
  }
}

// A file and a command get the bytes and never wait; a character device
// waits the pause out after what went before it.
TEST(Yazici, DosyaKomutVeAygit) {
  QTemporaryDir d;
  const QString dosya = d.filePath("fatura.prn"), boru = d.filePath("boru.prn");
  const struct {
    QString ayar, cikti;
    int bekleme;
  } vakalar[] = {{dosya, dosya, 0}, {"|cat > '" + boru + "'", boru, 0}, {"/dev/null", "", 1}};
  for (const auto& v : vakalar) {
    int bekleme = 0;
    EXPECT_EQ(yazici::Gonder(v.ayar, Akis(),
                             [&bekleme](int ms) {
                               EXPECT_EQ(ms, baski::kBekleme);
                               ++bekleme;
                             }),
              QString());
    EXPECT_EQ(bekleme, v.bekleme) << v.ayar.toStdString();
    if (!v.cikti.isEmpty()) {
      EXPECT_EQ(Oku(v.cikti), QByteArray("BIR\r\n\x0c\r\n\x98K\x98\r\n"));
    }
  }
  // A file is written anew each time, readable by its owner only.
  EXPECT_EQ(yazici::Gonder(dosya, baski::Akis::Calistir([](baski::Akis& a) { a.Satir("X"); })),
            QString());
  EXPECT_EQ(Oku(dosya), QByteArray("X\r\n"));
  EXPECT_EQ(QFile::permissions(dosya) & (QFile::ReadGroup | QFile::ReadOther), 0);
}

TEST(Yazici, GonderilemeyenYerNedeniyle) {
  QTemporaryDir d;
  const QString klasor = d.filePath("yok/fatura.prn"), kapali = d.filePath("kapali.prn");
  QFile(kapali).open(QIODevice::WriteOnly);
  ::chmod(QFile::encodeName(kapali).constData(), 0400);
  const struct {
    QString ayar, neden;
  } vakalar[] = {
      // A device that isn't there never becomes a plain file.
      {"/dev/velmora-yok", "Yazıcı açılamadı (/dev/velmora-yok): böyle bir dosya ya da dizin yok"},
      {klasor, "Yazıcı açılamadı (" + klasor + "): böyle bir dosya ya da dizin yok"},
      {d.path(), "Yazıcı açılamadı (" + d.path() + "): bu bir dizin"},
      {"", "Yazıcı tanımlı değil."},
      {"|exit 3", "Yazdırma komutu başarısız oldu (exit 3), çıkış kodu 3."},
      {"|", "Yazdırma komutu boş."},
      // Without permission (root may write anywhere).
      {::geteuid() ? kapali : "", ::geteuid() ? "Yazıcı açılamadı (" + kapali + "): erişim izni yok"
                                              : "Yazıcı tanımlı değil."},
  };
  for (const auto& v : vakalar) EXPECT_EQ(yazici::Gonder(v.ayar, Akis()), v.neden);
  EXPECT_FALSE(QFile::exists("/dev/velmora-yok"));
  // A command that isn't there: the shell's reason follows.
  const QString yok = yazici::Gonder("|velmora-olmayan-komut -x", Akis());
  EXPECT_TRUE(yok.startsWith(
      "Yazdırma komutu başarısız oldu (velmora-olmayan-komut -x), çıkış kodu 127.\n"))
      << yok.toStdString();
  EXPECT_TRUE(yok.contains("not found")) << yok.toStdString();
}

}  // namespace
