#include <QCloseEvent>
#include <QMdiSubWindow>

#include "core/Form.h"

namespace ekran {

void Form::Kapat() {
  if (auto* alt = qobject_cast<QMdiSubWindow*>(parentWidget()))
    alt->close();
  else
    close();
}

void Form::closeEvent(QCloseEvent* e) {
  Form_Unload();
  QWidget::closeEvent(e);
}

}  // namespace ekran
