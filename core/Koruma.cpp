#include "core/Koruma.h"

#include "core/Mesaj.h"

namespace ekran {

void HataGoster(const db::Hata& hata) {
  mesaj::Kritik(QStringLiteral("Bir Hata Oluştu") + QLatin1Char('\n') + hata.metin(),
                QStringLiteral("HATA"));
}

}  // namespace ekran
