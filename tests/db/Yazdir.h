#pragma once
// What the db tests share: a new database in a fresh folder for each test,
// its rows as one text that a test compares at once, and Qt texts printed
// readably in failure messages.

#include <gtest/gtest.h>

#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <ostream>
#include <utility>

#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "tests/support/Satirlar.h"

inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

inline QString Satirlar(db::Kayitlar rs) { return test::KayitMetni(std::move(rs)); }

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
