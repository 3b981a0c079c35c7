#include "bench/Uretec.h"

#include <QHash>

#include "core/Genel.h"
#include "db/Baglanti.h"
#include "db/Kayitlar.h"

namespace bench {

namespace {

struct Agirlikli {
  const char* ad;
  int agirlik;
};

// Surnames roughly by how often they occur; the most common one stands on
// about a tenth of the customers, which the search benchmarks rely on.
const Agirlikli kSoyadlari[] = {
    {"YILMAZ", 150},  {"KAYA", 40},     {"DEMİR", 40},    {"ŞAHİN", 35},   {"ÇELİK", 35},
    {"YILDIZ", 30},   {"YILDIRIM", 30}, {"ÖZTÜRK", 30},   {"AYDIN", 30},   {"ÖZDEMİR", 28},
    {"ARSLAN", 28},   {"DOĞAN", 28},    {"KILIÇ", 25},    {"ASLAN", 25},   {"ÇETİN", 25},
    {"KARA", 25},     {"KOÇ", 24},      {"KURT", 24},     {"ÖZKAN", 22},   {"ŞİMŞEK", 22},
    {"POLAT", 20},    {"ÖZCAN", 20},    {"KORKMAZ", 20},  {"ÇAKIR", 20},   {"ERDOĞAN", 20},
    {"YAVUZ", 18},    {"CAN", 18},      {"ACAR", 18},     {"ŞEN", 18},     {"AKTAŞ", 18},
    {"GÜLER", 16},    {"YALÇIN", 16},   {"GÜNEŞ", 16},    {"BOZKURT", 16}, {"BULUT", 16},
    {"KESKİN", 15},   {"ÜNAL", 15},     {"TURAN", 15},    {"GÜL", 15},     {"ÖZER", 14},
    {"IŞIK", 14},     {"KAPLAN", 14},   {"AVCI", 14},     {"SARI", 13},    {"TEKİN", 13},
    {"TAŞ", 13},      {"KÖSE", 13},     {"YÜKSEL", 12},   {"ATEŞ", 12},    {"ALTUN", 12},
    {"KARAKAYA", 11}, {"UYSAL", 11},    {"KOÇAK", 11},    {"DEMİRCİ", 10}, {"ÖZGÜR", 10},
    {"AKIN", 10},     {"TOPRAK", 10},   {"ERDEM", 10},    {"KARAKUŞ", 9},  {"SÖNMEZ", 9},
    {"ÇİFTÇİ", 9},    {"GÜNDOĞDU", 8},  {"KAHRAMAN", 8},  {"OĞUZ", 8},     {"BAŞARAN", 8},
    {"İPEK", 7},      {"ÇİÇEK", 7},     {"KARATAŞ", 7},   {"ÖZBEK", 7},    {"İNCE", 6},
    {"EKİNCİ", 6},    {"DURMAZ", 6},    {"ŞAHİNOĞLU", 5}, {"KARAOĞLU", 5}, {"HACIOĞLU", 5},
};

const Agirlikli kErkekAdlari[] = {
    {"MEHMET", 60},   {"MUSTAFA", 45}, {"AHMET", 42},   {"ALİ", 38},   {"HÜSEYİN", 30},
    {"HASAN", 30},    {"İBRAHİM", 26}, {"İSMAİL", 22},  {"OSMAN", 20}, {"YUSUF", 20},
    {"MURAT", 18},    {"ÖMER", 18},    {"RAMAZAN", 16}, {"HALİL", 16}, {"SÜLEYMAN", 15},
    {"ABDULLAH", 14}, {"MAHMUT", 13},  {"SALİH", 12},   {"KEMAL", 12}, {"RECEP", 11},
    {"EMRE", 11},     {"BURAK", 10},   {"SERKAN", 9},   {"ERKAN", 9},  {"FATİH", 9},
    {"ENGİN", 8},     {"UĞUR", 8},     {"ŞÜKRÜ", 7},    {"İLHAN", 7},  {"CEM", 6},
    {"GÖKHAN", 6},    {"TUNCAY", 5},   {"ÇAĞLAR", 5},   {"ONUR", 5},   {"VOLKAN", 5},
};

const Agirlikli kKadinAdlari[] = {
    {"FATMA", 40},  {"AYŞE", 38},   {"EMİNE", 32},  {"HATİCE", 30}, {"ZEYNEP", 24},
    {"ELİF", 18},   {"MERYEM", 16}, {"ŞERİFE", 14}, {"SULTAN", 12}, {"ZEHRA", 12},
    {"HANİFE", 10}, {"MERVE", 10},  {"ÖZLEM", 9},   {"YASEMİN", 8}, {"GÜLSÜM", 8},
    {"DİLEK", 7},   {"SEVGİ", 6},   {"ÇİĞDEM", 6},  {"NURAY", 5},   {"İPEK", 4},
};

const Agirlikli kSektorler[] = {
    {"İNŞAAT", 20},     {"TEKSTİL", 15}, {"GIDA", 15},     {"OTOMOTİV", 10},  {"TARIM", 8},
    {"MOBİLYA", 8},     {"NAKLİYAT", 8}, {"ELEKTRİK", 6},  {"KUYUMCULUK", 4}, {"TURİZM", 4},
    {"ECZA DEPOSU", 3}, {"PETROL", 3},   {"KIRTASİYE", 3},
};

struct Durum {
  int kod;
  int agirlik;
};
// Legal statuses: mostly natural persons, then small companies.
const Durum kDurumlar[] = {{1, 720}, {2, 80},  {11, 90}, {10, 40}, {20, 12}, {21, 8},
                           {22, 20}, {30, 10}, {31, 8},  {32, 6},  {33, 6}};

const char* const kCaddeler[] = {
    "Atatürk",     "Cumhuriyet",      "İstiklal",    "Gazi",     "İnönü",        "Fevzi Çakmak",
    "Mimar Sinan", "Kazım Karabekir", "Menderes",    "Hürriyet", "Barbaros",     "Mevlana",
    "Yunus Emre",  "Namık Kemal",     "Ziya Gökalp", "Şehitler", "Çamlık",       "Gül",
    "Lale",        "Papatya",         "Değirmen",    "Çarşı",    "Ata'nın Yolu", "Hacı Bayram",
};
const char* const kYolTurleri[] = {"Cad.", "Sok.", "Bulvarı", "Cad.", "Sok."};
const char* const kMahalleler[] = {"Yeni Mah.",       "Merkez Mah.",   "Bahçelievler Mah.",
                                   "Yıldıztepe Mah.", "Kocatepe Mah.", "Fatih Mah.",
                                   "Çiftlik Mah.",    "Esentepe Mah."};

// Districts of the large provinces, by province code; the others have one.
const QHash<int, QStringList>& Ilceler() {
  static const QHash<int, QStringList> h = {
      {34,
       {"Kadıköy", "Üsküdar", "Beşiktaş", "Fatih", "Bakırköy", "Şişli", "Bağcılar", "Esenler",
        "Ümraniye", "Pendik", "Kartal", "Beyoğlu", "Sarıyer", "Eyüp"}},
      {6, {"Çankaya", "Keçiören", "Yenimahalle", "Mamak", "Etimesgut", "Sincan", "Altındağ"}},
      {35, {"Konak", "Karşıyaka", "Bornova", "Buca", "Çiğli", "Bayraklı"}},
      {16, {"Osmangazi", "Nilüfer", "Yıldırım", "İnegöl", "Gemlik"}},
      {7, {"Muratpaşa", "Kepez", "Konyaaltı", "Alanya", "Manavgat"}},
      {1, {"Seyhan", "Yüreğir", "Çukurova", "Ceyhan"}},
      {42, {"Selçuklu", "Meram", "Karatay", "Ereğli"}},
      {27, {"Şahinbey", "Şehitkamil", "Nizip"}},
  };
  return h;
}

// How many people live there, roughly, per province code; the rest weigh 1.
const QHash<int, int>& IlAgirliklari() {
  static const QHash<int, int> h = {{34, 60}, {6, 20}, {35, 16}, {16, 10}, {7, 9},
                                    {1, 8},   {42, 8}, {27, 7},  {33, 6},  {41, 6}};
  return h;
}

const char* const kYabanciUlkeler[] = {"DE", "NL", "AZ", "SY", "IQ", "RU", "GB", "FR"};

template <size_t N>
QVector<std::pair<QString, int>> Havuz(const Agirlikli (&dizi)[N], int& toplam) {
  QVector<std::pair<QString, int>> h;
  toplam = 0;
  for (const auto& a : dizi) {
    h.push_back({QString::fromUtf8(a.ad), a.agirlik});
    toplam += a.agirlik;
  }
  return h;
}

struct Havuzlar {
  QVector<std::pair<QString, int>> soyad, erkek, kadin, sektor;
  int soyadT = 0, erkekT = 0, kadinT = 0, sektorT = 0;
  Havuzlar() {
    soyad = Havuz(kSoyadlari, soyadT);
    erkek = Havuz(kErkekAdlari, erkekT);
    kadin = Havuz(kKadinAdlari, kadinT);
    sektor = Havuz(kSektorler, sektorT);
  }
};

const Havuzlar& H() {
  static const Havuzlar h;
  return h;
}

QString Kisalt(const QString& s, int boy) { return s.left(boy).trimmed(); }

}  // namespace

Uretec::Uretec(db::Baglanti& baglanti, quint32 tohum) : b_(baglanti), r_(tohum) {
  db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT IlKod, Il FROM Il_Trafik_Kodu"));
  for (rs.MoveFirst(); !rs.Eof(); rs.MoveNext()) {
    const int kod = rs.Fields(0).toInt();
    iller_.push_back({kod, rs.Metin(QStringLiteral("Il"))});
    ilAgirlik_.push_back(IlAgirliklari().value(kod, 1));
    ilToplam_ += ilAgirlik_.back();
  }
}

bool Uretec::Olasilik(double p) { return r_.generateDouble() < p; }

int Uretec::Arasi(int alt, int ust) { return int(r_.bounded(alt, ust + 1)); }

const QString& Uretec::Sec(const QVector<std::pair<QString, int>>& havuz, int toplam) {
  int x = int(r_.bounded(toplam));
  for (const auto& [ad, agirlik] : havuz) {
    if (x < agirlik) return ad;
    x -= agirlik;
  }
  return havuz.back().first;
}

QString Uretec::Soyadi() { return Sec(H().soyad, H().soyadT); }
QString Uretec::ErkekAdi() { return Sec(H().erkek, H().erkekT); }
QString Uretec::KadinAdi() { return Sec(H().kadin, H().kadinT); }

QString Uretec::BankaAdi() {
  static const QStringList bankalar = {
      QStringLiteral("ZİRAAT BANKASI"), QStringLiteral("İŞ BANKASI"),
      QStringLiteral("GARANTİ"),        QStringLiteral("YAPI KREDİ"),
      QStringLiteral("AKBANK"),         QStringLiteral("HALKBANK"),
      QStringLiteral("VAKIFBANK"),      QStringLiteral("DENİZBANK"),
      QStringLiteral("ŞEKERBANK"),      QStringLiteral("TEB")};
  return bankalar[int(r_.bounded(int(bankalar.size())))];
}

Uretec::Yer Uretec::RastgeleYer() {
  Yer y{0, QString(), QString()};
  if (iller_.isEmpty()) return y;
  int x = int(r_.bounded(ilToplam_));
  int i = 0;
  while (x >= ilAgirlik_[i]) x -= ilAgirlik_[i++];
  y.ilKod = iller_[i].first;
  y.il = iller_[i].second;
  const QStringList ilceler = Ilceler().value(y.ilKod);
  y.ilce =
      ilceler.isEmpty() ? QStringLiteral("Merkez") : ilceler[int(r_.bounded(int(ilceler.size())))];
  return y;
}

QString Uretec::Adres() {
  QString a;
  if (Olasilik(0.6))
    a = QString::fromUtf8(kMahalleler[r_.bounded(int(std::size(kMahalleler)))]) + QLatin1Char(' ');
  a += QString::fromUtf8(kCaddeler[r_.bounded(int(std::size(kCaddeler)))]) + QLatin1Char(' ') +
       QString::fromUtf8(kYolTurleri[r_.bounded(int(std::size(kYolTurleri)))]);
  a += QStringLiteral(" No:%1").arg(Arasi(1, 180));
  if (Olasilik(0.5)) a += QStringLiteral(" D:%1").arg(Arasi(1, 24));
  return a.left(50);
}

// Eleven digits with the two check digits of the national identity number.
QString Uretec::TcKimlikNo(QRandomGenerator& r) {
  int d[11];
  d[0] = r.bounded(1, 10);
  for (int i = 1; i < 9; ++i) d[i] = r.bounded(10);
  const int tek = d[0] + d[2] + d[4] + d[6] + d[8];
  const int cift = d[1] + d[3] + d[5] + d[7];
  d[9] = ((tek * 7 - cift) % 10 + 10) % 10;
  int toplam = 0;
  for (int i = 0; i < 10; ++i) toplam += d[i];
  d[10] = toplam % 10;
  QString s;
  for (int x : d) s += QChar('0' + x);
  return s;
}

// Ten digits with the check digit of the tax number.
QString Uretec::VergiKimlikNo(QRandomGenerator& r) {
  int d[10];
  for (int i = 0; i < 9; ++i) d[i] = r.bounded(10);
  int toplam = 0;
  for (int i = 0; i < 9; ++i) {
    const int t = (d[i] + 9 - i) % 10;
    int v = (t * (1 << (9 - i))) % 9;
    if (t != 0 && v == 0) v = 9;
    toplam += v;
  }
  d[9] = (10 - toplam % 10) % 10;
  QString s;
  for (int x : d) s += QChar('0' + x);
  return s;
}

void Uretec::TopluEkle(const QString& tablo, const QStringList& sutunlar,
                       const QVector<QVariantList>& satirlar) {
  // The engine takes at most a few thousand parameters in one statement.
  const int parti = std::max(1, 900 / int(sutunlar.size()));
  const QString yerTutucu =
      QStringLiteral("(") + QStringList(sutunlar.size(), QStringLiteral("?")).join(',') + ')';
  db::Islem islem(b_);
  for (int bas = 0; bas < satirlar.size(); bas += parti) {
    const int n = std::min(parti, int(satirlar.size()) - bas);
    QStringList degerler(n, yerTutucu);
    QVariantList param;
    param.reserve(n * sutunlar.size());
    for (int i = 0; i < n; ++i) param += satirlar[bas + i];
    b_.Calistir(QStringLiteral("INSERT INTO %1(%2) VALUES %3")
                    .arg(tablo, sutunlar.join(QStringLiteral(", ")), degerler.join(',')),
                param);
  }
  islem.Onayla();
}

void Uretec::IsimCiz(bool kisi, int durum, QString& soyadi, QString& adi, QString& babaAdi) {
  if (kisi) {
    soyadi = Soyadi();
    adi = Olasilik(0.55) ? ErkekAdi() : KadinAdi();
    if (Olasilik(0.2)) adi = Kisalt(adi + QLatin1Char(' ') + ErkekAdi(), 16);  // two names
    babaAdi = ErkekAdi();
    return;
  }
  // A title in up to three pieces: "YILMAZ İNŞAAT" "SAN. VE TİC." "LTD. ŞTİ."
  soyadi = Kisalt(Soyadi() + QLatin1Char(' ') + Sec(H().sektor, H().sektorT), 20);
  adi = Olasilik(0.5) ? QStringLiteral("SAN. VE TİC.") : QStringLiteral("TAAHHÜT VE TİC.");
  if (Olasilik(0.3)) adi = Kisalt(ErkekAdi() + QLatin1Char(' ') + adi, 16);
  babaAdi = durum == 10   ? QStringLiteral("A.Ş.")
            : durum == 11 ? QStringLiteral("LTD. ŞTİ.")
            : durum >= 30 ? QString()
                          : QStringLiteral("ŞTİ.");
}

Uretec::Aralik Uretec::Musteriler(int adet) {
  if (anahtarlar_.isEmpty()) {
    db::Kayitlar rs = b_.Sorgu(QStringLiteral("SELECT Aranacak FROM Musteri"));
    for (int i = 0; i < rs.RecordCount(); ++i) anahtarlar_.insert(rs.Deger(i, 0).toString());
  }
  static const QStringList sutunlar = {
      QStringLiteral("MusteriNo"),    QStringLiteral("VergiKimlikNo"),
      QStringLiteral("VergiDairesi"), QStringLiteral("Soyadi"),
      QStringLiteral("Adi"),          QStringLiteral("BabaAdi"),
      QStringLiteral("Adres"),        QStringLiteral("Ilce"),
      QStringLiteral("PostaKod"),     QStringLiteral("IlKod"),
      QStringLiteral("Il_Ad"),        QStringLiteral("UlkeKod"),
      QStringLiteral("TCKimlikNo"),   QStringLiteral("Uyruk"),
      QStringLiteral("VekilDurum"),   QStringLiteral("VekilVergiKimlik"),
      QStringLiteral("VekilSoyadi"),  QStringLiteral("VekilAdi"),
      QStringLiteral("HukukiDurum"),  QStringLiteral("Aranacak")};
  int durumToplam = 0;
  for (const auto& d : kDurumlar) durumToplam += d.agirlik;

  Aralik a;
  qint64 no =
      b_.Deger(QStringLiteral("SELECT ifnull(max(MusteriNo), 0) FROM Musteri")).toLongLong();
  QVector<QVariantList> satirlar;
  satirlar.reserve(adet);
  for (int i = 0; i < adet; ++i) {
    no += Olasilik(0.03) ? Arasi(2, 5) : 1;
    if (i == 0) a.ilk = no;
    int x = int(r_.bounded(durumToplam));
    int durum = kDurumlar[0].kod;
    for (const auto& d : kDurumlar) {
      if (x < d.agirlik) {
        durum = d.kod;
        break;
      }
      x -= d.agirlik;
    }
    const bool kisi = durum == 1 || durum == 2;
    const Yer yer = RastgeleYer();
    QString soyadi, adi, babaAdi, vkn, tckn;
    // The register refuses a second customer with the same three names, so
    // the data holds none: a clash is drawn again.
    // A person keeps the surname drawn, so that surnames stay as common as
    // they are; once the common names are taken, a second father's name
    // widens the choice.
    IsimCiz(kisi, durum, soyadi, adi, babaAdi);
    for (int deneme = 0; anahtarlar_.contains(Genel::AramaAnahtari(soyadi, adi, babaAdi));
         ++deneme) {
      const QString soyad = soyadi;
      IsimCiz(kisi, durum, soyadi, adi, babaAdi);
      if (!kisi) continue;
      soyadi = soyad;
      if (deneme > 10) babaAdi = Kisalt(babaAdi + QLatin1Char(' ') + ErkekAdi(), 16);
    }
    anahtarlar_.insert(Genel::AramaAnahtari(soyadi, adi, babaAdi));
    if (kisi) {
      tckn = TcKimlikNo(r_);
      if (durum == 2 || Olasilik(0.3)) vkn = VergiKimlikNo(r_);
    } else {
      vkn = VergiKimlikNo(r_);
    }
    const bool yabanci = kisi && Olasilik(0.02);
    const int vekil = Olasilik(0.05) ? Arasi(1, 4) : 0;
    QVariantList s;
    s << no << vkn << Kisalt(db::TurkceBuyuk(yer.ilce), 20) << soyadi << adi << babaAdi << Adres()
      << yer.ilce.left(15)
      << QStringLiteral("%1").arg(yer.ilKod * 1000 + Arasi(0, 999), 5, 10, QLatin1Char('0'))
      << yer.ilKod << yer.il
      << (yabanci ? QString::fromUtf8(kYabanciUlkeler[r_.bounded(int(std::size(kYabanciUlkeler)))])
                  : QStringLiteral("TR"))
      << (yabanci ? QString() : tckn) << (yabanci ? 2 : 1) << vekil
      << (vekil ? VergiKimlikNo(r_) : QString()) << (vekil ? Soyadi() : QString())
      << (vekil ? ErkekAdi() : QString()) << durum << Genel::AramaAnahtari(soyadi, adi, babaAdi);
    satirlar.push_back(std::move(s));
  }
  if (adet > 0) {
    TopluEkle(QStringLiteral("Musteri"), sutunlar, satirlar);
    a.son = no;
    a.adet = adet;
  }
  return a;
}

}  // namespace bench
