#pragma once
// The shared state and small helpers of the whole program: the globals every
// screen reads, text <-> number, dates, key filters, printer characters.

#include <QDate>
#include <QString>
#include <QVariant>

#include "db/Baglanti.h"

namespace Genel {

// --- version of the program
inline constexpr int kMajor = 2;
inline constexpr int kMinor = 3;
inline constexpr int kRevision = 2;

// --- regional settings: Turkish whatever the machine says. Tests may switch
// the separators to prove that the helpers follow them.
struct BolgeAyari {
  QChar ondalik = QLatin1Char(',');
  QChar binlik = QLatin1Char('.');
};
BolgeAyari& Bolge();
void BolgeTurkce();  // back to "," and "."

// --- globals
extern db::Baglanti Baglanti;
extern QString IniDosya;
extern QString BinlikAyirici;
extern QString FirmaAdi;
extern QString SozlesmeSeri;
extern QString FaturaSeri;
extern bool MusteriBazinda;
extern QString SahipAdi;
extern double OrtGun;

// Settings loaded by AyarOku, named by their keys.
extern int BasBosluk, SonBosluk, IlaveGun, IsimBas, TarihAtla, VergiAtla, TarihBas, VergiBas,
    TutarSatirAtla, TutarBas, DetaySatirAtla, YeniSayfaAtla, DetayBasBosluk, DetayLimit;
extern bool Sayfabasi, MasrafGoster, SadeceGoster, PulBedeli, HaftaSonu, Hesapla, OrtalamaGun,
    DetayToplamYaz;
extern QString PrinterSozlesme, PrinterFatura;

// --- folders and files
QString AyarDizini();      // $VELMORA_AYAR or ~/.config/velmora, created 0700
QString VeriDizini();      // $VELMORA_VERI or ~/.local/share/velmora, created 0700
QString VeriTabaniYolu();  // VeriDizini()/velmora.db
QString WindowsDizini();   // the settings folder; empty when it cannot be made

// --- settings file
QString IniOku(const QString& Dosya, const QString& Bolum, const QString& Anahtar,
               const QString& Varsayilan);
// False, with the system's reason in `hata` when given, when the file could
// not be written; the settings screen doesn't look.
bool IniYaz(const QString& Dosya, const QString& Bolum, const QString& Anahtar,
            const QString& Deger, QString* hata = nullptr);
// Finds the thousands separator; false when the regional form has none (the
// start-up tells the clerk, and BinlikAyirici stays empty).
bool BinlikAyiriciBul();
void AyarOku();
// How AyarOku reads a number: its leading number, rounded to a 16-bit integer.
int AyarSayisi(const QString& metin);

// --- numbers and texts
// The one way from text to number. Throws SayiHatasi when the rest is no number.
struct SayiHatasi {
  QString metin;
};
double SayiOku(const QString& s);
// Same, but false instead of an exception.
bool SayiOkuDene(const QString& s, double& sonuc);
// "Is a number" of the entry checks: at least one digit, and SayiOkuDene
// takes it; the value goes to `deger` when it is.
bool SayiMi(const QString& metin, double* deger = nullptr);
QString ParaFormat(const QString& s);
QString KurFormat(const QString& s);
// A value rounded half away from zero to `basamak` decimals, then formatted
// with groups and the regional decimal sign.
QString SayiYaz(double deger, int basamak, bool gruplu = true);
// Half away from zero at `basamak` decimals, on the value's shortest decimal text.
double YuvarlaYarimYukari(double deger, int basamak);
// Half to even at `basamak` decimals.
double YuvarlaBankaci(double deger, int basamak);
QString IkiHane(int n);
QString SagaDoldur(const QString& s, int genislik);
QByteArray DosKarakter(const QString& s);
// The whole text in the Turkish Windows code page (1254), as the original wrote
// a line that didn't pass DosKarakter; "?" for a character the page lacks.
QByteArray Cp1254(const QString& s);
QString AramaAnahtari(const QString& a, const QString& b, const QString& c);
QString YaziyaCevir(double Tutar);
QString UcHaneYazi(double Sayi);

// --- dates on screen: always dd.MM.yyyy
QString TarihYaz(const QDate& d);
// Reads a day-first date with one of ".", "/" or "-" between the parts and a
// year of two or four digits; an invalid QDate when it is none.
QDate TarihOku(const QString& s);
// The regional reader of a typed date: the forms of TarihOku, and day and
// month with "." or "/" in the year of `bugun`.
QDate TarihCoz(const QString& s, const QDate& bugun);
// The completion of a typed date that TarihDuzelt does, without the box:
// true with `metin` in dd.MM.yyyy form, false with `metin` unchanged.
bool TarihTamamla(QString& metin, const QDate& bugun);
// A date for SQL (yyyy-MM-dd) from the screen's text; Null when empty or invalid.
QVariant TarihSql(const QString& ekran);
// The screen's text of a stored date ("" for Null).
QString TarihEkran(const QVariant& sql);

// --- key filters (key codes as characters)
QChar BuyukHarf(QChar c);
// Returns the key, or a null QChar when the key is to be dropped.
QChar SayiTusu(QChar c);

}  // namespace Genel
