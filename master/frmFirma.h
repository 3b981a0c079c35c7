#pragma once
// The office's own record: name, address, series letters, institution code.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"
#include "db/Kayitlar.h"

class frmFirma : public ekran::Form {
  Q_OBJECT

 public:
  frmFirma();

  void Form_Load() override;
  void Goster();
  void cmbTur_Click();
  void cmdUpdate_Click();
  void cmdCancel_Click();
  void Command1_Click();

  QLineEdit *txtKurulusKod, *txtVergiKimlikNo, *txtSoyadi, *txtAdi, *txtBabaAdi, *txtAdres,
      *txtIlce, *txtPostaKod, *txtFaturaSeri, *txtSozlesmeSeri;
  QComboBox *cmbTur, *cmbIl;
  QLabel *lblSoyadi, *lblAdi, *lblBabaAdi;
  QPushButton *cmdUpdate, *cmdCancel, *Command1;

 private:
  void FirmaAc();
  db::Kayitlar rsFirma;
};

namespace master {
void FirmaEkraniKaydet();
}
