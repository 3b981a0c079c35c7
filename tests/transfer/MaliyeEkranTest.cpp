// The transfer screen as the clerk uses it: months picked from the lists, the
// limit typed and left, one button, and what comes back: the messages in
// their order, the summary, the control list and its file.

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <memory>

#include "core/Genel.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"
#include "transfer/frmMaliye.h"

namespace {

class MaliyeEkran : public test::Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    ASSERT_TRUE(cikti_.isValid());
    qputenv("VELMORA_CIKTI", cikti_.path().toUtf8());
    frmMaliye::DosyaAcici() = [this](const QString& yol) { acilan_ << yol; };
  }
  void TearDown() override {
    ekran_.reset();
    qunsetenv("VELMORA_CIKTI");
    Ortam::TearDown();
  }

  frmMaliye* Ac() {
    ekran_ = std::make_unique<frmMaliye>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    test::Isle();
    return ekran_.get();
  }
  // A list entry picked with the keyboard: the first, then down.
  static void Sec(QComboBox* liste, int sira) {
    liste->setFocus();
    test::Isle();
    QTest::keyClick(liste, Qt::Key_Home);
    for (int i = 0; i < sira; ++i) QTest::keyClick(liste, Qt::Key_Down);
    test::Isle();
  }
  void Donem(frmMaliye* f, int ay0, int yil0, int ay1, int yil1) {
    Sec(f->cmbAy[0], ay0 - 1);
    Sec(f->cmbYear[0], yil0 - 2000);
    Sec(f->cmbAy[1], ay1 - 1);
    Sec(f->cmbYear[1], yil1 - 2000);
  }
  static void LimitYaz(frmMaliye* f, const QString& metin) {
    test::Yaz(f->txtLimit, metin);
    QTest::keyClick(f->txtLimit, Qt::Key_Tab);
    test::Isle();
  }
  // A click as the mouse gives it: the press takes the focus, running the
  // check of the box left; a refused check drops the click.
  static void Bas(QPushButton* d) {
    test::Tikla(d);
    test::Isle();
  }
  QString Dosya(const char* ad) const { return QDir(cikti_.path()).filePath(ad); }
  QStringList Dosyalar() const { return QDir(cikti_.path()).entryList(QDir::Files); }

  static void Veri() {
    Genel::Baglanti.Calistir(
        "UPDATE Firma SET VergiKimlikNo = '5555555555', Soyadi = 'FİRMA', IlKod = 6;"
        "INSERT INTO Musteri(MusteriNo, VergiKimlikNo, Soyadi, Adi, IlKod, Uyruk) "
        "VALUES (4, '1234567890', 'KAYA', 'ŞÜKRÜ', 6, 1), (8, '12', 'ARSLAN', 'EDA', 34, 1);"
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "FaizTutar, Doviz) VALUES (1, 'A', 1, 4, '2005-02-03', 1234567.4, 0, 'TRL'),"
        "(2, 'A', 2, 8, '2005-03-03', 20000, 100, 'USD');"
        "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag, Doviz) "
        "VALUES (1, '2005-03-01', '2005-03-02', 20000, 'TRL')");
  }

  QTemporaryDir cikti_;
  QStringList acilan_;
  std::unique_ptr<frmMaliye> ekran_;
};

TEST_F(MaliyeEkran, AcilisDonemVeLimitHatalari) {
  Veri();
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), "Maliye Raporu Hazırla");
  EXPECT_EQ(f->cmbAy[0]->count(), 12);
  EXPECT_EQ(f->cmbAy[0]->itemText(1), "Şubat");
  EXPECT_EQ(f->cmbAy[1]->itemText(11), "Aralık");
  const int buYil = QDate::currentDate().year();
  for (int i : {0, 1}) {
    EXPECT_EQ(f->cmbAy[i]->currentIndex(), -1);
    EXPECT_EQ(f->cmbYear[i]->currentText(), QString::number(buYil));
  }
  EXPECT_EQ(f->cmbYear[0]->itemText(0), "2000");
  EXPECT_EQ(f->cmbYear[1]->itemText(f->cmbYear[1]->count() - 1), QString::number(buYil + 1));
  EXPECT_EQ(f->txtLimit->text(), "10.000");
  EXPECT_TRUE(f->lblAdres->text().contains("Yeni Ziraat Mah. Etlik Cad. No:16 06110 Dışkapı"));
  EXPECT_FALSE(f->cmdCSV->isVisible());
  EXPECT_FALSE(f->DataGrid1->isVisible());

  // No period, only its first month, and the months the wrong way round.
  Bas(f->cmdHazirla);
  EXPECT_EQ(Kutular(), "Bilgi HATIRLATMA: Lütfen ilk olarak dönemi seçiniz.");
  Sec(f->cmbAy[0], 1);
  Bas(f->cmdHazirla);
  EXPECT_EQ(Kutular(), "Bilgi HATIRLATMA: Lütfen ilk olarak dönemi seçiniz.");
  Donem(f, 3, 2005, 1, 2005);
  Bas(f->cmdHazirla);
  EXPECT_EQ(Kutular(), "Kritik HATA: Başlangıç Tarihi Bitiş Tarihinden Küçük Olmalı");
  EXPECT_TRUE(Dosyalar().isEmpty());
  EXPECT_TRUE(acilan_.isEmpty());

  // The limit as it is left.
  const struct {
    const char* yazilan;
    const char* gorunen;
  } durumlar[] = {{"50.000.000", "50"}, {"250000", "250.000"}, {"250001", "0"},
                  {"2500000", "2"},     {"3500000", "4"},      {"12,6", "13"}};
  for (const auto& d : durumlar) {
    LimitYaz(f, d.yazilan);
    EXPECT_EQ(f->txtLimit->text(), d.gorunen) << d.yazilan;
  }
  EXPECT_TRUE(Mesajlar().isEmpty());
  LimitYaz(f, "on bin");
  EXPECT_EQ(Kutular(), "Kritik HATA: Geçerli bir limit giriniz.");
  EXPECT_EQ(QApplication::focusWidget(), f->txtLimit);
}

TEST_F(MaliyeEkran, CalistirmaOzetKontrolListesiVeCsv) {
  Veri();
  auto* f = Ac();
  Donem(f, 1, 2005, 3, 2005);
  // The messages as shown, with the count standing whole while the faults
  // are shown; while the rate warning stands, the clerk presses the button
  // again and tries to close the screen.
  QVector<mesaj::Kayit> kutular;
  QStringList sayaclar;
  mesaj::CevaplayiciKur([&](const mesaj::Kayit& k) {
    kutular << k;
    if (k.tur == mesaj::Tur::Duz) sayaclar << f->lblMesaj->text();
    if (k.baslik == "UYARI") {
      EXPECT_FALSE(f->cmdHazirla->isEnabled());
      QTest::mouseClick(f->cmdHazirla, Qt::LeftButton);
      f->cmdHazirla_Click();
      QTest::mouseClick(f->cmdExit, Qt::LeftButton);
      EXPECT_TRUE(f->isVisible());
    }
    return mesaj::Dugme::Tamam;
  });
  Bas(f->cmdHazirla);
  // The rate warning as it is met, the faults at the end, then where the file is.
  ASSERT_EQ(kutular.size(), 3);
  EXPECT_EQ(kutular[0].metin, "Tanımsız Döviz var, lütfen tanımladıktan sonra çalıştırın.");
  EXPECT_EQ(kutular[0].tur, mesaj::Tur::Kritik);
  EXPECT_EQ(kutular[1].metin,
            "8 Numaralı ARSLAN EDA Müşterisinin Vergi numarasının uzunluğu hatalı.\r\n");
  EXPECT_EQ(kutular[2].baslik, "DİKKAT");
  EXPECT_EQ(kutular[2].tur, mesaj::Tur::Bilgi);
  EXPECT_TRUE(kutular[2].metin.contains(Dosya("Velmora.xml")));
  EXPECT_EQ(sayaclar, QStringList{"Aktarılan Kayıt: 3"});

  EXPECT_EQ(f->lblMesaj->text(),
            "Ödünç Tutar : 1.234.567,40\nTahsil Tutar:  20.000,00\n Aktarılan Kayıt: 3");
  EXPECT_EQ(acilan_, QStringList{Dosya("Velmora.xml")});
  EXPECT_TRUE(QFile::exists(Dosya("HataliKayit.txt")));
  EXPECT_TRUE(f->cmdHazirla->isEnabled());

  // The grid: the rows of the main query with their captions and formats.
  ASSERT_TRUE(f->DataGrid1->isVisible());
  EXPECT_TRUE(f->cmdCSV->isVisible());
  auto* m = f->DataGrid1->Model();
  ASSERT_EQ(m->rowCount(), 3);
  QStringList basliklar;
  for (int c : {0, 2, 13, 21})
    basliklar << m->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
  EXPECT_EQ(basliklar, (QStringList{"Vergi No", "Soyadı", "Vekil Adi", "Faiz Tutar"}));
  for (int c : {1, 17, 19, 23}) EXPECT_EQ(f->DataGrid1->isColumnHidden(c), c < 19) << c;
  EXPECT_EQ(m->Metin(0, 19), "03.02.2005");
  EXPECT_EQ(m->Metin(0, 20), "1.234.567");
  EXPECT_EQ(m->Metin(0, 21), "");  // 0 shows nothing
  EXPECT_EQ(m->Metin(1, 20), "20.000");
  EXPECT_EQ(m->data(m->index(0, 20), Qt::TextAlignmentRole).toInt(),
            int(Qt::AlignRight | Qt::AlignVCenter));

  Bas(f->cmdCSV);
  QFile csv(Dosya("MaliyeBilgiKontrol.csv"));
  ASSERT_TRUE(csv.open(QIODevice::ReadOnly));
  const QList<QByteArray> satirlar = csv.readAll().split('\n');
  ASSERT_EQ(satirlar.size(), 5);  // names, three rows, nothing behind the last CR LF
  EXPECT_TRUE(satirlar[0].startsWith("VergiKimlikNo\tMusteriNo\t"));
  EXPECT_TRUE(satirlar[1].startsWith("1234567890\t4\tKAYA\t" + QString("ŞÜKRÜ").toUtf8()));
  EXPECT_EQ(f->rsKontrol.AbsolutePosition(), 1);
}

// A period without rows: no grid, the file opened all the same, and no fault
// list, the last run's left as it was.
TEST_F(MaliyeEkran, BosDonemGridGizliDosyaYineAcilir) {
  Veri();
  QFile liste(Dosya("HataliKayit.txt"));
  ASSERT_TRUE(liste.open(QIODevice::WriteOnly) && liste.write("önceki liste") > 0);
  liste.close();
  auto* f = Ac();
  Donem(f, 6, 2005, 6, 2005);
  Bas(f->cmdHazirla);
  EXPECT_EQ(MesajMetinleri().size(), 1);
  EXPECT_EQ(Mesajlar()[0].baslik, "DİKKAT");
  EXPECT_EQ(f->lblMesaj->text(), "Ödünç Tutar : 0,00\nTahsil Tutar:  0,00");
  EXPECT_FALSE(f->DataGrid1->isVisible());
  EXPECT_FALSE(f->cmdCSV->isVisible());
  EXPECT_EQ(acilan_.size(), 1);
  EXPECT_EQ(Dosyalar(), (QStringList{"HataliKayit.txt", "Velmora.xml"}));
  ASSERT_TRUE(liste.open(QIODevice::ReadOnly));
  EXPECT_EQ(liste.readAll(), "önceki liste");
}

TEST_F(MaliyeEkran, YazilamayanKlasorMesajVerir) {
  Veri();
  const QString dosya = Dosya("engel");
  {
    QFile f(dosya);
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  }
  qputenv("VELMORA_CIKTI", (dosya + "/alt").toUtf8());
  auto* f = Ac();
  Donem(f, 1, 2005, 3, 2005);
  Bas(f->cmdHazirla);
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_TRUE(Kutular().startsWith("Kritik HATA: Bir Hata Oluştu\n"));
  EXPECT_TRUE(acilan_.isEmpty());
  EXPECT_TRUE(f->cmdHazirla->isEnabled());
}

}  // namespace
