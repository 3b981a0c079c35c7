// The income report: contracts of a period by their date, the four sums with
// and without an invoice, the column-head sort, and the printed report.

#include "reports/frmRapor.h"
#include "tests/reports/Ortak.h"

namespace {

using test::Tikla;
using test::Yaz;

class Gelir : public test::RaporEkrani<frmRapor> {
 protected:
  void SetUp() override {
    RaporEkrani::SetUp();
    test::Ekle("Musteri(MusteriNo, Soyadi, Adi, HukukiDurum)",
               "(1, 'YILMAZ', 'ALİ', 1), (2, 'ÇELİK', 'AŞ', 2)");
    // id, number, customer, date, face total, interest
    test::Ekle("Sozlesme(SozlesmeID, SozlesmeNo, MusteriNo, Tarih, Tutar, FaizTutar)",
               "(1, 12, 1, '2026-01-10', 1000, 100), (2, 3, 2, '2026-01-10', 500.5, 0.25), "
               "(3, 7, 1, '2026-02-01', 2000, 300), (4, 1, 2, '2025-12-31', 50, 5)");
    test::Calistir("UPDATE Sozlesme SET SozlesmeSeri = 'AB'");
    // An invoice on contract 1 only; an additional invoice has no contract.
    test::Ekle("Fatura(FaturaSeri, FaturaNo, SozlesmeID, BMVergisi)",
               "('F', 1, 1, 5), ('F', 2, NULL, 99)");
  }
  // The listed contracts, and the figures under the list.
  static QString Gorulen(frmRapor* f) {
    return (test::Satirlar(f->dGridDetay->Model(), " ") << test::Metinler(
                f->txtAdet, f->txtToplam[0], f->txtToplam[1], f->txtToplam[2], f->txtToplam[3]))
        .join('\n');
  }
};

TEST_F(Gelir, DonemToplamlariFaturaliVeFaturasiz) {
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Gelir Raporu"_s);
  EXPECT_FALSE(f->txtAdet->isVisible());
  // Printing before a list: told, nothing else.
  Tikla(f->cmdYazdir);
  EXPECT_EQ(Kutular(), u"Bilgi UYARI: Önce Göster ile listeyi alınız."_s);
  EXPECT_EQ(test::Basilan(), u"rapor penceresi yok"_s);
  // A bad date: the message, the focus stays, nothing listed.
  Yaz(f->txtBastar, "31.02.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Kutular(), u"Kritik UYARI: Lütfen Geçerli Bir Tarih Girin"_s);
  EXPECT_TRUE(f->txtBastar->hasFocus());
  EXPECT_FALSE(f->txtAdet->isVisible());

  // No dates: every contract by its date, then number. "Ödenen" keeps the tax in.
  // The dates bound the contract's date, both ends included. A period
  // without contracts: zeros and an empty grid.
  const std::tuple<const char*, const char*, const char*> durumlar[] = {
      {"", "",
       "AB 1 31.12.2025 ÇELİK AŞ 50,00 5,00  45,00\n"
       "AB 3 10.01.2026 ÇELİK AŞ 500,50 ,25  500,25\n"
       "AB 12 10.01.2026 ALİ YILMAZ 1.000,00 100,00 5,00 900,00\n"
       "AB 7 01.02.2026 ALİ YILMAZ 2.000,00 300,00  1.700,00\n"
       "4|3.550,50|405,25|3.145,25|5,00"},
      {"10.01.2026", "31.01.2026",
       "AB 3 10.01.2026 ÇELİK AŞ 500,50 ,25  500,25\n"
       "AB 12 10.01.2026 ALİ YILMAZ 1.000,00 100,00 5,00 900,00\n"
       "2|1.500,50|100,25|1.400,25|5,00"},
      {"01.03.2026", "", "0|0,00|0,00|0,00|0,00"},
  };
  for (const auto& [bas, son, gorulen] : durumlar) {
    SCOPED_TRACE(bas);
    Yaz(f->txtBastar, bas);
    Yaz(f->txtSonTar, son);
    Tikla(f->cmdBilgiGoster);
    EXPECT_TRUE(f->txtAdet->isVisible());
    EXPECT_EQ(Gorulen(f), QString::fromUtf8(gorulen));
  }
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(Gelir, BaslikSiralarVeRaporOSirayiBasar) {
  auto* f = Ac();
  Tikla(f->cmdBilgiGoster);
  const auto sirala = [&](const char* alan) {
    test::BaslikTikla(f->dGridDetay, f->rsGelir.AlanNo(alan));
    return test::Satirlar(f->dGridDetay->Model(), "", {f->rsGelir.AlanNo("SozlesmeNo")}).join(',');
  };
  EXPECT_EQ(sirala("FaizTutar"), "3,1,12,7");
  // Ascending again, never descending, on a second click.
  EXPECT_EQ(sirala("FaizTutar"), "3,1,12,7");
  EXPECT_EQ(sirala("AdSoyad"), "12,7,3,1");  // Turkish order: A, then Ç; ties keep their order

  Tikla(f->cmdYazdir);
  const QString metin = test::Basilan();
  if (metin.isNull()) GTEST_SKIP() << "pdftotext yok";
  EXPECT_EQ(metin, "Gelir Raporu Tarih Aralığı: - " + test::Ekran(0) +
                       " Söz.No Ad Soyad Tarih Tutar Faiz Tutar BM Vergi Ödenen "
                       "AB 12 ALİ YILMAZ 10.01.2026 1.000,00 100,00 5,00 900,00 "
                       "AB 7 ALİ YILMAZ 01.02.2026 2.000,00 300,00 1.700,00 "
                       "AB 3 ÇELİK AŞ 10.01.2026 500,50 0,25 500,25 "
                       "AB 1 ÇELİK AŞ 31.12.2025 50,00 5,00 45,00 "
                       "4 Adet Toplam: 3.550,50 405,25 5,00 3.145,25 Sayfa: 1/1");
}

}  // namespace
