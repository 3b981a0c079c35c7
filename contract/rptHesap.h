#pragma once
// The worksheet's bordro: the papers of the calculation with their days and
// interest, and at the foot the totals, the tax, the fee and the payable
// amount. The twin of the contract's bordro (rptBordro), on the tables Hesap
// and HesapDetay.
//
// The worksheet's cmdBordro:
//
//   const db::Kayitlar veri =
//       contract::HesapBordroVerisi(BMVergisi, TahsilMasrafi, KomisyonTutar);
//   if (veri.RecordCount() == 0) ...;  // "Bordro Dökebilmek için ..."
//   contract::HesapBordroEtiketleri e;
//   e.Musteri = cmbAd->currentText();
//   e.FaizOran = txtFaizOran->text();
//   e.Tarih = txtTarih->text();
//   e.Odenecek = txtOdenecek->text();
//   e.OrtGun = Genel::OrtGun;  // as the last TutarHesap left it
//   rapor::Goster(contract::rptHesap(veri, e), this);  // preview, print, PDF
//
// The figures of the lines come from what is stored (the record's Tarih,
// ilaveGun and FaizOran), worked out by the statement: rule D and the interest
// formula in SQL through the functions db/ registers, the weekend rule
// following Genel::HaftaSonu. The tax and the fee are the screen's, bound as
// values and the same in every row.

#include <QString>

#include "core/Rapor.h"
#include "db/Kayitlar.h"

namespace contract {

// The statement: three bound values, BMVergisi, TahsilMasrafi and
// KomisyonTutar. Its columns are those of the original's statement (SozlesmeID,
// Musteri, SozlesmeSeri, SozlesmeNo, Tarih, CekNo, Vadesi, Kesideci, Banka,
// Sube, HesapNo, Meblag, Tip, Gunu, Faiz, Odenecek, BMVergisi, TahsilMasrafi,
// KomisyonTutar), its rows in the order of Vadesi. A calculation whose customer
// isn't in the register has no rows.
QString HesapBordroSorgusu();
db::Kayitlar HesapBordroVerisi(double BMVergisi, double TahsilMasrafi, double KomisyonTutar);

// What the page header and the foot show besides the rows: the texts of the
// worksheet's fields.
struct HesapBordroEtiketleri {
  QString Musteri;    // cmbAd
  QString FaizOran;   // txtFaizOran
  QString Tarih;      // txtTarih
  QString Odenecek;   // txtOdenecek (label20)
  double OrtGun = 0;  // Genel::OrtGun (lblOrtGun)
};

// The layout, portrait A4, over the rows.
rapor::Rapor rptHesap(const db::Kayitlar& veri, const HesapBordroEtiketleri& etiketler);

}  // namespace contract
