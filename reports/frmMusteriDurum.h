#pragma once
// Every customer's papers in one grid: collected, at risk, bounced and the
// averages. Opening it is the query; a column head sorts it descending.

#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmMusteriDurum : public ekran::Form {
  Q_OBJECT

 public:
  frmMusteriDurum();
  // The grid lets go of the rows before they go.
  ~frmMusteriDurum() override;

  void Form_Load() override;
  void DataGrid1_HeadClick(int sutun);
  void cmdCsv_Click();

  ekran::Izgara* DataGrid1;
  QPushButton *cmdCsv, *cmdExit;
  db::Kayitlar rsDurum;

 protected:
  void Form_Unload() override;
};

namespace reports {
void MusteriDurumEkraniKaydet();
}
