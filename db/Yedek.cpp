#include "db/Yedek.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "db/Baglanti.h"

namespace db {

QString TarihliYedekAl(Baglanti& baglanti, const QDate& gun) {
  if (!baglanti.Acik()) throw Hata(QStringLiteral("Veri tabanı açık değil."), Hata::kBaglantiYok);
  const QFileInfo dosya(baglanti.Yol());
  const QString hedef = dosya.absolutePath() + u'/' + dosya.completeBaseName() + u'_' +
                        gun.toString(QStringLiteral("ddMMyyyy")) + QStringLiteral(".db");
  const QString gecici = hedef + QStringLiteral(".tmp");
  QFile::remove(gecici);
  sqlite3* kopya = nullptr;
  int rc = sqlite3_open(QFile::encodeName(gecici).constData(), &kopya);
  if (rc == SQLITE_OK) {
    sqlite3_backup* y = sqlite3_backup_init(kopya, "main", baglanti.ham(), "main");
    if (y) {
      rc = sqlite3_backup_step(y, -1);
      sqlite3_backup_finish(y);
      if (rc == SQLITE_DONE) rc = SQLITE_OK;
    } else {
      rc = sqlite3_errcode(kopya);
    }
  }
  const QString metin = QString::fromUtf8(kopya ? sqlite3_errmsg(kopya) : sqlite3_errstr(rc));
  sqlite3_close(kopya);
  if (rc != SQLITE_OK) {
    QFile::remove(gecici);
    throw Hata(QStringLiteral("Yedek alınamadı: ") + metin, rc);
  }
  QFile::remove(hedef);
  if (!QFile::rename(gecici, hedef)) {
    QFile::remove(gecici);
    throw Hata(QStringLiteral("Yedek dosyası yazılamadı: ") + hedef);
  }
  return hedef;
}

}  // namespace db
