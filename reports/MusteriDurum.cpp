#include "reports/MusteriDurum.h"

#include "core/Genel.h"

namespace musteridurum {

namespace {

// The lines are added up per contract first: the contracts in the order of
// their key, each with its lines read from the index that holds every column
// needed here, so the lines' table is never read and no line is sorted. The
// contracts' sums are then added up per customer, and only then joined to
// the customer's name. Averages are sums over counts, so that they equal an
// average taken over the lines themselves (Nulls left out as avg leaves them
// out). Every line is collected, at risk or bounced, so the collected ones
// are counted as what remains.
const char* const kSorgu =
    "SELECT M.MusteriNo, "
    "CASE WHEN M.HukukiDurum = 1 "
    "THEN COALESCE(M.Adi, '') || ' ' || COALESCE(M.Soyadi, '') "
    "ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' || COALESCE(M.BabaAdi, '') "
    "END AS Musteri, "
    "T.ToplamBelge, T.ToplamTutar, T.Tahsil, T.TahsilAdet, T.Risk, T.RiskAdet, T.Batak, "
    "T.BatakAdet, T.ToplamTutar / NULLIF(T.MeblagAdet, 0) AS OrtalamaMeblag, "
    "CAST(T.Gun AS DOUBLE PRECISION) / NULLIF(T.GunAdet, 0) AS OrtalamaGun "
    "FROM Musteri M INNER JOIN ("
    "SELECT C.MusteriNo, sum(C.Belge) AS ToplamBelge, sum(C.Tutar) AS ToplamTutar, "
    "sum(C.Tahsil) AS Tahsil, sum(C.Belge) - sum(C.RiskAdet) - sum(C.BatakAdet) AS TahsilAdet, "
    "sum(C.Risk) AS Risk, "
    "sum(C.RiskAdet) AS RiskAdet, sum(C.Batak) AS Batak, sum(C.BatakAdet) AS BatakAdet, "
    "sum(C.MeblagAdet) AS MeblagAdet, sum(C.Gun) AS Gun, sum(C.GunAdet) AS GunAdet "
    "FROM ("
    "SELECT S.MusteriNo, count(SD.GirisNo) AS Belge, sum(SD.Meblag) AS Tutar, "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN SD.Meblag ELSE 0 END) AS Tahsil, "
    "sum(CASE WHEN SD.Odenmesi > ? THEN SD.Meblag ELSE 0 END) AS Risk, "
    "sum(CASE WHEN SD.Odenmesi > ? THEN 1 ELSE 0 END) AS RiskAdet, "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END) AS Batak, "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END) AS BatakAdet, "
    "count(SD.Meblag) AS MeblagAdet, sum(GunFarki(S.Tarih, SD.Vadesi)) AS Gun, "
    "count(GunFarki(S.Tarih, SD.Vadesi)) AS GunAdet "
    "FROM Sozlesme S INNER JOIN SozlesmeDetay SD ON SD.SozlesmeID = S.SozlesmeID "
    "GROUP BY S.SozlesmeID) C "
    "GROUP BY C.MusteriNo) T ON M.MusteriNo = T.MusteriNo "
    "ORDER BY Musteri COLLATE TURKCE, M.MusteriNo";

}  // namespace

db::Kayitlar Oku(const QDate& bugun) {
  const QString gun = bugun.toString(Qt::ISODate);
  return Genel::Baglanti.Sorgu(QString::fromLatin1(kSorgu), {gun, gun, gun});
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
