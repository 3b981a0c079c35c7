// Functions and collation that the engine lacks and the statements of the
// system use: Turkish ordering and case-folding LIKE, Weekday with Sunday 1,
// day differences, and Val.

#include <sqlite3.h>

#include <QDate>
#include <QString>
#include <cmath>

#include "db/Kayitlar.h"

namespace db {

namespace {

QString MetinArg(sqlite3_value* v) {
  const auto* p = reinterpret_cast<const char*>(sqlite3_value_text(v));
  return QString::fromUtf8(p ? p : "", sqlite3_value_bytes(v));
}

int TurkceHarmanla(void*, int n1, const void* a, int n2, const void* b) {
  return TurkceKarsilastir(QString::fromUtf8(static_cast<const char*>(a), n1),
                           QString::fromUtf8(static_cast<const char*>(b), n2));
}

// Matches with % (any run) and _ (one character); `kacis` makes the next
// character plain. Both sides are already upper-cased.
bool Eslesir(const QString& d, int i, const QString& m, int j, QChar kacis) {
  while (j < m.size()) {
    QChar c = m[j];
    if (!kacis.isNull() && c == kacis && j + 1 < m.size()) {
      if (i >= d.size() || d[i] != m[j + 1]) return false;
      ++i;
      j += 2;
      continue;
    }
    if (c == QLatin1Char('%')) {
      while (j < m.size() && m[j] == QLatin1Char('%')) ++j;
      if (j == m.size()) return true;
      for (int k = i; k <= d.size(); ++k)
        if (Eslesir(d, k, m, j, kacis)) return true;
      return false;
    }
    if (i >= d.size()) return false;
    if (c != QLatin1Char('_') && c != d[i]) return false;
    ++i;
    ++j;
  }
  return i == d.size();
}

void Like(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  if (sqlite3_value_type(argv[0]) == SQLITE_NULL || sqlite3_value_type(argv[1]) == SQLITE_NULL)
    return sqlite3_result_null(ctx);
  QChar kacis;
  if (argc == 3) {
    const QString e = MetinArg(argv[2]);
    if (e.size() != 1) {
      sqlite3_result_error(ctx, "ESCAPE tek karakter olmalı", -1);
      return;
    }
    kacis = TurkceBuyuk(e)[0];
  }
  const QString desen = TurkceBuyuk(MetinArg(argv[0]));
  const QString deger = TurkceBuyuk(MetinArg(argv[1]));
  sqlite3_result_int(ctx, Eslesir(deger, 0, desen, 0, kacis) ? 1 : 0);
}

bool TarihOku(sqlite3_value* v, QDate& d) {
  if (sqlite3_value_type(v) == SQLITE_NULL) return false;
  const QString s = MetinArg(v).left(10);
  d = QDate::fromString(s, Qt::ISODate);
  return d.isValid();
}

void Weekday(sqlite3_context* ctx, int, sqlite3_value** argv) {
  QDate d;
  if (!TarihOku(argv[0], d)) return sqlite3_result_null(ctx);
  sqlite3_result_int(ctx, d.dayOfWeek() % 7 + 1);  // Qt: Monday 1 .. Sunday 7
}

// GunFarki(a, b): whole days from a to b, b - a.
void GunFarki(sqlite3_context* ctx, int, sqlite3_value** argv) {
  QDate a, b;
  if (!TarihOku(argv[0], a) || !TarihOku(argv[1], b)) return sqlite3_result_null(ctx);
  sqlite3_result_int64(ctx, a.daysTo(b));
}

// Val: the number at the start of a text, blanks skipped, "." as decimal point.
void Val(sqlite3_context* ctx, int, sqlite3_value** argv) {
  switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
      return sqlite3_result_null(ctx);
    case SQLITE_INTEGER:
      return sqlite3_result_int64(ctx, sqlite3_value_int64(argv[0]));
    case SQLITE_FLOAT:
      return sqlite3_result_double(ctx, sqlite3_value_double(argv[0]));
    default:
      break;
  }
  const QString s = MetinArg(argv[0]);
  QString sayi;
  bool nokta = false;
  for (QChar c : s) {
    if (c == QLatin1Char(' ') || c == QLatin1Char('\t')) continue;
    if ((c == QLatin1Char('-') || c == QLatin1Char('+')) && sayi.isEmpty()) {
      sayi += c;
    } else if (c.isDigit() && c.unicode() < 128) {
      sayi += c;
    } else if (c == QLatin1Char('.') && !nokta) {
      nokta = true;
      sayi += c;
    } else {
      break;
    }
  }
  bool ok = false;
  const double x = sayi.toDouble(&ok);
  if (!ok) return sqlite3_result_int(ctx, 0);
  if (!nokta && std::fabs(x) < 9.2e18)
    sqlite3_result_int64(ctx, static_cast<sqlite3_int64>(x));
  else
    sqlite3_result_double(ctx, x);
}

}  // namespace

void FonksiyonlariKaydet(sqlite3* db) {
  const int bayrak = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  sqlite3_create_collation(db, "TURKCE", SQLITE_UTF8, nullptr, TurkceHarmanla);
  sqlite3_create_function(db, "like", 2, bayrak, nullptr, Like, nullptr, nullptr);
  sqlite3_create_function(db, "like", 3, bayrak, nullptr, Like, nullptr, nullptr);
  sqlite3_create_function(db, "Weekday", 1, bayrak, nullptr, Weekday, nullptr, nullptr);
  sqlite3_create_function(db, "GunFarki", 2, bayrak, nullptr, GunFarki, nullptr, nullptr);
  sqlite3_create_function(db, "Val", 1, bayrak, nullptr, Val, nullptr, nullptr);
}

}  // namespace db
