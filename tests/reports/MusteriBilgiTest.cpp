// The customer statement: the four views by a paper's state, the dates that
// bound its payment, the customer picked or all of them, and the figures
// under the list.

#include "reports/frmMusteriBilgi.h"
#include "tests/reports/Ortak.h"

namespace {

using test::Gun;
using test::Tikla;
using test::Yaz;

class MusteriBilgi : public test::RaporEkrani<frmMusteriBilgi> {
 protected:
  void SetUp() override {
    RaporEkrani::SetUp();
    test::Ekle("Musteri(MusteriNo, Soyadi, Adi, HukukiDurum)",
               "(1, 'YILMAZ', 'ALİ', 1), (2, 'KAYA', 'ŞÜKRÜ', 1)");
    // Contract 1 of ALİ starts 10 days ago with 3 extra days; contract 2 is ŞÜKRÜ's.
    test::Ekle("Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, ilaveGun)",
               "(1, 'AB', 7, 1, @-10, 3), (2, 'AB', 8, 2, @-10, 0)");
  }
  // Papers: contract, drawer, maturity, payment (Null: bounced), amount, day
  // count (0: reckoned).
  static void Cekler(const QString& satirlar) {
    test::Ekle("SozlesmeDetay(SozlesmeID, Kesideci, Vadesi, Odenmesi, Meblag, Gun)", satirlar);
  }
  // The view as the clerk reads it: title, drawers/days in order, count,
  // total, and the averages unless `ortalama` is false.
  static QString Gorulen(frmMusteriBilgi* f, bool ortalama = true) {
    if (!f->dGridDetay->isVisible()) return "gizli";
    const QStringList l = test::Satirlar(f->dGridDetay->Model(), "/",
                                         {f->rsBelge.AlanNo("Kesideci"), f->rsBelge.AlanNo("Gun")});
    QStringList g{f->lblRaporTip->text(), l.join(','), f->txtAdet->text(), f->txtToplam->text()};
    if (ortalama) g << f->lblDetayDurum->text();
    return g.join('|');
  }
};

TEST_F(MusteriBilgi, DortGorunumBirMusteriVeHepsi) {
  // Paid; due today, at risk here; bounced, its day count stored; at risk;
  // the other customer's; one whose contract was deleted by hand, never shown.
  Cekler(
      "(1, 'ÖDENDİ', @-5, @-5, 1000, 0), (1, 'BUGÜN', @0, @0, 500, 0), "
      "(1, 'KARŞILIKSIZ', @-2, NULL, 0.5, 4), (1, 'İLERİ', @20, @20, 2000, 0), "
      "(2, 'BAŞKA', @1, @1, 300, 0), (99, 'YETİM', @1, @1, 20, 0)");
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Müşteri Risk Durumu"_s);
  EXPECT_EQ(f->cmbAd->count(), 2);
  EXPECT_EQ(Gorulen(f), "gizli");

  test::ListeyeYaz(f->cmbAd, "ALİ YILMAZ", Qt::Key_Tab);
  EXPECT_EQ(f->txtMusteriNo->text(), "1");
  const QString bugun = QDate::currentDate().toString("dd-MM-yyyy");
  // Days: from the contract's date to the maturity plus 3, unless stored.
  const std::pair<QPushButton*, QString> durumlar[] = {
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
  for (const auto& [dugme, beklenen] : durumlar) {
    SCOPED_TRACE(dugme->text().toStdString());
    Tikla(dugme);
    EXPECT_EQ(Gorulen(f), beklenen);
  }

  // Back to the choice: the list hides. Emptied, it stands for every customer.
  f->cmbAd->setFocus();
  test::Isle();
  EXPECT_EQ(Gorulen(f), "gizli");
  test::ListeyeYaz(f->cmbAd, "", Qt::Key_unknown);
  QTest::keyClick(f->cmbAd->lineEdit(), Qt::Key_Delete);
  Tikla(f->cmdRisk);
  EXPECT_EQ(f->txtMusteriNo->text(), "0");
  EXPECT_EQ(Gorulen(f), bugun +
                            " İTİBARİYLE ÖDENECEK BELGELER|BUGÜN/13,BAŞKA/11,İLERİ/33|3|"
                            "2.800,00|Ortalama Tutar: 933,33      Ortalama Gün: 19,00");
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(MusteriBilgi, TarihlerOdemeyeUygulanirKarsiliksizDuser) {
  Cekler(
      "(1, 'ESKİ', @-30, @-30, 100, 0), (1, 'KARŞILIKSIZ', @-2, NULL, 50, 0), "
      "(1, 'YENİ', @-1, @-1, 10, 0)");
  auto* f = Ac();
  test::ListeyeYaz(f->cmbAd, "ALİ YILMAZ", Qt::Key_Tab);
  const QString bas = QDate::currentDate().addDays(-40).toString("dd.MM.yyyy");
  const QString son = QDate::currentDate().addDays(-5).toString("dd.MM.yyyy");
  struct Durum {
    QString bas, son;
    QPushButton* dugme;
    QString gorulen;
  };
  // A start date alone drops the bounced paper from "all"; the payment date
  // decides, not the maturity; the other views never read the dates; a view
  // without papers: zero without its leading digit, no averages.
  const Durum durumlar[] = {
      {"", "", f->cmdBilgiGoster, " BÜTÜN BELGELER|ESKİ/-17,KARŞILIKSIZ/11,YENİ/12|3|160,00"},
      {bas, "", f->cmdBilgiGoster, " İKİ TARİH ARASI BÜTÜN BELGELER|ESKİ/-17,YENİ/12|2|110,00"},
      {bas, son, f->cmdBilgiGoster, " İKİ TARİH ARASI BÜTÜN BELGELER|ESKİ/-17|1|100,00"},
      {bas, son, f->cmdKarsiliksiz,
       QDate::currentDate().toString("dd-MM-yyyy") +
           " İTİBARİYLE KARŞILIKSIZ BELGELER|KARŞILIKSIZ/11|1|50,00"},
      {"01.01.2099", "", f->cmdBilgiGoster, " İKİ TARİH ARASI BÜTÜN BELGELER||0|,00"},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE((d.bas + "-" + d.son).toStdString());
    Yaz(f->txtBastar, d.bas);
    Yaz(f->txtSonTar, d.son);
    Tikla(d.dugme);
    EXPECT_EQ(Gorulen(f, false), d.gorulen);
    EXPECT_EQ(f->txtBastar->text(), d.bas);  // not rewritten
  }
  EXPECT_EQ(f->lblDetayDurum->text(), "");
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(MusteriBilgi, HataliGirisMesajVerirOdakKalir) {
  auto* f = Ac();
  test::ListeyeYaz(f->cmbAd, "ALİ YIL", Qt::Key_Tab);
  EXPECT_EQ(Kutular(), u"Kritik Müşteri Seçimi: Lütfen Listeden Bir Müşteri Seçiniz"_s);
  EXPECT_TRUE(f->cmbAd->hasFocus() || f->cmbAd->lineEdit()->hasFocus());
  // Case by Turkish rules finds the customer.
  test::ListeyeYaz(f->cmbAd, "şükrü kaya", Qt::Key_Tab);
  EXPECT_TRUE(Mesajlar().isEmpty());
  EXPECT_EQ(f->txtMusteriNo->text(), "2");

  for (const char* hatali : {"32.01.2025", "abc", "12.13"}) {
    SCOPED_TRACE(hatali);
    Yaz(f->txtBastar, QString::fromLatin1(hatali));
    Tikla(f->cmdBilgiGoster);
    EXPECT_EQ(Kutular(), u"Kritik UYARI: Lütfen Geçerli Bir Tarih Girin"_s);
    EXPECT_TRUE(f->txtBastar->hasFocus());
    EXPECT_EQ(Gorulen(f), "gizli");
  }
  // No year limit here, unlike the collection screen.
  Yaz(f->txtBastar, "01.01.1990");
  Tikla(f->cmdBilgiGoster);
  EXPECT_TRUE(Mesajlar().isEmpty());
  EXPECT_NE(Gorulen(f), "gizli");
}

}  // namespace
