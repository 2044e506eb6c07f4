#include "image/ResamplePlan.h"

#include <cmath>

namespace vantorium::image {
namespace {

TEST(ResamplePlan, ARowWithoutWeightIsNotWanted) {
  const ResamplePlan plan({10, 11}, {5, 5});
  const auto first = plan.RowsOf(0);
  EXPECT_EQ(first.lower, 0);
  EXPECT_EQ(first.upper, 0);
  const auto second = plan.RowsOf(1);
  EXPECT_EQ(second.lower, 2);
  EXPECT_EQ(second.upper, 2);
}

TEST(ResamplePlan, WithEqualSizesEachRowIsWantedOnce) {
  const ResamplePlan plan({10, 11}, {10, 11});
  for (std::int32_t y = 0; y < 11; ++y) {
    EXPECT_EQ(plan.RowsOf(y).lower, y);
    EXPECT_EQ(plan.RowsOf(y).upper, y);
  }
}

TEST(ResamplePlan, RowsAreInsideTheSourceAndAscend) {
  for (const std::int32_t height : {1, 2, 3, 7, 100, 4000}) {
    for (const std::int32_t newHeight : {1, 2, 3, 60, 300, 7000}) {
      const ResamplePlan plan({5, height}, {4, newHeight});
      std::int32_t least = 0;
      for (std::int32_t y = 0; y < newHeight; ++y) {
        const auto rows = plan.RowsOf(y);
        ASSERT_LE(least, rows.lower) << height << " to " << newHeight << ", row " << y;
        ASSERT_TRUE(rows.upper == rows.lower || rows.upper == rows.lower + 1);
        ASSERT_LT(rows.upper, height) << height << " to " << newHeight << ", row " << y;
        least = rows.lower;
      }
    }
  }
}

TEST(ResamplePlan, ExactlyTheWantedRowsAreMarked) {
  for (const std::int32_t newHeight : {1, 3, 40, 77, 200}) {
    const ResamplePlan plan({5, 77}, {newHeight == 77 ? 5 : 4, newHeight});
    std::vector<std::uint8_t> asked(77);
    for (std::int32_t y = 0; y < newHeight; ++y) {
      for (const std::int32_t row : {plan.RowsOf(y).lower, plan.RowsOf(y).upper}) {
        asked[static_cast<std::size_t>(76 - row)] = 1;
      }
    }
    WantedPixels pixels(5, 77);
    plan.MarkSource(pixels);
    EXPECT_EQ(pixels.rows, asked) << newHeight;
  }
}

TEST(ResamplePlan, UnmarkedColumnsDoNotChangeTheResult) {
  for (const std::int32_t newWidth : {1, 2, 9, 30, 49, 50, 51, 120}) {
    const ResamplePlan plan({50, 50}, {newWidth, newWidth == 50 ? 50 : 20});
    WantedPixels pixels(50, 50);
    plan.MarkSource(pixels);
    std::vector<std::uint8_t> source(150);
    std::vector<std::uint8_t> changed(150);
    for (std::size_t i = 0; i < source.size(); ++i) {
      source[i] = static_cast<std::uint8_t>(i);
      changed[i] = static_cast<std::uint8_t>(pixels.columns[i / 3] != 0 ? i : 255 - i);
    }
    std::vector<std::uint8_t> row(static_cast<std::size_t>(newWidth) * 3);
    std::vector<std::uint8_t> other(row.size());
    plan.CombineRows(plan.RowsOf(3), source.data(), source.data(), row.data());
    plan.CombineRows(plan.RowsOf(3), changed.data(), changed.data(), other.data());
    EXPECT_EQ(row, other) << newWidth;
  }
}

TEST(ResamplePlan, NothingIsWrittenBeyondTheNewRow) {
  for (std::int32_t width = 1; width < 300; ++width) {
    const ResamplePlan plan({50, 50}, {width, 20});
    const std::vector<std::uint8_t> source(150, 7);
    std::vector<std::uint8_t> row(static_cast<std::size_t>(width) * 3 + 8, 0xA5);
    plan.CombineRows(plan.RowsOf(3), source.data(), source.data(), row.data());
    EXPECT_EQ(row[static_cast<std::size_t>(width) * 3 - 1], 7) << width;
    for (std::size_t i = row.size() - 8; i < row.size(); ++i) EXPECT_EQ(row[i], 0xA5) << width;
  }
}

std::uint8_t Mean(float weight, int first, int second) {
  const double share = weight;
  return static_cast<std::uint8_t>(std::nearbyint((1 - share) * first + share * second));
}

// Covers many kinds of weights: short ones with ties, long ones, and ones far below the lowest bit of a product.
TEST(ResamplePlan, EveryPairOfBytesBetweenRowsIsRoundedToEven) {
  for (const std::int32_t newHeight : {2, 3, 7, 64, 97, 1000, 65500}) {
    const ResamplePlan plan({1, 2}, {1, newHeight});
    for (const std::int32_t y : {1, newHeight / 2, newHeight - 1}) {
      const auto rows = plan.RowsOf(y);
      for (int pair = 0; pair < 65536; pair += 3) {
        std::uint8_t lower[3];
        std::uint8_t upper[3];
        std::uint8_t row[3];
        for (int i = 0; i < 3; ++i) {
          lower[i] = static_cast<std::uint8_t>((pair + i) >> 8);
          upper[i] = static_cast<std::uint8_t>(pair + i);
        }
        plan.CombineRows(rows, lower, upper, row);
        for (int i = 0; i < 3; ++i) {
          ASSERT_EQ(row[i], Mean(rows.weight, lower[i], upper[i]))
              << int{lower[i]} << " and " << int{upper[i]} << " at " << rows.weight;
        }
      }
    }
  }
}

TEST(ResamplePlan, EveryPairOfBytesBetweenColumnsIsRoundedToEven) {
  constexpr std::int32_t kColumns = 100;
  const ResamplePlan plan({2, 1}, {kColumns, 1});
  const auto scale = static_cast<float>(1.0 / kColumns);
  for (int pair = 0; pair < 65536; ++pair) {
    const auto left = static_cast<std::uint8_t>(pair >> 8);
    const auto right = static_cast<std::uint8_t>(pair);
    const std::uint8_t source[6] = {left, left, left, right, right, right};
    std::uint8_t row[3 * kColumns];
    plan.CombineRows(plan.RowsOf(0), source, source, row);
    for (int x = 0; x < kColumns; ++x) {
      const auto weight = static_cast<float>(static_cast<double>(scale) * x);
      ASSERT_EQ(row[3 * x], Mean(weight, left, right)) << int{left} << " and " << int{right} << " at " << weight;
    }
  }
}

}  // namespace
}  // namespace vantorium::image
