#pragma once
// The "CSV olarak kaydet" command beside a grid: the grid's visible columns in
// the order the clerk sees them, with their captions and texts, written to a
// file the clerk names.

#include <QByteArray>
#include <QString>
#include <functional>

class QPushButton;
class QTableView;
class QWidget;

namespace csv {

// What the grid shows, as CSV bytes.
QByteArray IzgaraMetni(const QTableView* izgara);

// Asks where to save (a save dialogue, or the chooser tests install) and
// writes the file; tells the clerk when it can't. False when nothing was
// written.
bool IzgaraKaydet(const QTableView* izgara, const QString& onerilenAd, QWidget* ust = nullptr);

// The file name chooser; an empty answer cancels. Tests install their own.
using DosyaSecici = std::function<QString(const QString& onerilenAd)>;
void DosyaSeciciKur(DosyaSecici s);
void DosyaSeciciKaldir();

// The command button, named cmdCsv.
QPushButton* CsvDugmesi();

}  // namespace csv
