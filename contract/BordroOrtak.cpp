#include "contract/BordroOrtak.h"

namespace contract::bordro {

QRectF Yer(const Sutun& s, double y) { return {s.x, y, s.genislik, kSatir}; }

rapor::Yazi Hizala(rapor::Yazi y, const Sutun& s) { return s.sag ? y.Sag() : y; }

rapor::Cizgi Cizgi(double x, double y, double genislik, double kalinlik) {
  rapor::Cizgi c = rapor::Cizgi::Yatay(x, y, genislik);
  c.kalinlik = kalinlik;
  return c;
}

void SayfaBasligi(rapor::Bant& b, const Baslik& k, std::initializer_list<Sutun> sutunlar) {
  using rapor::Yazi;
  // lblMusteri, lblSozlesmeNo on the left; lblTarih, lblFaizOran on the right.
  b.Ekle(Yazi::Sabit(QStringLiteral("Müşteri:   ") + k.Musteri, {0, 0, k.solGenislik, 6})
             .Punto(11)
             .Kalin());
  b.Ekle(Yazi::Sabit(QStringLiteral("Tarih: ") + k.Tarih, {k.sagX, 0, k.sagGenislik, 6})
             .Punto(10)
             .Sag());
  b.Ekle(Yazi::Sabit(QStringLiteral("Sözleşme No: ") + k.SozlesmeNo, {0, 7, k.solGenislik, 6})
             .Punto(10));
  b.Ekle(Yazi::Sabit(QStringLiteral("Faiz Oranı:   ") + k.FaizOran, {k.sagX, 7, k.sagGenislik, 6})
             .Punto(10)
             .Sag());
  b.Ekle(Yazi::Sabit(QStringLiteral("Alınan Belgeler:"), {0, 16, 80, 6}).Punto(10).Kalin());
  for (const Sutun& s : sutunlar)
    b.Ekle(Hizala(Yazi::Sabit(QString::fromUtf8(s.baslik), Yer(s, 23)).Kalin(), s));
  b.Ekle(Cizgi(k.cizgiX, 28.5, k.sagKenar - k.cizgiX, 0.4));
  b.yukseklik = 30;
}

void DegerSatirlari::Ekle(const QString& etiket, const rapor::Yazi& deger) {
  using rapor::Yazi;
  b_.Ekle(Yazi::Sabit(etiket, {etiketX_, y_, degerX_ - etiketX_, kSatir}).Punto(10));
  Yazi d = deger;
  d.yer = {degerX_, y_, degerGenislik_, kSatir};
  b_.Ekle(d.Sag().Punto(10).Kalin());
  y_ += kSatir + 0.5;
}

}  // namespace contract::bordro
