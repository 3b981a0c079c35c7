#pragma once
// The Ministry's transfer file, line by line: the head with the office and the
// two totals, then customer by customer the person and each loan paid out or
// paper collected. Only the form lives here; which rows go in and what they
// amount to is decided by the procedure (MaliyeAktarim).

#include <QByteArray>
#include <QByteArrayView>
#include <QIODevice>
#include <QString>
#include <QStringList>

namespace aktarim {

// The two forms of the file: the year of the period's end chooses.
struct Varyant {
  double carpan;  // applied to stored amounts
  int basamak;    // decimals of every computed amount
  const char* sema;
};
Varyant VaryantSec(int sonYil);

// The text an element holds: control characters XML cannot carry left out,
// cut to `uzunluk` characters, then & < > escaped; on an amount element a
// comma becomes a point.
QString EtiketDegeri(const QString& deger, const QString& etiket, int uzunluk);
// The line of one element, without the line end; empty when the value is
// empty and the element is not `zorunlu`.
QString EtiketSatiri(const QString& deger, const QString& etiket, int uzunluk, bool zorunlu);
// & < > escaped, control characters left out; no cut.
QString Kacis(const QString& metin);

// The zero fill of tax and identity numbers. `kisa` tells that the text was
// shorter than the width, `sifir` that its value was 0 (both before the fill
// is reported to the clerk for the tax numbers).
struct Doldurma {
  QString metin;
  bool kisa = false;
  bool sifir = false;
};
Doldurma SifirDoldur(const QString& metin, int genislik);
// Series and number of a contract: the number zero-filled so that both make 10.
QString SozNo(const QString& seri, const QString& no);
// An amount as the file writes it: rounded half away from zero to `basamak`
// decimals, a point, no groups, at least one digit in front of the point.
QString TutarYaz(double deger, int basamak);
// 2005-03-04 (the stored form) -> 20050304.
QString GunYaz(const QString& sqlTarih);

// One customer's person block, from the columns of the main query.
struct Kisi {
  QString vkn, soyad, ad, babaAdi, adres, ilce, pk, ilAdi, ilKodu, tckn;
  bool uyrukIkinci = true;  // Uyruk Null or 2
  QString hukukiYapi;       // two digits
  int vekilDurum = 0;
  QString vekilVkn, vekilSoyad, vekilAd;
};

struct Ofis {
  QString vkn, unvan, adres, ilce, pk, ilAdi, ilKodu;
};

// Writes the file to an open device; every line ends in CR LF, in UTF-8.
// The lines reach the device in pieces: Bosalt() (and Son(), and the end of
// the writer) hands over what is left.
class MaliyeYazici {
 public:
  MaliyeYazici(QIODevice& cikis, const Varyant& v) : cikis_(cikis), v_(v) {}
  ~MaliyeYazici();
  MaliyeYazici(const MaliyeYazici&) = delete;
  MaliyeYazici& operator=(const MaliyeYazici&) = delete;

  // Lines 1 to </protokol>.
  void Bas(const Ofis& ofis, const QString& bilgiDonem, const QString& bilgiTarih, int kayitSayisi,
           double odverToplam, double odtahToplam);
  // <kayitlar>, the branch and the first <kayit>.
  void KayitlarBas();
  // The person of the next customer; closes the customer before it.
  void Musteri(const Kisi& k);
  // A loan; without a rate (`tutarlar` false) the amounts are left out.
  void Odver(const QString& sozTar, const QString& sozNo, bool tutarlar, const QString& otutartl,
             const QString& otutarabd, const QString& ftutartl, const QString& ftutarabd);
  void Odtah(const QString& odTar, const QString& tahtutartl);
  // The closing tags of the customers and the branch.
  void KayitlarSon();
  void Son();

  const Varyant& varyant() const { return v_; }
  // Writes what is gathered to the device; false once a write failed.
  bool Bosalt();
  // False once a write to the device failed.
  bool Tamam() const { return tamam_; }

 private:
  static constexpr qsizetype kTampon = 1 << 16;
  void Ekle(QByteArrayView b);
  void Satir(const QString& s);
  void Etiket(const QString& deger, const char* etiket, int uzunluk, bool zorunlu);
  void Adres(const QString& adres, const QString& ilce, const QString& pk, const QString& ilAdi,
             bool ilAdiZorunlu, const QString& ilKodu);

  QIODevice& cikis_;
  Varyant v_;
  QByteArray tampon_;
  int musteri_ = 0;
  bool tamam_ = true;
};

}  // namespace aktarim
