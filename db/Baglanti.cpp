#include "db/Baglanti.h"

#include <sqlite3.h>

#include <QFile>
#include <QFileInfo>

#include "db/Kayitlar.h"
#include "db/Sema.h"

namespace db {

void FonksiyonlariKaydet(sqlite3* db);  // Fonksiyonlar.cpp

namespace {

// A prepared statement that finalizes itself.
class Komut {
 public:
  Komut(sqlite3* db, const QString& sql) : db_(db) {
    const QByteArray metin = sql.toUtf8();
    if (sqlite3_prepare_v2(db, metin.constData(), int(metin.size()), &st_, nullptr) != SQLITE_OK)
      throw Hata(QString::fromUtf8(sqlite3_errmsg(db)));
  }
  ~Komut() { sqlite3_finalize(st_); }
  Komut(const Komut&) = delete;
  Komut& operator=(const Komut&) = delete;

  void Bagla(const QVariantList& deger) {
    const int n = sqlite3_bind_parameter_count(st_);
    if (n != deger.size())
      throw Hata(QStringLiteral("Parametre sayısı uyuşmuyor (%1 beklenen, %2 verilen)")
                     .arg(n)
                     .arg(deger.size()));
    for (int i = 0; i < n; ++i) BaglaBir(i + 1, deger[i]);
  }

  bool Adim() {
    const int rc = sqlite3_step(st_);
    if (rc == SQLITE_ROW) return true;
    if (rc == SQLITE_DONE) return false;
    throw Hata(QString::fromUtf8(sqlite3_errmsg(db_)));
  }

  sqlite3_stmt* st() const { return st_; }

 private:
  void BaglaBir(int i, const QVariant& v) {
    int rc = SQLITE_OK;
    if (NullMu(v)) {
      rc = sqlite3_bind_null(st_, i);
    } else {
      switch (v.typeId()) {
        case QMetaType::Bool:
        case QMetaType::Int:
        case QMetaType::UInt:
        case QMetaType::LongLong:
        case QMetaType::ULongLong:
        case QMetaType::Short:
        case QMetaType::UShort:
        case QMetaType::Long:
        case QMetaType::ULong:
          rc = sqlite3_bind_int64(st_, i, v.toLongLong());
          break;
        case QMetaType::Double:
        case QMetaType::Float:
          rc = sqlite3_bind_double(st_, i, v.toDouble());
          break;
        case QMetaType::QDate:
          rc = BaglaMetin(i, v.toDate().toString(Qt::ISODate));
          break;
        case QMetaType::QDateTime:
          rc = BaglaMetin(i, v.toDateTime().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")));
          break;
        default:
          rc = BaglaMetin(i, v.toString());
      }
    }
    if (rc != SQLITE_OK) throw Hata(QString::fromUtf8(sqlite3_errmsg(db_)));
  }
  int BaglaMetin(int i, const QString& s) {
    const QByteArray b = s.toUtf8();
    return sqlite3_bind_text(st_, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
  }

  sqlite3* db_;
  sqlite3_stmt* st_ = nullptr;
};

QVariant SutunDegeri(sqlite3_stmt* st, int i) {
  switch (sqlite3_column_type(st, i)) {
    case SQLITE_NULL:
      return QVariant();
    case SQLITE_INTEGER:
      return QVariant(qlonglong(sqlite3_column_int64(st, i)));
    case SQLITE_FLOAT:
      return QVariant(sqlite3_column_double(st, i));
    default: {
      const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
      return QVariant(QString::fromUtf8(p, sqlite3_column_bytes(st, i)));
    }
  }
}

}  // namespace

Baglanti::~Baglanti() { Kapat(); }

void Baglanti::AcHam(const QString& yol, int bayrak) {
  Kapat();
  sqlite3* db = nullptr;
  const QByteArray ad = QFile::encodeName(yol);
  const int rc = sqlite3_open_v2(ad.constData(), &db, bayrak, nullptr);
  if (rc != SQLITE_OK) {
    const QString metin = db ? QString::fromUtf8(sqlite3_errmsg(db))
                             : QString::fromUtf8(sqlite3_errstr(rc));
    sqlite3_close(db);
    throw Hata(metin);
  }
  sqlite3_busy_timeout(db, kBekleme);
  sqlite3_extended_result_codes(db, 1);
  FonksiyonlariKaydet(db);
  db_ = db;
  yol_ = yol;
}

void Baglanti::Ac(const QString& yol, Kip kip) {
  if (!QFileInfo(yol).isFile()) throw Hata(QStringLiteral("Veri tabanı dosyası yok: %1").arg(yol));
  kip_ = kip;
  AcHam(yol, kip == Kip::YazOku ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY);
  try {
    // Reading the schema proves that the file is a database at all.
    Deger(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    if (kip == Kip::YazOku && sqlite3_db_readonly(db_, "main") == 1)
      throw Hata(QStringLiteral("Veri tabanı salt okunur açıldı"));
    Calistir(QStringLiteral("PRAGMA foreign_keys = OFF"));
  } catch (...) {
    Kapat();
    throw;
  }
}

void Baglanti::Olustur(const QString& yol) {
  if (QFileInfo::exists(yol)) throw Hata(QStringLiteral("Dosya zaten var: %1").arg(yol));
  kip_ = Kip::YazOku;
  AcHam(yol, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_EXCLUSIVE);
  try {
    SemaOlustur(*this);
  } catch (...) {
    Kapat();
    QFile::remove(yol);
    throw;
  }
  QFile::setPermissions(yol, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void Baglanti::Kapat() {
  if (db_) {
    sqlite3_close_v2(db_);
    db_ = nullptr;
  }
}

void Baglanti::YenidenAc() {
  if (yol_.isEmpty()) throw Hata(QStringLiteral("Bağlantı hiç açılmadı"));
  Ac(yol_, kip_);
}

int Baglanti::Calistir(const QString& sql, const QVariantList& deger) {
  if (!db_) throw Hata(QStringLiteral("Veri tabanı açık değil"));
  if (deger.isEmpty() && sql.count(QLatin1Char(';')) > 1) {
    char* hata = nullptr;
    if (sqlite3_exec(db_, sql.toUtf8().constData(), nullptr, nullptr, &hata) != SQLITE_OK) {
      const QString metin = QString::fromUtf8(hata ? hata : "");
      sqlite3_free(hata);
      throw Hata(metin);
    }
    return sqlite3_changes(db_);
  }
  Komut k(db_, sql);
  k.Bagla(deger);
  while (k.Adim()) {
  }
  return sqlite3_changes(db_);
}

Kayitlar Baglanti::Sorgu(const QString& sql, const QVariantList& deger) {
  Kayitlar rs;
  rs.Doldur(this, sql, deger);
  return rs;
}

QVariant Baglanti::Deger(const QString& sql, const QVariantList& deger) {
  if (!db_) throw Hata(QStringLiteral("Veri tabanı açık değil"));
  Komut k(db_, sql);
  k.Bagla(deger);
  if (!k.Adim()) return QVariant();
  return SutunDegeri(k.st(), 0);
}

qint64 Baglanti::SonEklenenNo() const { return db_ ? sqlite3_last_insert_rowid(db_) : 0; }

QString Baglanti::HataMetni() const {
  return db_ ? QString::fromUtf8(sqlite3_errmsg(db_)) : QString();
}

// The record set's loader lives here so that only this file steps statements.
void Kayitlar::Doldur(Baglanti* b, const QString& sql, const QVariantList& deger) {
  if (!b || !b->ham()) throw Hata(QStringLiteral("Veri tabanı açık değil"));
  Komut k(b->ham(), sql);
  k.Bagla(deger);
  const int n = sqlite3_column_count(k.st());
  QStringList alanlar;
  alanlar.reserve(n);
  for (int i = 0; i < n; ++i) alanlar << QString::fromUtf8(sqlite3_column_name(k.st(), i));
  QVector<QVector<QVariant>> satirlar;
  while (k.Adim()) {
    QVector<QVariant> satir(n);
    for (int i = 0; i < n; ++i) satir[i] = SutunDegeri(k.st(), i);
    satirlar.push_back(std::move(satir));
  }
  alanlar_ = std::move(alanlar);
  satirlar_ = std::move(satirlar);
  kimlik_.resize(satirlar_.size());
  for (int i = 0; i < kimlik_.size(); ++i) kimlik_[i] = i;
  konum_ = 0;
  kaynak_ = b;
  sql_ = sql;
  param_ = deger;
}

Islem::Islem(Baglanti& b) : b_(b) { b_.Calistir(QStringLiteral("BEGIN IMMEDIATE")); }

Islem::~Islem() {
  if (!bitti_) {
    try {
      b_.Calistir(QStringLiteral("ROLLBACK"));
    } catch (...) {
    }
  }
}

void Islem::Onayla() {
  b_.Calistir(QStringLiteral("COMMIT"));
  bitti_ = true;
}

}  // namespace db
