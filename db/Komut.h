#pragma once
// The prepared statement under the connection, the record set and the
// cursor: preparing, binding the values in order, stepping, and reading a
// column as a value. Only db/ includes this header.

#include <sqlite3.h>

#include <QByteArray>
#include <QDate>
#include <QDateTime>
#include <QString>
#include <QVariant>
#include <QVariantList>

#include "db/Baglanti.h"

namespace db::ic {

inline QString MotorMetni(sqlite3* db) { return QString::fromUtf8(sqlite3_errmsg(db)); }

// The engine's failure as it stands on the connection: its text and code.
inline Hata MotorHatasi(sqlite3* db) { return Hata(MotorMetni(db), sqlite3_extended_errcode(db)); }

// One prepared statement that finalizes itself. Prepares the first statement
// of [bas, son); kalan() tells where the next one begins. A text holding only
// blanks or comments gives no statement (bos()).
class Komut {
 public:
  Komut(sqlite3* db, const char* bas, const char* son) : db_(db), kalan_(son) {
    if (sqlite3_prepare_v2(db, bas, int(son - bas), &st_, &kalan_) != SQLITE_OK)
      throw MotorHatasi(db);
  }
  ~Komut() { sqlite3_finalize(st_); }
  Komut(const Komut&) = delete;
  Komut& operator=(const Komut&) = delete;

  bool bos() const { return st_ == nullptr; }
  const char* kalan() const { return kalan_; }
  sqlite3_stmt* st() const { return st_; }
  int ParametreSayisi() const { return sqlite3_bind_parameter_count(st_); }

  // Binds deger[ilk], deger[ilk + 1], ... to the parameters in order.
  void Bagla(const QVariantList& deger, qsizetype ilk) {
    const int n = ParametreSayisi();
    for (int i = 0; i < n; ++i) BaglaBir(i + 1, deger[ilk + i]);
  }

  bool Adim() {
    const int rc = sqlite3_step(st_);
    if (rc == SQLITE_ROW) return true;
    if (rc == SQLITE_DONE) return false;
    throw MotorHatasi(db_);
  }

 private:
  void BaglaBir(int i, const QVariant& v) {
    int rc = SQLITE_OK;
    if (NullMu(v)) {
      rc = sqlite3_bind_null(st_, i);
    } else {
      const int tur = v.typeId();
      switch (tur) {
        case QMetaType::QDate: {
          const QDate d = v.toDate();
          rc = d.isValid() ? BaglaMetin(i, d.toString(Qt::ISODate)) : sqlite3_bind_null(st_, i);
          break;
        }
        case QMetaType::QDateTime: {
          const QDateTime t = v.toDateTime();
          rc = t.isValid() ? BaglaMetin(i, t.toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")))
                           : sqlite3_bind_null(st_, i);
          break;
        }
        default:
          if (TamSayiTuru(tur))
            rc = sqlite3_bind_int64(st_, i, v.toLongLong());
          else if (KesirliSayiTuru(tur))
            rc = sqlite3_bind_double(st_, i, v.toDouble());
          else
            rc = BaglaMetin(i, v.toString());
      }
    }
    if (rc != SQLITE_OK) throw MotorHatasi(db_);
  }
  int BaglaMetin(int i, const QString& s) {
    const QByteArray b = s.toUtf8();
    return sqlite3_bind_text(st_, i, b.constData(), int(b.size()), SQLITE_TRANSIENT);
  }

  sqlite3* db_;
  sqlite3_stmt* st_ = nullptr;
  const char* kalan_;
};

inline Hata ParametreHatasi(qsizetype beklenen, qsizetype verilen) {
  return Hata(QStringLiteral("Parametre sayısı uyuşmuyor (%1 beklenen, %2 verilen)")
                  .arg(beklenen)
                  .arg(verilen));
}

// The first statement of a query, with its values bound.
class Sorgusu {
 public:
  Sorgusu(sqlite3* db, const QString& sql, const QVariantList& deger)
      : metin_(sql.toUtf8()), k_(db, metin_.constData(), metin_.constData() + metin_.size()) {
    if (k_.bos()) throw Hata(QStringLiteral("Boş sorgu"));
    if (k_.ParametreSayisi() != deger.size())
      throw ParametreHatasi(k_.ParametreSayisi(), deger.size());
    k_.Bagla(deger, 0);
  }
  Komut& k() { return k_; }

 private:
  QByteArray metin_;
  Komut k_;
};

inline QVariant SutunDegeri(sqlite3_stmt* st, int i) {
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

}  // namespace db::ic
