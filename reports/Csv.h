#pragma once
// Grids saved as CSV files that a spreadsheet opens cleanly under Turkish
// settings: UTF-8 with a byte-order mark (so the letters survive), ";" between
// fields (the "," is the decimal sign), one line per row ending in CR LF.
//
// The writer takes texts, not values: a grid hands over exactly what it shows
// (numbers already in the Turkish form, dates as dd.MM.yyyy), so the file and
// the screen never disagree.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVector>

#include "db/Kayitlar.h"

namespace csv {

// One field as it stands in the file: quoted when it holds ";", a double
// quote, a line break or a leading or trailing blank (which a spreadsheet
// would drop), quotes inside doubled.
QString Alan(const QString& metin);

// The whole file: the byte-order mark, the captions, then every row.
QByteArray Yaz(const QStringList& basliklar, const QVector<QStringList>& satirlar);

// Writes the bytes to `yol` through a temporary file that replaces it only
// when it was written whole. False, with the reason in `hata`, when it can't.
bool Kaydet(const QString& yol, const QByteArray& veri, QString* hata = nullptr);

// How one column of a record set becomes text in a file, the way a grid
// shows it.
struct Sutun {
  enum class Bicim { Duz, Sayi, Tarih };
  QString alan;    // field name in the record set
  QString baslik;  // caption
  Bicim bicim = Bicim::Duz;
  int basamak = 2;
  bool gruplu = true;
  bool onSifir = true;  // false: 0,50 is written ",50"
};

// The text of a value by its column (Null is empty): numbers rounded half
// away from zero in the regional form, dates dd.MM.yyyy.
QString Metin(const QVariant& deger, const Sutun& sutun);

// Every row of the record set in its present order, the columns as given.
QByteArray Yaz(const db::Kayitlar& rs, const QVector<Sutun>& sutunlar);

}  // namespace csv
