#include <gtest/gtest.h>

#include <QDate>
#include <QFile>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>

#include "core/Genel.h"
#include "core/Rapor.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

using rapor::Yazi;

// --------------------------------------------------------------- formats

TEST(RaporBicim, SayilarTarihlerVeBolgeAyiricilari) {
  Genel::BolgeTurkce();
  // A number, its format and the text: "0" a digit always, "#" one when needed;
  // the Turkish way round ("#.##0,00") too; without a "0" before the decimal
  // sign no zero integer part; halves away from zero on the decimal value.
  const QString sayilar =
      "1234.5 #,##0.00 = 1.234,50; 1234567.891 ###,###,###,###,##0.00 = 1.234.567,89; "
      "-1234.5 #,##0.00 = -1.234,50; -0.004 #,##0.00 = 0,00; 1234.5 #.##0,00 = 1.234,50; "
      "0.5 #.##0,00 = 0,50; 0.5 ###,###,###.00 = ,50; -0.5 #,###.00 = -,50; 0 #,###.00 = ,00; "
      "12.5 #,###.00 = 12,50; 2.675 0.00 = 2,68; 1.005 #,##0.00 = 1,01; -2.5 0 = -3; "
      "1.5 0.## = 1,5; 2 0.## = 2; 1234.5 0.00 = 1234,50; 1234.5 #,##0.00 TL = 1.234,50 TL";
  for (const QString& d : sayilar.split("; ")) {
    const QString sayi = d.section(' ', 0, 0), bicim = d.section(" = ", 0, 0).section(' ', 1);
    EXPECT_EQ(rapor::Bicimle(sayi.toDouble(), bicim), d.section(" = ", 1)) << d.toStdString();
  }
  // Other values under one format: whole numbers, SQL texts of numbers and
  // dates, texts that are neither, Null; without a format dates as the clerk
  // reads them and numbers plainly.
  const auto bicimle = [](const QVariantList& degerler, const QString& bicim) {
    QStringList l;
    for (const QVariant& d : degerler) l << rapor::Bicimle(d, bicim);
    return l.join('|');
  };
  EXPECT_EQ(bicimle({qlonglong(1234567), "1234.5", "ABC", QVariant()}, "#,##0.00"),
            u"1.234.567,00|1.234,50|ABC|"_s);
  EXPECT_EQ(bicimle({"2024-03-05", QDate(2024, 3, 5), "Ödendi"}, "dd.MM.yyyy"),
            u"05.03.2024|05.03.2024|Ödendi"_s);
  EXPECT_EQ(bicimle({"2024-03-05 14:30:00"}, "dd.MM.yyyy hh:mm"), u"05.03.2024 14:30"_s);
  EXPECT_EQ(bicimle({"2024-03-05", QDate(2024, 12, 1), 1234.5, qlonglong(7), "0012345", QVariant()},
                    QString()),
            u"05.03.2024|01.12.2024|1234,5|7|0012345|"_s);

  // The separators come from the regional settings.
  Genel::Bolge().ondalik = QLatin1Char('.');
  Genel::Bolge().binlik = QLatin1Char(',');
  EXPECT_EQ(rapor::Bicimle(1234.5, "#,##0.00"), u"1,234.50"_s);
  EXPECT_EQ(rapor::Bicimle(0.5, "#,###.00"), u".50"_s);
  EXPECT_EQ(rapor::Bicimle(1234.5, QString()), u"1234.5"_s);
  Genel::BolgeTurkce();
}

// --------------------------------------------------------------- reports

// Text of one page of a PDF, or a null string when pdftotext is missing.
QString PdfSayfasi(const QString& yol, int sayfa) {
  const QString arac = QStandardPaths::findExecutable(u"pdftotext"_s);
  if (arac.isEmpty()) return QString();
  QProcess p;
  p.start(arac, {"-layout", "-enc", "UTF-8", "-f", QString::number(sayfa), "-l",
                 QString::number(sayfa), yol, "-"});
  EXPECT_TRUE(p.waitForFinished(30000));
  EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  return QString::fromUtf8(p.readAllStandardOutput());
}

int PdfSayfaSayisi(const QString& yol) {
  QFile f(yol);
  if (!f.open(QIODevice::ReadOnly)) return -1;
  static const QRegularExpression sayfa(u"/Type\\s*/Page[^s]"_s);
  return int(QString::fromLatin1(f.readAll()).count(sayfa));
}

#define PDF_METNI(degisken, yol, sayfa)            \
  const QString degisken = PdfSayfasi(yol, sayfa); \
  if (degisken.isNull()) GTEST_SKIP() << "pdftotext is not installed"

class RaporTest : public test::Ortam {
 protected:
  // Rows 1..n: a drawer with Turkish letters, an amount and a maturity date.
  db::Kayitlar Satirlar(int n) {
    return Genel::Baglanti.Sorgu(
        QStringLiteral(
            "WITH RECURSIVE s(n) AS (SELECT 1 UNION ALL SELECT n + 1 FROM s WHERE n < 100) "
            "SELECT n AS No, 'Şükrü Öğün ' || printf('%02d', n) AS Kesideci, n * 1000.25 AS Tutar, "
            "date('2024-01-31', '+' || n || ' day') AS Vadesi FROM s WHERE n <= ?"),
        {n});
  }

  // A page of 100 x 120 mm with 10 mm margins leaves 100 mm. Page header 20
  // and page footer 10 leave 70 for the body: 7 detail rows of 10 mm, only 6
  // on the first page, where the report header takes 10. The report footer
  // takes 15.
  rapor::Rapor Liste(int n) {
    rapor::Rapor r;
    r.baslik = u"Cek Raporu"_s;
    r.sayfaDuzeni =
        QPageLayout(QPageSize(QSizeF(100, 120), QPageSize::Millimeter), QPageLayout::Portrait,
                    QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
    r.kayitlar = Satirlar(n);
    r.raporBasligi.yukseklik = 10;
    r.raporBasligi.Ekle(Yazi::Sabit("Çek Bordro Raporu", {0, 0, 80, 8}).Kalin().Punto(12));
    r.sayfaBasligi.yukseklik = 20;
    r.sayfaBasligi.Ekle(Yazi::Sabit("Keşideci", {0, 0, 35, 5}))
        .Ekle(Yazi::Sabit("Devreden:", {0, 8, 35, 5}))
        .Ekle(Yazi::Toplam("Tutar", {45, 8, 35, 5}).Bicim("#,##0.00").Sag())
        .Ekle(rapor::Cizgi::Yatay(0, 18, 80));
    r.detay.yukseklik = 10;
    r.detay.Ekle(Yazi::Alan("Kesideci", {0, 0, 35, 5}))
        .Ekle(Yazi::Alan("Vadesi", {35, 0, 20, 5}))
        .Ekle(Yazi::Alan("Tutar", {55, 0, 25, 5}).Bicim("###,###,###,###,##0.00").Sag());
    r.raporAltligi.yukseklik = 15;
    r.raporAltligi.Ekle(Yazi::Adet("", {0, 2, 10, 5}).Sag())
        .Ekle(Yazi::Sabit("Adet  Toplam:", {12, 2, 30, 5}))
        .Ekle(Yazi::Toplam("Tutar", {45, 2, 35, 5}).Bicim("#,##0.00").Sag());
    r.sayfaAltligi.yukseklik = 10;
    r.sayfaAltligi.Ekle(Yazi::Toplam("Tutar", {0, 2, 35, 5}).Bicim("#,##0.00"))
        .Ekle(Yazi::SayfaNumarasi({45, 2, 35, 5}).Sag());
    return r;
  }

  QString Yol(const QString& ad) const { return veriDizini() + QLatin1Char('/') + ad; }
};

TEST_F(RaporTest, SayfalarDolunca) {
  // rows -> pages: the first page holds 6 rows, the others 7, and the report
  // footer needs 15 mm after the last row.
  const std::pair<int, int> durumlar[] = {{0, 1},  {4, 1},  {5, 2},  {6, 2},
                                          {13, 3}, {17, 3}, {18, 3}, {19, 4}};
  for (auto [satir, sayfa] : durumlar) EXPECT_EQ(rapor::SayfaSayisi(Liste(satir)), sayfa) << satir;

  // A detail band taller than the page still gets a page per row.
  rapor::Rapor r = Liste(3);
  r.detay.yukseklik = 150;
  EXPECT_EQ(rapor::SayfaSayisi(r), 4);

  // No rows: one page with the footers, a field in a header reads nothing.
  r = Liste(0);
  r.raporBasligi.Ekle(Yazi::Alan("Kesideci", {0, 0, 80, 8}));
  const QString yol = Yol("bos.pdf");
  ASSERT_TRUE(rapor::PdfYaz(r, yol));
  EXPECT_EQ(PdfSayfaSayisi(yol), 1);
  PDF_METNI(metin, yol, 1);
  EXPECT_TRUE(metin.contains(QRegularExpression("0\\s+Adet\\s+Toplam:\\s+0,00")))
      << metin.toStdString();
  EXPECT_TRUE(metin.contains("Sayfa: 1/1"));
}

TEST_F(RaporTest, PdfSayfalariVeMetni) {
  const QString yol = Yol("liste.pdf");
  ASSERT_TRUE(rapor::PdfYaz(Liste(17), yol));
  EXPECT_EQ(PdfSayfaSayisi(yol), 3);
  // What each page shows and what it must not. The report header on the first
  // page only, the page header on every one; rows 1-6, 7-13, 14-17 with dates
  // and amounts formatted. The page footer sums up to the end of its page, the
  // page header carries the rows of earlier pages: 1..6 make 21 x 1000,25,
  // 1..13 make 91 x.
  const std::tuple<int, const char*, const char*> sayfalar[] = {
      {1,
       "Sayfa: 1/3|Çek Bordro Raporu|Keşideci|Şükrü Öğün 01|01.02.2024|1.000,25|Şükrü Öğün 06|"
       "21.005,25",
       "Şükrü Öğün 07|Toplam:"},
      {2, "Sayfa: 2/3|Keşideci|Devreden:|21.005,25|Şükrü Öğün 07|Şükrü Öğün 13|91.022,75",
       "Çek Bordro Raporu|Şükrü Öğün 06|Şükrü Öğün 14|Toplam:"},
      // The report footer after the last row: 17 rows, 153 x 1000,25.
      {3,
       "Sayfa: 3/3|Keşideci|Devreden:|91.022,75|Şükrü Öğün 14|Şükrü Öğün 17|"
       "17\\s+Adet\\s+Toplam:\\s+153.038,25",
       "Şükrü Öğün 13"}};
  for (const auto& [sayfa, var, yok] : sayfalar) {
    PDF_METNI(metin, yol, sayfa);
    for (const QString& desen : QString(var).split('|'))
      EXPECT_TRUE(metin.contains(QRegularExpression(desen)))
          << sayfa << ": " << desen.toStdString();
    for (const QString& desen : QString(yok).split('|'))
      EXPECT_FALSE(metin.contains(desen)) << sayfa << ": " << desen.toStdString();
  }
}

TEST_F(RaporTest, AltlikToplamlariYuvarlanmamisDegerlerden) {
  rapor::Rapor r;
  // Three interests of 0,125 each show as 0,13, but add up to 0,375 -> 0,38.
  r.kayitlar = Genel::Baglanti.Sorgu(
      "SELECT 0.125 AS Faiz, 30 AS Gunu, 10.0 AS Masraf "
      "UNION ALL SELECT 0.125, NULL, 30.0 UNION ALL SELECT 0.125, 45, 20.0");
  r.detay.Ekle(Yazi::Alan("Faiz", {0, 0, 30, 5}).Bicim("#,##0.00").Sag())
      .Ekle(Yazi::Toplam("Faiz", {40, 0, 40, 5}).Bicim("0.000").Sag());
  r.raporAltligi.Ekle(Yazi::Toplam("Faiz", {0, 0, 30, 5}).Bicim("#,###.00").Sag())
      .Ekle(Yazi::Adet("", {35, 0, 30, 5}).Sag())
      .Ekle(Yazi::Adet("Gunu", {70, 0, 30, 5}).Sag())
      .Ekle(Yazi::EnBuyuk("Masraf", {105, 0, 30, 5}).Bicim("#,##0.00").Sag())
      .Ekle(Yazi::EnKucuk("Masraf", {140, 0, 30, 5}).Bicim("#,##0.00").Sag());
  const QString yol = Yol("toplam.pdf");
  ASSERT_TRUE(rapor::PdfYaz(r, yol));
  PDF_METNI(metin, yol, 1);
  // The running sum in the detail band; in the footer the sum, the rows, the
  // rows with a day count, the largest and the smallest charge.
  EXPECT_TRUE(metin.contains(QRegularExpression(
      "0,13\\s+0,125\\n.*0,13\\s+0,250\\n.*0,13\\s+0,375\\n.*,38\\s+3\\s+2\\s+30,00\\s+10,00\\n",
      QRegularExpression::DotMatchesEverythingOption)))
      << metin.toStdString();
}

TEST_F(RaporTest, PencereOnizlerVePdfKaydeder) {
  auto* p = rapor::Goster(Liste(17));
  test::Isle();
  EXPECT_TRUE(p->isVisible());
  EXPECT_EQ(p->windowTitle(), u"Cek Raporu"_s);
  EXPECT_EQ(p->onizleme->pageCount(), 3);

  p->cmdSonraki->trigger();
  test::Isle();
  EXPECT_EQ(p->onizleme->currentPage(), 2);
  EXPECT_EQ(p->lblSayfa->text(), u"Sayfa: 2/3"_s);

  const QString yol = Yol("pencere.pdf");
  EXPECT_TRUE(p->PdfKaydet(yol));
  EXPECT_EQ(PdfSayfaSayisi(yol), 3);
  EXPECT_EQ(Kutular(), QString());

  // A folder that doesn't exist: the clerk is told, nothing is written.
  const QString yanlis = Yol("yok/rapor.pdf");
  EXPECT_FALSE(p->PdfKaydet(yanlis));
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_TRUE(Mesajlar()[0].metin.startsWith("PDF dosyası yazılamadı:"));
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
  EXPECT_FALSE(QFile::exists(yanlis));

  p->cmdKapat->trigger();  // deletes itself
  test::Isle();
}

}  // namespace
