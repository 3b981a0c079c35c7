#pragma once
// Test data for the contract benchmarks: loan contracts over the customers
// that Uretec stored, each with 1 to 22 cheques and notes, their totals
// worked out as the contract screen works them out, and invoices on the older
// ones. Drawn from the Uretec's seeded source, so the same seed gives the
// same database.

#include <QtGlobal>

namespace bench {

// The synthetic office the benchmarks measure on.
inline constexpr int kOfisMusteri = 100000;
inline constexpr int kOfisSozlesme = 300000;
inline constexpr qint64 kOfisSatir = 2000000;

class Uretec;

class SozlesmeUretec {
 public:
  explicit SozlesmeUretec(Uretec& uretec) : u_(uretec) {}

  struct Ozet {
    qint64 sozlesme = 0, satir = 0, fatura = 0;
  };

  // Adds `adet` contracts (series "AB", numbered from 1 again each year, in
  // date order from January 2000 on) with `satir` lines in all, at least one
  // and at most 22 on any contract. The newest tenth has no invoice yet, so
  // that it can still be changed. Needs customers.
  Ozet Sozlesmeler(int adet, qint64 satir);

 private:
  Uretec& u_;
};

}  // namespace bench
