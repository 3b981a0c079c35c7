// velmora: starts the main window, or runs one command of the command line.

#include <QApplication>
#include <QCoreApplication>
#include <QDate>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>
#include <cstdio>
#include <limits>
#include <optional>

#include "contract/SozlesmeBaski.h"
#include "contract/SozlesmeYazdir.h"
#include "contract/frmHesap.h"
#include "contract/frmNoDegis.h"
#include "contract/frmSipYazTanim.h"
#include "contract/frmSozles.h"
#include "core/Bakim.h"
#include "core/Genel.h"
#include "core/Uygulama.h"
#include "core/Yazici.h"
#include "core/YukseltKomut.h"
#include "core/frmMain.h"
#include "db/Sema.h"
#include "db/Yedek.h"
#include "invoice/FaturaBaski.h"
#include "invoice/FaturaOnizleme.h"
#include "invoice/frmFatura.h"
#include "invoice/frmFaturaEk.h"
#include "master/frmDovizTanim.h"
#include "master/frmFirma.h"
#include "master/frmMusteri.h"
#include "reports/RaporKomutu.h"
#include "reports/frmKesideciBilgi.h"
#include "reports/frmMusteriBilgi.h"
#include "reports/frmMusteriDurum.h"
#include "reports/frmRapor.h"
#include "reports/frmTahsilat.h"
#include "transfer/MaliyeKomut.h"
#include "transfer/frmMaliye.h"

namespace {

const char* const kYardim =
    "Kullanım:\n"
    "  velmora [--veri DİZİN] [--ayar DİZİN]   programı başlatır\n"
    "  velmora yaziyla TUTAR                    tutarı yazıyla yazar (örnek: 1.234,56)\n"
    "  velmora yazdir sozlesme SOZLESMEID [--cikti DOSYA]\n"
    "                                           sözleşmeyi yazdırır\n"
    "  velmora yazdir fatura SOZLESMEID [--cikti DOSYA]\n"
    "                                           sözleşmenin faturasını yazdırır\n"
    "  velmora yazdir ekfatura SERI NO [--cikti DOSYA]\n"
    "                                           sözleşmesiz faturayı yazdırır\n"
    "  velmora bakim                            veri tabanını sıkıştırır, eskisini günün\n"
    "                                           yedeği olarak bırakır (velmora_GGAAYYYY.db)\n"
    "  velmora yedekle                          veri tabanının günün yedeğini şimdi alır\n"
    "  velmora geriyukle DOSYA                  veri tabanını yedek dosyadan geri yükler;\n"
    "                                           önce şimdikinin yedeğini alır\n"
    "%1"
    "  velmora --help                           bu yardımı gösterir\n"
    "\n"
    "  --veri DİZİN   veri tabanının (velmora.db) dizini; yoksa $VELMORA_VERI,\n"
    "                 o da yoksa ~/.local/share/velmora\n"
    "  --ayar DİZİN   ayar dosyasının (velmora.ini) dizini; yoksa $VELMORA_AYAR,\n"
    "                 o da yoksa ~/.config/velmora\n"
    "\n"
    "  yazdir, düğmelerin adımlarını yazıcı sorusu olmadan çalıştırır ve baytları\n"
    "  --cikti ile verilen dosyaya (\"-\": standart çıktı), yoksa ayarlardaki yazıcıya\n"
    "  gönderir. Bir ret (fatura yok, tutar hatalı...) mesajını standart hataya yazar\n"
    "  ve 2 ile çıkar; yazıcıya ya da dökümün kendisine ait bir hata 1 ile çıkar.\n";

void Yaz(FILE* f, const QString& s) {
  const QByteArray b = s.toUtf8();
  std::fwrite(b.constData(), 1, size_t(b.size()), f);
}

int Yaziyla(const QString& tutar) {
  Genel::BinlikAyirici = QString(Genel::Bolge().binlik);
  double deger = 0;
  if (tutar.trimmed().isEmpty() || !Genel::SayiOkuDene(tutar, deger) || std::abs(deger) >= 1e15) {
    Yaz(stderr,
        QStringLiteral("Geçersiz tutar: \"%1\". Tutarı 1.234,56 biçiminde yazınız.\n").arg(tutar));
    return 2;
  }
  Yaz(stdout, Genel::YaziyaCevir(deger) + QLatin1Char('\n'));
  return 0;
}

QString Yardim() {
  return QString::fromUtf8(kYardim).arg(QString::fromUtf8(aktarim::kKomutYardimi)) +
         QLatin1Char('\n') + QString::fromUtf8(raporkomutu::kKullanim);
}

// The transfer without the window: the settings and the database as the
// program reads them, opened read-only once the input is accepted.
int Maliye(const QStringList& args) {
  Genel::BinlikAyirici = QString(Genel::Bolge().binlik);
  QTextStream cikti(stdout), hata(stderr);
  const auto baglan = []() -> db::Baglanti& {
    Genel::Baglanti.Ac(Genel::VeriTabaniYolu(), db::Baglanti::Kip::SadeceOku);
    return Genel::Baglanti;
  };
  return aktarim::MaliyeKomutu(baglan, args, cikti, hata);
}

// --- velmora yazdir

// A refusal or a failure, told on standard error, and the exit code.
int Hata(const QString& metin, int kod) {
  Yaz(stderr, metin + QLatin1Char('\n'));
  return kod;
}

int Ret(const baski::Red& r) { return Hata(r.metin, 2); }

// The stream to the file given ("-": standard output) or else to the
// printer of the setting, as the buttons send it.
int Gonder(const baski::Sonuc& akis, const QString& cikti, const QString& yazici) {
  QString hata;
  if (cikti == QLatin1String("-")) {
    std::fwrite(akis.baytlar.constData(), 1, size_t(akis.baytlar.size()), stdout);
    std::fflush(stdout);
  } else {
    hata = cikti.isEmpty() ? yazici::Gonder(yazici, akis)
                           : yazici::Gonder({yazici::Hedef::Tur::Dosya, cikti}, akis);
  }
  if (hata.isEmpty() && akis.hata) hata = *akis.hata;
  if (!hata.isEmpty()) return Hata(QStringLiteral("Bir Hata Oluştu\n") + hata, 1);
  return 0;
}

std::optional<qint64> Numara(const QString& metin, qint64 enFazla) {
  bool tamam = false;
  const qint64 n = metin.trimmed().toLongLong(&tamam);
  if (!tamam || n < 1 || n > enFazla) return std::nullopt;
  return n;
}

int Yazdir(QStringList args) {
  const QString kullanim = QStringLiteral(
      "Kullanım: velmora yazdir sozlesme SOZLESMEID [--cikti DOSYA]\n"
      "          velmora yazdir fatura SOZLESMEID [--cikti DOSYA]\n"
      "          velmora yazdir ekfatura SERI NO [--cikti DOSYA]");
  QString cikti;
  if (const qsizetype i = args.indexOf(QStringLiteral("--cikti")); i >= 0) {
    if (i + 1 >= args.size()) return Hata(kullanim, 2);
    cikti = args[i + 1];
    args.remove(i, 2);
  }
  const QString tur = args.value(0);
  const bool ek = tur == QLatin1String("ekfatura");
  if (!(tur == QLatin1String("sozlesme") || tur == QLatin1String("fatura") || ek) ||
      args.size() != (ek ? 3 : 2))
    return Hata(kullanim, 2);

  // The settings and the database, as the window starts with them.
  Genel::BinlikAyiriciBul();
  const QString dizin = Genel::WindowsDizini();
  if (dizin.isEmpty()) return Hata(QStringLiteral("Ayar dizini oluşturulamadı."), 2);
  Genel::IniDosya = dizin + QStringLiteral("/velmora.ini");
  Genel::AyarOku();
  const QString yol = Genel::VeriTabaniYolu();
  if (!QFile::exists(yol)) return Hata(QStringLiteral("Veri tabanı bulunamadı: %1").arg(yol), 2);
  try {
    Genel::Baglanti.Ac(yol);
    db::SablonBossaYukle(Genel::Baglanti);
    if (ek) {
      const std::optional<qint64> no = Numara(args[2], std::numeric_limits<qint32>::max());
      if (!no) return Hata(QStringLiteral("Geçersiz fatura numarası: %1").arg(args[2]), 2);
      const auto satir = fatura::EkFaturaSatiri(Genel::Baglanti, args[1], *no);
      if (const auto* r = std::get_if<baski::Red>(&satir)) return Ret(*r);
      return Gonder(
          fatura::FaturaAkisi(fatura::BicimSec(true, Genel::SahipAdi),
                              std::get<baski::Kayit>(satir), fatura::YaziAyari::Genelden()),
          cikti, Genel::PrinterFatura);
    }
    const std::optional<qint64> id = Numara(args[1], std::numeric_limits<qint32>::max());
    if (!id) return Hata(QStringLiteral("Geçersiz sözleşme numarası: %1").arg(args[1]), 2);
    if (tur == QLatin1String("fatura")) {
      const fatura::Bicim bicim = fatura::BicimSec(false, Genel::SahipAdi);
      const auto satir =
          fatura::FaturaSatiri(Genel::Baglanti, qint32(*id), bicim == fatura::Bicim::FaturaSabit);
      if (const auto* r = std::get_if<baski::Red>(&satir)) return Ret(*r);
      return Gonder(
          fatura::FaturaAkisi(bicim, std::get<baski::Kayit>(satir), fatura::YaziAyari::Genelden()),
          cikti, Genel::PrinterFatura);
    }
    // The contract as its screen would show it once opened.
    const sozlesmebaski::EkranDegerleri e =
        sozlesmebaski::EkranDegerleriOku(Genel::Baglanti, qint32(*id))
            .value_or(sozlesmebaski::EkranDegerleri{});
    const auto hazir = sozlesmebaski::Hazirla(Genel::Baglanti, qint32(*id), e.Odenecek, e.GunYazisi,
                                              Genel::MasrafGoster);
    if (const auto* r = std::get_if<baski::Red>(&hazir)) return Ret(*r);
    return Gonder(sozlesmebaski::Akis(std::get<sozlesmebaski::Baski>(hazir), Genel::SahipAdi,
                                      sozlesmebaski::Ayar::Genelden()),
                  cikti, Genel::PrinterSozlesme);
  } catch (const db::Hata& h) {
    return Hata(QStringLiteral("Bir Hata Oluştu\n") + h.metin(), 1);
  }
}

// --- velmora bakim, yedekle, geriyukle

// The commands that copy or replace the database file, on the file the
// window would open; what was done on standard output, a failure on standard
// error with exit code 1.
int VeriTabaniKomutu(const QStringList& args) {
  const QString komut = args[0];
  const bool geri = komut == QLatin1String("geriyukle");
  if (args.size() != (geri ? 2 : 1))
    return Hata(geri ? QStringLiteral("Kullanım: velmora geriyukle DOSYA")
                     : QStringLiteral("Kullanım: velmora %1").arg(komut),
                2);
  const QString yol = Genel::VeriTabaniYolu();
  const QDate bugun = QDate::currentDate();
  try {
    if (!QFile::exists(yol)) throw db::Hata(QStringLiteral("Veri tabanı bulunamadı: %1").arg(yol));
    Genel::Baglanti.Ac(yol);
    if (komut == QLatin1String("bakim")) {
      const QString yedek = db::Sikistir(Genel::Baglanti, bugun);
      Yaz(stdout, QStringLiteral("Veri Tabanı Bakımı Yapıldı\nEski dosya: %1\n").arg(yedek));
    } else if (komut == QLatin1String("yedekle")) {
      const QString yedek = db::TarihliYedekAl(Genel::Baglanti, bugun);
      Yaz(stdout, QStringLiteral("Yedek alındı: %1\n").arg(yedek));
    } else {
      const QString kaynak = QFileInfo(args[1]).absoluteFilePath();
      const QString yedek = db::GeriYukle(Genel::Baglanti, kaynak, bugun);
      Yaz(stdout, QStringLiteral("Şimdiki veri tabanının yedeği: %1\nGeri yüklendi: %2\n")
                      .arg(yedek, kaynak));
    }
  } catch (const db::Hata& h) {
    const QString neden = komut == QLatin1String("bakim") ? QString::fromUtf8(bakim::kProblem)
                          : geri ? QStringLiteral("Geri yükleme yapılamadı; veri tabanı değişmedi.")
                                 : QStringLiteral("Yedek alınamadı.");
    return Hata(neden + QLatin1Char('\n') + h.metin(), 1);
  }
  return 0;
}

void EkranlariKaydet() {
  master::FirmaEkraniKaydet();
  master::MusteriEkranlariKaydet();
  master::DovizEkraniKaydet();
  contract::NoDegisEkraniKaydet();
  contract::SozlesmeEkraniKaydet();
  contract::HesapEkraniKaydet();
  transfer::MaliyeEkraniKaydet();
  reports::TahsilatEkraniKaydet();
  reports::MusteriBilgiEkraniKaydet();
  reports::GelirEkraniKaydet();
  reports::MusteriDurumEkraniKaydet();
  reports::KesideciEkraniKaydet();
  contract::SozlesmeYazdirKaydet();
  contract::SablonEkraniKaydet();
  invoice::FaturaEkraniKaydet();
  invoice::FaturaEkEkraniKaydet();
  invoice::FaturaOnizlemeKaydet();
  ekran::YukseltmeKomutlariniKaydet();
}

}  // namespace

int main(int argc, char** argv) {
  QStringList args;
  for (int i = 1; i < argc; ++i) args << QString::fromLocal8Bit(argv[i]);

  // Folder options first; they may stand before a command.
  for (int i = 0; i < args.size();) {
    const QString& a = args[i];
    if (a == QLatin1String("--veri") || a == QLatin1String("--ayar")) {
      if (i + 1 >= args.size()) {
        Yaz(stderr, QStringLiteral("%1 seçeneği bir dizin bekler.\n").arg(a));
        return 2;
      }
      const QByteArray dizin = QDir(args[i + 1]).absolutePath().toUtf8();
      qputenv(a == QLatin1String("--veri") ? "VELMORA_VERI" : "VELMORA_AYAR", dizin);
      args.remove(i, 2);
    } else {
      ++i;
    }
  }

  if (!args.isEmpty()) {
    if (args[0] == QLatin1String("--help") || args[0] == QLatin1String("-h") ||
        args[0] == QLatin1String("yardim")) {
      Yaz(stdout, Yardim());
      return 0;
    }
    if (args[0] == QLatin1String("rapor")) {
      QCoreApplication uyg(argc, argv);
      return raporkomutu::Calistir(
          args.mid(1),
          [] { Genel::Baglanti.Ac(Genel::VeriTabaniYolu(), db::Baglanti::Kip::SadeceOku); },
          [](const QString& m) { Yaz(stderr, m + QLatin1Char('\n')); });
    }
    if (args[0] == QLatin1String("yaziyla")) {
      if (args.size() != 2) {
        Yaz(stderr, QStringLiteral("Kullanım: velmora yaziyla TUTAR\n"));
        return 2;
      }
      QCoreApplication uyg(argc, argv);
      return Yaziyla(args[1]);
    }
    if (args[0] == QLatin1String("maliye")) {
      QCoreApplication uyg(argc, argv);
      return Maliye(args.mid(1));
    }
    if (args[0] == QLatin1String("bakim") || args[0] == QLatin1String("yedekle") ||
        args[0] == QLatin1String("geriyukle")) {
      QCoreApplication uyg(argc, argv);
      return VeriTabaniKomutu(args);
    }
    if (args[0] == QLatin1String("yazdir")) {
      QCoreApplication uyg(argc, argv);
      return Yazdir(args.mid(1));
    }
    Yaz(stderr, QStringLiteral("Bilinmeyen komut: %1\n\n").arg(args[0]) + Yardim());
    return 2;
  }

  Uygulama uyg(argc, argv);
  QApplication::setApplicationName(QStringLiteral("velmora"));
  QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
  EkranlariKaydet();
  frmMain ana;
  ana.show();
  if (!ana.Form_Load()) return 1;
  ana.MenuDurumu();
  return uyg.exec();
}
