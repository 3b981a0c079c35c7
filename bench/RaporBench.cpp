// The collection and report screens on the synthetic office (100,000
// customers, 300,000 contracts, 2,000,000 lines): the status grid, the lists
// over a year's range, marking a paper bounced, and the status grid's and the
// collection list's plain statements run by the sqlite3 shell on the same
// file, for the ratio. Each figure is the median of several runs.
//
//   cmake --preset bench && cmake --build --preset bench --target RaporBench
//   QT_QPA_PLATFORM=offscreen build/bench/bench/RaporBench [file.db]
//
// With a file that exists, its data is used as it stands (marking a paper
// bounced sets it right again afterwards); otherwise the data is generated
// into it, or into a temporary file.

#include <sys/resource.h>

#include <QApplication>
#include <QDate>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTimer>
#include <cstdio>

#include "bench/Olcum.h"
#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "db/Sema.h"
#include "reports/Gelir.h"
#include "reports/Kesideci.h"
#include "reports/MusteriBilgi.h"
#include "reports/MusteriDurum.h"
#include "reports/Tahsilat.h"
#include "reports/frmMusteriDurum.h"
#include "reports/frmTahsilat.h"

using namespace Qt::StringLiterals;

namespace {

using olcum::Olc;
using olcum::Yaz;

constexpr int kMusteri = bench::kOfisMusteri;
constexpr int kSozlesme = bench::kOfisSozlesme;
constexpr qint64 kSatir = bench::kOfisSatir;

qint64 Sayi(const char* sql) {
  return Genel::Baglanti.Deger(QString::fromLatin1(sql)).toLongLong();
}

// The status grid's statement as it would be written for the shell: one join
// through every line, "now" and the day difference in the shell's own terms.
const char* const kDuzDurum =
    "SELECT M.MusteriNo, CASE WHEN M.HukukiDurum = 1 THEN ifnull(M.Adi,'') || ' ' || "
    "ifnull(M.Soyadi,'') ELSE ifnull(M.Soyadi,'') || ' ' || ifnull(M.Adi,'') || ' ' || "
    "ifnull(M.BabaAdi,'') END AS Musteri, count(SD.GirisNo), sum(SD.Meblag), "
    "sum(CASE WHEN SD.Odenmesi <= date('now') THEN SD.Meblag ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi <= date('now') THEN 1 ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi > date('now') THEN SD.Meblag ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi > date('now') THEN 1 ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END), "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END), avg(SD.Meblag), "
    "avg(julianday(SD.Vadesi) - julianday(S.Tarih)) "
    "FROM (Musteri M INNER JOIN Sozlesme S ON M.MusteriNo = S.MusteriNo) "
    "INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID "
    "GROUP BY M.MusteriNo ORDER BY 2;";

// The status grid's statement before its plan was changed, for the figure
// before and after in one run: the lines joined to the contracts and added up
// per customer in one step, through the contracts' index on the customer.
const char* const kOncekiDurum =
    "SELECT M.MusteriNo, CASE WHEN M.HukukiDurum = 1 THEN COALESCE(M.Adi, '') || ' ' || "
    "COALESCE(M.Soyadi, '') ELSE COALESCE(M.Soyadi, '') || ' ' || COALESCE(M.Adi, '') || ' ' || "
    "COALESCE(M.BabaAdi, '') END AS Musteri, T.* FROM Musteri M INNER JOIN ("
    "SELECT S.MusteriNo AS No, count(SD.GirisNo) AS ToplamBelge, sum(SD.Meblag) AS ToplamTutar, "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN SD.Meblag ELSE 0 END) AS Tahsil, "
    "sum(CASE WHEN SD.Odenmesi <= ? THEN 1 ELSE 0 END) AS TahsilAdet, "
    "sum(CASE WHEN SD.Odenmesi > ? THEN SD.Meblag ELSE 0 END) AS Risk, "
    "sum(CASE WHEN SD.Odenmesi > ? THEN 1 ELSE 0 END) AS RiskAdet, "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN SD.Meblag ELSE 0 END) AS Batak, "
    "sum(CASE WHEN SD.Odenmesi IS NULL THEN 1 ELSE 0 END) AS BatakAdet, "
    "avg(SD.Meblag) AS OrtalamaMeblag, avg(GunFarki(S.Tarih, SD.Vadesi)) AS OrtalamaGun "
    "FROM Sozlesme S INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID "
    "GROUP BY S.MusteriNo) T ON M.MusteriNo = T.No "
    "ORDER BY Musteri COLLATE TURKCE, M.MusteriNo";

// Wall and CPU milliseconds the shell takes for a statement on the file
// (output thrown away); -1 without a shell.
olcum::Olcum Kabuk(const QString& yol, const QString& sql) {
  const QString sqlite3 = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
  if (sqlite3.isEmpty()) return {-1, -1, -1};
  const auto cocukCpu = [] {
    rusage r{};
    getrusage(RUSAGE_CHILDREN, &r);
    return (r.ru_utime.tv_sec + r.ru_stime.tv_sec) * 1e3 +
           (r.ru_utime.tv_usec + r.ru_stime.tv_usec) / 1e3;
  };
  const double c0 = cocukCpu();
  QProcess p;
  QElapsedTimer t;
  t.start();
  p.start(sqlite3, {QStringLiteral("-readonly"), yol});
  p.write(sql.toUtf8());
  p.closeWriteChannel();
  p.waitForFinished(-1);
  const double duvar = t.nsecsElapsed() / 1e6;
  return {duvar, cocukCpu() - c0, duvar};
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QTemporaryDir dizin;
  qputenv("VELMORA_AYAR", dizin.path().toUtf8());
  mesaj::CevaplayiciKur([](const mesaj::Kayit& k) {
    std::printf("beklenmeyen mesaj: %s\n", k.metin.toUtf8().constData());
    return mesaj::Dugme::Evet;
  });
  Genel::IniDosya = dizin.filePath(QStringLiteral("velmora.ini"));
  Genel::AyarOku();
  Genel::BinlikAyirici = QStringLiteral(".");
  ekran::BekleAnlik(true);

  const QString yol =
      argc > 1 ? QString::fromLocal8Bit(argv[1]) : dizin.filePath(QStringLiteral("velmora.db"));
  QElapsedTimer t;
  t.start();
  if (QFileInfo::exists(yol)) {
    Genel::Baglanti.Ac(yol);
  } else {
    Genel::Baglanti.Olustur(yol);
    bench::Uretec uretec(Genel::Baglanti);
    uretec.Musteriler(kMusteri);
    bench::SozlesmeUretec(uretec).Sozlesmeler(kSozlesme, kSatir);
  }
  std::printf("%lld müşteri, %lld sözleşme, %lld satır: %lld ms\n",
              Sayi("SELECT count(*) FROM Musteri"), Sayi("SELECT count(*) FROM Sozlesme"),
              Sayi("SELECT count(*) FROM SozlesmeDetay"), t.elapsed());
  // The reports' indexes and the customers' summary, as the program adds them
  // when it opens a file made before them (nothing to do on a file that has
  // them).
  t.restart();
  db::RaporlariHazirla(Genel::Baglanti);
  std::printf("rapor indeksleri ve müşteri özeti: %lld ms\n", t.elapsed());
  // The newest year on the books.
  const QDate son = QDate::fromString(
      Genel::Baglanti.Deger(QStringLiteral("SELECT max(Vadesi) FROM SozlesmeDetay")).toString(),
      Qt::ISODate);
  const QString bas = Genel::TarihYaz(son.addYears(-1)), bit = Genel::TarihYaz(son);
  olcum::Baslik();

  {
    const QString gun = QDate::currentDate().toString(Qt::ISODate);
    Yaz("Müşteri cari raporu: önceki sorgu", Olc(1, [&](int) {
          Genel::Baglanti.Sorgu(QString::fromLatin1(kOncekiDurum), {gun, gun, gun, gun});
        }));
  }
  const olcum::Olcum durum = Olc(3, [](int) { musteridurum::Oku(QDate::currentDate()); });
  Yaz("Müşteri cari raporu: sorgu", durum, 1000);
  {
    // "Now" a year before the newest maturity: every paper paid after it is
    // at risk and is read from the lines.
    const QString yarisi = son.addYears(-1).toString(Qt::ISODate);
    std::printf("  (%lld belge riskte)\n",
                Genel::Baglanti.Deger(u"SELECT count(*) FROM SozlesmeDetay WHERE Odenmesi > ?"_s,
                                      {yarisi})
                    .toLongLong());
    Yaz("Müşteri cari raporu: bir yılı riskte", Olc(3, [&](int) {
          musteridurum::Oku(son.addYears(-1));
        }), 1000);
  }
  Yaz("Müşteri cari raporu: ekran açılışı",
      Olc(3,
          [](int) {
            frmMusteriDurum f;
            f.Yukle();
            olcum::Isle();
          }),
      1000);

  tahsilat::Secim secim;
  secim.bas = bas;
  secim.son = bit;
  const tahsilat::Kosul k = tahsilat::KosulKur(secim);
  const olcum::Olcum liste = Olc(3, [&](int) {
    tahsilat::ToplamlariOku(k);
    Genel::Baglanti.Sorgu(tahsilat::ListeSorgusu(k), k.deger);
  });
  Yaz("Tahsilat: bir yıllık liste ve toplamlar", liste, 1000);

  {
    frmTahsilat f;
    f.Yukle();
    f.txtTarih[0]->setText(bas);
    f.txtTarih[1]->setText(bit);
    f.cmdListe_Click();
    std::printf("  (listede %d satır)\n", f.rsCek.RecordCount());
    // A paper in the middle of the list, as the clerk picks it.
    f.grdCek->selectRow(f.rsCek.RecordCount() / 2);
    const qint64 giris = f.rsCek.Fields(QStringLiteral("GirisNo")).toLongLong();
    const QVariant eski = f.rsCek.Fields(QStringLiteral("Odenmesi"));
    Yaz("  önceki yol: yaz ve bütün listeyi oku", Olc(3, [&](int) {
          tahsilat::DurumYaz(giris, QVariant());
          f.rsCek.Requery();
          f.grdCek->Model()->Yenile();
        }));
    tahsilat::DurumYaz(giris, eski);
    f.rsCek.Requery();
    f.grdCek->Model()->Yenile();
    // The clerk's way: "Durum Değiştir", "Ödenmedi" in the dialog, the write
    // and the list read again; then set right in the same way (untimed).
    const auto cevapla = [&](const QString& tarih) {
      f.grdCek->selectRow(f.rsCek.RecordCount() / 2);
      QTimer::singleShot(0, [tarih] {
        if (auto* d = qobject_cast<Dialog*>(QApplication::activeModalWidget())) {
          if (tarih.isEmpty()) {
            d->cmdOdenmedi->click();
          } else {
            d->txtTarih->setText(tarih);
            d->OKButton->click();
          }
        }
      });
      f.cmdCiftTik->click();
    };
    const QString odendi = db::NullMu(eski) ? bit : Genel::TarihEkran(eski);
    Yaz("Tahsilat: karşılıksız işaretle ve yeniden oku",
        Olc(
            5, [&](int) { cevapla(odendi); }, [&](int) { cevapla(QString()); }),
        50);
    if (db::NullMu(Genel::Baglanti.Deger(
            QStringLiteral("SELECT Odenmesi FROM SozlesmeDetay WHERE GirisNo = ?"), {giris})) ==
        db::NullMu(eski))
      std::printf("  (kağıt zaten eski durumunda)\n");
    tahsilat::DurumYaz(giris, eski);
  }

  Yaz("Müşteri bilgi: bir yıl, bütün müşteriler",
      Olc(3,
          [&](int) {
            musteribilgi::Secim s;
            s.bas = bas;
            s.son = bit;
            s.bugun = QDate::currentDate();
            const musteribilgi::Sorgu q = musteribilgi::SorguKur(s);
            musteribilgi::Ozetle(Genel::Baglanti.Sorgu(q.metin, q.deger));
          }),
      1000);
  Yaz("Gelir raporu: bir yıl",
      Olc(3,
          [&](int) {
            const gelir::Sorgu q = gelir::SorguKur(bas, bit);
            gelir::Topla(Genel::Baglanti.Sorgu(q.metin, q.deger));
          }),
      1000);
  // The drawer of the newest year's most papers: a common name, so many of
  // them, the heaviest case of the screen.
  const QString kesideci =
      Genel::Baglanti
          .Deger(QStringLiteral("SELECT Kesideci FROM SozlesmeDetay WHERE Vadesi >= ? AND "
                                "Kesideci IS NOT NULL GROUP BY Kesideci ORDER BY count(*) DESC "
                                "LIMIT 1"),
                 {son.addYears(-1).toString(Qt::ISODate)})
          .toString();
  int belge = 0;
  Yaz("Keşideci: bir keşidecinin belgeleri, bir yıl",
      Olc(3,
          [&](int) {
            const kesideci::Sorgu q = kesideci::BelgeSorgusu({kesideci}, bas, bit);
            belge = Genel::Baglanti.Sorgu(q.metin, q.deger).RecordCount();
          }),
      1000);
  std::printf("  (%s: %d belge)\n", kesideci.toUtf8().constData(), belge);
  Yaz("Riskli keşideciler", Olc(3, [](int) {
        const kesideci::Sorgu q = kesideci::RiskSorgusu(QDate::currentDate());
        Genel::Baglanti.Sorgu(q.metin, q.deger);
      }));

  // The shell on the plain statements, for the ratio.
  const olcum::Olcum kabukDurum = Kabuk(yol, QString::fromLatin1(kDuzDurum));
  QString liste71 = tahsilat::ListeSorgusu(k);
  for (const QVariant& v : k.deger)
    liste71.replace(liste71.indexOf(QLatin1Char('?')), 1,
                    QLatin1Char('\'') + v.toString() + QLatin1Char('\''));
  const olcum::Olcum kabukListe = Kabuk(yol, liste71 + QLatin1Char(';'));
  std::printf("\n");
  Yaz("sqlite3 kabuğu: cari rapor", kabukDurum);
  Yaz("sqlite3 kabuğu: tahsilat listesi", kabukListe);
  // Above 1: the program is faster than the shell on the same file.
  std::printf(
      "oran (kabuk / program): cari rapor duvar %.2f, cpu %.2f; "
      "tahsilat listesi duvar %.2f, cpu %.2f\n",
      kabukDurum.duvar / durum.duvar, kabukDurum.cpu / durum.cpu, kabukListe.duvar / liste.duvar,
      kabukListe.cpu / liste.cpu);
  return 0;
}
