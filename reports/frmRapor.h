#pragma once
// The income of a period: its contracts with face total, interest, tax and
// what was paid out, the sums under the list, and the printed report.

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmRapor : public ekran::Form {
  Q_OBJECT

 public:
  frmRapor();
  // The grid lets go of the rows before they go.
  ~frmRapor() override;

  void Form_Load() override;
  void cmdBilgiGoster_Click();
  void cmdYazdir_Click();
  void cmdCsv_Click();
  void Gorunum(bool goster);
  void dGridDetay_HeadClick(int sutun);

  QLineEdit *txtBastar, *txtSonTar;
  QPushButton *cmdBilgiGoster, *cmdYazdir, *cmdCsv, *cmdExit;
  ekran::Izgara* dGridDetay;
  QLineEdit* txtAdet;
  QLineEdit* txtToplam[4];
  QLabel* Label3[5];

  db::Kayitlar rsGelir;

 protected:
  void Form_Unload() override;

 private:
  bool listeVar_ = false;
};

namespace reports {
void GelirEkraniKaydet();
}
