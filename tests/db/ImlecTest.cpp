// The forward-only cursor: the values as a record set gives them, a statement
// run again with other values and letting go of its table when the cursor
// goes, engine failures as db::Hata.

#include <gtest/gtest.h>

#include "db/Imlec.h"
#include "tests/db/Yazdir.h"

namespace {

class Imlec : public VeriTabani {};

TEST_F(Imlec, DegerlerKayitlarinVerdigiGibi) {
  b_.Calistir(
      "INSERT INTO Musteri(MusteriNo, Soyadi, IlKod) VALUES (1, 'ÇAĞLAR', 6), (2, NULL, NULL),"
      " (3, '', 34)");
  const QString sql =
      "SELECT MusteriNo, Soyadi, IlKod * 1.5 AS Oran, 5000000000 AS Buyuk, x'41' AS Ham,"
      " 1e300 * 10 AS Sonsuz FROM Musteri WHERE MusteriNo >= ? ORDER BY MusteriNo";
  db::Kayitlar rs = b_.Sorgu(sql, {1});
  db::Imlec im(b_, sql, {1});
  ASSERT_EQ(im.Alanlar(), rs.Alanlar());
  EXPECT_EQ(im.AlanNo("oran"), 2);
  EXPECT_EQ(im.AlanNo("Yok"), -1);
  int satir = 0;
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext(), ++satir) {
    ASSERT_TRUE(im.Ilerle()) << satir;
    for (int c = 0; c < rs.AlanSayisi(); ++c) {
      const QVariant beklenen = rs.Fields(c), gelen = im.Fields(c);
      EXPECT_EQ(gelen.typeId(), beklenen.typeId()) << satir << "/" << c;
      EXPECT_EQ(gelen, beklenen) << satir << "/" << c;
      EXPECT_EQ(im.Bos(c), db::NullMu(beklenen));
      EXPECT_EQ(im.Metin(c), db::NullMu(beklenen) ? QString() : beklenen.toString());
    }
    EXPECT_EQ(im.Fields("Soyadi"), rs.Fields("Soyadi"));
  }
  EXPECT_EQ(satir, 3);
  EXPECT_TRUE(im.Utf8(1).isEmpty());
  EXPECT_FALSE(im.Ilerle());
  EXPECT_FALSE(im.Ilerle());  // and stays done
  EXPECT_THROW(im.Fields(0), db::Hata);
}

TEST_F(Imlec, YenidenBaskaDegerlerle) {
  b_.Calistir("INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (1, 'A'), (2, 'B'), (3, 'C')");
  db::Imlec im(b_, "SELECT Soyadi FROM Musteri WHERE MusteriNo >= ? ORDER BY MusteriNo", {2});
  ASSERT_TRUE(im.Ilerle());
  EXPECT_EQ(im.Metin(0), "B");
  // Half way through, from the start again with another value.
  im.Yeniden({3});
  EXPECT_THROW(im.Metin(0), db::Hata);  // no row before the first step
  ASSERT_TRUE(im.Ilerle());
  EXPECT_EQ(im.Metin(0), "C");
  EXPECT_FALSE(im.Ilerle());
  im.Yeniden({1});
  QStringList hepsi;
  while (im.Ilerle()) hepsi << im.Metin(0);
  EXPECT_EQ(hepsi, (QStringList{"A", "B", "C"}));
  // A wrong number of values runs nothing.
  EXPECT_THROW(im.Yeniden({1, 2}), db::Hata);
  EXPECT_FALSE(im.Ilerle());
  // While a cursor reads, its tables can't be dropped; once it goes, they can.
  {
    db::Imlec okuyan(b_, "SELECT Soyadi FROM Musteri");
    ASSERT_TRUE(okuyan.Ilerle());
    EXPECT_THROW(b_.Calistir("DROP TABLE Musteri"), db::Hata);
  }
  EXPECT_NO_THROW(b_.Calistir("DROP TABLE Musteri"));
}

TEST_F(Imlec, MotorHatalariHataOlarak) {
  const auto kod = [&](auto&& f) {
    try {
      f();
    } catch (const db::Hata& h) {
      return h.kod();
    }
    return -99;
  };
  EXPECT_GT(kod([&] { db::Imlec im(b_, "SELECT * FROM Yok"); }), 0);
  EXPECT_EQ(kod([&] { db::Imlec im(b_, "SELECT ?", {}); }), db::Hata::kProgram);
  EXPECT_EQ(kod([&] { db::Imlec im(b_, "  -- nothing"); }), db::Hata::kProgram);
  // A failure while stepping: the rows before it came, none after it.
  b_.Calistir("INSERT INTO Musteri(MusteriNo, IlKod) VALUES (1, 1), (2, 0)");
  db::Imlec im(b_,
               "SELECT 10 / IlKod, json(CASE IlKod WHEN 0 THEN '{' ELSE '1' END) FROM Musteri"
               " ORDER BY MusteriNo");
  ASSERT_TRUE(im.Ilerle());
  EXPECT_GT(kod([&] { im.Ilerle(); }), 0);
  EXPECT_FALSE(im.Ilerle());
  b_.Kapat();
  EXPECT_EQ(kod([&] { db::Imlec k(b_, "SELECT 1"); }), db::Hata::kBaglantiYok);
}

}  // namespace
