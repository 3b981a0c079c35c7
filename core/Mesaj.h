#pragma once
// Every message box of the program goes through Goster(). Tests install a
// responder that records each message and answers questions, so nothing in
// a test ever blocks on a real box.

#include <QString>
#include <functional>

class QWidget;

namespace mesaj {

enum class Tur { Kritik, Unlem, Bilgi, Soru, Duz };
enum class Dugmeler { Tamam, TamamIptal, EvetHayir };
enum class Dugme { Tamam, Iptal, Evet, Hayir };

struct Kayit {
  QString metin;
  QString baslik;
  Tur tur;
  Dugmeler dugmeler;
};

using Cevaplayici = std::function<Dugme(const Kayit&)>;

// Shows the box (or asks the responder) and returns the button pressed.
// An empty title shows the program's name, as a plain box does.
Dugme Goster(const QString& metin, const QString& baslik = QString(), Tur tur = Tur::Duz,
             Dugmeler dugmeler = Dugmeler::Tamam, QWidget* ust = nullptr);

inline void Kritik(const QString& metin, const QString& baslik = QString()) {
  Goster(metin, baslik, Tur::Kritik);
}
inline void Bilgi(const QString& metin, const QString& baslik = QString()) {
  Goster(metin, baslik, Tur::Bilgi);
}
inline void Uyari(const QString& metin, const QString& baslik = QString()) {
  Goster(metin, baslik, Tur::Unlem);
}
// A yes/no question; true on yes.
inline bool EvetMi(const QString& metin, const QString& baslik = QString(),
                   Tur tur = Tur::Soru) {
  return Goster(metin, baslik, tur, Dugmeler::EvetHayir) == Dugme::Evet;
}

void CevaplayiciKur(Cevaplayici c);
void CevaplayiciKaldir();

}  // namespace mesaj
