#pragma once
// What the contract tests share: customer 12 (ALİ YILMAZ), contracts and lines
// put straight into the tables, the screens opened, a clerk's hands, and what
// the screens, the tables and the printed pages hold, each as one text.

#include <QApplication>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <memory>

#include "contract/frmSozles.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Rapor.h"
#include "db/Kayitlar.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"
#include "tests/support/Satirlar.h"

namespace test {

// The text of a report's PDF, its lines with blanks made one; a null string
// when pdftotext is not installed.
inline QString PdfSatirlari(const rapor::Rapor& r) {
  QTemporaryDir dizin;
  const QString yol = dizin.filePath(QStringLiteral("rapor.pdf"));
  EXPECT_TRUE(rapor::PdfYaz(r, yol));
  const QString arac = QStandardPaths::findExecutable(QStringLiteral("pdftotext"));
  if (arac.isEmpty()) return QString();
  QProcess p;
  p.start(arac, {"-layout", "-enc", "UTF-8", yol, "-"});
  EXPECT_TRUE(p.waitForFinished(30000));
  EXPECT_EQ(p.exitCode(), 0) << p.readAllStandardError().toStdString();
  QStringList l;
  for (const QString& s : QString::fromUtf8(p.readAllStandardOutput()).split('\n'))
    if (!s.simplified().isEmpty()) l << s.simplified();
  return l.join('\n');
}

class SozlesEkran : public Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("AB");
    ekran::BekleAnlik(true);
    Musteri(12, "YILMAZ", "ALİ");
  }
  void TearDown() override {
    pencere_.reset();
    ekran_.reset();
    Genel::SadeceGoster = false;
    Ortam::TearDown();
  }

  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  // The rows of a query: a line each, the fields joined by "|", Null as "NULL".
  static QString Tablo(const QString& sql) { return test::KayitMetni(Genel::Baglanti.Sorgu(sql)); }
  // A natural person: MusteriQry names him "Adi Soyadi".
  static void Musteri(qint64 no, const QString& soyadi, const QString& adi) {
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum, Adres, Ilce, Il_Ad) "
        "VALUES (?, ?, ?, 1, 'Atatürk Cad. 5', 'Çankaya', 'Ankara')",
        {no, soyadi, adi});
  }
  static void Sozlesme(qint32 id, qint32 no, qint64 musteri, const QString& tarih,
                       const QVariant& faizOran = 5, const QVariant& ilaveGun = 3,
                       const QVariant& hesapla = 1) {
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih, Tutar, "
        "FaizOran, GecikmeOran, IskontoOran, FaizTutar, Gun, ilaveGun, Doviz, Hesapla) "
        "VALUES (?, 'AB', ?, ?, ?, 0, ?, 2, 1, 0, '0', ?, 'TRL', ?)",
        {id, no, musteri, tarih, faizOran, ilaveGun, hesapla});
  }
  static void Satir(qint32 id, const QString& vade, double meblag, int gun = 0,
                    const QString& cekNo = "100", const QString& kesideci = "MEHMET KAYA") {
    Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, Kesideci, "
        "Banka, Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag) SELECT ?, 'AB', "
        "SozlesmeNo, 'Çek', ?, 'ZİRAAT', 'KIZILAY', '1', ?, ?, ?, ?, ? FROM Sozlesme "
        "WHERE SozlesmeID = ?",
        {id, kesideci, cekNo, vade, vade, gun, meblag, id});
  }

  // A screen shown, loaded and active.
  template <class T>
  static T* Hazirla(T* f) {
    f->show();
    QApplication::setActiveWindow(f);
    f->Form_Load();
    Isle();
    return f;
  }
  // A screen in either mode, open until the test ends or another one is
  // opened here; the contract screen apart, as others open over it.
  template <class T>
  T* Pencere(bool musteriBazinda = false) {
    Genel::MusteriBazinda = musteriBazinda;
    pencere_.reset();
    pencere_.reset(new T);
    return Hazirla(static_cast<T*>(pencere_.get()));
  }
  std::unique_ptr<QWidget> pencere_;
  frmSozles* Ac(bool musteriBazinda) {
    Genel::MusteriBazinda = musteriBazinda;
    ekran_ = std::make_unique<frmSozles>();
    return Hazirla(ekran_.get());
  }
  std::unique_ptr<frmSozles> ekran_;

  // Into a field as a clerk types: the focus goes there first, so that the
  // field left behind runs its check; a disabled field takes nothing. A null
  // text only visits the field; a list that takes no typing looks the typed
  // letters up.
  static void Yaz(QWidget* alan, const QString& metin) {
    alan->setFocus();
    Isle();
    if (metin.isNull() || !alan->isEnabled()) return;
    if (auto* kutu = qobject_cast<QLineEdit*>(alan)) test::Yaz(kutu, metin);
    if (auto* liste = qobject_cast<QComboBox*>(alan)) {
      if (liste->isEditable())
        test::ListeyeYaz(liste, metin, Qt::Key_unknown);
      else
        test::Sec(liste, metin);
    }
    Isle();
  }
  // A click: the focus moves to the button first, and a field whose check
  // fails keeps it, and the click is lost.
  static bool Bas(QPushButton* dugme) {
    if (!dugme->isEnabled() || !dugme->isVisible()) return false;
    Yaz(dugme, QString());
    if (QApplication::focusWidget() != dugme) return false;
    dugme->click();
    Isle();
    return true;
  }
  // A press, and the messages it gave.
  QString Basinca(QPushButton* dugme) {
    EXPECT_TRUE(Bas(dugme)) << dugme->objectName().toStdString();
    return Kutular();
  }
  // A double click on a row of a lines grid, as the mouse gives it.
  template <class T>
  static void CiftTikla(T* f, int satir, const char* alan = "Meblag") {
    const QModelIndex i = f->dGridDetay->model()->index(satir, f->rsDetay.AlanNo(alan));
    QTest::mouseDClick(f->dGridDetay->viewport(), Qt::LeftButton, {},
                       f->dGridDetay->visualRect(i).center());
    Isle();
  }

  // The line entry, in its order, and a line typed into it; a null drawer is
  // left as the screen put it.
  static QList<QWidget*> GirisAlanlari(frmSozles* f) {
    return {f->cmbTip,   f->txtKesideci, f->txtBanka, f->txtSube,   f->txtHesapNo,
            f->txtCekNo, f->txtVade,     f->txtGun,   f->txtMeblag, f->cmbDoviz};
  }
  struct Kalem {
    QString tip = "Çek", kesideci = "MEHMET KAYA", banka = "ZİRAAT", sube = "KIZILAY",
            hesapNo = "12345", cekNo = "A-1001", vade = "04.04.2005", gun = "0", meblag = "100";
  };
  static bool KalemGir(frmSozles* f, const Kalem& k) {
    const QString metinler[] = {k.tip,   k.kesideci, k.banka, k.sube,  k.hesapNo,
                                k.cekNo, k.vade,     k.gun,   k.meblag};
    for (int i = 0; i < 9; ++i) Yaz(GirisAlanlari(f)[i], metinler[i]);
    return Bas(f->cmdDetayEkle);
  }

  // The stored lines in their order.
  static QString Satirlar() {
    return Tablo(
        "SELECT SozlesmeNo, Tip, Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, "
        "Odenmesi, Gun, Meblag FROM SozlesmeDetay ORDER BY GirisNo");
  }
  // What a lines grid shows under a field, row after row.
  template <class T>
  static QString Sutun(T* f, const QString& alan) {
    QStringList l;
    for (int i = 0; i < f->rsDetay.RecordCount(); ++i)
      l << f->dGridDetay->Model()->Metin(i, f->rsDetay.AlanNo(alan));
    return l.join('|');
  }
  // The texts of fields, lists and labels.
  static QString Metinler(const QList<QWidget*>& alanlar) {
    QStringList l;
    for (QWidget* w : alanlar)
      l << w->property(qobject_cast<QComboBox*>(w) ? "currentText" : "text").toString();
    return l.join('|');
  }
  // The contract's figures; the contract on show and its place in the set.
  static QString Rakamlar(frmSozles* f) {
    return Metinler({f->txtTutar, f->txtFaizTutar, f->txtOdenecek, f->lblFaizGun});
  }
  static QString Kayit(frmSozles* f) { return Metinler({f->txtSozlesmeNo, f->lblToplam}); }
  static QString Giris(frmSozles* f) { return Metinler(GirisAlanlari(f)); }
  // The commands the clerk can use, in a fixed order.
  static QString Etkin(frmSozles* f) {
    QStringList adlar;
    for (QWidget* w : std::initializer_list<QWidget*>{
             f->cmdNew, f->cmdEdit, f->cmdSave, f->cmdsil, f->cmdFind, f->cmdFatura, f->cmdYazdir,
             f->cmdBordro, f->cmdNext, f->cmdMusDetay, f->cmdDetayEkle, f->cmdCekDuzelt, f->cmbAd,
             f->txtTarih})
      if (w->isEnabled()) adlar << w->objectName();
    return adlar.join(' ');
  }
  // The texts of a report's page header.
  static QString Basliklar(const rapor::Rapor& r) {
    QStringList l;
    for (const rapor::Yazi& y : r.sayfaBasligi.yazilar) l << y.metin;
    return l.join('|');
  }
};

}  // namespace test
