#include "contract/SozlesmeBaski.h"

#include <cmath>
#include <vector>

#include "contract/Faiz.h"
#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Kayitlar.h"
#include "db/Val.h"

namespace sozlesmebaski {

using baski::Bosluk;
using baski::Cevir;
using baski::Duz;

Ayar Ayar::Genelden() {
  Ayar a;
  a.DetayBasBosluk = Genel::DetayBasBosluk;
  a.DetayToplamYaz = Genel::DetayToplamYaz;
  return a;
}

namespace {

// A count of a template row (BOY, DECIMAL): none for Null; a text counts
// by its leading number, as the engine's Val reads it.
std::optional<qint64> Sayisi(const QVariant& v) {
  if (db::NullMu(v)) return std::nullopt;
  bool sayi = false;
  const double x = v.toDouble(&sayi);
  if (sayi) return qint64(std::llround(x));
  return qint64(std::llround(db::Val(v.toString())));
}
int Sayisi(const baski::Kayit& r, const char* alan) {
  const std::optional<qint64> n = Sayisi(r.Deger(QString::fromLatin1(alan)));
  return n ? int(std::clamp<qint64>(*n, -100000, 100000)) : 0;
}

// Two SIRA values are one line when they read alike; Null with Null too.
bool AyniSira(const QVariant& a, const QVariant& b) {
  if (db::NullMu(a) || db::NullMu(b)) return db::NullMu(a) && db::NullMu(b);
  return baski::DuzMetin(a) == baski::DuzMetin(b);
}

// The text of an "N" row: the number with its decimals, digit groups and no
// leading zero; a value that is no number stands as its text.
QString SayiMetni(const QVariant& v, int basamak) {
  if (db::NullMu(v)) return QString();
  bool sayi = false;
  const double x = v.toDouble(&sayi);
  return sayi ? baski::Sayi(x, basamak) : v.toString();
}

// One entry of a column list: the field it names and its column stop.
struct Giris {
  QChar harf;
  int durak = 0;
};

// At most 15 entries; an entry whose letter names no column prints as an
// empty column up to its stop.
constexpr int kEnFazlaGiris = 15;
std::vector<Giris> Girisler(const QString& liste) {
  std::vector<Giris> g;
  for (const QString& parca : liste.split(QLatin1Char(','))) {
    if (int(g.size()) == kEnFazlaGiris) break;
    const QString p = parca.trimmed();
    if (p.isEmpty()) continue;
    g.push_back({p[0].toUpper(), int(std::clamp(db::Val(QStringView(p).mid(1)), 0.0, 10000.0))});
  }
  return g;
}

QString Sutun(const baski::Kayit& belge, QChar harf) {
  switch (harf.unicode()) {
    case 'K':
      return belge.Metin(QStringLiteral("Kesideci"));
    case 'B':
      return belge.Metin(QStringLiteral("Banka"));
    case 'S':
      return belge.Metin(QStringLiteral("Sube"));
    case 'H':
      return belge.Metin(QStringLiteral("HesapNo"));
    case 'C':
      return belge.Metin(QStringLiteral("CekNo"));
    case 'V':
      return belge.Metin(QStringLiteral("Vadesi"));
    case 'D':
      return belge.Metin(QStringLiteral("Doviz"));
    case 'T':
      return belge.Metin(QStringLiteral("Tip"));
    case 'M':
      return belge.Metin(QStringLiteral("Meblag"));
    default:
      return QString();
  }
}

// An amount in 18 columns without a leading zero, as text before conversion.
QString Tutar18(const QVariant& v) {
  return QString::fromLatin1(baski::Genislikte(baski::Tutar(v, false).toLatin1(), 18));
}

// The block of papers (TIP "D").
void Blok(baski::Akis& s, const baski::Kayit& r, const QList<baski::Kayit>& belgeler,
          const Ayar& ayar) {
  int kalan = Sayisi(r, "DECIMAL");
  s.Bos(Sayisi(r, "BOY"));
  s.Bayt(baski::kSikistir);
  const std::vector<Giris> girisler = Girisler(r.Metin(QStringLiteral("ALAN")));
  bool meblagSutunu = false;
  for (const Giris& g : girisler) meblagSutunu = meblagSutunu || g.harf == QLatin1Char('M');
  const QString basBosluk(std::max(ayar.DetayBasBosluk, 0), QLatin1Char(' '));

  double toplam = 0;
  int sonDurak = 0;
  for (const baski::Kayit& belge : belgeler) {
    QString satir;
    int onceki = 1;
    for (const Giris& g : girisler) {
      satir += Sutun(belge, g.harf).left(std::max(g.durak - onceki, 0));
      satir = Genel::SagaDoldur(satir, g.durak);
      onceki = g.durak;
    }
    sonDurak = int(satir.size());
    const QVariant meblag = belge.Deger(QStringLiteral("Meblag"));
    if (!meblagSutunu) satir += Tutar18(meblag);
    if (ayar.DetayBasBosluk > 0) satir = basBosluk + satir;
    s.Satir(Cevir(satir));
    toplam += meblag.toDouble();
    --kalan;
  }
  if (belgeler.isEmpty())
    for (const Giris& g : girisler) sonDurak = std::max(g.durak, 0);

  const QByteArray onu = Duz(basBosluk) + QByteArray(sonDurak, ' ');
  s.Satir(onu + baski::Tekrar(char(196), 18));
  if (ayar.DetayToplamYaz) {
    s.Satir(onu + Duz(Tutar18(toplam)));
    s.Satir(onu + baski::Tekrar(char(205), 18));
  }
  if (kalan > 0) s.Bos(kalan);
  s.Bayt(baski::kNormal);
}

}  // namespace

baski::Sonuc SozlesmeAkisi(const QList<baski::Kayit>& sablon, const baski::Kayit& satir,
                           const QList<baski::Kayit>& belgeler, const Ayar& ayar) {
  return baski::Akis::Calistir([&](baski::Akis& s) {
    if (sablon.isEmpty()) return;
    QVariant sira = sablon.first().Deger(QStringLiteral("SIRA"));
    QByteArray cizgi;  // the current line
    bool bekliyor = true;
    for (const baski::Kayit& r : sablon) {
      if (!AyniSira(r.Deger(QStringLiteral("SIRA")), sira)) {
        if (bekliyor) s.Satir(cizgi);
        sira = r.Deger(QStringLiteral("SIRA"));
        cizgi.clear();
        bekliyor = true;
      }
      const QString tip = r.Metin(QStringLiteral("TIP")).trimmed();
      const QString alan = r.Metin(QStringLiteral("ALAN")).trimmed();
      const QString bicim = r.Metin(QStringLiteral("FORMAT")).trimmed();
      const std::optional<qint64> boy = Sayisi(r.Deger(QStringLiteral("BOY")));
      if (tip == QLatin1String("C")) {
        // A control code; a code no byte can hold gives nothing.
        if (boy && *boy >= 0 && *boy <= 255) cizgi += char(*boy);
      } else if (tip == QLatin1String("S")) {
        cizgi += Bosluk(Sayisi(r, "BOY"));
      } else if (tip == QLatin1String("A")) {
        cizgi = baski::SagaDoldur(cizgi, Sayisi(r, "BOY"));
      } else if (tip == QLatin1String("T")) {
        cizgi += Duz(alan);
      } else if (tip == QLatin1String("Y")) {
        cizgi = QByteArray(1, baski::kSayfa);
        s.Bekle();
      } else if (tip == QLatin1String("N")) {
        const QByteArray t = Duz(SayiMetni(satir.Deger(alan), Sayisi(r, "DECIMAL")));
        // A width is needed to set the number flush right; without BOY the
        // row prints as if without NUMR.
        if (bicim == QLatin1String("NUMR") && boy && *boy > 0)
          cizgi += baski::Genislikte(t, Sayisi(r, "BOY"));
        else
          cizgi += t;
      } else if (tip == QLatin1String("B")) {
        const QString t = satir.Metin(alan);
        cizgi += bicim == QLatin1String("TURKCE") ? Cevir(t) : Duz(t);
      } else if (tip == QLatin1String("P")) {
        cizgi.clear();
        s.Bos(Sayisi(r, "BOY"));
        bekliyor = false;
      } else if (tip == QLatin1String("D")) {
        Blok(s, r, belgeler, ayar);
        bekliyor = false;
      }
    }
    // The last line is not written: a template ends in a "P" or "D" row, or
    // carries one more row behind its form feed.
  });
}

namespace {

// An address line: blanks, PostaKod up to the first stop, Ilce up to the
// second, Il_Ad.
QByteArray AdresSatiri(const baski::Kayit& r, int n, int durak1, int durak2) {
  QString t = QString(n, QLatin1Char(' ')) + r.Metin(QStringLiteral("PostaKod"));
  t = Genel::SagaDoldur(t, durak1) + r.Metin(QStringLiteral("Ilce")).trimmed();
  t = Genel::SagaDoldur(t, durak2) + r.Metin(QStringLiteral("Il_Ad"));
  return Cevir(t);
}

}  // namespace

baski::Sonuc SozlesmeAkisiSabit(const baski::Kayit& r, const QList<baski::Kayit>& belgeler) {
  const auto m = [&r](const char* alan) { return r.Metin(QString::fromLatin1(alan)); };
  const auto n = [&r](const char* alan) {
    return Duz(baski::Tutar(r.Deger(QString::fromLatin1(alan)), false));
  };
  const auto bayt = [](std::initializer_list<int> b) {
    QByteArray a;
    for (int x : b) a += char(x);
    return a;
  };
  return baski::Akis::Calistir([&](baski::Akis& s) {
    s.Satir(bayt({27, 37, 57, 5}));
    s.Bos(1);
    s.Satir(bayt({27, 37, 57, 24}));
    s.Bayt(baski::kNormal);
    s.Bos(6);
    s.Satir(Bosluk(12) + Cevir(m("AdSoyad")));
    s.Bos(2);
    s.Satir(Bosluk(12) + Cevir(m("AdSoyad")));
    s.Bos(8);
    s.Satir(Bosluk(14) + Cevir(m("AdSoyad")));
    s.Satir(Bosluk(12) + Cevir(m("Adres")));
    s.Satir(AdresSatiri(r, 12, 22, 40));
    s.Bos(7);
    s.Satir(Bosluk(40) + n("Tutar"));
    s.Bos(1);
    s.Satir(Bosluk(55) + n("FaizTutar"));
    s.Satir(Bosluk(55) + n("BMVergisi"));
    s.Satir(Bosluk(45) + "(" + n("Odenecek") + ")");
    s.Bayt(baski::kSikistir);
    s.Satir(Bosluk(25) + Cevir(m("Yaziyla")));
    s.Bayt(baski::kNormal);
    s.Bos(9);
    s.Satir(Bosluk(23) + Duz(m("Gun")));
    s.Bos(3);
    s.Satir(Bosluk(36) + n("FaizOran"));
    s.Bos(1);
    s.Satir(Bosluk(61) + n("GecikmeOran"));
    s.Bos(2);
    s.Satir(Bosluk(39) + n("IskontoOran"));
    s.Bayt(baski::kSayfa);

    // The papers, on the second page.
    s.Bos(13);
    s.Bayt(baski::kSikistir);
    double toplam = 0;
    for (const baski::Kayit& b : belgeler) {
      const auto alan = [&b](const char* ad, int kes) {
        return b.Metin(QString::fromLatin1(ad)).left(kes);
      };
      QString t = Genel::SagaDoldur(alan("Kesideci", 26), 28);
      t = Genel::SagaDoldur(t + alan("Banka", 13), 42);
      t = Genel::SagaDoldur(t + alan("Sube", 15), 56);
      t = Genel::SagaDoldur(t + alan("HesapNo", 15), 75);
      t = Genel::SagaDoldur(t + alan("CekNo", 15), 90);
      t = Genel::SagaDoldur(t + alan("Vadesi", 11), 102);
      const QVariant meblag = b.Deger(QStringLiteral("Meblag"));
      t += Tutar18(meblag);
      s.Satir(Cevir(t));
      toplam += meblag.toDouble();
    }
    s.Satir(Bosluk(102) + baski::Tekrar(char(196), 18));
    s.Satir(Bosluk(102) + Duz(Tutar18(toplam)));
    s.Satir(Bosluk(102) + baski::Tekrar(char(205), 18));
    s.Bayt(baski::kSayfa);
    s.Bekle();

    // The back of the form: the stamp duty declaration.
    s.Bos(55);
    s.Bayt(baski::kSayfa);
    s.Bayt(baski::kSikistir);
    s.Bos(33);
    const QString pul = baski::Tutar(r.Deger(QStringLiteral("Tutar")).toDouble() * 0.0075, true);
    s.Satir(Bosluk(88) + Cevir(QStringLiteral("İşbu Ödünç Sözleşmesi İle İlgili Matraha")));
    s.Satir(Bosluk(88) + Cevir(QStringLiteral("Tekabül Eden ") + QChar(27) + QChar(45) + QChar(1) +
                               pul + QStringLiteral(" TL") + QChar(27) + QChar(45) + QChar(0) +
                               QStringLiteral(" Damga Vergisi Bedeli")));
    s.Satir(Bosluk(88) + Cevir(QStringLiteral("Vergi Dairesine Tarafımdan Ödenecektir.")));
    s.Satir(Bosluk(88) + Cevir(QStringLiteral("         DALKAN VELMORA - ORHAN DALKAN")));
    s.Bos(1);
    s.Satir(Bosluk(40) + Cevir(m("AdSoyad")));
    s.Satir(Bosluk(40) + Cevir(m("Adres")));
    s.Satir(AdresSatiri(r, 40, 50, 70));
    s.Bayt(baski::kNormal);
    s.Bos(14);
  });
}

baski::Sonuc Akis(const Baski& b, const QString& SahipAdi, const Ayar& ayar) {
  if (SahipAdi == QStringView(kSabitSahip)) return SozlesmeAkisiSabit(b.satir, b.belgeler);
  return SozlesmeAkisi(b.sablon, b.satir, b.belgeler, ayar);
}

// --- before printing

namespace {

// The papers by Vadesi and the template by SIRA, SUTUN.
void BelgelerVeSablon(db::Baglanti& b, qint32 SozlesmeID, Baski& p) {
  p.belgeler = baski::Kayit::Hepsi(
      b.Sorgu(QStringLiteral("SELECT * FROM SozlesmeDetay WHERE SozlesmeID = ? ORDER BY Vadesi"),
              {SozlesmeID}));
  p.sablon = baski::Kayit::Hepsi(
      b.Sorgu(QStringLiteral("SELECT * FROM SozlesmeTanim ORDER BY SIRA, SUTUN")));
}

}  // namespace

std::variant<Baski, baski::Red> Hazirla(db::Baglanti& b, qint32 SozlesmeID, double Odenecek,
                                        const QString& GunYazisi, bool MasrafGoster) {
  const db::Kayitlar fatura =
      b.Sorgu(QStringLiteral("SELECT BMVergisi, TahsilMasrafi FROM Fatura WHERE SozlesmeID = ?"),
              {SozlesmeID});
  if (!fatura.SatirVar())
    return baski::Red{QStringLiteral("Önce Fatura Bilgilerini Girmelisiniz !"),
                      QStringLiteral("Hata"), mesaj::Tur::Kritik};
  double tutar = Odenecek;
  if (MasrafGoster) {
    tutar -= fatura.Fields(0).toDouble();
    if (!db::NullMu(fatura.Fields(1))) tutar -= fatura.Fields(1).toDouble();
  }
  b.Calistir(QStringLiteral("UPDATE Sozlesme SET Yaziyla = ?, Gun = ? WHERE SozlesmeID = ?"),
             {Genel::YaziyaCevir(tutar), GunYazisi, SozlesmeID});

  const db::Kayitlar rs =
      b.Sorgu(QStringLiteral("SELECT * FROM SozlesmePrint WHERE SozlesmeID = ?"), {SozlesmeID});
  if (!rs.SatirVar())
    return baski::Red{
        QStringLiteral("Lütfen Sözleşme Bilgisini Kaydettikten Sonra Yazıcıya Gönderin"), QString(),
        mesaj::Tur::Duz};
  Baski p;
  p.satir = baski::Kayit::Oku(rs);
  if (!(p.satir.Deger(QStringLiteral("Tutar")).toDouble() > 0))
    return baski::Red{QStringLiteral("Sözleşme tutarı hatalı, lütfen düzeltip tekrar deneyiniz!"),
                      QStringLiteral("HATA"), mesaj::Tur::Kritik};
  BelgelerVeSablon(b, SozlesmeID, p);
  return p;
}

std::optional<Baski> OnizlemeHazirla(db::Baglanti& b, qint32 SozlesmeID) {
  const db::Kayitlar rs =
      b.Sorgu(QStringLiteral("SELECT * FROM SozlesmePrint WHERE SozlesmeID = ?"), {SozlesmeID});
  if (!rs.SatirVar()) return std::nullopt;
  Baski p;
  p.satir = baski::Kayit::Oku(rs);
  BelgelerVeSablon(b, SozlesmeID, p);
  return p;
}

std::optional<EkranDegerleri> EkranDegerleriOku(db::Baglanti& b, qint32 SozlesmeID) {
  const db::Kayitlar rs =
      b.Sorgu(QStringLiteral("SELECT * FROM Sozlesme WHERE SozlesmeID = ?"), {SozlesmeID});
  if (!rs.SatirVar()) return std::nullopt;
  const auto alan = [&rs](const char* ad) { return rs.Fields(QString::fromLatin1(ad)); };
  EkranDegerleri e;
  // Goster: the payable amount of the stored figures.
  if (!db::NullMu(alan("FaizTutar")))
    e.Odenecek = alan("Tutar").toDouble() - alan("FaizTutar").toDouble();

  // TutarHesap over the lines, in the order the screen reads them.
  faiz::Girdi g;
  g.Tarih = QDate::fromString(rs.Metin(QStringLiteral("Tarih")).left(10), Qt::ISODate);
  g.FaizOran = alan("FaizOran").toDouble();
  g.ilaveGun = alan("ilaveGun").toLongLong();
  const QVariant hesapla = alan("Hesapla");
  g.Hesapla = !(db::NullMu(hesapla) || hesapla.toDouble() == 0);
  g.HaftaSonu = Genel::HaftaSonu;
  g.OrtalamaGun = Genel::OrtalamaGun;
  db::Kayitlar d =
      b.Sorgu(QStringLiteral("SELECT Vadesi, Gun, Meblag, CekNo, Kesideci FROM SozlesmeDetay "
                             "WHERE SozlesmeID = ? ORDER BY GirisNo"),
              {SozlesmeID});
  std::vector<faiz::Satir> satirlar;
  for (d.MoveFirst(); !d.Eof(); d.MoveNext()) {
    faiz::Satir s;
    s.Vadesi = QDate::fromString(d.Metin(QStringLiteral("Vadesi")).left(10), Qt::ISODate);
    s.Gun = faiz::GunOku(d.Metin(QStringLiteral("Gun")));
    s.Meblag = d.Fields(QStringLiteral("Meblag")).toDouble();
    if (satirlar.empty()) {
      s.CekNo = d.Metin(QStringLiteral("CekNo"));
      s.Kesideci = d.Metin(QStringLiteral("Kesideci"));
    }
    satirlar.push_back(s);
  }
  const faiz::Sonuc sonuc = faiz::TutarHesap(g, satirlar);
  if (sonuc.Odenecek) e.Odenecek = *sonuc.Odenecek;
  if (sonuc.GunYazisi) e.GunYazisi = *sonuc.GunYazisi;
  return e;
}

qint32 SonFaturaliSozlesme(db::Baglanti& b) {
  const QVariant id =
      b.Deger(QStringLiteral("SELECT SozlesmeID FROM Fatura WHERE SozlesmeID IS NOT NULL "
                             "ORDER BY Tarih DESC, FaturaNo DESC LIMIT 1"));
  return db::NullMu(id) ? 0 : qint32(id.toLongLong());
}

}  // namespace sozlesmebaski
