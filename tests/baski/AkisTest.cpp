// The print streams as data: every file of vakalar/ holds the rows and
// settings of one case and the bytes the stream must give (vakalar/README.md
// tells the form). One test per file, named after it; a failure shows the
// first line that differs and the whole stream as an expected section.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <map>

#include "contract/SozlesmeBaski.h"
#include "core/Genel.h"
#include "invoice/FaturaBaski.h"

inline void PrintTo(const QString& s, std::ostream* os) { *os << s.toStdString(); }

namespace {

struct Vaka {
  QString akis, hata;
  std::map<QString, QString> ayar;
  baski::Kayit satir;
  QList<baski::Kayit> sablon, belgeler;
  QByteArray beklenen;  // the whole stream, CR LF included
  QList<int> bekleme;   // lines written before each pause
};

QList<int> Beklemeler(const baski::Sonuc& s) {
  QList<int> l;
  for (const qsizetype yer : s.beklemeler) l << int(s.baytlar.left(yer).count("\r\n"));
  return l;
}

// A value as the file writes it: nothing is Null, "..." a text as it stands,
// a whole number or a number with a point a number, anything else a text.
QVariant Deger(const QString& metin) {
  static const QRegularExpression tam(R"(^-?\d{1,18}$)"), ondalik(R"(^-?\d+\.\d+$)");
  const QString t = metin.trimmed();
  if (t.isEmpty()) return QVariant();
  if (t.size() >= 2 && t.startsWith('"') && t.endsWith('"')) return t.mid(1, t.size() - 2);
  if (tam.match(t).hasMatch()) return t.toLongLong();
  if (ondalik.match(t).hasMatch()) return t.toDouble();
  return t;
}

// One expected line with the escapes \\, \xNN, \xNN*M; and \_N; as bytes.
QByteArray Coz(const QString& ic) {
  static const QRegularExpression kacis(R"(\\(?:(\\)|x([0-9a-fA-F]{2})(?:\*(\d+);)?|_(\d+);|))");
  QByteArray b;
  qsizetype i = 0;
  for (auto it = kacis.globalMatch(ic); it.hasNext();) {
    const QRegularExpressionMatch m = it.next();
    b += ic.mid(i, m.capturedStart() - i).toUtf8();
    i = m.capturedEnd();
    if (m.hasCaptured(1))
      b += '\\';
    else if (m.hasCaptured(2))
      b += QByteArray(m.hasCaptured(3) ? m.captured(3).toInt() : 1,
                      char(m.captured(2).toInt(nullptr, 16)));
    else if (m.hasCaptured(4))
      b += QByteArray(m.captured(4).toInt(), ' ');
    else
      ADD_FAILURE() << "bilinmeyen kaçış: " << ic.toStdString();
  }
  return b + ic.mid(i).toUtf8();
}

// The other way: printable ASCII as it is, runs of blanks and of one byte
// short, every other byte as \xNN.
std::string Kacir(const QByteArray& b) {
  QString s;
  for (qsizetype i = 0, j = 0; i < b.size(); i = j) {
    for (j = i; j < b.size() && b[j] == b[i];) ++j;
    const uchar c = uchar(b[i]);
    const bool ozel = c < 32 || c >= 127;
    if (c == ' ' && j - i >= 4)
      s += QStringLiteral("\\_%1;").arg(j - i);
    else if (ozel && j - i >= 4)
      s += QStringLiteral("\\x%1*%2;").arg(c, 2, 16, QLatin1Char('0')).arg(j - i);
    else if (j = i + 1; c == '\\')
      s += QStringLiteral("\\\\");
    else
      s += ozel ? QStringLiteral("\\x%1").arg(c, 2, 16, QLatin1Char('0')) : QString(QChar(c));
  }
  return s.toStdString();
}

std::string Fark(const QByteArray& beklenen, const QByteArray& gercek) {
  const QList<QByteArray> b = beklenen.split('\n'), g = gercek.split('\n');
  std::string m;
  for (qsizetype i = 0; i < std::max(b.size(), g.size()) && m.empty(); ++i)
    if (b.value(i) != g.value(i))
      m = "line " + std::to_string(i + 1) + " differs\n  expected |" + Kacir(b.value(i)) +
          "|\n  actual   |" + Kacir(g.value(i)) + "|\n";
  m += "[beklenen]\n";
  for (qsizetype i = 0, j = 0; i + 1 < g.size(); i = j) {
    for (j = i; j + 1 < g.size() && g[j] == g[i];) ++j;
    QByteArray l = g[i];
    l.chop(l.endsWith('\r'));
    m += (j - i > 1 ? std::to_string(j - i) + "*|" : "|") + Kacir(l) + "|\n";
  }
  return m;
}

QList<baski::Kayit> Tablo(const QStringList& satirlar) {
  QList<baski::Kayit> l;
  const QStringList alanlar = satirlar.value(0).split('|');
  for (qsizetype i = 1; i < satirlar.size(); ++i) {
    const QStringList degerler = satirlar[i].split('|');
    l << baski::Kayit();
    for (qsizetype j = 0; j < alanlar.size(); ++j)
      l.last().Koy(alanlar[j].trimmed(), Deger(degerler.value(j)));
  }
  return l;
}

Vaka Oku(const QString& yol) {
  QFile f(yol);
  EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << yol.toStdString();
  std::map<QString, QStringList> bolum;
  QString ad;
  for (QString s : QString::fromUtf8(f.readAll()).split('\n')) {
    if (s.endsWith('\r')) s.chop(1);
    if (s.trimmed().isEmpty() || s.startsWith('#')) continue;
    if (s.startsWith('['))
      ad = s.trimmed();
    else
      bolum[ad] << s;
  }
  Vaka v;
  const auto cift = [](const QString& s) {
    const qsizetype i = s.indexOf(':');
    return std::pair(s.left(i).trimmed(), s.mid(i + 1));
  };
  for (const QString& s : bolum[""])
    if (s.startsWith("akis:")) v.akis = s.mid(5).trimmed();
  for (const QString& s : bolum["[ayar]"]) v.ayar[cift(s).first] = cift(s).second.trimmed();
  for (const QString& s : bolum["[satir]"]) v.satir.Koy(cift(s).first, Deger(cift(s).second));
  v.sablon = Tablo(bolum["[sablon]"]);
  v.belgeler = Tablo(bolum["[belgeler]"]);
  static const QRegularExpression satir(R"(^(\d+)?\*?\|(.*)\|$)");
  for (const QString& s : bolum["[beklenen]"]) {
    const QRegularExpressionMatch m = satir.match(s);
    EXPECT_TRUE(m.hasMatch()) << "satır |...| biçiminde değil: " << s.toStdString();
    v.beklenen += (Coz(m.captured(2)) + "\r\n").repeated(std::max(1, m.captured(1).toInt()));
  }
  v.hata = bolum["[hata]"].value(0).trimmed();
  for (const QString& s : bolum["[bekleme]"]) v.bekleme << s.trimmed().toInt();
  return v;
}

baski::Sonuc Calistir(const Vaka& v) {
  const auto sayi = [&v](const char* ad, int varsayilan) {
    const auto it = v.ayar.find(QString::fromLatin1(ad));
    return it == v.ayar.end() ? varsayilan : it->second.toInt();
  };
  if (v.akis == "sozlesmesabit") return sozlesmebaski::SozlesmeAkisiSabit(v.satir, v.belgeler);
  if (v.akis == "sozlesme") {
    sozlesmebaski::Ayar a;
    a.DetayBasBosluk = sayi("DetayBasBosluk", a.DetayBasBosluk);
    a.DetayToplamYaz = sayi("DetayToplamYaz", a.DetayToplamYaz) == 1;
    return sozlesmebaski::SozlesmeAkisi(v.sablon, v.satir, v.belgeler, a);
  }
  fatura::YaziAyari a;
  const char* adlar[] = {"BasBosluk", "SonBosluk",      "IsimBas",      "TarihAtla",
                         "VergiAtla", "TarihBas",       "VergiBas",     "TutarSatirAtla",
                         "TutarBas",  "DetaySatirAtla", "YeniSayfaAtla"};
  int* yerler[] = {&a.BasBosluk, &a.SonBosluk,      &a.IsimBas,      &a.TarihAtla,
                   &a.VergiAtla, &a.TarihBas,       &a.VergiBas,     &a.TutarSatirAtla,
                   &a.TutarBas,  &a.DetaySatirAtla, &a.YeniSayfaAtla};
  for (int i = 0; i < 11; ++i) *yerler[i] = sayi(adlar[i], *yerler[i]);
  a.Sayfabasi = sayi("Sayfabasi", a.Sayfabasi) > 0;
  a.PulBedeli = sayi("PulBedeli", a.PulBedeli) > 0;
  const QStringList akislar = {"fatura", "faturasabit", "ekfatura", "ekfaturasabit"};
  const fatura::Bicim bicimler[] = {fatura::Bicim::Fatura, fatura::Bicim::FaturaSabit,
                                    fatura::Bicim::Ek, fatura::Bicim::EkSabit};
  const qsizetype i = akislar.indexOf(v.akis);
  EXPECT_GE(i, 0) << "bilinmeyen akis: " << v.akis.toStdString();
  return fatura::FaturaAkisi(bicimler[std::max<qsizetype>(i, 0)], v.satir, a);
}

class Akis : public ::testing::TestWithParam<QString> {};

TEST_P(Akis, Vaka) {
  Genel::BolgeTurkce();
  const Vaka v = Oku(GetParam());
  const baski::Sonuc s = Calistir(v);
  EXPECT_TRUE(s.baytlar == v.beklenen) << Fark(v.beklenen, s.baytlar);
  EXPECT_EQ(s.hata.value_or(QString()), v.hata);
  EXPECT_EQ(Beklemeler(s), v.bekleme) << "the pauses";
}

std::vector<QString> Vakalar() {
  std::vector<QString> l;
  const QDir d(QStringLiteral(VELMORA_VAKALAR));
  for (const QString& ad : d.entryList({QStringLiteral("*.akis")}, QDir::Files, QDir::Name))
    l.push_back(d.filePath(ad));
  return l;
}

INSTANTIATE_TEST_SUITE_P(Vakalar, Akis, ::testing::ValuesIn(Vakalar()),
                         [](const ::testing::TestParamInfo<QString>& i) {
                           return QFileInfo(i.param)
                               .completeBaseName()
                               .replace(QRegularExpression("[^A-Za-z0-9]"), "_")
                               .toStdString();
                         });

}  // namespace
