// The firm record as the clerk keeps it.

#include <gtest/gtest.h>

#include "master/frmFirma.h"
#include "tests/master/Ortak.h"
#include "tests/support/Klavye.h"

namespace {

class Firma : public test::Ortam {
 protected:
  std::unique_ptr<frmFirma> Ac() {
    auto f = std::make_unique<frmFirma>();
    f->Yukle();
    f->show();
    QApplication::setActiveWindow(f.get());
    test::Isle();
    return f;
  }
  static QString Sutunlar(const char* adlar) {
    return test::Satirlar(QStringLiteral("SELECT %1 FROM Firma").arg(QLatin1String(adlar)));
  }
};

TEST_F(Firma, IlkAcilisNullSatiri) {
  test::Sql("DELETE FROM Firma");
  auto f = Ac();
  EXPECT_EQ(Sutunlar("Soyadi"), "NULL");  // one row, all Null
  EXPECT_EQ(f->windowTitle(), "Velmora Firma Bilgileri");
  EXPECT_EQ(f->cmbTur->currentText() + '|' + f->lblSoyadi->text() + '|' + f->cmbIl->currentText(),
            "Kuruluş|Ünvan:|İstanbul");
  EXPECT_EQ(f->cmbIl->count(), 81);
  EXPECT_EQ(f->cmbIl->currentIndex(), 33);
  // A short list of provinces falls back to its first.
  test::Sql("DELETE FROM Il_Trafik_Kodu WHERE IlKod > 10");
  f = Ac();
  EXPECT_EQ(f->cmbIl->count(), 10);
  EXPECT_EQ(f->cmbIl->currentIndex(), 0);
}

TEST_F(Firma, KaydetGenelSerileriHemenDegistirir) {
  Genel::FirmaAdi = "Eski Ad";
  auto f = Ac();
  test::Yaz(f->txtKurulusKod, "11");
  test::Yaz(f->txtVergiKimlikNo, "1234567890");
  test::Sec(f->cmbTur, "Kiş");
  EXPECT_EQ(f->lblSoyadi->text() + f->lblAdi->text() + f->lblBabaAdi->text(),
            "Soyadı:Adı:Baba Adı:");
  // Apostrophes, percent signs, underscores and Turkish letters as typed.
  test::Yaz(f->txtSoyadi, "O'Neil %100_Güç");
  test::Yaz(f->txtAdi, "Şükrü İğdeli");
  test::Yaz(f->txtBabaAdi, "Ömer");
  test::Yaz(f->txtAdres, "Atatürk Cd. No:5 'Çarşı' %_");
  test::Yaz(f->txtIlce, "Çankaya");
  test::Sec(f->cmbIl, "Ank");
  test::Yaz(f->txtPostaKod, "06100");
  test::Yaz(f->txtFaturaSeri, "FZ");
  test::Yaz(f->txtSozlesmeSeri, "SZ");
  test::Tikla(f->cmdUpdate);
  EXPECT_EQ(Kutular(), "Bilgi Bilgi: Bilgiler Kaydedildi.");
  EXPECT_EQ(Sutunlar("Soyadi, Adres, Tur, IlKod, Kuruluskod"),
            "O'Neil %100_Güç|Atatürk Cd. No:5 'Çarşı' %_|1|6|11");
  EXPECT_EQ(Genel::FaturaSeri + Genel::SozlesmeSeri, "FZSZ");
  EXPECT_EQ(Genel::FirmaAdi, "Eski Ad");  // the title waits for the next start
  // Opened again, the screen shows what was saved.
  auto g = Ac();
  EXPECT_EQ(g->txtSoyadi->text() + '|' + g->cmbTur->currentText() + '|' + g->cmbIl->currentText(),
            "O'Neil %100_Güç|Kişi|Ankara");
}

TEST_F(Firma, IptalKayitliHaliGeriGetirirSinirlarAsilmaz) {
  test::Sql("UPDATE Firma SET Soyadi = 'Kayıtlı', Tur = 2");
  auto f = Ac();
  test::Yaz(f->txtSoyadi, "Değişti");
  test::Sec(f->cmbTur, "K");  // from Kuruluş down to Kişi
  EXPECT_EQ(f->cmbTur->currentIndex(), 0);
  test::Tikla(f->cmdCancel);
  EXPECT_EQ(f->txtSoyadi->text(), "Kayıtlı");
  EXPECT_EQ(f->cmbTur->currentIndex(), 1);
  EXPECT_TRUE(Mesajlar().isEmpty());
  const QList<QPair<QLineEdit*, int>> sinirlar = {
      {f->txtKurulusKod, 2}, {f->txtVergiKimlikNo, 10}, {f->txtSoyadi, 20}, {f->txtAdi, 16},
      {f->txtBabaAdi, 16},   {f->txtAdres, 50},         {f->txtIlce, 15},   {f->txtPostaKod, 5},
      {f->txtFaturaSeri, 2}, {f->txtSozlesmeSeri, 2}};
  for (const auto& [kutu, sinir] : sinirlar) {
    kutu->clear();
    kutu->insert(QString(sinir + 5, QChar(0x015E)));
    EXPECT_EQ(kutu->text().size(), sinir) << kutu->objectName().toStdString();
  }
}

TEST_F(Firma, SinirdanUzunKayitliDegerlerOlduguGibiKalir) {
  const QString unvan = "ÇAĞDAŞ GÜNEŞ FİNANS VE DANIŞMANLIK";
  test::Sql("UPDATE Firma SET Soyadi = ?, FaturaSeri = 'ABC'", {unvan});
  auto f = Ac();
  EXPECT_EQ(f->txtSoyadi->text(), unvan);
  EXPECT_EQ(f->txtFaturaSeri->text(), "ABC");
  // Typing cannot make the longer value longer still; deleting shortens it,
  // and then the limit holds again.
  QTest::keyClick(f->txtFaturaSeri, Qt::Key_End);
  test::Tusla(f->txtFaturaSeri, "D");
  EXPECT_EQ(f->txtFaturaSeri->text(), "ABC");
  QTest::keyClick(f->txtFaturaSeri, Qt::Key_Backspace);
  test::Tusla(f->txtFaturaSeri, "X");
  EXPECT_EQ(f->txtFaturaSeri->text(), "AB");
  f->cmdUpdate_Click();
  EXPECT_EQ(Sutunlar("Soyadi, FaturaSeri"), unvan + "|AB");
}

}  // namespace
