// The income report: contracts of a period by their date, the four sums with
// and without an invoice, the column-head sort, and the printed report.

#include <QApplication>
#include <QHeaderView>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest/QTest>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Rapor.h"
#include "reports/frmRapor.h"
#include "reports/rptSozlesmeler.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

using test::Tikla;
using test::Yaz;

class Gelir : public test::Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES "
        "(1, 'YILMAZ', 'ALİ', 1), (2, 'ÇELİK', 'AŞ', 2)");
    // id, no, customer, date, face total, interest
    Sozlesme(1, 12, 1, "2026-01-10", 1000, 100);
    Sozlesme(2, 3, 2, "2026-01-10", 500.5, 0.25);
    Sozlesme(3, 7, 1, "2026-02-01", 2000, 300);
    Sozlesme(4, 1, 2, "2025-12-31", 50, 5);
    // An invoice on contract 1 only; an additional invoice has no contract.
    Calistir(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, BMVergisi) VALUES "
        "('F', 1, 1, 5), ('F', 2, NULL, 99)");
  }
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }
  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  static void Sozlesme(int id, int no, int musteri, const char* tarih, double tutar, double faiz) {
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "FaizTutar) VALUES (?, 'AB', ?, ?, ?, ?, ?)",
        {id, no, musteri, QString::fromLatin1(tarih), tutar, faiz});
  }
  frmRapor* Ac() {
    ekran_ = std::make_unique<frmRapor>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    test::Isle();
    return ekran_.get();
  }
  std::unique_ptr<frmRapor> ekran_;
  // Numbers of the listed contracts, and the figures under the list.
  static QString Gorulen(frmRapor* f) {
    QStringList l;
    const auto* m = f->dGridDetay->Model();
    for (int r = 0; r < m->rowCount(); ++r) {
      QStringList s;
      for (int c = 0; c < m->columnCount(); ++c) s << m->Metin(r, c);
      l << s.join(' ');
    }
    l << QStringList{f->txtAdet->text(), f->txtToplam[0]->text(), f->txtToplam[1]->text(),
                     f->txtToplam[2]->text(), f->txtToplam[3]->text()}
             .join('|');
    return l.join('\n');
  }
};

TEST_F(Gelir, DonemToplamlariFaturaliVeFaturasiz) {
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Gelir Raporu"_s);
  EXPECT_FALSE(f->txtAdet->isVisible());
  // Printing before a list: told, nothing else.
  Tikla(f->cmdYazdir);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Önce Göster ile listeyi alınız."});
  EXPECT_EQ(Mesajlar()[0].baslik, u"UYARI"_s);
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Bilgi);
  for (QWidget* w : QApplication::topLevelWidgets())
    EXPECT_EQ(qobject_cast<rapor::RaporPenceresi*>(w), nullptr);
  MesajlariTemizle();

  // No dates: every contract by its date, then number. "Ödenen" keeps the tax in.
  Tikla(f->cmdBilgiGoster);
  EXPECT_TRUE(f->txtAdet->isVisible());
  EXPECT_EQ(Gorulen(f),
            "AB 1 31.12.2025 ÇELİK AŞ 50,00 5,00  45,00\n"
            "AB 3 10.01.2026 ÇELİK AŞ 500,50 ,25  500,25\n"
            "AB 12 10.01.2026 ALİ YILMAZ 1.000,00 100,00 5,00 900,00\n"
            "AB 7 01.02.2026 ALİ YILMAZ 2.000,00 300,00  1.700,00\n"
            "4|3.550,50|405,25|3.145,25|5,00");

  // The dates bound the contract's date, both ends included.
  Yaz(f->txtBastar, "10.01.2026");
  Yaz(f->txtSonTar, "31.01.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f),
            "AB 3 10.01.2026 ÇELİK AŞ 500,50 ,25  500,25\n"
            "AB 12 10.01.2026 ALİ YILMAZ 1.000,00 100,00 5,00 900,00\n"
            "2|1.500,50|100,25|1.400,25|5,00");
  // A period without contracts: zeros and an empty grid.
  Yaz(f->txtBastar, "01.03.2026");
  Yaz(f->txtSonTar, "");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f), "0|0,00|0,00|0,00|0,00");
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(Gelir, BaslikSiralarVeRaporOSirayiBasar) {
  auto* f = Ac();
  Tikla(f->cmdBilgiGoster);
  QHeaderView* baslik = f->dGridDetay->horizontalHeader();
  const auto tikla = [&](const char* alan) {
    const int s = f->rsGelir.AlanNo(alan);
    QTest::mouseClick(baslik->viewport(), Qt::LeftButton, {},
                      QPoint(baslik->sectionViewportPosition(s) + baslik->sectionSize(s) / 2,
                             baslik->height() / 2));
    test::Isle();
  };
  const auto numaralar = [&] {
    QStringList l;
    for (int r = 0; r < f->rsGelir.RecordCount(); ++r)
      l << f->dGridDetay->Model()->Metin(r, f->rsGelir.AlanNo("SozlesmeNo"));
    return l.join(',');
  };
  tikla("FaizTutar");
  EXPECT_EQ(numaralar(), "3,1,12,7");
  // Ascending again, never descending, on a second click.
  tikla("FaizTutar");
  EXPECT_EQ(numaralar(), "3,1,12,7");
  tikla("AdSoyad");  // Turkish order: A, then Ç; ties keep their order
  EXPECT_EQ(numaralar(), "12,7,3,1");

  Tikla(f->cmdYazdir);
  rapor::RaporPenceresi* p = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets())
    if (auto* r = qobject_cast<rapor::RaporPenceresi*>(w)) p = r;
  ASSERT_NE(p, nullptr);
  QTemporaryDir d;
  ASSERT_TRUE(rapor::PdfYaz(p->rapor(), d.filePath("g.pdf")));
  delete p;
  const QString arac = QStandardPaths::findExecutable("pdftotext");
  if (arac.isEmpty()) GTEST_SKIP() << "pdftotext yok";
  QProcess pdf;
  pdf.start(arac, {"-layout", "-enc", "UTF-8", d.filePath("g.pdf"), "-"});
  ASSERT_TRUE(pdf.waitForFinished(30000));
  EXPECT_EQ(QString::fromUtf8(pdf.readAllStandardOutput()).simplified(),
            "Gelir Raporu Tarih Aralığı: - " + Genel::TarihYaz(QDate::currentDate()) +
                " Söz.No Ad Soyad Tarih Tutar Faiz Tutar BM Vergi Ödenen "
                "AB 12 ALİ YILMAZ 10.01.2026 1.000,00 100,00 5,00 900,00 "
                "AB 7 ALİ YILMAZ 01.02.2026 2.000,00 300,00 1.700,00 "
                "AB 3 ÇELİK AŞ 10.01.2026 500,50 0,25 500,25 "
                "AB 1 ÇELİK AŞ 31.12.2025 50,00 5,00 45,00 "
                "4 Adet Toplam: 3.550,50 405,25 5,00 3.145,25 Sayfa: 1/1");
}

TEST_F(Gelir, HataliTarihListelemez) {
  auto* f = Ac();
  Yaz(f->txtBastar, "31.02.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen Geçerli Bir Tarih Girin"});
  EXPECT_TRUE(f->txtBastar->hasFocus());
  EXPECT_FALSE(f->txtAdet->isVisible());
}

}  // namespace
