// The figures of an invoice without a screen: Hesapla, the opening values,
// the number proposal, and the saves with their transaction.

#include <QDate>

#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "invoice/FaturaHesap.h"
#include "tests/support/Ortam.h"

namespace {

using fatura::Girdi;

class FaturaHesap : public test::Ortam {
 protected:
  static void Fatura(const QString& seri, qint64 no, const QString& tarih,
                     const QVariant& sozlesme = QVariant()) {
    Genel::Baglanti.Calistir(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar) "
        "VALUES (?, ?, ?, 12, ?, 100)",
        {seri, no, tarih, sozlesme});
  }
  static QString Faturalar() {
    db::Kayitlar rs = Genel::Baglanti.Sorgu(
        "SELECT FaturaSeri, FaturaNo, SozlesmeID, Tutar FROM Fatura ORDER BY FaturaSeri, FaturaNo");
    QStringList l;
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
      l << rs.Metin("FaturaSeri") + rs.Metin("FaturaNo") + '/' + rs.Metin("SozlesmeID") + '/' +
               rs.Metin("Tutar");
    return l.join(' ');
  }
  // The row of a contract invoice as frmFatura would save it.
  static fatura::Satir Satir(qint32 sozlesme, const QString& no) {
    fatura::Satir s;
    s.FaturaSeri = "A";
    s.FaturaNo = no;
    s.Tarih = "04.03.2005";
    s.MusteriNo = "12";
    s.SozlesmeSeri = "AB";
    s.SozlesmeNo = QString::number(sozlesme + 6);
    s.Tutar = "40.000,00";
    s.BMOran = "5";
    s.BMVergisi = "2.000,00";
    s.Masraf = "0.00";
    s.ToplamOdeme = "9.500,00";
    s.Pul = "7.500,00";
    s.GenelToplam = "49.500,00";
    s.Yaziyla = fatura::YaziylaMetni("KIRKDOKUZBİNBEŞYÜZ Yeni Lira ", false);
    s.SozlesmeID = sozlesme;
    return s;
  }
};

TEST_F(FaturaHesap, HesaplaTablosu) {
  struct Vaka {
    Girdi girdi;
    const char* vergi;
    const char* odeme;
    const char* genel;
    const char* yazi;
    bool doldur;
  };
  const Vaka vakalar[] = {
      // The worked example of the invoice: the fee box empty, stamp duty of the
      // contract total 1.000.000,00.
      {{"40.000,00", "5", "", "7.500,00"},
       "2.000,00",
       "9.500,00",
       "49.500,00",
       "KIRKDOKUZBİNBEŞYÜZ Yeni Lira ",
       true},
      // "0.00" counts as 0: the point is a thousands sign and vanishes.
      {{"40.000,00", "5", "0.00", "7.500,00"},
       "2.000,00",
       "9.500,00",
       "49.500,00",
       "KIRKDOKUZBİNBEŞYÜZ Yeni Lira ",
       false},
      // Sums of unrounded values, the grand total half to even: 1,005 is 1,00
      // while the parts on show add up to 1,01.
      {{"1,00", "0,5", "0", "0,00"}, "0,01", "0,01", "1,00", "BİR Yeni Lira ", false},
      {{"1,00", "1,5", "0", "0,00"}, "0,02", "0,02", "1,02", "BİR Yeni Lira İKİ Yeni Kuruş", false},
      // What SayiOku makes of a typed text: "12.5" is 125, a text that is no
      // number counts 0 and never stops the screen.
      {{"100,00", "12.5", "", "0"},
       "125,00",
       "125,00",
       "225,00",
       "İKİYÜZYİRMİBEŞ Yeni Lira ",
       true},
      {{"100,00", "abc", "x", "1,2,3"}, "0,00", "0,00", "100,00", "YÜZ Yeni Lira ", false},
      {{"", "5", "", ""}, "0,00", "0,00", "0,00", " Yeni Lira ", true},
  };
  for (const Vaka& v : vakalar) {
    const fatura::Sonuc s = fatura::Hesapla(v.girdi);
    const QString ad = v.girdi.Tutar + '|' + v.girdi.BMOran + '|' + v.girdi.Masraf;
    EXPECT_EQ(s.BMVergisi, v.vergi) << ad.toStdString();
    EXPECT_EQ(s.ToplamOdeme, v.odeme) << ad.toStdString();
    EXPECT_EQ(s.GenelToplam, v.genel) << ad.toStdString();
    EXPECT_EQ(s.Yazi, v.yazi) << ad.toStdString();
    EXPECT_EQ(s.MasrafDoldur, v.doldur) << ad.toStdString();
  }
}

TEST_F(FaturaHesap, AcilisDegerleri) {
  // No invoice: the stamp duty of the contract total, 5 %, the default series.
  fatura::Acilis a = fatura::AcilisDegerleri("1.000.000,00", true, "A", std::nullopt);
  EXPECT_EQ(a.Pul, "7.500,00");
  EXPECT_EQ(a.BMOran, "5");
  EXPECT_EQ(a.FaturaSeri, "A");
  EXPECT_EQ(a.FaturaNo, "");
  EXPECT_EQ(a.Masraf, "");
  EXPECT_FALSE(a.FaturaVar);
  EXPECT_TRUE(a.PulGorunur);
  // Stamp duty off: zero, and hidden.
  a = fatura::AcilisDegerleri("1.000.000,00", false, "A", std::nullopt);
  EXPECT_EQ(a.Pul, "0,00");
  EXPECT_FALSE(a.PulGorunur);
  // A saved invoice overrides percent, fee, stamp duty and series.
  baski::Kayit f;
  f.Koy("FaturaSeri", "B");
  f.Koy("FaturaNo", 17);
  f.Koy("BMVergisiYuzde", 7.5);
  f.Koy("TahsilMasrafi", 1234.5);
  f.Koy("PulBedeli", QVariant());
  a = fatura::AcilisDegerleri("1.000.000,00", true, "A", f);
  EXPECT_EQ(QStringList({a.BMOran, a.FaturaNo, a.Masraf, a.Pul, a.FaturaSeri}).join('|'),
            "7,5|17|1.234,50|0,00|B");
  EXPECT_TRUE(a.FaturaVar);
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
  EXPECT_EQ(test::Ortam::MesajMetinleri().size(), 0);
  // The stored row: numbers read by SayiOku, the date as yyyy-MM-dd.
  db::Kayitlar rs = Genel::Baglanti.Sorgu("SELECT * FROM Fatura WHERE FaturaNo = 1");
  QStringList l;
  for (const char* a :
       {"Tarih", "MusteriNo", "SozlesmeSeri", "SozlesmeNo", "BMVergisiYuzde", "BMVergisi",
        "TahsilMasrafi", "ToplamMasraf", "PulBedeli", "ToplamTutar", "Yaziyla", "Aciklama"})
    l << (db::NullMu(rs.Fields(a)) ? "NULL" : rs.Fields(a).toString());
  EXPECT_EQ(
      l.join('|'),
      "2005-03-04|12|AB|7|5|2000|0|9500|7500|49500|Yalnız KIRKDOKUZBİNBEŞYÜZ Yeni Lira  |NULL");

  // Contract 2 under the number of contract 1: refused, and its own invoice
  // is still there (the delete went back with the insert).
  EXPECT_THROW(fatura::Kaydet(Genel::Baglanti, Satir(2, "1"), true), db::Hata);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2/2/40000");
  // A value that is no number: nothing runs at all.
  fatura::Satir s = Satir(2, "3");
  s.BMOran = "abc";
  EXPECT_THROW(fatura::Kaydet(Genel::Baglanti, s, true), fatura::Red);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2/2/40000");
  // Its own number again, or a new one: the row is replaced.
  s = Satir(2, "3");
  s.Tutar = "50.000,00";
  fatura::Kaydet(Genel::Baglanti, s, true);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A3/2/50000");
  fatura::Sil(Genel::Baglanti, 2);
  EXPECT_EQ(Faturalar(), "A1/1/40000");
}

TEST_F(FaturaHesap, EkFaturaSozlesmeFaturasiniSilmez) {
  fatura::Kaydet(Genel::Baglanti, Satir(1, "1"), false);
  fatura::Satir ek = Satir(0, "1");
  ek.SozlesmeID.reset();
  ek.SozlesmeSeri.clear();
  ek.SozlesmeNo.clear();
  ek.Aciklama = "Danışmanlık";
  ek.Tutar = "100,00";
  ek.Tarih = "10.03.2005";
  EXPECT_FALSE(fatura::EkKaydet(Genel::Baglanti, ek));
  EXPECT_EQ(Faturalar(), "A1/1/40000");
  // Under a free number it goes in; saved twice, the later one stays.
  ek.FaturaNo = "2";
  EXPECT_TRUE(fatura::EkKaydet(Genel::Baglanti, ek));
  ek.Tutar = "200,00";
  EXPECT_TRUE(fatura::EkKaydet(Genel::Baglanti, ek));
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2//200");
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Aciklama || '|' || Tarih FROM Fatura WHERE FaturaNo = 2")
                .toString(),
            "Danışmanlık|2005-03-10");
  // An empty date or a letter in the number: refused before anything runs.
  ek.Tarih.clear();
  EXPECT_THROW(fatura::EkKaydet(Genel::Baglanti, ek), fatura::Red);
  ek.Tarih = "10.03.2005";
  ek.FaturaNo = "2x";
  EXPECT_THROW(fatura::EkKaydet(Genel::Baglanti, ek), fatura::Red);
  EXPECT_EQ(Faturalar(), "A1/1/40000 A2//200");
}

}  // namespace
