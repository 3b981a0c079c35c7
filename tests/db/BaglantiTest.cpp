// The connection, its transactions and lock waits, the functions and
// collation it registers, and the client-side record sets.

#include <fcntl.h>
#include <gtest/gtest.h>

#include <QDate>
#include <QElapsedTimer>
#include <atomic>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <future>
#include <thread>
#include <tuple>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "tests/db/Dosya.h"
#include "tests/db/Yazdir.h"

using namespace Qt::StringLiterals;

namespace {

class Baglanti : public VeriTabani {
 protected:
  void MusteriEkle(int no, const QVariant& soyadi) {
    b_.Calistir("INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (?, ?)", {no, soyadi});
  }
};

TEST_F(Baglanti, DegerlerVeKomutlarAynenGidipGelir) {
  // Texts that break SQL built by splicing, and the empty text next to Null.
  const QStringList metinler = {
      "O'Brien", "%50 _indirim_", "ÇĞIİÖŞÜ çğıiöşü âîû", "'; DROP TABLE Musteri; --",
      "a\\b\"c", QString()};
  for (int i = 0; i < metinler.size(); ++i) MusteriEkle(i, metinler[i]);
  MusteriEkle(9, db::Null());
  EXPECT_EQ(Sorgu("SELECT Soyadi FROM Musteri ORDER BY MusteriNo"), metinler.join('\n') + "\nNULL");
  db::Kayitlar rs = b_.Sorgu("SELECT Soyadi FROM Musteri WHERE MusteriNo = 9");
  EXPECT_TRUE(db::NullMu(rs.Fields(0)));
  EXPECT_EQ(rs.Metin("soyadi"), QString());  // as the screens take it; names in any case
  EXPECT_EQ(rs.AlanNo("Yok"), -1);
  EXPECT_THROW(rs.Fields("Yok"), db::Hata);

  // Each kind of value as it is bound; an empty date box is Null.
  EXPECT_EQ(Sorgu("SELECT ?, quote(?), quote(?), quote(?), quote(?), quote(?), quote(?)",
                  {qint64(5000000000), 1234.5, true, QDate(2006, 2, 3),
                   QDateTime(QDate(2006, 2, 3), QTime(14, 5)), QDate(), QDateTime()}),
            u"5000000000|1234.5|1|'2006-02-03'|'2006-02-03 14:05:00'|NULL|NULL"_s);

  // Changed rows, several statements with the values in the order they stand;
  // too few or too many values run nothing.
  EXPECT_EQ(b_.Calistir("INSERT INTO Kur(Doviz) VALUES ('USD'), ('EUR')"), 2);
  EXPECT_EQ(b_.Calistir("CREATE TEMP TABLE Gecici(x)"), 0);
  EXPECT_EQ(b_.Calistir("UPDATE Kur SET Kur = ? WHERE Doviz = ?; DELETE FROM Kur WHERE Doviz = ?; "
                        "-- bitti",
                        {1.5, "USD", "EUR"}),
            2);
  EXPECT_EQ(Sorgu("SELECT Doviz, Kur FROM Kur"), u"USD|1.5"_s);
  EXPECT_THROW(b_.Calistir("DELETE FROM Kur WHERE Doviz = ?"), db::Hata);
  EXPECT_THROW(b_.Calistir("DELETE FROM Kur", {1}), db::Hata);
  EXPECT_EQ(b_.Deger("SELECT count(*) FROM Kur").toInt(), 1);
  // The engine's own text for a faulty statement.
  EXPECT_THROW(b_.Calistir("SELECT * FROM Yok"), db::Hata);
  EXPECT_EQ(b_.HataMetni(), u"no such table: Yok"_s);
  EXPECT_TRUE(db::NullMu(b_.Deger("SELECT Kur FROM Kur WHERE 0")));
}

TEST_F(Baglanti, TurkceSiralamaMotordaVeKayitlarda) {
  const QString alfabe =
      "12 Mart,Ağaç,Ahmet,Cem,Çelik,Dilek,Gül,Güler,ılık,Irmak,Işık,ilker,İpek,ipek,Kâzım,Ozan,"
      "Öztürk,Pala,Quark,Sevgi,Şahin,Uğur,Üstün,Vural,Wagner,Yılmaz,Zeki";
  const QStringList sirali = alfabe.split(',');
  // Stored in an order that no sort of bytes or code points would repair.
  for (int i = 0; i < sirali.size(); ++i) MusteriEkle(i + 1, sirali[(i * 7) % sirali.size()]);
  MusteriEkle(100, db::Null());
  const QString beklenen = sirali.join('\n');
  EXPECT_EQ(Sorgu("SELECT Soyadi FROM Musteri WHERE Soyadi IS NOT NULL "
                  "ORDER BY Soyadi COLLATE TURKCE"),
            beklenen);
  db::Kayitlar rs = b_.Sorgu("SELECT Soyadi FROM Musteri");
  rs.Sort("Soyadi");
  EXPECT_EQ(Satirlar(rs), "NULL\n" + beklenen);  // Null first
  QStringList ters(sirali.rbegin(), sirali.rend());
  rs.Sort("Soyadi", false);
  EXPECT_EQ(Satirlar(rs), ters.join('\n') + "\nNULL");

  for (int i = 1; i < sirali.size(); ++i)
    EXPECT_LT(db::TurkceKarsilastir(sirali[i - 1], sirali[i]), 0) << sirali[i].toStdString();
  EXPECT_EQ(db::TurkceBuyuk("istanbul ılıca çiğ"), u"İSTANBUL ILICA ÇİĞ"_s);
}

// A record set sorted by its Turkish keys stands as the collation orders it,
// equal texts in their first order: texts that differ in case or circumflex
// only, where one is the other's beginning, foreign letters and signs.
TEST_F(Baglanti, KayitlarSiralamasiHarmanlamaIleAyni) {
  const QStringList harfler = {"a", "A", "â", "Â", "ı", "I", "i", "İ", "ç", "c",   "Ç",
                               "ş", "S", " ", "1", "-", "é", "É", "ß", "ǅ", "\x01"};
  std::srand(7);
  b_.Calistir("CREATE TABLE t (id INTEGER PRIMARY KEY, s TEXT)");
  QString onceki;
  for (int i = 0; i < 3000; ++i) {
    QString s;
    for (int n = std::rand() % 5; n > 0; --n) s += harfler[std::rand() % harfler.size()];
    b_.Calistir("INSERT INTO t (s) VALUES (?)", {i % 3 ? s : onceki.toUpper()});
    onceki = s;
  }
  db::Kayitlar rs = b_.Sorgu("SELECT s FROM t ORDER BY id");
  rs.Sort("s");
  EXPECT_EQ(Satirlar(rs), Sorgu("SELECT s FROM t ORDER BY s COLLATE TURKCE, id"));
  EXPECT_GT(Sorgu("SELECT count(*) FROM t a, t b WHERE a.id < b.id AND a.s <> b.s "
                  "AND a.s = b.s COLLATE TURKCE")
                .toInt(),
            100);  // ties the sort must keep in order
}

TEST_F(Baglanti, LikeTurkceBuyukKucukHarfVeEscape) {
  const QStringList adlar = {"ALİ VELİ",  "ALI KIRMIZI", "Çiğdem Işık", "%5 indirim",
                             "5 indirim", "a_b",         "axb"};
  for (int i = 0; i < adlar.size(); ++i) MusteriEkle(i + 1, adlar[i]);
  MusteriEkle(99, db::Null());
  // A condition and the names it finds, in number order. A trailing escape
  // matches nothing.
  const QString durumlar =
      "LIKE 'ali%' -> ALİ VELİ; LIKE 'alı%' -> ALI KIRMIZI; LIKE '%ı%' -> ALI KIRMIZI|Çiğdem Işık; "
      "LIKE 'çİĞDEM%' -> Çiğdem Işık; LIKE '%5 indirim' -> %5 indirim|5 indirim; "
      "LIKE 'a_b' -> a_b|axb; LIKE '' -> ; LIKE '!%5%' ESCAPE '!' -> %5 indirim; "
      "LIKE 'a!_b' ESCAPE '!' -> a_b; LIKE 'a!' ESCAPE '!' -> ";
  for (const QString& d : durumlar.split("; ")) {
    const QString sql =
        "SELECT group_concat(Soyadi, '|') FROM (SELECT Soyadi FROM Musteri "
        "WHERE Soyadi %1 ORDER BY MusteriNo)";
    EXPECT_EQ(b_.Deger(sql.arg(d.section(" -> ", 0, 0))).toString(), d.section(" -> ", 1))
        << d.toStdString();
  }
  EXPECT_EQ(b_.Deger("SELECT count(*) FROM Musteri WHERE Soyadi LIKE '%'").toInt(), adlar.size());
  EXPECT_THROW(b_.Sorgu("SELECT 1 FROM Musteri WHERE Soyadi LIKE 'a' ESCAPE '!!'"), db::Hata);
  EXPECT_EQ(b_.Deger("SELECT 'şişli' NOT LIKE 'ŞİŞ%'").toInt(), 0);
  // Many "%" against a long text that almost matches: answered at once, not
  // after trying every split.
  EXPECT_EQ(b_.Deger("SELECT ? LIKE ?", {QString(2000, 'a'), "%a%a%a%a%a%a%a%a%a%a%b"}).toInt(), 0);
}

TEST_F(Baglanti, TurkceAraliklarHerBuyukKucukBicimiIndekstenBulur) {
  // Keys of the duplicate test, stored in many case forms; the rows a key
  // stands for are exactly those with the same Turkish upper case.
  const QStringList anahtarlar = {
      "ışık",  "IŞIK",   "Işık",   "ISIK",    "isik",     "İŞİK",      "ſahin",
      "SAHİN", "sahin",  "Şahin",  "ALİVELİ", "alİvElİ",  "AliVeli",   "ALIVELI",
      "",      u"𝔸li"_s, u"𝔸Lİ"_s, "a",       "A",        "Ab",        u"\U0010FFFFa"_s,
      "İnce",  "iNCE",   "INCE",   "ınce",    "ALİVELİK", "ALİVELİK1", "0"};
  for (int i = 0; i < anahtarlar.size(); ++i)
    b_.Calistir("INSERT INTO Musteri(MusteriNo, Aranacak) VALUES (?, ?)", {i + 1, anahtarlar[i]});
  for (const int enFazla : {1, 4, 16}) {
    for (const QString& aranan : anahtarlar) {
      QStringList beklenen, bulunan;
      for (const QString& a : anahtarlar)
        if (db::TurkceBuyuk(a) == db::TurkceBuyuk(aranan)) beklenen << a;
      const std::vector<db::Aralik> araliklar = db::TurkceAraliklar(aranan, enFazla);
      EXPECT_LE(araliklar.size(), std::size_t(std::max(enFazla, 3))) << aranan.toStdString();
      for (const db::Aralik& r : araliklar) {
        db::Kayitlar rs = b_.Sorgu(
            "SELECT Aranacak FROM Musteri WHERE Aranacak >= ?1 AND (?2 = '' OR Aranacak < ?2)",
            {r.alt, r.ust});
        for (; !rs.Eof(); rs.MoveNext())
          if (db::TurkceBuyuk(rs.Metin("Aranacak")) == db::TurkceBuyuk(aranan))
            bulunan << rs.Metin("Aranacak");
      }
      beklenen.sort();
      bulunan.sort();
      EXPECT_EQ(bulunan, beklenen) << enFazla << " " << aranan.toStdString();
    }
  }
  // The candidates come through the index.
  db::Kayitlar plan = b_.Sorgu(
      "EXPLAIN QUERY PLAN SELECT MusteriNo FROM Musteri WHERE Aranacak >= ? AND Aranacak < ?",
      {"A", "B"});
  ASSERT_TRUE(plan.SatirVar());
  EXPECT_TRUE(plan.Metin("detail").contains("Musteri_Aranacak"))
      << plan.Metin("detail").toStdString();
}

TEST_F(Baglanti, WeekdayGunFarkiVal) {
  // quote() tells an integer from a real and Null from a text. 2024-01-07 is
  // a Sunday.
  const QString durumlar =
      "Weekday('2024-01-07 23:59:59') -> 1; Weekday('2024-01-13') -> 7; "
      "Weekday('2023-02-29') -> NULL; Weekday('07.01.2024') -> NULL; Weekday(NULL) -> NULL; "
      "GunFarki('2006-03-01', '2006-01-30') -> -30; "
      "GunFarki('2005-12-31 23:00:00', '2006-01-01') -> 1; GunFarki(NULL, '2006-01-01') -> NULL; "
      "Val('12abc') -> 12; Val(' 1 2 3') -> 123; Val('-12.5x') -> -12.5; Val('1.2.3') -> 1.2; "
      "Val('1.5e2TL') -> 150.0; Val('7e') -> 7; Val('5-3') -> 5; Val('30 gün') -> 30; "
      "Val('abc') -> 0; Val('') -> 0; Val('+-4') -> 0; Val(4711) -> 4711; Val(99.5) -> 99.5; "
      "Val(NULL) -> NULL";
  for (const QString& d : durumlar.split("; ")) {
    const QString ifade = d.section(" -> ", 0, 0);
    EXPECT_EQ(b_.Deger("SELECT quote(" + ifade + ")").toString(), d.section(" -> ", 1))
        << d.toStdString();
  }

  // Against the engine's own calendar over three years, leap day included.
  EXPECT_EQ(b_.Deger("SELECT count(*) FROM (WITH RECURSIVE g(d) AS (SELECT '2003-11-20' UNION ALL "
                     "SELECT date(d, '+1 day') FROM g WHERE d < '2006-12-31') SELECT d FROM g "
                     "WHERE Weekday(d) <> strftime('%w', d) + 1 OR GunFarki('2003-11-20', d) "
                     "<> julianday(d) - julianday('2003-11-20'))")
                .toInt(),
            0);
}

TEST_F(Baglanti, KayitlarIkiUctaHareket) {
  db::Kayitlar bos = b_.Sorgu("SELECT * FROM Musteri");
  EXPECT_EQ(bos.AlanSayisi(), 22);  // the fields are known without a row
  bos.MoveLast();
  EXPECT_TRUE(bos.Eof() && bos.Bof() && bos.AbsolutePosition() == 0);
  EXPECT_THROW(bos.Fields(0), db::Hata);

  for (int i = 1; i <= 3; ++i) MusteriEkle(i, QString("M%1").arg(i));
  db::Kayitlar rs = b_.Sorgu("SELECT Soyadi FROM Musteri ORDER BY MusteriNo");
  // Each step and where it leaves the set: the row and its position.
  using K = db::Kayitlar;
  const auto git = [](int n) { return [n](K& k) { k.setAbsolutePosition(n); }; };
  const auto tas = [](int n) { return [n](K& k) { k.Move(n); }; };
  const std::pair<std::function<void(K&)>, const char*> adimlar[] = {
      {[](K&) {}, "M1 1"},         {&K::MoveLast, "M3 3"},
      {&K::MoveNext, "EOF 0"},     {&K::MoveNext, "EOF 0"},
      {&K::MovePrevious, "M3 3"},  {&K::MoveFirst, "M1 1"},
      {&K::MovePrevious, "BOF 0"}, {&K::MovePrevious, "BOF 0"},
      {&K::MoveNext, "M1 1"},      {git(2), "M2 2"},
      {git(4), "EOF 0"},           {tas(-5), "BOF 0"},
      {tas(99), "EOF 0"},          {&K::MovePrevious, "M3 3"}};
  int i = 0;
  for (const auto& [adim, beklenen] : adimlar) {
    adim(rs);
    const QString satir = rs.Eof() ? "EOF" : rs.Bof() ? "BOF" : rs.Metin("Soyadi");
    EXPECT_EQ(satir + ' ' + QString::number(rs.AbsolutePosition()), QString(beklenen))
        << "step " << i++;
  }
  rs.Move(-1);
  EXPECT_THROW(rs.Fields(0), db::Hata);
}

TEST_F(Baglanti, KayitlarFindSortBookmarkRequery) {
  const char* adlar[] = {"Ada", "Bora", "Ada", "Çetin"};
  for (int i = 0; i < 4; ++i) MusteriEkle(i + 1, adlar[i]);
  b_.Calistir("UPDATE Musteri SET PostaKod = '0' || MusteriNo, Adi = NULL WHERE MusteriNo <> 2");
  // The last row holds a number where the others hold texts.
  db::Kayitlar rs = b_.Sorgu(
      "SELECT MusteriNo, Soyadi, PostaKod, Adi FROM Musteri WHERE MusteriNo > ? "
      "UNION ALL SELECT 9, 42, NULL, 'x' ORDER BY MusteriNo",
      {0});
  // Find from a row on, that row included, or from the first (0); the
  // position found, 0 and EOF when none. Texts as typed; numbers by value,
  // also when typed as text.
  const std::tuple<int, const char*, QVariant, int> durumlar[] = {
      {1, "Soyadi", "Ada", 1}, {2, "Soyadi", "Ada", 3},  {4, "Soyadi", "Ada", 0},
      {0, "Soyadi", "ada", 0}, {0, "MusteriNo", "4", 4}, {0, "MusteriNo", 2.0, 2},
      {0, "PostaKod", 3, 3},   {0, "PostaKod", "3", 0},  {0, "Adi", db::Null(), 1}};
  for (const auto& [bas, alan, deger, konum] : durumlar) {
    rs.setAbsolutePosition(bas);
    const bool bulundu = rs.Find(alan, deger, bas == 0);
    EXPECT_EQ(rs.AbsolutePosition(), konum) << alan << " " << deger.toString().toStdString();
    EXPECT_EQ(bulundu, !rs.Eof());
  }
  EXPECT_TRUE(rs.FindIf([](const db::Kayitlar& k) { return k.Metin("Soyadi") > "Bora"; }, true));
  const db::Kayitlar::Bookmark cetin = rs.bookmark();
  rs.MoveLast();
  const db::Kayitlar::Bookmark son = rs.bookmark();

  // The numbers in the order the set now shows its rows.
  const auto sira = [&] {
    QStringList l;
    for (int i = 0; i < rs.RecordCount(); ++i) l << rs.Deger(i, 0).toString();
    return l.join(' ');
  };
  // Sort: numbers before texts, ties in their order; the current row stays
  // current and bookmarks stay valid.
  rs.Sort("Soyadi");
  EXPECT_EQ(sira(), u"9 1 3 2 4"_s);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  rs.setBookmark(cetin);
  EXPECT_EQ(rs.AbsolutePosition(), 5);
  rs.Sort("MusteriNo", false);
  EXPECT_EQ(rs.Metin("Soyadi") + QString::number(rs.AbsolutePosition()), u"Çetin2"_s);
  rs.setBookmark(son);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  rs.setBookmark(77);
  EXPECT_TRUE(rs.Eof());
  EXPECT_EQ(rs.bookmark(), -1);
  rs.Sort("Soyadi");  // without a current row: to the first one
  EXPECT_EQ(rs.AbsolutePosition(), 1);

  // Requery: the same statement and values again, new rows included, in the
  // query's own order.
  MusteriEkle(5, "Deniz");
  MusteriEkle(0, "Sıfır");
  rs.Requery();
  EXPECT_EQ(sira(), u"1 2 3 4 5 9"_s);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
}

// One row read again: its new texts and Nulls, the rest left as loaded (a
// row the statement doesn't see stays unchanged), the query's order and the
// first row as after a Requery. A row gone from the table, or a statement of
// another shape, reads the whole set again.
TEST_F(Baglanti, KayitlarSatirYenile) {
  for (int i = 1; i <= 4; ++i) MusteriEkle(i, QString("Ad%1").arg(i));
  const QString satir = "SELECT MusteriNo, Soyadi, Adi FROM Musteri WHERE MusteriNo = ?";
  db::Kayitlar rs = b_.Sorgu("SELECT MusteriNo, Soyadi, Adi FROM Musteri ORDER BY MusteriNo");
  const auto sira = [&] {
    QStringList l;
    for (int r = 0; r < rs.RecordCount(); ++r)
      l << rs.Deger(r, 1).toString() +
               (db::NullMu(rs.Deger(r, 2)) ? "" : "/" + rs.Deger(r, 2).toString());
    return l.join(' ');
  };
  rs.Sort("MusteriNo", false);
  rs.setAbsolutePosition(2);
  b_.Calistir("UPDATE Musteri SET Soyadi = 'Şahin uzun bir ad', Adi = 'Ali' WHERE MusteriNo = 3");
  b_.Calistir("UPDATE Musteri SET Soyadi = 'Başka' WHERE MusteriNo = 4");
  EXPECT_TRUE(rs.SatirYenile("MusteriNo", 3, satir, {3}));
  EXPECT_EQ(sira(), u"Ad1 Ad2 Şahin uzun bir ad/Ali Ad4"_s);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  b_.Calistir("UPDATE Musteri SET Soyadi = NULL, Adi = NULL WHERE MusteriNo = 3");
  EXPECT_TRUE(rs.SatirYenile("MusteriNo", 3, satir, {3}));
  EXPECT_EQ(sira(), u"Ad1 Ad2  Ad4"_s);
  EXPECT_TRUE(db::NullMu(rs.Deger(2, 1)));

  b_.Calistir("DELETE FROM Musteri WHERE MusteriNo = 2");
  EXPECT_FALSE(rs.SatirYenile("MusteriNo", 2, satir, {2}));
  EXPECT_EQ(sira(), u"Ad1  Başka"_s);
  b_.Calistir("UPDATE Musteri SET Soyadi = 'Yeni' WHERE MusteriNo = 1");
  EXPECT_FALSE(
      rs.SatirYenile("MusteriNo", 1, "SELECT MusteriNo FROM Musteri WHERE MusteriNo = ?", {1}));
  EXPECT_EQ(sira(), u"Yeni  Başka"_s);
}

TEST_F(Baglanti, IslemHataVerenKomuttaHicIzBirakmaz) {
  const QString ekle = "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tutar) VALUES ('FA', ?, 1)";
  EXPECT_THROW(
      {
        db::Islem islem(b_);
        b_.Calistir("DELETE FROM Il_Trafik_Kodu");
        b_.Calistir(ekle, {1});
        b_.Calistir(ekle, {1});  // the key is taken
        islem.Onayla();
      },
      db::Hata);
  EXPECT_FALSE(b_.IslemIcinde());
  EXPECT_EQ(Sorgu("SELECT (SELECT count(*) FROM Fatura), count(*) FROM Il_Trafik_Kodu"), u"0|81"_s);

  {
    db::Islem dis(b_);
    b_.Calistir(ekle, {1});
    {
      // An inner one that fails undoes only its own part.
      db::Islem ic(b_);
      b_.Calistir(ekle, {2});
    }
    db::Islem ic(b_);
    b_.Calistir(ekle, {3});
    ic.Onayla();
    EXPECT_TRUE(b_.IslemIcinde());
    dis.Onayla();
  }
  EXPECT_FALSE(b_.IslemIcinde());
  EXPECT_EQ(Sorgu("SELECT FaturaNo FROM Fatura ORDER BY FaturaNo"), u"1\n3"_s);
}

TEST_F(Baglanti, KilitBeklenirSurerseMotorunMetniyleDuser) {
  // Another connection that holds the lock for a while: the write waits.
  std::promise<void> kilitli;
  std::atomic<bool> birakti{false};
  std::thread kisaTutan([&] {
    db::Baglanti k;
    k.Ac(yol_);
    db::Islem islem(k);
    k.Calistir("INSERT INTO Musteri(MusteriNo) VALUES (1)");
    kilitli.set_value();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    birakti = true;
    islem.Onayla();
  });
  kilitli.get_future().wait();
  EXPECT_EQ(b_.Bekleme(), db::Baglanti::kBekleme);
  EXPECT_NO_THROW(b_.Calistir("INSERT INTO Musteri(MusteriNo) VALUES (2)"));
  EXPECT_TRUE(birakti);
  kisaTutan.join();

  // One that holds it longer than the wait: the write fails after it.
  db::Baglanti tutan;
  tutan.Ac(yol_);
  db::Islem islem(tutan);
  tutan.Calistir("DELETE FROM Musteri");
  b_.BeklemeAyarla(200);
  QElapsedTimer sure;
  sure.start();
  EXPECT_THROW(b_.Calistir("INSERT INTO Musteri(MusteriNo) VALUES (3)"), db::Hata);
  EXPECT_EQ(b_.HataMetni(), u"database is locked"_s);
  EXPECT_GE(sure.elapsed(), 150);
  // Reading is not held up by a writer that hasn't committed.
  EXPECT_EQ(b_.Deger("SELECT count(*) FROM Musteri").toInt(), 2);
  // The setting outlives a reopen.
  b_.Kapat();
  b_.YenidenAc();
  EXPECT_EQ(b_.Bekleme(), 200);
  EXPECT_THROW(b_.Calistir("DELETE FROM Kur"), db::Hata);
}

TEST_F(Baglanti, KullanilamayanDosyaMotorunMetniyleVeDokunulmadan) {
  const auto hata = [](const QString& yol, db::Baglanti::Kip kip = db::Baglanti::Kip::YazOku) {
    db::Baglanti b;
    try {
      b.Ac(yol, kip);
    } catch (const db::Hata& h) {
      EXPECT_FALSE(b.Acik());
      return h.metin();
    }
    return QString("<açıldı>");
  };

  // Not a database: refused, and left as it was.
  const QString metin = dizin_.filePath("metin.db");
  QFile f(metin);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly) && f.write(QByteArray(1000, 'x')) == 1000);
  f.close();
  EXPECT_EQ(hata(metin), u"file is not a database"_s);
  EXPECT_EQ(Icerik(metin), QByteArray(1000, 'x'));

  // Missing: not created.
  const QString yok = dizin_.filePath("yok.db");
  EXPECT_EQ(hata(yok), u"unable to open database file"_s);
  EXPECT_EQ(hata(yok, db::Baglanti::Kip::SadeceOku), u"unable to open database file"_s);
  EXPECT_FALSE(QFile::exists(yok));

  // A new database is its owner's only: it holds customers' identity and tax
  // numbers. Creating over an existing one is refused.
  EXPECT_EQ(QFile::permissions(yol_) & QFileDevice::Permissions(0x7077),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  b_.Calistir("INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (1, 'Işık')");
  b_.Kapat();
  const QByteArray dbIcerik = Icerik(yol_);
  EXPECT_THROW(db::Baglanti().Olustur(yol_), db::Hata);
  EXPECT_EQ(Icerik(yol_), dbIcerik);

  // Read-only, opened for writing: refused; read-only use still works.
  ASSERT_TRUE(QFile::setPermissions(yol_, QFileDevice::ReadOwner));
  {
    YazmaYetkisiBirak yetki;
    const int fd = ::open(QFile::encodeName(yol_).constData(), O_WRONLY);
    if (fd >= 0) {
      ::close(fd);
      GTEST_SKIP() << "this process writes read-only files";
    }
    EXPECT_EQ(hata(yol_), u"attempt to write a readonly database"_s);
    db::Baglanti okur;
    okur.Ac(yol_, db::Baglanti::Kip::SadeceOku);
    EXPECT_EQ(okur.Deger("SELECT Soyadi FROM Musteri").toString(), u"Işık"_s);
    EXPECT_THROW(okur.Calistir("DELETE FROM Musteri"), db::Hata);
  }
  EXPECT_EQ(Icerik(yol_), dbIcerik);
  EXPECT_FALSE(QFile::exists(yol_ + "-journal"));
}

}  // namespace
