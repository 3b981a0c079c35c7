// Functions and collation that the engine lacks and the statements of the
// system use: Turkish ordering and case-folding LIKE, Weekday with Sunday 1,
// day differences, and Val. They work on the engine's UTF-8 directly, without
// an allocation per call, since LIKE and ORDER BY run them once per row.

#include <sqlite3.h>

#include <QString>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

#include "db/Baglanti.h"
#include "db/Turkce.h"
#include "db/Val.h"

namespace db {

namespace {

const char* Metni(sqlite3_value* v) { return reinterpret_cast<const char*>(sqlite3_value_text(v)); }

int TurkceHarmanla(void*, int n1, const void* a, int n2, const void* b) {
  return turkce::Karsilastir(static_cast<const char*>(a), std::size_t(n1),
                             static_cast<const char*>(b), std::size_t(n2));
}

// --- LIKE

// One element of a pattern: a plain character, "_" or "%".
struct Parca {
  enum Tur : std::uint8_t { Harf, Tek, Hepsi };
  char32_t c;
  Tur tur;
};

// Splits an upper-cased pattern into its parts; false when the pattern ends
// in the escape character, which then matches nothing.
bool Parcala(const std::u32string& desen, char32_t kacis, bool kacisVar,
             std::vector<Parca>& parcalar) {
  parcalar.clear();
  for (std::size_t i = 0; i < desen.size(); ++i) {
    const char32_t c = desen[i];
    if (kacisVar && c == kacis) {
      if (++i == desen.size()) return false;
      parcalar.push_back({desen[i], Parca::Harf});
    } else if (c == U'%') {
      if (parcalar.empty() || parcalar.back().tur != Parca::Hepsi)
        parcalar.push_back({c, Parca::Hepsi});
    } else {
      parcalar.push_back({c, c == U'_' ? Parca::Tek : Parca::Harf});
    }
  }
  return true;
}

// Matching by going back only to the last "%": linear in practice, never
// exponential however many "%" the pattern has.
bool Eslesir(const std::u32string& d, const std::vector<Parca>& m) {
  std::size_t i = 0, j = 0;
  std::size_t yildiz = std::u32string::npos, geri = 0;
  while (i < d.size()) {
    if (j < m.size() && m[j].tur != Parca::Hepsi && (m[j].tur == Parca::Tek || m[j].c == d[i])) {
      ++i;
      ++j;
    } else if (j < m.size() && m[j].tur == Parca::Hepsi) {
      yildiz = j++;
      geri = i;
    } else if (yildiz != std::u32string::npos) {
      j = yildiz + 1;
      i = ++geri;
    } else {
      return false;
    }
  }
  while (j < m.size() && m[j].tur == Parca::Hepsi) ++j;
  return j == m.size();
}

// like(pattern, text[, escape]): the engine's LIKE with Turkish case
// folding, so that "ali" finds "ALİ" and "ı" finds "I".
void Like(sqlite3_context* ctx, int argc, sqlite3_value** argv) {
  for (int i = 0; i < argc; ++i)
    if (sqlite3_value_type(argv[i]) == SQLITE_NULL) return sqlite3_result_null(ctx);
  thread_local std::u32string desen, deger, kacisMetni;
  thread_local std::vector<Parca> parcalar;
  char32_t kacis = 0;
  if (argc == 3) {
    turkce::BuyukKodla(Metni(argv[2]), std::size_t(sqlite3_value_bytes(argv[2])), kacisMetni);
    if (kacisMetni.size() != 1) {
      sqlite3_result_error(ctx, "ESCAPE expression must be a single character", -1);
      return;
    }
    kacis = kacisMetni[0];
  }
  turkce::BuyukKodla(Metni(argv[0]), std::size_t(sqlite3_value_bytes(argv[0])), desen);
  turkce::BuyukKodla(Metni(argv[1]), std::size_t(sqlite3_value_bytes(argv[1])), deger);
  const bool sonuc = Parcala(desen, kacis, argc == 3, parcalar) && Eslesir(deger, parcalar);
  sqlite3_result_int(ctx, sonuc ? 1 : 0);
}

// --- dates

// Days since 1970-01-01 of a civil date.
std::int64_t GunNo(int y, int m, int d) {
  y -= m <= 2;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const int yoe = int(y - era * 400);
  const int doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const int doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + doe - 719468;
}

bool Artik(int y) { return (y % 4 == 0 && y % 100 != 0) || y % 400 == 0; }

// A stored date, "YYYY-MM-DD" with or without a time behind it, as a day
// number; false for Null or anything else.
bool GunNumarasi(sqlite3_value* v, std::int64_t& gun) {
  if (sqlite3_value_type(v) == SQLITE_NULL) return false;
  const char* p = Metni(v);
  const int n = sqlite3_value_bytes(v);
  if (!p || n < 10 || p[4] != '-' || p[7] != '-') return false;
  if (n > 10 && p[10] != ' ' && p[10] != 'T') return false;
  int y = 0, m = 0, d = 0;
  if (std::from_chars(p, p + 4, y).ptr != p + 4 || std::from_chars(p + 5, p + 7, m).ptr != p + 7 ||
      std::from_chars(p + 8, p + 10, d).ptr != p + 10)
    return false;
  static constexpr int kAyGun[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  if (m < 1 || m > 12 || d < 1) return false;
  if (d > kAyGun[m - 1] + (m == 2 && Artik(y) ? 1 : 0)) return false;
  gun = GunNo(y, m, d);
  return true;
}

// Weekday(d): 1 for Sunday up to 7 for Saturday.
void Weekday(sqlite3_context* ctx, int, sqlite3_value** argv) {
  std::int64_t gun;
  if (!GunNumarasi(argv[0], gun)) return sqlite3_result_null(ctx);
  // 1970-01-01 was a Thursday, the fifth day counted from Sunday.
  sqlite3_result_int(ctx, int(((gun + 4) % 7 + 7) % 7) + 1);
}

// GunFarki(a, b): whole days from a to b, that is b - a.
void GunFarki(sqlite3_context* ctx, int, sqlite3_value** argv) {
  std::int64_t a, b;
  if (!GunNumarasi(argv[0], a) || !GunNumarasi(argv[1], b)) return sqlite3_result_null(ctx);
  sqlite3_result_int64(ctx, b - a);
}

// --- Val

// Val(x) of the engine; see ValOku. Integers stay integers.
void Val(sqlite3_context* ctx, int, sqlite3_value** argv) {
  switch (sqlite3_value_type(argv[0])) {
    case SQLITE_NULL:
      return sqlite3_result_null(ctx);
    case SQLITE_INTEGER:
      return sqlite3_result_int64(ctx, sqlite3_value_int64(argv[0]));
    case SQLITE_FLOAT:
      return sqlite3_result_double(ctx, sqlite3_value_double(argv[0]));
    default:
      break;
  }
  const ValSonucu v =
      ValOku(std::string_view(Metni(argv[0]), std::size_t(sqlite3_value_bytes(argv[0]))));
  if (v.tamSayi) return sqlite3_result_int64(ctx, v.tam);
  sqlite3_result_double(ctx, v.deger);
}

}  // namespace

ValSonucu ValOku(std::string_view metin) {
  const char* p = metin.data();
  const char* const son = p + metin.size();
  std::string sayi;
  bool isaret = false, rakamVar = false, nokta = false, us = false, usIsareti = false;
  const auto bosluk = [](char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; };
  // An exponent counts only when digits follow it.
  const auto usRakami = [&](const char* q) {
    while (q < son && bosluk(*q)) ++q;
    if (q < son && (*q == '-' || *q == '+')) ++q;
    while (q < son && bosluk(*q)) ++q;
    return q < son && *q >= '0' && *q <= '9';
  };
  for (; p < son; ++p) {
    const char c = *p;
    if (bosluk(c)) continue;
    if (c == '-' || c == '+') {
      if (sayi.empty() && !isaret) {
        isaret = true;
        if (c == '-') sayi += c;
      } else if (usIsareti) {
        sayi += c;
        usIsareti = false;
      } else {
        break;
      }
    } else if (c >= '0' && c <= '9') {
      sayi += c;
      rakamVar = true;
      usIsareti = false;
    } else if (c == '.' && !nokta && !us) {
      sayi += c;
      nokta = true;
    } else if ((c == 'e' || c == 'E') && rakamVar && !us && usRakami(p + 1)) {
      sayi += 'e';
      us = usIsareti = true;
    } else {
      break;
    }
  }
  ValSonucu r;
  if (!rakamVar) return r;
  const char* const bas = sayi.data();
  const char* const bitis = bas + sayi.size();
  if (!nokta && !us) {
    const auto [kalan, hata] = std::from_chars(bas, bitis, r.tam);
    if (hata == std::errc() && kalan == bitis) {
      r.deger = double(r.tam);
      return r;
    }
  }
  r.tamSayi = false;
  r.tam = 0;
  // from_chars ignores the C locale, which Qt sets from the environment.
  // A number beyond the range of a double is as large as one gets.
  if (std::from_chars(bas, bitis, r.deger).ec == std::errc::result_out_of_range)
    r.deger = sayi[0] == '-' ? -HUGE_VAL : HUGE_VAL;
  return r;
}

double Val(QStringView metin) {
  const QByteArray u = metin.toUtf8();
  return ValOku(std::string_view(u.constData(), std::size_t(u.size()))).deger;
}

void FonksiyonlariKaydet(sqlite3* db) {
  const int bayrak = SQLITE_UTF8 | SQLITE_DETERMINISTIC;
  struct Islev {
    const char* ad;
    int argc;
    void (*f)(sqlite3_context*, int, sqlite3_value**);
  };
  static constexpr Islev kIslevler[] = {
      {"like", 2, Like},         {"like", 3, Like}, {"Weekday", 1, Weekday},
      {"GunFarki", 2, GunFarki}, {"Val", 1, Val},
  };
  int rc = sqlite3_create_collation(db, "TURKCE", SQLITE_UTF8, nullptr, TurkceHarmanla);
  for (const Islev& i : kIslevler) {
    if (rc != SQLITE_OK) break;
    rc = sqlite3_create_function(db, i.ad, i.argc, bayrak, nullptr, i.f, nullptr, nullptr);
  }
  if (rc != SQLITE_OK) throw Hata(QString::fromUtf8(sqlite3_errmsg(db)), rc);
}

}  // namespace db
