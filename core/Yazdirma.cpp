#include "core/Yazdirma.h"

#include "core/Ekran.h"
#include "core/Mesaj.h"
#include "core/Yazici.h"

namespace ekran {

void RedGoster(const baski::Red& red) { mesaj::Goster(red.metin, red.baslik, red.tur); }

bool Yazdir(const QString& yazici, const baski::Sonuc& akis) {
  QString hata = yazici::Gonder(yazici, akis, [](int ms) { Bekle(ms); });
  if (hata.isEmpty() && akis.hata) hata = *akis.hata;
  if (hata.isEmpty()) return true;
  mesaj::Kritik(QStringLiteral("Bir Hata Oluştu") + QLatin1Char('\n') + hata,
                QStringLiteral("HATA"));
  return false;
}

}  // namespace ekran
