#include "image/jpeg/Transform.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace vantorium::image::jpeg {
namespace {

using Samples = std::array<std::uint8_t, 80>;

constexpr std::size_t kStride = 10;
constexpr unsigned kAllRows = 0xFF;

// A block of `count` coefficients whose absolute values add up to `sum` or a little less.
Block RandomBlock(std::mt19937& generator, int count, int sum) {
  Block block = {};
  for (int i = 0; i < count; ++i) {
    const int value = sum / count * (generator() % 2 == 0 ? 1 : -1);
    auto& coefficient = block.values[generator() % 64];
    if (coefficient == 0) coefficient = static_cast<std::int16_t>(value);
  }
  return block;
}

Samples ClampedExactRows(const Block& block, unsigned rows) {
  Samples samples = {};
  for (std::size_t row = 0; row < 8; ++row) {
    if ((rows >> row & 1) == 0) continue;
    std::ranges::transform(ExactRow(block, row), samples.data() + row * kStride,
                           [](int sample) { return static_cast<std::uint8_t>(std::clamp(sample + 128, 0, 255)); });
  }
  return samples;
}

TEST(Transform, RowsEqualTheExactOnesUpToTheLargestSum) {
  std::mt19937 generator(1);
  for (const int sum : {8, 100, 1000, kTameSum, 4000, kMostSum}) {
    for (const int count : {1, 2, 5, 20, 64}) {
      for (int i = 0; i < 200; ++i) {
        const Block block = RandomBlock(generator, count, sum);
        for (const unsigned rows : {kAllRows, static_cast<unsigned>(generator() & kAllRows)}) {
          Samples samples = {};
          TransformRows(block, rows, samples.data(), kStride);
          ASSERT_EQ(samples, ClampedExactRows(block, rows)) << count << " coefficients of " << sum << ", rows " << rows;
        }
      }
    }
  }
}

TEST(Transform, BlocksUpToTheTameSumAreTame) {
  std::mt19937 generator(2);
  for (const int count : {1, 2, 5, 20, 64}) {
    for (int i = 0; i < 500; ++i) {
      const Block block = RandomBlock(generator, count, kTameSum);
      ASSERT_TRUE(IsTame(block, kAllRows)) << count << " coefficients";
    }
  }
}

TEST(Transform, SamplesFarOutsideTheirRangeAreNotTame) {
  for (const int sign : {1, -1}) {
    Block block = {};
    block.values[kPlaceInBlock[0]] = static_cast<std::int16_t>(sign * 4300);
    EXPECT_FALSE(IsTame(block, 1));
    block.values[kPlaceInBlock[0]] = static_cast<std::int16_t>(sign * 4000);
    EXPECT_TRUE(IsTame(block, 1));
  }
}

TEST(Transform, OnlyWantedRowsAreWritten) {
  std::mt19937 generator(3);
  const Block block = RandomBlock(generator, 20, 1000);
  Samples whole = {};
  TransformRows(block, kAllRows, whole.data(), kStride);
  for (unsigned rows = 0; rows <= kAllRows; ++rows) {
    Samples samples;
    samples.fill(0xA5);
    TransformRows(block, rows, samples.data(), kStride);
    for (std::size_t i = 0; i < samples.size(); ++i) {
      const bool isWritten = i % kStride < 8 && (rows >> i / kStride & 1) != 0;
      ASSERT_EQ(samples[i], isWritten ? whole[i] : 0xA5) << "rows " << rows << ", byte " << i;
    }
  }
}

TEST(Transform, TheFirstCoefficientIsEightTimesTheMeanOfTheSamples) {
  Block block = {};
  block.values[kPlaceInBlock[0]] = 8 * 50;
  Samples samples = {};
  TransformRows(block, kAllRows, samples.data(), kStride);
  for (std::size_t i = 0; i < samples.size(); ++i) EXPECT_EQ(samples[i], i % kStride < 8 ? 178 : 0) << i;
}

TEST(Transform, EachCoefficientHasItsPlaceInTheBlock) {
  for (auto places : {kPlaceInBlock, kRowMajorPlace}) {
    std::sort(places.begin(), places.end());
    std::array<std::uint8_t, 64> all = {};
    std::iota(all.begin(), all.end(), std::uint8_t{0});
    EXPECT_EQ(places, all);
  }
}

TEST(Transform, AClearedBlockHasNoCoefficients) {
  Block block;
  block.values.fill(7);
  Clear(block);
  EXPECT_EQ(block.values, Block{}.values);
}

}  // namespace
}  // namespace vantorium::image::jpeg
