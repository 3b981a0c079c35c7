#include "reports/Ortak.h"

#include <QDate>
#include <QLineEdit>
#include <QPushButton>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"

namespace reports {

bool RaporTarihiKontrol(QLineEdit* kutu) {
  if (kutu->text().isEmpty() || Genel::TarihCoz(kutu->text(), QDate::currentDate()).isValid())
    return true;
  mesaj::Kritik(QStringLiteral("Lütfen Geçerli Bir Tarih Girin"), QStringLiteral("UYARI"));
  return false;
}

void RaporTarihi(QLineEdit* kutu) {
  ekran::MetinSecKur(kutu);
  ekran::AyrilirkenKontrol(kutu, [kutu] { return RaporTarihiKontrol(kutu); });
}

QPushButton* Dugme(const char* ad, const QString& baslik) {
  auto* d = new QPushButton(baslik);
  d->setObjectName(QString::fromLatin1(ad));
  return d;
}

}  // namespace reports
