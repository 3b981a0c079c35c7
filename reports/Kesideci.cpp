#include "reports/Kesideci.h"

#include <QDate>
#include <QSet>

#include "core/Genel.h"

namespace kesideci {

namespace {

QString Kacisli(const QString& metin) {
  QString d;
  d.reserve(metin.size() + 2);
  for (const QChar c : metin) {
    if (c == QLatin1Char('%') || c == QLatin1Char('_') || c == QLatin1Char('\\'))
      d += QLatin1Char('\\');
    d += c;
  }
  return d;
}

const char* const kBelgeler =
    "SELECT M.Bulunacak, COALESCE(SD.SozlesmeSeri, '') || '-' || "
    "COALESCE(CAST(SD.SozlesmeNo AS TEXT), '') AS SozlesmeNo, SD.Tip, SD.Kesideci, SD.Banka, "
    "SD.Sube, SD.HesapNo, SD.CekNo, SD.Vadesi, SD.Gun, SD.Meblag, SD.Doviz, SD.Karsilik, "
    "SD.Odenmesi, SD.SozlesmeSeri, SD.MeblagTL "
    "FROM (SozlesmeDetay SD INNER JOIN Sozlesme S ON SD.SozlesmeNo = S.SozlesmeNo "
    "AND SD.SozlesmeSeri = S.SozlesmeSeri) INNER JOIN MusteriQry M ON S.MusteriNo = M.MusteriNo "
    "WHERE SD.Kesideci IN (";

}  // namespace

Sorgu AramaSorgusu(const QString& metin, bool basta) {
  Sorgu q;
  // In the order the papers were entered, whichever index the engine reads.
  q.metin = QStringLiteral(
      "SELECT Kesideci FROM SozlesmeDetay WHERE Kesideci LIKE ? ESCAPE '\\' ORDER BY GirisNo");
  q.deger << (basta ? QString() : QStringLiteral("%")) + Kacisli(metin) + QStringLiteral("%");
  return q;
}

Sorgu BelgeSorgusu(const QStringList& isaretli, const QString& bas, const QString& son) {
  Sorgu q;
  QSet<QString> goruldu;
  QStringList yerler;
  for (const QString& k : isaretli) {
    if (goruldu.contains(k)) continue;
    goruldu.insert(k);
    yerler << QStringLiteral("?");
    q.deger << k;
  }
  q.metin =
      QString::fromLatin1(kBelgeler) + yerler.join(QStringLiteral(", ")) + QStringLiteral(")");
  const QDate bugun = QDate::currentDate();
  const QDate b = Genel::TarihCoz(bas, bugun), s = Genel::TarihCoz(son, bugun);
  if (b.isValid()) {
    q.metin += QStringLiteral(" AND SD.Odenmesi >= ?");
    q.deger << b.toString(Qt::ISODate);
  }
  if (s.isValid()) {
    q.metin += QStringLiteral(" AND SD.Odenmesi <= ?");
    q.deger << s.toString(Qt::ISODate);
  }
  q.metin += QStringLiteral(" ORDER BY SD.Vadesi, SD.GirisNo");
  return q;
}

Sorgu RiskSorgusu(const QDate& bugun) {
  Sorgu q;
  q.metin = QStringLiteral(
      "SELECT Kesideci, "
      "sum(CASE WHEN Odenmesi IS NULL THEN 1 ELSE 0 END) AS KarsiliksizAdet, "
      "sum(CASE WHEN Odenmesi IS NULL THEN Meblag ELSE 0 END) AS KarsiliksizTutar, "
      "sum(CASE WHEN Odenmesi > ? THEN 1 ELSE 0 END) AS RiskAdet, "
      "sum(CASE WHEN Odenmesi > ? THEN Meblag ELSE 0 END) AS RiskTutar "
      "FROM SozlesmeDetay WHERE Kesideci IS NOT NULL GROUP BY Kesideci "
      "HAVING sum(CASE WHEN Odenmesi IS NULL THEN 1 ELSE 0 END) > 0 "
      "ORDER BY KarsiliksizAdet DESC, KarsiliksizTutar DESC, Kesideci COLLATE TURKCE");
  const QString gun = bugun.toString(Qt::ISODate);
  q.deger << gun << gun;
  return q;
}

QVector<csv::Sutun> RiskSutunlari() {
  using B = csv::Sutun::Bicim;
  return {{QStringLiteral("Kesideci"), QStringLiteral("Keşideci")},
          {QStringLiteral("KarsiliksizAdet"), QStringLiteral("K.Sız Adet"), B::Sayi, 0, true},
          {QStringLiteral("KarsiliksizTutar"), QStringLiteral("K.Sız Tutar"), B::Sayi, 2, true},
          {QStringLiteral("RiskAdet"), QStringLiteral("Risk Adet"), B::Sayi, 0, true},
          {QStringLiteral("RiskTutar"), QStringLiteral("Risk Tutar"), B::Sayi, 2, true}};
}

}  // namespace kesideci
