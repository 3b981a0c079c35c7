#include "reports/Gelir.h"

#include <QDate>
#include <QStringList>

#include "core/Genel.h"

namespace gelir {

Sorgu SorguKur(const QString& bas, const QString& son) {
  Sorgu q;
  QStringList kosul;
  const QDate bugun = QDate::currentDate();
  const QDate b = Genel::TarihCoz(bas, bugun), s = Genel::TarihCoz(son, bugun);
  if (b.isValid()) {
    kosul << QStringLiteral("Tarih >= ?");
    q.deger << b.toString(Qt::ISODate);
  }
  if (s.isValid()) {
    kosul << QStringLiteral("Tarih <= ?");
    q.deger << s.toString(Qt::ISODate);
  }
  q.metin = QStringLiteral(
      "SELECT SozlesmeSeri, SozlesmeNo, Tarih, AdSoyad, Tutar, FaizTutar, BMVergisi, Odenecek2\n"
      " FROM SozlesmePrint\n");
  if (!kosul.isEmpty()) q.metin += QStringLiteral(" WHERE ") + kosul.join(QStringLiteral(" AND "));
  q.metin += QStringLiteral(" ORDER BY Tarih, SozlesmeNo");
  return q;
}

Toplamlar Topla(const db::Kayitlar& rs) {
  Toplamlar t;
  const int tutar = rs.AlanNo(QStringLiteral("Tutar")),
            faiz = rs.AlanNo(QStringLiteral("FaizTutar")),
            odenecek = rs.AlanNo(QStringLiteral("Odenecek2")),
            vergi = rs.AlanNo(QStringLiteral("BMVergisi"));
  t.adet = rs.RecordCount();
  for (int i = 0; i < rs.RecordCount(); ++i) {
    t.Tutar += rs.Deger(i, tutar).toDouble();
    t.FaizTutar += rs.Deger(i, faiz).toDouble();
    t.Odenecek2 += rs.Deger(i, odenecek).toDouble();
    t.BMVergisi += rs.Deger(i, vergi).toDouble();  // Null reads as 0
  }
  return t;
}

}  // namespace gelir
