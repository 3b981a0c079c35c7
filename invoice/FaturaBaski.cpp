#include "invoice/FaturaBaski.h"

#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Kayitlar.h"

namespace fatura {

using baski::Bosluk;
using baski::Cevir;
using baski::Doldur;
using baski::Duz;
using baski::Genislikte;

Bicim BicimSec(bool ek, const QString& SahipAdi) {
  const bool sabit = SahipAdi == QStringView(kSabitSahip);
  if (ek) return sabit ? Bicim::EkSabit : Bicim::Ek;
  return sabit ? Bicim::FaturaSabit : Bicim::Fatura;
}

YaziAyari YaziAyari::Genelden() {
  YaziAyari a;
  a.BasBosluk = Genel::BasBosluk;
  a.SonBosluk = Genel::SonBosluk;
  a.IsimBas = Genel::IsimBas;
  a.TarihAtla = Genel::TarihAtla;
  a.VergiAtla = Genel::VergiAtla;
  a.TarihBas = Genel::TarihBas;
  a.VergiBas = Genel::VergiBas;
  a.TutarSatirAtla = Genel::TutarSatirAtla;
  a.TutarBas = Genel::TutarBas;
  a.DetaySatirAtla = Genel::DetaySatirAtla;
  a.YeniSayfaAtla = Genel::YeniSayfaAtla;
  a.Sayfabasi = Genel::Sayfabasi;
  a.PulBedeli = Genel::PulBedeli;
  return a;
}

namespace {

// The percent as the number's shortest plain text with a point: 5, 7.5.
QString Yuzde(const QVariant& v) {
  if (db::NullMu(v)) return QString();
  bool sayi = false;
  const double x = v.toDouble(&sayi);
  return sayi ? QString::number(x, 'g', 15) : v.toString().trimmed();
}

// An amount of the row in a width, with a leading zero unless told.
QByteArray Tutar(const baski::Kayit& r, const char* alan, int genislik, bool basSifir = true) {
  return Genislikte(Duz(baski::Tutar(r.Deger(QString::fromLatin1(alan)), basSifir)), genislik);
}

}  // namespace

baski::Sonuc FaturaAkisi(Bicim bicim, const baski::Kayit& r, const YaziAyari& ayar) {
  const bool sabit = bicim == Bicim::FaturaSabit || bicim == Bicim::EkSabit;
  const bool ek = bicim == Bicim::Ek || bicim == Bicim::EkSabit;
  YaziAyari a = ayar;
  if (sabit) {
    a.IsimBas = 24;
    a.TutarSatirAtla = 4;
    a.TutarBas = 58;
    a.DetaySatirAtla = 9;
    a.Sayfabasi = false;
  }
  const auto m = [&r](const char* alan) { return r.Metin(QString::fromLatin1(alan)); };

  return baski::Akis::Calistir([&](baski::Akis& s) {
    s.Bos(a.BasBosluk);
    s.Bayt(baski::kSikistir);

    // The name: a natural person given name first, all others surname first.
    const bool gercekKisi = !ek && m("HukukiDurum") == QLatin1String("1");
    const QString ust = gercekKisi ? m("Ad") : m("Soyadi");
    const QString alt = gercekKisi ? m("Soyadi") : m("Ad");
    s.Satir(Bosluk(a.IsimBas) + Cevir(ust));
    s.Satir(Bosluk(a.IsimBas) + Cevir(alt));
    s.Satir(Bosluk(a.IsimBas) + Cevir(m("Adres")));
    s.Satir(Bosluk(a.IsimBas + 10) + Cevir(m("Ilce")));
    s.Satir(Bosluk(a.IsimBas + 10) + Cevir(m("Il_Ad")));

    // The date and the tax office with the tax number.
    const QByteArray tarih = Cevir(m("Tarih"));
    const QByteArray vergi = Cevir(m("VergiDairesi") + QStringLiteral("   ") + m("VergiKimlikNo"));
    const QByteArray normal(1, baski::kNormal);
    if (sabit) {
      s.Bos(4);
      s.Satir(normal + Bosluk(59) + tarih);
      s.Satir(Bosluk(22) + vergi);
    } else if (a.TarihAtla < a.VergiAtla) {
      s.Bos(a.TarihAtla);
      s.Satir(normal + Bosluk(a.TarihBas) + tarih);
      s.Bos(a.VergiAtla - a.TarihAtla - 1);
      s.Satir(Bosluk(a.VergiBas) + vergi);
    } else if (a.TarihAtla > a.VergiAtla) {
      s.Bos(a.VergiAtla);
      s.Satir(Bosluk(a.VergiBas) + vergi);
      s.Bos(a.TarihAtla - a.VergiAtla - 1);
      s.Satir(normal + Bosluk(a.TarihBas) + tarih);
    } else {
      // One line, and TarihBas is the gap behind the tax number.
      s.Satir(normal + Bosluk(a.VergiBas) + vergi + Bosluk(a.TarihBas) + tarih);
    }

    // The invoice's amount: the interest of the contract, or the text of an
    // additional invoice.
    s.Bos(a.TutarSatirAtla);
    QByteArray satir = Bosluk(8) + Cevir(m("SozlesmeNo") +
                                         (ek ? QStringLiteral(" ") + m("Aciklama")
                                             : QStringLiteral("  NOLU VELMORA SÖZLEŞMESİ GEREĞİ")));
    Doldur(satir, a.TutarBas);
    s.Satir(satir + Tutar(r, "Tutar", 18, sabit));
    s.Satir(Bosluk(29) + (ek ? Bosluk(15) : Cevir(QStringLiteral(" VELMORA GELİRİ"))));

    // Tax, fee, stamp duty and their total.
    s.Bos(a.DetaySatirAtla);
    const int girinti = sabit || a.TutarBas >= 52 ? 21 : a.TutarBas - 31;
    const int sutun = sabit ? 43 : a.TutarBas - 15;
    const auto ayrinti = [&](const QByteArray& metin) {
      QByteArray l = Bosluk(girinti) + metin;
      Doldur(l, sutun);
      return l;
    };
    s.Satir(ayrinti(Cevir(QStringLiteral("BSMV Vergisi: %") +
                          Yuzde(r.Deger(QStringLiteral("BMVergisiYuzde"))))) +
            Tutar(r, "BMVergisi", 15));
    s.Satir(ayrinti(Duz(QStringLiteral("Tahsil Masraf: "))) + Tutar(r, "TahsilMasrafi", 15));
    if (a.PulBedeli)
      s.Satir(ayrinti(Duz(QStringLiteral("Pul Bedeli:    "))) + Tutar(r, "PulBedeli", 15));
    s.Satir(ayrinti(Cevir(QStringLiteral("Toplam:"))) + Tutar(r, "ToplamMasraf", 15) +
            Tutar(r, "ToplamMasraf", 18));
    // The total stays on its paper line with the stamp duty line left out.
    s.Bos(a.PulBedeli ? 3 : 4);
    s.Satir(Bosluk(sabit ? 53 : a.TutarBas - 5) + Cevir(QStringLiteral("YEKÜN")) +
            Tutar(r, "ToplamTutar", 18));

    s.Bos(a.SonBosluk);
    s.Bayt(baski::kSikistir);
    s.Satir(Bosluk(10) + Cevir(m("Yaziyla")));
    s.Bayt(baski::kNormal);
    s.Bos(a.YeniSayfaAtla);
    if (a.Sayfabasi) s.Bayt(baski::kSayfa);
  });
}

// --- the row

namespace {

const char* const kSecim =
    "SELECT M.Soyadi, M.Adi AS AD, M.HukukiDurum, * FROM Fatura F "
    "INNER JOIN Musteri M ON F.MusteriNo = M.MusteriNo ";

baski::Red Uyari(const QString& metin) {
  return {metin, QStringLiteral("UYARI"), mesaj::Tur::Unlem};
}

const QString kKayitYok =
    QStringLiteral("Lütfen Fatura Bilgisini Kaydettikten Sonra Yazıcıya Gönderin");

}  // namespace

std::variant<baski::Kayit, baski::Red> FaturaSatiri(db::Baglanti& b, qint32 SozlesmeID,
                                                    bool sabit) {
  const db::Kayitlar rs =
      b.Sorgu(QString::fromLatin1(kSecim) + QStringLiteral("WHERE F.SozlesmeID = ?"), {SozlesmeID});
  if (!rs.SatirVar()) return Uyari(kKayitYok);
  baski::Kayit r = baski::Kayit::Oku(rs);
  if (!(r.Deger(QStringLiteral("Tutar")).toDouble() > 0))
    return Uyari(QStringLiteral("Fatura Tutarında Uyuşmazlık Var. Lütfen Kontrol Ediniz!"));
  if (!sabit && r.Metin(QStringLiteral("VergiKimlikNo")).trimmed().isEmpty())
    return Uyari(QStringLiteral("Vergi Kimlik No Boş. Lütfen Kontrol Ediniz!"));
  return r;
}

std::variant<baski::Kayit, baski::Red> EkFaturaSatiri(db::Baglanti& b, const QString& seri,
                                                      qint64 no) {
  const db::Kayitlar rs = b.Sorgu(
      QString::fromLatin1(kSecim) + QStringLiteral("WHERE F.FaturaNo = ? AND F.FaturaSeri = ?"),
      {no, seri});
  if (!rs.SatirVar()) return Uyari(kKayitYok);
  return baski::Kayit::Oku(rs);
}

std::optional<SonFatura> SonFaturaOku(db::Baglanti& b) {
  const db::Kayitlar rs = b.Sorgu(QString::fromLatin1(kSecim) +
                                  QStringLiteral("ORDER BY F.Tarih DESC, F.FaturaNo DESC LIMIT 1"));
  if (!rs.SatirVar()) return std::nullopt;
  SonFatura s;
  s.satir = baski::Kayit::Oku(rs);
  s.ek = db::NullMu(s.satir.Deger(QStringLiteral("SozlesmeID")));
  return s;
}

}  // namespace fatura
