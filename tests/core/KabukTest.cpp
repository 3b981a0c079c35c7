// Start-up of the main window on good and unusable databases, the menu, the
// background, the about screen, and the settings screen as a clerk uses it.

#include <gtest/gtest.h>
#include <unistd.h>

#include <QAction>
#include <QFile>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

#include "core/Ekran.h"
#include "core/frmIni.h"
#include "db/Baglanti.h"
#include "tests/core/Ortak.h"
#include "tests/support/Klavye.h"

using namespace Qt::StringLiterals;

namespace {

QString Yol() { return Genel::VeriTabaniYolu(); }

using Kabuk = test::AnaPencere;

TEST_F(Kabuk, IlkAcilistaVeriTabaniOlusur) {
  Genel::Baglanti.Kapat();
  ASSERT_TRUE(QFile::remove(Yol()));
  frmMain& ana = Baslat();
  EXPECT_EQ(Kutular(), QString());
  EXPECT_TRUE(QFile::exists(Yol()));
  EXPECT_TRUE(Genel::Baglanti.Acik());
  EXPECT_EQ(ana.windowTitle(), u" - YTL Velmora Bilgi İşlem Sistemi. V.2.3"_s);
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT count(*) FROM Il_Trafik_Kodu").toInt(), 81);
  EXPECT_EQ(QFile::permissions(Yol()) & (QFileDevice::ReadOther | QFileDevice::ReadGroup), 0);
}

TEST_F(Kabuk, FirmaKaydiBaslikVeGenelDegerler) {
  FirmaDoldur();
  frmMain* ana = &Baslat();
  EXPECT_EQ(Kutular(), QString());
  EXPECT_EQ(ana->windowTitle(), u"Kılıç Finans - YTL Velmora Bilgi İşlem Sistemi. V.2.3"_s);
  EXPECT_EQ(Genel::SozlesmeSeri + Genel::FaturaSeri, u"ABFT"_s);
  ASSERT_NE(ana->arka, nullptr);
  EXPECT_EQ(ana->arka->Label1->text(), u"Kılıç Finans\n YTL Bilgi Sistemi"_s);
  EXPECT_TRUE(ana->arka->Label1->isVisible());

  // The background follows every change of the window's size.
  ana->resize(900, 600);
  test::Isle();
  EXPECT_EQ(ana->arka->width(), 900 - ekran::Twip(300));
  EXPECT_EQ(ana->arka->height(), 600 - ekran::Twip(1100));
  ana->resize(1100, 700);
  test::Isle();
  EXPECT_EQ(ana->arka->width(), 1100 - ekran::Twip(300));

  // An empty name is a name: the title begins with the separator.
  Genel::Baglanti.Calistir("UPDATE Firma SET Soyadi = ''");
  ana = &Baslat();
  EXPECT_EQ(Kutular(), QString());
  EXPECT_TRUE(ana->windowTitle().startsWith(u" - YTL "_s));
}

// Each bad state of the file: the clerk is told, the settings screen opens,
// the window stays, and the file is left exactly as it was.
TEST_F(Kabuk, KullanilamayanVeriTabaniDokunulmazKalir) {
  std::unique_ptr<db::Baglanti> diger;  // another program holding the file
  const std::pair<const char*, std::function<bool()>> durumlar[] = {
      {"firma alanı boş",  // an older database's row of Nulls
       [] { return Genel::Baglanti.Calistir("UPDATE Firma SET Soyadi = NULL"), true; }},
      {"firma satırı yok", [] { return Genel::Baglanti.Calistir("DELETE FROM Firma"), true; }},
      {"firma tablosu yok", [] { return Genel::Baglanti.Calistir("DROP TABLE Firma"), true; }},
      {"seri boş",
       [] {
         FirmaDoldur();
         Genel::Baglanti.Calistir("UPDATE Firma SET FaturaSeri = NULL");
         return true;
       }},
      {"veri tabanı olmayan dosya",
       [] {
         Genel::Baglanti.Kapat();
         QFile f(Yol());
         return f.open(QIODevice::WriteOnly | QIODevice::Truncate) &&
                f.write("Bu bir veri tabanı değil, müşteri listesinin eski kopyası.\n") > 0;
       }},
      {"başka program kilitli tutarken",
       [&diger] {
         FirmaDoldur();
         Genel::Baglanti.Kapat();
         diger = std::make_unique<db::Baglanti>();
         diger->Ac(Yol());
         diger->Calistir("BEGIN EXCLUSIVE");
         diger->Calistir("UPDATE Firma SET Adi = 'kilit'");
         return true;
       }},
      {"salt okunur dosya",  // root writes read-only files anyway
       [] {
         FirmaDoldur();
         Genel::Baglanti.Kapat();
         QFile::setPermissions(Yol(), QFileDevice::ReadOwner);
         return geteuid() != 0;
       }},
  };
  for (const auto& [ad, hazirla] : durumlar) {
    SCOPED_TRACE(ad);
    ana_.reset();
    TearDown();
    SetUp();
    if (!hazirla()) continue;
    Genel::Baglanti.Kapat();
    const QByteArray once = test::Icerik(Yol());
    frmMain& ana = Baslat();
    EXPECT_EQ(Kutular(), u"Kritik HATA: Veri tabanı açılamadı. Ayarlarınızı kontrol ediniz!"_s);
    EXPECT_NE(ekran::Acik("frmIni"), nullptr);
    EXPECT_TRUE(ana.isVisible());
    EXPECT_EQ(test::Icerik(Yol()), once);
    if (diger) diger->Calistir("ROLLBACK");
    diger.reset();
  }
}

TEST_F(Kabuk, AyarDiziniYoksaProgramBiter) {
  QFile engel(ayarDizini() + u"/dosya"_s);
  ASSERT_TRUE(engel.open(QIODevice::WriteOnly));
  engel.close();
  qputenv("VELMORA_AYAR", (engel.fileName() + u"/alt"_s).toUtf8());
  Genel::Baglanti.Kapat();
  frmMain ana;
  ana.show();
  EXPECT_FALSE(ana.Form_Load());
  EXPECT_EQ(Kutular(), u"Kritik ÖNEMLİ HATA: Windows Dizini Bulunamadı!!!"_s);
  EXPECT_FALSE(Genel::Baglanti.Acik());
}

TEST_F(Kabuk, MenuVeEkranlar) {
  FirmaDoldur();
  frmMain* ana = &Baslat();
  // Switched-off entries stay off even when their screen exists.
  ekran::Kaydet(u"frmNoDegis"_s, [] { return new QWidget; });
  ana->MenuDurumu();
  EXPECT_FALSE(ana->mnuSozNoDegis->isEnabled());
  EXPECT_FALSE(ana->mnuYTL->isEnabled());
  EXPECT_TRUE(ana->mnuAbout->isEnabled());

  // Each screen exists once; asking again brings the same one forward.
  ana->mnuAbout->trigger();
  QWidget* ilk = ekran::Acik(u"frmhakkinda"_s);
  ASSERT_NE(ilk, nullptr);
  ana->mnuAyarlar->trigger();
  ana->mnuAbout->trigger();
  EXPECT_EQ(ekran::Acik(u"frmhakkinda"_s), ilk);
  EXPECT_EQ(ana->mdi->subWindowList().size(), 2);
  EXPECT_EQ(ana->mdi->activeSubWindow()->widget(), ilk);
  auto* hakkinda = static_cast<frmhakkinda*>(ilk);
  EXPECT_EQ(hakkinda->windowTitle(), u"Bilgi"_s);
  EXPECT_EQ(hakkinda->lblVersiyon->text(), u"Versiyon: 2.3. Yapım:2"_s);
  hakkinda->Command1->click();
  test::Isle();
  EXPECT_EQ(ekran::Acik(u"frmhakkinda"_s), nullptr);
  EXPECT_EQ(ana->mdi->subWindowList().size(), 1);
}

// --- settings screen

class Ayarlar : public Kabuk {
 protected:
  frmIni* Ac() {
    Baslat();
    return static_cast<frmIni*>(ekran::Ac(u"frmIni"_s));
  }
  void SetUp() override {
    Kabuk::SetUp();
    FirmaDoldur();
  }
};

TEST_F(Ayarlar, DosyaYokkenIkiVarsayilanTakimi) {
  frmIni* f = Ac();
  ASSERT_NE(f, nullptr);
  // The screen's own defaults differ from the loader's for these two keys.
  EXPECT_EQ(QStringList({f->txtBasBosluk->text(), f->txtIlave->text(), f->txtSonBosluk->text(),
                         f->cmbFatura->currentText(), f->cmbSozlesme->currentText(),
                         f->txtLimitAdet->text()})
                .join('|'),
            u"15|1|10|LPT2|LPT1|22"_s);
  EXPECT_EQ(QList<int>({Genel::BasBosluk, Genel::IlaveGun}), QList<int>({11, 3}));
  EXPECT_TRUE(f->txtFatura->isHidden());

  // Saving writes the screen's values, and the globals follow at once.
  f->cmdKaydet_Click();
  test::Isle();
  EXPECT_EQ(QList<int>({Genel::BasBosluk, Genel::IlaveGun}), QList<int>({15, 1}));
  EXPECT_EQ(Genel::IniOku(Genel::IniDosya, u"Hesap"_s, u"YTL"_s, {}), u"1"_s);
  EXPECT_EQ(ekran::Acik(u"frmIni"_s), nullptr);
}

TEST_F(Ayarlar, DigerYaziciVeDosyadakiDegerler) {
  Genel::IniYaz(Genel::IniDosya, u"Fatura"_s, u"Printer"_s, u"//sunucu/nokta-vuruslu"_s);
  Genel::IniYaz(Genel::IniDosya, u"Sozlesme"_s, u"DetayLimit"_s, u"1"_s);
  frmIni* f = Ac();
  EXPECT_EQ(f->cmbFatura->currentText(), u"Diğer"_s);
  EXPECT_FALSE(f->txtFatura->isHidden());
  EXPECT_EQ(f->txtFatura->text(), u"//sunucu/nokta-vuruslu"_s);
  EXPECT_EQ(f->txtLimitAdet->text(), u"1"_s);
  EXPECT_EQ(Genel::DetayLimit, 2);

  // Choosing a port hides the box; choosing "Diğer" empties and shows it.
  QApplication::setActiveWindow(ana_.get());
  test::Sec(f->cmbFatura, QStringLiteral("LPT3"));
  EXPECT_EQ(f->txtFatura->text(), QStringLiteral("LPT3"));
  EXPECT_TRUE(f->txtFatura->isHidden());
  test::Sec(f->cmbSozlesme, QStringLiteral("D"));
  EXPECT_TRUE(f->txtSozlesme->text().isEmpty());
  EXPECT_FALSE(f->txtSozlesme->isHidden());

  // An empty printer is refused and nothing is written.
  const QByteArray once = test::Icerik(Genel::IniDosya);
  f->cmdKaydet_Click();
  EXPECT_EQ(Kutular(), u"Kritik HATA: Geçersiz Yazıcı Tanımı"_s);
  EXPECT_NE(ekran::Acik(u"frmIni"_s), nullptr);
  EXPECT_EQ(test::Icerik(Genel::IniDosya), once);

  test::Yaz(f->txtSozlesme, QStringLiteral("/dev/usb/lp0"));
  test::Yaz(f->txtTarihBas, QStringLiteral("4x"));
  for (QCheckBox* k : {f->chkHaftaSonu, f->chkIslem}) {
    ASSERT_FALSE(k->isChecked()) << k->objectName().toStdString();
    k->setFocus();
    QTest::keyClick(k, Qt::Key_Space);
  }
  f->cmdKaydet_Click();
  EXPECT_EQ(Genel::PrinterSozlesme + '|' + Genel::PrinterFatura, u"/dev/usb/lp0|LPT3"_s);
  EXPECT_EQ(QList<int>({Genel::TarihBas, Genel::DetayLimit}), QList<int>({4, 2}));
  EXPECT_TRUE(Genel::HaftaSonu && Genel::SadeceGoster);
}

TEST_F(Ayarlar, YazilanlarBaskaEkrandanDonunceKaybolur) {
  frmIni* f = Ac();
  QApplication::setActiveWindow(ana_.get());
  test::Yaz(f->txtBasBosluk, QStringLiteral("77"));
  ASSERT_EQ(f->txtBasBosluk->text(), QStringLiteral("77"));
  ekran::Ac(QStringLiteral("frmhakkinda"));
  ekran::Ac(QStringLiteral("frmIni"));
  test::Isle();
  EXPECT_EQ(f->txtBasBosluk->text(), u"15"_s);
}

}  // namespace
