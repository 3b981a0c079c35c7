// velmora: starts the main window, or runs one command of the command line.

#include <QApplication>
#include <QCoreApplication>
#include <QDir>
#include <QTextStream>
#include <cstdio>

#include "contract/frmNoDegis.h"
#include "contract/frmSozles.h"
#include "core/Genel.h"
#include "core/Uygulama.h"
#include "core/frmMain.h"
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
    "%1"
    "  velmora --help                           bu yardımı gösterir\n"
    "\n"
    "  --veri DİZİN   veri tabanının (velmora.db) dizini; yoksa $VELMORA_VERI,\n"
    "                 o da yoksa ~/.local/share/velmora\n"
    "  --ayar DİZİN   ayar dosyasının (velmora.ini) dizini; yoksa $VELMORA_AYAR,\n"
    "                 o da yoksa ~/.config/velmora\n";

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

void EkranlariKaydet() {
  master::FirmaEkraniKaydet();
  master::MusteriEkranlariKaydet();
  master::DovizEkraniKaydet();
  contract::NoDegisEkraniKaydet();
  contract::SozlesmeEkraniKaydet();
  transfer::MaliyeEkraniKaydet();
  reports::TahsilatEkraniKaydet();
  reports::MusteriBilgiEkraniKaydet();
  reports::GelirEkraniKaydet();
  reports::MusteriDurumEkraniKaydet();
  reports::KesideciEkraniKaydet();
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
