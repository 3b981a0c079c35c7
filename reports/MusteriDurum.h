#pragma once
// Every customer's papers in one line: how many, how much, and how they
// stand (collected, at risk, bounced), with the average amount and term.
// Widget-free; the status grid and the command line read the same rows.

#include <QDate>
#include <QVector>

#include "db/Kayitlar.h"
#include "reports/Csv.h"

namespace musteridurum {

// The rows in the order of the customers' names. `bugun` is "now", read
// once by the caller: a paper whose payment date is on or before it is
// collected, after it at risk, without one bounced. Customers without papers
// aren't listed.
db::Kayitlar Oku(const QDate& bugun);

// The columns as the grid shows them: field, caption, format.
QVector<csv::Sutun> Sutunlar();

}  // namespace musteridurum
