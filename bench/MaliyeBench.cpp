// The Ministry transfer of twelve months on the synthetic office (100,000
// customers, 300,000 contracts, about 2,000,000 lines): the whole run, file
// written and checked against the schema, beside the bare sqlite3 shell
// running the main query alone on the same file. The target is a ratio of
// 1 or less; the peak memory is printed to show that it does not grow with
// the period.
//
//   cmake -S . -B build/bench-maliye -G Ninja -DCMAKE_BUILD_TYPE=Release
//         -DVELMORA_TESTS=OFF -DVELMORA_BENCH=ON
//   cmake --build build/bench-maliye --target MaliyeBench
//   build/bench-maliye/bench/MaliyeBench [file.db] [year]
//
// With a file that exists, its data is used as it stands; otherwise the data
// is generated into it, or into a temporary file.

#include <sys/resource.h>

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "bench/Olcum.h"
#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "core/Genel.h"
#include "transfer/MaliyeAktarim.h"
#include "transfer/MaliyeSema.h"

namespace {

constexpr int kMusteri = 100000;
constexpr int kSozlesme = 300000;
constexpr qint64 kSatir = 2000000;

long TepeBellekKb() {
  rusage r{};
  getrusage(RUSAGE_SELF, &r);
  return r.ru_maxrss;
}

// The main query with its values written in, as the shell takes it.
QString KabukSorgusu(const QDate& bas, const QDate& son, double limit) {
  const QString b =
      QLatin1Char('\'') + bas.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char('\'');
  const QString s =
      QLatin1Char('\'') + son.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char('\'');
  const QString l = QString::number(limit, 'f', 0);
  const QStringList degerler = {
      QStringLiteral("1"), QStringLiteral("1"), b, s, l, QStringLiteral("1"), b, s, l};
  QString sql = aktarim::AnaSorgu();
  for (const QString& d : degerler) sql.replace(sql.indexOf(QLatin1Char('?')), 1, d);
  return sql + QLatin1Char(';');
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication uyg(argc, argv);
  QTemporaryDir gecici;
  const QString yol =
      argc > 1 ? QString::fromLocal8Bit(argv[1]) : gecici.filePath(QStringLiteral("velmora.db"));
  Genel::BinlikAyirici = QStringLiteral(".");
  if (QFileInfo::exists(yol)) {
    Genel::Baglanti.Ac(yol);
  } else {
    std::printf("veri üretiliyor: %s\n", qPrintable(yol));
    Genel::Baglanti.Olustur(yol);
    Genel::Baglanti.Calistir(QStringLiteral("UPDATE Firma SET IlKod = 6"));
    bench::Uretec u(Genel::Baglanti);
    u.Musteriler(kMusteri);
    bench::SozlesmeUretec(u).Sozlesmeler(kSozlesme, kSatir);
  }
  const int yil = argc > 2
                      ? QString::fromLocal8Bit(argv[2]).toInt()
                      : Genel::Baglanti.Deger(QStringLiteral("SELECT MAX(Tarih) FROM Sozlesme"))
                                .toString()
                                .left(4)
                                .toInt() -
                            1;
  aktarim::Istek istek;
  istek.bas = aktarim::DonemBasi(1, yil);
  istek.son = aktarim::DonemSonu(12, yil);
  istek.limit = 10000;
  istek.bugun = QDate::currentDate();
  istek.klasor = gecici.path();
  const QString sql = KabukSorgusu(istek.bas, istek.son, istek.limit);
  const QString dosya = Genel::Baglanti.Yol();

  int satir = 0;
  const olcum::Olcum aktarim = olcum::Olc(3, nullptr, [&](int) {
    const aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, istek);
    satir = s.yapilan;
    if (!s.semaHatasi.isEmpty()) std::printf("şema: %s\n", qPrintable(s.semaHatasi));
  });
  const olcum::Olcum kabuk = olcum::Olc(3, nullptr, [&](int) {
    QProcess p;
    p.setStandardOutputFile(QProcess::nullDevice());
    p.start(QStringLiteral("sqlite3"), {dosya, sql});
    p.waitForFinished(-1);
    if (p.exitCode() != 0) std::printf("sqlite3: %s\n", p.readAllStandardError().constData());
  });
  // What the run is made of: the main query into a record set, and the
  // schema check of the written file.
  const QVariant b = istek.bas.toString(QStringLiteral("yyyy-MM-dd")),
                 e = istek.son.toString(QStringLiteral("yyyy-MM-dd"));
  const olcum::Olcum sorgu = olcum::Olc(3, nullptr, [&](int) {
    Genel::Baglanti.Sorgu(aktarim::AnaSorgu(),
                          {1.0, 1.0, b, e, istek.limit, 1.0, b, e, istek.limit});
  });
  const olcum::Olcum sema = olcum::Olc(3, nullptr, [&](int) {
    aktarim::SemayaUygunMu(QDir(istek.klasor).filePath(QString::fromLatin1(aktarim::kDosyaAdi)),
                           aktarim::VaryantSec(yil));
  });
  std::printf("%d yılı, %d satır\n", yil, satir);
  olcum::Yaz("aktarım (dosya + şema)", aktarim);
  olcum::Yaz("sqlite3 kabuğu, ana sorgu", kabuk);
  olcum::Yaz("  ana sorgu, kayıt kümesine", sorgu);
  olcum::Yaz("  şema denetimi", sema);
  std::printf("oran: %.2f\n", aktarim.duvar / kabuk.duvar);
  std::printf("tepe bellek: %ld kB\n", TepeBellekKb());
  return 0;
}
