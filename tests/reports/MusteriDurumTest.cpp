// The status grid: each customer's papers by state against the plain
// statement of the same figures, the columns adding up, "now" on a paper
// due today, and the descending sort of a column head.

#include "db/Cari.h"
#include "db/Sema.h"
#include "reports/MusteriDurum.h"
#include "reports/frmMusteriDurum.h"
#include "tests/reports/Ortak.h"

namespace {

using test::Calistir;
using test::Gun;

// Lines of papers: contract, maturity, payment (Null: bounced), amount.
void Cekler(const QString& satirlar) {
  test::Ekle("SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag)", satirlar);
}

// ALİ has a paper due today and one paid before it was due; BATAK's papers
// all bounced; a line's contract 99 was deleted by hand.
class MusteriDurum : public test::RaporEkrani<frmMusteriDurum> {
 protected:
  void SetUp() override {
    RaporEkrani::SetUp();
    test::Ekle("Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum)",
               "(1, 'YILMAZ', 'ALİ', 'VELİ', 1), (2, 'ÇELİK', 'İNŞAAT', 'LTD', 2), "
               "(3, 'ŞEN', NULL, NULL, 2), (4, 'BOŞ', 'SÖZLEŞMESİZ', NULL, 1), "
               "(5, 'CAN', 'SATIRSIZ', NULL, 1), (6, 'ARSLAN', 'BATAK', NULL, 1)");
    test::Ekle("Sozlesme(SozlesmeID, MusteriNo, Tarih)",
               "(1, 1, @-30), (2, 1, @-10), (3, 2, @-20), (4, 3, @-5), (5, 5, @-5), (6, 6, @-40)");
    Cekler(
        "(1, @-10, @-10, 1000), (1, @0, @0, 250.5), (2, @20, @20, 99.5), (2, @5, NULL, 10), "
        "(3, @40, @40, 1e6), (3, @2, @-1, 0.01), (4, @1, @1, 7), (6, @-20, NULL, 300), "
        "(6, @-10, NULL, 200), (99, @0, @0, 5)");
  }
};

// The rows of a set; with `yuvarlak` its numbers to six decimals: the sums
// of the grid are taken per contract first, so their last binary digits may
// differ from a sum taken line by line in another order.
QString Satirlar(const db::Kayitlar& rs, bool yuvarlak = true) {
  QStringList l;
  for (int r = 0; r < rs.RecordCount(); ++r) {
    QStringList s;
    for (int c = 0; c < rs.AlanSayisi(); ++c) {
      const QVariant v = rs.Deger(r, c);
      const bool sayi = v.typeId() == QMetaType::Double || v.typeId() == QMetaType::LongLong;
      s << (!yuvarlak       ? v.toString()
            : db::NullMu(v) ? QString("NULL")
            : sayi          ? QString::number(v.toDouble(), 'f', 6)
                            : v.toString());
    }
    l << s.join('|');
  }
  return l.join('\n');
}

// The figures of every customer as the grid reads them, where they part from
// the plain statement of the same figures: one join through every line, as
// the grid would read them without its summary.
QString DuzIleFark() {
  const QString bugun = Gun(0);
  const QString grid = Satirlar(musteridurum::Oku(QDate::currentDate()));
  const QString duz = Satirlar(Genel::Baglanti.Sorgu(
      "SELECT M.MusteriNo, CASE WHEN M.HukukiDurum = 1 THEN COALESCE(M.Adi, '') || ' ' || "
      "COALESCE(M.Soyadi, '') ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' "
      "|| COALESCE(M.BabaAdi, '') END AS Musteri, count(SD.GirisNo), sum(SD.Meblag), "
      "sum(CASE WHEN SD.Odenmesi <= ?1 THEN SD.Meblag ELSE 0 END), "
      "sum(CASE WHEN SD.Odenmesi <= ?1 THEN 1 ELSE 0 END), "
      "sum(CASE WHEN SD.Odenmesi > ?1 THEN SD.Meblag ELSE 0 END), "
      "sum(CASE WHEN SD.Odenmesi > ?1 THEN 1 ELSE 0 END), "
      "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END), "
      "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END), avg(SD.Meblag), "
      "avg(GunFarki(S.Tarih, SD.Vadesi)) "
      "FROM (Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo) "
      "INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID "
      "GROUP BY M.MusteriNo ORDER BY 2 COLLATE TURKCE, 1",
      {bugun}));
  return grid == duz ? QString() : grid + "\n--- düz sorgu:\n" + duz;
}

// The summary's rows, less those that came down to nothing.
QString CariTablosu() {
  return Satirlar(Genel::Baglanti.Sorgu(
      "SELECT * FROM MusteriCari WHERE max(abs(Belge), abs(Tutar), abs(TutarAdet), abs(Batak), "
      "abs(BatakAdet), abs(Gun), abs(GunAdet)) > 0 ORDER BY MusteriNo"));
}

// The summary behind the grid follows every way a paper or a contract
// changes, also when another program writes the file: after each change it
// holds what a summary made anew from the lines holds, and the grid says what
// the plain statement says. Without its summary (a file the window program
// never opened) the grid reads the lines and says the same.
TEST_F(MusteriDurum, OzetHerDegisiklikteSatirlarlaAyni) {
  // Maturities that the day count reads and refuses alike.
  test::Ekle("Musteri(MusteriNo, Soyadi, HukukiDurum)", "(30, 'TARİH', 2)");
  test::Ekle("Sozlesme(SozlesmeID, MusteriNo, Tarih)", "(30, 30, '2024-02-28')");
  for (const char* vade :
       {"'2024-02-29'", "'2023-02-29'", "'2024-03-01 10:00'", "'2024-03-01T10:00'", "'2024-03-01x'",
        "'2024-3-01'", "''", "20240301", "'2024-02-30'", "'0000-01-01'"})
    Cekler(u"(30, %1, '2024-01-01', 1)"_s.arg(QLatin1String(vade)));
  const auto ayni = [&](const char* adim) {
    SCOPED_TRACE(adim);
    const QString tutulan = CariTablosu();
    EXPECT_EQ(DuzIleFark(), QString());
    db::CariOzetKur(Genel::Baglanti);
    EXPECT_EQ(tutulan, CariTablosu());
  };
  ayni("başta");
  Calistir("UPDATE SozlesmeDetay SET Odenmesi = NULL WHERE SozlesmeID = 1");
  Calistir("UPDATE SozlesmeDetay SET Odenmesi = ? WHERE SozlesmeID = 6", {Gun(3)});
  Calistir("UPDATE SozlesmeDetay SET Meblag = Meblag * 3 + 0.07 WHERE SozlesmeID = 2");
  Calistir("UPDATE SozlesmeDetay SET Vadesi = ? WHERE SozlesmeID = 2", {Gun(9)});
  ayni("durum, tutar, vade");
  Calistir("UPDATE SozlesmeDetay SET SozlesmeID = 4 WHERE SozlesmeID = 3 AND Meblag < 1");
  Calistir("DELETE FROM SozlesmeDetay WHERE SozlesmeID = 2 AND Odenmesi IS NULL");
  Cekler("(5, @0, @0, 2.5)");
  ayni("satır taşı, sil, ekle");
  Calistir("UPDATE Sozlesme SET MusteriNo = 6 WHERE SozlesmeID = 1");
  Calistir("UPDATE Sozlesme SET Tarih = ? WHERE SozlesmeID = 1", {Gun(-90)});
  Calistir("UPDATE Sozlesme SET MusteriNo = NULL WHERE SozlesmeID = 4");
  ayni("sözleşmenin müşterisi ve tarihi");
  Calistir("DELETE FROM Sozlesme WHERE SozlesmeID = 3");  // its lines stay, orphaned
  Cekler("(77, @0, @0, 4)");
  ayni("sözleşme elle silindi");
  test::Ekle("Sozlesme(SozlesmeID, MusteriNo, Tarih)", "(77, 3, @-2), (3, 2, @-8)");
  Calistir("UPDATE Sozlesme SET SozlesmeID = 78 WHERE SozlesmeID = 99");
  ayni("sözleşme geri geldi, numarası değişti");

  // Without a piece of the summary the grid reads the lines; opening the file
  // in the window program lays the summary anew.
  Calistir("DROP TRIGGER MusteriCari_DetaySil");
  EXPECT_FALSE(db::CariOzetVar(Genel::Baglanti));
  Calistir("DELETE FROM SozlesmeDetay WHERE SozlesmeID = 6");
  EXPECT_EQ(DuzIleFark(), QString());
  db::RaporlariHazirla(Genel::Baglanti);
  EXPECT_TRUE(db::CariOzetVar(Genel::Baglanti));
  EXPECT_EQ(DuzIleFark(), QString());
}

// The grid says what the plain statement says: customers without contracts
// or lines left out, names in Turkish order, paid, at risk and bounced adding
// up to the whole; ALİ's paper due today is collected, BATAK's papers all
// bounced and its average term still counts them. Also where adding up per
// contract could part from it: several contracts of a customer, amounts with
// cents, Nulls in the amount, the maturity and the contract date (left out of
// the sums and averages as avg leaves them out), a customer whose every
// amount is Null, and two customers of the same name (by number).
TEST_F(MusteriDurum, DuzSorguIleAyniUcDurumlarda) {
  EXPECT_EQ(DuzIleFark(), QString());
  EXPECT_EQ(Satirlar(musteridurum::Oku(QDate::currentDate()), false),
            "1|ALİ YILMAZ|4|1360|1250.5|2|99.5|1|10|1|340|23.75\n"
            "6|BATAK ARSLAN|2|500|0|0|0|0|500|2|250|25\n"
            "2|ÇELİK İNŞAAT LTD|2|1000000.01|0.01|1|1e+06|1|0|0|500000.005|41\n"
            "3|ŞEN  |1|7|0|0|7|1|0|0|7|6");
  test::Ekle("Musteri(MusteriNo, Soyadi, Adi, HukukiDurum)",
             "(20, 'AYNI', 'AD', 1), (11, 'AYNI', 'AD', 1), (12, 'TUTARSIZ', NULL, 2)");
  test::Ekle("Sozlesme(SozlesmeID, MusteriNo, Tarih)",
             "(20, 20, @-100), (21, 20, NULL), (22, 20, @-7), (23, 11, @-3), (24, 12, @-1)");
  Cekler(
      "(20, @-50, @-50, 0.1), (20, @-40, NULL, 0.2), (21, @10, @10, 0.7), "
      "(22, @3, @3, 1234.56), (22, @4, @5, 0.3), (22, NULL, @-1, 5.55), (23, @1, @1, NULL), "
      "(23, @2, NULL, 9.99), (24, @0, @0, NULL)");
  EXPECT_EQ(DuzIleFark(), QString());
  const db::Kayitlar rs = musteridurum::Oku(QDate::currentDate());
  QStringList sira;
  for (int r = 0; r < rs.RecordCount(); ++r) sira << rs.Deger(r, 0).toString();
  EXPECT_EQ(sira.join(','), "11,20,1,6,2,3,12");
}

TEST_F(MusteriDurum, EkranBicimleriVeAzalanSiralama) {
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Müşteri Cari Raporu"_s);
  const auto* m = f->DataGrid1->Model();
  QStringList basliklar;
  for (int c = 0; c < m->columnCount(); ++c)
    basliklar << m->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
  EXPECT_EQ(
      basliklar.join('|'),
      u"MusteriNo|Müşteri|Belge|Tutar|Tahsil|Adet|Risk|Adet|K Sız|Adet|Ort. Tutar|Ort. Gün"_s);
  EXPECT_EQ(test::Satirlar(m).value(2),
            u"2|ÇELİK İNŞAAT LTD|2|1.000.000,01|0,01|1|1.000.000,00|1|0,00|0|500.000,01|41,00"_s);

  // A click on a head: descending by that column, every time.
  const auto sirala = [&](const char* alan) {
    test::BaslikTikla(f->DataGrid1, f->rsDurum.AlanNo(alan));
    return test::Satirlar(m, "", {0}).join(',');
  };
  EXPECT_EQ(sirala("Batak"), "6,1,2,3");
  EXPECT_EQ(sirala("Batak"), "6,1,2,3");
  EXPECT_EQ(sirala("Musteri"), "3,2,6,1");
  EXPECT_TRUE(Mesajlar().isEmpty());
}

}  // namespace
