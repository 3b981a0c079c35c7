#pragma once
// The contract's byte stream, without widgets: the template
// interpreter SozlesmeYazdir, the fixed layout SozlesmeYazdirSabit, and the
// common steps before either prints.

#include <QList>
#include <QString>
#include <variant>

#include "core/Baski.h"

namespace db {
class Baglanti;
}

namespace sozlesmebaski {

// The owner name that selects the fixed layout, compared exactly.
inline constexpr char16_t kSabitSahip[] = u"Sefa Dalkan";

// The keys of section Sozlesme that shape the template's block of papers.
struct Ayar {
  int DetayBasBosluk = 0;
  bool DetayToplamYaz = true;
  static Ayar Genelden();
};

// SozlesmeYazdir: the rows of SozlesmeTanim in the order SIRA, SUTUN; the
// row of SozlesmePrint; the contract's papers (rows of SozlesmeDetay) in
// the order of Vadesi. An empty template gives no bytes.
baski::Sonuc SozlesmeAkisi(const QList<baski::Kayit>& sablon, const baski::Kayit& satir,
                           const QList<baski::Kayit>& belgeler, const Ayar& ayar);

// SozlesmeYazdirSabit.
baski::Sonuc SozlesmeAkisiSabit(const baski::Kayit& satir, const QList<baski::Kayit>& belgeler);

// What the common steps hand on to the stream.
struct Baski {
  baski::Kayit satir;            // SozlesmePrint
  QList<baski::Kayit> belgeler;  // SozlesmeDetay by Vadesi
  QList<baski::Kayit> sablon;    // SozlesmeTanim by SIRA, SUTUN
};

// Steps 1 to 5 of the print: the contract's invoice must exist; the words of
// the amount (Odenecek, less the tax and fee with MasrafGoster) and
// GunYazisi are stored in the contract; the row must exist and its Tutar be
// above 0. Steps 1 to 3 stay done when a later step refuses. `Odenecek` and
// `GunYazisi` are those of the contract screen.
std::variant<Baski, baski::Red> Hazirla(db::Baglanti& b, qint32 SozlesmeID, double Odenecek,
                                        const QString& GunYazisi, bool MasrafGoster);

// What a preview prints of a stored contract, with nothing checked or
// stored: its row of SozlesmePrint, its papers and the template. None when
// the contract is missing.
std::optional<Baski> OnizlemeHazirla(db::Baglanti& b, qint32 SozlesmeID);

// The stream of a prepared print, by the owner of the installation.
baski::Sonuc Akis(const Baski& baski, const QString& SahipAdi, const Ayar& ayar);

// The question of step 6.
inline constexpr char16_t kYaziciSorusu[] = u"Lütfen Yazıcı Seçiciyi SÖZLEŞME için Ayarlayınız !!";
inline constexpr char16_t kYaziciBaslik[] = u"YAZICI SEÇİMİ";

// What the contract screen shows of a stored contract once it is opened:
// Odenecek and GunYazisi, for printing without the screen (the command
// line). The same steps as the screen's Goster and TutarHesap, with the
// settings HaftaSonu and OrtalamaGun of the globals. None when the contract
// is missing.
struct EkranDegerleri {
  double Odenecek = 0;
  QString GunYazisi;
};
std::optional<EkranDegerleri> EkranDegerleriOku(db::Baglanti& b, qint32 SozlesmeID);

// The contract that a preview shows when no contract screen is open: the
// latest one that has an invoice. 0 when there is none.
qint32 SonFaturaliSozlesme(db::Baglanti& b);

}  // namespace sozlesmebaski
