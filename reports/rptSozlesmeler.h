#pragma once
// The income report on paper: one line a contract, its sums at the end.

#include <QString>

#include "core/Rapor.h"
#include "db/Kayitlar.h"

namespace reports {

rapor::Rapor rptSozlesmeler(const db::Kayitlar& rsGelir, const QString& lblTarihler);

}  // namespace reports
