#include "core/YukseltKomut.h"

#include <QCoreApplication>
#include <QDate>
#include <QWidget>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Mesaj.h"
#include "db/Yedek.h"
#include "db/Yukselt.h"

namespace ekran {

namespace {

// The main window's title shows the step that runs; the old title comes back
// when the command ends, however it ends.
class BaslikIlerleme {
 public:
  BaslikIlerleme() : pencere_(AnaPencere()) {
    if (pencere_) eski_ = pencere_->windowTitle();
  }
  ~BaslikIlerleme() {
    if (pencere_) pencere_->setWindowTitle(eski_);
  }
  BaslikIlerleme(const BaslikIlerleme&) = delete;
  BaslikIlerleme& operator=(const BaslikIlerleme&) = delete;

  db::Ilerleme Bildirici() {
    return [this](const QString& baslik) {
      if (!pencere_) return;
      pencere_->setWindowTitle(baslik);
      // Repaint, but let no click start another command meanwhile.
      QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
  }

 private:
  QWidget* pencere_;
  QString eski_;
};

bool Emin(const QString& soru) {
  return mesaj::Goster(soru, QStringLiteral("DİKKAT"), mesaj::Tur::Soru,
                       mesaj::Dugmeler::EvetHayir) == mesaj::Dugme::Evet;
}

// The day's copy is taken before anything changes; without it nothing runs.
bool YedekAlindi() {
  return Korumali([] { db::TarihliYedekAl(Genel::Baglanti, QDate::currentDate()); });
}

void Tamamlandi() { mesaj::Bilgi(QStringLiteral("İşlem Tamamlandı"), QStringLiteral("DİKKAT")); }

void mnuVersiyon_Click() {
  if (db::VersiyonYukselt(Genel::Baglanti))
    mesaj::Goster(QStringLiteral("Versiyon Güncellemesi Yapıldı"));
  else
    mesaj::Bilgi(QStringLiteral("Versiyon Güncellemesi Daha Önce Çalışmış."),
                 QStringLiteral("BİLGİ"));
}

void mnuPulBedeli_Click() {
  if (!db::PulBedeliEksik(Genel::Baglanti)) {
    mesaj::Bilgi(QStringLiteral("Bu işlem daha önce yapılmış"), QStringLiteral("UYARI"));
    return;
  }
  if (!Emin(QStringLiteral("Pul Bedeli düzenlemesi yapılacaktır. Emin misiniz?"))) return;
  if (!YedekAlindi()) return;
  BaslikIlerleme baslik;
  db::PulBedeliEkle(Genel::Baglanti, baslik.Bildirici());
  Tamamlandi();
}

void mnuYTL_Click() {
  const bool yapi = db::YtlYapisiEksik(Genel::Baglanti);
  if (!Emin(QStringLiteral("YTL ile ilgili Tablo Dönüştürmeleri Çalışacaktır. Emin misiniz?")))
    return;
  if (!YedekAlindi()) return;
  BaslikIlerleme baslik;
  db::YtlDonustur(Genel::Baglanti, yapi, baslik.Bildirici());
  Tamamlandi();
}

}  // namespace

void YukseltmeKomutlariniKaydet() {
  KomutKaydet(QStringLiteral("mnuVersiyon"), mnuVersiyon_Click);
  KomutKaydet(QStringLiteral("mnuPulBedeli"), mnuPulBedeli_Click);
  KomutKaydet(QStringLiteral("mnuYTL"), mnuYTL_Click);
}

}  // namespace ekran
