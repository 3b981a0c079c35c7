// The find dialog of the contract screen: what it lists for a series and a
// number, what it refuses, and what it hands back in BulunanSozlesmeID.

#include <QApplication>
#include <QKeyEvent>
#include <memory>
#include <tuple>

#include "contract/frmSozBul.h"
#include "core/Genel.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

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

  // Searches; the items of the list then, text and the id each carries.
  static QString Ara(frmSozBul& d, const char* seri, const char* no) {
    d.txtSeri->setText(QString::fromUtf8(seri));
    d.txtSozlesmeNo->setText(QString::fromUtf8(no));
    d.OKButton->click();
    QStringList l;
    for (int i = 0; i < d.lstSonuc->count(); ++i)
      l << d.lstSonuc->item(i)->text() + " #" + d.lstSonuc->item(i)->data(Qt::UserRole).toString();
    return l.join(QLatin1Char(','));
  }
};

TEST_F(SozBulTest, SeriVeNumarayaGoreListelerReddeder) {
  auto d = Ac();
  // The series of new contracts stands in its box.
  EXPECT_EQ(d->windowTitle() + '|' + d->txtSeri->text() + '|' + d->OKButton->text() + '|' +
                d->CancelButton->text(),
            u"Sözleşme Ara|A|Ara|Vazgeç"_s);
  // Without a series every series is searched; an apostrophe is just a
  // character. No hit: an empty list and no message. A refusal keeps the list.
  const std::tuple<const char*, const char*, const char*, const char*> aramalar[] = {
      {"A", "7", "05.01.2024 - 7 #11,01.03.2024 - 7 #14", ""},
      {"B", "007", "10.02.2024 - 7 #12", ""},
      {"", "7", "05.01.2024 - 7 #11,10.02.2024 - 7 #12,01.03.2024 - 7 #14", ""},
      {"A'", "7", "", ""},
      {"A", "9", "", ""},
      {"A", "8", "11.02.2024 - 8 #13", ""},
      {"A", "", "11.02.2024 - 8 #13", "UYARI: Sözleşme Numarası Girmelisiniz"},
      {"A", "8b", "11.02.2024 - 8 #13", "UYARI: Sözleşme Numarası Sayı Değil"},
  };
  for (const auto& [seri, no, liste, mesaj] : aramalar) {
    MesajlariTemizle();
    EXPECT_EQ(Ara(*d, seri, no), QString::fromUtf8(liste)) << seri << ' ' << no;
    QStringList m;
    for (const mesaj::Kayit& k : Mesajlar())
      m << (k.tur == mesaj::Tur::Bilgi ? "" : "not information ") + k.baslik + ": " + k.metin;
    EXPECT_EQ(m.join('\n'), QString::fromUtf8(mesaj)) << seri << ' ' << no;
  }
  EXPECT_TRUE(d->isVisible());
}

// A search while the engine is away: its words, the list as it was, and the
// dialog open for the next search.
TEST_F(SozBulTest, MotorHatasiGosterilirAramaSurer) {
  auto d = Ac();
  Ara(*d, "A", "8");
  MesajlariTemizle();
  Genel::Baglanti.Kapat();
  EXPECT_EQ(Ara(*d, "A", "7"), u"11.02.2024 - 8 #13"_s);
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].baslik + ": " + Mesajlar()[0].metin,
            u"HATA: Bir Hata Oluştu\nVeri tabanı açık değil"_s);
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
  Genel::Baglanti.Ac(Genel::VeriTabaniYolu());
  EXPECT_EQ(Ara(*d, "B", "7"), u"10.02.2024 - 7 #12"_s);
  EXPECT_TRUE(d->isVisible());
}

TEST_F(SozBulTest, CiftTiklamaSecerVazgecSifirVerir) {
  auto d = Ac();
  Ara(*d, "", "7");
  // A double click on the second item.
  d->lstSonuc->setCurrentRow(1);
  emit d->lstSonuc->itemDoubleClicked(d->lstSonuc->item(1));
  EXPECT_EQ(BulunanSozlesmeID, 12);
  EXPECT_FALSE(d->isVisible());

  // The close box keeps what the search before found.
  d = Ac();
  Ara(*d, "A", "8");
  d->close();
  EXPECT_EQ(BulunanSozlesmeID, 12);

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
  for (const char* s : {"-2147483649", "1.000", "1e3", "٣", "7 8", "+"})
    EXPECT_EQ(contract::SozlesmeNoOku(QString::fromUtf8(s)), std::nullopt) << s;
}

}  // namespace
