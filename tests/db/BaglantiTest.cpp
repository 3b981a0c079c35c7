// The connection, its transactions and lock waits, the functions and
// collation it registers, and the client-side record sets.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QDate>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <atomic>
#include <chrono>
#include <future>
#include <thread>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "tests/db/Yazdir.h"

namespace {

class Baglanti : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dizin_.isValid());
    yol_ = dizin_.filePath(QStringLiteral("velmora.db"));
    b_.Olustur(yol_);
  }

  QStringList Sutun(db::Kayitlar rs, const QString& alan) {
    QStringList l;
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) l << rs.Metin(alan);
    return l;
  }
  QStringList Sutun(const QString& sql, const QVariantList& deger = {}) {
    db::Kayitlar rs = b_.Sorgu(sql, deger);
    return Sutun(rs, rs.Alanlar().value(0));
  }
  void MusteriEkle(int no, const QVariant& soyadi) {
    b_.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (?, ?)"),
                {no, soyadi});
  }
  QVariant Hesapla(const QString& ifade, const QVariantList& deger = {}) {
    return b_.Deger(QStringLiteral("SELECT ") + ifade, deger);
  }

  QTemporaryDir dizin_;
  QString yol_;
  db::Baglanti b_;
};

// --- values in and out

TEST_F(Baglanti, NullBosMetindenAyriVeOzelKarakterlerAynenDoner) {
  const QStringList metinler = {QStringLiteral("O'Brien"), QStringLiteral("%50 _indirim_"),
                                QStringLiteral("ÇĞIİÖŞÜ çğıiöşü âîû"),
                                QStringLiteral("'; DROP TABLE Musteri; --"),
                                QStringLiteral("a\\b\"c")};
  for (int i = 0; i < metinler.size(); ++i) MusteriEkle(i + 1, metinler[i]);
  MusteriEkle(10, db::Null());
  MusteriEkle(11, QString());
  MusteriEkle(12, QStringLiteral(""));

  for (int i = 0; i < metinler.size(); ++i) {
    EXPECT_EQ(b_.Deger(QStringLiteral("SELECT Soyadi FROM Musteri WHERE Soyadi = ?"), {metinler[i]})
                  .toString(),
              metinler[i]);
  }
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Musteri WHERE Soyadi IS NULL")).toInt(),
            1);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Musteri WHERE Soyadi = ''")).toInt(), 2);

  db::Kayitlar rs =
      b_.Sorgu(QStringLiteral("SELECT Soyadi FROM Musteri WHERE MusteriNo >= 10 "
                              "ORDER BY MusteriNo"));
  EXPECT_TRUE(db::NullMu(rs.Fields(0)));
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QString());  // as the screens take it
  rs.MoveNext();
  EXPECT_FALSE(db::NullMu(rs.Fields(0)));
  EXPECT_EQ(rs.Fields(0).toString(), QString());
}

TEST_F(Baglanti, TurlerBaglanirVeOkunur) {
  b_.Calistir(QStringLiteral("INSERT INTO Sozlesme(SozlesmeID, Tarih, Tutar, Hesapla, Gun, "
                             "Yaziyla) VALUES (?, ?, ?, ?, ?, ?)"),
              {qint64(5000000000), QDate(2006, 2, 3), 1234.5, true, QDate(), QDateTime()});
  db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT * FROM Sozlesme"));
  EXPECT_EQ(rs.Fields(QStringLiteral("SozlesmeID")).typeId(), QMetaType::LongLong);
  EXPECT_EQ(rs.Fields(QStringLiteral("SozlesmeID")).toLongLong(), 5000000000);
  EXPECT_EQ(rs.Fields(QStringLiteral("Tarih")).toString(), QStringLiteral("2006-02-03"));
  EXPECT_EQ(rs.Fields(QStringLiteral("Tutar")).typeId(), QMetaType::Double);
  EXPECT_EQ(rs.Fields(QStringLiteral("Tutar")).toDouble(), 1234.5);
  EXPECT_EQ(rs.Fields(QStringLiteral("Hesapla")).toInt(), 1);
  // An empty date box is Null, never an empty text.
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("Gun"))));
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("Yaziyla"))));
  // Field names are found whatever their case.
  EXPECT_EQ(rs.AlanNo(QStringLiteral("sozlesmeid")), 0);
  EXPECT_EQ(rs.AlanNo(QStringLiteral("Yok")), -1);
  EXPECT_THROW(rs.Fields(QStringLiteral("Yok")), db::Hata);
}

TEST_F(Baglanti, CalistirDegisenSatirlariVeBirdenCokKomutu) {
  EXPECT_EQ(b_.Calistir(QStringLiteral("INSERT INTO Kur(Tarih, Doviz) VALUES ('2006-01-01', "
                                       "'USD'), ('2006-01-01', 'EUR')")),
            2);
  EXPECT_EQ(b_.Calistir(QStringLiteral("CREATE TEMP TABLE Gecici(x)")), 0);
  // Several statements: the values go to the parameters in the order they stand.
  EXPECT_EQ(b_.Calistir(QStringLiteral("UPDATE Kur SET Kur = ? WHERE Doviz = ?; "
                                       "DELETE FROM Kur WHERE Doviz = ?; -- bitti"),
                        {1.5, QStringLiteral("USD"), QStringLiteral("EUR")}),
            2);
  EXPECT_EQ(Sutun(QStringLiteral("SELECT Doviz || '=' || Kur FROM Kur")), QStringList({"USD=1.5"}));
  // Too few or too many values: nothing runs.
  EXPECT_THROW(b_.Calistir(QStringLiteral("DELETE FROM Kur WHERE Doviz = ?")), db::Hata);
  EXPECT_THROW(b_.Calistir(QStringLiteral("DELETE FROM Kur"), {1}), db::Hata);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Kur")).toInt(), 1);
  // The engine's own text for a faulty statement.
  try {
    b_.Calistir(QStringLiteral("SELECT * FROM Yok"));
    FAIL();
  } catch (const db::Hata& h) {
    EXPECT_EQ(h.metin(), QStringLiteral("no such table: Yok"));
    EXPECT_EQ(b_.HataMetni(), h.metin());
  }
  EXPECT_TRUE(db::NullMu(b_.Deger(QStringLiteral("SELECT Kur FROM Kur WHERE 0"))));
}

// --- Turkish order and LIKE

TEST_F(Baglanti, TurkceSiralamaMotordaVeKayitlarda) {
  const QStringList sirali = {
      QStringLiteral("12 Mart"), QStringLiteral("Ağaç"),   QStringLiteral("Ahmet"),
      QStringLiteral("Cem"),     QStringLiteral("Çelik"),  QStringLiteral("Dilek"),
      QStringLiteral("Gül"),     QStringLiteral("Güler"),  QStringLiteral("ılık"),
      QStringLiteral("Irmak"),   QStringLiteral("Işık"),   QStringLiteral("ilker"),
      QStringLiteral("İpek"),    QStringLiteral("ipek"),   QStringLiteral("Kâzım"),
      QStringLiteral("Ozan"),    QStringLiteral("Öztürk"), QStringLiteral("Pala"),
      QStringLiteral("Quark"),   QStringLiteral("Sevgi"),  QStringLiteral("Şahin"),
      QStringLiteral("Uğur"),    QStringLiteral("Üstün"),  QStringLiteral("Vural"),
      QStringLiteral("Wagner"),  QStringLiteral("Yılmaz"), QStringLiteral("Zeki")};
  // Stored in an order that no sort of bytes or code points would repair.
  for (int i = 0; i < sirali.size(); ++i) MusteriEkle(i + 1, sirali[(i * 7) % sirali.size()]);
  MusteriEkle(100, db::Null());

  EXPECT_EQ(Sutun(QStringLiteral("SELECT Soyadi FROM Musteri WHERE Soyadi IS NOT NULL "
                                 "ORDER BY Soyadi COLLATE TURKCE")),
            sirali);

  db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT MusteriNo, Soyadi FROM Musteri"));
  rs.Sort(QStringLiteral("Soyadi"));
  rs.MoveFirst();
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("Soyadi"))));  // Null first
  rs.MoveNext();
  QStringList l;
  for (; !rs.Eof(); rs.MoveNext()) l << rs.Metin(QStringLiteral("Soyadi"));
  EXPECT_EQ(l, sirali);
  rs.Sort(QStringLiteral("Soyadi"), false);
  rs.MoveFirst();
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("Zeki"));
  EXPECT_TRUE(db::NullMu(rs.Deger(rs.RecordCount() - 1, 1)));

  EXPECT_LT(db::TurkceKarsilastir(QStringLiteral("Çınar"), QStringLiteral("Dere")), 0);
  EXPECT_GT(db::TurkceKarsilastir(QStringLiteral("İnci"), QStringLiteral("Irmak")), 0);
  EXPECT_EQ(db::TurkceKarsilastir(QStringLiteral("Şule"), QStringLiteral("Şule")), 0);
  EXPECT_EQ(db::TurkceBuyuk(QStringLiteral("istanbul ılıca çiğ")),
            QStringLiteral("İSTANBUL ILICA ÇİĞ"));
}

TEST_F(Baglanti, LikeTurkceBuyukKucukHarfVeEscape) {
  const QStringList adlar = {QStringLiteral("ALİ VELİ"),    QStringLiteral("ALI KIRMIZI"),
                             QStringLiteral("Çiğdem Işık"), QStringLiteral("%5 indirim"),
                             QStringLiteral("5 indirim"),   QStringLiteral("a_b"),
                             QStringLiteral("axb")};
  for (int i = 0; i < adlar.size(); ++i) MusteriEkle(i + 1, adlar[i]);
  MusteriEkle(99, db::Null());
  const auto bul = [&](const QString& desen) {
    return Sutun(QStringLiteral("SELECT Soyadi FROM Musteri WHERE Soyadi LIKE ? ORDER BY "
                                "MusteriNo"),
                 {desen});
  };
  const auto bulEscape = [&](const QString& desen) {
    return Sutun(QStringLiteral("SELECT Soyadi FROM Musteri WHERE Soyadi LIKE ? ESCAPE '!' "
                                "ORDER BY MusteriNo"),
                 {desen});
  };
  EXPECT_EQ(bul(QStringLiteral("ali%")), QStringList({"ALİ VELİ"}));
  EXPECT_EQ(bul(QStringLiteral("alı%")), QStringList({"ALI KIRMIZI"}));
  EXPECT_EQ(bul(QStringLiteral("%ı%")), QStringList({"ALI KIRMIZI", "Çiğdem Işık"}));
  EXPECT_EQ(bul(QStringLiteral("çİĞDEM%")), QStringList({"Çiğdem Işık"}));
  EXPECT_EQ(bul(QStringLiteral("%5 indirim")), QStringList({"%5 indirim", "5 indirim"}));
  EXPECT_EQ(bul(QStringLiteral("a_b")), QStringList({"a_b", "axb"}));
  EXPECT_EQ(bulEscape(QStringLiteral("!%5%")), QStringList({"%5 indirim"}));
  EXPECT_EQ(bulEscape(QStringLiteral("a!_b")), QStringList({"a_b"}));
  EXPECT_EQ(bulEscape(QStringLiteral("a!")), QStringList());
  EXPECT_EQ(bul(QString()), QStringList());
  EXPECT_EQ(bul(QStringLiteral("%")).size(), adlar.size());  // but not the Null
  EXPECT_THROW(b_.Sorgu(QStringLiteral("SELECT 1 FROM Musteri WHERE Soyadi LIKE 'a' ESCAPE '!!'")),
               db::Hata);
  // Many "%" against a long text that almost matches: answered at once, not
  // after trying every split.
  EXPECT_EQ(Hesapla(QStringLiteral("? LIKE ?"),
                    {QString(2000, QLatin1Char('a')), QStringLiteral("%a%a%a%a%a%a%a%a%a%a%b")})
                .toInt(),
            0);
  EXPECT_EQ(Hesapla(QStringLiteral("'şişli' NOT LIKE 'ŞİŞ%'")).toInt(), 0);
}

// --- Weekday, GunFarki, Val

TEST_F(Baglanti, WeekdayVeGunFarki) {
  EXPECT_EQ(Hesapla(QStringLiteral("Weekday('2024-01-07')")).toInt(), 1);  // a Sunday
  EXPECT_EQ(Hesapla(QStringLiteral("Weekday('2024-01-08')")).toInt(), 2);
  EXPECT_EQ(Hesapla(QStringLiteral("Weekday('2024-01-13')")).toInt(), 7);
  EXPECT_EQ(Hesapla(QStringLiteral("Weekday('2024-01-07 23:59:59')")).toInt(), 1);
  EXPECT_EQ(Hesapla(QStringLiteral("Weekday(?)"), {QDate(2006, 9, 15)}).toInt(), 6);
  EXPECT_TRUE(db::NullMu(Hesapla(QStringLiteral("Weekday(NULL)"))));
  EXPECT_TRUE(db::NullMu(Hesapla(QStringLiteral("Weekday('2023-02-29')"))));
  EXPECT_TRUE(db::NullMu(Hesapla(QStringLiteral("Weekday('07.01.2024')"))));

  EXPECT_EQ(Hesapla(QStringLiteral("GunFarki('2024-02-28', '2024-03-01')")).toInt(), 2);
  EXPECT_EQ(Hesapla(QStringLiteral("GunFarki('2023-02-28', '2023-03-01')")).toInt(), 1);
  EXPECT_EQ(Hesapla(QStringLiteral("GunFarki('2006-03-01', '2006-01-30')")).toInt(), -30);
  EXPECT_EQ(Hesapla(QStringLiteral("GunFarki(?, ?)"),
                    {QDateTime(QDate(2005, 12, 31), QTime(23, 0)), QDate(2006, 1, 1)})
                .toInt(),
            1);
  EXPECT_TRUE(db::NullMu(Hesapla(QStringLiteral("GunFarki(NULL, '2006-01-01')"))));

  // Against the engine's own calendar over three years, leap day included.
  EXPECT_EQ(Hesapla(QStringLiteral(
                        "count(*) FROM (WITH RECURSIVE g(d) AS (SELECT '2003-11-20' UNION ALL "
                        "SELECT date(d, '+1 day') FROM g WHERE d < '2006-12-31') SELECT d FROM g "
                        "WHERE Weekday(d) <> strftime('%w', d) + 1 OR GunFarki('2003-11-20', d) "
                        "<> julianday(d) - julianday('2003-11-20'))"))
                .toInt(),
            0);
}

TEST_F(Baglanti, ValMetninBasindakiSayi) {
  const auto val = [&](const QVariant& x) { return Hesapla(QStringLiteral("Val(?)"), {x}); };
  EXPECT_EQ(val(QStringLiteral("12abc")), QVariant(qlonglong(12)));
  EXPECT_EQ(val(QStringLiteral(" 1 2 3")), QVariant(qlonglong(123)));
  EXPECT_EQ(val(QStringLiteral("-12.5x")), QVariant(-12.5));
  EXPECT_EQ(val(QStringLiteral("1.2.3")), QVariant(1.2));
  EXPECT_EQ(val(QStringLiteral("1.5e2TL")), QVariant(150.0));
  EXPECT_EQ(val(QStringLiteral("7e")), QVariant(qlonglong(7)));
  EXPECT_EQ(val(QStringLiteral("5-3")), QVariant(qlonglong(5)));
  EXPECT_EQ(val(QStringLiteral("abc")), QVariant(qlonglong(0)));
  EXPECT_EQ(val(QString()), QVariant(qlonglong(0)));
  EXPECT_EQ(val(QStringLiteral("+-4")), QVariant(qlonglong(0)));
  EXPECT_TRUE(db::NullMu(val(db::Null())));

  b_.Calistir(
      QStringLiteral("INSERT INTO Sozlesme(SozlesmeID, SozlesmeNo, Gun, Tutar) "
                     "VALUES (1, 4711, '30 gün', 99.5)"));
  db::Kayitlar rs = b_.Sorgu(QStringLiteral(
      "SELECT Val(SozlesmeNo) AS No, Val(Gun) AS Gun, Val(Tutar) AS Tutar FROM Sozlesme"));
  EXPECT_EQ(rs.Fields(QStringLiteral("No")), QVariant(qlonglong(4711)));
  EXPECT_EQ(rs.Fields(QStringLiteral("Gun")), QVariant(qlonglong(30)));
  EXPECT_EQ(rs.Fields(QStringLiteral("Tutar")), QVariant(99.5));
}

// --- record sets

TEST_F(Baglanti, KayitlarIkiUctaHareket) {
  db::Kayitlar bos = b_.Sorgu(QStringLiteral("SELECT * FROM Musteri"));
  EXPECT_TRUE(bos.Eof());
  EXPECT_TRUE(bos.Bof());
  EXPECT_EQ(bos.RecordCount(), 0);
  EXPECT_EQ(bos.AbsolutePosition(), 0);
  EXPECT_EQ(bos.AlanSayisi(), 22);  // the fields are known without a row
  bos.MoveLast();
  EXPECT_TRUE(bos.Eof() && bos.Bof());
  EXPECT_THROW(bos.Fields(0), db::Hata);

  for (int i = 1; i <= 3; ++i) MusteriEkle(i, QStringLiteral("M%1").arg(i));
  db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT Soyadi FROM Musteri ORDER BY MusteriNo"));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  EXPECT_FALSE(rs.Bof());
  rs.MoveLast();
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("M3"));
  rs.MoveNext();
  EXPECT_TRUE(rs.Eof());
  EXPECT_FALSE(rs.Bof());
  EXPECT_EQ(rs.AbsolutePosition(), 0);
  rs.MoveNext();  // stays at EOF
  rs.MovePrevious();
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("M3"));
  rs.MoveFirst();
  rs.MovePrevious();
  EXPECT_TRUE(rs.Bof());
  EXPECT_FALSE(rs.Eof());
  EXPECT_THROW(rs.Fields(0), db::Hata);
  rs.MovePrevious();
  rs.MoveNext();
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("M1"));
  rs.setAbsolutePosition(2);
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("M2"));
  rs.setAbsolutePosition(4);
  EXPECT_TRUE(rs.Eof());
  rs.Move(-5);
  EXPECT_TRUE(rs.Bof());
  rs.MoveNext();
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  rs.Move(99);
  EXPECT_TRUE(rs.Eof());
  rs.MovePrevious();
  EXPECT_EQ(rs.AbsolutePosition(), 3);
}

TEST_F(Baglanti, KayitlarFindVeRequery) {
  const char* adlar[] = {"Ada", "Bora", "Ada", "Cem"};
  for (int i = 0; i < 4; ++i) MusteriEkle(i + 1, QString::fromUtf8(adlar[i]));
  b_.Calistir(
      QStringLiteral("UPDATE Musteri SET PostaKod = '0' || MusteriNo, Adi = NULL "
                     "WHERE MusteriNo <> 2"));
  const QString sql = QStringLiteral(
      "SELECT MusteriNo, Soyadi, PostaKod, Adi FROM Musteri WHERE MusteriNo > ? "
      "ORDER BY MusteriNo");
  db::Kayitlar rs = b_.Sorgu(sql, {0});

  // From the current row on, the current row included.
  EXPECT_TRUE(rs.Find(QStringLiteral("Soyadi"), QStringLiteral("Ada")));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  EXPECT_TRUE(rs.Find(QStringLiteral("Soyadi"), QStringLiteral("Ada")));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  rs.MoveNext();
  EXPECT_TRUE(rs.Find(QStringLiteral("Soyadi"), QStringLiteral("Ada")));
  EXPECT_EQ(rs.AbsolutePosition(), 3);
  rs.MoveNext();
  EXPECT_FALSE(rs.Find(QStringLiteral("Soyadi"), QStringLiteral("Ada")));
  EXPECT_TRUE(rs.Eof());
  EXPECT_TRUE(rs.Find(QStringLiteral("Soyadi"), QStringLiteral("Ada"), true));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  // Texts as typed; numbers by value, also when typed as text.
  EXPECT_FALSE(rs.Find(QStringLiteral("Soyadi"), QStringLiteral("ada"), true));
  EXPECT_TRUE(rs.Find(QStringLiteral("MusteriNo"), QStringLiteral("4"), true));
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("Cem"));
  EXPECT_TRUE(rs.Find(QStringLiteral("MusteriNo"), 2.0, true));
  EXPECT_EQ(rs.AbsolutePosition(), 2);
  EXPECT_TRUE(rs.Find(QStringLiteral("PostaKod"), 3, true));  // "03"
  EXPECT_EQ(rs.AbsolutePosition(), 3);
  EXPECT_FALSE(rs.Find(QStringLiteral("PostaKod"), QStringLiteral("3"), true));
  rs.MoveFirst();
  EXPECT_TRUE(rs.Find(QStringLiteral("Adi"), db::Null()));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  EXPECT_TRUE(rs.FindIf([](const db::Kayitlar& k) {
    return k.Metin(QStringLiteral("Soyadi")).startsWith(QLatin1Char('C'));
  }));
  EXPECT_EQ(rs.AbsolutePosition(), 4);

  // Requery: the same statement and values again, new rows included.
  MusteriEkle(5, QStringLiteral("Deniz"));
  MusteriEkle(0, QStringLiteral("Sıfır"));
  EXPECT_EQ(rs.RecordCount(), 4);
  rs.Sort(QStringLiteral("Soyadi"), false);
  rs.Requery();
  EXPECT_EQ(rs.RecordCount(), 5);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  EXPECT_EQ(Sutun(rs, QStringLiteral("Soyadi")),
            QStringList({"Ada", "Bora", "Ada", "Cem", "Deniz"}));
}

TEST_F(Baglanti, BookmarkSortSonrasindaGecerli) {
  const QStringList adlar = {QStringLiteral("Şahin"), QStringLiteral("Ağaoğlu"),
                             QStringLiteral("Zengin"), QStringLiteral("Çetin"),
                             QStringLiteral("(Acil)")};
  for (int i = 0; i < adlar.size(); ++i) MusteriEkle(i + 1, adlar[i]);
  // The last row holds a number where the others hold texts.
  db::Kayitlar rs =
      b_.Sorgu(QStringLiteral("SELECT MusteriNo, Soyadi FROM Musteri UNION ALL SELECT 9, 42"));
  rs.Find(QStringLiteral("Soyadi"), QStringLiteral("Şahin"));
  const db::Kayitlar::Bookmark sahin = rs.bookmark();
  rs.MoveLast();
  const db::Kayitlar::Bookmark son = rs.bookmark();

  rs.Sort(QStringLiteral("Soyadi"));
  // The current row stays current; numbers come before texts.
  EXPECT_EQ(rs.Metin(QStringLiteral("MusteriNo")), QStringLiteral("9"));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  EXPECT_EQ(rs.Deger(1, 1).toString(), QStringLiteral("(Acil)"));
  EXPECT_EQ(rs.Deger(2, 1).toString(), QStringLiteral("Ağaoğlu"));
  rs.setBookmark(sahin);
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("Şahin"));
  EXPECT_EQ(rs.AbsolutePosition(), 5);

  rs.Sort(QStringLiteral("MusteriNo"), false);
  EXPECT_EQ(rs.Metin(QStringLiteral("Soyadi")), QStringLiteral("Şahin"));
  EXPECT_EQ(rs.AbsolutePosition(), 6);
  rs.setBookmark(son);
  EXPECT_EQ(rs.AbsolutePosition(), 1);
  EXPECT_EQ(rs.Fields(QStringLiteral("Soyadi")), QVariant(qlonglong(42)));
  rs.setBookmark(77);
  EXPECT_TRUE(rs.Eof());
  EXPECT_EQ(rs.bookmark(), -1);
  // Without a current row a Sort goes to the first one.
  rs.Sort(QStringLiteral("Soyadi"));
  EXPECT_EQ(rs.AbsolutePosition(), 1);
}

// --- transactions and locks

TEST_F(Baglanti, IslemHataVerenKomuttaHicIzBirakmaz) {
  const QString ekle =
      QStringLiteral("INSERT INTO Fatura(FaturaSeri, FaturaNo, Tutar) VALUES ('FA', ?, 1)");
  try {
    db::Islem islem(b_);
    EXPECT_TRUE(b_.IslemIcinde());
    b_.Calistir(QStringLiteral("DELETE FROM Il_Trafik_Kodu"));
    b_.Calistir(ekle, {1});
    b_.Calistir(ekle, {1});  // the key is taken
    islem.Onayla();
    FAIL() << "the second invoice went in";
  } catch (const db::Hata&) {
  }
  EXPECT_FALSE(b_.IslemIcinde());
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Fatura")).toInt(), 0);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Il_Trafik_Kodu")).toInt(), 81);

  {
    db::Islem dis(b_);
    b_.Calistir(ekle, {1});
    {
      // An inner one that fails undoes only its own part.
      db::Islem ic(b_);
      b_.Calistir(ekle, {2});
    }
    {
      db::Islem ic(b_);
      b_.Calistir(ekle, {3});
      ic.Onayla();
    }
    EXPECT_TRUE(b_.IslemIcinde());
    dis.Onayla();
  }
  EXPECT_FALSE(b_.IslemIcinde());
  EXPECT_EQ(Sutun(QStringLiteral("SELECT FaturaNo FROM Fatura ORDER BY FaturaNo")),
            QStringList({"1", "3"}));
}

TEST_F(Baglanti, KilitliDosyadaBekleyipSonraYazar) {
  std::promise<void> kilitli;
  std::atomic<bool> birakti{false};
  std::thread tutan([&] {
    db::Baglanti k;
    k.Ac(yol_);
    db::Islem islem(k);
    k.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (1)"));
    kilitli.set_value();
    std::this_thread::sleep_for(std::chrono::milliseconds(300));
    birakti = true;
    islem.Onayla();
  });
  kilitli.get_future().wait();
  EXPECT_EQ(b_.Bekleme(), db::Baglanti::kBekleme);
  // Fails only if it didn't wait for the other connection to finish.
  EXPECT_NO_THROW(b_.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (2)")));
  EXPECT_TRUE(birakti);
  tutan.join();
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Musteri")).toInt(), 2);
}

TEST_F(Baglanti, KilitSurerseBeklemeSonundaMotorunMetniyleDuser) {
  db::Baglanti tutan;
  tutan.Ac(yol_);
  db::Islem islem(tutan);
  tutan.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (1)"));

  b_.BeklemeAyarla(200);
  QElapsedTimer sure;
  sure.start();
  try {
    b_.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (2)"));
    FAIL() << "wrote past another connection's lock";
  } catch (const db::Hata& h) {
    EXPECT_EQ(h.metin(), QStringLiteral("database is locked"));
  }
  EXPECT_GE(sure.elapsed(), 150);
  // Reading is not held up by a writer that hasn't committed.
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Musteri")).toInt(), 0);
  // The setting outlives a reopen.
  b_.Kapat();
  b_.YenidenAc();
  EXPECT_EQ(b_.Bekleme(), 200);
  EXPECT_THROW(b_.Calistir(QStringLiteral("DELETE FROM Kur")), db::Hata);
}

// --- opening

QByteArray Icerik(const QString& yol) {
  QFile f(yol);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<okunamadı>");
}

// Root writes any file whatever its mode; for the read-only case the test
// gives up that power while it runs.
class YazmaYetkisiBirak {
 public:
  YazmaYetkisiBirak() {
    if (geteuid() != 0 || syscall(SYS_capget, &baslik_, eski_) != 0) return;
    __user_cap_data_struct yeni[2] = {eski_[0], eski_[1]};
    yeni[0].effective &= ~(1u << CAP_DAC_OVERRIDE);
    birakti_ = syscall(SYS_capset, &baslik_, yeni) == 0;
  }
  ~YazmaYetkisiBirak() {
    if (birakti_) syscall(SYS_capset, &baslik_, eski_);
  }

 private:
  __user_cap_header_struct baslik_{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct eski_[2] = {};
  bool birakti_ = false;
};

TEST_F(Baglanti, AcilamayanDosyaMotorunMetniyleVeDokunulmadan) {
  const auto hata = [](const QString& yol, db::Baglanti::Kip kip = db::Baglanti::Kip::YazOku) {
    db::Baglanti b;
    try {
      b.Ac(yol, kip);
    } catch (const db::Hata& h) {
      EXPECT_FALSE(b.Acik());
      return h.metin();
    }
    return QStringLiteral("<açıldı>");
  };

  // Not a database.
  const QString metin = dizin_.filePath(QStringLiteral("metin.db"));
  {
    QFile f(metin);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
    f.write(QByteArray("Bu bir veri tabanı değil.\n").repeated(40));
  }
  const QByteArray metinIcerik = Icerik(metin);
  EXPECT_EQ(hata(metin), QStringLiteral("file is not a database"));
  EXPECT_EQ(Icerik(metin), metinIcerik);

  // Missing: not created.
  const QString yok = dizin_.filePath(QStringLiteral("yok.db"));
  EXPECT_EQ(hata(yok), QStringLiteral("unable to open database file"));
  EXPECT_EQ(hata(yok, db::Baglanti::Kip::SadeceOku),
            QStringLiteral("unable to open database file"));
  EXPECT_FALSE(QFile::exists(yok));

  // Read-only, opened for writing: refused; read-only use still works.
  b_.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (1, 'Işık')"));
  b_.Kapat();
  const QByteArray dbIcerik = Icerik(yol_);
  ASSERT_TRUE(QFile::setPermissions(yol_, QFileDevice::ReadOwner));
  {
    YazmaYetkisiBirak yetki;
    const int fd = ::open(QFile::encodeName(yol_).constData(), O_WRONLY);
    if (fd >= 0) {
      ::close(fd);
      GTEST_SKIP() << "this process writes read-only files";
    }
    EXPECT_EQ(hata(yol_), QStringLiteral("attempt to write a readonly database"));
    db::Baglanti okur;
    okur.Ac(yol_, db::Baglanti::Kip::SadeceOku);
    EXPECT_EQ(okur.Deger(QStringLiteral("SELECT Soyadi FROM Musteri")).toString(),
              QStringLiteral("Işık"));
    EXPECT_THROW(okur.Calistir(QStringLiteral("DELETE FROM Musteri")), db::Hata);
  }
  EXPECT_EQ(Icerik(yol_), dbIcerik);
  EXPECT_FALSE(QFile::exists(yol_ + QStringLiteral("-journal")));

  // A closed connection refuses work; YenidenAc brings back the last file.
  EXPECT_FALSE(b_.Acik());
  EXPECT_THROW(b_.Calistir(QStringLiteral("SELECT 1")), db::Hata);
  QFile::setPermissions(yol_, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  b_.YenidenAc();
  EXPECT_EQ(b_.Yol(), yol_);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Musteri")).toInt(), 1);
}

}  // namespace
