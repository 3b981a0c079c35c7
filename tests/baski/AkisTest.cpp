// The print streams as data: every file of vakalar/ holds the rows and
// settings of one case and the bytes the stream must give (vakalar/README.md
// tells the form). One test per file, named after it; a failure names the
// file and the first line that differs.
//
// VELMORA_AKIS_YAZ=1 writes what the streams give into the files' expected
// sections, for a new case: read what it wrote before you keep it.

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <functional>
#include <map>

#include "contract/SozlesmeBaski.h"
#include "core/Genel.h"
#include "invoice/FaturaBaski.h"

inline void PrintTo(const QString& s, std::ostream* os) { *os << s.toStdString(); }

namespace {

struct Vaka {
  QString yol;
  QString akis;
  std::map<QString, QString> ayar;
  baski::Kayit satir;
  QList<baski::Kayit> sablon, belgeler;
  QList<QByteArray> beklenen;
  std::optional<QString> hata;
  QList<int> bekleme;  // lines written before each pause
};

// The pauses of a stream as the number of lines written before each.
QList<int> Beklemeler(const baski::Sonuc& s) {
  QList<int> l;
  for (const qsizetype yer : s.beklemeler) l << int(s.baytlar.left(yer).count("\r\n"));
  return l;
}

// A value as the file writes it: nothing is Null, "..." a text as it stands,
// a whole number or a number with a point a number, anything else a text.
QVariant Deger(const QString& metin) {
  const QString t = metin.trimmed();
  if (t.isEmpty()) return QVariant();
  if (t.size() >= 2 && t.startsWith(QLatin1Char('"')) && t.endsWith(QLatin1Char('"')))
    return t.mid(1, t.size() - 2);
  static const QRegularExpression tam(QStringLiteral("^-?\\d{1,18}$"));
  static const QRegularExpression ondalik(QStringLiteral("^-?\\d+\\.\\d+$"));
  if (tam.match(t).hasMatch()) return t.toLongLong();
  if (ondalik.match(t).hasMatch()) return t.toDouble();
  return t;
}

// One expected line: "|...|" with the escapes \\, \xNN, \xNN*M; and \_N;.
QByteArray Coz(const QString& ic, const QString& yol, int satirNo) {
  QByteArray b;
  const QByteArray u = ic.toUtf8();
  for (qsizetype i = 0; i < u.size(); ++i) {
    if (u[i] != '\\') {
      b += u[i];
      continue;
    }
    const auto sayi = [&](qsizetype& j) {
      const qsizetype bas = j;
      while (j < u.size() && u[j] != ';') ++j;
      const int n = u.mid(bas, j - bas).toInt();
      return n;
    };
    if (i + 1 < u.size() && u[i + 1] == '\\') {
      b += '\\';
      ++i;
    } else if (i + 3 < u.size() && u[i + 1] == 'x') {
      const char c = char(u.mid(i + 2, 2).toInt(nullptr, 16));
      i += 3;
      int adet = 1;
      if (i + 1 < u.size() && u[i + 1] == '*') {
        qsizetype j = i + 2;
        adet = sayi(j);
        i = j;
      }
      b += QByteArray(adet, c);
    } else if (i + 1 < u.size() && u[i + 1] == '_') {
      qsizetype j = i + 2;
      b += QByteArray(sayi(j), ' ');
      i = j;
    } else {
      ADD_FAILURE() << yol.toStdString() << ":" << satirNo << ": bilinmeyen kaçış";
    }
  }
  return b;
}

// The other way: printable ASCII as it is, runs of blanks and of one byte
// short, every other byte as \xNN.
QString Kacir(const QByteArray& b) {
  QString s;
  for (qsizetype i = 0; i < b.size();) {
    qsizetype j = i;
    while (j < b.size() && b[j] == b[i]) ++j;
    const qsizetype adet = j - i;
    const uchar c = uchar(b[i]);
    if (c == ' ' && adet >= 4) {
      s += QStringLiteral("\\_%1;").arg(adet);
      i = j;
    } else if ((c < 32 || c >= 127) && adet >= 4) {
      s += QStringLiteral("\\x%1*%2;").arg(c, 2, 16, QLatin1Char('0')).arg(adet);
      i = j;
    } else {
      if (c == '\\')
        s += QStringLiteral("\\\\");
      else if (c < 32 || c >= 127)
        s += QStringLiteral("\\x%1").arg(c, 2, 16, QLatin1Char('0'));
      else
        s += QLatin1Char(char(c));
      ++i;
    }
  }
  return s;
}

QList<baski::Kayit> Tablo(const QStringList& satirlar) {
  QList<baski::Kayit> l;
  if (satirlar.isEmpty()) return l;
  QStringList alanlar = satirlar.first().split(QLatin1Char('|'));
  for (QString& a : alanlar) a = a.trimmed();
  for (qsizetype i = 1; i < satirlar.size(); ++i) {
    const QStringList degerler = satirlar[i].split(QLatin1Char('|'));
    baski::Kayit k;
    for (qsizetype j = 0; j < alanlar.size(); ++j) k.Koy(alanlar[j], Deger(degerler.value(j)));
    l << k;
  }
  return l;
}

Vaka Oku(const QString& yol) {
  Vaka v;
  v.yol = yol;
  QFile f(yol);
  EXPECT_TRUE(f.open(QIODevice::ReadOnly)) << yol.toStdString();
  const QStringList satirlar = QString::fromUtf8(f.readAll()).split(QLatin1Char('\n'));
  static const QRegularExpression beklenen(QStringLiteral("^(\\d+)?\\*?\\|(.*)\\|$"));
  QString bolum;
  QStringList sablon, belgeler;
  for (int no = 1; no <= satirlar.size(); ++no) {
    QString s = satirlar[no - 1];
    if (s.endsWith(QLatin1Char('\r'))) s.chop(1);
    if (s.trimmed().isEmpty() || s.startsWith(QLatin1Char('#'))) continue;
    if (s.startsWith(QLatin1Char('['))) {
      bolum = s.trimmed();
      continue;
    }
    const qsizetype iki = s.indexOf(QLatin1Char(':'));
    if (bolum.isEmpty()) {
      if (s.startsWith(QLatin1String("akis:"))) v.akis = s.mid(5).trimmed();
    } else if (bolum == QLatin1String("[ayar]")) {
      v.ayar[s.left(iki).trimmed()] = s.mid(iki + 1).trimmed();
    } else if (bolum == QLatin1String("[satir]")) {
      v.satir.Koy(s.left(iki).trimmed(), Deger(s.mid(iki + 1)));
    } else if (bolum == QLatin1String("[sablon]")) {
      sablon << s;
    } else if (bolum == QLatin1String("[belgeler]")) {
      belgeler << s;
    } else if (bolum == QLatin1String("[beklenen]")) {
      const auto m = beklenen.match(s);
      if (!m.hasMatch()) {
        ADD_FAILURE() << yol.toStdString() << ":" << no << ": satır |...| biçiminde değil";
        continue;
      }
      const int adet = m.captured(1).isEmpty() ? 1 : m.captured(1).toInt();
      const QByteArray b = Coz(m.captured(2), yol, no);
      for (int i = 0; i < adet; ++i) v.beklenen << b;
    } else if (bolum == QLatin1String("[hata]")) {
      v.hata = s.trimmed();
    } else if (bolum == QLatin1String("[bekleme]")) {
      v.bekleme << s.trimmed().toInt();
    }
  }
  v.sablon = Tablo(sablon);
  v.belgeler = Tablo(belgeler);
  return v;
}

int AyarSayisi(const Vaka& v, const char* ad, int varsayilan) {
  const auto it = v.ayar.find(QString::fromLatin1(ad));
  return it == v.ayar.end() ? varsayilan : it->second.toInt();
}

baski::Sonuc Calistir(const Vaka& v) {
  if (v.akis.startsWith(QLatin1String("sozlesme"))) {
    sozlesmebaski::Ayar a;
    a.DetayBasBosluk = AyarSayisi(v, "DetayBasBosluk", a.DetayBasBosluk);
    a.DetayToplamYaz = AyarSayisi(v, "DetayToplamYaz", a.DetayToplamYaz) == 1;
    if (v.akis == QLatin1String("sozlesmesabit"))
      return sozlesmebaski::SozlesmeAkisiSabit(v.satir, v.belgeler);
    return sozlesmebaski::SozlesmeAkisi(v.sablon, v.satir, v.belgeler, a);
  }
  fatura::YaziAyari a;
  const std::pair<const char*, int*> sayilar[] = {{"BasBosluk", &a.BasBosluk},
                                                  {"SonBosluk", &a.SonBosluk},
                                                  {"IsimBas", &a.IsimBas},
                                                  {"TarihAtla", &a.TarihAtla},
                                                  {"VergiAtla", &a.VergiAtla},
                                                  {"TarihBas", &a.TarihBas},
                                                  {"VergiBas", &a.VergiBas},
                                                  {"TutarSatirAtla", &a.TutarSatirAtla},
                                                  {"TutarBas", &a.TutarBas},
                                                  {"DetaySatirAtla", &a.DetaySatirAtla},
                                                  {"YeniSayfaAtla", &a.YeniSayfaAtla}};
  for (const auto& [ad, yer] : sayilar) *yer = AyarSayisi(v, ad, *yer);
  a.Sayfabasi = AyarSayisi(v, "Sayfabasi", a.Sayfabasi) > 0;
  a.PulBedeli = AyarSayisi(v, "PulBedeli", a.PulBedeli) > 0;
  const std::map<QString, fatura::Bicim> bicimler = {
      {QStringLiteral("fatura"), fatura::Bicim::Fatura},
      {QStringLiteral("faturasabit"), fatura::Bicim::FaturaSabit},
      {QStringLiteral("ekfatura"), fatura::Bicim::Ek},
      {QStringLiteral("ekfaturasabit"), fatura::Bicim::EkSabit}};
  const auto it = bicimler.find(v.akis);
  EXPECT_NE(it, bicimler.end()) << v.yol.toStdString()
                                << ": bilinmeyen akis: " << v.akis.toStdString();
  return fatura::FaturaAkisi(it == bicimler.end() ? fatura::Bicim::Fatura : it->second, v.satir, a);
}

// Writes the stream into the case's expected sections.
void Yaz(const Vaka& v, const baski::Sonuc& s) {
  QFile f(v.yol);
  ASSERT_TRUE(f.open(QIODevice::ReadOnly));
  QString metin = QString::fromUtf8(f.readAll());
  f.close();
  const qsizetype bas = metin.indexOf(QStringLiteral("\n[beklenen]"));
  if (bas >= 0) metin.truncate(bas + 1);
  if (!metin.endsWith(QLatin1Char('\n'))) metin += QLatin1Char('\n');
  metin += QStringLiteral("[beklenen]\n");
  QList<QByteArray> satirlar = s.baytlar.split('\n');
  satirlar.removeLast();  // behind the last line feed
  for (qsizetype i = 0; i < satirlar.size();) {
    qsizetype j = i;
    while (j < satirlar.size() && satirlar[j] == satirlar[i]) ++j;
    QByteArray l = satirlar[i];
    l.chop(1);  // CR
    metin += (j - i > 1 ? QString::number(j - i) + QLatin1Char('*') : QString()) +
             QLatin1Char('|') + Kacir(l) + QStringLiteral("|\n");
    i = j;
  }
  if (s.hata) metin += QStringLiteral("[hata]\n") + *s.hata + QLatin1Char('\n');
  if (!s.beklemeler.isEmpty()) {
    metin += QStringLiteral("[bekleme]\n");
    for (const int n : Beklemeler(s)) metin += QString::number(n) + QLatin1Char('\n');
  }
  ASSERT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
  f.write(metin.toUtf8());
}

class Akis : public ::testing::TestWithParam<QString> {};

TEST_P(Akis, Vaka) {
  Genel::BolgeTurkce();
  const Vaka v = Oku(GetParam());
  const baski::Sonuc s = Calistir(v);
  if (qEnvironmentVariableIntValue("VELMORA_AKIS_YAZ") == 1) {
    Yaz(v, s);
    return;
  }
  const std::string ad = QFileInfo(v.yol).fileName().toStdString();
  // Every line ends in CR LF.
  ASSERT_TRUE(s.baytlar.isEmpty() || s.baytlar.endsWith("\r\n")) << ad;
  QList<QByteArray> gercek = s.baytlar.split('\n');
  gercek.removeLast();
  for (QByteArray& l : gercek) {
    ASSERT_TRUE(l.endsWith('\r')) << ad << ": a line without CR";
    l.chop(1);
  }
  for (qsizetype i = 0; i < std::max(gercek.size(), v.beklenen.size()); ++i) {
    const QString b = i < v.beklenen.size() ? Kacir(v.beklenen[i]) : QStringLiteral("(yok)");
    const QString g = i < gercek.size() ? Kacir(gercek[i]) : QStringLiteral("(yok)");
    if (b != g) {
      ADD_FAILURE() << ad << ": line " << i + 1 << " differs\n  expected |" << b.toStdString()
                    << "|\n  actual   |" << g.toStdString() << "|";
      break;
    }
  }
  EXPECT_EQ(s.hata.value_or(QString()).toStdString(), v.hata.value_or(QString()).toStdString())
      << ad;
  EXPECT_EQ(Beklemeler(s), v.bekleme) << ad << ": the pauses";
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
                           QString ad = QFileInfo(i.param).completeBaseName();
                           ad.replace(QRegularExpression(QStringLiteral("[^A-Za-z0-9]")),
                                      QStringLiteral("_"));
                           return ad.toStdString();
                         });

}  // namespace
