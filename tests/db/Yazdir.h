#pragma once
// What the db tests share: a new database in a fresh folder for each test,
// its rows as one text that a test compares at once, and Qt texts printed
// readably in failure messages.

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <ostream>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

// Every row from the first, one line each, fields separated by "|", Null as
// "NULL" (so that it never looks like the empty text).
inline QString Satirlar(db::Kayitlar rs) {
  QStringList satirlar;
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    QStringList alanlar;
    for (int i = 0; i < rs.AlanSayisi(); ++i)
      alanlar << (db::NullMu(rs.Fields(i)) ? QStringLiteral("NULL") : rs.Fields(i).toString());
    satirlar << alanlar.join(QLatin1Char('|'));
  }
  return satirlar.join(QLatin1Char('\n'));
}

class VeriTabani : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dizin_.isValid());
    yol_ = dizin_.filePath(QStringLiteral("velmora.db"));
    b_.Olustur(yol_);
  }

  QString Sorgu(const QString& sql, const QVariantList& deger = {}) {
    return Satirlar(b_.Sorgu(sql, deger));
  }

  QTemporaryDir dizin_;
  QString yol_;
  db::Baglanti b_;
};
