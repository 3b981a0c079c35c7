#include "contract/rptBordro.h"

#include "contract/BordroOrtak.h"
#include "contract/Faiz.h"
#include "core/Genel.h"

namespace contract {

// The contract is found by its key and its lines through the index on
// SozlesmeDetay.SozlesmeID; the rows come in the order of that index. Days,
// interest and payable amount aren't worked out here but per row below, by the
// same rule as the contract screen's totals.
const char* const kBordroSorgusu =
    "SELECT S.SozlesmeID, "
    "CASE WHEN M.HukukiDurum = 1 THEN ifnull(M.Adi, '') || ' ' || ifnull(M.Soyadi, '') "
    "ELSE ifnull(M.Soyadi, '') || ' ' || ifnull(M.Adi, '') || ' ' || ifnull(M.BabaAdi, '') "
    "END AS Musteri, "
    "S.SozlesmeSeri, S.SozlesmeNo, S.Tarih, S.ilaveGun, S.FaizOran, "
    "SD.CekNo, SD.Vadesi, SD.Kesideci, SD.Banka, SD.Sube, SD.HesapNo, SD.Meblag, SD.Tip, SD.Gun "
    "FROM (Sozlesme S INNER JOIN SozlesmeDetay SD ON S.SozlesmeID = SD.SozlesmeID) "
    "INNER JOIN Musteri M ON S.MusteriNo = M.MusteriNo "
    "WHERE S.SozlesmeID = ?";

namespace {

QDate Tarih(const QVariant& v) {
  if (db::NullMu(v)) return QDate();
  return QDate::fromString(v.toString().left(10), Qt::ISODate);
}

// A stored day value (Gun, ilaveGun) as rule D reads it: its leading number,
// a Null or a text without one counting as 0.
qint64 Gun(const QVariant& v) { return db::NullMu(v) ? 0 : faiz::GunOku(v.toString()); }

// Column numbers of the statement's result, looked up once.
struct Alanlar {
  explicit Alanlar(const db::Kayitlar& rs)
      : Tarih(rs.AlanNo(QStringLiteral("Tarih"))),
        ilaveGun(rs.AlanNo(QStringLiteral("ilaveGun"))),
        FaizOran(rs.AlanNo(QStringLiteral("FaizOran"))),
        Tip(rs.AlanNo(QStringLiteral("Tip"))),
        Kesideci(rs.AlanNo(QStringLiteral("Kesideci"))),
        Banka(rs.AlanNo(QStringLiteral("Banka"))),
        Sube(rs.AlanNo(QStringLiteral("Sube"))),
        HesapNo(rs.AlanNo(QStringLiteral("HesapNo"))),
        CekNo(rs.AlanNo(QStringLiteral("CekNo"))),
        Vadesi(rs.AlanNo(QStringLiteral("Vadesi"))),
        Gun(rs.AlanNo(QStringLiteral("Gun"))),
        Meblag(rs.AlanNo(QStringLiteral("Meblag"))) {}
  int Tarih, ilaveGun, FaizOran, Tip, Kesideci, Banka, Sube, HesapNo, CekNo, Vadesi, Gun, Meblag;
};

// One row with its figures. A Null rate or ilaveGun of an old contract counts
// as 0, as the contract screen shows it.
BordroSatiri SatirHesapla(const db::Kayitlar& rs, const Alanlar& a, int i) {
  const auto metin = [&](int alan) { return rs.Deger(i, alan).toString(); };
  BordroSatiri s;
  s.Tip = metin(a.Tip);
  s.Kesideci = metin(a.Kesideci);
  s.Banka = metin(a.Banka);
  s.Sube = metin(a.Sube);
  s.HesapNo = metin(a.HesapNo);
  s.CekNo = metin(a.CekNo);
  s.Vadesi = Tarih(rs.Deger(i, a.Vadesi));
  const QVariant meblag = rs.Deger(i, a.Meblag);
  if (!db::NullMu(meblag)) s.Meblag = meblag.toDouble();

  faiz::Satir satir;
  satir.Vadesi = s.Vadesi;
  satir.Gun = Gun(rs.Deger(i, a.Gun));
  const faiz::GunKurali kural{Tarih(rs.Deger(i, a.Tarih)), Gun(rs.Deger(i, a.ilaveGun)),
                              Genel::HaftaSonu};
  s.Gunu = faiz::GunSayisi(satir, kural);
  if (s.Gunu && s.Meblag) {
    s.Faiz = faiz::SatirFaizi(*s.Meblag, *s.Gunu, rs.Deger(i, a.FaizOran).toDouble());
    s.Odenecek = *s.Meblag - *s.Faiz;
  }
  return s;
}

// --- layout, millimetres on landscape A4 (277 wide inside the margins)

using bordro::kSatir;
using bordro::Sutun;
using bordro::Yer;

// Label1 to Label8, Label11, Label10, Label9 from left to right.
constexpr Sutun kTip{"Tip", 0, 12, false};
constexpr Sutun kKesideci{"Keşideci", 13, 47, false};
constexpr Sutun kBanka{"Banka", 61, 30, false};
constexpr Sutun kSube{"Şube", 92, 30, false};
constexpr Sutun kHesapNo{"Hesapno", 123, 26, false};
constexpr Sutun kCekNo{"Çekno", 150, 24, false};
constexpr Sutun kVadesi{"Tarih", 175, 19, false};
constexpr Sutun kGunu{"Gün", 195, 11, true};
constexpr Sutun kMeblag{"Tutar", 207, 23, true};
constexpr Sutun kFaiz{"Faiz", 231, 22, true};
constexpr Sutun kOdenecek{"Ödenecek", 254, 23, true};
constexpr double kGenislik = 277;

const QString kTutarBicimi = QStringLiteral("###,###,###,###,##0.00");
const QString kFaizBicimi = QStringLiteral("#.##0,00");  // Faiz and every sum

void SayfaBasligi(rapor::Bant& b, const BordroEtiketleri& e) {
  const bordro::Baslik baslik{.Musteri = e.Musteri,
                              .Tarih = e.Tarih,
                              .SozlesmeNo = e.Seri + QLatin1Char(' ') + e.SozlesmeNo,
                              .FaizOran = e.FaizOran,
                              .solGenislik = 190,
                              .sagX = 197,
                              .sagGenislik = 80,
                              .cizgiX = 0,
                              .sagKenar = kGenislik};
  bordro::SayfaBasligi(b, baslik,
                       {kTip, kKesideci, kBanka, kSube, kHesapNo, kCekNo, kVadesi, kGunu, kMeblag,
                        kFaiz, kOdenecek});
}

// A figure of the row being drawn; the report's rows are those of `satirlar`.
template <typename Secici>
rapor::Hesaplayici Rakam(const QVector<BordroSatiri>& satirlar, Secici sec) {
  return [satirlar, sec](const rapor::Baglam& k) -> QVariant {
    if (k.satir < 0 || k.satir >= satirlar.size()) return QVariant();
    const auto d = sec(satirlar[k.satir]);
    return d ? QVariant(*d) : QVariant();
  };
}

void Detay(rapor::Bant& b, const QVector<BordroSatiri>& satirlar) {
  using rapor::Yazi;
  b.Ekle(Yazi::Alan(QStringLiteral("Tip"), Yer(kTip, 0)));
  b.Ekle(Yazi::Alan(QStringLiteral("Kesideci"), Yer(kKesideci, 0)));
  b.Ekle(Yazi::Alan(QStringLiteral("Banka"), Yer(kBanka, 0)));
  b.Ekle(Yazi::Alan(QStringLiteral("Sube"), Yer(kSube, 0)));
  b.Ekle(Yazi::Alan(QStringLiteral("HesapNo"), Yer(kHesapNo, 0)));
  b.Ekle(Yazi::Alan(QStringLiteral("CekNo"), Yer(kCekNo, 0)));
  b.Ekle(Yazi::Alan(QStringLiteral("Vadesi"), Yer(kVadesi, 0)).Bicim(QStringLiteral("dd.MM.yyyy")));
  b.Ekle(Yazi::Hesap(Rakam(satirlar,
                           [](const BordroSatiri& s) {
                             return s.Gunu ? std::optional<qlonglong>(*s.Gunu) : std::nullopt;
                           }),
                     Yer(kGunu, 0))
             .Sag());
  b.Ekle(Yazi::Alan(QStringLiteral("Meblag"), Yer(kMeblag, 0)).Bicim(kTutarBicimi).Sag());
  b.Ekle(Yazi::Hesap(Rakam(satirlar, [](const BordroSatiri& s) { return s.Faiz; }), Yer(kFaiz, 0))
             .Bicim(kFaizBicimi)
             .Sag());
  b.Ekle(Yazi::Hesap(Rakam(satirlar, [](const BordroSatiri& s) { return s.Odenecek; }),
                     Yer(kOdenecek, 0))
             .Bicim(kTutarBicimi)
             .Sag());
  for (Yazi& y : b.yazilar) y.punto = 8.5;
  b.Ekle(bordro::Cizgi(0, 5.3, kGenislik, 0.1));  // Line2
  // A contract of DetayLimit's default 22 lines fits one page with its footer.
  b.yukseklik = 5.5;
}

void RaporAltligi(rapor::Bant& b, const Bordro& veri, const BordroEtiketleri& e) {
  using rapor::Yazi;
  const QString ortGun = faiz::ParaYazisi(e.OrtGun);
  const auto toplam = [](double d) { return [d](const rapor::Baglam&) { return QVariant(d); }; };
  b.Ekle(bordro::Cizgi(0, 1, kGenislik, 0.4));  // Line1

  // Under the columns: the average day and the three sums (lblOrtGun, Function1-3).
  b.Ekle(Yazi::Sabit(QStringLiteral("Ortalama ve Toplam:"), {kGunu.x - 61, 2, 60, kSatir})
             .Sag()
             .Kalin());
  b.Ekle(Yazi::Sabit(ortGun, Yer(kGunu, 2)).Sag().Punto(8.5));
  b.Ekle(
      Yazi::Hesap(toplam(veri.ToplamMeblag), Yer(kMeblag, 2)).Bicim(kFaizBicimi).Sag().Punto(8.5));
  b.Ekle(Yazi::Hesap(toplam(veri.ToplamFaiz), Yer(kFaiz, 2)).Bicim(kFaizBicimi).Sag().Punto(8.5));
  b.Ekle(Yazi::Hesap(toplam(veri.ToplamOdenecek), Yer(kOdenecek, 2))
             .Bicim(kFaizBicimi)
             .Sag()
             .Punto(8.5));

  // Below, label and value (Label13 lblOrtGun2, Label14 Function5, Label12
  // Function6, Label15 Function7).
  bordro::DegerSatirlari satirlar(b, 200, 237, 40, 10);
  satirlar.Ekle(QStringLiteral("Ortalama Gün:"), Yazi::Sabit(ortGun, {}));
  satirlar.Ekle(QStringLiteral("Toplam:"),
                Yazi::Hesap(toplam(veri.ToplamMeblag), {}).Bicim(kFaizBicimi));
  satirlar.Ekle(QStringLiteral("Faiz Tutarı:"),
                Yazi::Hesap(toplam(veri.ToplamFaiz), {}).Bicim(kFaizBicimi));
  satirlar.Ekle(QStringLiteral("Ödenecek: "),
                Yazi::Hesap(toplam(veri.ToplamOdenecek), {}).Bicim(kFaizBicimi));
}

}  // namespace

Bordro BordroVerisi(qint64 SozlesmeID) {
  Bordro b;
  b.kayitlar = Genel::Baglanti.Sorgu(QString::fromLatin1(kBordroSorgusu), {SozlesmeID});
  const Alanlar alanlar(b.kayitlar);
  const int n = b.kayitlar.RecordCount();
  b.satirlar.reserve(n);
  for (int i = 0; i < n; ++i) {
    BordroSatiri s = SatirHesapla(b.kayitlar, alanlar, i);
    if (s.Meblag) b.ToplamMeblag += *s.Meblag;
    if (s.Faiz) b.ToplamFaiz += *s.Faiz;
    if (s.Odenecek) b.ToplamOdenecek += *s.Odenecek;
    b.satirlar.push_back(std::move(s));
  }
  return b;
}

rapor::Rapor rptBordro(const Bordro& veri, const BordroEtiketleri& etiketler) {
  rapor::Rapor r;
  r.baslik = QStringLiteral("Bordro");
  r.sayfaDuzeni = QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Landscape,
                              QMarginsF(10, 10, 10, 10), QPageLayout::Millimeter);
  r.kayitlar = veri.kayitlar;
  SayfaBasligi(r.sayfaBasligi, etiketler);
  Detay(r.detay, veri.satirlar);
  RaporAltligi(r.raporAltligi, veri, etiketler);
  return r;
}

rapor::RaporPenceresi* BordroGoster(qint64 SozlesmeID, const BordroEtiketleri& etiketler,
                                    QWidget* ust) {
  return rapor::Goster(rptBordro(BordroVerisi(SozlesmeID), etiketler), ust);
}

}  // namespace contract
