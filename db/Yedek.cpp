#include "db/Yedek.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <cstring>

#include "db/Cari.h"
#include "db/Kayitlar.h"
#include "db/Sema.h"

namespace db {

namespace {

// Data files are their owner's only: they hold customers' identity numbers.
constexpr QFileDevice::Permissions kIzin = QFileDevice::ReadOwner | QFileDevice::WriteOwner;

QByteArray Ad(const QString& yol) { return QFile::encodeName(yol); }

// "what failed (file name): the system's reason".
Hata DosyaHatasi(const QString& ne, const QString& yol, int hata) {
  return Hata(QStringLiteral("%1 (%2): %3")
                  .arg(ne, QFileInfo(yol).fileName(), QString::fromLocal8Bit(std::strerror(hata))));
}

QString Kok(const QString& yol) {
  return yol.endsWith(QLatin1String(".db")) ? yol.chopped(3) : yol;
}

// Removes a file that may be there; throws when something stays under the
// name (a folder, a file the folder won't let go).
void Kaldir(const QString& yol, const QString& ne) {
  if (::unlink(Ad(yol).constData()) != 0 && errno != ENOENT) throw DosyaHatasi(ne, yol, errno);
}

// Clean-up after a failure: the file and a journal the engine may have left.
void Temizle(const QString& yol) {
  ::unlink(Ad(yol).constData());
  ::unlink(Ad(yol + QStringLiteral("-journal")).constData());
}

// The file's content reaches the disk before it gets a real name.
void Esitle(const QString& yol) {
  const int fd = ::open(Ad(yol).constData(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) throw DosyaHatasi(QStringLiteral("Dosya diske yazılamadı"), yol, errno);
  const int rc = ::fsync(fd);
  const int hata = errno;
  ::close(fd);
  if (rc != 0) throw DosyaHatasi(QStringLiteral("Dosya diske yazılamadı"), yol, hata);
}

// A rename reaches the disk with the folder's entries. Some file systems
// can't sync a folder; the rename stands all the same.
void DizinEsitle(const QString& yol) {
  const int fd =
      ::open(Ad(QFileInfo(yol).absolutePath()).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (fd < 0) return;
  ::fsync(fd);
  ::close(fd);
}

// Gives the finished file `gecici` the name `hedef` in one step, replacing
// what stood there; on failure `gecici` is removed.
void YerineKoy(const QString& gecici, const QString& hedef) {
  if (::rename(Ad(gecici).constData(), Ad(hedef).constData()) != 0) {
    const int hata = errno;
    Temizle(gecici);
    throw DosyaHatasi(QStringLiteral("Dosya yerine konamadı"), hedef, hata);
  }
  DizinEsitle(hedef);
}

// Writes a consistent copy of the database open on `kaynak` into the new
// file `dosya`, owner-only, synced to the disk. The engine's online backup
// reads it under one read lock, so a write of another program waits rather
// than tearing the copy. On failure nothing is left under `dosya`.
void KopyaYaz(sqlite3* kaynak, const QString& dosya) {
  Kaldir(dosya, QStringLiteral("Eski geçici dosya silinemedi"));
  sqlite3* hedef = nullptr;
  const auto hata = [&](int rc) {
    const QString neden = hedef && rc != SQLITE_BUSY && rc != SQLITE_LOCKED
                              ? QString::fromUtf8(sqlite3_errmsg(hedef))
                              : QString::fromUtf8(sqlite3_errstr(rc));
    sqlite3_close(hedef);
    Temizle(dosya);
    return Hata(QStringLiteral("Veri tabanının kopyası yazılamadı (%1): %2")
                    .arg(QFileInfo(dosya).fileName(), neden),
                rc);
  };
  int rc =
      sqlite3_open_v2(Ad(dosya).constData(), &hedef,
                      SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX, nullptr);
  if (rc != SQLITE_OK) throw hata(rc);
  QFile::setPermissions(dosya, kIzin);
  // The copy is synced as a whole at the end; until then it has no real name,
  // so a journal would protect nothing.
  rc = sqlite3_exec(hedef, "PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF", nullptr, nullptr,
                    nullptr);
  if (rc != SQLITE_OK) throw hata(rc);
  sqlite3_backup* yedek = sqlite3_backup_init(hedef, "main", kaynak, "main");
  if (!yedek) throw hata(sqlite3_errcode(hedef));
  rc = sqlite3_backup_step(yedek, -1);
  sqlite3_backup_finish(yedek);
  if (rc != SQLITE_DONE) throw hata(rc);
  rc = sqlite3_close(hedef);
  hedef = nullptr;
  if (rc != SQLITE_OK) throw hata(rc);
  try {
    Esitle(dosya);
  } catch (...) {
    Temizle(dosya);
    throw;
  }
}

void AcikOlmali(const Baglanti& b) {
  if (!b.Acik()) throw Hata(QStringLiteral("Veri tabanı açık değil"), Hata::kBaglantiYok);
}

// Keeps every other program off the file while it is copied and replaced:
// the connection takes the exclusive lock and holds it until the end. Other
// programs that hold the file make the lock, and so the command, fail. On
// failure the connection is closed, which lets the lock go, and opened again.
class TekKullanim {
 public:
  explicit TekKullanim(Baglanti& b) : b_(b) {
    AcikOlmali(b);
    if (b.IslemIcinde()) throw Hata(QStringLiteral("Açık bir işlem varken yapılamaz"));
    try {
      b_.Calistir(QStringLiteral("PRAGMA locking_mode = EXCLUSIVE"));
      b_.Calistir(QStringLiteral("BEGIN EXCLUSIVE; COMMIT"));
    } catch (...) {
      Yenile();
      throw;
    }
  }
  ~TekKullanim() {
    if (!bitti_) Yenile();
  }
  TekKullanim(const TekKullanim&) = delete;
  TekKullanim& operator=(const TekKullanim&) = delete;

  // The file under the name has changed: the connection opens on the new one.
  void Bitir() {
    bitti_ = true;
    b_.Kapat();
    b_.YenidenAc();
  }

 private:
  void Yenile() noexcept {
    b_.Kapat();
    try {
      b_.YenidenAc();
    } catch (...) {
    }
  }
  Baglanti& b_;
  bool bitti_ = false;
};

// The engine's integrity check, and the one table every start reads.
void Saglam(Baglanti& b) {
  try {
    const QVariant sonuc = b.Deger(QStringLiteral("PRAGMA integrity_check"));
    if (sonuc.toString() != QLatin1String("ok"))
      throw Hata(QStringLiteral("Dosya bozuk: %1").arg(sonuc.toString()));
  } catch (const Hata& h) {
    if (h.metin().startsWith(QLatin1String("Dosya bozuk"))) throw;
    throw Hata(QStringLiteral("Dosya bozuk: %1").arg(h.metin()), h.kod());
  }
  if (b.Deger(QStringLiteral(
                  "SELECT count(*) FROM sqlite_master WHERE type = 'table' AND name = 'Firma'"))
          .toInt() == 0)
    throw Hata(QStringLiteral("Dosya bu programın veri tabanı değil: Firma tablosu yok"));
}

// Opens a file read-only for a check or a copy.
void OkumayaAc(Baglanti& b, const QString& dosya) {
  try {
    b.Ac(dosya, Baglanti::Kip::SadeceOku);
  } catch (const Hata& h) {
    throw Hata(QStringLiteral("Dosya bir veri tabanı değil ya da okunamıyor: %1").arg(h.metin()),
               h.kod());
  }
}

}  // namespace

QString TarihliYedekYolu(const QString& yol, const QDate& gun) {
  return Kok(yol) + QLatin1Char('_') + gun.toString(QStringLiteral("ddMMyyyy")) +
         QStringLiteral(".db");
}

QString YeniDosyaYolu(const QString& yol) { return Kok(yol) + QStringLiteral("_new.db"); }

QVector<YedekDosyasi> TarihliYedekler(const QString& yol) {
  const QFileInfo db(yol);
  const QString on = QFileInfo(Kok(yol)).fileName() + QLatin1Char('_');
  QVector<YedekDosyasi> liste;
  const QFileInfoList dosyalar =
      db.absoluteDir().entryInfoList({on + QStringLiteral("????????.db")}, QDir::Files);
  for (const QFileInfo& f : dosyalar) {
    if (!f.fileName().startsWith(on)) continue;  // the name filter ignores case
    const QDate tarih =
        QDate::fromString(f.fileName().mid(on.size(), 8), QStringLiteral("ddMMyyyy"));
    if (tarih.isValid()) liste.push_back({f.absoluteFilePath(), tarih, f.size()});
  }
  std::sort(liste.begin(), liste.end(),
            [](const YedekDosyasi& a, const YedekDosyasi& b) { return a.tarih > b.tarih; });
  return liste;
}

void EskiYedekleriSil(const QString& yol, int kalan) {
  const QVector<YedekDosyasi> liste = TarihliYedekler(yol);
  for (qsizetype i = kalan; i < liste.size(); ++i) QFile::remove(liste[i].yol);
}

QString TarihliYedekAl(Baglanti& baglanti, const QDate& gun) {
  AcikOlmali(baglanti);
  // The copy would take the transaction's changes that are not committed yet.
  if (baglanti.IslemIcinde()) throw Hata(QStringLiteral("Açık bir işlem varken yedek alınamaz"));
  const QString hedef = TarihliYedekYolu(baglanti.Yol(), gun);
  const QString gecici = hedef + QStringLiteral(".tmp");
  KopyaYaz(baglanti.ham(), gecici);
  YerineKoy(gecici, hedef);
  EskiYedekleriSil(baglanti.Yol());
  return hedef;
}

QString GunlukYedekAl(Baglanti& baglanti, const QDate& gun) {
  AcikOlmali(baglanti);
  if (QFileInfo(TarihliYedekYolu(baglanti.Yol(), gun)).isFile()) return QString();
  return TarihliYedekAl(baglanti, gun);
}

void YedekDenetle(const QString& dosya) {
  Baglanti b;
  OkumayaAc(b, dosya);
  Saglam(b);
}

QString Sikistir(Baglanti& baglanti, const QDate& gun) {
  AcikOlmali(baglanti);
  const QString yol = baglanti.Yol();
  const QString yeni = YeniDosyaYolu(yol);
  const QString yedek = TarihliYedekYolu(yol, gun);
  const QString eski = yedek + QStringLiteral(".tmp");
  TekKullanim tek(baglanti);
  // What a broken run left behind goes first.
  Kaldir(yeni, QStringLiteral("Eski _new dosyası silinemedi"));
  Temizle(yeni);
  Kaldir(eski, QStringLiteral("Eski geçici dosya silinemedi"));
  // The backup's name must be free for the old file before the new one
  // takes the database's name.
  if (QFileInfo(yedek).isDir())
    throw DosyaHatasi(QStringLiteral("Yedek yazılamadı"), yedek, EISDIR);
  try {
    // The connection's collation puts the names in Turkish order in the
    // indexes of the new file.
    baglanti.Calistir(QStringLiteral("VACUUM INTO ?"), {yeni});
    QFile::setPermissions(yeni, kIzin);
    {
      // The reports' summary is made anew from the lines in the new file:
      // whatever another program did to the file behind its triggers'
      // back, the summary agrees with the lines again.
      Baglanti k;
      k.Ac(yeni);
      CariOzetKur(k);
      RaporlariHazirla(k);
    }
    YedekDenetle(yeni);
    Esitle(yeni);
    // The old file keeps a second name, the backup's; without hard links
    // (some file systems) it is copied.
    if (::link(Ad(yol).constData(), Ad(eski).constData()) != 0) KopyaYaz(baglanti.ham(), eski);
    if (::rename(Ad(yeni).constData(), Ad(yol).constData()) != 0) {
      const int hata = errno;
      Temizle(eski);
      throw DosyaHatasi(QStringLiteral("Yeni dosya yerine konamadı"), yol, hata);
    }
    DizinEsitle(yol);
  } catch (...) {
    Temizle(yeni);
    throw;
  }
  // From here the new file is the database; the old one is only left to be
  // named as the day's backup. Should that fail, it stays under the
  // temporary name rather than being lost.
  if (::rename(Ad(eski).constData(), Ad(yedek).constData()) != 0)
    throw DosyaHatasi(QStringLiteral("Yedek yazılamadı"), yedek, errno);
  DizinEsitle(yedek);
  tek.Bitir();
  EskiYedekleriSil(yol);
  return yedek;
}

QString GeriYukle(Baglanti& baglanti, const QString& kaynak, const QDate& gun) {
  AcikOlmali(baglanti);
  const QString yol = baglanti.Yol();
  const QString gecici = yol + QStringLiteral(".tmp");
  {
    // A copy first: the day's backup taken below may be the very file.
    Baglanti k;
    OkumayaAc(k, kaynak);
    KopyaYaz(k.ham(), gecici);
  }
  try {
    YedekDenetle(gecici);
    TekKullanim tek(baglanti);
    const QString yedek = TarihliYedekAl(baglanti, gun);
    YerineKoy(gecici, yol);
    tek.Bitir();
    return yedek;
  } catch (...) {
    Temizle(gecici);
    throw;
  }
}

}  // namespace db
