#include "invoice/FaturaOrtak.h"

#include <QEvent>
#include <QPointer>
#include <QTimer>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"

namespace invoice {

namespace {

class UcHarfSecici : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::FocusIn) {
      QPointer<QLineEdit> kutu = qobject_cast<QLineEdit*>(o);
      // After the click that gave the focus has placed the cursor.
      QTimer::singleShot(0, kutu, [kutu] {
        if (kutu && kutu->hasFocus()) kutu->setSelection(0, 3);
      });
    }
    return false;
  }
};

}  // namespace

QLineEdit* TutarKutusu(const QString& ad, bool saltOkunur) {
  QLineEdit* k = ekran::Kutu(ad);
  k->setAlignment(Qt::AlignRight);
  if (saltOkunur) ekran::SaltOkunur(k, true);
  return k;
}

void IlkUcunuSec(QLineEdit* kutu) { kutu->installEventFilter(new UcHarfSecici(kutu)); }

void ParaAlani(QLineEdit* kutu) {
  ekran::AyrilirkenKontrol(kutu, [kutu] {
    double deger = 0;
    if (Genel::SayiOkuDene(kutu->text().trimmed(), deger)) {
      const QString yeni = Genel::SayiYaz(deger, 2);
      if (yeni != kutu->text()) kutu->setText(yeni);
    }
    return true;
  });
}

QPushButton* Dugme(const char* ad, const QString& yazi) {
  auto* d = new QPushButton(yazi);
  d->setObjectName(QString::fromLatin1(ad));
  d->setAutoDefault(false);
  return d;
}

QLabel* Satir(QGridLayout* g, const QString& baslik, QWidget* alan, int sutun) {
  const int satir = g->rowCount();
  auto* l = new QLabel(baslik);
  g->addWidget(l, satir, sutun);
  g->addWidget(alan, satir, sutun + 1);
  return l;
}

}  // namespace invoice
