// velmora yazdir: the same bytes as the buttons, to the file given or the
// configured printer; a refusal on standard error with exit code 2.

#include <QDate>
#include <QDir>
#include <QFile>
#include <QProcess>

#include "contract/SozlesmeYazdir.h"
#include "core/Genel.h"
#include "invoice/frmFaturaEk.h"
#include "master/frmMusteri.h"
#include "tests/invoice/FaturaEkran.h"

namespace {

using namespace Qt::StringLiterals;

class Komut : public test::FaturaEkran {
 protected:
  void SetUp() override {
    FaturaEkran::SetUp();
    Calistir(
        "UPDATE Musteri SET VergiDairesi = 'Kavaklıdere', VergiKimlikNo = '1234567890' "
        "WHERE MusteriNo = 12");
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
  QString Yol(const char* ad) const { return veriDizini() + '/' + ad; }
};

TEST_F(Komut, FaturaDugmeyleAyniBaytlar) {
  auto* f = FaturaAc();
  Yaz(f->txtFaturaNo, "1");
  ASSERT_TRUE(Bas(f->cmdSave));
  Cevap(mesaj::Dugme::Tamam);
  ASSERT_TRUE(Bas(f->cmdYazdir));
  const QByteArray dugme = Dosya(Genel::PrinterFatura);
  ASSERT_EQ(dugme.count("\r\n"), 66);

  const Sonuc s = Velmora({"yazdir", "fatura", "1", "--cikti", Yol("fatura.prn")});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_EQ(Dosya(Yol("fatura.prn")), dugme);
  // To standard output.
  const Sonuc o = Velmora({"yazdir", "fatura", "1", "--cikti", "-"});
  EXPECT_EQ(o.cikti, dugme);
  // To the printer of the settings file, a command here.
  Genel::IniYaz(Genel::IniDosya, "Fatura", "Printer", "|cat > '" + Yol("boru.prn") + "'");
  EXPECT_EQ(Velmora({"yazdir", "fatura", "1"}).kod, 0);
  EXPECT_EQ(Dosya(Yol("boru.prn")), dugme);
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
  const Sonuc sabit = Velmora({"yazdir", "sozlesme", "1", "--cikti", "-"});
  EXPECT_TRUE(sabit.cikti.startsWith("\x1b%9\x05\r\n"));
}

TEST_F(Komut, EkFaturaSeriVeNumarayla) {
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, Aciklama, Tutar, "
      "BMVergisiYuzde, BMVergisi, TahsilMasrafi, PulBedeli, ToplamMasraf, ToplamTutar, "
      "Yaziyla) VALUES ('B', 3, '2005-03-10', 12, 'Kira', 100, 5, 5, 0, 0, 5, 105, 'x')");
  // Another series holds number 3 as well: the series decides.
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, Aciklama, Tutar) "
      "VALUES ('A', 3, '2005-03-10', 12, 'Başka', 999)");
  const Sonuc s = Velmora({"yazdir", "ekfatura", "B", "3", "--cikti", "-"});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_TRUE(s.cikti.contains("         Kira ")) << s.cikti.toStdString();
  EXPECT_FALSE(s.cikti.contains("999"));
}

TEST_F(Komut, RetlerVeHatalar) {
  struct Vaka {
    QStringList args;
    int kod;
    const char* hata;
  };
  const Vaka vakalar[] = {
      {{"yazdir", "fatura", "1"},
       2,
       "Lütfen Fatura Bilgisini Kaydettikten Sonra Yazıcıya Gönderin\n"},
      {{"yazdir", "sozlesme", "1"}, 2, "Önce Fatura Bilgilerini Girmelisiniz !\n"},
      {{"yazdir", "sozlesme", "x1"}, 2, "Geçersiz sözleşme numarası: x1\n"},
      {{"yazdir", "ekfatura", "A", "0"}, 2, "Geçersiz fatura numarası: 0\n"},
      {{"yazdir", "ekfatura", "A", "5"},
       2,
       "Lütfen Fatura Bilgisini Kaydettikten Sonra Yazıcıya Gönderin\n"},
      {{"yazdir", "makbuz", "1"}, 2, nullptr},
      {{"yazdir", "fatura"}, 2, nullptr},
      {{"yazdir", "fatura", "1", "--cikti"}, 2, nullptr},
  };
  for (const Vaka& v : vakalar) {
    const Sonuc s = Velmora(v.args);
    EXPECT_EQ(s.kod, v.kod) << v.args.join(' ').toStdString();
    if (v.hata)
      EXPECT_EQ(QString::fromUtf8(s.hata), QString::fromUtf8(v.hata))
          << v.args.join(' ').toStdString();
    else
      EXPECT_TRUE(s.hata.startsWith("Kullanım: velmora yazdir")) << s.hata.toStdString();
    EXPECT_TRUE(s.cikti.isEmpty());
  }
  // A printer that isn't there: the reason, exit 1.
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar) "
      "VALUES ('A', 1, '2005-03-04', 12, 1, 100)");
  const Sonuc yok = Velmora({"yazdir", "fatura", "1", "--cikti", veriDizini() + "/yok/fatura.prn"});
  EXPECT_EQ(yok.kod, 1);
  EXPECT_EQ(QString::fromUtf8(yok.hata), "Bir Hata Oluştu\nYazıcı açılamadı (" + veriDizini() +
                                             "/yok/fatura.prn): böyle bir dosya ya da dizin yok\n");
  // No database in the folder given.
  QProcess p;
  p.start(VELMORA_PROGRAM,
          {"--veri", ayarDizini() + "/bos", "--ayar", ayarDizini(), "yazdir", "fatura", "1"});
  ASSERT_TRUE(p.waitForFinished(60000));
  EXPECT_EQ(p.exitCode(), 2);
  EXPECT_TRUE(p.readAllStandardError().startsWith("Veri tabanı bulunamadı: "));
}

// velmora bakim, yedekle, geriyukle: what was done on standard output, a
// failure with its reason on standard error and exit code 1.
TEST_F(Komut, VeriTabaniKomutlari) {
  Genel::Baglanti.Kapat();
  const QString db = Yol("velmora.db");
  const QString yedek = Yol("velmora_") + QDate::currentDate().toString("ddMMyyyy") + ".db";
  const auto musteriler = [](const QString& yol) {
    db::Baglanti b;
    b.Ac(yol, db::Baglanti::Kip::SadeceOku);
    return b.Deger("SELECT count(*) FROM Musteri").toInt();
  };
  const int adet = musteriler(db);
  ASSERT_GT(adet, 0);

  Sonuc s = Velmora({"yedekle"});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_EQ(QString::fromUtf8(s.cikti), "Yedek alındı: " + yedek + "\n");
  ASSERT_TRUE(QFile::copy(yedek, Yol("velmora_01012020.db")));

  s = Velmora({"bakim"});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_EQ(QString::fromUtf8(s.cikti), "Veri Tabanı Bakımı Yapıldı\nEski dosya: " + yedek + "\n");

  // Restore of a file that is no database: refused, nothing changed.
  QFile metin(Yol("metin.db"));
  ASSERT_TRUE(metin.open(QIODevice::WriteOnly) && metin.write(QByteArray(2000, 'x')) == 2000);
  metin.close();
  const QByteArray once = Dosya(db);
  s = Velmora({"geriyukle", metin.fileName()});
  EXPECT_EQ(s.kod, 1);
  EXPECT_TRUE(QString::fromUtf8(s.hata).startsWith(
      "Geri yükleme yapılamadı; veri tabanı değişmedi.\nDosya bir veri tabanı değil"))
      << s.hata.toStdString();
  EXPECT_TRUE(s.cikti.isEmpty());
  EXPECT_EQ(Dosya(db), once);

  // A good one, after the customers are gone.
  Genel::Baglanti.Ac(db);
  Calistir("DELETE FROM Musteri");
  Genel::Baglanti.Kapat();
  s = Velmora({"geriyukle", Yol("velmora_01012020.db")});
  EXPECT_EQ(s.kod, 0) << s.hata.toStdString();
  EXPECT_EQ(QString::fromUtf8(s.cikti), "Şimdiki veri tabanının yedeği: " + yedek +
                                            "\nGeri yüklendi: " + Yol("velmora_01012020.db") +
                                            "\n");
  EXPECT_EQ(musteriler(db), adet);
  EXPECT_EQ(musteriler(yedek), 0);

  // Maintenance that can't put its new file down: the message, exit 1.
  ASSERT_TRUE(QDir().mkdir(Yol("velmora_new.db")));
  s = Velmora({"bakim"});
  EXPECT_EQ(s.kod, 1);
  EXPECT_TRUE(QString::fromUtf8(s.hata).startsWith(
      u"Bir Problem Oldu, Program Kullanılıyor Olabilir, Çıkıp Tekrar Deneyin\n"_s))
      << s.hata.toStdString();
  EXPECT_EQ(musteriler(db), adet);

  EXPECT_EQ(Velmora({"geriyukle"}).kod, 2);
  EXPECT_EQ(Velmora({"yedekle", "fazla"}).kod, 2);
  // No database in the folder given.
  QProcess p;
  p.start(VELMORA_PROGRAM, {"--veri", ayarDizini() + "/bos", "--ayar", ayarDizini(), "yedekle"});
  ASSERT_TRUE(p.waitForFinished(60000));
  EXPECT_EQ(p.exitCode(), 1);
  EXPECT_TRUE(p.readAllStandardError().startsWith("Yedek alınamadı.\nVeri tabanı bulunamadı: "));
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
