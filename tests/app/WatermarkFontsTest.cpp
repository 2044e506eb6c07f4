#include "tests/app/Workplace.h"
#include "tests/fakes/FontFolder.h"

namespace vantorium::batch {
namespace {

using fakes::FontFolder;

constexpr char kSans[] = "LiberationSans-Regular.ttf";

/// A workplace with the project "a.gpj", which has the photographs a.jpg and b.jpg.
class WatermarkFonts : public testing::Test {
 protected:
  WatermarkFonts() { place.Project("a.gpj", {"a.jpg", "b.jpg"}); }

  /// Gives the images or the thumbnails a watermark; `element` is their start tag in the project file.
  void Mark(const std::string& element) {
    place.Replace("a.gpj", element, element + "<MODIFY><FILTER TYPE=\"watermark\" CAPTION=\"text\"/></MODIFY>");
  }
  /// Creates the gallery in "out" with only these fonts installed.
  ProcessResult Create(const FontFolder& fonts) {
    StartOptions options = place.Options({"create", "a.gpj", "out/index.htm"});
    options.environment["FONTCONFIG_FILE"] = fonts.Settings();
    return ChildProcess(options).Finish();
  }

  Workplace place;
};

TEST_F(WatermarkFonts, WithoutAnyFontAWatermarkedImageFailsTheRunWithTheReason) {
  Mark("<IMAGES FOLDER=\"Images\">");
  const FontFolder none;
  const ProcessResult result = Create(none);
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("The watermark cannot be drawn: no font is installed on this computer."), std::string::npos)
      << result.err;
  EXPECT_EQ(ListingOf(place.Path("out")), "");
}

TEST_F(WatermarkFonts, WithoutAnyFontAWatermarkedThumbnailFailsTheRunAfterTheImages) {
  Mark("<THUMBNAILS FOLDER=\"Thumbs\">");
  const FontFolder none;
  const ProcessResult result = Create(none);
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("no font is installed"), std::string::npos) << result.err;
  EXPECT_EQ(ListingOf(place.Path("out")), "Images/a.jpg.jpg\nImages/b.jpg.jpg\n");
}

TEST_F(WatermarkFonts, TheFailureNamesAnUnreadableFontFile) {
  Mark("<IMAGES FOLDER=\"Images\">");
  const FontFolder fonts;
  const auto file = fonts.Add(kSans);
  ASSERT_TRUE(Succeeded(Create(fonts)));  // puts the font into Fontconfig's cache
  fonts.Break(kSans);
  const ProcessResult result = Create(fonts);
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("the font file \"" + file.string() + "\" cannot be read."), std::string::npos)
      << result.err;
}

TEST_F(WatermarkFonts, WithoutAWatermarkNoFontIsNeeded) {
  const FontFolder none;
  EXPECT_TRUE(Succeeded(Create(none)));
}

}  // namespace
}  // namespace vantorium::batch
