#include "reports/MusteriDurum.h"

#include "core/Genel.h"

namespace musteridurum {

namespace {

// The papers are added up per customer first, through the contracts' index
// on the customer, and only then joined to the customer's name: one pass over
// the lines instead of a join carrying the name through every line.
const char* const kSorgu =
    "SELECT M.MusteriNo, "
    "CASE WHEN M.HukukiDurum = 1 "
    "THEN COALESCE(M.Adi, '') || ' ' || COALESCE(M.Soyadi, '') "
    "ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' || COALESCE(M.BabaAdi, '') "
    "END AS Musteri, "
    "T.ToplamBelge, T.ToplamTutar, T.Tahsil, T.TahsilAdet, T.Risk, T.RiskAdet, T.Batak, "
    "T.BatakAdet, T.OrtalamaMeblag, T.OrtalamaGun "
    "FROM Musteri M INNER JOIN ("
    "SELECT S.MusteriNo, count(SD.GirisNo) AS ToplamBelge, sum(SD.Meblag) AS ToplamTutar, "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN SD.Meblag ELSE 0 END) AS Tahsil, "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN 1 ELSE 0 END) AS TahsilAdet, "
    "sum(CASE WHEN SD.Odenmesi > ? THEN SD.Meblag ELSE 0 END) AS Risk, "
    "sum(CASE WHEN SD.Odenmesi > ? THEN 1 ELSE 0 END) AS RiskAdet, "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END) AS Batak, "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END) AS BatakAdet, "
    "avg(SD.Meblag) AS OrtalamaMeblag, avg(GunFarki(S.Tarih, SD.Vadesi)) AS OrtalamaGun "
    "FROM Sozlesme S INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID "
    "GROUP BY S.MusteriNo) T ON M.MusteriNo = T.MusteriNo "
    "ORDER BY Musteri COLLATE TURKCE, M.MusteriNo";

}  // namespace

db::Kayitlar Oku(const QDate& bugun) {
  const QString gun = bugun.toString(Qt::ISODate);
  return Genel::Baglanti.Sorgu(QString::fromLatin1(kSorgu), {gun, gun, gun, gun});
}

QVector<csv::Sutun> Sutunlar() {
  using B = csv::Sutun::Bicim;
  const auto adet = [](const char* alan, const char* baslik) {
    return csv::Sutun{QString::fromLatin1(alan), QString::fromUtf8(baslik), B::Sayi, 0, true};
  };
  const auto tutar = [](const char* alan, const char* baslik) {
    return csv::Sutun{QString::fromLatin1(alan), QString::fromUtf8(baslik), B::Sayi, 2, true};
  };
  return {{QStringLiteral("MusteriNo"), QStringLiteral("MusteriNo")},
          {QStringLiteral("Musteri"), QStringLiteral("Müşteri")},
          adet("ToplamBelge", "Belge"),
          tutar("ToplamTutar", "Tutar"),
          tutar("Tahsil", "Tahsil"),
          adet("TahsilAdet", "Adet"),
          tutar("Risk", "Risk"),
          adet("RiskAdet", "Adet"),
          tutar("Batak", "K Sız"),
          adet("BatakAdet", "Adet"),
          tutar("OrtalamaMeblag", "Ort. Tutar"),
          tutar("OrtalamaGun", "Ort. Gün")};
}

}  // namespace musteridurum
