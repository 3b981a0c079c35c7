#pragma once
// Turkish ordering and upper-casing on raw UTF-8, for the engine's collation,
// its LIKE and the record sets' Sort. Internal to db/: the QString forms
// TurkceKarsilastir and TurkceBuyuk are declared in Kayitlar.h.

#include <cstddef>
#include <string>

namespace db::turkce {

// Order of two UTF-8 texts by the Turkish alphabet: base letters first
// (ç after c, ğ after g, ı before i, ö after o, ş after s, ü after u; q, w, x
// where the Latin alphabet has them), then circumflex (a before â), then case
// (capitals first). Digits and signs come before letters.
int Karsilastir(const char* a, std::size_t na, const char* b, std::size_t nb);

// A key whose bytes, compared as memcmp compares them, order texts as
// Karsilastir does: equal keys for texts it calls equal. For sorting many
// texts, each read once.
void SiraAnahtari(const char* p, std::size_t n, std::string& hedef);

// Upper case of one character by Turkish rules: i -> İ, ı -> I.
char32_t Buyuk(char32_t c);

// Decodes UTF-8 into characters upper-cased by Turkish rules. Bytes that are
// no valid UTF-8 become U+FFFD.
void BuyukKodla(const char* p, std::size_t n, std::u32string& hedef);

}  // namespace db::turkce
