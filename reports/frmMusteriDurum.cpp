#include "reports/frmMusteriDurum.h"

#include <QDate>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "core/Ekran.h"
#include "core/Koruma.h"
#include "reports/IzgaraCsv.h"
#include "reports/MusteriDurum.h"
#include "reports/Ortak.h"

frmMusteriDurum::frmMusteriDurum() {
  setWindowTitle(QStringLiteral("Müşteri Cari Raporu"));
  DataGrid1 = new ekran::Izgara;
  DataGrid1->setObjectName(QStringLiteral("DataGrid1"));
  DataGrid1->horizontalHeader()->setSectionsClickable(true);
  ekran::IzgaraModeli* m = DataGrid1->Model();
  for (const csv::Sutun& s : musteridurum::Sutunlar()) {
    m->Baslik(s.alan, s.baslik);
    if (s.bicim == csv::Sutun::Bicim::Sayi) m->SayiBicimi(s.alan, s.basamak, s.gruplu);
  }
  cmdCsv = csv::CsvDugmesi();
  cmdExit = reports::Dugme("cmdExit", QStringLiteral("Çıkış"));

  auto* dugmeler = new QHBoxLayout;
  dugmeler->addStretch();
  dugmeler->addWidget(cmdCsv);
  dugmeler->addWidget(cmdExit);
  auto* ana = new QVBoxLayout(this);
  ana->addWidget(DataGrid1, 1);
  ana->addLayout(dugmeler);

  connect(cmdCsv, &QPushButton::clicked, this, [this] { cmdCsv_Click(); });
  connect(cmdExit, &QPushButton::clicked, this, [this] { Kapat(); });
  connect(DataGrid1->horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int s) { DataGrid1_HeadClick(s); });
}

frmMusteriDurum::~frmMusteriDurum() { DataGrid1->Bagla(nullptr); }

void frmMusteriDurum::Form_Load() {
  // The main window's inner size, less 400 twips each way.
  if (QWidget* ana = ekran::AnaPencere()) {
    const QSize ic = ana->size();
    ekran::FormOrtala(this, std::max(0, ic.height() * 15 - 400), std::max(0, ic.width() * 15 - 400),
                      true);
  }
  rsDurum = musteridurum::Oku(QDate::currentDate());
  DataGrid1->Bagla(&rsDurum);
  // Wide enough for the names near the top; an amount column has room for
  // tens of millions wherever in the list they stand.
  DataGrid1->resizeColumnsToContents();
  const int tutar =
      DataGrid1->fontMetrics().horizontalAdvance(QStringLiteral("99.999.999,99")) + 12;
  const QVector<csv::Sutun> sutunlar = musteridurum::Sutunlar();
  for (int i = 0; i < sutunlar.size(); ++i)
    if (sutunlar[i].bicim == csv::Sutun::Bicim::Sayi && sutunlar[i].basamak == 2)
      DataGrid1->setColumnWidth(i, std::max(DataGrid1->columnWidth(i), tutar));
}

void frmMusteriDurum::Form_Unload() {
  DataGrid1->Bagla(nullptr);
  rsDurum = db::Kayitlar();
}

void frmMusteriDurum::DataGrid1_HeadClick(int sutun) {
  DataGrid1->sortByColumn(sutun, Qt::DescendingOrder);
}

void frmMusteriDurum::cmdCsv_Click() {
  csv::IzgaraKaydet(DataGrid1, QStringLiteral("musteri-cari.csv"), this);
}

namespace reports {
void MusteriDurumEkraniKaydet() {
  ekran::Kaydet(QStringLiteral("frmMusteriDurum"), [] { return new frmMusteriDurum; });
}
}  // namespace reports
