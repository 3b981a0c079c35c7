#pragma once
// Timing of the benchmarks: medians of wall and CPU time over several runs,
// and one table row per measurement.

#include <time.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QString>
#include <algorithm>
#include <cstdio>
#include <functional>
#include <vector>

namespace olcum {

inline double CpuMs() {
  timespec t{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
  return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

struct Olcum {
  double duvar, cpu, enCok;
};

// Runs `hazirla` untimed, then `olc` timed, `kez` times: the medians and the
// slowest run.
inline Olcum Olc(int kez, const std::function<void(int)>& hazirla,
                 const std::function<void(int)>& olc) {
  std::vector<double> duvar, cpu;
  for (int i = 0; i < kez; ++i) {
    if (hazirla) hazirla(i);
    QElapsedTimer t;
    const double c0 = CpuMs();
    t.start();
    olc(i);
    duvar.push_back(t.nsecsElapsed() / 1e6);
    cpu.push_back(CpuMs() - c0);
  }
  const auto orta = [](std::vector<double> v) {
    std::sort(v.begin(), v.end());
    return v[v.size() / 2];
  };
  return {orta(duvar), orta(cpu), *std::max_element(duvar.begin(), duvar.end())};
}

inline Olcum Olc(int kez, const std::function<void(int)>& olc) { return Olc(kez, nullptr, olc); }

// One row of the table; names are padded by letters, not by bytes. With a
// target the row says whether it was met.
inline void Yaz(const char* ad, const Olcum& o, double hedef = 0) {
  const QString girinti = hedef > 0 ? QString() : QStringLiteral("  ");
  const QByteArray baslik = (girinti + QString::fromUtf8(ad)).leftJustified(44).toUtf8();
  std::printf("%s %9.2f %9.2f %9.2f", baslik.constData(), o.duvar, o.cpu, o.enCok);
  if (hedef > 0)
    std::printf("   < %5.0f  %s", hedef,
                o.duvar < hedef ? "tamam" : (o.cpu < hedef ? "yük altında aşıldı" : "AŞILDI"));
  std::printf("\n");
}

// The head of the table that Yaz() fills.
inline void Baslik() {
  std::printf("\n%-44s %9s %9s %9s   %7s\n", "", "duvar ms", "cpu ms", "en çok", "hedef");
}

inline void Isle() {
  for (int i = 0; i < 3; ++i) QCoreApplication::processEvents();
}

}  // namespace olcum
