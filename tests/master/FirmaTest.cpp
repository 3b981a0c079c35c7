// The firm record as the clerk keeps it.

#include <gtest/gtest.h>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "master/frmFirma.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

namespace {

class Firma : public test::Ortam {
 protected:
  std::unique_ptr<frmFirma> Ac() {
    auto f = std::make_unique<frmFirma>();
    f->Yukle();
    return f;
  }
  QVariant Sutun(const char* ad) {
    return Genel::Baglanti.Deger(QStringLiteral("SELECT %1 FROM Firma").arg(QLatin1String(ad)));
  }
};

TEST_F(Firma, IlkAcilisNullSatiri) {
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Firma"));
  auto f = Ac();
  EXPECT_EQ(Genel::Baglanti.Deger(QStringLiteral("SELECT count(*) FROM Firma")).toInt(), 1);
  EXPECT_TRUE(db::NullMu(Sutun("Soyadi")));
  EXPECT_EQ(f->cmbTur->currentText(), QStringLiteral("Kuruluş"));
  EXPECT_EQ(f->lblSoyadi->text(), QStringLiteral("Ünvan:"));
  EXPECT_EQ(f->cmbIl->count(), 81);
  EXPECT_EQ(f->cmbIl->currentIndex(), 33);
  EXPECT_EQ(f->cmbIl->currentText(), QStringLiteral("İstanbul"));
  EXPECT_EQ(f->windowTitle(), QStringLiteral("Velmora Firma Bilgileri"));
}

TEST_F(Firma, KaydetGenelSerileriHemenDegistirir) {
  Genel::FirmaAdi = QStringLiteral("Eski Ad");
  auto f = Ac();
  f->txtKurulusKod->setText(QStringLiteral("11"));
  f->txtVergiKimlikNo->setText(QStringLiteral("1234567890"));
  f->cmbTur->setCurrentIndex(0);
  EXPECT_EQ(f->lblSoyadi->text(), QStringLiteral("Soyadı:"));
  EXPECT_EQ(f->lblAdi->text(), QStringLiteral("Adı:"));
  EXPECT_EQ(f->lblBabaAdi->text(), QStringLiteral("Baba Adı:"));
  // Apostrophes, percent signs, underscores and Turkish letters as typed.
  f->txtSoyadi->setText(QStringLiteral("O'Neil %100_Güç"));
  f->txtAdi->setText(QStringLiteral("Şükrü İğdeli"));
  f->txtBabaAdi->setText(QStringLiteral("Ömer"));
  f->txtAdres->setText(QStringLiteral("Atatürk Cd. No:5 'Çarşı' %_"));
  f->txtIlce->setText(QStringLiteral("Çankaya"));
  f->cmbIl->setCurrentIndex(5);
  f->txtPostaKod->setText(QStringLiteral("06100"));
  f->txtFaturaSeri->setText(QStringLiteral("FZ"));
  f->txtSozlesmeSeri->setText(QStringLiteral("SZ"));
  f->cmdUpdate_Click();

  EXPECT_EQ(MesajMetinleri(), QStringList{QStringLiteral("Bilgiler Kaydedildi.")});
  EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("Bilgi"));
  EXPECT_EQ(Sutun("Soyadi").toString(), QStringLiteral("O'Neil %100_Güç"));
  EXPECT_EQ(Sutun("Adres").toString(), QStringLiteral("Atatürk Cd. No:5 'Çarşı' %_"));
  EXPECT_EQ(Sutun("Tur").toInt(), 1);
  EXPECT_EQ(Sutun("IlKod").toInt(), 6);
  EXPECT_EQ(Sutun("Kuruluskod").toString(), QStringLiteral("11"));
  EXPECT_EQ(Genel::FaturaSeri, QStringLiteral("FZ"));
  EXPECT_EQ(Genel::SozlesmeSeri, QStringLiteral("SZ"));
  EXPECT_EQ(Genel::FirmaAdi, QStringLiteral("Eski Ad"));  // the title waits for the next start

  // Opened again, the screen shows what was saved.
  auto g = Ac();
  EXPECT_EQ(g->txtSoyadi->text(), QStringLiteral("O'Neil %100_Güç"));
  EXPECT_EQ(g->cmbTur->currentText(), QStringLiteral("Kişi"));
  EXPECT_EQ(g->cmbIl->currentText(), QStringLiteral("Ankara"));
}

TEST_F(Firma, IptalKayitliHaliGeriGetirirSinirlarAsilmaz) {
  Genel::Baglanti.Calistir(QStringLiteral("UPDATE Firma SET Soyadi = 'Kayıtlı', Tur = 2"));
  auto f = Ac();
  f->txtSoyadi->setText(QStringLiteral("Değişti"));
  f->cmbTur->setCurrentIndex(0);
  f->cmdCancel_Click();
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("Kayıtlı"));
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
  const QString unvan = QStringLiteral("ÇAĞDAŞ GÜNEŞ FİNANS VE DANIŞMANLIK");
  Genel::Baglanti.Calistir(QStringLiteral("UPDATE Firma SET Soyadi = ?, FaturaSeri = 'ABC'"),
                           {unvan});
  auto f = Ac();
  EXPECT_EQ(f->txtSoyadi->text(), unvan);
  EXPECT_EQ(f->txtFaturaSeri->text(), QStringLiteral("ABC"));
  // Typing cannot make the longer value longer still; deleting shortens it,
  // and then the limit holds again.
  QTest::keyClick(f->txtFaturaSeri, Qt::Key_End);
  test::Tusla(f->txtFaturaSeri, QStringLiteral("D"));
  EXPECT_EQ(f->txtFaturaSeri->text(), QStringLiteral("ABC"));
  QTest::keyClick(f->txtFaturaSeri, Qt::Key_Backspace);
  test::Tusla(f->txtFaturaSeri, QStringLiteral("X"));
  EXPECT_EQ(f->txtFaturaSeri->text(), QStringLiteral("AB"));
  f->cmdUpdate_Click();
  EXPECT_EQ(Sutun("Soyadi").toString(), unvan);
  EXPECT_EQ(Sutun("FaturaSeri").toString(), QStringLiteral("AB"));
}

TEST_F(Firma, KisaIlListesiIlkIleDuser) {
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Il_Trafik_Kodu WHERE IlKod > 10"));
  auto f = Ac();
  EXPECT_EQ(f->cmbIl->count(), 10);
  EXPECT_EQ(f->cmbIl->currentIndex(), 0);
}

}  // namespace
