// The contract screen on 300,000 contracts with 2,000,000 lines: opening it
// over all contracts, adding a line to a contract (which saves the contract
// twice and reads its lines again), and what those are made of. Each figure
// is the median of several runs, in wall-clock and CPU time.
//
//   cmake -S . -B build/bench-sozlesme -G Ninja -DCMAKE_BUILD_TYPE=Release
//         -DVELMORA_TESTS=OFF -DVELMORA_BENCH=ON
//   cmake --build build/bench-sozlesme --target SozlesmeBench
//   QT_QPA_PLATFORM=offscreen build/bench-sozlesme/bench/SozlesmeBench [file.db]
//
// With a file that exists, its data is used as it stands (the runs add lines
// and a contract to it); otherwise the data is generated into it, or into a
// temporary file.

#include <time.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <vector>

#include "bench/SozlesmeUretec.h"
#include "bench/Uretec.h"
#include "contract/frmSozles.h"
#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/Mesaj.h"
#include "db/Kayitlar.h"

#include "bench/Olcum.h"

namespace {

using olcum::Isle;
using olcum::Olc;
using olcum::Olcum;
using olcum::Yaz;

constexpr int kMusteri = 20000;
constexpr int kSozlesme = 300000;
constexpr qint64 kSatir = 2000000;


qint64 Sayi(const char* sql) {
  return Genel::Baglanti.Deger(QString::fromLatin1(sql)).toLongLong();
}

// A cheque typed into the entry of the contract on show.
void KalemYaz(frmSozles& f, int i) {
  f.cmbTip->setCurrentIndex(0);
  f.txtKesideci->setText(QStringLiteral("ÖLÇÜM %1 TİC. LTD. ŞTİ.").arg(i));
  f.txtBanka->setText(QStringLiteral("ZİRAAT"));
  f.txtSube->setText(QStringLiteral("KIZILAY"));
  f.txtHesapNo->setText(QStringLiteral("123456"));
  f.txtCekNo->setText(QString::number(9000000 + i));
  f.txtVade->setText(Genel::TarihYaz(Genel::TarihOku(f.txtTarih->text()).addDays(45)));
  f.txtGun->setText(QStringLiteral("0"));
  f.txtMeblag->setText(QStringLiteral("1.250,00"));
}

// Puts the screen on a contract, counted back from the newest, that has no
// invoice and room for a line, and opens it for change.
void DegisecekSozlesme(frmSozles& f, int i) {
  int konum = f.rsSozlesme->RecordCount() - 7 * i;
  for (; konum > 0; --konum) {
    f.rsSozlesme->setAbsolutePosition(konum);
    f.Goster();
    if (f.DetaySayisi >= Genel::DetayLimit) continue;
    f.cmdEdit_Click();
    if (f.KayitDurum == 1) return;
  }
  std::printf("değiştirilecek sözleşme yok\n");
  std::exit(1);
}

}  // namespace

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QTemporaryDir dizin;
  qputenv("VELMORA_AYAR", dizin.path().toUtf8());
  int mesajSayisi = 0;
  mesaj::CevaplayiciKur([&mesajSayisi](const mesaj::Kayit& k) {
    ++mesajSayisi;
    std::printf("beklenmeyen mesaj: %s\n", k.metin.toUtf8().constData());
    return mesaj::Dugme::Evet;
  });
  Genel::IniDosya = dizin.filePath(QStringLiteral("velmora.ini"));
  Genel::AyarOku();
  Genel::BinlikAyirici = QStringLiteral(".");
  Genel::SozlesmeSeri = QStringLiteral("AB");

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
  std::printf("%lld müşteri, %lld sözleşme, %lld satır, %lld fatura: %lld ms\n\n",
              Sayi("SELECT count(*) FROM Musteri"), Sayi("SELECT count(*) FROM Sozlesme"),
              Sayi("SELECT count(*) FROM SozlesmeDetay"), Sayi("SELECT count(*) FROM Fatura"),
              t.elapsed());
  olcum::Baslik();

  // --- "Sözleşme (Hepsi)": the screen made, loaded and shown on its first contract
  contract::SozlesmeEkraniKaydet();
  Yaz("Sözleşme (Hepsi) açılışı",
      Olc(5, nullptr,
          [](int) {
            Genel::MusteriBazinda = false;
            auto* f = static_cast<frmSozles*>(ekran::Ac(QStringLiteral("frmSozles")));
            Isle();
            f->Kapat();
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
          }),
      1000);
  Yaz("rsSozlesme: anahtarlar, tarih sırasıyla", Olc(5, nullptr, [](int) {
        Genel::Baglanti.Sorgu(QStringLiteral(
            "SELECT SozlesmeID FROM Sozlesme ORDER BY Tarih, SozlesmeSeri, SozlesmeNo"));
      }));
  Yaz("(karşılaştırma: bütün sütunlarıyla)", Olc(3, nullptr, [](int) {
        Genel::Baglanti.Sorgu(
            QStringLiteral("SELECT * FROM Sozlesme ORDER BY Tarih, SozlesmeSeri, SozlesmeNo"));
      }));
  Yaz("rsMusteri", Olc(5, nullptr, [](int) {
        Genel::Baglanti.Sorgu(
            QStringLiteral("SELECT MusteriNo, Soyadi, Adi, Bulunacak FROM MusteriQry"));
      }));
  {
    db::Kayitlar rs = Genel::Baglanti.Sorgu(QStringLiteral("SELECT Bulunacak FROM MusteriQry"));
    QStringList adlar;
    for (int i = 0; i < std::min(rs.RecordCount(), frmSozles::kMusteriSiniri); ++i)
      adlar << rs.Deger(i, 0).toString();
    Yaz("cmbAd: adların Türkçe sıralanması", Olc(5, nullptr, [adlar](int) mutable {
          std::stable_sort(adlar.begin(), adlar.end(), [](const QString& a, const QString& b) {
            return db::TurkceKarsilastir(a, b) < 0;
          });
        }));
  }

  Genel::MusteriBazinda = false;
  frmSozles f;
  f.show();
  f.Form_Load();
  Isle();
  std::printf("  (%d sözleşme, cmbAd %d müşteri)\n", f.rsSozlesme->RecordCount(), f.cmbAd->count());
  Yaz("Goster (kayıt, müşteri, satırlar, toplamlar)",
      Olc(
          21, [&f](int i) { f.rsSozlesme->setAbsolutePosition(1 + i * 14000); },
          [&f](int) { f.Goster(); }));

  // --- adding a line: the contract saved, the line written, the lines read
  // again, the contract saved again and opened for change
  const qint64 once = Sayi("SELECT count(*) FROM SozlesmeDetay");
  const Olcum ekle = Olc(
      21,
      [&f](int i) {
        DegisecekSozlesme(f, i);
        KalemYaz(f, i);
      },
      [&f](int) { f.cmdDetayEkle_Click(); });
  Yaz("cmdDetayEkle (Hepsi)", ekle, 200);
  std::printf("  (%lld satır eklendi, son durum KayitDurum %d)\n",
              Sayi("SELECT count(*) FROM SozlesmeDetay") - once, f.KayitDurum);
  Yaz("SozlesmeKaydet, değişen sözleşme",
      Olc(
          21, [&f](int i) { DegisecekSozlesme(f, i); }, [&f](int) { f.SozlesmeKaydet(); }));
  Yaz("TutarHesap",
      Olc(
          21, [&f](int i) { DegisecekSozlesme(f, i); }, [&f](int) { f.TutarHesap(); }));

  // --- a new contract: its insert reads the set of keys again
  const Olcum yeni = Olc(
      3,
      [&f](int i) {
        f.cmdNew_Click();
        f.cmbAd->setCurrentIndex(i);
        f.txtMusteriNo->setText(f.cmbAd->currentData().toString());
        f.txtTarih->setText(QStringLiteral("31.12.2024"));
        f.txtSozlesmeNo->setText(QString::number(90000 + i));
        for (QLineEdit* k : {f.txtFaizOran, f.txtGecikmeOran, f.txtIskontoOran})
          k->setText(QStringLiteral("4"));
      },
      [&f](int) { f.cmdSave_Click(); });
  Yaz("cmdSave, yeni sözleşme", yeni);
  f.close();

  // --- the customer-bound screen: a customer's contracts, and a line on one
  Genel::MusteriBazinda = true;
  frmSozles m;
  m.show();
  m.Form_Load();
  Isle();
  const qint64 musteri =
      Sayi("SELECT MusteriNo FROM Sozlesme GROUP BY MusteriNo ORDER BY count(*) DESC LIMIT 1");
  m.cmbAd->setCurrentIndex(m.cmbAd->findData(musteri));
  Yaz("cmdBilgiGoster (en çok sözleşmeli müşteri)",
      Olc(5, nullptr, [&m](int) { m.cmdBilgiGoster_Click(); }));
  std::printf("  (%d sözleşme)\n", m.rsSozlesme->RecordCount());
  Yaz("cmdDetayEkle (Müşteri)",
      Olc(
          9,
          [&m](int i) {
            DegisecekSozlesme(m, i / 3);
            KalemYaz(m, 100 + i);
          },
          [&m](int) { m.cmdDetayEkle_Click(); }),
      200);
  m.close();

  std::printf("\n%s\n", mesajSayisi ? "UYARI: beklenmeyen mesajlar gösterildi" : "");
  Genel::Baglanti.Kapat();
  return mesajSayisi ? 1 : 0;
}
