// Runs the pixel routines on a picture of 24 megapixels in one thread, and memcpy on the same picture. The ratio to
// memcpy is what counts. It is printed below the table: the median of several rounds that measure both in turn.
#include "image/Filters.h"
#include "image/Resample.h"
#include "image/literal/ResampleLiteral.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace vantorium {
namespace {

constexpr std::int32_t kWidth = 6000;
constexpr std::int32_t kHeight = 4000;

std::size_t Bytes(const image::cDIBSection& dib) {
  return static_cast<std::size_t>(dib.BytesPerScanLine()) * static_cast<std::size_t>(dib.height());
}

// All routines share one random picture. Filters change it, but no filter's time depends on the colors.
image::cDIBSection& Picture() {
  static image::cDIBSection picture = [] {
    image::cDIBSection made;
    if (!made.Create(kWidth, kHeight)) std::abort();
    image::NoiseStream stream(1, 0);
    image::RandomiseBits(made, false, stream);
    return made;
  }();
  return picture;
}

std::vector<std::uint8_t>& Copy() {
  static std::vector<std::uint8_t> copy(Bytes(Picture()));
  return copy;
}

void CopyPicture() {
  std::memcpy(Copy().data(), Picture().DIBSectionBitsPtr(), Copy().size());
  benchmark::ClobberMemory();
}

void AddUniformNoise() {
  image::NoiseStream stream(1, 2);
  image::AddNoise(Picture(), 50, false, stream);
}

void AddRandomNoise() {
  image::NoiseStream stream(1, 2);
  image::AddNoise(Picture(), 50, true, stream);
}

template <auto resample>
void Reduce() {
  benchmark::DoNotOptimize(resample(Picture(), 300, 450));
}

template <auto resample>
void Enlarge() {
  benchmark::DoNotOptimize(resample(*resample(Picture(), 300, 450), 2000, 3000));
}

struct Work {
  const char* name;
  double limit;  // times memcpy; 0 for no limit
  std::function<void()> run;
};

const std::vector<Work>& Works() {
  static const std::vector<Work> works = {
      {"GrayScale", 3, [] { image::GrayScale(Picture()); }},
      {"Fade", 3, [] { image::Fade(Picture(), 250); }},
      {"AddNoise", 10, AddUniformNoise},
      {"AddNoise random", 10, AddRandomNoise},
      {"Lighten", 15, [] { image::Lighten(Picture(), 25); }},
      {"Resample to 450 x 300", 0, Reduce<image::Resample>},
      {"ResampleLiteral to 450 x 300", 0, Reduce<image::literal::ResampleLiteral>},
      {"Resample to 3000 x 2000", 0, Enlarge<image::Resample>},
  };
  return works;
}

// Measures processor time: all work runs on one thread, and other processes may be using the machine.
double Seconds(const std::function<void()>& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

double MedianRatio(const Work& work) {
  std::vector<double> ratios;
  for (int round = 0; round < 15; ++round) {
    const double copying = Seconds(CopyPicture);
    ratios.push_back(Seconds(work.run) / copying);
  }
  std::nth_element(ratios.begin(), ratios.begin() + 7, ratios.end());
  return ratios[7];
}

void PrintRatios() {
  std::printf("\n%-32s %8s %8s\n", "times memcpy", "ratio", "limit");
  for (const Work& work : Works()) {
    const std::string limit = work.limit > 0 ? std::to_string(static_cast<int>(work.limit)) : "";
    std::printf("%-32s %8.2f %8s\n", work.name, MedianRatio(work), limit.c_str());
  }
}

void Register(const char* name, const std::function<void()>& run) {
  benchmark::RegisterBenchmark(name, [run](benchmark::State& state) {
    for (auto _ : state) run();
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(Bytes(Picture())));
  })->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace vantorium

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  vantorium::CopyPicture();  // touches the memory before anything is measured
  vantorium::Register("memcpy", vantorium::CopyPicture);
  for (const auto& work : vantorium::Works()) vantorium::Register(work.name, work.run);
  benchmark::RunSpecifiedBenchmarks();
  vantorium::PrintRatios();
  return 0;
}
