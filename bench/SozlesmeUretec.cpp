#include "bench/SozlesmeUretec.h"

#include <QDate>
#include <QStringList>
#include <QVariantList>
#include <QVector>
#include <algorithm>
#include <span>
#include <stdexcept>
#include <vector>

#include "bench/Uretec.h"
#include "contract/Faiz.h"
#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Kayitlar.h"

namespace bench {

namespace {

constexpr int kEnFazlaSatir = 22;
constexpr int kParti = 20000;  // contracts written per transaction
const QDate kIlkGun(2000, 1, 3);
const QDate kSonGun(2024, 12, 31);

const QStringList& SozlesmeSutunlari() {
  static const QStringList s = {
      QStringLiteral("SozlesmeID"), QStringLiteral("SozlesmeSeri"), QStringLiteral("SozlesmeNo"),
      QStringLiteral("MusteriNo"),  QStringLiteral("Tarih"),        QStringLiteral("Tutar"),
      QStringLiteral("FaizOran"),   QStringLiteral("GecikmeOran"),  QStringLiteral("IskontoOran"),
      QStringLiteral("FaizTutar"),  QStringLiteral("Yaziyla"),      QStringLiteral("Gun"),
      QStringLiteral("ilaveGun"),   QStringLiteral("Doviz"),        QStringLiteral("Hesapla")};
  return s;
}

const QStringList& SatirSutunlari() {
  static const QStringList s = {
      QStringLiteral("SozlesmeID"), QStringLiteral("SozlesmeSeri"), QStringLiteral("SozlesmeNo"),
      QStringLiteral("Tip"),        QStringLiteral("Kesideci"),     QStringLiteral("Banka"),
      QStringLiteral("Sube"),       QStringLiteral("HesapNo"),      QStringLiteral("CekNo"),
      QStringLiteral("Vadesi"),     QStringLiteral("Odenmesi"),     QStringLiteral("Gun"),
      QStringLiteral("Meblag"),     QStringLiteral("Doviz")};
  return s;
}

const QStringList& FaturaSutunlari() {
  static const QStringList s = {QStringLiteral("FaturaSeri"),     QStringLiteral("FaturaNo"),
                                QStringLiteral("Tarih"),          QStringLiteral("MusteriNo"),
                                QStringLiteral("SozlesmeID"),     QStringLiteral("SozlesmeSeri"),
                                QStringLiteral("SozlesmeNo"),     QStringLiteral("Tutar"),
                                QStringLiteral("BMVergisiYuzde"), QStringLiteral("BMVergisi"),
                                QStringLiteral("TahsilMasrafi"),  QStringLiteral("PulBedeli"),
                                QStringLiteral("ToplamMasraf"),   QStringLiteral("ToplamTutar"),
                                QStringLiteral("Yaziyla")};
  return s;
}

QString Iso(const QDate& d) { return d.toString(Qt::ISODate); }

}  // namespace

SozlesmeUretec::Ozet SozlesmeUretec::Sozlesmeler(int adet, qint64 satir) {
  if (adet <= 0) return {};
  if (satir < adet || satir > qint64(adet) * kEnFazlaSatir)
    throw std::invalid_argument("satir: 1 to 22 lines per contract");
  db::Baglanti& b = Genel::Baglanti;

  // The customers, with the name a note takes as its drawer.
  std::vector<std::pair<qint64, QString>> musteriler;
  {
    db::Kayitlar rs = b.Sorgu(QStringLiteral("SELECT MusteriNo, Bulunacak FROM MusteriQry"));
    for (int i = 0; i < rs.RecordCount(); ++i)
      musteriler.emplace_back(rs.Deger(i, 0).toLongLong(), rs.Deger(i, 1).toString());
  }
  if (musteriler.empty()) throw std::invalid_argument("no customers");

  // Lines per contract: most contracts carry a few papers, some many. A
  // geometric count with the mean asked for, then evened out to the total.
  std::vector<int> satirlar(std::size_t(adet), 1);
  const double p = double(adet) / double(satir);
  qint64 toplam = 0;
  for (int& n : satirlar) {
    while (n < kEnFazlaSatir && !u_.Olasilik(p)) ++n;
    toplam += n;
  }
  while (toplam != satir) {
    int& n = satirlar[std::size_t(u_.Arasi(0, adet - 1))];
    if (toplam < satir && n < kEnFazlaSatir) {
      ++n;
      ++toplam;
    } else if (toplam > satir && n > 1) {
      --n;
      --toplam;
    }
  }

  Ozet ozet;
  qint64 id =
      b.Deger(QStringLiteral("SELECT ifnull(max(SozlesmeID), 0) FROM Sozlesme")).toLongLong();
  qint64 faturaNo =
      b.Deger(QStringLiteral("SELECT ifnull(max(FaturaNo), 0) FROM Fatura WHERE FaturaSeri = 'FA'"))
          .toLongLong();
  const qint64 gunler = kIlkGun.daysTo(kSonGun);
  const int faturasiz = adet - adet / 10;  // the newest tenth has no invoice
  int yil = 0, no = 0;
  std::vector<faiz::Satir> hesap;
  hesap.reserve(kEnFazlaSatir);

  for (int bas = 0; bas < adet; bas += kParti) {
    const int son = std::min(adet, bas + kParti);
    QVector<QVariantList> sozlesmeler, detaylar, faturalar;
    sozlesmeler.reserve(son - bas);
    for (int i = bas; i < son; ++i) {
      ++id;
      const QDate tarih = kIlkGun.addDays(gunler * i / adet);
      if (tarih.year() != yil) {
        yil = tarih.year();
        no = 0;
      }
      ++no;
      const auto& musteri = musteriler[std::size_t(u_.Arasi(0, int(musteriler.size()) - 1))];
      const double faizOran = 2.5 + 0.25 * u_.Arasi(0, 22);
      const qint64 ilaveGun = u_.Olasilik(0.9) ? 3 : u_.Arasi(0, 5);
      const QString doviz = u_.Olasilik(0.97)  ? QStringLiteral("TRL")
                            : u_.Olasilik(0.5) ? QStringLiteral("USD")
                                               : QStringLiteral("EUR");

      hesap.clear();
      for (int k = 0; k < satirlar[std::size_t(i)]; ++k) {
        const bool senet = u_.Olasilik(0.15);
        const QDate vade = tarih.addDays(u_.Arasi(15, 180));
        const int gun = u_.Olasilik(0.1) ? 30 * u_.Arasi(1, 3) : 0;
        const double meblag =
            u_.Olasilik(0.7) ? 50.0 * u_.Arasi(10, 1000) : u_.Arasi(50000, 5000000) / 100.0;
        QVariant odenmesi = Iso(vade);
        if (u_.Olasilik(0.03))
          odenmesi = db::Null();  // bounced
        else if (u_.Olasilik(0.02))
          odenmesi = Iso(vade.addDays(u_.Arasi(1, 20)));
        QString kesideci = musteri.second;
        QString banka, sube, hesapNo, cekNo;
        if (!senet) {
          kesideci = u_.Olasilik(0.3) ? u_.Soyadi() + QStringLiteral(" TİC. LTD. ŞTİ.")
                                      : u_.Soyadi() + QLatin1Char(' ') +
                                            (u_.Olasilik(0.7) ? u_.ErkekAdi() : u_.KadinAdi());
          banka = u_.BankaAdi();
          sube = u_.RastgeleYer().ilce.toUpper();
          hesapNo = QString::number(u_.Arasi(100000, 9999999));
          cekNo = QString::number(u_.Arasi(1000000, 9999999));
        }
        detaylar.push_back({id, QStringLiteral("AB"), no,
                            senet ? QStringLiteral("Senet") : QStringLiteral("Çek"), kesideci,
                            banka, sube, hesapNo, cekNo, Iso(vade), odenmesi, gun, meblag, doviz});
        faiz::Satir s;
        s.Vadesi = vade;
        s.Gun = gun;
        s.Meblag = meblag;
        s.CekNo = cekNo;
        s.Kesideci = kesideci;
        hesap.push_back(s);
      }
      faiz::Girdi girdi;
      girdi.Tarih = tarih;
      girdi.FaizOran = faizOran;
      girdi.ilaveGun = ilaveGun;
      const faiz::Toplamlar t = faiz::Topla(girdi, hesap);
      const faiz::Sonuc sonuc = faiz::TutarHesap(girdi, hesap);
      const double odenecek = sonuc.Odenecek.value_or(0);
      sozlesmeler.push_back({id, QStringLiteral("AB"), no, musteri.first, Iso(tarih), t.Toplam,
                             faizOran, 5, u_.Arasi(0, 4) * 0.5, t.ToplamFaiz,
                             odenecek > 0 ? Genel::YaziyaCevir(odenecek) : QStringLiteral("Sıfır"),
                             sonuc.GunYazisi.value_or(QStringLiteral("0")), ilaveGun, doviz, 1});
      ozet.satir += satirlar[std::size_t(i)];

      if (i < faturasiz && u_.Olasilik(0.7)) {
        const double vergi = t.ToplamFaiz * 0.05;
        const double masraf = 2.5 * satirlar[std::size_t(i)];
        const double pul = 0.6;
        const double toplamMasraf = vergi + masraf + pul;
        faturalar.push_back(
            {QStringLiteral("FA"), ++faturaNo, Iso(tarih), musteri.first, id, QStringLiteral("AB"),
             no, t.ToplamFaiz, 5, vergi, masraf, pul, toplamMasraf, toplamMasraf + t.ToplamFaiz,
             QStringLiteral("Yalnız ") + Genel::YaziyaCevir(toplamMasraf + t.ToplamFaiz)});
      }
    }
    u_.TopluEkle(QStringLiteral("Sozlesme"), SozlesmeSutunlari(), sozlesmeler);
    u_.TopluEkle(QStringLiteral("SozlesmeDetay"), SatirSutunlari(), detaylar);
    u_.TopluEkle(QStringLiteral("Fatura"), FaturaSutunlari(), faturalar);
    ozet.sozlesme += sozlesmeler.size();
    ozet.fatura += faturalar.size();
  }
  return ozet;
}

}  // namespace bench
