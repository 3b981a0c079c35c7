#pragma once
// The menu commands that bring an older database forward.

namespace ekran {

// Registers mnuVersiyon, mnuPulBedeli and mnuYTL.
void YukseltmeKomutlariniKaydet();

}  // namespace ekran
