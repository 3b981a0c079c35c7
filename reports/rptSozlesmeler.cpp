#include "reports/rptSozlesmeler.h"

#include <QDate>

#include "core/Genel.h"

namespace reports {

namespace {

constexpr double kSatir = 5;
constexpr double kGenislik = 190;
const QString kTutarBicimi = QStringLiteral("###,###,###,###,##0.00");

// Millimetres on portrait A4.
struct Yer {
  double x, genislik;
};
constexpr Yer kSozNo{0, 22}, kAdSoyad{23, 50}, kTarih{74, 19}, kTutar{94, 24}, kFaiz{119, 23},
    kVergi{143, 22}, kOdenen{166, 24};

QRectF Kutu(const Yer& y, double ust = 0) { return {y.x, ust, y.genislik, kSatir}; }

}  // namespace

rapor::Rapor rptSozlesmeler(const db::Kayitlar& rsGelir, const QString& lblTarihler) {
  using rapor::Yazi;
  rapor::Rapor r;
  r.baslik = QStringLiteral("Gelir Raporu");
  r.kayitlar = rsGelir;

  rapor::Bant& bas = r.raporBasligi;
  bas.Ekle(
      Yazi::Sabit(QStringLiteral("Gelir Raporu"), {0, 0, kGenislik, 8}).Orta().Punto(14).Kalin());
  bas.Ekle(Yazi::Sabit(lblTarihler, {0, 10, 120, 6}).Punto(10));
  bas.Ekle(Yazi::Sabit(Genel::TarihYaz(QDate::currentDate()), {140, 10, 50, 6}).Sag().Punto(10));
  bas.yukseklik = 18;

  rapor::Bant& sb = r.sayfaBasligi;
  sb.Ekle(Yazi::Sabit(QStringLiteral("Söz.No"), Kutu(kSozNo)).Kalin());
  sb.Ekle(Yazi::Sabit(QStringLiteral("Ad Soyad"), Kutu(kAdSoyad)).Kalin());
  sb.Ekle(Yazi::Sabit(QStringLiteral("Tarih"), Kutu(kTarih)).Kalin());
  sb.Ekle(Yazi::Sabit(QStringLiteral("Tutar"), Kutu(kTutar)).Kalin().Sag());
  sb.Ekle(Yazi::Sabit(QStringLiteral("Faiz Tutar"), Kutu(kFaiz)).Kalin().Sag());
  sb.Ekle(Yazi::Sabit(QStringLiteral("BM Vergi"), Kutu(kVergi)).Kalin().Sag());
  sb.Ekle(Yazi::Sabit(QStringLiteral("Ödenen"), Kutu(kOdenen)).Kalin().Sag());
  sb.Ekle(rapor::Cizgi::Yatay(0, kSatir + 0.5, kGenislik));
  sb.yukseklik = kSatir + 1.5;

  rapor::Bant& d = r.detay;
  d.Ekle(Yazi::Alan(QStringLiteral("SozlesmeSeri"), {kSozNo.x, 0, 7, kSatir}).Punto(8.5));
  d.Ekle(Yazi::Alan(QStringLiteral("SozlesmeNo"), {kSozNo.x + 7, 0, 15, kSatir}).Punto(8.5));
  d.Ekle(Yazi::Alan(QStringLiteral("AdSoyad"), Kutu(kAdSoyad)).Punto(8.5));
  d.Ekle(Yazi::Alan(QStringLiteral("Tarih"), Kutu(kTarih))
             .Bicim(QStringLiteral("dd.MM.yyyy"))
             .Punto(8.5));
  const auto tutar = [](const char* alan, const Yer& y, double ust = 0) {
    return Yazi::Alan(QString::fromLatin1(alan), Kutu(y, ust)).Bicim(kTutarBicimi).Sag().Punto(8.5);
  };
  d.Ekle(tutar("Tutar", kTutar));
  d.Ekle(tutar("FaizTutar", kFaiz));
  d.Ekle(tutar("BMVergisi", kVergi));
  d.Ekle(tutar("Odenecek2", kOdenen));
  d.yukseklik = kSatir;

  rapor::Bant& son = r.raporAltligi;
  son.Ekle(rapor::Cizgi::Yatay(0, 1, kGenislik));
  son.Ekle(Yazi::Adet(QString(), {0, 2, 15, kSatir}).Sag().Kalin());
  son.Ekle(Yazi::Sabit(QStringLiteral("Adet         Toplam: "), {16, 2, 60, kSatir}).Kalin());
  const auto toplam = [](const char* alan, const Yer& y) {
    return Yazi::Toplam(QString::fromLatin1(alan), Kutu(y, 2)).Bicim(kTutarBicimi).Sag().Kalin();
  };
  son.Ekle(toplam("Tutar", kTutar));
  son.Ekle(toplam("FaizTutar", kFaiz));
  son.Ekle(toplam("BMVergisi", kVergi));
  son.Ekle(toplam("Odenecek2", kOdenen));

  r.sayfaAltligi.Ekle(Yazi::SayfaNumarasi({140, 0, 50, kSatir}).Sag());
  return r;
}

}  // namespace reports
