// Upgrades of an older database: what each one adds and converts, what a
// second run does, a failing statement passed over, and a process killed half
// way leaving the file as it was.

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include "db/Yukselt.h"
#include "tests/db/EskiSekil.h"
#include "tests/db/Yazdir.h"

using namespace Qt::StringLiterals;

namespace {

class Yukselt : public VeriTabani {
 protected:
  void SetUp() override {
    VeriTabani::SetUp();
    EskiSekleGetir(b_);
  }

  // Amounts on both sides of the line, 250000 itself, and an invoice whose
  // total alone is above it.
  void OrnekTutarlar() {
    b_.Calistir(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tutar, BMVergisi, TahsilMasrafi, ToplamMasraf, "
        "ToplamTutar) VALUES ('A', 1, 5000000000, 250000000, 10000000, 260000000, 5260000000),"
        "('A', 2, 250000, 12500, 0, 12500, 262500), ('A', 3, 100, 5, 1, 6, 106);"
        "INSERT INTO Sozlesme(SozlesmeID, Tutar, FaizTutar) VALUES (1, 3000000, 150000),"
        "(2, 250000, 1000), (3, 250000.5, 2000);"
        "INSERT INTO SozlesmeDetay(SozlesmeID, Meblag) VALUES (1, 2000000), (1, 250000), "
        "(2, 300000000000)");
  }

  // Amounts as the engine writes them (quote keeps 5000000000.0 readable).
  QString Tutarlar() {
    return Sorgu(
               "SELECT FaturaNo, quote(Tutar), quote(BMVergisi), quote(TahsilMasrafi), "
               "quote(ToplamMasraf), quote(ToplamTutar), quote(TutarTL), quote(BMVergisiTL), "
               "quote(TahsilMasrafiTL), quote(ToplamMasrafTL), quote(ToplamTutarTL) FROM Fatura "
               "ORDER BY FaturaNo") +
           u'\n' +
           Sorgu(
               "SELECT SozlesmeID, quote(Tutar), quote(FaizTutar), quote(TutarTL), "
               "quote(FaizTutarTL) FROM Sozlesme") +
           u'\n' + Meblaglar();
  }
  QString Meblaglar() {
    return Sorgu("SELECT quote(Meblag), quote(MeblagTL) FROM SozlesmeDetay ORDER BY GirisNo");
  }

  // The schema and every row, to compare a file before and after.
  QString Hepsi() {
    QString s = Sorgu("SELECT type, name, sql FROM sqlite_master ORDER BY name");
    for (const char* t : {"Fatura", "Sozlesme", "SozlesmeDetay", "SozlesmeTanim"})
      s += u'\n' + Sorgu(u"SELECT * FROM %1 ORDER BY rowid"_s.arg(QLatin1String(t)));
    return s;
  }
};

TEST_F(Yukselt, VersiyonTablolariVeGorunumuKurarIkinciKezYapmaz) {
  EXPECT_TRUE(db::VersiyonYukselt(b_));
  EXPECT_TRUE(db::TabloVar(b_, u"Hesap"_s));
  EXPECT_TRUE(db::SutunVar(b_, u"HesapDetay"_s, u"Karsilik"_s));
  // The view has its full text again and reads.
  b_.Calistir(
      "INSERT INTO Musteri(MusteriNo, Soyadi) VALUES (1, 'Kaya');"
      "INSERT INTO Sozlesme(SozlesmeID, MusteriNo, Tarih, Tutar) VALUES (7, 1, '2006-03-04', 10)");
  EXPECT_EQ(Sorgu("SELECT SozlesmeID, AdSoyad, TarihGun, TarihAy, TarihYil FROM SozlesmePrint"),
            "7|Kaya |04|03|2006");

  b_.Calistir("INSERT INTO Hesap(SozlesmeID) VALUES (1)");
  EXPECT_FALSE(db::VersiyonYukselt(b_));
  EXPECT_EQ(Sorgu("SELECT count(*) FROM Hesap"), "1") << "a second run keeps the worksheet";
}

TEST_F(Yukselt, PulBedeliBirKezEklenir) {
  b_.Calistir("INSERT INTO Fatura(FaturaSeri, FaturaNo, Tutar) VALUES ('A', 1, 10), ('A', 2, 20)");
  ASSERT_TRUE(db::PulBedeliEksik(b_));
  QStringList basliklar;
  EXPECT_EQ(db::PulBedeliEkle(b_, [&](const QString& t) { basliklar << t; }), 0);
  EXPECT_EQ(basliklar, (QStringList{"Fatura Tablosu Tanımlanıyor", "Fatura Tablosu Ayarlanıyor"}));
  EXPECT_FALSE(db::PulBedeliEksik(b_));
  EXPECT_EQ(Sorgu("SELECT FaturaNo, quote(PulBedeli) FROM Fatura ORDER BY FaturaNo"),
            "1|0.0\n2|0.0");
}

TEST_F(Yukselt, YtlSinirinUstunuCevirirIkinciCalismaKalaniCevirir) {
  OrnekTutarlar();
  b_.Calistir("UPDATE SozlesmeTanim SET \"DECIMAL\" = 0");
  ASSERT_TRUE(db::YtlYapisiEksik(b_));
  EXPECT_EQ(db::YtlDonustur(b_, true), 0);
  EXPECT_FALSE(db::YtlYapisiEksik(b_));
  // Above the line: copied, then divided. 250000 itself, and an invoice whose
  // Tutar is below even though its total is above, stay as they are.
  EXPECT_EQ(Tutarlar(),
            "1|5000.0|250.0|10.0|260.0|5260.0|5000000000.0|250000000.0|10000000.0|260000000.0|"
            "5260000000.0\n"
            "2|250000.0|12500.0|0.0|12500.0|262500.0|NULL|NULL|NULL|NULL|NULL\n"
            "3|100.0|5.0|1.0|6.0|106.0|NULL|NULL|NULL|NULL|NULL\n"
            "1|3.0|0.15|3000000.0|150000.0\n"
            "2|250000.0|1000.0|NULL|NULL\n"
            "3|0.2500005|0.002|250000.5|2000.0\n"
            "2.0|2000000.0\n"
            "250000.0|NULL\n"
            "300000.0|300000000000.0");
  EXPECT_EQ(Sorgu("SELECT DISTINCT \"DECIMAL\" FROM SozlesmeTanim WHERE TIP = 'N'"), "2");
  EXPECT_EQ(Sorgu("SELECT count(*) FROM SozlesmeTanim WHERE TIP <> 'N' AND \"DECIMAL\" = 2"), "0");

  // A second run: only the line still above 250000 moves, its copy anew.
  EXPECT_EQ(db::YtlDonustur(b_, db::YtlYapisiEksik(b_)), 0);
  EXPECT_EQ(Meblaglar(), "2.0|2000000.0\n250000.0|NULL\n0.3|300000.0");
  EXPECT_EQ(Sorgu("SELECT quote(Tutar) FROM Fatura ORDER BY FaturaNo"), "5000.0\n250000.0\n100.0");
}

// A file that has some of the new columns already gets only the missing
// ones; a failing statement is passed over and the others run.
TEST_F(Yukselt, EksikSutunlarEklenirBasarisizDeyimAtlanir) {
  OrnekTutarlar();
  b_.Calistir(
      "ALTER TABLE Fatura ADD TutarTL REAL;"
      "CREATE TRIGGER FaturaKilit BEFORE UPDATE ON Fatura BEGIN SELECT RAISE(ABORT, 'kilitli'); "
      "END");
  EXPECT_EQ(db::YtlDonustur(b_, true), 2) << "the two statements on Fatura";
  EXPECT_EQ(Sorgu("SELECT quote(Tutar), quote(TutarTL) FROM Fatura WHERE FaturaNo = 1"),
            "5000000000.0|NULL");
  EXPECT_EQ(Sorgu("SELECT quote(Tutar), quote(TutarTL) FROM Sozlesme WHERE SozlesmeID = 1"),
            "3.0|3000000.0");
  EXPECT_EQ(Sorgu("SELECT count(*) FROM SozlesmeDetay WHERE MeblagTL IS NOT NULL"), "2");
  for (const char* s : {"BMVergisiTL", "ToplamTutarTL"})
    EXPECT_TRUE(db::SutunVar(b_, u"Fatura"_s, QString::fromLatin1(s))) << s;
  EXPECT_TRUE(db::SutunVar(b_, u"Sozlesme"_s, u"FaizTutarTL"_s));
}

// The command runs in a child process that is killed while the lines are
// being converted: the file must read as it did before the command.
TEST_F(Yukselt, YarimKalanDonusumDosyayiDegistirmez) {
  OrnekTutarlar();
  const QString once = Hepsi();
  b_.Kapat();
  const pid_t cocuk = fork();
  ASSERT_GE(cocuk, 0);
  if (cocuk == 0) {
    db::Baglanti c;
    c.Ac(yol_);
    db::YtlDonustur(c, true, [](const QString& t) {
      if (t == u"Çek Bilgileri Ayarlanıyor") kill(getpid(), SIGKILL);
    });
    _exit(0);  // not reached
  }
  int durum = 0;
  ASSERT_EQ(waitpid(cocuk, &durum, 0), cocuk);
  ASSERT_TRUE(WIFSIGNALED(durum) && WTERMSIG(durum) == SIGKILL);
  b_.Ac(yol_);
  EXPECT_EQ(Hepsi(), once);
  EXPECT_TRUE(db::YtlYapisiEksik(b_));
}

}  // namespace
