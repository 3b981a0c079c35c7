// The leave-field check and the key filters, driven by real focus and keys.

#include <gtest/gtest.h>

#include <QAbstractScrollArea>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

struct Pencere {
  QWidget w;
  QLineEdit* alan = new QLineEdit;
  QLineEdit* diger = new QLineEdit;
  QPushButton* kaydet = new QPushButton(u"&Kaydet"_s);
  QPushButton* vazgec = new QPushButton(u"Vazgeç"_s);
  int kaydetSayisi = 0, vazgecSayisi = 0;

  Pencere() {
    auto* l = new QVBoxLayout(&w);
    for (QWidget* c : std::initializer_list<QWidget*>{alan, diger, kaydet, vazgec}) l->addWidget(c);
    QObject::connect(kaydet, &QPushButton::clicked, [this] { ++kaydetSayisi; });
    QObject::connect(vazgec, &QPushButton::clicked, [this] { ++vazgecSayisi; });
    ekran::AyrilirkenKontrol(alan, [this] { return alan->text() != u"0"_s; });
    ekran::KontrolTetiklemez(vazgec);
    w.show();
    QApplication::setActiveWindow(&w);
    test::Isle();
    alan->setFocus();
    test::Isle();
  }
};

TEST(Ekran, AyrilmaKontroluOdagiTutarVeTiklamayiDusurur) {
  Pencere p;
  p.alan->setText(QStringLiteral("0"));
  p.diger->setFocus();  // Tab or a click elsewhere
  test::Isle();
  EXPECT_TRUE(p.alan->hasFocus());
  EXPECT_EQ(p.alan->selectedText(), u"0"_s);

  QTest::mouseClick(p.kaydet, Qt::LeftButton);
  test::Isle();
  EXPECT_EQ(p.kaydetSayisi, 0);
  EXPECT_TRUE(p.alan->hasFocus());

  // A cancel button is let through without the check.
  QTest::mouseClick(p.vazgec, Qt::LeftButton);
  EXPECT_EQ(p.vazgecSayisi, 1);

  p.alan->setFocus();
  p.alan->setText(QStringLiteral("5"));
  QTest::mouseClick(p.kaydet, Qt::LeftButton);
  EXPECT_EQ(p.kaydetSayisi, 1);
}

// A read-only box holds nothing typed: leaving it, by Tab or by a click on a
// button, runs no check, whoever locked it. Locked by SaltOkunur it takes no
// focus at all; unlocked, it takes the focus and checks again.
TEST(Ekran, KilitliKutuOdagiTutmaz) {
  for (const bool saltOkunur : {true, false}) {
    Pencere p;
    p.alan->setText(QStringLiteral("0"));  // a text its check refuses
    if (saltOkunur)
      ekran::SaltOkunur(p.alan, true);
    else
      p.alan->setReadOnly(true);
    p.alan->setFocus();  // the focus was there when it was locked
    QTest::keyClick(p.alan, Qt::Key_Tab);
    EXPECT_TRUE(p.diger->hasFocus()) << saltOkunur;
    p.alan->setFocus();
    QTest::mouseClick(p.kaydet, Qt::LeftButton);
    EXPECT_EQ(p.kaydetSayisi, 1) << saltOkunur;
  }

  Pencere p;
  p.alan->setText(QStringLiteral("0"));
  ekran::SaltOkunur(p.alan, true);
  QTest::mouseClick(p.diger, Qt::LeftButton);
  QTest::mouseClick(p.alan, Qt::LeftButton);
  EXPECT_TRUE(p.diger->hasFocus());
  QTest::keyClick(p.diger, Qt::Key_Backtab);
  EXPECT_TRUE(p.vazgec->hasFocus());

  ekran::SaltOkunur(p.alan, false);
  EXPECT_EQ(p.alan->focusPolicy(), Qt::StrongFocus);
  QTest::mouseClick(p.alan, Qt::LeftButton);
  QTest::keyClick(p.alan, Qt::Key_Tab);
  EXPECT_TRUE(p.alan->hasFocus());
}

TEST(Ekran, TusSuzgecleri) {
  QLineEdit buyuk, sayi, tarih;
  ekran::BuyukHarfKur(&buyuk);
  ekran::SayiTusuKur(&sayi);
  ekran::TarihKutusuKur(&tarih);
  test::Tusla(&buyuk, u"iışğ a"_s);
  EXPECT_EQ(buyuk.text(), u"İIŞĞ A"_s);
  test::Tusla(&sayi, u"1a2.3,4-x"_s);
  EXPECT_EQ(sayi.text(), u"12.3,4"_s);
  tarih.setText(QStringLiteral("31.12.2005"));
  QTest::keyClick(&tarih, Qt::Key_Escape);
  EXPECT_TRUE(tarih.text().isEmpty());
}

// The date box of the collection screens, left by Tab as a clerk leaves it.
class TarihKutusuTest : public test::Ortam {};

TEST_F(TarihKutusuTest, YazilanTarihDuzeltilirYaDaReddedilir) {
  const QString buYil = QString::number(QDate::currentDate().year());
  const struct {
    const char* yazilan;
    QString kalan;  // what the box holds after leaving
    bool gecer;
  } durumlar[] = {
      {"", QString(), true},
      {"1.2.2005", u"01.02.2005"_s, true},
      {"5/6/07", u"05.06.2007"_s, true},
      {"1.12", u"01.12."_s + buYil, true},
      {"31.12.1999", u"31.12.1999"_s, false},  // rewritten, yet refused
      {"32.01.2005", u"32.01.2005"_s, false},
      {"abc", u"abc"_s, false},
  };
  for (const auto& d : durumlar) {
    SCOPED_TRACE(d.yazilan);
    Pencere p;
    ekran::TarihKutusu(p.diger);
    p.diger->setFocus();
    test::Isle();
    QTest::keyClicks(p.diger, QString::fromLatin1(d.yazilan));
    QTest::keyClick(p.diger, Qt::Key_Tab);
    test::Isle();
    EXPECT_EQ(p.diger->text(), d.kalan);
    EXPECT_EQ(p.diger->hasFocus(), !d.gecer);
    EXPECT_EQ(Kutular(), d.gecer ? QString() : u"Kritik Dikkat: Hatalı Tarih"_s);
    if (!d.gecer) EXPECT_EQ(p.diger->selectedText(), d.kalan);
  }
}

}  // namespace

// A message of thousands of lines (the faulty tax numbers of a year) must stay
// on the screen with its button reachable; the real box is shown here.
class MesajKutusu : public test::Ortam {};

TEST_F(MesajKutusu, UzunMesajEkranaSigar) {
  mesaj::CevaplayiciKaldir();
  QStringList satirlar;
  for (int i = 0; i < 5000; ++i)
    satirlar << u"%1 Numaralı Müşterinin Vergi numarası Hatalı"_s.arg(i);
  QSize boyut;
  bool kaydirir = false;
  QTimer::singleShot(0, [&] {
    QWidget* kutu = QApplication::activeModalWidget();
    ASSERT_NE(kutu, nullptr);
    boyut = kutu->size();
    kaydirir = kutu->findChild<QAbstractScrollArea*>() != nullptr;
    QTest::keyClick(kutu, Qt::Key_Return);
  });
  EXPECT_EQ(mesaj::Goster(satirlar.join(QLatin1Char('\n'))), mesaj::Dugme::Tamam);
  const QSize ekran = QGuiApplication::primaryScreen()->availableGeometry().size();
  EXPECT_TRUE(kaydirir);
  EXPECT_LE(boyut.height(), ekran.height());
  EXPECT_LE(boyut.width(), ekran.width());
}
