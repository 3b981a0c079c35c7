#pragma once
// The customer search: finds customers by name or by address and hands the
// chosen one to the customer register.

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Izgara.h"
#include "db/Kayitlar.h"

class frmMusteri;

class frmBul : public QDialog {
  Q_OBJECT

 public:
  // `musteri` is the register that gets the chosen customer.
  explicit frmBul(frmMusteri* musteri, QWidget* ust = nullptr);
  ~frmBul() override;

  QComboBox* cmbKriter;
  QLineEdit* txtAranacak;
  QCheckBox* chkAraTip;
  QPushButton* cmdAra;
  QLabel* lblcount;
  ekran::Izgara* grdSonuc;
  QPushButton *cmdSec, *cmdVazgec;

  // The hits of the last search.
  db::Kayitlar rsBulunan;

  void cmdAra_Click();
  void cmdSec_Click();
  void cmdVazgec_Click();
  void grdSonuc_DblClick();

  // The text for a LIKE with ESCAPE '\': what is typed stands for itself.
  static QString Desen(const QString& aranan, bool icinde);

 private:
  void SutunlariKur(bool adres);

  frmMusteri* musteri_;
  bool aramaVar_ = false;
};
