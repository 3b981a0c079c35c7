#pragma once
// What the contract screen (frmSozles) and its twin, the calculation worksheet
// (frmHesap), both are: a customer picked in cmbAd, a date, a rate and a valör,
// the three amounts worked out from the lines, and the lines entered by due
// date, days and amount into a grid. The controls and the state they share
// are declared here under the names both screens give them; each screen adds
// its own and keeps its own routines.

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <optional>

#include "contract/SozlesOrtak.h"
#include "core/Ekran.h"
#include "core/Form.h"
#include "core/Izgara.h"
#include "db/Kayitlar.h"

class QHBoxLayout;
class QLayout;

namespace master {
class MusteriListesi;
}

namespace contract {

class SozlesTemel : public ekran::Form {
 public:
  ~SozlesTemel() override;

  static constexpr int kGenislik = 10200;  // twips, for FormOrtala
  static constexpr int kYukseklik = 7200;
  // cmbAd takes at most this many customers.
  static constexpr int kMusteriSiniri = 30002;

  // --- the customer
  QGroupBox* frmSearch;
  QLabel* lblSoyadAd;       // "Soyad, Ad:", the one label that stays when the rest hides
  QComboBox* cmbAd;         // item data: MusteriNo
  QLineEdit* txtMusteriNo;  // invisible

  // --- the figures
  QLineEdit *txtTarih, *txtFaizOran, *txtValor, *txtTutar, *txtFaizTutar, *txtOdenecek;
  QLabel* lblFaizGun;

  // --- the lines
  QGroupBox* frmCek;
  QLineEdit *txtVade, *txtGun, *txtMeblag;
  QPushButton *cmdDetayEkle, *cmdVazgec, *cmdDetaySil, *cmdCekDuzelt;
  ekran::Izgara* dGridDetay;

  // --- commands
  QPushButton *cmdNew, *cmdBordro, *cmdExit;

  // --- state
  qint32 SozlesmeID = 0;  // 0 when the fields were emptied
  int KayitDurum = 0;     // 0 at rest, 1 being changed, 2 new
  int DetayDurum = 3;     // 3 a new line is typed, 1 a stored line is changed
  qint64 ilaveGun = 0;
  bool Hesapla = true;
  QString GunYazisi;
  double Odenecek = 0;
  qint64 DetaySayisi = 0;
  qint32 GirisNo = 0;  // the stored line taken into the entry

  std::optional<db::Kayitlar> rsSozlesme;
  db::Kayitlar rsDetay;    // the lines, bound to dGridDetay
  db::Kayitlar rsMusteri;  // customers behind cmbAd, in number order

  // The mode the screen was loaded in.
  bool MusteriBazinda() const { return musteriBazinda_; }

  // --- routines and handlers both have
  void MusteriBul();
  bool cmbAd_Validate();  // false keeps the focus in cmbAd
  void HesaplaKilit();
  bool txtTarih_Validate();
  bool txtValor_Validate();
  void cmdExit_Click();

 protected:
  explicit SozlesTemel(QWidget* ust);
  void Form_Unload() override;

  // --- building the screen
  // A label that hides and shows with the screen's fields.
  QLabel* Etiket(const QString& yazi);
  // frmSearch with lblSoyadAd and cmbAd in its row, and the hidden
  // txtMusteriNo; the row is returned for what a screen puts after them.
  QHBoxLayout* MusteriCercevesiKur(int harf);
  // frmCek and the line entry's fields and buttons.
  void DetayGirisiKur(int harf);
  // The customer frame, the figures, the line entry, the grid, what stands
  // under the grid and the commands, one under the other.
  void DuzenKur(QLayout* rakamlar, QLayout* izgaraAlti, QLayout* komutlar);
  // The leave checks of cmbAd, txtTarih and the line entry; handlers of the
  // grid, the entry's buttons, cmdNew, cmdBordro and cmdExit.
  template <typename Ekran>
  void OrtakDavranis(Ekran* e) {
    ekran::AyrilirkenKontrol(cmbAd, [e] { return e->cmbAd_Validate(); });
    ekran::AyrilirkenKontrol(txtTarih, [e] { return e->txtTarih_Validate(); });
    ekran::TarihKutusuKur(txtTarih);
    DetayGirisiDavranisi(Giris());
    DetayOlaylariBagla(e);
    KorumaliBagla<Ekran>(e, cmdNew, &Ekran::cmdNew_Click);
    KorumaliBagla<Ekran>(e, cmdBordro, &Ekran::cmdBordro_Click);
    KorumaliBagla<Ekran>(e, cmdExit, &Ekran::cmdExit_Click);
  }
  // The first steps of Form_Load: the mode, the size, and no customer and
  // no day count shown.
  void AcilisHazirla();

  DetayGirisi Giris() const;
  TutarAlanlari Tutarlar() const;

  master::MusteriListesi* musteriler_;
  QList<QLabel*> etiketler_;
  bool musteriBazinda_ = false;
};

}  // namespace contract
