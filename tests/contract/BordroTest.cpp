// The bordro: the figures of each line against the contract's totals, the
// sums over unrounded values, the labels from the screen, and the PDF.

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <vector>

#include "contract/Faiz.h"
#include "contract/rptBordro.h"
#include "core/Genel.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

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

QString Sayi(const std::optional<double>& d) {
  return d ? QString::number(*d, 'f', 2) : QStringLiteral("-");
}

// The lines of a bordro, one text each: drawer, due date, days, amount,
// interest and payable amount (to the cent), "-" for none.
QString Satirlari(const contract::Bordro& b) {
  QStringList l;
  for (const contract::BordroSatiri& s : b.satirlar)
    l << QStringLiteral("%1|%2|%3|%4|%5|%6")
             .arg(s.Kesideci, s.Vadesi.toString(Qt::ISODate),
                  s.Gunu ? QString::number(*s.Gunu) : QStringLiteral("-"), Sayi(s.Meblag),
                  Sayi(s.Faiz), Sayi(s.Odenecek));
  return l.join(QLatin1Char('\n'));
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

  static void Sozlesme(qint64 id, qint64 musteri, const char* tarih, const QVariant& ilaveGun = 3,
                       const QVariant& faizOran = 5) {
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

  static contract::BordroEtiketleri Etiketler() {
    // The typed rate, not the stored one.
    return {.Musteri = QStringLiteral("Ali Yılmaz"),
            .FaizOran = QStringLiteral("4,5"),
            .Seri = QStringLiteral("A"),
            .SozlesmeNo = QStringLiteral("2"),
            .Tarih = QStringLiteral("10.01.2024"),
            .OrtGun = 52.5};
  }
};

TEST_F(BordroTest, SatirRakamlariSozlesmeToplamlariylaAyni) {
  // Friday 4 March 2005, ilaveGun 3, rate 5: lines due on Saturday, on Sunday
  // (with a Null Gun), on Saturday with an override of 30, a month later, and
  // one without a due date.
  Sozlesme(1, 1, "2005-03-04");
  Satir(1, "Çek", "Şükrü Öğün", QStringLiteral("2005-03-05"), 0, 1000);
  Satir(1, "Çek", "O'Brien", QStringLiteral("2005-03-06"), QVariant(), 2000);
  Satir(1, "Senet", "Ali Yılmaz", QStringLiteral("2005-03-05"), 30, 1500);
  Satir(1, "Çek", "Can", QStringLiteral("2005-04-04"), 0, 1234.56);
  Satir(1, "Senet", "Can", QVariant(), 0, 100);
  Sozlesme(2, 1, "2005-03-04");  // another contract: none of its lines may show
  Satir(2, "Çek", "Başka", QStringLiteral("2005-03-07"), 0, 999);

  // Saturday +2, Sunday +1 only with the setting; an override stays as it is.
  const QString ilkIki[] = {QStringLiteral("Şükrü Öğün|2005-03-05|4|1000.00|6.67|993.33\n"
                                           "O'Brien|2005-03-06|5|2000.00|16.67|1983.33\n"),
                            QStringLiteral("Şükrü Öğün|2005-03-05|6|1000.00|10.00|990.00\n"
                                           "O'Brien|2005-03-06|6|2000.00|20.00|1980.00\n")};
  for (const bool haftaSonu : {false, true}) {
    SCOPED_TRACE(haftaSonu ? "HaftaSonu on" : "HaftaSonu off");
    Genel::HaftaSonu = haftaSonu;
    const contract::Bordro b = contract::BordroVerisi(1);
    EXPECT_EQ(Satirlari(b), ilkIki[haftaSonu] +
                                "Ali Yılmaz|2005-03-05|30|1500.00|75.00|1425.00\n"
                                "Can|2005-04-04|34|1234.56|69.96|1164.60\nCan||-|100.00|-|-");
    EXPECT_EQ(b.kayitlar.Metin(QStringLiteral("Musteri")), u"Ali Yılmaz"_s);

    // With the stored rate and date on screen, the contract's totals are the
    // bordro's sums, to the last bit.
    const faiz::Girdi g{.Tarih = QDate(2005, 3, 4),
                        .FaizOran = 5,
                        .ilaveGun = 3,
                        .HaftaSonu = haftaSonu,
                        .Masraf = {}};
    const std::vector<faiz::Satir> satirlar{{QDate(2005, 3, 5), 0, 1000, {}, {}},
                                            {QDate(2005, 3, 6), 0, 2000, {}, {}},
                                            {QDate(2005, 3, 5), 30, 1500, {}, {}},
                                            {QDate(2005, 4, 4), 0, 1234.56, {}, {}},
                                            {QDate(), 0, 100, {}, {}}};
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
  const contract::Bordro b = contract::BordroVerisi(3);
  EXPECT_EQ(Satirlari(b), u"Can|2024-01-20|10|500.00|0.00|500.00"_s);
  // A name part that is Null counts as empty in the statement's name.
  EXPECT_EQ(b.kayitlar.Metin(QStringLiteral("Musteri")), u"Demir Ayşe "_s);

  // A contract of someone not in the register, or none at all: no rows.
  Sozlesme(4, 99, "2024-01-10");
  Satir(4, "Çek", "Can", QStringLiteral("2024-01-20"), 0, 500);
  EXPECT_EQ(contract::BordroVerisi(4).satirlar.size(), 0);
  EXPECT_EQ(contract::BordroVerisi(5).satirlar.size(), 0);
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
  EXPECT_EQ(rapor::SayfaSayisi(r), 1);
  QTemporaryDir dizin;
  const QString yol = dizin.filePath(QStringLiteral("bordro.pdf"));
  ASSERT_TRUE(rapor::PdfYaz(r, yol));
  const QString metin = PdfMetni(yol);
  if (metin.isNull()) GTEST_SKIP() << "pdftotext is not installed";
  // The page header, the columns, a line and the footer, blanks made one.
  QStringList satirlar;
  for (const QString& s : metin.split(QLatin1Char('\n')))
    if (!s.simplified().isEmpty()) satirlar << s.simplified();
  EXPECT_EQ(satirlar.join(QLatin1Char('\n')),
            u"Müşteri: Ali Yılmaz Tarih: 10.01.2024\n"
            "Sözleşme No: A 2 Faiz Oranı: 4,5\n"
            "Alınan Belgeler:\n"
            "Tip Keşideci Banka Şube Hesapno Çekno Tarih Gün Tutar Faiz Ödenecek\n"
            "Çek Şükrü Öğün Garanti Kadıköy H-1 Ç-9 20.01.2024 10 100,00 0,33 99,67\n"
            "Çek Şükrü Öğün Garanti Kadıköy H-1 Ç-9 20.01.2024 10 100,00 0,33 99,67\n"
            "Çek Şükrü Öğün Garanti Kadıköy H-1 Ç-9 20.01.2024 10 100,00 0,33 99,67\n"
            "Ortalama ve Toplam: 52,50 300,00 1,00 299,00\n"
            "Ortalama Gün: 52,50\n"
            "Toplam: 300,00\n"
            "Faiz Tutarı: 1,00\n"
            "Ödenecek: 299,00"_s);
}

TEST_F(BordroTest, EnCokSatirliSozlesmeTekSayfadaSorguIndeksle) {
  // DetayLimit's default of 22 lines and the footer fit one page.
  Sozlesme(6, 1, "2024-01-10");
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
  EXPECT_TRUE(p.contains(QStringLiteral("USING INDEX SozlesmeDetay_SozlesmeDurum")))
      << p.toStdString();
  EXPECT_FALSE(p.contains(QStringLiteral("SCAN"))) << p.toStdString();
}

}  // namespace
