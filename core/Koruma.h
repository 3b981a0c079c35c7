#pragma once
// Engine failures that nothing on the way handled: caught where the clerk's
// action entered the program (a button, a list, a screen being opened) and
// shown, so that they never end the process and the screen stays usable.

#include <utility>

#include "db/Baglanti.h"

namespace ekran {

// "Bir Hata Oluştu", a line break and the engine's text; critical, "HATA".
void HataGoster(const db::Hata& hata);

// Runs `islem`; an engine failure that leaves it is shown by HataGoster and
// goes no further. False when that happened.
template <class F>
bool Korumali(F&& islem) {
  try {
    std::forward<F>(islem)();
    return true;
  } catch (const db::Hata& h) {
    HataGoster(h);
    return false;
  }
}

}  // namespace ekran
