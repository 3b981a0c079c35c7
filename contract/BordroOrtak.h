#pragma once
// The pieces the contract's bordro (rptBordro) and the worksheet's (rptHesap)
// draw alike: the columns by millimetres, the page header with the customer,
// the date, the number and the rate over the heads of the columns, the rules,
// and the label and value rows at the foot.

#include <QRectF>
#include <QString>
#include <initializer_list>

#include "core/Rapor.h"

namespace contract::bordro {

struct Sutun {
  const char* baslik;
  double x, genislik;
  bool sag;  // numbers stand to the right
};

constexpr double kSatir = 5;  // height of a line of text

// The place of a column's text `y` millimetres down its band.
QRectF Yer(const Sutun& s, double y);
// A text aligned as its column wants it.
rapor::Yazi Hizala(rapor::Yazi y, const Sutun& s);
// A horizontal rule.
rapor::Cizgi Cizgi(double x, double y, double genislik, double kalinlik);

// The page header: customer and number on the left (`solGenislik` wide),
// date and rate on the right (from `sagX`, `sagGenislik` wide), "Alınan
// Belgeler:", the heads of the columns, and the rule under them from
// `cizgiX` to the right edge `sagKenar`.
struct Baslik {
  QString Musteri, Tarih, SozlesmeNo, FaizOran;
  double solGenislik, sagX, sagGenislik;
  double cizgiX, sagKenar;
};
void SayfaBasligi(rapor::Bant& b, const Baslik& baslik, std::initializer_list<Sutun> sutunlar);

// Rows of a label and its value at the foot, one under the other.
class DegerSatirlari {
 public:
  DegerSatirlari(rapor::Bant& b, double etiketX, double degerX, double degerGenislik, double y)
      : b_(b), etiketX_(etiketX), degerX_(degerX), degerGenislik_(degerGenislik), y_(y) {}
  void Ekle(const QString& etiket, const rapor::Yazi& deger);

 private:
  rapor::Bant& b_;
  double etiketX_, degerX_, degerGenislik_, y_;
};

}  // namespace contract::bordro
