// The transfer of a period, case by case. Each file under durumlar/ holds the
// rows of a small office, the period and limit, and what must come out: the
// file byte for byte, the list of faults, the summary and the rate warnings.
//
// Sections of a case file, each under its own header line:
//   [ayar]     bas=AA.YYYY  son=AA.YYYY  limit=...  bugun=GG.AA.YYYY
//   [sql]      statements run on a new database (the firm row is there)
//   [dosya]    the expected transfer file, a line each (CR LF is added)
//   [hatalar]  the expected HataliKayit.txt; without it the file must not exist
//   [ozet]     the summary, a line each
//   [kur]      the rate warnings, a line each
// In the expected texts "␠" stands for a blank that ends a line.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QTemporaryDir>

#include "core/Genel.h"
#include "tests/support/Ortam.h"
#include "transfer/MaliyeAktarim.h"

namespace {

// The settings, and each other section's lines.
struct Durum {
  QMap<QString, QString> ayar;
  QMap<QString, QStringList> bolum;
};

Durum Oku(const QString& yol) {
  QFile f(yol);
  Durum d;
  QString ad;
  for (QString s :
       f.open(QIODevice::ReadOnly) ? QString::fromUtf8(f.readAll()).split('\n') : QStringList()) {
    if (s.endsWith('\r')) s.chop(1);
    if (s.startsWith('[') && s.endsWith(']')) {
      d.bolum[ad = s.mid(1, s.size() - 2)];
    } else if (ad == "ayar" && s.indexOf('=') > 0) {
      d.ayar[s.section('=', 0, 0).trimmed()] = s.section('=', 1).trimmed();
    } else if (!ad.isEmpty() && ad != "ayar") {  // not the description
      d.bolum[ad] << s.replace("␠", " ");
    }
  }
  // The blank lines that close a section are no part of it.
  for (auto& b : d.bolum)
    while (!b.isEmpty() && b.last().isEmpty()) b.removeLast();
  return d;
}

QByteArray Satirlar(const QStringList& l) {
  QByteArray b;
  for (const QString& s : l) b += s.toUtf8() + "\r\n";
  return b;
}

// The first line where the two differ, for the failure message.
std::string IlkFark(const QByteArray& beklenen, const QByteArray& gercek) {
  const QList<QByteArray> a = beklenen.split('\n'), b = gercek.split('\n');
  for (qsizetype i = 0; i < std::max(a.size(), b.size()); ++i) {
    const QByteArray x = i < a.size() ? a[i] : QByteArray("(yok)");
    const QByteArray y = i < b.size() ? b[i] : QByteArray("(yok)");
    if (x != y)
      return "satır " + std::to_string(i + 1) + ":\n  beklenen: [" + x.toStdString() +
             "]\n  çıkan:    [" + y.toStdString() + "]";
  }
  return "aynı";
}

class Aktarim : public test::Ortam, public ::testing::WithParamInterface<QString> {};

TEST_P(Aktarim, Durum) {
  const Durum d = Oku(QStringLiteral(VELMORA_DURUMLAR "/") + GetParam());
  ASSERT_TRUE(d.bolum.contains("dosya")) << "durum dosyası okunamadı";
  const QString sql = d.bolum.value("sql").join(QLatin1Char('\n'));
  if (!sql.trimmed().isEmpty()) Genel::Baglanti.Calistir(sql);

  QTemporaryDir klasor;
  aktarim::Istek istek;
  const QString bas = d.ayar.value("bas"), son = d.ayar.value("son");
  istek.bas = aktarim::DonemBasi(bas.left(2).toInt(), bas.mid(3).toInt());
  istek.son = aktarim::DonemSonu(son.left(2).toInt(), son.mid(3).toInt());
  istek.limit = aktarim::LimitKurali(Genel::SayiOku(d.ayar.value("limit", "10000")));
  istek.bugun = Genel::TarihOku(d.ayar.value("bugun"));
  istek.klasor = klasor.path();
  int sonIlerleme = 0;
  aktarim::Geri geri;
  geri.ilerleme = [&](int n) {
    EXPECT_EQ(n, sonIlerleme + 1);
    sonIlerleme = n;
  };
  const aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, istek, geri);

  QFile xml(QDir(klasor.path()).filePath("Velmora.xml"));
  ASSERT_TRUE(xml.open(QIODevice::ReadOnly));
  const QByteArray beklenen = Satirlar(d.bolum.value("dosya")), cikan = xml.readAll();
  EXPECT_TRUE(beklenen == cikan) << IlkFark(beklenen, cikan);

  QFile hata(QDir(klasor.path()).filePath("HataliKayit.txt"));
  if (d.bolum.contains("hatalar")) {
    ASSERT_TRUE(hata.open(QIODevice::ReadOnly)) << "HataliKayit.txt yazılmadı";
    // The entries with their line ends, then the print line's own.
    const QByteArray b = Satirlar(d.bolum.value("hatalar")) + "\r\n", c = hata.readAll();
    EXPECT_TRUE(b == c) << IlkFark(b, c);
  } else {
    EXPECT_FALSE(hata.exists()) << "hata listesi boş olmalı";
  }
  if (d.bolum.contains("ozet")) {
    EXPECT_EQ(s.ozet, d.bolum.value("ozet").join("\r\n"));
  }
  EXPECT_EQ(s.kurUyarilari, d.bolum.value("kur"));
  EXPECT_EQ(s.semaHatasi, "") << "şemaya uymuyor";
  EXPECT_EQ(sonIlerleme, s.yapilan);
  EXPECT_EQ(s.yapilan, s.kayitToplam);
}

INSTANTIATE_TEST_SUITE_P(
    Dosyalar, Aktarim,
    ::testing::ValuesIn(QDir(VELMORA_DURUMLAR).entryList({"*.txt"}, QDir::Files, QDir::Name)),
    [](const ::testing::TestParamInfo<QString>& i) {
      return i.param.chopped(4).replace(QRegularExpression("[^A-Za-z0-9]"), "_").toStdString();
    });

}  // namespace
