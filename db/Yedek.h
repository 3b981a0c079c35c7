#pragma once
// Dated copies of the open database.

#include <QDate>
#include <QString>

namespace db {

class Baglanti;

// Writes a consistent copy of the open database beside it as <base>_DDMMYYYY.db for the given day
// (replacing that day's copy) and returns the copy's path. Throws Hata (with a Turkish-presentable
// text) on failure; the connection stays open and the database untouched either way.
QString TarihliYedekAl(Baglanti& baglanti, const QDate& gun);

}  // namespace db
