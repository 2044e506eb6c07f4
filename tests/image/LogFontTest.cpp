#include "image/LogFont.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

TEST(LogFont, TheHeightIsTheEmInPixelsOfTheScreen) {
  struct Case {
    std::int16_t points;
    std::int32_t pixelsPerInch;
    std::int32_t height;
  };
  for (const Case& c : {Case{36, 96, -48}, Case{14, 96, -19}, Case{36, 120, -60}, Case{36, 72, -36}, Case{0, 96, 0},
                        Case{-36, 96, 48}, Case{32767, 96, -43689}, Case{3, 12, 0}, Case{3, 36, -2}, Case{5, 36, -2}}) {
    const WatermarkSettings settings{.FontSize = c.points};
    EXPECT_EQ(MakeWatermarkFont(settings, c.pixelsPerInch).lfHeight, c.height)
        << c.points << " points, " << c.pixelsPerInch << " pixels per inch";
  }
}

TEST(LogFont, FlagsAreZeroOrOne) {
  const LogFont plain = MakeWatermarkFont({}, 96);
  EXPECT_EQ(plain.lfItalic + plain.lfUnderline + plain.lfStrikeOut, 0);
  const WatermarkSettings settings{.FontItalic = true, .FontUnderline = true, .FontStrikeout = true};
  const LogFont font = MakeWatermarkFont(settings, 96);
  EXPECT_EQ(font.lfItalic, 1);
  EXPECT_EQ(font.lfUnderline, 1);
  EXPECT_EQ(font.lfStrikeOut, 1);
}

TEST(LogFont, TheWeightLosesItsSign) {
  EXPECT_EQ(MakeWatermarkFont({}, 96).lfWeight, 700);
  EXPECT_EQ(MakeWatermarkFont({.FontWeight = -400}, 96).lfWeight, 400);
  EXPECT_EQ(MakeWatermarkFont({.FontWeight = -32768}, 96).lfWeight, 32768);
}

TEST(LogFont, FieldsWithoutASettingAreZero) {
  const LogFont font = MakeWatermarkFont({}, 96);
  EXPECT_EQ(font.lfEscapement, 0);
  EXPECT_EQ(font.lfOrientation, 0);
  EXPECT_EQ(font.lfQuality, 0);
}

TEST(LogFont, TheFaceNameIsTruncatedTo31Characters) {
  EXPECT_EQ(MakeWatermarkFont({}, 96).lfFaceName, "Arial");
  EXPECT_EQ(MakeWatermarkFont({.FontName = ""}, 96).lfFaceName, "");
  EXPECT_EQ(MakeWatermarkFont({.FontName = std::string(40, 'x')}, 96).lfFaceName, std::string(31, 'x'));
  const std::string thirty(30, 'x');
  EXPECT_EQ(MakeWatermarkFont({.FontName = thirty + "\u00E9\u00E9"}, 96).lfFaceName, thirty + "\u00E9");
}

}  // namespace
}  // namespace vantorium::image
