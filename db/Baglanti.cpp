#include "db/Baglanti.h"

#include <sqlite3.h>

#include <QDate>
#include <QDateTime>
#include <QFile>
#include <QFileInfo>
#include <cctype>
#include <limits>

#include "db/Kayitlar.h"
#include "db/Komut.h"
#include "db/Sema.h"

namespace db {

void FonksiyonlariKaydet(sqlite3* db);  // Fonksiyonlar.cpp

using namespace ic;

namespace {

// True when only blanks and comments are left of a statement text.
bool YalnizBosluk(const char* p, const char* son) {
  while (p < son) {
    if (std::isspace(static_cast<unsigned char>(*p))) {
      ++p;
    } else if (son - p >= 2 && p[0] == '-' && p[1] == '-') {
      while (p < son && *p != '\n') ++p;
    } else if (son - p >= 2 && p[0] == '/' && p[1] == '*') {
      p += 2;
      while (son - p >= 2 && !(p[0] == '*' && p[1] == '/')) ++p;
      p = son - p >= 2 ? p + 2 : son;
    } else {
      return false;
    }
  }
  return true;
}

}  // namespace

bool Hata::Kilitli() const { return AnaKod() == SQLITE_BUSY || AnaKod() == SQLITE_LOCKED; }

bool Hata::KisitIhlali() const { return AnaKod() == SQLITE_CONSTRAINT; }

Baglanti::~Baglanti() { Kapat(); }

void Baglanti::AcikOlmali() const {
  if (!db_) throw Hata(QStringLiteral("Veri tabanı açık değil"), Hata::kBaglantiYok);
}

void Baglanti::AcHam(const QString& yol, int bayrak) {
  Kapat();
  sqlite3* db = nullptr;
  const QByteArray ad = QFile::encodeName(yol);
  // A connection is used by one thread at a time: no locking on every call.
  const int rc = sqlite3_open_v2(ad.constData(), &db, bayrak | SQLITE_OPEN_NOMUTEX, nullptr);
  if (rc != SQLITE_OK) {
    const Hata h = db ? MotorHatasi(db) : Hata(QString::fromUtf8(sqlite3_errstr(rc)), rc);
    sqlite3_close(db);
    throw h;
  }
  sqlite3_busy_timeout(db, bekleme_);
  sqlite3_extended_result_codes(db, 1);
  try {
    FonksiyonlariKaydet(db);
    // Room for the large sorts of the contract lists (all contracts by date,
    // the reports) in memory rather than in temporary files.
    if (sqlite3_exec(db, "PRAGMA cache_size = -65536; PRAGMA temp_store = MEMORY", nullptr, nullptr,
                     nullptr) != SQLITE_OK)
      throw MotorHatasi(db);
  } catch (...) {
    sqlite3_close(db);
    throw;
  }
  db_ = db;
  yol_ = yol;
}

void Baglanti::Ac(const QString& yol, Kip kip) {
  kip_ = kip;
  // Without SQLITE_OPEN_CREATE a missing file is the engine's failure and
  // nothing is created.
  AcHam(yol, kip == Kip::YazOku ? SQLITE_OPEN_READWRITE : SQLITE_OPEN_READONLY);
  try {
    // Opening has read nothing yet: reading the schema proves that the file
    // is a database at all.
    Deger(QStringLiteral("SELECT count(*) FROM sqlite_master"));
    // The engine falls back to reading a file it may not write; a program
    // that means to write has to know now, not at its first save.
    if (kip == Kip::YazOku && sqlite3_db_readonly(db_, "main") == 1)
      throw Hata(QString::fromUtf8(sqlite3_errstr(SQLITE_READONLY)), SQLITE_READONLY);
  } catch (...) {
    Kapat();
    throw;
  }
}

void Baglanti::Olustur(const QString& yol) {
  if (QFileInfo::exists(yol)) throw Hata(QStringLiteral("Dosya zaten var: %1").arg(yol));
  kip_ = Kip::YazOku;
  AcHam(yol, SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE);
  // Customers' identity and tax numbers are personal data: owner only, before
  // anything is written (the journal takes the file's permissions).
  QFile::setPermissions(yol, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
  try {
    SemaOlustur(*this);
  } catch (...) {
    Kapat();
    QFile::remove(yol);
    QFile::remove(yol + QStringLiteral("-journal"));
    throw;
  }
}

void Baglanti::Kapat() {
  if (db_) {
    sqlite3_close_v2(db_);
    db_ = nullptr;
  }
}

void Baglanti::YenidenAc() {
  if (yol_.isEmpty()) throw Hata(QStringLiteral("Bağlantı hiç açılmadı"), Hata::kBaglantiYok);
  Ac(yol_, kip_);
}

void Baglanti::BeklemeAyarla(int ms) {
  bekleme_ = ms;
  if (db_) sqlite3_busy_timeout(db_, ms);
}

bool Baglanti::IslemIcinde() const { return db_ && sqlite3_get_autocommit(db_) == 0; }

int Baglanti::Calistir(const QString& sql, const QVariantList& deger) {
  AcikOlmali();
  const QByteArray metin = sql.toUtf8();
  const char* p = metin.constData();
  const char* const son = p + metin.size();
  const sqlite3_int64 once = sqlite3_total_changes64(db_);
  qsizetype kullanilan = 0;
  while (p < son) {
    Komut k(db_, p, son);
    p = k.kalan();
    if (k.bos()) continue;
    const int n = k.ParametreSayisi();
    // Every value must find its parameter; the check runs before the last
    // statement does, so that a single statement never runs half bound.
    const bool sonuncu = YalnizBosluk(p, son);
    if (kullanilan + n > deger.size() || (sonuncu && kullanilan + n != deger.size()))
      throw ParametreHatasi(kullanilan + n, deger.size());
    k.Bagla(deger, kullanilan);
    kullanilan += n;
    while (k.Adim()) {
    }
  }
  if (kullanilan != deger.size()) throw ParametreHatasi(kullanilan, deger.size());
  const sqlite3_int64 fark = sqlite3_total_changes64(db_) - once;
  return fark > std::numeric_limits<int>::max() ? std::numeric_limits<int>::max() : int(fark);
}

Kayitlar Baglanti::Sorgu(const QString& sql, const QVariantList& deger) {
  Kayitlar rs;
  rs.Doldur(this, sql, deger);
  return rs;
}

QVariant Baglanti::Deger(const QString& sql, const QVariantList& deger) {
  AcikOlmali();
  Sorgusu s(db_, sql, deger);
  if (!s.k().Adim()) return QVariant();
  return SutunDegeri(s.k().st(), 0);
}

qint64 Baglanti::SonEklenenNo() const { return db_ ? sqlite3_last_insert_rowid(db_) : 0; }

QString Baglanti::HataMetni() const { return db_ ? MotorMetni(db_) : QString(); }

// The record set's loader lives here so that only this file steps statements.
// Values go straight from the engine into the set's cells; texts are copied
// as the engine's UTF-8 into one buffer.
void Kayitlar::Doldur(Baglanti* b, const QString& sql, const QVariantList& deger) {
  if (!b || !b->Acik()) throw Hata(QStringLiteral("Veri tabanı açık değil"), Hata::kBaglantiYok);
  Sorgusu s(b->ham(), sql, deger);
  sqlite3_stmt* st = s.k().st();
  const int n = sqlite3_column_count(st);
  QStringList alanlar;
  alanlar.reserve(n);
  for (int i = 0; i < n; ++i) alanlar << QString::fromUtf8(sqlite3_column_name(st, i));

  std::vector<Hucre> hucreler;
  QByteArray metinler;
  // A Requery (after every save on the contract screen) knows the size to
  // expect.
  if (kaynak_ == b && sql_ == sql) {
    hucreler.reserve(hucreler_.size() + std::size_t(n) * 16);
    metinler.reserve(metinler_.size() + 1024);
  }
  int satirlar = 0;
  while (s.k().Adim()) {
    for (int i = 0; i < n; ++i) {
      Hucre h;
      switch (sqlite3_column_type(st, i)) {
        case SQLITE_NULL:
          h.tur = Hucre::Bos;
          h.tam = 0;
          break;
        case SQLITE_INTEGER:
          h.tur = Hucre::Tam;
          h.tam = sqlite3_column_int64(st, i);
          break;
        case SQLITE_FLOAT:
          h.tur = Hucre::Ondalik;
          h.ondalik = sqlite3_column_double(st, i);
          break;
        default: {
          const auto* p = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
          const int boy = sqlite3_column_bytes(st, i);
          if (metinler.size() + boy > qsizetype(std::numeric_limits<std::uint32_t>::max()))
            throw Hata(QStringLiteral("Sorgunun sonucu bellek için fazla büyük"));
          h.tur = Hucre::Yazi;
          h.yazi = {std::uint32_t(metinler.size()), std::uint32_t(boy)};
          metinler.append(p, boy);
        }
      }
      hucreler.push_back(h);
    }
    ++satirlar;
  }
  alanlar_ = std::move(alanlar);
  hucreler_ = std::move(hucreler);
  metinler_ = std::move(metinler);
  satirSayisi_ = satirlar;
  sira_.clear();
  yer_.clear();
  konum_ = 0;
  kaynak_ = b;
  sql_ = sql;
  param_ = deger;
}

Islem::Islem(Baglanti& b) : b_(b) {
  // IMMEDIATE takes the write lock at once (waiting for it like any write),
  // so that a transaction never fails half way for want of it.
  ic_ = b_.IslemIcinde();
  b_.Calistir(ic_ ? QStringLiteral("SAVEPOINT islem") : QStringLiteral("BEGIN IMMEDIATE"));
}

Islem::~Islem() {
  if (bitti_) return;
  try {
    b_.Calistir(ic_ ? QStringLiteral("ROLLBACK TO islem; RELEASE islem")
                    : QStringLiteral("ROLLBACK"));
  } catch (...) {
    // The engine may have rolled back already (a full disk, for one).
  }
}

void Islem::Onayla() {
  b_.Calistir(ic_ ? QStringLiteral("RELEASE islem") : QStringLiteral("COMMIT"));
  bitti_ = true;
}

}  // namespace db
