#include "reports/RaporKomutu.h"

#include <QDate>
#include <QRegularExpression>

#include "core/Genel.h"
#include "reports/Csv.h"
#include "reports/Gelir.h"
#include "reports/Kesideci.h"
#include "reports/MusteriDurum.h"
#include "reports/Tahsilat.h"

namespace raporkomutu {

const char* const kKullanim =
    "  velmora rapor cari --csv DOSYA           müşteri cari raporunu CSV dosyasına yazar\n"
    "  velmora rapor gelir [--bas GG.AA.YYYY] [--son GG.AA.YYYY] --csv DOSYA\n"
    "                                           gelir raporunu CSV dosyasına yazar\n"
    "  velmora rapor cekler [--bas GG.AA.YYYY] [--son GG.AA.YYYY] --csv DOSYA\n"
    "                                           çekleri vadeye göre CSV dosyasına yazar\n"
    "  velmora rapor kesideci-risk --csv DOSYA  karşılıksızı olan keşidecileri CSV dosyasına "
    "yazar\n";

namespace {

struct Secenekler {
  QString rapor, csv, bas, son;
};

using B = csv::Sutun::Bicim;

QVector<csv::Sutun> CekSutunlari() {
  return {{QStringLiteral("GirisNo"), QStringLiteral("GirisNo")},
          {QStringLiteral("SozlesmeNo"), QStringLiteral("Sözleşme No")},
          {QStringLiteral("Tip"), QStringLiteral("Tip")},
          {QStringLiteral("Kesideci"), QStringLiteral("Keşideci")},
          {QStringLiteral("Banka"), QStringLiteral("Banka")},
          {QStringLiteral("Sube"), QStringLiteral("Şube")},
          {QStringLiteral("HesapNo"), QStringLiteral("Hesap")},
          {QStringLiteral("CekNo"), QStringLiteral("Çek No")},
          {QStringLiteral("Vadesi"), QStringLiteral("Vadesi"), B::Tarih},
          {QStringLiteral("Meblag"), QStringLiteral("Meblağ"), B::Sayi, 2, true},
          {QStringLiteral("Doviz"), QStringLiteral("Döviz")},
          {QStringLiteral("Odenmesi"), QStringLiteral("Ödeme "), B::Tarih}};
}

QVector<csv::Sutun> GelirSutunlari() {
  const auto tutar = [](const char* alan, const char* baslik) {
    csv::Sutun s{QString::fromLatin1(alan), QString::fromUtf8(baslik), B::Sayi, 2, true};
    s.onSifir = false;  // "###,###,###.00"
    return s;
  };
  return {{QStringLiteral("SozlesmeSeri"), QStringLiteral("Seri")},
          {QStringLiteral("SozlesmeNo"), QStringLiteral("No")},
          {QStringLiteral("Tarih"), QStringLiteral("Tarih"), B::Tarih},
          {QStringLiteral("AdSoyad"), QStringLiteral("Müşteri")},
          tutar("Tutar", "Tutar"),
          tutar("FaizTutar", "Faiz"),
          tutar("BMVergisi", "BMVergisi"),
          tutar("Odenecek2", "Ödenen")};
}

// A date of the command line: day, month and a four-digit year.
bool TarihMi(const QString& s) {
  static const QRegularExpression bicim(QStringLiteral("^\\d{2}\\.\\d{2}\\.\\d{4}$"));
  return bicim.match(s).hasMatch() && Genel::TarihOku(s).isValid();
}

QString Oku(const QStringList& arg, Secenekler& s) {
  if (arg.isEmpty())
    return QStringLiteral("Rapor adı eksik: cari, gelir, cekler veya kesideci-risk.");
  s.rapor = arg[0];
  if (s.rapor != QLatin1String("cari") && s.rapor != QLatin1String("gelir") &&
      s.rapor != QLatin1String("cekler") && s.rapor != QLatin1String("kesideci-risk"))
    return QStringLiteral("Bilinmeyen rapor: %1 (cari, gelir, cekler veya kesideci-risk).")
        .arg(s.rapor);
  for (int i = 1; i < arg.size(); i += 2) {
    const QString& a = arg[i];
    const bool tarihli = s.rapor == QLatin1String("gelir") || s.rapor == QLatin1String("cekler");
    if (a != QLatin1String("--csv") &&
        !(tarihli && (a == QLatin1String("--bas") || a == QLatin1String("--son"))))
      return QStringLiteral("Bilinmeyen seçenek: %1").arg(a);
    if (i + 1 >= arg.size()) return QStringLiteral("%1 seçeneği bir değer bekler.").arg(a);
    const QString& d = arg[i + 1];
    if (a == QLatin1String("--csv")) {
      s.csv = d;
    } else {
      if (!TarihMi(d))
        return QStringLiteral("Hatalı tarih: \"%1\". Tarihi GG.AA.YYYY biçiminde yazınız.").arg(d);
      (a == QLatin1String("--bas") ? s.bas : s.son) = d;
    }
  }
  if (s.csv.isEmpty()) return QStringLiteral("--csv DOSYA eksik.");
  return QString();
}

QByteArray Uret(const Secenekler& s) {
  if (s.rapor == QLatin1String("cari"))
    return csv::Yaz(musteridurum::Oku(QDate::currentDate()), musteridurum::Sutunlar());
  if (s.rapor == QLatin1String("kesideci-risk")) {
    const kesideci::Sorgu q = kesideci::RiskSorgusu(QDate::currentDate());
    return csv::Yaz(Genel::Baglanti.Sorgu(q.metin, q.deger), kesideci::RiskSutunlari());
  }
  if (s.rapor == QLatin1String("gelir")) {
    const gelir::Sorgu q = gelir::SorguKur(s.bas, s.son);
    return csv::Yaz(Genel::Baglanti.Sorgu(q.metin, q.deger), GelirSutunlari());
  }
  tahsilat::Secim secim;
  secim.bas = s.bas;
  secim.son = s.son;
  const tahsilat::Kosul k = tahsilat::KosulKur(secim);
  return csv::Yaz(Genel::Baglanti.Sorgu(tahsilat::ListeSorgusu(k), k.deger), CekSutunlari());
}

}  // namespace

int Calistir(const QStringList& arg, const std::function<void()>& ac,
             const std::function<void(const QString&)>& hata) {
  Secenekler s;
  const QString yanlis = Oku(arg, s);
  if (!yanlis.isEmpty()) {
    hata(yanlis);
    return 2;
  }
  QByteArray veri;
  try {
    ac();
    veri = Uret(s);
  } catch (const db::Hata& h) {
    hata(QStringLiteral("Bir Hata Oluştu: ") + h.metin());
    return 1;
  }
  QString neden;
  if (!csv::Kaydet(s.csv, veri, &neden)) {
    hata(QStringLiteral("Dosya yazılamadı: %1 (%2)").arg(s.csv, neden));
    return 1;
  }
  return 0;
}

}  // namespace raporkomutu
