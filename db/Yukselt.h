#pragma once
// Bringing a database of an earlier shape forward: the worksheet's tables and
// the views, the stamp fee of invoices, and the move from the old lira to the
// new one. Each command runs in one transaction, so that a crash or a power
// cut half way leaves the file as it was; inside it, a statement that fails is
// undone on its own and passed over, and the next one runs.

#include <QString>
#include <functional>

namespace db {

class Baglanti;

bool TabloVar(Baglanti& b, const QString& tablo);
bool SutunVar(Baglanti& b, const QString& tablo, const QString& sutun);

// Told the title of each step before it runs.
using Ilerleme = std::function<void(const QString& baslik)>;

// Lays the views anew and creates Hesap and HesapDetay. False when they could
// not be created (they exist already): the views are laid anew all the same.
bool VersiyonYukselt(Baglanti& b);

// Whether Fatura still lacks the stamp fee column.
bool PulBedeliEksik(Baglanti& b);
// Adds Fatura.PulBedeli and sets it to 0 in every row. Returns how many
// statements failed and were passed over.
int PulBedeliEkle(Baglanti& b, const Ilerleme& ilerleme = {});

// Whether the old-lira columns are still to be added (SozlesmeDetay has no
// MeblagTL).
bool YtlYapisiEksik(Baglanti& b);
// Adds the missing old-lira columns (when `yapiDegisecek`), then copies every
// amount above 250000 (old lira) into them and divides it by 1000000. Returns how many
// statements failed and were passed over.
int YtlDonustur(Baglanti& b, bool yapiDegisecek, const Ilerleme& ilerleme = {});

}  // namespace db
