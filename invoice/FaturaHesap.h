#pragma once
// The figures of an invoice, without widgets: the values
// a screen opens with, the stamp duty, Hesapla, the number proposal, and the
// row a save writes, with the save and the delete themselves.
//
// Both invoice screens (frmFatura, frmFaturaEk) compute through here, beside
// the contract's interest (contract/Faiz.h), so that the figures are tested
// without a screen. The screens pass the texts of their boxes in and write
// the texts that come back onto their boxes.

#include <QDate>
#include <QString>
#include <QVariant>
#include <optional>

#include "core/Baski.h"

namespace db {
class Baglanti;
}

namespace fatura {

// --- texts of the screens
inline constexpr char16_t kVarsayilanOran[] = u"5";  // txtBMOran: BSMV 5 %
inline constexpr char16_t kBosMasraf[] = u"0.00";    // an emptied txtMasraf, with a point
inline constexpr double kPulOrani = 0.0075;          // stamp duty: 7.5 per thousand
inline constexpr char16_t kNoYok[] = u"Hiç Fatura Kesmemissiniz";
inline constexpr char16_t kNoYokBaslik[] = u"Velmora";
inline constexpr char16_t kNoGir[] = u"Fatura Numarası Girmelisiniz!";
inline constexpr char16_t kKayitHatasi[] = u"Kayıt Eklenemedi! Lütfen Bilgileri Kontol Edin! ";
inline constexpr char16_t kCiftNumara[] = u"Çift Fatura Numarası";
inline constexpr char16_t kSozlesmeFaturasi[] =
    u"Bu numara bir sözleşmenin faturasıdır, değiştirilemez.";

// The number format of an invoice: two decimals, a leading zero, thousands
// grouped, a minus sign; halves away from zero.
QString SayiBicimi(double deger);

// A box's text as the invoice computes with it: SayiOku, and 0 for a text
// that SayiOku refuses. The screen shows what it can of such a text and never
// stops on it; a save refuses it (Satir below).
double Oku(const QString& metin);

// Step 3 of the opening: the stamp duty of a contract total.
QString PulBedeli(const QString& sozlesmeTutar);

// --- opening (steps 1, 3 and 6)

struct Acilis {
  QString Pul;         // txtPul
  QString BMOran;      // txtBMOran
  QString FaturaNo;    // txtFaturaNo
  QString Masraf;      // txtMasraf
  QString FaturaSeri;  // txtFaturaSeri
  bool FaturaVar = false;
  bool PulGorunur = true;  // txtPul and its caption
};
// `fatura` is the contract's saved invoice (a row of Fatura), if any: its
// percent, number, fee, stamp duty and series override the defaults.
Acilis AcilisDegerleri(const QString& sozlesmeTutar, bool PulBedeliAyari,
                       const QString& varsayilanSeri, const std::optional<baski::Kayit>& fatura);

// --- Hesapla

struct Girdi {
  QString Tutar, BMOran, Masraf, Pul;  // the texts of the boxes
};
struct Sonuc {
  // txtMasraf was empty: it reads kBosMasraf now, and the fee counted 0.
  bool MasrafDoldur = false;
  QString BMVergisi, ToplamOdeme, GenelToplam;  // the boxes
  QString Yazi;                                 // lblYazi
  double Vergi = 0, Masraflar = 0, Toplam = 0;  // unrounded, Toplam rounded half to even
};
Sonuc Hesapla(const Girdi& g);

// --- the row of a save

// The texts a save writes, as the screen shows them.
struct Satir {
  QString FaturaSeri, FaturaNo, Tarih, MusteriNo;
  QString SozlesmeSeri, SozlesmeNo;  // contract invoices only
  QString Aciklama;                  // additional invoices only
  QString Tutar, BMOran, BMVergisi, Masraf, ToplamOdeme, Pul, GenelToplam;
  QString Yaziyla;                   // the whole text, "Yalnız " and the words
  std::optional<qint32> SozlesmeID;  // none: an additional invoice
};

// A value the screen can't give to the database; the save shows `neden`
// where it would show the engine's text.
struct Red {
  QString neden;
};

// The invoice number: a whole number from 1 to 2147483647; a Red otherwise.
qint32 FaturaNoOku(const QString& metin);

// Yaziyla of a save: "Yalnız ", the words and " " (6.1) or " TL." (6.3).
QString YaziylaMetni(const QString& lblYazi, bool ek);

// cmdSave of 6.1: with `FaturaVar` the contract's invoice is deleted first;
// the delete and the insert run in one transaction, so that a refused
// number leaves the earlier invoice as it was. Throws Red or db::Hata.
void Kaydet(db::Baglanti& b, const Satir& s, bool FaturaVar);

// cmdSave of 6.3: the invoice of that series and number is replaced, but
// never one that belongs to a contract: false then, nothing written. Throws
// Red or db::Hata.
bool EkKaydet(db::Baglanti& b, const Satir& s);

// cmdsil of 6.1.
void Sil(db::Baglanti& b, qint32 SozlesmeID);

// FatNoBul of 6.1: the highest number of `seri` among the invoices dated on
// the latest invoice date (today when there is none), plus 1; none when the
// series has no invoice on that date.
std::optional<qint64> SonrakiNo(db::Baglanti& b, const QString& seri, const QDate& bugun);
// FatNoBul of 6.3: the highest number of `seri` plus 1, whatever the date.
std::optional<qint64> EkSonrakiNo(db::Baglanti& b, const QString& seri);

}  // namespace fatura
