// Renumbering a contract: what moves, what is refused, and that a failure
// halfway leaves every table as it was.

#include <QApplication>
#include <memory>

#include "contract/frmNoDegis.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "tests/support/Ortam.h"

namespace {

class NoDegisTest : public test::Ortam {
 protected:
  void SetUp() override {
    test::Ortam::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("A");
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES (1, 'Kaya', 'Ali', 1)");
    // Contract 1 (A 7) with two lines and an invoice; contract 2 (A 8) with one
    // of each, which no change of contract 1 may touch.
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) VALUES "
        "(1, 'A', 7, 1, '2024-05-02'), (2, 'A', 8, 1, '2024-05-03')");
    Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Meblag) VALUES "
        "(1, 'A', 7, 'Çek', 100), (1, 'A', 7, 'Senet', 200), (2, 'A', 8, 'Çek', 300)");
    Calistir(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, SozlesmeSeri, SozlesmeNo) VALUES "
        "('F', 1, 1, 'A', 7), ('F', 2, 2, 'A', 8)");
    ekran_ = std::make_unique<frmNoDegis>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Form_Load();
    test::Isle();
  }
  void TearDown() override {
    ekran_.reset();
    test::Ortam::TearDown();
  }

  static void Calistir(const char* sql) { Genel::Baglanti.Calistir(QString::fromUtf8(sql)); }

  // Series and number of every row of the three tables, keyed by the row.
  static QStringList Numaralar() {
    QStringList l;
    const auto oku = [&](const char* sql) {
      db::Kayitlar rs = Genel::Baglanti.Sorgu(QString::fromLatin1(sql));
      for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext())
        l << rs.Metin(QStringLiteral("Tablo")) + QLatin1Char(' ') + rs.Metin(QStringLiteral("Ad")) +
                 QStringLiteral(": ") + rs.Metin(QStringLiteral("SozlesmeSeri")) +
                 QLatin1Char(' ') + rs.Metin(QStringLiteral("SozlesmeNo"));
    };
    oku("SELECT 'S' AS Tablo, SozlesmeID AS Ad, SozlesmeSeri, SozlesmeNo FROM Sozlesme "
        "ORDER BY SozlesmeID");
    oku("SELECT 'D' AS Tablo, GirisNo AS Ad, SozlesmeSeri, SozlesmeNo FROM SozlesmeDetay "
        "ORDER BY GirisNo");
    oku("SELECT 'F' AS Tablo, FaturaNo AS Ad, SozlesmeSeri, SozlesmeNo FROM Fatura "
        "ORDER BY FaturaNo");
    return l;
  }

  void Degistir(const QString& eskiSeri, const QString& eski, const QString& yeniSeri,
                const QString& yeni) {
    MesajlariTemizle();
    ekran_->txtEskiSeri->setText(eskiSeri);
    ekran_->txtEski->setText(eski);
    ekran_->txtYeniSeri->setText(yeniSeri);
    ekran_->txtYeni->setText(yeni);
    ekran_->cmdIslem->click();
  }

  std::unique_ptr<frmNoDegis> ekran_;
};

const QStringList kBaslangic{"S 1: A 7", "S 2: A 8", "D 1: A 7", "D 2: A 7",
                             "D 3: A 8", "F 1: A 7", "F 2: A 8"};

TEST_F(NoDegisTest, SozlesmeSatirlariVeFaturasiYeniNumarayaGecer) {
  ASSERT_EQ(Numaralar(), kBaslangic);
  // The series changes and the number stays: a valid change. Leading zeros
  // and blanks around the number don't matter.
  Degistir("A", " 007", "B", "7");
  ASSERT_EQ(MesajMetinleri(), QStringList{"İşlem Başarıyla Sonuçlandı"});
  EXPECT_EQ(Mesajlar()[0].baslik, "Mesaj");
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Bilgi);
  EXPECT_EQ(Numaralar(), (QStringList{"S 1: B 7", "S 2: A 8", "D 1: B 7", "D 2: B 7", "D 3: A 8",
                                      "F 1: B 7", "F 2: A 8"}));
  // The dialog stays open with what was typed, for the next change.
  EXPECT_TRUE(ekran_->isVisible());
  EXPECT_EQ(ekran_->txtYeniSeri->text(), "B");

  // Now the number within the series; the freed pair A 7 may be taken again.
  Degistir("B", "7", "B", "2147483647");
  EXPECT_EQ(MesajMetinleri(), QStringList{"İşlem Başarıyla Sonuçlandı"});
  Degistir("A", "8", "A", "7");
  EXPECT_EQ(MesajMetinleri(), QStringList{"İşlem Başarıyla Sonuçlandı"});
  EXPECT_EQ(Numaralar(),
            (QStringList{"S 1: B 2147483647", "S 2: A 7", "D 1: B 2147483647", "D 2: B 2147483647",
                         "D 3: A 7", "F 1: B 2147483647", "F 2: A 7"}));
}

TEST_F(NoDegisTest, EksikVeyaKullanimdakiNumaraReddedilir) {
  const auto reddedilir = [&](const char* eskiSeri, const char* eski, const char* yeniSeri,
                              const char* yeni, const QString& metin) {
    Degistir(eskiSeri, eski, yeniSeri, yeni);
    ASSERT_EQ(MesajMetinleri(), QStringList{metin})
        << eskiSeri << eski << " > " << yeniSeri << yeni;
    EXPECT_EQ(Mesajlar()[0].baslik, "HATA");
    EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
    EXPECT_EQ(Numaralar(), kBaslangic);
  };
  reddedilir("A", "9", "A", "10", "Eski Sözleşme Mevcut Değil");
  reddedilir("B", "7", "A", "10", "Eski Sözleşme Mevcut Değil");  // number of another series
  reddedilir("A", "7", "A", "8", "Yeni Sözleşme Numarası Kullanımda");
  reddedilir("A", "7", "A", "07", "Yeni Sözleşme Numarası Kullanımda");  // the same pair
  // Both wrong: the old pair is told first.
  reddedilir("A", "9", "A", "8", "Eski Sözleşme Mevcut Değil");
}

TEST_F(NoDegisTest, SayiOlmayanNumaraYazilmadanReddedilir) {
  const auto reddedilir = [&](const char* eski, const char* yeni, const QString& metin,
                              QLineEdit* odak) {
    Degistir("A", eski, "B", yeni);
    ASSERT_EQ(MesajMetinleri(), QStringList{metin}) << eski << " > " << yeni;
    EXPECT_EQ(Mesajlar()[0].baslik, "HATA");
    EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
    EXPECT_EQ(Numaralar(), kBaslangic);
    test::Isle();
    EXPECT_TRUE(odak->hasFocus()) << eski << " > " << yeni;
    EXPECT_EQ(odak->selectedText(), odak->text());
  };
  QLineEdit* eski = ekran_->txtEski;
  QLineEdit* yeni = ekran_->txtYeni;
  reddedilir("7a", "9", "Eski Sözleşme Numarası Sayı Değil", eski);
  reddedilir("", "9", "Eski Sözleşme Numarası Girilmemiş", eski);
  reddedilir("7", "2147483648",
             "Yeni Sözleşme Numarası Sayı Sınırının Dışında (En Fazla 2147483647)", yeni);
  // Both wrong: the old number is told first.
  reddedilir("x", "y", "Eski Sözleşme Numarası Sayı Değil", eski);
}

TEST_F(NoDegisTest, UcuncuGuncellemeBasarisizsaHicbiriKalmaz) {
  Calistir(
      "CREATE TEMP TRIGGER FaturaKilitli BEFORE UPDATE ON Fatura "
      "BEGIN SELECT RAISE(ABORT, 'Fatura kilitli'); END");
  Degistir("A", "7", "B", "9");
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_TRUE(Mesajlar()[0].metin.startsWith("Numara Değiştirilemedi, Hiçbir Kayıt Değişmedi\n"))
      << Mesajlar()[0].metin.toStdString();
  EXPECT_TRUE(Mesajlar()[0].metin.contains("Fatura kilitli"));  // the engine's own text
  EXPECT_EQ(Mesajlar()[0].baslik, "HATA");
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
  // The contract and its lines were changed before the invoice failed: undone.
  EXPECT_EQ(Numaralar(), kBaslangic);
  EXPECT_FALSE(Genel::Baglanti.IslemIcinde());

  Calistir("DROP TRIGGER FaturaKilitli");
  Degistir("A", "7", "B", "9");
  EXPECT_EQ(MesajMetinleri(), QStringList{"İşlem Başarıyla Sonuçlandı"});
  EXPECT_EQ(Numaralar(), (QStringList{"S 1: B 9", "S 2: A 8", "D 1: B 9", "D 2: B 9", "D 3: A 8",
                                      "F 1: B 9", "F 2: A 8"}));
}

TEST_F(NoDegisTest, AnaPencereAdiylaAcarSerilerHazir) {
  contract::NoDegisEkraniKaydet();
  Genel::SozlesmeSeri = QStringLiteral("K");
  auto* f = qobject_cast<frmNoDegis*>(ekran::Ac(QStringLiteral("frmNoDegis")));
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->windowTitle(), "Sözleşme Numarası Değişikliği");
  EXPECT_EQ(f->txtEskiSeri->text(), "K");
  EXPECT_EQ(f->txtYeniSeri->text(), "K");
  EXPECT_TRUE(f->txtEski->text().isEmpty());
  f->cmdExit->click();
  test::Isle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmNoDegis")), nullptr);
}

}  // namespace
