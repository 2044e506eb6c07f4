#include "env/RuntimeFailure.h"
#include "image/FaceNames.h"
#include "image/PangoFace.h"
#include "image/PangoTextRaster.h"
#include "image/Watermark.h"
#include "tests/fakes/FontFolder.h"
#include "tests/image/PictureFixtures.h"

#include <algorithm>
#include <memory>
#include <tuple>
#include <utility>

#include <gtest/gtest.h>
#include <pango/pangofc-fontmap.h>
#include <pthread.h>

namespace vantorium::image {
namespace {

using fakes::FontFolder;

constexpr char kSans[] = "LiberationSans-Regular.ttf";
constexpr char kArabic[] = "DejaVuSans.ttf";  // Liberation Sans has no Arabic letters

/// A failure's description and number; "" and 0 if there is no failure.
using Failure = std::pair<std::string, int>;

template <typename Work>
Failure FailureIn(Work work) {
  try {
    work();
    return {};
  } catch (const env::RuntimeFailure& failure) {
    return {failure.Description(), failure.Number()};
  }
}

Failure FailureToDraw(const std::string& text, TextForm form = TextForm::Lines) {
  const PangoTextRaster raster;
  return FailureIn([&] { std::ignore = raster.Draw({.lfHeight = -30}, text, {form, 10, 40}, 100, 50); });
}

const Failure kNoFont = {"The watermark cannot be drawn: no font is installed on this computer.", 53};

Failure UnreadableFile(const std::filesystem::path& file) {
  return {"The watermark cannot be drawn: the font file \"" + file.string() + "\" cannot be read.", 75};
}

TEST(TextFailure, WithoutAnInstalledFontDrawingFailsWithAMessage) {
  const FontFolder fonts;
  EXPECT_EQ(FailureToDraw("text"), kNoFont);
  EXPECT_EQ(FailureToDraw("text", TextForm::Turned), kNoFont);
  const PangoTextRaster raster;
  EXPECT_EQ(FailureIn([&] { std::ignore = raster.Measure({}, "text", TextForm::Lines); }), kNoFont);
}

TEST(TextFailure, WithoutAnInstalledFontAnEmptyTextIsDrawn) {
  const FontFolder fonts;
  EXPECT_EQ(FailureToDraw(""), Failure());
}

TEST(TextFailure, OneFontIsEnough) {
  const FontFolder fonts;
  fonts.Add(kSans);
  EXPECT_EQ(FailureToDraw("text \u0628"), Failure());
}

TEST(TextFailure, TheFailureNamesAnUnreadableFontFile) {
  const FontFolder fonts;
  const auto file = fonts.Add(kSans);
  EXPECT_EQ(PangoTextRaster().FaceNames(), std::vector<std::string>{"Liberation Sans"});
  fonts.Break(kSans);
  EXPECT_EQ(FailureToDraw("text"), UnreadableFile(file));
  EXPECT_EQ(FailureToDraw("text", TextForm::Turned), UnreadableFile(file));
}

TEST(TextFailure, TheFailureAlsoNamesTheFileOfAFallbackFont) {
  const FontFolder fonts;
  fonts.Add(kSans);
  const auto file = fonts.Add(kArabic);
  ASSERT_EQ(PangoTextRaster().FaceNames().size(), 2U);
  fonts.Break(kArabic);
  const PangoTextRaster raster;
  const LogFont sans = {.lfHeight = -30, .lfFaceName = "Liberation Sans"};
  const auto draw = [&](const char* text) { std::ignore = raster.Draw(sans, text, {}, 100, 50); };
  EXPECT_EQ(FailureIn([&] { draw("\u0628"); }), UnreadableFile(file));
  EXPECT_EQ(FailureIn([&] { draw("text"); }), Failure());
}

TEST(TextFailure, WithoutAThreadDrawingFailsWithAMessage) {
  pthread_attr_t old;
  ASSERT_EQ(::pthread_getattr_default_np(&old), 0);
  pthread_attr_t huge = old;
  ASSERT_EQ(::pthread_attr_setstacksize(&huge, std::size_t{1} << 47), 0);  // larger than the address space
  ASSERT_EQ(::pthread_setattr_default_np(&huge), 0);
  const Failure failure = FailureToDraw("text");
  ASSERT_EQ(::pthread_setattr_default_np(&old), 0);
  EXPECT_EQ(
      failure,
      Failure("The watermark cannot be drawn: there is no room for the threads that fonts are looked for on.", 7));
  EXPECT_EQ(FailureToDraw("text"), Failure());
}

TEST(TextFailure, AWatermarkThatCannotBeDrawnLeavesThePictureUnchanged) {
  const FontFolder fonts;
  const PangoTextRaster raster;
  const WatermarkSettings settings = {.checkUseWatermark = 1, .textWatermark = "text"};
  const auto painter = std::make_shared<const WatermarkPainter>(settings, 96, raster);
  cDIBSection picture = fakes::Plain(100, 50, {1, 2, 3});
  EXPECT_EQ(FailureIn([&] { painter->Draw(picture); }), kNoFont);
  EXPECT_EQ(fakes::Difference(picture, fakes::Plain(100, 50, {1, 2, 3})), "");
}

/// The family names of the font that Pango chooses for a name.
std::vector<std::string> FoundFor(PangoFontMap* map, const std::string& name) {
  const GObjectHandle<PangoContext> context(pango_font_map_create_context(map));
  const FontDescriptionHandle description(pango_font_description_new());
  pango_font_description_set_family(description.get(), name.c_str());
  pango_font_description_set_absolute_size(description.get(), 16 * PANGO_SCALE);
  const GObjectHandle<PangoFont> font(pango_context_load_font(context.get(), description.get()));
  std::vector<std::string> names;
  FcChar8* family = nullptr;
  for (int i = 0;
       FcPatternGetString(pango_fc_font_get_pattern(PANGO_FC_FONT(font.get())), FC_FAMILY, i, &family) == FcResultMatch;
       ++i) {
    names.emplace_back(reinterpret_cast<const char*>(family));
  }
  return names;
}

TEST(FaceNames, EveryNameHasAFontOfThatNameAndIsListedOnce) {
  const FontMapHandle map = MakeFontMap();
  const auto names = FaceNamesOf(map.get());
  EXPECT_NE(std::find(names.begin(), names.end(), "Liberation Sans"), names.end());
  for (const std::string& name : names) {
    const auto found = FoundFor(map.get(), name);
    EXPECT_NE(std::find(found.begin(), found.end(), name), found.end()) << name;
    EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
  }
}

std::string NamedToo(const std::string& name) {
  return "<match target=\"scan\"><edit name=\"family\" mode=\"append\"><string>" + name + "</string></edit></match>";
}

TEST(FaceNames, ANameTooLongForALogFontIsNotListed) {
  const FontFolder fonts(NamedToo("A Name of Thirty-One Characters") + NamedToo("A Name of Thirty-Two Characters!") +
                         NamedToo("Sans, of a Kind") + NamedToo("LIBERATION SANS") + NamedToo("\u00C9l\u00E9gante"));
  fonts.Add(kSans);
  fonts.Add("LiberationSans-Bold.ttf");
  EXPECT_EQ(PangoTextRaster().FaceNames(),
            (std::vector<std::string>{"A Name of Thirty-One Characters", "Liberation Sans", "\u00C9l\u00E9gante"}));
}

TEST(FaceNames, AFontInAFormatThatPangoIgnoresIsNotListed) {
  const FontFolder fonts("<match target=\"scan\"><edit name=\"fontformat\"><string>Type 1</string></edit></match>");
  fonts.Add(kSans);
  EXPECT_EQ(PangoTextRaster().FaceNames(), std::vector<std::string>());
}

}  // namespace
}  // namespace vantorium::image
