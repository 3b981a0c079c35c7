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

#include <QApplication>
#include <QDate>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <cstdio>

#include "bench/Olcum.h"
#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "reports/Gelir.h"
#include "reports/Kesideci.h"
#include "reports/MusteriBilgi.h"
#include "reports/MusteriDurum.h"
#include "reports/Tahsilat.h"
#include "reports/frmMusteriDurum.h"
#include "reports/frmTahsilat.h"

namespace {

using olcum::Olc;
using olcum::Yaz;

constexpr int kMusteri = 100000;
constexpr int kSozlesme = 300000;
constexpr qint64 kSatir = 2000000;

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

// Milliseconds the shell takes for a statement on the file (output thrown
// away); -1 without a shell.
double Kabuk(const QString& yol, const QString& sql) {
  const QString sqlite3 = QStandardPaths::findExecutable(QStringLiteral("sqlite3"));
  if (sqlite3.isEmpty()) return -1;
  QProcess p;
  QElapsedTimer t;
  t.start();
  p.start(sqlite3, {QStringLiteral("-readonly"), yol});
  p.write(sql.toUtf8());
  p.closeWriteChannel();
  p.waitForFinished(-1);
  return t.nsecsElapsed() / 1e6;
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
  // The newest year on the books.
  const QDate son = QDate::fromString(
      Genel::Baglanti.Deger(QStringLiteral("SELECT max(Vadesi) FROM SozlesmeDetay")).toString(),
      Qt::ISODate);
  const QString bas = Genel::TarihYaz(son.addYears(-1)), bit = Genel::TarihYaz(son);
  olcum::Baslik();

  const olcum::Olcum durum = Olc(3, [](int) { musteridurum::Oku(QDate::currentDate()); });
  Yaz("Müşteri cari raporu: sorgu", durum, 1000);
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
    const qint64 giris = f.rsCek.Fields(QStringLiteral("GirisNo")).toLongLong();
    const QVariant eski = f.rsCek.Fields(QStringLiteral("Odenmesi"));
    Yaz("Tahsilat: karşılıksız işaretle ve yeniden oku",
        Olc(5,
            [&](int) {
              tahsilat::DurumYaz(giris, QVariant());
              f.rsCek.Requery();
            }),
        50);
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
  const QString kesideci =
      Genel::Baglanti.Deger(QStringLiteral("SELECT Kesideci FROM SozlesmeDetay LIMIT 1"))
          .toString();
  Yaz("Keşideci: bir keşidecinin belgeleri, bir yıl",
      Olc(3,
          [&](int) {
            const kesideci::Sorgu q = kesideci::BelgeSorgusu({kesideci}, bas, bit);
            Genel::Baglanti.Sorgu(q.metin, q.deger);
          }),
      1000);
  Yaz("Riskli keşideciler", Olc(3, [](int) {
        const kesideci::Sorgu q = kesideci::RiskSorgusu(QDate::currentDate());
        Genel::Baglanti.Sorgu(q.metin, q.deger);
      }));

  // The shell on the plain statements, for the ratio.
  const double kabukDurum = Kabuk(yol, QString::fromLatin1(kDuzDurum));
  QString liste71 = tahsilat::ListeSorgusu(k);
  for (const QVariant& v : k.deger)
    liste71.replace(liste71.indexOf(QLatin1Char('?')), 1,
                    QLatin1Char('\'') + v.toString() + QLatin1Char('\''));
  const double kabukListe = Kabuk(yol, liste71 + QLatin1Char(';'));
  std::printf(
      "\nsqlite3 kabuğu: cari rapor %.0f ms (oran %.1f), tahsilat listesi %.0f ms "
      "(oran %.1f)\n",
      kabukDurum, kabukDurum / durum.duvar, kabukListe, kabukListe / liste.duvar);
  return 0;
}
