// The CSV files of the grids, byte for byte: one case a pair of files under
// csv/ (NAME.girdi, the captions and rows as JSON arrays of texts, and
// NAME.beklenen, the exact bytes), and the same file from a record set.

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "core/Genel.h"
#include "reports/Csv.h"
#include "tests/support/Ortam.h"

namespace {

QByteArray Oku(const QString& yol) {
  QFile f(yol);
  EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << yol.toStdString();
  return f.readAll();
}

TEST(Csv, Durumlar) {
  const QDir dizin(QStringLiteral(VELMORA_CSV_VERISI));
  const QStringList durumlar = dizin.entryList({QStringLiteral("*.girdi")}, QDir::Files);
  ASSERT_GE(durumlar.size(), 3);
  for (const QString& girdi : durumlar) {
    const QString ad = girdi.chopped(6);
    SCOPED_TRACE(ad.toStdString());
    const QJsonArray satirlar = QJsonDocument::fromJson(Oku(dizin.filePath(girdi))).array();
    ASSERT_FALSE(satirlar.isEmpty());
    QVector<QStringList> govde;
    for (const auto& satir : satirlar) {
      govde << QStringList();
      for (const auto& v : satir.toArray()) govde.last() << v.toString();
    }
    const QStringList basliklar = govde.takeFirst();
    const QByteArray yazilan = csv::Yaz(basliklar, govde);
    const QByteArray beklenen = Oku(dizin.filePath(ad + QStringLiteral(".beklenen")));
    EXPECT_EQ(yazilan, beklenen) << yazilan.toHex(' ').toStdString() << "\nbeklenen\n"
                                 << beklenen.toHex(' ').toStdString();
  }
}

class CsvKayit : public test::Ortam {};

// From a record set: numbers rounded half away from zero in the Turkish form,
// dates as the screen writes them, Null empty, the set's present order; the
// regional signs followed when they change.
TEST_F(CsvKayit, KayitlardanYazar) {
  Genel::Baglanti.Calistir(QStringLiteral(
      "CREATE TABLE T (Ad TEXT, Tutar REAL, Tarih TEXT); INSERT INTO T VALUES "
      "('Şule', 1234.565, '2026-01-05'), (NULL, -0.005, NULL), ('Ayşe', 1e9, '2000-02-29')"));
  db::Kayitlar rs = Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM T"));
  rs.Sort(QStringLiteral("Ad"));
  using B = csv::Sutun::Bicim;
  const QVector<csv::Sutun> sutunlar{{"Tarih", "Tarih", B::Tarih},
                                     {"Ad", "Ad; Soyad", B::Duz},
                                     {"Tutar", "Tutar", B::Sayi, 2, true},
                                     {"Yok", "Yok", B::Duz}};
  EXPECT_EQ(csv::Yaz(rs, sutunlar), QByteArray("\xef\xbb\xbfTarih;\"Ad; Soyad\";Tutar;Yok\r\n"
                                               ";;-0,01;\r\n"
                                               "29.02.2000;Ayşe;1.000.000.000,00;\r\n"
                                               "05.01.2026;Şule;1.234,57;\r\n"));
  Genel::Bolge().ondalik = QLatin1Char('.');
  Genel::Bolge().binlik = QLatin1Char(',');
  EXPECT_TRUE(csv::Yaz(rs, sutunlar).contains("1,234.57"));
}

TEST_F(CsvKayit, KaydetYerineKoyarYazamazsaSoyler) {
  QTemporaryDir d;
  const QString yol = d.filePath(QStringLiteral("a.csv"));
  ASSERT_TRUE(csv::Kaydet(yol, "eski uzun içerik"));
  ASSERT_TRUE(csv::Kaydet(yol, "yeni"));
  EXPECT_EQ(Oku(yol), QByteArray("yeni"));
  QString hata;
  EXPECT_FALSE(csv::Kaydet(d.filePath(QStringLiteral("yok/a.csv")), "x", &hata));
  EXPECT_FALSE(hata.isEmpty());
}

}  // namespace
