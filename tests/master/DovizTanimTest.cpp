// The rates screen as the clerk meets it: the rows the data needs appear on
// opening, a row is chosen by a double click, rates are typed and saved.

#include <gtest/gtest.h>

#include <QApplication>
#include <QtTest/QTest>
#include <memory>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "master/frmDovizTanim.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

namespace {

class DovizTanim : public test::Ortam {
 protected:
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }

  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  static void Sozlesme(int id, const QString& tarih, const QVariant& doviz) {
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "Doviz) VALUES (?, 'A', ?, 1, ?, 1000, ?)",
        {id, id, tarih, doviz});
  }
  static void Satir(int id, const QVariant& odenmesi, const QString& doviz) {
    Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Doviz) "
        "VALUES (?, '2005-06-01', ?, 100, ?)",
        {id, odenmesi, doviz});
  }
  // The rows of Kur, a line each, ordered, Null as "NULL".
  static QString Kurlar() {
    db::Kayitlar rs = Genel::Baglanti.Sorgu(
        "SELECT Tarih, Doviz, Kur, CaprazKur FROM Kur ORDER BY Tarih, Doviz, Kur");
    QStringList satirlar;
    for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
      QStringList s;
      for (int i = 0; i < rs.AlanSayisi(); ++i)
        s << (db::NullMu(rs.Fields(i)) ? QStringLiteral("NULL") : rs.Fields(i).toString());
      satirlar << s.join(QLatin1Char('|'));
    }
    return satirlar.join(QLatin1Char('\n'));
  }

  frmDovizTanim* Ac() {
    ekran_ = std::make_unique<frmDovizTanim>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    ekran_->Form_Activate();
    test::Isle();
    return ekran_.get();
  }

  // A double click on a row of the grid, as the mouse gives it.
  static void CiftTikla(frmDovizTanim* f, int satir) {
    const QModelIndex i = f->DataGrid1->model()->index(satir, 1);
    QTest::mouseDClick(f->DataGrid1->viewport(), Qt::LeftButton, {},
                       f->DataGrid1->visualRect(i).center());
    test::Isle();
  }
  // Into a box as the clerk types: the focus goes there, its text is
  // selected and typed over.
  static void Yaz(QLineEdit* kutu, const QString& metin) {
    kutu->setFocus();
    test::Isle();
    QTest::keyClick(kutu, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(kutu, Qt::Key_Delete);
    test::Tusla(kutu, metin);
  }
  // A click as the mouse gives it: the press takes the focus, running the
  // check of the box left; a refused check drops the click.
  static void Bas(QPushButton* dugme) {
    QTest::mouseClick(dugme, Qt::LeftButton);
    test::Isle();
  }
  static int GridSatiri(frmDovizTanim* f, const QString& tarih, const QString& doviz) {
    for (int i = 0; i < f->rs.RecordCount(); ++i)
      if (f->DataGrid1->Model()->Metin(i, 0) == tarih &&
          f->DataGrid1->Model()->Metin(i, 1) == doviz)
        return i;
    return -1;
  }

  std::unique_ptr<frmDovizTanim> ekran_;
};

TEST_F(DovizTanim, SadeceLiraIsiVarsaMesajlaKapanir) {
  Sozlesme(1, "2005-03-04", "TRL");
  Satir(1, "2005-04-04", "TRL");
  auto* f = Ac();
  EXPECT_EQ(MesajMetinleri(), QStringList{"Girilmesi Gereken Kur Bilgisi Yoktur!"});
  EXPECT_EQ(Mesajlar()[0].baslik, "UYARI");
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Bilgi);
  EXPECT_FALSE(f->isVisible());
  EXPECT_EQ(Kurlar(), "");
}

TEST_F(DovizTanim, EksikGunVeDovizlerBirKezEklenir) {
  // A rate already given stays as it is and is not added again.
  Calistir("INSERT INTO Kur VALUES ('2005-05-02', 'EUR', 1.7, 1.2)");
  Sozlesme(1, "2005-05-02", "USD");
  Sozlesme(2, "2005-05-02", "USD");       // same day and currency: one row
  Sozlesme(3, "2005-05-02", "EUR");       // already there
  Sozlesme(4, "2005-05-03", db::Null());  // no currency: nothing
  Sozlesme(5, "2005-05-04", "TRL");
  Satir(1, "2005-06-10", "USD");
  Satir(1, "2005-06-10", "USD");  // two new lines of one day: one row
  Satir(1, "2005-06-11", "EUR");
  Satir(1, db::Null(), "GBP");    // bounced: no day, no rate
  Satir(2, "2005-05-02", "USD");  // the contract's own day: one row for both
  Satir(5, "2005-06-12", "TRL");
  const QString beklenen =
      "2005-05-02|EUR|1.7|1.2\n"
      "2005-05-02|USD|0|0\n"
      "2005-06-10|USD|0|0\n"
      "2005-06-11|EUR|0|0";
  Ac();
  EXPECT_EQ(Kurlar(), beklenen);
  EXPECT_EQ(ekran_->rs.RecordCount(), 4);
  EXPECT_TRUE(Mesajlar().isEmpty());

  // Opened again, nothing is added; rows stay when their contract goes.
  Calistir("DELETE FROM Sozlesme WHERE SozlesmeID = 1");
  Calistir("DELETE FROM SozlesmeDetay WHERE SozlesmeID = 1");
  Ac();
  EXPECT_EQ(Kurlar(), beklenen);
}

TEST_F(DovizTanim, SatirSecilirKurGirilirKaydedilir) {
  Sozlesme(1, "2005-05-02", "USD");
  Sozlesme(2, "2005-05-03", "EUR");
  // The pair may stand twice in an older table: the save sets both.
  Calistir("INSERT INTO Kur VALUES ('2005-05-03', 'EUR', 1.5, NULL)");
  Calistir("INSERT INTO Kur VALUES ('2005-05-03', 'EUR', 0, 0)");
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), "Döviz Kur Bilgisi Giriş Ekranı");
  EXPECT_TRUE(f->cmdSave->isVisible());  // at the very start

  const int satir = GridSatiri(f, "03.05.2005", "EUR");
  ASSERT_GE(satir, 0);
  CiftTikla(f, satir);
  EXPECT_EQ(f->txtTarih->text(), "03.05.2005");
  EXPECT_EQ(f->cmbDoviz->currentText(), "EUR");
  // Shown as stored until the box is left; a Null cross rate is empty.
  EXPECT_EQ(f->txtKur->text(), "1,5");
  EXPECT_EQ(f->txtCaprazKur->text(), "");
  EXPECT_TRUE(f->cmdSave->isVisible());

  Yaz(f->txtKur, "1,5");
  Yaz(f->txtCaprazKur, "1234,5");
  EXPECT_EQ(f->txtKur->text(), "1,50000");
  QTest::keyClick(f->txtCaprazKur, Qt::Key_Tab);  // left by Tab
  test::Isle();
  EXPECT_EQ(f->txtCaprazKur->text(), "1.234,50000");
  Bas(f->cmdSave);
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("\n").toStdString();
  EXPECT_EQ(Kurlar(),
            "2005-05-02|USD|0|0\n"
            "2005-05-03|EUR|1.5|1234.5\n"
            "2005-05-03|EUR|1.5|1234.5");
  EXPECT_EQ(f->txtTarih->text(), "");
  EXPECT_EQ(f->txtKur->text(), "");
  EXPECT_EQ(f->txtCaprazKur->text(), "");
  EXPECT_EQ(f->cmbDoviz->currentIndex(), -1);
  EXPECT_FALSE(f->cmdSave->isVisible());
  // The grid shows the new values.
  const int yeni = GridSatiri(f, "03.05.2005", "EUR");
  ASSERT_GE(yeni, 0);
  EXPECT_EQ(f->DataGrid1->Model()->Metin(yeni, 3), "1.234,50000");

  // An empty cross rate is stored as Null; the other day stays untouched.
  CiftTikla(f, GridSatiri(f, "02.05.2005", "USD"));
  Yaz(f->txtKur, "1.234,56789");
  Yaz(f->txtCaprazKur, "");
  Bas(f->cmdSave);
  EXPECT_EQ(Kurlar(),
            "2005-05-02|USD|1234.56789|NULL\n"
            "2005-05-03|EUR|1.5|1234.5\n"
            "2005-05-03|EUR|1.5|1234.5");
}

TEST_F(DovizTanim, KurYoksaVeyaHataliysaHicbirSeyDegismez) {
  Sozlesme(1, "2005-05-02", "USD");
  auto* f = Ac();
  const QString once = Kurlar();

  // Güncelle at the very start, nothing chosen and no rate typed.
  Bas(f->cmdSave);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen Kur Bilgisini Girin"});
  EXPECT_EQ(Mesajlar()[0].baslik, "UYARI");
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Bilgi);
  MesajlariTemizle();

  // A rate typed without a row chosen belongs to no day.
  Yaz(f->txtKur, "2");
  Bas(f->cmdSave);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen listeden bir kur satırı seçiniz."});
  MesajlariTemizle();

  // Letters never reach the box; a text that is still no number keeps the
  // focus with its message.
  CiftTikla(f, 0);
  Yaz(f->txtKur, "x1,2,3");
  EXPECT_EQ(f->txtKur->text(), "1,2,3");
  Bas(f->cmdSave);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Geçerli bir kur giriniz."});
  EXPECT_EQ(Mesajlar()[0].baslik, "HATA");
  EXPECT_EQ(QApplication::focusWidget(), f->txtKur);
  MesajlariTemizle();

  // Emptied and saved: the message, and the row keeps its rate.
  Yaz(f->txtKur, "");
  Bas(f->cmdSave);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen Kur Bilgisini Girin"});
  EXPECT_EQ(Kurlar(), once);
  EXPECT_TRUE(f->isVisible());
}

TEST_F(DovizTanim, MenudenAcilirCikisKapatir) {
  master::DovizEkraniKaydet();
  Sozlesme(1, "2005-05-02", "USD");
  auto* f = qobject_cast<frmDovizTanim*>(ekran::Ac("frmDovizTanim"));
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->cmbDoviz->count(), 12);
  EXPECT_EQ(f->cmbDoviz->itemText(1), "USD");
  EXPECT_FALSE(f->cmbDoviz->isEnabled());
  QTest::mouseClick(f->cmdExit, Qt::LeftButton);
  test::Isle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ekran::Acik("frmDovizTanim"), nullptr);
}

}  // namespace
