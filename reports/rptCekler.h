#pragma once
// The list of papers as the collection screen shows it, on paper: drawer,
// bank, number, maturity and amount of each, the count and sum at the end.

#include <QString>

#include "core/Rapor.h"
#include "db/Kayitlar.h"

namespace reports {

// The layout over the rows in their present order; `lblTarihler` is the
// range line under the title.
rapor::Rapor rptCekler(const db::Kayitlar& rsCek, const QString& lblTarihler);

}  // namespace reports
