#pragma once
// "Yedekten Geri Yükle": the dated backups beside the database, newest first,
// with their dates and sizes; the chosen one replaces the database.

#include <QPushButton>
#include <QTreeWidget>

#include "core/Form.h"

class frmGeriYukle : public ekran::Form {
  Q_OBJECT

 public:
  frmGeriYukle();

  void Form_Load() override;
  // Fills the list from the data folder.
  void Listele();
  void cmdGeriYukle_Click();
  void cmdExit_Click();

  QTreeWidget* lstYedek;  // date, size, file; the path in the row's data
  QPushButton *cmdGeriYukle, *cmdExit;
};
