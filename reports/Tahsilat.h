#pragma once
// The list of papers on the collection screen: which lines a choice of
// maturity range, bank, drawer and paper number selects, and their totals by
// state. Widget-free, so that the command line lists the same lines.

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <optional>

namespace tahsilat {

// What the clerk chose. Dates are the screen's dd.MM.yyyy texts (empty: no
// bound on that side); an empty bank stands for "Hepsi". A drawer or number
// is a part of the stored text, found as typed: "'", "%" and "_" are plain
// characters; a text of blanks only selects nothing by itself.
struct Secim {
  QString bas, son;
  QString banka;
  QString kesideci;
  QString cekNo;
};

// A condition with its values, to stand after a FROM over SozlesmeDetay or
// CekDurum (both have the columns it names). Empty, or starting with " WHERE ".
struct Kosul {
  QString metin;
  QVariantList deger;
};
Kosul KosulKur(const Secim& s);

// The statement of the list in maturity order (ties by entry), and of the
// totals by state; each takes the values of KosulKur.
QString ListeSorgusu(const Kosul& k);
QString ToplamSorgusu(const Kosul& k);

// The statement of one line of the list, by its GirisNo: what a state change
// reads again instead of the whole list.
QString SatirSorgusu();

// The columns of the list, in the order they are shown.
extern const char* const kListeAlanlari;

// Totals by state: lines with a date in Odenmesi, and bounced lines (Null).
// A group without lines has no value.
struct Grup {
  qint64 adet = 0;
  double tutar = 0;
};
struct Toplamlar {
  std::optional<Grup> odenen, karsiliksiz;
};
Toplamlar ToplamlariOku(const Kosul& k);

// A total amount as the screen shows it: two decimals with groups and no
// leading zero (0,50 is ",50").
QString TutarYazisi(double tutar);

// The SQL text of a date for the state change: the day the screen's text
// names, or Null for an empty text.
QVariant OdemeDegeri(const QString& ekranTarihi);

// Writes a state: a date (collected, or at risk when it lies ahead) or Null
// (bounced). Nothing else of the line changes. Throws db::Hata.
void DurumYaz(qint64 GirisNo, const QVariant& Odenmesi);

}  // namespace tahsilat
