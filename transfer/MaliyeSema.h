#pragma once
// Our own XML Schema of the transfer file, written from the file's line
// tables (elements, order, widths, number forms) for both variants, and the
// check of a written file against it. It is this program's reading of the
// format; the Ministry's own schemas are not carried.

#include <QByteArray>
#include <QByteArrayView>
#include <QString>
#include <memory>

#include "transfer/MaliyeDosyasi.h"

namespace aktarim {

// The schema text of a variant.
QByteArray SemaMetni(const Varyant& v);

// Checks the file at `yol`; an empty text when it is valid, else the first
// fault with its line.
QString SemayaUygunMu(const QString& yol, const Varyant& v);

// The same check of a file as its bytes come, keeping none of them: Ekle()
// the pieces in their order, then Bitir(). One thread does all three: the
// parser reports to a handler of its thread.
class SemaAkisi {
 public:
  // `ad` names the file in the faults.
  SemaAkisi(const Varyant& v, const QString& ad);
  ~SemaAkisi();
  SemaAkisi(const SemaAkisi&) = delete;
  SemaAkisi& operator=(const SemaAkisi&) = delete;
  void Ekle(QByteArrayView parca);
  // An empty text when the whole was valid, else the first fault.
  QString Bitir();

 private:
  struct Durum;
  std::unique_ptr<Durum> d_;
};

}  // namespace aktarim
