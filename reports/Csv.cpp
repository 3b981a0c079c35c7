#include "reports/Csv.h"

#include <QFile>
#include <QSaveFile>

#include "core/Genel.h"

namespace csv {

QString Alan(const QString& metin) {
  const bool tirnak = metin.contains(QLatin1Char(';')) || metin.contains(QLatin1Char('"')) ||
                      metin.contains(QLatin1Char('\n')) || metin.contains(QLatin1Char('\r')) ||
                      (!metin.isEmpty() && (metin.front().isSpace() || metin.back().isSpace()));
  if (!tirnak) return metin;
  QString m = metin;
  m.replace(QLatin1Char('"'), QStringLiteral("\"\""));
  return QLatin1Char('"') + m + QLatin1Char('"');
}

namespace {

void SatirEkle(QString& hedef, const QStringList& alanlar) {
  for (int i = 0; i < alanlar.size(); ++i) {
    if (i > 0) hedef += QLatin1Char(';');
    hedef += Alan(alanlar[i]);
  }
  hedef += QStringLiteral("\r\n");
}

}  // namespace

QByteArray Yaz(const QStringList& basliklar, const QVector<QStringList>& satirlar) {
  QString metin;
  SatirEkle(metin, basliklar);
  for (const QStringList& s : satirlar) SatirEkle(metin, s);
  return QByteArray("\xEF\xBB\xBF") + metin.toUtf8();
}

bool Kaydet(const QString& yol, const QByteArray& veri, QString* hata) {
  QSaveFile f(yol);
  if (!f.open(QIODevice::WriteOnly) || f.write(veri) != veri.size() || !f.commit()) {
    if (hata) *hata = f.errorString();
    return false;
  }
  return true;
}

QString Metin(const QVariant& deger, const Sutun& sutun) {
  if (db::NullMu(deger)) return QString();
  switch (sutun.bicim) {
    case Sutun::Bicim::Sayi: {
      QString m = Genel::SayiYaz(deger.toDouble(), sutun.basamak, sutun.gruplu);
      const QString sifir = QStringLiteral("0") + Genel::Bolge().ondalik;
      if (!sutun.onSifir && m.startsWith(sifir)) m.remove(0, 1);
      if (!sutun.onSifir && m.startsWith(QLatin1Char('-') + sifir)) m.remove(1, 1);
      return m;
    }
    case Sutun::Bicim::Tarih:
      return Genel::TarihEkran(deger);
    case Sutun::Bicim::Duz:
      break;
  }
  return deger.toString();
}

QByteArray Yaz(const db::Kayitlar& rs, const QVector<Sutun>& sutunlar) {
  QStringList basliklar;
  QVector<int> no;
  for (const Sutun& s : sutunlar) {
    basliklar << s.baslik;
    no << rs.AlanNo(s.alan);
  }
  QVector<QStringList> satirlar;
  satirlar.reserve(rs.RecordCount());
  for (int r = 0; r < rs.RecordCount(); ++r) {
    QStringList satir;
    for (int i = 0; i < sutunlar.size(); ++i)
      satir << (no[i] < 0 ? QString() : Metin(rs.Deger(r, no[i]), sutunlar[i]));
    satirlar << satir;
  }
  return Yaz(basliklar, satirlar);
}

}  // namespace csv
