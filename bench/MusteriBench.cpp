// The customer screens with 100,000 customers: opening the register with its
// lists, a name search that lists about 10,000 customers, and saving an edit.
// Each figure is the median of several runs, in wall-clock and CPU time (the
// CPU time is what to compare when other work shares the machine), with a
// breakdown of the steps inside.
//
//   cmake -S . -B build/bench-musteri -G Ninja -DCMAKE_BUILD_TYPE=Release
//         -DVELMORA_TESTS=OFF -DVELMORA_BENCH=ON
//   cmake --build build/bench-musteri --target MusteriBench
//   QT_QPA_PLATFORM=offscreen build/bench-musteri/bench/MusteriBench [customers]

#include <time.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

#include "bench/Olcum.h"
#include "bench/Uretec.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "db/Kayitlar.h"
#include "master/frmBul.h"
#include "master/frmMusteri.h"

namespace {

using olcum::Isle;
using olcum::Olc;
using olcum::Olcum;
using olcum::Yaz;

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  const int musteriSayisi = argc > 1 ? std::max(1, std::atoi(argv[1])) : 100000;
  QTemporaryDir dizin;
  int mesajSayisi = 0;
  mesaj::CevaplayiciKur([&mesajSayisi](const mesaj::Kayit& k) {
    ++mesajSayisi;
    std::printf("beklenmeyen mesaj: %s\n", k.metin.toUtf8().constData());
    return mesaj::Dugme::Evet;
  });
  Genel::BinlikAyirici = QStringLiteral(".");

  QElapsedTimer t;
  t.start();
  Genel::Baglanti.Olustur(dizin.filePath(QStringLiteral("velmora.db")));
  bench::Uretec uretec(Genel::Baglanti);
  const bench::Uretec::Aralik aralik = uretec.Musteriler(musteriSayisi);
  std::printf("%d müşteri üretildi (%lld..%lld): %lld ms\n\n", aralik.adet, aralik.ilk, aralik.son,
              t.elapsed());
  olcum::Baslik();

  // --- opening the register, both lists filled and the first customer shown
  master::MusteriEkranlariKaydet();
  const Olcum acilis = Olc(5, nullptr, [](int) {
    QWidget* w = ekran::Ac(QStringLiteral("frmMusteri"));
    Isle();
    static_cast<frmMusteri*>(w)->Kapat();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  });
  Yaz("frmMusteri açılışı (iki liste ile)", acilis, 1000);

  frmMusteri f;
  f.show();
  f.Form_Load();
  Isle();
  std::printf("  (cmbNo %d, cmbAd %d kayıt)\n", f.cmbNo->count(), f.cmbAd->count());
  Yaz("rsMusteri sorgusu", Olc(5, nullptr, [&f](int) { f.rsMusteri.Requery(); }));
  Yaz("ComboDoldur",
      Olc(
          5, [&f](int) { f.rsMusteri.MoveFirst(); }, [&f](int) { f.ComboDoldur(); }));
  Yaz("  isimlerin sorgusu", Olc(5, nullptr, [&f](int) {
        Genel::Baglanti.Sorgu(
            QStringLiteral("SELECT MusteriNo, HukukiDurum, Soyadi, Adi FROM Musteri "
                           "WHERE MusteriNo >= ? ORDER BY MusteriNo LIMIT ?"),
            {0, frmMusteri::kListeSiniri});
      }));
  {
    QStringList adlar;
    for (int i = 0; i < f.cmbAd->count(); ++i) adlar << f.cmbAd->itemText(i);
    Yaz("  isimlerin Türkçe sıralanması",
        Olc(
            5, [&adlar](int) { std::reverse(adlar.begin(), adlar.end()); },
            [adlar](int) mutable {
              std::stable_sort(adlar.begin(), adlar.end(), [](const QString& a, const QString& b) {
                return db::TurkceKarsilastir(a, b) < 0;
              });
            }));
  }
  Yaz("Goster", Olc(
                    9, [&f](int i) { f.rsMusteri.Move(i * 1000); }, [&f](int) { f.Goster(); }));

  // --- a name search with about ten thousand hits, shown in the grid
  {
    frmBul b(&f, &f);
    b.show();
    b.chkAraTip->setChecked(true);
    b.txtAranacak->setText(QStringLiteral("YILMAZ"));
    const Olcum arama = Olc(5, nullptr, [&b](int) {
      b.cmdAra_Click();
      Isle();
    });
    Yaz("frmBul ad araması (gösterilen dahil)", arama, 300);
    std::printf("  (%d kayıt: %s)\n", b.rsBulunan.RecordCount(),
                b.lblcount->text().toUtf8().constData());
    const QString desen = frmBul::Desen(QStringLiteral("YILMAZ"), true);
    Yaz("sorgu: like + sıralama", Olc(5, nullptr, [&desen](int) {
          Genel::Baglanti.Sorgu(
              QStringLiteral("SELECT MusteriNo, Bulunacak AS AdSoyad FROM MusteriQry WHERE "
                             "Bulunacak LIKE ? ESCAPE '\\' ORDER BY Bulunacak COLLATE TURKCE"),
              {desen});
        }));
    Yaz("sorgu: like, sırasız", Olc(5, nullptr, [&desen](int) {
          Genel::Baglanti.Sorgu(
              QStringLiteral("SELECT MusteriNo, Bulunacak AS AdSoyad FROM MusteriQry WHERE "
                             "Bulunacak LIKE ? ESCAPE '\\'"),
              {desen});
        }));
    Yaz("sorgu: like yerine instr (karşılaştırma)", Olc(5, nullptr, [](int) {
          Genel::Baglanti.Sorgu(
              QStringLiteral("SELECT MusteriNo, Bulunacak AS AdSoyad FROM MusteriQry WHERE "
                             "instr(Bulunacak, 'YILMAZ') > 0"));
        }));
    b.txtAranacak->setText(QStringLiteral("MEHMET"));
    b.chkAraTip->setChecked(false);
    const Olcum bas = Olc(5, nullptr, [&b](int) {
      b.cmdAra_Click();
      Isle();
    });
    Yaz("frmBul baştan ad araması", bas);
    std::printf("  (%d kayıt)\n", b.rsBulunan.RecordCount());
    b.cmbKriter->setCurrentIndex(1);
    b.chkAraTip->setChecked(true);
    b.txtAranacak->setText(QStringLiteral("ANKARA"));
    const Olcum adres = Olc(3, nullptr, [&b](int) {
      b.cmdAra_Click();
      Isle();
    });
    Yaz("frmBul adres araması, içinde", adres);
    std::printf("  (%d kayıt)\n", b.rsBulunan.RecordCount());
  }

  // --- saving an edit: the address, then the name (its list entry moves)
  const qint32 orta = qint32(aralik.ilk + (aralik.son - aralik.ilk) / 2);
  const auto duzenle = [&f, orta](const std::function<void(int)>& degistir) {
    return [&f, orta, degistir](int i) {
      f.KisiBul(orta - (i % 2) * 7);
      f.cmdEdit_Click();
      degistir(i);
    };
  };
  const Olcum kaydet = Olc(
      21, duzenle([&f](int i) { f.txtAdres->setText(QStringLiteral("Gül Sok. No:%1").arg(i)); }),
      [&f](int) { f.cmdSave_Click(); });
  Yaz("cmdSave, değişen adres", kaydet, 50);
  const Olcum kaydetAd =
      Olc(21, duzenle([&f](int i) {
            // A name nobody else has, so that the duplicate test lets it through.
            f.txtAdi->setText(i % 2 ? QStringLiteral("ZEKERİYA") : QStringLiteral("ABİDİN"));
            f.txtBabaAdi->setText(QStringLiteral("NURETTİN %1").arg(i));
          }),
          [&f](int) { f.cmdSave_Click(); });
  Yaz("cmdSave, değişen ad (liste yeri değişir)", kaydetAd, 50);
  Yaz("  çift isim sorgusu", Olc(21, nullptr, [](int i) {
        master::AyniAnahtarliMusteri(QStringLiteral("yılmazali%1").arg(i));
      }));
  const qint64 gecici = aralik.son + 1000;
  Genel::Baglanti.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (?)"), {gecici});
  Yaz("  silme + ekleme, tek işlemde", Olc(21, nullptr, [gecici](int) {
        db::Islem islem(Genel::Baglanti);
        Genel::Baglanti.Calistir(QStringLiteral("DELETE FROM Musteri WHERE MusteriNo = ?"),
                                 {gecici});
        Genel::Baglanti.Calistir(QStringLiteral("INSERT INTO Musteri(MusteriNo) VALUES (?)"),
                                 {gecici});
        islem.Onayla();
      }));
  Yaz("  Goster", Olc(21, nullptr, [&f](int) { f.Goster(); }));

  std::printf("\n%s\n", mesajSayisi ? "UYARI: beklenmeyen mesajlar gösterildi" : "");
  f.close();
  Genel::Baglanti.Kapat();
  return mesajSayisi ? 1 : 0;
}
