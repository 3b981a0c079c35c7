// The address label: the name as its statement builds it, and the label
// itself on screen and in a PDF.

#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <memory>

#include "core/Genel.h"
#include "core/Rapor.h"
#include "master/frmMusteri.h"
#include "master/rptEtiket.h"
#include "tests/support/Ortam.h"

namespace {

class EtiketTest : public test::Ortam {
 protected:
  static void Musteri(qint64 no, const QVariant& soyadi, const QVariant& adi,
                      const QVariant& babaAdi, const QVariant& hukuki) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum, Adres, "
                       "PostaKod, Ilce, Il_Ad) VALUES (?, ?, ?, ?, ?, 'Gül Sok. No:3', '06100', "
                       "'Çankaya', 'Ankara')"),
        {no, soyadi, adi, babaAdi, hukuki});
  }

  static QVariant Ad(const QString& no) {
    db::Kayitlar rs = master::EtiketVerisi(no);
    return rs.SatirVar() ? rs.Fields(QStringLiteral("AdSoyad")) : QVariant(QStringLiteral("?"));
  }
};

TEST_F(EtiketTest, AdHukukiDurumaGoreVeNullHepsiniSiler) {
  Musteri(1, "YILMAZ", "ALİ", "VELİ", 1);
  Musteri(2, "ÖZ GIDA", "SAN. VE TİC.", "LTD. ŞTİ.", 11);
  Musteri(3, "KAYA", "AYŞE", QVariant(), 1);  // a person needs no father's name
  Musteri(4, "DEMİR", "İNŞAAT", QVariant(), 10);
  Musteri(5, "ŞEN", QVariant(), "HASAN", QVariant());
  EXPECT_EQ(Ad("1").toString(), QStringLiteral("ALİ YILMAZ"));
  EXPECT_EQ(Ad("2").toString(), QStringLiteral("ÖZ GIDA SAN. VE TİC. LTD. ŞTİ."));
  EXPECT_EQ(Ad("3").toString(), QStringLiteral("AYŞE KAYA"));
  EXPECT_TRUE(db::NullMu(Ad("4")));
  EXPECT_TRUE(db::NullMu(Ad("5")));
  db::Kayitlar rs = master::EtiketVerisi(QStringLiteral("1"));
  EXPECT_EQ(rs.Alanlar(), (QStringList{"AdSoyad", "Adres", "PostaKod", "Ilce", "Il_Ad"}));
  EXPECT_EQ(rs.RecordCount(), 1);
}

TEST_F(EtiketTest, EkrandanAcilirVePdfOlur) {
  Musteri(7, "ÇİFTÇİ", "HASAN", "YUSUF", 1);
  frmMusteri f;
  f.show();
  f.Form_Load();
  f.cmdEtiket_Click();
  auto* pencere = f.findChild<rapor::RaporPenceresi*>();
  ASSERT_NE(pencere, nullptr);
  EXPECT_TRUE(pencere->isVisible());
  const db::Kayitlar& veri = pencere->rapor().kayitlar;
  ASSERT_EQ(veri.RecordCount(), 1);
  EXPECT_EQ(veri.Deger(0, 0).toString(), QStringLiteral("HASAN ÇİFTÇİ"));

  const QString yol = veriDizini() + QStringLiteral("/etiket.pdf");
  ASSERT_TRUE(pencere->PdfKaydet(yol));
  EXPECT_EQ(rapor::SayfaSayisi(pencere->rapor()), 1);
  QFile pdf(yol);
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.read(5) == "%PDF-");
  pdf.close();
  const QString cevirici = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
  if (cevirici.isEmpty()) GTEST_SKIP() << "pdftotext yok: PDF'in metni denetlenmedi";
  QProcess p;
  p.start(cevirici, {QStringLiteral("-layout"), yol, QStringLiteral("-")});
  ASSERT_TRUE(p.waitForFinished(30000));
  const QString metin = QString::fromUtf8(p.readAllStandardOutput());
  for (const QString& parca :
       {QStringLiteral("HASAN ÇİFTÇİ"), QStringLiteral("Gül Sok. No:3"), QStringLiteral("06100"),
        QStringLiteral("Çankaya"), QStringLiteral("Ankara")})
    EXPECT_TRUE(metin.contains(parca)) << parca.toStdString() << "\n" << metin.toStdString();
}

}  // namespace
