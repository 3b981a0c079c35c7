#include "master/rptEtiket.h"

#include "core/Genel.h"

namespace master {

db::Kayitlar EtiketVerisi(const QString& musteriNo) {
  bool sayi = false;
  const qint64 no = musteriNo.trimmed().toLongLong(&sayi);
  return Genel::Baglanti.Sorgu(
      QStringLiteral("SELECT CASE WHEN HukukiDurum = 1 THEN Adi || ' ' || Soyadi "
                     "ELSE Soyadi || ' ' || Adi || ' ' || BabaAdi END AS AdSoyad, "
                     "Adres, PostaKod, Ilce, Il_Ad FROM Musteri WHERE MusteriNo = ?"),
      {sayi ? QVariant(no) : QVariant(musteriNo)});
}

rapor::Rapor rptEtiket(const db::Kayitlar& veri) {
  rapor::Rapor r;
  r.baslik = QStringLiteral("Etiket");
  // An address label of the common 99.1 x 38.1 mm sheets.
  r.sayfaDuzeni =
      QPageLayout(QPageSize(QSizeF(99.1, 38.1), QPageSize::Millimeter, QStringLiteral("Etiket")),
                  QPageLayout::Portrait, QMarginsF(5, 4, 5, 4), QPageLayout::Millimeter);
  r.kayitlar = veri;
  using rapor::Yazi;
  r.detay.Ekle(Yazi::Alan(QStringLiteral("AdSoyad"), {0, 0, 89, 6}).Punto(10).Kalin());
  r.detay.Ekle(Yazi::Alan(QStringLiteral("Adres"), {0, 7, 89, 10}).Kaydir());
  r.detay.Ekle(Yazi::Alan(QStringLiteral("PostaKod"), {0, 18, 14, 5}));
  r.detay.Ekle(Yazi::Alan(QStringLiteral("Ilce"), {15, 18, 36, 5}));
  r.detay.Ekle(Yazi::Alan(QStringLiteral("Il_Ad"), {52, 18, 37, 5}));
  // One label fills its page.
  r.detay.yukseklik = 30.1;
  return r;
}

}  // namespace master
