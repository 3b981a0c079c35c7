// Interest and totals: rule D, TutarHesap and the field rules, on
// plain values. The worked examples, then the bad inputs.

#include <gtest/gtest.h>

#include <vector>

#include "contract/Faiz.h"
#include "core/Genel.h"
#include "tests/support/Ortam.h"

namespace {

using faiz::Girdi;
using faiz::Satir;

const QDate kCuma(2005, 3, 4);       // Friday 4 March 2005
const QDate kCumartesi(2005, 3, 5);  // Saturday
const QDate kPazar(2005, 3, 6);      // Sunday
const QDate kPazartesi(2005, 3, 7);  // Monday

Satir GunluSatir(double meblag, qint64 gun, QDate vade = QDate(2005, 4, 4)) {
  Satir s;
  s.Meblag = meblag;
  s.Gun = gun;
  s.Vadesi = vade;
  return s;
}

Satir VadeliSatir(double meblag, QDate vade) { return GunluSatir(meblag, 0, vade); }

Girdi Sozlesme(double oran, qint64 ilaveGun = 3) {
  Girdi g;
  g.Tarih = kCuma;
  g.FaizOran = oran;
  g.ilaveGun = ilaveGun;
  g.Hesapla = true;
  return g;
}

// Fresh folders, Turkish separators and BinlikAyirici as the program sets them.
class Faiz : public test::Ortam {};

// --- rule D

TEST_F(Faiz, GunKuraliHaftaSonu) {
  faiz::GunKurali kapali{kCuma, 3, false};
  faiz::GunKurali acik{kCuma, 3, true};
  EXPECT_EQ(faiz::GunSayisi(VadeliSatir(1, kCumartesi), kapali), 4);
  EXPECT_EQ(faiz::GunSayisi(VadeliSatir(1, kCumartesi), acik), 6);
  EXPECT_EQ(faiz::GunSayisi(VadeliSatir(1, kPazar), kapali), 5);
  EXPECT_EQ(faiz::GunSayisi(VadeliSatir(1, kPazar), acik), 6);
  EXPECT_EQ(faiz::GunSayisi(VadeliSatir(1, kPazartesi), acik), 6);  // weekdays add nothing
}

TEST_F(Faiz, GunUzerineYazarSaHaftaSonuVeIlaveGunYok) {
  const faiz::GunKurali acik{kCuma, 3, true};
  EXPECT_EQ(faiz::GunSayisi(GunluSatir(1, 30, kCumartesi), acik), 30);
  // A count by Gun needs no dates at all.
  EXPECT_EQ(faiz::GunSayisi(GunluSatir(1, 30, QDate()), faiz::GunKurali{}), 30);
}

TEST_F(Faiz, GunSayilamayincaDegerYok) {
  EXPECT_FALSE(faiz::GunSayisi(VadeliSatir(1, QDate()), faiz::GunKurali{kCuma, 3, false}));
  EXPECT_FALSE(faiz::GunSayisi(VadeliSatir(1, kPazartesi), faiz::GunKurali{QDate(), 3, false}));
}

// --- TutarHesap: the worked examples

TEST_F(Faiz, TekSatirElliLiraFaiz) {
  const std::vector<Satir> satirlar{GunluSatir(1000, 30)};
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(5), satirlar);
  EXPECT_DOUBLE_EQ(s.Rakamlar.ToplamFaiz, 50);
  EXPECT_EQ(s.txtTutar, u"1.000,00");
  EXPECT_EQ(s.txtFaizTutar, u"50,00");
  EXPECT_EQ(s.txtOdenecek, u"950,00");
  EXPECT_EQ(s.Odenecek, 950);
  EXPECT_EQ(s.GunYazisi, u"30");
  EXPECT_EQ(s.lblFaizGun, u"30 Gün");
  EXPECT_EQ(s.OrtGun, 30);
  EXPECT_EQ(s.DetaySayisi, 1);
}

TEST_F(Faiz, HaftaSonuAyariSatirGunlerine) {
  Girdi g = Sozlesme(5);
  const std::vector<Satir> satirlar{VadeliSatir(100, kCumartesi)};
  EXPECT_EQ(faiz::TutarHesap(g, satirlar).lblFaizGun, u"4 Gün");
  g.HaftaSonu = true;
  EXPECT_EQ(faiz::TutarHesap(g, satirlar).lblFaizGun, u"6 Gün");
}

// Interest of 10,125 and 10,375 on 1.000,00: 1000 × 81 (or 83) days × 0,375.
TEST_F(Faiz, IkiYuvarlamaBirbirindenAyri) {
  const std::vector<Satir> a{GunluSatir(1000, 81)};
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(0.375), a);
  EXPECT_EQ(s.Rakamlar.ToplamFaiz, 10.125);
  EXPECT_EQ(s.txtFaizTutar, u"10,13");  // display: halves away from zero
  EXPECT_EQ(s.Odenecek, 989.88);        // 989,875 halves to even
  EXPECT_EQ(s.txtOdenecek, u"989,88");  // the two add up to 1.000,01

  const std::vector<Satir> b{GunluSatir(1000, 83)};
  const faiz::Sonuc t = faiz::TutarHesap(Sozlesme(0.375), b);
  EXPECT_EQ(t.Rakamlar.ToplamFaiz, 10.375);
  EXPECT_EQ(t.txtFaizTutar, u"10,38");
  EXPECT_EQ(t.Odenecek, 989.62);  // 989,625 halves to even
  EXPECT_EQ(t.txtOdenecek, u"989,62");
}

TEST_F(Faiz, MuhtelifVeOrtalamaGun) {
  const std::vector<Satir> satirlar{GunluSatir(100, 30), GunluSatir(300, 60)};
  Girdi g = Sozlesme(5);
  faiz::Sonuc s = faiz::TutarHesap(g, satirlar);
  EXPECT_EQ(s.GunYazisi, u"Muhtelif");
  EXPECT_EQ(s.lblFaizGun, u"Muhtelif Gün");
  EXPECT_EQ(s.OrtGun, 52.5);

  g.OrtalamaGun = true;
  s = faiz::TutarHesap(g, satirlar);
  EXPECT_EQ(s.GunYazisi, u"52,50");
  EXPECT_EQ(s.lblFaizGun, u"52,50 Gün");
  EXPECT_EQ(s.OrtGun, 52.5);
}

TEST_F(Faiz, EsitGunlerFarkliYoldanMuhtelifDegil) {
  // 33 by Gun, and 30 days from Friday to the Sunday 3 April + ilaveGun 3.
  const std::vector<Satir> satirlar{GunluSatir(100, 33), VadeliSatir(200, QDate(2005, 4, 3))};
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(5), satirlar);
  EXPECT_EQ(s.GunYazisi, u"33");
  EXPECT_FALSE(s.Rakamlar.Muhtelif);
}

TEST_F(Faiz, IsaretSatiriTutarlaraDokunmaz) {
  Satir x = GunluSatir(1000, 30);
  x.CekNo = QStringLiteral("X");
  x.Kesideci = QStringLiteral("X");
  const std::vector<Satir> satirlar{x, GunluSatir(500, 60)};
  for (bool hesapla : {true, false}) {
    Girdi g = Sozlesme(5);
    g.Hesapla = hesapla;
    const faiz::Sonuc s = faiz::TutarHesap(g, satirlar);
    EXPECT_TRUE(s.Rakamlar.XSatiri);
    EXPECT_FALSE(s.txtTutar);
    EXPECT_FALSE(s.txtFaizTutar);
    EXPECT_FALSE(s.txtOdenecek);
    EXPECT_FALSE(s.Odenecek);
    EXPECT_FALSE(s.lblFaizGun);
    // Steps before T9 still ran.
    EXPECT_EQ(s.GunYazisi, u"Muhtelif");
    EXPECT_EQ(s.OrtGun, 40);
    EXPECT_EQ(s.DetaySayisi, 2);
  }
  // Only exactly "X" and "X", on the first line.
  Satir kucuk = x;
  kucuk.Kesideci = QStringLiteral("x");
  EXPECT_TRUE(faiz::TutarHesap(Sozlesme(5), std::vector<Satir>{kucuk}).txtTutar);
  EXPECT_TRUE(faiz::TutarHesap(Sozlesme(5), std::vector<Satir>{GunluSatir(1, 1), x}).txtTutar);
}

TEST_F(Faiz, HesaplaKapaliYalnizTutarYazilir) {
  Girdi g = Sozlesme(5);
  g.Hesapla = false;
  const faiz::Sonuc s = faiz::TutarHesap(g, std::vector<Satir>{GunluSatir(1000, 30)});
  EXPECT_EQ(s.txtTutar, u"1.000,00");
  EXPECT_FALSE(s.txtFaizTutar);
  EXPECT_FALSE(s.txtOdenecek);
  EXPECT_FALSE(s.Odenecek);
  EXPECT_EQ(s.lblFaizGun, u"30 Gün");
}

TEST_F(Faiz, SatirYokSifirYazilir) {
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(5), {});
  EXPECT_EQ(s.txtTutar, u"0");
  EXPECT_EQ(s.txtFaizTutar, u"0");
  EXPECT_EQ(s.txtOdenecek, u"0");
  EXPECT_EQ(s.DetaySayisi, 0);
  EXPECT_FALSE(s.GunYazisi);
  EXPECT_FALSE(s.OrtGun);
  EXPECT_FALSE(s.Odenecek);
  EXPECT_FALSE(s.lblFaizGun);
}

TEST_F(Faiz, OranSifirFaizSifirYazilir) {
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(0), std::vector<Satir>{GunluSatir(1234.5, 30)});
  EXPECT_EQ(s.txtFaizTutar, u"0");
  EXPECT_EQ(s.txtOdenecek, u"1.234,50");
}

TEST_F(Faiz, ToplamSifirsaOrtGunKalir) {
  Girdi g = Sozlesme(5);
  g.OrtalamaGun = true;
  const std::vector<Satir> satirlar{GunluSatir(0, 30), GunluSatir(0, 60)};
  const faiz::Sonuc s = faiz::TutarHesap(g, satirlar);
  EXPECT_FALSE(s.OrtGun);
  EXPECT_EQ(s.GunYazisi, u"Muhtelif");  // no average of nothing
  EXPECT_EQ(s.txtTutar, u"0,00");
}

TEST_F(Faiz, VadesizSatirYalnizToplamaGirer) {
  Satir vadesiz = VadeliSatir(100, QDate());
  const std::vector<Satir> satirlar{GunluSatir(100, 30), vadesiz};
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(5), satirlar);
  EXPECT_EQ(s.txtTutar, u"200,00");
  EXPECT_EQ(s.txtFaizTutar, u"5,00");
  EXPECT_EQ(s.OrtGun, 15);  // the numerator has only the dated line
  EXPECT_EQ(s.DetaySayisi, 2);
  EXPECT_EQ(s.GunYazisi, u"30");
}

TEST_F(Faiz, IlkSatirinGunuYoksaSonrakiBelirler) {
  const std::vector<Satir> satirlar{VadeliSatir(100, QDate()), GunluSatir(100, 45)};
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(5), satirlar);
  EXPECT_EQ(s.GunYazisi, u"45");
  EXPECT_EQ(faiz::TutarHesap(Sozlesme(5), std::vector<Satir>{VadeliSatir(100, QDate())}).GunYazisi,
            u"0");
}

// The worksheet's step T11.
TEST_F(Faiz, HesapEkraniVergiVeMasraf) {
  Girdi g = Sozlesme(5);
  g.Masraf = 10;
  const faiz::Sonuc s = faiz::TutarHesap(g, std::vector<Satir>{GunluSatir(1000, 30)});
  EXPECT_EQ(s.txtFaizTutar, u"50,00");
  EXPECT_EQ(s.BMVergisi, 2.5);
  EXPECT_EQ(s.txtVergiProv, u"12,50");
  EXPECT_EQ(s.txtOdenecek, u"937,50");
  const std::vector<Satir> uc(3, GunluSatir(1000, 30));
  EXPECT_EQ(faiz::TutarHesap(g, uc).TahsilMasrafi, 30);
  // No lines: T2 leaves txtVergiProv alone.
  EXPECT_FALSE(faiz::TutarHesap(g, {}).txtVergiProv);
}

// --- bad inputs

TEST_F(Faiz, VadeTarihtenOnceSessizceEksi) {
  Girdi g = Sozlesme(5);
  g.Tarih = QDate(2005, 3, 10);
  // 1 March: -9 + 3 = -6 days, interest -10,00.
  faiz::Sonuc s = faiz::TutarHesap(g, std::vector<Satir>{VadeliSatir(1000, QDate(2005, 3, 1))});
  EXPECT_EQ(s.GunYazisi, u"-6");
  EXPECT_EQ(s.txtFaizTutar, u"-10,00");
  EXPECT_EQ(s.txtOdenecek, u"1.010,00");
  // 7 March: -3 + 3 = 0 days, no interest.
  s = faiz::TutarHesap(g, std::vector<Satir>{VadeliSatir(1000, QDate(2005, 3, 7))});
  EXPECT_EQ(s.lblFaizGun, u"0 Gün");
  EXPECT_EQ(s.txtFaizTutar, u"0");
}

TEST_F(Faiz, DoksanYilSonrasiTasmaz) {
  // 32875 days: beyond the original's 16-bit counts.
  const std::vector<Satir> satirlar{VadeliSatir(1000, QDate(2095, 3, 4))};
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(5), satirlar);
  EXPECT_EQ(s.Rakamlar.IlkGun, 32875);
  EXPECT_EQ(s.lblFaizGun, u"32875 Gün");
  EXPECT_EQ(s.txtFaizTutar, u"54.791,67");
  EXPECT_EQ(s.Odenecek, -53791.67);
  EXPECT_EQ(s.OrtGun, 32875);
}

TEST_F(Faiz, Gun999) {
  const faiz::Sonuc s = faiz::TutarHesap(Sozlesme(3), std::vector<Satir>{GunluSatir(1000, 999)});
  EXPECT_EQ(s.lblFaizGun, u"999 Gün");
  EXPECT_EQ(s.txtFaizTutar, u"999,00");
  EXPECT_EQ(s.txtOdenecek, u"1,00");
}

TEST_F(Faiz, SozlesmeTarihiYoksaTarihliSatirlarFaizsiz) {
  Girdi g = Sozlesme(5);
  g.Tarih = QDate();
  const std::vector<Satir> satirlar{GunluSatir(1000, 30), VadeliSatir(500, kPazartesi)};
  const faiz::Sonuc s = faiz::TutarHesap(g, satirlar);
  EXPECT_TRUE(s.Rakamlar.TarihEksik);
  EXPECT_EQ(s.txtTutar, u"1.500,00");
  EXPECT_EQ(s.txtFaizTutar, u"50,00");
  EXPECT_EQ(s.GunYazisi, u"30");
}

// ParaYazisi writes the text of SayiYaz(v, 2) without its temporaries.
TEST_F(Faiz, ParaYazisiSayiYazIleAyni) {
  const double degerler[] = {0,          -0.001,     0.005,         -0.005,       0.5,
                             1.005,      10.125,     -10.125,       999.995,      1000,
                             100000,     999999.999, 1234567.891,   -1234567.895, 12.3,
                             1e12 + 0.5, 32875,      54791.6666667, -53791.665};
  for (double v : degerler) EXPECT_EQ(faiz::ParaYazisi(v), Genel::SayiYaz(v, 2, true)) << v;
  Genel::Bolge().ondalik = QLatin1Char('.');
  Genel::Bolge().binlik = QChar();
  for (double v : degerler) EXPECT_EQ(faiz::ParaYazisi(v), Genel::SayiYaz(v, 2, true)) << v;
  Genel::BolgeTurkce();
  EXPECT_EQ(faiz::ParaYazisi(-1234567.895), u"-1.234.567,90");
}

// --- field rules

TEST_F(Faiz, TutarAlaniEskiLira) {
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("250000"), false), u"250.000,00");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("250000,01"), false), u"0,25");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("1.234.567"), false), u"1,23");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("12.500.000"), false), u"12,50");
  // Halves to even in the conversion, away from zero on display.
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("12.505.000"), false), u"12,50");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("12.515.000"), false), u"12,52");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("1234,5"), false), u"1.234,50");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("10,125"), false), u"10,13");
}

TEST_F(Faiz, TutarAlaniSayiDegilse) {
  EXPECT_FALSE(faiz::TutarAlani(QString(), false));  // empty txtTutar fails A2
  EXPECT_FALSE(faiz::TutarAlani(QStringLiteral("  "), true));
  EXPECT_FALSE(faiz::TutarAlani(QStringLiteral(","), false));
  EXPECT_FALSE(faiz::TutarAlani(QStringLiteral("12a"), false));
  EXPECT_FALSE(faiz::TutarAlani(QStringLiteral("1,2,3"), false));
  EXPECT_EQ(faiz::TutarAlani(QString(), true), u"0,00");  // A1: empty txtMeblag is 0
}

TEST_F(Faiz, OranAlani) {
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("4,50")), u"4,5");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("0,75")), u"0");  // the comma stops R1
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("1,50")), u"1,5");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral(" 5")), u"5");
  EXPECT_EQ(faiz::OranAlani(QString()), u"0");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("-5")), u"0");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("abc")), u"0");
  // No number by the regional rules: its leading number, never an unusable field.
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("1abc")), u"1");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("1,5x")), u"1");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("2.5%")), u"2,5");
  EXPECT_EQ(faiz::OranDegeri(QStringLiteral("1abc")), 1);
  EXPECT_EQ(faiz::OranDegeri(QStringLiteral("4,5")), 4.5);
  EXPECT_EQ(faiz::OranDegeri(QStringLiteral("x")), 0);
  for (const char* t : {"1abc", "9999999999", "1e99", "0,0001", ".5"}) {
    double v = 0;
    EXPECT_TRUE(Genel::SayiOkuDene(faiz::OranAlani(QString::fromLatin1(t)), v)) << t;
  }
}

TEST_F(Faiz, OranAlaniBolgeAyarinaUyar) {
  Genel::Bolge().ondalik = QLatin1Char('.');
  Genel::Bolge().binlik = QLatin1Char(',');
  Genel::BinlikAyirici = QStringLiteral(",");
  EXPECT_EQ(faiz::OranAlani(QStringLiteral("4.50")), u"4.5");
  EXPECT_EQ(faiz::TutarAlani(QStringLiteral("1,234.5"), false), u"1,234.50");
  Genel::BolgeTurkce();
  Genel::BinlikAyirici = QStringLiteral(".");
}

TEST_F(Faiz, GunValorVeKilit) {
  EXPECT_EQ(faiz::GunAlani(QString()), u"0");
  EXPECT_EQ(faiz::GunAlani(QStringLiteral("45")), u"45");
  EXPECT_EQ(faiz::GunOku(QString()), 0);
  EXPECT_EQ(faiz::GunOku(QStringLiteral("abc")), 0);
  EXPECT_EQ(faiz::GunOku(QStringLiteral("999")), 999);
  EXPECT_EQ(faiz::GunOku(QStringLiteral("1e400")), 1);  // the leading number only

  EXPECT_FALSE(faiz::ValorAlani(QString()));
  EXPECT_EQ(faiz::ValorAlani(QStringLiteral("2")), 3);
  EXPECT_EQ(faiz::ValorAlani(QStringLiteral("-1")), 0);  // what Goster shows for Null
  EXPECT_EQ(faiz::ValorAlani(QStringLiteral(".5")), 1);  // halves to even
  EXPECT_EQ(faiz::ValorAlani(QStringLiteral("x")), 1);
  EXPECT_EQ(faiz::ValorYazisi(3), u"2");

  const faiz::HesaplaKilidi acik = faiz::HesaplaKilit(true);
  EXPECT_TRUE(acik.txtTutar.Kilitli && acik.txtFaizTutar.Kilitli && acik.txtOdenecek.Kilitli);
  EXPECT_EQ(acik.txtTutar.Sekmede, false);
  EXPECT_EQ(acik.txtOdenecek.Sekmede, false);
  const faiz::HesaplaKilidi kapali = faiz::HesaplaKilit(false);
  EXPECT_FALSE(kapali.txtTutar.Kilitli || kapali.txtFaizTutar.Kilitli);
  EXPECT_EQ(kapali.txtFaizTutar.Sekmede, true);
  EXPECT_TRUE(kapali.txtOdenecek.Kilitli);
  EXPECT_FALSE(kapali.txtOdenecek.Sekmede);
}

}  // namespace
