#include "image/Resample.h"
#include "image/literal/ResampleLiteral.h"
#include "tests/image/PictureFixtures.h"

#include <limits>
#include <random>

namespace vantorium::image {
namespace {

using fakes::PixelAt;

// Ignores padding, which is undefined in a new picture.
std::string PixelDifference(const cDIBSection& got, const cDIBSection& wanted) {
  if (got.width() != wanted.width() || got.height() != wanted.height()) return "the sizes differ";
  for (std::int32_t y = 0; y < got.height(); ++y) {
    for (std::int32_t x = 0; x < got.width(); ++x) {
      if (PixelAt(got, x, y) != PixelAt(wanted, x, y))
        return "column " + std::to_string(x) + " row " + std::to_string(y);
    }
  }
  return {};
}

void ExpectLiteral(const cDIBSection& source, std::int32_t width, std::int32_t height) {
  const auto fast = Resample(source, height, width);
  const auto literal = image::literal::ResampleLiteral(source, height, width);
  ASSERT_TRUE(fast && literal) << width << " x " << height;
  EXPECT_EQ(PixelDifference(*fast, *literal), "")
      << source.width() << " x " << source.height() << " to " << width << " x " << height;
}

TEST(Resample, EveryPairOfSmallSizesEqualsTheLiteralRoutine) {
  for (std::int32_t width = 1; width <= 9; ++width) {
    for (std::int32_t height = 1; height <= 9; ++height) {
      const cDIBSection source = fakes::Random(width, height, static_cast<unsigned>(width * 10 + height));
      for (std::int32_t newWidth = 1; newWidth <= 13; ++newWidth) {
        for (std::int32_t newHeight = 1; newHeight <= 13; ++newHeight) ExpectLiteral(source, newWidth, newHeight);
      }
    }
  }
}

TEST(Resample, RandomSizesEqualTheLiteralRoutine) {
  std::mt19937 generator(7);
  const auto side = [&generator] { return static_cast<std::int32_t>(1 + generator() % (1 + generator() % 400)); };
  for (unsigned round = 0; round < 120; ++round) {
    ExpectLiteral(fakes::Random(side(), side(), round), side(), side());
  }
}

TEST(Resample, LargeFactorsEqualTheLiteralRoutine) {
  ExpectLiteral(fakes::Random(3001, 101, 1), 61, 40);
  ExpectLiteral(fakes::Random(3, 2, 2), 2500, 200);
  ExpectLiteral(fakes::Random(2, 3, 3), 17, 3000);
  ExpectLiteral(fakes::Random(1000, 3, 4), 999, 4);
  ExpectLiteral(fakes::Random(5000, 1, 5), 4999, 1);
  ExpectLiteral(fakes::Random(1, 5000, 6), 1, 4999);
}

// With millions of new columns the single-precision scale reaches the last source column.
TEST(Resample, MillionsOfColumnsStayWithinTheSource) {
  ExpectLiteral(fakes::Random(100, 1, 1), 12000001, 1);
  ExpectLiteral(fakes::Random(2, 1, 1), 17000000, 1);
}

TEST(Resample, TheSameSizeIsAnExactCopy) {
  for (const auto& [width, height] : {std::pair{1, 1}, {5, 3}, {200, 131}}) {
    const cDIBSection source = fakes::Random(width, height, 9);
    const auto copy = Resample(source, height, width);
    ASSERT_TRUE(copy);
    EXPECT_EQ(PixelDifference(*copy, source), "");
    EXPECT_NE(copy->DIBSectionBitsPtr(), source.DIBSectionBitsPtr());
  }
}

TEST(Resample, HalfOfAHundredNeverReachesTheLastColumnAndRow) {
  cDIBSection source = fakes::Random(100, 100, 2);
  const auto before = Resample(source, 50, 50);
  for (std::int32_t i = 0; i < 100; ++i) {
    for (int channel = 0; channel < 3; ++channel) source.Row(i)[3 * 99 + channel] ^= 0xFF;
  }
  for (std::int32_t i = 0; i < 300; ++i) source.Row(99)[i] ^= 0xFF;
  const auto after = Resample(source, 50, 50);
  ASSERT_TRUE(before && after);
  EXPECT_EQ(PixelDifference(*before, *after), "");
  // Column 98 is used.
  source.Row(0)[3 * 98] ^= 0xFF;
  EXPECT_NE(PixelDifference(*before, *Resample(source, 50, 50)), "");
}

TEST(Resample, TheBottomRowComesFromTheBottomRowOfTheSource) {
  cDIBSection source = fakes::Plain(10, 10, {9, 9, 9});
  for (std::int32_t i = 0; i < 30; ++i) source.Row(0)[i] = 200;
  const auto result = Resample(source, 4, 4);
  ASSERT_TRUE(result);
  EXPECT_EQ(PixelAt(*result, 3, 0), (fakes::RGB{200, 200, 200}));
  EXPECT_EQ(PixelAt(*result, 3, 1), (fakes::RGB{9, 9, 9}));
}

TEST(Resample, ASingleColumnOrRowIsRepeated) {
  const cDIBSection wide = fakes::Random(1, 30, 3);
  const auto wider = Resample(wide, 30, 7);
  const cDIBSection flat = fakes::Random(30, 1, 3);
  const auto higher = Resample(flat, 7, 30);
  ASSERT_TRUE(wider && higher);
  for (std::int32_t i = 0; i < 7; ++i) {
    EXPECT_EQ(PixelAt(*wider, i, 0), PixelAt(wide, 0, 0)) << i;
    EXPECT_EQ(PixelAt(*higher, 0, i), PixelAt(flat, 0, 0)) << i;
  }
}

// Column 1 of 2 new ones is at half a pixel: the mean of 0 and 1 is a tie and is rounded to 0, that of 1 and 2 to 2.
TEST(Resample, TiesRoundToTheEvenByte) {
  for (int low = 0; low < 255; ++low) {
    cDIBSection source = fakes::Plain(2, 1, {low, low, low});
    for (int channel = 3; channel < 6; ++channel) source.Row(0)[channel] = static_cast<std::uint8_t>(low + 1);
    const auto result = Resample(source, 2, 2);
    ASSERT_TRUE(result);
    EXPECT_EQ(PixelAt(*result, 1, 0).r, low % 2 == 0 ? low : low + 1) << low;
  }
}

TEST(Resample, APictureThatCannotBeAllocatedIsNull) {
  const cDIBSection source = fakes::Plain(4, 4, {});
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::pair<std::int32_t, std::int32_t> kSizes[] = {{0, 4}, {4, 0}, {-4, 4}, {4, -4}, {kMost, kMost}};
  for (const auto& [height, width] : kSizes) {
    EXPECT_EQ(Resample(source, height, width), nullptr) << width << " x " << height;
    EXPECT_EQ(image::literal::ResampleLiteral(source, height, width), nullptr) << width << " x " << height;
  }
  EXPECT_EQ(Resample(cDIBSection(), 4, 4), nullptr);
}

}  // namespace
}  // namespace vantorium::image
