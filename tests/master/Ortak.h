#pragma once
// What the master data tests share: statements run on the shared connection
// and the rows of a query as one text to compare at once.

#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "tests/support/Ortam.h"

namespace test {

inline void Sql(const QString& sql, const QVariantList& degerler = {}) {
  Genel::Baglanti.Calistir(sql, degerler);
}

// A line each, the fields joined by "|", Null as "NULL".
inline QString Satirlar(const QString& sql, const QVariantList& degerler = {}) {
  db::Kayitlar rs = Genel::Baglanti.Sorgu(sql, degerler);
  QStringList satirlar;
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    QStringList s;
    for (int i = 0; i < rs.AlanSayisi(); ++i)
      s << (db::NullMu(rs.Fields(i)) ? QStringLiteral("NULL") : rs.Fields(i).toString());
    satirlar << s.join(QLatin1Char('|'));
  }
  return satirlar.join(QLatin1Char('\n'));
}

}  // namespace test
