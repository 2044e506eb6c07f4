// Compares pictures of photographs that are turned and converted with the literal routines on the whole photograph.
#include "image/Filters.h"
#include "image/JPEG.h"
#include "image/PangoTextRaster.h"
#include "image/Picture.h"
#include "image/SRGBTransform.h"
#include "image/literal/ResampleLiteral.h"
#include "image/literal/TurnLiteral.h"
#include "image/literal/WatermarkLiteral.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/PhotographMaker.h"
#include "tests/fakes/TemporaryFolder.h"

#include <thread>

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

using fakes::JpegColors;
using fakes::TestProfile;

constexpr Corrections kUpright = {.upright = true};
constexpr Corrections kAll = {.upright = true, .trueColors = true};
constexpr char kMark[] = "MARK";
constexpr std::int16_t kPlacement = 10;
constexpr std::uint32_t kInk = 0x20C0FF;

class UprightRowsTest : public ::testing::Test {
 protected:
  PictureFiles Make(const std::string& jpeg, const PictureRequest& request) {
    return MakePictures(folder.Write("source.jpg", jpeg), request, {stop.get_token(), budget});
  }
  [[nodiscard]] PictureRecipe Marked(PictureRecipe recipe) const {
    const WatermarkSettings settings{
        .textWatermark = kMark, .comboTextPlacement = kPlacement, .FontSize = 14, .Color = kInk};
    recipe.watermark = std::make_shared<const WatermarkPainter>(settings, 96, raster);
    return recipe;
  }

  /// The expected output: the whole photograph decoded, turned, resized, converted, filtered and watermarked.
  [[nodiscard]] std::string Plainly(const PictureRecipe& recipe, int orientation, const std::string& profile = {},
                                    int channels = 3) const {
    cDIBSection stored;
    EXPECT_TRUE(LoadJPEGImage(stored, folder.Path() / "source.jpg"));
    cDIBSection whole = image::literal::TurnLiteral(stored, static_cast<Orientation>(orientation));
    if (recipe.size)
      whole = std::move(*image::literal::ResampleLiteral(whole, recipe.size->height, recipe.size->width));
    const auto colors = SRGBTransform::For(profile, channels);
    for (std::int32_t y = 0; colors && y < whole.height(); ++y) {
      colors->Apply(whole.Row(y), static_cast<std::size_t>(whole.width()));
    }
    Filter(whole, recipe);
    LogFont font{.lfHeight = -19, .lfWeight = 700, .lfFaceName = "Arial"};
    if (recipe.watermark) image::literal::DrawWatermarkTextLiteral(whole, font, kMark, kPlacement, kInk, 65, raster);
    return EncodeJPEG(whole, recipe.filters.sliderQuality);
  }
  static void Filter(cDIBSection& whole, const PictureRecipe& recipe) {
    if (recipe.filters.checkBrightness != 1) return;
    Lighten(whole, recipe.filters.sliderBrightness);
    Fade(whole, recipe.filters.sliderFade);
    NoiseStream stream(0, recipe.noiseNumber);
    AddNoise(whole, recipe.filters.sliderNoise, false, stream);
  }

  fakes::TemporaryFolder folder;
  std::stop_source stop;
  CoefficientBudget budget{1 << 20};
  PangoTextRaster raster;
};

PictureRecipe Sized(std::int32_t width, std::int32_t height) {
  PictureRecipe recipe;
  recipe.size = PictureSize{width, height};
  return recipe;
}

const PictureRecipe kImage = Sized(20, 30);

PictureRecipe Filtered(PictureRecipe recipe) {
  recipe.noiseNumber = 7;
  recipe.filters.checkBrightness = recipe.filters.checkFade = recipe.filters.checkNoise = 1;
  return recipe;
}

/// A photograph in some colors, with a profile that may be for other channels.
std::string Profiled(JpegColors colors, const std::string& profile) {
  return fakes::WithProfile(fakes::MakeJpeg({.colors = colors}), profile);
}

TEST_F(UprightRowsTest, PicturesInEachOrientationAndProfileEqualTheLiteralRoutines) {
  const std::string plain = fakes::MakeJpeg({.width = 90, .height = 61});
  for (const TestProfile space : fakes::kColorProfiles) {
    const std::string profile = fakes::ProfileOf(space);
    for (int orientation = 1; orientation <= 8; ++orientation) {
      const std::string jpeg = fakes::WithOrientation(fakes::WithProfile(plain, profile), orientation);
      for (const auto& image : {Sized(40, 30), PictureRecipe(), Filtered(Sized(13, 50)), Marked(Sized(80, 70)),
                                Marked(Filtered(PictureRecipe())), Sized(200, 5)}) {
        const auto thumbnail = Filtered(Sized(9, 11));
        const auto files = Make(jpeg, {image, thumbnail, kAll});
        ASSERT_TRUE(files.decoded) << orientation;
        EXPECT_EQ(files.image.Bytes(), Plainly(image, orientation, profile)) << orientation;
        EXPECT_EQ(files.thumbnail.Bytes(), Plainly(thumbnail, orientation, profile)) << orientation;
      }
    }
  }
}

TEST_F(UprightRowsTest, EveryKindOfFileIsTurnedByEachOrientation) {
  int orientation = 0;
  for (const auto& kind : fakes::EveryKindOfJpeg()) {
    orientation = orientation % 8 + 1;
    const std::string jpeg = fakes::WithOrientation(fakes::MakeJpeg(kind), orientation);
    for (const auto& image : {Sized(11, 5), PictureRecipe(), Sized(3, kind.width * 2)}) {
      const auto files = Make(jpeg, {image, Sized(4, 4), kUpright});
      ASSERT_TRUE(files.decoded) << kind << " " << orientation;
      EXPECT_EQ(files.image.Bytes(), Plainly(image, orientation)) << kind << " " << orientation;
      EXPECT_EQ(files.thumbnail.Bytes(), Plainly(Sized(4, 4), orientation)) << kind << " " << orientation;
    }
  }
}

TEST_F(UprightRowsTest, WithoutCorrectionsTheNotesOfTheFileAreIgnored) {
  const std::string plain = fakes::MakeJpeg({});
  const std::string noted =
      fakes::WithOrientation(fakes::WithProfile(plain, fakes::ProfileOf(TestProfile::AdobeRGB)), 6);
  EXPECT_EQ(Make(noted, {Sized(20, 30), {}}).image.Bytes(), Make(plain, {Sized(20, 30), {}}).image.Bytes());
}

TEST_F(UprightRowsTest, EachCorrectionWorksWithoutTheOther) {
  const std::string profile = fakes::ProfileOf(TestProfile::AdobeRGB);
  const std::string jpeg = fakes::WithOrientation(fakes::WithProfile(fakes::MakeJpeg({}), profile), 6);
  const auto turned = Make(jpeg, {kImage, {}, kUpright});
  EXPECT_EQ(turned.image.Bytes(), Plainly(kImage, 6));
  const auto colored = Make(jpeg, {kImage, {}, {.trueColors = true}});
  EXPECT_EQ(colored.image.Bytes(), Plainly(kImage, 1, profile));
}

TEST_F(UprightRowsTest, GrayPhotographsUseGrayProfilesAndColorPhotographsUseColorProfiles) {
  const std::string gray = fakes::ProfileOf(TestProfile::GrayGamma);
  const std::string color = fakes::ProfileOf(TestProfile::AdobeRGB);
  const std::string ofGray = Make(Profiled(JpegColors::Grey, gray), {kImage, {}, kAll}).image.Bytes();
  EXPECT_EQ(ofGray, Plainly(kImage, 1, gray, 1));
  EXPECT_NE(ofGray, Plainly(kImage, 1));
  const std::string ofColors = Make(Profiled(JpegColors::RGB, color), {kImage, {}, kAll}).image.Bytes();
  EXPECT_EQ(ofColors, Plainly(kImage, 1, color));
  EXPECT_NE(ofColors, Plainly(kImage, 1));
}

TEST_F(UprightRowsTest, ADamagedProfileOrOneForOtherChannelsIsIgnored) {
  const std::string gray = fakes::ProfileOf(TestProfile::GrayGamma);
  const std::string color = fakes::ProfileOf(TestProfile::AdobeRGB);
  for (const std::string& jpeg : {Profiled(JpegColors::YCbCr, color.substr(0, 200)), Profiled(JpegColors::Grey, color),
                                  Profiled(JpegColors::YCbCr, gray), Profiled(JpegColors::CMYK, color)}) {
    const auto files = Make(jpeg, {kImage, {}, kAll});
    EXPECT_EQ(files.image.Bytes(), Plainly(kImage, 1));
  }
}

TEST_F(UprightRowsTest, ATruncatedFileIsNotDecodedInAnyOrientation) {
  for (int orientation = 1; orientation <= 8; ++orientation) {
    const std::string jpeg = fakes::WithOrientation(fakes::MakeJpeg({.width = 64, .height = 64}), orientation);
    for (std::size_t size = fakes::PictureDataOf(jpeg); size + 2 < jpeg.size(); size += 20) {
      EXPECT_FALSE(Make(jpeg.substr(0, size), {Sized(5, 5), Sized(2, 2), kUpright}).decoded) << orientation;
    }
  }
}

TEST_F(UprightRowsTest, APhotographWithTooManyPixelsIsRefusedBeforeMemoryIsAllocated) {
  // Headers with many pixels, followed by the fewest bytes that such files can have.
  const std::string small = fakes::MakeJpeg({.width = 8, .height = 8, .colors = JpegColors::Grey});
  const std::string zeros(std::size_t{8} << 20U, '\0');
  const std::string large = fakes::WithOrientation(fakes::ClaimingSize(small, 20000, 20000) + zeros, 6);
  const fakes::MemoryLimit limit(std::uint64_t{64} << 20U);
  EXPECT_FALSE(Make(large, {PictureRecipe(), {}, kUpright}).decoded);
}

TEST_F(UprightRowsTest, AnOutputWithoutPixelsFailsAlone) {
  const auto files =
      Make(fakes::WithOrientation(fakes::MakeJpeg({}), 6), {Sized(10, 0), Sized(4, 4), {.upright = true}});
  ASSERT_TRUE(files.decoded);
  EXPECT_ANY_THROW(std::ignore = files.image.Bytes());
  EXPECT_EQ(files.thumbnail.Bytes(), Plainly(Sized(4, 4), 6));
}

TEST_F(UprightRowsTest, AStopRequestEndsItWithNothingDecoded) {
  stop.request_stop();
  for (const int orientation : {2, 3, 6}) {
    const std::string jpeg = fakes::WithOrientation(fakes::MakeJpeg({}), orientation);
    EXPECT_FALSE(Make(jpeg, {Sized(5, 5), {}, kUpright}).decoded) << orientation;
  }
}

TEST_F(UprightRowsTest, PhotographsHeldInMemoryWaitForTheirShareOfMemory) {
  CoefficientBudget small(1);
  const auto file = folder.Write("p.jpg", fakes::WithOrientation(fakes::MakeJpeg({.width = 200, .height = 200}), 6));
  std::vector<std::jthread> threads;
  std::atomic<int> made = 0;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] { made += MakePictures(file, {Sized(9, 9), {}, kUpright}, {{}, small}).decoded ? 1 : 0; });
  }
  threads.clear();
  EXPECT_EQ(made, 4);
}

}  // namespace
}  // namespace vantorium::image
