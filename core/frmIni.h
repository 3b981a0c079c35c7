#pragma once
// The workstation settings screen.

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"

class frmIni : public ekran::Form {
  Q_OBJECT

 public:
  frmIni();

  void Form_Load() override;
  void Form_Activate() override;
  void cmbFatura_Click();
  void cmbSozlesme_Click();
  void cmdKaydet_Click();
  void cmdVazgec_Click();
  void cmdSipTanim_Click();
  // Beyond the original: the latest invoice as it lands on paper with the
  // values typed here, saved or not (the command "FaturaOnizleme" of the
  // invoice part, which reads this screen's boxes).
  void cmdOnizleme_Click();

  QGroupBox *Frame1, *Frame2;
  QComboBox *cmbFatura, *cmbSozlesme;
  QLineEdit *txtFatura, *txtSozlesme;
  QLineEdit *txtBasBosluk, *txtSonBosluk, *txtIsimBas, *txtTarihBas, *txtVergiBas, *txtTarihAtla,
      *txtVergiAtla, *txtTutarSatir, *txtTutarBosluk, *txtDetayAtla, *txtYeniSayfaAtla;
  QCheckBox *chkSayfaBasi, *chkPulBedeli;
  QLineEdit *txtIlave, *txtLimitAdet, *txtDetayBasBosluk;
  QCheckBox *chkHesapla, *chkHaftaSonu, *chkOrtalamaGun, *chkDetayToplam, *chkMasraf;
  QPushButton *cmdSipTanim, *cmdOnizleme;
  QCheckBox *chkIslem, *chkYTL;
  QPushButton *cmdKaydet, *cmdVazgec;

 private:
  void YaziciGoster(QComboBox *liste, QLineEdit *kutu, const QString &deger);
  void YaziciSecildi(QComboBox *liste, QLineEdit *kutu);
};
