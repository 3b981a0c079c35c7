// The invoice without a contract, opened from the customer screen: the date
// box, the amount, the number, the save that replaces an invoice of its own
// kind but never a contract's, and the print.

#include "invoice/FaturaBaski.h"
#include "invoice/frmFaturaEk.h"
#include "master/frmMusteri.h"
#include "tests/invoice/FaturaEkran.h"

namespace {

class FaturaEk : public test::FaturaEkran {
 protected:
  void SetUp() override {
    FaturaEkran::SetUp();
    Calistir("UPDATE Musteri SET VergiDairesi = 'Kavaklıdere' WHERE MusteriNo = 12");
  }
  void TearDown() override {
    ek_.reset();
    musteri_.reset();
    FaturaEkran::TearDown();
  }
  frmMusteri* MusteriAc() {
    musteri_ = std::make_unique<frmMusteri>();
    musteri_->show();
    QApplication::setActiveWindow(musteri_.get());
    musteri_->Form_Load();
    musteri_->KisiBul(12);
    return musteri_.get();
  }
  // The customer screen on customer 12 and the dialogue over it; with a date,
  // a description, an amount and a number typed when given.
  frmFaturaEk* EkAc(const QStringList& yazilan = {}) {
    ek_ = std::make_unique<frmFaturaEk>(MusteriAc());
    ek_->show();
    QApplication::setActiveWindow(ek_.get());
    ek_->Form_Load();
    test::Isle();
    const QList<QLineEdit*> kutular = {ek_->txtTarih, ek_->txtAciklama, ek_->txtTutar,
                                       ek_->txtFaturaNo};
    for (int i = 0; i < yazilan.size(); ++i) Yaz(kutular[i], yazilan[i]);
    return ek_.get();
  }
  std::unique_ptr<frmMusteri> musteri_;
  std::unique_ptr<frmFaturaEk> ek_;
};

TEST_F(FaturaEk, BosBaslarHesaplarKaydeder) {
  auto* f = EkAc();
  const auto rakamlar = [f] {
    return Metinler({f->txtTutar, f->txtBMOran, f->txtBMVergisi, f->txtMasraf, f->txtPul,
                     f->txtToplamOdeme, f->txtGenelToplam, f->lblYazi});
  };
  EXPECT_EQ(f->windowTitle(), "Ek Fatura");
  EXPECT_EQ(Metinler({f->txtTarih, f->txtFaturaSeri, f->txtFaturaNo, f->txtAciklama,
                      f->txtMusteriNo, f->lblMusteri, f->lblVergi}),
            "|A|||12|YILMAZ ALİ |Kavaklıdere-");
  EXPECT_EQ(rakamlar(), "|5|||0,00|||");
  EXPECT_FALSE(f->cmdYazdir->isEnabled());
  // The date box of the collection screens.
  Yaz(f->txtTarih, "10.03.05");
  Yaz(f->txtAciklama, "Danışmanlık");
  EXPECT_EQ(f->txtTarih->text(), "10.03.2005");
  Yaz(f->txtTarih, "31.12.1999");
  Yaz(f->txtAciklama, QString());
  EXPECT_EQ(Kutular(), "Kritik Dikkat: Hatalı Tarih");
  EXPECT_EQ(QApplication::focusWidget(), f->txtTarih);
  Yaz(f->txtTarih, "10.03.2005");
  // The amount: rewritten as money when left, and Hesapla runs.
  Yaz(f->txtTutar, "1000");
  Yaz(f->txtMasraf, QString());
  EXPECT_EQ(rakamlar(), "1.000,00|5|50,00|0.00|0,00|50,00|1.050,00|BİNELLİ Yeni Lira ");
  // A stamp duty typed counts at the next run only.
  Yaz(f->txtPul, "2,5");
  EXPECT_EQ(f->txtGenelToplam->text(), "1.050,00");
  Yaz(f->txtBMOran, "5");
  Yaz(f->txtFaturaNo, QString());
  EXPECT_EQ(f->txtGenelToplam->text(), "1.052,50");
  Yaz(f->txtFaturaNo, "7");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(), "");
  EXPECT_TRUE(f->cmdYazdir->isEnabled());
  EXPECT_EQ(Tablo("SELECT FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, SozlesmeSeri, "
                  "SozlesmeNo, Aciklama, Tutar, BMVergisiYuzde, BMVergisi, TahsilMasrafi, "
                  "PulBedeli, ToplamMasraf, ToplamTutar, Yaziyla FROM Fatura"),
            "A|7|2005-03-10|12|NULL|NULL|NULL|Danışmanlık|1000|5|50|0|2.5|52.5|1052.5|"
            "Yalnız BİNELLİİKİ Yeni Lira ELLİ Yeni Kuruş TL.");
  // Saved again under the same number: one row, the later one.
  Yaz(f->txtTutar, "2000");
  Yaz(f->txtFaturaNo, QString());
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Tablo("SELECT FaturaNo, Tutar FROM Fatura"), "7|2000");
}

TEST_F(FaturaEk, SozlesmeFaturasininNumarasiniAlamaz) {
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar) "
      "VALUES ('A', 3, '2005-01-01', 12, 1, 40000)");
  auto* f = EkAc();
  // The proposal counts every invoice of the series, whatever its date.
  ASSERT_TRUE(Bas(f->cmdFatNo));
  EXPECT_EQ(f->txtFaturaNo->text(), "4");
  Yaz(f->txtTarih, "10.03.2005");
  Yaz(f->txtTutar, "100");
  Yaz(f->txtFaturaNo, "3");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(),
            "Kritik Çift Fatura Numarası: Bu numara bir sözleşmenin faturasıdır, değiştirilemez.");
  EXPECT_EQ(Tablo("SELECT FaturaNo, SozlesmeID, Tutar FROM Fatura"), "3|1|40000");
  EXPECT_FALSE(f->cmdYazdir->isEnabled());
  // Without a date: the save's own message, without the engine's text.
  Yaz(f->txtTarih, "");
  Yaz(f->txtFaturaNo, "4");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(),
            "Kritik Çift Fatura Numarası: Kayıt Eklenemedi! Lütfen Bilgileri Kontol Edin!");
  // No invoice of the series at all.
  Genel::FaturaSeri = "Z";
  ASSERT_TRUE(Bas(f->cmdFatNo));
  EXPECT_EQ(Kutular(), "Kritik Velmora: Hiç Fatura Kesmemissiniz");
}

TEST_F(FaturaEk, YazdirDosyaya) {
  auto* f = EkAc({"10.03.2005", "Kira", "0,75", "9"});
  Cevap(mesaj::Dugme::Tamam);
  // Printing saves first; no tax number is needed.
  f->cmdYazdir->setEnabled(true);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  EXPECT_EQ(Kutular(), "Soru Printer Seçimi: Lütfen Printer Seçiciyi FATURA için Ayarlayın");
  const auto satir = fatura::EkFaturaSatiri(Genel::Baglanti, "A", 9);
  ASSERT_TRUE(std::holds_alternative<baski::Kayit>(satir));
  const QByteArray dosya = Dosya(Genel::PrinterFatura);
  EXPECT_EQ(dosya, fatura::FaturaAkisi(fatura::Bicim::Ek, std::get<baski::Kayit>(satir),
                                       fatura::YaziAyari::Genelden())
                       .baytlar);
  EXPECT_TRUE(dosya.split('\n')[27].startsWith("         Kira "))
      << dosya.split('\n')[27].toStdString();
  // A long, odd description is saved as it is; too long for TutarBas, the
  // lines before it reach the printer, and the failure is told.
  const QString uzun = "O'Brien & Şükrü € " + QString(10000, QChar(0x011F));
  Yaz(f->txtAciklama, uzun);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  EXPECT_EQ(Kutular(),
            "Soru Printer Seçimi: Lütfen Printer Seçiciyi FATURA için Ayarlayın\n"
            "Kritik HATA: Bir Hata Oluştu\n28. satır: yazı 58. sütunu geçiyor (10027 karakter).");
  EXPECT_EQ(Dosya(Genel::PrinterFatura).count("\r\n"), 27);
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Aciklama FROM Fatura").toString(), uzun);
}

TEST_F(FaturaEk, MusteriEkranindanAcilir) {
  // The menu entry stays greyed until the screen is registered.
  auto* m = MusteriAc();
  m->Form_Activate();
  EXPECT_FALSE(m->mnuFaturaEk->isEnabled());
  invoice::FaturaEkEkraniKaydet();
  m->Form_Activate();
  ASSERT_TRUE(m->mnuFaturaEk->isEnabled());
  QString gorulen;
  Modalda([&gorulen](QWidget* w) {
    if (auto* d = qobject_cast<frmFaturaEk*>(w)) {
      gorulen = d->txtMusteriNo->text() + '|' + d->lblMusteri->text();
      d->reject();
    }
  });
  m->txtMusteriNo->setFocus();
  m->mnuFaturaEk->trigger();
  EXPECT_EQ(gorulen, "12|YILMAZ ALİ ");
  // No customer on show: nothing opens.
  gorulen.clear();
  m->txtMusteriNo->clear();
  m->mnuFaturaEk_Click();
  EXPECT_EQ(gorulen, "");
}

}  // namespace
