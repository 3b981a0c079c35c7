#pragma once
// What the contract screen tests share: customers and contracts put straight
// into the tables, the screen opened in either mode, and a clerk's hands:
// typing into a field, picking from a list, pressing a button or a key.

#include <QApplication>
#include <QKeyEvent>
#include <memory>

#include "contract/frmSozles.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "tests/support/Ortam.h"

namespace test {

class SozlesEkran : public Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    Genel::SozlesmeSeri = QStringLiteral("AB");
    ekran::BekleAnlik(true);
  }

  // A natural person: MusteriQry names him "Adi Soyadi".
  static void Musteri(qint64 no, const QString& soyadi, const QString& adi) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum, Adres, Ilce, "
                       "Il_Ad) VALUES (?, ?, ?, 1, 'Atatürk Cad. 5', 'Çankaya', 'Ankara')"),
        {no, soyadi, adi});
  }

  static void Sozlesme(qint32 id, qint32 no, qint64 musteri, const QString& tarih,
                       const QVariant& faizOran = 5, const QVariant& ilaveGun = 3,
                       const QVariant& hesapla = 1) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, "
                       "Tarih, Tutar, FaizOran, GecikmeOran, IskontoOran, FaizTutar, Gun, "
                       "ilaveGun, Doviz, Hesapla) "
                       "VALUES (?, 'AB', ?, ?, ?, 0, ?, 2, 1, 0, '0', ?, 'TRL', ?)"),
        {id, no, musteri, tarih, faizOran, ilaveGun, hesapla});
  }

  static void Satir(qint32 id, const QString& vade, double meblag, int gun = 0,
                    const QString& cekNo = QStringLiteral("100"),
                    const QString& kesideci = QStringLiteral("MEHMET KAYA")) {
    Genel::Baglanti.Calistir(
        QStringLiteral("INSERT INTO SozlesmeDetay(SozlesmeID, SozlesmeSeri, SozlesmeNo, Tip, "
                       "Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, Odenmesi, Gun, Meblag) "
                       "SELECT ?, 'AB', SozlesmeNo, 'Çek', ?, 'ZİRAAT', 'KIZILAY', '1', ?, ?, ?, "
                       "?, ? FROM Sozlesme WHERE SozlesmeID = ?"),
        {id, kesideci, cekNo, vade, vade, gun, meblag, id});
  }

  static std::unique_ptr<frmSozles> Ac(bool musteriBazinda) {
    Genel::MusteriBazinda = musteriBazinda;
    auto f = std::make_unique<frmSozles>();
    f->show();
    QApplication::setActiveWindow(f.get());
    f->activateWindow();
    f->Form_Load();
    Isle();
    return f;
  }

  // Into a field as a clerk types: the focus goes there first, so that the
  // field left behind runs its check. A null text only visits the field.
  static void Yaz(QWidget* alan, const QString& metin) {
    alan->setFocus();
    Isle();
    if (metin.isNull()) return;
    if (auto* kutu = qobject_cast<QLineEdit*>(alan)) kutu->setText(metin);
    if (auto* liste = qobject_cast<QComboBox*>(alan)) liste->setEditText(metin);
  }

  // Picks an entry of a list that takes no typing.
  static void Sec(QComboBox* liste, const QString& metin) {
    liste->setFocus();
    Isle();
    liste->setCurrentIndex(liste->findText(metin));
    emit liste->activated(liste->currentIndex());
  }

  // A click: the focus moves to the button first, and a field whose check
  // fails keeps it, and the click is lost.
  static bool Bas(QPushButton* dugme) {
    if (!dugme->isEnabled() || !dugme->isVisible()) return false;
    dugme->setFocus();
    Isle();
    if (QApplication::focusWidget() != dugme) return false;
    dugme->click();
    Isle();
    return true;
  }

  static void Tus(QWidget* w, int tus) {
    QKeyEvent basti(QEvent::KeyPress, tus, Qt::NoModifier);
    QKeyEvent birakti(QEvent::KeyRelease, tus, Qt::NoModifier);
    QApplication::sendEvent(w, &basti);
    QApplication::sendEvent(w, &birakti);
  }

  struct Kalem {
    QString tip = QStringLiteral("Çek");
    QString kesideci = QStringLiteral("MEHMET KAYA");
    QString banka = QStringLiteral("ZİRAAT"), sube = QStringLiteral("KIZILAY"),
            hesapNo = QStringLiteral("12345"), cekNo = QStringLiteral("A-1001");
    QString vade, gun = QStringLiteral("0"), meblag;
  };

  // Types one line into the entry and presses cmdDetayEkle. Fields that a
  // note disables are skipped, and a null drawer is left as the screen put it.
  static bool KalemGir(frmSozles* f, const Kalem& k) {
    Sec(f->cmbTip, k.tip);
    Yaz(f->txtKesideci, k.kesideci);
    for (auto [kutu, metin] :
         {std::pair{f->txtBanka, k.banka}, std::pair{f->txtSube, k.sube},
          std::pair{f->txtHesapNo, k.hesapNo}, std::pair{f->txtCekNo, k.cekNo}})
      if (kutu->isEnabled()) Yaz(kutu, metin);
    Yaz(f->txtVade, k.vade);
    Yaz(f->txtGun, k.gun);
    Yaz(f->txtMeblag, k.meblag);
    return Bas(f->cmdDetayEkle);
  }

  static db::Kayitlar Sorgu(const QString& sql, const QVariantList& deger = {}) {
    return Genel::Baglanti.Sorgu(sql, deger);
  }
  static QVariant Deger(const QString& sql, const QVariantList& deger = {}) {
    return Genel::Baglanti.Deger(sql, deger);
  }

  // The text the grid shows in a row under a field of the lines' set.
  static QString Hucre(frmSozles* f, int satir, const QString& alan) {
    return f->dGridDetay->Model()->Metin(satir, f->rsDetay.AlanNo(alan));
  }

  // The last message, "" when there was none.
  QString SonMesaj() const { return Mesajlar().isEmpty() ? QString() : Mesajlar().back().metin; }
};

}  // namespace test
