// velmora yazdir: the same bytes as the buttons, to the file given or the
// configured printer; a refusal on standard error with exit code 2.

#include <QDate>
#include <QDir>
#include <QFile>
#include <QProcess>

#include "contract/SozlesmeYazdir.h"
#include "tests/invoice/FaturaEkran.h"

namespace {

using namespace Qt::StringLiterals;

class Komut : public test::FaturaEkran {
 protected:
  void SetUp() override {
    FaturaEkran::SetUp();
    VergiNo();
  }
  struct Sonuc {
    int kod = -1;
    QByteArray cikti, hata;
  };
  Sonuc Velmora(const QStringList& args) {
    QProcess p;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert("VELMORA_VERI", veriDizini());
    env.insert("VELMORA_AYAR", ayarDizini());
    p.setProcessEnvironment(env);
    p.start(VELMORA_PROGRAM, args);
    EXPECT_TRUE(p.waitForFinished(60000));
    return {p.exitCode(), p.readAllStandardOutput(), p.readAllStandardError()};
  }
  // The same, on a data folder that holds no database.
  Sonuc VeriTabanisiz(const QStringList& args) {
    return Velmora(QStringList{"--veri", ayarDizini() + "/bos", "--ayar", ayarDizini()} + args);
  }
  QString Yol(const char* ad) const { return veriDizini() + '/' + ad; }
};

TEST_F(Komut, FaturaDugmeyleAyniBaytlar) {
  auto* f = Kayitli("1");
  Cevap(mesaj::Dugme::Tamam);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  const QByteArray dugme = Dosya(Genel::PrinterFatura);
  ASSERT_EQ(dugme.count("\r\n"), 66);
  // To the file given, to standard output, to the printer of the settings
  // file (a command here).
  Genel::IniYaz(Genel::IniDosya, "Fatura", "Printer", "|cat > '" + Yol("boru.prn") + "'");
  for (const QString& cikti : {Yol("fatura.prn"), QString("-"), QString()}) {
    const Sonuc s = Velmora(QStringList{"yazdir", "fatura", "1"} +
                            (cikti.isEmpty() ? QStringList() : QStringList{"--cikti", cikti}));
    EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
    EXPECT_EQ(cikti == "-" ? s.cikti : Dosya(cikti.isEmpty() ? Yol("boru.prn") : cikti), dugme)
        << cikti.toStdString();
  }
}

TEST_F(Komut, SozlesmeDugmeyleAyniBaytlar) {
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar, "
      "BMVergisi, TahsilMasrafi) VALUES ('A', 1, '2005-03-04', 12, 1, 40000, 2000, 0)");
  Ac(false);
  Cevap(mesaj::Dugme::Tamam);
  contract::SozlesmeYazdir(ekran_.get());
  const QByteArray dugme = Dosya(Genel::PrinterSozlesme);
  ASSERT_FALSE(dugme.isEmpty());
  Calistir("UPDATE Sozlesme SET Yaziyla = NULL, Gun = NULL");
  const Sonuc s = Velmora({"yazdir", "sozlesme", "1", "--cikti", Yol("sozlesme.prn")});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_EQ(Dosya(Yol("sozlesme.prn")), dugme);
  // The fixed layout of the named office, chosen by the settings file.
  Genel::IniYaz(Genel::IniDosya, "Kurulum", "SahipAdi", "Sefa Dalkan");
  EXPECT_TRUE(
      Velmora({"yazdir", "sozlesme", "1", "--cikti", "-"}).cikti.startsWith("\x1b%9\x05\r\n"));
}

TEST_F(Komut, EkFaturaSeriVeNumarayla) {
  // Another series holds number 3 as well: the series decides.
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, Aciklama, Tutar, "
      "BMVergisiYuzde, BMVergisi, TahsilMasrafi, PulBedeli, ToplamMasraf, ToplamTutar, "
      "Yaziyla) VALUES ('B', 3, '2005-03-10', 12, 'Kira', 100, 5, 5, 0, 0, 5, 105, 'x'), "
      "('A', 3, '2005-03-10', 12, 'Başka', 999, NULL, NULL, NULL, NULL, NULL, NULL, NULL)");
  const Sonuc s = Velmora({"yazdir", "ekfatura", "B", "3", "--cikti", "-"});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_TRUE(s.cikti.contains("         Kira ")) << s.cikti.toStdString();
  EXPECT_FALSE(s.cikti.contains("999"));
}

TEST_F(Komut, RetlerVeHatalar) {
  const QString kaydet = "Lütfen Fatura Bilgisini Kaydettikten Sonra Yazıcıya Gönderin\n";
  // A null text: the usage.
  const std::pair<QStringList, QString> vakalar[] = {
      {{"yazdir", "fatura", "1"}, kaydet},
      {{"yazdir", "sozlesme", "1"}, "Önce Fatura Bilgilerini Girmelisiniz !\n"},
      {{"yazdir", "sozlesme", "x1"}, "Geçersiz sözleşme numarası: x1\n"},
      {{"yazdir", "ekfatura", "A", "0"}, "Geçersiz fatura numarası: 0\n"},
      {{"yazdir", "ekfatura", "A", "5"}, kaydet},
      {{"yazdir", "makbuz", "1"}, {}},
      {{"yazdir", "fatura"}, {}},
      {{"yazdir", "fatura", "1", "--cikti"}, {}}};
  for (const auto& [args, hata] : vakalar) {
    SCOPED_TRACE(args.join(' ').toStdString());
    const Sonuc s = Velmora(args);
    EXPECT_EQ(s.kod, 2);
    if (hata.isNull())
      EXPECT_TRUE(s.hata.startsWith("Kullanım: velmora yazdir")) << s.hata.toStdString();
    else
      EXPECT_EQ(QString::fromUtf8(s.hata), hata);
    EXPECT_TRUE(s.cikti.isEmpty());
  }
  // A printer that isn't there: the reason, exit 1.
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar) "
      "VALUES ('A', 1, '2005-03-04', 12, 1, 100)");
  const Sonuc yok = Velmora({"yazdir", "fatura", "1", "--cikti", Yol("yok/fatura.prn")});
  EXPECT_EQ(yok.kod, 1);
  EXPECT_EQ(QString::fromUtf8(yok.hata), "Bir Hata Oluştu\nYazıcı açılamadı (" +
                                             Yol("yok/fatura.prn") +
                                             "): böyle bir dosya ya da dizin yok\n");
  const Sonuc bos = VeriTabanisiz({"yazdir", "fatura", "1"});
  EXPECT_EQ(bos.kod, 2);
  EXPECT_TRUE(bos.hata.startsWith("Veri tabanı bulunamadı: "));
}

// velmora bakim, yedekle, geriyukle: what was done on standard output, a
// failure with its reason on standard error and exit code 1.
TEST_F(Komut, VeriTabaniKomutlari) {
  Genel::Baglanti.Kapat();
  const QString db = Yol("velmora.db"), eski = Yol("velmora_01012020.db");
  const QString yedek = Yol("velmora_") + QDate::currentDate().toString("ddMMyyyy") + ".db";
  const auto musteriler = [](const QString& yol) {
    db::Baglanti b;
    b.Ac(yol, db::Baglanti::Kip::SadeceOku);
    return b.Deger("SELECT count(*) FROM Musteri").toInt();
  };
  const int adet = musteriler(db);
  ASSERT_GT(adet, 0);
  const auto calistir = [this](const QStringList& args, int kod) {
    const Sonuc s = Velmora(args);
    EXPECT_EQ(s.kod, kod) << s.hata.toStdString();
    return QString::fromUtf8(kod == 0 ? s.cikti : s.hata);
  };
  EXPECT_EQ(calistir({"yedekle"}, 0), "Yedek alındı: " + yedek + "\n");
  ASSERT_TRUE(QFile::copy(yedek, eski));
  EXPECT_EQ(calistir({"bakim"}, 0), "Veri Tabanı Bakımı Yapıldı\nEski dosya: " + yedek + "\n");
  // Restore of a file that is no database: refused, nothing changed.
  QFile metin(Yol("metin.db"));
  ASSERT_TRUE(metin.open(QIODevice::WriteOnly) && metin.write(QByteArray(2000, 'x')) == 2000);
  metin.close();
  const QByteArray once = Dosya(db);
  const Sonuc red = Velmora({"geriyukle", metin.fileName()});
  EXPECT_EQ(red.kod, 1);
  EXPECT_TRUE(red.cikti.isEmpty());
  EXPECT_TRUE(QString::fromUtf8(red.hata).startsWith(
      "Geri yükleme yapılamadı; veri tabanı değişmedi.\nDosya bir veri tabanı değil"))
      << red.hata.toStdString();
  EXPECT_EQ(Dosya(db), once);
  // A good one, after the customers are gone.
  Genel::Baglanti.Ac(db);
  Calistir("DELETE FROM Musteri");
  Genel::Baglanti.Kapat();
  EXPECT_EQ(calistir({"geriyukle", eski}, 0),
            "Şimdiki veri tabanının yedeği: " + yedek + "\nGeri yüklendi: " + eski + "\n");
  EXPECT_EQ(musteriler(db), adet);
  EXPECT_EQ(musteriler(yedek), 0);
  // Maintenance that can't put its new file down: the message, exit 1.
  ASSERT_TRUE(QDir().mkdir(Yol("velmora_new.db")));
  EXPECT_TRUE(
      calistir({"bakim"}, 1)
          .startsWith(
              u"Bir Problem Oldu, Program Kullanılıyor Olabilir, Çıkıp Tekrar Deneyin\n"_s));
  EXPECT_EQ(musteriler(db), adet);
  EXPECT_EQ(Velmora({"geriyukle"}).kod, 2);
  EXPECT_EQ(Velmora({"yedekle", "fazla"}).kod, 2);
  const Sonuc bos = VeriTabanisiz({"yedekle"});
  EXPECT_EQ(bos.kod, 1);
  EXPECT_TRUE(bos.hata.startsWith("Yedek alınamadı.\nVeri tabanı bulunamadı: "));
  Genel::Baglanti.Ac(db);
}

TEST_F(Komut, YardimListeler) {
  const Sonuc s = Velmora({"--help"});
  EXPECT_EQ(s.kod, 0);
  for (const char* satir : {"velmora yazdir sozlesme SOZLESMEID [--cikti DOSYA]",
                            "velmora yazdir fatura SOZLESMEID [--cikti DOSYA]",
                            "velmora yazdir ekfatura SERI NO [--cikti DOSYA]", "velmora bakim",
                            "velmora yedekle", "velmora geriyukle DOSYA"})
    EXPECT_TRUE(s.cikti.contains(satir)) << satir;
}

}  // namespace
