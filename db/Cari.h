#pragma once
// Every customer's papers added up in one row of MusteriCari, kept by
// triggers as lines and contracts are written, so that the status grid reads
// one row per customer instead of every line on the books.
//
// What a row holds doesn't depend on the day it is read: the papers, their
// amounts, the bounced ones (no payment date) and the days between contract
// and maturity. Which of the others are collected and which at risk depends
// on "now"; the reader takes the few lines paid after it from the payment
// date's index and counts the rest as collected.
//
// Amounts are held in millionths of the currency as whole numbers, so that
// adding and taking away the same line leaves nothing behind however often a
// paper changes.

#include <QString>

namespace db {

class Baglanti;

// The factor between an amount and what MusteriCari holds of it.
inline constexpr double kCariBirim = 1000000.0;

// `alan` as MusteriCari counts it (a whole number of millionths, 0 for Null):
// for the reader's own sums over lines.
QString CariTutar(const QString& alan);

// True when the table and all of its triggers are there.
bool CariOzetVar(Baglanti& b);

// Lays the table and its triggers anew and fills it from the lines on the
// books, in one transaction (a few seconds on a large office).
void CariOzetKur(Baglanti& b);

}  // namespace db
