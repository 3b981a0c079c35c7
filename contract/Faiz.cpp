#include "contract/Faiz.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

#include "core/Genel.h"
#include "db/Val.h"

namespace faiz {

namespace {

// Numbers read from a text are kept within this bound before they become
// integers, so that a count plus ilaveGun plus the weekend days stays exact in
// a double and far from the ends of qint64.
constexpr double kSayiSiniri = 1e15;

// Adds without overflow: a sum beyond qint64 stops at its end.
qint64 Ekle(qint64 a, qint64 b) {
  qint64 r;
  if (__builtin_add_overflow(a, b, &r))
    return b > 0 ? std::numeric_limits<qint64>::max() : std::numeric_limits<qint64>::min();
  return r;
}

bool Bosluk(QChar c) { return c == QLatin1Char(' ') || c == QLatin1Char('\t'); }
bool Rakam(QChar c) { return c >= QLatin1Char('0') && c <= QLatin1Char('9'); }

// R1: the leading number of a text: leading blanks skipped, digits with at
// most one point as decimal point, up to the first other character; no sign,
// and the comma is never part of it. 0 when there is none.
double R1Sayisi(const QString& metin) {
  std::string s;
  qsizetype i = 0;
  const qsizetype n = metin.size();
  while (i < n && Bosluk(metin[i])) ++i;
  bool nokta = false, rakam = false;
  for (; i < n; ++i) {
    const QChar c = metin[i];
    if (Rakam(c)) {
      rakam = true;
      s += char(c.unicode());
    } else if (c == QLatin1Char('.') && !nokta) {
      nokta = true;
      s += '.';
    } else {
      break;
    }
  }
  if (!rakam) return 0;
  double x = 0;
  // from_chars ignores the C locale, which Qt sets from the environment.
  const auto r = std::from_chars(s.data(), s.data() + s.size(), x);
  if (r.ec != std::errc()) return 0;  // out of range: a nonsense text
  return x;
}

// Halves to even, as the original's integer conversion did; within the bound.
qint64 TamSayi(double x) {
  if (std::isnan(x)) return 0;
  x = std::clamp(x, -kSayiSiniri, kSayiSiniri);
  const double alt = std::floor(x);
  const double fark = x - alt;
  double r = alt;
  if (fark > 0.5 || (fark == 0.5 && std::fmod(alt, 2.0) != 0)) r = alt + 1;
  return static_cast<qint64>(r);
}

// A number written back in its shortest form with the regional decimal sign and
// no groups (4,50 gives 4,5). Plain digits over the range a rate can have,
// an exponent beyond it, so that the text stays short and SayiOku reads it.
QString KisaYaz(double v) {
  char buf[64];
  const double a = std::fabs(v);
  const auto r = (a == 0 || (a >= 1e-4 && a < kSayiSiniri))
                     ? std::to_chars(buf, buf + sizeof buf, v, std::chars_format::fixed)
                     : std::to_chars(buf, buf + sizeof buf, v);
  QString s = QString::fromLatin1(buf, r.ptr - buf);
  s.replace(QLatin1Char('.'), Genel::Bolge().ondalik);
  return s;
}

}  // namespace

// --- rule D and totals

std::optional<qint64> GunSayisi(const Satir& satir, const GunKurali& kural) {
  if (satir.Gun != 0) return satir.Gun;  // D2: the override, nothing added
  if (!satir.Vadesi.isValid() || !kural.Tarih.isValid()) return std::nullopt;
  qint64 gun = Ekle(kural.Tarih.daysTo(satir.Vadesi), kural.ilaveGun);  // D3
  if (kural.HaftaSonu) {                                                // D4
    switch (satir.Vadesi.dayOfWeek()) {
      case Qt::Saturday:
        gun = Ekle(gun, 2);
        break;
      case Qt::Sunday:
        gun = Ekle(gun, 1);
        break;
      default:
        break;
    }
  }
  return gun;
}

Toplamlar Topla(const Girdi& girdi, std::span<const Satir> satirlar) {
  Toplamlar t;  // T1: DetaySayisi 0
  if (satirlar.empty()) {
    t.SatirYok = true;  // T2
    return t;
  }
  const GunKurali kural{girdi.Tarih, girdi.ilaveGun, girdi.HaftaSonu};
  const Satir& ilk = satirlar.front();
  t.XSatiri = ilk.CekNo == u"X" && ilk.Kesideci == u"X";      // T3
  t.IlkGun = GunSayisi(ilk, kural);                           // T4
  for (const Satir& s : satirlar) {                           // T5, T6
    t.Toplam += s.Meblag;                                     // a: every line
    if (s.Vadesi.isValid()) {                                 // b
      const std::optional<qint64> gun = GunSayisi(s, kural);  // c
      if (gun) {
        t.ToplamFaiz += SatirFaizi(s.Meblag, *gun, girdi.FaizOran);  // d
        t.AgirlikliGun += s.Meblag * static_cast<double>(*gun);      // e
        if (!t.IlkGun)
          t.IlkGun = *gun;  // the first line had no count: this one leads
        else if (*gun != *t.IlkGun)
          t.Muhtelif = true;  // f: only the counts are compared
      } else {
        t.TarihEksik = true;
      }
    }
    ++t.DetaySayisi;  // g
  }
  return t;
}

// Same text as Genel::SayiYaz(deger, 2), written into one string: TutarHesap
// makes three of these per run, and SayiYaz builds several temporaries each.
QString ParaYazisi(double deger) {
  double r = Genel::YuvarlaYarimYukari(deger, 2);
  if (!std::isfinite(r)) return Genel::SayiYaz(deger, 2, true);
  if (r == 0) r = 0;  // no "-0,00"
  char buf[400];      // the largest double has 309 digits
  const auto son = std::to_chars(buf, buf + sizeof buf, std::fabs(r), std::chars_format::fixed, 2);
  const qsizetype tam = (son.ptr - buf) - 3;  // digits before the point
  const QChar binlik = Genel::Bolge().binlik;
  const qsizetype grup = binlik.isNull() ? 0 : (tam - 1) / 3;
  QString s((r < 0 ? 1 : 0) + tam + grup + 3, Qt::Uninitialized);
  QChar* p = s.data();
  if (r < 0) *p++ = QLatin1Char('-');
  for (qsizetype i = 0; i < tam; ++i) {
    if (grup && i > 0 && (tam - i) % 3 == 0) *p++ = binlik;
    *p++ = QLatin1Char(buf[i]);
  }
  *p++ = Genel::Bolge().ondalik;
  *p++ = QLatin1Char(buf[tam + 1]);
  *p = QLatin1Char(buf[tam + 2]);
  return s;
}

Sonuc TutarHesap(const Girdi& girdi, std::span<const Satir> satirlar) {
  Sonuc s;
  s.Rakamlar = Topla(girdi, satirlar);
  const Toplamlar& t = s.Rakamlar;
  s.DetaySayisi = t.DetaySayisi;

  if (t.SatirYok) {  // T2: "0", not 0,00; the day figure and OrtGun stay
    const QString sifir = QStringLiteral("0");
    s.txtTutar = s.txtFaizTutar = s.txtOdenecek = sifir;
    return s;
  }

  // T4, T6f, T8: the day figure.
  QString gunYazisi;
  if (t.Muhtelif) {
    gunYazisi = QStringLiteral(u"Muhtelif");  // kMuhtelif, without a copy
    if (girdi.OrtalamaGun && t.Toplam != 0) gunYazisi = ParaYazisi(t.AgirlikliGun / t.Toplam);
  } else {
    gunYazisi = QString::number(t.IlkGun.value_or(0));
  }
  s.GunYazisi = gunYazisi;
  if (t.Toplam != 0) s.OrtGun = t.AgirlikliGun / t.Toplam;  // T7, else it stays

  if (t.XSatiri) return s;  // T9: the clerk's amounts stay

  s.txtTutar = ParaYazisi(t.Toplam);  // T10, with Hesapla off as well
  if (girdi.Hesapla) {                // T11
    s.txtFaizTutar = t.ToplamFaiz == 0 ? QStringLiteral("0") : ParaYazisi(t.ToplamFaiz);
    double kalan = t.Toplam - t.ToplamFaiz;  // the interest unrounded
    if (girdi.Masraf) {                      // the worksheet's T11 b-e
      s.TahsilMasrafi = *girdi.Masraf * static_cast<double>(t.DetaySayisi);
      s.BMVergisi = t.ToplamFaiz * kBMVergisiOrani;
      const double provizyon = *s.BMVergisi + *s.TahsilMasrafi;
      s.txtVergiProv = ParaYazisi(provizyon);
      kalan = t.Toplam - t.ToplamFaiz - provizyon;
    }
    s.Odenecek = Genel::YuvarlaBankaci(kalan, 2) + 0.0;  // + 0.0: no -0
    s.txtOdenecek = ParaYazisi(*s.Odenecek);
  }
  QString& etiket = s.lblFaizGun.emplace();  // T12
  etiket.reserve(gunYazisi.size() + QStringView(kGunEki).size());
  etiket.append(gunYazisi).append(QStringView(kGunEki));
  return s;
}

// --- entry rules

std::optional<QString> TutarAlani(const QString& metin, bool Meblag) {
  const QString t = (Meblag && metin.isEmpty()) ? QStringLiteral("0") : metin;  // A1
  double v = 0;
  // A2: the empty text, blanks or a lone decimal sign are no amount.
  if (!Genel::SayiMi(t, &v)) return std::nullopt;
  if (v > kEskiLiraSiniri)  // A3: old lira into new
    return ParaYazisi(Genel::YuvarlaBankaci(v / 1000000, 2));
  return Genel::ParaFormat(t);
}

QString OranAlani(const QString& metin) {
  const double bas = R1Sayisi(metin);          // R1
  if (!(bas > 0)) return QStringLiteral("0");  // R2
  double v = 0;
  if (Genel::SayiOkuDene(metin, v)) return KisaYaz(v);  // R3
  return KisaYaz(bas);  // no number by the regional rules: its leading number
}

double OranDegeri(const QString& metin) {
  double v = 0;
  if (Genel::SayiOkuDene(metin, v)) return v;
  return Genel::SayiOkuDene(OranAlani(metin), v) ? v : 0;
}

QString GunAlani(const QString& metin) { return metin.isEmpty() ? QStringLiteral("0") : metin; }

qint64 GunOku(const QString& metin) { return TamSayi(db::Val(metin)); }

std::optional<qint64> ValorAlani(const QString& metin) {
  if (metin.isEmpty()) return std::nullopt;
  return TamSayi(db::Val(metin)) + 1;
}

QString ValorYazisi(qint64 ilaveGun) { return QString::number(Ekle(ilaveGun, -1)); }

HesaplaKilidi HesaplaKilit(bool Hesapla) {
  HesaplaKilidi k;
  if (Hesapla) {
    k.txtTutar = k.txtFaizTutar = k.txtOdenecek = AlanKilidi{true, false};
  } else {
    k.txtTutar = k.txtFaizTutar = AlanKilidi{false, true};
    k.txtOdenecek = AlanKilidi{true, std::nullopt};  // never typed, never unlocked
  }
  return k;
}

}  // namespace faiz
