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

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <optional>

#include "contract/SozlesOrtak.h"
#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

namespace master {
class MusteriListesi;
}

class frmHesap : public ekran::Form {
  Q_OBJECT

 public:
  explicit frmHesap(QWidget* ust = nullptr);
  ~frmHesap() override;

  static constexpr int kGenislik = 10200;  // twips, for FormOrtala
  static constexpr int kYukseklik = 7200;
  // cmbAd takes at most this many customers, as on the contract screen.
  static constexpr int kMusteriSiniri = 30002;

  // --- the customer
  QGroupBox* frmSearch;
  QLabel* lblSoyadAd;
  QComboBox* cmbAd;         // item data: MusteriNo
  QLineEdit* txtMusteriNo;  // invisible

  // --- the calculation
  QLineEdit *txtTarih, *txtFaizOran, *txtValor, *txtMasraf;
  QLineEdit *txtTutar, *txtFaizTutar, *txtVergiProv, *txtOdenecek;
  QLabel* lblFaizGun;

  // --- the papers: a cheque without drawer, bank or number each
  QGroupBox* frmCek;
  QLineEdit *txtVade, *txtGun, *txtMeblag;
  QPushButton *cmdDetayEkle, *cmdVazgec, *cmdDetaySil, *cmdCekDuzelt;
  ekran::Izgara* dGridDetay;

  // --- commands
  QPushButton *cmdNew, *cmdBordro, *cmdExit;

  // --- state, as on the contract screen
  qint32 SozlesmeID = 0;  // 1 while a calculation is on screen, 0 when emptied
  int KayitDurum = 0;     // 0 at rest, 2 during cmdNew and HesapKaydet, 1 after HesapDuzelt
  int DetayDurum = 3;     // 3 a new line is typed, 1 a stored line is changed
  qint64 ilaveGun = 0;
  bool Hesapla = true;
  QString GunYazisi;
  double Odenecek = 0;
  qint64 DetaySayisi = 0;
  qint32 GirisNo = 0;  // the stored line taken into the entry
  // --- and of its own
  double TahsilMasrafi = 0;  // the fee of the whole calculation: fee per paper × papers
  double BMVergisi = 0;      // the tax: interest × faiz::kBMVergisiOrani (5 %)
  double KomisyonTutar = 0;  // stays 0

  std::optional<db::Kayitlar> rsSozlesme;  // the scratch record of Hesap
  db::Kayitlar rsDetay;                    // its lines, bound to dGridDetay
  db::Kayitlar rsMusteri;                  // customers behind cmbAd, in number order

  // The mode the screen was loaded in (the contract screen's last opening).
  bool MusteriBazinda() const { return musteriBazinda_; }

  void Form_Load() override;

  // --- routines
  void Goster();
  void bosalt();
  void KontrolText(bool Durum);
  void KontrolButon(const QString& Mod);
  void Gorunum(bool Durum);
  void MusteriBul();
  bool HesapKaydet();
  void HesapDuzelt();
  void TutarHesap();
  void HesaplaKilit();
  void CekBosalt();

  // --- handlers
  void cmbAd_GotFocus();
  bool cmbAd_Validate();  // false keeps the focus in cmbAd
  void txtTarih_GotFocus();
  bool txtTarih_Validate();
  bool txtValor_Validate();
  bool txtMasraf_Validate();
  void cmdNew_Click();
  void cmdBordro_Click();
  void cmdExit_Click();
  void cmdDetayEkle_Click();
  void dGridDetay_DblClick();
  void cmdCekDuzelt_Click();
  void cmdDetaySil_Click();
  void cmdVazgec_Click();

 protected:
  void Form_Unload() override;
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

  master::MusteriListesi* musteriler_;
  QList<QLabel*> etiketler_;
  bool musteriBazinda_ = false;
};

namespace contract {
// Registers frmHesap for the main window ("Hesaplama Ekranı").
void HesapEkraniKaydet();
}  // namespace contract
