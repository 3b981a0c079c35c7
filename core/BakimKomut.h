#pragma once
// The maintenance entries of the "Dosya" menu: they ask, close the screens
// where the connection goes away under them, run the computation and tell
// the clerk how it went.

#include <QString>

namespace bakim {

// Registers mnuBakim, mnuAraGuncel, mnuAyarYedek and the restore screen.
void KomutlariKaydet();

void mnuBakim_Click();
void mnuAraGuncel_Click();
void mnuAyarYedek_Click();

// Restores the database from the backup `yedek` (dated `tarih`, as the
// question names it): refuses a file that is no sound database, asks, closes
// every screen, replaces the file and reopens. True when it was restored.
bool GeriYukle(const QString& yedek, const QString& tarih);

}  // namespace bakim
