// Boxes as the clerk types into them: a length limit that holds for typing
// only, lists whose text is a key, and the settings screen, whose file may
// hold values longer than their boxes.

#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <memory>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "core/frmIni.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

class Kutu : public test::Ortam {};

TEST_F(Kutu, SinirYalnizcaYazilaniKeser) {
  // Limit, what the program put in, the keys ("\b" deletes), what stands then.
  struct Durum {
    int sinir;
    const char* once;
    const char* tuslar;
    const char* sonra;
  };
  const Durum durumlar[] = {
      {2, "", "12345", "12"},
      {2, "100", "", "100"},
      {2, "100", "5", "100"},
      {2, "100", "\b", "10"},
      {2, "100", "\b7", "10"},
      {3, "ABCDE", "\b\bX", "ABC"},
      {5, "şğüİı", "ç", "şğüİı"},
      {5, "", "şğüİıçö", "şğüİı"},
      {0, "", "12345678901234567890", "12345678901234567890"},
  };
  for (const Durum& d : durumlar) {
    std::unique_ptr<QLineEdit> k(ekran::Kutu(u"k"_s, d.sinir));
    k->setText(QString::fromUtf8(d.once));
    test::Tusla(k.get(), QString::fromUtf8(d.tuslar));
    EXPECT_EQ(k->text(), QString::fromUtf8(d.sonra)) << d.sinir << " " << d.once << " " << d.tuslar;
  }

  // Pasting too much keeps what fits, where it was pasted; the key filters
  // go through the limit too.
  std::unique_ptr<QLineEdit> k(ekran::Kutu(u"k"_s, 5));
  k->setText(u"AB"_s);
  k->setCursorPosition(1);
  k->insert(u"xyzw"_s);
  EXPECT_EQ(k->text(), u"AxyzB"_s);
  std::unique_ptr<QLineEdit> buyuk(ekran::Kutu(u"b"_s, 3));
  ekran::BuyukHarfKur(buyuk.get());
  test::Tusla(buyuk.get(), u"işık"_s);
  EXPECT_EQ(buyuk->text(), u"İŞI"_s);
}

TEST_F(Kutu, AnahtarListesiYazilaniTamamlamazEklemez) {
  QComboBox liste;
  liste.addItems({u"120"_s, u"USD"_s});
  ekran::AnahtarListesi(&liste);
  liste.show();
  for (const QString& yazilan : {u"12"_s, u"u"_s, u"US"_s}) {
    test::ListeyeYaz(&liste, yazilan);
    EXPECT_EQ(liste.currentText(), yazilan);
    EXPECT_EQ(liste.count(), 2);
  }
  test::ListeyeYaz(&liste, u"USD"_s);
  EXPECT_EQ(liste.currentIndex(), 1);
}

TEST_F(Kutu, AyarEkraniUzunDegeriGosterirVeAynenYazar) {
  Genel::IniYaz(Genel::IniDosya, u"Fatura"_s, u"IsimBas"_s, u"100"_s);
  Genel::AyarOku();
  auto f = std::make_unique<frmIni>();
  f->show();
  f->Yukle();
  f->Form_Activate();
  EXPECT_EQ(f->txtIsimBas->text(), u"100"_s);
  // An empty box of two takes two digits.
  f->txtTarihBas->setFocus();
  QTest::keyClick(f->txtTarihBas, Qt::Key_A, Qt::ControlModifier);
  test::Tusla(f->txtTarihBas, u"12345"_s);
  EXPECT_EQ(f->txtTarihBas->text(), u"12"_s);
  f->cmdKaydet_Click();
  EXPECT_EQ(Genel::IniOku(Genel::IniDosya, u"Fatura"_s, u"IsimBas"_s, {}), u"100"_s);
  EXPECT_EQ(Genel::IniOku(Genel::IniDosya, u"Fatura"_s, u"TarihBas"_s, {}), u"12"_s);
  EXPECT_EQ(Genel::IsimBas, 100);
}

}  // namespace
