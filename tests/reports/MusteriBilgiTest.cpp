// The customer statement: the four views by a paper's state, the dates that
// bound its payment, the customer picked or all of them, and the figures
// under the list.

#include <QApplication>
#include <QtTest/QTest>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "reports/MusteriBilgi.h"
#include "reports/frmMusteriBilgi.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

using test::Tikla;
using test::Yaz;

class MusteriBilgi : public test::Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES "
        "(1, 'YILMAZ', 'ALİ', 1), (2, 'KAYA', 'ŞÜKRÜ', 1)");
    // Contract 1 of ALİ starts 10 days ago with 3 extra days; contract 2 is ŞÜKRÜ's.
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, ilaveGun) "
        "VALUES (1, 'AB', 7, 1, ?, 3), (2, 'AB', 8, 2, ?, 0)",
        {Gun(-10), Gun(-10)});
  }
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }
  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  static QString Gun(int fark) { return QDate::currentDate().addDays(fark).toString(Qt::ISODate); }
  static void Cek(int sozlesme, const char* kesideci, int vade, std::optional<int> odeme,
                  double meblag, int gun = 0) {
    Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeNo, Tip, Kesideci, Vadesi, Odenmesi, Gun, "
        "Meblag, Doviz) VALUES (?, ?, 'Çek', ?, ?, ?, ?, ?, 'TRL')",
        {sozlesme, sozlesme + 6, QString::fromUtf8(kesideci), Gun(vade),
         odeme ? QVariant(Gun(*odeme)) : QVariant(), gun, meblag});
  }

  frmMusteriBilgi* Ac() {
    ekran_ = std::make_unique<frmMusteriBilgi>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    test::Isle();
    return ekran_.get();
  }
  std::unique_ptr<frmMusteriBilgi> ekran_;

  // The view as the clerk reads it: title, drawers in order, count, total, averages.
  static QString Gorulen(frmMusteriBilgi* f) {
    if (!f->dGridDetay->isVisible()) return "gizli";
    QStringList kesideciler;
    const auto* m = f->dGridDetay->Model();
    const int k = f->rsBelge.AlanNo("Kesideci"), g = f->rsBelge.AlanNo("Gun");
    for (int r = 0; r < m->rowCount(); ++r) kesideciler << m->Metin(r, k) + "/" + m->Metin(r, g);
    return QStringList{f->lblRaporTip->text(), kesideciler.join(','), f->txtAdet->text(),
                       f->txtToplam->text(), f->lblDetayDurum->text()}
        .join('|');
  }
};

TEST_F(MusteriBilgi, DortGorunumBirMusteriVeHepsi) {
  Cek(1, "ÖDENDİ", -5, -5, 1000);         // paid
  Cek(1, "BUGÜN", 0, 0, 500);             // due today: at risk here
  Cek(1, "KARŞILIKSIZ", -2, {}, 0.5, 4);  // bounced, stored day count
  Cek(1, "İLERİ", 20, 20, 2000);          // at risk
  Cek(2, "BAŞKA", 1, 1, 300);             // the other customer's
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Müşteri Risk Durumu"_s);
  EXPECT_EQ(f->cmbAd->count(), 2);
  EXPECT_EQ(Gorulen(f), "gizli");

  test::ListeyeYaz(f->cmbAd, "ALİ YILMAZ", Qt::Key_Tab);
  EXPECT_EQ(f->txtMusteriNo->text(), "1");
  const QString bugun = QDate::currentDate().toString("dd-MM-yyyy");
  struct Durum {
    QPushButton* dugme;
    QString beklenen;
  };
  // Days: from the contract's date to the maturity plus 3, unless stored.
  const Durum durumlar[] = {
      {f->cmdBilgiGoster,
       " BÜTÜN BELGELER|ÖDENDİ/8,KARŞILIKSIZ/4,BUGÜN/13,İLERİ/33|4|3.500,50|"
       "Ortalama Tutar: 875,13      Ortalama Gün: 14,50"},
      {f->cmdRisk, bugun + " İTİBARİYLE ÖDENECEK BELGELER|BUGÜN/13,İLERİ/33|2|2.500,00|"
                           "Ortalama Tutar: 1.250,00      Ortalama Gün: 23,00"},
      {f->cmdKarsiliksiz, bugun + " İTİBARİYLE KARŞILIKSIZ BELGELER|KARŞILIKSIZ/4|1|,50|"
                                  "Ortalama Tutar: 0,50      Ortalama Gün: 4,00"},
      {f->cmdOdenen, bugun + " İTİBARİYLE ÖDENEN BELGELER|ÖDENDİ/8|1|1.000,00|"
                             "Ortalama Tutar: 1.000,00      Ortalama Gün: 8,00"},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.dugme->text().toStdString());
    Tikla(d.dugme);
    EXPECT_EQ(Gorulen(f), d.beklenen);
  }

  // Back to the choice: the list hides. Emptied, it stands for every customer.
  f->cmbAd->setFocus();
  test::Isle();
  EXPECT_EQ(Gorulen(f), "gizli");
  QTest::keyClick(f->cmbAd->lineEdit(), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(f->cmbAd->lineEdit(), Qt::Key_Delete);
  Tikla(f->cmdRisk);
  EXPECT_EQ(f->txtMusteriNo->text(), "0");
  EXPECT_EQ(Gorulen(f), bugun +
                            " İTİBARİYLE ÖDENECEK BELGELER|BUGÜN/13,BAŞKA/11,İLERİ/33|3|"
                            "2.800,00|Ortalama Tutar: 933,33      Ortalama Gün: 19,00");
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(MusteriBilgi, TarihlerOdemeyeUygulanirKarsiliksizDuser) {
  Cek(1, "ESKİ", -30, -30, 100);
  Cek(1, "KARŞILIKSIZ", -2, {}, 50);
  Cek(1, "YENİ", -1, -1, 10);
  auto* f = Ac();
  test::ListeyeYaz(f->cmbAd, "ALİ YILMAZ", Qt::Key_Tab);
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f).left(QString(" BÜTÜN BELGELER|ESKİ/-17,KARŞILIKSIZ/11,YENİ/12|3|").size()),
            " BÜTÜN BELGELER|ESKİ/-17,KARŞILIKSIZ/11,YENİ/12|3|");

  // A start date alone: the bounced paper drops out of "all".
  const QString bas = QDate::currentDate().addDays(-40).toString("dd.MM.yyyy");
  Yaz(f->txtBastar, bas);
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(
      Gorulen(f).left(QString(" İKİ TARİH ARASI BÜTÜN BELGELER|ESKİ/-17,YENİ/12|2|110,00|").size()),
      " İKİ TARİH ARASI BÜTÜN BELGELER|ESKİ/-17,YENİ/12|2|110,00|");
  EXPECT_EQ(f->txtBastar->text(), bas);  // not rewritten
  // Both: the payment date decides, not the maturity.
  Yaz(f->txtSonTar, QDate::currentDate().addDays(-5).toString("dd.MM.yyyy"));
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f).left(QString(" İKİ TARİH ARASI BÜTÜN BELGELER|ESKİ/-17|1|100,00|").size()),
            " İKİ TARİH ARASI BÜTÜN BELGELER|ESKİ/-17|1|100,00|");
  // The other views never read the dates.
  Tikla(f->cmdKarsiliksiz);
  EXPECT_TRUE(Gorulen(f).contains("|KARŞILIKSIZ/11|1|50,00|")) << Gorulen(f).toStdString();
  // A view without papers: zero without its leading digit, no averages.
  Yaz(f->txtBastar, "01.01.2099");
  Yaz(f->txtSonTar, "");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f), " İKİ TARİH ARASI BÜTÜN BELGELER||0|,00|");
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(MusteriBilgi, HataliGirisMesajVerirOdakKalir) {
  auto* f = Ac();
  test::ListeyeYaz(f->cmbAd, "ALİ YIL", Qt::Key_Tab);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen Listeden Bir Müşteri Seçiniz"});
  EXPECT_EQ(Mesajlar()[0].baslik, u"Müşteri Seçimi"_s);
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
  EXPECT_TRUE(f->cmbAd->hasFocus() || f->cmbAd->lineEdit()->hasFocus());
  // Case by Turkish rules finds the customer.
  MesajlariTemizle();
  test::ListeyeYaz(f->cmbAd, "şükrü kaya", Qt::Key_Tab);
  EXPECT_TRUE(Mesajlar().isEmpty());
  EXPECT_EQ(f->txtMusteriNo->text(), "2");

  for (const char* hatali : {"32.01.2025", "abc", "12.13"}) {
    SCOPED_TRACE(hatali);
    MesajlariTemizle();
    Yaz(f->txtBastar, QString::fromLatin1(hatali));
    Tikla(f->cmdBilgiGoster);
    EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen Geçerli Bir Tarih Girin"});
    EXPECT_EQ(Mesajlar().value(0).baslik, u"UYARI"_s);
    EXPECT_TRUE(f->txtBastar->hasFocus());
    EXPECT_EQ(Gorulen(f), "gizli");
  }
  // No year limit here, unlike the collection screen.
  MesajlariTemizle();
  Yaz(f->txtBastar, "01.01.1990");
  Tikla(f->cmdBilgiGoster);
  EXPECT_TRUE(Mesajlar().isEmpty());
  EXPECT_NE(Gorulen(f), "gizli");
}

// The statement's figures without the screen: a customer's lines whose
// contract was deleted by hand drop out of the join, never fail.
TEST_F(MusteriBilgi, SilinmisSozlesmeninSatiriDuser) {
  Cek(1, "KALAN", 0, 0, 10);
  Cek(2, "YETİM", 0, 0, 20);
  Calistir("DELETE FROM Sozlesme WHERE SozlesmeID = 2");
  musteribilgi::Secim s;
  s.bugun = QDate::currentDate();
  const musteribilgi::Sorgu q = musteribilgi::SorguKur(s);
  const db::Kayitlar rs = Genel::Baglanti.Sorgu(q.metin, q.deger);
  const musteribilgi::Ozet o = musteribilgi::Ozetle(rs);
  EXPECT_EQ(o.adet, 1);
  EXPECT_EQ(o.toplam, 10);
  EXPECT_EQ(o.gunToplam, 13);
}

}  // namespace
