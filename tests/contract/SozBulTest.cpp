// The find dialog of the contract screen: what it lists for a series and a
// number, what it refuses, and what it hands back in BulunanSozlesmeID.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <memory>

#include "contract/frmSozBul.h"
#include "core/Genel.h"
#include "tests/support/Ortam.h"

namespace {

class SozBulTest : public test::Ortam {
 protected:
  void SetUp() override {
    test::Ortam::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("A");
    BulunanSozlesmeID = 0;
    // Number 7 twice in series A (nothing keeps numbers unique) and once in B.
    Genel::Baglanti.Calistir(QStringLiteral(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) VALUES "
        "(11, 'A', 7, 1, '2024-01-05'), (12, 'B', 7, 1, '2024-02-10'), "
        "(13, 'A', 8, 1, '2024-02-11'), (14, 'A', 7, 1, '2024-03-01')"));
  }

  std::unique_ptr<frmSozBul> Ac() {
    auto d = std::make_unique<frmSozBul>();
    d->show();
    test::Isle();
    return d;
  }

  // The items of the list: text and the id they carry.
  static QStringList Liste(const frmSozBul& d) {
    QStringList l;
    for (int i = 0; i < d.lstSonuc->count(); ++i)
      l << d.lstSonuc->item(i)->text() + QStringLiteral(" #") +
               d.lstSonuc->item(i)->data(Qt::UserRole).toString();
    return l;
  }

  static QStringList Ara(frmSozBul& d, const QString& seri, const QString& no) {
    d.txtSeri->setText(seri);
    d.txtSozlesmeNo->setText(no);
    d.OKButton->click();
    return Liste(d);
  }

  // A double click on an item, as the mouse gives it.
  static void CiftTikla(QListWidget* liste, int satir) {
    QWidget* alan = liste->viewport();
    const QPoint yer = liste->visualItemRect(liste->item(satir)).center();
    const QPointF g = alan->mapToGlobal(QPointF(yer));
    for (QEvent::Type t : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                           QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
      QMouseEvent e(t, QPointF(yer), g, Qt::LeftButton,
                    t == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton,
                    Qt::NoModifier);
      QApplication::sendEvent(alan, &e);
    }
  }
};

TEST_F(SozBulTest, SeriVeNumarayaGoreListeler) {
  auto d = Ac();
  EXPECT_EQ(d->windowTitle(), "Sözleşme Ara");
  EXPECT_EQ(d->txtSeri->text(), "A");  // the series of new contracts
  EXPECT_EQ(d->OKButton->text(), "Ara");
  EXPECT_EQ(d->CancelButton->text(), "Vazgeç");

  EXPECT_EQ(Ara(*d, "A", "7"), (QStringList{"05.01.2024 - 7 #11", "01.03.2024 - 7 #14"}));
  EXPECT_EQ(Ara(*d, "B", "007"), QStringList{"10.02.2024 - 7 #12"});
  // Without a series every series is searched.
  EXPECT_EQ(Ara(*d, "", "7"),
            (QStringList{"05.01.2024 - 7 #11", "10.02.2024 - 7 #12", "01.03.2024 - 7 #14"}));
  // An apostrophe in the series is just a character.
  EXPECT_EQ(Ara(*d, "A'", "7"), QStringList{});
  // No hit: an empty list, no message, the dialog stays.
  EXPECT_EQ(Ara(*d, "A", "9"), QStringList{});
  EXPECT_TRUE(MesajMetinleri().isEmpty());
  EXPECT_TRUE(d->isVisible());
}

TEST_F(SozBulTest, NumarasizVeSayiOlmayanAramaReddedilir) {
  auto d = Ac();
  ASSERT_EQ(Ara(*d, "A", "8"), QStringList{"11.02.2024 - 8 #13"});

  EXPECT_EQ(Ara(*d, "A", ""), QStringList{"11.02.2024 - 8 #13"});  // the list stays
  ASSERT_EQ(MesajMetinleri(), QStringList{"Sözleşme Numarası Girmelisiniz"});
  EXPECT_EQ(Mesajlar()[0].baslik, "UYARI");
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Bilgi);

  MesajlariTemizle();
  EXPECT_EQ(Ara(*d, "A", "8b"), QStringList{"11.02.2024 - 8 #13"});
  ASSERT_EQ(MesajMetinleri(), QStringList{"Sözleşme Numarası Sayı Değil"});
  EXPECT_EQ(Mesajlar()[0].baslik, "UYARI");
}

TEST_F(SozBulTest, CiftTiklamaSecerVazgecSifirVerir) {
  auto d = Ac();
  Ara(*d, "", "7");
  CiftTikla(d->lstSonuc, 1);
  EXPECT_EQ(BulunanSozlesmeID, 12);
  EXPECT_EQ(d->result(), QDialog::Accepted);
  EXPECT_FALSE(d->isVisible());

  // The close box keeps what the search before found.
  d = Ac();
  Ara(*d, "A", "8");
  d->close();
  EXPECT_EQ(BulunanSozlesmeID, 12);
  EXPECT_EQ(d->result(), QDialog::Rejected);

  // "Vazgeç" and Esc give 0.
  d = Ac();
  d->CancelButton->click();
  EXPECT_EQ(BulunanSozlesmeID, 0);
  EXPECT_FALSE(d->isVisible());

  BulunanSozlesmeID = 14;
  d = Ac();
  QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(d.get(), &esc);
  EXPECT_EQ(BulunanSozlesmeID, 0);
}

TEST(SozlesmeNoOku, SayilarVeSinirlar) {
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral(" 007 ")), 7);
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral("000000000002147483647")), 2147483647);
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral("-2147483648")), -2147483647 - 1);
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral("-2147483649")), std::nullopt);
  for (const char* s : {"1.000", "1e3", "٣", "7 8", "+"})
    EXPECT_EQ(contract::SozlesmeNoOku(QString::fromUtf8(s)), std::nullopt) << s;
}

}  // namespace
