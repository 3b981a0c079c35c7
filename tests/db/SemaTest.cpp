// The schema of a new database: every table and column, the keys and
// defaults the screens rely on, the three views on sample rows, and the
// reference data.

#include <gtest/gtest.h>

#include <QProcess>
#include <QStandardPaths>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "db/Sema.h"
#include "tests/db/Yazdir.h"

using namespace Qt::StringLiterals;

namespace {

class Sema : public VeriTabani {};

TEST_F(Sema, TablolarGorunumlerVeSutunlari) {
  // Every table and view, nothing else but the engine's own; columns in
  // stored order, keys marked "*".
  const std::string beklenen =
      "CekDurum: GirisNo Vadesi Banka Meblag Odenmesi Durum Kesideci CekNo\n"
      "DOVIZKOD: KOD\n"
      "Fatura: *FaturaSeri *FaturaNo Tarih MusteriNo SozlesmeID SozlesmeSeri SozlesmeNo Aciklama "
      "Tutar BMVergisiYuzde BMVergisi TahsilMasrafi PulBedeli ToplamMasraf ToplamTutar Yaziyla "
      "TutarTL BMVergisiTL TahsilMasrafiTL ToplamMasrafTL ToplamTutarTL\n"
      "Firma: Kuruluskod VergiKimlikNo Tur Soyadi Adi BabaAdi Adres Ilce PostaKod IlKod "
      "FaturaSeri SozlesmeSeri\n"
      "Hesap: SozlesmeSeri SozlesmeNo Tarih MusteriNo Tutar Yaziyla FaizOran GecikmeOran "
      "IskontoOran FaizTutar Gun ilaveGun *SozlesmeID Doviz Masraf\n"
      "HesapDetay: *GirisNo SozlesmeNo Tip Kesideci Banka Sube HesapNo CekNo Vadesi Gun Meblag "
      "Doviz Karsilik Odenmesi SozlesmeSeri SozlesmeID\n"
      "HukukiDurum: *DurumKod Durum Kategori\n"
      "Il_Trafik_Kodu: *IlKod Il\n"
      "Kur: Tarih Doviz Kur CaprazKur\n"
      "Musteri: *MusteriNo VergiKimlikNo VergiDairesi Soyadi Adi BabaAdi Adres Ilce PostaKod "
      "IlKod Il_Ad UlkeKod TCKimlikNo Uyruk VekilDurum VekilVergiKimlik VekilSoyadi VekilAdi "
      "HukukiDurum Aranacak Telefon Fax\n"
      "MusteriCari: *MusteriNo Belge Tutar TutarAdet Batak BatakAdet Gun GunAdet\n"
      "MusteriQry: MusteriNo Soyadi Adi Bulunacak\n"
      "Sozlesme: *SozlesmeID SozlesmeSeri SozlesmeNo MusteriNo Tarih Tutar FaizOran GecikmeOran "
      "IskontoOran FaizTutar Yaziyla Gun ilaveGun Doviz Hesapla TutarTL FaizTutarTL\n"
      "SozlesmeDetay: *GirisNo SozlesmeID SozlesmeSeri SozlesmeNo Tip Kesideci Banka Sube "
      "HesapNo CekNo Vadesi Odenmesi Gun Meblag Doviz Karsilik MeblagTL\n"
      "SozlesmePrint: SozlesmeNo SozlesmeSeri MusteriNo AdSoyad Adres Ilce PostaKod Il_Ad Tarih "
      "Tutar Yaziyla FaizOran GecikmeOran IskontoOran FaizTutar Odenecek Gun BMVergisi "
      "VergiDairesi VergiKimlikNo Odenecek2 TarihGun TarihAy TarihYil SozlesmeID DamgaVergi\n"
      "SozlesmeTanim: *ID SIRA SUTUN TIP ALAN BOY DECIMAL FORMAT\n"
      "Versiyon: Major Minor";
  EXPECT_EQ(Sorgu("SELECT m.name || ': ' || group_concat(iif(p.pk, '*', '') || p.name, ' ') "
                  "FROM sqlite_master m, pragma_table_info(m.name) p "
                  "WHERE m.type IN ('table', 'view') AND m.name NOT GLOB 'sqlite_*' "
                  "GROUP BY m.name ORDER BY m.name")
                .toStdString(),
            beklenen);
}

TEST_F(Sema, AnahtarlarSayaclarVeVarsayilanlar) {
  // An invoice number is taken once in its series; no key part is Null.
  b_.Calistir("INSERT INTO Fatura(FaturaSeri, FaturaNo) VALUES ('AB', 5), ('AC', 5), ('AB', 6)");
  for (const char* deger : {"'AB', 5", "NULL, 9", "'AB', NULL"}) {
    EXPECT_THROW(
        b_.Calistir(QString("INSERT INTO Fatura(FaturaSeri, FaturaNo) VALUES (%1)").arg(deger)),
        db::Hata)
        << deger;
  }
  EXPECT_EQ(b_.Deger("SELECT count(*) FROM Fatura").toInt(), 3);

  // The currency and cover of a cheque line default; a contract's currency
  // comes from the screen. The counters number themselves, each on its own.
  b_.Calistir(
      "INSERT INTO SozlesmeDetay(SozlesmeID) VALUES (7); INSERT INTO HesapDetay(SozlesmeID) "
      "VALUES (7); INSERT INTO SozlesmeDetay(SozlesmeID) VALUES (7); "
      "INSERT INTO Sozlesme(SozlesmeID) VALUES (7)");
  EXPECT_EQ(Sorgu("SELECT GirisNo, Doviz, Karsilik FROM SozlesmeDetay UNION ALL "
                  "SELECT GirisNo, Doviz, Karsilik FROM HesapDetay UNION ALL "
                  "SELECT SozlesmeID, Doviz, NULL FROM Sozlesme"),
            u"1|TRL|Var\n2|TRL|Var\n1|TRL|Var\n7|NULL|NULL"_s);
}

// Sample rows: a firm, a natural person without surname, a customer without
// legal status; contracts with and without an invoice, one of an unknown
// customer, an additional invoice; a cheque paid and one not. The views on
// them; the reports' indexes that a file made before them gets (with its
// rows), losing the narrower index they replace, while a new file has them
// already and a second call changes nothing.
TEST_F(Sema, GorunumlerVeRaporIndeksleri) {
  const QString indeksler =
      "SELECT group_concat(name, ' ') FROM (SELECT name FROM sqlite_master "
      "WHERE type = 'index' AND tbl_name = 'SozlesmeDetay' ORDER BY name)";
  const QString yeni = Sorgu(indeksler);
  EXPECT_EQ(yeni,
            u"SozlesmeDetay_Kesideci SozlesmeDetay_Odenmesi SozlesmeDetay_SeriNo "
            "SozlesmeDetay_SozlesmeDurum SozlesmeDetay_Vadesi"_s);
  b_.Calistir(
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum, Adres, Il_Ad) VALUES "
      "(30, 'Öztürk Ltd', 'Şti', 'Baba', 11, 'Çarşı 1', 'İzmir'), "
      "(10, NULL, 'Ali', 'Veli', 1, NULL, 'İstanbul'), "
      "(20, 'Şahin', NULL, NULL, NULL, NULL, NULL); "
      "INSERT INTO Sozlesme(SozlesmeID, SozlesmeNo, MusteriNo, Tarih, Tutar, FaizTutar) VALUES "
      "(1, 101, 30, '2005-10-09', 1000, 100), (2, 102, 10, '2006-09-10', 2000, 150), "
      "(3, 103, 99, '2006-01-01', 500, 5); "
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, MusteriNo, Tutar, BMVergisi) VALUES "
      "('FA', 1, 1, 30, 100, 5), ('FA', 2, NULL, 10, 40, 2); "
      "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Kesideci) VALUES "
      "(1, '2006-01-02', '2006-01-02', 'Ayşe'), (1, '2006-01-03', NULL, 'Ömer')");
  // By customer; the contract of an unknown customer and the additional
  // invoice don't appear, and no invoice doubles a contract. Without an
  // invoice: no tax and no Odenecek, but Odenecek2. Day and month below 10
  // with a zero, from 10 on with a blank.
  EXPECT_EQ(Sorgu("SELECT MusteriNo, AdSoyad, BMVergisi, Odenecek, Odenecek2, TarihGun, TarihAy, "
                  "TarihYil, DamgaVergi, Il_Ad, Adres FROM SozlesmePrint"),
            u"10|Ali |NULL|NULL|1850| 10|09|2006|15|İstanbul|NULL\n"
            "30|Öztürk Ltd Şti|5|895|900|09| 10|2005|7.5|İzmir|Çarşı 1"_s);
  // First name first only for a natural person, a Null counting as empty; the
  // father's name never.
  EXPECT_EQ(Sorgu("SELECT MusteriNo, Bulunacak FROM MusteriQry"),
            u"10|Ali \n20|Şahin \n30|Öztürk Ltd Şti"_s);
  EXPECT_EQ(Sorgu("SELECT Vadesi, Durum, Kesideci FROM CekDurum ORDER BY GirisNo"),
            u"2006-01-02|Var|Ayşe\n2006-01-03|Yok|Ömer"_s);

  b_.Calistir(
      "DROP INDEX SozlesmeDetay_Kesideci; DROP INDEX SozlesmeDetay_SozlesmeDurum; "
      "CREATE INDEX SozlesmeDetay_Sozlesme ON SozlesmeDetay(SozlesmeID)");
  // The caller is told once, before the long step, and not when nothing is
  // missing.
  int haber = 0;
  db::RaporlariHazirla(b_, [&] { ++haber; });
  EXPECT_EQ(Sorgu(indeksler), yeni);
  db::RaporlariHazirla(b_, [&] { ++haber; });
  EXPECT_EQ(Sorgu(indeksler), yeni);
  EXPECT_EQ(haber, 1);
  EXPECT_EQ(Sorgu("SELECT Kesideci FROM SozlesmeDetay INDEXED BY SozlesmeDetay_Kesideci "
                  "WHERE Kesideci = 'Ömer'"),
            u"Ömer"_s);
  EXPECT_EQ(Sorgu("PRAGMA integrity_check"), u"ok"_s);
  // The views need nothing that only this program registers on its
  // connections: a plain sqlite3 shell reads them too.
  const QString kabuk = QStandardPaths::findExecutable("sqlite3");
  if (kabuk.isEmpty()) GTEST_SKIP() << "no sqlite3 shell on this machine";
  b_.Kapat();
  QProcess p;
  p.start(kabuk, {"-batch", yol_,
                  "SELECT count(*) FROM MusteriQry; SELECT group_concat(Durum) FROM (SELECT Durum "
                  "FROM CekDurum ORDER BY GirisNo); "
                  "SELECT group_concat(TarihGun || TarihAy || TarihYil, '|') FROM SozlesmePrint;"});
  ASSERT_TRUE(p.waitForFinished(30000));
  EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  EXPECT_EQ(QString::fromUtf8(p.readAllStandardOutput()), u"3\nVar,Yok\n 10092006|09 102005\n"_s);
}

TEST_F(Sema, BaslangicVerileri) {
  // Provinces: codes 1 to 81, in the order of db::Iller(), İstanbul at 34.
  EXPECT_EQ(Sorgu("SELECT count(*), min(IlKod), max(IlKod), count(DISTINCT Il) "
                  "FROM Il_Trafik_Kodu"),
            u"81|1|81|81"_s);
  EXPECT_EQ(Sorgu("SELECT group_concat(Il) FROM Il_Trafik_Kodu"), db::Iller().join(','));
  EXPECT_EQ(Sorgu("SELECT group_concat(Il, ' ') FROM Il_Trafik_Kodu "
                  "WHERE IlKod IN (1, 6, 33, 34, 35, 63, 81)"),
            u"Adana Ankara Mersin İstanbul İzmir Şanlıurfa Düzce"_s);

  // Legal statuses: 1 the natural person; several categories and codes from
  // 10 on, none without a name or category.
  EXPECT_EQ(Sorgu("SELECT (SELECT Durum FROM HukukiDurum WHERE DurumKod = 1), "
                  "count(DISTINCT Kategori) >= 3, sum(DurumKod >= 10) >= 3, "
                  "sum(ifnull(Durum, '') = '' OR ifnull(Kategori, '') = '') FROM HukukiDurum"),
            u"Gerçek Kişi|1|1|0"_s);

  // Currencies, TRL first in the lists.
  const QStringList kodlar = Sorgu("SELECT KOD FROM DOVIZKOD").split('\n');
  EXPECT_EQ(kodlar.first(), u"TRL"_s);
  for (const char* k : {"TRL", "USD", "EUR", "GBP", "CHF"}) EXPECT_EQ(kodlar.count(k), 1) << k;

  // One firm row for the firm screen to fill: the name and the two series that
  // every start reads are empty texts, the rest Null; the version; no
  // customers or rates.
  EXPECT_EQ(Sorgu("SELECT * FROM Firma"), u"NULL|NULL|NULL||NULL|NULL|NULL|NULL|NULL|NULL||"_s);
  EXPECT_EQ(Sorgu("SELECT Major, Minor, (SELECT count(*) FROM Musteri), "
                  "(SELECT count(*) FROM Kur) FROM Versiyon"),
            u"2|3|0|0"_s);
}

}  // namespace
