// The drawer report: drawers found by the beginning or any part of their
// name, repeats and all; several marked; their papers whoever the customer.

#include "reports/frmKesideciBilgi.h"
#include "tests/reports/Ortak.h"

namespace {

using test::Tikla;
using test::Yaz;

class Kesideci : public test::RaporEkrani<frmKesideciBilgi> {
 protected:
  void SetUp() override {
    RaporEkrani::SetUp();
    test::Ekle("Musteri(MusteriNo, Soyadi, Adi, HukukiDurum)",
               "(1, 'YILMAZ', 'ALİ', 1), (2, 'KAYA', 'ŞÜKRÜ', 1)");
    test::Ekle("Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih)",
               "(1, 'AB', 7, 1, '2026-01-01'), (2, 'AB', 8, 2, '2026-01-02')");
    Cekler(
        "(7, 'O''NEIL', '2026-03-01', '2026-03-01', 100), "
        "(8, 'ONUR', '2026-02-01', '2026-02-01', 20), (8, 'O''NEIL', '2026-01-15', NULL, 0.5), "
        "(7, 'AHMET ONUR', '2026-04-01', '2026-04-01', 7), "
        "(9, 'O''NEIL', '2026-05-01', '2026-05-01', 1), "  // its contract is gone
        "(7, '%5_İNDİRİM', '2026-06-01', '2026-06-01', 3)");
  }
  // Papers of series AB: contract number, drawer, maturity, payment (Null:
  // bounced), amount.
  static void Cekler(const QString& satirlar) {
    test::Ekle("SozlesmeDetay(SozlesmeNo, Kesideci, Vadesi, Odenmesi, Meblag)", satirlar);
    test::Calistir("UPDATE SozlesmeDetay SET SozlesmeSeri = 'AB'");
  }
  static QString Liste(frmKesideciBilgi* f) {
    QStringList l;
    for (int i = 0; i < f->lstKesideci->count(); ++i) l << f->lstKesideci->item(i)->text();
    return l.join(',');
  }
  static QString Gorulen(frmKesideciBilgi* f) {
    if (!f->dGridDetay->isVisible()) return "gizli";
    return test::Satirlar(f->dGridDetay->Model(), "/", {0, 1, 3}).join(',') + "|" +
           test::Metinler(f->txtAdet, f->txtToplam);
  }
};

TEST_F(Kesideci, AramaBastanVeIcinden) {
  auto* f = Ac();
  EXPECT_EQ(f->windowTitle(), u"Keşideciye Göre Belgeler"_s);
  struct Durum {
    const char* metin;
    bool bas;
    const char* liste;
  };
  const Durum durumlar[] = {
      {"", false, "O'NEIL,ONUR,O'NEIL,AHMET ONUR,O'NEIL,%5_İNDİRİM"},
      {"onur", false, "ONUR,AHMET ONUR"},
      {"onur", true, "ONUR"},
      {"o'n", true, "O'NEIL,O'NEIL,O'NEIL"},
      {"%5_", false, "%5_İNDİRİM"},
      {"5", true, ""},
      {"indirim", false, "%5_İNDİRİM"},
      {"   ", false, ""},
  };
  for (const Durum& d : durumlar) {
    SCOPED_TRACE(d.metin);
    Yaz(f->txtAranacak, QString::fromUtf8(d.metin));
    if (f->chkBas->isChecked() != d.bas) Tikla(f->chkBas);
    Tikla(f->cmdDoldur);
    EXPECT_EQ(Liste(f), QString::fromUtf8(d.liste));
  }
  EXPECT_TRUE(Mesajlar().isEmpty());
}

TEST_F(Kesideci, IsaretlilerinBelgeleriBirKezSayilir) {
  auto* f = Ac();
  // Before any list, and with nothing marked: the message, focus to the search.
  for (int kez = 0; kez < 2; ++kez) {
    Tikla(f->cmdBilgiGoster);
    EXPECT_EQ(Kutular(), u"Bilgi UYARI: İlk olarak Keşideci Seçmelisiniz"_s);
    EXPECT_TRUE(f->txtAranacak->hasFocus());
    EXPECT_EQ(Gorulen(f), "gizli");
    Tikla(f->cmdDoldur);
  }
  // O'NEIL marked twice and ONUR, by clicks: each paper once, by maturity;
  // the paper whose contract is gone drops out of the join. A payment date
  // bound drops the bounced paper.
  for (int s : {0, 1, 2}) {
    const QRect r = f->lstKesideci->visualItemRect(f->lstKesideci->item(s));
    QTest::mouseClick(f->lstKesideci->viewport(), Qt::LeftButton, {}, r.center());
  }
  const std::tuple<const char*, const char*, const char*> durumlar[] = {
      {"", "", "ŞÜKRÜ KAYA/AB-8/O'NEIL,ŞÜKRÜ KAYA/AB-8/ONUR,ALİ YILMAZ/AB-7/O'NEIL|3|120,50"},
      {"01.01.2026", "", "ŞÜKRÜ KAYA/AB-8/ONUR,ALİ YILMAZ/AB-7/O'NEIL|2|120,00"},
      {"01.01.2026", "15.02.2026", "ŞÜKRÜ KAYA/AB-8/ONUR|1|20,00"},
      {"01.01.2026", "01.01.2025", "|0|,00"},
  };
  for (const auto& [bas, son, gorulen] : durumlar) {
    SCOPED_TRACE(son);
    Yaz(f->txtBastar, bas);
    Yaz(f->txtSonTar, son);
    Tikla(f->cmdBilgiGoster);
    EXPECT_EQ(Gorulen(f), QString::fromUtf8(gorulen));
  }
  // A bad date keeps the focus and lists nothing new.
  Yaz(f->txtSonTar, "31.02.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Kutular(), u"Kritik UYARI: Lütfen Geçerli Bir Tarih Girin"_s);
  EXPECT_TRUE(f->txtSonTar->hasFocus());
  EXPECT_EQ(Gorulen(f), "|0|,00");
}

// Drawers ranked by their bounced papers, with what is still at risk beside
// them; a double click marks the drawer and shows its papers.
TEST_F(Kesideci, RiskliKesideciler) {
  Cekler(
      "(7, 'ONUR', '2026-02-02', NULL, 5), (8, 'ONUR', '2099-01-01', '2099-01-01', 40), "
      "(7, 'ZEKİ', '2026-02-03', NULL, 2), (7, 'ZEKİ', '2026-02-04', NULL, 2), "
      "(7, 'ÇAĞLA', '2026-02-05', NULL, 4), (7, 'ÇAĞLA', '2026-02-06', NULL, 0.5)");
  auto* f = Ac();
  // The list holds other drawers; ZEKİ isn't among them.
  Yaz(f->txtAranacak, "ON");
  Tikla(f->cmdDoldur);
  Tikla(f->cmdRiskli);
  ASSERT_TRUE(f->grdRiskli->isVisible());
  const auto* m = f->grdRiskli->Model();
  // Count first, then amount; O'NEIL's bounced paper counts whatever contract.
  EXPECT_EQ(test::Satirlar(m).join('\n'),
            "ÇAĞLA|2|4,50|0|0,00\nZEKİ|2|4,00|0|0,00\nONUR|1|5,00|1|40,00\n"
            "O'NEIL|1|0,50|0|0,00");

  const auto cift = [&](int satir) {
    const QPoint p = f->grdRiskli->visualRect(m->index(satir, 0)).center();
    QTest::mouseDClick(f->grdRiskli->viewport(), Qt::LeftButton, {}, p);
    test::Isle();
  };
  cift(1);  // ZEKİ: not in the list, found and marked
  EXPECT_EQ(Gorulen(f), "ALİ YILMAZ/AB-7/ZEKİ,ALİ YILMAZ/AB-7/ZEKİ|2|4,00");
  cift(3);  // O'NEIL: only its own entries are marked
  EXPECT_EQ(f->lstKesideci->selectedItems().size(), 3);
  EXPECT_EQ(Gorulen(f), "ŞÜKRÜ KAYA/AB-8/O'NEIL,ALİ YILMAZ/AB-7/O'NEIL|2|100,50");
  EXPECT_TRUE(Mesajlar().isEmpty());
}

}  // namespace
