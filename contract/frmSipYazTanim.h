#pragma once
// The print field template, "Sipariş Yazıcı Tanımlama Ekranı":
// the rows of SozlesmeTanim that say where each value of a contract stands
// on the office's paper, listed, added, changed and deleted. Which fields are
// on show follows the kind of row; what is not on show is not saved.
//
// Beyond the original: "Önizleme" draws the contract on show in the contract
// screen (or else the latest contract with an invoice) by the template as it
// stands, and the screen refuses a line or order that is no number.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmSipYazTanim : public ekran::Form {
  Q_OBJECT

 public:
  frmSipYazTanim();
  ~frmSipYazTanim() override;

  ekran::Izgara *DataGrid1;
  QLineEdit *txtSira, *txtSutun, *txtDetay, *txtBoy, *txtDecimal;
  QComboBox *cmbTip, *cmbAlan, *cmbFormat;
  QLabel *lblAlan, *lblFormat, *lblBoy, *lblDecimal;
  QPushButton *cmdEkle, *cmdVazgec, *cmdsil, *cmdCikis, *cmdOnizleme;

  db::Kayitlar rs;
  qint64 ID = 0;  // the row being changed; 0 while adding

  void Form_Load() override;
  void bosalt();
  void cmbTip_Click();
  void DataGrid1_DblClick();
  void cmdEkle_Click();
  void cmdVazgec_Click();
  void cmdsil_Click();
  void cmdCikis_Click();
  void cmdOnizleme_Click();

 protected:
  void Form_Unload() override;

 private:
  void Kur();
  void Oku();
  // The fields on show for the kind chosen in cmbTip.
  void Gorunum();
  // A line or order that is no whole number: the message, the focus there.
  bool SayiKontrol();
};

namespace contract {
// Registers frmSipYazTanim for the settings screen.
void SablonEkraniKaydet();
}  // namespace contract
