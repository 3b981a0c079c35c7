#include "reports/rptCekler.h"

#include <QDate>

#include "core/Genel.h"

namespace reports {

namespace {

struct Sutun {
  const char* alan;
  const char* baslik;
  double x, genislik;
  bool sag;
};

// Millimetres on portrait A4, 190 wide inside the margins.
constexpr Sutun kSutunlar[] = {
    {"Tip", "Tür", 0, 10, false},
    {"Kesideci", "Keşideci", 11, 44, false},
    {"Banka", "Banka", 56, 24, false},
    {"Sube", "Şube", 81, 22, false},
    {"HesapNo", "Hesap No", 104, 20, false},
    {"CekNo", "Çek No", 125, 18, false},
    {"Vadesi", "Vade", 144, 19, false},
    {"Meblag", "Tutar", 164, 26, true},
};
constexpr double kGenislik = 190;
constexpr double kSatir = 5;
const QString kTutarBicimi = QStringLiteral("###,###,###,###,##0.00");

}  // namespace

rapor::Rapor rptCekler(const db::Kayitlar& rsCek, const QString& lblTarihler) {
  using rapor::Yazi;
  rapor::Rapor r;
  r.baslik = QStringLiteral("Cek Raporu");
  r.kayitlar = rsCek;

  rapor::Bant& bas = r.raporBasligi;
  bas.Ekle(Yazi::Sabit(QStringLiteral("Çek Bordro Raporu"), {0, 0, kGenislik, 8})
               .Orta()
               .Punto(14)
               .Kalin());
  bas.Ekle(Yazi::Sabit(lblTarihler, {0, 10, 120, 6}).Punto(10));
  bas.Ekle(Yazi::Sabit(Genel::TarihYaz(QDate::currentDate()), {140, 10, 50, 6}).Sag().Punto(10));
  bas.yukseklik = 18;

  rapor::Bant& sb = r.sayfaBasligi;
  for (const Sutun& s : kSutunlar) {
    Yazi y = Yazi::Sabit(QString::fromUtf8(s.baslik), {s.x, 0, s.genislik, kSatir}).Kalin();
    sb.Ekle(s.sag ? y.Sag() : y);
  }
  sb.Ekle(rapor::Cizgi::Yatay(0, kSatir + 0.5, kGenislik));
  sb.yukseklik = kSatir + 1.5;

  for (const Sutun& s : kSutunlar) {
    Yazi y = Yazi::Alan(QString::fromLatin1(s.alan), {s.x, 0, s.genislik, kSatir}).Punto(8.5);
    if (QLatin1String(s.alan) == QLatin1String("Vadesi")) y.Bicim(QStringLiteral("dd.MM.yyyy"));
    if (s.sag) y.Bicim(kTutarBicimi).Sag();
    r.detay.Ekle(y);
  }
  r.detay.yukseklik = kSatir;

  rapor::Bant& son = r.raporAltligi;
  son.Ekle(rapor::Cizgi::Yatay(0, 1, kGenislik));
  son.Ekle(Yazi::Adet(QString(), {90, 2, 20, kSatir}).Sag().Kalin());
  son.Ekle(Yazi::Sabit(QStringLiteral("Adet         Toplam: "), {111, 2, 52, kSatir}).Kalin());
  son.Ekle(Yazi::Toplam(QStringLiteral("Meblag"), {144, 2, 46, kSatir})
               .Bicim(kTutarBicimi)
               .Sag()
               .Kalin());

  r.sayfaAltligi.Ekle(Yazi::SayfaNumarasi({140, 0, 50, kSatir}).Sag());
  return r;
}

}  // namespace reports
