#pragma once
// A forward-only cursor over a query: one row at a time straight from the
// engine, nothing kept of the rows before. For the long runs that read each
// row once (the transfer file, its control list); a screen that moves back
// and forth takes a Kayitlar.
//
// The values read as a Kayitlar gives them: Null as an invalid QVariant,
// whole numbers as qlonglong, reals as double, texts as QString.

#include <QByteArrayView>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <memory>

namespace db {

class Baglanti;

class Imlec {
 public:
  // Prepares the query on `b` and binds the values in the order the
  // parameters stand. Throws Hata for a closed connection, a failing
  // statement or a wrong number of values.
  Imlec(Baglanti& b, const QString& sql, const QVariantList& deger = {});
  ~Imlec();
  Imlec(const Imlec&) = delete;
  Imlec& operator=(const Imlec&) = delete;

  // Moves to the next row; false once the rows are done (and from then on).
  // The first call gives the first row. Throws Hata when the engine fails.
  bool Ilerle();
  // Runs the same statement again from its start with other values: a lookup
  // repeated row after row is prepared once.
  void Yeniden(const QVariantList& deger);

  int AlanSayisi() const { return int(alanlar_.size()); }
  const QStringList& Alanlar() const { return alanlar_; }
  // Index of a field by name, case-insensitive; -1 when missing.
  int AlanNo(const QString& ad) const;

  // --- values of the current row; reading without a row throws Hata.
  QVariant Fields(int alan) const;
  QVariant Fields(const QString& ad) const;
  // A text value as the screens take it: a Null gives "".
  QString Metin(int alan) const;
  bool Bos(int alan) const;
  // The text of a value as the engine holds it, UTF-8, valid until the next
  // Ilerle(); a Null gives an empty view.
  QByteArrayView Utf8(int alan) const;

 private:
  struct Durum;
  void SatirOlmali(int alan) const;

  std::unique_ptr<Durum> d_;
  QStringList alanlar_;
  bool satir_ = false;
  bool bitti_ = false;
};

}  // namespace db
