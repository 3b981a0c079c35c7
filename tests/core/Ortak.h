#pragma once
// Set-up shared by the main-window tests: the firm's row, a fresh start of the
// window on whatever stands in the data folder, and files read back whole.

#include <QFile>
#include <memory>

#include "core/Genel.h"
#include "core/frmMain.h"
#include "tests/support/Ortam.h"

namespace test {

inline QByteArray Icerik(const QString& yol) {
  QFile f(yol);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<okunamadı>");
}

class AnaPencere : public Ortam {
 protected:
  static void FirmaDoldur() {
    Genel::Baglanti.Calistir(
        "UPDATE Firma SET Soyadi = 'Kılıç Finans', SozlesmeSeri = 'AB', FaturaSeri = 'FT'");
  }
  frmMain& Baslat() {
    Genel::Baglanti.Kapat();
    ana_ = std::make_unique<frmMain>();
    ana_->show();
    EXPECT_TRUE(ana_->Form_Load());
    Isle();
    return *ana_;
  }
  QString Dosya(const QString& ad) const { return veriDizini() + '/' + ad; }

  std::unique_ptr<frmMain> ana_;
};

}  // namespace test
