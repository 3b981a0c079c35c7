#include "transfer/MaliyeKomut.h"

#include <QRegularExpression>
#include <optional>

#include "core/Genel.h"
#include "transfer/MaliyeAktarim.h"

namespace aktarim {

namespace {

constexpr int kTamam = 0, kHatali = 1, kReddedildi = 2;

// AA.YYYY -> month and year; nothing when it is no month of a year.
std::optional<std::pair<int, int>> Ay(const QString& s) {
  static const QRegularExpression bicim(QStringLiteral("^(\\d{1,2})\\.(\\d{4})$"));
  const auto m = bicim.match(s.trimmed());
  if (!m.hasMatch()) return std::nullopt;
  const int ay = m.captured(1).toInt(), yil = m.captured(2).toInt();
  if (ay < 1 || ay > 12 || yil < 1900) return std::nullopt;
  return std::make_pair(ay, yil);
}

}  // namespace

int MaliyeKomutu(const std::function<db::Baglanti&()>& baglan, const QStringList& args,
                 QTextStream& cikti, QTextStream& hata) {
  QString bas, son, limitMetni = QStringLiteral("10000"), klasor, bugunMetni;
  for (int i = 0; i < args.size(); ++i) {
    const QString& a = args[i];
    QString* hedef = a == QLatin1String("--bas")     ? &bas
                     : a == QLatin1String("--son")   ? &son
                     : a == QLatin1String("--limit") ? &limitMetni
                     : a == QLatin1String("--cikti") ? &klasor
                     : a == QLatin1String("--bugun") ? &bugunMetni
                                                     : nullptr;
    if (!hedef) {
      hata << QStringLiteral("Bilinmeyen seçenek: %1\n").arg(a);
      return kReddedildi;
    }
    if (i + 1 >= args.size()) {
      hata << QStringLiteral("%1 seçeneği bir değer bekler.\n").arg(a);
      return kReddedildi;
    }
    *hedef = args[++i];
  }
  const auto ilk = Ay(bas), yer = Ay(son);
  if (!ilk || !yer) {
    hata << QStringLiteral("Lütfen ilk olarak dönemi seçiniz. (--bas ve --son AA.YYYY)\n");
    return kReddedildi;
  }
  double limit = 0;
  if (!Genel::SayiMi(limitMetni, &limit)) {
    hata << QStringLiteral("Geçerli bir limit giriniz.\n");
    return kReddedildi;
  }
  Istek istek;
  istek.bas = DonemBasi(ilk->first, ilk->second);
  istek.son = DonemSonu(yer->first, yer->second);
  if (istek.bas > istek.son) {
    hata << QStringLiteral("Başlangıç Tarihi Bitiş Tarihinden Küçük Olmalı\n");
    return kReddedildi;
  }
  istek.limit = LimitKurali(limit);
  istek.bugun = bugunMetni.isEmpty() ? QDate::currentDate() : Genel::TarihOku(bugunMetni);
  if (!istek.bugun.isValid()) {
    hata << QStringLiteral("Hatalı Tarih: %1\n").arg(bugunMetni);
    return kReddedildi;
  }
  try {
    istek.klasor = klasor.isEmpty() ? CiktiDizini() : klasor;
    Geri geri;
    geri.kurUyarisi = [&hata](const QString& m) { hata << m << '\n'; };
    db::Baglanti& b = baglan();
    const Sonuc s = Hazirla(b, istek, geri);
    if (s.yapilan > 0) KontrolListesiYaz(b, istek, istek.klasor);
    for (const QString& h : s.hatalar) hata << h << '\n';
    cikti << QString(s.ozet).replace(QStringLiteral("\r\n"), QStringLiteral("\n")) << '\n'
          << s.dosya << '\n';
    if (!s.semaHatasi.isEmpty()) {
      hata << QStringLiteral("Dosya şema denetiminden geçmedi: ") << s.semaHatasi << '\n';
      return kHatali;
    }
  } catch (const db::Hata& h) {
    hata << QStringLiteral("Bir Hata Oluştu\n") << h.metin() << '\n';
    return kHatali;
  } catch (const DosyaHatasi& h) {
    hata << QStringLiteral("Bir Hata Oluştu\n") << h.metin() << '\n';
    return kHatali;
  }
  return kTamam;
}

}  // namespace aktarim
