// The form preview: where the bytes of a stream land on paper, and the
// window that draws them.

#include <QApplication>
#include <QDialog>
#include <QLabel>

#include "core/Genel.h"
#include "core/Onizleme.h"
#include "invoice/FaturaBaski.h"
#include "tests/support/Ortam.h"

namespace {

using onizleme::SatirMetni;
using onizleme::Yerlestir;

class Onizleme : public test::Ortam {};

TEST_F(Onizleme, HarflerKagittakiYerinde) {
  // Condensed on (0F) and off (12), underline on and off (ESC - 1/0), a form
  // feed, code page 857 letters and a rule.
  const char akis[] =
      "AB\r\n\x0f\r\n12\r\n\x12  \x1b-\x01X\x1b-\x00Y\r\n\x0c\r\n\x99\x98\x80\xc4\r\n";
  const QByteArray b(akis, sizeof akis - 1);
  const onizleme::Yerlesim y = Yerlestir(b);
  EXPECT_EQ(y.sayfaSayisi, 2);
  ASSERT_EQ(y.harfler.size(), 10);
  // 10 to the inch, then 17 condensed.
  EXPECT_EQ(y.harfler[1].yer, onizleme::kNormalAdim);
  EXPECT_TRUE(y.harfler[2].sikisik);
  EXPECT_EQ(y.harfler[2].satir, 2);
  EXPECT_EQ(y.harfler[3].yer, onizleme::kSikisikAdim);
  // Two blanks, then X underlined, Y not.
  EXPECT_FALSE(y.harfler[4].sikisik);
  EXPECT_EQ(y.harfler[4].harf, QChar('X'));
  EXPECT_DOUBLE_EQ(y.harfler[4].Sutun(), 3);
  EXPECT_TRUE(y.harfler[4].alticizili);
  EXPECT_FALSE(y.harfler[5].alticizili);
  // The form feed goes to the next form; its own CR LF costs a line there.
  EXPECT_EQ(y.harfler[6].sayfa, 1);
  EXPECT_EQ(y.harfler[6].satir, 1);
  // Code page 857: the Turkish letters of DosKarakter, and the rules.
  EXPECT_EQ(SatirMetni(y, 1, 1), QStringLiteral("Öİ\u00c7─"));
  EXPECT_EQ(SatirMetni(y, 0, 3), QStringLiteral("  XY"));
}

TEST_F(Onizleme, FaturaKagitta) {
  // The invoice with every default: 66 lines on one form, the
  // amount on line 28 ending in column 76 (TutarBas 58 and 18 columns), the
  // words condensed.
  baski::Kayit r;
  r.Koy("Soyadi", "YILMAZ");
  r.Koy("AD", "ŞÜKRÜ");
  r.Koy("HukukiDurum", 1);
  r.Koy("Tarih", "2005-03-04");
  r.Koy("SozlesmeNo", 7);
  r.Koy("Tutar", 40000.0);
  r.Koy("ToplamTutar", 49500.0);
  r.Koy("Yaziyla", "Yalnız KIRKDOKUZBİNBEŞYÜZ Yeni Lira  ");
  const baski::Sonuc s = fatura::FaturaAkisi(fatura::Bicim::Fatura, r, fatura::YaziAyari());
  const onizleme::Yerlesim y = Yerlestir(s.baytlar);
  EXPECT_EQ(y.sayfaSayisi, 1);
  EXPECT_EQ(SatirMetni(y, 0, 12), QString(24, ' ') + "ŞÜKRÜ");
  EXPECT_EQ(SatirMetni(y, 0, 21), QString(59, ' ') + "04.03.2005");
  const QString tutar = SatirMetni(y, 0, 27);
  EXPECT_TRUE(tutar.endsWith("40.000,00") && tutar.contains("SÖZLEŞMESİ GEREĞİ"))
      << tutar.toStdString();
  EXPECT_EQ(tutar.size(), 76);
  EXPECT_TRUE(SatirMetni(y, 0, 45).startsWith(QString(53, ' ') + "YEKÜN"));
  for (const onizleme::Harf& h : y.harfler) EXPECT_TRUE(h.satir != 57 || h.sikisik);
  EXPECT_EQ(SatirMetni(y, 0, 57), QString(10, ' ') + "Yalnız KIRKDOKUZBİNBEŞYÜZ Yeni Lira");
}

TEST_F(Onizleme, PencereCizer) {
  baski::Sonuc s = baski::Akis::Calistir([](baski::Akis& a) {
    a.Satir("ONIZLEME");
    throw baski::Hata{QStringLiteral("yazı 5. sütunu geçiyor (8 karakter).")};
  });
  QWidget ust;
  onizleme::Goster(s, QStringLiteral("Fatura A 1"), &ust);
  auto* d = ust.findChild<QDialog*>(QStringLiteral("frmOnizleme"));
  ASSERT_NE(d, nullptr);
  EXPECT_EQ(d->windowTitle(), QStringLiteral("Önizleme - Fatura A 1"));
  EXPECT_EQ(d->findChild<QLabel*>(QStringLiteral("lblHata"))->text(),
            QStringLiteral("Bir Hata Oluştu\n2. satır: yazı 5. sütunu geçiyor (8 karakter)."));
  auto* sayfalar = d->findChild<QWidget*>(QStringLiteral("Sayfalar"));
  ASSERT_NE(sayfalar, nullptr);
  EXPECT_FALSE(sayfalar->grab().isNull());
  d->close();
}

}  // namespace
