#pragma once
// The rates of foreign-currency business: on opening, every day and currency
// that the contracts and their papers need gets a row in Kur; the clerk fills
// in the rate and cross rate row by row.

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmDovizTanim : public ekran::Form {
  Q_OBJECT

 public:
  frmDovizTanim();
  // The grid lets go of the record set before the set goes.
  ~frmDovizTanim() override;

  void Form_Load() override;
  void Form_Activate() override;
  void DataGrid1_DblClick();
  bool txtKur_Validate();
  bool txtCaprazKur_Validate();
  void cmdSave_Click();
  void cmdExit_Click();

  ekran::Izgara* DataGrid1;
  QLineEdit *txtTarih, *txtKur, *txtCaprazKur;
  QComboBox* cmbDoviz;
  QPushButton *cmdSave, *cmdExit;
  db::Kayitlar rs;

 private:
  bool KurAlani(QLineEdit* kutu);
  void bosalt();
};

namespace master {
// Adds a row with rate 0 for each day and currency of the papers and the
// contracts that Kur lacks; one row for each such pair. Returns the rows added.
int EksikKurlariEkle();
void DovizEkraniKaydet();
}  // namespace master
