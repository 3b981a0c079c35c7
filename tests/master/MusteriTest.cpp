// The customer register as a clerk uses it: typing, leaving fields, pressing
// buttons, answering questions; then the rows, the fields and the messages.

#include <QApplication>
#include <QKeyEvent>
#include <memory>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "master/frmMusteri.h"
#include "tests/support/Ortam.h"

namespace {

class MusteriTest : public test::Ortam {
 protected:
  static void Musteri(qint64 no, const QString& soyadi, const QString& adi,
                      const QString& babaAdi = QString(), const QVariant& hukuki = 1) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum, IlKod, "
                       "Il_Ad, Uyruk, VekilDurum, Aranacak) VALUES (?, ?, ?, ?, ?, 6, 'Ankara', "
                       "1, 0, ?)"),
        {no, soyadi, adi, babaAdi, hukuki, Genel::AramaAnahtari(soyadi, adi, babaAdi)});
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

  // Types into a box as a clerk does: the focus goes there first.
  static void Yaz(QLineEdit* kutu, const QString& metin) {
    kutu->setFocus();
    test::Isle();
    kutu->setText(metin);
  }

  static void Tus(QWidget* w, int tus) {
    QKeyEvent basti(QEvent::KeyPress, tus, Qt::NoModifier);
    QApplication::sendEvent(w, &basti);
  }

  static db::Kayitlar Satir(qint64 no) {
    return Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Musteri WHERE MusteriNo = ?"), {no});
  }

  static qint64 Adet() {
    return Genel::Baglanti.Deger(QStringLiteral("SELECT count(*) FROM Musteri")).toLongLong();
  }

  static bool Etkin(std::initializer_list<QWidget*> w) {
    return std::all_of(w.begin(), w.end(), [](QWidget* x) { return x->isEnabled(); });
  }
  static bool Kapali(std::initializer_list<QWidget*> w) {
    return std::none_of(w.begin(), w.end(), [](QWidget* x) { return x->isEnabled(); });
  }
};

TEST_F(MusteriTest, YeniMusteriHerAlaniylaKaydedilir) {
  auto f = Ac();
  // An empty table: only a new record and leaving.
  EXPECT_TRUE(Etkin({f->cmdNew, f->cmdExit}));
  EXPECT_TRUE(Kapali({f->cmdEdit, f->cmdsil, f->cmdFirst, f->cmdNext, f->cmdSave, f->cmdAra,
                      f->cmdEtiket, f->cmbNo, f->cmbAd}));

  f->cmdNew_Click();
  EXPECT_TRUE(f->frmSearch->isHidden());
  EXPECT_EQ(f->cmbIl->currentIndex(), 33);
  EXPECT_EQ(f->cmbIl->currentText(), QStringLiteral("İstanbul"));
  EXPECT_EQ(f->cmbUyruk->currentText(), QStringLiteral("TC"));
  EXPECT_EQ(f->cmbVekilDurum->currentText(), QStringLiteral("Yok"));
  EXPECT_EQ(f->txtUlkeKod->text(), QStringLiteral("TR"));
  EXPECT_TRUE(f->Frame1->isHidden());
  EXPECT_TRUE(Etkin({f->cmdSave, f->cmdCancel, f->cmdKodBelirle}));
  EXPECT_TRUE(Kapali({f->cmdNew, f->cmdEdit, f->cmdsil, f->cmdNext}));

  f->cmdKodBelirle_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));
  Yaz(f->txtVergiKimlikNo, QStringLiteral("1234567890"));
  Yaz(f->txtVergiDairesi, QStringLiteral("KOZYATAĞI"));
  Yaz(f->txtSoyadi, QStringLiteral("O'NEİL GIDA"));
  Yaz(f->txtAdi, QStringLiteral("SAN. VE TİC."));
  Yaz(f->txtBabaAdi, QStringLiteral("LTD. ŞTİ."));
  Yaz(f->txtAdres, QStringLiteral("Hacı'nın Sok. No:5"));
  Yaz(f->txtIlce, QStringLiteral("Çankaya"));
  Yaz(f->txtPostaKod, QStringLiteral("06690"));
  f->cmbIl->setCurrentIndex(5);
  Yaz(f->txtUlkeKod, QStringLiteral("DE"));
  Yaz(f->txtTCKimlikNo, QStringLiteral("12345678901"));
  f->cmbUyruk->setCurrentIndex(1);
  f->cmbHukukiBolum->setCurrentIndex(
      f->cmbHukukiBolum->findText(QStringLiteral("Sermaye Şirketi")));
  f->cmbHukukiBolum_Click();
  ASSERT_EQ(f->cmbHukukiYapi->count(), 3);
  f->cmbHukukiYapi->setCurrentIndex(f->cmbHukukiYapi->findText(QStringLiteral("Limited Şirket")));
  f->cmbVekilDurum->setCurrentIndex(4);
  EXPECT_FALSE(f->Frame1->isHidden());
  Yaz(f->txtVekilVergiKimlikNo, QStringLiteral("9876543210"));
  Yaz(f->txtVekilSoyad, QStringLiteral("KAYA"));
  Yaz(f->txtVekilad, QStringLiteral("AYŞE"));
  f->cmdSave_Click();

  EXPECT_TRUE(MesajMetinleri().isEmpty()) << MesajMetinleri().join('\n').toStdString();
  db::Kayitlar rs = Satir(1);
  ASSERT_TRUE(rs.SatirVar());
  const QStringList beklenen = {"VergiKimlikNo=1234567890",
                                "VergiDairesi=KOZYATAĞI",
                                "Soyadi=O'NEİL GIDA",
                                "Adi=SAN. VE TİC.",
                                "BabaAdi=LTD. ŞTİ.",
                                "Adres=Hacı'nın Sok. No:5",
                                "Ilce=Çankaya",
                                "PostaKod=06690",
                                "IlKod=6",
                                "Il_Ad=Ankara",
                                "UlkeKod=DE",
                                "TCKimlikNo=12345678901",
                                "Uyruk=2",
                                "VekilDurum=4",
                                "VekilVergiKimlik=9876543210",
                                "VekilSoyadi=KAYA",
                                "VekilAdi=AYŞE",
                                "HukukiDurum=11",
                                "Aranacak=O'NEİLGIDASANVETİCLTDŞTİ"};
  for (const QString& b : beklenen) {
    const QString alan = b.section('=', 0, 0);
    EXPECT_EQ(alan + '=' + rs.Metin(alan), b);
  }
  // Browsing the new customer, the lists know it.
  EXPECT_FALSE(f->frmSearch->isHidden());
  EXPECT_EQ(f->KayitTipi, 0);
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 1/1"));
  EXPECT_EQ(f->cmbNo->count(), 1);
  EXPECT_EQ(f->cmbAd->currentText(), QStringLiteral("O'NEİL GIDA SAN. VE TİC."));
  EXPECT_EQ(f->cmbHukukiYapi->currentText(), QStringLiteral("Limited Şirket"));
  EXPECT_TRUE(f->txtMusteriNo->isReadOnly());
  EXPECT_TRUE(Kapali({f->cmdSave, f->cmdCancel, f->cmdKodBelirle, f->txtSoyadi}));
  EXPECT_TRUE(Etkin({f->cmdNew, f->cmdEdit, f->cmdsil, f->cmdAra, f->cmdEtiket, f->cmbNo}));
}

TEST_F(MusteriTest, VekilCercevesiGizlenseDeYazilanlarKaydedilir) {
  auto f = Ac();
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, QStringLiteral("7"));
  Yaz(f->txtSoyadi, QStringLiteral("DEMİR"));
  f->cmbVekilDurum->setCurrentIndex(1);
  EXPECT_FALSE(f->Frame1->isHidden());
  Yaz(f->txtVekilSoyad, QStringLiteral("DEMİR"));
  f->cmbVekilDurum->setCurrentIndex(0);
  EXPECT_TRUE(f->Frame1->isHidden());
  f->cmdSave_Click();
  db::Kayitlar rs = Satir(7);
  EXPECT_EQ(rs.Metin(QStringLiteral("VekilSoyadi")), QStringLiteral("DEMİR"));
  EXPECT_EQ(rs.Fields(QStringLiteral("VekilDurum")).toInt(), 0);
  // Saved without a legal status: Null.
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("HukukiDurum"))));
}

TEST_F(MusteriTest, AyniUcIsimIkinciKezKaydedilmez) {
  Musteri(1, QStringLiteral("AK"), QStringLiteral("ALİ VELİ"), QStringLiteral("B."), 11);
  Musteri(2, QStringLiteral("KARA"), QStringLiteral("ALİ"));
  auto f = Ac();
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, QStringLiteral("5"));
  Yaz(f->txtSoyadi, QStringLiteral("A.K"));
  Yaz(f->txtAdi, QStringLiteral("ALİ  VELİ"));
  Yaz(f->txtBabaAdi, QStringLiteral("B"));
  f->cmdSave_Click();
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].metin, QStringLiteral("Bu Müşteri Daha Önce Kaydedilmiş"));
  EXPECT_TRUE(Mesajlar()[0].baslik.isEmpty());
  EXPECT_EQ(Mesajlar()[0].tur, mesaj::Tur::Kritik);
  EXPECT_EQ(Adet(), 2);
  // The customer already saved is on show.
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("AK"));
  EXPECT_TRUE(f->cmdNew->isEnabled());

  // An edit into another customer's names: refused, shown as stored.
  MesajlariTemizle();
  f->KisiBul(2);
  f->cmdEdit_Click();
  Yaz(f->txtSoyadi, QStringLiteral("AK"));
  Yaz(f->txtAdi, QStringLiteral("ALİVELİ"));
  Yaz(f->txtBabaAdi, QStringLiteral("B"));
  f->cmdSave_Click();
  EXPECT_EQ(MesajMetinleri(), QStringList{QStringLiteral("Bu Müşteri Daha Önce Kaydedilmiş")});
  EXPECT_EQ(Satir(2).Metin(QStringLiteral("Soyadi")), QStringLiteral("KARA"));
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("2"));
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("KARA"));
}

TEST_F(MusteriTest, DegisiklikNumarayiKorurSatiriYeniler) {
  Musteri(3, QStringLiteral("ÇELİK"), QStringLiteral("ALİ"));
  Musteri(8, QStringLiteral("YILMAZ"), QStringLiteral("ZEKİ"));
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE Musteri SET Telefon = '5551234' WHERE MusteriNo = 8"));
  auto f = Ac();
  EXPECT_EQ(f->cmbAd->itemText(0), QStringLiteral("ALİ ÇELİK"));
  f->cmdLast_Click();
  f->cmdEdit_Click();
  EXPECT_TRUE(f->txtMusteriNo->isReadOnly());
  EXPECT_FALSE(f->cmdKodBelirle->isEnabled());
  Yaz(f->txtAdi, QStringLiteral("ABİDİN"));
  Yaz(f->txtAdres, QStringLiteral("Şehit Er Ali'nin Sok."));
  f->cmdSave_Click();
  EXPECT_TRUE(MesajMetinleri().isEmpty());
  EXPECT_EQ(Adet(), 2);
  db::Kayitlar rs = Satir(8);
  EXPECT_EQ(rs.Metin(QStringLiteral("Adi")), QStringLiteral("ABİDİN"));
  EXPECT_EQ(rs.Metin(QStringLiteral("Adres")), QStringLiteral("Şehit Er Ali'nin Sok."));
  EXPECT_EQ(rs.Metin(QStringLiteral("Aranacak")), QStringLiteral("YILMAZABİDİN"));
  EXPECT_TRUE(db::NullMu(rs.Fields(QStringLiteral("Telefon"))));  // replaced, not updated
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 2/2"));
  // The new name takes its place in the sorted list, and picking it works.
  ASSERT_EQ(f->cmbAd->count(), 2);
  EXPECT_EQ(f->cmbAd->itemText(0), QStringLiteral("ABİDİN YILMAZ"));
  f->cmdFirst_Click();
  f->cmbAd->setCurrentIndex(0);
  f->cmbAd_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("8"));
}

TEST_F(MusteriTest, ReddedilenEklemeEskiSatiriKaybetmez) {
  Musteri(4, QStringLiteral("KAYA"), QStringLiteral("EMİNE"));
  Genel::Baglanti.Calistir(
      QStringLiteral("CREATE TRIGGER red BEFORE INSERT ON Musteri WHEN NEW.Adres = 'RED' "
                     "BEGIN SELECT RAISE(ABORT, 'reddedildi'); END"));
  auto f = Ac();
  f->cmdEdit_Click();
  Yaz(f->txtSoyadi, QStringLiteral("KAYALI"));
  Yaz(f->txtAdres, QStringLiteral("RED"));
  f->cmdSave_Click();
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].metin,
            QStringLiteral("Kayıt Eklenemedi! Müşteri Numarasını Kontol Edin!"));
  EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("Çift Müşteri Numarası"));
  EXPECT_EQ(Satir(4).Metin(QStringLiteral("Soyadi")), QStringLiteral("KAYA"));
  EXPECT_EQ(Adet(), 1);
  // Still editing, with what was typed.
  EXPECT_TRUE(f->cmdSave->isEnabled());
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("KAYALI"));

  // A new customer under a number already taken is refused the same way.
  MesajlariTemizle();
  f->cmdCancel_Click();
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, QStringLiteral("4"));
  Yaz(f->txtSoyadi, QStringLiteral("BAŞKA"));
  f->cmdSave_Click();
  EXPECT_EQ(MesajMetinleri(),
            QStringList{QStringLiteral("Kayıt Eklenemedi! Müşteri Numarasını Kontol Edin!")});
  EXPECT_EQ(f->KayitTipi, 1);
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("BAŞKA"));
  EXPECT_TRUE(f->txtMusteriNo->hasFocus());
  EXPECT_EQ(Satir(4).Metin(QStringLiteral("Soyadi")), QStringLiteral("KAYA"));
}

TEST_F(MusteriTest, SozlesmesiOlanSilinmezOlmayanSilinir) {
  Musteri(1, QStringLiteral("ARSLAN"), QStringLiteral("HASAN"));
  Musteri(2, QStringLiteral("BULUT"), QStringLiteral("OSMAN"));
  Genel::Baglanti.Calistir(
      QStringLiteral("INSERT INTO Sozlesme(SozlesmeID, SozlesmeNo, MusteriNo) VALUES (1, 1, 1)"));
  auto f = Ac();
  f->cmdsil_Click();
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].metin, QStringLiteral("Müşterinin Ödünç Kaydı Var, Silinemez"));
  EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("Uyarı"));
  EXPECT_EQ(Adet(), 2);

  MesajlariTemizle();
  f->cmdNext_Click();
  Cevap(mesaj::Dugme::Hayir);
  f->cmdsil_Click();
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].metin, QStringLiteral("Kayıt Silinecek! Onaylıyor musunuz?"));
  EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("Onay"));
  EXPECT_EQ(Mesajlar()[0].dugmeler, mesaj::Dugmeler::EvetHayir);
  EXPECT_EQ(Adet(), 2);

  Cevap(mesaj::Dugme::Evet);
  f->cmdsil_Click();
  EXPECT_EQ(Adet(), 1);
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 1/1"));
  // The lists keep the deleted entry until they are filled again...
  EXPECT_EQ(f->cmbNo->count(), 2);
  // ...which the next save does.
  f->cmdEdit_Click();
  f->cmdSave_Click();
  EXPECT_EQ(f->cmbNo->count(), 1);
  EXPECT_EQ(f->cmbAd->count(), 1);
}

TEST_F(MusteriTest, TekMusteriSilininceBosDurumaGecilir) {
  Musteri(1, QStringLiteral("ŞAHİN"), QStringLiteral("AHMET"));
  auto f = Ac();
  f->cmdsil_Click();
  EXPECT_EQ(Adet(), 0);
  // The deleted data stays on show with the buttons of an empty table.
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("ŞAHİN"));
  EXPECT_TRUE(Etkin({f->cmdNew, f->cmdExit}));
  EXPECT_TRUE(Kapali({f->cmdEdit, f->cmdsil, f->cmdFirst, f->cmdPrev, f->cmdNext, f->cmdLast,
                      f->cmdAra, f->cmdEtiket, f->cmbNo, f->cmbAd}));
  f->cmdNew_Click();
  f->cmdKodBelirle_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));
}

TEST_F(MusteriTest, ListelerdenSecilir) {
  Musteri(1, QStringLiteral("DEMİR"), QStringLiteral("CAN"), QString(), 10);
  Musteri(2, QStringLiteral("ÇELİK"), QStringLiteral("ALİ"), QString(), 10);
  Musteri(10, QStringLiteral("CANSU"), QStringLiteral("AYŞE"), QString(), 11);
  Musteri(11, QStringLiteral("ZORLU"), QStringLiteral("İSMAİL"));
  auto f = Ac();
  // Names in Turkish order; a natural person with the first name first.
  QStringList adlar;
  for (int i = 0; i < f->cmbAd->count(); ++i) adlar << f->cmbAd->itemText(i);
  EXPECT_EQ(adlar, (QStringList{"CANSU AYŞE", "ÇELİK ALİ", "DEMİR CAN", "İSMAİL ZORLU"}));
  EXPECT_EQ(f->cmbNo->itemText(2), QStringLiteral("10"));

  // A pick from the list of names.
  f->cmbAd->setCurrentIndex(1);
  f->cmbAd_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("2"));
  EXPECT_EQ(f->cmbNo->currentText(), QStringLiteral("2"));
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 2/4"));

  // A number typed and Enter.
  f->cmbNo->setEditText(QStringLiteral("10"));
  Tus(f->cmbNo, Qt::Key_Return);
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("CANSU"));

  // A name typed, then the focus leaves.
  f->cmbAd->setFocus();
  test::Isle();
  f->cmbAd->setEditText(QStringLiteral("demir can"));
  f->cmdNext->setFocus();
  test::Isle();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));

  // An unknown number: the message, and the first customer.
  f->cmdLast_Click();
  f->cmbNo->setEditText(QStringLiteral("99"));
  f->cmbNo_Click();
  ASSERT_EQ(Mesajlar().size(), 1);
  EXPECT_EQ(Mesajlar()[0].metin, QStringLiteral("Aranan Kayıt Bulunamadı!"));
  EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("Arama"));
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));

  // While the search is off a pick does nothing.
  f->AramaAcik = 0;
  f->cmbNo->setEditText(QStringLiteral("11"));
  f->cmbNo_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));
}

TEST_F(MusteriTest, KisiBulListelerinOtesindekiMusteriyiDeGosterir) {
  // More customers than the lists hold.
  Genel::Baglanti.Calistir(QStringLiteral(
      "WITH RECURSIVE n(x) AS (SELECT 1 UNION ALL SELECT x + 1 FROM n WHERE x < 30010) "
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) "
      "SELECT x, 'SOYAD' || x, 'AD', 10 FROM n"));
  auto f = Ac();
  EXPECT_EQ(f->cmbNo->count(), frmMusteri::kListeSiniri);
  EXPECT_EQ(f->cmbAd->count(), frmMusteri::kListeSiniri);
  EXPECT_EQ(f->cmbNo->itemText(frmMusteri::kListeSiniri - 1), QStringLiteral("30002"));
  f->KisiBul(30010);
  EXPECT_TRUE(MesajMetinleri().isEmpty());
  EXPECT_EQ(f->txtSoyadi->text(), QStringLiteral("SOYAD30010"));
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 30010/30010"));
  EXPECT_EQ(f->cmbNo->currentText(), QStringLiteral("30010"));
}

TEST_F(MusteriTest, MusteriNumarasiSayiOlmadanBirakilmaz) {
  Musteri(1, QStringLiteral("AKIN"), QStringLiteral("ERKAN"));
  auto f = Ac();
  f->cmdNew_Click();
  for (const QString& yanlis : {QString(), QStringLiteral("0"), QStringLiteral("12a")}) {
    MesajlariTemizle();
    Yaz(f->txtMusteriNo, yanlis);
    f->txtSoyadi->setFocus();
    test::Isle();
    ASSERT_EQ(Mesajlar().size(), 1) << yanlis.toStdString();
    EXPECT_EQ(Mesajlar()[0].metin, QStringLiteral("Müşteri Numarası Sayı Olmalı"));
    EXPECT_EQ(Mesajlar()[0].baslik, QStringLiteral("Nümerik Değer Hatası"));
    EXPECT_TRUE(f->txtMusteriNo->hasFocus());
  }
  // The proposal and the cancel button pass without the check.
  MesajlariTemizle();
  f->txtMusteriNo->clear();
  f->cmdKodBelirle->setFocus();
  test::Isle();
  f->cmdKodBelirle_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("2"));
  f->txtMusteriNo->setFocus();
  f->txtMusteriNo->clear();
  f->cmdCancel->setFocus();
  test::Isle();
  EXPECT_TRUE(MesajMetinleri().isEmpty());
  f->cmdCancel_Click();
  EXPECT_EQ(f->txtMusteriNo->text(), QStringLiteral("1"));

  // Too large for the column: told so, nothing written.
  f->cmdNew_Click();
  Yaz(f->txtMusteriNo, QStringLiteral("2147483648"));
  Yaz(f->txtSoyadi, QStringLiteral("BÜYÜK"));
  f->cmdSave_Click();
  ASSERT_FALSE(Mesajlar().isEmpty());
  EXPECT_TRUE(Mesajlar().back().metin.contains(QStringLiteral("2147483647")));
  EXPECT_EQ(Adet(), 1);
  EXPECT_EQ(f->KayitTipi, 1);
}

TEST_F(MusteriTest, EskiSatirlarVeListeKonumlari) {
  // An old row: no proxy state, no province, a status code without its row.
  Genel::Baglanti.Calistir(QStringLiteral(
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum, IlKod, Uyruk, VekilDurum) "
      "VALUES (1, 'ESKİ', 'KAYIT', NULL, 0, NULL, NULL), (2, 'KOD', 'YOK', 99, 35, 2, 3)"));
  auto f = Ac();
  EXPECT_EQ(f->cmbVekilDurum->currentText(), QStringLiteral("Yok"));
  EXPECT_TRUE(f->Frame1->isHidden());
  EXPECT_EQ(f->cmbIl->currentIndex(), 33);
  EXPECT_EQ(f->cmbUyruk->currentText(), QStringLiteral("TC"));
  EXPECT_EQ(f->cmbHukukiBolum->currentIndex(), -1);
  EXPECT_EQ(f->cmbAd->currentText(), QStringLiteral("ESKİ KAYIT"));

  f->cmbHukukiBolum->setCurrentIndex(0);
  f->cmbHukukiBolum_Click();
  f->cmdNext_Click();
  EXPECT_EQ(f->cmbIl->currentText(), QStringLiteral("İzmir"));
  EXPECT_EQ(f->cmbUyruk->currentText(), QStringLiteral("Yabancı"));
  EXPECT_EQ(f->cmbVekilDurum->currentText(), QStringLiteral("Kayyım"));
  EXPECT_FALSE(f->Frame1->isHidden());
  EXPECT_EQ(f->cmbHukukiBolum->currentIndex(), 0);  // an unknown code leaves the lists
  // Moving stops at both ends.
  f->cmdNext_Click();
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 2/2"));
  f->cmdFirst_Click();
  f->cmdPrev_Click();
  EXPECT_EQ(f->lblDurum->text(), QStringLiteral("Kayıt: 1/2"));
}

TEST_F(MusteriTest, KisaIlListesiIlkIlde) {
  Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Il_Trafik_Kodu WHERE IlKod > 10"));
  auto f = Ac();
  f->cmdNew_Click();
  EXPECT_EQ(f->cmbIl->currentIndex(), 0);
  EXPECT_EQ(f->cmbIl->currentText(), QStringLiteral("Adana"));
}

TEST_F(MusteriTest, EkFaturaKayitliOluncaAcilir) {
  Musteri(1, QStringLiteral("UYSAL"), QStringLiteral("MERVE"));
  auto f = Ac();
  f->Form_Activate();
  EXPECT_FALSE(f->mnuFaturaEk->isEnabled());

  int acilis = 0;
  ekran::Kaydet(QStringLiteral("frmFaturaEk"), [&acilis]() -> QWidget* {
    ++acilis;
    return nullptr;
  });
  f->Form_Activate();
  EXPECT_TRUE(f->mnuFaturaEk->isEnabled());
  f->mnuFaturaEk->trigger();
  EXPECT_EQ(acilis, 1);
  f->txtMusteriNo->clear();
  f->mnuFaturaEk_Click();
  EXPECT_EQ(acilis, 1);
}

}  // namespace
