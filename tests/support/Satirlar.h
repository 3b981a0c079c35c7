#pragma once
// The rows of a record set as one text that a test compares at once.

#include <QString>
#include <QStringList>

#include "db/Kayitlar.h"

namespace test {

// Every row from the first, one line each, fields separated by "|", Null as
// "NULL" (so that it never looks like the empty text).
inline QString KayitMetni(db::Kayitlar rs) {
  QStringList satirlar;
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    QStringList alanlar;
    for (int i = 0; i < rs.AlanSayisi(); ++i)
      alanlar << (db::NullMu(rs.Fields(i)) ? QStringLiteral("NULL") : rs.Fields(i).toString());
    satirlar << alanlar.join(QLatin1Char('|'));
  }
  return satirlar.join(QLatin1Char('\n'));
}

}  // namespace test
