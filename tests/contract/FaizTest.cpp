// Interest and totals: rule D, TutarHesap and the field rules, on
// plain values. The worked examples, then the bad inputs.

#include <gtest/gtest.h>

#include <QLocale>
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

Satir Gunlu(double meblag, qint64 gun, QDate vade = QDate(2005, 4, 4)) {
  return {vade, gun, meblag, {}, {}};
}
Satir Vadeli(double meblag, QDate vade) { return {vade, 0, meblag, {}, {}}; }
// The marker line: "X" as cheque number and drawer.
Satir Isaret(double meblag, qint64 gun, const char* kesideci = "X") {
  return {QDate(2005, 4, 4), gun, meblag, QStringLiteral("X"), QString::fromLatin1(kesideci)};
}

enum Ayar { kHaftaSonu = 1, kOrtalamaGun = 2, kHesaplaYok = 4 };

// A contract of Friday 4 March 2005 with ilaveGun 3.
Girdi Sozlesme(double oran, int ayar = 0, QDate tarih = kCuma) {
  return {.Tarih = tarih,
          .FaizOran = oran,
          .ilaveGun = 3,
          .Hesapla = !(ayar & kHesaplaYok),
          .HaftaSonu = bool(ayar & kHaftaSonu),
          .OrtalamaGun = bool(ayar & kOrtalamaGun),
          .Masraf = {}};
}

QString Yaz(const std::optional<QString>& s) { return s.value_or(QStringLiteral("-")); }
template <typename T>
QString Yaz(const std::optional<T>& v) {
  return v ? QString::number(double(*v), 'g', QLocale::FloatingPointShortest) : QStringLiteral("-");
}

// What TutarHesap leaves, as one text: the unrounded interest | txtTutar
// txtFaizTutar txtOdenecek Odenecek | GunYazisi, lblFaizGun, OrtGun, DetaySayisi.
QString Ozet(const Girdi& g, const std::vector<Satir>& satirlar) {
  const faiz::Sonuc s = faiz::TutarHesap(g, satirlar);
  return QStringLiteral("%1|%2|%3|%4|%5|%6|%7|%8|%9")
             .arg(Yaz(std::optional(s.Rakamlar.ToplamFaiz)), Yaz(s.txtTutar), Yaz(s.txtFaizTutar),
                  Yaz(s.txtOdenecek), Yaz(s.Odenecek), Yaz(s.GunYazisi), Yaz(s.lblFaizGun),
                  Yaz(s.OrtGun), QString::number(s.DetaySayisi)) +
         (s.Rakamlar.TarihEksik ? QStringLiteral("|tarih eksik") : QString());
}

// Fresh folders, Turkish separators and BinlikAyirici as the program sets them.
class Faiz : public test::Ortam {};

TEST_F(Faiz, GunKurali) {
  const faiz::GunKurali kapali{kCuma, 3, false}, acik{kCuma, 3, true};
  const std::tuple<Satir, faiz::GunKurali, std::optional<qint64>> ornekler[] = {
      // Saturday +2, Sunday +1 only with the setting; weekdays add nothing.
      {Vadeli(1, kCumartesi), kapali, 4},
      {Vadeli(1, kCumartesi), acik, 6},
      {Vadeli(1, kPazar), kapali, 5},
      {Vadeli(1, kPazar), acik, 6},
      {Vadeli(1, kPazartesi), acik, 6},
      // An override stands as it is and needs no dates at all.
      {Gunlu(1, 30, kCumartesi), acik, 30},
      {Gunlu(1, 30, QDate()), faiz::GunKurali{}, 30},
      // Without a due date or a contract date there is no count.
      {Vadeli(1, QDate()), kapali, std::nullopt},
      {Vadeli(1, kPazartesi), faiz::GunKurali{QDate(), 3, false}, std::nullopt},
  };
  for (const auto& [satir, kural, gun] : ornekler)
    EXPECT_EQ(faiz::GunSayisi(satir, kural), gun) << satir.Vadesi.toString().toStdString();
}

TEST_F(Faiz, TutarHesapOrnekleri) {
  const Satir vadesiz = Vadeli(100, QDate());
  const std::tuple<Girdi, std::vector<Satir>, const char*> ornekler[] = {
      {Sozlesme(5), {Gunlu(1000, 30)}, "50|1.000,00|50,00|950,00|950|30|30 Gün|30|1"},
      {Sozlesme(5),
       {Vadeli(100, kCumartesi)},
       "0.6666666666666666|100,00|0,67|99,33|99.33|4|4 Gün|4|1"},
      {Sozlesme(5, kHaftaSonu), {Vadeli(100, kCumartesi)}, "1|100,00|1,00|99,00|99|6|6 Gün|6|1"},
      // 1000 × 81 (or 83) days × 0,375: the display halves away from zero, the
      // payable amount to even, so the two add up to 1.000,01 (or 1.000,00).
      {Sozlesme(0.375), {Gunlu(1000, 81)}, "10.125|1.000,00|10,13|989,88|989.88|81|81 Gün|81|1"},
      {Sozlesme(0.375), {Gunlu(1000, 83)}, "10.375|1.000,00|10,38|989,62|989.62|83|83 Gün|83|1"},
      {Sozlesme(5),
       {Gunlu(100, 30), Gunlu(300, 60)},
       "35|400,00|35,00|365,00|365|Muhtelif|Muhtelif Gün|52.5|2"},
      {Sozlesme(5, kOrtalamaGun),
       {Gunlu(100, 30), Gunlu(300, 60)},
       "35|400,00|35,00|365,00|365|52,50|52,50 Gün|52.5|2"},
      // 33 by Gun, and 30 days from Friday to Sunday 3 April + ilaveGun 3.
      {Sozlesme(5),
       {Gunlu(100, 33), Vadeli(200, QDate(2005, 4, 3))},
       "16.5|300,00|16,50|283,50|283.5|33|33 Gün|33|2"},
      // The clerk's amounts stay; the steps before still ran.
      {Sozlesme(5), {Isaret(1000, 30), Gunlu(500, 60)}, "100|-|-|-|-|Muhtelif|-|40|2"},
      {Sozlesme(5, kHesaplaYok), {Isaret(1000, 30), Gunlu(500, 60)}, "100|-|-|-|-|Muhtelif|-|40|2"},
      {Sozlesme(5), {Isaret(1000, 30, "x")}, "50|1.000,00|50,00|950,00|950|30|30 Gün|30|1"},
      {Sozlesme(5),
       {Gunlu(1000, 30), Isaret(1000, 30)},
       "100|2.000,00|100,00|1.900,00|1900|30|30 Gün|30|2"},
      {Sozlesme(5, kHesaplaYok), {Gunlu(1000, 30)}, "50|1.000,00|-|-|-|30|30 Gün|30|1"},
      {Sozlesme(5), {}, "0|0|0|0|-|-|-|-|0"},
      {Sozlesme(0), {Gunlu(1234.5, 30)}, "0|1.234,50|0|1.234,50|1234.5|30|30 Gün|30|1"},
      // No average of nothing.
      {Sozlesme(5, kOrtalamaGun),
       {Gunlu(0, 30), Gunlu(0, 60)},
       "0|0,00|0|0,00|0|Muhtelif|Muhtelif Gün|-|2"},
      // A line without a due date counts in the sum only.
      {Sozlesme(5), {Gunlu(100, 30), vadesiz}, "5|200,00|5,00|195,00|195|30|30 Gün|15|2"},
      {Sozlesme(5), {vadesiz, Gunlu(100, 45)}, "7.5|200,00|7,50|192,50|192.5|45|45 Gün|22.5|2"},
      {Sozlesme(5), {vadesiz}, "0|100,00|0|100,00|100|0|0 Gün|0|1"},
      // Bad inputs: a due date before the contract date counts backwards.
      {Sozlesme(5, 0, QDate(2005, 3, 10)),
       {Vadeli(1000, QDate(2005, 3, 1))},
       "-10|1.000,00|-10,00|1.010,00|1010|-6|-6 Gün|-6|1"},
      {Sozlesme(5, 0, QDate(2005, 3, 10)),
       {Vadeli(1000, QDate(2005, 3, 7))},
       "0|1.000,00|0|1.000,00|1000|0|0 Gün|0|1"},
      // 32875 days: beyond a 16-bit count.
      {Sozlesme(5),
       {Vadeli(1000, QDate(2095, 3, 4))},
       "54791.666666666664|1.000,00|54.791,67|-53.791,67|-53791.67|32875|32875 Gün|32875|1"},
      {Sozlesme(3), {Gunlu(1000, 999)}, "999|1.000,00|999,00|1,00|1|999|999 Gün|999|1"},
      // Without a contract date the dated lines have no interest.
      {Sozlesme(5, 0, QDate()),
       {Gunlu(1000, 30), Vadeli(500, kPazartesi)},
       "50|1.500,00|50,00|1.450,00|1450|30|30 Gün|20|2|tarih eksik"},
  };
  for (const auto& [girdi, satirlar, beklenen] : ornekler)
    EXPECT_EQ(Ozet(girdi, satirlar), QString::fromUtf8(beklenen));
}

// The worksheet's step T11: tax and fee come off the payable amount.
TEST_F(Faiz, HesapEkraniVergiVeMasraf) {
  Girdi g = Sozlesme(5);
  g.Masraf = 10;
  const faiz::Sonuc s = faiz::TutarHesap(g, std::vector<Satir>(3, Gunlu(1000, 30)));
  EXPECT_EQ(s.txtFaizTutar, u"150,00");
  EXPECT_EQ(s.BMVergisi, 7.5);
  EXPECT_EQ(s.TahsilMasrafi, 30);
  EXPECT_EQ(s.txtVergiProv, u"37,50");
  EXPECT_EQ(s.txtOdenecek, u"2.812,50");
  // No lines: txtVergiProv stays.
  EXPECT_FALSE(faiz::TutarHesap(g, {}).txtVergiProv);
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

TEST_F(Faiz, TutarAlani) {
  const std::tuple<const char*, bool, const char*> ornekler[] = {
      // Above 250000 old lira: halves to even in the conversion, away from
      // zero on display.
      {"250000", false, "250.000,00"},
      {"250000,01", false, "0,25"},
      {"1.234.567", false, "1,23"},
      {"12.505.000", false, "12,50"},
      {"12.515.000", false, "12,52"},
      {"1234,5", false, "1.234,50"},
      {"10,125", false, "10,13"},
      // No number: refused, except an empty txtMeblag, which is 0.
      {"", false, "-"},
      {"  ", true, "-"},
      {",", false, "-"},
      {"12a", false, "-"},
      {"1,2,3", false, "-"},
      {"", true, "0,00"},
  };
  for (const auto& [metin, meblag, beklenen] : ornekler)
    EXPECT_EQ(Yaz(faiz::TutarAlani(QString::fromLatin1(metin), meblag)),
              QString::fromUtf8(beklenen))
        << metin;
}

TEST_F(Faiz, OranAlani) {
  // The comma stops the leading number; no number by the regional rules
  // leaves its leading number, never an unusable field.
  const std::pair<const char*, const char*> ornekler[] = {
      {"4,50", "4,5"}, {"0,75", "0"}, {"1,50", "1,5"}, {" 5", "5"},   {"", "0"},
      {"-5", "0"},     {"abc", "0"},  {"1abc", "1"},   {"1,5x", "1"}, {"2.5%", "2,5"}};
  for (const auto& [metin, beklenen] : ornekler)
    EXPECT_EQ(faiz::OranAlani(QString::fromLatin1(metin)), QString::fromUtf8(beklenen)) << metin;
  EXPECT_EQ(faiz::OranDegeri(QStringLiteral("1abc")), 1);
  EXPECT_EQ(faiz::OranDegeri(QStringLiteral("4,5")), 4.5);
  EXPECT_EQ(faiz::OranDegeri(QStringLiteral("x")), 0);
  for (const char* t : {"1abc", "9999999999", "1e99", "0,0001", ".5"}) {
    double v = 0;
    EXPECT_TRUE(Genel::SayiOkuDene(faiz::OranAlani(QString::fromLatin1(t)), v)) << t;
  }
  // Other regional settings.
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
  // The leading number as Val reads it, rounded half to even; a huge one stops
  // at the bound of the day counts.
  const std::tuple<const char*, qint64, std::optional<qint64>> ornekler[] = {
      {"", 0, std::nullopt},  {"abc", 0, 1}, {"999", 999, 1000},
      {"1e400", 1000000000000000, 1000000000000001},
      {"-1", -1, 0},          {".5", 0, 1},  {"2", 2, 3},
      {"1 2", 12, 13},        {"2e1x", 20, 21}};
  for (const auto& [metin, gun, valor] : ornekler) {
    EXPECT_EQ(faiz::GunOku(QString::fromLatin1(metin)), gun) << metin;
    EXPECT_EQ(faiz::ValorAlani(QString::fromLatin1(metin)), valor) << metin;
  }
  EXPECT_EQ(faiz::ValorYazisi(3), u"2");

  // Locked and out of the tab order with Hesapla; without it the amount and
  // interest open, the payable amount never.
  const auto kilit = [](bool hesapla) {
    const faiz::HesaplaKilidi k = faiz::HesaplaKilit(hesapla);
    QString s;
    for (const faiz::AlanKilidi& a : {k.txtTutar, k.txtFaizTutar, k.txtOdenecek})
      s += QString(a.Kilitli ? u'K' : u'A') + (a.Sekmede ? (*a.Sekmede ? u'+' : u'-') : u'?');
    return s;
  };
  EXPECT_EQ(kilit(true), u"K-K-K-");
  EXPECT_EQ(kilit(false), u"A+A+K?");
}

}  // namespace
