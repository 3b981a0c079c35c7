#pragma once
// The contract screen: a loan contract with its cheques and notes, entered,
// browsed, changed, deleted, and sent on to its invoice, print and bordro.
//
// It works in one of two modes, fixed when it is loaded from the global
// Genel::MusteriBazinda: customer by customer (the clerk picks a customer and
// asks for his contracts) or over all contracts in date order.
//
// rsSozlesme holds the keys of the contracts that navigation moves over, in
// their order; the record on show is read from the table each time it is
// shown, so that a set of a few hundred thousand contracts opens at once and a
// save needs no reload unless the order of the set changed.
//
// Commands of other screens it opens when they are there: "frmFatura" (the
// invoice dialog) and "SozlesmeYazdir" (the contract print), each either a
// registered command (ekran::KomutKaydet) or a registered screen
// (ekran::Kaydet); until then their buttons stay greyed.

#include <QCheckBox>
#include <array>

#include "contract/SozlesTemel.h"

// The controls and state it shares with the worksheet (the customer, date,
// rate, valör, amounts, the line entry and grid, cmdNew, cmdBordro, cmdExit)
// are declared in contract::SozlesTemel.
class frmSozles : public contract::SozlesTemel {
  Q_OBJECT

 public:
  explicit frmSozles(QWidget* ust = nullptr);

  // --- the customer
  QPushButton *cmdBilgiGoster, *cmdMusDetay;
  QLineEdit* txtOldSeriNo;  // invisible

  // --- the contract
  QLineEdit* txtSozlesmeNo;
  QGroupBox* Frame1;
  QLineEdit *txtGecikmeOran, *txtIskontoOran;
  QCheckBox* chkHesapla;
  QComboBox* cmbDoviz;
  QLabel* lblToplam;
  QPushButton* cmdSozNoBul;

  // --- the instrument lines
  QComboBox* cmbTip;
  QLineEdit *txtKesideci, *txtBanka, *txtSube, *txtHesapNo, *txtCekNo;

  // --- commands
  QPushButton *cmdEdit, *cmdSave, *cmdCancel, *cmdsil, *cmdFind, *cmdFatura, *cmdYazdir, *cmdFirst,
      *cmdPrev, *cmdNext, *cmdLast;

  // --- state (KayitDurum: 0 browse, 1 contract being changed, 2 new contract)
  QString SeriKod;  // series of the contract on show, two characters
  qint32 EskiSozlesmeNo = 0;
  // The last drawer, bank, branch and account left behind in their fields.
  enum SonDegerAlani { Kesideci, Banka, Sube, HesapNo };
  std::array<QString, 4> SonDeger;

  // rsSozlesme: keys (SozlesmeID) of the contracts navigation moves over;
  // none until the customer-bound screen has been asked for a customer's
  // contracts.

  // An amount as the grid and the entry show it: groups, two decimals, no
  // leading zero (,50).
  static QString MeblagYazisi(double deger);

  void Form_Load() override;

  // --- routines
  void Goster();
  void bosalt();
  void BilgiBul();
  void KontrolText(bool Durum);
  void KontrolButon(const QString& Mod);
  void Gorunum(bool Durum);
  void SozNoBul();
  bool SozlesmeKaydet();
  qint32 YeniSozlesmeID();
  void TutarHesap();
  void CekBosalt();

  // --- handlers of the contract
  void cmbAd_GotFocus();
  void cmdBilgiGoster_Click();
  void cmdMusDetay_Click();
  void cmdNew_Click();
  void cmdSozNoBul_Click();
  void cmdEdit_Click();
  void cmdSave_Click();
  void cmdCancel_Click();
  void cmdsil_Click();
  void cmdFirst_Click();
  void cmdPrev_Click();
  void cmdNext_Click();
  void cmdLast_Click();
  void cmdFind_Click();
  void cmdFatura_Click();
  void cmdYazdir_Click();
  void cmdBordro_Click();
  void chkHesapla_Click();

  // --- handlers of the lines
  void cmbTip_Click();
  void cmbTip_LostFocus();
  void cmdDetayEkle_Click();
  void dGridDetay_DblClick();
  void cmdCekDuzelt_Click();
  void cmdDetaySil_Click();
  void cmdVazgec_Click();

 protected:
  bool eventFilter(QObject* o, QEvent* e) override;

 private:
  void Kur();
  void KurDavranis();
  void MusteriDoldur();
  // Reads the contract at the current position of rsSozlesme; empty when
  // there is none or its row is gone.
  db::Kayitlar KayitOku() const;
  // Moves rsSozlesme to the contract of that key; false (at EOF) if missing.
  bool SozlesmeyeGit(qint32 id);
  // The entry of cmbAd the clerk picked or typed; -1 for none.
  int SeciliMusteri() const;
  // True, after its message, when the contract on show has an invoice.
  bool FaturaVar();
  bool AlanKontrol(QLineEdit* kutu, bool Meblag);
  void OranKontrol(QLineEdit* kutu);
  // A leave check runs only when the clerk leaves a field, not when the
  // screen disables or hides the field that holds the focus.
  static bool Ayriliyor(QWidget* w);

  // --- saving (SozlesmeKaydet in its steps)
  // What a save writes, taken from the fields once its checks have passed.
  struct KayitDegerleri;
  // The checks of the fields in their order; false after the message, with
  // the focus in the field.
  bool KaydetKontrol();
  // The values to write; throws when a field can't give its value.
  KayitDegerleri KayitDegerleriOku();
  // A new contract: written under the next key and shown.
  void SozlesmeEkle(const KayitDegerleri& d);
  // The contract on show changed: written and shown again. The set is read
  // anew only when the change moved the contract in its order.
  void SozlesmeGuncelle(const KayitDegerleri& d);
  // Writes the change, and a new number on to the lines and the invoice, in
  // one transaction; true when the stored date, number or customer changed.
  bool DegisikligiYaz(const KayitDegerleri& d);

  // --- lines
  // Opens rsDetay with the grid's query for the contract on show.
  void DetayAc();
  // Opens rsDetay with all columns of the contract's lines.
  void DetayDuzAc();
  void DetayBagla();
  // Takes the current row of rsDetay into the entry fields.
  void SatiriAl();
  // The checks of cmdDetayEkle in order; false after the message.
  bool DetayKontrol();
  // Writes the line of the entry (insert or update).
  void DetayYaz();
};

namespace contract {
// Registers frmSozles for the main window.
void SozlesmeEkraniKaydet();
}  // namespace contract
