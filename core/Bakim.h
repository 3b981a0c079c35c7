#pragma once
// The two maintenance commands that work on the data rather than on the
// file: the customers' search keys, and the copy of the settings and of the
// print template beside the data. No widgets: the menu and the command line
// call them.

#include <QString>

namespace db {
class Baglanti;
}

namespace bakim {

// What the clerk is told when maintenance fails.
inline constexpr const char* kProblem =
    "Bir Problem Oldu, Program Kullanılıyor Olabilir, Çıkıp Tekrar Deneyin";

// Rebuilds every customer's search key (Aranacak) from the three name
// columns; a Null counts as the empty text. All rows change or none.
void AraGuncel(db::Baglanti& b);

// Writes Yedek_Velmora.ini (the values of the settings' globals) and
// SozlesmeTanim.txt (the print template, CR LF lines of 'value'; fields)
// into `dizin`. Throws db::Hata with the system's reason when a file can't
// be written.
void AyarYedekAl(db::Baglanti& b, const QString& dizin);

}  // namespace bakim
