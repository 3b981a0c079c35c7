// The collection screen as a clerk uses it: the opening range and banks, the
// choices that select papers, the totals by state, the payment dialog's three
// answers, the printed list and the CSV file, and the engine failing under it.

#include <QComboBox>
#include <QTimer>
#include <functional>

#include "reports/IzgaraCsv.h"
#include "reports/frmTahsilat.h"
#include "tests/reports/Ortak.h"

namespace {

using test::Ekran;
using test::Gun;
using test::Tikla;
using test::Yaz;

class Tahsilat : public test::RaporEkrani<frmTahsilat> {
 protected:
  void SetUp() override {
    RaporEkrani::SetUp();
    test::Ekle("Musteri(MusteriNo, Soyadi, Adi, HukukiDurum)", "(1, 'YILMAZ', 'ALİ', 1)");
    test::Ekle("Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih)",
               "(1, 'AB', 7, 1, @-60)");
  }

  struct Cek {
    QString kesideci = "MEHMET KAYA", banka = "ZİRAAT", cekNo = "100";
    int vade = 0;
    std::optional<int> odeme = 0;  // days from today; none: bounced
    double meblag = 100;
  };
  static qint64 Ekle(const Cek& c) {
    test::Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Kesideci, Banka, "
        "Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag, Doviz) "
        "VALUES (1, 'AB', 7, 'Çek', ?, ?, 'KIZILAY', '55', ?, ?, ?, 0, ?, 'TRL')",
        {c.kesideci, c.banka.isNull() ? QVariant() : QVariant(c.banka), c.cekNo, Gun(c.vade),
         c.odeme ? QVariant(Gun(*c.odeme)) : QVariant(), c.meblag});
    return Genel::Baglanti.SonEklenenNo();
  }

  // What the grid shows, a line a row: drawer, cheque number, payment date.
  static QString Liste(frmTahsilat* f) {
    const db::Kayitlar& rs = f->rsCek;
    return test::Satirlar(f->grdCek->Model(), "|",
                          {rs.AlanNo("Kesideci"), rs.AlanNo("CekNo"), rs.AlanNo("Odenmesi")})
        .join('\n');
  }
  static QString Toplamlar(frmTahsilat* f) {
    return test::Metinler(f->txtTopAdet, f->txtTopTutar, f->txtSizAdet, f->txtSizTutar);
  }
  static QVariant Odenmesi(qint64 giris) {
    return Genel::Baglanti.Deger("SELECT Odenmesi FROM SozlesmeDetay WHERE GirisNo = ?", {giris});
  }

  // Acts on the payment dialog once `ac` (the state button unless given)
  // opened it; a dialog left open is cancelled. What it showed when it
  // opened: title, paper and date; "yok" without a dialog.
  static QString DiyalogIle(frmTahsilat* f, std::function<void(Dialog*)> islem,
                            std::function<void()> ac = {}) {
    auto g = std::make_shared<QString>(u"yok"_s);
    QTimer::singleShot(0, [g, islem] {
      auto* d = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      if (!d) return;
      *g = d->windowTitle() + "|" + d->lblDuyuru->text() + "|" + d->txtTarih->text();
      QApplication::setActiveWindow(d);
      test::Isle();
      islem(d);
      test::Isle();
      if (d->isVisible()) d->CancelButton->click();
    });
    ac ? ac() : Tikla(f->cmdCiftTik);
    test::Isle();
    return *g;
  }
};

TEST_F(Tahsilat, AcilisAraligiBankalarVeToplamlar) {
  Ekle({.kesideci = "ESKİ", .banka = "AKBANK", .vade = -16});  // before the range
  Ekle({.kesideci = "İKİ", .banka = "ZİRAAT", .vade = -3, .odeme = -3, .meblag = 1234.5});
  Ekle({.kesideci = "BİR", .banka = "", .vade = -15, .odeme = {}, .meblag = 0.5});
  Ekle({.kesideci = "ÜÇ", .banka = QString(), .vade = 7, .odeme = 7, .meblag = 1000000});
  Ekle({.kesideci = "SONRA", .banka = "AKBANK", .vade = 8});  // after it
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Tahsilatlar"_s);
  EXPECT_EQ(f->txtTarih[0]->text() + " " + f->txtTarih[1]->text(), Ekran(-15) + " " + Ekran(7));
  QStringList bankalar;
  for (int i = 0; i < f->cmbBanka->count(); ++i) bankalar << f->cmbBanka->itemText(i);
  EXPECT_EQ(bankalar.join('|') + " " + f->cmbBanka->currentText(), u"Hepsi|AKBANK|ZİRAAT Hepsi"_s);
  // Oldest maturity first; a bounced line shows no payment date.
  EXPECT_EQ(Liste(f), "BİR|100|\nİKİ|100|" + Ekran(-3) + "\nÜÇ|100|" + Ekran(7));
  // A date still ahead counts with the paid ones here; half a lira has no
  // leading zero.
  EXPECT_EQ(Toplamlar(f), u"2|1.001.234,50|1|,50"_s);
  EXPECT_TRUE(Mesajlar().isEmpty());
}

TEST_F(Tahsilat, SecimlerYazildigiGibiBulur) {
  Ekle({.kesideci = "O'NEIL", .banka = "AKBANK", .cekNo = "A-1", .vade = -40});
  Ekle({.kesideci = "%100 ŞAHİN", .banka = "ZİRAAT", .cekNo = "B_2", .vade = -20});
  Ekle({.kesideci = "X1002 ŞAHİN", .banka = "ZİRAAT", .cekNo = "BX2", .vade = 0, .odeme = {}});
  Ekle({.kesideci = "ISIK", .banka = "İŞ", .cekNo = "C'3", .vade = 30});
  auto* f = Ac();
  Yaz(f->txtTarih[0], "");
  Yaz(f->txtTarih[1], "");
  struct Durum {
    const char* ad;
    QString kesideci, cekNo, banka, liste;
  };
  const Durum durumlar[] = {
      {"hepsi", "", "", "Hepsi", "O'NEIL,%100 ŞAHİN,X1002 ŞAHİN,ISIK"},
      {"kesme isareti", "o'n", "", "Hepsi", "O'NEIL"},
      {"yuzde harf olarak", "%1", "", "Hepsi", "%100 ŞAHİN"},
      {"alt cizgi harf olarak", "", "B_", "Hepsi", "%100 ŞAHİN"},
      {"kesme isaretli cek no", "", "C'", "Hepsi", "ISIK"},
      {"turkce buyuk kucuk", "şahin", "", "Hepsi", "%100 ŞAHİN,X1002 ŞAHİN"},
      {"noktasiz i ayri harf", "ışık", "", "Hepsi", ""},
      {"yalniz bosluk", "   ", "", "Hepsi", "O'NEIL,%100 ŞAHİN,X1002 ŞAHİN,ISIK"},
      {"banka ve keşideci", "ŞAHİN", "", "ZİRAAT", "%100 ŞAHİN,X1002 ŞAHİN"},
      {"bankada olmayan", "O'NEIL", "", "ZİRAAT", ""},
      {"cok uzun", QString(2000, u'A'), "", "Hepsi", ""},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.ad);
    Yaz(f->txtKesideci, d.kesideci);
    Yaz(f->txtCekNo, d.cekNo);
    test::Sec(f->cmbBanka, d.banka);
    Tikla(f->cmdListe);
    EXPECT_EQ(test::Satirlar(f->grdCek->Model(), "", {f->rsCek.AlanNo("Kesideci")}).join(','),
              d.liste);
  }
  EXPECT_TRUE(Mesajlar().isEmpty()) << MesajMetinleri().join("; ").toStdString();
}

TEST_F(Tahsilat, TarihlerVadeyeUygulanirHataliTarihListelemez) {
  // Paid today but due last month: outside a range that begins this month.
  Ekle({.kesideci = "GEÇEN AY", .vade = -30, .odeme = 0});
  Ekle({.kesideci = "BU AY", .vade = 2, .odeme = 2});
  auto* f = Ac();
  Yaz(f->txtTarih[0], Ekran(-5).left(6) + Ekran(-5).right(2));  // two-digit year
  Tikla(f->cmdListe);
  EXPECT_EQ(f->txtTarih[0]->text(), Ekran(-5));
  EXPECT_EQ(Liste(f), "BU AY|100|" + Ekran(2));

  // Half-typed, and before 2000: the message, the focus stays, the list too.
  Yaz(f->txtTarih[0], "");
  Tikla(f->cmdListe);  // an empty box passes and lists everything
  EXPECT_EQ(Liste(f).count('\n'), 1);
  Ekle({.kesideci = "YENİ", .vade = 1});
  for (const char* hatali : {"31.02.2024", "12.13", "01.01.1999", "abc"}) {
    SCOPED_TRACE(hatali);
    Yaz(f->txtTarih[0], QString::fromLatin1(hatali));
    Tikla(f->cmdListe);
    EXPECT_EQ(Kutular(), u"Kritik Dikkat: Hatalı Tarih"_s);
    EXPECT_EQ(QApplication::focusWidget(), f->txtTarih[0]);
    EXPECT_EQ(Liste(f).count('\n'), 1);  // the new line isn't listed
  }
  // A start after the end: an empty list and empty totals, no message; the
  // payment dialog has no line to open on.
  Yaz(f->txtTarih[0], Ekran(5));
  Yaz(f->txtTarih[1], Ekran(-5));
  Tikla(f->cmdListe);
  EXPECT_EQ(Liste(f) + Toplamlar(f), "|||");
  EXPECT_EQ(DiyalogIle(f, [](Dialog*) {}), "yok");
  EXPECT_TRUE(Mesajlar().isEmpty());
}

TEST_F(Tahsilat, DiyalogunUcCevabi) {
  const qint64 odenen = Ekle({.kesideci = "AHMET", .cekNo = "1", .vade = -2, .odeme = -2});
  const qint64 batak = Ekle({.kesideci = "VELİ", .cekNo = "2", .vade = -1, .odeme = {}});
  auto* f = Ac();
  ASSERT_EQ(Toplamlar(f), u"1|100,00|1|100,00"_s);

  // A paid line: the dialog shows it and its date. A wrong date, by Enter
  // (the default button) or Tamam, keeps it open; Cancel changes nothing.
  EXPECT_EQ(DiyalogIle(f,
                       [](Dialog* d) {
                         for (const char* hatali : {"32.01.2025", "01.01.1990"}) {
                           Yaz(d->txtTarih, QString::fromLatin1(hatali));
                           QTest::keyClick(d->txtTarih, Qt::Key_Return);
                           test::Isle();
                           Tikla(d->OKButton);
                           EXPECT_TRUE(d->isVisible());
                         }
                         Tikla(d->CancelButton);
                       }),
            u"Ödeme Bilgisi|7 Sözleşme Nolu AHMET Keşideli Çek|"_s + Ekran(-2));
  EXPECT_EQ(MesajMetinleri(), QStringList(4, "Hatalı Tarih"));
  MesajlariTemizle();
  EXPECT_EQ(f->lblCevap->text(), u"Vazgeç"_s);
  EXPECT_EQ(Odenmesi(odenen).toString(), Gun(-2));

  // "Ödenmedi": bounced. The totals wait for the next list; the grid doesn't.
  DiyalogIle(f, [](Dialog* d) { Tikla(d->cmdOdenmedi); });
  EXPECT_TRUE(db::NullMu(Odenmesi(odenen)));
  EXPECT_EQ(Liste(f), "AHMET|1|\nVELİ|2|");
  EXPECT_EQ(Toplamlar(f), u"1|100,00|1|100,00"_s);
  EXPECT_EQ(f->rsCek.Fields("GirisNo").toLongLong(), odenen);  // still on its row

  // A bounced line, double-clicked, opens with an empty box; a date typed
  // sets it right.
  const QPoint ikinci = f->grdCek->visualRect(f->grdCek->model()->index(1, 3)).center();
  EXPECT_EQ(DiyalogIle(
                f,
                [](Dialog* d) {
                  Yaz(d->txtTarih, u"05.01.2026"_s);
                  Tikla(d->OKButton);
                },
                [&] { QTest::mouseDClick(f->grdCek->viewport(), Qt::LeftButton, {}, ikinci); }),
            u"Ödeme Bilgisi|7 Sözleşme Nolu VELİ Keşideli Çek|"_s);
  EXPECT_EQ(Odenmesi(batak).toString(), u"2026-01-05"_s);
  EXPECT_EQ(f->lblCevap->text(), u"05.01.2026"_s);

  // Tamam with the box emptied is the same as "Ödenmedi" (Esc empties it).
  DiyalogIle(f, [](Dialog* d) {
    d->txtTarih->setFocus();
    QTest::keyClick(d->txtTarih, Qt::Key_Escape);
    Tikla(d->OKButton);
  });
  EXPECT_TRUE(db::NullMu(Odenmesi(batak)));
  Tikla(f->cmdListe);
  EXPECT_EQ(Toplamlar(f), u"||2|200,00"_s);
  EXPECT_TRUE(Mesajlar().isEmpty());
}

TEST_F(Tahsilat, KilitliVeritabaniMesajVerirDurumDegismez) {
  const qint64 giris = Ekle({.vade = -2, .odeme = -2});
  auto* f = Ac();
  Genel::Baglanti.BeklemeAyarla(50);
  db::Baglanti diger;
  diger.Ac(Genel::Baglanti.Yol());
  {
    db::Islem islem(diger);
    diger.Calistir("UPDATE Firma SET Adi = 'x'");  // holds the write lock
    DiyalogIle(f, [](Dialog* d) { Tikla(d->cmdOdenmedi); });
  }
  Genel::Baglanti.BeklemeAyarla(db::Baglanti::kBekleme);
  ASSERT_EQ(MesajMetinleri().size(), 1);
  EXPECT_TRUE(MesajMetinleri()[0].startsWith("Bir Hata Oluştu\n"));
  EXPECT_EQ(Mesajlar()[0].baslik, u"HATA"_s);
  EXPECT_EQ(Odenmesi(giris).toString(), Gun(-2));
  EXPECT_EQ(Liste(f), "MEHMET KAYA|100|" + Ekran(-2));

  // A statement that fails shows the same message and the screen stays.
  MesajlariTemizle();
  test::Calistir("ALTER TABLE SozlesmeDetay RENAME TO Eski");
  Tikla(f->cmdListe);
  ASSERT_EQ(MesajMetinleri().size(), 1);
  EXPECT_TRUE(MesajMetinleri()[0].startsWith("Bir Hata Oluştu\n"));
  EXPECT_TRUE(f->isVisible());
}

TEST_F(Tahsilat, RaporIzgaraninGosterdigi) {
  Ekle({.kesideci = "AHMET", .banka = "AKBANK", .cekNo = "11", .vade = -3, .meblag = 1500});
  Ekle({.kesideci = "BEKİR", .banka = "ZİRAAT", .cekNo = "22", .vade = -2, .meblag = 0.25});
  Ekle({.kesideci = "CEMİL", .banka = "AKBANK", .cekNo = "33", .vade = -1, .meblag = 1000000});
  auto* f = Ac();
  test::Sec(f->cmbBanka, "AKBANK");
  Tikla(f->cmdListe);
  // Sorted by the amount's head, descending: the printed list follows.
  f->grdCek->sortByColumn(f->rsCek.AlanNo("Meblag"), Qt::DescendingOrder);
  Tikla(f->cmdYazdir);
  QString baslik;
  const QString metin = test::Basilan(&baslik);
  EXPECT_EQ(baslik, u"Cek Raporu"_s);
  if (metin.isNull()) GTEST_SKIP() << "pdftotext yok";
  EXPECT_EQ(metin, "Çek Bordro Raporu Tarih Aralığı: " + Ekran(-15) + " - " + Ekran(7) + " " +
                       Ekran(0) +
                       " Tür Keşideci Banka Şube Hesap No Çek No Vade Tutar "
                       "Çek CEMİL AKBANK KIZILAY 55 33 " +
                       Ekran(-1) + " 1.000.000,00 Çek AHMET AKBANK KIZILAY 55 11 " + Ekran(-3) +
                       " 1.500,00 2 Adet Toplam: 1.001.500,00 Sayfa: 1/1");
}

// What the grid shows, in its order and with its captions.
TEST_F(Tahsilat, CsvIzgaraninGosterdigi) {
  Ekle({.kesideci = "O'NEIL; \"ŞAHİN\"", .cekNo = "7", .vade = -3, .odeme = {}, .meblag = 1234.5});
  Ekle({.kesideci = "ÇELİK", .cekNo = "8", .vade = -2, .meblag = 0.25});
  auto* f = Ac();
  QTemporaryDir dizin;
  const QString yol = dizin.filePath("liste.csv");
  csv::DosyaSeciciKur([&](const QString& oneri) {
    EXPECT_EQ(oneri, u"tahsilatlar.csv"_s);
    return yol;
  });
  // The clerk moved the amount to the front and sorted by the drawer, descending.
  f->grdCek->horizontalHeader()->moveSection(f->rsCek.AlanNo("Meblag"), 0);
  f->grdCek->sortByColumn(f->rsCek.AlanNo("Kesideci"), Qt::DescendingOrder);
  Tikla(f->cmdCsv);
  csv::DosyaSeciciKaldir();
  QFile dosya(yol);
  ASSERT_TRUE(dosya.open(QIODevice::ReadOnly));
  EXPECT_EQ(QString::fromUtf8(dosya.readAll()),
            "\ufeffMeblağ;GirisNo;Sözleşme No;Tip;Keşideci;Banka;Şube;Hesap;Çek No;Vadesi;Döviz;"
            "\"Ödeme \"\r\n1.234,50;1;7;Çek;\"O'NEIL; \"\"ŞAHİN\"\"\";ZİRAAT;KIZILAY;55;7;" +
                Ekran(-3) + ";TRL;\r\n0,25;2;7;Çek;ÇELİK;ZİRAAT;KIZILAY;55;8;" + Ekran(-2) +
                ";TRL;" + Ekran(0) + "\r\n");
}

}  // namespace
