// The contract's print from its screen: the steps before printing with what
// they store, the delivered template, the fixed layout of the named office,
// and the values the command line takes in the place of the screen's.

#include <QFile>

#include "contract/SozlesmeBaski.h"
#include "contract/SozlesmeYazdir.h"
#include "core/Onizleme.h"
#include "db/Sema.h"
#include "tests/contract/SozlesEkran.h"

namespace {

class SozlesmeYazdir : public test::SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Genel::SahipAdi.clear();
    Genel::PrinterSozlesme = ayarDizini() + QStringLiteral("/sozlesme.prn");
    Sozlesme(1, 7, 12, "2005-03-04", 5);
    Satir(1, "2005-04-04", 1000);
    Satir(1, "2005-05-04", 500, 0, "101", "ŞÜKRÜ ÖZTÜRK");
    Calistir("UPDATE Sozlesme SET Tutar = 1500, FaizTutar = 20 WHERE SozlesmeID = 1");
  }
  static void Fatura(const QVariant& masraf) {
    Calistir(
        "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID, Tutar, "
        "BMVergisi, TahsilMasrafi) VALUES ('A', 1, '2005-03-04', 12, 1, 10, 2.5, ?)",
        {masraf});
  }
  static QByteArray Dosya() {
    QFile f(Genel::PrinterSozlesme);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
  }
  // Prints the contract on show, answering the printer question with OK.
  frmSozles* Yazdir() {
    Cevap(mesaj::Dugme::Tamam);
    contract::SozlesmeYazdir(ekran_.get());
    return ekran_.get();
  }
};

TEST_F(SozlesmeYazdir, FaturaOlmadanYazdirmaz) {
  Ac(false);
  Yazdir();
  EXPECT_EQ(Kutular(), "Kritik Hata: Önce Fatura Bilgilerini Girmelisiniz !");
  EXPECT_EQ(Tablo("SELECT Yaziyla, Gun FROM Sozlesme"), "NULL|0");
  EXPECT_FALSE(QFile::exists(Genel::PrinterSozlesme));
}

TEST_F(SozlesmeYazdir, TutarSifirsaSozleriSaklarReddeder) {
  Fatura(QVariant());
  Calistir("DELETE FROM SozlesmeDetay");
  Calistir("UPDATE Sozlesme SET Tutar = 0");
  Ac(false);
  ekran_->Odenecek = 100;
  ekran_->GunYazisi = "30";
  Yazdir();
  // The words follow Odenecek less the tax; a Null fee subtracts nothing.
  EXPECT_EQ(Tablo("SELECT Yaziyla, Gun FROM Sozlesme"), "DOKSANYEDİ Yeni Lira ELLİ Yeni Kuruş|30");
  EXPECT_EQ(Kutular(), "Kritik HATA: Sözleşme tutarı hatalı, lütfen düzeltip tekrar deneyiniz!");
}

TEST_F(SozlesmeYazdir, MasrafGosterKelimeleri) {
  Fatura(7.5);
  Ac(false);
  Genel::MasrafGoster = false;
  Cevap(mesaj::Dugme::Iptal);
  contract::SozlesmeYazdir(ekran_.get());
  EXPECT_EQ(Kutular(), "Düz YAZICI SEÇİMİ: Lütfen Yazıcı Seçiciyi SÖZLEŞME için Ayarlayınız !!");
  // Odenecek of the screen: 1.500,00 less its interest.
  const double odenecek = ekran_->Odenecek;
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Yaziyla FROM Sozlesme").toString(),
            Genel::YaziyaCevir(odenecek));
  EXPECT_FALSE(QFile::exists(Genel::PrinterSozlesme));
  Genel::MasrafGoster = true;
  contract::SozlesmeYazdir(ekran_.get());
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Yaziyla FROM Sozlesme").toString(),
            Genel::YaziyaCevir(odenecek - 2.5 - 7.5));
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Gun FROM Sozlesme").toString(), "Muhtelif");
}

TEST_F(SozlesmeYazdir, TeslimEdilenSablonla) {
  Fatura(0);
  Ac(false);
  Yazdir();
  EXPECT_EQ(Kutular(), "Düz YAZICI SEÇİMİ: Lütfen Yazıcı Seçiciyi SÖZLEŞME için Ayarlayınız !!");
  const QByteArray b = Dosya();
  // The bytes are those of the template stream for the stored rows.
  const auto hazir = sozlesmebaski::OnizlemeHazirla(Genel::Baglanti, 1);
  ASSERT_TRUE(hazir);
  EXPECT_EQ(b, sozlesmebaski::SozlesmeAkisi(hazir->sablon, hazir->satir, hazir->belgeler,
                                            sozlesmebaski::Ayar::Genelden())
                   .baytlar);
  // Readable on paper: the title, the customer with Turkish letters, the
  // amounts flush right, the papers condensed, and a form feed at the end.
  const onizleme::Yerlesim y = onizleme::Yerlestir(b);
  QStringList satirlar;
  for (int i = 0; i < onizleme::kSayfaSatiri; ++i) satirlar << onizleme::SatirMetni(y, 0, i);
  const QString kagit = satirlar.join('\n');
  EXPECT_TRUE(kagit.contains("ODUNC SOZLESMESI")) << kagit.toStdString();
  EXPECT_TRUE(kagit.contains("Borclu        : ALİ YILMAZ")) << kagit.toStdString();
  EXPECT_TRUE(kagit.contains("Sozlesme No   : AB 7")) << kagit.toStdString();
  EXPECT_TRUE(kagit.contains(QString("Sozlesme Tutari") + QString(25, ' ') + "1.500,00"))
      << kagit.toStdString();
  EXPECT_TRUE(kagit.contains("Vade          : Muhtelif gun")) << kagit.toStdString();
  EXPECT_TRUE(kagit.contains("ŞÜKRÜ ÖZTÜRK")) << kagit.toStdString();
  EXPECT_TRUE(b.endsWith("\x0c\r\n"));
  EXPECT_FALSE(b.contains('?'));
}

TEST_F(SozlesmeYazdir, SabitDuzenAdiTamUyanlara) {
  Fatura(0);
  Ac(false);
  Genel::SahipAdi = "sefa dalkan";
  Yazdir();
  const QByteArray sablonla = Dosya();
  EXPECT_TRUE(sablonla.contains("ODUNC SOZLESMESI"));
  Genel::SahipAdi = "Sefa Dalkan";
  Yazdir();
  const QByteArray sabit = Dosya();
  EXPECT_FALSE(sabit.contains("ODUNC SOZLESMESI"));
  EXPECT_TRUE(sabit.startsWith("\x1b%9\x05\r\n"));
  EXPECT_TRUE(sabit.contains("DALKAN VELMORA - ORHAN DALKAN"));
}

TEST_F(SozlesmeYazdir, KomutSatiriEkranDegerleri) {
  // What the command line takes for the screen's Odenecek and GunYazisi is
  // what the screen holds once the contract is opened.
  for (const bool hesapla : {true, false}) {
    Calistir("UPDATE Sozlesme SET Hesapla = ? WHERE SozlesmeID = 1", {hesapla ? 1 : 0});
    Ac(false);
    const auto e = sozlesmebaski::EkranDegerleriOku(Genel::Baglanti, 1);
    ASSERT_TRUE(e);
    EXPECT_EQ(e->Odenecek, ekran_->Odenecek) << hesapla;
    EXPECT_EQ(e->GunYazisi, ekran_->GunYazisi) << hesapla;
  }
  EXPECT_EQ(sozlesmebaski::EkranDegerleriOku(Genel::Baglanti, 99), std::nullopt);
}

TEST_F(SozlesmeYazdir, SablonYalnizBosaYuklenir) {
  const int teslim = Genel::Baglanti.Deger("SELECT count(*) FROM SozlesmeTanim").toInt();
  EXPECT_GT(teslim, 0);
  // Every kind of row is in it.
  EXPECT_EQ(Tablo("SELECT DISTINCT TIP FROM SozlesmeTanim ORDER BY TIP"),
            "A\nB\nC\nD\nN\nP\nS\nT\nY");
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim WHERE TIP = 'N' AND FORMAT = 'NUMR' "
                  "AND BOY > 0"),
            "5");
  EXPECT_FALSE(db::SablonBossaYukle(Genel::Baglanti));
  Calistir("DELETE FROM SozlesmeTanim WHERE ID > 1");
  EXPECT_FALSE(db::SablonBossaYukle(Genel::Baglanti));
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim"), "1");
  Calistir("DELETE FROM SozlesmeTanim");
  EXPECT_TRUE(db::SablonBossaYukle(Genel::Baglanti));
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT count(*) FROM SozlesmeTanim").toInt(), teslim);
}

TEST_F(SozlesmeYazdir, YaziciHatasiSoylenir) {
  Fatura(0);
  Ac(false);
  Genel::PrinterSozlesme = "|exit 4";
  Yazdir();
  EXPECT_EQ(Kutular(),
            "Düz YAZICI SEÇİMİ: Lütfen Yazıcı Seçiciyi SÖZLEŞME için Ayarlayınız !!\n"
            "Kritik HATA: Bir Hata Oluştu\nYazdırma komutu başarısız oldu (exit 4), çıkış kodu 4.");
}

}  // namespace
