#pragma once
// The transfer of a period: which contracts and collected papers go to the
// Ministry, their totals and conversions, the faulty tax numbers, and the
// file itself. Called by the screen and by the command line alike; it asks
// nothing and shows nothing, it reports through its result and callbacks.

#include <QDate>
#include <QString>
#include <QStringList>
#include <functional>
#include <stdexcept>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"

namespace aktarim {

// First and last day of a period of whole months. February always ends on
// the 28th: the 29th belongs to no period.
QDate DonemBasi(int ay, int yil);
QDate DonemSonu(int ay, int yil);

// The limit as the clerk typed it: above 250000 it is old lira and becomes
// new lira (ties to even); otherwise it is rounded to a whole number.
double LimitKurali(double limit);

// Where the three files go: $VELMORA_CIKTI, else the documents folder of the
// user (xdg-user-dir DOCUMENTS, else ~/Belgeler, else ~); created when missing.
QString CiktiDizini();

inline const char* const kDosyaAdi = "Velmora.xml";
inline const char* const kHataDosyasi = "HataliKayit.txt";
inline const char* const kKontrolDosyasi = "MaliyeBilgiKontrol.csv";
inline const char* const kKurUyarisi = "Tanımsız Döviz var, lütfen tanımladıktan sonra çalıştırın.";

struct Istek {
  QDate bas, son;    // the two ends belong to the period
  double limit = 0;  // whole new lira, LimitKurali applied
  QDate bugun;       // the date written as the file's date
  QString klasor;    // output folder
};

struct Sonuc {
  int kayitToplam = 0;  // rows of the main query, in the head of the file
  int yapilan = 0;      // rows written
  double odverToplam = 0, odtahToplam = 0;
  QString ozet;              // the summary, lines joined by CR LF
  QStringList hatalar;       // faulty tax numbers and provinces, in the order found
  QStringList kurUyarilari;  // contracts whose rate is missing
  QString dosya;             // the transfer file written
  QString semaHatasi;        // the first fault against our schema; empty when valid
};

// A file could not be written; nothing of the run is left behind, and an
// earlier file of the same name stands as it was.
class DosyaHatasi : public std::runtime_error {
 public:
  explicit DosyaHatasi(const QString& metin)
      : std::runtime_error(metin.toStdString()), metin_(metin) {}
  const QString& metin() const { return metin_; }

 private:
  QString metin_;
};

struct Geri {
  // After every row, with the rows written so far.
  std::function<void(int)> ilerleme;
  // Once the last row is written, with their number, before the file is
  // put together and checked.
  std::function<void(int)> yazildi;
  // A contract without a usable rate, as it is met; the run goes on after it.
  std::function<void(const QString&)> kurUyarisi;
};

// The main query: the factor, start, end and limit of the contracts, then
// the same of the lines, as bound values (AnaSorguDegerleri).
QString AnaSorgu();
QVariantList AnaSorguDegerleri(const Istek& istek);
// The rows of the main query without the customer's columns (its 2nd and
// 18th to 24th), in its order, with the same values, and without the join
// to the customer: the file is written from these, each customer read once.
QString AkisSorgusu();

// Runs the transfer on `b` and writes Velmora.xml (and, when there are
// faults, HataliKayit.txt) into the request's folder, then checks the file
// against our schema; a file that fails is kept, and the result says why.
// Throws db::Hata when the engine fails and DosyaHatasi when a file can't be
// written.
Sonuc Hazirla(db::Baglanti& b, const Istek& istek, const Geri& geri = {});

// The rows of the main query for the control list's grid, read after a run.
db::Kayitlar KontrolSatirlari(db::Baglanti& b, const Istek& istek);

// The control list: a line of column names, then a line per row, every value
// followed by a tab, lines ending in CR LF; nothing without rows.
QByteArray KontrolListesi(const db::Kayitlar& rs);
// Writes it as MaliyeBilgiKontrol.csv into `klasor`; throws DosyaHatasi.
QString KontrolListesiYaz(const db::Kayitlar& rs, const QString& klasor);
// The same from the main query, a row at a time, for the command line.
QString KontrolListesiYaz(db::Baglanti& b, const Istek& istek, const QString& klasor);

}  // namespace aktarim
