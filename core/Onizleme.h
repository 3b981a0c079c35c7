#pragma once
// The form preview: where every character of a print stream lands on the
// pre-printed paper of a dot-matrix printer, drawn on screen from the very
// bytes the printer would get, so that the clerk can tune the offsets of the
// settings and the template without wasting a form.
//
// The printer as the forms were made for it: 10 characters to the inch, 17
// while condensed (byte 15 on, 18 off), six lines to the inch, 66 lines to a
// form of 11 inches, a form feed (12) to the top of the next form, the
// characters in code page 857, so that the Turkish letters of DosKarakter
// show as letters. ESC "-" n underlines; other escape sequences print
// nothing.

#include <QByteArray>
#include <QChar>
#include <QList>
#include <QString>

#include "core/Baski.h"

class QWidget;

namespace onizleme {

inline constexpr int kSayfaSatiri = 66;  // lines of a form
inline constexpr int kBirim = 170;       // units of the head's place to the inch
inline constexpr int kNormalAdim = 17;   // units of a character at 10 to the inch
inline constexpr int kSikisikAdim = 10;  // at 17 to the inch

// One character on paper.
struct Harf {
  int sayfa = 0;  // from 0
  int satir = 0;  // line of its form, from 0
  int yer = 0;    // left edge, in units (kBirim to the inch) from the left margin
  QChar harf;
  bool sikisik = false;
  bool alticizili = false;
  // The column at 10 to the inch (from 1) that the character starts in.
  double Sutun() const { return 1.0 + double(yer) / kNormalAdim; }
};

struct Yerlesim {
  QList<Harf> harfler;  // in the order they print; blanks print nothing
  int sayfaSayisi = 1;  // up to the last form with a character on it
};

// A byte as code page 857 prints it.
QChar Cp857(uchar b);

// Where the bytes land.
Yerlesim Yerlestir(const QByteArray& akis);

// The text of one printed line as it stands on paper, from the first column
// (blanks where nothing printed), for a quick look and for the tests.
QString SatirMetni(const Yerlesim& y, int sayfa, int satir);

// Opens the preview window over `ust`: the pages, and under them the failure
// of the stream, if it had one.
void Goster(const baski::Sonuc& akis, const QString& baslik, QWidget* ust);

}  // namespace onizleme
