#include "core/Kutu.h"

#include <QComboBox>
#include <QLineEdit>
#include <QValidator>
#include <algorithm>

#include "core/Ekran.h"

namespace ekran {

namespace {

// Cuts what an edit adds beyond the limit, as typing into a full box or
// pasting too much would be cut, but leaves a text that is no longer than it
// was before the edit. The line edit validates after the edit, so the length
// before it is kept from the last change. A text the program sets (the line
// edit has nothing to undo then) always stands whole.
class UzunlukSiniri : public QValidator {
 public:
  UzunlukSiniri(QLineEdit* kutu, int sinir)
      : QValidator(kutu), kutu_(kutu), sinir_(sinir), onceki_(kutu->text().size()) {
    connect(kutu, &QLineEdit::textChanged, this,
            [this](const QString& metin) { onceki_ = metin.size(); });
  }

  State validate(QString& metin, int& konum) const override {
    const qsizetype enFazla = std::max<qsizetype>(sinir_, onceki_);
    if (metin.size() <= enFazla || !kutu_->isUndoAvailable()) return Acceptable;
    // What was added stands just before the cursor.
    const qsizetype fazla = metin.size() - enFazla;
    const qsizetype bas = konum >= fazla ? konum - fazla : metin.size() - fazla;
    metin.remove(bas, fazla);
    konum = int(bas);
    return Acceptable;
  }

 private:
  QLineEdit* kutu_;
  qsizetype sinir_;
  qsizetype onceki_;
};

}  // namespace

QLineEdit* Kutu(const QString& ad, int sinir, bool metinSec) {
  auto* k = new QLineEdit;
  k->setObjectName(ad);
  if (sinir > 0) SinirKur(k, sinir);
  if (metinSec) MetinSecKur(k);
  return k;
}

void SinirKur(QLineEdit* kutu, int sinir) { kutu->setValidator(new UzunlukSiniri(kutu, sinir)); }

void AnahtarListesi(QComboBox* liste) {
  liste->setEditable(true);
  liste->setInsertPolicy(QComboBox::NoInsert);
  liste->setCompleter(nullptr);
}

}  // namespace ekran
