#pragma once
// The transfer from the command line or a scheduled job:
//   velmora maliye --bas AA.YYYY --son AA.YYYY [--limit TUTAR] [--cikti KLASOR]
//                  [--bugun GG.AA.YYYY]
// writes the same files as the screen, the summary to `cikti`, the faults and
// rate warnings to `hata`. Returns 0 on success, 2 on a refused input, 1 on a
// failed run.

#include <QStringList>
#include <QTextStream>
#include <functional>

#include "db/Baglanti.h"

namespace aktarim {

inline const char* const kKomutYardimi =
    "  velmora maliye --bas AA.YYYY --son AA.YYYY [--limit TUTAR] [--cikti KLASÖR]\n"
    "                 [--bugun GG.AA.YYYY]\n"
    "                                           dönemin Maliye dosyasını hazırlar\n";

// `baglan` opens the database once the input has been accepted.
int MaliyeKomutu(const std::function<db::Baglanti&()>& baglan, const QStringList& args,
                 QTextStream& cikti, QTextStream& hata);

}  // namespace aktarim
