#pragma once
// What the invoice screen tests share: the contract screen's fixture with a
// contract of 1.000.000,00 at 40.000,00 interest, the invoice dialogue
// opened over it, a printer that is a file, and the rows of Fatura.

#include <QFile>
#include <QTimer>
#include <functional>
#include <memory>

#include "invoice/frmFatura.h"
#include "tests/contract/SozlesEkran.h"

namespace test {

class FaturaEkran : public SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Genel::FaturaSeri = QStringLiteral("A");
    Genel::SahipAdi.clear();
    Genel::PrinterFatura = ayarDizini() + QStringLiteral("/fatura.prn");
    Genel::PrinterSozlesme = ayarDizini() + QStringLiteral("/sozlesme.prn");
    // Contract 1, AB 7 of 04.03.2005: one paper of 1.000.000,00; interest typed.
    Sozlesme(1, 7, 12, "2005-03-04", 5, 3, 0);
    Satir(1, "2005-04-04", 1000000);
    Calistir("UPDATE Sozlesme SET Tutar = 1000000, FaizTutar = 40000 WHERE SozlesmeID = 1");
  }
  void TearDown() override {
    fatura_.reset();
    SozlesEkran::TearDown();
  }
  // The contract screen on contract 1 and the invoice dialogue over it.
  frmFatura* FaturaAc() {
    if (!ekran_) Ac(false);
    fatura_ = std::make_unique<frmFatura>(ekran_.get());
    fatura_->show();
    QApplication::setActiveWindow(fatura_.get());
    fatura_->Form_Load();
    Isle();
    return fatura_.get();
  }
  std::unique_ptr<frmFatura> fatura_;
  // The figures on show, in the order of the screen.
  static QString Rakamlar(const frmFatura* f) {
    return Metinler({f->txtTutar, f->txtBMOran, f->txtBMVergisi, f->txtMasraf, f->txtPul,
                     f->txtToplamOdeme, f->txtSozlesmeTutar, f->txtGenelToplam, f->lblYazi});
  }
  static void VergiNo() {
    Calistir(
        "UPDATE Musteri SET VergiDairesi = 'Kavaklıdere', VergiKimlikNo = '1234567890' "
        "WHERE MusteriNo = 12");
  }
  static QString Faturalar() {
    return Tablo(
        "SELECT FaturaSeri, FaturaNo, SozlesmeID, Tutar, BMVergisiYuzde, TahsilMasrafi, "
        "PulBedeli, ToplamMasraf, ToplamTutar FROM Fatura ORDER BY FaturaSeri, FaturaNo");
  }
  // Runs `islem` on the blocking dialogue once one is open (its exec runs
  // the event loop that gets here); gives up after two seconds.
  static void Modalda(std::function<void(QWidget*)> islem) {
    auto* t = new QTimer;
    auto kalan = std::make_shared<int>(200);
    QObject::connect(t, &QTimer::timeout, [t, kalan, islem] {
      QWidget* w = QApplication::activeModalWidget();
      if (w) islem(w);
      if (w || --*kalan == 0) t->deleteLater(), t->stop();
    });
    t->start(10);
  }
  // The dialogue with number `no` typed and saved.
  frmFatura* Kayitli(const QString& no) {
    frmFatura* f = FaturaAc();
    Yaz(f->txtFaturaNo, no);
    EXPECT_TRUE(Bas(f->cmdSave));
    return f;
  }
  static QByteArray Dosya(const QString& yol) {
    QFile f(yol);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
};

}  // namespace test
