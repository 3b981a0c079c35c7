#include "invoice/FaturaOrtak.h"

#include <QEvent>
#include <QPointer>
#include <QTimer>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Kutu.h"
#include "core/Mesaj.h"
#include "core/Yazdirma.h"
#include "db/Kayitlar.h"
#include "invoice/FaturaHesap.h"

namespace invoice {

namespace {

class UcHarfSecici : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::FocusIn) {
      QPointer<QLineEdit> kutu = qobject_cast<QLineEdit*>(o);
      // After the click that gave the focus has placed the cursor.
      QTimer::singleShot(0, kutu, [kutu] {
        if (kutu && kutu->hasFocus()) kutu->setSelection(0, 3);
      });
    }
    return false;
  }
};

}  // namespace

QLineEdit* TutarKutusu(const QString& ad, bool saltOkunur) {
  QLineEdit* k = ekran::Kutu(ad);
  k->setAlignment(Qt::AlignRight);
  if (saltOkunur) ekran::SaltOkunur(k, true);
  return k;
}

void IlkUcunuSec(QLineEdit* kutu) { kutu->installEventFilter(new UcHarfSecici(kutu)); }

void ParaAlani(QLineEdit* kutu) {
  ekran::AyrilirkenKontrol(kutu, [kutu] {
    double deger = 0;
    if (Genel::SayiOkuDene(kutu->text().trimmed(), deger)) {
      const QString yeni = Genel::SayiYaz(deger, 2);
      if (yeni != kutu->text()) kutu->setText(yeni);
    }
    return true;
  });
}

QPushButton* Dugme(const char* ad, const QString& yazi) {
  auto* d = new QPushButton(yazi);
  d->setObjectName(QString::fromLatin1(ad));
  d->setAutoDefault(false);
  return d;
}

QLabel* Satir(QGridLayout* g, const QString& baslik, QWidget* alan, int sutun) {
  const int satir = g->rowCount();
  auto* l = new QLabel(baslik);
  g->addWidget(l, satir, sutun);
  g->addWidget(alan, satir, sutun + 1);
  return l;
}

FaturaEkrani::FaturaEkrani(const char* ad, const QString& baslik, bool tutarKilitli, QWidget* ust)
    : QDialog(ust) {
  setObjectName(QString::fromLatin1(ad));
  setWindowTitle(baslik);
  txtFaturaSeri = ekran::Kutu(QStringLiteral("txtFaturaSeri"), 2);
  txtFaturaSeri->setMaximumWidth(40);
  txtFaturaNo = ekran::Kutu(QStringLiteral("txtFaturaNo"));
  txtFaturaNo->setMaximumWidth(110);
  const auto etiket = [](const char* ad) {
    auto* l = new QLabel;
    l->setObjectName(QString::fromLatin1(ad));
    return l;
  };
  lblMusteri = etiket("lblMusteri");
  lblAdres = etiket("lblAdres");
  lblVergi = etiket("lblVergi");
  txtTutar = TutarKutusu(QStringLiteral("txtTutar"), tutarKilitli);
  txtBMOran = ekran::Kutu(QStringLiteral("txtBMOran"), 0, false);
  txtBMOran->setMaximumWidth(60);
  IlkUcunuSec(txtBMOran);
  txtBMVergisi = TutarKutusu(QStringLiteral("txtBMVergisi"), true);
  txtMasraf = TutarKutusu(QStringLiteral("txtMasraf"), false);
  txtPul = TutarKutusu(QStringLiteral("txtPul"), false);
  txtToplamOdeme = TutarKutusu(QStringLiteral("txtToplamOdeme"), true);
  txtGenelToplam = TutarKutusu(QStringLiteral("txtGenelToplam"), true);
  lblYazi = etiket("lblYazi");
  lblYazi->setWordWrap(true);
  txtMusteriNo = new QLineEdit(this);
  txtMusteriNo->setObjectName(QStringLiteral("txtMusteriNo"));
  txtMusteriNo->hide();
  cmdFatNo = Dugme("cmdFatNo", QStringLiteral("Fatura No Bul"));
  cmdSave = Dugme("cmdSave", QStringLiteral("Kaydet"));
  cmdYazdir = Dugme("cmdYazdir", QStringLiteral("Yazdır"));
  cmdExit = Dugme("cmdExit", QStringLiteral("Çıkış"));
  ParaAlani(txtMasraf);
  ekran::KontrolTetiklemez(cmdExit);
}

QHBoxLayout* FaturaEkrani::NoSatiri() {
  auto* no = new QHBoxLayout;
  no->addWidget(txtFaturaSeri);
  no->addWidget(txtFaturaNo);
  no->addWidget(cmdFatNo);
  no->addStretch();
  return no;
}

QVBoxLayout* FaturaEkrani::MusteriSatirlari() {
  auto* musteri = new QVBoxLayout;
  for (QLabel* l : {lblMusteri, lblAdres, lblVergi}) musteri->addWidget(l);
  return musteri;
}

QGridLayout* FaturaEkrani::Rakamlar(const QString& pulBasligi, QLineEdit* sozlesmeToplami) {
  auto* rakam = new QGridLayout;
  Satir(rakam, QStringLiteral("Tutar:"), txtTutar);
  const int oran = rakam->rowCount();
  rakam->addWidget(new QLabel(QStringLiteral("B.M. Vergi Oranı:")), oran, 0);
  auto* vergi = new QHBoxLayout;
  vergi->addWidget(txtBMOran);
  vergi->addWidget(txtBMVergisi, 1);
  rakam->addLayout(vergi, oran, 1);
  Satir(rakam, QStringLiteral("Tahsil Masrafı:"), txtMasraf);
  lblPul = Satir(rakam, pulBasligi, txtPul);
  Satir(rakam, QStringLiteral("Toplam Müşteri Ödemesi:"), txtToplamOdeme);
  if (sozlesmeToplami) Satir(rakam, QStringLiteral("Sözleşme Toplamı:"), sozlesmeToplami);
  Satir(rakam, QStringLiteral("Genel Toplam:"), txtGenelToplam);
  return rakam;
}

void FaturaEkrani::Yerlestir(QLayout* ust, QGridLayout* rakam,
                             std::initializer_list<QPushButton*> komutlar) {
  auto* yazi = new QHBoxLayout;
  yazi->addWidget(new QLabel(QStringLiteral("Yalnız")));
  yazi->addWidget(lblYazi, 1);
  auto* dugmeler = new QHBoxLayout;
  for (QPushButton* d : komutlar) dugmeler->addWidget(d);
  dugmeler->addStretch();
  dugmeler->addWidget(cmdExit);
  auto* duzen = new QVBoxLayout(this);
  duzen->addLayout(ust);
  duzen->addLayout(rakam);
  duzen->addLayout(yazi);
  duzen->addLayout(dugmeler);
}

void FaturaEkrani::MusteriGoster() {
  bool sayi = false;
  const qint64 no = txtMusteriNo->text().trimmed().toLongLong(&sayi);
  if (!sayi) return;
  const db::Kayitlar rs =
      Genel::Baglanti.Sorgu(QStringLiteral("SELECT * FROM Musteri WHERE MusteriNo = ?"), {no});
  if (!rs.SatirVar()) return;
  const auto m = [&rs](const char* ad) { return rs.Metin(QString::fromLatin1(ad)); };
  lblMusteri->setText(m("Soyadi") + QLatin1Char(' ') + m("Adi") + QLatin1Char(' ') + m("Babaadi"));
  lblAdres->setText(m("Adres") + QStringLiteral("  ") + m("Ilce") + QLatin1Char('/') + m("Il_AD"));
  lblVergi->setText(m("VergiDairesi") + QLatin1Char('-') + m("VergiKimlikNo"));
}

void FaturaEkrani::SatiriYazdir(const std::variant<baski::Kayit, baski::Red>& satir,
                                fatura::Bicim bicim) {
  if (const auto* red = std::get_if<baski::Red>(&satir)) {
    ekran::RedGoster(*red);
    return;
  }
  if (mesaj::Goster(QString::fromUtf16(fatura::kYaziciSorusu),
                    QString::fromUtf16(fatura::kYaziciBaslik), mesaj::Tur::Soru,
                    mesaj::Dugmeler::TamamIptal, this) != mesaj::Dugme::Tamam)
    return;
  const baski::Sonuc akis =
      fatura::FaturaAkisi(bicim, std::get<baski::Kayit>(satir), fatura::YaziAyari::Genelden());
  ekran::Yazdir(Genel::PrinterFatura, akis);
}

bool FaturaEkrani::txtFaturaSeri_Validate() {
  if (txtFaturaSeri->text().trimmed().isEmpty()) txtFaturaSeri->setText(Genel::FaturaSeri);
  return true;
}

void FaturaEkrani::NoGoster(const std::optional<qint64>& no) {
  if (!no) {
    mesaj::Kritik(QString::fromUtf16(fatura::kNoYok), QString::fromUtf16(fatura::kNoYokBaslik));
    txtFaturaNo->setFocus();
    return;
  }
  txtFaturaSeri->setText(Genel::FaturaSeri);
  txtFaturaNo->setText(QString::number(*no));
}

void FaturaEkrani::Hesapla() {
  if (!yuklendi_ || hesapliyor_) return;
  hesapliyor_ = true;
  const fatura::Sonuc s =
      fatura::Hesapla({txtTutar->text(), txtBMOran->text(), txtMasraf->text(), txtPul->text()});
  if (s.MasrafDoldur) txtMasraf->setText(QString::fromUtf16(fatura::kBosMasraf));
  txtBMVergisi->setText(s.BMVergisi);
  txtToplamOdeme->setText(s.ToplamOdeme);
  txtGenelToplam->setText(s.GenelToplam);
  lblYazi->setText(s.Yazi);
  hesapliyor_ = false;
}

fatura::Satir FaturaEkrani::Satiri(bool ekFatura) const {
  fatura::Satir s;
  s.FaturaSeri = txtFaturaSeri->text();
  s.FaturaNo = txtFaturaNo->text();
  s.MusteriNo = txtMusteriNo->text();
  s.Tutar = txtTutar->text();
  s.BMOran = txtBMOran->text();
  s.BMVergisi = txtBMVergisi->text();
  s.Masraf = txtMasraf->text();
  s.ToplamOdeme = txtToplamOdeme->text();
  s.Pul = txtPul->text();
  s.GenelToplam = txtGenelToplam->text();
  s.Yaziyla = fatura::YaziylaMetni(lblYazi->text(), ekFatura);
  return s;
}

bool FaturaEkrani::NoGirildi() {
  if (!txtFaturaNo->text().isEmpty()) return true;
  mesaj::Kritik(QString::fromUtf16(fatura::kNoGir), QStringLiteral("Hata"));
  txtFaturaNo->setFocus();
  return false;
}

}  // namespace invoice
