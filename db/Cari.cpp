#include "db/Cari.h"

#include <QStringList>

#include "db/Baglanti.h"

namespace db {

namespace {

// Only the engine's own functions: another program writing lines into the
// file (the sqlite3 shell, a script) runs these triggers too.

// Day number of a stored date, as GunFarki reads one: "YYYY-MM-DD", with or
// without a time behind it, a real day of the calendar (the engine reads
// "2023-02-29" as the first of March, so the day must come back as it was
// written); Null otherwise.
QString GunSayisi(const QString& x) {
  return QStringLiteral(
             "(CASE WHEN substr(%1, 11, 1) IN ('', ' ', 'T') "
             "AND date(julianday(substr(%1, 1, 10))) = substr(%1, 1, 10) "
             "THEN julianday(substr(%1, 1, 10)) END)")
      .arg(x);
}

// Whole days from the contract's date to the line's maturity.
QString GunFarkiIfadesi(const QString& tarih, const QString& vadesi) {
  return QStringLiteral("CAST(%1 - %2 AS INTEGER)").arg(GunSayisi(vadesi), GunSayisi(tarih));
}

const char* const kSutunlar[] = {"Belge",     "Tutar", "TutarAdet", "Batak",
                                 "BatakAdet", "Gun",   "GunAdet"};

// What the lines `satir` (an alias, or NEW/OLD of a line's trigger) of
// `kaynak` (a FROM clause ending in a WHERE) add to their customer `musteri`
// whose contract is dated `tarih`; `isaret` "-" takes them away instead.
// `programda`: the statement runs only in this program, whose GunFarki counts
// the days as the engine's expression does at a fraction of its cost.
QString Katki(const QString& satir, const QString& musteri, const QString& tarih,
              const QString& kaynak, const QString& isaret, bool programda = false) {
  const QString tutar = CariTutar(satir + QStringLiteral(".Meblag"));
  const QString vadesi = satir + QStringLiteral(".Vadesi");
  const QString fark = programda ? QStringLiteral("GunFarki(%1, %2)").arg(tarih, vadesi)
                                 : GunFarkiIfadesi(tarih, vadesi);
  const QString bos = satir + QStringLiteral(".Odenmesi IS NULL");
  const QStringList degerler = {
      QStringLiteral("count(*)"),
      QStringLiteral("CAST(total(%1) AS INTEGER)").arg(tutar),
      QStringLiteral("count(%1.Meblag)").arg(satir),
      QStringLiteral("CAST(total(CASE WHEN %1 THEN %2 ELSE 0 END) AS INTEGER)").arg(bos, tutar),
      QStringLiteral("CAST(total(%1) AS INTEGER)").arg(bos),
      QStringLiteral("CAST(total(%1) AS INTEGER)").arg(fark),
      QStringLiteral("count(%1)").arg(fark),
  };
  QStringList secilen, guncelle;
  for (int i = 0; i < degerler.size(); ++i) {
    secilen << isaret + degerler[i];
    const QString s = QString::fromLatin1(kSutunlar[i]);
    guncelle << QStringLiteral("%1 = %1 + excluded.%1").arg(s);
  }
  // The WHERE of `kaynak` keeps the engine from reading ON CONFLICT as a
  // join's ON.
  return QStringLiteral(
             "INSERT INTO MusteriCari (MusteriNo, %1) SELECT %2, %3 FROM %4 AND %2 IS NOT NULL "
             "GROUP BY %2 ON CONFLICT (MusteriNo) DO UPDATE SET %5;")
      .arg(QString::fromLatin1("Belge, Tutar, TutarAdet, Batak, BatakAdet, Gun, GunAdet"), musteri,
           secilen.join(QStringLiteral(", ")), kaynak, guncelle.join(QStringLiteral(", ")));
}

// One line (NEW or OLD of a line's trigger), through its contract.
QString SatirKatkisi(const QString& satir, const QString& isaret) {
  return Katki(satir, QStringLiteral("S.MusteriNo"), QStringLiteral("S.Tarih"),
               QStringLiteral("Sozlesme S WHERE S.SozlesmeID = %1.SozlesmeID").arg(satir), isaret);
}

// Every line of one contract (NEW or OLD of a contract's trigger).
QString SozlesmeKatkisi(const QString& sozlesme, const QString& isaret) {
  return Katki(QStringLiteral("L"), sozlesme + QStringLiteral(".MusteriNo"),
               sozlesme + QStringLiteral(".Tarih"),
               QStringLiteral("SozlesmeDetay L WHERE L.SozlesmeID = %1.SozlesmeID").arg(sozlesme),
               isaret);
}

struct Tetik {
  const char* ad;
  const char* olay;  // what fires it, with its WHEN
  QString (*govde)();
};

const QString kEksi = QStringLiteral("-");

const Tetik kTetikler[] = {
    {"MusteriCari_DetayEkle", "AFTER INSERT ON SozlesmeDetay",
     [] { return SatirKatkisi(QStringLiteral("NEW"), QString()); }},
    {"MusteriCari_DetaySil", "AFTER DELETE ON SozlesmeDetay",
     [] { return SatirKatkisi(QStringLiteral("OLD"), kEksi); }},
    {"MusteriCari_DetayDegis",
     "AFTER UPDATE OF SozlesmeID, Meblag, Odenmesi, Vadesi ON SozlesmeDetay "
     "WHEN OLD.SozlesmeID IS NOT NEW.SozlesmeID OR OLD.Meblag IS NOT NEW.Meblag "
     "OR OLD.Vadesi IS NOT NEW.Vadesi OR (OLD.Odenmesi IS NULL) <> (NEW.Odenmesi IS NULL)",
     [] {
       return SatirKatkisi(QStringLiteral("OLD"), kEksi) +
              SatirKatkisi(QStringLiteral("NEW"), QString());
     }},
    {"MusteriCari_SozlesmeEkle", "AFTER INSERT ON Sozlesme",
     [] { return SozlesmeKatkisi(QStringLiteral("NEW"), QString()); }},
    {"MusteriCari_SozlesmeSil", "AFTER DELETE ON Sozlesme",
     [] { return SozlesmeKatkisi(QStringLiteral("OLD"), kEksi); }},
    {"MusteriCari_SozlesmeDegis",
     "AFTER UPDATE OF SozlesmeID, MusteriNo, Tarih ON Sozlesme "
     "WHEN OLD.SozlesmeID IS NOT NEW.SozlesmeID OR OLD.MusteriNo IS NOT NEW.MusteriNo "
     "OR OLD.Tarih IS NOT NEW.Tarih",
     [] {
       return SozlesmeKatkisi(QStringLiteral("OLD"), kEksi) +
              SozlesmeKatkisi(QStringLiteral("NEW"), QString());
     }},
};

}  // namespace

QString CariTutar(const QString& alan) {
  return QStringLiteral("coalesce(CAST(round(%1 * 1000000) AS INTEGER), 0)").arg(alan);
}

bool CariOzetVar(Baglanti& b) {
  QStringList adlar{QStringLiteral("MusteriCari")};
  for (const Tetik& t : kTetikler) adlar << QString::fromLatin1(t.ad);
  const int bulunan =
      b.Deger(QStringLiteral("SELECT count(*) FROM sqlite_master WHERE name IN ('%1')")
                  .arg(adlar.join(QStringLiteral("', '"))))
          .toInt();
  return bulunan == adlar.size();
}

void CariOzetKur(Baglanti& b) {
  Islem islem(b);
  for (const Tetik& t : kTetikler)
    b.Calistir(QStringLiteral("DROP TRIGGER IF EXISTS %1").arg(QString::fromLatin1(t.ad)));
  b.Calistir(QStringLiteral("DROP TABLE IF EXISTS MusteriCari"));
  b.Calistir(
      QStringLiteral("CREATE TABLE MusteriCari (MusteriNo INTEGER NOT NULL PRIMARY KEY, "
                     "Belge INTEGER NOT NULL, Tutar INTEGER NOT NULL, TutarAdet INTEGER NOT NULL, "
                     "Batak INTEGER NOT NULL, BatakAdet INTEGER NOT NULL, Gun INTEGER NOT NULL, "
                     "GunAdet INTEGER NOT NULL) WITHOUT ROWID"));
  b.Calistir(Katki(QStringLiteral("L"), QStringLiteral("S.MusteriNo"), QStringLiteral("S.Tarih"),
                   QStringLiteral("Sozlesme S INNER JOIN SozlesmeDetay L "
                                  "ON L.SozlesmeID = S.SozlesmeID WHERE 1"),
                   QString(), true));
  for (const Tetik& t : kTetikler)
    b.Calistir(QStringLiteral("CREATE TRIGGER %1 %2 BEGIN %3 END")
                   .arg(QString::fromLatin1(t.ad), QString::fromLatin1(t.olay), t.govde()));
  islem.Onayla();
}

}  // namespace db
