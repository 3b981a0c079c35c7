#pragma once
// The papers of all contracts by maturity, with the one way to change the
// state of a paper: Dialog, which answers in this screen's labels.

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmTahsilat : public ekran::Form {
  Q_OBJECT

 public:
  frmTahsilat();
  // The grid lets go of the rows before they go.
  ~frmTahsilat() override;

  void Form_Load() override;
  void cmdListe_Click();
  void grdCek_DblClick();
  void cmdCiftTik_Click();
  void cmdYazdir_Click();
  void cmdCsv_Click();
  void cmdExit_Click();

  QLineEdit* txtTarih[2];
  QComboBox* cmbBanka;
  QLineEdit *txtKesideci, *txtCekNo;
  QLineEdit *txtTopAdet, *txtTopTutar, *txtSizAdet, *txtSizTutar;
  ekran::Izgara* grdCek;
  // The channel to Dialog: what the paper is, its present date, the answer.
  QLabel *lblDuyuru, *lblOdemeTarih, *lblCevap;
  QPushButton *cmdListe, *cmdCiftTik, *cmdYazdir, *cmdCsv, *cmdExit;

  db::Kayitlar rsCek;

 private:
  void Listele();
  void DurumDegistir();
  bool listeVar_ = false;
};

// "Ödeme Bilgisi": a date (collected, or at risk when ahead), "Ödenmedi"
// (bounced) or "Vazgeç", left in frmTahsilat's lblCevap.
class Dialog : public QDialog {
  Q_OBJECT

 public:
  explicit Dialog(frmTahsilat& ust);

  void OKButton_Click();
  void cmdOdenmedi_Click();
  void CancelButton_Click();
  void reject() override;

  QLabel* lblDuyuru;
  QLineEdit* txtTarih;
  QPushButton *OKButton, *cmdOdenmedi, *CancelButton;

 private:
  frmTahsilat& ust_;
};

namespace reports {
void TahsilatEkraniKaydet();
}
