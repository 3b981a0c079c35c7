#pragma once
// Moves a contract to another series and number, with its lines and its
// invoice: all three tables change together or none does.

#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"

class frmNoDegis : public ekran::Form {
  Q_OBJECT

 public:
  frmNoDegis();

  void Form_Load() override;
  void cmdIslem_Click();
  void cmdExit_Click();

  QLineEdit *txtEskiSeri, *txtEski;  // "Eski Sözleşme Numarası:"
  QLineEdit *txtYeniSeri, *txtYeni;  // "Yeni Sözleşme Numarası:"
  QPushButton *cmdIslem, *cmdExit;
};

namespace contract {
// Registers "frmNoDegis" with the screen registry.
void NoDegisEkraniKaydet();
}  // namespace contract
