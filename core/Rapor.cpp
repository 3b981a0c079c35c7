#include "core/Rapor.h"

#include <QDate>
#include <QDateTime>
#include <QFont>
#include <QHash>
#include <QPageSize>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QRegularExpression>
#include <algorithm>
#include <cmath>

#include "core/Genel.h"

namespace rapor {

// ---------------------------------------------------------------- labels

namespace {

Yazi YeniYazi(Yazi::Tur tur, const QString& metin, const QRectF& yer) {
  Yazi y;
  y.tur = tur;
  y.metin = metin;
  y.yer = yer;
  return y;
}

}  // namespace

Yazi Yazi::Sabit(const QString& metin, const QRectF& yer) {
  return YeniYazi(Tur::Sabit, metin, yer);
}
Yazi Yazi::Alan(const QString& alan, const QRectF& yer) { return YeniYazi(Tur::Alan, alan, yer); }
Yazi Yazi::Toplam(const QString& alan, const QRectF& yer) {
  return YeniYazi(Tur::Toplam, alan, yer);
}
Yazi Yazi::Adet(const QString& alan, const QRectF& yer) { return YeniYazi(Tur::Adet, alan, yer); }
Yazi Yazi::EnBuyuk(const QString& alan, const QRectF& yer) {
  return YeniYazi(Tur::EnBuyuk, alan, yer);
}
Yazi Yazi::EnKucuk(const QString& alan, const QRectF& yer) {
  return YeniYazi(Tur::EnKucuk, alan, yer);
}

Yazi Yazi::Hesap(Hesaplayici hesap, const QRectF& yer) {
  Yazi y = YeniYazi(Tur::Hesap, QString(), yer);
  y.hesap = std::move(hesap);
  return y;
}

Yazi Yazi::SayfaNumarasi(const QRectF& yer) {
  return Hesap(
      [](const Baglam& b) {
        return QVariant(QStringLiteral("Sayfa: %1/%2").arg(b.sayfa).arg(b.sayfaSayisi));
      },
      yer);
}

Yazi& Yazi::Bicim(const QString& b) {
  bicim = b;
  return *this;
}

Yazi& Yazi::Sag() {
  hiza = (hiza & ~Qt::AlignHorizontal_Mask) | Qt::AlignRight;
  return *this;
}

Yazi& Yazi::Orta() {
  hiza = (hiza & ~Qt::AlignHorizontal_Mask) | Qt::AlignHCenter;
  return *this;
}

Yazi& Yazi::Punto(double p) {
  punto = p;
  return *this;
}

Yazi& Yazi::Kalin(bool k) {
  kalin = k;
  return *this;
}

Yazi& Yazi::Italik(bool i) {
  italik = i;
  return *this;
}

Yazi& Yazi::Kaydir(bool k) {
  kaydir = k;
  return *this;
}

Bant& Bant::Ekle(const Yazi& y) {
  yazilar.push_back(y);
  return *this;
}

Bant& Bant::Ekle(const Cizgi& c) {
  cizgiler.push_back(c);
  return *this;
}

double Bant::Yukseklik() const {
  if (yukseklik > 0) return yukseklik;
  double alt = 0;
  for (const auto& y : yazilar) alt = std::max(alt, y.yer.bottom());
  for (const auto& c : cizgiler) alt = std::max(alt, std::max(c.yer.top(), c.yer.bottom()));
  return alt;
}

// ---------------------------------------------------------------- formats

namespace {

// "YYYY-MM-DD" or "YYYY-MM-DD HH:MM[:SS]", the forms dates are stored in.
QDateTime IsoTarih(const QString& s) {
  static const QRegularExpression iso(
      QStringLiteral("^\\d{4}-\\d{2}-\\d{2}([ T]\\d{2}:\\d{2}(:\\d{2})?)?$"));
  if (!iso.match(s).hasMatch()) return QDateTime();
  if (s.size() == 10) return QDate::fromString(s, Qt::ISODate).startOfDay();
  QString t = s;
  t[10] = QLatin1Char('T');
  return QDateTime::fromString(t, Qt::ISODate);
}

QDateTime TarihDegeri(const QVariant& v) {
  switch (v.typeId()) {
    case QMetaType::QDate:
      return v.toDate().startOfDay();
    case QMetaType::QDateTime:
      return v.toDateTime();
    case QMetaType::QString:
      return IsoTarih(v.toString().trimmed());
    default:
      return QDateTime();
  }
}

bool SayiMi(const QVariant& v) {
  switch (v.typeId()) {
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Double:
    case QMetaType::Float:
      return true;
    default:
      return false;
  }
}

// A number value, also out of a text with a decimal point as SQL writes it.
bool SayiDegeri(const QVariant& v, double& sonuc) {
  if (SayiMi(v)) {
    sonuc = v.toDouble();
    return true;
  }
  if (v.typeId() != QMetaType::QString) return false;
  bool tamam = false;
  sonuc = v.toString().trimmed().toDouble(&tamam);
  return tamam;
}

QString DuzSayi(const QVariant& v) {
  if (v.typeId() == QMetaType::Double || v.typeId() == QMetaType::Float) {
    QString s = QString::number(v.toDouble(), 'g', 15);
    s.replace(QLatin1Char('.'), Genel::Bolge().ondalik);
    return s;
  }
  return v.toString();
}

struct SayiBicimi {
  QString on, son;  // literal text around the digits
  bool gruplu = false;
  bool sifirli = false;     // a zero integer part is shown
  int enAz = 0, enCok = 0;  // decimals always shown / shown when needed
};

bool SayiBicimiOku(const QString& b, SayiBicimi& s) {
  static const QString rakam = QStringLiteral("#0");
  static const QString isaret = QStringLiteral("#0,.");
  int bas = -1, son = -1;
  for (int i = 0; i < b.size(); ++i) {
    if (!rakam.contains(b[i])) continue;
    if (bas < 0) bas = i;
    son = i;
  }
  if (bas < 0) return false;
  while (bas > 0 && isaret.contains(b[bas - 1])) --bas;
  while (son + 1 < b.size() && isaret.contains(b[son + 1])) ++son;
  const QString govde = b.mid(bas, son - bas + 1);
  s.on = b.left(bas);
  s.son = b.mid(son + 1);

  // "." is the decimal sign and "," groups, unless the layout was written the
  // Turkish way round ("#.##0,00"): where both appear the last one is the
  // decimal sign, and a "." that appears more than once groups.
  const int sonNokta = govde.lastIndexOf(QLatin1Char('.'));
  const int sonVirgul = govde.lastIndexOf(QLatin1Char(','));
  QChar ondalik;
  if (sonNokta >= 0 && sonVirgul >= 0)
    ondalik = sonNokta > sonVirgul ? QLatin1Char('.') : QLatin1Char(',');
  else if (sonNokta >= 0 && govde.count(QLatin1Char('.')) == 1)
    ondalik = QLatin1Char('.');
  const QChar grup = ondalik == QLatin1Char(',') ? QLatin1Char('.') : QLatin1Char(',');
  const int ayrac = ondalik.isNull() ? -1 : govde.lastIndexOf(ondalik);
  const QString tam = ayrac < 0 ? govde : govde.left(ayrac);
  const QString kesir = ayrac < 0 ? QString() : govde.mid(ayrac + 1);

  s.gruplu = tam.contains(grup) || (ondalik.isNull() && govde.contains(QLatin1Char('.')));
  s.sifirli = tam.contains(QLatin1Char('0'));
  s.enAz = kesir.count(QLatin1Char('0'));
  s.enCok = s.enAz + kesir.count(QLatin1Char('#'));
  return true;
}

QString SayiYazBicimli(double deger, const SayiBicimi& b) {
  const QChar ondalik = Genel::Bolge().ondalik;
  QString s = Genel::SayiYaz(deger, b.enCok, b.gruplu);
  const bool eksi = s.startsWith(QLatin1Char('-'));
  if (eksi) s.remove(0, 1);
  if (b.enCok > b.enAz) {
    int kesir = b.enCok;
    while (kesir > b.enAz && s.endsWith(QLatin1Char('0'))) {
      s.chop(1);
      --kesir;
    }
    if (kesir == 0) s.chop(1);  // the decimal sign itself
  }
  if (!b.sifirli && (s == QLatin1String("0") || s.startsWith(QStringLiteral("0") + ondalik)))
    s.remove(0, 1);
  return (eksi ? QStringLiteral("-") : QString()) + b.on + s + b.son;
}

bool TarihBicimiMi(const QString& b) {
  static const QRegularExpression harf(QStringLiteral("[dMy]"));
  return b.contains(harf) && !b.contains(QLatin1Char('#'));
}

}  // namespace

QString Bicimle(const QVariant& deger, const QString& bicim) {
  if (db::NullMu(deger)) return QString();
  const QDateTime tarih = TarihDegeri(deger);

  if (bicim.isEmpty()) {
    if (tarih.isValid()) return Genel::TarihYaz(tarih.date());
    return DuzSayi(deger);
  }
  if (TarihBicimiMi(bicim)) return tarih.isValid() ? tarih.toString(bicim) : deger.toString();

  SayiBicimi b;
  double sayi = 0;
  if (tarih.isValid()) return Genel::TarihYaz(tarih.date());
  if (!SayiBicimiOku(bicim, b) || !SayiDegeri(deger, sayi)) return DuzSayi(deger);
  return SayiYazBicimli(sayi, b);
}

// ---------------------------------------------------------------- paging

namespace {

constexpr double kPay = 1e-6;  // mm; rounding of the band heights

struct Sayfa {
  int ilk = 0, son = 0;  // detail rows [ilk, son)
  bool raporBasligi = false;
  bool raporAltligi = false;
};

// Fills pages from the top: the detail band repeats while it fits between the
// page header and the page footer; the report footer follows the last row,
// on a page of its own when the last one is full. A band taller than the
// page still takes one page rather than none.
QVector<Sayfa> Sayfala(const Rapor& r, double yukseklik) {
  const double govde = yukseklik - r.sayfaBasligi.Yukseklik() - r.sayfaAltligi.Yukseklik();
  const double detay = r.detay.Yukseklik();
  const double altlik = r.raporAltligi.Yukseklik();

  QVector<Sayfa> sayfalar;
  Sayfa s;
  s.raporBasligi = true;
  double dolu = r.raporBasligi.Yukseklik();
  bool bos = true;  // nothing but headers on the page yet
  auto yeniSayfa = [&] {
    sayfalar.push_back(s);
    s = Sayfa{s.son, s.son, false, false};
    dolu = 0;
    bos = true;
  };

  const int n = r.kayitlar.RecordCount();
  for (int i = 0; i < n; ++i) {
    if (!bos && dolu + detay > govde + kPay) yeniSayfa();
    dolu += detay;
    s.son = i + 1;
    bos = false;
  }
  if (!bos && dolu + altlik > govde + kPay) yeniSayfa();
  s.raporAltligi = true;
  sayfalar.push_back(s);
  return sayfalar;
}

// ---------------------------------------------------------------- drawing

// Aggregates of a field over the first k rows, for every k, worked out once
// per field and kind.
class Toplamlar {
 public:
  explicit Toplamlar(const db::Kayitlar& k) : k_(k) {}

  QVariant Deger(Yazi::Tur tur, const QString& alan, int satirSayisi) {
    const QString anahtar = QString::number(int(tur)) + QLatin1Char('|') + alan;
    auto it = onbellek_.find(anahtar);
    if (it == onbellek_.end()) it = onbellek_.insert(anahtar, Hesapla(tur, alan));
    return it->value(std::clamp(satirSayisi, 0, int(it->size()) - 1));
  }

 private:
  QVector<QVariant> Hesapla(Yazi::Tur tur, const QString& alan) const {
    const int n = k_.RecordCount();
    const int no = alan.isEmpty() ? -1 : k_.AlanNo(alan);
    if (!alan.isEmpty() && no < 0) qWarning("rapor: no field %s", qPrintable(alan));

    QVector<QVariant> sonuc;
    sonuc.reserve(n + 1);
    double toplam = 0;
    qlonglong adet = 0;
    QVariant uc;  // the largest or smallest so far
    auto ekle = [&] {
      if (tur == Yazi::Tur::Toplam)
        sonuc.push_back(toplam);
      else if (tur == Yazi::Tur::Adet)
        sonuc.push_back(adet);
      else
        sonuc.push_back(uc);
    };
    ekle();
    for (int i = 0; i < n; ++i) {
      const QVariant v = no < 0 ? QVariant() : k_.Deger(i, no);
      double d = 0;
      if (alan.isEmpty() || !db::NullMu(v)) ++adet;
      if (!db::NullMu(v) && SayiDegeri(v, d)) {
        toplam += d;
        const bool yeni =
            db::NullMu(uc) || (tur == Yazi::Tur::EnBuyuk ? d > uc.toDouble() : d < uc.toDouble());
        if (yeni) uc = d;
      }
      ekle();
    }
    return sonuc;
  }

  const db::Kayitlar& k_;
  QHash<QString, QVector<QVariant>> onbellek_;
};

class Cizici {
 public:
  Cizici(const Rapor& r, QPainter& p, double mmX, double mmY, int sayfaSayisi)
      : r_(r), p_(p), mmX_(mmX), mmY_(mmY), sayfaSayisi_(sayfaSayisi), toplamlar_(r.kayitlar) {}

  void SayfaCiz(const Sayfa& s, int sayfaNo, double yukseklik) {
    const int n = r_.kayitlar.RecordCount();
    double y = 0;
    if (s.raporBasligi) {
      BantCiz(r_.raporBasligi, y, {n > 0 ? 0 : -1, n, sayfaNo});
      y += r_.raporBasligi.Yukseklik();
    }
    BantCiz(r_.sayfaBasligi, y, {std::min(s.ilk, n - 1), s.ilk, sayfaNo});
    y += r_.sayfaBasligi.Yukseklik();
    for (int i = s.ilk; i < s.son; ++i) {
      BantCiz(r_.detay, y, {i, i + 1, sayfaNo});
      y += r_.detay.Yukseklik();
    }
    if (s.raporAltligi) BantCiz(r_.raporAltligi, y, {n - 1, n, sayfaNo});
    BantCiz(r_.sayfaAltligi, yukseklik - r_.sayfaAltligi.Yukseklik(), {s.son - 1, s.son, sayfaNo});
  }

 private:
  struct Konum {
    int satir;   // the row fields read
    int kapsam;  // rows the aggregates cover
    int sayfa;
  };

  QRectF Piksel(const QRectF& mm, double bantY) const {
    return QRectF(mm.x() * mmX_, (bantY + mm.y()) * mmY_, mm.width() * mmX_, mm.height() * mmY_);
  }

  void BantCiz(const Bant& b, double y, const Konum& k) {
    for (const auto& c : b.cizgiler) CizgiCiz(c, y);
    for (const auto& yazi : b.yazilar) YaziCiz(yazi, y, k);
  }

  void CizgiCiz(const Cizgi& c, double bantY) {
    p_.save();
    QPen kalem(Qt::black, c.kalinlik * mmY_);
    kalem.setCapStyle(Qt::FlatCap);
    p_.setPen(kalem);
    p_.setBrush(Qt::NoBrush);
    const QRectF yer = Piksel(c.yer, bantY);
    if (c.kutu)
      p_.drawRect(yer);
    else
      p_.drawLine(yer.topLeft(), yer.bottomRight());
    p_.restore();
  }

  QVariant Deger(const Yazi& y, const Konum& k) {
    const auto& rs = r_.kayitlar;
    switch (y.tur) {
      case Yazi::Tur::Sabit:
        return y.metin;
      case Yazi::Tur::Alan: {
        const int no = rs.AlanNo(y.metin);
        if (no < 0) qWarning("rapor: no field %s", qPrintable(y.metin));
        return no < 0 || k.satir < 0 ? QVariant() : rs.Deger(k.satir, no);
      }
      case Yazi::Tur::Hesap:
        return y.hesap ? y.hesap(Baglam{rs, k.satir, k.sayfa, sayfaSayisi_}) : QVariant();
      default:
        return toplamlar_.Deger(y.tur, y.metin, k.kapsam);
    }
  }

  void YaziCiz(const Yazi& y, double bantY, const Konum& k) {
    const QVariant deger = Deger(y, k);
    const QString metin = y.tur == Yazi::Tur::Sabit ? y.metin : Bicimle(deger, y.bicim);
    if (metin.isEmpty()) return;

    QFont f(QString::fromLatin1(kYaziTipi));
    f.setPointSizeF(y.punto);
    f.setBold(y.kalin);
    f.setItalic(y.italik);
    const QRectF yer = Piksel(y.yer, bantY);
    const int bayrak = int(y.hiza) | (y.kaydir ? Qt::TextWordWrap : Qt::TextSingleLine);

    // Texts too long for their place are cut at its edge; an amount never is,
    // since a cut amount reads as a different one.
    p_.save();
    p_.setFont(f);
    p_.setPen(Qt::black);
    if (!SayiMi(deger)) p_.setClipRect(yer);
    p_.drawText(yer, bayrak, metin);
    p_.restore();
  }

  const Rapor& r_;
  QPainter& p_;
  double mmX_, mmY_;  // device pixels per mm
  int sayfaSayisi_;
  Toplamlar toplamlar_;
};

}  // namespace

int SayfaSayisi(const Rapor& r) {
  return Sayfala(r, r.sayfaDuzeni.paintRect(QPageLayout::Millimeter).height()).size();
}

bool Ciz(const Rapor& r, QPagedPaintDevice& aygit) {
  const double yukseklik = aygit.pageLayout().paintRect(QPageLayout::Millimeter).height();
  const QVector<Sayfa> sayfalar = Sayfala(r, yukseklik);

  QPainter p;
  if (!p.begin(&aygit)) return false;
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::TextAntialiasing);
  Cizici c(r, p, aygit.logicalDpiX() / 25.4, aygit.logicalDpiY() / 25.4, sayfalar.size());
  for (int i = 0; i < sayfalar.size(); ++i) {
    if (i > 0 && !aygit.newPage()) return false;
    c.SayfaCiz(sayfalar[i], i + 1, yukseklik);
  }
  return p.end();
}

bool PdfYaz(const Rapor& r, const QString& yol) {
  QPdfWriter pdf(yol);
  pdf.setPageLayout(r.sayfaDuzeni);
  pdf.setResolution(600);
  pdf.setCreator(QStringLiteral("Velmora"));
  pdf.setTitle(r.baslik);
  return Ciz(r, pdf);
}

}  // namespace rapor
