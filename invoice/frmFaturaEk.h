#pragma once
// The invoice without a contract, "Ek Fatura": a free text and an
// amount for the customer on show in the customer screen, with the figures
// of the contract invoice and its print layout. It always starts empty; a
// saved additional invoice can't be called up again.
//
// A blocking dialogue of frmMusteri, opened only while a customer is on show.

#include "invoice/FaturaOrtak.h"

class frmMusteri;

class frmFaturaEk : public invoice::FaturaEkrani {
  Q_OBJECT

 public:
  explicit frmFaturaEk(frmMusteri *musteri, QWidget *ust = nullptr);

  QLineEdit *txtTarih, *txtAciklama;

  void Form_Load();
  void FatNoBul();
  bool cmdSave_Click();
  void cmdYazdir_Click();
  void cmdExit_Click();
  void cmdFatNo_Click() { FatNoBul(); }

  // FaturaEkYazdir and FaturaEkYazdirSabit; cmdYazdir chooses.
  void FaturaEkYazdir(bool sabit);

 private:
  void Kur();
  frmMusteri *musteri_;
};

namespace invoice {
// Registers the command "frmFaturaEk" that the customer screen's menu entry
// runs: the dialogue for the customer screen the clerk is in.
void FaturaEkEkraniKaydet();
}  // namespace invoice
