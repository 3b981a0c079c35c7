#include "reports/MusteriDurum.h"

#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Cari.h"

namespace musteridurum {

namespace {

// The customer's name as the grid shows it.
const char* const kAd =
    "CASE WHEN M.HukukiDurum = 1 "
    "THEN COALESCE(M.Adi, '') || ' ' || COALESCE(M.Soyadi, '') "
    "ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' || COALESCE(M.BabaAdi, '') "
    "END AS Musteri";

// The rows come by number; the record set puts them in Turkish order of the
// names (its sort is stable, so the number settles equal names), which is
// quicker than the engine's sorter: it makes each name's key once.
const char* const kSira = " ORDER BY M.MusteriNo";

// From the customers' summary: one row per customer, and of the lines only
// those paid after "now" (at risk), through the payment date's index. What is
// neither at risk nor bounced is collected. A state's amount is Null where
// every paper of the customer is in that state and none has an amount, as a
// sum over those papers alone would be.
QString OzetSorgusu() {
  const QString birim = QString::number(db::kCariBirim, 'f', 1);
  const auto durum = [&](const QString& adet, const QString& tutar) {
    return QStringLiteral("CASE WHEN C.TutarAdet = 0 AND %1 = C.Belge THEN NULL ELSE %2 / %3 END")
        .arg(adet, tutar, birim);
  };
  const QString tahsilAdet = QStringLiteral("C.Belge - C.BatakAdet - COALESCE(R.Adet, 0)");
  const QString riskAdet = QStringLiteral("COALESCE(R.Adet, 0)");
  return QStringLiteral(
             "SELECT M.MusteriNo, %1, C.Belge AS ToplamBelge, "
             "CASE WHEN C.TutarAdet > 0 THEN C.Tutar / %2 END AS ToplamTutar, "
             "%3 AS Tahsil, %4 AS TahsilAdet, %5 AS Risk, %6 AS RiskAdet, "
             "%7 AS Batak, C.BatakAdet, "
             "C.Tutar / %2 / NULLIF(C.TutarAdet, 0) AS OrtalamaMeblag, "
             "CAST(C.Gun AS DOUBLE PRECISION) / NULLIF(C.GunAdet, 0) AS OrtalamaGun "
             "FROM MusteriCari C INNER JOIN Musteri M ON M.MusteriNo = C.MusteriNo "
             "LEFT JOIN (SELECT S.MusteriNo, CAST(total(%8) AS INTEGER) AS Tutar, "
             "count(*) AS Adet FROM SozlesmeDetay SD "
             "INNER JOIN Sozlesme S ON S.SozlesmeID = SD.SozlesmeID "
             "WHERE SD.Odenmesi > ? GROUP BY S.MusteriNo) R ON R.MusteriNo = C.MusteriNo "
             "WHERE C.Belge > 0")
             .arg(QString::fromLatin1(kAd), birim,
                  durum(tahsilAdet, QStringLiteral("(C.Tutar - C.Batak - COALESCE(R.Tutar, 0))")),
                  tahsilAdet, durum(riskAdet, QStringLiteral("COALESCE(R.Tutar, 0)")), riskAdet,
                  durum(QStringLiteral("C.BatakAdet"), QStringLiteral("C.Batak")),
                  db::CariTutar(QStringLiteral("SD.Meblag"))) +
         QString::fromLatin1(kSira);
}

// Without the summary (a file opened read-only that the window program never
// opened): the lines are added up per contract first, the contracts in the
// order of their key, each with its lines read from the index that holds
// every column needed here, so the lines' table is never read and no line is
// sorted. The contracts' sums are then added up per customer, and only then
// joined to the customer's name. Averages are sums over counts, so that they
// equal an average taken over the lines themselves (Nulls left out as avg
// leaves them out). Every line is collected, at risk or bounced, so the
// collected ones are counted as what remains.
QString SatirSorgusu() {
  return QStringLiteral(
             "SELECT M.MusteriNo, %1, "
             "T.ToplamBelge, T.ToplamTutar, T.Tahsil, T.TahsilAdet, T.Risk, T.RiskAdet, T.Batak, "
             "T.BatakAdet, T.ToplamTutar / NULLIF(T.MeblagAdet, 0) AS OrtalamaMeblag, "
             "CAST(T.Gun AS DOUBLE PRECISION) / NULLIF(T.GunAdet, 0) AS OrtalamaGun "
             "FROM Musteri M INNER JOIN ("
             "SELECT C.MusteriNo, sum(C.Belge) AS ToplamBelge, sum(C.Tutar) AS ToplamTutar, "
             "sum(C.Tahsil) AS Tahsil, "
             "sum(C.Belge) - sum(C.RiskAdet) - sum(C.BatakAdet) AS TahsilAdet, "
             "sum(C.Risk) AS Risk, "
             "sum(C.RiskAdet) AS RiskAdet, sum(C.Batak) AS Batak, sum(C.BatakAdet) AS BatakAdet, "
             "sum(C.MeblagAdet) AS MeblagAdet, sum(C.Gun) AS Gun, sum(C.GunAdet) AS GunAdet "
             "FROM ("
             "SELECT S.MusteriNo, count(SD.GirisNo) AS Belge, sum(SD.Meblag) AS Tutar, "
             "sum(CASE WHEN SD.Odenmesi <= ?1 THEN SD.Meblag ELSE 0 END) AS Tahsil, "
             "sum(CASE WHEN SD.Odenmesi > ?1 THEN SD.Meblag ELSE 0 END) AS Risk, "
             "sum(CASE WHEN SD.Odenmesi > ?1 THEN 1 ELSE 0 END) AS RiskAdet, "
             "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END) AS Batak, "
             "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END) AS BatakAdet, "
             "count(SD.Meblag) AS MeblagAdet, sum(GunFarki(S.Tarih, SD.Vadesi)) AS Gun, "
             "count(GunFarki(S.Tarih, SD.Vadesi)) AS GunAdet "
             "FROM Sozlesme S INNER JOIN SozlesmeDetay SD ON SD.SozlesmeID = S.SozlesmeID "
             "GROUP BY S.SozlesmeID) C "
             "GROUP BY C.MusteriNo) T ON M.MusteriNo = T.MusteriNo")
             .arg(QString::fromLatin1(kAd)) +
         QString::fromLatin1(kSira);
}

}  // namespace

db::Kayitlar Oku(const QDate& bugun) {
  db::Baglanti& b = Genel::Baglanti;
  db::Kayitlar rs = b.Sorgu(db::CariOzetVar(b) ? OzetSorgusu() : SatirSorgusu(),
                            {bugun.toString(Qt::ISODate)});
  rs.Sort(QStringLiteral("Musteri"));
  rs.MoveFirst();
  return rs;
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
