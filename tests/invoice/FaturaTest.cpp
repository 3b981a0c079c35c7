// The contract invoice as a clerk uses it: opened from the contract screen,
// numbered, saved, reopened, deleted, printed and previewed from the settings.

#include <QDialog>
#include <QLabel>

#include "core/frmIni.h"
#include "invoice/FaturaBaski.h"
#include "invoice/FaturaOnizleme.h"
#include "tests/invoice/FaturaEkran.h"

namespace {

class Fatura : public test::FaturaEkran {};

TEST_F(Fatura, IsledigiOrnek) {
  VergiNo();
  auto* f = FaturaAc();
  EXPECT_EQ(Metinler({f->txtTarih, f->txtSozlesmeNo, f->txtFaturaSeri, f->txtFaturaNo,
                      f->lblMusteri, f->lblAdres, f->lblVergi}),
            "04.03.2005|7|A||YILMAZ ALİ |Atatürk Cad. 5  Çankaya/Ankara|Kavaklıdere-1234567890");
  // Stamp duty of 1.000.000,00 is 7.500,00; the fee "0.00" keeps its point.
  EXPECT_EQ(Rakamlar(f),
            "40.000,00|5|2.000,00|0.00|7.500,00|9.500,00|1.000.000,00|49.500,00|"
            "KIRKDOKUZBİNBEŞYÜZ Yeni Lira ");
  EXPECT_FALSE(f->FaturaVar || f->cmdYazdir->isEnabled());
  EXPECT_TRUE(f->txtPul->isVisible());
  // No invoice yet: the clerk types the first number of a series.
  ASSERT_TRUE(Bas(f->cmdFatNo));
  EXPECT_EQ(Kutular(), "Kritik Velmora: Hiç Fatura Kesmemissiniz");
  EXPECT_EQ(QApplication::focusWidget(), f->txtFaturaNo);
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(), "Kritik Hata: Fatura Numarası Girmelisiniz!");
  EXPECT_EQ(Faturalar(), "");
  Yaz(f->txtFaturaNo, "1");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(Faturalar(), "A|1|1|40000|5|0|7500|9500|49500");
  EXPECT_EQ(Tablo("SELECT Tarih, MusteriNo, SozlesmeSeri, SozlesmeNo, BMVergisi, Yaziyla "
                  "FROM Fatura"),
            "2005-03-04|12|AB|7|2000|Yalnız KIRKDOKUZBİNBEŞYÜZ Yeni Lira  ");
  EXPECT_TRUE(f->FaturaVar && f->cmdYazdir->isEnabled());
  Yaz(f->txtFaturaNo, "");
  ASSERT_TRUE(Bas(f->cmdFatNo));
  EXPECT_EQ(f->txtFaturaNo->text(), "2");
  // The contract is locked while its invoice exists.
  f->close();
  QApplication::setActiveWindow(ekran_.get());
  ASSERT_TRUE(Bas(ekran_->cmdEdit));
  EXPECT_EQ(Kutular(),
            "Kritik FATURA KESİLMİŞ: Bu Sözleşme için Kesilmiş 1 Nolu Fatura var, Değişiklik "
            "Yapmadan Önce Faturayı Silmelisiniz!");
}

TEST_F(Fatura, KayitliFaturaKendiDegerleriyleAcilir) {
  auto* f = FaturaAc();
  Yaz(f->txtFaturaNo, "5");
  Yaz(f->txtBMOran, "7,5");
  Yaz(f->txtMasraf, "125");
  Yaz(f->txtPul, "1.000");
  Yaz(f->txtFaturaSeri, QString());  // leaving the fee and stamp duty boxes rewrites them
  EXPECT_EQ(Rakamlar(f),
            "40.000,00|7,5|3.000,00|125,00|1.000,00|4.125,00|1.000.000,00|44.125,00|"
            "KIRKDÖRTBİNYÜZYİRMİBEŞ Yeni Lira ");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Faturalar(), "A|5|1|40000|7.5|125|1000|4125|44125");
  f->close();
  // Reopened: its own percent, fee and stamp duty, and the interest on the
  // contract screen (changed there since, unsaved).
  // (Set here: while the invoice exists the contract is locked and the box
  // closed, so no clerk could type it.)
  ekran_->txtFaizTutar->setText("30.000,00");
  f = FaturaAc();
  EXPECT_TRUE(f->FaturaVar && f->cmdYazdir->isEnabled());
  EXPECT_EQ(f->txtFaturaNo->text(), "5");
  EXPECT_EQ(Rakamlar(f),
            "30.000,00|7,5|2.250,00|125,00|1.000,00|3.375,00|1.000.000,00|33.375,00|"
            "OTUZÜÇBİNÜÇYÜZYETMİŞBEŞ Yeni Lira ");
}

TEST_F(Fatura, MasrafBosalincaSifirNokta) {
  auto* f = FaturaAc();
  Yaz(f->txtMasraf, "10");
  EXPECT_EQ(f->txtToplamOdeme->text(), "9.510,00");
  Yaz(f->txtMasraf, "");
  EXPECT_EQ(Metinler({f->txtMasraf, f->txtToplamOdeme}), "0.00|9.500,00");
  // A percent that is no number shows what it can; the save tells why not.
  Yaz(f->txtBMOran, "%5");
  EXPECT_EQ(Metinler({f->txtBMVergisi, f->txtGenelToplam}), "0,00|47.500,00");
  Yaz(f->txtFaturaNo, "3");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(),
            "Kritik Çift Fatura Numarası: Kayıt Eklenemedi! Lütfen Bilgileri Kontol Edin! "
            "B.M. Vergi Oranı sayı değil: \"%5\"");
  EXPECT_EQ(Faturalar(), "");
  EXPECT_FALSE(f->FaturaVar);
}

TEST_F(Fatura, PulBedeliKapali) {
  Genel::PulBedeli = false;
  auto* f = Kayitli("1");
  EXPECT_TRUE(f->txtPul->isHidden() && f->lblPul->isHidden());
  EXPECT_EQ(Rakamlar(f),
            "40.000,00|5|2.000,00|0.00|0,00|2.000,00|1.000.000,00|42.000,00|"
            "KIRKİKİBİN Yeni Lira ");
  EXPECT_EQ(Faturalar(), "A|1|1|40000|5|0|0|2000|42000");
}

TEST_F(Fatura, SilVeYenidenKaydet) {
  auto* f = Kayitli("1");
  const QString soru = "Soru ONAY: 7 Numaralı Sözleşme için Kesilen Fatura Silinecektir.";
  Cevap(mesaj::Dugme::Hayir);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Kutular(), soru);
  EXPECT_EQ(Faturalar(), "A|1|1|40000|5|0|7500|9500|49500");
  Cevap(mesaj::Dugme::Evet);
  ASSERT_TRUE(Bas(f->cmdsil));
  EXPECT_EQ(Kutular(), soru + "\nDüz Fatura Sil: Silindi");
  EXPECT_EQ(Faturalar() + f->txtFaturaNo->text(), "");
  EXPECT_TRUE(f->FaturaVar);  // stays: the next save's delete touches nothing
  Yaz(f->txtFaturaNo, "2");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Kutular(), "");
  EXPECT_EQ(Faturalar(), "A|2|1|40000|5|0|7500|9500|49500");
}

TEST_F(Fatura, CiftNumaraEskiFaturayiKorur) {
  // Contract 2 with its invoice A 1, and contract 1 with A 2.
  Sozlesme(2, 8, 12, "2005-03-05");
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar) "
      "VALUES ('A', 1, '2005-03-05', 12, 2, 10)");
  auto* f = Kayitli("2");
  const QString red =
      "Kritik Çift Fatura Numarası: Kayıt Eklenemedi! Lütfen Bilgileri Kontol Edin! ";
  // Renumbered to the other contract's number, or to no invoice number at all:
  // refused with the reason, A 2 stays.
  for (const char* no : {"1", "1a", "0", "4294967296"}) {
    Yaz(f->txtFaturaNo, no);
    ASSERT_TRUE(Bas(f->cmdSave));
    const bool cift = QString(no) == "1";
    const QString kutu = Kutular();
    EXPECT_EQ(cift ? kutu.left(red.size() + 6) : kutu,
              red + (cift ? QString("UNIQUE")
                          : QString("Fatura numarası 1 ile 2147483647 arasında bir tam sayı "
                                    "olmalıdır: \"%1\"")
                                .arg(no)));
    EXPECT_EQ(Tablo("SELECT FaturaNo, SozlesmeID FROM Fatura ORDER BY FaturaNo"), "1|2\n2|1");
  }
  // The proposal: the series' highest number on the latest date, plus 1.
  ASSERT_TRUE(Bas(f->cmdFatNo));
  EXPECT_EQ(f->txtFaturaNo->text(), "2");
}

TEST_F(Fatura, SeriBosBirakilincaVarsayilan) {
  auto* f = FaturaAc();
  Yaz(f->txtFaturaSeri, "  ");
  Yaz(f->txtFaturaNo, QString());
  EXPECT_EQ(f->txtFaturaSeri->text(), "A");
  Yaz(f->txtFaturaSeri, "BC");
  Yaz(f->txtFaturaNo, "4");
  ASSERT_TRUE(Bas(f->cmdSave));
  EXPECT_EQ(Tablo("SELECT FaturaSeri, FaturaNo FROM Fatura"), "BC|4");
}

TEST_F(Fatura, SadeceGoster) {
  Genel::SadeceGoster = true;
  auto* f = FaturaAc();
  Genel::SadeceGoster = false;
  EXPECT_FALSE(f->cmdSave->isEnabled() || f->cmdsil->isEnabled() || f->cmdYazdir->isEnabled());
  EXPECT_TRUE(f->cmdFatNo->isEnabled());
}

TEST_F(Fatura, YazdirDosyaya) {
  auto* f = Kayitli("1");
  const QString soru = "Soru Printer Seçimi: Lütfen Printer Seçiciyi FATURA için Ayarlayın";
  // No tax number: the message, and the printer gets nothing.
  ASSERT_TRUE(Bas(f->cmdYazdir));
  EXPECT_EQ(Kutular(), "Ünlem UYARI: Vergi Kimlik No Boş. Lütfen Kontrol Ediniz!");
  EXPECT_FALSE(QFile::exists(Genel::PrinterFatura));
  VergiNo();
  // A change on screen is saved before it is printed; Cancel prints nothing.
  Yaz(f->txtMasraf, "10");
  Cevap(mesaj::Dugme::Iptal);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  EXPECT_EQ(Kutular(), soru);
  EXPECT_EQ(Faturalar(), "A|1|1|40000|5|10|7500|9510|49510");
  EXPECT_FALSE(QFile::exists(Genel::PrinterFatura));
  Cevap(mesaj::Dugme::Tamam);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  EXPECT_EQ(Kutular(), soru);
  const QByteArray dosya = Dosya(Genel::PrinterFatura);
  const auto satir = fatura::FaturaSatiri(Genel::Baglanti, 1, false);
  ASSERT_TRUE(std::holds_alternative<baski::Kayit>(satir));
  EXPECT_EQ(dosya, fatura::FaturaAkisi(fatura::Bicim::Fatura, std::get<baski::Kayit>(satir),
                                       fatura::YaziAyari::Genelden())
                       .baytlar);
  const QList<QByteArray> satirlar = dosya.split('\n');
  EXPECT_EQ(satirlar.size(), 67);  // 66 lines and what follows the last LF
  EXPECT_TRUE(satirlar[27].endsWith("40.000,00\r")) << satirlar[27].toStdString();
  EXPECT_TRUE(satirlar[45].endsWith("49.510,00\r")) << satirlar[45].toStdString();
  // The fixed layout of the named office; a printer that isn't there.
  Genel::SahipAdi = "Sefa Dalkan";
  Genel::PrinterFatura = veriDizini() + "/yok/fatura.prn";
  ASSERT_TRUE(Bas(f->cmdYazdir));
  EXPECT_EQ(Kutular(), soru + "\nKritik HATA: Bir Hata Oluştu\nYazıcı açılamadı (" +
                           Genel::PrinterFatura + "): böyle bir dosya ya da dizin yok");
}

TEST_F(Fatura, TutarSifirsaYazdirmaz) {
  Calistir("UPDATE Sozlesme SET FaizTutar = 0 WHERE SozlesmeID = 1");
  auto* f = Kayitli("1");
  Cevap(mesaj::Dugme::Tamam);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  // Refused before the question.
  EXPECT_EQ(Kutular(), "Ünlem UYARI: Fatura Tutarında Uyuşmazlık Var. Lütfen Kontrol Ediniz!");
  EXPECT_EQ(Tablo("SELECT FaturaNo, Tutar FROM Fatura"), "1|0");
  EXPECT_FALSE(QFile::exists(Genel::PrinterFatura));
}

TEST_F(Fatura, SozlesmeEkranindanAcilir) {
  invoice::FaturaEkraniKaydet();
  auto* s = Ac(false);
  ekran_->KontrolButon("Normal");
  QString gorulen;
  Modalda([&gorulen](QWidget* w) {
    if (auto* d = qobject_cast<frmFatura*>(w)) {
      gorulen = d->txtSozlesmeNo->text() + '|' + d->txtGenelToplam->text();
      d->cmdExit->click();
    }
  });
  ASSERT_TRUE(Bas(s->cmdFatura));
  EXPECT_EQ(gorulen, "7|49.500,00");
  EXPECT_EQ(Faturalar(), "");
}

// The settings screen's preview: the latest invoice with the values typed on
// the screen, saved or not.
TEST_F(Fatura, OnizlemeEkrandakiDegerlerle) {
  invoice::FaturaOnizlemeKaydet();
  frmIni ini;
  ini.show();
  QApplication::setActiveWindow(&ini);
  ini.Form_Load();
  ini.Form_Activate();
  test::Isle();
  ASSERT_TRUE(Bas(ini.cmdOnizleme));
  EXPECT_EQ(Kutular(), "Bilgi Önizleme: Önizlenecek fatura yok. Önce bir fatura kaydediniz.");
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar, "
      "ToplamTutar) VALUES ('A', 1, '2005-03-04', 12, 1, 40000, 49500)");
  // The screen's own defaults (15 blank lines above) and a change not saved.
  Yaz(ini.txtTutarBosluk, "70");
  ASSERT_TRUE(ini.chkPulBedeli->isChecked());
  ini.chkPulBedeli->setFocus();
  QTest::keyClick(ini.chkPulBedeli, Qt::Key_Space);
  const fatura::YaziAyari a = invoice::EkrandakiAyar(&ini);
  EXPECT_EQ(
      QString("%1|%2|%3|%4").arg(a.BasBosluk).arg(a.TutarBas).arg(a.PulBedeli).arg(Genel::TutarBas),
      "15|70|0|58");
  ASSERT_TRUE(Bas(ini.cmdOnizleme));
  EXPECT_EQ(Kutular(), "");
  auto* d = ini.findChild<QDialog*>("frmOnizleme");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Önizleme - Fatura A 1");
  EXPECT_TRUE(d->findChild<QLabel*>("lblHata")->isHidden());
  EXPECT_EQ(d->findChild<QLabel*>("lblBilgi")->text().left(9), "70 satır,");
  d->close();
  test::Isle();
  QApplication::setActiveWindow(&ini);
  // An offset that breaks the stream shows the failure under the pages.
  Yaz(ini.txtTutarBosluk, "20");
  ASSERT_TRUE(Bas(ini.cmdOnizleme));
  d = ini.findChild<QDialog*>("frmOnizleme");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->findChild<QLabel*>("lblHata")->text(),
            "Bir Hata Oluştu\n32. satır: yazı 20. sütunu geçiyor (40 karakter).");
  d->close();
}

}  // namespace
