// Renumbering a contract: what moves, what is refused, and that a failure
// halfway leaves every table as it was.

#include <QApplication>
#include <memory>
#include <tuple>

#include "contract/frmNoDegis.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

class NoDegisTest : public test::Ortam {
 protected:
  void SetUp() override {
    test::Ortam::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("A");
    // Contract 1 (A 7) with two lines and an invoice; contract 2 (A 8) with one
    // of each, which no change of contract 1 may touch.
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES (1, 'Kaya', 'Ali', 1); "
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) VALUES "
        "(1, 'A', 7, 1, '2024-05-02'), (2, 'A', 8, 1, '2024-05-03'); "
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Meblag) VALUES "
        "(1, 'A', 7, 'Çek', 100), (1, 'A', 7, 'Senet', 200), (2, 'A', 8, 'Çek', 300); "
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

  // Series and number of every row of the three tables (Sozlesme, Detay,
  // Fatura), keyed by the row.
  static QString Numaralar() {
    return Genel::Baglanti
        .Deger(QStringLiteral(
            "SELECT group_concat(x, ', ') FROM (SELECT x FROM ("
            "SELECT 'S' || SozlesmeID || ': ' || SozlesmeSeri || ' ' || SozlesmeNo AS x "
            "FROM Sozlesme UNION ALL "
            "SELECT 'D' || GirisNo || ': ' || SozlesmeSeri || ' ' || SozlesmeNo FROM SozlesmeDetay "
            "UNION ALL SELECT 'F' || FaturaNo || ': ' || SozlesmeSeri || ' ' || SozlesmeNo "
            "FROM Fatura) ORDER BY x)"))
        .toString();
  }

  // Types the four boxes, presses the button; the messages it gave, one line
  // each: kind, title, text.
  QString Degistir(const char* eskiSeri, const char* eski, const char* yeniSeri, const char* yeni) {
    MesajlariTemizle();
    ekran_->txtEskiSeri->setText(QString::fromUtf8(eskiSeri));
    ekran_->txtEski->setText(QString::fromUtf8(eski));
    ekran_->txtYeniSeri->setText(QString::fromUtf8(yeniSeri));
    ekran_->txtYeni->setText(QString::fromUtf8(yeni));
    ekran_->cmdIslem->click();
    static const char* const tur[] = {"Kritik", "Ünlem", "Bilgi", "Soru", "Düz"};
    QStringList l;
    for (const mesaj::Kayit& k : Mesajlar())
      l << QString::fromUtf8(tur[int(k.tur)]) + ' ' + k.baslik + ": " + k.metin;
    return l.join(QLatin1Char('\n'));
  }

  std::unique_ptr<frmNoDegis> ekran_;
};

const QString kBaslangic = u"D1: A 7, D2: A 7, D3: A 8, F1: A 7, F2: A 8, S1: A 7, S2: A 8"_s;
const QString kTamam = u"Bilgi Mesaj: İşlem Başarıyla Sonuçlandı"_s;

TEST_F(NoDegisTest, SozlesmeSatirlariVeFaturasiYeniNumarayaGecer) {
  ASSERT_EQ(Numaralar(), kBaslangic);
  // The series changes and the number stays: a valid change. Leading zeros
  // and blanks around the number don't matter.
  EXPECT_EQ(Degistir("A", " 007", "B", "7"), kTamam);
  EXPECT_EQ(Numaralar(), u"D1: B 7, D2: B 7, D3: A 8, F1: B 7, F2: A 8, S1: B 7, S2: A 8"_s);
  // The dialog stays open with what was typed, for the next change.
  EXPECT_TRUE(ekran_->isVisible());
  EXPECT_EQ(ekran_->txtYeniSeri->text(), u"B"_s);

  // Now the number within the series; the freed pair A 7 may be taken again.
  EXPECT_EQ(Degistir("B", "7", "B", "2147483647"), kTamam);
  EXPECT_EQ(Degistir("A", "8", "A", "7"), kTamam);
  EXPECT_EQ(Numaralar(),
            u"D1: B 2147483647, D2: B 2147483647, D3: A 7, F1: B 2147483647, F2: A 7, "
            "S1: B 2147483647, S2: A 7"_s);
}

TEST_F(NoDegisTest, ReddedilenDegisiklikHicbirSeyYazmaz) {
  const char* const eskiYok = "Kritik HATA: Eski Sözleşme Mevcut Değil";
  const char* const kullanimda = "Kritik HATA: Yeni Sözleşme Numarası Kullanımda";
  const char* const sayiDegil = "Kritik HATA: Eski Sözleşme Numarası Sayı Değil";
  QLineEdit* eski = ekran_->txtEski;
  QLineEdit* yeni = ekran_->txtYeni;
  // A box that holds no number gets the focus with its text selected.
  const std::tuple<const char*, const char*, const char*, const char*, const char*, QLineEdit*>
      ornekler[] = {
          {"A", "9", "A", "10", eskiYok, nullptr},
          {"B", "7", "A", "10", eskiYok, nullptr},  // number of another series
          {"A", "7", "A", "8", kullanimda, nullptr},
          {"A", "7", "A", "07", kullanimda, nullptr},  // the same pair
          {"A", "9", "A", "8", eskiYok, nullptr},      // both wrong: the old pair first
          {"A", "7a", "B", "9", sayiDegil, eski},
          {"A", "", "B", "9", "Kritik HATA: Eski Sözleşme Numarası Girilmemiş", eski},
          {"A", "7", "B", "2147483648",
           "Kritik HATA: Yeni Sözleşme Numarası Sayı Sınırının Dışında (En Fazla 2147483647)",
           yeni},
          {"A", "x", "B", "y", sayiDegil, eski},  // both wrong: the old number first
      };
  for (const auto& [eskiSeri, eskiNo, yeniSeri, yeniNo, mesaj, odak] : ornekler) {
    SCOPED_TRACE(std::string(eskiSeri) + eskiNo + " > " + yeniSeri + yeniNo);
    EXPECT_EQ(Degistir(eskiSeri, eskiNo, yeniSeri, yeniNo), QString::fromUtf8(mesaj));
    EXPECT_EQ(Numaralar(), kBaslangic);
    if (!odak) continue;
    test::Isle();
    EXPECT_TRUE(odak->hasFocus());
    EXPECT_EQ(odak->selectedText(), odak->text());
  }
}

TEST_F(NoDegisTest, UcuncuGuncellemeBasarisizsaHicbiriKalmaz) {
  Calistir(
      "CREATE TEMP TRIGGER FaturaKilitli BEFORE UPDATE ON Fatura "
      "BEGIN SELECT RAISE(ABORT, 'Fatura kilitli'); END");
  // The contract and its lines were changed before the invoice failed: undone.
  const QString mesaj = Degistir("A", "7", "B", "9");
  EXPECT_TRUE(mesaj.startsWith("Kritik HATA: Numara Değiştirilemedi, Hiçbir Kayıt Değişmedi\n"))
      << mesaj.toStdString();
  EXPECT_TRUE(mesaj.endsWith("Fatura kilitli"));  // the engine's own text
  EXPECT_EQ(Numaralar(), kBaslangic);
  EXPECT_FALSE(Genel::Baglanti.IslemIcinde());

  Calistir("DROP TRIGGER FaturaKilitli");
  EXPECT_EQ(Degistir("A", "7", "B", "9"), kTamam);
  EXPECT_EQ(Numaralar(), u"D1: B 9, D2: B 9, D3: A 8, F1: B 9, F2: A 8, S1: B 9, S2: A 8"_s);
}

TEST_F(NoDegisTest, AnaPencereAdiylaAcarSerilerHazir) {
  contract::NoDegisEkraniKaydet();
  Genel::SozlesmeSeri = QStringLiteral("K");
  auto* f = qobject_cast<frmNoDegis*>(ekran::Ac(QStringLiteral("frmNoDegis")));
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->windowTitle() + '|' + f->txtEskiSeri->text() + '|' + f->txtEski->text() + '|' +
                f->txtYeniSeri->text(),
            u"Sözleşme Numarası Değişikliği|K||K"_s);
  f->cmdExit->click();
  test::Isle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmNoDegis")), nullptr);
}

}  // namespace
