#include "reports/Tahsilat.h"

#include "core/Genel.h"
#include "db/Kayitlar.h"
#include "reports/Csv.h"

namespace tahsilat {

namespace {

// A LIKE pattern that finds `metin` anywhere, its own "%", "_" and "\" taken
// literally.
QString ParcaDeseni(const QString& metin) {
  QString d;
  d.reserve(metin.size() + 4);
  d += QLatin1Char('%');
  for (const QChar c : metin) {
    if (c == QLatin1Char('%') || c == QLatin1Char('_') || c == QLatin1Char('\\'))
      d += QLatin1Char('\\');
    d += c;
  }
  d += QLatin1Char('%');
  return d;
}

bool Bos(const QString& s) { return s.trimmed().isEmpty(); }

}  // namespace

const char* const kListeAlanlari =
    "GirisNo, SozlesmeNo, Tip, Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, Meblag, Doviz, "
    "Odenmesi";

Kosul KosulKur(const Secim& s) {
  QStringList parcalar;
  Kosul k;
  const QVariant bas = Genel::TarihSql(s.bas), son = Genel::TarihSql(s.son);
  if (!db::NullMu(bas)) {
    parcalar << QStringLiteral("Vadesi >= ?");
    k.deger << bas;
  }
  if (!db::NullMu(son)) {
    parcalar << QStringLiteral("Vadesi <= ?");
    k.deger << son;
  }
  if (!s.banka.isEmpty()) {
    parcalar << QStringLiteral("Banka = ?");
    k.deger << s.banka;
  }
  if (!Bos(s.kesideci)) {
    parcalar << QStringLiteral("Kesideci LIKE ? ESCAPE '\\'");
    k.deger << ParcaDeseni(s.kesideci);
  }
  if (!Bos(s.cekNo)) {
    parcalar << QStringLiteral("CekNo LIKE ? ESCAPE '\\'");
    k.deger << ParcaDeseni(s.cekNo);
  }
  if (!parcalar.isEmpty())
    k.metin = QStringLiteral(" WHERE ") + parcalar.join(QStringLiteral(" AND "));
  return k;
}

QString ListeSorgusu(const Kosul& k) {
  return QStringLiteral("SELECT %1 FROM SozlesmeDetay%2 ORDER BY Vadesi, GirisNo")
      .arg(QLatin1String(kListeAlanlari), k.metin);
}

QString SatirSorgusu() {
  return QStringLiteral("SELECT %1 FROM SozlesmeDetay WHERE GirisNo = ?")
      .arg(QLatin1String(kListeAlanlari));
}

QString ToplamSorgusu(const Kosul& k) {
  return QStringLiteral(
             "SELECT Durum, count(GirisNo) AS Adet, sum(Meblag) AS Tutar FROM CekDurum%1 "
             "GROUP BY Durum")
      .arg(k.metin);
}

Toplamlar ToplamlariOku(const Kosul& k) {
  Toplamlar t;
  db::Kayitlar rs = Genel::Baglanti.Sorgu(ToplamSorgusu(k), k.deger);
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    const Grup g{rs.Fields(QStringLiteral("Adet")).toLongLong(),
                 rs.Fields(QStringLiteral("Tutar")).toDouble()};
    if (rs.Metin(QStringLiteral("Durum")) == QLatin1String("Var"))
      t.odenen = g;
    else
      t.karsiliksiz = g;
  }
  return t;
}

QString TutarYazisi(double tutar) {
  csv::Sutun s{QString(), QString(), csv::Sutun::Bicim::Sayi, 2, true};
  s.onSifir = false;
  return csv::Metin(tutar, s);
}

QVariant OdemeDegeri(const QString& ekranTarihi) {
  if (ekranTarihi.isEmpty()) return db::Null();
  return Genel::TarihSql(ekranTarihi);
}

void DurumYaz(qint64 GirisNo, const QVariant& Odenmesi) {
  Genel::Baglanti.Calistir(
      QStringLiteral("UPDATE SozlesmeDetay SET Odenmesi = ? WHERE GirisNo = ?"),
      {Odenmesi, GirisNo});
}

}  // namespace tahsilat
