#include "db/Kayitlar.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <limits>
#include <numeric>

#include "db/Baglanti.h"
#include "db/Turkce.h"

namespace db {

namespace {

bool Sayisal(const QVariant& v) { return TamSayiTuru(v.typeId()) || KesirliSayiTuru(v.typeId()); }

// A whole text read as a number, blanks around it allowed, "." as the
// decimal point.
bool SayiOku(const char* p, std::size_t n, double& x) {
  const char* son = p + n;
  while (p < son && *p == ' ') ++p;
  while (son > p && son[-1] == ' ') --son;
  if (p < son && *p == '+') ++p;
  if (p == son) return false;
  const auto [kalan, hata] = std::from_chars(p, son, x);
  return hata == std::errc() && kalan == son;
}

}  // namespace

int Kayitlar::AlanNo(const QString& ad) const {
  for (int i = 0; i < alanlar_.size(); ++i)
    if (alanlar_[i].compare(ad, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

int Kayitlar::AlanNoZorunlu(const QString& ad) const {
  const int i = AlanNo(ad);
  if (i < 0) throw Hata(QStringLiteral("Alan bulunamadı: %1").arg(ad));
  return i;
}

void Kayitlar::setAbsolutePosition(int konum) {
  konum_ = (konum >= 1 && konum <= satirSayisi_) ? konum - 1 : satirSayisi_;
}

void Kayitlar::Move(int satir) { konum_ = std::clamp(satir, -1, satirSayisi_); }

Kayitlar::Bookmark Kayitlar::bookmark() const { return SatirVar() ? Fiziksel(konum_) : -1; }

void Kayitlar::setBookmark(Bookmark b) {
  if (b < 0 || b >= satirSayisi_)
    konum_ = satirSayisi_;
  else
    konum_ = yer_.empty() ? b : yer_[std::size_t(b)];
}

QVariant Kayitlar::Varyant(const Hucre& h) const {
  switch (h.tur) {
    case Hucre::Tam:
      return QVariant(qlonglong(h.tam));
    case Hucre::Ondalik:
      return QVariant(h.ondalik);
    case Hucre::Yazi:
      return QVariant(QString::fromUtf8(YaziBasi(h), qsizetype(h.yazi.boy)));
    case Hucre::Bos:
      break;
  }
  return QVariant();
}

QVariant Kayitlar::Fields(const QString& ad) const { return Fields(AlanNoZorunlu(ad)); }

QVariant Kayitlar::Fields(int alan) const {
  if (!SatirVar()) throw Hata(QStringLiteral("Geçerli kayıt yok (EOF veya BOF)"));
  if (alan < 0 || alan >= alanlar_.size()) throw Hata(QStringLiteral("Alan numarası geçersiz"));
  return Varyant(HucreAl(Fiziksel(konum_), alan));
}

QString Kayitlar::Metin(const QString& ad) const {
  const QVariant v = Fields(ad);
  return NullMu(v) ? QString() : v.toString();
}

QVariant Kayitlar::Deger(int satir, int alan) const {
  if (satir < 0 || satir >= satirSayisi_ || alan < 0 || alan >= alanlar_.size()) return QVariant();
  return Varyant(HucreAl(Fiziksel(satir), alan));
}

bool Kayitlar::Find(const QString& alan, const QVariant& deger, bool bastan) {
  const int a = AlanNoZorunlu(alan);
  // The sought value once in each form the cells may have.
  const bool bos = NullMu(deger);
  bool sayiVar = false;
  double sayi = 0;
  bool yaziVar = false;
  QByteArray yazi;
  if (!bos && Sayisal(deger)) {
    sayiVar = true;
    sayi = deger.toDouble();
  } else if (!bos) {
    yaziVar = true;
    yazi = deger.toString().toUtf8();
    sayiVar = SayiOku(yazi.constData(), std::size_t(yazi.size()), sayi);
  }
  const auto esit = [&](const Hucre& h) {
    switch (h.tur) {
      case Hucre::Bos:
        return bos;
      case Hucre::Tam:
        return sayiVar && double(h.tam) == sayi;
      case Hucre::Ondalik:
        return sayiVar && h.ondalik == sayi;
      case Hucre::Yazi:
        if (yaziVar)
          return h.yazi.boy == std::uint32_t(yazi.size()) &&
                 std::memcmp(YaziBasi(h), yazi.constData(), h.yazi.boy) == 0;
        double x;
        return sayiVar && SayiOku(YaziBasi(h), h.yazi.boy, x) && x == sayi;
    }
    return false;
  };
  for (int i = bastan ? 0 : std::max(konum_, 0); i < satirSayisi_; ++i) {
    if (esit(HucreAl(Fiziksel(i), a))) {
      konum_ = i;
      return true;
    }
  }
  konum_ = satirSayisi_;
  return false;
}

bool Kayitlar::FindIf(const std::function<bool(const Kayitlar&)>& kosul, bool bastan) {
  for (konum_ = bastan ? 0 : std::max(konum_, 0); konum_ < satirSayisi_; ++konum_)
    if (kosul(*this)) return true;
  return false;
}

void Kayitlar::Requery() {
  if (!kaynak_) return;
  Doldur(kaynak_, sql_, param_);
}

bool Kayitlar::SatirYenile(const QString& alan, const QVariant& anahtar, const QString& sql,
                           const QVariantList& deger) {
  if (!kaynak_) return false;
  sira_.clear();
  yer_.clear();
  const bool bulundu = Find(alan, anahtar, true);
  const int satir = konum_;
  konum_ = 0;
  Kayitlar yeni;
  if (bulundu) yeni.Doldur(kaynak_, sql, deger);
  if (!bulundu || yeni.satirSayisi_ != 1 || yeni.alanlar_ != alanlar_) {
    Requery();
    return false;
  }
  // The new texts go behind the old ones; the old slices are left unused.
  if (metinler_.size() + yeni.metinler_.size() >
      qsizetype(std::numeric_limits<std::uint32_t>::max())) {
    Requery();
    return false;
  }
  const auto kaydir = std::uint32_t(metinler_.size());
  metinler_.append(yeni.metinler_);
  Hucre* h = &hucreler_[std::size_t(satir) * std::size_t(alanlar_.size())];
  for (Hucre y : yeni.hucreler_) {
    if (y.tur == Hucre::Yazi) y.yazi.bas += kaydir;
    *h++ = y;
  }
  return true;
}

void Kayitlar::Sort(const QString& alan, bool artan) {
  const int a = AlanNoZorunlu(alan);
  const Bookmark b = bookmark();
  // Null, then numbers, then texts.
  const auto sinif = [](const Hucre& h) {
    return h.tur == Hucre::Bos ? 0 : (h.tur == Hucre::Yazi ? 2 : 1);
  };
  const auto sayi = [](const Hucre& h) { return h.tur == Hucre::Tam ? double(h.tam) : h.ondalik; };
  // Texts by their Turkish sort keys, each made once: a sort compares every
  // row many times.
  std::vector<std::string> anahtar(static_cast<std::size_t>(satirSayisi_));
  for (int r = 0; r < satirSayisi_; ++r) {
    const Hucre& h = HucreAl(r, a);
    if (h.tur == Hucre::Yazi) turkce::SiraAnahtari(YaziBasi(h), h.yazi.boy, anahtar[std::size_t(r)]);
  }
  const auto kiyasla = [&](int x, int y) {
    const Hucre& hx = HucreAl(x, a);
    const Hucre& hy = HucreAl(y, a);
    const int sx = sinif(hx), sy = sinif(hy);
    if (sx != sy) return sx < sy ? -1 : 1;
    if (sx == 0) return 0;
    if (sx == 2) return anahtar[std::size_t(x)].compare(anahtar[std::size_t(y)]);
    if (hx.tur == Hucre::Tam && hy.tur == Hucre::Tam)
      return hx.tam < hy.tam ? -1 : (hx.tam > hy.tam ? 1 : 0);
    const double vx = sayi(hx), vy = sayi(hy);
    return vx < vy ? -1 : (vx > vy ? 1 : 0);
  };
  if (sira_.empty()) {
    sira_.resize(std::size_t(satirSayisi_));
    std::iota(sira_.begin(), sira_.end(), 0);
  }
  std::stable_sort(sira_.begin(), sira_.end(), [&](int x, int y) {
    const int k = kiyasla(x, y);
    return artan ? k < 0 : k > 0;
  });
  yer_.resize(sira_.size());
  for (std::size_t i = 0; i < sira_.size(); ++i) yer_[std::size_t(sira_[i])] = int(i);
  if (b >= 0)
    setBookmark(b);
  else
    konum_ = 0;
}

}  // namespace db
