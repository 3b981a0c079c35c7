#include "tests/support/Ortam.h"

#include <QApplication>
#include <QCoreApplication>

#include "core/Genel.h"

namespace test {

namespace {
QVector<mesaj::Kayit> gMesajlar;
mesaj::Dugme gCevap = mesaj::Dugme::Evet;
}  // namespace

void Ortam::SetUp() {
  ayar_ = std::make_unique<QTemporaryDir>();
  veri_ = std::make_unique<QTemporaryDir>();
  ASSERT_TRUE(ayar_->isValid() && veri_->isValid());
  qputenv("VELMORA_AYAR", ayar_->path().toUtf8());
  qputenv("VELMORA_VERI", veri_->path().toUtf8());
  Genel::BolgeTurkce();
  gMesajlar.clear();
  gCevap = mesaj::Dugme::Evet;
  mesaj::CevaplayiciKur([](const mesaj::Kayit& k) {
    gMesajlar.push_back(k);
    return gCevap;
  });
  Genel::IniDosya = Genel::WindowsDizini() + QStringLiteral("/velmora.ini");
  Genel::AyarOku();
  Genel::BinlikAyiriciBul();
  Genel::Baglanti.Olustur(Genel::VeriTabaniYolu());
  Genel::FirmaAdi.clear();
  Genel::SozlesmeSeri.clear();
  Genel::FaturaSeri.clear();
  Genel::MusteriBazinda = false;
  Genel::OrtGun = 0;
}

void Ortam::TearDown() {
  Isle();
  Genel::Baglanti.Kapat();
  ayar_.reset();
  veri_.reset();
}

const QVector<mesaj::Kayit>& Ortam::Mesajlar() const { return gMesajlar; }

QStringList Ortam::MesajMetinleri() const {
  QStringList l;
  for (const auto& k : gMesajlar) l << k.metin;
  return l;
}

void Ortam::MesajlariTemizle() { gMesajlar.clear(); }

QString Ortam::Kutular() {
  static const char* const tur[] = {"Kritik", "Ünlem", "Bilgi", "Soru", "Düz"};
  QStringList l;
  for (const mesaj::Kayit& k : gMesajlar)
    l << QString::fromUtf8(tur[int(k.tur)]) + QLatin1Char(' ') + k.baslik + QStringLiteral(": ") +
             k.metin;
  gMesajlar.clear();
  return l.join(QLatin1Char('\n'));
}
void Ortam::Cevap(mesaj::Dugme d) { gCevap = d; }

void Isle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

}  // namespace test
