#pragma once
// What the two invoice screens share in their boxes: the amount boxes, the
// percent box that selects its first three characters, the boxes rewritten
// as money when left, and the labelled rows of the dialogue.

#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QString>

namespace invoice {

// A right-aligned amount box; a read-only one is locked (no focus).
QLineEdit* TutarKutusu(const QString& ad, bool saltOkunur);

// txtBMOran: the focus selects its first three characters.
void IlkUcunuSec(QLineEdit* kutu);

// A box that is rewritten with ParaFormat when the focus leaves it; a text
// that is no number stays as typed (the save tells the clerk).
void ParaAlani(QLineEdit* kutu);

// A command button of the dialogue.
QPushButton* Dugme(const char* ad, const QString& yazi);

// A caption and its box in the next row of the grid.
QLabel* Satir(QGridLayout* g, const QString& baslik, QWidget* alan, int sutun = 0);

}  // namespace invoice
