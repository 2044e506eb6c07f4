#include "image/Filters.h"
#include "image/FiltersLiteral.h"
#include "tests/fakes/FailureOf.h"
#include "tests/image/PictureFixtures.h"

namespace vantorium::image {
namespace {

using fakes::PixelAt;
using fakes::RGB;

RGB Lightened(RGB color, std::int32_t amount) {
  cDIBSection dib = fakes::Plain(2, 2, color);
  Lighten(dib, amount);
  return PixelAt(dib, 1, 1);
}

TEST(Lighten, DoublingTheLightnessOfMiddleGreyGivesWhite) {
  EXPECT_EQ(Lightened({128, 128, 128}, 100), (RGB{255, 255, 255}));
}

TEST(Lighten, MinusHundredGivesBlack) {
  cDIBSection dib = fakes::Random(50, 20, 1);
  Lighten(dib, -100);
  EXPECT_EQ(fakes::Difference(dib, fakes::Plain(50, 20, {0, 0, 0})), "");
}

TEST(Lighten, HueIsKept) {
  EXPECT_EQ(Lightened({100, 50, 0}, 50), (RGB{150, 75, 0}));
  EXPECT_EQ(Lightened({100, 50, 0}, -50), (RGB{50, 25, 0}));
}

TEST(Lighten, EveryColorEqualsTheLiteralFilter) {
  cDIBSection fast = fakes::EveryColor();
  cDIBSection literal = fakes::EveryColor();
  Lighten(fast, 25);
  LightenLiteral(literal, 25);
  EXPECT_EQ(fakes::Difference(fast, literal), "");
}

// Covers the arithmetic's edge cases: two equal channels, channels that differ by 1, and channels of 0 or 255. Random
// colors cover the rest.
cDIBSection TellingColors() {
  cDIBSection dib = fakes::Random(256, 280, 11);
  for (std::int32_t y = 0; y < 256; ++y) {
    for (std::int32_t x = 0; x < 256; ++x) {
      const std::int32_t third[] = {x, y, x + 1, y - 1, 0, 255};
      std::uint8_t* pixel = dib.Row(y) + 3 * x;
      const auto place = static_cast<std::size_t>(x + y) % 6;
      const std::int32_t values[] = {x, y, third[place]};
      for (std::size_t i = 0; i < 3; ++i) pixel[(i + place / 2) % 3] = static_cast<std::uint8_t>(values[i]);
    }
  }
  return dib;
}

TEST(Lighten, EdgeCaseColorsAtEveryAmountEqualTheLiteralFilter) {
  const cDIBSection colors = TellingColors();
  for (std::int32_t amount = -100; amount <= 100; ++amount) {
    cDIBSection fast = fakes::CopyOf(colors);
    cDIBSection literal = fakes::CopyOf(colors);
    Lighten(fast, amount);
    LightenLiteral(literal, amount);
    ASSERT_EQ(fakes::Difference(fast, literal), "") << amount;
  }
}

TEST(Lighten, BeyondTheRangeWhiteStaysWhiteAndDarkerThanBlackIsAFailure) {
  EXPECT_EQ(Lightened({200, 200, 200}, 500), (RGB{255, 255, 255}));
  cDIBSection dib = fakes::Plain(2, 2, {200, 200, 200});
  EXPECT_EQ(fakes::FailureOf([&] { Lighten(dib, -200); }), env::FailureKind::Overflow);
}

}  // namespace
}  // namespace vantorium::image
