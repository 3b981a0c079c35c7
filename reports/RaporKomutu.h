#pragma once
// The reports of the command line, for exports and scheduled jobs:
//
//   velmora rapor cari --csv DOSYA                               every customer's status
//   velmora rapor gelir [--bas GG.AA.YYYY] [--son GG.AA.YYYY] --csv DOSYA  income
//   velmora rapor cekler [--bas GG.AA.YYYY] [--son GG.AA.YYYY] --csv DOSYA papers by maturity
//   velmora rapor kesideci-risk --csv DOSYA                      drawers by bounced papers
//
// Each writes the same rows, captions and formats as its screen's grid.

#include <QString>
#include <QStringList>
#include <functional>

namespace raporkomutu {

// The usage lines, for the program's help.
extern const char* const kKullanim;

// Reads the arguments after "rapor". A bad argument or date is told through
// `hata` (in Turkish, one line) and gives 2 without touching the database;
// otherwise the connection is opened by `ac` (which throws db::Hata when it
// can't) and the file written: 0, or 1 when the engine or the file fails.
int Calistir(const QStringList& arg, const std::function<void()>& ac,
             const std::function<void(const QString&)>& hata);

}  // namespace raporkomutu
