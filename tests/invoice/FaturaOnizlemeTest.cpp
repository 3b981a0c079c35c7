// The settings screen's preview: the latest invoice with the values typed on
// the screen, saved or not.

#include <QDialog>
#include <QLabel>

#include "core/Ekran.h"
#include "core/frmIni.h"
#include "invoice/FaturaBaski.h"
#include "invoice/FaturaOnizleme.h"
#include "tests/invoice/FaturaEkran.h"

namespace {

class FaturaOnizleme : public test::FaturaEkran {
 protected:
  void TearDown() override {
    ini_.reset();
    FaturaEkran::TearDown();
  }
  frmIni* IniAc() {
    ini_ = std::make_unique<frmIni>();
    ini_->show();
    QApplication::setActiveWindow(ini_.get());
    ini_->Form_Load();
    ini_->Form_Activate();
    test::Isle();
    return ini_.get();
  }
  std::unique_ptr<frmIni> ini_;
};

TEST_F(FaturaOnizleme, EkrandakiDegerlerle) {
  invoice::FaturaOnizlemeKaydet();
  auto* ini = IniAc();
  ASSERT_TRUE(ini->cmdOnizleme->isEnabled());
  ASSERT_TRUE(Bas(ini->cmdOnizleme));
  EXPECT_EQ(Kutular(), "Bilgi Önizleme: Önizlenecek fatura yok. Önce bir fatura kaydediniz.");

  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar, "
      "ToplamTutar) VALUES ('A', 1, '2005-03-04', 12, 1, 40000, 49500)");
  // The screen's own defaults (15 blank lines above) and a change not saved.
  Yaz(ini->txtTutarBosluk, "70");
  ini->chkPulBedeli->setChecked(false);
  const fatura::YaziAyari a = invoice::EkrandakiAyar(ini);
  EXPECT_EQ(a.BasBosluk, 15);
  EXPECT_EQ(a.TutarBas, 70);
  EXPECT_FALSE(a.PulBedeli);
  EXPECT_EQ(Genel::TutarBas, 58);

  ASSERT_TRUE(Bas(ini->cmdOnizleme));
  EXPECT_EQ(Kutular(), "");
  auto* d = ini->findChild<QDialog*>("frmOnizleme");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Önizleme - Fatura A 1");
  EXPECT_TRUE(d->findChild<QLabel*>("lblHata")->isHidden());
  EXPECT_EQ(d->findChild<QLabel*>("lblBilgi")->text().left(9), "70 satır,");
  d->close();
  test::Isle();
  QApplication::setActiveWindow(ini);

  // An offset that breaks the stream shows the failure under the pages.
  Yaz(ini->txtTutarBosluk, "20");
  ASSERT_TRUE(Bas(ini->cmdOnizleme));
  d = ini->findChild<QDialog*>("frmOnizleme");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->findChild<QLabel*>("lblHata")->text(),
            "Bir Hata Oluştu\n32. satır: yazı 20. sütunu geçiyor (40 karakter).");
  d->close();
}

}  // namespace
