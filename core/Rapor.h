#pragma once
// Banded reports over a record set: layout in code, paging, preview window,
// printing and PDF.
//
// A report is five bands stacked on each page: the report header (first page
// only), the page header (every page), one detail band per row of the record
// set, the report footer (after the last row) and the page footer (at the
// foot of every page). Positions and sizes are millimetres from the top left
// of the band; the page is a QPageLayout (A4 portrait by default).
//
//   rapor::Rapor r;
//   r.baslik = "Cek Raporu";                       // caption of the window
//   r.kayitlar = rsCek;                            // a copy: what is shown now
//   r.sayfaBasligi.Ekle(rapor::Yazi::Sabit("Tutar", {160, 0, 30, 5}).Sag().Kalin());
//   r.detay.Ekle(rapor::Yazi::Alan("Vadesi", {130, 0, 25, 5}));  // dates as dd.MM.yyyy
//   r.detay.Ekle(rapor::Yazi::Alan("Meblag", {160, 0, 30, 5}).Bicim("#,##0.00").Sag());
//   r.raporAltligi.Ekle(rapor::Yazi::Toplam("Meblag", {160, 2, 30, 5}).Bicim("#,##0.00").Sag());
//   r.raporAltligi.Ekle(rapor::Cizgi::Yatay(10, 1, 180));
//   r.sayfaAltligi.Ekle(rapor::Yazi::SayfaNumarasi({160, 0, 30, 5}).Sag());
//   rapor::Goster(r);                              // preview, print, save as PDF
//   rapor::PdfYaz(r, "/tmp/cek.pdf");              // or straight to a file
//
// Fields read the current row: in the detail band its own row, in the report
// header the first row, in the page header the first row of the page, in the
// footers the last row printed. Aggregates (Toplam, Adet, EnBuyuk, EnKucuk)
// add the stored, unrounded values and cover: all rows in the report header
// and footer; the rows of earlier pages in the page header; the rows up to the
// end of the page in the page footer; the rows up to the current one in the
// detail band (a running sum).

#include <QPageLayout>
#include <QRectF>
#include <QString>
#include <QVariant>
#include <QVector>
#include <QWidget>
#include <functional>
#include <memory>

#include "db/Kayitlar.h"

class QAction;
class QLabel;
class QPagedPaintDevice;
class QPrintPreviewWidget;
class QPrinter;
class QToolBar;

namespace rapor {

// The family every report uses: it has all the Turkish letters and ships with
// the system, so previews and PDFs look the same on any machine.
inline constexpr const char* kYaziTipi = "DejaVu Sans";

// What a computed label sees.
struct Baglam {
  const db::Kayitlar& kayitlar;
  int satir;        // the current row as fields read it; -1 when there are no rows
  int sayfa;        // 1-based
  int sayfaSayisi;  // known before the first page is drawn
};
using Hesaplayici = std::function<QVariant(const Baglam&)>;

// A label: fixed text, a field of the current row, a computed value or an
// aggregate, drawn in its rectangle with its font, alignment and format.
struct Yazi {
  enum class Tur { Sabit, Alan, Hesap, Toplam, Adet, EnBuyuk, EnKucuk };

  static Yazi Sabit(const QString& metin, const QRectF& yer);
  static Yazi Alan(const QString& alan, const QRectF& yer);
  static Yazi Hesap(Hesaplayici hesap, const QRectF& yer);
  static Yazi Toplam(const QString& alan, const QRectF& yer);
  // The rows where the field isn't Null; with an empty name, all rows.
  static Yazi Adet(const QString& alan, const QRectF& yer);
  static Yazi EnBuyuk(const QString& alan, const QRectF& yer);
  static Yazi EnKucuk(const QString& alan, const QRectF& yer);
  // "Sayfa: " n "/" N
  static Yazi SayfaNumarasi(const QRectF& yer);

  Yazi& Bicim(const QString& b);
  Yazi& Sag();
  Yazi& Orta();
  Yazi& Punto(double p);
  Yazi& Kalin(bool k = true);
  Yazi& Italik(bool i = true);
  // Long text breaks into lines inside the rectangle instead of being cut.
  Yazi& Kaydir(bool k = true);

  Tur tur = Tur::Sabit;
  QString metin;  // the fixed text, or the field's name
  Hesaplayici hesap;
  QRectF yer;
  QString bicim;  // see Bicimle()
  Qt::Alignment hiza = Qt::AlignLeft | Qt::AlignVCenter;
  double punto = 9;
  bool kalin = false;
  bool italik = false;
  bool kaydir = false;
};

// A rule from yer.topLeft() to yer.bottomRight(), or the outline of yer.
struct Cizgi {
  static Cizgi Yatay(double x, double y, double uzunluk) { return {{x, y, uzunluk, 0}, false}; }
  static Cizgi Dikey(double x, double y, double uzunluk) { return {{x, y, 0, uzunluk}, false}; }
  static Cizgi Kutu(const QRectF& yer) { return {yer, true}; }

  QRectF yer;
  bool kutu = false;
  double kalinlik = 0.25;  // mm
};

struct Bant {
  Bant& Ekle(const Yazi& y);
  Bant& Ekle(const Cizgi& c);
  // The set height, or (when 0) the lowest edge of what the band holds.
  double Yukseklik() const;

  double yukseklik = 0;  // mm
  QVector<Yazi> yazilar;
  QVector<Cizgi> cizgiler;
};

struct Rapor {
  QString baslik;  // caption of the preview window, default name of its PDF
  QPageLayout sayfaDuzeni{QPageSize(QPageSize::A4), QPageLayout::Portrait,
                          QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter};
  db::Kayitlar kayitlar;
  Bant raporBasligi, sayfaBasligi, detay, raporAltligi, sayfaAltligi;
};

// Text of a value by a format in the style of the old report layouts:
// - number formats: "0" a digit always shown, "#" a digit shown when needed,
//   "," digit groups, "." the decimal sign; text around them stays. The
//   Turkish way of writing the same ("#.##0,00") is understood too. Without a
//   "0" before the decimal sign a zero integer part is left out: ",50".
//   Output follows the regional separators: 1.234,50. Halves round away from
//   zero.
// - date formats ("dd.MM.yyyy", anything with d, M or y): for dates and for
//   the ISO texts in which the database keeps them.
// - no format: dates as dd.MM.yyyy, numbers plainly with the regional
//   decimal sign, texts as they are. Null is always empty.
QString Bicimle(const QVariant& deger, const QString& bicim);

// Pages the report takes on its own page layout.
int SayfaSayisi(const Rapor& r);

// Draws every page on the device, whose current page layout decides the
// paging (a printer keeps the paper the user chose). False when the device
// can't be opened.
bool Ciz(const Rapor& r, QPagedPaintDevice& aygit);

// Writes the report to a PDF file on its page layout. False when the file
// can't be written.
bool PdfYaz(const Rapor& r, const QString& yol);

// The preview window: zoom, pages, printing on any printer the system knows,
// saving as PDF.
class RaporPenceresi : public QWidget {
  Q_OBJECT
 public:
  explicit RaporPenceresi(Rapor r, QWidget* ust = nullptr);
  ~RaporPenceresi() override;

  const Rapor& rapor() const { return rapor_; }

  QToolBar* aracCubugu;
  QAction *cmdYakinlastir, *cmdUzaklastir, *cmdSayfaSigdir, *cmdGenislikSigdir;
  QAction *cmdOnceki, *cmdSonraki, *cmdYazdir, *cmdPdf, *cmdKapat;
  QLabel* lblSayfa;
  QPrintPreviewWidget* onizleme;

  void cmdYazdir_Click();
  void cmdPdf_Click();
  // Saves as PDF without asking for the name; tells the user when it fails.
  bool PdfKaydet(const QString& yol);

 private:
  void SayfaGoster();
  void SayfayaGit(int sayfa);

  Rapor rapor_;
  std::unique_ptr<QPrinter> yazici_;
};

// Opens the preview as a window of its own, deleted when closed.
RaporPenceresi* Goster(const Rapor& r, QWidget* ust = nullptr);

}  // namespace rapor
