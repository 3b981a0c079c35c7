// The bordro of one contract on a database of 300,000 contracts with
// 2,000,000 lines: its data (the statement and the figures of every line) and
// its layout, for random contracts and for a full one of 22 lines, then the
// preview window on top. Each figure is the median of several runs, in
// wall-clock and CPU time (the CPU time is what to compare when other work
// shares the machine).
//
//   cmake -S . -B build/bench-bordro -G Ninja -DCMAKE_BUILD_TYPE=Release
//         -DVELMORA_TESTS=OFF -DVELMORA_BENCH=ON
//   cmake --build build/bench-bordro --target BordroBench
//   QT_QPA_PLATFORM=offscreen build/bench-bordro/bench/BordroBench [contracts] [lines]

#include <time.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "contract/rptBordro.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "db/Kayitlar.h"

#include "bench/Olcum.h"

namespace {

using olcum::Isle;
using olcum::Olc;
using olcum::Olcum;
using olcum::Yaz;


contract::BordroEtiketleri Etiketler() {
  contract::BordroEtiketleri e;
  e.Musteri = QStringLiteral("Yılmaz Ali");
  e.FaizOran = QStringLiteral("4,5");
  e.Seri = QStringLiteral("AB");
  e.SozlesmeNo = QStringLiteral("1");
  e.Tarih = QStringLiteral("01.01.2005");
  e.OrtGun = 45;
  return e;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const int sozlesmeSayisi = argc > 1 ? std::max(1, std::atoi(argv[1])) : 300000;
  const qint64 satirSayisi = argc > 2 ? std::max<qint64>(sozlesmeSayisi, std::atoll(argv[2]))
                                      : qint64(sozlesmeSayisi) * 20 / 3;
  QTemporaryDir dizin;
  mesaj::CevaplayiciKur([](const mesaj::Kayit& k) {
    std::printf("beklenmeyen mesaj: %s\n", k.metin.toUtf8().constData());
    return mesaj::Dugme::Evet;
  });
  Genel::BinlikAyirici = QStringLiteral(".");

  QElapsedTimer t;
  t.start();
  Genel::Baglanti.Olustur(dizin.filePath(QStringLiteral("velmora.db")));
  bench::Uretec uretec(Genel::Baglanti);
  uretec.Musteriler(100000);
  const bench::SozlesmeUretec::Ozet ozet =
      bench::SozlesmeUretec(uretec).Sozlesmeler(sozlesmeSayisi, satirSayisi);
  std::printf("%lld sözleşme, %lld satır, %lld fatura üretildi: %lld ms\n\n", ozet.sozlesme,
              ozet.satir, ozet.fatura, t.elapsed());

  // The statement's plan: the contract by its key, the lines by their index.
  db::Kayitlar plan = Genel::Baglanti.Sorgu(
      QStringLiteral("EXPLAIN QUERY PLAN ") + QString::fromLatin1(contract::kBordroSorgusu), {1});
  for (plan.MoveFirst(); !plan.Eof(); plan.MoveNext())
    std::printf("  plan: %s\n", plan.Metin(QStringLiteral("detail")).toUtf8().constData());

  // Random contracts, drawn from a fixed seed, and the first one with 22 lines.
  db::Kayitlar hepsi = Genel::Baglanti.Sorgu(QStringLiteral("SELECT SozlesmeID FROM Sozlesme"));
  std::vector<qint64> rastgele;
  QRandomGenerator r(2005);
  for (int i = 0; i < 41; ++i)
    rastgele.push_back(hepsi.Deger(int(r.bounded(hepsi.RecordCount())), 0).toLongLong());
  const qint64 dolu =
      Genel::Baglanti
          .Deger(QStringLiteral("SELECT SozlesmeID FROM SozlesmeDetay GROUP BY SozlesmeID "
                                "ORDER BY count(*) DESC, SozlesmeID LIMIT 1"))
          .toLongLong();
  const int doluSatir = contract::BordroVerisi(dolu).satirlar.size();

  // The first bordro after the file was opened, with the engine's cache empty.
  Genel::Baglanti.Kapat();
  Genel::Baglanti.YenidenAc();
  olcum::Baslik();
  Yaz("açılıştan sonra ilk bordro (veri + düzen)",
        Olc(1, [&](int) { contract::rptBordro(contract::BordroVerisi(rastgele[0]), Etiketler()); }),
        100);

  const contract::BordroEtiketleri e = Etiketler();
  Yaz(
      "rastgele sözleşmenin bordrosu (veri + düzen)",
      Olc(41,
          [&](int i) { contract::rptBordro(contract::BordroVerisi(rastgele[std::size_t(i)]), e); }),
      100);
  Yaz("BordroVerisi", Olc(41, [&](int i) { contract::BordroVerisi(rastgele[std::size_t(i)]); }));
  std::printf("  (%d satırlı sözleşme %lld)\n", doluSatir, dolu);
  Yaz("dolu sözleşmenin bordrosu (veri + düzen)",
        Olc(41, [&](int) { contract::rptBordro(contract::BordroVerisi(dolu), e); }), 100);
  {
    const contract::Bordro veri = contract::BordroVerisi(dolu);
    Yaz("rptBordro", Olc(41, [&](int) { contract::rptBordro(veri, e); }));
    // The figures must be those the contract was saved with.
    const double saklanan = Genel::Baglanti
                                .Deger(QStringLiteral("SELECT FaizTutar FROM Sozlesme "
                                                      "WHERE SozlesmeID = ?"),
                                       {dolu})
                                .toDouble();
    std::printf("  (faiz toplamı %.6f, saklanan FaizTutar %.6f)\n", veri.ToplamFaiz, saklanan);
  }
  Yaz("önizleme penceresi, sayfa çizilmiş", Olc(9, [&](int) {
          rapor::RaporPenceresi* p = contract::BordroGoster(dolu, e);
          Isle();
          p->close();
          QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        }));
  Genel::Baglanti.Kapat();
  return 0;
}
