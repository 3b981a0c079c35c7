// The upgrade commands as the clerk meets them: their questions and closing
// messages, the dated copy taken before anything changes, and the guard
// against a second run.

#include <QDate>
#include <QDir>
#include <QFile>

#include "core/Ekran.h"
#include "core/Genel.h"
#include "core/YukseltKomut.h"
#include "db/Yukselt.h"
#include "tests/db/EskiSekil.h"
#include "tests/support/Ortam.h"

using namespace Qt::StringLiterals;

namespace {

class YukseltKomut : public test::Ortam {
 protected:
  void SetUp() override {
    test::Ortam::SetUp();
    ekran::YukseltmeKomutlariniKaydet();
    EskiSekleGetir(Genel::Baglanti);
    Genel::Baglanti.Calistir("INSERT INTO SozlesmeDetay(SozlesmeID, Meblag) VALUES (1, 500000)");
  }

  QString Yedek() const {
    return QDir(veriDizini())
        .filePath(u"velmora_"_s + QDate::currentDate().toString(u"ddMMyyyy"_s) + u".db"_s);
  }
  static double Meblag() {
    return Genel::Baglanti.Deger("SELECT Meblag FROM SozlesmeDetay").toDouble();
  }
};

TEST_F(YukseltKomut, VersiyonIkinciKezDahaOnceCalismisDer) {
  ekran::KomutCalistir(u"mnuVersiyon"_s);
  EXPECT_EQ(Kutular(), u"Düz : Versiyon Güncellemesi Yapıldı"_s);
  EXPECT_TRUE(db::TabloVar(Genel::Baglanti, u"HesapDetay"_s));
  ekran::KomutCalistir(u"mnuVersiyon"_s);
  EXPECT_EQ(Kutular(), u"Bilgi BİLGİ: Versiyon Güncellemesi Daha Önce Çalışmış."_s);
}

TEST_F(YukseltKomut, PulBedeliSorarYedekAlirIkinciKezSormaz) {
  Cevap(mesaj::Dugme::Hayir);
  ekran::KomutCalistir(u"mnuPulBedeli"_s);
  EXPECT_EQ(Kutular(), u"Soru DİKKAT: Pul Bedeli düzenlemesi yapılacaktır. Emin misiniz?"_s);
  EXPECT_TRUE(db::PulBedeliEksik(Genel::Baglanti));
  EXPECT_FALSE(QFile::exists(Yedek())) << "no copy when the clerk said no";

  Cevap(mesaj::Dugme::Evet);
  ekran::KomutCalistir(u"mnuPulBedeli"_s);
  EXPECT_EQ(Kutular(),
            u"Soru DİKKAT: Pul Bedeli düzenlemesi yapılacaktır. Emin misiniz?\n"
            "Bilgi DİKKAT: İşlem Tamamlandı"_s);
  EXPECT_FALSE(db::PulBedeliEksik(Genel::Baglanti));
  // The copy holds the file as it was before the command.
  db::Baglanti yedek;
  yedek.Ac(Yedek(), db::Baglanti::Kip::SadeceOku);
  EXPECT_TRUE(db::PulBedeliEksik(yedek));

  ekran::KomutCalistir(u"mnuPulBedeli"_s);
  EXPECT_EQ(Kutular(), u"Bilgi UYARI: Bu işlem daha önce yapılmış"_s);
}

TEST_F(YukseltKomut, YtlHerCalistirmadaSorarVeCevirir) {
  for (int kez = 0; kez < 2; ++kez) {
    ekran::KomutCalistir(u"mnuYTL"_s);
    EXPECT_EQ(Kutular(),
              u"Soru DİKKAT: YTL ile ilgili Tablo Dönüştürmeleri Çalışacaktır. Emin misiniz?\n"
              "Bilgi DİKKAT: İşlem Tamamlandı"_s);
    EXPECT_EQ(Meblag(), 0.5) << "a converted line stays below the line";
  }
}

TEST_F(YukseltKomut, YedekAlinamazsaHicbirSeyDegismez) {
  // A folder standing where the day's copy must go.
  ASSERT_TRUE(QDir().mkpath(Yedek() + u"/dolu"_s));
  ekran::KomutCalistir(u"mnuYTL"_s);
  const QString kutular = Kutular();
  EXPECT_TRUE(kutular.contains(u"Kritik HATA: Bir Hata Oluştu\n"_s)) << kutular.toStdString();
  EXPECT_FALSE(kutular.contains(u"İşlem Tamamlandı"_s));
  EXPECT_EQ(Meblag(), 500000);
  EXPECT_TRUE(db::YtlYapisiEksik(Genel::Baglanti));
}

}  // namespace
