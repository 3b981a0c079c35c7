#include "core/Yazici.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QThread>
#include <algorithm>
#include <cerrno>
#include <cstring>

namespace yazici {

namespace {

// The reason of a failed system call, in Turkish for the cases a clerk meets.
QString SistemHatasi(int no) {
  switch (no) {
    case ENOENT:
      return QStringLiteral("böyle bir dosya ya da dizin yok");
    case EACCES:
    case EPERM:
      return QStringLiteral("erişim izni yok");
    case ENODEV:
    case ENXIO:
      return QStringLiteral("aygıt bağlı değil");
    case EBUSY:
      return QStringLiteral("aygıt meşgul");
    case EISDIR:
      return QStringLiteral("bu bir dizin");
    case ENOTDIR:
      return QStringLiteral("yolun bir parçası dizin değil");
    case ENOSPC:
      return QStringLiteral("diskte yer kalmadı");
    case EROFS:
      return QStringLiteral("salt okunur dosya sistemi");
    case EIO:
      return QStringLiteral("giriş/çıkış hatası");
    case EPIPE:
      return QStringLiteral("karşı taraf veriyi almadı");
    default:
      return QString::fromLocal8Bit(std::strerror(no));
  }
}

// An open file descriptor, closed on every path.
class Tanitici {
 public:
  explicit Tanitici(int fd) : fd_(fd) {}
  ~Tanitici() {
    if (fd_ >= 0) ::close(fd_);
  }
  Tanitici(const Tanitici&) = delete;
  Tanitici& operator=(const Tanitici&) = delete;
  int fd() const { return fd_; }
  // Closes now; the error number of a failed close (data a device or disk
  // refused at the end), 0 when it went well.
  int Kapat() {
    const int fd = fd_;
    fd_ = -1;
    return ::close(fd) == 0 ? 0 : errno;
  }

 private:
  int fd_;
};

// Writes all of `veri`; a device that isn't ready is waited on for up to
// kZamanAsimi ms at a time. The reason when it fails.
QString HepsiniYaz(int fd, const char* veri, qsizetype boy, const QString& yol) {
  while (boy > 0) {
    const ssize_t n = ::write(fd, veri, size_t(boy));
    if (n > 0) {
      veri += n;
      boy -= n;
      continue;
    }
    if (n < 0 && errno == EINTR) continue;
    if (n < 0 && errno == EAGAIN) {
      pollfd p{fd, POLLOUT, 0};
      const int r = ::poll(&p, 1, kZamanAsimi);
      if (r > 0 && !(p.revents & (POLLERR | POLLHUP))) continue;
      if (r < 0 && errno == EINTR) continue;
      return QStringLiteral("Yazıcı veri almıyor (%1): %2 saniye beklendi.")
          .arg(yol)
          .arg(kZamanAsimi / 1000);
    }
    return QStringLiteral("Yazıcıya yazılamadı (%1): %2")
        .arg(yol, n == 0 ? QStringLiteral("yazıcı veri almadı") : SistemHatasi(errno));
  }
  return QString();
}

QString DosyayaGonder(const QString& yol, const baski::Sonuc& akis, const Bekleyici& bekle) {
  const QByteArray ad = QFile::encodeName(yol);
  struct stat st {};
  const bool var = ::stat(ad.constData(), &st) == 0;
  const bool aygit = var && S_ISCHR(st.st_mode);
  // A device that is not there is never made into a plain file.
  if (!var && yol.startsWith(QLatin1String("/dev/")))
    return QStringLiteral("Yazıcı açılamadı (%1): %2").arg(yol, SistemHatasi(ENOENT));
  const int bayrak = aygit ? (O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)
                           : (O_WRONLY | O_CREAT | O_TRUNC | O_NOCTTY | O_CLOEXEC);
  Tanitici f(::open(ad.constData(), bayrak, 0600));
  if (f.fd() < 0) return QStringLiteral("Yazıcı açılamadı (%1): %2").arg(yol, SistemHatasi(errno));

  // Up to each pause, the wait, and on.
  const QByteArray& b = akis.baytlar;
  qsizetype bas = 0;
  for (const qsizetype durak : aygit ? akis.beklemeler : QList<qsizetype>{}) {
    const qsizetype son = std::clamp(durak, bas, b.size());
    QString hata = HepsiniYaz(f.fd(), b.constData() + bas, son - bas, yol);
    if (!hata.isEmpty()) return hata;
    bas = son;
    if (bekle)
      bekle(baski::kBekleme);
    else
      QThread::msleep(baski::kBekleme);
  }
  QString hata = HepsiniYaz(f.fd(), b.constData() + bas, b.size() - bas, yol);
  if (!hata.isEmpty()) return hata;
  if (const int no = f.Kapat())
    return QStringLiteral("Yazıcıya yazılamadı (%1): %2").arg(yol, SistemHatasi(no));
  return QString();
}

QString KomutaGonder(const QString& komut, const baski::Sonuc& akis) {
  if (komut.trimmed().isEmpty()) return QStringLiteral("Yazdırma komutu boş.");
  QProcess p;
  p.setProgram(QStringLiteral("/bin/sh"));
  p.setArguments({QStringLiteral("-c"), komut});
  p.setProcessChannelMode(QProcess::SeparateChannels);
  p.setStandardOutputFile(QProcess::nullDevice());
  p.start();
  if (!p.waitForStarted())
    return QStringLiteral("Yazdırma komutu başlatılamadı (%1): %2").arg(komut, p.errorString());
  p.write(akis.baytlar);
  p.closeWriteChannel();
  // Data that a command never reads is lost with it; the exit status tells.
  if (!p.waitForFinished(120000)) {
    p.kill();
    p.waitForFinished();
    return QStringLiteral("Yazdırma komutu bitmedi (%1): 120 saniye beklendi.").arg(komut);
  }
  const QString hata = QString::fromLocal8Bit(p.readAllStandardError()).trimmed();
  if (p.exitStatus() != QProcess::NormalExit)
    return QStringLiteral("Yazdırma komutu yarıda kesildi (%1).").arg(komut) +
           (hata.isEmpty() ? QString() : QLatin1Char('\n') + hata);
  if (p.exitCode() != 0)
    return QStringLiteral("Yazdırma komutu başarısız oldu (%1), çıkış kodu %2.")
               .arg(komut)
               .arg(p.exitCode()) +
           (hata.isEmpty() ? QString() : QLatin1Char('\n') + hata);
  return QString();
}

}  // namespace

Hedef Coz(const QString& ayar) {
  static const QRegularExpression lpt(QStringLiteral("^LPT([1-3]):?$"),
                                      QRegularExpression::CaseInsensitiveOption);
  const QString metin = ayar.trimmed();
  if (metin.startsWith(QLatin1Char('|'))) return {Hedef::Tur::Komut, metin.mid(1).trimmed()};
  if (const auto m = lpt.match(metin); m.hasMatch())
    return {Hedef::Tur::Dosya, QStringLiteral("/dev/lp%1").arg(m.captured(1).toInt() - 1)};
  return {Hedef::Tur::Dosya, metin};
}

QString Gonder(const Hedef& h, const baski::Sonuc& akis, Bekleyici bekle) {
  if (h.yol.isEmpty() && h.tur == Hedef::Tur::Dosya) return QStringLiteral("Yazıcı tanımlı değil.");
  return h.tur == Hedef::Tur::Komut ? KomutaGonder(h.yol, akis) : DosyayaGonder(h.yol, akis, bekle);
}

QString Gonder(const QString& ayar, const baski::Sonuc& akis, Bekleyici bekle) {
  return Gonder(Coz(ayar), akis, std::move(bekle));
}

}  // namespace yazici
