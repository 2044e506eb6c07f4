#include "image/PangoTextRaster.h"

#include <cmath>
#include <ostream>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

namespace vantorium::image {

std::ostream& operator<<(std::ostream& stream, const TextExtent& extent) {
  return stream << extent.width << " x " << extent.height;
}

namespace {

constexpr std::int32_t kWidth = 640;
constexpr std::int32_t kHeight = 480;

LogFont FontOf(std::int32_t height, std::int32_t weight = 400, const std::string& face = "Arial") {
  return {.lfHeight = height, .lfWeight = weight, .lfFaceName = face};
}

std::int32_t Right(const TextMask& mask) {
  return mask.left() + mask.width();
}
std::int32_t Bottom(const TextMask& mask) {
  return mask.top() + mask.height();
}

using Pixels = std::set<std::pair<std::int32_t, std::int32_t>>;

Pixels PixelsOf(const TextMask& mask) {
  Pixels pixels;
  for (std::int32_t y = mask.top(); y < Bottom(mask); ++y) {
    mask.ForEachPixel(y, [&pixels, y](std::int32_t x) { pixels.emplace(x, y); });
  }
  return pixels;
}

std::size_t InkOfRow(const TextMask& mask, std::int32_t y) {
  std::size_t count = 0;
  mask.ForEachPixel(y, [&count](std::int32_t /*x*/) { ++count; });
  return count;
}

class PangoTextRasterTest : public ::testing::Test {
 protected:
  [[nodiscard]] TextMask DrawLines(const LogFont& font, const std::string& text, std::int32_t x = 0,
                                   std::int32_t y = 0) const {
    return raster.Draw(font, text, {TextForm::Lines, x, y}, kWidth, kHeight);
  }
  /// Draws a line rotated about the middle of the picture.
  [[nodiscard]] TextMask DrawLine(LogFont font, const std::string& text, std::int32_t degrees) const {
    font.lfEscapement = font.lfOrientation = degrees * 10;
    return raster.Draw(font, text, {TextForm::Turned, kWidth / 2, kHeight / 2}, kWidth, kHeight);
  }

  PangoTextRaster raster;
};

TEST_F(PangoTextRasterTest, ArialIsLiberationSans) {
  for (const char* name : {"Arial", "arial", "ARIAL"}) {
    const LogFont arial = FontOf(-48, 700, name);
    const LogFont twin = FontOf(-48, 700, "Liberation Sans");
    EXPECT_EQ(raster.Measure(arial, "SAMPLE", TextForm::Lines), raster.Measure(twin, "SAMPLE", TextForm::Lines));
    EXPECT_EQ(PixelsOf(DrawLines(arial, "SAMPLE")), PixelsOf(DrawLines(twin, "SAMPLE"))) << name;
  }
  EXPECT_EQ(raster.Measure(FontOf(-48, 700), "SAMPLE", TextForm::Lines), (TextExtent{200, 53}));
  EXPECT_EQ(raster.Measure(FontOf(-1000), "HHH", TextForm::Lines).width, 3 * 722);
}

TEST_F(PangoTextRasterTest, AFontThatDoesNotExistIsSubstituted) {
  for (const char* name : {"No Such Font", "",
                           "Ari\xFF"
                           "al",
                           ","}) {
    EXPECT_FALSE(PixelsOf(DrawLines(FontOf(-48, 400, name), "SAMPLE")).empty()) << name;
  }
}

TEST_F(PangoTextRasterTest, ANegativeHeightIsThatOfTheEm) {
  // Capital letters of this font have a height of 1409 / 2048 em.
  for (const std::int32_t em : {20, 48, 100, 400, 512, 513, 3000}) {
    const TextMask letter = raster.Draw(FontOf(-em), "H", {}, 3000, 3000);
    EXPECT_NEAR(letter.height(), em * 1409.0 / 2048, 1) << em;
  }
}

TEST_F(PangoTextRasterTest, ALineIsAscentAndDescentHigh) {
  struct Case {
    std::int32_t em, height;
  };
  for (const Case& c : {Case{-48, 53}, Case{-19, 21}, Case{-100, 112}, Case{-2048, 2288}, Case{-1, 1}}) {
    EXPECT_EQ(raster.Measure(FontOf(c.em), "x", TextForm::Lines).height, c.height) << c.em;
  }
}

TEST_F(PangoTextRasterTest, APositiveHeightIsThatOfTheLine) {
  EXPECT_EQ(raster.Measure(FontOf(2288), "x", TextForm::Lines).height, 2288);
  EXPECT_EQ(PixelsOf(DrawLines(FontOf(53), "x")), PixelsOf(DrawLines(FontOf(-47), "x")));
  EXPECT_FALSE(PixelsOf(DrawLines(FontOf(0), "x")).empty());
}

TEST_F(PangoTextRasterTest, EachLineAddsItsHeight) {
  const LogFont font = FontOf(-48);
  const auto one = raster.Measure(font, "HHH", TextForm::Lines);
  for (const char* text : {"HHH\r\nI", "I\nHHH", "I\rHHH", "HHH\r\nI\r\n"}) {
    EXPECT_EQ(raster.Measure(font, text, TextForm::Lines), (TextExtent{one.width, 2 * one.height})) << text;
  }
  EXPECT_EQ(raster.Measure(font, "HHH\r\n", TextForm::Lines), one);
  EXPECT_EQ(raster.Measure(font, "", TextForm::Lines), TextExtent());
}

TEST_F(PangoTextRasterTest, LinesAreLeftAlignedBelowEachOther) {
  const LogFont font = FontOf(-48);
  Pixels wanted = PixelsOf(DrawLines(font, "HH", 7, 9));
  wanted.merge(PixelsOf(DrawLines(font, "I", 7, 9 + 53)));
  EXPECT_EQ(PixelsOf(DrawLines(font, "HH\r\nI", 7, 9)), wanted);
}

TEST_F(PangoTextRasterTest, TheTextIsDrawnAtItsPosition) {
  const Pixels at = PixelsOf(DrawLines(FontOf(-48), "SAMPLE", 100, 50));
  Pixels moved;
  for (const auto& [x, y] : PixelsOf(DrawLines(FontOf(-48), "SAMPLE"))) moved.emplace(x + 100, y + 50);
  EXPECT_EQ(at, moved);
}

TEST_F(PangoTextRasterTest, TextOutsideThePictureIsClipped) {
  Pixels wanted;
  for (const auto& [x, y] : PixelsOf(DrawLines(FontOf(-48), "SAMPLE"))) {
    if (x >= 100 && y >= 20) wanted.emplace(x - 100, y - 20);
  }
  ASSERT_FALSE(wanted.empty());
  EXPECT_EQ(PixelsOf(DrawLines(FontOf(-48), "SAMPLE", -100, -20)), wanted);
  for (const auto& [x, y] : {std::pair{640, 0}, std::pair{0, 480}, std::pair{-2000, 0}, std::pair{0, -32768}}) {
    EXPECT_TRUE(PixelsOf(DrawLines(FontOf(-48), "SAMPLE", x, y)).empty()) << x << ", " << y;
  }
  EXPECT_TRUE(PixelsOf(raster.Draw(FontOf(-48), "SAMPLE", {}, 0, 0)).empty());
  EXPECT_TRUE(PixelsOf(raster.Draw(FontOf(-48), "SAMPLE", {}, -1, 40000)).empty());
}

TEST_F(PangoTextRasterTest, ATurnedLineIsAnchoredAtTheMiddleOfItsBottom) {
  const LogFont font = FontOf(-48, 700);
  const std::int32_t x = kWidth / 2;
  const std::int32_t y = kHeight / 2;
  const TextMask flat = DrawLine(font, "HHHH", 0);
  EXPECT_NEAR((flat.left() + Right(flat)) / 2.0, x, 1);
  EXPECT_EQ(Bottom(flat), y - 10);  // the font's descent
  const TextMask upwards = DrawLine(font, "HHHH", 90);
  EXPECT_NEAR((upwards.top() + Bottom(upwards)) / 2.0, y, 1);
  EXPECT_NEAR(Right(upwards), x - 10, 1);
  const TextMask downwards = DrawLine(font, "HHHH", -90);
  EXPECT_NEAR((downwards.top() + Bottom(downwards)) / 2.0, y, 1);
  EXPECT_NEAR(downwards.left(), x + 10, 1);
  const TextMask head = DrawLine(font, "HHHH", 180);
  EXPECT_NEAR((head.left() + Right(head)) / 2.0, x, 1);
  EXPECT_NEAR(head.top(), y + 10, 1);
}

TEST_F(PangoTextRasterTest, APositiveAngleTurnsCounterclockwise) {
  const TextMask up = DrawLine(FontOf(-30), "....................L", 30);
  const TextMask down = DrawLine(FontOf(-30), "....................L", -30);
  // The last letter is far above the middle, or far below it.
  EXPECT_LT(up.top(), kHeight / 2 - 50);
  EXPECT_GT(Bottom(down), kHeight / 2 + 20);
}

TEST_F(PangoTextRasterTest, SeveralLinesAreNeverTurned) {
  LogFont turned = FontOf(-48);
  turned.lfEscapement = 450;
  EXPECT_EQ(PixelsOf(DrawLines(turned, "SAMPLE")), PixelsOf(DrawLines(FontOf(-48), "SAMPLE")));
}

TEST_F(PangoTextRasterTest, EachTurnedLineIsOneLineHeightStraightBelowTheLast) {
  LogFont font = FontOf(-30, 700);
  const std::int32_t lineHeight = 33;
  ASSERT_EQ(raster.Measure(font, "x", TextForm::Turned).height, lineHeight);
  for (const std::int32_t degrees : {36, -36, 0, 89}) {
    font.lfEscapement = degrees * 10;
    const auto drawAt = [&](const std::string& text, std::int32_t y) {
      return PixelsOf(raster.Draw(font, text, {TextForm::Turned, kWidth / 2, y}, kWidth, kHeight));
    };
    Pixels wanted = drawAt("a first one", 150);
    wanted.merge(drawAt("two", 150 + lineHeight));
    wanted.merge(drawAt("the last", 150 + 3 * lineHeight));
    for (const char* text :
         {"a first one\r\ntwo\r\n\r\nthe last", "a first one\ntwo\n\nthe last\n", "a first one\rtwo\r\rthe last"}) {
      EXPECT_EQ(drawAt(text, 150), wanted) << degrees << " degrees: " << text;
    }
  }
}

TEST_F(PangoTextRasterTest, ATurnedTextIsMeasuredByItsFirstLine) {
  const LogFont font = FontOf(-48);
  for (const char* text : {"HHH", "HHH\r\nI", "HHH\nI\nI\n", "\n\n"}) {
    EXPECT_EQ(raster.Measure(font, text, TextForm::Turned).height, 53) << text;
  }
  EXPECT_EQ(raster.Measure(font, "", TextForm::Turned), TextExtent());
}

TEST_F(PangoTextRasterTest, BoldHasMorePixelsAndItalicLeans) {
  const TextMask normal = DrawLines(FontOf(-96), "HHH");
  const TextMask bold = DrawLines(FontOf(-96, 700), "HHH");
  EXPECT_GT(PixelsOf(bold).size(), PixelsOf(normal).size() * 5 / 4);
  LogFont font = FontOf(-96);
  font.lfItalic = 1;
  const TextMask italic = DrawLines(font, "I");
  EXPECT_GT(italic.width(), DrawLines(FontOf(-96), "I").width() + 10);
  EXPECT_EQ(PixelsOf(DrawLines(FontOf(-96, 0), "HHH")), PixelsOf(normal));
}

TEST_F(PangoTextRasterTest, UnderlineAndStrikeoutIncludeBlanks) {
  LogFont font = FontOf(-48);
  const auto width = static_cast<std::size_t>(raster.Measure(font, "H H ", TextForm::Lines).width);
  const auto fullRows = [&](const LogFont& f) {
    std::vector<std::int32_t> rows;
    const TextMask mask = DrawLines(f, "H H ");
    for (std::int32_t y = mask.top(); y < Bottom(mask); ++y) {
      if (InkOfRow(mask, y) == width) rows.push_back(y);
    }
    return rows;
  };
  EXPECT_TRUE(fullRows(font).empty());
  font.lfUnderline = 1;
  const auto under = fullRows(font);
  ASSERT_FALSE(under.empty());
  EXPECT_GE(under.front(), 43);
  EXPECT_LT(under.back(), 53);
  font.lfUnderline = 0;
  font.lfStrikeOut = 1;
  const auto through = fullRows(font);
  ASSERT_FALSE(through.empty());
  EXPECT_GT(through.front(), 15);
  EXPECT_LT(through.back(), 40);
}

TEST_F(PangoTextRasterTest, EveryScriptIsDrawn) {
  for (const char* text :
       {"\u0627\u0644\u0639\u0631\u0628\u064A\u0629", "\u092E\u0928\u0941\u0937\u094D\u092F", "\u6F22\u5B57",
        "\uD55C\uAE00", "\u05E9\u05DC\u05D5\u05DD", "\U0001F600", "\U0001F468\u200D\U0001F469\u200D\U0001F467",
        "e\u0335\u0321\u031B", "\uFFFD", "\U0010FFFD"}) {
    EXPECT_FALSE(PixelsOf(DrawLines(FontOf(-48), text)).empty()) << text;
    EXPECT_FALSE(PixelsOf(DrawLine(FontOf(-48), text, 36)).empty()) << text;
    EXPECT_EQ(raster.Measure(FontOf(-48), text, TextForm::Lines).height, 53) << text;
  }
}

TEST_F(PangoTextRasterTest, ArabicLettersAreJoined) {
  const std::string beh = "\u0628";
  EXPECT_LT(raster.Measure(FontOf(-48), beh + beh + beh, TextForm::Lines).width,
            3 * raster.Measure(FontOf(-48), beh, TextForm::Lines).width);
}

TEST_F(PangoTextRasterTest, InvalidUTF8IsDrawnAsReplacementCharacters) {
  EXPECT_EQ(PixelsOf(DrawLines(FontOf(-48),
                               "a\xFF"
                               "b")),
            PixelsOf(DrawLines(FontOf(-48), "a\uFFFDb")));
}

TEST_F(PangoTextRasterTest, AnEmptyTextDrawsNothing) {
  for (const char* text : {"", "\r\n", " ", "\n\n\n"}) {
    EXPECT_TRUE(PixelsOf(DrawLines(FontOf(-48), text)).empty());
    EXPECT_TRUE(PixelsOf(DrawLine(FontOf(-48), text, 36)).empty());
  }
}

TEST_F(PangoTextRasterTest, HugeLettersAreMeasuredAndPlacedExactly) {
  for (const std::int32_t em : {1025, 5000, 43689, 65535, 1000000}) {
    EXPECT_EQ(raster.Measure(FontOf(-em), "H", TextForm::Turned).height,
              std::lround(em * 1854.0 / 2048) + std::lround(em * 434.0 / 2048))
        << em;
  }
  // The left stem of the letter fills the picture.
  const TextMask stem = raster.Draw(FontOf(-43689, 700), "H", {TextForm::Lines, -4500, -20000}, kWidth, kHeight);
  EXPECT_EQ(PixelsOf(stem).size(), std::size_t{kWidth * kHeight});
  EXPECT_TRUE(PixelsOf(DrawLine(FontOf(-2147483647 - 1), "H", 36)).size() <= std::size_t{kWidth * kHeight});
}

TEST_F(PangoTextRasterTest, HugeLettersOfEveryScriptAreDrawn) {
  for (const char* text : {"\u0627\u0644", "\u092E\u0928", "\u6F22", "\U0001F600\U0001F600", "\U0010FFFD"}) {
    for (const std::int32_t em : {600, 5000, 43689}) {
      const TextPlace place = {TextForm::Lines, -em / 8, -em / 2};
      EXPECT_LE(PixelsOf(raster.Draw(FontOf(-em), text, place, 64, 48)).size(), 64U * 48U) << text << " of " << em;
      EXPECT_GT(raster.Measure(FontOf(-em), text, TextForm::Lines).width, em / 5) << text << " of " << em;
    }
  }
}

TEST_F(PangoTextRasterTest, LongTextsAreMeasuredAndPlacedExactly) {
  const std::string text(100000, 'H');
  EXPECT_EQ(raster.Measure(FontOf(-48), text, TextForm::Lines).width, 100000 * 35);
  const std::int64_t wide = raster.Measure(FontOf(-43689), "H", TextForm::Turned).width;
  EXPECT_EQ(raster.Measure(FontOf(-43689), text, TextForm::Turned).width, 100000 * wide);
  // Only its beginning is visible, as with a shorter text.
  EXPECT_EQ(PixelsOf(DrawLine(FontOf(-48), text, 36)), PixelsOf(DrawLine(FontOf(-48), std::string(100, 'H'), 36)));
}

TEST_F(PangoTextRasterTest, OneRasterCanBeUsedByManyThreads) {
  const Pixels wanted = PixelsOf(DrawLine(FontOf(-30), "SAMPLE \u0628\u0628", 36));
  std::vector<int> wrong(4);
  {
    std::vector<std::jthread> threads;
    for (int& mine : wrong) {
      threads.emplace_back([&] {
        for (int i = 0; i < 20; ++i) {
          if (PixelsOf(DrawLine(FontOf(-30), "SAMPLE \u0628\u0628", 36)) != wanted) ++mine;
        }
      });
    }
  }
  EXPECT_EQ(wrong, std::vector<int>(4));
}

}  // namespace
}  // namespace vantorium::image
