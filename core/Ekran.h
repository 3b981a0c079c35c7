#pragma once
// Conventions every screen shares: checks on leaving a field, focus and key
// filters, sizing and centring, waiting, and the registry through which the
// main window opens screens by name.

#include <QPointer>
#include <QString>
#include <QWidget>
#include <functional>

class QLineEdit;
class QComboBox;

namespace ekran {

// --- leaving a field
// Gives `kontrol` a check that runs when the focus leaves it. When the check
// returns false the focus goes back to the field, its text is selected, and
// the click that tried to take the focus away is dropped.
void AyrilirkenKontrol(QWidget* kontrol, std::function<bool()> kontrolEt);
// Marks a control (a cancel button, a "?" button) that may take the focus
// without triggering the check of the field being left.
void KontrolTetiklemez(QWidget* kontrol);
// Runs the check of `kontrol` now, as leaving it would; true when it passes
// or it has none.
bool KontrolCalistir(QWidget* kontrol);
// A read-only box holds nothing the clerk typed: its check never runs. Locked
// by SaltOkunur it takes no focus either, by Tab or by a click, so that it can
// never hold the focus; unlocked, it takes the focus as it did before.
void SaltOkunur(QLineEdit* kutu, bool kilitli);

// --- focus and keys
// Selects the whole text of a box (MetinSec); the variant by name finds the
// control among the screen's children.
void MetinSec(QLineEdit* kutu);
void MetinSec(QWidget* ekran, const QString& kontrolAdi);
// Every time the box gets the focus its text is selected.
void MetinSecKur(QLineEdit* kutu);
// Typed letters become capitals by Turkish rules.
void BuyukHarfKur(QLineEdit* kutu);
// Only digits, "." and "," (and back-space, Esc) reach the box.
void SayiTusuKur(QLineEdit* kutu);
// A date box: Esc empties it.
void TarihKutusuKur(QLineEdit* kutu);
// Completes a typed date on leaving a contract-screen date box; shows
// "Hatalı Tarih Bilgisi." and returns false when it can't.
bool TarihDuzelt(QLineEdit* kutu);
// The date box of the collection, report and additional invoice screens: the
// text is selected on focus, Esc empties it, and on leaving a text that is
// no date, or one before the year 2000, gives "Hatalı Tarih" ("Dikkat",
// critical) and keeps the focus; a date is rewritten as dd.MM.yyyy and an
// empty box passes.
void TarihKutusu(QLineEdit* kutu);
bool TarihKutusuKontrol(QLineEdit* kutu);
// Enter in the box runs `islem` (lists that act on Enter).
void EnterKur(QWidget* kutu, std::function<void()> islem);

// --- windows
// Twips (1440 to the inch) in pixels of the screen.
int Twip(int twip);
// Sets the screen's size in twips and centres it in the main window, less
// 200 twips to the left and 400 up (FormOrtala). With `kaydirmaYok` the plain
// halves are used.
void FormOrtala(QWidget* ekran, int yukseklik, int genislik, bool kaydirmaYok = false);

// --- waiting
// A note in the middle of the main window while a long step of the start-up
// runs, before any screen is there to show progress; gone when the object
// goes. Nothing is shown without a visible main window.
class BeklemeNotu {
 public:
  explicit BeklemeNotu(const QString& metin);
  ~BeklemeNotu();
  BeklemeNotu(const BeklemeNotu&) = delete;
  BeklemeNotu& operator=(const BeklemeNotu&) = delete;

 private:
  QPointer<QWidget> not_;
};

// Keeps the interface alive for `ms` milliseconds. Tests make it instant.
void Bekle(int ms);
void BekleAnlik(bool anlik);

// --- opening screens by name
// Screens register a maker; the main window opens each one once and brings
// an open one to the front.
using Uretici = std::function<QWidget*()>;
void Kaydet(const QString& ad, Uretici uretici);
bool KayitliMi(const QString& ad);
// Opens (or brings forward) the screen; nullptr when no such screen exists or
// the engine failed while it was made or loaded (the clerk has been told).
QWidget* Ac(const QString& ad);
// The open screen of that name, or nullptr.
QWidget* Acik(const QString& ad);
// Whether any screen is open.
bool AcikEkranVar();
// Closes every open screen, as its close command would (before the
// connection under them goes away). False when one refused to close (a job
// still running in it); the others are closed all the same.
bool EkranlariKapat();

// Menu commands that are no screen (maintenance, upgrades) register here.
void KomutKaydet(const QString& ad, std::function<void()> komut);
bool KomutVar(const QString& ad);
// Runs the command; a failure of the engine is shown, never thrown on.
void KomutCalistir(const QString& ad);
// A name that stands for a command or a screen: whether it exists, and
// carrying it out (the command runs, the screen opens).
bool Hazir(const QString& ad);
void AcVeyaCalistir(const QString& ad);

// Where child screens live; set by the main window, a plain top-level window
// when there is none (tests).
using Yerlestirici = std::function<void(QWidget*)>;
void YerlestiriciKur(Yerlestirici y, std::function<QWidget*()> anaPencere);
QWidget* AnaPencere();

}  // namespace ekran
