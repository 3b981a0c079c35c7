#pragma once
// The papers of one customer or of all of them, in four views, with count,
// total and averages. It only reads.

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

namespace master {
class MusteriListesi;
}

class frmMusteriBilgi : public ekran::Form {
  Q_OBJECT

 public:
  frmMusteriBilgi();
  // The grid lets go of the rows before they go.
  ~frmMusteriBilgi() override;

  void Form_Load() override;
  void Goster(int tip);
  void Gorunum(bool goster);
  bool cmbAd_Validate();
  void cmdCsv_Click();

  QComboBox* cmbAd;
  QLineEdit *txtMusteriNo, *txtBastar, *txtSonTar;
  QLabel *lblRaporTip, *lblDetayDurum;
  ekran::Izgara* dGridDetay;
  QLineEdit *txtAdet, *txtToplam;
  QLabel* lblTutar[2];
  QPushButton *cmdBilgiGoster, *cmdRisk, *cmdKarsiliksiz, *cmdOdenen, *cmdCsv, *cmdExit;

  db::Kayitlar rsMusteri, rsBelge;

  // The list stops here however many customers there are.
  static constexpr int kMusteriSiniri = 30002;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override;
  void Form_Unload() override;

 private:
  master::MusteriListesi* musteriler_;
};

namespace reports {
void MusteriBilgiEkraniKaydet();
}
