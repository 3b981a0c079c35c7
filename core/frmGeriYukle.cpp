#include "core/frmGeriYukle.h"

#include <QFileInfo>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "core/BakimKomut.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "db/Yedek.h"

namespace {

// Sizes as the clerk reads them: whole kilobytes with digit groups.
QString Boyut(qint64 bayt) {
  return Genel::SayiYaz(double(bayt) / 1024.0, 0) + QStringLiteral(" KB");
}

}  // namespace

frmGeriYukle::frmGeriYukle() {
  setWindowTitle(QStringLiteral("Yedekten Geri Yükle"));
  lstYedek = new QTreeWidget;
  lstYedek->setObjectName(QStringLiteral("lstYedek"));
  lstYedek->setHeaderLabels(
      {QStringLiteral("Tarih"), QStringLiteral("Boyut"), QStringLiteral("Dosya")});
  lstYedek->setRootIsDecorated(false);
  lstYedek->setSelectionMode(QAbstractItemView::SingleSelection);
  lstYedek->header()->setStretchLastSection(true);
  cmdGeriYukle = new QPushButton(QStringLiteral("Geri Yükle"));
  cmdGeriYukle->setObjectName(QStringLiteral("cmdGeriYukle"));
  cmdExit = new QPushButton(QStringLiteral("&Çıkış"));
  cmdExit->setObjectName(QStringLiteral("cmdExit"));

  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  dugmeler->addWidget(cmdGeriYukle);
  dugmeler->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addWidget(new QLabel(QStringLiteral("Veri tabanının tarihli yedekleri:")));
  ana->addWidget(lstYedek);
  ana->addLayout(dugmeler);

  connect(cmdGeriYukle, &QPushButton::clicked, this, [this] { cmdGeriYukle_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { cmdExit_Click(); });
  connect(lstYedek, &QTreeWidget::itemDoubleClicked, this, [this] { cmdGeriYukle_Click(); });
}

void frmGeriYukle::Form_Load() {
  ekran::FormOrtala(this, 4000, 6400, true);
  Listele();
  lstYedek->setFocus();
}

void frmGeriYukle::Listele() {
  lstYedek->clear();
  for (const db::YedekDosyasi& y : db::TarihliYedekler(Genel::VeriTabaniYolu())) {
    auto* satir = new QTreeWidgetItem(
        lstYedek, {Genel::TarihYaz(y.tarih), Boyut(y.boyut), QFileInfo(y.yol).fileName()});
    satir->setData(0, Qt::UserRole, y.yol);
    satir->setTextAlignment(1, Qt::AlignRight | Qt::AlignVCenter);
  }
  if (lstYedek->topLevelItemCount() > 0) lstYedek->setCurrentItem(lstYedek->topLevelItem(0));
  for (int i = 0; i < 2; ++i) lstYedek->resizeColumnToContents(i);
}

void frmGeriYukle::cmdGeriYukle_Click() {
  const QTreeWidgetItem* satir = lstYedek->currentItem();
  if (!satir) {
    mesaj::Uyari(QStringLiteral("Geri yüklenecek yedeği seçiniz."), QStringLiteral("UYARI"));
    return;
  }
  // The screen closes with the others while the restore runs: nothing of it
  // is touched after this call.
  bakim::GeriYukle(satir->data(0, Qt::UserRole).toString(), satir->text(0));
}

void frmGeriYukle::cmdExit_Click() { Kapat(); }
