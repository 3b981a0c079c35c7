#pragma once
// What the two invoice screens share: the boxes of the number, the addressee,
// the figures and the amount in words, built and laid out alike; the amount
// boxes, the percent box that selects its first three characters, the boxes
// rewritten as money when left, and the labelled rows of the dialogue.

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>
#include <initializer_list>
#include <optional>
#include <variant>

#include "core/Ekran.h"
#include "core/Koruma.h"
#include "invoice/FaturaBaski.h"
#include "invoice/FaturaHesap.h"

namespace invoice {

// A right-aligned amount box; a read-only one is locked (no focus).
QLineEdit* TutarKutusu(const QString& ad, bool saltOkunur);

// txtBMOran: the focus selects its first three characters.
void IlkUcunuSec(QLineEdit* kutu);

// A box that is rewritten with ParaFormat when the focus leaves it; a text
// that is no number stays as typed (the save tells the clerk).
void ParaAlani(QLineEdit* kutu);

// A command button of the dialogue.
QPushButton* Dugme(const char* ad, const QString& yazi);

// A caption and its box in the next row of the grid.
QLabel* Satir(QGridLayout* g, const QString& baslik, QWidget* alan, int sutun = 0);

// The dialogue both invoices are: the boxes they share are made here, each
// screen adds its own and lays them out with the pieces below.
class FaturaEkrani : public QDialog {
  Q_OBJECT

 public:
  QLineEdit *txtFaturaSeri, *txtFaturaNo;
  QLabel *lblMusteri, *lblAdres, *lblVergi;
  QLineEdit *txtTutar, *txtBMOran, *txtBMVergisi, *txtMasraf, *txtPul, *txtToplamOdeme,
      *txtGenelToplam;
  QLabel *lblPul, *lblYazi;
  QLineEdit* txtMusteriNo;  // hidden, carried for the save
  QPushButton *cmdFatNo, *cmdSave, *cmdYazdir, *cmdExit;

  // An emptied series box takes the office's invoice series again.
  bool txtFaturaSeri_Validate();
  // The tax, the customer's payment, the grand total and the words from the
  // amount, the percent, the fee and the stamp duty; runs on every change once
  // the opening is done.
  void Hesapla();

 protected:
  // `tutarKilitli`: the amount comes from elsewhere and can't be typed.
  FaturaEkrani(const char* ad, const QString& baslik, bool tutarKilitli, QWidget* ust);

  // Series, number and "Fatura No Bul".
  QHBoxLayout* NoSatiri();
  // The customer's name, address and tax office one under the other.
  QVBoxLayout* MusteriSatirlari();
  // The figures; `sozlesmeToplami` stands between the customer's payment and
  // the grand total when given.
  QGridLayout* Rakamlar(const QString& pulBasligi, QLineEdit* sozlesmeToplami = nullptr);
  // The top part, the figures, "Yalnız" and the words, the commands with
  // "Çıkış" on the right.
  void Yerlestir(QLayout* ust, QGridLayout* rakam, std::initializer_list<QPushButton*> komutlar);
  // Fills the three addressee labels from the customer's row, when there is one.
  void MusteriGoster();
  // Puts the next free number into the boxes, or says there is none.
  void NoGoster(const std::optional<qint64>& no);
  // The save's first check: a number must be there.
  bool NoGirildi();
  // The row a save writes, from the boxes both screens have; `ekFatura`
  // chooses the words' ending. The screen adds its own columns.
  fatura::Satir Satiri(bool ekFatura) const;
  // A button runs the screen's command `f`, guarded against engine failures.
  template <class E, class R>
  void Bagla(QPushButton* d, R (E::*f)()) {
    connect(d, &QPushButton::clicked, this,
            [this, f] { ekran::Korumali([this, f] { (static_cast<E*>(this)->*f)(); }); });
  }

  bool yuklendi_ = false;  // Hesapla runs on changes once the opening is done
  // Prints the invoice row in the given layout after the printer question; a
  // row that can't be printed is told instead.
  void SatiriYazdir(const std::variant<baski::Kayit, baski::Red>& satir, fatura::Bicim bicim);

 private:
  bool hesapliyor_ = false;  // Hesapla writing its own boxes
};

// The screen of type T the clerk is in: the one holding the focus, else the
// open one of that name.
template <class T>
T* IcindekiEkran(const QString& ad) {
  for (QWidget* w = QApplication::focusWidget(); w; w = w->parentWidget())
    if (auto* e = qobject_cast<T*>(w)) return e;
  return qobject_cast<T*>(ekran::Acik(ad));
}

}  // namespace invoice
