#pragma once
// What the print streams share: the bytes for a
// dot-matrix printer built line by line, the pieces a line is made of, the
// failure that ends a stream, the refusals that stop a print before it
// starts, and a row of fields by name.
//
// A stream is a computation: it takes rows and settings and gives the exact
// bytes. A line is a byte string in which one character is one byte, as the
// single-byte code pages of the printers have it, so that columns count
// bytes. Text reaches a line in one of two ways: converted (DosKarakter: the
// twelve Turkish letters in the printer's code page 857, the rest in the
// Turkish Windows code page) or plain (all of it in the Windows code page, as
// the original wrote a line it didn't convert).

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QVariant>
#include <optional>

#include "core/Mesaj.h"

namespace db {
class Kayitlar;
}

namespace baski {

// The control bytes of the printers.
inline constexpr char kSikistir = 15;  // condensed printing on
inline constexpr char kNormal = 18;    // condensed printing off
inline constexpr char kSayfa = 12;     // form feed
inline constexpr int kBekleme = 2000;  // ms the printer is left alone (Bekle 2)

// The failure of a stream: a pad to a column that the line
// has already passed, an amount wider than its width, a negative count of
// blanks. Thrown by the pieces below, caught where the stream is built; what
// was written up to there is what the printer gets. `neden` follows
// "Bir Hata Oluştu" and a line break.
struct Hata {
  QString neden;
};

// A print that does not start: the message box of a check (no invoice, no
// row, an amount of 0, no tax number).
struct Red {
  QString metin;
  QString baslik;
  mesaj::Tur tur = mesaj::Tur::Kritik;
};

// One row of a query: fields by name, without regard to case; a field the
// row lacks reads as Null. Of two fields of one name (a join over "*") the
// first counts, as the old record sets found it.
class Kayit {
 public:
  Kayit() = default;
  // The current row of a record set.
  static Kayit Oku(const db::Kayitlar& rs);
  // Every row of a record set, from the first.
  static QList<Kayit> Hepsi(db::Kayitlar rs);

  void Koy(const QString& ad, const QVariant& deger);
  QVariant Deger(const QString& ad) const;
  bool Var(const QString& ad) const { return alanlar_.contains(ad.toLower()); }
  // The field as text: Null is "", a number its plain regional text (4,5), a
  // date column (Tarih, Vadesi) in dd.MM.yyyy.
  QString Metin(const QString& ad) const;

 private:
  QHash<QString, QVariant> alanlar_;  // by lower-case name
};

// A value as text the way the old program turned a field into a string: Null
// "", a whole number its digits, a fraction with the regional decimal sign
// and no groups (1234,5).
QString DuzMetin(const QVariant& v);

// The stream that a printer gets.
struct Sonuc {
  QByteArray baytlar;
  // Offsets in baytlar at which a printer is left alone for kBekleme ms.
  QList<qsizetype> beklemeler;
  // The failure that ended the stream where baytlar ends; none when it ran
  // to its end.
  std::optional<QString> hata;
  // The number of lines written (CR LF counted).
  int SatirSayisi() const;
};

class Akis {
 public:
  // A line and CR LF.
  void Satir(const QByteArray& satir);
  // A line that holds one control byte.
  void Bayt(char b) { Satir(QByteArray(1, b)); }
  // `adet` empty lines; none for 0 or less.
  void Bos(int adet);
  // Bekle 2: the printer gets what stands so far and is left alone.
  void Bekle() { sonuc_.beklemeler << sonuc_.baytlar.size(); }
  int SatirSayisi() const { return satir_; }

  // Runs `yaz`, which writes the stream into this one; a Hata it throws ends
  // the stream there, with its reason behind the number of the line that
  // was being built.
  template <class F>
  static Sonuc Calistir(F&& yaz) {
    Akis a;
    try {
      yaz(a);
    } catch (const Hata& h) {
      a.sonuc_.hata = QStringLiteral("%1. satır: ").arg(a.satir_ + 1) + h.neden;
    }
    return std::move(a.sonuc_);
  }

 private:
  Sonuc sonuc_;
  int satir_ = 0;
};

// --- pieces of a line

// Converted text: DosKarakter.
QByteArray Cevir(const QString& metin);
// Plain text: the Windows code page.
QByteArray Duz(const QString& metin);
// Space(n): n blanks; a Hata for n below 0.
QByteArray Bosluk(int n);
// `n` times the byte `b` (the rules of the instrument block).
inline QByteArray Tekrar(char b, int n) { return QByteArray(n > 0 ? n : 0, b); }
// Pads the line with blanks until it is `sutun` long; a Hata when it is
// longer already.
void Doldur(QByteArray& satir, int sutun);
// SagaDoldur on bytes: cut or pad to exactly `genislik`.
QByteArray SagaDoldur(const QByteArray& s, int genislik);
// Blanks in front so that the text takes exactly `genislik` characters; a
// Hata when it is wider.
QByteArray Genislikte(const QByteArray& metin, int genislik);

// An amount: two decimals, digit groups, halves away from zero; with
// `basSifir` false no leading zero before the decimal sign (,50). Null is
// the empty text.
QString Tutar(const QVariant& deger, bool basSifir);
// A number with `basamak` decimals and digit groups, no leading zero before
// the decimal sign (the "N" rows of the template): 0,50 is ,50 and 0 with no
// decimals is 0.
QString Sayi(double deger, int basamak);

}  // namespace baski
