// The settings file: reading and writing single values the way the classic
// profile functions do, and loading every setting into the globals.

#include <QFile>
#include <QSaveFile>
#include <QStringList>
#include <cmath>

#include "core/Genel.h"
#include "db/Val.h"

namespace Genel {

namespace {

// The value buffer of the profile functions holds 255 characters with the
// terminating NUL.
constexpr int kEnUzunDeger = 254;

struct IniMetni {
  QStringList satirlar;
  QString satirSonu = QStringLiteral("\n");
  bool sonSatirSonuVar = true;
};

IniMetni IniYukle(const QString& dosya) {
  IniMetni m;
  QFile f(dosya);
  if (!f.open(QIODevice::ReadOnly)) return m;
  const QString metin = QString::fromUtf8(f.readAll());
  if (metin.contains(QStringLiteral("\r\n"))) m.satirSonu = QStringLiteral("\r\n");
  m.sonSatirSonuVar = metin.isEmpty() || metin.endsWith(QLatin1Char('\n'));
  m.satirlar = metin.split(QLatin1Char('\n'));
  if (m.sonSatirSonuVar && !m.satirlar.isEmpty()) m.satirlar.removeLast();
  for (QString& s : m.satirlar)
    if (s.endsWith(QLatin1Char('\r'))) s.chop(1);
  return m;
}

// Name of a section header line, or a null string when the line is none.
QString BolumAdi(const QString& satir) {
  const QString t = satir.trimmed();
  if (!t.startsWith(QLatin1Char('['))) return QString();
  const int son = t.indexOf(QLatin1Char(']'));
  const QString ad = son < 0 ? t.mid(1) : t.mid(1, son - 1);
  return ad.trimmed().isNull() ? QStringLiteral("") : ad.trimmed();
}

bool AnahtarSatiri(const QString& satir, QString& anahtar, QString& deger) {
  const int esit = satir.indexOf(QLatin1Char('='));
  if (esit < 0) return false;
  anahtar = satir.left(esit).trimmed();
  deger = satir.mid(esit + 1).trimmed();
  return true;
}

bool Ayni(const QString& a, const QString& b) { return a.compare(b, Qt::CaseInsensitive) == 0; }

// Line index of the first header of the section, or -1.
int BolumBul(const QStringList& satirlar, const QString& bolum) {
  for (int i = 0; i < satirlar.size(); ++i) {
    const QString ad = BolumAdi(satirlar[i]);
    if (!ad.isNull() && Ayni(ad, bolum)) return i;
  }
  return -1;
}

// One past the last line that belongs to the section starting at `bas`.
int BolumSonu(const QStringList& satirlar, int bas) {
  int i = bas + 1;
  while (i < satirlar.size() && BolumAdi(satirlar[i]).isNull()) ++i;
  return i;
}

// One value from a file already read.
QString Oku(const IniMetni& m, const QString& Bolum, const QString& Anahtar,
            const QString& Varsayilan) {
  const int bas = BolumBul(m.satirlar, Bolum);
  if (bas < 0) return Varsayilan;
  const int son = BolumSonu(m.satirlar, bas);
  for (int i = bas + 1; i < son; ++i) {
    QString a, d;
    if (!AnahtarSatiri(m.satirlar[i], a, d) || !Ayni(a, Anahtar)) continue;
    if (d.size() >= 2 &&
        ((d.startsWith('"') && d.endsWith('"')) || (d.startsWith('\'') && d.endsWith('\''))))
      d = d.mid(1, d.size() - 2);
    return d.left(kEnUzunDeger);
  }
  return Varsayilan;
}

}  // namespace

QString IniOku(const QString& Dosya, const QString& Bolum, const QString& Anahtar,
               const QString& Varsayilan) {
  return Oku(IniYukle(Dosya), Bolum, Anahtar, Varsayilan);
}

bool IniYaz(const QString& Dosya, const QString& Bolum, const QString& Anahtar,
            const QString& Deger, QString* hata) {
  QString deger = Deger;
  deger.replace(QLatin1Char('\r'), QLatin1Char(' '));
  deger.replace(QLatin1Char('\n'), QLatin1Char(' '));
  IniMetni m = IniYukle(Dosya);
  const QString yeni = Anahtar + QLatin1Char('=') + deger;

  const int bas = BolumBul(m.satirlar, Bolum);
  if (bas < 0) {
    if (!m.satirlar.isEmpty() && !m.satirlar.last().trimmed().isEmpty()) m.satirlar << QString();
    m.satirlar << QLatin1Char('[') + Bolum + QLatin1Char(']') << yeni;
  } else {
    const int son = BolumSonu(m.satirlar, bas);
    int yer = -1;
    int sonAnahtar = bas;
    for (int i = bas + 1; i < son; ++i) {
      QString a, d;
      if (!AnahtarSatiri(m.satirlar[i], a, d)) continue;
      sonAnahtar = i;
      if (Ayni(a, Anahtar)) {
        yer = i;
        break;
      }
    }
    if (yer >= 0)
      m.satirlar[yer] = yeni;
    else
      m.satirlar.insert(sonAnahtar + 1, yeni);
  }

  QSaveFile f(Dosya);
  if (f.open(QIODevice::WriteOnly)) {
    f.write((m.satirlar.join(m.satirSonu) + m.satirSonu).toUtf8());
    if (f.commit()) {
      QFile::setPermissions(Dosya, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
      return true;
    }
  }
  if (hata) *hata = f.errorString();
  return false;
}

bool BinlikAyiriciBul() {
  // 100000 with the regional group separator, no decimals.
  const QString bicimli = SayiYaz(100000, 0, true);
  BinlikAyirici.clear();
  if (bicimli.contains(QLatin1Char('.')))
    BinlikAyirici = QStringLiteral(".");
  else if (bicimli.contains(QLatin1Char(',')))
    BinlikAyirici = QStringLiteral(",");
  return !BinlikAyirici.isEmpty();
}

namespace {

// The number at the start of a text (Val), rounded to a 16-bit integer.
int SayiAyari(const QString& metin) {
  const double x = std::nearbyint(db::Val(metin));  // to even, as the integer conversion does
  if (x > 32767) return 32767;
  if (x < -32768) return -32768;
  return int(x);
}

int Sayi(const IniMetni& m, const QString& bolum, const QString& anahtar, int varsayilan) {
  return SayiAyari(Oku(m, bolum, anahtar, QString::number(varsayilan)));
}

}  // namespace

void AyarOku() {
  // The file is read once; each key is then looked up in it.
  const IniMetni m = IniYukle(IniDosya);
  const QString F = QStringLiteral("Fatura"), H = QStringLiteral("Hesap"),
                S = QStringLiteral("Sozlesme"), K = QStringLiteral("Koruma");
  PrinterFatura = Oku(m, F, QStringLiteral("Printer"), QStringLiteral("LPT2"));
  BasBosluk = Sayi(m, F, QStringLiteral("BasBosluk"), 11);
  SonBosluk = Sayi(m, F, QStringLiteral("SonBosluk"), 10);
  IsimBas = Sayi(m, F, QStringLiteral("IsimBas"), 24);
  TarihAtla = Sayi(m, F, QStringLiteral("TarihAtla"), 4);
  TarihBas = Sayi(m, F, QStringLiteral("TarihBas"), 59);
  VergiAtla = Sayi(m, F, QStringLiteral("VergiAtla"), 5);
  VergiBas = Sayi(m, F, QStringLiteral("VergiBas"), 22);
  TutarSatirAtla = Sayi(m, F, QStringLiteral("TutarSatirAtla"), 4);
  TutarBas = Sayi(m, F, QStringLiteral("TutarBas"), 58);
  DetaySatirAtla = Sayi(m, F, QStringLiteral("DetaySatirAtla"), 9);
  YeniSayfaAtla = Sayi(m, F, QStringLiteral("YeniSayfaAtla"), 7);
  Sayfabasi = Sayi(m, F, QStringLiteral("Sayfabasi"), 0) > 0;
  PulBedeli = Sayi(m, F, QStringLiteral("PulBedeli"), 1) > 0;

  IlaveGun = Sayi(m, H, QStringLiteral("IlaveGun"), 3);
  HaftaSonu = Sayi(m, H, QStringLiteral("HaftaSonu"), 0) == 1;

  PrinterSozlesme = Oku(m, S, QStringLiteral("Printer"), QStringLiteral("LPT1"));
  DetayBasBosluk = Sayi(m, S, QStringLiteral("DetayBasBosluk"), 0);
  MasrafGoster = Sayi(m, S, QStringLiteral("MasrafGoster"), 1) > 0;
  Hesapla = Sayi(m, S, QStringLiteral("Hesapla"), 1) == 1;
  OrtalamaGun = Sayi(m, S, QStringLiteral("OrtalamaGun"), 0) == 1;
  DetayToplamYaz = Sayi(m, S, QStringLiteral("DetayToplamYaz"), 1) == 1;
  DetayLimit = std::max(2, Sayi(m, S, QStringLiteral("DetayLimit"), 22));

  SadeceGoster = Sayi(m, K, QStringLiteral("SadeceGoster"), 0) > 0;

  SahipAdi = Oku(m, QStringLiteral("Kurulum"), QStringLiteral("SahipAdi"), QString());
}

int AyarSayisi(const QString& metin) { return SayiAyari(metin); }

}  // namespace Genel
