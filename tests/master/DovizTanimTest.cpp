// The rates screen as the clerk meets it: the rows the data needs appear on
// opening, a row is chosen by a double click, rates are typed and saved.

#include <QApplication>
#include <QtTest/QTest>
#include <memory>

#include "core/Ekran.h"
#include "master/frmDovizTanim.h"
#include "tests/master/Ortak.h"
#include "tests/support/Klavye.h"

namespace {

using test::Sql;

class DovizTanim : public test::Ortam {
 protected:
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }
  static void Sozlesme(int id, const QString& tarih, const QVariant& doviz) {
    Sql("INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "Doviz) VALUES (?, 'A', ?, 1, ?, 1000, ?)",
        {id, id, tarih, doviz});
  }
  static void Satir(int id, const QVariant& odenmesi, const QString& doviz) {
    Sql("INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Doviz) "
        "VALUES (?, '2005-06-01', ?, 100, ?)",
        {id, odenmesi, doviz});
  }
  static QString Kurlar() {
    return test::Satirlar(
        "SELECT Tarih, Doviz, Kur, CaprazKur FROM Kur ORDER BY Tarih, Doviz, Kur");
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
  // The grid's row of a day and currency.
  static int GridSatiri(frmDovizTanim* f, const QString& tarih, const QString& doviz) {
    for (int i = 0; i < f->rs.RecordCount(); ++i)
      if (f->DataGrid1->Model()->Metin(i, 0) == tarih &&
          f->DataGrid1->Model()->Metin(i, 1) == doviz)
        return i;
    return -1;
  }
  // A double click on that row, as the mouse gives it.
  static void CiftTikla(frmDovizTanim* f, const QString& tarih, const QString& doviz) {
    const int satir = GridSatiri(f, tarih, doviz);
    ASSERT_GE(satir, 0) << tarih.toStdString() << doviz.toStdString();
    const QModelIndex i = f->DataGrid1->model()->index(satir, 1);
    QTest::mouseDClick(f->DataGrid1->viewport(), Qt::LeftButton, {},
                       f->DataGrid1->visualRect(i).center());
    test::Isle();
  }
  // A click as the mouse gives it: the press takes the focus, running the
  // check of the box left; a refused check drops the click.
  static void Bas(QPushButton* dugme) {
    QTest::mouseClick(dugme, Qt::LeftButton);
    test::Isle();
  }
  std::unique_ptr<frmDovizTanim> ekran_;
};

TEST_F(DovizTanim, SadeceLiraIsiVarsaMesajlaKapanir) {
  Sozlesme(1, "2005-03-04", "TRL");
  Satir(1, "2005-04-04", "TRL");
  auto* f = Ac();
  EXPECT_EQ(Kutular(), "Bilgi UYARI: Girilmesi Gereken Kur Bilgisi Yoktur!");
  EXPECT_FALSE(f->isVisible());
  EXPECT_EQ(Kurlar(), "");
}

TEST_F(DovizTanim, EksikGunVeDovizlerBirKezEklenir) {
  // A rate already given stays as it is and is not added again.
  Sql("INSERT INTO Kur VALUES ('2005-05-02', 'EUR', 1.7, 1.2)");
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
      "2005-05-02|EUR|1.7|1.2\n2005-05-02|USD|0|0\n2005-06-10|USD|0|0\n2005-06-11|EUR|0|0";
  Ac();
  EXPECT_EQ(Kurlar(), beklenen);
  EXPECT_EQ(ekran_->rs.RecordCount(), 4);
  EXPECT_EQ(Kutular(), "");
  // Opened again, nothing is added; rows stay when their contract goes.
  Sql("DELETE FROM Sozlesme WHERE SozlesmeID = 1");
  Sql("DELETE FROM SozlesmeDetay WHERE SozlesmeID = 1");
  Ac();
  EXPECT_EQ(Kurlar(), beklenen);
}

TEST_F(DovizTanim, SatirSecilirKurGirilirKaydedilir) {
  Sozlesme(1, "2005-05-02", "USD");
  Sozlesme(2, "2005-05-03", "EUR");
  // The pair may stand twice in an older table: the save sets both.
  Sql("INSERT INTO Kur VALUES ('2005-05-03', 'EUR', 1.5, NULL), ('2005-05-03', 'EUR', 0, 0)");
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), "Döviz Kur Bilgisi Giriş Ekranı");
  EXPECT_TRUE(f->cmdSave->isVisible());  // at the very start
  CiftTikla(f, "03.05.2005", "EUR");
  // Shown as stored until the box is left; a Null cross rate is empty.
  EXPECT_EQ(f->txtTarih->text() + f->cmbDoviz->currentText() + f->txtKur->text() + '|' +
                f->txtCaprazKur->text(),
            "03.05.2005EUR1,5|");
  EXPECT_TRUE(f->cmdSave->isVisible());
  test::Yaz(f->txtKur, "1,5");
  test::Yaz(f->txtCaprazKur, "1234,5");
  EXPECT_EQ(f->txtKur->text(), "1,50000");
  QTest::keyClick(f->txtCaprazKur, Qt::Key_Tab);  // left by Tab
  test::Isle();
  EXPECT_EQ(f->txtCaprazKur->text(), "1.234,50000");
  Bas(f->cmdSave);
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(Kurlar(), "2005-05-02|USD|0|0\n2005-05-03|EUR|1.5|1234.5\n2005-05-03|EUR|1.5|1234.5");
  EXPECT_EQ(f->txtTarih->text() + f->txtKur->text() + f->txtCaprazKur->text(), "");
  EXPECT_EQ(f->cmbDoviz->currentIndex(), -1);
  EXPECT_FALSE(f->cmdSave->isVisible());
  // The grid shows the new values.
  EXPECT_EQ(f->DataGrid1->Model()->Metin(GridSatiri(f, "03.05.2005", "EUR"), 3), "1.234,50000");
  // An empty cross rate is stored as Null; the other day stays untouched.
  CiftTikla(f, "02.05.2005", "USD");
  test::Yaz(f->txtKur, "1.234,56789");
  test::Yaz(f->txtCaprazKur, "");
  Bas(f->cmdSave);
  EXPECT_EQ(Kurlar(),
            "2005-05-02|USD|1234.56789|NULL\n2005-05-03|EUR|1.5|1234.5\n2005-05-03|EUR|1.5|1234.5");
}

TEST_F(DovizTanim, KurYoksaVeyaHataliysaHicbirSeyDegismez) {
  Sozlesme(1, "2005-05-02", "USD");
  auto* f = Ac();
  const QString once = Kurlar();
  // Güncelle at the very start, nothing chosen and no rate typed.
  Bas(f->cmdSave);
  EXPECT_EQ(Kutular(), "Bilgi UYARI: Lütfen Kur Bilgisini Girin");
  // A rate typed without a row chosen belongs to no day.
  test::Yaz(f->txtKur, "2");
  Bas(f->cmdSave);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen listeden bir kur satırı seçiniz."});
  MesajlariTemizle();
  // Letters never reach the box; a text that is still no number keeps the
  // focus with its message.
  CiftTikla(f, "02.05.2005", "USD");
  test::Yaz(f->txtKur, "x1,2,3");
  EXPECT_EQ(f->txtKur->text(), "1,2,3");
  Bas(f->cmdSave);
  EXPECT_EQ(Kutular(), "Kritik HATA: Geçerli bir kur giriniz.");
  EXPECT_EQ(QApplication::focusWidget(), f->txtKur);
  // Emptied and saved: the message, and the row keeps its rate.
  test::Yaz(f->txtKur, "");
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
  Bas(f->cmdExit);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ekran::Acik("frmDovizTanim"), nullptr);
}

}  // namespace
