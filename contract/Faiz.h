#pragma once
// Interest and totals of a contract, without widgets: the day rule D
// of a line, the interest formula, the steps T1-T12 of TutarHesap and the pure
// halves of the entry rules of the amount, rate, day and valor fields.
//
// The contract screen (frmSozles), the worksheet (frmHesap) and the
// bordro all compute through here, so that they give the same
// numbers. Nothing here reads a global setting or the database: the caller
// passes the settings and the lines in, and writes the result onto its fields.

#include <QDate>
#include <QString>
#include <QtGlobal>
#include <optional>
#include <span>

namespace faiz {

// --- texts shown by the contract screen
inline constexpr char16_t kMuhtelif[] = u"Muhtelif";
inline constexpr char16_t kGunEki[] = u" Gün";  // lblFaizGun = GunYazisi + " Gün"
// Step A2: critical icon, focus stays in the field.
inline constexpr char16_t kMiktarMesaji[] = u"Bir Miktar Girmelisiniz";
inline constexpr char16_t kMiktarBaslik[] = u"UYARI";

// Amounts above this are old lira (step A3).
inline constexpr double kEskiLiraSiniri = 250000;

// The worksheet's tax on the interest (its step T11c): fixed, no field or
// setting changes it.
inline constexpr double kBMVergisiOrani = 0.05;

// One line of SozlesmeDetay (or HesapDetay) as TutarHesap reads it.
struct Satir {
  QDate Vadesi;    // a null or invalid date stands for a Null Vadesi
  qint64 Gun = 0;  // 0: Null or 0, the count is worked out; else the override
  double Meblag = 0;
  QString CekNo;     // read on the first line only (marker test, step T3);
  QString Kesideci;  // a Null is the empty text
};

// What rule D needs besides the line.
struct GunKurali {
  QDate Tarih;             // contract date on screen (or stored, for the bordro)
  qint64 ilaveGun = 0;     // days added to every worked-out count
  bool HaftaSonu = false;  // setting HaftaSonu: Saturday +2, Sunday +1
};

// Rule D: the day count of a line. Counts are 64-bit, so a due date 90 years
// ahead or any override can't overflow. No value (nullopt) when the count has
// to be worked out (Gun 0) but Vadesi or the contract date is missing: the
// original failed there, we leave the line out of the interest instead.
std::optional<qint64> GunSayisi(const Satir& satir, const GunKurali& kural);

// Step T6d: ((Meblag × days) × rate) × 12 / 36000, unrounded, in this order.
inline double SatirFaizi(double Meblag, qint64 Gun, double FaizOran) {
  return Meblag * static_cast<double>(Gun) * FaizOran * 12 / 36000;
}

// What TutarHesap reads besides the lines.
struct Girdi {
  QDate Tarih;          // txtTarih
  double FaizOran = 0;  // SayiOku of txtFaizOran; see OranDegeri
  qint64 ilaveGun = 0;
  bool Hesapla = true;
  bool HaftaSonu = false;    // setting HaftaSonu
  bool OrtalamaGun = false;  // setting OrtalamaGun
  // The worksheet's fee per paper (SayiOku of txtMasraf). Set, step T11 is that
  // of the worksheet (tax and fee come off the payable amount); unset, the contract.
  std::optional<double> Masraf;
};

// The numbers of one run, before anything becomes text. Computed without any
// allocation; TutarHesap builds on it, and the bench and tests read it.
struct Toplamlar {
  qint64 DetaySayisi = 0;  // every line counts, also one without Vadesi
  double Toplam = 0;
  double ToplamFaiz = 0;    // unrounded
  double AgirlikliGun = 0;  // sum of Meblag × days over lines with a count
  // Day count of the first line (T4). When that line has no count of its own
  // (Gun 0 and no Vadesi), the first count found among the later lines; none
  // at all when no line has a count.
  std::optional<qint64> IlkGun;
  bool Muhtelif = false;    // some count differs from IlkGun (T6f)
  bool XSatiri = false;     // first line is the marker line "X"/"X" (T3)
  bool SatirYok = false;    // no lines (T2)
  bool TarihEksik = false;  // a line needed the contract date, which isn't valid
};

Toplamlar Topla(const Girdi& girdi, std::span<const Satir> satirlar);

// What TutarHesap leaves on the screen. Each optional that is empty means
// "stays as it is": the caller writes only what is set. DetaySayisi is always
// set (T1).
struct Sonuc {
  Toplamlar Rakamlar;
  qint64 DetaySayisi = 0;
  std::optional<QString> GunYazisi;  // saved as Sozlesme.Gun
  std::optional<QString> lblFaizGun;
  std::optional<QString> txtTutar;
  std::optional<QString> txtFaizTutar;
  std::optional<QString> txtOdenecek;
  std::optional<double> Odenecek;
  std::optional<double> OrtGun;  // the program's global Genel::OrtGun
  // Worksheet only (Girdi::Masraf set and Hesapla on).
  std::optional<QString> txtVergiProv;
  std::optional<double> TahsilMasrafi;
  std::optional<double> BMVergisi;
};

// Steps T1-T12 of the totals (with the worksheet's T11 when Girdi::Masraf is set).
Sonuc TutarHesap(const Girdi& girdi, std::span<const Satir> satirlar);

// Money text of a value: two decimals, groups, leading zero, halves away from
// zero (1.234,50). The form of ParaFormat, for a number rather than a text.
QString ParaYazisi(double deger);

// --- entry rules of the fields (run when the field is left)

// Amount fields txtMeblag (Meblag = true), txtTutar, txtFaizTutar, txtOdenecek,
// and the worksheet's txtMasraf: steps A1-A3. Gives the text the field is to
// show, or nothing when A2 fails: then show kMiktarMesaji / kMiktarBaslik with
// a critical icon and keep the focus in the field (its text stays).
std::optional<QString> TutarAlani(const QString& metin, bool Meblag);

// Rate fields txtFaizOran, txtGecikmeOran, txtIskontoOran: steps R1-R3. Never
// leaves a text that SayiOku refuses: a text with a positive leading number that
// is no number by the regional rules ("1abc", "1,5x") becomes that leading
// number ("1").
QString OranAlani(const QString& metin);

// The rate TutarHesap computes with, from the text of txtFaizOran: SayiOku of
// it, or, when that isn't a number yet, the value OranAlani would leave.
double OranDegeri(const QString& metin);

// txtGun: left empty, it shows "0".
QString GunAlani(const QString& metin);

// Step D1 for a value that comes as text: its leading number, rounded to an
// integer (halves to even); 0 for an empty text or one without a number.
qint64 GunOku(const QString& metin);

// txtValor left: the new ilaveGun (leading number rounded to an integer, plus
// 1), or nothing when the text is empty and ilaveGun stays.
std::optional<qint64> ValorAlani(const QString& metin);

// What txtValor shows for an ilaveGun: ilaveGun minus 1.
QString ValorYazisi(qint64 ilaveGun);

// HesaplaKilit. chkHesapla's click sets Hesapla to the box's state, applies
// this and computes nothing.
struct AlanKilidi {
  bool Kilitli = true;          // read-only
  std::optional<bool> Sekmede;  // in the tab order; empty: stays as it is
};
struct HesaplaKilidi {
  AlanKilidi txtTutar, txtFaizTutar, txtOdenecek;
};
HesaplaKilidi HesaplaKilit(bool Hesapla);

}  // namespace faiz
