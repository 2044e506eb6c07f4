#include "image/PangoTextRaster.h"
#include "image/Watermark.h"
#include "image/literal/WatermarkLiteral.h"
#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/FailureOf.h"
#include "tests/image/PictureFixtures.h"

#include <thread>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using fakes::BoxTextRaster;
using fakes::CopyOf;
using fakes::Difference;
using fakes::FailureOf;
using fakes::PixelAt;
using fakes::Plain;
using fakes::Random;
using fakes::RGB;

constexpr RGB kBlack = {0, 0, 0};

LogFont FontOf(const std::string& face, std::int32_t height) {
  return {.lfHeight = height, .lfWeight = 700, .lfFaceName = face};
}

/// The number of pixels that differ from a color.
int PixelsUnlike(const cDIBSection& dib, RGB color) {
  int count = 0;
  for (std::int32_t y = 0; y < dib.height(); ++y) {
    for (std::int32_t x = 0; x < dib.width(); ++x) count += PixelAt(dib, x, y) == color ? 0 : 1;
  }
  return count;
}

struct Drawn {
  cDIBSection picture;
  LogFont font;
};

Drawn DrawBox(const cDIBSection& on, std::int16_t placement, std::uint32_t color, std::uint8_t alpha) {
  const BoxTextRaster raster(4, 2);
  Drawn drawn{CopyOf(on), {}};
  DrawWatermarkText(drawn.picture, drawn.font, "text", placement, color, alpha, raster);
  return drawn;
}

TEST(Watermark, ATextAtTheTopLeftIsInTheTopRows) {
  const cDIBSection picture = DrawBox(Plain(20, 10, kBlack), 0, 0xFFFFFF, 100).picture;
  EXPECT_EQ(PixelAt(picture, 0, 9), (RGB{255, 255, 255}));
  EXPECT_EQ(PixelAt(picture, 3, 8), (RGB{255, 255, 255}));
  EXPECT_EQ(PixelsUnlike(picture, kBlack), 8);
}

TEST(Watermark, AWhiteTextOnBlackAt65PercentIs166) {
  const cDIBSection picture = DrawBox(Plain(20, 10, kBlack), 8, 0xFFFFFF, 65).picture;
  EXPECT_EQ(PixelAt(picture, 19, 0), (RGB{166, 166, 166}));
  EXPECT_EQ(PixelsUnlike(picture, kBlack), 8);
}

TEST(Watermark, OnePercentLeavesThePictureAlmostUnchanged) {
  EXPECT_EQ(PixelAt(DrawBox(Plain(20, 10, {100, 100, 100}), 0, 0xFFFFFF, 1).picture, 0, 9), (RGB{102, 102, 102}));
}

TEST(Watermark, AtAHundredPercentAndMoreTheTextIsOpaque) {
  for (const std::uint8_t alpha : {std::uint8_t{100}, std::uint8_t{255}}) {
    EXPECT_EQ(PixelAt(DrawBox(Plain(20, 10, {9, 9, 9}), 0, 0x0380FF, alpha).picture, 0, 9), (RGB{255, 128, 3}));
  }
}

TEST(Watermark, ZeroPercentChangesNothing) {
  const cDIBSection before = Random(20, 10, 1);
  EXPECT_EQ(Difference(DrawBox(before, 4, 0xFFFFFF, 0).picture, before), "");
}

TEST(Watermark, ABlackTextDarkensOnlyUnderIt) {
  const RGB gray = {100, 100, 100};
  const cDIBSection picture = DrawBox(Plain(20, 10, gray), 0, 0x000000, 50).picture;
  EXPECT_EQ(PixelAt(picture, 0, 9), (RGB{50, 50, 50}));
  EXPECT_EQ(PixelsUnlike(picture, gray), 8);
}

TEST(Watermark, TheFontKeepsTheAngleOfTheText) {
  const LogFont font = DrawBox(Plain(20, 20, kBlack), 9, 0xFFFFFF, 65).font;
  EXPECT_EQ(font.lfQuality, 3);
  EXPECT_EQ(font.lfEscapement, -450);
  EXPECT_EQ(font.lfOrientation, -450);
}

TEST(Watermark, APictureWithoutPixelsStaysEmpty) {
  cDIBSection picture;
  LogFont font;
  DrawWatermarkText(picture, font, "text", 10, 0, 65, BoxTextRaster(4, 2));
  EXPECT_EQ(picture.DIBSectionBitsPtr(), nullptr);
}

TEST(Watermark, AFailureLeavesThePictureUntouched) {
  const cDIBSection before = Random(20, 10, 1);
  cDIBSection picture = CopyOf(before);
  LogFont font;
  const BoxTextRaster raster(40000, 2);
  EXPECT_EQ(FailureOf([&] { DrawWatermarkText(picture, font, "text", 4, 0, 65, raster); }), env::FailureKind::Overflow);
  EXPECT_EQ(Difference(picture, before), "");
}

class WatermarkOfText : public ::testing::Test {
 protected:
  /// Draws with both implementations, and compares pictures and fonts.
  void Compare(const cDIBSection& on, const std::string& text, std::int16_t placement, std::uint32_t color,
               std::uint8_t alpha) {
    LogFont font = FontOf("Arial", -20);
    LogFont literalFont = font;
    cDIBSection got = CopyOf(on);
    cDIBSection wanted = CopyOf(on);
    DrawWatermarkText(got, font, text, placement, color, alpha, raster);
    image::literal::DrawWatermarkTextLiteral(wanted, literalFont, text, placement, color, alpha, raster);
    const std::string where = "placement " + std::to_string(placement) + ", alpha " + std::to_string(alpha) + ", " +
                              std::to_string(on.width()) + " x " + std::to_string(on.height());
    EXPECT_EQ(Difference(got, wanted), "") << where;
    EXPECT_EQ(font.lfEscapement, literalFont.lfEscapement) << where;
    EXPECT_TRUE(fakes::PaddingUntouched(got)) << where;
  }

  PangoTextRaster raster;
};

TEST_F(WatermarkOfText, EqualsTheLiteralVersion) {
  unsigned seed = 0;
  for (const auto& [width, height] : {std::pair{101, 67}, std::pair{64, 128}, std::pair{30, 30}, std::pair{3, 5}}) {
    for (std::int16_t placement = -1; placement <= 11; ++placement) {
      const cDIBSection picture = Random(width, height, ++seed);
      for (const int alpha : {0, 1, 50, 65, 99, 100, 255}) {
        for (const std::uint32_t color : {0xFFFFFFU, 0x000000U, 0x3C7F10U, 0x7F8081U}) {
          Compare(picture, "SAMPLE\r\ntwo", placement, color, static_cast<std::uint8_t>(alpha));
        }
      }
    }
  }
}

TEST_F(WatermarkOfText, AnEmptyTextChangesNothing) {
  for (std::int16_t placement = 0; placement <= 10; ++placement) {
    for (const int alpha : {65, 100}) {
      const cDIBSection before = Random(50, 40, 1);
      cDIBSection picture = CopyOf(before);
      LogFont font = FontOf("Arial", -20);
      DrawWatermarkText(picture, font, "", placement, 0xFFFFFF, static_cast<std::uint8_t>(alpha), raster);
      EXPECT_EQ(Difference(picture, before), "") << "placement " << placement << ", alpha " << alpha;
    }
  }
}

TEST_F(WatermarkOfText, ATextWiderThanThePictureIsClippedAtBothSides) {
  cDIBSection picture = Plain(40, 20, kBlack);
  LogFont font = FontOf("Arial", -20);
  DrawWatermarkText(picture, font, "HHHHHHHH", 1, 0xFFFFFF, 100, raster);
  int left = 0;
  int right = 0;
  for (std::int32_t y = 0; y < 20; ++y) {
    left += PixelAt(picture, 0, y) == kBlack && PixelAt(picture, 1, y) == kBlack ? 0 : 1;
    right += PixelAt(picture, 39, y) == kBlack && PixelAt(picture, 38, y) == kBlack ? 0 : 1;
  }
  EXPECT_GT(left, 0);
  EXPECT_GT(right, 0);
}

class WatermarkPainting : public ::testing::Test {
 protected:
  static WatermarkSettings Settings(std::int16_t placement) {
    return {.checkUseWatermark = 1, .textWatermark = "THUMB", .comboTextPlacement = placement, .FontSize = 14};
  }
};

TEST_F(WatermarkPainting, EqualsTheTextDrawnFromSettings) {
  const PangoTextRaster raster;
  for (std::int16_t placement = 0; placement <= 10; ++placement) {
    WatermarkSettings settings = Settings(placement);
    settings.Color = 0x20C0FF;
    const WatermarkPainter painter(settings, 96, raster);
    cDIBSection got = Random(120, 90, 7);
    cDIBSection wanted = CopyOf(got);
    LogFont font = FontOf("Arial", -19);
    painter.Draw(got);
    DrawWatermarkText(wanted, font, "THUMB", placement, 0x20C0FF, 65, raster);
    EXPECT_EQ(Difference(got, wanted), "") << "placement " << placement;
  }
}

TEST_F(WatermarkPainting, RowByRowGivesTheSamePicture) {
  const PangoTextRaster raster;
  const WatermarkPainter painter(Settings(10), 96, raster);
  cDIBSection rows = Random(120, 90, 7);
  cDIBSection whole = CopyOf(rows);
  painter.Draw(whole);
  const auto mask = painter.MaskFor(120, 90);
  for (std::int32_t y = 0; y < 90; ++y) painter.Ink().ApplyToRow(*mask, y, rows.Row(89 - y));
  EXPECT_EQ(Difference(rows, whole), "");
}

TEST_F(WatermarkPainting, PicturesOfOneSizeShareTheirMask) {
  const BoxTextRaster raster(4, 2);
  const WatermarkPainter painter(Settings(10), 96, raster);
  const auto mask = painter.MaskFor(20, 10);
  for (int i = 0; i < 5; ++i) EXPECT_EQ(painter.MaskFor(20, 10), mask);
  EXPECT_EQ(raster.drawn, 1);
  EXPECT_NE(painter.MaskFor(10, 20), mask);
  EXPECT_EQ(painter.MaskFor(20, 10), mask);
  EXPECT_EQ(raster.drawn, 2);
}

TEST_F(WatermarkPainting, OnlyTheMasksOfTheLastSizesAreKept) {
  const BoxTextRaster raster(4, 2);
  const WatermarkPainter painter(Settings(10), 96, raster);
  const std::weak_ptr<const TextMask> first = painter.MaskFor(20, 10);
  for (std::int32_t width = 21; width < 100; ++width) std::ignore = painter.MaskFor(width, 10);
  EXPECT_TRUE(first.expired());
  const std::weak_ptr<const TextMask> last = painter.MaskFor(99, 10);
  EXPECT_FALSE(last.expired());
}

TEST_F(WatermarkPainting, APercentageThatDoesNotFitAByteOverflowsWhenItIsDrawn) {
  const BoxTextRaster raster(4, 2);
  for (const std::int16_t alpha : {std::int16_t{-1}, std::int16_t{256}, std::int16_t{32767}}) {
    WatermarkSettings settings = Settings(10);
    settings.sliderAlpha = alpha;
    const WatermarkPainter painter(settings, 96, raster);
    EXPECT_EQ(FailureOf([&] { std::ignore = painter.MaskFor(20, 10); }), env::FailureKind::Overflow) << alpha;
    cDIBSection picture = Plain(20, 10, kBlack);
    EXPECT_EQ(FailureOf([&] { painter.Draw(picture); }), env::FailureKind::Overflow) << alpha;
  }
}

TEST_F(WatermarkPainting, EveryPictureWhoseWatermarkCannotBeDrawnFails) {
  const BoxTextRaster raster(40000, 2);
  const WatermarkPainter painter(Settings(4), 96, raster);
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(FailureOf([&] { std::ignore = painter.MaskFor(20, 10); }), env::FailureKind::Overflow);
  }
}

TEST_F(WatermarkPainting, ManyThreadsDrawTheSamePicture) {
  const PangoTextRaster raster;
  const WatermarkPainter images(Settings(10), 96, raster);
  const WatermarkPainter thumbnails(Settings(4), 96, raster);
  const auto draw = [&](std::int32_t width) {
    cDIBSection picture = Plain(width, 90, kBlack);
    images.Draw(picture);
    thumbnails.Draw(picture);
    return picture;
  };
  const cDIBSection wanted[] = {draw(100), draw(101), draw(102), draw(103), draw(104), draw(105)};
  std::vector<std::string> differences(4);
  {
    std::vector<std::jthread> threads;
    for (std::string& difference : differences) {
      threads.emplace_back([&] {
        for (int i = 0; i < 60; ++i) difference += Difference(draw(100 + i % 6), wanted[i % 6]);
      });
    }
  }
  for (const std::string& difference : differences) EXPECT_EQ(difference, "");
}

}  // namespace
}  // namespace vantorium::image
