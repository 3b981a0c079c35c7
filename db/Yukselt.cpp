#include "db/Yukselt.h"

#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "db/Sema.h"

namespace db {

namespace {

// One command's transaction; Calistir runs a statement in a savepoint of its
// own and passes over its failure. Should the engine have given up the whole
// transaction (a full disk), nothing of the command is left to pass over to:
// the failure goes to the caller, and the file is as it was.
class Adimlar {
 public:
  Adimlar(Baglanti& b, const Ilerleme& ilerleme) : b_(b), ilerleme_(ilerleme), islem_(b) {}

  void Baslik(const QString& baslik) {
    if (ilerleme_) ilerleme_(baslik);
  }

  void Calistir(const QString& sql) {
    try {
      Islem adim(b_);
      b_.Calistir(sql);
      adim.Onayla();
    } catch (const Hata&) {
      if (!b_.IslemIcinde()) throw;
      ++atlanan_;
    }
  }

  // Adds the columns the table lacks, one statement each.
  void SutunEkle(const QString& tablo, std::initializer_list<const char*> sutunlar) {
    for (const char* s : sutunlar) {
      const QString sutun = QString::fromLatin1(s);
      if (!SutunVar(b_, tablo, sutun))
        Calistir(QStringLiteral("ALTER TABLE %1 ADD %2 REAL").arg(tablo, sutun));
    }
  }

  int Bitir() {
    islem_.Onayla();
    return atlanan_;
  }

 private:
  Baglanti& b_;
  const Ilerleme& ilerleme_;
  Islem islem_;
  int atlanan_ = 0;
};

}  // namespace

bool TabloVar(Baglanti& b, const QString& tablo) {
  return !NullMu(
      b.Deger(QStringLiteral(
                  "SELECT 1 FROM sqlite_master WHERE type = 'table' AND name = ? COLLATE NOCASE"),
              {tablo}));
}

bool SutunVar(Baglanti& b, const QString& tablo, const QString& sutun) {
  return !NullMu(
      b.Deger(QStringLiteral("SELECT 1 FROM pragma_table_info(?) WHERE name = ? COLLATE NOCASE"),
              {tablo, sutun}));
}

bool VersiyonYukselt(Baglanti& b) {
  Islem islem(b);
  GorunumleriKur(b);
  bool yapildi = true;
  try {
    Islem tablolar(b);
    HesapTablolariOlustur(b);
    tablolar.Onayla();
  } catch (const Hata&) {
    if (!b.IslemIcinde()) throw;
    yapildi = false;
  }
  islem.Onayla();
  return yapildi;
}

bool PulBedeliEksik(Baglanti& b) {
  return !SutunVar(b, QStringLiteral("Fatura"), QStringLiteral("PulBedeli"));
}

int PulBedeliEkle(Baglanti& b, const Ilerleme& ilerleme) {
  Adimlar a(b, ilerleme);
  a.Baslik(QStringLiteral("Fatura Tablosu Tanımlanıyor"));
  a.Calistir(QStringLiteral("ALTER TABLE Fatura ADD PulBedeli REAL"));
  a.Baslik(QStringLiteral("Fatura Tablosu Ayarlanıyor"));
  a.Calistir(QStringLiteral("UPDATE Fatura SET PulBedeli = 0"));
  return a.Bitir();
}

bool YtlYapisiEksik(Baglanti& b) {
  return !SutunVar(b, QStringLiteral("SozlesmeDetay"), QStringLiteral("MeblagTL"));
}

int YtlDonustur(Baglanti& b, bool yapiDegisecek, const Ilerleme& ilerleme) {
  Adimlar a(b, ilerleme);
  if (yapiDegisecek) {
    a.Baslik(QStringLiteral("Fatura Tablosu Tanımlanıyor"));
    a.SutunEkle(QStringLiteral("Fatura"),
                {"TutarTL", "BMVergisiTL", "TahsilMasrafiTL", "ToplamMasrafTL", "ToplamTutarTL"});
    a.Baslik(QStringLiteral("Sözleşme Tablosu Tanımlanıyor"));
    a.SutunEkle(QStringLiteral("Sozlesme"), {"TutarTL", "FaizTutarTL"});
    a.Baslik(QStringLiteral("Çek Bilgileri Tanımlanıyor"));
    a.SutunEkle(QStringLiteral("SozlesmeDetay"), {"MeblagTL"});
    // Every number on the printed contract shows two decimals from now on.
    a.Calistir(QStringLiteral("UPDATE SozlesmeTanim SET \"DECIMAL\" = 2 WHERE TIP = 'N'"));
  }
  // The copy goes first, then the division; a converted row falls below the
  // line, so that a second run finds nothing in it to do.
  a.Baslik(QStringLiteral("Fatura Tablosu Ayarlanıyor"));
  a.Calistir(QStringLiteral(
      "UPDATE Fatura SET TutarTL = Tutar, BMVergisiTL = BMVergisi, TahsilMasrafiTL = "
      "TahsilMasrafi, ToplamMasrafTL = ToplamMasraf, ToplamTutarTL = ToplamTutar "
      "WHERE Tutar > 250000"));
  a.Calistir(QStringLiteral(
      "UPDATE Fatura SET Tutar = Tutar / 1000000, BMVergisi = BMVergisi / 1000000, "
      "TahsilMasrafi = TahsilMasrafi / 1000000, ToplamMasraf = ToplamMasraf / 1000000, "
      "ToplamTutar = ToplamTutar / 1000000 WHERE Tutar > 250000"));
  a.Baslik(QStringLiteral("Sözleşme Tablosu Ayarlanıyor"));
  a.Calistir(QStringLiteral(
      "UPDATE Sozlesme SET TutarTL = Tutar, FaizTutarTL = FaizTutar WHERE Tutar > 250000"));
  a.Calistir(
      QStringLiteral("UPDATE Sozlesme SET Tutar = Tutar / 1000000, FaizTutar = FaizTutar / 1000000 "
                     "WHERE Tutar > 250000"));
  a.Baslik(QStringLiteral("Çek Bilgileri Ayarlanıyor"));
  a.Calistir(QStringLiteral("UPDATE SozlesmeDetay SET MeblagTL = Meblag WHERE Meblag > 250000"));
  a.Calistir(
      QStringLiteral("UPDATE SozlesmeDetay SET Meblag = Meblag / 1000000 WHERE Meblag > 250000"));
  return a.Bitir();
}

}  // namespace db
