// The drawer report: drawers found by the beginning or any part of their
// name, repeats and all; several marked; their papers whoever the customer.

#include <QApplication>
#include <QtTest/QTest>

#include "core/Genel.h"
#include "reports/frmKesideciBilgi.h"
#include "tests/support/Klavye.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

using test::Tikla;
using test::Yaz;

class Kesideci : public test::Ortam {
 protected:
  void SetUp() override {
    Ortam::SetUp();
    Calistir(
        "INSERT INTO Musteri(MusteriNo, Soyadi, Adi, HukukiDurum) VALUES "
        "(1, 'YILMAZ', 'ALİ', 1), (2, 'KAYA', 'ŞÜKRÜ', 1)");
    Calistir(
        "INSERT INTO Sozlesme(SozlesmeID, SozlesmeSeri, SozlesmeNo, MusteriNo, Tarih) VALUES "
        "(1, 'AB', 7, 1, '2026-01-01'), (2, 'AB', 8, 2, '2026-01-02')");
    // contract number, drawer, maturity, payment (empty: bounced), amount
    Cek(7, "O'NEIL", "2026-03-01", "2026-03-01", 100);
    Cek(8, "ONUR", "2026-02-01", "2026-02-01", 20);
    Cek(8, "O'NEIL", "2026-01-15", "", 0.5);
    Cek(7, "AHMET ONUR", "2026-04-01", "2026-04-01", 7);
    Cek(9, "O'NEIL", "2026-05-01", "2026-05-01", 1);  // its contract is gone
    Cek(7, "%5_İNDİRİM", "2026-06-01", "2026-06-01", 3);
  }
  void TearDown() override {
    ekran_.reset();
    Ortam::TearDown();
  }
  static void Calistir(const QString& sql, const QVariantList& deger = {}) {
    Genel::Baglanti.Calistir(sql, deger);
  }
  static void Cek(int no, const char* kesideci, const char* vade, const char* odeme, double m) {
    const QString o = QString::fromLatin1(odeme);
    Calistir(
        "INSERT INTO SozlesmeDetay(SozlesmeSeri, SozlesmeNo, Tip, Kesideci, Vadesi, Odenmesi, "
        "Meblag, Doviz) VALUES ('AB', ?, 'Çek', ?, ?, ?, ?, 'TRL')",
        {no, QString::fromUtf8(kesideci), QString::fromLatin1(vade),
         o.isEmpty() ? QVariant() : QVariant(o), m});
  }
  frmKesideciBilgi* Ac() {
    ekran_ = std::make_unique<frmKesideciBilgi>();
    ekran_->show();
    QApplication::setActiveWindow(ekran_.get());
    ekran_->Yukle();
    test::Isle();
    return ekran_.get();
  }
  std::unique_ptr<frmKesideciBilgi> ekran_;
  static QString Liste(frmKesideciBilgi* f) {
    QStringList l;
    for (int i = 0; i < f->lstKesideci->count(); ++i) l << f->lstKesideci->item(i)->text();
    return l.join(',');
  }
  // Marks list entries as a clerk does, by clicking them.
  static void Isaretle(frmKesideciBilgi* f, std::initializer_list<int> satirlar) {
    for (int s : satirlar) {
      const QRect r = f->lstKesideci->visualItemRect(f->lstKesideci->item(s));
      QTest::mouseClick(f->lstKesideci->viewport(), Qt::LeftButton, {}, r.center());
    }
    test::Isle();
  }
  static QString Gorulen(frmKesideciBilgi* f) {
    if (!f->dGridDetay->isVisible()) return "gizli";
    QStringList l;
    const auto* m = f->dGridDetay->Model();
    for (int r = 0; r < m->rowCount(); ++r)
      l << m->Metin(r, 0) + "/" + m->Metin(r, 1) + "/" + m->Metin(r, 3);
    return l.join(',') + "|" + f->txtAdet->text() + "|" + f->txtToplam->text();
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
    EXPECT_EQ(MesajMetinleri(), QStringList{"İlk olarak Keşideci Seçmelisiniz"});
    EXPECT_EQ(Mesajlar().value(0).baslik, u"UYARI"_s);
    EXPECT_EQ(Mesajlar().value(0).tur, mesaj::Tur::Bilgi);
    EXPECT_TRUE(f->txtAranacak->hasFocus());
    EXPECT_EQ(Gorulen(f), "gizli");
    MesajlariTemizle();
    Tikla(f->cmdDoldur);
  }
  // O'NEIL marked twice and ONUR: each paper once, by maturity; the paper
  // whose contract is gone drops out of the join.
  Isaretle(f, {0, 1, 2});
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f),
            "ŞÜKRÜ KAYA/AB-8/O'NEIL,ŞÜKRÜ KAYA/AB-8/ONUR,ALİ YILMAZ/AB-7/O'NEIL|3|120,50");
  // A payment date bound drops the bounced paper.
  Yaz(f->txtBastar, "01.01.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f), "ŞÜKRÜ KAYA/AB-8/ONUR,ALİ YILMAZ/AB-7/O'NEIL|2|120,00");
  Yaz(f->txtSonTar, "15.02.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f), "ŞÜKRÜ KAYA/AB-8/ONUR|1|20,00");
  Yaz(f->txtSonTar, "01.01.2025");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(Gorulen(f), "|0|,00");
  // A bad date keeps the focus and lists nothing new.
  Yaz(f->txtSonTar, "31.02.2026");
  Tikla(f->cmdBilgiGoster);
  EXPECT_EQ(MesajMetinleri(), QStringList{"Lütfen Geçerli Bir Tarih Girin"});
  EXPECT_TRUE(f->txtSonTar->hasFocus());
}

// Drawers ranked by their bounced papers, with what is still at risk beside
// them; a double click marks the drawer and shows its papers.
TEST_F(Kesideci, RiskliKesideciler) {
  Cek(7, "ONUR", "2026-02-02", "", 5);
  Cek(8, "ONUR", "2099-01-01", "2099-01-01", 40);  // at risk
  Cek(7, "ZEKİ", "2026-02-03", "", 2);
  Cek(7, "ZEKİ", "2026-02-04", "", 2);
  Cek(7, "ÇAĞLA", "2026-02-05", "", 4);
  Cek(7, "ÇAĞLA", "2026-02-06", "", 0.5);
  auto* f = Ac();
  // The list holds other drawers; ZEKİ isn't among them.
  Yaz(f->txtAranacak, "ON");
  Tikla(f->cmdDoldur);
  Tikla(f->cmdRiskli);
  ASSERT_TRUE(f->grdRiskli->isVisible());
  const auto* m = f->grdRiskli->Model();
  QStringList sira;
  for (int r = 0; r < m->rowCount(); ++r) {
    QStringList s;
    for (int c = 0; c < m->columnCount(); ++c) s << m->Metin(r, c);
    sira << s.join('|');
  }
  // Count first, then amount; O'NEIL's bounced paper counts whatever contract.
  EXPECT_EQ(sira.join('\n'),
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
