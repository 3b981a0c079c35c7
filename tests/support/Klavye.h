#pragma once
// A clerk's keyboard: keys sent one by one to where the focus is, Turkish
// letters too (QTest::keyClicks sends Latin-1 only).

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QElapsedTimer>
#include <QHash>
#include <QLineEdit>
#include <QtTest/QTest>

namespace test {

// Types `metin` into `alan` key by key.
inline void Tusla(QWidget* alan, const QString& metin) {
  for (const QChar c : metin) {
    if (c.unicode() < 0x80)
      QTest::keyClick(alan, char(c.unicode()));
    else
      QTest::sendKeyEvent(QTest::Click, alan, Qt::Key_unknown, QString(c), Qt::NoModifier);
  }
}

// Into a list's text as a clerk types: the focus goes to the list, what
// stands there is selected and typed over, and `tus` (Enter unless told)
// goes where the focus is, as the keyboard would send it.
inline void ListeyeYaz(QComboBox* liste, const QString& metin, Qt::Key tus = Qt::Key_Return) {
  liste->setFocus();
  QApplication::processEvents();
  QTest::keyClick(liste->lineEdit(), Qt::Key_A, Qt::ControlModifier);
  Tusla(liste->lineEdit(), metin);
  QWidget* odak = QApplication::focusWidget();
  if (tus != Qt::Key_unknown) QTest::keyClick(odak ? odak : liste, tus);
  QApplication::processEvents();
}

// A click, and the events it sets off.
inline void Tikla(QWidget* w) {
  QTest::mouseClick(w, Qt::LeftButton);
  QApplication::processEvents();
}

// Into a box as a clerk retypes it: the focus goes there, what stands is
// selected and typed over (or deleted, for an empty text).
inline void Yaz(QLineEdit* kutu, const QString& metin) {
  kutu->setFocus();
  QApplication::processEvents();
  QTest::keyClick(kutu, Qt::Key_A, Qt::ControlModifier);
  if (metin.isEmpty())
    QTest::keyClick(kutu, Qt::Key_Delete);
  else
    Tusla(kutu, metin);
}

// From a list the clerk cannot type into: the focus goes there and the first
// letters of the entry (or all of it) are typed, as the list looks them up.
// Each call is a look-up of its own: keys on a list within the keyboard
// interval of its last keys would go on with that look-up, so that much time
// passes first, as it does for a clerk who went through other fields.
inline void Sec(QComboBox* liste, const QString& basi) {
  static QElapsedTimer saat;
  static QHash<const QComboBox*, qint64> sonTus;
  if (!saat.isValid()) saat.start();
  const int aralik = QApplication::keyboardInputInterval();
  if (const auto o = sonTus.constFind(liste); o != sonTus.cend() && saat.elapsed() - *o <= aralik)
    QTest::qWait(int(aralik - (saat.elapsed() - *o)) + 50);
  liste->setFocus();
  QApplication::processEvents();
  Tusla(liste, basi);
  QApplication::processEvents();
  sonTus.insert(liste, saat.elapsed());
}

// From a list's popup with the mouse: the list opens and the clerk clicks
// the entry in row `satir`.
inline void ListedenSec(QComboBox* liste, int satir) {
  liste->setFocus();
  liste->showPopup();
  QApplication::processEvents();
  QAbstractItemView* gorunum = liste->view();
  const QRect yer = gorunum->visualRect(
      gorunum->model()->index(satir, liste->modelColumn(), gorunum->rootIndex()));
  QTest::mouseClick(gorunum->viewport(), Qt::LeftButton, Qt::NoModifier, yer.center());
  QApplication::processEvents();
}

}  // namespace test
