#pragma once
// The main window: start-up, the whole menu, the background behind the child
// screens, and the place where every child screen opens.

#include <QHash>
#include <QLabel>
#include <QMainWindow>
#include <QVector>

#include "core/Form.h"

class QAction;
class QFrame;
class QMdiArea;
class QMenu;

// The firm's name behind the child screens.
class frmbackground : public QWidget {
  Q_OBJECT

 public:
  explicit frmbackground(QWidget* ust);
  void Form_Load();
  QLabel* Label1;
  QVector<QFrame*> Line1;

 protected:
  void resizeEvent(QResizeEvent* e) override;
};

// The about screen.
class frmhakkinda : public ekran::Form {
  Q_OBJECT

 public:
  frmhakkinda();
  void Form_Load() override;
  QLabel* lblBaslik;
  QLabel* lblVersiyon;
  class QPushButton* Command1;
};

class frmMain : public QMainWindow {
  Q_OBJECT

 public:
  frmMain();
  ~frmMain() override;

  // Start-up steps; false when the window had to be unloaded.
  bool Form_Load();
  // Opens the database file, or creates it on the first start.
  static void VeriTabaniAc();
  // Adds what the reports read to a file made before it (with a note on the
  // window while it runs); a failure leaves the reports only slower.
  static void RaporlariHazirla();
  // Reads the office's row into the globals; throws when it is missing or
  // holds a Null in one of the columns read.
  static void FirmaOku();
  // Reads the firm's row again after the database file changed under the
  // program (a restore), with the title and the background.
  void FirmaYenile();
  // The day's backup on the first start of a day; a failure is told and the
  // start goes on.
  static void GunlukYedek();
  void ArkaPlan();
  // The title the window gets from the firm's name.
  static QString Baslik(const QString& firmaAdi);

  QMdiArea* mdi;
  frmbackground* arka = nullptr;

  QMenu *mnuDosya, *mnuIslem, *mnuRapor, *mnuAbout1;
  QAction *mnuFirma, *mnuAraGuncel, *mnuAyarYedek, *mnuBakim, *mnuGeriYukle, *mnuCikis;
  QAction* mnuMusteri;
  QAction *mnuOdunc, *mnuSozlesmeAll, *mnuHesap, *mnuTahsilat, *mnuSozNoDegis, *mnuKur;
  QAction *mnuMusteriBilgi, *mnuCari, *mnuKesideci, *mnuGelir, *mnuMaliye;
  QAction* mnuAyarlar;
  QAction *mnuAbout, *mnuVersiyon, *mnuYTL, *mnuPulBedeli;

  // Switches on the entries whose screen or command exists; the three that
  // stay off never come on.
  void MenuDurumu();

 protected:
  void resizeEvent(QResizeEvent* e) override;
  bool eventFilter(QObject* o, QEvent* e) override;
  void closeEvent(QCloseEvent* e) override;
  void showEvent(QShowEvent* e) override;

 private:
  QAction* Ekle(QMenu* menu, const char* ad, const QString& baslik, const QString& hedef);
  QAction* Ekle(QMenu* menu, const char* ad, const QString& baslik, std::function<void()> is);
  void EkranYerlestir(QWidget* w);
  QHash<QAction*, QString> hedef_;  // screen or command each entry opens
  QVector<QAction*> kapali_;        // switched off for good
};
