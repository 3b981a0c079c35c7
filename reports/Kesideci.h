#pragma once
// Exposure to drawers: drawers found by part of their name, and every paper
// of a set of drawers on the books, whoever the customer. Widget-free.

#include <QDate>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVector>

#include "reports/Csv.h"

namespace kesideci {

struct Sorgu {
  QString metin;
  QVariantList deger;
};

// The drawers of every paper whose name begins with (`basta`) or holds the
// text, as typed: "'", "%" and "_" are plain characters, case by Turkish
// rules. One row a paper, repeats and all; an empty text finds every drawer.
Sorgu AramaSorgusu(const QString& metin, bool basta);

// The papers of the marked drawers (a set: a drawer marked twice counts
// once), bounded on the payment date when dates are given (dd.MM.yyyy as
// typed; empty: none), by maturity. The contract is found by its series and
// number.
Sorgu BelgeSorgusu(const QStringList& isaretli, const QString& bas, const QString& son);

// Drawers ranked by their bounced papers (count, then amount), each with
// its papers still at risk (paid on a day after `bugun`); only drawers with a
// bounced paper, by the name as it is stored.
Sorgu RiskSorgusu(const QDate& bugun);
// Its columns as the ranking's grid shows them.
QVector<csv::Sutun> RiskSutunlari();

}  // namespace kesideci
