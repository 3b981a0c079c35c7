#include "core/Bakim.h"

#include <QFile>
#include <QSaveFile>

#include "core/Genel.h"
#include "db/Kayitlar.h"

namespace bakim {

void AraGuncel(db::Baglanti& b) {
  db::Islem islem(b);
  db::Kayitlar rs = b.Sorgu(QStringLiteral("SELECT MusteriNo, Soyadi, Adi, BabaAdi FROM Musteri"));
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    // A Null reads as the empty text; an apostrophe is a character like any other.
    const QString anahtar = Genel::AramaAnahtari(rs.Fields(1).toString(), rs.Fields(2).toString(),
                                                 rs.Fields(3).toString());
    b.Calistir(QStringLiteral("UPDATE Musteri SET Aranacak = ? WHERE MusteriNo = ?"),
               {anahtar, rs.Fields(0)});
  }
  islem.Onayla();
}

namespace {

// Numbers as the classic number-to-text conversion gives them: a blank where
// the sign of a positive number would stand.
QString Sayi(int n) { return n < 0 ? QString::number(n) : QLatin1Char(' ') + QString::number(n); }
QString Bayrak(bool b) { return b ? QStringLiteral("1") : QStringLiteral("0"); }

void IniYedegi(const QString& dosya) {
  const QString F = QStringLiteral("Fatura"), H = QStringLiteral("Hesap"),
                S = QStringLiteral("Sozlesme");
  const struct {
    const QString& bolum;
    const char* anahtar;
    QString deger;
  } degerler[] = {
      {F, "BasBosluk", Sayi(Genel::BasBosluk)},
      {F, "SonBosluk", Sayi(Genel::SonBosluk)},
      {H, "IlaveGun", Sayi(Genel::IlaveGun)},
      {F, "Printer", Genel::PrinterFatura},
      {S, "Printer", Genel::PrinterSozlesme},
      {F, "IsimBas", Sayi(Genel::IsimBas)},
      {F, "TarihAtla", Sayi(Genel::TarihAtla)},
      {F, "VergiAtla", Sayi(Genel::VergiAtla)},
      {F, "TarihBas", Sayi(Genel::TarihBas)},
      {F, "VergiBas", Sayi(Genel::VergiBas)},
      {F, "TutarSatirAtla", Sayi(Genel::TutarSatirAtla)},
      {F, "TutarBas", Sayi(Genel::TutarBas)},
      {F, "DetaySatirAtla", Sayi(Genel::DetaySatirAtla)},
      {F, "YeniSayfaAtla", Sayi(Genel::YeniSayfaAtla)},
      {F, "Sayfabasi", Bayrak(Genel::Sayfabasi)},
      {S, "MasrafGoster", Bayrak(Genel::MasrafGoster)},
  };
  for (const auto& d : degerler) {
    QString neden;
    if (!Genel::IniYaz(dosya, d.bolum, QString::fromLatin1(d.anahtar), d.deger, &neden))
      throw db::Hata(neden);
  }
}

// One line of the template's copy: each value in single quotes and followed
// by a semicolon, no blank between them.
QString Satir(const QStringList& degerler) {
  QString s;
  for (const QString& d : degerler) s += QLatin1Char('\'') + d + QStringLiteral("';");
  return s + QStringLiteral("\r\n");
}

QString Metin(const QVariant& v) {
  if (db::NullMu(v)) return QString();
  if (db::KesirliSayiTuru(v.typeId()))
    return QString::number(v.toDouble(), 'g', 15).replace(QLatin1Char('.'), Genel::Bolge().ondalik);
  return v.toString();
}

void SablonYedegi(db::Baglanti& b, const QString& dosya) {
  QSaveFile f(dosya);
  if (!f.open(QIODevice::WriteOnly)) throw db::Hata(f.errorString());
  const db::Kayitlar rs =
      b.Sorgu(QStringLiteral("SELECT * FROM SozlesmeTanim ORDER BY SIRA, SUTUN"));
  QString metin = Satir(rs.Alanlar());
  for (int i = 0; i < rs.RecordCount(); ++i) {
    QStringList degerler;
    for (int a = 0; a < rs.AlanSayisi(); ++a) degerler << Metin(rs.Deger(i, a));
    metin += Satir(degerler);
  }
  f.write(metin.toUtf8());
  if (!f.commit()) throw db::Hata(f.errorString());
  QFile::setPermissions(dosya, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

}  // namespace

void AyarYedekAl(db::Baglanti& b, const QString& dizin) {
  IniYedegi(dizin + QStringLiteral("/Yedek_Velmora.ini"));
  SablonYedegi(b, dizin + QStringLiteral("/SozlesmeTanim.txt"));
}

}  // namespace bakim
