// The customer and currency lists of the contract screen take what the clerk
// types as a whole key: the beginning of a name or a code is never completed.

#include <gtest/gtest.h>

#include "tests/contract/SozlesEkran.h"
#include "tests/support/Klavye.h"

namespace {

class SozlesMusteri : public test::SozlesEkran {};

TEST_F(SozlesMusteri, YazilanMusteriVeDovizTamamlanmaz) {
  Musteri(30, "YILDIZ", "ALİCAN");
  Musteri(31, "YILMAZ", "");  // no first name: a blank stands beside the surname
  auto* f = Ac(true);
  // "ALİ" begins two names but is none of them.
  test::ListeyeYaz(f->cmbAd, "ALİ", Qt::Key_unknown);
  EXPECT_FALSE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(Kutular(), "Kritik Müşteri Seçimi: Lütfen Listeden Bir Müşteri Seçiniz");
  EXPECT_EQ(f->cmbAd->currentText() + ' ' + f->txtMusteriNo->text(), "ALİ ");
  // The whole name, in any case, is a customer.
  test::ListeyeYaz(f->cmbAd, "alican yıldız", Qt::Key_unknown);
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(f->txtMusteriNo->text(), "30");
  test::ListeyeYaz(f->cmbAd, "yılmaz", Qt::Key_unknown);
  ASSERT_TRUE(Bas(f->cmdBilgiGoster));
  EXPECT_EQ(f->txtMusteriNo->text(), "31");
  EXPECT_EQ(f->cmbAd->count(), 3);

  // A currency code stands as typed.
  ASSERT_TRUE(Bas(f->cmdNew));
  ASSERT_TRUE(f->cmbDoviz->isEnabled());
  test::ListeyeYaz(f->cmbDoviz, "US", Qt::Key_unknown);
  EXPECT_EQ(f->cmbDoviz->currentText(), "US");
  EXPECT_EQ(Kutular(), "");
}

}  // namespace
