// The maintenance entries of the "Dosya" menu as a clerk uses them, the
// day's backup at start-up, and the restore screen.

#include <gtest/gtest.h>

#include <QAction>
#include <QDir>
#include <QFile>
#include <QMdiArea>

#include "core/Ekran.h"
#include "core/frmGeriYukle.h"
#include "db/Kayitlar.h"
#include "db/Yedek.h"
#include "tests/core/Ortak.h"
#include "tests/support/Klavye.h"

namespace {

using namespace Qt::StringLiterals;

const QString kProblem = u"Bir Problem Oldu, Program Kullanılıyor Olabilir, Çıkıp Tekrar Deneyin"_s;
const QString kBakimSorusu =
    u"Soru BAKIM: Veri tabanı bakımı için açık ekranlar kapatılacak. Devam edilsin mi?"_s;

using test::Icerik;

class Bakim : public test::AnaPencere {
 protected:
  void SetUp() override {
    test::AnaPencere::SetUp();
    FirmaDoldur();
  }
  // The day's backup, or that of `gun` days later.
  QString Bugun(int gun = 0) const {
    return Dosya("velmora_" + QDate::currentDate().addDays(gun).toString("ddMMyyyy") + ".db");
  }
  QStringList Yedekler() const {
    return QDir(veriDizini()).entryList({"velmora_*.db"}, QDir::Files, QDir::Name);
  }
};

// --- the day's backup

TEST_F(Bakim, GununIlkAcilisindaYedekAlinir) {
  // Thirty days of backups already stand in the folder.
  for (int i = 1; i <= 30; ++i) {
    QFile f(Bugun(-i));
    ASSERT_TRUE(f.open(QIODevice::WriteOnly));
  }
  Baslat();
  EXPECT_EQ(Kutular(), QString());
  EXPECT_TRUE(QFile::exists(Bugun()));
  EXPECT_EQ(Yedekler().size(), 30);
  EXPECT_FALSE(QFile::exists(Bugun(-30)));
  const QByteArray ilk = Icerik(Bugun());

  // A later start of the same day takes none.
  Genel::Baglanti.Calistir("UPDATE Firma SET Adi = 'sonra'");
  Baslat();
  EXPECT_EQ(Icerik(Bugun()), ilk);
  EXPECT_EQ(Kutular(), QString());
}

TEST_F(Bakim, GunlukYedekAlinamazsaSoylenirAcilisSurer) {
  // A folder where the copy is written first.
  ASSERT_TRUE(QDir().mkdir(Bugun() + ".tmp"));
  Baslat();
  const QString kutular = Kutular();
  EXPECT_TRUE(kutular.startsWith(u"Ünlem UYARI: Günlük yedek alınamadı.\n"_s))
      << kutular.toStdString();
  EXPECT_EQ(kutular.count('\n'), 1);  // one message, nothing else
  EXPECT_EQ(ana_->windowTitle(), frmMain::Baslik(u"Kılıç Finans"_s));
  EXPECT_TRUE(Genel::Baglanti.Acik());
}

// --- mnuBakim

TEST_F(Bakim, BakimAcikEkranlariSorupKapatirBasarisizsaProgramSurer) {
  Baslat();
  ana_->mnuAbout->trigger();
  ASSERT_NE(ekran::Acik("frmhakkinda"), nullptr);
  QFile::remove(Bugun());

  // "No" leaves everything as it was.
  Cevap(mesaj::Dugme::Hayir);
  ana_->mnuBakim->trigger();
  EXPECT_EQ(Kutular(), kBakimSorusu);
  EXPECT_NE(ekran::Acik("frmhakkinda"), nullptr);
  EXPECT_FALSE(QFile::exists(Bugun()));

  Cevap(mesaj::Dugme::Evet);
  const QByteArray once = Icerik(Genel::VeriTabaniYolu());
  ana_->mnuBakim->trigger();
  test::Isle();
  EXPECT_EQ(Kutular(), kBakimSorusu + u"\nBilgi BAKIM: Veri Tabanı Bakımı Yapıldı"_s);
  EXPECT_EQ(ekran::Acik("frmhakkinda"), nullptr);
  EXPECT_TRUE(ana_->mdi->subWindowList().isEmpty());
  EXPECT_EQ(Icerik(Bugun()), once);
  EXPECT_FALSE(QFile::exists(Dosya("velmora_new.db")));

  // No screen open: no question.
  ana_->mnuBakim->trigger();
  EXPECT_EQ(Kutular(), u"Bilgi BAKIM: Veri Tabanı Bakımı Yapıldı"_s);

  // A failed maintenance leaves the file as it was.
  ASSERT_TRUE(QDir().mkdir(Dosya("velmora_new.db")));
  const QByteArray sonra = Icerik(Genel::VeriTabaniYolu());
  ana_->mnuBakim->trigger();
  EXPECT_EQ(Kutular(), "Kritik UYARI: " + kProblem);
  EXPECT_EQ(Icerik(Genel::VeriTabaniYolu()), sonra);
  // The program goes on: a screen opens on the same connection.
  ana_->mnuAbout->trigger();
  EXPECT_NE(ekran::Acik("frmhakkinda"), nullptr);
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Soyadi FROM Firma").toString(), u"Kılıç Finans"_s);
}

// --- mnuAraGuncel

TEST_F(Bakim, AramaBilgisiGuncelle) {
  Baslat();
  // An empty table: the message, nothing else.
  ana_->mnuAraGuncel->trigger();
  EXPECT_EQ(Kutular(), u"Düz : Müşterilerin Arama Bilgileri Güncellendi"_s);

  struct {
    int no;
    QVariant soyadi, adi, babaAdi;
    QString anahtar;
  } const musteriler[] = {
      {1, u"O'NEİL"_s, u"AYŞE"_s, QVariant(), u"O'NEİLAYŞE"_s},
      {2, QVariant(), u"ALİ VELİ"_s, u"B."_s, u"ALİVELİB"_s},
      {3, u"AK"_s, QVariant(), QVariant(), u"AK"_s},
      {4, QVariant(), QVariant(), QVariant(), u""_s},
  };
  for (const auto& m : musteriler)
    Genel::Baglanti.Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, Aranacak) VALUES (?, ?, ?, ?, 'x')",
        {m.no, m.soyadi, m.adi, m.babaAdi});
  ana_->mnuAraGuncel->trigger();
  EXPECT_EQ(Kutular(), u"Düz : Müşterilerin Arama Bilgileri Güncellendi"_s);
  for (const auto& m : musteriler)
    EXPECT_EQ(Genel::Baglanti.Deger("SELECT Aranacak FROM Musteri WHERE MusteriNo = ?", {m.no}),
              QVariant(m.anahtar))
        << m.no;

  // A row the engine refuses: the engine's text, and no key changed.
  Genel::Baglanti.Calistir("UPDATE Musteri SET Aranacak = 'x'");
  Genel::Baglanti.Calistir(
      "CREATE TRIGGER dur BEFORE UPDATE ON Musteri WHEN NEW.MusteriNo = 3 "
      "BEGIN SELECT RAISE(ABORT, 'olmaz'); END");
  ana_->mnuAraGuncel->trigger();
  EXPECT_EQ(Kutular(), u"Kritik HATA: Bir Hata Oluştu\nolmaz"_s);
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT count(*) FROM Musteri WHERE Aranacak = 'x'").toInt(), 4);
}

// --- mnuAyarYedek

TEST_F(Bakim, AyarlarinYedegi) {
  Genel::IniYaz(Genel::IniDosya, "Hesap", "IlaveGun", "-2");
  Genel::IniYaz(Genel::IniDosya, "Fatura", "Sayfabasi", "5");
  Genel::IniYaz(Genel::IniDosya, "Sozlesme", "Printer", u"/dev/lp0 ıi"_s);
  Genel::IniYaz(Genel::IniDosya, "Sozlesme", "OrtalamaGun", "1");  // not in the copy
  Baslat();
  Genel::Baglanti.Calistir("DELETE FROM SozlesmeTanim");
  Genel::Baglanti.Calistir(
      u"INSERT INTO SozlesmeTanim(ID, SIRA, SUTUN, TIP, ALAN, BOY, \"DECIMAL\", FORMAT) VALUES "
      "(7, 2, 1, 'A', 'Ad', 30, NULL, NULL), (9, 1, 40, 'S', 'Müşteri''nin', 8, 2, '#,##0.00'),"
      "(8, 1, 5, 'T', NULL, NULL, NULL, '')"_s);
  ana_->mnuAyarYedek->trigger();
  EXPECT_EQ(Kutular(), u"Bilgi TAMAM: Ayarların Yedeği Alındı"_s);
  EXPECT_EQ(Icerik(Dosya("Yedek_Velmora.ini")),
            u"[Fatura]\nBasBosluk= 11\nSonBosluk= 10\nPrinter=LPT2\nIsimBas= 24\nTarihAtla= 4\n"
            "VergiAtla= 5\nTarihBas= 59\nVergiBas= 22\nTutarSatirAtla= 4\nTutarBas= 58\n"
            "DetaySatirAtla= 9\nYeniSayfaAtla= 7\nSayfabasi=1\n\n[Hesap]\nIlaveGun=-2\n\n"
            "[Sozlesme]\nPrinter=/dev/lp0 ıi\nMasrafGoster=1\n"_s.toUtf8());
  EXPECT_EQ(Icerik(Dosya("SozlesmeTanim.txt")),
            u"'ID';'SIRA';'SUTUN';'TIP';'ALAN';'BOY';'DECIMAL';'FORMAT';\r\n"
            "'8';'1';'5';'T';'';'';'';'';\r\n"
            "'9';'1';'40';'S';'Müşteri'nin';'8';'2';'#,##0.00';\r\n"
            "'7';'2';'1';'A';'Ad';'30';'';'';\r\n"_s.toUtf8());

  // An empty template: the line of names only.
  Genel::Baglanti.Calistir("DELETE FROM SozlesmeTanim");
  ana_->mnuAyarYedek->trigger();
  EXPECT_EQ(Icerik(Dosya("SozlesmeTanim.txt")),
            "'ID';'SIRA';'SUTUN';'TIP';'ALAN';'BOY';'DECIMAL';'FORMAT';\r\n");
  Kutular();

  // A file that can't be written: the system's reason, the old copies kept.
  for (const char* ad : {"SozlesmeTanim.txt", "Yedek_Velmora.ini"}) {
    SCOPED_TRACE(ad);
    const QByteArray ini = Icerik(Dosya("Yedek_Velmora.ini"));
    QFile::remove(Dosya(ad));
    ASSERT_TRUE(QDir().mkdir(Dosya(ad)));
    ana_->mnuAyarYedek->trigger();
    const QString k = Kutular();
    EXPECT_TRUE(k.startsWith(u"Kritik HATA: Bir Hata Oluştu\n"_s)) << k.toStdString();
    EXPECT_GT(k.size(), QString(u"Kritik HATA: Bir Hata Oluştu\n"_s).size());
    if (QString(ad) != "Yedek_Velmora.ini") EXPECT_EQ(Icerik(Dosya("Yedek_Velmora.ini")), ini);
    QDir().rmdir(Dosya(ad));
  }
}

// --- restore

class GeriYukle : public Bakim {
 protected:
  frmGeriYukle* Ac() {
    ana_->mnuGeriYukle->trigger();
    auto* f = qobject_cast<frmGeriYukle*>(ekran::Acik("frmGeriYukle"));
    EXPECT_NE(f, nullptr);
    return f;
  }
  // The clerk types the start of the date into the list and presses the button.
  void Sec(frmGeriYukle* f, const QString& tarih) {
    f->lstYedek->setFocus();
    test::Tusla(f->lstYedek, tarih);
    test::Tikla(f->cmdGeriYukle);
  }
};

TEST_F(GeriYukle, SecilenYedekGeriYuklenir) {
  const QDate eski = QDate::currentDate().addDays(-2);
  Genel::Baglanti.Calistir("UPDATE Firma SET Soyadi = 'Eski Finans'");
  const QString yedek = db::TarihliYedekAl(Genel::Baglanti, eski);
  Genel::Baglanti.Calistir("UPDATE Firma SET Soyadi = 'Kılıç Finans'");
  Baslat();
  ana_->mnuAbout->trigger();
  frmGeriYukle* f = Ac();

  // Newest first, with dates and sizes.
  ASSERT_EQ(f->lstYedek->topLevelItemCount(), 2);
  const QTreeWidgetItem* ikinci = f->lstYedek->topLevelItem(1);
  EXPECT_EQ(f->lstYedek->topLevelItem(0)->text(0), Genel::TarihYaz(QDate::currentDate()));
  EXPECT_EQ(ikinci->text(0), Genel::TarihYaz(eski));
  EXPECT_EQ(ikinci->text(1),
            Genel::SayiYaz(double(QFileInfo(yedek).size()) / 1024.0, 0) + u" KB"_s);
  EXPECT_EQ(ikinci->text(2), QFileInfo(yedek).fileName());

  Sec(f, Genel::TarihYaz(eski).left(5));
  EXPECT_EQ(Kutular(), u"Soru GERİ YÜKLE: "_s + Genel::TarihYaz(eski) +
                           u" tarihli yedek geri yüklenecek. Önce şimdiki veri tabanının yedeği "
                           "alınacak ve açık ekranlar kapatılacak. Devam edilsin mi?\n"
                           "Bilgi GERİ YÜKLE: Veri tabanı yedekten geri yüklendi. Önceki hali "_s +
                           QFileInfo(Bugun()).fileName() + u" dosyasında saklandı."_s);
  test::Isle();
  EXPECT_TRUE(ana_->mdi->subWindowList().isEmpty());
  EXPECT_EQ(Genel::Baglanti.Deger("SELECT Soyadi FROM Firma").toString(), u"Eski Finans"_s);
  EXPECT_EQ(ana_->windowTitle(), frmMain::Baslik(u"Eski Finans"_s));
  // The database as it was before the restore is today's backup.
  db::Baglanti k;
  k.Ac(Bugun(), db::Baglanti::Kip::SadeceOku);
  EXPECT_EQ(k.Deger("SELECT Soyadi FROM Firma").toString(), u"Kılıç Finans"_s);
}

TEST_F(GeriYukle, BozukYedekReddedilir) {
  Baslat();
  QFile bozuk(Dosya("velmora_01012020.db"));
  ASSERT_TRUE(bozuk.open(QIODevice::WriteOnly));
  bozuk.write(QByteArray(4096, 'x'));
  bozuk.close();
  const QByteArray once = Icerik(Genel::VeriTabaniYolu());
  const QByteArray bugunku = Icerik(Bugun());
  frmGeriYukle* f = Ac();
  Sec(f, "01.01");
  const QString k = Kutular();
  EXPECT_TRUE(
      k.startsWith(u"Kritik UYARI: Bu yedek geri yüklenemez; hiçbir şey değişmedi.\n"
                   "Dosya bir veri tabanı değil"_s))
      << k.toStdString();
  EXPECT_EQ(Icerik(Genel::VeriTabaniYolu()), once);
  EXPECT_EQ(Icerik(Bugun()), bugunku);
  EXPECT_EQ(ekran::Acik("frmGeriYukle"), f);

  // Nothing chosen in an empty list.
  QFile::remove(bozuk.fileName());
  QFile::remove(Bugun());
  f->Listele();
  test::Tikla(f->cmdGeriYukle);
  EXPECT_EQ(Kutular(), u"Ünlem UYARI: Geri yüklenecek yedeği seçiniz."_s);
}

}  // namespace
