#pragma once
// The calculation worksheet: the clerk tries a loan out before it exists. He
// picks a customer, gives a date, a rate and a fee per paper, enters the papers
// by due date and amount, and reads interest, tax, fee and payable amount; the
// bordro shows them on paper. Nothing here is a contract.
//
// The twin of the contract screen (frmSozles): the same routine names, the same
// field and day rules (shared through contract/SozlesOrtak.h) and the same
// interest computation (faiz::TutarHesap with the worksheet's step T11), on the
// tables Hesap and HesapDetay. They hold one scratch record, SozlesmeID 1, and
// its lines; the next new calculation wipes both. So the last calculation comes
// back each time the screen is opened.
//
// Unlike the contract screen the worksheet is open for typing at all times:
// KontrolText, KontrolButon and Gorunum ignore what they are given.
//
// A calculation needs a customer: its bordro joins the customer register. With
// MusteriBazinda on, cmdNew asks for one first; with it off, a calculation
// without one is refused by the save (HesapKaydet) with its message and reason
// "Müşteri Seçilmemiş", before anything is written, as the contract's save
// refuses a contract without one.

#include "contract/SozlesTemel.h"

// The controls and state it shares with the contract screen are declared in
// contract::SozlesTemel. Here SozlesmeID is 1 while a calculation is on
// screen; KayitDurum is 2 during cmdNew and HesapKaydet and 1 after
// HesapDuzelt. The papers are cheques without drawer, bank or number each.
class frmHesap : public contract::SozlesTemel {
  Q_OBJECT

 public:
  explicit frmHesap(QWidget* ust = nullptr);

  // --- the calculation
  QLineEdit *txtMasraf, *txtVergiProv;

  // --- state of its own
  double TahsilMasrafi = 0;  // the fee of the whole calculation: fee per paper × papers
  double BMVergisi = 0;      // the tax: interest × faiz::kBMVergisiOrani (5 %)
  double KomisyonTutar = 0;  // stays 0
  // rsSozlesme holds the scratch record of Hesap; MusteriBazinda() is the
  // contract screen's last opening.

  void Form_Load() override;

  // --- routines
  void Goster();
  void bosalt();
  void KontrolText(bool Durum);
  void KontrolButon(const QString& Mod);
  void Gorunum(bool Durum);
  bool HesapKaydet();
  void HesapDuzelt();
  void TutarHesap();
  void CekBosalt();

  // --- handlers
  void cmbAd_GotFocus();
  void txtTarih_GotFocus();
  bool txtMasraf_Validate();
  void cmdNew_Click();
  void cmdBordro_Click();
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
  // rsDetay with the grid's query (with the day column), or with all columns
  // of the lines (the table holds this calculation's only).
  void DetayAc();
  void DetayDuzAc();
  void DetayBagla();
  // Takes the current row of rsDetay into the entry fields.
  void SatiriAl();
  // The checks of cmdDetayEkle in order; false after the message.
  bool DetayKontrol();
  // Writes the line of the entry (insert or update).
  void DetayYaz();
  // Writes the scratch record anew (delete and insert in one transaction).
  void HesapYaz();
};

namespace contract {
// Registers frmHesap for the main window ("Hesaplama Ekranı").
void HesapEkraniKaydet();
}  // namespace contract
