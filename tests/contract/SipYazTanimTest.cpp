// The print template screen: the fields that each kind of row shows, rows
// added, changed and deleted, what the screen refuses, and its preview.

#include <QDialog>

#include "contract/frmSipYazTanim.h"
#include "core/Ekran.h"
#include "tests/contract/SozlesEkran.h"
#include "tests/support/Klavye.h"

namespace {

class SipYazTanim : public test::SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Calistir("DELETE FROM SozlesmeTanim");
    Calistir(
        "INSERT INTO SozlesmeTanim(ID, SIRA, SUTUN, TIP, ALAN, BOY, \"DECIMAL\", FORMAT) "
        "VALUES (4, 1, 1, 'B', 'AdSoyad', NULL, NULL, 'TURKCE'), "
        "(9, 2, 1, 'P', NULL, 1, NULL, NULL)");
  }
  void TearDown() override {
    tanim_.reset();
    SozlesEkran::TearDown();
  }
  frmSipYazTanim* TanimAc() {
    tanim_ = std::make_unique<frmSipYazTanim>();
    tanim_->show();
    QApplication::setActiveWindow(tanim_.get());
    tanim_->Form_Load();
    test::Isle();
    return tanim_.get();
  }
  std::unique_ptr<frmSipYazTanim> tanim_;

  static QString Satirlar() {
    return Tablo(
        "SELECT ID, SIRA, SUTUN, TIP, ALAN, BOY, \"DECIMAL\", FORMAT FROM SozlesmeTanim "
        "ORDER BY ID");
  }
  // The fields on show, by name.
  static QString Gorunen(frmSipYazTanim* f) {
    QStringList l;
    for (QWidget* w : std::initializer_list<QWidget*>{f->cmbAlan, f->txtDetay, f->cmbFormat,
                                                      f->txtBoy, f->txtDecimal})
      if (!w->isHidden()) l << w->objectName();
    return l.join(' ');
  }
  static void Tip(frmSipYazTanim* f, const QString& tip) {
    f->cmbTip->setCurrentText(tip);
    emit f->cmbTip->activated(f->cmbTip->currentIndex());
  }
  static void Sec(frmSipYazTanim* f, int satir) {
    f->DataGrid1->selectRow(satir);
    f->DataGrid1_DblClick();
  }
};

TEST_F(SipYazTanim, AcilisVeTipeGoreAlanlar) {
  auto* f = TanimAc();
  EXPECT_EQ(f->windowTitle(), "Sipariş Yazıcı Tanımlama Ekranı");
  EXPECT_TRUE(f->DataGrid1->isColumnHidden(f->rs.AlanNo("ID")));
  EXPECT_EQ(f->rs.RecordCount(), 2);
  EXPECT_EQ(Metinler({f->txtSira, f->txtSutun, f->cmbTip, f->cmbAlan, f->cmbFormat, f->txtBoy,
                      f->txtDecimal, f->cmdEkle}),
            "||Seçin|Seçin||0|0|Ekle");
  EXPECT_FALSE(f->cmdsil->isEnabled());
  const std::pair<const char*, const char*> tablo[] = {
      {"Seçin", "cmbAlan cmbFormat txtBoy txtDecimal"},
      {"A", "txtBoy"},
      {"B", "cmbAlan cmbFormat"},
      {"C", "txtBoy"},
      {"D", "txtDetay txtBoy txtDecimal"},
      {"N", "cmbAlan cmbFormat txtDecimal"},
      {"P", "txtBoy"},
      {"S", "txtBoy"},
      {"T", "txtDetay"},
      {"Y", ""},
  };
  for (const auto& [tip, alanlar] : tablo) {
    Tip(f, tip);
    EXPECT_EQ(Gorunen(f), alanlar) << tip;
    EXPECT_EQ(f->lblBoy->isHidden(), f->txtBoy->isHidden()) << tip;
  }
  // A block's line count may take two digits.
  Tip(f, "D");
  f->txtDecimal->clear();
  f->txtDecimal->setFocus();
  test::Tusla(f->txtDecimal, "224");
  EXPECT_EQ(f->txtDecimal->text(), "22");
  Tip(f, "N");
  f->txtDecimal->clear();
  test::Tusla(f->txtDecimal, "23");
  EXPECT_EQ(f->txtDecimal->text(), "2");
}

TEST_F(SipYazTanim, EkleDegistirSil) {
  auto* f = TanimAc();
  // Without line, order or kind: dropped without a word.
  Tip(f, "N");
  Yaz(f->txtSira, "30");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Kutular(), "");
  // A number row: ALAN, DECIMAL and FORMAT; no BOY, its field isn't on show.
  Yaz(f->txtSutun, "1");
  f->cmbAlan->setCurrentText("FaizOran");
  f->cmbFormat->setCurrentText("NUMR");
  Yaz(f->txtDecimal, "2");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Satirlar(),
            "4|1|1|B|AdSoyad|NULL|NULL|TURKCE\n9|2|1|P|NULL|1|NULL|NULL\n"
            "10|30|1|N|FaizOran|NULL|2|NUMR");
  EXPECT_EQ(Metinler({f->txtSira, f->txtSutun, f->cmbTip, f->txtBoy}), "||Seçin|0");
  EXPECT_EQ(f->rs.RecordCount(), 3);

  // A text row with nothing typed stores the empty text; a second row of the
  // same line and order is allowed.
  Tip(f, "T");
  Yaz(f->txtSira, "30");
  Yaz(f->txtSutun, "1");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Tablo("SELECT ALAN, BOY FROM SozlesmeTanim WHERE ID = 11"), "|NULL");

  // The B row, changed into an S row: ALAN and FORMAT stay in the table.
  Sec(f, 0);
  EXPECT_EQ(Metinler({f->txtSira, f->txtSutun, f->cmbTip, f->cmbAlan, f->cmbFormat, f->txtDetay,
                      f->cmdEkle}),
            "1|1|B|AdSoyad|TURKCE|AdSoyad|Kaydet");
  EXPECT_TRUE(f->cmdsil->isEnabled());
  Tip(f, "S");
  Yaz(f->txtBoy, "5");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Tablo("SELECT SIRA, SUTUN, TIP, ALAN, BOY, FORMAT FROM SozlesmeTanim WHERE ID = 4"),
            "1|1|S|AdSoyad|5|TURKCE");
  EXPECT_EQ(f->cmdEkle->text(), "Ekle");
  EXPECT_FALSE(f->cmdsil->isEnabled());

  // Deleting asks; No keeps the row.
  Sec(f, 1);
  ASSERT_EQ(f->ID, 9);
  Cevap(mesaj::Dugme::Hayir);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Kutular(), "Soru SİLME ONAYI: Silmek istediğinizden Emin misiniz?");
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim WHERE ID = 9"), "1");
  Cevap(mesaj::Dugme::Evet);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim WHERE ID = 9"), "0");
  EXPECT_EQ(f->ID, 0);
  EXPECT_EQ(f->cmdEkle->text(), "Ekle");
  EXPECT_EQ(f->rs.RecordCount(), 3);

  // Vazgeç leaves the row being changed.
  Sec(f, 0);
  ASSERT_TRUE(Bas(f->cmdVazgec));
  EXPECT_EQ(Metinler({f->txtSira, f->cmbTip, f->cmdEkle}), "|Seçin|Ekle");
}

TEST_F(SipYazTanim, SayiOlmayanSiraReddedilir) {
  auto* f = TanimAc();
  Tip(f, "P");
  Yaz(f->txtSira, "ab");
  Yaz(f->txtSutun, "1");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Kutular(), "Ünlem Giriş Hatası: Sıra bir tam sayı olmalıdır: \"ab\"");
  EXPECT_EQ(QApplication::focusWidget(), f->txtSira);
  Yaz(f->txtSira, "3");
  Yaz(f->txtSutun, "1x");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Kutular(), "Ünlem Giriş Hatası: Sütun bir tam sayı olmalıdır: \"1x\"");
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim"), "2");
  // Changing a row is refused alike.
  Sec(f, 0);
  Yaz(f->txtSira, "");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Kutular(), "Ünlem Giriş Hatası: Sıra bir tam sayı olmalıdır: \"\"");
  EXPECT_EQ(Tablo("SELECT SIRA FROM SozlesmeTanim WHERE ID = 4"), "1");
}

TEST_F(SipYazTanim, Onizleme) {
  auto* f = TanimAc();
  ASSERT_TRUE(Bas(f->cmdOnizleme));
  EXPECT_EQ(Kutular(), "Bilgi Önizleme: Önizlenecek sözleşme yok. Önce bir sözleşme açınız.");
  // The latest contract with an invoice, by the template as it stands.
  Sozlesme(1, 7, 12, "2005-03-04");
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID) "
      "VALUES ('A', 1, '2005-03-04', 12, 1)");
  ASSERT_TRUE(Bas(f->cmdOnizleme));
  EXPECT_EQ(Kutular(), "");
  auto* d = f->findChild<QDialog*>("frmOnizleme");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Önizleme - Sözleşme AB 7");
  d->close();
}

}  // namespace
