// Interest and totals on plain values, and the bordro read from the tables.

#include <gtest/gtest.h>

#include <QLocale>
#include <vector>

#include "contract/Faiz.h"
#include "contract/rptBordro.h"
#include "tests/contract/SozlesEkran.h"

namespace {

using faiz::Girdi;
using faiz::Satir;

const QDate kCuma(2005, 3, 4);       // Friday 4 March 2005
const QDate kCumartesi(2005, 3, 5);  // Saturday
const QDate kPazar(2005, 3, 6);      // Sunday
const QDate kPazartesi(2005, 3, 7);  // Monday

// A line with its own day count, one counted from its due date, the marker line.
Satir Gun(double meblag, qint64 gun, QDate vade = QDate(2005, 4, 4)) {
  return {vade, gun, meblag, {}, {}};
}
Satir Vade(double meblag, QDate vade) { return {vade, 0, meblag, {}, {}}; }
Satir Isaret(double meblag, qint64 gun, const char* kesideci = "X") {
  return {QDate(2005, 4, 4), gun, meblag, QStringLiteral("X"), QString::fromLatin1(kesideci)};
}

enum Ayar { kHaftaSonu = 1, kOrtalamaGun = 2, kHesaplaYok = 4 };

// A contract of Friday 4 March 2005 with ilaveGun 3.
Girdi Soz(double oran, int ayar = 0, QDate tarih = kCuma) {
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

class Faiz : public test::Ortam {};

TEST_F(Faiz, GunKurali) {
  const faiz::GunKurali kapali{kCuma, 3, false}, acik{kCuma, 3, true};
  const std::tuple<Satir, faiz::GunKurali, std::optional<qint64>> ornekler[] = {
      // Saturday +2, Sunday +1 only with the setting; weekdays add nothing.
      {Vade(1, kCumartesi), kapali, 4},
      {Vade(1, kCumartesi), acik, 6},
      {Vade(1, kPazar), kapali, 5},
      {Vade(1, kPazar), acik, 6},
      {Vade(1, kPazartesi), acik, 6},
      // An override stands as it is and needs no dates at all.
      {Gun(1, 30, kCumartesi), acik, 30},
      {Gun(1, 30, QDate()), faiz::GunKurali{}, 30},
      // Without a due date or a contract date there is no count.
      {Vade(1, QDate()), kapali, std::nullopt},
      {Vade(1, kPazartesi), faiz::GunKurali{QDate(), 3, false}, std::nullopt},
  };
  for (const auto& [satir, kural, gun] : ornekler)
    EXPECT_EQ(faiz::GunSayisi(satir, kural), gun) << satir.Vadesi.toString().toStdString();
}

TEST_F(Faiz, TutarHesapOrnekleri) {
  const Satir vadesiz = Vade(100, QDate());
  const QDate on(2005, 3, 10);
  const std::tuple<Girdi, std::vector<Satir>, const char*> ornekler[] = {
      {Soz(5), {Gun(1000, 30)}, "50|1.000,00|50,00|950,00|950|30|30 Gün|30|1"},
      {Soz(5), {Vade(100, kCumartesi)}, "0.6666666666666666|100,00|0,67|99,33|99.33|4|4 Gün|4|1"},
      {Soz(5, kHaftaSonu), {Vade(100, kCumartesi)}, "1|100,00|1,00|99,00|99|6|6 Gün|6|1"},
      // 1000 × 81 (or 83) days × 0,375: the display halves away from zero, the
      // payable amount to even, so the two add up to 1.000,01 (or 1.000,00).
      {Soz(0.375), {Gun(1000, 81)}, "10.125|1.000,00|10,13|989,88|989.88|81|81 Gün|81|1"},
      {Soz(0.375), {Gun(1000, 83)}, "10.375|1.000,00|10,38|989,62|989.62|83|83 Gün|83|1"},
      {Soz(5),
       {Gun(100, 30), Gun(300, 60)},
       "35|400,00|35,00|365,00|365|Muhtelif|Muhtelif Gün|52.5|2"},
      {Soz(5, kOrtalamaGun),
       {Gun(100, 30), Gun(300, 60)},
       "35|400,00|35,00|365,00|365|52,50|52,50 Gün|52.5|2"},
      // 33 by Gun, and 30 days from Friday to Sunday 3 April + ilaveGun 3.
      {Soz(5),
       {Gun(100, 33), Vade(200, QDate(2005, 4, 3))},
       "16.5|300,00|16,50|283,50|283.5|33|33 Gün|33|2"},
      // The clerk's amounts stay; the steps before still ran.
      {Soz(5), {Isaret(1000, 30), Gun(500, 60)}, "100|-|-|-|-|Muhtelif|-|40|2"},
      {Soz(5, kHesaplaYok), {Isaret(1000, 30), Gun(500, 60)}, "100|-|-|-|-|Muhtelif|-|40|2"},
      {Soz(5), {Isaret(1000, 30, "x")}, "50|1.000,00|50,00|950,00|950|30|30 Gün|30|1"},
      {Soz(5),
       {Gun(1000, 30), Isaret(1000, 30)},
       "100|2.000,00|100,00|1.900,00|1900|30|30 Gün|30|2"},
      {Soz(5, kHesaplaYok), {Gun(1000, 30)}, "50|1.000,00|-|-|-|30|30 Gün|30|1"},
      {Soz(5), {}, "0|0|0|0|-|-|-|-|0"},
      {Soz(0), {Gun(1234.5, 30)}, "0|1.234,50|0|1.234,50|1234.5|30|30 Gün|30|1"},
      // No average of nothing.
      {Soz(5, kOrtalamaGun), {Gun(0, 30), Gun(0, 60)}, "0|0,00|0|0,00|0|Muhtelif|Muhtelif Gün|-|2"},
      // A line without a due date counts in the sum only.
      {Soz(5), {Gun(100, 30), vadesiz}, "5|200,00|5,00|195,00|195|30|30 Gün|15|2"},
      {Soz(5), {vadesiz, Gun(100, 45)}, "7.5|200,00|7,50|192,50|192.5|45|45 Gün|22.5|2"},
      {Soz(5), {vadesiz}, "0|100,00|0|100,00|100|0|0 Gün|0|1"},
      // Bad inputs: a due date before the contract date counts backwards.
      {Soz(5, 0, on),
       {Vade(1000, QDate(2005, 3, 1))},
       "-10|1.000,00|-10,00|1.010,00|1010|-6|-6 Gün|-6|1"},
      {Soz(5, 0, on), {Vade(1000, QDate(2005, 3, 7))}, "0|1.000,00|0|1.000,00|1000|0|0 Gün|0|1"},
      // 32875 days: beyond a 16-bit count.
      {Soz(5),
       {Vade(1000, QDate(2095, 3, 4))},
       "54791.666666666664|1.000,00|54.791,67|-53.791,67|-53791.67|32875|32875 Gün|32875|1"},
      {Soz(3), {Gun(1000, 999)}, "999|1.000,00|999,00|1,00|1|999|999 Gün|999|1"},
      // Without a contract date the dated lines have no interest.
      {Soz(5, 0, QDate()),
       {Gun(1000, 30), Vade(500, kPazartesi)},
       "50|1.500,00|50,00|1.450,00|1450|30|30 Gün|20|2|tarih eksik"},
  };
  for (const auto& [girdi, satirlar, beklenen] : ornekler)
    EXPECT_EQ(Ozet(girdi, satirlar), QString::fromUtf8(beklenen));
}

// The worksheet's step: tax and fee come off the payable amount.
TEST_F(Faiz, HesapEkraniVergiVeMasraf) {
  Girdi g = Soz(5);
  g.Masraf = 10;
  const faiz::Sonuc s = faiz::TutarHesap(g, std::vector<Satir>(3, Gun(1000, 30)));
  EXPECT_EQ(s.txtFaizTutar, u"150,00");
  EXPECT_EQ(s.BMVergisi, 7.5);
  EXPECT_EQ(s.TahsilMasrafi, 30);
  EXPECT_EQ(s.txtVergiProv, u"37,50");
  EXPECT_EQ(s.txtOdenecek, u"2.812,50");
  EXPECT_FALSE(faiz::TutarHesap(g, {}).txtVergiProv);  // no lines: it stays
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

TEST_F(Faiz, TutarAlani) {
  // Above 250000 old lira: halves to even in the conversion, away from zero
  // on display. No number: refused, except an empty txtMeblag, which is 0.
  const std::tuple<const char*, bool, const char*> ornekler[] = {
      {"250000", false, "250.000,00"},
      {"250000,01", false, "0,25"},
      {"1.234.567", false, "1,23"},
      {"12.505.000", false, "12,50"},
      {"12.515.000", false, "12,52"},
      {"1234,5", false, "1.234,50"},
      {"10,125", false, "10,13"},
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
      {"", 0, std::nullopt}, {"abc", 0, 1},
      {"999", 999, 1000},    {"1e400", 1000000000000000, 1000000000000001},
      {"-1", -1, 0},         {".5", 0, 1},
      {"2", 2, 3},           {"1 2", 12, 13},
      {"2e1x", 20, 21}};
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

QString Sayi(const std::optional<double>& d) {
  return d ? QString::number(*d, 'f', 2) : QStringLiteral("-");
}

// A bordro's lines: drawer, due date, days, amount, interest, payable; "-" for none.
QString Satirlari(const contract::Bordro& b) {
  QStringList l;
  for (const contract::BordroSatiri& s : b.satirlar)
    l << QStringList{s.Kesideci,
                     s.Vadesi.toString(Qt::ISODate),
                     s.Gunu ? QString::number(*s.Gunu) : "-",
                     Sayi(s.Meblag),
                     Sayi(s.Faiz),
                     Sayi(s.Odenecek)}
             .join('|');
  return l.join('\n');
}

class BordroTest : public test::Ortam {
 protected:
  void SetUp() override {
    test::Ortam::SetUp();
    Genel::Baglanti.Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum) VALUES "
        "(1, 'Yılmaz', 'Ali', 'Veli', 1), (2, 'Demir', 'Ayşe', NULL, 2)");
  }
  void TearDown() override {
    Genel::HaftaSonu = false;
    test::Ortam::TearDown();
  }
  static void Sozlesme(qint64 id, qint64 musteri, const char* tarih, const QVariant& ilaveGun = 3,
                       const QVariant& faizOran = 5) {
    Genel::Baglanti.Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, ilaveGun, "
        "FaizOran) VALUES (?, 'A', ?, ?, ?, ?, ?)",
        {id, id, musteri, QString::fromLatin1(tarih), ilaveGun, faizOran});
  }
  static void Satir(qint64 id, const char* tip, const char* kesideci, const QVariant& vadesi,
                    const QVariant& gun, double meblag) {
    Genel::Baglanti.Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Kesideci, Banka, "
        "Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag) "
        "VALUES (?, 'A', ?, ?, ?, 'Garanti', 'Kadıköy', 'H-1', 'Ç-9', ?, ?, ?, ?)",
        {id, id, QString::fromUtf8(tip), QString::fromUtf8(kesideci), vadesi, vadesi, gun, meblag});
  }
  // The typed rate, not the stored one.
  static contract::BordroEtiketleri Etiketler() {
    return {.Musteri = "Ali Yılmaz",
            .FaizOran = "4,5",
            .Seri = "A",
            .SozlesmeNo = "2",
            .Tarih = "10.01.2024",
            .OrtGun = 52.5};
  }
};

TEST_F(BordroTest, SatirRakamlariSozlesmeToplamlariylaAyni) {
  // Friday, ilaveGun 3, rate 5; the same lines for TutarHesap.
  Sozlesme(1, 1, "2005-03-04");
  const std::tuple<const char*, const char*, QDate, QVariant, double> satirlar[] = {
      {"Çek", "Şükrü Öğün", kCumartesi, 0, 1000},
      {"Çek", "O'Brien", kPazar, QVariant(), 2000},
      {"Senet", "Ali Yılmaz", kCumartesi, 30, 1500},
      {"Çek", "Can", QDate(2005, 4, 4), 0, 1234.56},
      {"Senet", "Can", QDate(), 0, 100}};
  std::vector<faiz::Satir> faizSatirlari;
  for (const auto& [tip, kesideci, vade, gun, meblag] : satirlar) {
    Satir(1, tip, kesideci, vade.isValid() ? QVariant(vade.toString(Qt::ISODate)) : QVariant(), gun,
          meblag);
    faizSatirlari.push_back(Gun(meblag, gun.toLongLong(), vade));
  }
  Sozlesme(2, 1, "2005-03-04");  // another contract: none of its lines may show
  Satir(2, "Çek", "Başka", QStringLiteral("2005-03-07"), 0, 999);

  const QString ilkIki[] = {QStringLiteral("Şükrü Öğün|2005-03-05|4|1000.00|6.67|993.33\n"
                                           "O'Brien|2005-03-06|5|2000.00|16.67|1983.33\n"),
                            QStringLiteral("Şükrü Öğün|2005-03-05|6|1000.00|10.00|990.00\n"
                                           "O'Brien|2005-03-06|6|2000.00|20.00|1980.00\n")};
  for (const bool haftaSonu : {false, true}) {
    SCOPED_TRACE(haftaSonu ? "HaftaSonu on" : "HaftaSonu off");
    Genel::HaftaSonu = haftaSonu;
    const contract::Bordro b = contract::BordroVerisi(1);
    EXPECT_EQ(Satirlari(b), ilkIki[haftaSonu] +
                                "Ali Yılmaz|2005-03-05|30|1500.00|75.00|1425.00\n"
                                "Can|2005-04-04|34|1234.56|69.96|1164.60\nCan||-|100.00|-|-");
    EXPECT_EQ(b.kayitlar.Metin("Musteri"), "Ali Yılmaz");
    // With the stored rate and date on screen, the totals agree to the last bit.
    const faiz::Sonuc t = faiz::TutarHesap(Soz(5, haftaSonu ? kHaftaSonu : 0), faizSatirlari);
    EXPECT_EQ(b.ToplamFaiz, t.Rakamlar.ToplamFaiz);
    EXPECT_EQ(b.ToplamMeblag, t.Rakamlar.Toplam);
    // The line without a due date has no payable amount of its own.
    EXPECT_NEAR(b.ToplamOdenecek, 5834.56 - 100 - b.ToplamFaiz, 1e-9);
  }
}

TEST_F(BordroTest, SakliOranVeTarihKullanilirBosDegerlerSifirSayilir) {
  // An old contract without ilaveGun and rate: both count as 0.
  Sozlesme(3, 2, "2024-01-10", QVariant(), QVariant());
  Satir(3, "Çek", "Can", QStringLiteral("2024-01-20"), 0, 500);
  const contract::Bordro b = contract::BordroVerisi(3);
  EXPECT_EQ(Satirlari(b), "Can|2024-01-20|10|500.00|0.00|500.00");
  EXPECT_EQ(b.kayitlar.Metin("Musteri"), "Demir Ayşe ");
  Sozlesme(4, 99, "2024-01-10");
  Satir(4, "Çek", "Can", QStringLiteral("2024-01-20"), 0, 500);
  EXPECT_EQ(contract::BordroVerisi(4).satirlar.size(), 0);
  EXPECT_EQ(contract::BordroVerisi(5).satirlar.size(), 0);
}

TEST_F(BordroTest, ToplamlarYuvarlanmamisDegerlerdenPdfMetni) {
  // Three lines with an interest of a third each: rounded one by one they
  // would add to 0,99 and 299,01.
  Sozlesme(2, 1, "2024-01-10", 3, 1);
  for (int i = 0; i < 3; ++i) Satir(2, "Çek", "Şükrü Öğün", QStringLiteral("2024-01-20"), 10, 100);
  const contract::Bordro b = contract::BordroVerisi(2);
  EXPECT_DOUBLE_EQ(b.ToplamFaiz, 1.0);
  EXPECT_DOUBLE_EQ(b.ToplamOdenecek, 299.0);
  const rapor::Rapor r = contract::rptBordro(b, Etiketler());
  EXPECT_EQ(rapor::SayfaSayisi(r), 1);
  const QString metin = test::PdfSatirlari(r);
  if (metin.isNull()) GTEST_SKIP() << "pdftotext is not installed";
  const QString satir = "Çek Şükrü Öğün Garanti Kadıköy H-1 Ç-9 20.01.2024 10 100,00 0,33 99,67\n";
  EXPECT_EQ(metin,
            "Müşteri: Ali Yılmaz Tarih: 10.01.2024\n"
            "Sözleşme No: A 2 Faiz Oranı: 4,5\n"
            "Alınan Belgeler:\n"
            "Tip Keşideci Banka Şube Hesapno Çekno Tarih Gün Tutar Faiz Ödenecek\n" +
                satir + satir + satir +
                "Ortalama ve Toplam: 52,50 300,00 1,00 299,00\n"
                "Ortalama Gün: 52,50\n"
                "Toplam: 300,00\n"
                "Faiz Tutarı: 1,00\n"
                "Ödenecek: 299,00");
}

TEST_F(BordroTest, EnCokSatirliSozlesmeTekSayfadaSorguIndeksle) {
  // DetayLimit's default of 22 lines and the footer fit one page.
  Sozlesme(6, 1, "2024-01-10");
  for (int i = 0; i < 22; ++i)
    Satir(6, "Çek", "Can", QDate(2024, 2, 1).addDays(i).toString(Qt::ISODate), 0, 1000 + i);
  const contract::Bordro b = contract::BordroVerisi(6);
  ASSERT_EQ(b.satirlar.size(), 22);
  EXPECT_EQ(rapor::SayfaSayisi(contract::rptBordro(b, Etiketler())), 1);
  // The contract by its key and its lines through their index: no table scan.
  db::Kayitlar plan = Genel::Baglanti.Sorgu(
      "EXPLAIN QUERY PLAN " + QString::fromLatin1(contract::kBordroSorgusu), {6});
  QStringList adimlar;
  for (plan.MoveFirst(); !plan.Eof(); plan.MoveNext()) adimlar << plan.Metin("detail");
  const QString p = adimlar.join(" | ");
  EXPECT_TRUE(p.contains("USING INDEX SozlesmeDetay_SozlesmeDurum")) << p.toStdString();
  EXPECT_FALSE(p.contains("SCAN")) << p.toStdString();
}

}  // namespace
