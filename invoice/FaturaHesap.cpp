#include "invoice/FaturaHesap.h"

#include <limits>

#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Kayitlar.h"

namespace fatura {

QString SayiBicimi(double deger) { return Genel::SayiYaz(deger, 2); }

double Oku(const QString& metin) {
  double v = 0;
  return Genel::SayiOkuDene(metin, v) ? v : 0;
}

QString PulBedeli(const QString& sozlesmeTutar) {
  return SayiBicimi(Oku(sozlesmeTutar) * kPulOrani);
}

Acilis AcilisDegerleri(const QString& sozlesmeTutar, bool PulBedeliAyari,
                       const QString& varsayilanSeri, const std::optional<baski::Kayit>& fatura) {
  Acilis a;
  a.Pul = SayiBicimi(0);
  a.PulGorunur = PulBedeliAyari;
  if (PulBedeliAyari) a.Pul = PulBedeli(sozlesmeTutar);
  a.BMOran = QString::fromUtf16(kVarsayilanOran);
  a.FaturaSeri = varsayilanSeri;
  if (fatura) {
    const baski::Kayit& f = *fatura;
    a.BMOran = baski::DuzMetin(f.Deger(QStringLiteral("BMVergisiYuzde")));
    a.FaturaNo = baski::DuzMetin(f.Deger(QStringLiteral("FaturaNo")));
    // ParaFormat of a Null fee is that of the empty text.
    a.Masraf = SayiBicimi(f.Deger(QStringLiteral("TahsilMasrafi")).toDouble());
    a.Pul = SayiBicimi(f.Deger(QStringLiteral("PulBedeli")).toDouble());
    a.FaturaSeri = f.Metin(QStringLiteral("FaturaSeri"));
    a.FaturaVar = true;
  }
  return a;
}

Sonuc Hesapla(const Girdi& g) {
  Sonuc s;
  QString masraf = g.Masraf;
  if (masraf.isEmpty()) s.MasrafDoldur = true;  // and the fee counts 0
  const double tutar = Oku(g.Tutar);
  s.Vergi = Oku(g.BMOran) * tutar / 100;
  s.Masraflar = s.Vergi + Oku(masraf) + Oku(g.Pul);
  const double toplam = s.Masraflar + tutar;
  s.BMVergisi = SayiBicimi(s.Vergi);
  s.ToplamOdeme = SayiBicimi(s.Masraflar);
  s.Toplam = Genel::YuvarlaBankaci(toplam, 2);
  s.GenelToplam = SayiBicimi(s.Toplam);
  s.Yazi = Genel::YaziyaCevir(s.Toplam);
  return s;
}

// --- the row

namespace {

double Tutar(const QString& metin, const char* alan) {
  double v = 0;
  if (!Genel::SayiOkuDene(metin, v))
    throw Red{QStringLiteral("%1 sayı değil: \"%2\"").arg(QString::fromUtf8(alan), metin)};
  return v;
}

qint64 Numara(const QString& metin, const char* alan) {
  bool tamam = false;
  const qint64 n = metin.trimmed().toLongLong(&tamam);
  if (!tamam) throw Red{QStringLiteral("%1 geçersiz: \"%2\"").arg(QString::fromUtf8(alan), metin)};
  return n;
}

QVariant Tarih(const QString& metin) {
  const QVariant t = Genel::TarihSql(metin);
  if (db::NullMu(t)) throw Red{QStringLiteral("Tarih geçersiz: \"%1\"").arg(metin)};
  return t;
}

// The values common to both saves, after FaturaSeri, FaturaNo, Tarih, MusteriNo.
QVariantList Tutarlar(const Satir& s) {
  return {Tutar(s.Tutar, "Tutar"),
          Tutar(s.BMOran, "B.M. Vergi Oranı"),
          Tutar(s.BMVergisi, "B.M. Vergisi"),
          Tutar(s.Masraf, "Tahsil Masrafı"),
          Tutar(s.ToplamOdeme, "Toplam Müşteri Ödemesi"),
          Tutar(s.Pul, "Pul Bedeli")};
}

}  // namespace

qint32 FaturaNoOku(const QString& metin) {
  bool tamam = false;
  const qint64 n = metin.trimmed().toLongLong(&tamam);
  if (!tamam || n < 1 || n > std::numeric_limits<qint32>::max())
    throw Red{QStringLiteral("Fatura numarası 1 ile %1 arasında bir tam sayı olmalıdır: \"%2\"")
                  .arg(std::numeric_limits<qint32>::max())
                  .arg(metin)};
  return qint32(n);
}

QString YaziylaMetni(const QString& lblYazi, bool ek) {
  return QStringLiteral("Yalnız ") + lblYazi + (ek ? QStringLiteral(" TL.") : QStringLiteral(" "));
}

void Kaydet(db::Baglanti& b, const Satir& s, bool FaturaVar) {
  if (!s.SozlesmeID) throw Red{QStringLiteral("Sözleşme yok")};
  const QVariantList t = Tutarlar(s);
  const QVariantList degerler = {s.FaturaSeri,   FaturaNoOku(s.FaturaNo),
                                 Tarih(s.Tarih), Numara(s.MusteriNo, "Müşteri numarası"),
                                 s.SozlesmeSeri, Numara(s.SozlesmeNo, "Sözleşme numarası"),
                                 t[0],           t[1],
                                 t[2],           t[3],
                                 t[4],           t[5],
                                 *s.SozlesmeID,  Tutar(s.GenelToplam, "Genel Toplam"),
                                 s.Yaziyla};
  db::Islem islem(b);
  if (FaturaVar)
    b.Calistir(QStringLiteral("DELETE FROM Fatura WHERE SozlesmeID = ?"), {*s.SozlesmeID});
  b.Calistir(QStringLiteral("INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, "
                            "SozlesmeSeri, SozlesmeNo, Tutar, BMVergisiYuzde, BMVergisi, "
                            "TahsilMasrafi, ToplamMasraf, PulBedeli, SozlesmeID, ToplamTutar, "
                            "Yaziyla) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
             degerler);
  islem.Onayla();
}

bool EkKaydet(db::Baglanti& b, const Satir& s) {
  const QVariantList t = Tutarlar(s);
  const qint32 no = FaturaNoOku(s.FaturaNo);
  const QVariantList degerler = {
      s.FaturaSeri, no,   Tarih(s.Tarih), Numara(s.MusteriNo, "Müşteri numarası"),
      s.Aciklama,   t[0], t[1],           t[2],
      t[3],         t[4], t[5],           Tutar(s.GenelToplam, "Genel Toplam"),
      s.Yaziyla};
  db::Islem islem(b);
  // A contract's invoice is never lost by typing its number here.
  const db::Kayitlar var =
      b.Sorgu(QStringLiteral("SELECT SozlesmeID FROM Fatura WHERE FaturaNo = ? AND FaturaSeri = ?"),
              {no, s.FaturaSeri});
  if (var.SatirVar() && !db::NullMu(var.Fields(0))) return false;
  b.Calistir(QStringLiteral("DELETE FROM Fatura WHERE FaturaNo = ? AND FaturaSeri = ?"),
             {no, s.FaturaSeri});
  b.Calistir(QStringLiteral("INSERT INTO Fatura(FaturaSeri, FaturaNo, Tarih, MusteriNo, Aciklama, "
                            "Tutar, BMVergisiYuzde, BMVergisi, TahsilMasrafi, ToplamMasraf, "
                            "PulBedeli, ToplamTutar, Yaziyla) "
                            "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
             degerler);
  islem.Onayla();
  return true;
}

void Sil(db::Baglanti& b, qint32 SozlesmeID) {
  b.Calistir(QStringLiteral("DELETE FROM Fatura WHERE SozlesmeID = ?"), {SozlesmeID});
}

std::optional<qint64> SonrakiNo(db::Baglanti& b, const QString& seri, const QDate& bugun) {
  QVariant tarih = b.Deger(QStringLiteral("SELECT max(Tarih) FROM Fatura"));
  if (db::NullMu(tarih)) tarih = bugun.toString(Qt::ISODate);
  // The day of the latest invoice: what the old engine compared with a date
  // without a time.
  const QVariant enBuyuk = b.Deger(
      QStringLiteral("SELECT max(FaturaNo) FROM Fatura WHERE FaturaSeri = ? AND Tarih >= ?"),
      {seri, tarih.toString().left(10)});
  if (db::NullMu(enBuyuk)) return std::nullopt;
  return enBuyuk.toLongLong() + 1;
}

std::optional<qint64> EkSonrakiNo(db::Baglanti& b, const QString& seri) {
  const QVariant enBuyuk =
      b.Deger(QStringLiteral("SELECT max(FaturaNo) FROM Fatura WHERE FaturaSeri = ?"), {seri});
  if (db::NullMu(enBuyuk)) return std::nullopt;
  return enBuyuk.toLongLong() + 1;
}

}  // namespace fatura
