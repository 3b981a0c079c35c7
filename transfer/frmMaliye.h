#pragma once
// The Ministry transfer of a period: the clerk picks the months and the
// limit, presses one button and gets the file, the faulty tax numbers, the
// summary and the control list.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <functional>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmMaliye : public ekran::Form {
  Q_OBJECT

 public:
  frmMaliye();
  // The grid lets go of the record set before the set goes.
  ~frmMaliye() override;

  void Form_Load() override;
  bool txtLimit_Validate();
  void cmdHazirla_Click();
  void GridDuzenle();
  void cmdCSV_Click();
  void cmdExit_Click();

  QComboBox *cmbAy[2], *cmbYear[2];
  QLineEdit* txtLimit;
  QLabel *lblEtiket[3], *lblAdres, *lblMesaj;
  QPushButton *cmdHazirla, *cmdCSV, *cmdExit;
  ekran::Izgara* DataGrid1;
  db::Kayitlar rsKontrol;

  // Hands the finished file to the desktop's program for it, without
  // waiting; tests put their own in.
  static std::function<void(const QString&)>& DosyaAcici();

 protected:
  // The screen stays open while a run is going: the run repaints and takes
  // the clerk's events, and its rows and labels must outlive it.
  void closeEvent(QCloseEvent* e) override;

 private:
  void Calistir();
  bool calisiyor_ = false;
};

namespace transfer {
void MaliyeEkraniKaydet();
}
