#include "image/TransparentCopy.h"
#include "image/literal/TransparentCopyLiteral.h"
#include "tests/image/PictureFixtures.h"

#include <random>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using fakes::CopyOf;
using fakes::Difference;
using fakes::PixelAt;
using fakes::Plain;
using fakes::Random;
using fakes::RGB;

constexpr std::uint32_t kWhite = 0xFFFFFF;
constexpr std::uint32_t kBlack = 0x000000;

void SetPixel(cDIBSection& dib, std::int32_t x, std::int32_t y, RGB color) {
  std::uint8_t* pixel = dib.Row(y) + 3 * x;
  pixel[0] = static_cast<std::uint8_t>(color.b);
  pixel[1] = static_cast<std::uint8_t>(color.g);
  pixel[2] = static_cast<std::uint8_t>(color.r);
}

/// A picture with many pixels that equal `a` or `b`, or differ from `a` in green only.
cDIBSection Mottled(std::int32_t width, std::int32_t height, unsigned seed, RGB a, RGB b) {
  std::mt19937 generator(seed);
  cDIBSection dib = Random(width, height, seed);
  for (std::int32_t y = 0; y < height; ++y) {
    for (std::int32_t x = 0; x < width; ++x) {
      const auto choice = generator() % 5;
      if (choice < 2) SetPixel(dib, x, y, a);
      if (choice == 2) SetPixel(dib, x, y, b);
      if (choice == 3) SetPixel(dib, x, y, {a.r, b.g, a.b});
    }
  }
  return dib;
}

TEST(TransparentCopy, ASourceLargerThanTheTargetIsRefused) {
  for (const auto& [width, height] : {std::pair{5, 3}, std::pair{4, 4}, std::pair{9, 9}}) {
    const cDIBSection source = Plain(width, height, {255, 255, 255});
    const cDIBSection before = Random(4, 3, 1);
    cDIBSection target = CopyOf(before);
    EXPECT_FALSE(TransparentCopy(source, target, kBlack, 100)) << width << " x " << height;
    EXPECT_FALSE(image::literal::TransparentCopyLiteral(source, target, kBlack, 100)) << width << " x " << height;
    EXPECT_EQ(Difference(target, before), "");
  }
}

TEST(TransparentCopy, APictureWithoutPixelsIsRefused) {
  const cDIBSection picture = Plain(4, 3, {1, 2, 3});
  cDIBSection cleared = Plain(4, 3, {1, 2, 3});
  cleared.ClearUp();
  cDIBSection target = CopyOf(picture);
  EXPECT_FALSE(TransparentCopy(cleared, target, kBlack, 65));
  EXPECT_FALSE(TransparentCopy(picture, cleared, kBlack, 65));
  EXPECT_FALSE(TransparentCopy(cDIBSection(), target, kBlack, 65));
  EXPECT_EQ(Difference(target, picture), "");
}

TEST(TransparentCopy, OnlyPixelsThatEqualTheKeyInAllThreeBytesAreSkipped) {
  const RGB key = {10, 20, 30};
  for (const RGB source : {RGB{10, 20, 30}, RGB{11, 20, 30}, RGB{10, 21, 30}, RGB{10, 20, 31}, RGB{30, 20, 10}}) {
    cDIBSection target = Plain(40, 2, {0, 0, 0});
    ASSERT_TRUE(TransparentCopy(Plain(40, 2, source), target, 0x1E140A, 99));
    const bool skipped = PixelAt(target, 39, 1) == RGB{0, 0, 0};
    EXPECT_EQ(skipped, source == key) << source;
  }
}

TEST(TransparentCopy, TheKeysLowestByteIsRed) {
  cDIBSection target = Plain(1, 1, {0, 0, 0});
  ASSERT_TRUE(TransparentCopy(Plain(1, 1, {255, 0, 0}), target, 0x0000FF, 65));
  EXPECT_EQ(PixelAt(target, 0, 0), (RGB{0, 0, 0}));
}

TEST(TransparentCopy, Alpha65OfWhiteOnBlackIs166) {
  cDIBSection target = Plain(33, 1, {0, 0, 0});
  ASSERT_TRUE(TransparentCopy(Plain(33, 1, {255, 255, 255}), target, kBlack, 65));
  EXPECT_EQ(PixelAt(target, 32, 0), (RGB{166, 166, 166}));
}

TEST(TransparentCopy, TiesRoundToTheEvenByte) {
  cDIBSection target = Plain(1, 1, {1, 2, 3});
  ASSERT_TRUE(TransparentCopy(Plain(1, 1, {2, 3, 4}), target, kWhite, 50));
  EXPECT_EQ(PixelAt(target, 0, 0), (RGB{2, 2, 4}));
}

TEST(TransparentCopy, From100OnOnlyTheKeysComplementIsCopied) {
  for (const std::uint8_t alpha : {std::uint8_t{100}, std::uint8_t{101}, std::uint8_t{255}}) {
    cDIBSection source = Plain(3, 1, {1, 2, 3});
    SetPixel(source, 1, 0, {245, 235, 225});  // the complement
    SetPixel(source, 2, 0, {10, 20, 30});     // the key
    cDIBSection target = Plain(3, 1, {7, 8, 9});
    ASSERT_TRUE(TransparentCopy(source, target, 0x1E140A, alpha));
    EXPECT_EQ(PixelAt(target, 0, 0), (RGB{7, 8, 9})) << int{alpha};
    EXPECT_EQ(PixelAt(target, 1, 0), (RGB{245, 235, 225})) << int{alpha};
    EXPECT_EQ(PixelAt(target, 2, 0), (RGB{7, 8, 9})) << int{alpha};
  }
}

TEST(TransparentCopy, ASmallerSourceIsAtTheBottomLeft) {
  cDIBSection target = Plain(3, 3, {0, 0, 0});
  ASSERT_TRUE(TransparentCopy(Plain(2, 1, {255, 255, 255}), target, kBlack, 100));
  for (std::int32_t y = 0; y < 3; ++y) {
    for (std::int32_t x = 0; x < 3; ++x) {
      EXPECT_EQ(PixelAt(target, x, y).g, x < 2 && y == 0 ? 255 : 0) << x << ", " << y;
    }
  }
}

TEST(TransparentCopy, EqualsTheLiteralVersionForEveryPairOfBytes) {
  cDIBSection source = Plain(256, 256, {0, 0, 0});
  cDIBSection before = CopyOf(source);
  for (int y = 0; y < 256; ++y) {
    for (int x = 0; x < 256; ++x) {
      SetPixel(source, x, y, {x, x, x});
      SetPixel(before, x, y, {y, y, y});
    }
  }
  for (int alpha = 0; alpha < 100; ++alpha) {
    cDIBSection got = CopyOf(before);
    cDIBSection wanted = CopyOf(before);
    ASSERT_TRUE(TransparentCopy(source, got, 0x010203, static_cast<std::uint8_t>(alpha)));
    ASSERT_TRUE(image::literal::TransparentCopyLiteral(source, wanted, 0x010203, static_cast<std::uint8_t>(alpha)));
    ASSERT_EQ(Difference(got, wanted), "") << "alpha " << alpha;
  }
}

TEST(TransparentCopy, EqualsTheLiteralVersionAtEverySizeAndKeepsThePadding) {
  unsigned seed = 0;
  for (std::int32_t width = 1; width <= 70; ++width) {
    for (const std::uint8_t alpha : {std::uint8_t{1}, std::uint8_t{50}, std::uint8_t{65}, std::uint8_t{99},
                                     std::uint8_t{100}, std::uint8_t{200}}) {
      const cDIBSection source = Mottled(width, 3, ++seed, {10, 20, 30}, {245, 235, 225});
      cDIBSection got = Random(width + static_cast<std::int32_t>(seed % 3), 4, seed);
      cDIBSection wanted = CopyOf(got);
      ASSERT_TRUE(TransparentCopy(source, got, 0x1E140A, alpha));
      ASSERT_TRUE(image::literal::TransparentCopyLiteral(source, wanted, 0x1E140A, alpha));
      ASSERT_EQ(Difference(got, wanted), "") << "width " << width << ", alpha " << int{alpha};
      ASSERT_TRUE(fakes::PaddingUntouched(got)) << "width " << width;
    }
  }
}

}  // namespace
}  // namespace vantorium::image
