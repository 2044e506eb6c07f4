#include "image/jpeg/Color.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <random>
#include <span>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::image::jpeg {
namespace {

constexpr std::size_t kWidth = 45;
constexpr std::uint8_t kUntouched = 0xA5;

// Random samples, mostly at the ends of their range, where sums leave it.
class RandomRows {
 public:
  explicit RandomRows(unsigned seed) {
    std::mt19937 generator(seed);
    for (auto& row : rows_) {
      for (std::uint8_t& sample : row) {
        const unsigned number = generator() % 512;
        sample = static_cast<std::uint8_t>(number < 256 ? number : (number % 2 == 0 ? 0 : 255));
      }
    }
  }
  [[nodiscard]] SampleRows Of(Chroma chroma) const {
    const bool half = chroma == Chroma::HalfWidth || chroma == Chroma::HalfBoth;
    const std::size_t last = half ? kWidth / 2 : kWidth - 1;
    const std::size_t beside = chroma == Chroma::HalfBoth ? 1 : 0;
    return {.luminance = rows_[0].data(),
            .blue = {.own = rows_[1].data(), .beside = rows_[1 + beside].data()},
            .red = {.own = rows_[3].data(), .beside = rows_[3 + beside].data()},
            .columns = {.half = half, .last = last}};
  }

 private:
  std::array<std::array<std::uint8_t, kWidth + 8>, 5> rows_;
};

std::vector<std::uint8_t> Written(const SampleRows& rows, Chroma chroma, std::size_t begin, std::size_t end) {
  std::vector<std::uint8_t> bgr(3 * kWidth, kUntouched);
  WritePixels(rows, chroma, begin, end, bgr.data());
  return bgr;
}

class ColorConversion : public testing::TestWithParam<Chroma> {};

// Single pixels are made without vectors.
TEST_P(ColorConversion, TheColumnsFromEveryOneToEveryOtherEqualSinglePixels) {
  for (unsigned seed = 0; seed < 20; ++seed) {
    const RandomRows random(seed);
    const SampleRows rows = random.Of(GetParam());
    std::vector<std::uint8_t> single(3 * kWidth);
    for (std::size_t x = 0; x < kWidth; ++x) WritePixels(rows, GetParam(), x, x + 1, single.data());
    for (std::size_t begin = 0; begin < kWidth; ++begin) {
      for (std::size_t end = begin; end <= kWidth; ++end) {
        std::vector<std::uint8_t> expected(single.size(), kUntouched);
        std::ranges::copy(std::span(single).subspan(3 * begin, 3 * (end - begin)), expected.data() + 3 * begin);
        ASSERT_EQ(Written(rows, GetParam(), begin, end), expected) << begin << " to " << end << ", seed " << seed;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(EachSize, ColorConversion,
                         testing::Values(Chroma::None, Chroma::Full, Chroma::HalfWidth, Chroma::HalfBoth));

TEST(ColorOfOnePixel, EqualsTheFormulaOfJFIF) {
  const auto rounded = [](double value) { return std::clamp(static_cast<int>(std::floor(value + 0.5)), 0, 255); };
  for (int blue = 0; blue < 256; blue += 3) {
    for (int red = 0; red < 256; red += 3) {
      const std::uint8_t samples[] = {100, static_cast<std::uint8_t>(blue), static_cast<std::uint8_t>(red)};
      const SampleRows rows = {.luminance = samples,
                               .blue = {.own = samples + 1, .beside = samples + 1},
                               .red = {.own = samples + 2, .beside = samples + 2},
                               .columns = {.half = false, .last = 0}};
      std::array<std::uint8_t, 3> bgr = {};
      WritePixels(rows, Chroma::Full, 0, 1, bgr.data());
      EXPECT_NEAR(bgr[0], rounded(100 + 1.772 * (blue - 128)), 0);
      EXPECT_NEAR(bgr[1], rounded(100 - 0.344136286 * (blue - 128) - 0.714136286 * (red - 128)), 1);
      EXPECT_NEAR(bgr[2], rounded(100 + 1.402 * (red - 128)), 0);
    }
  }
}

}  // namespace
}  // namespace vantorium::image::jpeg
