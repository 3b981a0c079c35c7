#pragma once
// What the collection screen tests share: contracts and papers put straight
// into the tables, the screen opened as the menu opens it, and a clerk's hands.

#include <QApplication>
#include <QDate>
#include <QDialog>
#include <QTimer>
#include <QtTest/QTest>
#include <functional>
#include <memory>
#include <optional>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "reports/frmTahsilat.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

namespace test {

class TahsilatEkran : public Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    ekran::BekleAnlik(true);
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES (1, 'YILMAZ', 'ALİ', 1)");
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) "
        "VALUES (1, 'AB', 7, 1, ?)",
        {Gun(-60)});
  }
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }

  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  // A day relative to today, as the database keeps it.
  static QString Gun(int fark) { return QDate::currentDate().addDays(fark).toString(Qt::ISODate); }
  static QString Ekran(int fark) { return Genel::TarihYaz(QDate::currentDate().addDays(fark)); }

  struct Cek {
    QString kesideci = "MEHMET KAYA", banka = "ZİRAAT", cekNo = "100";
    int vade = 0;
    std::optional<int> odeme = 0;  // days from today; none: bounced
    double meblag = 100;
    QString tip = "Çek";
  };
  static qint64 Ekle(const Cek& c) {
    Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Kesideci, Banka, "
        "Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag, Doviz) "
        "VALUES (1, 'AB', 7, ?, ?, ?, 'KIZILAY', '55', ?, ?, ?, 0, ?, 'TRL')",
        {c.tip, c.kesideci, c.banka.isNull() ? QVariant() : QVariant(c.banka), c.cekNo, Gun(c.vade),
         c.odeme ? QVariant(Gun(*c.odeme)) : QVariant(), c.meblag});
    return Genel::Baglanti.SonEklenenNo();
  }

  frmTahsilat* Ac() {
    ekran_ = std::make_unique<frmTahsilat>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    Isle();
    return ekran_.get();
  }
  std::unique_ptr<frmTahsilat> ekran_;

  // Into a box as a clerk types: focus, select what stands there, type over.
  static void Yaz(QLineEdit* kutu, const QString& metin) {
    kutu->setFocus();
    Isle();
    QTest::keyClick(kutu, Qt::Key_A, Qt::ControlModifier);
    if (metin.isEmpty())
      QTest::keyClick(kutu, Qt::Key_Delete);
    else
      Tusla(kutu, metin);
  }
  static void Tikla(QWidget* dugme) {
    QTest::mouseClick(dugme, Qt::LeftButton);
    Isle();
  }

  // What the grid shows, a line a row: drawer, cheque number, payment date.
  static QString Liste(frmTahsilat* f) {
    QStringList l;
    const auto* m = f->grdCek->Model();
    const db::Kayitlar* rs = m->Kayit();
    const int kes = rs->AlanNo("Kesideci"), no = rs->AlanNo("CekNo"), od = rs->AlanNo("Odenmesi");
    for (int r = 0; r < m->rowCount(); ++r)
      l << m->Metin(r, kes) + "|" + m->Metin(r, no) + "|" + m->Metin(r, od);
    return l.join('\n');
  }
  static QString Toplamlar(frmTahsilat* f) {
    return QStringList{f->txtTopAdet->text(), f->txtTopTutar->text(), f->txtSizAdet->text(),
                       f->txtSizTutar->text()}
        .join('|');
  }
  static QVariant Odenmesi(qint64 giris) {
    return Genel::Baglanti.Deger("SELECT Odenmesi FROM SozlesmeDetay WHERE GirisNo = ?", {giris});
  }

  // Acts on the payment dialog once it is open; the opening command returns
  // when the dialog closes. A dialog left open by `islem` is cancelled.
  // Returns whether a dialog was seen at all, and what it showed.
  struct Gorulen {
    bool acildi = false;
    QString duyuru, tarih, baslik;
  };
  static Gorulen DiyalogIle(std::function<void()> ac, std::function<void(Dialog*)> islem) {
    auto g = std::make_shared<Gorulen>();
    QTimer::singleShot(0, [g, islem] {
      auto* d = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!d) return;
      g->acildi = true;
      g->duyuru = d->lblDuyuru->text();
      g->tarih = d->txtTarih->text();
      g->baslik = d->windowTitle();
      QApplication::setActiveWindow(d);
      Isle();
      islem(d);
      Isle();
      if (d->isVisible()) d->CancelButton->click();
    });
    ac();
    Isle();
    return *g;
  }
};

}  // namespace test
