#pragma once
// A file's bytes, and root's power to write read-only files given up while a
// test needs a file or folder that can't be written.

#include <linux/capability.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <QFile>

inline QByteArray Icerik(const QString& yol) {
  QFile f(yol);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray("<okunamadı>");
}

class YazmaYetkisiBirak {
 public:
  YazmaYetkisiBirak() {
    if (geteuid() != 0 || syscall(SYS_capget, &baslik_, eski_) != 0) return;
    __user_cap_data_struct yeni[2] = {eski_[0], eski_[1]};
    yeni[0].effective &= ~(1u << CAP_DAC_OVERRIDE);
    birakti_ = syscall(SYS_capset, &baslik_, yeni) == 0;
  }
  ~YazmaYetkisiBirak() {
    if (birakti_) syscall(SYS_capset, &baslik_, eski_);
  }

 private:
  __user_cap_header_struct baslik_{_LINUX_CAPABILITY_VERSION_3, 0};
  __user_cap_data_struct eski_[2] = {};
  bool birakti_ = false;
};
