#include "contract/rptHesap.h"

#include "contract/BordroOrtak.h"
#include "contract/Faiz.h"
#include "contract/SozlesOrtak.h"
#include "core/Genel.h"

namespace contract {

QString HesapBordroSorgusu() {
  // Each alias builds on the one before (Faiz on Gunu, Odenecek on Faiz), so
  // each stands one query further out. The interest is the formula of the
  // screen's totals in the same order of operations: the same doubles.
  return QStringLiteral(
             "SELECT SozlesmeID, Musteri, SozlesmeSeri, SozlesmeNo, Tarih, CekNo, Vadesi, "
             "Kesideci, Banka, Sube, HesapNo, Meblag, Tip, Gunu, Faiz, "
             "Meblag - Faiz AS Odenecek, "
             "? AS BMVergisi, ? AS TahsilMasrafi, ? AS KomisyonTutar "
             "FROM (SELECT G.*, (Meblag * Gunu * FaizOran * 12) / 36000 AS Faiz "
             "FROM (SELECT S.SozlesmeID, "
             "CASE WHEN M.HukukiDurum = 1 "
             "THEN COALESCE(M.Adi, '') || ' ' || COALESCE(M.Soyadi, '') "
             "ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' || "
             "COALESCE(M.BabaAdi, '') END AS Musteri, "
             "S.SozlesmeSeri, S.SozlesmeNo, S.Tarih, SD.CekNo, SD.Vadesi, SD.Kesideci, "
             "SD.Banka, SD.Sube, SD.HesapNo, SD.Meblag, SD.Tip, "
             "COALESCE(S.FaizOran, 0) AS FaizOran, ") +
         GunuIfadesi(QStringLiteral("S.Tarih"), QStringLiteral("COALESCE(S.ilaveGun, 0)"),
                     QStringLiteral("SD.Gun"), QStringLiteral("SD.Vadesi")) +
         QStringLiteral(
             " AS Gunu "
             "FROM (Hesap S INNER JOIN HesapDetay SD ON S.SozlesmeID = SD.SozlesmeID) "
             "INNER JOIN Musteri M ON S.MusteriNo = M.MusteriNo) G) B "
             "ORDER BY Vadesi");
}

db::Kayitlar HesapBordroVerisi(double BMVergisi, double TahsilMasrafi, double KomisyonTutar) {
  return Genel::Baglanti.Sorgu(HesapBordroSorgusu(), {BMVergisi, TahsilMasrafi, KomisyonTutar});
}

namespace {

// --- layout, millimetres on portrait A4 (190 wide inside the margins)

using bordro::kSatir;
using bordro::Sutun;
using bordro::Yer;

// The column heads from left to right, over Vadesi, Gunu, Faiz and Meblag; the
// table ends at the right margin, where the header and the foot end too.
constexpr Sutun kVadesi{"Tarih", 62, 26, false};
constexpr Sutun kGunu{"Gün", 90, 16, true};
constexpr Sutun kFaiz{"Faiz", 110, 38, true};
constexpr Sutun kMeblag{"Tutar", 150, 40, true};
constexpr double kGenislik = 190;

const QString kTutarBicimi = QStringLiteral("#.##0,00");

void SayfaBasligi(rapor::Bant& b, const HesapBordroEtiketleri& e) {
  // A calculation has no number: the header says what it is instead.
  const bordro::Baslik baslik{.Musteri = e.Musteri,
                              .Tarih = e.Tarih,
                              .SozlesmeNo = QStringLiteral("Hesaplama"),
                              .FaizOran = e.FaizOran,
                              .solGenislik = 120,
                              .sagX = 120,
                              .sagGenislik = 70,
                              .cizgiX = kVadesi.x,
                              .sagKenar = kGenislik};
  bordro::SayfaBasligi(b, baslik, {kVadesi, kGunu, kFaiz, kMeblag});
}

void Detay(rapor::Bant& b) {
  using rapor::Yazi;
  b.Ekle(Yazi::Alan(QStringLiteral("Vadesi"), Yer(kVadesi, 0)).Bicim(QStringLiteral("dd.MM.yyyy")));
  b.Ekle(Yazi::Alan(QStringLiteral("Gunu"), Yer(kGunu, 0)).Sag());
  b.Ekle(Yazi::Alan(QStringLiteral("Faiz"), Yer(kFaiz, 0)).Bicim(kTutarBicimi).Sag());
  b.Ekle(Yazi::Alan(QStringLiteral("Meblag"), Yer(kMeblag, 0)).Bicim(kTutarBicimi).Sag());
  b.yukseklik = 5.5;
}

void RaporAltligi(rapor::Bant& b, const HesapBordroEtiketleri& e) {
  using rapor::Yazi;
  b.Ekle(bordro::Cizgi(kVadesi.x, 1, kGenislik - kVadesi.x, 0.4));

  // Under the columns: the average day and the sums, then the count of papers.
  b.Ekle(Yazi::Sabit(QStringLiteral("Ortalama ve Toplam:"), {0, 2, kGunu.x - 1, kSatir})
             .Sag()
             .Kalin());
  b.Ekle(Yazi::Sabit(faiz::ParaYazisi(e.OrtGun), Yer(kGunu, 2)).Sag());  // lblOrtGun
  b.Ekle(Yazi::Toplam(QStringLiteral("Faiz"), Yer(kFaiz, 2)).Bicim(kTutarBicimi).Sag());
  b.Ekle(Yazi::Toplam(QStringLiteral("Meblag"), Yer(kMeblag, 2)).Bicim(kTutarBicimi).Sag());
  b.Ekle(Yazi::Adet(QStringLiteral("Gunu"), Yer(kGunu, 8)).Sag());
  b.Ekle(Yazi::Sabit(QStringLiteral("Adet Belge"), {kGunu.x + kGunu.genislik + 2, 8, 40, kSatir}));

  // Below, label and value. The tax and the fee are the same in every row:
  // the largest is the value itself.
  bordro::DegerSatirlari satirlar(b, kFaiz.x, kMeblag.x, kMeblag.genislik, 16);
  satirlar.Ekle(QStringLiteral("Toplam:"),
                Yazi::Toplam(QStringLiteral("Meblag"), {}).Bicim(kTutarBicimi));
  satirlar.Ekle(QStringLiteral("Faiz Tutarı:"),
                Yazi::Toplam(QStringLiteral("Faiz"), {}).Bicim(kTutarBicimi));
  satirlar.Ekle(QStringLiteral("BM Vergisi:"),
                Yazi::EnBuyuk(QStringLiteral("BMVergisi"), {}).Bicim(kTutarBicimi));
  satirlar.Ekle(QStringLiteral("Masraf:"),
                Yazi::EnBuyuk(QStringLiteral("TahsilMasrafi"), {}).Bicim(kTutarBicimi));
  satirlar.Ekle(QStringLiteral("Ödenecek Tutar: "), Yazi::Sabit(e.Odenecek, {}));  // label20
}

}  // namespace

rapor::Rapor rptHesap(const db::Kayitlar& veri, const HesapBordroEtiketleri& etiketler) {
  rapor::Rapor r;
  r.baslik = QStringLiteral("Hesaplama Bordrosu");
  r.kayitlar = veri;
  SayfaBasligi(r.sayfaBasligi, etiketler);
  Detay(r.detay);
  RaporAltligi(r.raporAltligi, etiketler);
  return r;
}

}  // namespace contract
