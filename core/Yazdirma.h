#pragma once
// What the print buttons share: a refused print shown as its message box, and
// a stream sent to its printer with a failure told to the clerk.

#include <QString>

#include "core/Baski.h"

namespace ekran {

// The message box of a refusal (its text, title and kind).
void RedGoster(const baski::Red& red);

// Sends the stream to the printer of the setting `yazici` (core/Yazici.h),
// keeping the interface alive through its pauses. A device that fails, or
// else a stream that failed on the way, is told as "Bir Hata Oluştu", a line
// break and the reason ("HATA", critical). True when the whole stream reached
// the printer.
bool Yazdir(const QString& yazici, const baski::Sonuc& akis);

}  // namespace ekran
