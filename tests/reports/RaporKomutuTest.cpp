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

  // The exit code, "açtı" when the database was opened, and what was told.
  static QString Komut(const QStringList& arg) {
    QString acti, hata;
    const int kod = raporkomutu::Calistir(
        arg, [&] { acti = u" açtı"_s; }, [&](const QString& m) { hata += m; });
    return QString::number(kod) + acti + ": " + hata;
  }
  static QByteArray Oku(const QString& yol) {
    QFile f(yol);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  // The file the command writes for `arg`.
  QByteArray KomutCsv(QStringList arg) {
    EXPECT_EQ(Komut(arg << "--csv" << dosya_), u"0 açtı: "_s);
    return Oku(dosya_);
  }
  // The CSV of a screen's grid, saved as the clerk saves it.
  QByteArray EkranCsv(QPushButton* dugme) {
    const QString yol = dizin_.filePath("ekran.csv");
    csv::DosyaSeciciKur([yol](const QString&) { return yol; });
    dugme->click();
    csv::DosyaSeciciKaldir();
    return Oku(yol);
  }
  QTemporaryDir dizin_;
  const QString dosya_ = dizin_.filePath("a.csv");
};

TEST_F(RaporKomutu, HataliGirisDosyaYazmaz) {
  const QString dosya = dosya_;
  const std::pair<QStringList, const char*> durumlar[] = {
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
  for (const auto& [arg, hata] : durumlar) {
    SCOPED_TRACE(arg.join(' ').toStdString());
    EXPECT_EQ(Komut(arg), "2: " + QString::fromUtf8(hata));
    EXPECT_FALSE(QFile::exists(dosya));
  }
  // A file that can't be written, and an engine failure: 1 and the reason.
  EXPECT_TRUE(Komut({"cari", "--csv", dizin_.filePath("yok/a.csv")})
                  .startsWith("1 açtı: Dosya yazılamadı: "));
  test::Calistir("DROP VIEW SozlesmePrint");
  EXPECT_TRUE(Komut({"gelir", "--csv", dosya}).startsWith("1 açtı: Bir Hata Oluştu: "));
}

TEST_F(RaporKomutu, DosyaEkraninIzgarasiylaAyni) {
  // The papers of a range, as the collection screen lists them.
  const QByteArray cekler = KomutCsv({"cekler", "--bas", "01.01.2026", "--son", "31.12.2026"});
  EXPECT_EQ(cekler.count('\n'), 3);  // captions and two papers
  frmTahsilat t;
  t.Yukle();
  t.show();
  QApplication::setActiveWindow(&t);
  test::Yaz(t.txtTarih[0], "01.01.2026");
  test::Yaz(t.txtTarih[1], "31.12.2026");
  test::Tikla(t.cmdListe);
  EXPECT_EQ(EkranCsv(t.cmdCsv), cekler);

  const QByteArray gelir = KomutCsv({"gelir"});
  EXPECT_TRUE(gelir.contains(";,50;")) << gelir.toStdString();  // no leading zero
  frmRapor g;
  g.Yukle();
  g.cmdBilgiGoster_Click();
  EXPECT_EQ(EkranCsv(g.cmdCsv), gelir);

  const QByteArray cari = KomutCsv({"cari"});
  EXPECT_EQ(cari.count('\n'), 3);
  frmMusteriDurum c;
  c.Yukle();
  EXPECT_EQ(EkranCsv(c.cmdCsv), cari);

  EXPECT_EQ(KomutCsv({"kesideci-risk"}),
            QByteArray("\xef\xbb\xbfKeşideci;K.Sız Adet;K.Sız Tutar;Risk Adet;"
                       "Risk Tutar\r\nŞAHİN;1;400,00;0;0,00\r\n"));
}

}  // namespace
