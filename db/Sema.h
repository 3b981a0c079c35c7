#pragma once
// The tables, views and reference data of a new database.

#include <QStringList>
#include <functional>

namespace db {

class Baglanti;

// Creates every table, index and view and fills the reference data, in one
// transaction.
void SemaOlustur(Baglanti& b);

// Creates the worksheet's tables Hesap and HesapDetay; throws when one exists.
void HesapTablolariOlustur(Baglanti& b);

// Lays the three views anew (dropping those that stand), in one transaction.
void GorunumleriKur(Baglanti& b);

// Adds what the reports read to a file made before it was part of the
// schema, in one transaction: their indexes (an index already there is left
// alone; the narrower index one replaces is dropped) and the customers'
// summary with its triggers (laid anew when any piece of it is missing).
// Called on a new file too, so that both get the same.
// `basliyor` is told before anything is created, so that a caller can say
// that a long step runs.
void RaporlariHazirla(Baglanti& b, const std::function<void()>& basliyor = {});

// Puts the delivered print template into SozlesmeTanim when the table is
// empty (a new database, or an office that never had one); true when it did.
bool SablonBossaYukle(Baglanti& b);

// The provinces in traffic-code order (code = position + 1).
const QStringList& Iller();

}  // namespace db
