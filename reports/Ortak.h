#pragma once
// What the report screens share: the lighter date check of their date boxes
// and their command buttons.

#include <QString>

class QLineEdit;
class QPushButton;

namespace reports {

// On leaving: a text that isn't empty and is no date gives "Lütfen Geçerli
// Bir Tarih Girin" ("UYARI", critical) and keeps the focus. Unlike the date
// box of the collection screen the text isn't rewritten and any year passes.
void RaporTarihi(QLineEdit* kutu);
bool RaporTarihiKontrol(QLineEdit* kutu);

// A button named `ad` with its caption.
QPushButton* Dugme(const char* ad, const QString& baslik);

}  // namespace reports
