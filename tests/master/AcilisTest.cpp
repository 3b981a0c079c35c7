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

const QString kDbHata = QStringLiteral("Veri tabanı açılamadı. Ayarlarınızı kontrol ediniz!");
const QString kBaslikSonu = QStringLiteral(" - YTL Velmora Bilgi İşlem Sistemi. V.2.3");

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

  frmFirma* FirmaEkrani() {
    return qobject_cast<frmFirma*>(ekran::Acik(QStringLiteral("frmFirma")));
  }

  // The clerk fills in the office's name and series and saves.
  void FirmaKaydet(frmFirma* f) {
    ASSERT_NE(f, nullptr);
    test::Tusla(f->txtSoyadi, QStringLiteral("Kılıç Finans"));
    test::Tusla(f->txtSozlesmeSeri, QStringLiteral("AB"));
    test::Tusla(f->txtFaturaSeri, QStringLiteral("FT"));
    QTest::mouseClick(f->cmdUpdate, Qt::LeftButton);
    test::Isle();
    EXPECT_EQ(MesajMetinleri().value(0), QStringLiteral("Bilgiler Kaydedildi."));
  }

  QString VeriTabani() const { return Genel::VeriTabaniYolu(); }

  std::unique_ptr<frmMain> ana_;
};

TEST_F(Acilis, IlkAcilistanFirmaKaydinaKadar) {
  Genel::Baglanti.Kapat();
  ASSERT_TRUE(QFile::remove(VeriTabani()));

  // First start: a new database, and the firm screen is the first thing asked.
  Baslat();
  EXPECT_TRUE(QFile::exists(VeriTabani()));
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join(u'|').toStdString();
  ASSERT_NE(FirmaEkrani(), nullptr);
  QTest::mouseClick(FirmaEkrani()->Command1, Qt::LeftButton);  // closed unsaved
  test::Isle();
  EXPECT_EQ(FirmaEkrani(), nullptr);

  // Second start: no database error; the firm screen asks again.
  frmMain& ikinci = Baslat();
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join(u'|').toStdString();
  EXPECT_EQ(ikinci.windowTitle(), kBaslikSonu);
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmIni")), nullptr);
  FirmaKaydet(FirmaEkrani());

  // Third start: the firm's name in the title, nothing asked.
  frmMain& ucuncu = Baslat();
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join(u'|').toStdString();
  EXPECT_EQ(ucuncu.windowTitle(), QStringLiteral("Kılıç Finans") + kBaslikSonu);
  EXPECT_EQ(FirmaEkrani(), nullptr);
  EXPECT_EQ(Genel::SozlesmeSeri, QStringLiteral("AB"));
  EXPECT_EQ(Genel::FaturaSeri, QStringLiteral("FT"));
}

TEST_F(Acilis, OkunamayanFirmaSatiriMenudenOnarilir) {
  // An older database whose firm row still holds Nulls.
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE Firma SET Soyadi = NULL, SozlesmeSeri = NULL, FaturaSeri = NULL"));
  frmMain& ana = Baslat();
  EXPECT_EQ(MesajMetinleri(), QStringList{kDbHata});
  EXPECT_NE(ekran::Acik(QStringLiteral("frmIni")), nullptr);
  EXPECT_TRUE(Genel::Baglanti.Acik());

  // "Firma Bilgileri" opens the screen that repairs it; the program runs on.
  MesajlariTemizle();
  ana.mnuFirma->trigger();
  test::Isle();
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join(u'|').toStdString();
  FirmaKaydet(FirmaEkrani());

  Baslat();
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join(u'|').toStdString();
  EXPECT_EQ(ana_->windowTitle(), QStringLiteral("Kılıç Finans") + kBaslikSonu);
}

TEST_F(Acilis, MotorHatasiProgramiBitirmez) {
  struct Durum {
    const char* ad;
    std::function<void(Acilis&)> hazirla;
    QString mesaj;
  };
  const QList<Durum> durumlar = {
      {"firma tablosu yok",
       [](Acilis&) { Genel::Baglanti.Calistir(QStringLiteral("DROP TABLE Firma")); },
       QStringLiteral("Bir Hata Oluştu\nno such table: Firma")},
      {"veri tabanı olmayan dosya",
       [](Acilis& a) {
         Genel::Baglanti.Kapat();
         QFile f(a.VeriTabani());
         ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
         f.write("Bu bir veri tabanı değil.\n");
       },
       QStringLiteral("Veri tabanı açık değil. Ayarlarınızı kontrol edip programı yeniden "
                      "başlatınız.")},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.ad);
    TearDown();
    SetUp();
    d.hazirla(*this);
    frmMain& ana = Baslat();
    EXPECT_EQ(MesajMetinleri(), QStringList{kDbHata});
    MesajlariTemizle();
    ana.mnuFirma->trigger();
    test::Isle();
    ASSERT_EQ(MesajMetinleri(), QStringList{d.mesaj});
    EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("HATA"));
    EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
    // No half-made screen is left behind, and the program answers as before.
    EXPECT_EQ(FirmaEkrani(), nullptr);
    EXPECT_EQ(ana.mdi->subWindowList().size(), 1);  // the settings screen
    EXPECT_TRUE(ana.isVisible());
    ana.mnuAbout->trigger();
    test::Isle();
    EXPECT_NE(ekran::Acik(QStringLiteral("frmhakkinda")), nullptr);
  }
}

}  // namespace
