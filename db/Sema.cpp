#include "db/Sema.h"

#include "db/Baglanti.h"
#include "db/Cari.h"

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

CREATE TABLE HukukiDurum (DurumKod INTEGER PRIMARY KEY, Durum TEXT, Kategori TEXT);
CREATE TABLE Il_Trafik_Kodu (IlKod INTEGER PRIMARY KEY, Il TEXT);
-- No key, so that a plain read gives the codes in the order they stand, TRL first.
CREATE TABLE DOVIZKOD (KOD TEXT NOT NULL);

CREATE TABLE SozlesmeTanim (
  ID INTEGER PRIMARY KEY, SIRA INTEGER, SUTUN INTEGER, TIP TEXT, ALAN TEXT, BOY INTEGER,
  "DECIMAL" INTEGER, FORMAT TEXT);

CREATE TABLE Versiyon (Major INTEGER, Minor INTEGER);

)SQL";

// The worksheet's scratch tables; an older database gets them from the upgrade.
const char* const kHesapTablolari = R"SQL(
CREATE TABLE Hesap (
  SozlesmeSeri TEXT, SozlesmeNo INTEGER, Tarih TEXT, MusteriNo INTEGER, Tutar REAL,
  Yaziyla TEXT, FaizOran REAL, GecikmeOran REAL, IskontoOran REAL, FaizTutar REAL, Gun TEXT,
  ilaveGun INTEGER, SozlesmeID INTEGER PRIMARY KEY, Doviz TEXT, Masraf REAL);

CREATE TABLE HesapDetay (
  GirisNo INTEGER PRIMARY KEY AUTOINCREMENT, SozlesmeNo INTEGER, Tip TEXT, Kesideci TEXT,
  Banka TEXT, Sube TEXT, HesapNo TEXT, CekNo TEXT, Vadesi TEXT, Gun INTEGER, Meblag REAL,
  Doviz TEXT DEFAULT 'TRL', Karsilik TEXT DEFAULT 'Var', Odenmesi TEXT, SozlesmeSeri TEXT,
  SozlesmeID INTEGER);
)SQL";

// The views, also laid anew by the upgrade.
const char* const kGorunumler = R"SQL(
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

// Indexes of the reports, with the index each one makes unnecessary (or
// none). The lines of a contract are found through the first, in the order
// they were entered, as through the index it replaces; it also holds every
// column the customer status grid reads, so that the grid adds up the lines
// without reading their table. The second finds a drawer's papers, and
// holds what the ranking of drawers adds up.
struct Indeks {
  const char* ad;
  const char* tanim;
  const char* yerine;
};
const Indeks kIndeksler[] = {
    {"SozlesmeDetay_SozlesmeDurum", "SozlesmeDetay(SozlesmeID, GirisNo, Odenmesi, Meblag, Vadesi)",
     "SozlesmeDetay_Sozlesme"},
    {"SozlesmeDetay_Kesideci", "SozlesmeDetay(Kesideci, Odenmesi, Meblag)", nullptr},
};

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

// The delivered print template: a plain contract form on continuous paper,
// one row for each piece of a line. It uses every kind
// of row, so that an office sees how each works before it fits the template
// to its own paper. Fixed texts go out as they stand, trimmed (TIP "T"
// converts no letter), so they keep to the letters every code page shares;
// blanks come from "S" rows and columns from "A" rows.
struct SablonSatiri {
  int sira, sutun;
  const char* tip;
  const char* alan;  // nullptr: Null
  int boy;           // -1: Null
  int ondalik;       // -1: Null
  const char* bicim;
};
const SablonSatiri kSablon[] = {
    // ESC @: the printer starts afresh; condensed print off
    {1, 1, "C", nullptr, 27, -1, nullptr},
    {1, 2, "T", "@", -1, -1, nullptr},
    {1, 3, "C", nullptr, 18, -1, nullptr},
    {2, 1, "P", nullptr, 2, -1, nullptr},
    {3, 1, "S", nullptr, 30, -1, nullptr},
    {3, 2, "T", "ODUNC SOZLESMESI", -1, -1, nullptr},
    {4, 1, "S", nullptr, 30, -1, nullptr},
    {4, 2, "T", "----------------", -1, -1, nullptr},
    {5, 1, "P", nullptr, 1, -1, nullptr},
    {6, 1, "T", "Sozlesme No", -1, -1, nullptr},
    {6, 2, "A", nullptr, 14, -1, nullptr},
    {6, 3, "T", ":", -1, -1, nullptr},
    {6, 4, "S", nullptr, 1, -1, nullptr},
    {6, 5, "B", "SozlesmeSeri", -1, -1, "TURKCE"},
    {6, 6, "S", nullptr, 1, -1, nullptr},
    {6, 7, "B", "SozlesmeNo", -1, -1, nullptr},
    {6, 8, "A", nullptr, 50, -1, nullptr},
    {6, 9, "T", "Tarih", -1, -1, nullptr},
    {6, 10, "S", nullptr, 1, -1, nullptr},
    {6, 11, "T", ":", -1, -1, nullptr},
    {6, 12, "S", nullptr, 1, -1, nullptr},
    {6, 13, "B", "TarihGun", -1, -1, nullptr},
    {6, 14, "T", ".", -1, -1, nullptr},
    {6, 15, "B", "TarihAy", -1, -1, nullptr},
    {6, 16, "T", ".", -1, -1, nullptr},
    {6, 17, "B", "TarihYil", -1, -1, nullptr},
    {7, 1, "P", nullptr, 1, -1, nullptr},
    {8, 1, "T", "Borclu", -1, -1, nullptr},
    {8, 2, "A", nullptr, 14, -1, nullptr},
    {8, 3, "T", ":", -1, -1, nullptr},
    {8, 4, "S", nullptr, 1, -1, nullptr},
    {8, 5, "B", "AdSoyad", -1, -1, "TURKCE"},
    {9, 1, "T", "Adres", -1, -1, nullptr},
    {9, 2, "A", nullptr, 14, -1, nullptr},
    {9, 3, "T", ":", -1, -1, nullptr},
    {9, 4, "S", nullptr, 1, -1, nullptr},
    {9, 5, "B", "Adres", -1, -1, "TURKCE"},
    {10, 1, "A", nullptr, 16, -1, nullptr},
    {10, 2, "B", "PostaKod", -1, -1, nullptr},
    {10, 3, "S", nullptr, 1, -1, nullptr},
    {10, 4, "B", "Ilce", -1, -1, "TURKCE"},
    {10, 5, "T", "/", -1, -1, nullptr},
    {10, 6, "B", "Il_Ad", -1, -1, "TURKCE"},
    {11, 1, "T", "Vergi Dairesi", -1, -1, nullptr},
    {11, 2, "A", nullptr, 14, -1, nullptr},
    {11, 3, "T", ":", -1, -1, nullptr},
    {11, 4, "S", nullptr, 1, -1, nullptr},
    {11, 5, "B", "VergiDairesi", -1, -1, "TURKCE"},
    {11, 6, "S", nullptr, 3, -1, nullptr},
    {11, 7, "T", "No", -1, -1, nullptr},
    {11, 8, "S", nullptr, 1, -1, nullptr},
    {11, 9, "T", ":", -1, -1, nullptr},
    {11, 10, "S", nullptr, 1, -1, nullptr},
    {11, 11, "B", "VergiKimlikNo", -1, -1, nullptr},
    {12, 1, "P", nullptr, 1, -1, nullptr},
    {13, 1, "T", "Sozlesme Tutari", -1, -1, nullptr},
    {13, 2, "A", nullptr, 30, -1, nullptr},
    {13, 3, "N", "Tutar", 18, 2, "NUMR"},
    {14, 1, "T", "Faiz Tutari", -1, -1, nullptr},
    {14, 2, "A", nullptr, 30, -1, nullptr},
    {14, 3, "N", "FaizTutar", 18, 2, "NUMR"},
    {15, 1, "T", "BSMV", -1, -1, nullptr},
    {15, 2, "A", nullptr, 30, -1, nullptr},
    {15, 3, "N", "BMVergisi", 18, 2, "NUMR"},
    {16, 1, "T", "Odenecek Tutar", -1, -1, nullptr},
    {16, 2, "A", nullptr, 30, -1, nullptr},
    {16, 3, "N", "Odenecek", 18, 2, "NUMR"},
    {17, 1, "T", "Damga Vergisi", -1, -1, nullptr},
    {17, 2, "A", nullptr, 30, -1, nullptr},
    {17, 3, "N", "DamgaVergi", 18, 2, "NUMR"},
    {18, 1, "P", nullptr, 1, -1, nullptr},
    {19, 1, "T", "Yalniz", -1, -1, nullptr},
    {19, 2, "A", nullptr, 14, -1, nullptr},
    {19, 3, "T", ":", -1, -1, nullptr},
    {19, 4, "S", nullptr, 1, -1, nullptr},
    {19, 5, "B", "Yaziyla", -1, -1, "TURKCE"},
    {20, 1, "T", "Vade", -1, -1, nullptr},
    {20, 2, "A", nullptr, 14, -1, nullptr},
    {20, 3, "T", ":", -1, -1, nullptr},
    {20, 4, "S", nullptr, 1, -1, nullptr},
    {20, 5, "B", "Gun", -1, -1, "TURKCE"},
    {20, 6, "S", nullptr, 1, -1, nullptr},
    {20, 7, "T", "gun", -1, -1, nullptr},
    {20, 8, "A", nullptr, 32, -1, nullptr},
    {20, 9, "T", "Faiz %", -1, -1, nullptr},
    {20, 10, "S", nullptr, 1, -1, nullptr},
    {20, 11, "N", "FaizOran", -1, 2, nullptr},
    {20, 12, "A", nullptr, 50, -1, nullptr},
    {20, 13, "T", "Gecikme %", -1, -1, nullptr},
    {20, 14, "S", nullptr, 1, -1, nullptr},
    {20, 15, "N", "GecikmeOran", -1, 2, nullptr},
    {20, 16, "A", nullptr, 68, -1, nullptr},
    {20, 17, "T", "Iskonto %", -1, -1, nullptr},
    {20, 18, "S", nullptr, 1, -1, nullptr},
    {20, 19, "N", "IskontoOran", -1, 2, nullptr},
    // The papers: drawer, bank, branch, account, number, due date, amount.
    {21, 1, "D", "K30,B45,S60,H75,C90,V102", 1, 22, nullptr},
    {22, 1, "P", nullptr, 2, -1, nullptr},
    {23, 1, "S", nullptr, 5, -1, nullptr},
    {23, 2, "T", "BORCLU", -1, -1, nullptr},
    {23, 3, "A", nullptr, 55, -1, nullptr},
    {23, 4, "T", "ALACAKLI", -1, -1, nullptr},
    {24, 1, "P", nullptr, 3, -1, nullptr},
    {25, 1, "Y", nullptr, -1, -1, nullptr},
    // The row behind the form feed, so that its line goes out.
    {26, 1, "P", nullptr, 0, -1, nullptr},
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

void RaporlariHazirla(Baglanti& b, const std::function<void()>& basliyor) {
  QStringList eksik;
  for (const Indeks& i : kIndeksler)
    if (NullMu(b.Deger(
            QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'index' AND name = ?"),
            {QString::fromLatin1(i.ad)})))
      eksik << QString::fromLatin1(i.ad);
  const bool ozetVar = CariOzetVar(b);
  if (eksik.isEmpty() && ozetVar) return;
  if (basliyor) basliyor();
  Islem islem(b);
  for (const Indeks& i : kIndeksler) {
    if (!eksik.contains(QString::fromLatin1(i.ad))) continue;
    b.Calistir(QStringLiteral("CREATE INDEX IF NOT EXISTS %1 ON %2")
                   .arg(QString::fromLatin1(i.ad), QString::fromLatin1(i.tanim)));
    if (i.yerine)
      b.Calistir(QStringLiteral("DROP INDEX IF EXISTS %1").arg(QString::fromLatin1(i.yerine)));
  }
  if (!ozetVar) CariOzetKur(b);
  islem.Onayla();
}

bool SablonBossaYukle(Baglanti& b) {
  if (!NullMu(b.Deger(QStringLiteral("SELECT ID FROM SozlesmeTanim LIMIT 1")))) return false;
  Islem islem(b);
  int id = 0;
  const auto deger = [](const char* s) { return s ? QVariant(QString::fromUtf8(s)) : Null(); };
  const auto sayi = [](int n) { return n < 0 ? Null() : QVariant(n); };
  for (const SablonSatiri& r : kSablon)
    b.Calistir(QStringLiteral("INSERT INTO SozlesmeTanim(ID, SIRA, SUTUN, TIP, ALAN, BOY, "
                              "\"DECIMAL\", FORMAT) VALUES (?, ?, ?, ?, ?, ?, ?, ?)"),
               {++id, r.sira, r.sutun, deger(r.tip), deger(r.alan), sayi(r.boy), sayi(r.ondalik),
                deger(r.bicim)});
  islem.Onayla();
  return true;
}

void HesapTablolariOlustur(Baglanti& b) { b.Calistir(QString::fromUtf8(kHesapTablolari)); }

void GorunumleriKur(Baglanti& b) {
  Islem islem(b);
  for (const char* ad : {"MusteriQry", "CekDurum", "SozlesmePrint"})
    b.Calistir(QStringLiteral("DROP VIEW IF EXISTS %1").arg(QLatin1String(ad)));
  b.Calistir(QString::fromUtf8(kGorunumler));
  islem.Onayla();
}

void SemaOlustur(Baglanti& b) {
  Islem islem(b);
  b.Calistir(QString::fromUtf8(kTablolar));
  HesapTablolariOlustur(b);
  GorunumleriKur(b);
  RaporlariHazirla(b);
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
  SablonBossaYukle(b);
  // The office's row: the three columns every start reads hold empty texts, so
  // that a first start left without filling in the firm screen still opens.
  b.Calistir(
      QStringLiteral("INSERT INTO Firma(Soyadi, SozlesmeSeri, FaturaSeri) VALUES ('', '', '')"));
  islem.Onayla();
}

}  // namespace db
