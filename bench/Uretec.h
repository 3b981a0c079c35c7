#pragma once
// Test data for the benchmarks: a database filled with business that looks
// like an office's own. Every table gets one method; all of them draw from
// the one seeded random source and the shared pools of names and places, so
// that the same seed always gives the same database.

#include <QRandomGenerator>
#include <QSet>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QVector>
#include <utility>

namespace db {
class Baglanti;
}

namespace bench {

class Uretec {
 public:
  explicit Uretec(db::Baglanti& baglanti, quint32 tohum = 20050101);

  struct Aralik {
    qint64 ilk = 0, son = 0;  // numbers given, inclusive
    int adet = 0;
  };

  // Adds customers numbered on from the largest number stored, with a gap
  // now and then as deleted customers leave them. Persons and firms, Turkish
  // names and addresses, provinces weighted by population, legal statuses,
  // some foreigners and some with a guardian or proxy.
  Aralik Musteriler(int adet);

  // --- pieces for the generators of other tables
  QRandomGenerator& Rastgele() { return r_; }
  bool Olasilik(double p);      // true with probability p
  int Arasi(int alt, int ust);  // alt..ust inclusive
  QString Soyadi();
  QString ErkekAdi();
  QString KadinAdi();
  QString BankaAdi();
  struct Yer {
    int ilKod;
    QString il, ilce;
  };
  Yer RastgeleYer();
  QString Adres();
  static QString TcKimlikNo(QRandomGenerator& r);
  static QString VergiKimlikNo(QRandomGenerator& r);

  // Inserts rows in batches within one transaction. Other generators use it
  // for their tables as well.
  void TopluEkle(const QString& tablo, const QStringList& sutunlar,
                 const QVector<QVariantList>& satirlar);

 private:
  void IsimCiz(bool kisi, int durum, QString& soyadi, QString& adi, QString& babaAdi);
  // A weighted choice: the weights need not add up to anything.
  const QString& Sec(const QVector<std::pair<QString, int>>& havuz, int toplam);

  db::Baglanti& b_;
  QRandomGenerator r_;
  QVector<std::pair<int, QString>> iller_;  // IlKod, Il as stored
  QVector<int> ilAgirlik_;
  int ilToplam_ = 0;
  QSet<QString> anahtarlar_;  // duplicate keys of the customers so far
};

}  // namespace bench
