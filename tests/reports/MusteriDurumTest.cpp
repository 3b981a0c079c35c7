// The status grid: each customer's papers by state against the plain
// statement of the same figures, the columns adding up, "now" on a paper
// due today, and the descending sort of a column head.

#include <QApplication>
#include <QHeaderView>
#include <QtTest/QTest>

#include "core/Genel.h"
#include "reports/MusteriDurum.h"
#include "reports/frmMusteriDurum.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

class MusteriDurum : public test::Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, BabaAdi, HukukiDurum) VALUES "
        "(1, 'YILMAZ', 'ALİ', 'VELİ', 1), (2, 'ÇELİK', 'İNŞAAT', 'LTD', 2), "
        "(3, 'ŞEN', NULL, NULL, 2), (4, 'BOŞ', 'SÖZLEŞMESİZ', NULL, 1), "
        "(5, 'CAN', 'SATIRSIZ', NULL, 1), (6, 'ARSLAN', 'BATAK', NULL, 1)");
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, MusteriNo, Tarih) VALUES "
        "(1, 1, ?), (2, 1, ?), (3, 2, ?), (4, 3, ?), (5, 5, ?), (6, 6, ?)",
        {Gun(-30), Gun(-10), Gun(-20), Gun(-5), Gun(-5), Gun(-40)});
    // contract, maturity, payment (none: bounced), amount
    Cek(1, -10, -10, 1000);
    Cek(1, 0, 0, 250.5);  // due today: collected here
    Cek(2, 20, 20, 99.5);
    Cek(2, 5, {}, 10);
    Cek(3, 40, 40, 1e6);
    Cek(3, 2, -1, 0.01);  // paid early
    Cek(4, 1, 1, 7);
    Cek(6, -20, {}, 300);
    Cek(6, -10, {}, 200);
    Calistir("INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag) VALUES (99, ?, ?, 5)",
             {Gun(0), Gun(0)});  // a line whose contract was deleted by hand
  }
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }
  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  static QString Gun(int fark) { return QDate::currentDate().addDays(fark).toString(Qt::ISODate); }
  static void Cek(int sozlesme, int vade, std::optional<int> odeme, double meblag) {
    Calistir("INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag) VALUES (?, ?, ?, ?)",
             {sozlesme, Gun(vade), odeme ? QVariant(Gun(*odeme)) : QVariant(), meblag});
  }
  static QString Satirlar(const db::Kayitlar& rs) {
    QStringList l;
    for (int r = 0; r < rs.RecordCount(); ++r) {
      QStringList s;
      for (int c = 0; c < rs.AlanSayisi(); ++c) s << rs.Deger(r, c).toString();
      l << s.join('|');
    }
    return l.join('\n');
  }
  std::unique_ptr<frmMusteriDurum> ekran_;
};

// The plain statement of the figures, one join through every line, as the
// grid would read them without its plan.
const char* const kDuzSorgu =
    "SELECT M.MusteriNo, CASE WHEN M.HukukiDurum = 1 THEN COALESCE(M.Adi, '') || ' ' || "
    "COALESCE(M.Soyadi, '') ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' || "
    "COALESCE(M.BabaAdi, '') END AS Musteri, count(SD.GirisNo), sum(SD.Meblag), "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN SD.Meblag ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN 1 ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi > ? THEN SD.Meblag ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi > ? THEN 1 ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END), avg(SD.Meblag), "
    "avg(GunFarki(S.Tarih, SD.Vadesi)) "
    "FROM (Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo) "
    "INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID "
    "GROUP BY M.MusteriNo ORDER BY 2 COLLATE TURKCE";

TEST_F(MusteriDurum, DuzSorguIleAyniSatirlarVeToplamlar) {
  const QString bugun = Gun(0);
  const db::Kayitlar rs = musteridurum::Oku(QDate::currentDate());
  EXPECT_EQ(Satirlar(rs), Satirlar(Genel::Baglanti.Sorgu(QString::fromLatin1(kDuzSorgu),
                                                         {bugun, bugun, bugun, bugun})));
  // Customers without contracts or without lines aren't there; the names
  // stand in Turkish order.
  QStringList adlar;
  for (int r = 0; r < rs.RecordCount(); ++r) adlar << rs.Deger(r, 1).toString();
  EXPECT_EQ(adlar, (QStringList{"ALİ YILMAZ", "BATAK ARSLAN", "ÇELİK İNŞAAT LTD", "ŞEN  "}));
  // Collected + at risk + bounced is the whole, amounts and counts.
  for (int r = 0; r < rs.RecordCount(); ++r) {
    SCOPED_TRACE(adlar[r].toStdString());
    const auto d = [&](const char* alan) { return rs.Deger(r, rs.AlanNo(alan)).toDouble(); };
    EXPECT_NEAR(d("Tahsil") + d("Risk") + d("Batak"), d("ToplamTutar"), 1e-6);
    EXPECT_EQ(d("TahsilAdet") + d("RiskAdet") + d("BatakAdet"), d("ToplamBelge"));
  }
  // ALİ: the paper due today is collected; every paper of BATAK bounced, and
  // its average term still counts them.
  EXPECT_EQ(Satirlar(rs).section('\n', 0, 1),
            "1|ALİ YILMAZ|4|1360|1250.5|2|99.5|1|10|1|340|23.75\n6|BATAK "
            "ARSLAN|2|500|0|0|0|0|500|2|250|25");
}

// The rows of a set with its numbers to six decimals: the sums of the grid
// are taken per contract first, so their last binary digits may differ from
// a sum taken line by line in another order.
QString Yuvarlak(const db::Kayitlar& rs) {
  QStringList l;
  for (int r = 0; r < rs.RecordCount(); ++r) {
    QStringList s;
    for (int c = 0; c < rs.AlanSayisi(); ++c) {
      const QVariant v = rs.Deger(r, c);
      s << (db::NullMu(v)                     ? QString("NULL")
            : v.typeId() == QMetaType::Double ? QString::number(v.toDouble(), 'f', 6)
                                              : v.toString());
    }
    l << s.join('|');
  }
  return l.join('\n');
}

// Where adding up per contract could part from the plain statement: several
// contracts of a customer, amounts with cents, Nulls in the amount, the
// maturity and the contract date (left out of the sums and averages as avg
// leaves them out), a customer whose every amount is Null, and two customers
// of the same name (by number).
TEST_F(MusteriDurum, DuzSorguIleAyniSiraUcDurumlarda) {
  Calistir(
      "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES "
      "(20, 'AYNI', 'AD', 1), (11, 'AYNI', 'AD', 1), (12, 'TUTARSIZ', NULL, 2)");
  Calistir(
      "INSERT INTO Sozlesme(SozlesmeID, MusteriNo, Tarih) VALUES "
      "(20, 20, ?), (21, 20, NULL), (22, 20, ?), (23, 11, ?), (24, 12, ?)",
      {Gun(-100), Gun(-7), Gun(-3), Gun(-1)});
  Cek(20, -50, -50, 0.1);
  Cek(20, -40, {}, 0.2);
  Cek(21, 10, 10, 0.7);  // no contract date: no term
  Cek(22, 3, 3, 1234.56);
  Cek(22, 4, 5, 0.3);
  Calistir(
      "INSERT INTO SozlesmeDetay(SozlesmeID, Vadesi, Odenmesi, Meblag) VALUES "
      "(22, NULL, ?, 5.55), (23, ?, ?, NULL), (23, ?, NULL, 9.99), (24, ?, ?, NULL)",
      {Gun(-1), Gun(1), Gun(1), Gun(2), Gun(0), Gun(0)});
  const QString bugun = Gun(0);
  const db::Kayitlar rs = musteridurum::Oku(QDate::currentDate());
  EXPECT_EQ(Yuvarlak(rs), Yuvarlak(Genel::Baglanti.Sorgu(QString::fromLatin1(kDuzSorgu) + ", 1",
                                                         {bugun, bugun, bugun, bugun})));
  QStringList sira;
  for (int r = 0; r < rs.RecordCount(); ++r) sira << rs.Deger(r, 0).toString();
  EXPECT_EQ(sira.join(','), "11,20,1,6,2,3,12");
}

TEST_F(MusteriDurum, EkranBicimleriVeAzalanSiralama) {
  ekran_ = std::make_unique<frmMusteriDurum>();
  ekran_->show();
  ekran_->Yukle();
  test::Isle();
  auto* f = ekran_.get();
  EXPECT_EQ(f->windowTitle(), u"Müşteri Cari Raporu"_s);
  const auto* m = f->DataGrid1->Model();
  QStringList basliklar;
  for (int c = 0; c < m->columnCount(); ++c)
    basliklar << m->headerData(c, Qt::Horizontal, Qt::DisplayRole).toString();
  EXPECT_EQ(
      basliklar.join('|'),
      u"MusteriNo|Müşteri|Belge|Tutar|Tahsil|Adet|Risk|Adet|K Sız|Adet|Ort. Tutar|Ort. Gün"_s);
  const auto satir = [&](int r) {
    QStringList s;
    for (int c = 0; c < m->columnCount(); ++c) s << m->Metin(r, c);
    return s.join('|');
  };
  EXPECT_EQ(satir(2),
            u"2|ÇELİK İNŞAAT LTD|2|1.000.000,01|0,01|1|1.000.000,00|1|0,00|0|500.000,01|41,00"_s);

  // A click on a head: descending by that column, every time.
  QHeaderView* baslik = f->DataGrid1->horizontalHeader();
  const auto tikla = [&](int s) {
    QTest::mouseClick(baslik->viewport(), Qt::LeftButton, {},
                      QPoint(baslik->sectionViewportPosition(s) + baslik->sectionSize(s) / 2,
                             baslik->height() / 2));
    test::Isle();
  };
  const auto sira = [&] {
    QStringList l;
    for (int r = 0; r < m->rowCount(); ++r) l << m->Metin(r, 0);
    return l.join(',');
  };
  const int batak = f->rsDurum.AlanNo("Batak");
  tikla(batak);
  EXPECT_EQ(sira(), "6,1,2,3");
  tikla(batak);
  EXPECT_EQ(sira(), "6,1,2,3");
  tikla(f->rsDurum.AlanNo("Musteri"));
  EXPECT_EQ(sira(), "3,2,6,1");
  EXPECT_TRUE(Mesajlar().isEmpty());
}

}  // namespace
