#pragma once
// The one connection to the database file. Every value reaches SQL as a bound
// parameter; a Null is an invalid QVariant and is never confused with the
// empty text.

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <stdexcept>

struct sqlite3;

namespace db {

class Kayitlar;

// A failure of the engine; what() and metin() carry the engine's own text,
// kod() its extended result code, so that a caller can tell a file locked by
// another program from a refused row. Failures found before the engine is
// asked (no connection, a wrong number of values) carry a code of their own.
class Hata : public std::runtime_error {
 public:
  enum : int {
    kProgram = 0,       // not from the engine: a misuse found by this layer
    kBaglantiYok = -1,  // no open connection
  };
  explicit Hata(const QString& metin, int kod = kProgram)
      : std::runtime_error(metin.toStdString()), metin_(metin), kod_(kod) {}
  const QString& metin() const { return metin_; }
  int kod() const { return kod_; }
  // The primary result code (the low byte of the extended one).
  int AnaKod() const { return kod_ > 0 ? (kod_ & 0xff) : kod_; }
  // Another program holds the file (busy or locked past the waiting time).
  bool Kilitli() const;
  // A constraint refused the row (unique key, not null, check).
  bool KisitIhlali() const;
  bool BaglantiYok() const { return kod_ == kBaglantiYok; }

 private:
  QString metin_;
  int kod_;
};

// Null as it is bound and read back: an invalid QVariant. An invalid QDate or
// QDateTime is bound as Null too; an empty QString is the empty text.
inline QVariant Null() { return QVariant(); }
inline bool NullMu(const QVariant& v) { return !v.isValid() || v.isNull(); }

// Whole numbers and floating numbers among the value types a caller may bind.
inline bool TamSayiTuru(int tur) {
  switch (tur) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
    case QMetaType::ULong:
      return true;
    default:
      return false;
  }
}
inline bool KesirliSayiTuru(int tur) { return tur == QMetaType::Double || tur == QMetaType::Float; }

class Baglanti {
 public:
  enum class Kip { YazOku, SadeceOku };

  Baglanti() = default;
  ~Baglanti();
  Baglanti(const Baglanti&) = delete;
  Baglanti& operator=(const Baglanti&) = delete;

  // Opens an existing file. Throws Hata with the engine's text when the file
  // is missing, is no database, or cannot be written in YazOku; it never
  // creates or changes the file.
  void Ac(const QString& yol, Kip kip = Kip::YazOku);
  // Creates a new database with the full schema and the reference data.
  // Throws when the file already exists.
  void Olustur(const QString& yol);
  void Kapat();
  // Opens the last file again (after maintenance closed it).
  void YenidenAc();
  bool Acik() const { return db_ != nullptr; }
  const QString& Yol() const { return yol_; }

  // Runs one statement or several separated by ";". The values are bound to
  // the parameters in the order they stand; returns the number of rows the
  // statements changed. A failing statement stops the run; those before it
  // stay done unless an Islem surrounds them.
  int Calistir(const QString& sql, const QVariantList& deger = {});
  // Runs a query and loads its rows into a client-side record set.
  Kayitlar Sorgu(const QString& sql, const QVariantList& deger = {});
  // The first column of the first row, Null when there is no row.
  QVariant Deger(const QString& sql, const QVariantList& deger = {});
  qint64 SonEklenenNo() const;

  // The engine's text of the last failure.
  QString HataMetni() const;

  // True while a transaction (Islem) is open on the connection.
  bool IslemIcinde() const;

  // Milliseconds a statement waits for another program's lock; kBekleme
  // unless changed. The setting holds for later opens as well.
  static constexpr int kBekleme = 5000;
  void BeklemeAyarla(int ms);
  int Bekleme() const { return bekleme_; }

  sqlite3* ham() const { return db_; }

 private:
  void AcHam(const QString& yol, int bayrak);
  void AcikOlmali() const;
  sqlite3* db_ = nullptr;
  QString yol_;
  Kip kip_ = Kip::YazOku;
  int bekleme_ = kBekleme;
};

// A transaction: commits on Onayla(), rolls back when it goes out of scope
// without it. Statements that belong together run inside one. Inside another
// Islem it is a savepoint of that one: its rollback undoes only its own
// statements, and its Onayla() leaves the outer one to decide.
class Islem {
 public:
  explicit Islem(Baglanti& b);
  ~Islem();
  Islem(const Islem&) = delete;
  Islem& operator=(const Islem&) = delete;
  void Onayla();

 private:
  Baglanti& b_;
  bool ic_ = false;
  bool bitti_ = false;
};

}  // namespace db
