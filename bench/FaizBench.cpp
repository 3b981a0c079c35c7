// TutarHesap of a full contract (22 lines, the default DetayLimit): the
// numbers alone (Topla) and with the screen texts (TutarHesap). Counts heap
// allocations per run as well: Topla makes none, TutarHesap only the texts of
// its result.
//
// Build (not wired into CMake): with Google Benchmark installed,
//   find_package(benchmark REQUIRED)
//   add_executable(FaizBench FaizBench.cpp)
//   target_link_libraries(FaizBench PRIVATE velmora_contract benchmark::benchmark)
// then `cmake --preset bench && cmake --build --preset bench --target FaizBench`
// and run build/bench/bench/FaizBench.

#include <benchmark/benchmark.h>

#include <atomic>
#include <cstdlib>
#include <vector>

#include "contract/Faiz.h"
#include "core/Genel.h"

// --- allocation counter. Qt's containers allocate with malloc, so the count
// sits there (glibc: the program's malloc stands in for the library's, also
// for Qt and for operator new).
namespace {
std::atomic<long long> gAyirma{0};
}  // namespace

extern "C" {
void* __libc_malloc(std::size_t);
void* __libc_calloc(std::size_t, std::size_t);
void* __libc_realloc(void*, std::size_t);
void __libc_free(void*);

void* malloc(std::size_t n) noexcept {
  gAyirma.fetch_add(1, std::memory_order_relaxed);
  return __libc_malloc(n);
}
void* calloc(std::size_t k, std::size_t n) noexcept {
  gAyirma.fetch_add(1, std::memory_order_relaxed);
  return __libc_calloc(k, n);
}
void* realloc(void* p, std::size_t n) noexcept {
  gAyirma.fetch_add(1, std::memory_order_relaxed);
  return __libc_realloc(p, n);
}
void free(void* p) noexcept { __libc_free(p); }
}

namespace {

// 22 lines, due dates spread over three months (weekends among them), every
// fifth with a Gun override, amounts of a few thousand.
std::vector<faiz::Satir> Satirlar() {
  std::vector<faiz::Satir> v;
  const QDate tarih(2005, 3, 4);
  for (int i = 0; i < 22; ++i) {
    faiz::Satir s;
    s.Vadesi = tarih.addDays(7 + 4 * i);
    s.Gun = i % 5 == 4 ? 45 : 0;
    s.Meblag = 1250.75 + 317.5 * i;
    s.CekNo = QString::number(100200 + i);
    s.Kesideci = QStringLiteral("AHMET YILMAZ");
    v.push_back(s);
  }
  return v;
}

faiz::Girdi Girdi() {
  faiz::Girdi g;
  g.Tarih = QDate(2005, 3, 4);
  g.FaizOran = 4.5;
  g.ilaveGun = 3;
  g.Hesapla = true;
  g.HaftaSonu = true;
  g.OrtalamaGun = true;
  return g;
}

void Hazirla() {
  Genel::BolgeTurkce();
  Genel::BinlikAyirici = QStringLiteral(".");
}

void BM_Topla(benchmark::State& state) {
  Hazirla();
  const auto satirlar = Satirlar();
  const faiz::Girdi g = Girdi();
  const long long once = gAyirma.load();
  for (auto _ : state) {
    faiz::Toplamlar t = faiz::Topla(g, satirlar);
    benchmark::DoNotOptimize(t);
  }
  state.counters["ayirma/calisma"] =
      benchmark::Counter(double(gAyirma.load() - once) / double(state.iterations()));
}
BENCHMARK(BM_Topla);

void BM_TutarHesap(benchmark::State& state) {
  Hazirla();
  const auto satirlar = Satirlar();
  const faiz::Girdi g = Girdi();
  const long long once = gAyirma.load();
  for (auto _ : state) {
    faiz::Sonuc s = faiz::TutarHesap(g, satirlar);
    benchmark::DoNotOptimize(s);
  }
  state.counters["ayirma/calisma"] =
      benchmark::Counter(double(gAyirma.load() - once) / double(state.iterations()));
}
BENCHMARK(BM_TutarHesap);

}  // namespace

BENCHMARK_MAIN();
