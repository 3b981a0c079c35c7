#pragma once
// What the contract screen (frmSozles) and its twin, the calculation worksheet
// (frmHesap), share besides the interest computation of faiz::: the customer
// list behind cmbAd, the lines' grid with the day rule in SQL, the entry rules
// of the amount, rate and line fields with their messages, and the reading of
// the values a save writes. Each screen keeps its own routines (Goster,
// bosalt, TutarHesap, ...) and calls these for the steps they have in common.

#include <QString>
#include <QVariant>
#include <QVariantList>
#include <span>
#include <vector>

#include "contract/Faiz.h"
#include "db/Kayitlar.h"

class QComboBox;
class QLineEdit;
class QPushButton;
class QWidget;

namespace ekran {
class Izgara;
}
namespace master {
class MusteriListesi;
}

namespace contract {

// --- building the screens

// A command button that never becomes the dialogue's default.
QPushButton* Dugme(const QString& ad, const QString& yazi);
// Keeps a widget's place in its layout while it is hidden, so that the screen
// doesn't jump when parts of it come and go.
void YeriniKoru(QWidget* w);
// A stored number as a field shows it: "4,5" for 4.5, "" for Null.
QString SayiMetni(const QVariant& v);
// A leave check runs only when the clerk leaves a field, not when the screen
// disables or hides the field that holds the focus.
bool Ayriliyor(QWidget* w);

// --- the customer (cmbAd, its item data the MusteriNo)

// Opens rsMusteri (MusteriQry, in number order) and fills the list with at most
// `sinir` customers in Turkish order; nothing is picked afterwards.
void MusteriDoldur(db::Kayitlar& rsMusteri, master::MusteriListesi* liste, QComboBox* cmbAd,
                   int sinir);
// MusteriBul: the customer of the number into cmbAd. Not found: "Aranan Kayıt
// Bulunamadı!" ("Arama", critical), rsMusteri back to its first row, focus to
// cmbAd, and false.
bool MusteriBul(db::Kayitlar& rsMusteri, const master::MusteriListesi* liste, QComboBox* cmbAd,
                const QString& musteriNo);
// The entry of the list the clerk picked or typed; -1 for none.
int SeciliMusteri(const QComboBox* cmbAd, const master::MusteriListesi* liste);
// cmbAd left: the picked customer's number goes to txtMusteriNo. Nothing from
// the list gives "Lütfen Listeden Bir Müşteri Seçiniz" and false (the focus
// stays), unless the text is empty and `bosGecer`.
bool MusteriSecimi(QComboBox* cmbAd, const master::MusteriListesi* liste, QLineEdit* txtMusteriNo,
                   bool bosGecer);

// --- figures

// HesaplaKilit on the three amount fields.
void HesaplaKilitUygula(bool Hesapla, QLineEdit* txtTutar, QLineEdit* txtFaizTutar,
                        QLineEdit* txtOdenecek);
// Amount field left (steps A1-A3): the field shows the new text, or, when it
// holds no amount, "Bir Miktar Girmelisiniz" ("UYARI", critical) and false.
bool TutarKontrol(QLineEdit* kutu, bool Meblag);
// Rate field left (steps R1-R3).
void OranKontrol(QLineEdit* kutu);
// The lines of rsDetay as TutarHesap reads them, in the set's order.
std::vector<faiz::Satir> FaizSatirlari(const db::Kayitlar& rsDetay);

// --- the lines

// An amount as the grid and the entry show it: groups, two decimals, no
// leading zero (,50).
QString MeblagYazisi(double deger);
// Rule D in SQL over the columns named: the override `gun`, or the days from
// `tarih` to `vadesi` plus `ilaveGun`, with the setting HaftaSonu on a Saturday
// two days more and a Sunday one. The names may be `?` parameters.
QString GunuIfadesi(const QString& tarih, const QString& ilaveGun, const QString& gun,
                    const QString& vadesi);
// The grid's query over the lines of `tablo` (SozlesmeDetay or HesapDetay, the
// latter without MeblagTL), and its values: the date on screen, ilaveGun, now
// (for Durum) and the SozlesmeID.
QString DetayIzgaraSorgusu(const QString& tablo, bool meblagTL);
QVariantList DetayIzgaraDegerleri(const QString& txtTarih, qint64 ilaveGun, qint32 SozlesmeID);
// Captions, formats and alignment of the grid's columns.
void DetayIzgarasiKur(ekran::Izgara* izgara);
// The columns a screen shows, in their order; whatever else the set holds is
// bound but hidden. A width of 0 characters stretches.
struct IzgaraSutunu {
  const char* ad;
  int harf;
  bool gorunur = true;
};
void DetaySutunlari(ekran::Izgara* izgara, const db::Kayitlar& rsDetay,
                    std::span<const IzgaraSutunu> sutunlar);
// The limit of lines: false after its message when a new line would pass it.
bool DetayLimitiKontrol(qint64 DetaySayisi, int DetayDurum);
// The checks of due date, days and amount of a line, in that order; false
// after the message ("Uyarı", critical) with the focus in the field.
bool VadeGunMeblagKontrol(QLineEdit* txtVade, QLineEdit* txtGun, QLineEdit* txtMeblag);
// The day field as a line stores it: a whole number of days, 0 when empty; a
// fraction rounds as the table's integer column takes it.
qint64 GunDegeri(const QString& txtGun);

// --- saving

// A value a screen can't give to the database. A save reports it as it
// reports a refusal of the engine.
struct Red {
  QString neden;
};
// txtMusteriNo: no customer picked is refused.
qint64 MusteriNoOku(const QString& metin);
// An amount field: empty is 0; a text that is no amount is refused.
double TutarOku(const QString& metin, const QString& alan);
// What a refused save shows before the reason.
QString KayitHataMetni();

}  // namespace contract
