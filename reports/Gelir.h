#pragma once
// The income of a period: its contracts with face total, interest, tax and
// the amount paid out, and their sums. Widget-free.

#include <QString>
#include <QVariantList>

#include "db/Kayitlar.h"

namespace gelir {

// Bounds on the contract date as the clerk typed them (dd.MM.yyyy or what
// the regional reader takes; empty: none).
struct Sorgu {
  QString metin;
  QVariantList deger;
};
Sorgu SorguKur(const QString& bas, const QString& son);

struct Toplamlar {
  qint64 adet = 0;
  double Tutar = 0, FaizTutar = 0, Odenecek2 = 0, BMVergisi = 0;
};
// A contract without an invoice has no tax and counts 0 there.
Toplamlar Topla(const db::Kayitlar& rs);

}  // namespace gelir
