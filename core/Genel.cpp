#include "core/Genel.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
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

QByteArray DosKarakter(const QString& s) {
  QByteArray r;
  r.reserve(s.size());
  for (QChar c : s) {
    switch (c.unicode()) {
      case 0x00F6:
        r += char(148);
        break;  // ö
      case 0x00D6:
        r += char(153);
        break;  // Ö
      case 0x00FC:
        r += char(129);
        break;  // ü
      case 0x00DC:
        r += char(154);
        break;  // Ü
      case 0x00E7:
        r += char(135);
        break;  // ç
      case 0x00C7:
        r += char(128);
        break;  // Ç
      case 0x015F:
        r += char(159);
        break;  // ş
      case 0x015E:
        r += char(158);
        break;  // Ş
      case 0x011F:
        r += char(167);
        break;  // ğ
      case 0x011E:
        r += char(166);
        break;  // Ğ
      case 0x0131:
        r += char(141);
        break;  // ı
      case 0x0130:
        r += char(152);
        break;  // İ
      default:
        // Every other character goes out as its single byte; what has none
        // becomes a question mark.
        r += c.unicode() < 256 ? char(c.unicode()) : '?';
    }
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

QDate TarihOku(const QString& s) {
  static const QRegularExpression bicim(
      QStringLiteral("^\\s*(\\d{1,2})[./-](\\d{1,2})[./-](\\d{1,4})\\s*$"));
  const auto m = bicim.match(s);
  if (!m.hasMatch()) return QDate();
  const int gun = m.captured(1).toInt();
  const int ay = m.captured(2).toInt();
  const QString yilMetni = m.captured(3);
  int yil = yilMetni.toInt();
  if (yilMetni.size() <= 2)
    yil += yil < 30 ? 2000 : 1900;  // the usual window 1930..2029
  else if (yilMetni.size() == 3)
    return QDate();
  return QDate(yil, ay, gun);
}

bool TarihTamamla(QString& metin, const QDate& bugun) {
  QString t = metin;
  if (t.isEmpty()) return true;
  const auto ayiracYok = [](const QString& x) {
    return !x.contains(QLatin1Char('.')) && !x.contains(QLatin1Char('/'));
  };
  if (t.size() == 5 && t[2] == QLatin1Char('/')) t.remove(QLatin1Char('/'));
  if (t.size() == 6 && ayiracYok(t))
    t = t.left(2) + QLatin1Char('/') + t.mid(2, 2) + QLatin1Char('/') + t.mid(4);
  if (t.size() == 8 && ayiracYok(t))
    t = t.left(2) + QLatin1Char('/') + t.mid(2, 2) + QLatin1Char('/') + t.mid(4);
  QDate d = TarihOku(t);
  if (d.isValid()) {
    metin = TarihYaz(d);
    return true;
  }
  if (t.size() == 4) t = t.left(2) + QLatin1Char('/') + t.mid(2);
  d = TarihOku(t + QLatin1Char('/') + QString::number(bugun.year()));
  if (d.isValid()) {
    metin = TarihYaz(d);
    return true;
  }
  return false;
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
