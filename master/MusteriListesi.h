#pragma once
// The customers of an editable list of numbers or names (cmbNo and cmbAd of
// the customer screen, cmbAd of the contract screen): a text and an item value
// each. A plain list model, so that thirty thousand entries go in at once
// rather than one by one.

#include <QAbstractListModel>
#include <QString>
#include <QVector>

namespace master {

class MusteriListesi : public QAbstractListModel {
 public:
  struct Oge {
    QString metin;
    qint64 deger;  // Qt::UserRole
  };

  using QAbstractListModel::QAbstractListModel;

  void Doldur(QVector<Oge> ogeler);
  // Fills the list in the Turkish order of the texts; equal texts keep the
  // order they were given in.
  void SiraliDoldur(QVector<Oge> ogeler);
  int Adet() const { return int(ogeler_.size()); }
  const Oge& At(int satir) const { return ogeler_[satir]; }

  // The first entry of that item value; -1 when there is none.
  int DegerSatiri(qint64 deger) const;
  // The entry of a typed text: as typed, else in any case by Turkish rules;
  // -1 when there is none. Never a partial match.
  int Bul(const QString& metin) const;
  // Gives the entry a new text and moves it to its place in the Turkish order.
  void SiraliDegistir(int satir, const QString& metin);

  int rowCount(const QModelIndex& ust = {}) const override;
  QVariant data(const QModelIndex& i, int rol) const override;

 private:
  QVector<Oge> ogeler_;
};

}  // namespace master
