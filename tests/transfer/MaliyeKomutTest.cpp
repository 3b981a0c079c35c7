// The transfer from the command line: refused inputs touch nothing, a run
// writes the same bytes as the procedure, a failing run says why.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include "core/Genel.h"
#include "tests/support/Ortam.h"
#include "transfer/MaliyeAktarim.h"
#include "transfer/MaliyeKomut.h"

namespace {

class MaliyeKomut : public test::Ortam {
 protected:
  struct Cikis {
    int kod;
    QString cikti, hata;
    bool baglandi;
  };
  Cikis Calistir(const QStringList& args) {
    QString cikti, hata;
    QTextStream c(&cikti), h(&hata);
    bool baglandi = false;
    const auto baglan = [&baglandi]() -> db::Baglanti& {
      baglandi = true;
      return Genel::Baglanti;
    };
    const int kod = aktarim::MaliyeKomutu(baglan, args, c, h);
    c.flush();
    h.flush();
    return {kod, cikti, hata, baglandi};
  }
  static QByteArray Oku(const QString& yol) {
    QFile f(yol);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  static void Veri() {
    Genel::Baglanti.Calistir(
        "UPDATE Firma SET VergiKimlikNo = '5555555555', Soyadi = 'FİRMA', IlKod = 6;"
        "INSERT INTO Musteri(MusteriNo, VergiKimlikNo, Soyadi, Adi, IlKod, Uyruk) "
        "VALUES (8, '12', 'ARSLAN', 'EDA', 34, 1);"
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "FaizTutar, Doviz) VALUES (1, 'A', 1, 8, '2005-02-03', 60000, 10, 'TRL'),"
        "(2, 'A', 2, 8, '2005-03-03', 60000, 100, 'EUR')");
  }
  QTemporaryDir klasor_;
};

TEST_F(MaliyeKomut, ReddedilenGirdilerHicbirSeyeDokunmaz) {
  const QString k = klasor_.path();
  const struct {
    QStringList args;
    const char* mesaj;
  } durumlar[] = {
      {{}, "Lütfen ilk olarak dönemi seçiniz."},
      {{"--bas", "01.2005", "--cikti", k}, "Lütfen ilk olarak dönemi seçiniz."},
      {{"--bas", "13.2005", "--son", "12.2005"}, "Lütfen ilk olarak dönemi seçiniz."},
      {{"--bas", "1.05", "--son", "12.2005"}, "Lütfen ilk olarak dönemi seçiniz."},
      {{"--bas", "03.2005", "--son", "01.2005", "--cikti", k},
       "Başlangıç Tarihi Bitiş Tarihinden Küçük Olmalı"},
      {{"--bas", "01.2005", "--son", "03.2005", "--limit", "on bin", "--cikti", k},
       "Geçerli bir limit giriniz."},
      {{"--bas", "01.2005", "--son", "03.2005", "--bugun", "32.01.2005", "--cikti", k},
       "Hatalı Tarih"},
      {{"--bas", "01.2005", "--son", "03.2005", "--yil", "2005"}, "Bilinmeyen seçenek: --yil"},
      {{"--bas", "01.2005", "--son"}, "--son seçeneği bir değer bekler."},
  };
  for (const auto& d : durumlar) {
    const Cikis c = Calistir(d.args);
    EXPECT_EQ(c.kod, 2) << d.args.join(' ').toStdString();
    EXPECT_TRUE(c.hata.startsWith(QString::fromUtf8(d.mesaj))) << c.hata.toStdString();
    EXPECT_TRUE(c.cikti.isEmpty());
    EXPECT_FALSE(c.baglandi);
  }
  EXPECT_TRUE(QDir(k).entryList(QDir::Files).isEmpty());
}

TEST_F(MaliyeKomut, AyniDosyalarOzetVeHatalar) {
  Veri();
  const QString k = klasor_.path();
  const Cikis c = Calistir({"--bas", "01.2005", "--son", "03.2005", "--limit", "50.000", "--cikti",
                            k, "--bugun", "15.04.2005"});
  EXPECT_EQ(c.kod, 0) << c.hata.toStdString();
  const QString xml = QDir(k).filePath("Velmora.xml");
  EXPECT_EQ(c.cikti,
            "Ödünç Tutar : 60.000,00\nTahsil Tutar:  0,00\n Aktarılan Kayıt: 2\n" + xml + "\n");
  EXPECT_EQ(c.hata,
            "Tanımsız Döviz var, lütfen tanımladıktan sonra çalıştırın.\n"
            "8 Numaralı ARSLAN EDA Müşterisinin Vergi numarasının uzunluğu hatalı.\n");
  EXPECT_EQ(QDir(k).entryList(QDir::Files, QDir::Name),
            (QStringList{"HataliKayit.txt", "MaliyeBilgiKontrol.csv", "Velmora.xml"}));

  // The same period through the procedure, as the screen runs it.
  QTemporaryDir ekran;
  aktarim::Istek i;
  i.bas = QDate(2005, 1, 1);
  i.son = QDate(2005, 3, 31);
  i.limit = 50000;
  i.bugun = QDate(2005, 4, 15);
  i.klasor = ekran.path();
  const aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, i);
  aktarim::KontrolListesiYaz(aktarim::KontrolSatirlari(Genel::Baglanti, i), ekran.path());
  for (const char* ad : {"Velmora.xml", "HataliKayit.txt", "MaliyeBilgiKontrol.csv"}) {
    const QByteArray b = Oku(QDir(k).filePath(ad));
    EXPECT_FALSE(b.isEmpty()) << ad;
    EXPECT_EQ(b, Oku(QDir(ekran.path()).filePath(ad))) << ad;
  }
  EXPECT_TRUE(Oku(xml).contains("<bilgitarih>20050415</bilgitarih>\r\n"));
}

TEST_F(MaliyeKomut, YazilamayanKlasorBirDoner) {
  Veri();
  const QString engel = QDir(klasor_.path()).filePath("engel");
  QFile f(engel);
  ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  f.close();
  const Cikis c = Calistir({"--bas", "01.2005", "--son", "03.2005", "--cikti", engel + "/alt"});
  EXPECT_EQ(c.kod, 1);
  EXPECT_TRUE(c.hata.startsWith("Bir Hata Oluştu\n")) << c.hata.toStdString();
  EXPECT_TRUE(c.cikti.isEmpty());
}

}  // namespace
