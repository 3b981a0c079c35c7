// The customer register as a clerk uses it: typing, leaving fields, pressing
// buttons, answering questions; then the rows, the fields and the messages.

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QRegularExpression>
#include <memory>

#include "master/frmMusteri.h"
#include "tests/master/Ortak.h"
#include "tests/support/Klavye.h"

using namespace Qt::StringLiterals;
using test::Sql;

namespace {

class MusteriTest : public test::Ortam {
 protected:
  static void Musteri(qint64 no, const QString& s, const QString& a, const QString& b = {},
                      const QVariant& hukuki = 1) {
    Sql(u"INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum, Aranacak) "
        "VALUES (?, ?, ?, ?, ?, ?)"_s,
        {no, s, a, b, hukuki, Genel::AramaAnahtari(s, a, b)});
  }
  static std::unique_ptr<frmMusteri> Ac() {
    auto f = std::make_unique<frmMusteri>();
    f->show();
    QApplication::setActiveWindow(f.get());
    f->activateWindow();
    f->Form_Load();
    test::Isle();
    return f;
  }
  static void Birak(QWidget* yeni) {
    yeni->setFocus();
    test::Isle();
  }
  // Into each box in turn: the focus goes there first.
  template <typename... Geri>
  static void Yaz(QLineEdit* kutu, const char* metin, Geri... geri) {
    Birak(kutu);
    test::Yaz(kutu, QString::fromUtf8(metin));
    if constexpr (sizeof...(geri) > 0) Yaz(geri...);
  }
  // The named columns of a customer's row.
  static QString Satir(qint64 no, QString alanlar) {
    return test::Satirlar(
        u"SELECT %1 FROM Musteri WHERE MusteriNo = ?"_s.arg(alanlar.replace(' ', ", "_L1)), {no});
  }
  static qint64 Adet() { return Genel::Baglanti.Deger(u"SELECT count(*) FROM Musteri"_s).toInt(); }
  // The commands and lists the clerk can use, in the order they were made.
  static QString Etkin(const frmMusteri& f) {
    static const QRegularExpression ad(u"^(cmd.*|cmbNo|cmbAd)$"_s);
    QStringList l;
    for (const QWidget* w : f.findChildren<QWidget*>())
      if (w->isEnabled() && ad.match(w->objectName()).hasMatch()) l << w->objectName();
    return l.join(' ');
  }
  // What the lists of the record show, and whether the proxy frame is there.
  static QString Secimler(const frmMusteri& f) {
    return u"%1|%2|%3|%4|%5|%6"_s.arg(
        f.cmbIl->currentText(), f.cmbUyruk->currentText(), f.cmbHukukiBolum->currentText(),
        f.cmbHukukiYapi->currentText(), f.cmbVekilDurum->currentText(),
        f.Frame1->isHidden() ? u"-"_s : u"Vekil"_s);
  }
  // The record on show: number, names and position.
  static QString Kayit(const frmMusteri& f) {
    return u"%1|%2|%3|%4"_s.arg(f.txtMusteriNo->text(), f.txtSoyadi->text(), f.txtAdi->text(),
                                f.lblDurum->text());
  }
  static QString Ogeler(const QComboBox* c) {
    QStringList l;
    for (int i = 0; i < c->count(); ++i) l << c->itemText(i);
    return l.join(',');
  }
};

const QString kNormal =
    u"cmbNo cmbAd cmdFirst cmdPrev cmdNext cmdLast cmdNew cmdEdit cmdsil cmdAra cmdEtiket cmdExit"_s;
const QString kAyniIsim = u"Kritik : Bu Müşteri Daha Önce Kaydedilmiş"_s;
const QString kEklenemedi =
    u"Kritik Çift Müşteri Numarası: Kayıt Eklenemedi! Müşteri Numarasını Kontol Edin!"_s;
const QString kBulunamadi = u"Kritik Arama: Aranan Kayıt Bulunamadı!"_s;

TEST_F(MusteriTest, YeniMusteriHerAlaniylaKaydedilir) {
  auto f = Ac();
  EXPECT_EQ(Etkin(*f), u"cmdNew cmdExit"_s);  // an empty table
  f->cmdNew_Click();
  EXPECT_TRUE(f->frmSearch->isHidden());
  EXPECT_EQ(Secimler(*f) + f->txtUlkeKod->text(), u"İstanbul|TC|||Yok|-TR"_s);
  EXPECT_EQ(Etkin(*f), u"cmdKodBelirle cmdSave cmdCancel cmdExit"_s);
  f->cmdKodBelirle_Click();
  Yaz(f->txtVergiKimlikNo, "1234567890", f->txtVergiDairesi, "KOZYATAĞI", f->txtSoyadi,
      "O'NEİL GIDA", f->txtAdi, "SAN. VE TİC.", f->txtBabaAdi, "LTD. ŞTİ.", f->txtAdres,
      "Hacı'nın Sok. No:5", f->txtIlce, "Çankaya", f->txtPostaKod, "06690", f->txtUlkeKod, "DE",
      f->txtTCKimlikNo, "12345678901");
  test::Sec(f->cmbIl, u"Ank"_s);
  test::Sec(f->cmbUyruk, u"Y"_s);
  test::Sec(f->cmbHukukiBolum, u"Ser"_s);
  test::Sec(f->cmbHukukiYapi, u"Lim"_s);
  test::Sec(f->cmbVekilDurum, u"Vek"_s);
  Yaz(f->txtVekilVergiKimlikNo, "9876543210", f->txtVekilSoyad, "KAYA", f->txtVekilad, "AYŞE");
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), u""_s);
  EXPECT_EQ(Satir(1,
                  "VergiKimlikNo VergiDairesi Soyadi Adi BabaAdi Adres Ilce PostaKod IlKod "
                  "Il_Ad UlkeKod TCKimlikNo Uyruk VekilDurum VekilVergiKimlik VekilSoyadi "
                  "VekilAdi HukukiDurum Aranacak"),
            u"1234567890|KOZYATAĞI|O'NEİL GIDA|SAN. VE TİC.|LTD. ŞTİ.|Hacı'nın Sok. No:5|Çankaya|"
            "06690|6|Ankara|DE|12345678901|2|4|9876543210|KAYA|AYŞE|11|O'NEİLGIDASANVETİCLTDŞTİ"_s);
  // Browsing the new customer, the lists know it.
  EXPECT_FALSE(f->frmSearch->isHidden());
  EXPECT_EQ(Kayit(*f) + ' ' + Ogeler(f->cmbAd),
            u"1|O'NEİL GIDA|SAN. VE TİC.|Kayıt: 1/1 O'NEİL GIDA SAN. VE TİC."_s);
  EXPECT_EQ(Secimler(*f), u"Ankara|Yabancı|Sermaye Şirketi|Limited Şirket|Vekil|Vekil"_s);
  EXPECT_TRUE(f->txtMusteriNo->isReadOnly() && !f->txtSoyadi->isEnabled());
  EXPECT_EQ(Etkin(*f), kNormal);
}

TEST_F(MusteriTest, ReddedilenKayitHicbirSeyKaybettirmez) {
  Musteri(1, "AK", "ALİ VELİ", "B.", 11);
  Musteri(2, "KARA", "ALİ");
  Sql(u"CREATE TRIGGER red BEFORE INSERT ON Musteri WHEN NEW.Adres = 'RED' "
      "BEGIN SELECT RAISE(ABORT, 'reddedildi'); END"_s);
  auto f = Ac();
  // The same three names, blanks and points aside: the stored customer is shown.
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, "5", f->txtSoyadi, "A.K", f->txtAdi, "ALİ  VELİ", f->txtBabaAdi, "B");
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), kAyniIsim);
  EXPECT_EQ(Adet(), 2);
  EXPECT_EQ(Kayit(*f), u"1|AK|ALİ VELİ|Kayıt: 1/2"_s);
  EXPECT_EQ(Etkin(*f), kNormal);
  // An edit into another customer's names: refused, shown as stored.
  f->KisiBul(2);
  f->cmdEdit_Click();
  Yaz(f->txtSoyadi, "AK", f->txtAdi, "ALİVELİ", f->txtBabaAdi, "B");
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), kAyniIsim);
  EXPECT_EQ(Satir(2, "Soyadi") + ' ' + Kayit(*f), u"KARA 2|KARA|ALİ|Kayıt: 2/2"_s);
  // An edit whose insert fails keeps the stored row and what was typed.
  f->cmdEdit_Click();
  Yaz(f->txtSoyadi, "KARALI", f->txtAdres, "RED");
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), kEklenemedi);
  EXPECT_EQ(Satir(2, "Soyadi") + ' ' + Kayit(*f), u"KARA 2|KARALI|ALİ|Kayıt: 2/2"_s);
  EXPECT_TRUE(f->cmdSave->isEnabled());
  // A new customer under a number already taken is refused the same way.
  f->cmdCancel_Click();
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, "2", f->txtSoyadi, "BAŞKA");
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), kEklenemedi);
  EXPECT_EQ(Satir(2, "Soyadi") + ' ' + f->txtSoyadi->text(), u"KARA BAŞKA"_s);
  EXPECT_EQ(f->KayitTipi, 1);
  EXPECT_TRUE(f->txtMusteriNo->hasFocus());
}

TEST_F(MusteriTest, DegisiklikNumarayiKorurSatiriYeniler) {
  Musteri(3, "ÇELİK", "ALİ");
  Musteri(8, "YILMAZ", "ZEKİ");
  Sql(u"UPDATE Musteri SET Telefon = '5551234' WHERE MusteriNo = 8"_s);
  auto f = Ac();
  f->cmdLast_Click();
  f->cmdEdit_Click();
  EXPECT_TRUE(f->txtMusteriNo->isReadOnly() && !f->cmdKodBelirle->isEnabled());
  Yaz(f->txtAdi, "ABİDİN", f->txtAdres, "Şehit Er Ali'nin Sok.");
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), u""_s);
  // Replaced, not updated: the column the screen doesn't know is gone.
  EXPECT_EQ(Satir(8, "Adi Adres Aranacak Telefon"),
            u"ABİDİN|Şehit Er Ali'nin Sok.|YILMAZABİDİN|NULL"_s);
  EXPECT_EQ(Kayit(*f), u"8|YILMAZ|ABİDİN|Kayıt: 2/2"_s);
  // The new name takes its place in the sorted list, and picking it works.
  EXPECT_EQ(Ogeler(f->cmbAd), u"ABİDİN YILMAZ,ALİ ÇELİK"_s);
  f->cmdFirst_Click();
  test::ListedenSec(f->cmbAd, 0);
  EXPECT_EQ(f->txtMusteriNo->text(), u"8"_s);
}

TEST_F(MusteriTest, SozlesmesiOlanSilinmezOlmayanSilinir) {
  Musteri(1, "ARSLAN", "HASAN");
  Musteri(2, "BULUT", "OSMAN");
  Sql(u"INSERT INTO Sozlesme(SozlesmeID, SozlesmeNo, MusteriNo) VALUES (1, 1, 1)"_s);
  auto f = Ac();
  f->cmdsil_Click();
  EXPECT_EQ(Kutular(), u"Kritik Uyarı: Müşterinin Ödünç Kaydı Var, Silinemez"_s);
  f->cmdNext_Click();
  Cevap(mesaj::Dugme::Hayir);
  f->cmdsil_Click();
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].dugmeler, mesaj::Dugmeler::EvetHayir);
  EXPECT_EQ(Kutular(), u"Soru Onay: Kayıt Silinecek! Onaylıyor musunuz?"_s);
  EXPECT_EQ(Adet(), 2);
  Cevap(mesaj::Dugme::Evet);
  f->cmdsil_Click();
  EXPECT_EQ(Kayit(*f), u"1|ARSLAN|HASAN|Kayıt: 1/1"_s);
  // The lists keep the deleted entry until the next save fills them again.
  EXPECT_EQ(f->cmbNo->count(), 2);
  f->cmdEdit_Click();
  f->cmdSave_Click();
  EXPECT_EQ(Ogeler(f->cmbNo) + ' ' + Ogeler(f->cmbAd), u"1 HASAN ARSLAN"_s);
  // The only customer, its contract gone: the deleted data stays on show with
  // the buttons of an empty table.
  Sql(u"DELETE FROM Sozlesme"_s);
  f->cmdsil_Click();
  EXPECT_EQ(f->txtSoyadi->text() + ' ' + Etkin(*f), u"ARSLAN cmdNew cmdExit"_s);
  // The next one gets number 1 again; what was typed into the proxy frame is
  // kept when the frame goes, and no legal status is Null.
  f->cmdNew_Click();
  f->cmdKodBelirle_Click();
  test::Sec(f->cmbVekilDurum, u"Vel"_s);
  EXPECT_FALSE(f->Frame1->isHidden());
  Yaz(f->txtSoyadi, "DEMİR", f->txtVekilSoyad, "DEMİR");
  Birak(f->cmbVekilDurum);
  QTest::keyClick(f->cmbVekilDurum, Qt::Key_Home);
  EXPECT_TRUE(f->Frame1->isHidden());
  f->cmdSave_Click();
  EXPECT_EQ(Satir(1, "Soyadi VekilSoyadi VekilDurum HukukiDurum"), u"DEMİR|DEMİR|0|NULL"_s);
}

TEST_F(MusteriTest, ListelerdenSecilir) {
  Musteri(1, "DEMİR", "CAN", {}, 10);
  Musteri(2, "ÇELİK", "ALİ", {}, 10);
  Musteri(10, "CANSU", "AYŞE", {}, 11);
  Musteri(11, "ZORLU", "İSMAİL");
  auto f = Ac();
  // Names in Turkish order; a natural person with the first name first.
  EXPECT_EQ(Ogeler(f->cmbAd) + ' ' + Ogeler(f->cmbNo),
            u"CANSU AYŞE,ÇELİK ALİ,DEMİR CAN,İSMAİL ZORLU 1,2,10,11"_s);
  test::ListedenSec(f->cmbAd, 1);
  EXPECT_EQ(Kayit(*f) + ' ' + f->cmbNo->currentText(), u"2|ÇELİK|ALİ|Kayıt: 2/4 2"_s);
  // A name typed in any case, then the focus leaves.
  test::ListeyeYaz(f->cmbAd, u"demir can"_s, Qt::Key_unknown);
  Birak(f->cmdNext);
  EXPECT_EQ(f->txtMusteriNo->text(), u"1"_s);
  // An unknown number: the message, and the first customer.
  f->cmdLast_Click();
  test::ListeyeYaz(f->cmbNo, u"99"_s);
  EXPECT_EQ(Kutular(), kBulunamadi);
  EXPECT_EQ(f->txtMusteriNo->text(), u"1"_s);
  // While the search is off a pick does nothing.
  f->AramaAcik = 0;
  test::ListeyeYaz(f->cmbNo, u"11"_s);
  EXPECT_EQ(f->txtMusteriNo->text(), u"1"_s);
}

TEST_F(MusteriTest, HukukiYapiSecilmedikceNullKalir) {
  auto f = Ac();
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, "2", f->txtSoyadi, "TOPRAK");
  // The category picked by its first letter fills the statuses; none is picked.
  Birak(f->cmbHukukiBolum);
  test::Tusla(f->cmbHukukiBolum, u"S"_s);
  EXPECT_EQ(Secimler(*f), u"İstanbul|TC|Sermaye Şirketi||Yok|-"_s);
  EXPECT_EQ(Ogeler(f->cmbHukukiYapi),
            u"Anonim Şirket,Limited Şirket,Sermayesi Paylara Bölünmüş Komandit Şirket"_s);
  f->cmdSave_Click();
  EXPECT_EQ(Satir(2, "HukukiDurum"), u"NULL"_s);
  // A status the clerk picks is stored; another category drops it again.
  f->cmdEdit_Click();
  Birak(f->cmbHukukiYapi);
  test::Tusla(f->cmbHukukiYapi, u"L"_s);
  f->cmdSave_Click();
  EXPECT_EQ(Satir(2, "HukukiDurum"), u"11"_s);
  f->cmdEdit_Click();
  Birak(f->cmbHukukiBolum);
  QTest::keyClick(f->cmbHukukiBolum, Qt::Key_Up);
  EXPECT_EQ(Secimler(*f), u"İstanbul|TC|Gerçek Kişi||Yok|-"_s);
  f->cmdSave_Click();
  EXPECT_EQ(Satir(2, "HukukiDurum") + Kutular(), u"NULL"_s);
}

TEST_F(MusteriTest, ListeyeYazilanTamOlarakAranir) {
  Musteri(5, "KARACA", "ALİ");
  Musteri(120, "KARA", "AHMET");
  auto f = Ac();
  // 120 begins with 12, but 12 is no customer; the beginning of a name picks
  // nothing; whole keys do, a name in any case.
  const std::tuple<QComboBox*, QString, QString, QString> durumlar[] = {
      {f->cmbNo, u"12"_s, kBulunamadi, u"5|KARACA|ALİ|Kayıt: 1/2"_s},
      {f->cmbAd, u"AHM"_s, {}, u"5|KARACA|ALİ|Kayıt: 1/2"_s},
      {f->cmbNo, u"120"_s, {}, u"120|KARA|AHMET|Kayıt: 2/2"_s},
      {f->cmbAd, u"ali karaca"_s, {}, u"5|KARACA|ALİ|Kayıt: 1/2"_s}};
  for (const auto& [liste, metin, kutu, kayit] : durumlar) {
    SCOPED_TRACE(metin.toStdString());
    test::ListeyeYaz(liste, metin);
    EXPECT_EQ(Kutular(), kutu);
    EXPECT_EQ(Kayit(*f), kayit);
    if (metin == u"AHM"_s) EXPECT_EQ(liste->currentText(), metin);  // stays as typed
  }
  // Nothing typed went into the lists.
  EXPECT_EQ(Ogeler(f->cmbNo) + ' ' + Ogeler(f->cmbAd), u"5,120 AHMET KARA,ALİ KARACA"_s);
  // A real box takes the focus from the list while it stands: the search
  // still runs once, with one message.
  QWidget kutu;
  kutu.setWindowModality(Qt::ApplicationModal);
  auto* tamam = new QPushButton(u"Tamam"_s, &kutu);
  int sayi = 0;
  mesaj::CevaplayiciKur([&](const mesaj::Kayit&) {
    ++sayi;
    kutu.show();
    QApplication::setActiveWindow(&kutu);
    tamam->setFocus(Qt::ActiveWindowFocusReason);
    return mesaj::Dugme::Tamam;
  });
  test::ListeyeYaz(f->cmbNo, u"12"_s);
  EXPECT_EQ(sayi, 1);
}

TEST_F(MusteriTest, AyniMusteriBuyukKucukHarfTurkceKurallarla) {
  const std::tuple<const char*, const char*, bool> durumlar[] = {{"Ali Veli", "ALİ VELİ", true},
                                                                 {"ışık", "IŞIK", true},
                                                                 {"IŞIK", "ışık", true},
                                                                 {"İnce", "iNCE", true},
                                                                 {"ISIK", "ısık", true},
                                                                 {"ſahin", "SAHİN", true},
                                                                 {"ALI", "ali", false},
                                                                 {"IŞIK", "işik", false},
                                                                 {"Ali Veli", "ALİ VELİK", false},
                                                                 {"Ali", "", false}};
  for (const auto& [kayitli, yazilan, ayni] : durumlar) {
    SCOPED_TRACE(std::string(kayitli) + " / " + yazilan);
    Sql(u"DELETE FROM Musteri"_s);
    Musteri(7, QString::fromUtf8(kayitli), {});
    auto f = Ac();
    f->cmdNew_Click();
    Yaz(f->txtMusteriNo, "8");
    Birak(f->txtSoyadi);
    test::Tusla(f->txtSoyadi, QString::fromUtf8(yazilan));
    f->cmdSave_Click();
    EXPECT_EQ(Kutular(), ayni ? kAyniIsim : QString());
    EXPECT_EQ(f->txtMusteriNo->text(), ayni ? u"7"_s : u"8"_s);
    EXPECT_EQ(Adet(), ayni ? 1 : 2);
  }
}

TEST_F(MusteriTest, KisiBulListelerinOtesindekiMusteriyiDeGosterir) {
  Sql(u"WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 30010) "
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) "
      "SELECT x, 'SOYAD' || x, 'AD', 10 FROM n"_s);
  auto f = Ac();
  // The lists end at their limit.
  EXPECT_EQ(f->cmbAd->count(), frmMusteri::kListeSiniri);
  EXPECT_EQ(f->cmbNo->itemText(f->cmbNo->count() - 1), u"30002"_s);
  f->KisiBul(30010);
  EXPECT_EQ(Kutular(), u""_s);
  EXPECT_EQ(Kayit(*f) + ' ' + f->cmbNo->currentText(),
            u"30010|SOYAD30010|AD|Kayıt: 30010/30010 30010"_s);
}

TEST_F(MusteriTest, MusteriNumarasiSayiOlmadanBirakilmaz) {
  Musteri(1, "AKIN", "ERKAN");
  // With a short list of provinces a new customer starts at the first one.
  Sql(u"DELETE FROM Il_Trafik_Kodu WHERE IlKod > 10"_s);
  auto f = Ac();
  f->cmdNew_Click();
  EXPECT_EQ(f->cmbIl->currentIndex(), 0);
  const QString hata = u"Kritik Nümerik Değer Hatası: Müşteri Numarası "_s;
  const std::pair<const char*, const char*> durumlar[] = {
      {"", "Sayı Olmalı"},
      {"0", "Sayı Olmalı"},
      {"12a", "Sayı Olmalı"},
      {"2147483648", "En Fazla 2147483647 Olabilir"}};
  for (const auto& [yanlis, mesaj] : durumlar) {
    Yaz(f->txtMusteriNo, yanlis);
    Birak(f->txtSoyadi);
    EXPECT_EQ(Kutular(), hata + QString::fromUtf8(mesaj)) << yanlis;
    EXPECT_TRUE(f->txtMusteriNo->hasFocus()) << yanlis;
  }
  // Saving it anyway writes nothing.
  f->txtSoyadi->setText(u"BÜYÜK"_s);
  f->cmdSave_Click();
  EXPECT_EQ(Kutular(), hata + QString::fromUtf8(durumlar[3].second));
  EXPECT_EQ(Adet(), 1);
  EXPECT_EQ(f->KayitTipi, 1);
  // The proposal and the cancel button pass without the check.
  Yaz(f->txtMusteriNo, "");
  Birak(f->cmdKodBelirle);
  f->cmdKodBelirle_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), u"2"_s);
  Yaz(f->txtMusteriNo, "");
  Birak(f->cmdCancel);
  EXPECT_EQ(Kutular(), u""_s);
  f->cmdCancel_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), u"1"_s);
}

TEST_F(MusteriTest, EskiSatirlarVeListeKonumlari) {
  // Old rows: no proxy state, no province, a status code without its row.
  Sql(u"INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum, IlKod, Uyruk, VekilDurum) "
      "VALUES (1, 'ESKİ', 'KAYIT', NULL, 0, NULL, NULL), (2, 'KOD', 'YOK', 99, 35, 2, 3)"_s);
  auto f = Ac();
  EXPECT_EQ(Secimler(*f) + ' ' + f->cmbAd->currentText(), u"İstanbul|TC|||Yok|- ESKİ KAYIT"_s);
  // An unknown code leaves the legal lists as they were (a category left
  // there by a record shown before; the list is closed while browsing).
  f->cmbHukukiBolum->setCurrentIndex(0);
  f->cmbHukukiBolum_Click();
  f->cmdNext_Click();
  EXPECT_EQ(Secimler(*f), u"İzmir|Yabancı|Gerçek Kişi||Kayyım|Vekil"_s);
  // Moving stops at both ends.
  f->cmdNext_Click();
  EXPECT_EQ(f->lblDurum->text(), u"Kayıt: 2/2"_s);
  f->cmdFirst_Click();
  f->cmdPrev_Click();
  EXPECT_EQ(f->lblDurum->text(), u"Kayıt: 1/2"_s);
}

}  // namespace
