#include "core/Izgara.h"

#include <QHeaderView>
#include <QMouseEvent>

#include "core/Genel.h"
#include "db/Baglanti.h"

namespace ekran {

void IzgaraModeli::Bagla(db::Kayitlar* rs) {
  beginResetModel();
  rs_ = rs;
  endResetModel();
}

IzgaraModeli::Sutun& IzgaraModeli::Ayar(const QString& alan) { return sutunlar_[alan.toLower()]; }

void IzgaraModeli::SayiBicimi(const QString& alan, int basamak, bool gruplu) {
  Sutun& s = Ayar(alan);
  s.bicim = Bicim::Sayi;
  s.basamak = basamak;
  s.gruplu = gruplu;
  s.hiza = Qt::AlignRight | Qt::AlignVCenter;
}

void IzgaraModeli::Basliklar(std::initializer_list<std::pair<const char*, const char*>> liste) {
  for (const auto& [alan, baslik] : liste)
    Baslik(QString::fromLatin1(alan), QString::fromUtf8(baslik));
}

void IzgaraModeli::BelgeSutunlari(const QString& gun) {
  Basliklar({{"GirisNo", "GirisNo"},
             {"SozlesmeNo", "SozlesmeNo"},
             {"Tip", "Tip"},
             {"Kesideci", "Keşideci"},
             {"Banka", "Banka"},
             {"Sube", "Şube"},
             {"HesapNo", "Hesap No"},
             {"CekNo", "Çek No"},
             {"Vadesi", "Vadesi"}});
  TarihBicimi(QStringLiteral("Vadesi"));
  Baslik(gun, QStringLiteral("Gün"));
  Ayar(gun).hiza = Qt::AlignRight | Qt::AlignVCenter;
}

void IzgaraModeli::TarihBicimi(const QString& alan) { Ayar(alan).bicim = Bicim::Tarih; }

void IzgaraModeli::Uygula(QTableView* v) const {
  if (!rs_) return;
  for (int i = 0; i < rs_->AlanSayisi(); ++i) {
    const auto it = sutunlar_.find(rs_->Alanlar()[i].toLower());
    v->setColumnHidden(i, it != sutunlar_.end() && it->gizli);
  }
}

void IzgaraModeli::Yenile() {
  beginResetModel();
  endResetModel();
}

int IzgaraModeli::rowCount(const QModelIndex& p) const {
  return p.isValid() || !rs_ ? 0 : rs_->RecordCount();
}

int IzgaraModeli::columnCount(const QModelIndex& p) const {
  return p.isValid() || !rs_ ? 0 : rs_->AlanSayisi();
}

QString IzgaraModeli::Metin(int satir, int sutun) const {
  if (!rs_) return QString();
  const QVariant v = rs_->Deger(satir, sutun);
  const auto it = sutunlar_.find(rs_->Alanlar()[sutun].toLower());
  if (it == sutunlar_.end()) return db::NullMu(v) ? QString() : v.toString();
  if (it->yaz) return it->yaz(v);
  if (db::NullMu(v)) return QString();
  switch (it->bicim) {
    case Bicim::Sayi:
      return Genel::SayiYaz(v.toDouble(), it->basamak, it->gruplu);
    case Bicim::Tarih:
      return Genel::TarihEkran(v);
    case Bicim::Duz:
      break;
  }
  return v.toString();
}

QVariant IzgaraModeli::data(const QModelIndex& i, int rol) const {
  if (!rs_ || !i.isValid()) return QVariant();
  if (rol == Qt::DisplayRole) return Metin(i.row(), i.column());
  if (rol == Qt::TextAlignmentRole) {
    const auto it = sutunlar_.find(rs_->Alanlar()[i.column()].toLower());
    if (it != sutunlar_.end()) return int(it->hiza);
  }
  return QVariant();
}

QVariant IzgaraModeli::headerData(int bolum, Qt::Orientation o, int rol) const {
  if (rol != Qt::DisplayRole || !rs_) return QVariant();
  if (o == Qt::Vertical) return bolum + 1;
  if (bolum < 0 || bolum >= rs_->AlanSayisi()) return QVariant();
  const QString ad = rs_->Alanlar()[bolum];
  const auto it = sutunlar_.find(ad.toLower());
  return it != sutunlar_.end() && !it->baslik.isEmpty() ? it->baslik : ad;
}

void IzgaraModeli::sort(int sutun, Qt::SortOrder sira) {
  if (!rs_ || sutun < 0 || sutun >= rs_->AlanSayisi()) return;
  beginResetModel();
  rs_->Sort(rs_->Alanlar()[sutun], sira == Qt::AscendingOrder);
  endResetModel();
}

Izgara::Izgara(QWidget* ust) : QTableView(ust), model_(new IzgaraModeli(this)) {
  setModel(model_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setAlternatingRowColors(true);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setHighlightSections(false);
  connect(selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& yeni) {
            if (model_->Kayit() && yeni.isValid()) model_->Kayit()->Move(yeni.row());
          });
}

void Izgara::Bagla(db::Kayitlar* rs) {
  model_->Bagla(rs);
  model_->Uygula(this);
  KayidaGit();
}

void Izgara::KayidaGit() {
  db::Kayitlar* rs = model_->Kayit();
  if (!rs || !rs->SatirVar()) return;
  const int satir = rs->Satir();
  selectRow(satir);
  scrollTo(model_->index(satir, 0));
}

void Izgara::mouseDoubleClickEvent(QMouseEvent* e) {
  QTableView::mouseDoubleClickEvent(e);
  if (indexAt(e->pos()).isValid()) emit CiftTiklandi();
}

}  // namespace ekran
