#include "reports/MusteriBilgi.h"

#include <QStringList>

#include "core/Genel.h"
#include "reports/Tahsilat.h"

namespace musteribilgi {

namespace {

// The stored day count of a line; 0 stands for "from the contract's date to
// the maturity, plus the contract's extra days".
const char* const kSorgu =
    "SELECT SD.GirisNo, SD.SozlesmeNo, SD.Tip, SD.Kesideci, SD.Banka, SD.Sube, SD.HesapNo, "
    "SD.CekNo, SD.Vadesi, "
    "CASE WHEN SD.Gun = 0 THEN GunFarki(S.Tarih, SD.Vadesi) + S.ilaveGun ELSE SD.Gun END AS Gun, "
    "SD.Meblag, SD.Doviz "
    "FROM SozlesmeDetay SD INNER JOIN Sozlesme S ON SD.SozlesmeID = S.SozlesmeID";

QString BaslikTarihi(const QDate& d) { return d.toString(QStringLiteral("dd-MM-yyyy")); }

}  // namespace

Sorgu SorguKur(const Secim& s) {
  Sorgu q;
  QStringList kosul;
  const QString bugun = s.bugun.toString(Qt::ISODate);
  switch (s.tip) {
    case Tum: {
      const QDate bas = Genel::TarihCoz(s.bas, s.bugun), son = Genel::TarihCoz(s.son, s.bugun);
      if (bas.isValid()) {
        kosul << QStringLiteral("SD.Odenmesi >= ?");
        q.deger << bas.toString(Qt::ISODate);
      }
      if (son.isValid()) {
        kosul << QStringLiteral("SD.Odenmesi <= ?");
        q.deger << son.toString(Qt::ISODate);
      }
      q.baslik = kosul.isEmpty() ? QStringLiteral(" BÜTÜN BELGELER")
                                 : QStringLiteral(" İKİ TARİH ARASI BÜTÜN BELGELER");
      break;
    }
    case Risk:
      kosul << QStringLiteral("SD.Odenmesi >= ?");
      q.deger << bugun;
      q.baslik = BaslikTarihi(s.bugun) + QStringLiteral(" İTİBARİYLE ÖDENECEK BELGELER");
      break;
    case Karsiliksiz:
      kosul << QStringLiteral("SD.Odenmesi IS NULL");
      q.baslik = BaslikTarihi(s.bugun) + QStringLiteral(" İTİBARİYLE KARŞILIKSIZ BELGELER");
      break;
    case Odenen:
      kosul << QStringLiteral("SD.Odenmesi < ?");
      q.deger << bugun;
      q.baslik = BaslikTarihi(s.bugun) + QStringLiteral(" İTİBARİYLE ÖDENEN BELGELER");
      break;
  }
  if (s.musteriNo != 0) {
    kosul.prepend(QStringLiteral("S.MusteriNo = ?"));
    q.deger.prepend(s.musteriNo);
  }
  q.metin = QString::fromLatin1(kSorgu);
  if (!kosul.isEmpty()) q.metin += QStringLiteral(" WHERE ") + kosul.join(QStringLiteral(" AND "));
  q.metin += QStringLiteral(" ORDER BY SD.Vadesi, SD.GirisNo");
  return q;
}

Ozet Ozetle(const db::Kayitlar& rs) {
  Ozet o;
  const int meblag = rs.AlanNo(QStringLiteral("Meblag")), gun = rs.AlanNo(QStringLiteral("Gun"));
  o.adet = rs.RecordCount();
  for (int i = 0; i < rs.RecordCount(); ++i) {
    o.toplam += rs.Deger(i, meblag).toDouble();
    o.gunToplam += rs.Deger(i, gun).toLongLong();
  }
  return o;
}

QString ToplamYazisi(const Ozet& o) { return tahsilat::TutarYazisi(o.toplam); }

QString OrtalamaYazisi(const Ozet& o) {
  if (o.adet <= 0) return QString();
  return QStringLiteral("Ortalama Tutar: ") + Genel::SayiYaz(o.toplam / double(o.adet), 2) +
         QStringLiteral("      Ortalama Gün: ") +
         Genel::SayiYaz(double(o.gunToplam) / double(o.adet), 2);
}

}  // namespace musteribilgi
