#pragma once
// Our own XML Schema of the transfer file, written from the file's line
// tables (elements, order, widths, number forms) for both variants, and the
// check of a written file against it. It is this program's reading of the
// format; the Ministry's own schemas are not carried.

#include <QByteArray>
#include <QString>

#include "transfer/MaliyeDosyasi.h"

namespace aktarim {

// The schema text of a variant.
QByteArray SemaMetni(const Varyant& v);

// Checks the file at `yol`; an empty text when it is valid, else the first
// fault with its line.
QString SemayaUygunMu(const QString& yol, const Varyant& v);

}  // namespace aktarim
