#include "image/jpeg/Transform.h"

#include <algorithm>
#include <numeric>
#include <random>

#include <gtest/gtest.h>

namespace vantorium::jpeg {
namespace {

using Samples = std::array<std::uint8_t, 8>;

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

TEST(Transform, TheProcessorsRoutineEqualsThePlainOneUpToTheLargestSum) {
  std::mt19937 generator(1);
  for (const int sum : {8, 100, 1000, kTameSum, 4000, kMostSum}) {
    for (const int count : {1, 2, 5, 20, 64}) {
      for (int i = 0; i < 200; ++i) {
        const Block block = RandomBlock(generator, count, sum);
        for (int row = 0; row < 8; ++row) {
          Samples samples = {};
          Samples plain = {};
          TransformRow(block, row, samples.data());
          TransformRowPlainly(block, row, plain.data());
          ASSERT_EQ(samples, plain) << count << " coefficients of " << sum << ", row " << row;
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
      for (int row = 0; row < 8; ++row) ASSERT_TRUE(IsTame(block, row)) << count << " coefficients, row " << row;
    }
  }
}

TEST(Transform, SamplesFarOffTheirRangeAreNotTame) {
  for (const int sign : {1, -1}) {
    Block block = {};
    block.values[kPlaceInBlock[0]] = static_cast<std::int16_t>(sign * 4300);
    EXPECT_FALSE(IsTame(block, 0));
    block.values[kPlaceInBlock[0]] = static_cast<std::int16_t>(sign * 4000);
    EXPECT_TRUE(IsTame(block, 0));
  }
}

TEST(Transform, TheFirstCoefficientIsEightTimesTheMeanOfTheSamples) {
  Block block = {};
  block.values[kPlaceInBlock[0]] = 8 * 50;
  for (int row = 0; row < 8; ++row) {
    Samples samples = {};
    TransformRow(block, row, samples.data());
    EXPECT_EQ(samples, (Samples{178, 178, 178, 178, 178, 178, 178, 178}));
  }
}

TEST(Transform, EveryPlaceInABlockIsThatOfOneCoefficient) {
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
}  // namespace vantorium::jpeg
