#pragma once
// The find dialog of the contract screen: finds contracts by series and
// number and hands the one picked back in BulunanSozlesmeID.
//
//   frmSozBul dlg(this);
//   dlg.exec();
//   if (BulunanSozlesmeID == 0) return;  // cancelled; the record on show stays
//   // else find BulunanSozlesmeID in rsSozlesme and show it
//
// A double click on a hit sets BulunanSozlesmeID to its SozlesmeID and closes;
// "Vazgeç" (and Esc) set it to 0; the close box leaves the value of the search
// before, so that the contract found then is found again.

#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QString>
#include <optional>

// The result of the find dialog: the SozlesmeID picked, or 0.
extern qint64 BulunanSozlesmeID;

namespace contract {

// A contract number as the clerk types it: an integer within 32 bits, with
// blanks around it and leading zeros allowed ("007" is 7). When it is none,
// `neden` gets why, as the end of a sentence that names the field
// ("Girilmemiş", "Sayı Değil", ...).
std::optional<qint32> SozlesmeNoOku(const QString& metin, QString* neden = nullptr);

}  // namespace contract

class frmSozBul : public QDialog {
  Q_OBJECT

 public:
  explicit frmSozBul(QWidget* ust = nullptr);

  QLineEdit *txtSeri, *txtSozlesmeNo;
  QListWidget* lstSonuc;  // "Tarih - SozlesmeNo", SozlesmeID as item data (Qt::UserRole)
  QPushButton *OKButton, *CancelButton;

  void OKButton_Click();
  void CancelButton_Click();
  void lstSonuc_DblClick();

 protected:
  void keyPressEvent(QKeyEvent* e) override;
};
