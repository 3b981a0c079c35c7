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
#include "core/Genel.h"
#include "core/frmIni.h"
#include "core/frmMain.h"
#include "db/Baglanti.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

namespace {

const QString kDbHata = QStringLiteral("Veri tabanı açılamadı. Ayarlarınızı kontrol ediniz!");

class Kabuk : public test::Ortam {
 public:
  QString Yol() const { return Genel::VeriTabaniYolu(); }

  void FirmaDoldur() {
    Genel::Baglanti.Calistir(QStringLiteral(
        "UPDATE Firma SET Soyadi = 'Kılıç Finans', SozlesmeSeri = 'AB', FaturaSeri = 'FT'"));
  }

  QByteArray Dosya() {
    QFile f(Yol());
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }

  // Starts the window on whatever stands in the data folder now.
  std::unique_ptr<frmMain> Baslat() {
    Genel::Baglanti.Kapat();
    auto ana = std::make_unique<frmMain>();
    ana->show();
    EXPECT_TRUE(ana->Form_Load());
    test::Isle();
    return ana;
  }

  void DbHatasiBekle(frmMain& ana) {
    EXPECT_EQ(MesajMetinleri(), QStringList{kDbHata});
    ASSERT_FALSE(Mesajlar().isEmpty());
    EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("HATA"));
    EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
    EXPECT_NE(ekran::Acik(QStringLiteral("frmIni")), nullptr);
    EXPECT_TRUE(ana.isVisible());
    EXPECT_TRUE(ana.mnuFirma->isEnabled() || !ekran::KayitliMi(QStringLiteral("frmFirma")));
  }
};

TEST_F(Kabuk, IlkAcilistaVeriTabaniOlusur) {
  Genel::Baglanti.Kapat();
  ASSERT_TRUE(QFile::remove(Yol()));
  auto ana = Baslat();
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join(QLatin1Char('|')).toStdString();
  EXPECT_TRUE(QFile::exists(Yol()));
  EXPECT_TRUE(Genel::Baglanti.Acik());
  EXPECT_EQ(ana->windowTitle(), QStringLiteral(" - YTL Velmora Bilgi İşlem Sistemi. V.2.3"));
  EXPECT_EQ(Genel::Baglanti.Deger(QStringLiteral("SELECT count(*) FROM Il_Trafik_Kodu")).toInt(),
            81);
  EXPECT_EQ(QFile::permissions(Yol()) & (QFileDevice::ReadOther | QFileDevice::ReadGroup), 0);
}

TEST_F(Kabuk, FirmaKaydiBaslikVeGenelDegerler) {
  FirmaDoldur();
  auto ana = Baslat();
  EXPECT_TRUE(Mesajlar().isEmpty());
  EXPECT_EQ(ana->windowTitle(),
            QStringLiteral("Kılıç Finans - YTL Velmora Bilgi İşlem Sistemi. V.2.3"));
  EXPECT_EQ(Genel::SozlesmeSeri, QStringLiteral("AB"));
  EXPECT_EQ(Genel::FaturaSeri, QStringLiteral("FT"));
  ASSERT_NE(ana->arka, nullptr);
  EXPECT_EQ(ana->arka->Label1->text(), QStringLiteral("Kılıç Finans\n YTL Bilgi Sistemi"));
  EXPECT_TRUE(ana->arka->isVisible());
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
  Genel::Baglanti.Calistir(QStringLiteral("UPDATE Firma SET Soyadi = ''"));
  ana = Baslat();
  EXPECT_TRUE(Mesajlar().isEmpty());
  EXPECT_TRUE(ana->windowTitle().startsWith(QStringLiteral(" - YTL ")));
}

TEST_F(Kabuk, KullanilamayanVeriTabaniDokunulmazKalir) {
  struct Durum {
    const char* ad;
    std::function<void(Kabuk&)> hazirla;
  };
  const QList<Durum> durumlar = {
      {"firma alanı boş",  // an older database's row of Nulls
       [](Kabuk&) { Genel::Baglanti.Calistir(QStringLiteral("UPDATE Firma SET Soyadi = NULL")); }},
      {"firma satırı yok",
       [](Kabuk&) { Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Firma")); }},
      {"firma tablosu yok",
       [](Kabuk&) { Genel::Baglanti.Calistir(QStringLiteral("DROP TABLE Firma")); }},
      {"seri boş",
       [](Kabuk& k) {
         k.FirmaDoldur();
         Genel::Baglanti.Calistir(QStringLiteral("UPDATE Firma SET FaturaSeri = NULL"));
       }},
      {"veri tabanı olmayan dosya",
       [](Kabuk& k) {
         Genel::Baglanti.Kapat();
         QFile f(k.Yol());
         ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
         f.write("Bu bir veri tabanı değil, müşteri listesinin eski kopyası.\n");
       }},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.ad);
    TearDown();
    SetUp();
    d.hazirla(*this);
    Genel::Baglanti.Kapat();
    const QByteArray once = Dosya();
    auto ana = Baslat();
    DbHatasiBekle(*ana);
    EXPECT_EQ(Dosya(), once);
  }
}

TEST_F(Kabuk, BaskaProgramKilitliTutarken) {
  FirmaDoldur();
  Genel::Baglanti.Kapat();
  db::Baglanti diger;
  diger.Ac(Yol());
  diger.Calistir(QStringLiteral("BEGIN EXCLUSIVE"));
  diger.Calistir(QStringLiteral("UPDATE Firma SET Adi = 'kilit'"));
  auto ana = Baslat();
  DbHatasiBekle(*ana);
  diger.Calistir(QStringLiteral("ROLLBACK"));
}

TEST_F(Kabuk, SaltOkunurDosya) {
  if (geteuid() == 0) GTEST_SKIP() << "root writes read-only files anyway";
  FirmaDoldur();
  Genel::Baglanti.Kapat();
  QFile::setPermissions(Yol(), QFileDevice::ReadOwner);
  const QByteArray once = Dosya();
  auto ana = Baslat();
  DbHatasiBekle(*ana);
  EXPECT_EQ(Dosya(), once);
}

TEST_F(Kabuk, AyarDiziniYoksaProgramBiter) {
  QFile engel(ayarDizini() + QStringLiteral("/dosya"));
  ASSERT_TRUE(engel.open(QIODevice::WriteOnly));
  engel.close();
  qputenv("VELMORA_AYAR", (engel.fileName() + QStringLiteral("/alt")).toUtf8());
  Genel::Baglanti.Kapat();
  frmMain ana;
  ana.show();
  EXPECT_FALSE(ana.Form_Load());
  EXPECT_EQ(MesajMetinleri(), QStringList{QStringLiteral("Windows Dizini Bulunamadı!!!")});
  EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("ÖNEMLİ HATA"));
  EXPECT_FALSE(Genel::Baglanti.Acik());
}

TEST_F(Kabuk, MenuVeEkranlar) {
  FirmaDoldur();
  auto ana = Baslat();
  // Switched-off entries stay off even when their screen exists.
  ekran::Kaydet(QStringLiteral("frmNoDegis"), [] { return new QWidget; });
  ana->MenuDurumu();
  EXPECT_FALSE(ana->mnuSozNoDegis->isEnabled());
  EXPECT_FALSE(ana->mnuYTL->isEnabled());
  EXPECT_TRUE(ana->mnuAbout->isEnabled());

  // Each screen exists once; asking again brings the same one forward.
  ana->mnuAbout->trigger();
  QWidget* ilk = ekran::Acik(QStringLiteral("frmhakkinda"));
  ASSERT_NE(ilk, nullptr);
  ana->mnuAyarlar->trigger();
  ana->mnuAbout->trigger();
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmhakkinda")), ilk);
  EXPECT_EQ(ana->mdi->subWindowList().size(), 2);
  EXPECT_EQ(ana->mdi->activeSubWindow()->widget(), ilk);
  auto* hakkinda = static_cast<frmhakkinda*>(ilk);
  EXPECT_EQ(hakkinda->windowTitle(), QStringLiteral("Bilgi"));
  EXPECT_EQ(hakkinda->lblVersiyon->text(), QStringLiteral("Versiyon: 2.3. Yapım:2"));
  hakkinda->Command1->click();
  test::Isle();
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmhakkinda")), nullptr);
  EXPECT_EQ(ana->mdi->subWindowList().size(), 1);
}

// --- settings screen

class Ayarlar : public Kabuk {
 protected:
  frmIni* Ac() {
    ana_ = Baslat();
    return static_cast<frmIni*>(ekran::Ac(QStringLiteral("frmIni")));
  }
  std::unique_ptr<frmMain> ana_;
  void SetUp() override {
    Kabuk::SetUp();
    FirmaDoldur();
  }
};

TEST_F(Ayarlar, DosyaYokkenIkiVarsayilanTakimi) {
  frmIni* f = Ac();
  ASSERT_NE(f, nullptr);
  // The screen's own defaults differ from the loader's for these two keys.
  EXPECT_EQ(f->txtBasBosluk->text(), QStringLiteral("15"));
  EXPECT_EQ(f->txtIlave->text(), QStringLiteral("1"));
  EXPECT_EQ(f->txtSonBosluk->text(), QStringLiteral("10"));
  EXPECT_EQ(Genel::BasBosluk, 11);
  EXPECT_EQ(Genel::IlaveGun, 3);
  EXPECT_EQ(f->cmbFatura->currentText(), QStringLiteral("LPT2"));
  EXPECT_EQ(f->cmbSozlesme->currentText(), QStringLiteral("LPT1"));
  EXPECT_TRUE(f->txtFatura->isHidden());
  EXPECT_EQ(f->txtLimitAdet->text(), QStringLiteral("22"));

  // Saving writes the screen's values, and the globals follow at once.
  f->cmdKaydet_Click();
  test::Isle();
  EXPECT_EQ(Genel::BasBosluk, 15);
  EXPECT_EQ(Genel::IlaveGun, 1);
  EXPECT_EQ(Genel::IniOku(Genel::IniDosya, QStringLiteral("Hesap"), QStringLiteral("YTL"), {}),
            QStringLiteral("1"));
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmIni")), nullptr);
}

TEST_F(Ayarlar, DigerYaziciVeDosyadakiDegerler) {
  Genel::IniYaz(Genel::IniDosya, QStringLiteral("Fatura"), QStringLiteral("Printer"),
                QStringLiteral("//sunucu/nokta-vuruslu"));
  Genel::IniYaz(Genel::IniDosya, QStringLiteral("Sozlesme"), QStringLiteral("DetayLimit"),
                QStringLiteral("1"));
  frmIni* f = Ac();
  EXPECT_EQ(f->cmbFatura->currentText(), QStringLiteral("Diğer"));
  EXPECT_FALSE(f->txtFatura->isHidden());
  EXPECT_EQ(f->txtFatura->text(), QStringLiteral("//sunucu/nokta-vuruslu"));
  EXPECT_EQ(f->txtLimitAdet->text(), QStringLiteral("1"));
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
  const QByteArray once = [] {
    QFile d(Genel::IniDosya);
    return d.open(QIODevice::ReadOnly) ? d.readAll() : QByteArray();
  }();
  f->cmdKaydet_Click();
  EXPECT_EQ(MesajMetinleri(), QStringList{QStringLiteral("Geçersiz Yazıcı Tanımı")});
  EXPECT_EQ(Mesajlar().last().baslik, QStringLiteral("HATA"));
  EXPECT_NE(ekran::Acik(QStringLiteral("frmIni")), nullptr);
  QFile d(Genel::IniDosya);
  ASSERT_TRUE(d.open(QIODevice::ReadOnly));
  EXPECT_EQ(d.readAll(), once);
  d.close();

  test::Yaz(f->txtSozlesme, QStringLiteral("/dev/usb/lp0"));
  test::Yaz(f->txtTarihBas, QStringLiteral("4x"));
  for (QCheckBox* k : {f->chkHaftaSonu, f->chkIslem}) {
    ASSERT_FALSE(k->isChecked()) << k->objectName().toStdString();
    k->setFocus();
    QTest::keyClick(k, Qt::Key_Space);
  }
  f->cmdKaydet_Click();
  EXPECT_EQ(Genel::PrinterSozlesme, QStringLiteral("/dev/usb/lp0"));
  EXPECT_EQ(Genel::PrinterFatura, QStringLiteral("LPT3"));
  EXPECT_EQ(Genel::TarihBas, 4);
  EXPECT_TRUE(Genel::HaftaSonu);
  EXPECT_TRUE(Genel::SadeceGoster);
  EXPECT_EQ(Genel::DetayLimit, 2);
}

TEST_F(Ayarlar, YazilanlarBaskaEkrandanDonunceKaybolur) {
  frmIni* f = Ac();
  QApplication::setActiveWindow(ana_.get());
  test::Yaz(f->txtBasBosluk, QStringLiteral("77"));
  ASSERT_EQ(f->txtBasBosluk->text(), QStringLiteral("77"));
  ekran::Ac(QStringLiteral("frmhakkinda"));
  ekran::Ac(QStringLiteral("frmIni"));
  test::Isle();
  EXPECT_EQ(f->txtBasBosluk->text(), QStringLiteral("15"));
}

}  // namespace
