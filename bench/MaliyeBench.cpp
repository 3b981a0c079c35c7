// The Ministry transfer of twelve months on the synthetic office (100,000
// customers, 300,000 contracts, about 2,000,000 lines): the whole run, file
// written and checked against the schema, beside the bare sqlite3 shell
// running the main query alone on the same file. The target is a ratio of
// 1 or less. The peak memory of runs of 1, 6 and 12 months, each in a
// process of its own, shows that it does not grow with the period.
//
//   cmake --preset bench && cmake --build --preset bench --target MaliyeBench
//   build/bench/bench/MaliyeBench [file.db] [year]
//
// With a file that exists, its data is used as it stands; otherwise the data
// is generated into it, or into a temporary file.

#include <sys/resource.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "bench/Olcum.h"
#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "core/Genel.h"
#include "db/Imlec.h"
#include "db/Kayitlar.h"
#include "transfer/MaliyeAktarim.h"
#include "transfer/MaliyeSema.h"

namespace {

constexpr int kMusteri = bench::kOfisMusteri;
constexpr int kSozlesme = bench::kOfisSozlesme;
constexpr qint64 kSatir = bench::kOfisSatir;

// The peak resident memory of this program since it started. Not getrusage:
// its peak survives the exec and would be the parent's.
long TepeBellekKb() {
  QFile f(QStringLiteral("/proc/self/status"));
  if (!f.open(QIODevice::ReadOnly)) return -1;
  for (const QByteArray& satir : f.readAll().split('\n'))
    if (satir.startsWith("VmHWM:")) return satir.mid(6).trimmed().split(' ').value(0).toLong();
  return -1;
}

double CocukCpuMs() {
  rusage r{};
  getrusage(RUSAGE_CHILDREN, &r);
  return (r.ru_utime.tv_sec + r.ru_stime.tv_sec) * 1e3 +
         (r.ru_utime.tv_usec + r.ru_stime.tv_usec) / 1e3;
}

QString Tirnak(const QDate& d) {
  return QLatin1Char('\'') + d.toString(QStringLiteral("yyyy-MM-dd")) + QLatin1Char('\'');
}

// The main query as the procedure words it, literally: the joins in their
// written order, the values written in, as the shell takes it.
QString KabukSorgusu(const QDate& bas, const QDate& son, double limit) {
  const QString b = Tirnak(bas), s = Tirnak(son), l = QString::number(limit, 'f', 0);
  const QString sutunlar = QStringLiteral(
      " SELECT M.VergiKimlikNo, M.MusteriNo, M.Soyadi, M.Adi, M.BabaAdi, M.Adres, M.Ilce,"
      " M.PostaKod, M.Il_Ad, M.IlKod, M.TCKimlikNo, M.VekilDurum, M.VekilVergiKimlik,"
      " M.VekilSoyadi, M.VekilAdi, M.Uyruk, M.HukukiDurum");
  return sutunlar +
         QStringLiteral(
             " , 1 as TIP , S.Doviz , S.Tarih, S.Tutar * 1 as Tutar"
             " , S.FaizTutar * 1 as FaizTutar, S.SozlesmeSeri, S.SozlesmeNo"
             " FROM (Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo)"
             " Where S.Tarih Between %1 AND %2 AND S.Tutar >= %3 Union")
             .arg(b, s, l) +
         sutunlar +
         QStringLiteral(
             " , 2 as TIP , SD.Doviz , SD.Odenmesi as Tarih, SD.Meblag * 1 as Tutar, 0, ' ', ' '"
             " FROM (Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo)"
             " INNER JOIN SozlesmeDetay SD ON (S.SozlesmeID = SD.SozlesmeID)"
             " Where Odenmesi Between %1 AND %2 AND SD.Meblag >= %3"
             " ORDER BY M.MusteriNo, TIP, S.Tarih;")
             .arg(b, s, l);
}

// The rows of a query in their order, as one fingerprint; only the columns
// `sutunlar` when there are any.
QByteArray Parmakizi(const QString& sql, const QVariantList& deger = {}, QList<int> sutunlar = {}) {
  QCryptographicHash h(QCryptographicHash::Sha1);
  db::Imlec rs(Genel::Baglanti, sql, deger);
  if (sutunlar.isEmpty())
    for (int c = 0; c < rs.AlanSayisi(); ++c) sutunlar << c;
  while (rs.Ilerle())
    for (const int c : sutunlar) {
      h.addData(rs.Fields(c).toString().toUtf8());
      h.addData("\x1f");
    }
  return h.result().toHex();
}

aktarim::Istek Donem(int yil, int aylar, const QString& klasor) {
  aktarim::Istek istek;
  istek.bas = aktarim::DonemBasi(1, yil);
  istek.son = aktarim::DonemSonu(aylar, yil);
  istek.limit = 10000;
  istek.bugun = QDate::currentDate();
  istek.klasor = klasor;
  return istek;
}

// One run of `aylar` months in this process: the rows, the peak memory before
// and after it.
// With `kume`, the rows are also loaded whole into a record set, as the run
// held them before it read them one at a time.
int BellekOlc(int yil, int aylar, bool kume) {
  QTemporaryDir gecici;
  const long once = TepeBellekKb();
  const aktarim::Istek istek = Donem(yil, aylar, gecici.path());
  db::Kayitlar rs;
  if (kume) rs = aktarim::KontrolSatirlari(Genel::Baglanti, istek);
  const aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, istek);
  std::printf("%d %ld %ld\n", s.yapilan, once, TepeBellekKb());
  return 0;
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
  if (argc > 4 && qstrcmp(argv[3], "--bellek") == 0)
    return BellekOlc(yil, std::atoi(argv[4]), argc > 5 && qstrcmp(argv[5], "kume") == 0);

  const aktarim::Istek istek = Donem(yil, 12, gecici.path());
  const QString sql = KabukSorgusu(istek.bas, istek.son, istek.limit);
  const QString dosya = Genel::Baglanti.Yol();

  // The procedure's queries give the rows of the literal one, in its order.
  const QByteArray kabukta = Parmakizi(sql.chopped(1));
  const bool ayni = Parmakizi(aktarim::AnaSorgu(), aktarim::AnaSorguDegerleri(istek)) == kabukta &&
                    Parmakizi(aktarim::AkisSorgusu(), aktarim::AnaSorguDegerleri(istek)) ==
                        Parmakizi(sql.chopped(1), {}, {1, 17, 18, 19, 20, 21, 22, 23});

  int satir = 0;
  const olcum::Olcum aktarim = olcum::Olc(3, nullptr, [&](int) {
    const aktarim::Sonuc s = aktarim::Hazirla(Genel::Baglanti, istek);
    satir = s.yapilan;
    if (!s.semaHatasi.isEmpty()) std::printf("şema: %s\n", qPrintable(s.semaHatasi));
  });
  // The shell's time is its own process's: its CPU comes from the children's
  // account.
  std::vector<double> kabukCpu;
  const olcum::Olcum kabukDuvar = olcum::Olc(3, nullptr, [&](int) {
    const double once = CocukCpuMs();
    QProcess p;
    p.setStandardOutputFile(QProcess::nullDevice());
    p.start(QStringLiteral("sqlite3"), {dosya, sql});
    p.waitForFinished(-1);
    if (p.exitCode() != 0) std::printf("sqlite3: %s\n", p.readAllStandardError().constData());
    kabukCpu.push_back(CocukCpuMs() - once);
  });
  std::sort(kabukCpu.begin(), kabukCpu.end());
  const olcum::Olcum kabuk{kabukDuvar.duvar, kabukCpu[kabukCpu.size() / 2], kabukDuvar.enCok};

  // What the run is made of: its query read through, and the schema
  // check of the written file.
  const olcum::Olcum sorgu = olcum::Olc(3, nullptr, [&](int) {
    db::Imlec rs(Genel::Baglanti, aktarim::AkisSorgusu(), aktarim::AnaSorguDegerleri(istek));
    while (rs.Ilerle()) {
    }
  });
  const olcum::Olcum sema = olcum::Olc(3, nullptr, [&](int) {
    aktarim::SemayaUygunMu(QDir(istek.klasor).filePath(QString::fromLatin1(aktarim::kDosyaAdi)),
                           aktarim::VaryantSec(yil));
  });
  std::printf("%d yılı, %d satır; sorgu satırları kabuğunkilerle %s\n", yil, satir,
              ayni ? "aynı" : "FARKLI");
  olcum::Baslik();
  olcum::Yaz("aktarım (dosya + şema)", aktarim);
  olcum::Yaz("sqlite3 kabuğu, ana sorgu", kabuk);
  olcum::Yaz("  akış sorgusu, imleçle okunur", sorgu);
  olcum::Yaz("  şema denetimi", sema);
  std::printf("oran: duvar %.2f, cpu %.2f\n", aktarim.duvar / kabuk.duvar, aktarim.cpu / kabuk.cpu);

  // Peak memory by the length of the period, each run in a fresh process.
  // Beside it the same with the rows held in a record set, as before. The
  // engine's page cache (64 MB at most) and its sort of the rows come in both.
  for (const char* kip : {"", "kume"})
    for (const int aylar : {1, 6, 12}) {
      QProcess p;
      p.start(QCoreApplication::applicationFilePath(),
              {dosya, QString::number(yil), QStringLiteral("--bellek"), QString::number(aylar),
               QString::fromLatin1(kip)});
      p.waitForFinished(-1);
      const QList<QByteArray> c = p.readAllStandardOutput().trimmed().split(' ');
      if (c.size() == 3)
        std::printf("%2d ay%s: %6s satır, tepe bellek %s kB (aktarımdan önce %s kB)\n", aylar,
                    *kip ? " kümeyle" : "", c[0].constData(), c[2].constData(), c[1].constData());
      else
        std::printf("%2d ay: ölçülemedi\n", aylar);
    }
  return 0;
}
