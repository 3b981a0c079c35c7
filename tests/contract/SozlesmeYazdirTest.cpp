// The contract's print and the screen of its template.

#include <QDialog>
#include <QFile>

#include "contract/SozlesmeBaski.h"
#include "contract/SozlesmeYazdir.h"
#include "contract/frmSipYazTanim.h"
#include "core/Onizleme.h"
#include "db/Sema.h"
#include "tests/contract/SozlesEkran.h"
#include "tests/support/Klavye.h"

namespace {

class SipYazTanim : public test::SozlesEkran {
 protected:
  void SetUp() override {
    SozlesEkran::SetUp();
    Calistir("DELETE FROM SozlesmeTanim");
    Calistir(
        "INSERT INTO SozlesmeTanim(ID, SIRA, SUTUN, TIP, ALAN, BOY, \"DECIMAL\", FORMAT) "
        "VALUES (4, 1, 1, 'B', 'AdSoyad', NULL, NULL, 'TURKCE'), "
        "(9, 2, 1, 'P', NULL, 1, NULL, NULL)");
    f_ = Pencere<frmSipYazTanim>();
  }
  frmSipYazTanim* f_ = nullptr;

  static QString Satirlar() {
    return Tablo(
        "SELECT ID, SIRA, SUTUN, TIP, ALAN, BOY, \"DECIMAL\", FORMAT FROM SozlesmeTanim "
        "ORDER BY ID");
  }
  QString Gorunen() {
    QStringList l;
    for (QWidget* w : std::initializer_list<QWidget*>{f_->cmbAlan, f_->txtDetay, f_->cmbFormat,
                                                      f_->txtBoy, f_->txtDecimal})
      if (!w->isHidden()) l << w->objectName();
    return l.join(' ');
  }
  void Sec(int satir) {
    f_->DataGrid1->selectRow(satir);
    f_->DataGrid1_DblClick();
  }
};

TEST_F(SipYazTanim, AcilisVeTipeGoreAlanlar) {
  auto* f = f_;
  EXPECT_EQ(f->windowTitle(), "Sipariş Yazıcı Tanımlama Ekranı");
  EXPECT_TRUE(f->DataGrid1->isColumnHidden(f->rs.AlanNo("ID")));
  EXPECT_EQ(f->rs.RecordCount(), 2);
  EXPECT_EQ(Metinler({f->txtSira, f->txtSutun, f->cmbTip, f->cmbAlan, f->cmbFormat, f->txtBoy,
                      f->txtDecimal, f->cmdEkle}),
            "||Seçin|Seçin||0|0|Ekle");
  EXPECT_FALSE(f->cmdsil->isEnabled());
  const std::pair<const char*, const char*> tablo[] = {
      {"Seçin", "cmbAlan cmbFormat txtBoy txtDecimal"},
      {"A", "txtBoy"},
      {"B", "cmbAlan cmbFormat"},
      {"C", "txtBoy"},
      {"D", "txtDetay txtBoy txtDecimal"},
      {"N", "cmbAlan cmbFormat txtDecimal"},
      {"P", "txtBoy"},
      {"S", "txtBoy"},
      {"T", "txtDetay"},
      {"Y", ""}};
  for (const auto& [tip, alanlar] : tablo) {
    Yaz(f->cmbTip, tip);
    EXPECT_EQ(Gorunen(), alanlar) << tip;
    EXPECT_EQ(f->lblBoy->isHidden(), f->txtBoy->isHidden()) << tip;
  }
  // A block's line count may take two digits, a number's decimals one.
  for (const auto& [tip, alinan] : {std::pair{"D", "22"}, std::pair{"N", "2"}}) {
    Yaz(f->cmbTip, tip);
    test::Yaz(f->txtDecimal, QString());
    test::Tusla(f->txtDecimal, "224");
    EXPECT_EQ(f->txtDecimal->text(), alinan);
  }
}

TEST_F(SipYazTanim, EkleDegistirSil) {
  auto* f = f_;
  // Without line, order or kind: dropped without a word.
  Yaz(f->cmbTip, "N");
  Yaz(f->txtSira, "30");
  EXPECT_EQ(Basinca(f->cmdEkle), "");
  // A number row: ALAN, DECIMAL and FORMAT; no BOY, its field isn't on show.
  Yaz(f->txtSutun, "1");
  Yaz(f->cmbAlan, "FaizOran");
  Yaz(f->cmbFormat, "NUMR");
  Yaz(f->txtDecimal, "2");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Satirlar(),
            "4|1|1|B|AdSoyad|NULL|NULL|TURKCE\n9|2|1|P|NULL|1|NULL|NULL\n"
            "10|30|1|N|FaizOran|NULL|2|NUMR");
  EXPECT_EQ(Metinler({f->txtSira, f->txtSutun, f->cmbTip, f->txtBoy}), "||Seçin|0");
  EXPECT_EQ(f->rs.RecordCount(), 3);
  // A text row with nothing typed stores the empty text; a second row of the
  // same line and order is allowed.
  Yaz(f->cmbTip, "T");
  Yaz(f->txtSira, "30");
  Yaz(f->txtSutun, "1");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Tablo("SELECT ALAN, BOY FROM SozlesmeTanim WHERE ID = 11"), "|NULL");
  // The B row, changed into an S row: ALAN and FORMAT stay in the table.
  Sec(0);
  EXPECT_EQ(Metinler({f->txtSira, f->txtSutun, f->cmbTip, f->cmbAlan, f->cmbFormat, f->txtDetay,
                      f->cmdEkle}),
            "1|1|B|AdSoyad|TURKCE|AdSoyad|Kaydet");
  EXPECT_TRUE(f->cmdsil->isEnabled());
  Yaz(f->cmbTip, "S");
  Yaz(f->txtBoy, "5");
  ASSERT_TRUE(Bas(f->cmdEkle));
  EXPECT_EQ(Tablo("SELECT SIRA, SUTUN, TIP, ALAN, BOY, FORMAT FROM SozlesmeTanim WHERE ID = 4"),
            "1|1|S|AdSoyad|5|TURKCE");
  EXPECT_TRUE(f->cmdEkle->text() == "Ekle" && !f->cmdsil->isEnabled());
  Sec(1);
  ASSERT_EQ(f->ID, 9);
  for (const mesaj::Dugme cevap : {mesaj::Dugme::Hayir, mesaj::Dugme::Evet}) {
    Cevap(cevap);
    EXPECT_EQ(Basinca(f->cmdsil), "Soru SİLME ONAYI: Silmek istediğinizden Emin misiniz?");
    EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim WHERE ID = 9"),
              cevap == mesaj::Dugme::Evet ? "0" : "1");
  }
  EXPECT_TRUE(f->ID == 0 && f->cmdEkle->text() == "Ekle" && f->rs.RecordCount() == 3);
  Sec(0);
  ASSERT_TRUE(Bas(f->cmdVazgec));
  EXPECT_EQ(Metinler({f->txtSira, f->cmbTip, f->cmdEkle}), "|Seçin|Ekle");
}

TEST_F(SipYazTanim, SayiOlmayanSiraReddedilir) {
  auto* f = f_;
  Yaz(f->cmbTip, "P");
  Yaz(f->txtSira, "ab");
  Yaz(f->txtSutun, "1");
  EXPECT_EQ(Basinca(f->cmdEkle), "Ünlem Giriş Hatası: Sıra bir tam sayı olmalıdır: \"ab\"");
  EXPECT_EQ(QApplication::focusWidget(), f->txtSira);
  Yaz(f->txtSira, "3");
  Yaz(f->txtSutun, "1x");
  EXPECT_EQ(Basinca(f->cmdEkle), "Ünlem Giriş Hatası: Sütun bir tam sayı olmalıdır: \"1x\"");
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim"), "2");
  // Changing a row is refused alike.
  Sec(0);
  Yaz(f->txtSira, "");
  EXPECT_EQ(Basinca(f->cmdEkle), "Ünlem Giriş Hatası: Sıra bir tam sayı olmalıdır: \"\"");
  EXPECT_EQ(Tablo("SELECT SIRA FROM SozlesmeTanim WHERE ID = 4"), "1");
}

TEST_F(SipYazTanim, Onizleme) {
  EXPECT_EQ(Basinca(f_->cmdOnizleme),
            "Bilgi Önizleme: Önizlenecek sözleşme yok. Önce bir sözleşme açınız.");
  // The latest contract with an invoice, by the template as it stands.
  Sozlesme(1, 7, 12, "2005-03-04");
  Calistir(
      "INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, SozlesmeID) "
      "VALUES ('A', 1, '2005-03-04', 12, 1)");
  EXPECT_EQ(Basinca(f_->cmdOnizleme), "");
  auto* d = f_->findChild<QDialog*>("frmOnizleme");
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), "Önizleme - Sözleşme AB 7");
  d->close();
}

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
  void Yazdir(mesaj::Dugme cevap = mesaj::Dugme::Tamam) {
    Cevap(cevap);
    contract::SozlesmeYazdir(ekran_.get());
  }
  static QString Sozler() { return Tablo("SELECT Yaziyla, Gun FROM Sozlesme"); }
};

const QString kYaziciSorusu =
    "Düz YAZICI SEÇİMİ: Lütfen Yazıcı Seçiciyi SÖZLEŞME için Ayarlayınız !!";

TEST_F(SozlesmeYazdir, FaturaOlmadanVeTutarSifirsaYazdirmaz) {
  Ac(false);
  Yazdir();
  EXPECT_EQ(Kutular(), "Kritik Hata: Önce Fatura Bilgilerini Girmelisiniz !");
  EXPECT_EQ(Sozler(), "NULL|0");
  EXPECT_FALSE(QFile::exists(Genel::PrinterSozlesme));
  // The amount 0: the words are kept, following Odenecek less the tax (a Null
  // fee subtracts nothing), and the print refused.
  Fatura(QVariant());
  Calistir("DELETE FROM SozlesmeDetay");
  Calistir("UPDATE Sozlesme SET Tutar = 0");
  Ac(false);
  ekran_->Odenecek = 100;
  ekran_->GunYazisi = "30";
  Yazdir();
  EXPECT_EQ(Sozler(), "DOKSANYEDİ Yeni Lira ELLİ Yeni Kuruş|30");
  EXPECT_EQ(Kutular(), "Kritik HATA: Sözleşme tutarı hatalı, lütfen düzeltip tekrar deneyiniz!");
  EXPECT_FALSE(QFile::exists(Genel::PrinterSozlesme));
}

TEST_F(SozlesmeYazdir, MasrafGosterKelimeleri) {
  Fatura(7.5);
  Ac(false);
  Genel::MasrafGoster = false;
  Yazdir(mesaj::Dugme::Iptal);
  EXPECT_EQ(Kutular(), kYaziciSorusu);
  // Odenecek of the screen: 1.500,00 less its interest.
  const double odenecek = ekran_->Odenecek;
  EXPECT_EQ(Sozler(), Genel::YaziyaCevir(odenecek) + "|Muhtelif");
  EXPECT_FALSE(QFile::exists(Genel::PrinterSozlesme));
  Genel::MasrafGoster = true;
  Yazdir(mesaj::Dugme::Iptal);
  EXPECT_EQ(Sozler(), Genel::YaziyaCevir(odenecek - 2.5 - 7.5) + "|Muhtelif");
}

TEST_F(SozlesmeYazdir, TeslimEdilenSablonla) {
  Fatura(0);
  Ac(false);
  Yazdir();
  EXPECT_EQ(Kutular(), kYaziciSorusu);
  const QByteArray b = Dosya();
  // The bytes are those of the template stream for the stored rows.
  const auto hazir = sozlesmebaski::OnizlemeHazirla(Genel::Baglanti, 1);
  ASSERT_TRUE(hazir);
  EXPECT_EQ(b, sozlesmebaski::SozlesmeAkisi(hazir->sablon, hazir->satir, hazir->belgeler,
                                            sozlesmebaski::Ayar::Genelden())
                   .baytlar);
  // Readable on paper, amounts flush right, a form feed at the end.
  const onizleme::Yerlesim y = onizleme::Yerlestir(b);
  QStringList satirlar;
  for (int i = 0; i < onizleme::kSayfaSatiri; ++i) satirlar << onizleme::SatirMetni(y, 0, i);
  const QString kagit = satirlar.join('\n');
  for (const QString& parca :
       {QString("ODUNC SOZLESMESI"), QString("Borclu        : ALİ YILMAZ"),
        QString("Sozlesme No   : AB 7"), "Sozlesme Tutari" + QString(25, ' ') + "1.500,00",
        QString("Vade          : Muhtelif gun"), QString("ŞÜKRÜ ÖZTÜRK")})
    EXPECT_TRUE(kagit.contains(parca)) << parca.toStdString() << '\n' << kagit.toStdString();
  EXPECT_TRUE(b.endsWith("\x0c\r\n"));
  EXPECT_FALSE(b.contains('?'));
}

TEST_F(SozlesmeYazdir, SabitDuzenAdiTamUyanlaraYaziciHatasi) {
  Fatura(0);
  Ac(false);
  Genel::SahipAdi = "sefa dalkan";
  Yazdir();
  EXPECT_TRUE(Dosya().contains("ODUNC SOZLESMESI"));
  Genel::SahipAdi = "Sefa Dalkan";
  Yazdir();
  const QByteArray sabit = Dosya();
  EXPECT_FALSE(sabit.contains("ODUNC SOZLESMESI"));
  EXPECT_TRUE(sabit.startsWith("\x1b%9\x05\r\n"));
  EXPECT_TRUE(sabit.contains("DALKAN VELMORA - ORHAN DALKAN"));
  Kutular();
  Genel::PrinterSozlesme = "|exit 4";
  Yazdir();
  EXPECT_EQ(Kutular(), kYaziciSorusu +
                           "\nKritik HATA: Bir Hata Oluştu\nYazdırma komutu başarısız oldu (exit "
                           "4), çıkış kodu 4.");
}

TEST_F(SozlesmeYazdir, KomutSatiriEkranDegerleri) {
  // The command line's Odenecek and GunYazisi are the screen's.
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
  const QString teslim = Tablo("SELECT count(*) FROM SozlesmeTanim");
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
  EXPECT_EQ(Tablo("SELECT count(*) FROM SozlesmeTanim"), teslim);
}

}  // namespace
