#pragma once
// The printer: where the text of a printer setting (Fatura/Printer,
// Sozlesme/Printer) sends the bytes of a stream.
//
//   "LPT1" to "LPT3"   the parallel ports /dev/lp0 to /dev/lp2
//   "|command"         a command that takes the stream on its standard input,
//                      run by /bin/sh (for example "|lp -d NAME -o raw")
//   anything else      a device (/dev/usb/lp0) or a plain file, opened for
//                      writing; a plain file is written anew, readable by its
//                      owner only, since an invoice holds personal data
//
// The device is closed on every path. A stream's pauses (Bekle 2 after a
// form feed) are waited out only on a character device, where a printer
// feeds paper; a file or a command takes the stream at once.

#include <QString>
#include <functional>

#include "core/Baski.h"

namespace yazici {

struct Hedef {
  enum class Tur { Dosya, Komut };
  Tur tur = Tur::Dosya;
  QString yol;  // the path, or the command without its "|"
};

// What a setting names.
Hedef Coz(const QString& ayar);

// Waits `ms` milliseconds; the screens keep the interface alive meanwhile.
using Bekleyici = std::function<void(int ms)>;

// A character device that takes no data for this long is given up on.
inline constexpr int kZamanAsimi = 30000;

// Sends the bytes of the stream (as far as it got) to the printer of the
// setting. Empty on success, else the reason in Turkish: a device or file
// that can't be opened, a printer that takes no data, a command that fails.
// Without a Bekleyici the pauses sleep.
QString Gonder(const QString& ayar, const baski::Sonuc& akis, Bekleyici bekle = {});
// The same to a target named directly (a file given on the command line).
QString Gonder(const Hedef& hedef, const baski::Sonuc& akis, Bekleyici bekle = {});

}  // namespace yazici
