#pragma once
// A database of the shape an earlier version delivered: no worksheet tables,
// no stamp fee, no old-lira columns, and an older SozlesmePrint.

#include "db/Baglanti.h"

inline void EskiSekleGetir(db::Baglanti& b) {
  b.Calistir(
      "DROP VIEW SozlesmePrint; DROP TABLE Hesap; DROP TABLE HesapDetay;"
      "ALTER TABLE Fatura DROP COLUMN PulBedeli;"
      "ALTER TABLE Fatura DROP COLUMN TutarTL; ALTER TABLE Fatura DROP COLUMN BMVergisiTL;"
      "ALTER TABLE Fatura DROP COLUMN TahsilMasrafiTL;"
      "ALTER TABLE Fatura DROP COLUMN ToplamMasrafTL; ALTER TABLE Fatura DROP COLUMN ToplamTutarTL;"
      "ALTER TABLE Sozlesme DROP COLUMN TutarTL; ALTER TABLE Sozlesme DROP COLUMN FaizTutarTL;"
      "ALTER TABLE SozlesmeDetay DROP COLUMN MeblagTL;"
      "CREATE VIEW SozlesmePrint AS SELECT SozlesmeNo FROM Sozlesme");
}
