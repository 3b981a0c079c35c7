#pragma once
// Val: the number at the start of a text. The one reader of leading numbers:
// the engine's function Val, the numbers of the settings file, the day and
// valor fields of the contract.

#include <QStringView>
#include <QtGlobal>
#include <string_view>

namespace db {

struct ValSonucu {
  bool tamSayi = true;  // no decimal point and no exponent, and within 64 bits
  qint64 tam = 0;
  double deger = 0;
};

// Blanks are skipped wherever they stand, one sign may lead, "." is the
// decimal point, an exponent counts when digits follow it; reading stops at
// the first character that can't continue the number. No number gives 0.
ValSonucu ValOku(std::string_view metin);
double Val(QStringView metin);

}  // namespace db
