// The schema of a new database: every table and column, the keys and
// defaults the screens rely on, the three views on sample rows, and the
// reference data.

#include <gtest/gtest.h>

#include <QFile>
#include <QProcess>
#include <QSet>
#include <QStandardPaths>
#include <QTemporaryDir>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "db/Sema.h"
#include "tests/db/Yazdir.h"

namespace {

class Sema : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dizin_.isValid());
    yol_ = dizin_.filePath(QStringLiteral("velmora.db"));
    b_.Olustur(yol_);
  }

  // Column names of a table or view in stored order.
  QStringList Sutunlar(const QString& tablo) {
    QStringList l;
    db::Kayitlar rs = b_.Sorgu(QStringLiteral("PRAGMA table_info(%1)").arg(tablo));
    for (; !rs.Eof(); rs.MoveNext()) l << rs.Metin(QStringLiteral("name"));
    return l;
  }

  QTemporaryDir dizin_;
  QString yol_;
  db::Baglanti b_;
};

QStringList Liste(const char* metin) {
  return QString::fromUtf8(metin).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

TEST_F(Sema, HerTabloHerSutunIleSirasinda) {
  const QList<QPair<QString, QStringList>> beklenen = {
      {"Firma", Liste("Kuruluskod VergiKimlikNo Tur Soyadi Adi BabaAdi Adres Ilce PostaKod IlKod "
                      "FaturaSeri SozlesmeSeri")},
      {"Musteri", Liste("MusteriNo VergiKimlikNo VergiDairesi Soyadi Adi BabaAdi Adres Ilce "
                        "PostaKod IlKod Il_Ad UlkeKod TCKimlikNo Uyruk VekilDurum VekilVergiKimlik "
                        "VekilSoyadi VekilAdi HukukiDurum Aranacak Telefon Fax")},
      {"Sozlesme", Liste("SozlesmeID SozlesmeSeri SozlesmeNo MusteriNo Tarih Tutar FaizOran "
                         "GecikmeOran IskontoOran FaizTutar Yaziyla Gun ilaveGun Doviz Hesapla "
                         "TutarTL FaizTutarTL")},
      {"SozlesmeDetay", Liste("GirisNo SozlesmeID SozlesmeSeri SozlesmeNo Tip Kesideci Banka Sube "
                              "HesapNo CekNo Vadesi Odenmesi Gun Meblag Doviz Karsilik MeblagTL")},
      {"Fatura", Liste("FaturaSeri FaturaNo Tarih MusteriNo SozlesmeID SozlesmeSeri SozlesmeNo "
                       "Aciklama Tutar BMVergisiYuzde BMVergisi TahsilMasrafi PulBedeli "
                       "ToplamMasraf ToplamTutar Yaziyla TutarTL BMVergisiTL TahsilMasrafiTL "
                       "ToplamMasrafTL ToplamTutarTL")},
      {"Kur", Liste("Tarih Doviz Kur CaprazKur")},
      {"Hesap", Liste("SozlesmeSeri SozlesmeNo Tarih MusteriNo Tutar Yaziyla FaizOran GecikmeOran "
                      "IskontoOran FaizTutar Gun ilaveGun SozlesmeID Doviz Masraf")},
      {"HesapDetay", Liste("GirisNo SozlesmeNo Tip Kesideci Banka Sube HesapNo CekNo Vadesi Gun "
                           "Meblag Doviz Karsilik Odenmesi SozlesmeSeri SozlesmeID")},
      {"HukukiDurum", Liste("DurumKod Durum Kategori")},
      {"Il_Trafik_Kodu", Liste("IlKod Il")},
      {"DOVIZKOD", Liste("KOD")},
      {"SozlesmeTanim", Liste("ID SIRA SUTUN TIP ALAN BOY DECIMAL FORMAT")},
      {"Versiyon", Liste("Major Minor")},
      {"MusteriQry", Liste("MusteriNo Soyadi Adi Bulunacak")},
      {"CekDurum", Liste("GirisNo Vadesi Banka Meblag Odenmesi Durum Kesideci CekNo")},
      {"SozlesmePrint",
       Liste("SozlesmeNo SozlesmeSeri MusteriNo AdSoyad Adres Ilce PostaKod Il_Ad Tarih Tutar "
             "Yaziyla FaizOran GecikmeOran IskontoOran FaizTutar Odenecek Gun BMVergisi "
             "VergiDairesi VergiKimlikNo Odenecek2 TarihGun TarihAy TarihYil SozlesmeID "
             "DamgaVergi")},
  };
  QStringList adlar;
  for (const auto& [tablo, sutunlar] : beklenen) {
    EXPECT_EQ(Sutunlar(tablo), sutunlar) << tablo.toStdString();
    adlar << tablo;
  }
  // Nothing beyond them but the engine's own bookkeeping.
  QStringList var;
  db::Kayitlar rs =
      b_.Sorgu(QStringLiteral("SELECT name FROM sqlite_master WHERE type IN ('table', 'view') "
                              "AND name NOT LIKE 'sqlite!_%' ESCAPE '!'"));
  for (; !rs.Eof(); rs.MoveNext()) var << rs.Metin(QStringLiteral("name"));
  adlar.sort();
  var.sort();
  EXPECT_EQ(var, adlar);
  EXPECT_EQ(
      b_.Sorgu(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'view'")).RecordCount(),
      3);
}

TEST_F(Sema, AnahtarlarVeSayaclar) {
  QStringList anahtarlar;
  db::Kayitlar rs = b_.Sorgu(QStringLiteral(
      "SELECT m.name || '.' || p.name || ':' || p.type AS A FROM sqlite_master m, "
      "pragma_table_info(m.name) p WHERE m.type = 'table' AND p.pk > 0 ORDER BY m.name, p.pk"));
  for (; !rs.Eof(); rs.MoveNext()) anahtarlar << rs.Metin(QStringLiteral("A"));
  EXPECT_EQ(anahtarlar, QStringList({"Fatura.FaturaSeri:TEXT", "Fatura.FaturaNo:INTEGER",
                                     "Hesap.SozlesmeID:INTEGER", "HesapDetay.GirisNo:INTEGER",
                                     "HukukiDurum.DurumKod:INTEGER", "Il_Trafik_Kodu.IlKod:INTEGER",
                                     "Musteri.MusteriNo:INTEGER", "Sozlesme.SozlesmeID:INTEGER",
                                     "SozlesmeDetay.GirisNo:INTEGER", "SozlesmeTanim.ID:INTEGER"}));
  // The counters number themselves; the other keys are given by the program.
  b_.Calistir(QStringLiteral("INSERT INTO SozlesmeDetay(SozlesmeID) VALUES (7)"));
  b_.Calistir(QStringLiteral("INSERT INTO HesapDetay(SozlesmeID) VALUES (7)"));
  b_.Calistir(QStringLiteral("INSERT INTO SozlesmeDetay(SozlesmeID) VALUES (7)"));
  EXPECT_EQ(b_.SonEklenenNo(), 2);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT group_concat(GirisNo) FROM SozlesmeDetay")).toString(),
            QStringLiteral("1,2"));
}

TEST_F(Sema, FaturaSeriVeNumarasiTek) {
  const QString ekle =
      QStringLiteral("INSERT INTO Fatura(FaturaSeri, FaturaNo, Tutar) VALUES (?, ?, ?)");
  b_.Calistir(ekle, {QStringLiteral("AB"), 5, 100.0});
  b_.Calistir(ekle, {QStringLiteral("AC"), 5, 100.0});
  b_.Calistir(ekle, {QStringLiteral("AB"), 6, 100.0});
  try {
    b_.Calistir(ekle, {QStringLiteral("AB"), 5, 200.0});
    FAIL() << "a second invoice AB 5 was taken";
  } catch (const db::Hata& h) {
    EXPECT_TRUE(h.metin().contains(QStringLiteral("UNIQUE"))) << h.what();
  }
  // A key column is never Null.
  EXPECT_THROW(b_.Calistir(ekle, {db::Null(), 9, 1.0}), db::Hata);
  EXPECT_THROW(b_.Calistir(ekle, {QStringLiteral("AB"), db::Null(), 1.0}), db::Hata);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT sum(Tutar) FROM Fatura")).toDouble(), 300.0);
}

TEST_F(Sema, CekSatirlarininVarsayilanlari) {
  for (const char* tablo : {"SozlesmeDetay", "HesapDetay"}) {
    b_.Calistir(QStringLiteral("INSERT INTO %1(SozlesmeID, Meblag) VALUES (1, 10)")
                    .arg(QString::fromUtf8(tablo)));
    db::Kayitlar rs =
        b_.Sorgu(QStringLiteral("SELECT Doviz, Karsilik FROM %1").arg(QString::fromUtf8(tablo)));
    ASSERT_EQ(rs.RecordCount(), 1) << tablo;
    EXPECT_EQ(rs.Fields(QStringLiteral("Doviz")).toString(), QStringLiteral("TRL")) << tablo;
    EXPECT_EQ(rs.Fields(QStringLiteral("Karsilik")).toString(), QStringLiteral("Var")) << tablo;
  }
  // No default elsewhere: a contract's currency comes from the screen.
  b_.Calistir(QStringLiteral("INSERT INTO Sozlesme(SozlesmeID) VALUES (1)"));
  EXPECT_TRUE(db::NullMu(b_.Deger(QStringLiteral("SELECT Doviz FROM Sozlesme"))));
}

// Sample rows for the views: a natural person without surname, a firm, a
// customer without legal status; contracts with and without an invoice and an
// additional invoice.
class SemaGorunum : public Sema {
 protected:
  void SetUp() override {
    Sema::SetUp();
    const QString musteri = QStringLiteral(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum, Adres, Il_Ad) "
        "VALUES (?, ?, ?, ?, ?, ?, ?)");
    b_.Calistir(musteri,
                {30, QStringLiteral("Öztürk Ltd"), QStringLiteral("Şti"), QStringLiteral("Baba"),
                 11, QStringLiteral("Çarşı 1"), QStringLiteral("İzmir")});
    b_.Calistir(musteri, {10, db::Null(), QStringLiteral("Ali"), QStringLiteral("Veli"), 1,
                          db::Null(), QStringLiteral("İstanbul")});
    b_.Calistir(musteri, {20, QStringLiteral("Şahin"), db::Null(), db::Null(), db::Null(),
                          db::Null(), db::Null()});
    const QString sozlesme = QStringLiteral(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "FaizTutar) VALUES (?, 'AA', ?, ?, ?, ?, ?)");
    b_.Calistir(sozlesme, {1, 101, 30, QDate(2005, 11, 9), 1000.0, 100.0});
    b_.Calistir(sozlesme, {2, 102, 10, QDate(2006, 9, 15), 2000.0, 150.0});
    b_.Calistir(sozlesme, {3, 103, 99, QDate(2006, 1, 1), 500.0, 5.0});  // no such customer
    b_.Calistir(QStringLiteral(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, MusteriNo, Tutar, BMVergisi) "
        "VALUES ('FA', 1, 1, 30, 100, 5), ('FA', 2, NULL, 10, 40, 2)"));
  }
};

TEST_F(SemaGorunum, SozlesmePrintHesaplananSutunlar) {
  db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT * FROM SozlesmePrint"));
  // Ordered by customer; the contract of an unknown customer and the
  // additional invoice don't appear, and no invoice doubles a contract.
  ASSERT_EQ(rs.RecordCount(), 2);
  EXPECT_EQ(rs.Fields(QStringLiteral("MusteriNo")).toInt(), 10);

  // Without an invoice: no tax and no Odenecek, but Odenecek2.
  EXPECT_EQ(rs.Fields(QStringLiteral("AdSoyad")).toString(), QStringLiteral("Ali "));
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("BMVergisi"))));
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("Odenecek"))));
  EXPECT_DOUBLE_EQ(rs.Fields(QStringLiteral("Odenecek2")).toDouble(), 1850.0);
  EXPECT_EQ(rs.Fields(QStringLiteral("TarihGun")).toString(), QStringLiteral(" 15"));
  EXPECT_EQ(rs.Fields(QStringLiteral("TarihAy")).toString(), QStringLiteral("09"));
  EXPECT_EQ(rs.Fields(QStringLiteral("TarihYil")).toString(), QStringLiteral("2006"));
  EXPECT_DOUBLE_EQ(rs.Fields(QStringLiteral("DamgaVergi")).toDouble(), 15.0);
  EXPECT_EQ(rs.Fields(QStringLiteral("Il_Ad")).toString(), QStringLiteral("İstanbul"));

  rs.MoveNext();
  EXPECT_EQ(rs.Fields(QStringLiteral("AdSoyad")).toString(), QStringLiteral("Öztürk Ltd Şti"));
  EXPECT_DOUBLE_EQ(rs.Fields(QStringLiteral("BMVergisi")).toDouble(), 5.0);
  EXPECT_DOUBLE_EQ(rs.Fields(QStringLiteral("Odenecek")).toDouble(), 895.0);
  EXPECT_DOUBLE_EQ(rs.Fields(QStringLiteral("Odenecek2")).toDouble(), 900.0);
  EXPECT_EQ(rs.Fields(QStringLiteral("TarihGun")).toString(), QStringLiteral("09"));
  EXPECT_EQ(rs.Fields(QStringLiteral("TarihAy")).toString(), QStringLiteral(" 11"));
  EXPECT_EQ(rs.Fields(QStringLiteral("TarihYil")).toString(), QStringLiteral("2005"));
  EXPECT_DOUBLE_EQ(rs.Fields(QStringLiteral("DamgaVergi")).toDouble(), 7.5);
  EXPECT_EQ(rs.Fields(QStringLiteral("Adres")).toString(), QStringLiteral("Çarşı 1"));
}

TEST_F(SemaGorunum, TarihGunVeAyOnuncuGundenItibarenBosluklu) {
  b_.Calistir(QStringLiteral("DELETE FROM Sozlesme"));
  const QString ekle = QStringLiteral(
      "INSERT INTO Sozlesme(SozlesmeID, MusteriNo, Tarih, Tutar, FaizTutar) VALUES (?, 10, ?, 0, "
      "0)");
  const QDate gunler[] = {QDate(2007, 1, 1), QDate(2007, 10, 10), QDate(2007, 12, 31),
                          QDate(2008, 2, 29)};
  for (int i = 0; i < 4; ++i) b_.Calistir(ekle, {i + 1, gunler[i]});
  db::Kayitlar rs = b_.Sorgu(
      QStringLiteral("SELECT TarihGun || '/' || TarihAy || '/' || TarihYil AS T FROM SozlesmePrint "
                     "ORDER BY SozlesmeID"));
  QStringList l;
  for (; !rs.Eof(); rs.MoveNext()) l << rs.Metin(QStringLiteral("T"));
  EXPECT_EQ(l, QStringList({"01/01/2007", " 10/ 10/2007", " 31/ 12/2007", " 29/02/2008"}));
}

TEST_F(SemaGorunum, MusteriQryVeCekDurum) {
  db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT * FROM MusteriQry"));
  QStringList l;
  for (; !rs.Eof(); rs.MoveNext())
    l << rs.Metin(QStringLiteral("MusteriNo")) + QLatin1Char('=') +
             rs.Metin(QStringLiteral("Bulunacak"));
  // By number; first name first only for a natural person, a Null counting as
  // empty; the father's name never.
  EXPECT_EQ(l, QStringList({"10=Ali ", "20=Şahin ", "30=Öztürk Ltd Şti"}));

  const QString ekle = QStringLiteral(
      "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Kesideci, CekNo, Banka) "
      "VALUES (1, ?, ?, ?, ?, ?, 'Banka')");
  b_.Calistir(ekle, {QDate(2006, 1, 2), QDate(2006, 1, 2), 10.0, QStringLiteral("Ayşe"), "1"});
  b_.Calistir(ekle, {QDate(2006, 1, 3), db::Null(), 20.0, QStringLiteral("Ömer"), "2"});
  db::Kayitlar cek = b_.Sorgu(QStringLiteral("SELECT * FROM CekDurum ORDER BY GirisNo"));
  ASSERT_EQ(cek.RecordCount(), 2);
  EXPECT_EQ(cek.Metin(QStringLiteral("Durum")), QStringLiteral("Var"));
  EXPECT_EQ(cek.Metin(QStringLiteral("Vadesi")), QStringLiteral("2006-01-02"));
  cek.MoveNext();
  EXPECT_EQ(cek.Metin(QStringLiteral("Durum")), QStringLiteral("Yok"));
  EXPECT_EQ(cek.Metin(QStringLiteral("Kesideci")), QStringLiteral("Ömer"));
}

// The views must not need anything that only this program registers on its
// connections: a plain sqlite3 shell reads them too.
TEST_F(SemaGorunum, GorunumlerDuzSqliteKabugundaOkunur) {
  const QString kabuk = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
  if (kabuk.isEmpty()) GTEST_SKIP() << "no sqlite3 shell on this machine";
  b_.Calistir(QStringLiteral("INSERT INTO SozlesmeDetay(SozlesmeID, Odenmesi) VALUES (1, NULL)"));
  b_.Kapat();
  QProcess p;
  p.start(kabuk, {QStringLiteral("-batch"), yol_,
                  QStringLiteral("SELECT count(*) FROM MusteriQry; "
                                 "SELECT group_concat(Durum) FROM CekDurum; "
                                 "SELECT group_concat(TarihGun || TarihAy || TarihYil, '|') "
                                 "FROM SozlesmePrint;")});
  ASSERT_TRUE(p.waitForFinished(30000));
  EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  EXPECT_EQ(QString::fromUtf8(p.readAllStandardOutput()),
            QStringLiteral("3\nYok\n 15092006|09 112005\n"));
}

TEST_F(Sema, BaslangicVerileri) {
  // Provinces in traffic-code order, the stored order of a plain read.
  db::Kayitlar il = b_.Sorgu(QStringLiteral("SELECT IlKod, Il FROM Il_Trafik_Kodu"));
  ASSERT_EQ(il.RecordCount(), 81);
  QStringList adlar;
  for (int i = 0; !il.Eof(); il.MoveNext(), ++i) {
    EXPECT_EQ(il.Fields(QStringLiteral("IlKod")).toInt(), i + 1);
    adlar << il.Metin(QStringLiteral("Il"));
  }
  EXPECT_EQ(adlar[33], QStringLiteral("İstanbul"));
  EXPECT_EQ(adlar[0], QStringLiteral("Adana"));
  EXPECT_EQ(adlar[5], QStringLiteral("Ankara"));
  EXPECT_EQ(adlar[13], QStringLiteral("Bolu"));
  EXPECT_EQ(adlar[34], QStringLiteral("İzmir"));
  EXPECT_EQ(adlar[36], QStringLiteral("Kastamonu"));
  EXPECT_EQ(adlar[51], QStringLiteral("Ordu"));
  EXPECT_EQ(adlar[62], QStringLiteral("Şanlıurfa"));
  EXPECT_EQ(adlar[80], QStringLiteral("Düzce"));
  EXPECT_EQ(adlar, db::Iller());
  EXPECT_EQ(QSet<QString>(adlar.begin(), adlar.end()).size(), 81);

  // Legal statuses: 1 the natural person, a few categories, codes from 10 on.
  EXPECT_TRUE(b_.Deger(QStringLiteral("SELECT Durum FROM HukukiDurum WHERE DurumKod = 1"))
                  .toString()
                  .contains(QStringLiteral("Gerçek Kişi")));
  EXPECT_GE(b_.Deger(QStringLiteral("SELECT count(DISTINCT Kategori) FROM HukukiDurum")).toInt(),
            3);
  EXPECT_GE(
      b_.Deger(QStringLiteral("SELECT count(*) FROM HukukiDurum WHERE DurumKod >= 10")).toInt(), 3);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM HukukiDurum WHERE Durum IS NULL "
                                    "OR Kategori IS NULL OR Durum = '' OR Kategori = ''"))
                .toInt(),
            0);

  // Currencies, TRL first in the lists.
  db::Kayitlar doviz = b_.Sorgu(QStringLiteral("SELECT KOD FROM DOVIZKOD"));
  QStringList kodlar;
  for (; !doviz.Eof(); doviz.MoveNext()) kodlar << doviz.Metin(QStringLiteral("KOD"));
  ASSERT_FALSE(kodlar.isEmpty());
  EXPECT_EQ(kodlar.first(), QStringLiteral("TRL"));
  for (const char* k : {"TRL", "USD", "EUR", "GBP", "CHF"})
    EXPECT_EQ(kodlar.count(QString::fromUtf8(k)), 1) << k;

  // One firm row, all Null, for the firm screen to fill.
  db::Kayitlar firma = b_.Sorgu(QStringLiteral("SELECT * FROM Firma"));
  ASSERT_EQ(firma.RecordCount(), 1);
  for (int i = 0; i < firma.AlanSayisi(); ++i)
    EXPECT_TRUE(db::NullMu(firma.Fields(i))) << firma.Alanlar()[i].toStdString();

  db::Kayitlar v = b_.Sorgu(QStringLiteral("SELECT Major, Minor FROM Versiyon"));
  ASSERT_EQ(v.RecordCount(), 1);
  EXPECT_EQ(v.Fields(QStringLiteral("Major")).toInt(), 2);
  EXPECT_EQ(v.Fields(QStringLiteral("Minor")).toInt(), 3);

  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Musteri")).toInt(), 0);
  EXPECT_EQ(b_.Deger(QStringLiteral("SELECT count(*) FROM Kur")).toInt(), 0);
}

TEST_F(Sema, OlusturVarOlanDosyayaDokunmaz) {
  // Owner only: the file holds customers' identity and tax numbers.
  const auto izinler = QFile::permissions(yol_) & QFileDevice::Permissions(0x7077);
  EXPECT_EQ(izinler, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  b_.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (1)"));
  b_.Kapat();
  QFile f(yol_);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  const QByteArray once = f.readAll();
  f.close();

  db::Baglanti ikinci;
  EXPECT_THROW(ikinci.Olustur(yol_), db::Hata);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  EXPECT_EQ(f.readAll(), once);
  ikinci.Ac(yol_);
  EXPECT_EQ(ikinci.Deger(QStringLiteral("SELECT count(*) FROM Musteri")).toInt(), 1);
}

}  // namespace
