#include "db/Sema.h"

#include "db/Baglanti.h"

namespace db {

namespace {

// Column widths of the screens are enforced by the screens; the engine keeps
// texts of any length. Names are ordered with COLLATE TURKCE in the
// statements that need it, so that the views stay readable from a plain
// sqlite3 shell.
const char* const kTablolar = R"SQL(
CREATE TABLE Firma (
  Kuruluskod TEXT, VergiKimlikNo TEXT, Tur INTEGER, Soyadi TEXT, Adi TEXT, BabaAdi TEXT,
  Adres TEXT, Ilce TEXT, PostaKod TEXT, IlKod INTEGER, FaturaSeri TEXT, SozlesmeSeri TEXT);

CREATE TABLE Musteri (
  MusteriNo INTEGER PRIMARY KEY, VergiKimlikNo TEXT, VergiDairesi TEXT, Soyadi TEXT, Adi TEXT,
  BabaAdi TEXT, Adres TEXT, Ilce TEXT, PostaKod TEXT, IlKod INTEGER, Il_Ad TEXT, UlkeKod TEXT,
  TCKimlikNo TEXT, Uyruk INTEGER, VekilDurum INTEGER, VekilVergiKimlik TEXT, VekilSoyadi TEXT,
  VekilAdi TEXT, HukukiDurum INTEGER, Aranacak TEXT, Telefon TEXT, Fax TEXT);
CREATE INDEX Musteri_Aranacak ON Musteri(Aranacak);

CREATE TABLE Sozlesme (
  SozlesmeID INTEGER PRIMARY KEY, SozlesmeSeri TEXT, SozlesmeNo INTEGER, MusteriNo INTEGER,
  Tarih TEXT, Tutar REAL, FaizOran REAL, GecikmeOran REAL, IskontoOran REAL, FaizTutar REAL,
  Yaziyla TEXT, Gun TEXT, ilaveGun INTEGER, Doviz TEXT, Hesapla INTEGER, TutarTL REAL,
  FaizTutarTL REAL);
CREATE INDEX Sozlesme_Musteri ON Sozlesme(MusteriNo);
CREATE INDEX Sozlesme_SeriNo ON Sozlesme(SozlesmeSeri, SozlesmeNo);
CREATE INDEX Sozlesme_TarihSeriNo ON Sozlesme(Tarih, SozlesmeSeri, SozlesmeNo);

CREATE TABLE SozlesmeDetay (
  GirisNo INTEGER PRIMARY KEY AUTOINCREMENT, SozlesmeID INTEGER, SozlesmeSeri TEXT,
  SozlesmeNo INTEGER, Tip TEXT, Kesideci TEXT, Banka TEXT, Sube TEXT, HesapNo TEXT, CekNo TEXT,
  Vadesi TEXT, Odenmesi TEXT, Gun INTEGER, Meblag REAL, Doviz TEXT DEFAULT 'TRL',
  Karsilik TEXT DEFAULT 'Var', MeblagTL REAL);
CREATE INDEX SozlesmeDetay_Sozlesme ON SozlesmeDetay(SozlesmeID);
CREATE INDEX SozlesmeDetay_SeriNo ON SozlesmeDetay(SozlesmeSeri, SozlesmeNo);
CREATE INDEX SozlesmeDetay_Vadesi ON SozlesmeDetay(Vadesi);
CREATE INDEX SozlesmeDetay_Odenmesi ON SozlesmeDetay(Odenmesi);

CREATE TABLE Fatura (
  FaturaSeri TEXT NOT NULL, FaturaNo INTEGER NOT NULL, Tarih TEXT, MusteriNo INTEGER,
  SozlesmeID INTEGER, SozlesmeSeri TEXT, SozlesmeNo INTEGER, Aciklama TEXT, Tutar REAL,
  BMVergisiYuzde REAL, BMVergisi REAL, TahsilMasrafi REAL, PulBedeli REAL, ToplamMasraf REAL,
  ToplamTutar REAL, Yaziyla TEXT, TutarTL REAL, BMVergisiTL REAL, TahsilMasrafiTL REAL,
  ToplamMasrafTL REAL, ToplamTutarTL REAL, PRIMARY KEY (FaturaSeri, FaturaNo));
CREATE INDEX Fatura_Sozlesme ON Fatura(SozlesmeID);

CREATE TABLE Kur (Tarih TEXT, Doviz TEXT, Kur REAL, CaprazKur REAL);
-- Not unique: adding the missing days of several new lines at once may bring a
-- day and currency twice, and the rate screen updates them together.
CREATE INDEX Kur_TarihDoviz ON Kur(Tarih, Doviz);

CREATE TABLE Hesap (
  SozlesmeSeri TEXT, SozlesmeNo INTEGER, Tarih TEXT, MusteriNo INTEGER, Tutar REAL,
  Yaziyla TEXT, FaizOran REAL, GecikmeOran REAL, IskontoOran REAL, FaizTutar REAL, Gun TEXT,
  ilaveGun INTEGER, SozlesmeID INTEGER PRIMARY KEY, Doviz TEXT, Masraf REAL);

CREATE TABLE HesapDetay (
  GirisNo INTEGER PRIMARY KEY AUTOINCREMENT, SozlesmeNo INTEGER, Tip TEXT, Kesideci TEXT,
  Banka TEXT, Sube TEXT, HesapNo TEXT, CekNo TEXT, Vadesi TEXT, Gun INTEGER, Meblag REAL,
  Doviz TEXT DEFAULT 'TRL', Karsilik TEXT DEFAULT 'Var', Odenmesi TEXT, SozlesmeSeri TEXT,
  SozlesmeID INTEGER);

CREATE TABLE HukukiDurum (DurumKod INTEGER PRIMARY KEY, Durum TEXT, Kategori TEXT);
CREATE TABLE Il_Trafik_Kodu (IlKod INTEGER PRIMARY KEY, Il TEXT);
-- No key, so that a plain read gives the codes in the order they stand, TRL first.
CREATE TABLE DOVIZKOD (KOD TEXT NOT NULL);

CREATE TABLE SozlesmeTanim (
  ID INTEGER PRIMARY KEY, SIRA INTEGER, SUTUN INTEGER, TIP TEXT, ALAN TEXT, BOY INTEGER,
  "DECIMAL" INTEGER, FORMAT TEXT);

CREATE TABLE Versiyon (Major INTEGER, Minor INTEGER);

CREATE VIEW MusteriQry AS
SELECT Musteri.MusteriNo, Musteri.Soyadi, Musteri.Adi,
       CASE WHEN Musteri.HukukiDurum = 1
            THEN ifnull(Musteri.Adi, '') || ' ' || ifnull(Musteri.Soyadi, '')
            ELSE ifnull(Musteri.Soyadi, '') || ' ' || ifnull(Musteri.Adi, '') END AS Bulunacak
FROM Musteri ORDER BY Musteri.MusteriNo;

CREATE VIEW CekDurum AS
SELECT SozlesmeDetay.GirisNo, SozlesmeDetay.Vadesi, SozlesmeDetay.Banka, SozlesmeDetay.Meblag,
       SozlesmeDetay.Odenmesi,
       CASE WHEN SozlesmeDetay.Odenmesi IS NULL THEN 'Yok' ELSE 'Var' END AS Durum,
       SozlesmeDetay.Kesideci, SozlesmeDetay.CekNo
FROM SozlesmeDetay;

CREATE VIEW SozlesmePrint AS
SELECT Sozlesme.SozlesmeNo, Sozlesme.SozlesmeSeri, Sozlesme.MusteriNo,
       CASE WHEN Musteri.HukukiDurum = 1
            THEN ifnull(Musteri.Adi, '') || ' ' || ifnull(Musteri.Soyadi, '')
            ELSE ifnull(Musteri.Soyadi, '') || ' ' || ifnull(Musteri.Adi, '') END AS AdSoyad,
       Musteri.Adres, Musteri.Ilce, Musteri.PostaKod, Musteri.Il_Ad, Sozlesme.Tarih,
       Sozlesme.Tutar, Sozlesme.Yaziyla, Sozlesme.FaizOran, Sozlesme.GecikmeOran,
       Sozlesme.IskontoOran, Sozlesme.FaizTutar,
       Sozlesme.Tutar - Sozlesme.FaizTutar - Fatura.BMVergisi AS Odenecek,
       Sozlesme.Gun, Fatura.BMVergisi, Musteri.VergiDairesi, Musteri.VergiKimlikNo,
       Sozlesme.Tutar - Sozlesme.FaizTutar AS Odenecek2,
       CASE WHEN CAST(strftime('%d', Sozlesme.Tarih) AS INTEGER) < 10
            THEN '0' || CAST(strftime('%d', Sozlesme.Tarih) AS INTEGER)
            ELSE ' ' || CAST(strftime('%d', Sozlesme.Tarih) AS INTEGER) END AS TarihGun,
       CASE WHEN CAST(strftime('%m', Sozlesme.Tarih) AS INTEGER) < 10
            THEN '0' || CAST(strftime('%m', Sozlesme.Tarih) AS INTEGER)
            ELSE ' ' || CAST(strftime('%m', Sozlesme.Tarih) AS INTEGER) END AS TarihAy,
       strftime('%Y', Sozlesme.Tarih) AS TarihYil,
       Sozlesme.SozlesmeID, Sozlesme.Tutar * 0.0075 AS DamgaVergi
FROM (Musteri INNER JOIN Sozlesme ON Musteri.MusteriNo = Sozlesme.MusteriNo)
     LEFT JOIN Fatura ON Sozlesme.SozlesmeID = Fatura.SozlesmeID
ORDER BY Sozlesme.MusteriNo;
)SQL";

const char* const kIller[] = {
    "Adana",     "Adıyaman",  "Afyonkarahisar", "Ağrı",          "Amasya",    "Ankara",
    "Antalya",   "Artvin",    "Aydın",          "Balıkesir",     "Bilecik",   "Bingöl",
    "Bitlis",    "Bolu",      "Burdur",         "Bursa",         "Çanakkale", "Çankırı",
    "Çorum",     "Denizli",   "Diyarbakır",     "Edirne",        "Elazığ",    "Erzincan",
    "Erzurum",   "Eskişehir", "Gaziantep",      "Giresun",       "Gümüşhane", "Hakkari",
    "Hatay",     "Isparta",   "Mersin",         "İstanbul",      "İzmir",     "Kars",
    "Kastamonu", "Kayseri",   "Kırklareli",     "Kırşehir",      "Kocaeli",   "Konya",
    "Kütahya",   "Malatya",   "Manisa",         "Kahramanmaraş", "Mardin",    "Muğla",
    "Muş",       "Nevşehir",  "Niğde",          "Ordu",          "Rize",      "Sakarya",
    "Samsun",    "Siirt",     "Sinop",          "Sivas",         "Tekirdağ",  "Tokat",
    "Trabzon",   "Tunceli",   "Şanlıurfa",      "Uşak",          "Van",       "Yozgat",
    "Zonguldak", "Aksaray",   "Bayburt",        "Karaman",       "Kırıkkale", "Batman",
    "Şırnak",    "Bartın",    "Ardahan",        "Iğdır",         "Yalova",    "Karabük",
    "Kilis",     "Osmaniye",  "Düzce",
};

struct Durum {
  int kod;
  const char* ad;
  const char* kategori;
};

// Legal statuses as the Ministry's transfer schema codes them.
const Durum kDurumlar[] = {
    {1, "Gerçek Kişi", "Gerçek Kişi"},
    {2, "Gerçek Kişi (Tacir)", "Gerçek Kişi"},
    {10, "Anonim Şirket", "Sermaye Şirketi"},
    {11, "Limited Şirket", "Sermaye Şirketi"},
    {12, "Sermayesi Paylara Bölünmüş Komandit Şirket", "Sermaye Şirketi"},
    {20, "Kollektif Şirket", "Şahıs Şirketi"},
    {21, "Adi Komandit Şirket", "Şahıs Şirketi"},
    {22, "Adi Ortaklık", "Şahıs Şirketi"},
    {30, "Kooperatif", "Diğer Kuruluş"},
    {31, "Dernek", "Diğer Kuruluş"},
    {32, "Vakıf", "Diğer Kuruluş"},
    {33, "Kamu Kuruluşu", "Diğer Kuruluş"},
};

const char* const kDovizler[] = {"TRL", "USD", "EUR", "GBP", "CHF", "JPY",
                                 "SAR", "DKK", "SEK", "NOK", "CAD", "AUD"};

}  // namespace

const QStringList& Iller() {
  static const QStringList liste = [] {
    QStringList l;
    for (const char* ad : kIller) l << QString::fromUtf8(ad);
    return l;
  }();
  return liste;
}

void SemaOlustur(Baglanti& b) {
  Islem islem(b);
  b.Calistir(QString::fromUtf8(kTablolar));
  for (int i = 0; i < Iller().size(); ++i)
    b.Calistir(QStringLiteral("INSERT INTO Il_Trafik_Kodu(IlKod, Il) VALUES (?, ?)"),
               {i + 1, Iller()[i]});
  for (const Durum& d : kDurumlar)
    b.Calistir(
        QStringLiteral("INSERT INTO HukukiDurum(DurumKod, Durum, Kategori) VALUES (?, ?, ?)"),
        {d.kod, QString::fromUtf8(d.ad), QString::fromUtf8(d.kategori)});
  for (const char* kod : kDovizler)
    b.Calistir(QStringLiteral("INSERT INTO DOVIZKOD(KOD) VALUES (?)"), {QString::fromUtf8(kod)});
  b.Calistir(QStringLiteral("INSERT INTO Versiyon(Major, Minor) VALUES (2, 3)"));
  // The office's row: the three columns every start reads hold empty texts, so
  // that a first start left without filling in the firm screen still opens.
  b.Calistir(
      QStringLiteral("INSERT INTO Firma(Soyadi, SozlesmeSeri, FaturaSeri) VALUES ('', '', '')"));
  islem.Onayla();
}

}  // namespace db
