#pragma once
// The contract invoice: the interest of the contract on show in the
// contract screen becomes one row of Fatura, with BSMV tax, a collection fee
// and stamp duty on top; numbered, saved, deleted and printed.
//
// A blocking dialogue of frmSozles: it reads the contract from that screen's
// fields when it opens and holds nothing else of it. The figures are those
// of invoice/FaturaHesap.h, the stream that of invoice/FaturaBaski.h.
//
//   frmFatura f(sozlesmeEkrani);
//   f.Form_Load();  // may throw db::Hata
//   f.exec();

#include "invoice/FaturaOrtak.h"

class frmSozles;

class frmFatura : public invoice::FaturaEkrani {
  Q_OBJECT

 public:
  explicit frmFatura(frmSozles *sozlesme, QWidget *ust = nullptr);

  QLineEdit *txtTarih, *txtSozlesmeNo, *txtSozlesmeTutar;
  QLineEdit *txtSozlesmeSeri;  // hidden, carried for the save
  QPushButton *cmdsil;

  qint32 SozlesmeID = 0;
  bool FaturaVar = false;

  // The opening steps 1 to 8.
  void Form_Load();
  void FatNoBul();
  // True when the row was written.
  bool cmdSave_Click();
  void cmdsil_Click();
  void cmdYazdir_Click();
  void cmdExit_Click();
  void cmdFatNo_Click() { FatNoBul(); }

  // FaturaYazdir and FaturaYazdirSabit; cmdYazdir chooses.
  void FaturaYazdir(bool sabit);

 private:
  void Kur();
  frmSozles *sozlesme_;
};

namespace invoice {
// Registers the command "frmFatura" that the contract screen's cmdFatura
// runs: the dialogue for the contract screen the clerk is in.
void FaturaEkraniKaydet();
}  // namespace invoice
