#pragma once
// How far the office is exposed to a drawer: drawers searched by name,
// several marked, and every paper of theirs on the books.

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmKesideciBilgi : public ekran::Form {
  Q_OBJECT

 public:
  frmKesideciBilgi();
  // The grid lets go of the rows before they go.
  ~frmKesideciBilgi() override;

  void Form_Load() override;
  void cmdDoldur_Click();
  void Goster();
  void Gorunum(bool goster);
  void cmdCsv_Click();
  void cmdRiskli_Click();
  void grdRiskli_DblClick();
  void cmdRiskliCsv_Click();

  QLineEdit* txtAranacak;
  QCheckBox* chkBas;
  QPushButton* cmdDoldur;
  QListWidget* lstKesideci;
  QLineEdit *txtBastar, *txtSonTar;
  QPushButton *cmdBilgiGoster, *cmdCsv, *cmdExit;
  // Drawers ranked by their bounced papers; a double click shows a drawer's papers.
  QPushButton *cmdRiskli, *cmdRiskliCsv;
  ekran::Izgara* grdRiskli;
  db::Kayitlar rsRiskli;
  ekran::Izgara* dGridDetay;
  QLineEdit *txtAdet, *txtToplam;
  QLabel* lblTutar[2];

  db::Kayitlar rsBelge;

 private:
  void KesideciYok();
};

namespace reports {
void KesideciEkraniKaydet();
}
