#include "db/Kayitlar.h"

#include <algorithm>
#include <numeric>

#include "db/Baglanti.h"

namespace db {

namespace {

// Position of a letter in the Turkish alphabet order, or -1 for a character
// outside it. Capitals and small letters share a place; case is second.
int HarfSirasi(QChar c) {
  static const QString kucuk = QStringLiteral("abcçdefgğhıijklmnoöprsştuüvyzqwx");
  static const QString buyuk = QStringLiteral("ABCÇDEFGĞHIİJKLMNOÖPRSŞTUÜVYZQWX");
  int i = kucuk.indexOf(c);
  if (i >= 0) return i;
  return buyuk.indexOf(c);
}

bool Sayisal(const QVariant& v) {
  const int t = v.typeId();
  return t == QMetaType::LongLong || t == QMetaType::Int || t == QMetaType::Double ||
         t == QMetaType::UInt || t == QMetaType::ULongLong || t == QMetaType::Bool;
}

bool Esit(const QVariant& a, const QVariant& b) {
  if (NullMu(a) || NullMu(b)) return NullMu(a) && NullMu(b);
  if (Sayisal(a) || Sayisal(b)) {
    bool ok1 = false, ok2 = false;
    const double x = a.toString().trimmed().toDouble(&ok1);
    const double y = b.toString().trimmed().toDouble(&ok2);
    if (ok1 && ok2) return x == y;
    return false;
  }
  return a.toString() == b.toString();
}

int Karsilastir(const QVariant& a, const QVariant& b) {
  const bool na = NullMu(a), nb = NullMu(b);
  if (na || nb) return na == nb ? 0 : (na ? -1 : 1);
  if (Sayisal(a) && Sayisal(b)) {
    const double x = a.toDouble(), y = b.toDouble();
    return x < y ? -1 : (x > y ? 1 : 0);
  }
  return TurkceKarsilastir(a.toString(), b.toString());
}

}  // namespace

int TurkceKarsilastir(const QString& a, const QString& b) {
  const int n = std::min(a.size(), b.size());
  int buyukluk = 0;
  for (int i = 0; i < n; ++i) {
    const QChar x = a[i], y = b[i];
    if (x == y) continue;
    const int hx = HarfSirasi(x), hy = HarfSirasi(y);
    if (hx >= 0 && hy >= 0) {
      if (hx != hy) return hx < hy ? -1 : 1;
      if (buyukluk == 0) buyukluk = x.isUpper() ? -1 : 1;  // capitals first on a tie
      continue;
    }
    // Non-letters come before letters, and among themselves by code.
    if (hx >= 0) return 1;
    if (hy >= 0) return -1;
    return x.unicode() < y.unicode() ? -1 : 1;
  }
  if (a.size() != b.size()) return a.size() < b.size() ? -1 : 1;
  return buyukluk;
}

QString TurkceBuyuk(const QString& s) {
  QString r;
  r.reserve(s.size());
  for (QChar c : s) {
    if (c == QLatin1Char('i'))
      r += QChar(0x0130);
    else if (c == QChar(0x0131))
      r += QLatin1Char('I');
    else
      r += c.toUpper();
  }
  return r;
}

int Kayitlar::AlanNo(const QString& ad) const {
  for (int i = 0; i < alanlar_.size(); ++i)
    if (alanlar_[i].compare(ad, Qt::CaseInsensitive) == 0) return i;
  return -1;
}

Kayitlar::Bookmark Kayitlar::bookmark() const { return SatirVar() ? kimlik_[konum_] : -1; }

void Kayitlar::setBookmark(Bookmark b) {
  const int i = int(kimlik_.indexOf(b));
  konum_ = i >= 0 ? i : int(satirlar_.size());
}

QVariant Kayitlar::Fields(const QString& ad) const {
  const int i = AlanNo(ad);
  if (i < 0) throw Hata(QStringLiteral("Alan bulunamadı: %1").arg(ad));
  return Fields(i);
}

QVariant Kayitlar::Fields(int alan) const {
  if (!SatirVar()) throw Hata(QStringLiteral("Geçerli kayıt yok (EOF veya BOF)"));
  if (alan < 0 || alan >= alanlar_.size()) throw Hata(QStringLiteral("Alan numarası geçersiz"));
  return satirlar_[konum_][alan];
}

QString Kayitlar::Metin(const QString& ad) const {
  const QVariant v = Fields(ad);
  return NullMu(v) ? QString() : v.toString();
}

QVariant Kayitlar::Deger(int satir, int alan) const {
  if (satir < 0 || satir >= satirlar_.size() || alan < 0 || alan >= alanlar_.size())
    return QVariant();
  return satirlar_[satir][alan];
}

bool Kayitlar::Find(const QString& alan, const QVariant& deger, bool bastan) {
  const int a = AlanNo(alan);
  if (a < 0) throw Hata(QStringLiteral("Alan bulunamadı: %1").arg(alan));
  int i = bastan ? 0 : std::max(konum_, 0);
  for (; i < satirlar_.size(); ++i) {
    if (Esit(satirlar_[i][a], deger)) {
      konum_ = i;
      return true;
    }
  }
  konum_ = int(satirlar_.size());
  return false;
}

bool Kayitlar::FindIf(const std::function<bool(const Kayitlar&)>& kosul, bool bastan) {
  const int bas = bastan ? 0 : std::max(konum_, 0);
  for (konum_ = bas; konum_ < satirlar_.size(); ++konum_)
    if (kosul(*this)) return true;
  return false;
}

void Kayitlar::Requery() {
  if (!kaynak_) return;
  Doldur(kaynak_, sql_, param_);
}

void Kayitlar::Sort(const QString& alan, bool artan) {
  const int a = AlanNo(alan);
  if (a < 0) throw Hata(QStringLiteral("Alan bulunamadı: %1").arg(alan));
  const Bookmark b = bookmark();
  QVector<int> sira(satirlar_.size());
  std::iota(sira.begin(), sira.end(), 0);
  std::stable_sort(sira.begin(), sira.end(), [&](int x, int y) {
    const int k = Karsilastir(satirlar_[x][a], satirlar_[y][a]);
    return artan ? k < 0 : k > 0;
  });
  QVector<QVector<QVariant>> yeni;
  QVector<int> yeniKimlik;
  yeni.reserve(sira.size());
  yeniKimlik.reserve(sira.size());
  for (int i : sira) {
    yeni.push_back(std::move(satirlar_[i]));
    yeniKimlik.push_back(kimlik_[i]);
  }
  satirlar_ = std::move(yeni);
  kimlik_ = std::move(yeniKimlik);
  if (b >= 0)
    setBookmark(b);
  else
    konum_ = 0;
}

}  // namespace db
