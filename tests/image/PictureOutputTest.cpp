#include "env/RuntimeFailure.h"
#include "image/Filters.h"
#include "image/JPEG.h"
#include "image/PangoTextRaster.h"
#include "image/PictureOutput.h"
#include "image/literal/WatermarkLiteral.h"
#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/image/PictureFixtures.h"

#include <gtest/gtest.h>

namespace vantorium::image {
namespace {

constexpr std::int32_t kWidth = 90;
constexpr std::int32_t kHeight = 60;

std::shared_ptr<const WatermarkPainter> PainterOf(std::int16_t placement, const TextRaster& raster) {
  const WatermarkSettings settings{
      .textWatermark = "MARK", .comboTextPlacement = placement, .FontSize = 14, .Color = 0x20C0FF};
  return std::make_shared<const WatermarkPainter>(settings, 96, raster);
}

/// The output at the source's size, made row by row.
std::string MakeOf(const cDIBSection& source, const PictureRecipe& recipe) {
  PictureOutput output(recipe, {source.width(), source.height()});
  for (std::int32_t row = output.NextSourceRow(); row >= 0; row = output.NextSourceRow()) {
    output.TakeSourceRow(row, source.Row(row), source.Row(std::min(row + 1, source.height() - 1)));
  }
  return output.Finish();
}

void DrawMark(cDIBSection& picture, std::int16_t placement, const TextRaster& raster) {
  LogFont font{.lfHeight = -19, .lfWeight = 700, .lfFaceName = "Arial"};
  image::literal::DrawWatermarkTextLiteral(picture, font, "MARK", placement, 0x20C0FF, 65, raster);
}

TEST(PictureOutput, AWatermarkDrawnRowByRowEqualsOneDrawnOnTheWholePicture) {
  const PangoTextRaster raster;
  const cDIBSection source = fakes::Random(kWidth, kHeight, 3);
  for (std::int16_t placement = 0; placement <= 10; ++placement) {
    PictureRecipe recipe;
    recipe.watermark = PainterOf(placement, raster);
    cDIBSection wanted = fakes::CopyOf(source);
    DrawMark(wanted, placement, raster);
    EXPECT_EQ(MakeOf(source, recipe), EncodeJPEG(wanted, 85)) << "placement " << placement;
  }
}

TEST(PictureOutput, FiltersDoNotChangeTheWatermark) {
  const PangoTextRaster raster;
  const cDIBSection source = fakes::Random(kWidth, kHeight, 4);
  PictureRecipe recipe;
  recipe.filters.checkFade = recipe.filters.checkGrayscale = 1;
  recipe.watermark = PainterOf(10, raster);
  cDIBSection wanted = fakes::CopyOf(source);
  Fade(wanted, recipe.filters.sliderFade);
  GrayScale(wanted);
  DrawMark(wanted, 10, raster);
  EXPECT_EQ(MakeOf(source, recipe), EncodeJPEG(wanted, 85));
}

TEST(PictureOutput, APictureWhoseWatermarkCannotBeDrawnFails) {
  const fakes::BoxTextRaster tooWide(40000, 10);
  PictureRecipe recipe;
  recipe.watermark = PainterOf(4, tooWide);
  EXPECT_EQ(fakes::FailureOf([&] {
              const PictureOutput output(recipe, {kWidth, kHeight});
            }),
            env::FailureKind::Overflow);
  recipe.watermark = nullptr;
  EXPECT_EQ(fakes::FailureOf([&] { const PictureOutput output(recipe, {kWidth, kHeight}); }), std::nullopt);
}

TEST(PictureOutput, APictureTooWideForAWatermarkFailsOnlyWithOne) {
  const fakes::BoxTextRaster raster(4, 2);
  PictureRecipe recipe;
  recipe.size = PictureSize{32768, 2};
  EXPECT_EQ(fakes::FailureOf([&] { const PictureOutput output(recipe, {kWidth, kHeight}); }), std::nullopt);
  recipe.watermark = PainterOf(0, raster);
  EXPECT_EQ(fakes::FailureOf([&] {
              const PictureOutput output(recipe, {kWidth, kHeight});
            }),
            env::FailureKind::Overflow);
}

TEST(PictureOutput, ASizeThatJPEGCannotStoreFailsWithTheEncodersMessageBeforeMemoryIsAllocated) {
  const auto refusal = [](const PictureRecipe& recipe) -> std::string {
    try {
      const PictureOutput output(recipe, {kWidth, kHeight});
      return "";
    } catch (const env::RuntimeFailure& failure) {
      return failure.Description();
    }
  };
  const fakes::MemoryLimit limit(std::uint64_t{64} << 20);
  for (const PictureSize size : {PictureSize{65501, 4}, {4, 65501}, {1'000'000'000, 4}, {4, 2'147'483'647}}) {
    for (const std::int16_t filter : {std::int16_t{0}, std::int16_t{1}}) {
      PictureRecipe recipe;
      recipe.size = size;
      recipe.filters.checkFade = filter;
      EXPECT_EQ(refusal(recipe), "Failed to save to JPG Maximum supported image dimension is 65500 pixels")
          << size.width << " x " << size.height;
    }
  }
}

TEST(PictureOutput, TheLargestPictureNeedsMemoryForAFewRowsEvenWithFilters) {
  PictureRecipe recipe = {.size = PictureSize{65500, 65500}};
  recipe.filters.checkBrightness = recipe.filters.checkNoise = recipe.filters.checkGrayscale = 1;
  const std::vector<std::uint8_t> row(3 * 4, 77);
  const fakes::MemoryLimit limit(std::uint64_t{64} << 20);
  PictureOutput output(recipe, {4, 65000});
  for (int rows = 0; rows < 20; ++rows) output.TakeSourceRow(output.NextSourceRow(), row.data(), row.data());
  EXPECT_GT(output.NextSourceRow(), 64000);
}

}  // namespace
}  // namespace vantorium::image
