#pragma once
// The papers of one customer, or of all, in four views (all, at risk,
// bounced, paid), with their count, total and averages. Widget-free.

#include <QDate>
#include <QString>
#include <QVariantList>

#include "db/Kayitlar.h"

namespace musteribilgi {

enum Gorunum { Tum = 0, Risk = 1, Karsiliksiz = 2, Odenen = 3 };

struct Secim {
  qint64 musteriNo = 0;  // 0: all customers
  Gorunum tip = Tum;
  // The view "all" only: bounds on Odenmesi as the clerk typed them (empty:
  // none). Texts the regional reader can't read bound nothing.
  QString bas, son;
  QDate bugun;  // read once by the caller, so that one list has one "now"
};

struct Sorgu {
  QString metin;
  QVariantList deger;
  QString baslik;  // lblRaporTip
};
Sorgu SorguKur(const Secim& s);

struct Ozet {
  qint64 adet = 0;
  double toplam = 0;
  qint64 gunToplam = 0;
};
Ozet Ozetle(const db::Kayitlar& rs);

// txtToplam: two decimals with groups, no leading zero.
QString ToplamYazisi(const Ozet& o);
// lblDetayDurum: the average amount and day, or empty without papers.
QString OrtalamaYazisi(const Ozet& o);

}  // namespace musteribilgi
