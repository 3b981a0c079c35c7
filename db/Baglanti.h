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

// A failure of the engine; what() and metin() carry the engine's own text.
class Hata : public std::runtime_error {
 public:
  explicit Hata(const QString& metin) : std::runtime_error(metin.toStdString()), metin_(metin) {}
  const QString& metin() const { return metin_; }

 private:
  QString metin_;
};

// Null as it is bound and read back: an invalid QVariant.
inline QVariant Null() { return QVariant(); }
inline bool NullMu(const QVariant& v) { return !v.isValid() || v.isNull(); }

class Baglanti {
 public:
  enum class Kip { YazOku, SadeceOku };

  Baglanti() = default;
  ~Baglanti();
  Baglanti(const Baglanti&) = delete;
  Baglanti& operator=(const Baglanti&) = delete;

  // Opens an existing file. Throws Hata when the file is missing or is no
  // usable database; it never creates or changes the file.
  void Ac(const QString& yol, Kip kip = Kip::YazOku);
  // Creates a new database with the full schema and the reference data.
  // Throws when the file already exists.
  void Olustur(const QString& yol);
  void Kapat();
  // Opens the last file again (after maintenance closed it).
  void YenidenAc();
  bool Acik() const { return db_ != nullptr; }
  const QString& Yol() const { return yol_; }

  // Runs one statement (or several without parameters); returns the number
  // of rows changed.
  int Calistir(const QString& sql, const QVariantList& deger = {});
  // Runs a query and loads its rows into a client-side record set.
  Kayitlar Sorgu(const QString& sql, const QVariantList& deger = {});
  // The first column of the first row, Null when there is no row.
  QVariant Deger(const QString& sql, const QVariantList& deger = {});
  qint64 SonEklenenNo() const;

  // The engine's text of the last failure.
  QString HataMetni() const;

  // Milliseconds a statement waits for another program's lock.
  static constexpr int kBekleme = 5000;

  sqlite3* ham() const { return db_; }

 private:
  void AcHam(const QString& yol, int bayrak);
  sqlite3* db_ = nullptr;
  QString yol_;
  Kip kip_ = Kip::YazOku;
};

// A transaction: commits on Onayla(), rolls back when it goes out of scope
// without it. Statements that belong together run inside one.
class Islem {
 public:
  explicit Islem(Baglanti& b);
  ~Islem();
  Islem(const Islem&) = delete;
  Islem& operator=(const Islem&) = delete;
  void Onayla();

 private:
  Baglanti& b_;
  bool bitti_ = false;
};

}  // namespace db
