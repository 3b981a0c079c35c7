#pragma once
// The customer register: enter, change, delete and walk through customers,
// find one by number or name, print the address label.

#include <QAction>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>

#include "core/Form.h"
#include "db/Kayitlar.h"

namespace master {
class MusteriListesi;
}

class frmMusteri : public ekran::Form {
  Q_OBJECT

 public:
  explicit frmMusteri(QWidget* ust = nullptr);
  ~frmMusteri() override;

  // The lists of numbers and names hold at most this many entries.
  static constexpr int kListeSiniri = 30002;
  // The province lists stand on by default (the 34th entry).
  static constexpr int kVarsayilanIl = 33;

  // --- fields of the record
  QLineEdit *txtMusteriNo, *txtVergiKimlikNo, *txtVergiDairesi, *txtSoyadi, *txtAdi, *txtBabaAdi,
      *txtAdres, *txtIlce, *txtPostaKod, *txtUlkeKod, *txtTCKimlikNo;
  QComboBox *cmbIl, *cmbUyruk, *cmbHukukiBolum, *cmbHukukiYapi, *cmbVekilDurum;
  QGroupBox* Frame1;
  QLineEdit *txtVekilVergiKimlikNo, *txtVekilSoyad, *txtVekilad;

  // --- finding, moving, commands
  QGroupBox* frmSearch;
  QComboBox *cmbNo, *cmbAd;
  QLabel* lblDurum;
  QPushButton *cmdFirst, *cmdPrev, *cmdNext, *cmdLast;
  QPushButton *cmdNew, *cmdEdit, *cmdSave, *cmdCancel, *cmdsil, *cmdExit;
  QPushButton *cmdKodBelirle, *cmdAra, *cmdEtiket;
  QMenuBar* mnuCubuk;
  QAction* mnuFaturaEk;

  // The customers in number order; its current row is the record on show.
  // It holds the numbers only: the record itself is read when it is shown.
  db::Kayitlar rsMusteri;
  // 1 while a new record is being entered.
  quint8 KayitTipi = 0;
  // While 0 the lists' pick handlers do nothing.
  qint16 AramaAcik = -1;

  void Form_Load() override;
  void Form_Activate() override;

  // --- routines
  void Goster();
  void Kontrol(bool Durum);
  void KontrolDurum(const QString& Islem);
  void bosalt();
  void ComboDoldur();
  void KisiBul(qint32 MusteriKod);

  // --- handlers
  void cmbNo_Click();
  void cmbAd_Click();
  void cmbVekilDurum_Click();
  void cmbHukukiBolum_Click();
  // False keeps the focus in the field.
  bool txtMusteriNo_Validate();
  void cmdNew_Click();
  void cmdEdit_Click();
  void cmdCancel_Click();
  void cmdKodBelirle_Click();
  void cmdSave_Click();
  void cmdsil_Click();
  void cmdFirst_Click();
  void cmdPrev_Click();
  void cmdNext_Click();
  void cmdLast_Click();
  void cmdEtiket_Click();
  void cmdAra_Click();
  void mnuFaturaEk_Click();
  void cmdExit_Click();

 protected:
  bool eventFilter(QObject* o, QEvent* e) override;

 private:
  void Kur();
  void IlDoldur();
  void HukukiBolumDoldur();
  void IlSec(int konum);
  // Moves rsMusteri to the customer of that number; false (at EOF) when the
  // text is no number of the set.
  bool NumarayaGit(const QString& no);
  // The customer number of the field, or 0 after telling the clerk what is
  // wrong with it.
  qint64 MusteriNoOku();
  // The picked entry of cmbAd by what is typed there, then cmbAd_Click.
  void cmbAd_Sec();
  // After an edit only one name can have changed: its entry moves to its
  // place in cmbAd instead of both lists being filled again.
  void AdGuncelle(qint64 no, const QString& ad);
  QString ListeAdi(const QVariant& hukukiDurum, const QString& soyadi, const QString& adi) const;

  master::MusteriListesi* noModeli_;
  master::MusteriListesi* adModeli_;
  // What Goster put into the lists' texts: leaving them unchanged is no pick.
  QString gosterilenNo_, gosterilenAd_;
  // The lists hold entries of deleted customers until they are filled again.
  bool listelerEski_ = false;
};

namespace master {
// The customer saved under the key (Aranacak) of a save, which the old engine
// compared without regard to case, by Turkish rules: "IŞIK" is "ışık" but not
// "ISIK". The lowest number when there are several; Null when there is none.
QVariant AyniAnahtarliMusteri(const QString& anahtar);
// Registers frmMusteri for the main window.
void MusteriEkranlariKaydet();
}  // namespace master
