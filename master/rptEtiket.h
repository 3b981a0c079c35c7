#pragma once
// The customer's address label: name, address, then postal code, district
// and province, for the preview, the printer or a PDF.

#include <QString>

#include "core/Rapor.h"
#include "db/Kayitlar.h"

namespace master {

// The label's row of one customer. The name is put together without any
// test for Null, so that a missing part leaves the whole name empty.
db::Kayitlar EtiketVerisi(const QString& musteriNo);

// The label layout over those rows, one label a page.
rapor::Rapor rptEtiket(const db::Kayitlar& veri);

}  // namespace master
