#pragma once
// A client-side record set: the rows of a query, loaded once, with a current
// row that moves like the old cursor objects (EOF/BOF, MoveFirst/Next/...).
//
// The values live in one flat array of small cells, texts as UTF-8 in one
// shared buffer, so that loading a large set costs no allocation per value;
// a value becomes a QVariant only when it is read.

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>
#include <cstdint>
#include <functional>
#include <vector>

namespace db {

class Baglanti;

class Kayitlar {
 public:
  Kayitlar() = default;

  // --- shape
  int AlanSayisi() const { return int(alanlar_.size()); }
  const QStringList& Alanlar() const { return alanlar_; }
  // Index of a field by name, case-insensitive; -1 when missing.
  int AlanNo(const QString& ad) const;
  int RecordCount() const { return satirSayisi_; }

  // --- position: 1-based like AbsolutePosition; 0 when at EOF or BOF
  bool Eof() const { return konum_ >= satirSayisi_ || satirSayisi_ == 0; }
  bool Bof() const { return konum_ < 0 || satirSayisi_ == 0; }
  bool SatirVar() const { return !Eof() && !Bof(); }
  int AbsolutePosition() const { return SatirVar() ? konum_ + 1 : 0; }
  // Moves to the row at a 1-based position; outside 1..RecordCount to EOF.
  void setAbsolutePosition(int konum);
  void MoveFirst() { konum_ = 0; }
  void MoveLast() { konum_ = satirSayisi_ - 1; }
  void MoveNext() {
    if (konum_ < satirSayisi_) ++konum_;
  }
  void MovePrevious() {
    if (konum_ >= 0) --konum_;
  }
  void Move(int satir);                 // 0-based row index; -1 is BOF, RecordCount() EOF
  int Satir() const { return konum_; }  // 0-based, may be -1 or RecordCount()

  // Bookmark of the current row; stays valid across Sort. -1 without a row.
  using Bookmark = int;
  Bookmark bookmark() const;
  // Moves to the row of a bookmark; an unknown bookmark leaves the set at EOF.
  void setBookmark(Bookmark b);

  // --- values of the current row
  QVariant Fields(const QString& ad) const;
  QVariant Fields(int alan) const;
  // A text value as the screens take it: a Null gives "".
  QString Metin(const QString& ad) const;
  // Values of any row (0-based, in the present order) without moving.
  QVariant Deger(int satir, int alan) const;

  // --- Find: searches forward from the current row (or from the first when
  // bastan) for a row whose field equals the value; numbers compare by
  // value, texts as typed. Moves to it and returns true, else stays at EOF.
  bool Find(const QString& alan, const QVariant& deger, bool bastan = false);
  bool FindIf(const std::function<bool(const Kayitlar&)>& kosul, bool bastan = false);

  // Re-runs the query that filled the set, in the query's own order; the
  // position goes to the first row.
  void Requery();
  // A Requery that reads again only the row whose `alan` holds `anahtar`,
  // through `sql`, which must give that one row with the set's fields (its
  // values bound from `deger`). It is for a set whose other rows the caller
  // knows unchanged, where reading them all again would cost more than the
  // change: the set goes back to the query's order and to the first row, as
  // after a Requery. When the row is missing, or the statement gives another
  // shape, the whole set is read again. True when only the row was read.
  bool SatirYenile(const QString& alan, const QVariant& anahtar, const QString& sql,
                   const QVariantList& deger);

  // Sorts by a field: Null first, then numbers by value, then texts in
  // Turkish order; rows that tie keep their order. Keeps the current row,
  // or goes to the first when there was none.
  void Sort(const QString& alan, bool artan = true);

 private:
  friend class Baglanti;

  // One value: Null, an integer, a real or a slice of metinler_.
  struct Hucre {
    enum Tur : std::uint8_t { Bos, Tam, Ondalik, Yazi };
    struct Dilim {
      std::uint32_t bas, boy;
    };
    union {
      qint64 tam;
      double ondalik;
      Dilim yazi;
    };
    Tur tur;
  };

  void Doldur(Baglanti* b, const QString& sql, const QVariantList& deger);
  int AlanNoZorunlu(const QString& ad) const;
  int Fiziksel(int satir) const { return sira_.empty() ? satir : sira_[std::size_t(satir)]; }
  const Hucre& HucreAl(int fiziksel, int alan) const {
    return hucreler_[std::size_t(fiziksel) * std::size_t(alanlar_.size()) + std::size_t(alan)];
  }
  QVariant Varyant(const Hucre& h) const;
  const char* YaziBasi(const Hucre& h) const { return metinler_.constData() + h.yazi.bas; }

  QStringList alanlar_;
  std::vector<Hucre> hucreler_;  // row after row, in the order the query gave them
  QByteArray metinler_;          // every text value, UTF-8, back to back
  int satirSayisi_ = 0;
  // Present order after a Sort: sira_[row] is the stored row shown there, and
  // yer_ its inverse. Both empty while the query's order stands. A bookmark
  // is the stored row's index.
  std::vector<int> sira_, yer_;
  int konum_ = 0;
  Baglanti* kaynak_ = nullptr;
  QString sql_;
  QVariantList param_;
};

// Turkish order of two texts: ç, ğ, ı, ö, ş, ü stand after c, g, h, o, s, u;
// the dotless I before İ; a circumflex is second and case third (capitals
// first). Used by the engine's TURKCE collation and by Sort.
int TurkceKarsilastir(const QString& a, const QString& b);
// Upper case by Turkish rules (i -> İ, ı -> I).
QString TurkceBuyuk(const QString& s);

// Ranges [alt, ust) of texts in the engine's own (binary, code point) order
// that together hold every text equal to `metin` by Turkish case rules, that
// is with the same TurkceBuyuk ("ışık" and "IŞIK", not "ISIK"). A query of
// "col >= alt AND col < ust" for each range then reads the candidates through
// a plain index on the column; the caller compares them with TurkceBuyuk.
// The ranges cover the case forms of the first letters: at most `enFazla` of
// them, however long the text.
struct Aralik {
  QString alt;
  QString ust;  // empty: no upper end
};
std::vector<Aralik> TurkceAraliklar(const QString& metin, int enFazla = 16);

}  // namespace db
