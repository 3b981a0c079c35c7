#pragma once
// Copies of the database file that an office can rely on: dated backups
// beside the database, the compaction of maintenance and the restore from a
// backup. A file only ever takes a real name once it is whole, synced to the
// disk and checked, so that a crash or a power cut in the middle leaves the
// old file under its name and at most a temporary file beside it.

#include <QDate>
#include <QString>
#include <QVector>

#include "db/Baglanti.h"

namespace db {

// How many dated copies stay beside the database; older ones are deleted.
inline constexpr int kSaklananYedek = 30;

// <base>_DDMMYYYY.db beside the database file `yol` (<base> is `yol`
// without ".db").
QString TarihliYedekYolu(const QString& yol, const QDate& gun);
// <base>_new.db: where maintenance writes the compacted file.
QString YeniDosyaYolu(const QString& yol);

struct YedekDosyasi {
  QString yol;
  QDate tarih;
  qint64 boyut = 0;
};
// The dated copies beside the database file `yol`, newest first.
QVector<YedekDosyasi> TarihliYedekler(const QString& yol);
// Deletes the dated copies beyond the newest `kalan`. A copy that can't be
// deleted stays; that loses nothing.
void EskiYedekleriSil(const QString& yol, int kalan = kSaklananYedek);

// Writes a consistent copy of the open database beside it as <base>_DDMMYYYY.db for the given day
// (replacing that day's copy) and returns the copy's path. Throws Hata (with a Turkish-presentable
// text) on failure; the connection stays open and the database untouched either way.
QString TarihliYedekAl(Baglanti& baglanti, const QDate& gun);
// The day's copy unless there is one already; its path, or empty when it was
// there.
QString GunlukYedekAl(Baglanti& baglanti, const QDate& gun);

// Throws Hata unless `dosya` opens as a database of this program (it holds
// the table Firma) and passes the engine's integrity check. Read-only: the
// file is never changed.
void YedekDenetle(const QString& dosya);

// Maintenance: compacts the open database into <base>_new.db (names in the
// Turkish order of the connection's collation), checks the new file, keeps
// the old one as the day's dated copy, puts the new one in its place and
// reopens the connection on it. Returns the dated copy's path. No other
// program may hold the file meanwhile. On failure the old file stays as it
// was, no _new file is left, and the connection is open on the old file
// again (unless the engine refuses even that).
QString Sikistir(Baglanti& baglanti, const QDate& gun);

// Restore: checks `kaynak`, takes the day's copy of the open database, puts a
// checked copy of `kaynak` in the database's place and reopens the connection
// on it. Returns the path of the day's copy of the replaced database. On
// failure the database stays as it was and the connection open on it.
QString GeriYukle(Baglanti& baglanti, const QString& kaynak, const QDate& gun);

}  // namespace db
