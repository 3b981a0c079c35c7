// The figures of an invoice without a screen: Hesapla, the opening values,
// the number proposal, and the saves with their transaction.

#include <QDate>

#include "invoice/FaturaHesap.h"
#include "tests/contract/SozlesEkran.h"

namespace {

class FaturaHesap : public test::SozlesEkran {
 protected:
  static void Fatura(const QString& seri, qint64 no, const QString& tarih) {
    Calistir(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, Tutar) "
        "VALUES (?, ?, ?, 12, 100)",
        {seri, no, tarih});
  }
  // Series and number / contract / amount of each invoice.
  static QString Faturalar() {
    return Tablo(
               "SELECT FaturaSeri || FaturaNo, ifnull(SozlesmeID, ''), Tutar FROM Fatura "
               "ORDER BY FaturaSeri, FaturaNo")
        .replace('|', '/')
        .replace('\n', ' ');
  }
  // The row of a contract invoice as frmFatura would save it.
  static fatura::Satir Satir(qint32 sozlesme, const QString& no) {
    return {"A",        no,          "04.03.2005",
            "12",       "AB",        QString::number(sozlesme + 6),
            {},         "40.000,00", "5",
            "2.000,00", "0.00",      "9.500,00",
            "7.500,00", "49.500,00", fatura::YaziylaMetni("KIRKDOKUZBİNBEŞYÜZ Yeni Lira ", false),
            sozlesme};
  }
};

TEST_F(FaturaHesap, HesaplaTablosu) {
  // Amount|percent|fee|stamp duty -> tax|costs|grand total|words|fee box filled.
  const std::pair<const char*, const char*> vakalar[] = {
      // The worked example, the fee box empty.
      {"40.000,00|5||7.500,00", "2.000,00|9.500,00|49.500,00|KIRKDOKUZBİNBEŞYÜZ Yeni Lira |1"},
      // "0.00" counts as 0: the point is a thousands sign and vanishes.
      {"40.000,00|5|0.00|7.500,00", "2.000,00|9.500,00|49.500,00|KIRKDOKUZBİNBEŞYÜZ Yeni Lira |0"},
      // Sums of unrounded values, the grand total half to even: 1,005 is 1,00.
      {"1,00|0,5|0|0,00", "0,01|0,01|1,00|BİR Yeni Lira |0"},
      {"1,00|1,5|0|0,00", "0,02|0,02|1,02|BİR Yeni Lira İKİ Yeni Kuruş|0"},
      // "12.5" is 125; a text that is no number counts 0 and stops nothing.
      {"100,00|12.5||0", "125,00|125,00|225,00|İKİYÜZYİRMİBEŞ Yeni Lira |1"},
      {"100,00|abc|x|1,2,3", "0,00|0,00|100,00|YÜZ Yeni Lira |0"},
      {"|5||", "0,00|0,00|0,00| Yeni Lira |1"}};
  for (const auto& [girdi, beklenen] : vakalar) {
    const QStringList g = QString::fromUtf8(girdi).split('|');
    const fatura::Sonuc s = fatura::Hesapla({g[0], g[1], g[2], g[3]});
    EXPECT_EQ(QStringList({s.BMVergisi, s.ToplamOdeme, s.GenelToplam, s.Yazi,
                           QString::number(s.MasrafDoldur)})
                  .join('|'),
              QString::fromUtf8(beklenen))
        << girdi;
  }
}

TEST_F(FaturaHesap, AcilisDegerleri) {
  const auto metin = [](const fatura::Acilis& a) {
    return QStringList({a.Pul, a.BMOran, a.FaturaSeri, a.FaturaNo, a.Masraf,
                        QString::number(a.FaturaVar), QString::number(a.PulGorunur)})
        .join('|');
  };
  // No invoice: the stamp duty of the contract total, 5 %, the default series;
  // stamp duty off: zero, and hidden.
  EXPECT_EQ(metin(fatura::AcilisDegerleri("1.000.000,00", true, "A", std::nullopt)),
            "7.500,00|5|A|||0|1");
  EXPECT_EQ(metin(fatura::AcilisDegerleri("1.000.000,00", false, "A", std::nullopt)),
            "0,00|5|A|||0|0");
  // A saved invoice overrides percent, fee, stamp duty and series.
  baski::Kayit f;
  f.Koy("FaturaSeri", "B");
  f.Koy("FaturaNo", 17);
  f.Koy("BMVergisiYuzde", 7.5);
  f.Koy("TahsilMasrafi", 1234.5);
  f.Koy("PulBedeli", QVariant());
  EXPECT_EQ(metin(fatura::AcilisDegerleri("1.000.000,00", true, "A", f)),
            "0,00|7,5|B|17|1.234,50|1|1");
}

TEST_F(FaturaHesap, FaturaNumarasi) {
  for (const char* kotu : {"", "12a", "0", "-3", "2147483648", "99999999999999999999", "1,5"})
    EXPECT_THROW(fatura::FaturaNoOku(kotu), fatura::Red) << kotu;
  EXPECT_EQ(fatura::FaturaNoOku(" 15 "), 15);
  EXPECT_EQ(fatura::FaturaNoOku("2147483647"), 2147483647);
}

TEST_F(FaturaHesap, NumaraOnerisiSeriVeTarihe) {
  const QDate bugun(2005, 3, 20);
  EXPECT_EQ(fatura::SonrakiNo(Genel::Baglanti, "A", bugun), std::nullopt);
  EXPECT_EQ(fatura::EkSonrakiNo(Genel::Baglanti, "A"), std::nullopt);
  Fatura("A", 9, "2005-03-01");
  Fatura("A", 5, "2005-03-02");
  Fatura("B", 40, "2005-03-02");
  // Only invoices of the latest invoice date count, whatever their series.
  EXPECT_EQ(fatura::SonrakiNo(Genel::Baglanti, "A", bugun), 6);
  EXPECT_EQ(fatura::SonrakiNo(Genel::Baglanti, "B", bugun), 41);
  Fatura("B", 41, "2005-03-03");
  EXPECT_EQ(fatura::SonrakiNo(Genel::Baglanti, "A", bugun), std::nullopt);
  EXPECT_EQ(fatura::SonrakiNo(Genel::Baglanti, "B", bugun), 42);
  // The additional invoice counts every invoice of the series.
  EXPECT_EQ(fatura::EkSonrakiNo(Genel::Baglanti, "A"), 10);
}

TEST_F(FaturaHesap, KayitVeDegistirmeTekIslemde) {
  fatura::Kaydet(Genel::Baglanti, Satir(1, "1"), false);
  fatura::Kaydet(Genel::Baglanti, Satir(2, "2"), false);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2/2/40000");
  EXPECT_TRUE(MesajMetinleri().isEmpty());
  // Contract 2 under the number of contract 1: refused, and its own invoice
  // is still there (the delete went back with the insert).
  EXPECT_THROW(fatura::Kaydet(Genel::Baglanti, Satir(2, "1"), true), db::Hata);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2/2/40000");
  // A value that is no number: nothing runs at all.
  fatura::Satir s = Satir(2, "3");
  s.BMOran = "abc";
  EXPECT_THROW(fatura::Kaydet(Genel::Baglanti, s, true), fatura::Red);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2/2/40000");
  // A new number: the row is replaced.
  s = Satir(2, "3");
  s.Tutar = "50.000,00";
  fatura::Kaydet(Genel::Baglanti, s, true);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A3/2/50000");
  fatura::Sil(Genel::Baglanti, 2);
  EXPECT_EQ(Faturalar(), "A1/1/40000");
}

}  // namespace
