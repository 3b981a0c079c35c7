#pragma once
// What the report tests share: rows put straight into the tables, a screen
// opened as the menu opens it, what its grid shows and what it printed.

#include <QApplication>
#include <QDate>
#include <QHeaderView>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <memory>
#include <optional>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Izgara.h"
#include "core/Rapor.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace test {

// A day relative to today, as the database keeps it and as a screen writes it.
inline QString Gun(int fark) { return QDate::currentDate().addDays(fark).toString(Qt::ISODate); }
inline QString Ekran(int fark) { return Genel::TarihYaz(QDate::currentDate().addDays(fark)); }

inline void Calistir(const QString& sql, const QVariantList& deger = {}) {
  Genel::Baglanti.Calistir(sql, deger);
}
// Rows into a table, "Tablo(Alan, ...)", written as SQL values; @N stands
// for the day N days from today.
inline void Ekle(const QString& tablo, QString satirlar) {
  static const QRegularExpression gun(u"@(-?\\d+)"_s);
  for (QRegularExpressionMatch m; (m = gun.match(satirlar)).hasMatch();)
    satirlar.replace(m.capturedStart(), m.capturedLength(),
                     '\'' + Gun(m.captured(1).toInt()) + '\'');
  Calistir(u"INSERT INTO "_s + tablo + u" VALUES "_s + satirlar);
}

// A grid's rows as shown, the cells joined by `ara` (only `sutunlar` if given).
inline QStringList Satirlar(const ekran::IzgaraModeli* m, const QString& ara = u"|"_s,
                            QList<int> sutunlar = {}) {
  if (sutunlar.isEmpty())
    for (int c = 0; c < m->columnCount(); ++c) sutunlar << c;
  QStringList l;
  for (int r = 0; r < m->rowCount(); ++r) {
    QStringList s;
    for (int c : sutunlar) s << m->Metin(r, c);
    l << s.join(ara);
  }
  return l;
}

// A click in the middle of a column head.
inline void BaslikTikla(QTableView* v, int sutun) {
  QHeaderView* b = v->horizontalHeader();
  QTest::mouseClick(
      b->viewport(), Qt::LeftButton, {},
      QPoint(b->sectionViewportPosition(sutun) + b->sectionSize(sutun) / 2, b->height() / 2));
  Isle();
}

// The texts of boxes and labels, joined by "|".
template <class... K>
QString Metinler(K*... kutular) {
  return QStringList{kutular->text()...}.join('|');
}

// The report window a screen opened, printed to PDF and read back by
// pdftotext (a null string when it is missing); the window goes.
inline QString Basilan(QString* baslik = nullptr) {
  rapor::RaporPenceresi* p = nullptr;
  for (QWidget* w : QApplication::topLevelWidgets())
    if (auto* r = qobject_cast<rapor::RaporPenceresi*>(w)) p = r;
  if (!p) return u"rapor penceresi yok"_s;
  if (baslik) *baslik = p->rapor().baslik;
  QTemporaryDir d;
  const QString yol = d.filePath(u"r.pdf"_s), arac = QStandardPaths::findExecutable(u"pdftotext"_s);
  const bool yazildi = rapor::PdfYaz(p->rapor(), yol);
  delete p;
  if (!yazildi || arac.isEmpty()) return yazildi ? QString() : u"PDF yazılamadı"_s;
  QProcess pdf;
  pdf.start(arac, {u"-layout"_s, u"-enc"_s, u"UTF-8"_s, yol, u"-"_s});
  EXPECT_TRUE(pdf.waitForFinished(30000));
  return QString::fromUtf8(pdf.readAllStandardOutput()).simplified();
}

// A report screen, opened as the menu opens it and closed after the test.
template <class F>
class RaporEkrani : public Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    ekran::BekleAnlik(true);
  }
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }
  F* Ac() {
    ekran_ = std::make_unique<F>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    Isle();
    return ekran_.get();
  }
  std::unique_ptr<F> ekran_;
};

}  // namespace test
