#include "core/BakimKomut.h"

#include <QDate>
#include <QFileInfo>

#include "core/Bakim.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Koruma.h"
#include "core/Mesaj.h"
#include "core/frmGeriYukle.h"
#include "core/frmMain.h"
#include "db/Yedek.h"

namespace bakim {

namespace {

const QString kUyari = QStringLiteral("UYARI");

// Every screen goes before the connection under it is closed. False when the
// clerk said no or a screen could not close (told).
bool EkranlarKapansin(const QString& soru, const QString& baslik) {
  if (!soru.isEmpty() && !mesaj::EvetMi(soru, baslik)) return false;
  if (ekran::EkranlariKapat()) return true;
  mesaj::Uyari(QStringLiteral("Bir ekranda süren işlem bitmeden bu işlem yapılamaz. İşlem bitince "
                              "tekrar deneyin."),
               kUyari);
  return false;
}

}  // namespace

void mnuBakim_Click() {
  if (ekran::AcikEkranVar() &&
      !EkranlarKapansin(QStringLiteral("Veri tabanı bakımı için açık ekranlar kapatılacak. Devam "
                                       "edilsin mi?"),
                        QStringLiteral("BAKIM")))
    return;
  try {
    db::Sikistir(Genel::Baglanti, QDate::currentDate());
  } catch (const db::Hata&) {
    mesaj::Kritik(QString::fromUtf8(kProblem), kUyari);
    return;
  }
  mesaj::Bilgi(QStringLiteral("Veri Tabanı Bakımı Yapıldı"), QStringLiteral("BAKIM"));
}

void mnuAraGuncel_Click() {
  AraGuncel(Genel::Baglanti);
  mesaj::Goster(QStringLiteral("Müşterilerin Arama Bilgileri Güncellendi"));
}

void mnuAyarYedek_Click() {
  AyarYedekAl(Genel::Baglanti, Genel::VeriDizini());
  mesaj::Bilgi(QStringLiteral("Ayarların Yedeği Alındı"), QStringLiteral("TAMAM"));
}

bool GeriYukle(const QString& yedek, const QString& tarih) {
  const QString baslik = QStringLiteral("GERİ YÜKLE");
  try {
    db::YedekDenetle(yedek);
  } catch (const db::Hata& h) {
    mesaj::Kritik(QStringLiteral("Bu yedek geri yüklenemez; hiçbir şey değişmedi.\n") + h.metin(),
                  kUyari);
    return false;
  }
  if (!EkranlarKapansin(QStringLiteral("%1 tarihli yedek geri yüklenecek. Önce şimdiki veri "
                                       "tabanının yedeği alınacak ve açık ekranlar kapatılacak. "
                                       "Devam edilsin mi?")
                            .arg(tarih),
                        baslik))
    return false;
  QString onceki;
  try {
    onceki = db::GeriYukle(Genel::Baglanti, yedek, QDate::currentDate());
  } catch (const db::Hata& h) {
    mesaj::Kritik(QStringLiteral("Geri yükleme yapılamadı; veri tabanı değişmedi.\n") + h.metin(),
                  kUyari);
    return false;
  }
  // A copy from before the reports' summary gets it now.
  frmMain::RaporlariHazirla();
  if (auto* ana = qobject_cast<frmMain*>(ekran::AnaPencere())) ana->FirmaYenile();
  mesaj::Bilgi(QStringLiteral("Veri tabanı yedekten geri yüklendi. Önceki hali %1 dosyasında "
                              "saklandı.")
                   .arg(QFileInfo(onceki).fileName()),
               baslik);
  return true;
}

void KomutlariKaydet() {
  ekran::KomutKaydet(QStringLiteral("mnuBakim"), mnuBakim_Click);
  ekran::KomutKaydet(QStringLiteral("mnuAraGuncel"), mnuAraGuncel_Click);
  ekran::KomutKaydet(QStringLiteral("mnuAyarYedek"), mnuAyarYedek_Click);
  ekran::Kaydet(QStringLiteral("frmGeriYukle"), [] { return new frmGeriYukle; });
}

}  // namespace bakim
