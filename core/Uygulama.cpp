#include "core/Uygulama.h"

#include "core/Koruma.h"
#include "core/Mesaj.h"
#include "db/Baglanti.h"

bool Uygulama::notify(QObject* alici, QEvent* olay) {
  try {
    return QApplication::notify(alici, olay);
  } catch (const db::Hata& h) {
    ekran::HataGoster(h);
  } catch (const std::exception& e) {
    mesaj::Kritik(
        QStringLiteral("Bir Hata Oluştu") + QLatin1Char('\n') + QString::fromUtf8(e.what()),
        QStringLiteral("HATA"));
  }
  return true;
}
