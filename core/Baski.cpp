#include "core/Baski.h"

#include <cmath>

#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Kayitlar.h"

namespace baski {

// --- rows

Kayit Kayit::Oku(const db::Kayitlar& rs) {
  Kayit k;
  if (!rs.SatirVar()) return k;
  for (int i = 0; i < rs.AlanSayisi(); ++i) {
    const QString ad = rs.Alanlar()[i].toLower();
    if (!k.alanlar_.contains(ad)) k.alanlar_.insert(ad, rs.Fields(i));
  }
  return k;
}

QList<Kayit> Kayit::Hepsi(db::Kayitlar rs) {
  QList<Kayit> l;
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) l << Oku(rs);
  return l;
}

void Kayit::Koy(const QString& ad, const QVariant& deger) { alanlar_.insert(ad.toLower(), deger); }

QVariant Kayit::Deger(const QString& ad) const { return alanlar_.value(ad.toLower()); }

QString Kayit::Metin(const QString& ad) const {
  const QVariant v = Deger(ad);
  const QString alan = ad.trimmed().toLower();
  if (!db::NullMu(v) && (alan == QLatin1String("tarih") || alan == QLatin1String("vadesi"))) {
    // Dates are stored as yyyy-MM-dd; the old program printed a date
    // column in the regional short form.
    const QDate d = QDate::fromString(v.toString().left(10), Qt::ISODate);
    if (d.isValid()) return Genel::TarihYaz(d);
  }
  return DuzMetin(v);
}

QString DuzMetin(const QVariant& v) {
  if (db::NullMu(v)) return QString();
  if (db::KesirliSayiTuru(v.typeId())) {
    QString s = QString::number(v.toDouble(), 'g', 15);
    s.replace(QLatin1Char('.'), Genel::Bolge().ondalik);
    return s;
  }
  return v.toString();
}

// --- the stream

int Sonuc::SatirSayisi() const { return int(baytlar.count("\r\n")); }

void Akis::Satir(const QByteArray& satir) {
  sonuc_.baytlar += satir;
  sonuc_.baytlar += "\r\n";
  ++satir_;
}

void Akis::Bos(int adet) {
  for (int i = 0; i < adet; ++i) Satir(QByteArray());
}

// --- pieces

QByteArray Cevir(const QString& metin) { return Genel::DosKarakter(metin); }

QByteArray Duz(const QString& metin) { return Genel::Cp1254(metin); }

QByteArray Bosluk(int n) {
  if (n < 0)
    throw Hata{
        QStringLiteral("boşluk sayısı eksi olamaz (%1); yazıcı ayarlarını kontrol ediniz.").arg(n)};
  return QByteArray(n, ' ');
}

void Doldur(QByteArray& satir, int sutun) {
  if (satir.size() > sutun)
    throw Hata{
        QStringLiteral("yazı %1. sütunu geçiyor (%2 karakter).").arg(sutun).arg(satir.size())};
  satir += QByteArray(sutun - satir.size(), ' ');
}

QByteArray SagaDoldur(const QByteArray& s, int genislik) {
  if (genislik <= 0) return QByteArray();
  if (s.size() >= genislik) return s.left(genislik);
  return s + QByteArray(genislik - s.size(), ' ');
}

QByteArray Genislikte(const QByteArray& metin, int genislik) {
  if (metin.size() > genislik)
    throw Hata{QStringLiteral("%1 tutarı %2 karakterlik alana sığmıyor.")
                   .arg(QString::fromLatin1(metin))
                   .arg(genislik)};
  return QByteArray(genislik - metin.size(), ' ') + metin;
}

namespace {

// Drops the zero in front of the decimal sign: 0,50 is ,50 and -0,50 is -,50.
QString BasSifirsiz(QString s) {
  const QString sifir = QStringLiteral("0") + Genel::Bolge().ondalik;
  if (s.startsWith(sifir)) return s.mid(1);
  if (s.startsWith(QLatin1Char('-') + sifir)) return s.remove(1, 1);
  return s;
}

}  // namespace

QString Tutar(const QVariant& deger, bool basSifir) {
  if (db::NullMu(deger)) return QString();
  bool sayi = false;
  const double v = deger.toDouble(&sayi);
  // A text that is no number can't be formatted; it stands as it is.
  if (!sayi) return deger.toString();
  const QString s = Genel::SayiYaz(v, 2);
  return basSifir ? s : BasSifirsiz(s);
}

QString Sayi(double deger, int basamak) {
  const QString s = Genel::SayiYaz(deger, basamak < 0 ? 0 : basamak);
  return basamak > 0 ? BasSifirsiz(s) : s;
}

}  // namespace baski
