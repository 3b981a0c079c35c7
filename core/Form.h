#pragma once
// Base of every child screen: the load step runs once the screen has its
// place in the main window, the activate step every time it becomes the
// active screen, and Kapat() closes the window that holds it.

#include <QWidget>

namespace ekran {

class Form : public QWidget {
  Q_OBJECT

 public:
  explicit Form(QWidget* ust = nullptr) : QWidget(ust) {}

  virtual void Form_Load() {}
  virtual void Form_Activate() {}
  // Runs the load step once; activation waits until it has run.
  void Yukle() {
    Form_Load();
    yuklendi_ = true;
  }
  bool Yuklendi() const { return yuklendi_; }
  // Closes the screen (its subwindow in the main window).
  void Kapat();

 protected:
  void closeEvent(QCloseEvent* e) override;
  virtual void Form_Unload() {}

 private:
  bool yuklendi_ = false;
};

}  // namespace ekran
