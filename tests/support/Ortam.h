#pragma once
// Test fixture: fresh settings and data folders, a new database opened as the
// shared connection, and every message box answered by a recorder.

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryDir>
#include <QWidget>
#include <memory>
#include <ostream>

#include "core/Mesaj.h"

// Readable QStrings in failure messages.
inline void PrintTo(const QString& s, std::ostream* os) { *os << '"' << s.toStdString() << '"'; }

namespace test {

class Ortam : public ::testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // Messages shown since SetUp (or since Temizle()).
  const QVector<mesaj::Kayit>& Mesajlar() const;
  QStringList MesajMetinleri() const;
  void MesajlariTemizle();
  // The messages shown since the last call, one line each: kind, title, text;
  // they are cleared.
  QString Kutular();
  // Answer to the next questions (Yes by default).
  void Cevap(mesaj::Dugme d);

  QString ayarDizini() const { return ayar_->path(); }
  QString veriDizini() const { return veri_->path(); }

 private:
  std::unique_ptr<QTemporaryDir> ayar_, veri_;
};

// Lets queued events run (focus changes, deferred slots).
void Isle();

}  // namespace test
