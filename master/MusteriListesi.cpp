#include "master/MusteriListesi.h"

#include <algorithm>

#include "db/Kayitlar.h"

namespace master {

void MusteriListesi::Doldur(QVector<Oge> ogeler) {
  beginResetModel();
  ogeler_ = std::move(ogeler);
  endResetModel();
}

void MusteriListesi::SiraliDoldur(QVector<Oge> ogeler) {
  std::stable_sort(ogeler.begin(), ogeler.end(), [](const Oge& a, const Oge& b) {
    return db::TurkceKarsilastir(a.metin, b.metin) < 0;
  });
  Doldur(std::move(ogeler));
}

int MusteriListesi::DegerSatiri(qint64 deger) const {
  for (int i = 0; i < ogeler_.size(); ++i)
    if (ogeler_[i].deger == deger) return i;
  return -1;
}

int MusteriListesi::Bul(const QString& metin) const {
  for (int i = 0; i < ogeler_.size(); ++i)
    if (ogeler_[i].metin == metin) return i;
  // Else in any case by Turkish rules, and without the blanks around it: a
  // customer without a first name stands as "YILMAZ " in the list.
  const QString buyuk = db::TurkceBuyuk(metin.trimmed());
  for (int i = 0; i < ogeler_.size(); ++i)
    if (db::TurkceBuyuk(ogeler_[i].metin.trimmed()) == buyuk) return i;
  return -1;
}

void MusteriListesi::SiraliDegistir(int satir, const QString& metin) {
  Oge oge{metin, ogeler_[satir].deger};
  beginRemoveRows(QModelIndex(), satir, satir);
  ogeler_.removeAt(satir);
  endRemoveRows();
  const auto yer = std::upper_bound(
      ogeler_.begin(), ogeler_.end(), oge,
      [](const Oge& a, const Oge& b) { return db::TurkceKarsilastir(a.metin, b.metin) < 0; });
  const int yeni = int(yer - ogeler_.begin());
  beginInsertRows(QModelIndex(), yeni, yeni);
  ogeler_.insert(yeni, std::move(oge));
  endInsertRows();
}

int MusteriListesi::rowCount(const QModelIndex& ust) const {
  return ust.isValid() ? 0 : int(ogeler_.size());
}

QVariant MusteriListesi::data(const QModelIndex& i, int rol) const {
  if (!i.isValid() || i.row() >= ogeler_.size()) return {};
  if (rol == Qt::DisplayRole || rol == Qt::EditRole) return ogeler_[i.row()].metin;
  if (rol == Qt::UserRole) return ogeler_[i.row()].deger;
  return {};
}

}  // namespace master
