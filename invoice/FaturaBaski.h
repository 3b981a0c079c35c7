#pragma once
// The invoice's byte streams, without widgets:
// FaturaYazdir, FaturaYazdirSabit, FaturaEkYazdir and FaturaEkYazdirSabit
// as one computation from the invoice's row and the settings, and the steps
// that read that row and refuse a print before it starts.

#include <QString>
#include <variant>

#include "core/Baski.h"

namespace db {
class Baglanti;
}

namespace fatura {

// The four layouts. The fixed ones ("Sabit") are those of the office whose
// owner is kSabitSahip.
enum class Bicim { Fatura, FaturaSabit, Ek, EkSabit };

// The owner name that selects the fixed layouts, compared exactly.
inline constexpr char16_t kSabitSahip[] = u"Sefa Dalkan";
Bicim BicimSec(bool ek, const QString& SahipAdi);

// The keys of section Fatura of the settings file that shape the
// stream; the defaults are those of AyarOku.
struct YaziAyari {
  int BasBosluk = 11, SonBosluk = 10, IsimBas = 24, TarihAtla = 4, VergiAtla = 5, TarihBas = 59,
      VergiBas = 22, TutarSatirAtla = 4, TutarBas = 58, DetaySatirAtla = 9, YeniSayfaAtla = 7;
  bool Sayfabasi = false, PulBedeli = true;
  // The globals as AyarOku loaded them.
  static YaziAyari Genelden();
};

// The stream of an invoice. `satir` is the row of the print statement: the
// invoice with its customer's Soyadi, Ad, HukukiDurum, Adres, Ilce, Il_Ad,
// VergiDairesi and VergiKimlikNo.
baski::Sonuc FaturaAkisi(Bicim bicim, const baski::Kayit& satir, const YaziAyari& ayar);

// Steps 2 to 4 of FaturaYazdir: the row of the contract's invoice, or the
// message that stops the print (no row; an amount not above 0 and an empty
// tax number, but for the fixed layout, which checks no tax number).
std::variant<baski::Kayit, baski::Red> FaturaSatiri(db::Baglanti& b, qint32 SozlesmeID, bool sabit);
// Step 1 of FaturaEkYazdir: the row of the additional invoice of that series
// and number, or the message of a missing row.
std::variant<baski::Kayit, baski::Red> EkFaturaSatiri(db::Baglanti& b, const QString& seri,
                                                      qint64 no);
// The latest invoice (by date, then number), for the form preview; its
// layout is Ek when it belongs to no contract. None when there is none.
struct SonFatura {
  baski::Kayit satir;
  bool ek = false;
};
std::optional<SonFatura> SonFaturaOku(db::Baglanti& b);

// Step 5's question, and what a refusal of the printer looks like.
inline constexpr char16_t kYaziciSorusu[] = u"Lütfen Printer Seçiciyi FATURA için Ayarlayın";
inline constexpr char16_t kYaziciBaslik[] = u"Printer Seçimi";

}  // namespace fatura
