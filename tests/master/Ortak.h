#pragma once
// What the master data tests share: statements run on the shared connection
// and the rows of a query as one text to compare at once.

#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "tests/support/Ortam.h"
#include "tests/support/Satirlar.h"

namespace test {

inline void Sql(const QString& sql, const QVariantList& degerler = {}) {
  Genel::Baglanti.Calistir(sql, degerler);
}

// A line each, the fields joined by "|", Null as "NULL".
inline QString Satirlar(const QString& sql, const QVariantList& degerler = {}) {
  return KayitMetni(Genel::Baglanti.Sorgu(sql, degerler));
}

}  // namespace test
