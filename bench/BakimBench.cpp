// Maintenance on the synthetic office (100,000 customers, 300,000
// contracts, 2,000,000 lines): the day's backup, the compaction with its
// checks and renames, the restore of a backup, the integrity check alone and
// the rebuild of the customers' search keys. Each figure is the median of
// several runs on a working copy; the file given is never changed.
//
//   cmake --preset bench && cmake --build --preset bench --target BakimBench
//   QT_QPA_PLATFORM=offscreen build/bench/bench/BakimBench [file.db]
//
// With a file that exists, its data is used; otherwise the data is generated
// into it, or into a temporary file.

#include <QApplication>
#include <QDate>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>

#include "bench/Olcum.h"
#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "core/Bakim.h"
#include "core/Genel.h"
#include "db/Yedek.h"

namespace {

using olcum::Olc;
using olcum::Yaz;

constexpr int kMusteri = bench::kOfisMusteri;
constexpr int kSozlesme = bench::kOfisSozlesme;
constexpr qint64 kSatir = bench::kOfisSatir;

qint64 Sayi(const char* sql) {
  return Genel::Baglanti.Deger(QString::fromLatin1(sql)).toLongLong();
}

double Mb(const QString& yol) { return double(QFileInfo(yol).size()) / (1024.0 * 1024.0); }

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QTemporaryDir dizin;
  Genel::IniDosya = dizin.filePath(QStringLiteral("velmora.ini"));
  Genel::AyarOku();

  const QString kaynak =
      argc > 1 ? QString::fromLocal8Bit(argv[1]) : dizin.filePath(QStringLiteral("ofis.db"));
  QElapsedTimer t;
  t.start();
  if (!QFileInfo::exists(kaynak)) {
    Genel::Baglanti.Olustur(kaynak);
    bench::Uretec uretec(Genel::Baglanti);
    uretec.Musteriler(kMusteri);
    bench::SozlesmeUretec(uretec).Sozlesmeler(kSozlesme, kSatir);
    Genel::Baglanti.Kapat();
  }
  // The commands work on a copy beside which their backups go.
  const QString yol = dizin.filePath(QStringLiteral("velmora.db"));
  QFile::copy(kaynak, yol);
  Genel::Baglanti.Ac(yol);
  std::printf("%lld müşteri, %lld sözleşme, %lld satır, %.1f MB: %lld ms\n",
              Sayi("SELECT count(*) FROM Musteri"), Sayi("SELECT count(*) FROM Sozlesme"),
              Sayi("SELECT count(*) FROM SozlesmeDetay"), Mb(yol), t.elapsed());
  olcum::Baslik();

  const QDate gun = QDate::currentDate();
  Yaz("Günün yedeği (çevrimiçi kopya)",
      Olc(3, [&](int) { db::TarihliYedekAl(Genel::Baglanti, gun); }));
  const QString yedek = db::TarihliYedekYolu(yol, gun);
  Yaz("Bütünlük denetimi", Olc(3, [&](int) { db::YedekDenetle(yedek); }));
  Yaz("Veri tabanı bakımı", Olc(3, [&](int) { db::Sikistir(Genel::Baglanti, gun); }));
  std::printf("  bakımdan sonra %.1f MB\n", Mb(yol));
  // A backup of an older day, restored again and again.
  const QString eski = db::TarihliYedekAl(Genel::Baglanti, gun.addDays(-1));
  Yaz("Yedekten geri yükleme", Olc(3, [&](int) { db::GeriYukle(Genel::Baglanti, eski, gun); }));
  Yaz("Arama bilgisi güncelle", Olc(3, [](int) { bakim::AraGuncel(Genel::Baglanti); }));
  return 0;
}
