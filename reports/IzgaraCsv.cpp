#include "reports/IzgaraCsv.h"

#include <QDir>
#include <QFileDialog>
#include <QHeaderView>
#include <QPushButton>
#include <QTableView>

#include "core/Mesaj.h"
#include "reports/Csv.h"

namespace csv {

namespace {
DosyaSecici& Secici() {
  static DosyaSecici s;
  return s;
}
}  // namespace

QByteArray IzgaraMetni(const QTableView* izgara) {
  const QAbstractItemModel* m = izgara->model();
  const QHeaderView* baslik = izgara->horizontalHeader();
  QVector<int> sutunlar;
  for (int gorunen = 0; gorunen < baslik->count(); ++gorunen) {
    const int s = baslik->logicalIndex(gorunen);
    if (!izgara->isColumnHidden(s)) sutunlar << s;
  }
  QStringList basliklar;
  for (int s : sutunlar) basliklar << m->headerData(s, Qt::Horizontal, Qt::DisplayRole).toString();
  QVector<QStringList> satirlar;
  satirlar.reserve(m->rowCount());
  for (int r = 0; r < m->rowCount(); ++r) {
    QStringList satir;
    for (int s : sutunlar) satir << m->data(m->index(r, s), Qt::DisplayRole).toString();
    satirlar << satir;
  }
  return Yaz(basliklar, satirlar);
}

bool IzgaraKaydet(const QTableView* izgara, const QString& onerilenAd, QWidget* ust) {
  QString yol;
  if (Secici()) {
    yol = Secici()(onerilenAd);
  } else {
    yol = QFileDialog::getSaveFileName(ust, QStringLiteral("CSV olarak kaydet"),
                                       QDir::home().filePath(onerilenAd),
                                       QStringLiteral("CSV dosyası (*.csv)"));
  }
  if (yol.isEmpty()) return false;
  QString hata;
  if (!Kaydet(yol, IzgaraMetni(izgara), &hata)) {
    mesaj::Kritik(QStringLiteral("Dosya kaydedilemedi.\n") + hata, QStringLiteral("HATA"));
    return false;
  }
  return true;
}

void DosyaSeciciKur(DosyaSecici s) { Secici() = std::move(s); }
void DosyaSeciciKaldir() { Secici() = nullptr; }

QPushButton* CsvDugmesi() {
  auto* d = new QPushButton(QStringLiteral("CSV olarak kaydet"));
  d->setObjectName(QStringLiteral("cmdCsv"));
  return d;
}

}  // namespace csv
