#include "core/Genel.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>

namespace Genel {

// --- globals

db::Baglanti Baglanti;
QString IniDosya;
QString BinlikAyirici;
QString FirmaAdi;
QString SozlesmeSeri;
QString FaturaSeri;
bool MusteriBazinda = false;
QString SahipAdi;
double OrtGun = 0;

int BasBosluk = 11, SonBosluk = 10, IlaveGun = 3, IsimBas = 24, TarihAtla = 4, VergiAtla = 5,
    TarihBas = 59, VergiBas = 22, TutarSatirAtla = 4, TutarBas = 58, DetaySatirAtla = 9,
    YeniSayfaAtla = 7, DetayBasBosluk = 0, DetayLimit = 22;
bool Sayfabasi = false, MasrafGoster = true, SadeceGoster = false, PulBedeli = true,
     HaftaSonu = false, Hesapla = true, OrtalamaGun = false, DetayToplamYaz = true;
QString PrinterSozlesme = QStringLiteral("LPT1"), PrinterFatura = QStringLiteral("LPT2");

BolgeAyari& Bolge() {
  static BolgeAyari b;
  return b;
}

void BolgeTurkce() { Bolge() = BolgeAyari{}; }

// --- folders

namespace {

QString DizinHazirla(const char* degisken, const QString& varsayilan) {
  QString yol = qEnvironmentVariable(degisken);
  if (yol.isEmpty()) yol = varsayilan;
  QDir d;
  if (!d.exists(yol)) {
    if (!d.mkpath(yol)) return QString();
    QFile::setPermissions(yol,
                          QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
  }
  return QDir(yol).absolutePath();
}

}  // namespace

QString AyarDizini() {
  return DizinHazirla("VELMORA_AYAR", QDir::homePath() + QStringLiteral("/.config/velmora"));
}

QString VeriDizini() {
  return DizinHazirla("VELMORA_VERI", QDir::homePath() + QStringLiteral("/.local/share/velmora"));
}

QString VeriTabaniYolu() {
  const QString d = VeriDizini();
  // A folder given with its trailing separator gets the name right behind it.
  return d.endsWith(QLatin1Char('/')) ? d + QStringLiteral("velmora.db")
                                      : d + QStringLiteral("/velmora.db");
}

QString WindowsDizini() {
  QString d = AyarDizini();
  d.replace(QChar(0), QLatin1Char(' '));
  return d.trimmed();
}

// --- numbers

bool SayiOkuDene(const QString& s, double& sonuc) {
  QString t = s;
  if (!BinlikAyirici.isEmpty()) t.remove(BinlikAyirici);
  t = t.trimmed();
  if (t.isEmpty() || t == QString(Bolge().ondalik)) {
    sonuc = 0;
    return true;
  }
  // The regional decimal sign becomes the point the C reader expects; a point
  // left over at this stage is no decimal sign and makes the text no number.
  if (Bolge().ondalik != QLatin1Char('.')) {
    if (t.contains(QLatin1Char('.'))) return false;
    t.replace(Bolge().ondalik, QLatin1Char('.'));
  }
  static const QRegularExpression sayi(
      QStringLiteral("^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eE][+-]?\\d+)?$"));
  if (!sayi.match(t).hasMatch()) return false;
  bool ok = false;
  const double x = t.toDouble(&ok);
  if (!ok || !std::isfinite(x)) return false;
  sonuc = x;
  return true;
}

bool SayiMi(const QString& metin, double* deger) {
  // SayiOkuDene takes a text without a digit (empty, blanks, a lone decimal
  // sign) as 0; as an entry that is nothing typed.
  bool rakam = false;
  for (const QChar c : metin) rakam = rakam || (c >= QLatin1Char('0') && c <= QLatin1Char('9'));
  double x = 0;
  if (!rakam || !SayiOkuDene(metin, x)) return false;
  if (deger) *deger = x;
  return true;
}

double SayiOku(const QString& s) {
  double x = 0;
  if (!SayiOkuDene(s, x)) throw SayiHatasi{s};
  return x;
}

namespace {

// Rounds at `basamak` decimals on the 15 significant digits the value shows,
// so that 1.005 counts as 1.005 and not as the binary 1.00499999...
double OndalikYuvarla(double x, int basamak, bool bankaci) {
  if (!std::isfinite(x) || x == 0) return x;
  const bool eksi = x < 0;
  char buf[40];
  const auto son =
      std::to_chars(buf, buf + sizeof buf - 1, std::fabs(x), std::chars_format::scientific, 14);
  *son.ptr = '\0';
  // buf: d.dddddddddddddde±XX, whatever the C locale says
  int rakam[15];
  int n = 0;
  const char* p = buf;
  for (; *p && *p != 'e'; ++p)
    if (*p >= '0' && *p <= '9') rakam[n++] = *p - '0';
  const int us = std::atoi(p + 1);
  const int tut = us + 1 + basamak;  // digits kept
  if (tut >= 15) return x;
  if (tut < 0) return eksi ? -0.0 : 0.0;
  long long deger = 0;
  for (int i = 0; i < tut; ++i) deger = deger * 10 + rakam[i];
  const int sonraki = rakam[tut];
  bool yukari;
  if (!bankaci) {
    yukari = sonraki >= 5;
  } else if (sonraki != 5) {
    yukari = sonraki > 5;
  } else {
    bool kalanVar = false;
    for (int i = tut + 1; i < 15; ++i) kalanVar = kalanVar || rakam[i] != 0;
    yukari = kalanVar || (deger % 2 == 1);
  }
  if (yukari) ++deger;
  // deger × 10^(us + 1 - tut) = deger / 10^basamak
  double r;
  if (basamak >= 0)
    r = double(deger) / std::pow(10.0, basamak);
  else
    r = double(deger) * std::pow(10.0, -basamak);
  return eksi ? -r : r;
}

QString Grupla(const QString& tamKisim) {
  if (Bolge().binlik.isNull()) return tamKisim;
  QString r;
  const int n = tamKisim.size();
  for (int i = 0; i < n; ++i) {
    if (i > 0 && (n - i) % 3 == 0) r += Bolge().binlik;
    r += tamKisim[i];
  }
  return r;
}

}  // namespace

double YuvarlaYarimYukari(double deger, int basamak) {
  return OndalikYuvarla(deger, basamak, false);
}

double YuvarlaBankaci(double deger, int basamak) { return OndalikYuvarla(deger, basamak, true); }

QString SayiYaz(double deger, int basamak, bool gruplu) {
  double r = YuvarlaYarimYukari(deger, basamak);
  if (r == 0) r = 0;  // no "-0,00"
  QString s = QString::number(std::fabs(r), 'f', basamak);
  QString tam = s, kesir;
  const int nokta = s.indexOf(QLatin1Char('.'));
  if (nokta >= 0) {
    tam = s.left(nokta);
    kesir = s.mid(nokta + 1);
  }
  QString sonuc = r < 0 ? QStringLiteral("-") : QString();
  sonuc += gruplu ? Grupla(tam) : tam;
  if (basamak > 0) sonuc += Bolge().ondalik + kesir;
  return sonuc;
}

QString ParaFormat(const QString& s) { return SayiYaz(SayiOku(s.trimmed()), 2); }

QString KurFormat(const QString& s) { return SayiYaz(SayiOku(s.trimmed()), 5); }

QString IkiHane(int n) {
  return n >= 10 ? QString::number(n) : QStringLiteral("0") + QString::number(n);
}

QString SagaDoldur(const QString& s, int genislik) {
  if (genislik <= 0) return QString();
  if (s.size() >= genislik) return s.left(genislik);
  return s + QString(genislik - s.size(), QLatin1Char(' '));
}

namespace {

// The printer's Turkish letters (code page 857).
char Cp857Harfi(char16_t c) {
  switch (c) {
    case u'ö':
      return char(148);
    case u'Ö':
      return char(153);
    case u'ü':
      return char(129);
    case u'Ü':
      return char(154);
    case u'ç':
      return char(135);
    case u'Ç':
      return char(128);
    case u'ş':
      return char(159);
    case u'Ş':
      return char(158);
    case u'ğ':
      return char(167);
    case u'Ğ':
      return char(166);
    case u'ı':
      return char(141);
    case u'İ':
      return char(152);
    default:
      return 0;
  }
}

// The byte of a character in the Turkish Windows code page (1254), in which
// the rest of the text goes out; 0 when the page lacks it. The six Turkish
// letters of the page never get here: they take the printer's codes above.
char Cp1254Bayti(char16_t c) {
  if (c < 0x80) return char(c);
  // 0x80-0x9F: typographic signs; the five bytes the page leaves unassigned
  // stand for the control characters of the same number.
  static constexpr char16_t kUst[32] = {
      0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
      0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x008E, 0x008F,  // 88
      0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
      0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x009E, 0x0178,  // 98
  };
  for (int i = 0; i < 32; ++i)
    if (kUst[i] == c) return char(0x80 + i);
  // Latin-1 above 0xA0, but for the six places the Turkish letters take.
  if (c < 0xA0 || c > 0xFF) return 0;
  switch (c) {
    case 0xD0:
    case 0xDD:
    case 0xDE:
    case 0xF0:
    case 0xFD:
    case 0xFE:
      return 0;
    default:
      return char(c);
  }
}

}  // namespace

QByteArray DosKarakter(const QString& s) {
  QByteArray r;
  r.reserve(s.size());
  for (QChar c : s) {
    if (const char b = Cp857Harfi(c.unicode())) {
      r += b;
    } else if (const char b = Cp1254Bayti(c.unicode()); b || c.unicode() == 0) {
      r += b;
    } else {
      r += '?';  // the code page has no such character
    }
  }
  return r;
}

QByteArray Cp1254(const QString& s) {
  QByteArray r;
  r.reserve(s.size());
  for (QChar c : s) {
    const char16_t u = c.unicode();
    char b = Cp1254Bayti(u);
    // The six Turkish letters of the page, which DosKarakter never lets through.
    switch (u) {
      case u'Ğ':
        b = char(0xD0);
        break;
      case u'İ':
        b = char(0xDD);
        break;
      case u'Ş':
        b = char(0xDE);
        break;
      case u'ğ':
        b = char(0xF0);
        break;
      case u'ı':
        b = char(0xFD);
        break;
      case u'ş':
        b = char(0xFE);
        break;
      default:
        break;
    }
    r += (b || u == 0) ? b : '?';
  }
  return r;
}

QString AramaAnahtari(const QString& a, const QString& b, const QString& c) {
  QString k = a + b + c;
  k.remove(QLatin1Char(' '));
  k.remove(QLatin1Char('.'));
  return k;
}

// --- dates

QString TarihYaz(const QDate& d) {
  return d.isValid() ? d.toString(QStringLiteral("dd.MM.yyyy")) : QString();
}

namespace {

// A year as typed: two digits go into 1930..2029, four stand as they are;
// one or three digits are no year.
int YilOku(const QString& yil) {
  const int y = yil.toInt();
  if (yil.size() == 2) return y + (y < 30 ? 2000 : 1900);
  return yil.size() == 4 ? y : 0;
}

// The regional reader of a typed date: day, month and year with one of ".",
// "/" or "-" between them, or, when `bugun` is given, day and month with "."
// or "/" in its year.
QDate BolgeselTarih(const QString& s, const QDate& bugun) {
  static const QRegularExpression ucParca(
      QStringLiteral("^\\s*(\\d{1,2})([./-])(\\d{1,2})\\2(\\d{1,4})\\s*$"));
  static const QRegularExpression ikiParca(QStringLiteral("^\\s*(\\d{1,2})[./](\\d{1,2})\\s*$"));
  if (const auto m = ucParca.match(s); m.hasMatch()) {
    const int yil = YilOku(m.captured(4));
    return yil ? QDate(yil, m.captured(3).toInt(), m.captured(1).toInt()) : QDate();
  }
  if (const auto m = ikiParca.match(s); m.hasMatch() && bugun.isValid())
    return QDate(bugun.year(), m.captured(2).toInt(), m.captured(1).toInt());
  return QDate();
}

bool SadeceRakam(const QString& s) {
  return !s.isEmpty() && std::all_of(s.begin(), s.end(), [](QChar c) {
    return c >= QLatin1Char('0') && c <= QLatin1Char('9');
  });
}

}  // namespace

QDate TarihOku(const QString& s) { return BolgeselTarih(s, QDate()); }

QDate TarihCoz(const QString& s, const QDate& bugun) { return BolgeselTarih(s, bugun); }

bool TarihTamamla(QString& metin, const QDate& bugun) {
  QString t = metin;
  if (t.isEmpty()) return true;
  const auto bolu = [](const QString& x, std::initializer_list<int> yerler) {
    QString r = x;
    for (auto it = std::rbegin(yerler); it != std::rend(yerler); ++it)
      r.insert(*it, QLatin1Char('/'));
    return r;
  };
  if (t.size() == 5 && t[2] == QLatin1Char('/')) t.remove(QLatin1Char('/'));
  // ddmmyy and ddmmyyyy: only a text of digits is cut into parts.
  if ((t.size() == 6 || t.size() == 8) && SadeceRakam(t)) t = bolu(t, {2, 4});
  QDate d = BolgeselTarih(t, bugun);
  if (!d.isValid()) {
    if (t.size() == 4 && SadeceRakam(t)) t = bolu(t, {2});  // ddmm
    d = TarihOku(t + QLatin1Char('/') + QString::number(bugun.year()));
  }
  if (!d.isValid()) return false;
  metin = TarihYaz(d);
  return true;
}

QVariant TarihSql(const QString& ekran) {
  const QDate d = TarihOku(ekran);
  return d.isValid() ? QVariant(d.toString(Qt::ISODate)) : QVariant();
}

QString TarihEkran(const QVariant& sql) {
  if (db::NullMu(sql)) return QString();
  return TarihYaz(QDate::fromString(sql.toString().left(10), Qt::ISODate));
}

// --- keys

QChar BuyukHarf(QChar c) {
  if (c == QLatin1Char('i')) return QChar(0x0130);
  if (c == QChar(0x0131)) return QLatin1Char('I');
  return c.toUpper();
}

QChar SayiTusu(QChar c) {
  const ushort u = c.unicode();
  if ((u >= '0' && u <= '9') || u == '.' || u == ',' || u == 8 || u == 12 || u == 27) return c;
  return QChar();
}

}  // namespace Genel
