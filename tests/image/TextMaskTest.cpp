#include "image/TextMask.h"

#include <vector>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

std::vector<std::int32_t> PixelsOf(const TextMask& mask, std::int32_t y) {
  std::vector<std::int32_t> pixels;
  mask.ForEachPixel(y, [&pixels](std::int32_t x) { pixels.push_back(x); });
  return pixels;
}

TEST(TextMask, CoversNothingAtFirst) {
  const TextMask mask(10, 20, 70, 3);
  for (std::int32_t y = 18; y < 25; ++y) EXPECT_EQ(PixelsOf(mask, y), std::vector<std::int32_t>()) << y;
  EXPECT_FALSE(mask.Covers(10, 20));
  EXPECT_FALSE(TextMask().Covers(0, 0));
  EXPECT_EQ(PixelsOf(TextMask(), 0), std::vector<std::int32_t>());
}

TEST(TextMask, PixelsAreVisitedFromLeftToRight) {
  TextMask mask(10, 20, 70, 3);
  const std::vector<std::int32_t> wanted = {10, 11, 41, 73, 74, 79};
  for (std::int32_t x : {79, 10, 74, 11, 73, 41}) mask.Cover(x, 21);
  EXPECT_EQ(PixelsOf(mask, 21), wanted);
  EXPECT_EQ(PixelsOf(mask, 20), std::vector<std::int32_t>());
  for (std::int32_t x : wanted) EXPECT_TRUE(mask.Covers(x, 21)) << x;
  for (std::int32_t x : {-1, 9, 12, 72, 80, 1000}) EXPECT_FALSE(mask.Covers(x, 21)) << x;
}

TEST(TextMask, ARectangleWithASideOfZeroIsEmpty) {
  for (const auto& mask : {TextMask(5, 5, 0, 3), TextMask(5, 5, 3, 0), TextMask(5, 5, -3, -3)}) {
    EXPECT_EQ(mask.width(), 0);
    EXPECT_EQ(mask.height(), 0);
    EXPECT_FALSE(mask.Covers(5, 5));
  }
}

}  // namespace
}  // namespace vantorium::image
