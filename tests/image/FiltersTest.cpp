#include "image/Filters.h"
#include "image/FiltersLiteral.h"
#include "tests/fakes/FailureOf.h"
#include "tests/image/PictureFixtures.h"

namespace vantorium::image {
namespace {

using fakes::PixelAt;
using fakes::RGB;

constexpr std::pair<std::int32_t, std::int32_t> kSizes[] = {{1, 1},  {1, 9},  {9, 1},   {2, 2},   {5, 7},  {31, 3},
                                                            {32, 2}, {33, 5}, {127, 3}, {257, 4}, {511, 2}};

template <typename Filter>
RGB Filtered(RGB color, Filter filter) {
  cDIBSection dib = fakes::Plain(3, 2, color);
  filter(dib);
  return PixelAt(dib, 2, 1);
}

RGB Grey(RGB color) {
  return Filtered(color, [](cDIBSection& dib) { GrayScale(dib); });
}

TEST(GrayScale, PureColorsAreWeighted) {
  EXPECT_EQ(Grey({255, 255, 255}), (RGB{255, 255, 255}));
  EXPECT_EQ(Grey({255, 0, 0}), (RGB{57, 57, 57}));
  EXPECT_EQ(Grey({0, 255, 0}), (RGB{180, 180, 180}));
  EXPECT_EQ(Grey({0, 0, 255}), (RGB{18, 18, 18}));
}

TEST(GrayScale, TiesRoundToTheEvenByte) {
  int ties = 0;
  for (int r = 0; r < 256; ++r) {
    for (int g = 0; g < 256; ++g) {
      const int b = (g * 7 + r * 3) & 255;
      const int sum = 707 * g + 222 * r + 71 * b;
      if (sum % 1000 != 500) continue;
      ++ties;
      const int even = sum / 1000 + (sum / 1000) % 2;
      EXPECT_EQ(Grey({r, g, b}), (RGB{even, even, even})) << r << " " << g << " " << b;
    }
  }
  EXPECT_GT(ties, 20);
}

TEST(GrayScale, ASecondPassChangesNothing) {
  cDIBSection once = fakes::Random(101, 50, 1);
  GrayScale(once);
  cDIBSection twice = fakes::CopyOf(once);
  GrayScale(twice);
  EXPECT_EQ(fakes::Difference(twice, once), "");
}

TEST(GrayScale, EveryColorEqualsTheLiteralFilter) {
  cDIBSection fast = fakes::EveryColor();
  cDIBSection literal = fakes::EveryColor();
  GrayScale(fast);
  GrayScaleLiteral(literal);
  EXPECT_EQ(fakes::Difference(fast, literal), "");
}

TEST(Fade, Amount255ChangesNothing) {
  cDIBSection dib = fakes::Random(77, 20, 2);
  const cDIBSection before = fakes::CopyOf(dib);
  Fade(dib, 255);
  EXPECT_EQ(fakes::Difference(dib, before), "");
}

TEST(Fade, QuotientsAreTruncated) {
  EXPECT_EQ(Filtered({255, 1, 128}, [](cDIBSection& dib) { Fade(dib, 128); }), (RGB{128, 0, 64}));
  EXPECT_EQ(Filtered({255, 1, 128}, [](cDIBSection& dib) { Fade(dib, 0); }), (RGB{0, 0, 0}));
}

TEST(Fade, EveryByteAtEveryAmountEqualsTheLiteralFilter) {
  cDIBSection bytes = fakes::Plain(86, 1, {});
  for (int i = 0; i < 256; ++i) bytes.Row(0)[i] = static_cast<std::uint8_t>(i);
  for (int amount = 0; amount <= 255; ++amount) {
    cDIBSection fast = fakes::CopyOf(bytes);
    cDIBSection literal = fakes::CopyOf(bytes);
    Fade(fast, amount);
    FadeLiteral(literal, amount);
    ASSERT_EQ(fakes::Difference(fast, literal), "") << amount;
  }
}

TEST(Fade, AByteThatDoesNotFitIsAFailure) {
  for (const std::int32_t amount : {256, 100000, 2147483647, -255, -2147483647}) {
    cDIBSection white = fakes::Plain(2, 2, {255, 255, 255});
    EXPECT_EQ(fakes::FailureOf([&] { Fade(white, amount); }), env::FailureKind::Overflow) << amount;
    cDIBSection black = fakes::Plain(2, 2, {});
    EXPECT_EQ(fakes::FailureOf([&] { Fade(black, amount); }), std::nullopt) << amount;
  }
}

TEST(Filters, AllSizesEqualTheLiteralFiltersAndThePaddingStays) {
  struct Pair {
    const char* name;
    std::function<void(cDIBSection&)> fast;
    std::function<void(cDIBSection&)> literal;
  };
  NoiseStream one(1, 1);
  NoiseStream other(1, 1);
  const Pair pairs[] = {
      {"GrayScale", GrayScale, GrayScaleLiteral},
      {"Fade", [](auto& dib) { Fade(dib, 77); }, [](auto& dib) { FadeLiteral(dib, 77); }},
      {"Lighten", [](auto& dib) { Lighten(dib, -33); }, [](auto& dib) { LightenLiteral(dib, -33); }},
      {"AddNoise", [&](auto& dib) { AddNoise(dib, 80, false, one); },
       [&](auto& dib) { AddNoiseLiteral(dib, 80, false, other); }},
      {"AddNoise random", [&](auto& dib) { AddNoise(dib, 40, true, one); },
       [&](auto& dib) { AddNoiseLiteral(dib, 40, true, other); }},
  };
  for (const auto& [name, fast, literal] : pairs) {
    for (const auto& [width, height] : kSizes) {
      cDIBSection got = fakes::Random(width, height, static_cast<unsigned>(width));
      cDIBSection wanted = fakes::CopyOf(got);
      fast(got);
      literal(wanted);
      EXPECT_EQ(fakes::Difference(got, wanted), "") << name << " " << width << " x " << height;
      EXPECT_TRUE(fakes::PaddingUntouched(got)) << name << " " << width << " x " << height;
    }
  }
}

TEST(RandomiseBits, GreyPicturesHaveThreeEqualBytes) {
  cDIBSection dib = fakes::Plain(41, 30, {});
  NoiseStream stream(5, 0);
  RandomiseBits(dib, true, stream);
  bool seen[256] = {};
  for (std::int32_t y = 0; y < 30; ++y) {
    for (std::int32_t x = 0; x < 41; ++x) {
      const RGB pixel = PixelAt(dib, x, y);
      EXPECT_EQ(pixel, (RGB{pixel.r, pixel.r, pixel.r}));
      seen[pixel.r] = true;
    }
  }
  EXPECT_GT(std::count(std::begin(seen), std::end(seen), true), 200);
  EXPECT_TRUE(fakes::PaddingUntouched(dib));
}

TEST(RandomiseBits, ColorPicturesHaveNoBlue) {
  cDIBSection dib = fakes::Plain(41, 30, {9, 9, 9});
  NoiseStream stream(5, 0);
  RandomiseBits(dib, false, stream);
  int different = 0;
  for (std::int32_t x = 0; x < 41; ++x) {
    EXPECT_EQ(PixelAt(dib, x, 3).b, 0);
    different += PixelAt(dib, x, 3).r != PixelAt(dib, x, 3).g ? 1 : 0;
  }
  EXPECT_GT(different, 30);
  EXPECT_TRUE(fakes::PaddingUntouched(dib));
}

}  // namespace
}  // namespace vantorium::image
