// Dated backups, maintenance's compaction and the restore, on real files:
// what stands in the data folder after each command, after each failure, and
// whether the connection still works.

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QDir>
#include <QFileInfo>
#include <optional>

#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "db/Yedek.h"
#include "tests/db/Dosya.h"
#include "tests/support/Ortam.h"

namespace {

using namespace Qt::StringLiterals;

const QDate kGun(2026, 11, 18);

class Yedek : public test::Ortam {
 protected:
  void TearDown() override {
    Genel::Baglanti.BeklemeAyarla(db::Baglanti::kBekleme);
    test::Ortam::TearDown();
  }
  db::Baglanti& b() { return Genel::Baglanti; }
  QString Yol() const { return Genel::VeriTabaniYolu(); }
  QString Dosya(const QString& ad) const { return veriDizini() + '/' + ad; }
  void Musteri(int no, const QString& soyadi) {
    b().Calistir("INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (?, ?)", {no, soyadi});
  }
  // The customers' surnames in a database file, by number.
  static QStringList Musteriler(const QString& yol) {
    db::Baglanti k;
    k.Ac(yol, db::Baglanti::Kip::SadeceOku);
    QStringList l;
    db::Kayitlar rs = k.Sorgu("SELECT Soyadi FROM Musteri ORDER BY MusteriNo");
    for (; !rs.Eof(); rs.MoveNext()) l << rs.Fields(0).toString();
    return l;
  }
  // Names in the data folder beside the database itself and the settings.
  QStringList Dosyalar() const {
    QStringList l = QDir(veriDizini()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    l.removeAll("velmora.db");
    return l;
  }
  // The connection still reads and writes the database file.
  void Kullanilabilir() {
    ASSERT_TRUE(b().Acik());
    b().Calistir("INSERT INTO Kur(Tarih, Doviz, Kur) VALUES ('2026-01-01', 'USD', 1)");
    EXPECT_EQ(b().Deger("SELECT count(*) FROM Kur").toInt(), 1);
    b().Calistir("DELETE FROM Kur");
  }
};

TEST_F(Yedek, TarihliYedekGununKopyasiniYeniler) {
  Musteri(1, u"Işık"_s);
  const QString yedek = db::TarihliYedekAl(b(), kGun);
  EXPECT_EQ(yedek, Dosya("velmora_18112026.db"));
  EXPECT_EQ(Musteriler(yedek), QStringList{u"Işık"_s});
  EXPECT_EQ(QFile::permissions(yedek) & QFileDevice::Permissions(0x7077),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  // A second copy of the day replaces the first; no temporary file stays.
  Musteri(2, u"Çelik"_s);
  EXPECT_EQ(db::TarihliYedekAl(b(), kGun), yedek);
  EXPECT_EQ(Musteriler(yedek), (QStringList{u"Işık"_s, u"Çelik"_s}));
  EXPECT_EQ(Dosyalar(), QStringList{"velmora_18112026.db"});
  // Never in the middle of a transaction: its changes are no backup.
  {
    db::Islem islem(b());
    Musteri(3, "Yarım");
    EXPECT_THROW(db::TarihliYedekAl(b(), kGun), db::Hata);
  }
  EXPECT_EQ(Musteriler(yedek), (QStringList{u"Işık"_s, u"Çelik"_s}));
  // A folder where the copy must go: refused even for root, the database
  // untouched, and the connection goes on as before.
  ASSERT_TRUE(QFile::remove(yedek) && QDir().mkdir(yedek));
  const QByteArray once = Icerik(Yol());
  try {
    db::TarihliYedekAl(b(), kGun);
    ADD_FAILURE() << "yedek alındı";
  } catch (const db::Hata& h) {
    EXPECT_TRUE(h.metin().startsWith(u"Dosya yerine konamadı (velmora_18112026.db)"_s))
        << h.metin().toStdString();
  }
  EXPECT_EQ(Icerik(Yol()), once);
  EXPECT_EQ(Dosyalar(), QStringList{"velmora_18112026.db"});
  Kullanilabilir();
}

TEST_F(Yedek, GunlukYedekGundeBirKezVeOtuzuKalir) {
  // Thirty older copies, one of them with the same date as another name
  // format that is no backup, and a file that only looks like one.
  for (int i = 1; i <= 30; ++i) {
    QFile f(Dosya("velmora_" + kGun.addDays(-i).toString("ddMMyyyy") + ".db"));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  }
  QFile baska(Dosya("velmora_99999999.db"));
  ASSERT_TRUE(baska.open(QIODevice::WriteOnly));
  baska.close();

  const QString yedek = db::GunlukYedekAl(b(), kGun);
  EXPECT_EQ(yedek, Dosya("velmora_18112026.db"));
  const QVector<db::YedekDosyasi> liste = db::TarihliYedekler(Yol());
  ASSERT_EQ(liste.size(), 30);
  EXPECT_EQ(liste.first().tarih, kGun);
  EXPECT_EQ(liste.last().tarih, kGun.addDays(-29));
  EXPECT_GT(liste.first().boyut, 0);
  EXPECT_FALSE(QFile::exists(Dosya("velmora_" + kGun.addDays(-30).toString("ddMMyyyy") + ".db")));
  EXPECT_TRUE(baska.exists());

  // The second start of the day leaves the day's copy alone.
  Musteri(1, "Sonra");
  EXPECT_EQ(db::GunlukYedekAl(b(), kGun), QString());
  EXPECT_EQ(Musteriler(yedek), QStringList());
}

// --- maintenance

TEST_F(Yedek, IkiBakimAyniGunde) {
  Musteri(1, u"İnce"_s);
  b().Calistir("DELETE FROM Il_Trafik_Kodu");  // room to win back
  // A summary that another program put out of step with the lines.
  b().Calistir("INSERT INTO Sozlesme(SozlesmeID, MusteriNo, Tarih) VALUES (1, 1, '2026-11-01')");
  b().Calistir(
      "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Meblag) VALUES (1, '2026-12-01', 2.5)");
  b().Calistir("UPDATE MusteriCari SET Tutar = 7, Gun = 0");
  // What a broken run left behind.
  QFile kalan(Dosya("velmora_new.db"));
  ASSERT_TRUE(kalan.open(QIODevice::WriteOnly) && kalan.write("yarım kalmış") > 0);
  kalan.close();
  const qint64 boy = QFileInfo(Yol()).size();
  const QByteArray ilk = Icerik(Yol());

  const QString yedek = db::Sikistir(b(), kGun);
  EXPECT_EQ(yedek, Dosya("velmora_18112026.db"));
  EXPECT_EQ(Icerik(yedek), ilk);  // the old file itself, untouched
  EXPECT_LE(QFileInfo(Yol()).size(), boy);
  EXPECT_EQ(QFile::permissions(Yol()) & QFileDevice::Permissions(0x7077),
            QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  Kullanilabilir();
  // The new file's summary is made from its lines.
  EXPECT_EQ(b().Deger("SELECT Tutar || ' ' || Gun FROM MusteriCari").toString(), "2500000 30");

  // The second run of the day keeps the first run's result as the backup.
  Musteri(2, "Uz");
  const QByteArray ikinci = Icerik(Yol());
  EXPECT_EQ(db::Sikistir(b(), kGun), yedek);
  EXPECT_EQ(Icerik(yedek), ikinci);
  EXPECT_EQ(Musteriler(Yol()), (QStringList{u"İnce"_s, "Uz"}));
  EXPECT_EQ(Dosyalar(), QStringList{"velmora_18112026.db"});
  // Names keep their Turkish order in the new file's indexes.
  EXPECT_EQ(b().Deger("PRAGMA integrity_check").toString(), "ok");
}

// Each way the command can fail leaves the old file as it was, no _new file
// and an open connection on the old file.
TEST_F(Yedek, BakimBasarisizOlursaEskiDosyaKalir) {
  Musteri(1, "Ak");
  b().BeklemeAyarla(50);
  struct Durum {
    const char* ad;
    std::function<void()> kur, kaldir;
    QStringList kalanlar;  // what stays in the folder
  };
  db::Baglanti diger;
  std::optional<YazmaYetkisiBirak> yetki;
  const Durum durumlar[] = {
      // A folder where the _new file goes can't be removed.
      {"_new yerinde klasör",
       [&] { QDir().mkdir(Dosya("velmora_new.db")); },
       [&] { QDir().rmdir(Dosya("velmora_new.db")); },
       {"velmora_new.db"}},
      // A folder where the backup goes: the old file can't take that name.
      {"yedek yerinde klasör",
       [&] { QDir().mkdir(Dosya("velmora_18112026.db")); },
       [&] { QDir().rmdir(Dosya("velmora_18112026.db")); },
       {"velmora_18112026.db"}},
      // Another program holds a write lock on the database.
      {"başka program yazıyor",
       [&] {
         diger.Ac(Yol());
         diger.Calistir("BEGIN IMMEDIATE");
         diger.Calistir("UPDATE Firma SET Adi = 'kilit'");
       },
       [&] { diger.Kapat(); },
       {"velmora.db-journal"}},  // the other program's own
      // A read-only folder; a dated backup fails there too.
      {"salt okunur klasör",
       [&] {
         ::chmod(QFile::encodeName(veriDizini()).constData(), 0500);
         yetki.emplace();
         EXPECT_THROW(db::TarihliYedekAl(b(), kGun), db::Hata);
       },
       [&] {
         yetki.reset();
         ::chmod(QFile::encodeName(veriDizini()).constData(), 0700);
       },
       {}},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.ad);
    d.kur();
    const QByteArray once = Icerik(Yol());
    EXPECT_THROW(db::Sikistir(b(), kGun), db::Hata);
    EXPECT_EQ(Icerik(Yol()), once);
    EXPECT_EQ(Dosyalar(), d.kalanlar);
    d.kaldir();
    Kullanilabilir();
  }
  // With the obstacles gone it works.
  db::Sikistir(b(), kGun);
  EXPECT_EQ(Musteriler(Yol()), QStringList{"Ak"});
}

// --- restore

TEST_F(Yedek, IyiYedekGeriYuklenirSimdikiSaklanir) {
  Musteri(1, "Eski");
  const QString eski = db::TarihliYedekAl(b(), kGun.addDays(-3));
  Musteri(2, "Yeni");

  const QString simdiki = db::GeriYukle(b(), eski, kGun);
  EXPECT_EQ(simdiki, Dosya("velmora_18112026.db"));
  EXPECT_EQ(Musteriler(simdiki), (QStringList{"Eski", "Yeni"}));
  EXPECT_EQ(Musteriler(Yol()), QStringList{"Eski"});
  EXPECT_EQ(b().Deger("SELECT count(*) FROM Musteri").toInt(), 1);
  Kullanilabilir();
  EXPECT_EQ(Dosyalar(), (QStringList{"velmora_15112026.db", "velmora_18112026.db"}));

  // Today's own backup: its content comes back although the current
  // database's copy takes its name.
  Musteri(3, "Bugün");
  EXPECT_EQ(db::GeriYukle(b(), simdiki, kGun), simdiki);
  EXPECT_EQ(Musteriler(Yol()), (QStringList{"Eski", "Yeni"}));
  EXPECT_EQ(Musteriler(simdiki), (QStringList{"Eski", "Bugün"}));
}

// A file that must not replace the database: refused, nothing changed.
TEST_F(Yedek, BozukYedekReddedilir) {
  {
    db::Islem islem(b());
    for (int i = 1; i <= 400; ++i) Musteri(i, QString(40, QChar('A' + i % 26)));
    islem.Onayla();
  }
  const QString iyi = db::TarihliYedekAl(b(), kGun.addDays(-1));
  const int sayfa = b().Deger("PRAGMA page_size").toInt();
  const int kok = b().Deger("SELECT rootpage FROM sqlite_master WHERE name = 'Musteri'").toInt();

  QByteArray bozuk = Icerik(iyi);
  bozuk.replace(qsizetype(kok - 1) * sayfa, 16, QByteArray(16, '\xff'));
  struct Durum {
    const char* ad;
    QByteArray icerik;
    QString neden;
  } const durumlar[] = {
      {"bozuk sayfa", bozuk, u"Dosya bozuk"_s},
      {"metin dosyası", QByteArray(3000, 'x'), u"Dosya bir veri tabanı değil"_s},
      {"boş dosya", QByteArray(), u"Dosya bu programın veri tabanı değil"_s},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.ad);
    const QString aday = Dosya("aday.db");
    QFile f(aday);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
    f.write(d.icerik);
    f.close();
    const QByteArray once = Icerik(Yol());
    try {
      db::GeriYukle(b(), aday, kGun);
      ADD_FAILURE() << "geri yüklendi";
    } catch (const db::Hata& h) {
      EXPECT_TRUE(h.metin().startsWith(d.neden)) << h.metin().toStdString();
    }
    EXPECT_THROW(db::YedekDenetle(aday), db::Hata);
    EXPECT_EQ(Icerik(Yol()), once);
    EXPECT_EQ(Dosyalar(), (QStringList{"aday.db", "velmora_17112026.db"}));
    EXPECT_EQ(Icerik(aday), d.icerik);
    Kullanilabilir();
  }
}

}  // namespace
