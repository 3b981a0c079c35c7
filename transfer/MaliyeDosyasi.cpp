#include "transfer/MaliyeDosyasi.h"

#include <cmath>

#include "core/Genel.h"

namespace aktarim {

namespace {

// Where the file says who made it. The program has no web address of its
// own; its version, in the words of the about box, tells which build wrote
// the file.
QString Yapan() {
  return QStringLiteral(
             "<!-- Tuvan Yazılım Velmora Takip Programı ile oluşturulmuştur. "
             "Versiyon: %1.%2. Yapım:%3 -->")
      .arg(Genel::kMajor)
      .arg(Genel::kMinor)
      .arg(Genel::kRevision);
}

bool TutarEtiketi(QAnyStringView etiket) {
  static constexpr const char* tutarlar[] = {"odvertoplamtutar", "odtahtoplamtutar", "otutartl",
                                             "otutarabd",        "ftutartl",         "ftutarabd",
                                             "tahtutartl",       "tahtutarabd"};
  for (const char* t : tutarlar)
    if (QAnyStringView::compare(etiket, QLatin1StringView(t)) == 0) return true;
  return false;
}

// Characters an XML 1.0 document may hold: tab, line ends and the printable
// range; line ends are left out too, since every element stands on one line.
bool XmlKarakteri(char32_t c) {
  if (c == U'\t') return true;
  if (c < 0x20) return false;
  if (c >= 0xD800 && c <= 0xDFFF) return false;
  return c != 0xFFFE && c != 0xFFFF;
}

QString Temizle(const QString& metin) {
  QString t;
  t.reserve(metin.size());
  for (qsizetype i = 0; i < metin.size(); ++i) {
    const QChar c = metin[i];
    if (c.isHighSurrogate() && i + 1 < metin.size() && metin[i + 1].isLowSurrogate()) {
      t += c;
      t += metin[++i];
    } else if (XmlKarakteri(c.unicode())) {  // a lone half of a pair is dropped here too
      t += c;
    }
  }
  return t;
}

// The first `n` characters, never half of a pair of surrogates.
QString Kes(const QString& metin, int n) {
  if (n < 0) n = 0;
  if (metin.size() <= n) return metin;  // no more characters than code units
  const QList<uint> kod = metin.toUcs4();
  if (kod.size() <= n) return metin;
  return QString::fromUcs4(reinterpret_cast<const char32_t*>(kod.constData()), n);
}

QString Escape(QString t) {
  t.replace(QLatin1Char('&'), QStringLiteral("&amp;"));
  t.replace(QLatin1Char('<'), QStringLiteral("&lt;"));
  t.replace(QLatin1Char('>'), QStringLiteral("&gt;"));
  return t;
}

// The value of the leading digits, blanks skipped; a text that begins with
// anything else is 0.
bool SifirMi(const QString& metin) {
  for (const QChar c : metin) {
    if (c == QLatin1Char(' ')) continue;
    if (c < QLatin1Char('0') || c > QLatin1Char('9')) return true;
    if (c != QLatin1Char('0')) return false;
  }
  return true;
}

}  // namespace

Varyant VaryantSec(int sonYil) {
  if (sonYil >= 2005) return {1.0, 2, "velmoraciytl.xsd"};
  return {1000000.0, 0, "velmoraci.xsd"};
}

QString Kacis(const QString& metin) { return Escape(Temizle(metin)); }

QString EtiketDegeri(const QString& deger, const QString& etiket, int uzunluk) {
  QString t = Escape(Kes(Temizle(deger), uzunluk));
  if (TutarEtiketi(etiket)) t.replace(QLatin1Char(','), QLatin1Char('.'));
  return t;
}

QString EtiketSatiri(const QString& deger, const QString& etiket, int uzunluk, bool zorunlu) {
  if (deger.isEmpty() && !zorunlu) return QString();
  return QLatin1Char('<') + etiket + QLatin1Char('>') + EtiketDegeri(deger, etiket, uzunluk) +
         QStringLiteral("</") + etiket + QLatin1Char('>');
}

Doldurma SifirDoldur(const QString& metin, int genislik) {
  Doldurma d;
  d.metin = metin;
  if (metin.size() < genislik) {
    d.kisa = true;
    d.metin = QString(genislik - metin.size(), QLatin1Char(' ')) + metin;
    d.metin.replace(QLatin1Char(' '), QLatin1Char('0'));
  }
  if (SifirMi(d.metin)) {
    d.sifir = true;
    d.metin = QString(genislik, QLatin1Char('0'));
  }
  return d;
}

QString SozNo(const QString& seri, const QString& no) {
  QString n = no;
  const int bosluk = 10 - int(seri.size()) - int(no.size());
  if (bosluk > 0) n = QString(bosluk, QLatin1Char(' ')) + n;
  n.replace(QLatin1Char(' '), QLatin1Char('0'));
  return seri + n;
}

QString TutarYaz(double deger, int basamak) {
  double x = Genel::YuvarlaYarimYukari(deger, basamak);
  if (x == 0) x = 0;  // no "-0"
  return QString::number(x, 'f', basamak);
}

QString GunYaz(const QString& sqlTarih) {
  QString t = sqlTarih.left(10);
  t.remove(QLatin1Char('-'));
  return t;
}

namespace {

// A value that the file takes as it stands: printable ASCII that needs no
// escape, no wider than the element, and no comma where one would become a
// point.
bool Duz(const QString& deger, int uzunluk, bool tutar) {
  if (deger.size() > uzunluk) return false;
  for (const QChar c : deger) {
    const char16_t u = c.unicode();
    if (u < 0x20 || u > 0x7e || u == '&' || u == '<' || u == '>' || (tutar && u == ','))
      return false;
  }
  return true;
}

}  // namespace

MaliyeYazici::~MaliyeYazici() { Bosalt(); }

bool MaliyeYazici::Bosalt() {
  if (!tampon_.isEmpty() && cikis_.write(tampon_) != tampon_.size()) tamam_ = false;
  tampon_.resize(0);  // keeps its room
  return tamam_;
}

// Lines gather in a buffer and reach the device in large pieces.
void MaliyeYazici::Ekle(QByteArrayView b) {
  if (tampon_.capacity() < kTampon + 1024) tampon_.reserve(2 * kTampon);
  tampon_.append(b.data(), b.size());
  if (tampon_.size() >= kTampon) Bosalt();
}

void MaliyeYazici::Satir(const QString& s) {
  Ekle(s.toUtf8());
  Ekle("\r\n");
}

void MaliyeYazici::Etiket(const QString& deger, const char* etiket, int uzunluk, bool zorunlu) {
  if (deger.isEmpty() && !zorunlu) return;
  const bool tutar = TutarEtiketi(QLatin1StringView(etiket));
  const QByteArrayView ad(etiket);
  Ekle("<");
  Ekle(ad);
  Ekle(">");
  if (Duz(deger, uzunluk, tutar))
    Ekle(deger.toLatin1());
  else
    Ekle(EtiketDegeri(deger, QString::fromLatin1(etiket), uzunluk).toUtf8());
  Ekle("</");
  Ekle(ad);
  Ekle(">\r\n");
}

void MaliyeYazici::Adres(const QString& adres, const QString& ilce, const QString& pk,
                         const QString& ilAdi, bool ilAdiZorunlu, const QString& ilKodu) {
  Satir(QStringLiteral("<adres>"));
  Etiket(adres, "mahcadkapidaire", 50, false);
  Etiket(ilce, "ilceadi", 15, false);
  Etiket(pk, "pk", 5, false);
  Etiket(ilAdi, "iladi", 15, ilAdiZorunlu);
  Etiket(ilKodu, "ilkodu", 2, true);
  Etiket(QStringLiteral("052"), "ulkekodu", 4, true);
  Satir(QStringLiteral("</adres>"));
}

void MaliyeYazici::Bas(const Ofis& o, const QString& bilgiDonem, const QString& bilgiTarih,
                       int kayitSayisi, double odverToplam, double odtahToplam) {
  Satir(QStringLiteral("<?xml version=\"1.0\" encoding=\"UTF-8\" ?>"));
  Satir(Yapan());
  Satir(QStringLiteral(" <vimveritransferi "
                       "xmlns:xsi=\"http://www.w3.org/2001/XMLSchema-instance\" "
                       "xsi:noNamespaceSchemaLocation=\"%1\">")
            .arg(QLatin1String(v_.sema)));
  Satir(QStringLiteral("<protokol>"));
  Satir(QStringLiteral("<genel kuruluskodu=\"11\">"));
  Satir(QStringLiteral("<vkn>") + Kacis(o.vkn) + QStringLiteral("</vkn>"));
  // The caller's cut: 52 characters, escaped afterwards.
  Satir(QStringLiteral("<unvan>") + Escape(Kes(Temizle(o.unvan), 52)) + QStringLiteral("</unvan>"));
  Adres(o.adres, o.ilce, o.pk, o.ilAdi, true, o.ilKodu);
  Satir(QStringLiteral("<bilgidonem>") + bilgiDonem + QStringLiteral("</bilgidonem>"));
  Satir(QStringLiteral("<bilgitarih>") + bilgiTarih + QStringLiteral("</bilgitarih>"));
  Satir(QStringLiteral("<gonkayitsayisi>") + QString::number(kayitSayisi) +
        QStringLiteral("</gonkayitsayisi>"));
  Satir(QStringLiteral("</genel>"));
  Satir(QStringLiteral("<ozel>"));
  Etiket(TutarYaz(odverToplam, v_.basamak), "odvertoplamtutar", 18, true);
  Etiket(TutarYaz(odtahToplam, v_.basamak), "odtahtoplamtutar", 18, true);
  Satir(QStringLiteral("</ozel>"));
  Satir(QStringLiteral("</protokol>"));
}

void MaliyeYazici::KayitlarBas() {
  Satir(QStringLiteral("<kayitlar>"));
  Satir(QStringLiteral("<subebilgi>"));
  Satir(QStringLiteral("<subekodu>0000000001</subekodu>"));
  Satir(QStringLiteral("<subeadi>Merkez</subeadi>"));
  Satir(QStringLiteral("<kayit>"));
}

void MaliyeYazici::Musteri(const Kisi& k) {
  if (musteri_ > 0) {
    Satir(QStringLiteral("</kayit>"));
    Satir(QStringLiteral("<kayit>"));
  }
  ++musteri_;
  // The two forms differ in their tail as well: the first ends in a blank.
  if (k.uyrukIkinci)
    Satir(QStringLiteral("<kisi uyruk=\"2\" hukukiyapi=\"%1\" >").arg(k.hukukiYapi));
  else
    Satir(QStringLiteral("<kisi uyruk=\"1\" hukukiyapi=\"%1\" > ").arg(k.hukukiYapi));
  Etiket(k.vkn, "vkn", 10, true);
  Etiket(k.soyad, "soyad", 20, true);
  Etiket(k.ad, "ad", 16, true);
  Etiket(k.babaAdi, "babaadi", 16, true);
  Adres(k.adres, k.ilce, k.pk, k.ilAdi, false, k.ilKodu);
  Etiket(k.tckn, "tckn", 11, true);
  if (k.vekilDurum > 0) {
    Satir(QStringLiteral("<velivasi hukukidurum=\"%1\">").arg(k.vekilDurum));
    Etiket(k.vekilVkn, "vkn", 10, true);
    Etiket(k.vekilSoyad, "soyad", 20, true);
    Etiket(k.vekilAd, "ad", 16, true);
    Satir(QStringLiteral("</velivasi>"));
  }
  Satir(QStringLiteral("</kisi>"));
}

void MaliyeYazici::Odver(const QString& sozTar, const QString& sozNo, bool tutarlar,
                         const QString& otutartl, const QString& otutarabd, const QString& ftutartl,
                         const QString& ftutarabd) {
  Satir(QStringLiteral("<islem>"));
  Satir(QStringLiteral("<odver>"));
  Etiket(sozTar, "soztar", 8, true);
  Etiket(sozNo, "sozno", 10, true);
  if (tutarlar) {
    Etiket(otutartl, "otutartl", 18, true);
    Etiket(otutarabd, "otutarabd", 14, true);
    Etiket(ftutartl, "ftutartl", 18, true);
    Etiket(ftutarabd, "ftutarabd", 14, true);
  }
  Satir(QStringLiteral("</odver>"));
  Satir(QStringLiteral("</islem>"));
}

void MaliyeYazici::Odtah(const QString& odTar, const QString& tahtutartl) {
  Satir(QStringLiteral("<islem>"));
  Satir(QStringLiteral("<odtah>"));
  Etiket(odTar, "odtar", 8, true);
  Etiket(tahtutartl, "tahtutartl", 18, true);
  Etiket(QStringLiteral("0"), "tahtutarabd", 14, true);
  Satir(QStringLiteral("</odtah>"));
  Satir(QStringLiteral("</islem>"));
}

void MaliyeYazici::KayitlarSon() {
  Satir(QStringLiteral("</kayit> "));
  Satir(QStringLiteral("</subebilgi>"));
  Satir(QStringLiteral("</kayitlar>"));
}

void MaliyeYazici::Son() {
  Satir(QStringLiteral("</vimveritransferi>"));
  Bosalt();
}

}  // namespace aktarim
