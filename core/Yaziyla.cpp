// Amounts written out in Turkish words, as contracts and invoices carry them.

#include <cmath>

#include "core/Genel.h"

namespace Genel {

QString UcHaneYazi(double Sayi) {
  if (!(Sayi > 0)) return QString();
  static const char* const birler[] = {"",    "BİR",  "İKİ",  "ÜÇ",    "DÖRT",
                                       "BEŞ", "ALTI", "YEDİ", "SEKİZ", "DOKUZ"};
  static const char* const onlar[] = {"",     "ON",     "YİRMİ",  "OTUZ",   "KIRK",
                                      "ELLİ", "ALTMIŞ", "YETMİŞ", "SEKSEN", "DOKSAN"};
  const long long n = static_cast<long long>(Sayi) % 1000;
  const int yuz = int(n / 100), on = int(n / 10 % 10), bir = int(n % 10);
  QString s;
  if (yuz >= 2) s += QString::fromUtf8(birler[yuz]) + QStringLiteral("YÜZ");
  if (yuz == 1) s += QStringLiteral("YÜZ");
  s += QString::fromUtf8(onlar[on]);
  s += QString::fromUtf8(birler[bir]);
  return s;
}

QString YaziyaCevir(double Tutar) {
  QString onEk;
  if (Tutar < 0) {
    onEk = QStringLiteral("Eksi ");
    Tutar = -Tutar;
  }
  const double tam = std::trunc(Tutar);
  // Kuruş: the fraction times 100, an exact half to the even neighbour.
  const long long kurus = static_cast<long long>(std::nearbyint((Tutar - tam) * 100.0));
  long long t = static_cast<long long>(tam);

  constexpr long long kTrilyon = 1000000000000LL, kMilyar = 1000000000LL, kMilyon = 1000000LL;
  QString yazi;
  if (t >= kTrilyon) {
    const long long bas = t / kTrilyon;
    if (bas > 0) yazi += UcHaneYazi(double(bas)) + QStringLiteral("TRİLYON ");
    t %= kTrilyon;
  }
  if (t >= kMilyar) {
    const long long bas = t / kMilyar;
    if (bas > 0) yazi += UcHaneYazi(double(bas)) + QStringLiteral("MİLYAR ");
    t -= bas * kMilyar;
  }
  const long long milyon = t / kMilyon;
  if (milyon > 0) {
    yazi += UcHaneYazi(double(milyon)) + QStringLiteral("MİLYON ");
    t -= milyon * kMilyon;
  }
  const long long bin = t / 1000;
  if (bin > 0) {
    if (bin == 1 && !yazi.isEmpty())
      yazi += QStringLiteral("BİN");
    else
      yazi += UcHaneYazi(double(bin)) + QStringLiteral("BİN");
    t -= bin * 1000;
  }
  yazi += UcHaneYazi(double(t));
  if (yazi.startsWith(QStringLiteral("BİRBİN"))) yazi.remove(0, 3);

  QString sonuc = onEk + yazi + QStringLiteral(" Yeni Lira ");
  if (kurus > 0) sonuc += UcHaneYazi(double(kurus)) + QStringLiteral(" Yeni Kuruş");
  return sonuc;
}

}  // namespace Genel
