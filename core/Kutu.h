#pragma once
// How the screens build their boxes: text boxes with a length limit that
// holds for typing only, and lists whose typed text is a key.

#include <QString>

class QComboBox;
class QLineEdit;

namespace ekran {

// A text box named `ad`. With `sinir` above 0 the clerk cannot type it longer
// than that many characters (SinirKur); with `metinSec` its text is selected
// whenever it gets the focus (MetinSecKur).
QLineEdit* Kutu(const QString& ad, int sinir = 0, bool metinSec = true);

// Typing, pasting and the key filters cannot make the text longer than
// `sinir` (what goes beyond is cut), unless the edit leaves it no longer than
// it was: a longer value the program puts in (from the settings file or a
// stored row) is shown whole, stays as it is unless the clerk edits it, and
// can be shortened. Not setMaxLength, which would cut such a value silently.
void SinirKur(QLineEdit* kutu, int sinir);

// An editable list whose text is a key (a customer number or name, a
// currency code): what was typed is never added to the list and never
// completed from it, so Enter looks up exactly what the clerk typed.
void AnahtarListesi(QComboBox* liste);

}  // namespace ekran
