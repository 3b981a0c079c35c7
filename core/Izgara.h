#pragma once
// A grid over a record set: captions, hidden columns, number and date formats
// and alignment set by field name; a click on a column head sorts the record
// set; the grid's current row follows the record set's current row.

#include <QAbstractTableModel>
#include <QHash>
#include <QTableView>
#include <functional>
#include <initializer_list>
#include <utility>

#include "db/Kayitlar.h"

namespace ekran {

class IzgaraModeli : public QAbstractTableModel {
  Q_OBJECT

 public:
  enum class Bicim { Duz, Sayi, Tarih };
  struct Sutun {
    QString baslik;
    bool gizli = false;
    Bicim bicim = Bicim::Duz;
    int basamak = 2;     // decimals of a number
    bool gruplu = true;  // thousands groups of a number
    Qt::Alignment hiza = Qt::AlignLeft | Qt::AlignVCenter;
    std::function<QString(const QVariant&)> yaz;  // own text, if any
  };

  explicit IzgaraModeli(QObject* ust = nullptr) : QAbstractTableModel(ust) {}

  // Shows the record set (held by the caller, who keeps it alive).
  void Bagla(db::Kayitlar* rs);
  db::Kayitlar* Kayit() const { return rs_; }
  // Column set-up by field name; unknown names are ignored.
  Sutun& Ayar(const QString& alan);
  void Baslik(const QString& alan, const QString& baslik) { Ayar(alan).baslik = baslik; }
  void Gizle(const QString& alan, bool gizli = true) { Ayar(alan).gizli = gizli; }
  // Captions of several columns: field, caption.
  void Basliklar(std::initializer_list<std::pair<const char*, const char*>> liste);
  // The columns of a paper, as the contract's lines and the statement show
  // them: entry, contract, type, drawer, bank, branch, account, cheque number,
  // maturity as a date and its days (field `gun`) on the right.
  void BelgeSutunlari(const QString& gun);
  void SayiBicimi(const QString& alan, int basamak, bool gruplu = true);
  void TarihBicimi(const QString& alan);
  // Applies hidden columns to a view.
  void Uygula(QTableView* v) const;
  // Refresh after the record set was requeried.
  void Yenile();

  int rowCount(const QModelIndex& = {}) const override;
  int columnCount(const QModelIndex& = {}) const override;
  QVariant data(const QModelIndex& i, int rol) const override;
  QVariant headerData(int bolum, Qt::Orientation o, int rol) const override;
  void sort(int sutun, Qt::SortOrder sira) override;

  QString Metin(int satir, int sutun) const;

 private:
  db::Kayitlar* rs_ = nullptr;
  QHash<QString, Sutun> sutunlar_;  // by lower-case field name
};

// A table view set up the way every grid of the program looks: whole rows
// selected, one at a time, read-only; a click moves the record set.
class Izgara : public QTableView {
  Q_OBJECT

 public:
  explicit Izgara(QWidget* ust = nullptr);
  IzgaraModeli* Model() const { return model_; }
  void Bagla(db::Kayitlar* rs);
  // Selects the row of the record set's current position.
  void KayidaGit();

 signals:
  void CiftTiklandi();

 protected:
  void mouseDoubleClickEvent(QMouseEvent* e) override;

 private:
  IzgaraModeli* model_;
};

}  // namespace ekran
