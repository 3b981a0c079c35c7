#include "core/Mesaj.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace mesaj {

namespace {
Cevaplayici& Aktif() {
  static Cevaplayici c;
  return c;
}
}  // namespace

void CevaplayiciKur(Cevaplayici c) { Aktif() = std::move(c); }
void CevaplayiciKaldir() { Aktif() = nullptr; }

Dugme Goster(const QString& metin, const QString& baslik, Tur tur, Dugmeler dugmeler,
             QWidget* ust) {
  const Kayit k{metin, baslik, tur, dugmeler};
  if (Aktif()) return Aktif()(k);

  QMessageBox kutu(ust ? ust : QApplication::activeWindow());
  kutu.setText(metin);
  kutu.setWindowTitle(baslik.isEmpty() ? QStringLiteral("Velmora") : baslik);
  switch (tur) {
    case Tur::Kritik:
      kutu.setIcon(QMessageBox::Critical);
      break;
    case Tur::Unlem:
      kutu.setIcon(QMessageBox::Warning);
      break;
    case Tur::Bilgi:
      kutu.setIcon(QMessageBox::Information);
      break;
    case Tur::Soru:
      kutu.setIcon(QMessageBox::Question);
      break;
    case Tur::Duz:
      kutu.setIcon(QMessageBox::NoIcon);
      break;
  }
  QPushButton* tamam = nullptr;
  QPushButton* iptal = nullptr;
  QPushButton* evet = nullptr;
  QPushButton* hayir = nullptr;
  switch (dugmeler) {
    case Dugmeler::Tamam:
      tamam = kutu.addButton(QStringLiteral("Tamam"), QMessageBox::AcceptRole);
      break;
    case Dugmeler::TamamIptal:
      tamam = kutu.addButton(QStringLiteral("Tamam"), QMessageBox::AcceptRole);
      iptal = kutu.addButton(QStringLiteral("İptal"), QMessageBox::RejectRole);
      break;
    case Dugmeler::EvetHayir:
      evet = kutu.addButton(QStringLiteral("Evet"), QMessageBox::YesRole);
      hayir = kutu.addButton(QStringLiteral("Hayır"), QMessageBox::NoRole);
      kutu.setEscapeButton(hayir);
      break;
  }
  kutu.exec();
  QAbstractButton* b = kutu.clickedButton();
  if (b && b == evet) return Dugme::Evet;
  if (b && b == hayir) return Dugme::Hayir;
  if (b && b == iptal) return Dugme::Iptal;
  if (dugmeler == Dugmeler::EvetHayir) return Dugme::Hayir;
  if (dugmeler == Dugmeler::TamamIptal && b != tamam) return Dugme::Iptal;
  return Dugme::Tamam;
}

}  // namespace mesaj
