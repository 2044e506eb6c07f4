// Draws the watermark on a picture of 24 megapixels in one thread, and runs memcpy on the same picture. The ratio to
// memcpy is what counts. It is printed below the table: the median of several rounds that measure both in turn.
#include "image/Filters.h"
#include "image/PangoTextRaster.h"
#include "image/TransparentCopy.h"
#include "image/Watermark.h"
#include "image/literal/WatermarkLiteral.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace vantorium {
namespace {

constexpr std::int32_t kWidth = 6000;
constexpr std::int32_t kHeight = 4000;

image::cDIBSection Noise(std::uint64_t number) {
  image::cDIBSection made;
  if (!made.Create(kWidth, kHeight)) std::abort();
  image::NoiseStream stream(1, number);
  image::RandomiseBits(made, false, stream);
  return made;
}

/// The pictures and tools that all measurements share.
struct Bench {
  image::cDIBSection picture = Noise(0);
  image::cDIBSection source = Noise(1);
  image::cDIBSection copy = Noise(2);
  image::PangoTextRaster raster;
  image::WatermarkSettings settings = {.checkUseWatermark = 1, .textWatermark = "SAMPLE"};
  image::WatermarkPainter painter{settings, 96, raster};

  void Copy() {
    const auto bytes = static_cast<std::size_t>(picture.BytesPerScanLine()) * static_cast<std::size_t>(kHeight);
    std::memcpy(copy.DIBSectionBitsPtr(), picture.DIBSectionBitsPtr(), bytes);
    benchmark::ClobberMemory();
  }
  void Blend(std::uint8_t alpha) { benchmark::DoNotOptimize(image::TransparentCopy(source, picture, 0, alpha)); }
  void DrawInPictureOfNewSize() { image::WatermarkPainter(settings, 96, raster).Draw(picture); }
  void DrawLiterally() {
    image::LogFont font = image::MakeWatermarkFont(settings, 96);
    image::literal::DrawWatermarkTextLiteral(picture, font, settings.textWatermark, settings.comboTextPlacement,
                                             settings.Color, 65, raster);
  }
};

struct Work {
  const char* name;
  double limit;  // times memcpy; 0 for no limit
  std::function<void()> run;
};

std::vector<Work> WorksOf(Bench& bench) {
  return {
      {"TransparentCopy, 65 percent", 3, [&bench] { bench.Blend(65); }},
      {"TransparentCopy, 100 percent", 3, [&bench] { bench.Blend(100); }},
      {"watermark, size seen before", 0, [&bench] { bench.painter.Draw(bench.picture); }},
      {"watermark, new size", 0, [&bench] { bench.DrawInPictureOfNewSize(); }},
      {"watermark, literal", 0, [&bench] { bench.DrawLiterally(); }},
  };
}

double Seconds(const std::function<void()>& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

double MedianRatio(Bench& bench, const Work& work) {
  std::vector<double> ratios;
  for (int round = 0; round < 15; ++round) {
    const double copying = Seconds([&bench] { bench.Copy(); });
    ratios.push_back(Seconds(work.run) / copying);
  }
  std::nth_element(ratios.begin(), ratios.begin() + 7, ratios.end());
  return ratios[7];
}

void Register(const char* name, const std::function<void()>& run) {
  benchmark::RegisterBenchmark(name, [run](benchmark::State& state) {
    for (auto _ : state) run();
  })->Unit(benchmark::kMillisecond);
}

}  // namespace
}  // namespace vantorium

int main(int count, char** arguments) {
  benchmark::Initialize(&count, arguments);
  if (benchmark::ReportUnrecognizedArguments(count, arguments)) return 1;
  vantorium::Bench bench;
  const auto works = vantorium::WorksOf(bench);
  vantorium::Register("memcpy", [&bench] { bench.Copy(); });
  for (const auto& work : works) vantorium::Register(work.name, work.run);
  benchmark::RunSpecifiedBenchmarks();
  std::printf("\n%-32s %8s %8s\n", "times memcpy", "ratio", "limit");
  for (const auto& work : works) {
    const std::string limit = work.limit > 0 ? std::to_string(static_cast<int>(work.limit)) : "";
    std::printf("%-32s %8.3f %8s\n", work.name, vantorium::MedianRatio(bench, work), limit.c_str());
  }
  return 0;
}
