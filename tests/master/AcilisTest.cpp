// The clerk's first days with the program: the first start, a firm screen left
// unsaved, older databases whose firm row can't be read, and the menu entry
// that mends the row while the program keeps running.

#include <gtest/gtest.h>

#include <QFile>
#include <QMdiArea>
#include <QTest>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/frmMain.h"
#include "master/frmFirma.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

namespace {

const QString kDbHata = "Kritik HATA: Veri tabanı açılamadı. Ayarlarınızı kontrol ediniz!";
const QString kBaslikSonu = " - YTL Velmora Bilgi İşlem Sistemi. V.2.3";

class Acilis : public test::Ortam {
 public:
  void SetUp() override {
    test::Ortam::SetUp();
    master::FirmaEkraniKaydet();
  }
  void TearDown() override {
    ana_.reset();
    test::Ortam::TearDown();
  }
  // Ends the program that runs (if any) and starts it again on the folders.
  frmMain& Baslat() {
    ana_.reset();
    test::Isle();
    Genel::Baglanti.Kapat();
    MesajlariTemizle();
    ana_ = std::make_unique<frmMain>();
    ana_->show();
    EXPECT_TRUE(ana_->Form_Load());
    test::Isle();
    return *ana_;
  }
  frmFirma* FirmaEkrani() { return qobject_cast<frmFirma*>(ekran::Acik("frmFirma")); }
  // The clerk fills in the office's name and series and saves.
  void FirmaKaydet() {
    frmFirma* f = FirmaEkrani();
    ASSERT_NE(f, nullptr);
    test::Tusla(f->txtSoyadi, "Kılıç Finans");
    test::Tusla(f->txtSozlesmeSeri, "AB");
    test::Tusla(f->txtFaturaSeri, "FT");
    test::Tikla(f->cmdUpdate);
    EXPECT_EQ(MesajMetinleri().value(0), "Bilgiler Kaydedildi.");
  }
  std::unique_ptr<frmMain> ana_;
};

TEST_F(Acilis, IlkAcilistanFirmaKaydinaKadar) {
  Genel::Baglanti.Kapat();
  ASSERT_TRUE(QFile::remove(Genel::VeriTabaniYolu()));
  // First start: a new database, and the firm screen is the first thing asked.
  Baslat();
  EXPECT_TRUE(QFile::exists(Genel::VeriTabaniYolu()));
  EXPECT_EQ(Kutular(), "");
  ASSERT_NE(FirmaEkrani(), nullptr);
  test::Tikla(FirmaEkrani()->Command1);  // closed unsaved
  EXPECT_EQ(FirmaEkrani(), nullptr);
  // Second start: no database error; the firm screen asks again.
  EXPECT_EQ(Baslat().windowTitle(), kBaslikSonu);
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(ekran::Acik("frmIni"), nullptr);
  FirmaKaydet();
  // Third start: the firm's name in the title, nothing asked.
  EXPECT_EQ(Baslat().windowTitle(), "Kılıç Finans" + kBaslikSonu);
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(FirmaEkrani(), nullptr);
  EXPECT_EQ(Genel::SozlesmeSeri + Genel::FaturaSeri, "ABFT");
}

TEST_F(Acilis, OkunamayanFirmaSatiriMenudenOnarilir) {
  // An older database whose firm row still holds Nulls.
  Genel::Baglanti.Calistir(
      "UPDATE Firma SET Soyadi = NULL, SozlesmeSeri = NULL, FaturaSeri = NULL");
  frmMain& ana = Baslat();
  EXPECT_EQ(Kutular(), kDbHata);
  EXPECT_NE(ekran::Acik("frmIni"), nullptr);
  EXPECT_TRUE(Genel::Baglanti.Acik());
  // "Firma Bilgileri" opens the screen that repairs it; the program runs on.
  ana.mnuFirma->trigger();
  test::Isle();
  EXPECT_EQ(Kutular(), "");
  FirmaKaydet();
  EXPECT_EQ(Baslat().windowTitle(), "Kılıç Finans" + kBaslikSonu);
  EXPECT_EQ(Kutular(), "");
}

TEST_F(Acilis, MotorHatasiProgramiBitirmez) {
  for (const bool tabloYok : {true, false}) {
    SCOPED_TRACE(tabloYok ? "firma tablosu yok" : "veri tabanı olmayan dosya");
    TearDown();
    SetUp();
    if (tabloYok) {
      Genel::Baglanti.Calistir("DROP TABLE Firma");
    } else {
      Genel::Baglanti.Kapat();
      QFile f(Genel::VeriTabaniYolu());
      ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
      f.write("Bu bir veri tabanı değil.\n");
    }
    frmMain& ana = Baslat();
    EXPECT_EQ(Kutular(), kDbHata);
    ana.mnuFirma->trigger();
    test::Isle();
    EXPECT_EQ(Kutular(), tabloYok ? "Kritik HATA: Bir Hata Oluştu\nno such table: Firma"
                                  : "Kritik HATA: Veri tabanı açık değil. Ayarlarınızı kontrol "
                                    "edip programı yeniden başlatınız.");
    // No half-made screen is left behind, and the program answers as before.
    EXPECT_EQ(FirmaEkrani(), nullptr);
    EXPECT_EQ(ana.mdi->subWindowList().size(), 1);  // the settings screen
    EXPECT_TRUE(ana.isVisible());
    ana.mnuAbout->trigger();
    test::Isle();
    EXPECT_NE(ekran::Acik("frmhakkinda"), nullptr);
  }
}

}  // namespace
