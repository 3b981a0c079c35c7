// A contract's number: the find dialog and the renumbering.

#include <QKeyEvent>
#include <memory>
#include <tuple>

#include "contract/frmNoDegis.h"
#include "contract/frmSozBul.h"
#include "tests/contract/SozlesEkran.h"
#include "tests/support/Klavye.h"

namespace {

using test::Isle;

class SozBulTest : public test::SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("A");
    BulunanSozlesmeID = 0;
    // Number 7 twice in series A (nothing keeps numbers unique) and once in B.
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) VALUES "
        "(11, 'A', 7, 1, '2024-01-05'), (12, 'B', 7, 1, '2024-02-10'), "
        "(13, 'A', 8, 1, '2024-02-11'), (14, 'A', 7, 1, '2024-03-01')");
  }
  static std::unique_ptr<frmSozBul> BulAc() {
    auto d = std::make_unique<frmSozBul>();
    d->show();
    QApplication::setActiveWindow(d.get());
    Isle();
    return d;
  }
  // Searches; the items listed then, with the id each carries.
  static QString Ara(frmSozBul& d, const char* seri, const char* no) {
    test::Yaz(d.txtSeri, QString::fromUtf8(seri));
    test::Yaz(d.txtSozlesmeNo, QString::fromUtf8(no));
    test::Tikla(d.OKButton);
    QStringList l;
    for (int i = 0; i < d.lstSonuc->count(); ++i)
      l << d.lstSonuc->item(i)->text() + " #" + d.lstSonuc->item(i)->data(Qt::UserRole).toString();
    return l.join(',');
  }
};

TEST_F(SozBulTest, SeriVeNumarayaGoreListelerReddeder) {
  auto d = BulAc();
  EXPECT_EQ(d->windowTitle() + '|' + Metinler({d->txtSeri, d->OKButton, d->CancelButton}),
            "Sözleşme Ara|A|Ara|Vazgeç");
  // Without a series every series is searched. A refusal keeps the list.
  const std::tuple<const char*, const char*, const char*, const char*> aramalar[] = {
      {"A", "7", "05.01.2024 - 7 #11,01.03.2024 - 7 #14", ""},
      {"B", "007", "10.02.2024 - 7 #12", ""},
      {"", "7", "05.01.2024 - 7 #11,10.02.2024 - 7 #12,01.03.2024 - 7 #14", ""},
      {"A'", "7", "", ""},
      {"A", "9", "", ""},
      {"A", "8", "11.02.2024 - 8 #13", ""},
      {"A", "", "11.02.2024 - 8 #13", "Bilgi UYARI: Sözleşme Numarası Girmelisiniz"},
      {"A", "8b", "11.02.2024 - 8 #13", "Bilgi UYARI: Sözleşme Numarası Sayı Değil"},
  };
  for (const auto& [seri, no, liste, mesaj] : aramalar) {
    SCOPED_TRACE(std::string(seri) + ' ' + no);
    EXPECT_EQ(Ara(*d, seri, no), QString::fromUtf8(liste));
    EXPECT_EQ(Kutular(), QString::fromUtf8(mesaj));
  }
  // The engine away: its words, the list as it was, the dialog open.
  Genel::Baglanti.Kapat();
  EXPECT_EQ(Ara(*d, "A", "7"), "11.02.2024 - 8 #13");
  EXPECT_EQ(Kutular(), "Kritik HATA: Bir Hata Oluştu\nVeri tabanı açık değil");
  Genel::Baglanti.Ac(Genel::VeriTabaniYolu());
  EXPECT_EQ(Ara(*d, "B", "7"), "10.02.2024 - 7 #12");
  EXPECT_TRUE(d->isVisible());
}

TEST_F(SozBulTest, CiftTiklamaSecerVazgecSifirVerir) {
  auto d = BulAc();
  Ara(*d, "", "7");
  const QPoint ikinci = d->lstSonuc->visualItemRect(d->lstSonuc->item(1)).center();
  QTest::mouseClick(d->lstSonuc->viewport(), Qt::LeftButton, {}, ikinci);
  QTest::mouseDClick(d->lstSonuc->viewport(), Qt::LeftButton, {}, ikinci);
  Isle();
  EXPECT_EQ(BulunanSozlesmeID, 12);
  EXPECT_FALSE(d->isVisible());
  d = BulAc();
  Ara(*d, "A", "8");
  d->close();
  EXPECT_EQ(BulunanSozlesmeID, 12);
  d = BulAc();
  test::Tikla(d->CancelButton);
  EXPECT_EQ(BulunanSozlesmeID, 0);
  EXPECT_FALSE(d->isVisible());
  BulunanSozlesmeID = 14;
  d = BulAc();
  QTest::keyClick(d.get(), Qt::Key_Escape);
  EXPECT_EQ(BulunanSozlesmeID, 0);
}

TEST(SozlesmeNoOku, SayilarVeSinirlar) {
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral(" 007 ")), 7);
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral("000000000002147483647")), 2147483647);
  EXPECT_EQ(contract::SozlesmeNoOku(QStringLiteral("-2147483648")), -2147483647 - 1);
  for (const char* s : {"-2147483649", "1.000", "1e3", "٣", "7 8", "+"})
    EXPECT_EQ(contract::SozlesmeNoOku(QString::fromUtf8(s)), std::nullopt) << s;
}

class NoDegisTest : public test::SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("A");
    // Contract 1 (A 7) with two lines and an invoice; contract 2 (A 8) with one
    // of each, which no change of contract 1 may touch.
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) VALUES "
        "(1, 'A', 7, 12, '2024-05-02'), (2, 'A', 8, 12, '2024-05-03'); "
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Meblag) VALUES "
        "(1, 'A', 7, 'Çek', 100), (1, 'A', 7, 'Senet', 200), (2, 'A', 8, 'Çek', 300); "
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, SozlesmeID, SozlesmeSeri, SozlesmeNo) VALUES "
        "('F', 1, 1, 'A', 7), ('F', 2, 2, 'A', 8)");
    f_ = Pencere<frmNoDegis>();
  }
  frmNoDegis* f_ = nullptr;

  // Series and number of every row of Sozlesme, SozlesmeDetay and Fatura.
  static QString Numaralar() {
    return Tablo(
        "SELECT group_concat(x, ', ') FROM (SELECT x FROM ("
        "SELECT 'S' || SozlesmeID || ': ' || SozlesmeSeri || ' ' || SozlesmeNo AS x FROM Sozlesme "
        "UNION ALL SELECT 'D' || GirisNo || ': ' || SozlesmeSeri || ' ' || SozlesmeNo "
        "FROM SozlesmeDetay UNION ALL SELECT 'F' || FaturaNo || ': ' || SozlesmeSeri || ' ' || "
        "SozlesmeNo FROM Fatura) ORDER BY x)");
  }
  QString Degistir(const char* eskiSeri, const char* eski, const char* yeniSeri, const char* yeni) {
    test::Yaz(f_->txtEskiSeri, QString::fromUtf8(eskiSeri));
    test::Yaz(f_->txtEski, QString::fromUtf8(eski));
    test::Yaz(f_->txtYeniSeri, QString::fromUtf8(yeniSeri));
    test::Yaz(f_->txtYeni, QString::fromUtf8(yeni));
    test::Tikla(f_->cmdIslem);
    return Kutular();
  }
};

const QString kBaslangic = "D1: A 7, D2: A 7, D3: A 8, F1: A 7, F2: A 8, S1: A 7, S2: A 8";
const QString kTamam = "Bilgi Mesaj: İşlem Başarıyla Sonuçlandı";

TEST_F(NoDegisTest, SozlesmeSatirlariVeFaturasiYeniNumarayaGecer) {
  ASSERT_EQ(Numaralar(), kBaslangic);
  // The series alone changes; blanks and leading zeros don't matter; the dialog stays.
  EXPECT_EQ(Degistir("A", " 007", "B", "7"), kTamam);
  EXPECT_EQ(Numaralar(), "D1: B 7, D2: B 7, D3: A 8, F1: B 7, F2: A 8, S1: B 7, S2: A 8");
  EXPECT_TRUE(f_->isVisible());
  EXPECT_EQ(f_->txtYeniSeri->text(), "B");
  // Now the number within the series; the freed pair A 7 may be taken again.
  EXPECT_EQ(Degistir("B", "7", "B", "2147483647"), kTamam);
  EXPECT_EQ(Degistir("A", "8", "A", "7"), kTamam);
  EXPECT_EQ(Numaralar(),
            "D1: B 2147483647, D2: B 2147483647, D3: A 7, F1: B 2147483647, F2: A 7, "
            "S1: B 2147483647, S2: A 7");
}

TEST_F(NoDegisTest, ReddedilenDegisiklikHicbirSeyYazmaz) {
  const char* const eskiYok = "Kritik HATA: Eski Sözleşme Mevcut Değil";
  const char* const kullanimda = "Kritik HATA: Yeni Sözleşme Numarası Kullanımda";
  const char* const sayiDegil = "Kritik HATA: Eski Sözleşme Numarası Sayı Değil";
  QLineEdit* eski = f_->txtEski;
  QLineEdit* yeni = f_->txtYeni;
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
    Isle();
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
  EXPECT_EQ(Numaralar(), "D1: B 9, D2: B 9, D3: A 8, F1: B 9, F2: A 8, S1: B 9, S2: A 8");
}

TEST_F(NoDegisTest, AnaPencereAdiylaAcarSerilerHazir) {
  contract::NoDegisEkraniKaydet();
  Genel::SozlesmeSeri = QStringLiteral("K");
  auto* f = qobject_cast<frmNoDegis*>(ekran::Ac(QStringLiteral("frmNoDegis")));
  ASSERT_NE(f, nullptr);
  EXPECT_EQ(f->windowTitle() + '|' + Metinler({f->txtEskiSeri, f->txtEski, f->txtYeniSeri}),
            "Sözleşme Numarası Değişikliği|K||K");
  test::Tikla(f->cmdExit);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(ekran::Acik(QStringLiteral("frmNoDegis")), nullptr);
}

}  // namespace
