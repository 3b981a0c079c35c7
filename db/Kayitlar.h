#pragma once
// A client-side record set: the rows of a query, loaded once, with a current
// row that moves like the old cursor objects (EOF/BOF, MoveFirst/Next/...).

#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <QVector>
#include <functional>
#include <memory>

namespace db {

class Baglanti;

class Kayitlar {
 public:
  Kayitlar() = default;

  // --- shape
  int AlanSayisi() const { return alanlar_.size(); }
  const QStringList& Alanlar() const { return alanlar_; }
  // Index of a field by name, case-insensitive; -1 when missing.
  int AlanNo(const QString& ad) const;
  int RecordCount() const { return satirlar_.size(); }

  // --- position: 1-based like AbsolutePosition; 0 when at EOF or BOF
  bool Eof() const { return konum_ >= satirlar_.size() || satirlar_.isEmpty(); }
  bool Bof() const { return konum_ < 0 || satirlar_.isEmpty(); }
  bool SatirVar() const { return !Eof() && !Bof(); }
  int AbsolutePosition() const { return SatirVar() ? konum_ + 1 : 0; }
  void MoveFirst() { konum_ = 0; }
  void MoveLast() { konum_ = satirlar_.size() - 1; }
  void MoveNext() { if (konum_ < satirlar_.size()) ++konum_; }
  void MovePrevious() { if (konum_ >= 0) --konum_; }
  void Move(int satir) { konum_ = satir; }  // 0-based row index
  int Satir() const { return konum_; }       // 0-based, may be -1 or size()

  // Bookmark of the current row; stays valid across Sort.
  using Bookmark = int;
  Bookmark bookmark() const;
  void setBookmark(Bookmark b);

  // --- values of the current row
  QVariant Fields(const QString& ad) const;
  QVariant Fields(int alan) const;
  // A text value as the screens take it: a Null gives "".
  QString Metin(const QString& ad) const;
  // Values of any row (0-based) without moving.
  QVariant Deger(int satir, int alan) const;

  // --- Find: searches forward from the current row (or from the first when
  // bastan) for a row whose field equals the value; numbers compare by
  // value, texts as typed. Moves to it and returns true, else stays at EOF.
  bool Find(const QString& alan, const QVariant& deger, bool bastan = false);
  bool FindIf(const std::function<bool(const Kayitlar&)>& kosul, bool bastan = false);

  // Re-runs the query that filled the set; the position goes to the first row.
  void Requery();

  // Sorts by a field (Turkish order for texts, Null first); keeps the row.
  void Sort(const QString& alan, bool artan = true);

 private:
  friend class Baglanti;
  void Doldur(Baglanti* b, const QString& sql, const QVariantList& deger);

  QStringList alanlar_;
  QVector<QVector<QVariant>> satirlar_;
  QVector<int> kimlik_;  // bookmark of each row
  int konum_ = 0;
  Baglanti* kaynak_ = nullptr;
  QString sql_;
  QVariantList param_;
};

// Turkish order of two texts: the letters ç, ğ, ı, ö, ş, ü and their capitals
// stand after c, g, h, o, s, u; case is second. Used by the engine's TURKCE
// collation and by Sort.
int TurkceKarsilastir(const QString& a, const QString& b);
// Upper case by Turkish rules (i -> İ, ı -> I).
QString TurkceBuyuk(const QString& s);

}  // namespace db
