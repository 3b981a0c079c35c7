#include "core/Mesaj.h"

#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScreen>
#include <QVBoxLayout>

namespace mesaj {

namespace {
Cevaplayici& Aktif() {
  static Cevaplayici c;
  return c;
}
// A text longer than a screen (the list of faulty tax numbers of a year can
// hold thousands of lines) would push a message box's button off the screen
// and take long to lay out: it is shown in a box that scrolls instead.
constexpr int kUzunSatir = 30;

bool Uzun(const QString& metin) { return metin.count(QLatin1Char('\n')) > kUzunSatir; }

void UzunGoster(const QString& metin, const QString& baslik, QWidget* ust) {
  QDialog kutu(ust);
  kutu.setWindowTitle(baslik.isEmpty() ? QStringLiteral("Velmora") : baslik);
  auto* yazi = new QPlainTextEdit(metin);
  yazi->setReadOnly(true);
  yazi->setLineWrapMode(QPlainTextEdit::NoWrap);
  auto* dugmeler = new QDialogButtonBox;
  QPushButton* tamam = dugmeler->addButton(QStringLiteral("Tamam"), QDialogButtonBox::AcceptRole);
  tamam->setDefault(true);
  QObject::connect(dugmeler, &QDialogButtonBox::accepted, &kutu, &QDialog::accept);
  auto* duzen = new QVBoxLayout(&kutu);
  duzen->addWidget(yazi);
  duzen->addWidget(dugmeler);
  const QRect ekran = (ust ? ust->screen() : QGuiApplication::primaryScreen())->availableGeometry();
  kutu.resize(ekran.width() * 2 / 3, ekran.height() * 2 / 3);
  tamam->setFocus();
  kutu.exec();
}

}  // namespace

void CevaplayiciKur(Cevaplayici c) { Aktif() = std::move(c); }
void CevaplayiciKaldir() { Aktif() = nullptr; }

Dugme Goster(const QString& metin, const QString& baslik, Tur tur, Dugmeler dugmeler,
             QWidget* ust) {
  const Kayit k{metin, baslik, tur, dugmeler};
  if (Aktif()) return Aktif()(k);
  if (dugmeler == Dugmeler::Tamam && Uzun(metin)) {
    UzunGoster(metin, baslik, ust ? ust : QApplication::activeWindow());
    return Dugme::Tamam;
  }

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
