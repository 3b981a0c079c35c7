// The preview window of every report.

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QKeySequence>
#include <QLabel>
#include <QPrintDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>
#include <QVBoxLayout>

#include "core/Mesaj.h"
#include "core/Rapor.h"

namespace rapor {

namespace {
constexpr double kYakinlik = 1.25;  // one zoom step
}

RaporPenceresi::RaporPenceresi(Rapor r, QWidget* ust)
    : QWidget(ust, Qt::Window),
      rapor_(std::move(r)),
      yazici_(std::make_unique<QPrinter>(QPrinter::HighResolution)) {
  setWindowTitle(rapor_.baslik);
  yazici_->setPageLayout(rapor_.sayfaDuzeni);
  yazici_->setDocName(rapor_.baslik);

  onizleme = new QPrintPreviewWidget(yazici_.get(), this);
  connect(onizleme, &QPrintPreviewWidget::paintRequested, this,
          [this](QPrinter* y) { Ciz(rapor_, *y); });
  connect(onizleme, &QPrintPreviewWidget::previewChanged, this, &RaporPenceresi::SayfaGoster);

  aracCubugu = new QToolBar(this);
  aracCubugu->setToolButtonStyle(Qt::ToolButtonTextOnly);
  auto ekle = [this](const QString& metin, const QKeySequence& tus, auto isle) {
    QAction* a = aracCubugu->addAction(metin, this, isle);
    a->setShortcut(tus);
    return a;
  };
  cmdYazdir = ekle(QStringLiteral("Yazdır"), QKeySequence::Print, [this] { cmdYazdir_Click(); });
  cmdPdf =
      ekle(QStringLiteral("PDF olarak kaydet"), QKeySequence::Save, [this] { cmdPdf_Click(); });
  aracCubugu->addSeparator();
  cmdYakinlastir = ekle(QStringLiteral("Yakınlaştır"), QKeySequence::ZoomIn,
                        [this] { onizleme->zoomIn(kYakinlik); });
  cmdUzaklastir = ekle(QStringLiteral("Uzaklaştır"), QKeySequence::ZoomOut,
                       [this] { onizleme->zoomOut(kYakinlik); });
  cmdSayfaSigdir =
      ekle(QStringLiteral("Tam sayfa"), QKeySequence(), [this] { onizleme->fitInView(); });
  cmdGenislikSigdir =
      ekle(QStringLiteral("Sayfa genişliği"), QKeySequence(), [this] { onizleme->fitToWidth(); });
  aracCubugu->addSeparator();
  cmdOnceki = ekle(QStringLiteral("Önceki sayfa"), QKeySequence(Qt::Key_PageUp),
                   [this] { SayfayaGit(onizleme->currentPage() - 1); });
  lblSayfa = new QLabel(this);
  lblSayfa->setContentsMargins(6, 0, 6, 0);
  aracCubugu->addWidget(lblSayfa);
  cmdSonraki = ekle(QStringLiteral("Sonraki sayfa"), QKeySequence(Qt::Key_PageDown),
                    [this] { SayfayaGit(onizleme->currentPage() + 1); });
  aracCubugu->addSeparator();
  cmdKapat = ekle(QStringLiteral("Kapat"), QKeySequence(Qt::Key_Escape), [this] { close(); });

  auto* duzen = new QVBoxLayout(this);
  duzen->setContentsMargins(0, 0, 0, 0);
  duzen->setSpacing(0);
  duzen->addWidget(aracCubugu);
  duzen->addWidget(onizleme, 1);
  resize(900, 700);
}

// The preview draws on our printer until its last moment.
RaporPenceresi::~RaporPenceresi() { delete onizleme; }

void RaporPenceresi::SayfaGoster() {
  const int sayfa = onizleme->currentPage();
  const int sayi = onizleme->pageCount();
  lblSayfa->setText(QStringLiteral("Sayfa: %1/%2").arg(sayfa).arg(sayi));
  cmdOnceki->setEnabled(sayfa > 1);
  cmdSonraki->setEnabled(sayfa < sayi);
}

void RaporPenceresi::SayfayaGit(int sayfa) {
  onizleme->setCurrentPage(sayfa);
  SayfaGoster();  // the preview only tells when it scrolls
}

void RaporPenceresi::cmdYazdir_Click() {
  QPrintDialog pencere(yazici_.get(), this);
  pencere.setWindowTitle(QStringLiteral("Yazdır"));
  if (pencere.exec() != QDialog::Accepted) return;
  if (!Ciz(rapor_, *yazici_))
    mesaj::Kritik(QStringLiteral("Rapor yazıcıya gönderilemedi."), QStringLiteral("Yazdır"));
  onizleme->updatePreview();  // the paper may have changed
}

void RaporPenceresi::cmdPdf_Click() {
  const QString ad = rapor_.baslik.isEmpty() ? QStringLiteral("Rapor") : rapor_.baslik;
  QString yol = QFileDialog::getSaveFileName(this, QStringLiteral("PDF olarak kaydet"),
                                             QDir::home().filePath(ad + QStringLiteral(".pdf")),
                                             QStringLiteral("PDF (*.pdf)"));
  if (yol.isEmpty()) return;
  if (!yol.endsWith(QStringLiteral(".pdf"), Qt::CaseInsensitive)) yol += QStringLiteral(".pdf");
  PdfKaydet(yol);
}

bool RaporPenceresi::PdfKaydet(const QString& yol) {
  if (PdfYaz(rapor_, yol)) return true;
  mesaj::Kritik(QStringLiteral("PDF dosyası yazılamadı:\n") + QDir::toNativeSeparators(yol),
                QStringLiteral("PDF olarak kaydet"));
  return false;
}

RaporPenceresi* Goster(const Rapor& r, QWidget* ust) {
  auto* p = new RaporPenceresi(r, ust);
  p->setAttribute(Qt::WA_DeleteOnClose);
  p->show();
  return p;
}

}  // namespace rapor
