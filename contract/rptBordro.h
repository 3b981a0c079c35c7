#pragma once
// The bordro of a contract: the papers taken in, line by line, with the days,
// the interest and the payable amount of each line and the totals at the foot.
//
// The contract screen's cmdBordro:
//
//   contract::BordroEtiketleri e;
//   e.Musteri = cmbAd->currentText();
//   e.FaizOran = txtFaizOran->text();
//   e.Seri = Genel::SozlesmeSeri;
//   e.SozlesmeNo = txtSozlesmeNo->text();
//   e.Tarih = txtTarih->text();
//   e.OrtGun = Genel::OrtGun;                     // as the last TutarHesap left it
//   contract::BordroGoster(SozlesmeID, e, this);  // preview, print, PDF
//
// or, without a window, rapor::PdfYaz(contract::rptBordro(contract::BordroVerisi(id), e), yol).
//
// The labels come from what stands on the screen; the figures of the lines
// from what is stored (the contract's Tarih, ilaveGun and FaizOran), worked out
// by the day rule and the interest formula of faiz::, the weekend rule following
// Genel::HaftaSonu.

#include <QDate>
#include <QString>
#include <QVector>
#include <optional>

#include "core/Rapor.h"
#include "db/Kayitlar.h"

namespace contract {

// One paper of the bordro.
struct BordroSatiri {
  QString Tip, Kesideci, Banka, Sube, HesapNo, CekNo;  // a Null is the empty text
  QDate Vadesi;                                        // invalid for a Null
  // The day count of the line; none when it has to be worked out and there is
  // no due date. Then the line has no interest and no payable amount either.
  std::optional<qint64> Gunu;
  std::optional<double> Meblag;    // none for a Null
  std::optional<double> Faiz;      // unrounded
  std::optional<double> Odenecek;  // Meblag - Faiz, unrounded
};

struct Bordro {
  db::Kayitlar kayitlar;           // the statement's rows, in the engine's order
  QVector<BordroSatiri> satirlar;  // the same rows with their figures
  // Sums of the unrounded values over the rows that have one.
  double ToplamMeblag = 0, ToplamFaiz = 0, ToplamOdenecek = 0;
};

// The statement behind BordroVerisi (one bound parameter, the SozlesmeID).
extern const char* const kBordroSorgusu;

// The lines of a contract with their figures. A contract that doesn't exist,
// or whose customer doesn't, gives no rows.
Bordro BordroVerisi(qint64 SozlesmeID);

// What the page header and the footer show besides the lines: the texts of
// the contract screen's fields.
struct BordroEtiketleri {
  QString Musteri;     // cmbAd
  QString FaizOran;    // txtFaizOran
  QString Seri;        // the series of new contracts, Genel::SozlesmeSeri
  QString SozlesmeNo;  // txtSozlesmeNo
  QString Tarih;       // txtTarih
  double OrtGun = 0;   // Genel::OrtGun
};

// The layout, landscape A4, over the data.
rapor::Rapor rptBordro(const Bordro& veri, const BordroEtiketleri& etiketler);

// Builds the bordro of the contract and opens its preview window.
rapor::RaporPenceresi* BordroGoster(qint64 SozlesmeID, const BordroEtiketleri& etiketler,
                                    QWidget* ust = nullptr);

}  // namespace contract
