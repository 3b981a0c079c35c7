// The bordro: the figures of each line against the contract's totals, the
// sums over unrounded values, the labels from the screen, and the PDF.

#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <vector>

#include "contract/Faiz.h"
#include "contract/rptBordro.h"
#include "core/Genel.h"
#include "tests/support/Ortam.h"

namespace {

// Text of a PDF as pdftotext lays it out, or a null string when it is missing.
QString PdfMetni(const QString& yol) {
  const QString arac = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
  if (arac.isEmpty()) return QString();
  QProcess p;
  p.start(arac, {QStringLiteral("-layout"), QStringLiteral("-enc"), QStringLiteral("UTF-8"), yol,
                 QStringLiteral("-")});
  EXPECT_TRUE(p.waitForFinished(30000));
  EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  return QString::fromUtf8(p.readAllStandardOutput());
}

// The first line of a text that starts with `bas`, with runs of blanks made one.
QString Satiri(const QString& metin, const QString& bas) {
  for (const QString& s : metin.split(QLatin1Char('\n')))
    if (s.simplified().startsWith(bas)) return s.simplified();
  return QString();
}

class BordroTest : public test::Ortam {
 protected:
  void SetUp() override {
    test::Ortam::SetUp();
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum) VALUES "
                       "(1, 'Yılmaz', 'Ali', 'Veli', 1), (2, 'Demir', 'Ayşe', NULL, 2)"));
  }
  void TearDown() override {
    Genel::HaftaSonu = false;
    test::Ortam::TearDown();
  }

  static void Sozlesme(qint64 id, qint64 musteri, const char* tarih, const QVariant& ilaveGun,
                       const QVariant& faizOran) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, "
                       "Tarih, ilaveGun, FaizOran) VALUES (?, 'A', ?, ?, ?, ?, ?)"),
        {id, id, musteri, QString::fromLatin1(tarih), ilaveGun, faizOran});
  }

  static void Satir(qint64 id, const char* tip, const char* kesideci, const QVariant& vadesi,
                    const QVariant& gun, double meblag) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, "
                       "Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag) "
                       "VALUES (?, 'A', ?, ?, ?, 'Garanti', 'Kadıköy', 'H-1', 'Ç-9', ?, ?, ?, ?)"),
        {id, id, QString::fromUtf8(tip), QString::fromUtf8(kesideci), vadesi, vadesi, gun, meblag});
  }

  // The lines of a contract as the contract screen's totals read them.
  static std::vector<faiz::Satir> Satirlar(qint64 id) {
    std::vector<faiz::Satir> v;
    db::Kayitlar rs = Genel::Baglanti.Sorgu(
        QStringLiteral("SELECT * FROM SozlesmeDetay WHERE SozlesmeID = ? ORDER BY GirisNo"), {id});
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
      v.push_back({QDate::fromString(rs.Metin(QStringLiteral("Vadesi")), Qt::ISODate),
                   rs.Fields(QStringLiteral("Gun")).toLongLong(),
                   rs.Fields(QStringLiteral("Meblag")).toDouble(),
                   rs.Metin(QStringLiteral("CekNo")), rs.Metin(QStringLiteral("Kesideci"))});
    return v;
  }

  static contract::BordroEtiketleri Etiketler() {
    contract::BordroEtiketleri e;
    e.Musteri = QStringLiteral("Ali Yılmaz");
    e.FaizOran = QStringLiteral("4,5");  // typed, not the stored rate
    e.Seri = QStringLiteral("A");
    e.SozlesmeNo = QStringLiteral("2");
    e.Tarih = QStringLiteral("10.01.2024");
    e.OrtGun = 52.5;
    return e;
  }

  // Friday 4 March 2005, ilaveGun 3, rate 5: lines due on Saturday, on Sunday
  // (with a Null Gun), on Saturday with an override of 30, a month later, and
  // one without a due date.
  void HaftaSonuSozlesmesi() {
    Sozlesme(1, 1, "2005-03-04", 3, 5);
    Satir(1, "Çek", "Şükrü Öğün", QStringLiteral("2005-03-05"), 0, 1000);
    Satir(1, "Çek", "O'Brien", QStringLiteral("2005-03-06"), QVariant(), 2000);
    Satir(1, "Senet", "Ali Yılmaz", QStringLiteral("2005-03-05"), 30, 1500);
    Satir(1, "Çek", "Can", QStringLiteral("2005-04-04"), 0, 1234.56);
    Satir(1, "Senet", "Can", QVariant(), 0, 100);
  }
};

TEST_F(BordroTest, SatirRakamlariSozlesmeToplamlariylaAyni) {
  HaftaSonuSozlesmesi();
  Sozlesme(2, 1, "2005-03-04", 3, 5);  // another contract: none of its lines may show
  Satir(2, "Çek", "Başka", QStringLiteral("2005-03-07"), 0, 999);

  for (const bool haftaSonu : {false, true}) {
    SCOPED_TRACE(haftaSonu ? "HaftaSonu on" : "HaftaSonu off");
    Genel::HaftaSonu = haftaSonu;
    const contract::Bordro b = contract::BordroVerisi(1);
    ASSERT_EQ(b.satirlar.size(), 5);

    // Saturday +2, Sunday +1 only with the setting; an override stays as it is.
    const std::vector<std::optional<qint64>> gunler =
        haftaSonu ? std::vector<std::optional<qint64>>{6, 6, 30, 34, std::nullopt}
                  : std::vector<std::optional<qint64>>{4, 5, 30, 34, std::nullopt};
    for (int i = 0; i < 5; ++i) {
      const contract::BordroSatiri& s = b.satirlar[i];
      SCOPED_TRACE(s.Kesideci.toStdString());
      EXPECT_EQ(s.Gunu, gunler[i]);
      ASSERT_TRUE(s.Meblag);
      if (!gunler[i]) {
        EXPECT_FALSE(s.Faiz);
        EXPECT_FALSE(s.Odenecek);
        continue;
      }
      ASSERT_TRUE(s.Faiz && s.Odenecek);
      EXPECT_DOUBLE_EQ(*s.Faiz, *s.Meblag * double(*gunler[i]) * 5 / 3000);
      EXPECT_EQ(*s.Odenecek, *s.Meblag - *s.Faiz);
    }
    EXPECT_EQ(b.satirlar[1].Kesideci, "O'Brien");
    EXPECT_EQ(b.satirlar[0].Vadesi, QDate(2005, 3, 5));
    EXPECT_FALSE(b.satirlar[4].Vadesi.isValid());
    EXPECT_EQ(b.kayitlar.Metin(QStringLiteral("Musteri")), "Ali Yılmaz");

    // With the stored rate and date on screen, the contract's totals are the
    // bordro's sums, to the last bit.
    faiz::Girdi g;
    g.Tarih = QDate(2005, 3, 4);
    g.FaizOran = 5;
    g.ilaveGun = 3;
    g.HaftaSonu = haftaSonu;
    const std::vector<faiz::Satir> satirlar = Satirlar(1);
    const faiz::Sonuc t = faiz::TutarHesap(g, satirlar);
    EXPECT_EQ(b.ToplamFaiz, t.Rakamlar.ToplamFaiz);
    EXPECT_EQ(b.ToplamMeblag, t.Rakamlar.Toplam);
    // The line without a due date has no payable amount of its own.
    EXPECT_NEAR(b.ToplamOdenecek, 5834.56 - 100 - b.ToplamFaiz, 1e-9);
  }
}

TEST_F(BordroTest, SakliOranVeTarihKullanilirBosDegerlerSifirSayilir) {
  // An old contract without ilaveGun and rate: both count as 0, as the
  // contract screen shows them; the day count still follows the dates.
  Sozlesme(3, 2, "2024-01-10", QVariant(), QVariant());
  Satir(3, "Çek", "Can", QStringLiteral("2024-01-20"), 0, 500);
  contract::Bordro b = contract::BordroVerisi(3);
  ASSERT_EQ(b.satirlar.size(), 1);
  EXPECT_EQ(b.satirlar[0].Gunu, 10);
  EXPECT_EQ(b.satirlar[0].Faiz, 0.0);
  EXPECT_EQ(b.satirlar[0].Odenecek, 500.0);
  // A name part that is Null counts as empty in the statement's name.
  EXPECT_EQ(b.kayitlar.Metin(QStringLiteral("Musteri")), "Demir Ayşe ");

  // A contract of someone not in the register, or none at all: no rows.
  Sozlesme(4, 99, "2024-01-10", 3, 5);
  Satir(4, "Çek", "Can", QStringLiteral("2024-01-20"), 0, 500);
  EXPECT_EQ(contract::BordroVerisi(4).satirlar.size(), 0);
  b = contract::BordroVerisi(5);
  EXPECT_EQ(b.satirlar.size(), 0);
  EXPECT_EQ(b.ToplamMeblag + b.ToplamFaiz + b.ToplamOdenecek, 0);
}

TEST_F(BordroTest, ToplamlarYuvarlanmamisDegerlerdenPdfMetni) {
  // Three lines with an interest of a third each: rounded one by one they
  // would add to 0,99 and 299,01.
  Sozlesme(2, 1, "2024-01-10", 3, 1);
  for (int i = 0; i < 3; ++i) Satir(2, "Çek", "Şükrü Öğün", QStringLiteral("2024-01-20"), 10, 100);
  const contract::Bordro b = contract::BordroVerisi(2);
  EXPECT_DOUBLE_EQ(b.ToplamFaiz, 1.0);
  EXPECT_DOUBLE_EQ(b.ToplamOdenecek, 299.0);

  const rapor::Rapor r = contract::rptBordro(b, Etiketler());
  QStringList etiketler;
  for (const rapor::Yazi& y : r.sayfaBasligi.yazilar) etiketler << y.metin;
  for (const char* e : {"Müşteri:   Ali Yılmaz", "Faiz Oranı:   4,5", "Sözleşme No: A 2",
                        "Tarih: 10.01.2024", "Alınan Belgeler:"})
    EXPECT_TRUE(etiketler.contains(QString::fromUtf8(e))) << e;
  EXPECT_EQ(rapor::SayfaSayisi(r), 1);

  QTemporaryDir dizin;
  const QString yol = dizin.filePath(QStringLiteral("bordro.pdf"));
  ASSERT_TRUE(rapor::PdfYaz(r, yol));
  const QString metin = PdfMetni(yol);
  if (metin.isNull()) GTEST_SKIP() << "pdftotext is not installed";
  EXPECT_EQ(Satiri(metin, QStringLiteral("Tip ")),
            "Tip Keşideci Banka Şube Hesapno Çekno Tarih Gün Tutar Faiz Ödenecek");
  EXPECT_EQ(Satiri(metin, QStringLiteral("Çek ")),
            "Çek Şükrü Öğün Garanti Kadıköy H-1 Ç-9 20.01.2024 10 100,00 0,33 99,67");
  EXPECT_EQ(Satiri(metin, QStringLiteral("Ortalama ve Toplam:")),
            "Ortalama ve Toplam: 52,50 300,00 1,00 299,00");
  EXPECT_EQ(Satiri(metin, QStringLiteral("Ortalama Gün:")), "Ortalama Gün: 52,50");
  EXPECT_EQ(Satiri(metin, QStringLiteral("Faiz Tutarı:")), "Faiz Tutarı: 1,00");
  EXPECT_EQ(Satiri(metin, QStringLiteral("Ödenecek:")), "Ödenecek: 299,00");
  EXPECT_EQ(Satiri(metin, QStringLiteral("Toplam:")), "Toplam: 300,00");
  EXPECT_TRUE(metin.contains(QStringLiteral("Sözleşme No: A 2")));
  EXPECT_TRUE(metin.contains(QStringLiteral("Tarih: 10.01.2024")));
}

TEST_F(BordroTest, EnCokSatirliSozlesmeTekSayfadaSorguIndeksle) {
  // DetayLimit's default of 22 lines and the footer fit one page.
  Sozlesme(6, 1, "2024-01-10", 3, 5);
  for (int i = 0; i < 22; ++i)
    Satir(6, "Çek", "Can", QDate(2024, 2, 1).addDays(i).toString(Qt::ISODate), 0, 1000 + i);
  const contract::Bordro b = contract::BordroVerisi(6);
  ASSERT_EQ(b.satirlar.size(), 22);
  EXPECT_EQ(rapor::SayfaSayisi(contract::rptBordro(b, Etiketler())), 1);

  // The contract by its key and its lines through their index: no table scan.
  db::Kayitlar plan = Genel::Baglanti.Sorgu(
      QStringLiteral("EXPLAIN QUERY PLAN ") + QString::fromLatin1(contract::kBordroSorgusu), {6});
  QStringList adimlar;
  for (plan.MoveFirst(); !plan.Eof(); plan.MoveNext())
    adimlar << plan.Metin(QStringLiteral("detail"));
  const QString p = adimlar.join(QStringLiteral(" | "));
  EXPECT_TRUE(p.contains(QStringLiteral("USING INDEX SozlesmeDetay_Sozlesme"))) << p.toStdString();
  EXPECT_FALSE(p.contains(QStringLiteral("SCAN"))) << p.toStdString();
}

}  // namespace
