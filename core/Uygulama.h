#pragma once
// The application object of the window program. Every event passes through
// notify(); a failure of the engine that no screen caught ends there as a
// message to the clerk, never as the end of the process.

#include <QApplication>

class Uygulama : public QApplication {
 public:
  Uygulama(int& argc, char** argv) : QApplication(argc, argv) {}
  bool notify(QObject* alici, QEvent* olay) override;
};
