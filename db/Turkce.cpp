#include "db/Turkce.h"

#include <QChar>
#include <QString>
#include <algorithm>
#include <cstdint>
#include <unordered_map>
#include <vector>

#include "db/Kayitlar.h"

namespace db::turkce {

namespace {

constexpr char32_t kGecersiz = 0xFFFD;

// Reads characters from UTF-8 bytes.
class Utf8 {
 public:
  Utf8(const char* p, std::size_t n)
      : p_(reinterpret_cast<const unsigned char*>(p)), son_(p_ + n) {}

  bool Sonraki(char32_t& c) {
    if (p_ == son_) return false;
    const unsigned char b = *p_++;
    if (b < 0x80) {
      c = b;
      return true;
    }
    int ek;
    char32_t deger, enAz;
    if ((b & 0xE0) == 0xC0) {
      ek = 1, deger = b & 0x1F, enAz = 0x80;
    } else if ((b & 0xF0) == 0xE0) {
      ek = 2, deger = b & 0x0F, enAz = 0x800;
    } else if ((b & 0xF8) == 0xF0) {
      ek = 3, deger = b & 0x07, enAz = 0x10000;
    } else {
      c = kGecersiz;
      return true;
    }
    if (son_ - p_ < ek) {
      p_ = son_;
      c = kGecersiz;
      return true;
    }
    for (int i = 0; i < ek; ++i) {
      if ((p_[i] & 0xC0) != 0x80) {
        c = kGecersiz;
        return true;
      }
      deger = (deger << 6) | (p_[i] & 0x3F);
    }
    p_ += ek;
    c = (deger < enAz || deger > 0x10FFFF || (deger >= 0xD800 && deger < 0xE000)) ? kGecersiz
                                                                                  : deger;
    return true;
  }

 private:
  const unsigned char* p_;
  const unsigned char* son_;
};

// Reads characters from UTF-16 (QString).
class Utf16 {
 public:
  explicit Utf16(const QString& s) : p_(s.constData()), son_(p_ + s.size()) {}

  bool Sonraki(char32_t& c) {
    if (p_ == son_) return false;
    const char16_t u = (p_++)->unicode();
    if (QChar::isHighSurrogate(u) && p_ != son_ && p_->isLowSurrogate()) {
      c = QChar::surrogateToUcs4(u, (p_++)->unicode());
      return true;
    }
    c = u;
    return true;
  }

 private:
  const QChar* p_;
  const QChar* son_;
};

// Where a character stands in the order: its base letter (primary), a
// circumflex (secondary) and its case (tertiary).
struct Anahtar {
  std::uint32_t birincil;
  std::uint8_t ikincil;
  std::uint8_t ucuncul;
};

// Places of the 32 letters: a b c ç d e f g ğ h ı i j k l m n o ö p q r s ş t
// u ü v w x y z. Index by the ASCII small letter.
constexpr std::uint8_t kAsciiSira[26] = {0,  1,  2,  4,  5,  6,  7,  9,  11, 12, 13, 14, 15,
                                         16, 17, 19, 20, 21, 22, 24, 25, 27, 28, 29, 30, 31};

constexpr std::uint32_t kHarf = 1u << 24;     // letters of the alphabet
constexpr std::uint32_t kYabanci = 2u << 24;  // other letters, by their small form

Anahtar AnahtarBul(char32_t c) {
  if (c < 0x80) {
    if (c >= 'a' && c <= 'z') return {kHarf | kAsciiSira[c - 'a'], 0, 1};
    if (c == 'I') return {kHarf | 10, 0, 0};  // dotless capital
    if (c >= 'A' && c <= 'Z') return {kHarf | kAsciiSira[c - 'A'], 0, 0};
    return {c, 0, 0};
  }
  switch (c) {
    case U'ç':
      return {kHarf | 3, 0, 1};
    case U'Ç':
      return {kHarf | 3, 0, 0};
    case U'ğ':
      return {kHarf | 8, 0, 1};
    case U'Ğ':
      return {kHarf | 8, 0, 0};
    case U'ı':
      return {kHarf | 10, 0, 1};
    case U'İ':
      return {kHarf | 11, 0, 0};
    case U'ö':
      return {kHarf | 18, 0, 1};
    case U'Ö':
      return {kHarf | 18, 0, 0};
    case U'ş':
      return {kHarf | 23, 0, 1};
    case U'Ş':
      return {kHarf | 23, 0, 0};
    case U'ü':
      return {kHarf | 26, 0, 1};
    case U'Ü':
      return {kHarf | 26, 0, 0};
    case U'â':
      return {kHarf | 0, 1, 1};
    case U'Â':
      return {kHarf | 0, 1, 0};
    case U'î':
      return {kHarf | 11, 1, 1};
    case U'Î':
      return {kHarf | 11, 1, 0};
    case U'û':
      return {kHarf | 25, 1, 1};
    case U'Û':
      return {kHarf | 25, 1, 0};
    default:
      break;
  }
  if (QChar::isLetter(c)) {
    const char32_t kucuk = QChar::toLower(c);
    return {kYabanci | kucuk, 0, std::uint8_t(kucuk == c ? 1 : 0)};
  }
  return {c, 0, 0};
}

template <class A, class B>
int Sirala(A a, B b) {
  int ikincil = 0, ucuncul = 0;
  char32_t x = 0, y = 0;
  for (;;) {
    const bool varX = a.Sonraki(x), varY = b.Sonraki(y);
    if (!varX || !varY) {
      if (varX != varY) return varX ? 1 : -1;  // a prefix comes first
      break;
    }
    if (x == y) continue;
    const Anahtar kx = AnahtarBul(x), ky = AnahtarBul(y);
    if (kx.birincil != ky.birincil) return kx.birincil < ky.birincil ? -1 : 1;
    if (ikincil == 0 && kx.ikincil != ky.ikincil) ikincil = kx.ikincil < ky.ikincil ? -1 : 1;
    if (ucuncul == 0 && kx.ucuncul != ky.ucuncul) ucuncul = kx.ucuncul < ky.ucuncul ? -1 : 1;
  }
  return ikincil != 0 ? ikincil : ucuncul;
}

}  // namespace

int Karsilastir(const char* a, std::size_t na, const char* b, std::size_t nb) {
  return Sirala(Utf8(a, na), Utf8(b, nb));
}

void SiraAnahtari(const char* p, std::size_t n, std::string& hedef) {
  // Three runs, one per level of Sirala: the base letters (four bytes each,
  // one above their place so that the closing zeros sort before any of
  // them), then the circumflexes, then the cases. Texts whose base letters
  // agree have as many characters, so the second and third runs line up.
  hedef.clear();
  std::string ikincil, ucuncul;
  Utf8 okuyucu(p, n);
  char32_t c;
  while (okuyucu.Sonraki(c)) {
    const Anahtar k = AnahtarBul(c);
    const std::uint32_t b = k.birincil + 1;
    hedef.push_back(char(b >> 24));
    hedef.push_back(char(b >> 16));
    hedef.push_back(char(b >> 8));
    hedef.push_back(char(b));
    ikincil.push_back(char(k.ikincil));
    ucuncul.push_back(char(k.ucuncul));
  }
  hedef.append(4, '\0');
  hedef += ikincil;
  hedef += ucuncul;
}

char32_t Buyuk(char32_t c) {
  if (c < 0x80) return (c >= 'a' && c <= 'z') ? (c == 'i' ? U'İ' : c - 32) : c;
  if (c == U'ı') return U'I';
  return QChar::toUpper(c);
}

void BuyukKodla(const char* p, std::size_t n, std::u32string& hedef) {
  hedef.clear();
  Utf8 okuyucu(p, n);
  char32_t c;
  while (okuyucu.Sonraki(c)) hedef.push_back(Buyuk(c));
}

}  // namespace db::turkce

namespace db {

namespace {

// Every character with the same upper case as `c` by Turkish rules, `c`
// among them: "i" and "İ", "ı" and "I", "s", "S" and the long s.
std::vector<char32_t> Esler(char32_t c) {
  // Characters by their upper case, for those that differ from it; made once.
  static const std::unordered_map<char32_t, std::vector<char32_t>> kucukler = [] {
    std::unordered_map<char32_t, std::vector<char32_t>> m;
    for (char32_t x = 0; x <= 0x10FFFF; ++x) {
      if (x >= 0xD800 && x < 0xE000) continue;
      const char32_t b = turkce::Buyuk(x);
      if (b != x) m[b].push_back(x);
    }
    return m;
  }();
  const char32_t buyuk = turkce::Buyuk(c);
  std::vector<char32_t> esler;
  if (turkce::Buyuk(buyuk) == buyuk) esler.push_back(buyuk);
  if (auto it = kucukler.find(buyuk); it != kucukler.end())
    esler.insert(esler.end(), it->second.begin(), it->second.end());
  return esler;
}

void Ekle(QString& s, char32_t c) {
  if (QChar::requiresSurrogates(c)) {
    s += QChar(QChar::highSurrogate(c));
    s += QChar(QChar::lowSurrogate(c));
  } else {
    s += QChar(char16_t(c));
  }
}

template <class It>
QString Yazi(It bas, It son) {
  QString s;
  for (; bas != son; ++bas) Ekle(s, *bas);
  return s;
}

// The first text after all those that begin with `onek`: its last character
// one higher (surrogates skipped). A last character that can't grow goes, and
// the one before it grows; empty when there is no such text.
QString OnekSonu(std::vector<char32_t> onek) {
  while (!onek.empty()) {
    char32_t son = onek.back();
    onek.pop_back();
    if (son < 0x10FFFF) {
      onek.push_back(son + 1 == 0xD800 ? 0xE000 : son + 1);
      return Yazi(onek.begin(), onek.end());
    }
  }
  return QString();
}

}  // namespace

std::vector<Aralik> TurkceAraliklar(const QString& metin, int enFazla) {
  // The case forms of the first letters, as long as their combinations stay
  // within the limit.
  std::vector<std::vector<char32_t>> harfler;
  std::size_t adet = 1;
  turkce::Utf16 okuyucu(metin);
  char32_t c;
  while (okuyucu.Sonraki(c)) {
    std::vector<char32_t> esler = Esler(c);
    if (!harfler.empty() && adet * esler.size() > std::size_t(std::max(enFazla, 1))) break;
    adet *= esler.size();
    harfler.push_back(std::move(esler));
  }
  // The empty text: only itself.
  if (harfler.empty()) return {{QString(), QString(QChar(1))}};

  std::vector<Aralik> araliklar;
  std::vector<std::size_t> secim(harfler.size(), 0);
  std::vector<char32_t> onek(harfler.size());
  for (;;) {
    for (std::size_t i = 0; i < harfler.size(); ++i) onek[i] = harfler[i][secim[i]];
    araliklar.push_back({Yazi(onek.begin(), onek.end()), OnekSonu(onek)});
    // The next combination.
    std::size_t i = harfler.size();
    while (i > 0 && ++secim[i - 1] == harfler[i - 1].size()) secim[--i] = 0;
    if (i == 0) break;
  }
  return araliklar;
}

int TurkceKarsilastir(const QString& a, const QString& b) {
  return turkce::Sirala(turkce::Utf16(a), turkce::Utf16(b));
}

QString TurkceBuyuk(const QString& s) {
  QString r;
  r.reserve(s.size());
  turkce::Utf16 okuyucu(s);
  char32_t c;
  while (okuyucu.Sonraki(c)) {
    const char32_t b = turkce::Buyuk(c);
    if (QChar::requiresSurrogates(b)) {
      r += QChar(QChar::highSurrogate(b));
      r += QChar(QChar::lowSurrogate(b));
    } else {
      r += QChar(char16_t(b));
    }
  }
  return r;
}

}  // namespace db
