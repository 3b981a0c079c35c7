// The reports of the command line: refused arguments and dates, and files
// that hold exactly what the screens' grids show for the same choice.

#include "reports/IzgaraCsv.h"
#include "reports/RaporKomutu.h"
#include "reports/frmKesideciBilgi.h"
#include "reports/frmMusteriDurum.h"
#include "reports/frmRapor.h"
#include "reports/frmTahsilat.h"
#include "tests/reports/Ortak.h"

namespace {

class RaporKomutu : public test::Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    test::Ekle("Musteri(MusteriNo, Soyadi, Adi, HukukiDurum)",
               "(1, 'YILMAZ', 'ALİ', 1), (2, 'ÇELİK', 'AŞ', 2)");
    test::Ekle(
        "Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, FaizTutar)",
        "(1, 'AB', 7, 1, '2026-01-10', 1000, 0.5), (2, 'AB', 8, 2, '2026-02-10', 250.25, 10)");
    test::Ekle(
        "SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Kesideci, Banka, CekNo, Vadesi, "
        "Odenmesi, Meblag, Doviz)",
        "(1, 'AB', 7, 'Çek', 'O''NEIL; \"X\"', 'ZİRAAT', '1', '2026-01-20', '2026-01-20', 600, "
        "'TRL'), (1, 'AB', 7, 'Senet', 'ŞAHİN', NULL, '2', '2026-03-01', NULL, 400, 'TRL'), "
        "(2, 'AB', 8, 'Çek', 'AYŞE', 'İŞ', '3', '2030-01-01', '2030-01-01', 250.25, 'USD')");
  }

  struct Sonuc {
    int kod;
    QString hata;
    bool acildi;
  };
  Sonuc Komut(const QStringList& arg) {
    Sonuc s{0, QString(), false};
    s.kod = raporkomutu::Calistir(
        arg, [&] { s.acildi = true; }, [&](const QString& m) { s.hata += m; });
    return s;
  }
  static QByteArray Oku(const QString& yol) {
    QFile f(yol);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  // The CSV of a screen's grid, saved as the clerk saves it.
  QByteArray EkranCsv(std::function<void()> kaydet) {
    const QString yol = dizin_.filePath("ekran.csv");
    csv::DosyaSeciciKur([yol](const QString&) { return yol; });
    kaydet();
    csv::DosyaSeciciKaldir();
    return Oku(yol);
  }
  QTemporaryDir dizin_;
};

TEST_F(RaporKomutu, HataliGirisDosyaYazmaz) {
  const QString dosya = dizin_.filePath("a.csv");
  struct Durum {
    QStringList arg;
    const char* hata;
  };
  const Durum durumlar[] = {
      {{}, "Rapor adı eksik: cari, gelir, cekler veya kesideci-risk."},
      {{"borc", "--csv", dosya},
       "Bilinmeyen rapor: borc (cari, gelir, cekler veya kesideci-risk)."},
      {{"cari"}, "--csv DOSYA eksik."},
      {{"cari", "--csv"}, "--csv seçeneği bir değer bekler."},
      {{"cari", "--bas", "01.01.2026", "--csv", dosya}, "Bilinmeyen seçenek: --bas"},
      {{"kesideci-risk", "--son", "01.01.2026", "--csv", dosya}, "Bilinmeyen seçenek: --son"},
      {{"gelir", "--bas", "31.02.2026", "--csv", dosya},
       "Hatalı tarih: \"31.02.2026\". Tarihi GG.AA.YYYY biçiminde yazınız."},
      {{"cekler", "--son", "1.1.2026", "--csv", dosya},
       "Hatalı tarih: \"1.1.2026\". Tarihi GG.AA.YYYY biçiminde yazınız."},
      {{"cekler", "--son", "", "--csv", dosya},
       "Hatalı tarih: \"\". Tarihi GG.AA.YYYY biçiminde yazınız."},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.arg.join(' ').toStdString());
    const Sonuc s = Komut(d.arg);
    EXPECT_EQ(s.kod, 2);
    EXPECT_EQ(s.hata, QString::fromUtf8(d.hata));
    EXPECT_FALSE(s.acildi);
    EXPECT_FALSE(QFile::exists(dosya));
  }
  // A file that can't be written, and an engine failure: 1 and the reason.
  Sonuc s = Komut({"cari", "--csv", dizin_.filePath("yok/a.csv")});
  EXPECT_EQ(s.kod, 1);
  EXPECT_TRUE(s.hata.startsWith("Dosya yazılamadı: ")) << s.hata.toStdString();
  test::Calistir("DROP VIEW SozlesmePrint");
  s = Komut({"gelir", "--csv", dosya});
  EXPECT_EQ(s.kod, 1);
  EXPECT_TRUE(s.hata.startsWith("Bir Hata Oluştu: ")) << s.hata.toStdString();
}

TEST_F(RaporKomutu, DosyaEkraninIzgarasiylaAyni) {
  const QString dosya = dizin_.filePath("k.csv");
  // The papers of a range, as the collection screen lists them.
  ASSERT_EQ(Komut({"cekler", "--bas", "01.01.2026", "--son", "31.12.2026", "--csv", dosya}).kod, 0);
  const QByteArray cekler = Oku(dosya);
  EXPECT_EQ(cekler.count('\n'), 3);  // captions and two papers
  {
    frmTahsilat f;
    f.Yukle();
    f.txtTarih[0]->setText("01.01.2026");
    f.txtTarih[1]->setText("31.12.2026");
    f.cmdListe_Click();
    EXPECT_EQ(EkranCsv([&] { f.cmdCsv_Click(); }), cekler);
  }
  ASSERT_EQ(Komut({"gelir", "--csv", dosya}).kod, 0);
  const QByteArray gelir = Oku(dosya);
  EXPECT_TRUE(gelir.contains(";,50;")) << gelir.toStdString();  // no leading zero
  {
    frmRapor f;
    f.Yukle();
    f.cmdBilgiGoster_Click();
    EXPECT_EQ(EkranCsv([&] { f.cmdCsv_Click(); }), gelir);
  }
  ASSERT_EQ(Komut({"cari", "--csv", dosya}).kod, 0);
  const QByteArray cari = Oku(dosya);
  EXPECT_EQ(cari.count('\n'), 3);
  {
    frmMusteriDurum f;
    f.Yukle();
    EXPECT_EQ(EkranCsv([&] { f.cmdCsv_Click(); }), cari);
  }
  ASSERT_EQ(Komut({"kesideci-risk", "--csv", dosya}).kod, 0);
  EXPECT_EQ(Oku(dosya), QByteArray("\xef\xbb\xbfKeşideci;K.Sız Adet;K.Sız Tutar;Risk Adet;"
                                   "Risk Tutar\r\nŞAHİN;1;400,00;0;0,00\r\n"));
}

}  // namespace
