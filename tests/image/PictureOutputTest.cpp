#include "image/Filters.h"
#include "image/JPEG.h"
#include "image/PangoTextRaster.h"
#include "image/PictureOutput.h"
#include "image/WatermarkLiteral.h"
#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/FailureOf.h"
#include "tests/image/PictureFixtures.h"

#include <gtest/gtest.h>

namespace vantorium {
namespace {

constexpr std::int32_t kWidth = 90;
constexpr std::int32_t kHeight = 60;

std::shared_ptr<const WatermarkPainter> PainterOf(std::int16_t placement, const TextRaster& raster) {
  const WatermarkSettings settings{
      .textWatermark = "MARK", .comboTextPlacement = placement, .FontSize = 14, .Color = 0x20C0FF};
  return std::make_shared<const WatermarkPainter>(settings, 96, raster);
}

/// The output of a picture of its own size, from its rows.
std::string MakeOf(const cDIBSection& source, const PictureRecipe& recipe) {
  PictureOutput output(recipe, {source.width(), source.height()});
  for (std::int32_t row = output.NextSourceRow(); row >= 0; row = output.NextSourceRow()) {
    output.TakeSourceRow(row, source.Row(row), source.Row(std::min(row + 1, source.height() - 1)));
  }
  return output.Finish();
}

void DrawMark(cDIBSection& picture, std::int16_t placement, const TextRaster& raster) {
  LogFont font{.lfHeight = -19, .lfWeight = 700, .lfFaceName = "Arial"};
  DrawWatermarkTextLiteral(picture, font, "MARK", placement, 0x20C0FF, 65, raster);
}

TEST(PictureOutput, TheWatermarkIsDrawnRowByRowAsOnTheWholePicture) {
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

TEST(PictureOutput, TheFiltersDoNotTouchTheWatermark) {
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

TEST(PictureOutput, APictureThatCannotHaveItsWatermarkFails) {
  const fakes::BoxTextRaster tooWide(40000, 10);
  PictureRecipe recipe;
  recipe.watermark = PainterOf(4, tooWide);
  EXPECT_EQ(fakes::FailureOf([&] { const PictureOutput output(recipe, {kWidth, kHeight}); }), FailureKind::Overflow);
  recipe.watermark = nullptr;
  EXPECT_EQ(fakes::FailureOf([&] { const PictureOutput output(recipe, {kWidth, kHeight}); }), std::nullopt);
}

TEST(PictureOutput, APictureWiderThanAWatermarkCanCountFailsOnlyWithOne) {
  const fakes::BoxTextRaster raster(4, 2);
  PictureRecipe recipe;
  recipe.size = PictureSize{32768, 2};
  EXPECT_EQ(fakes::FailureOf([&] { const PictureOutput output(recipe, {kWidth, kHeight}); }), std::nullopt);
  recipe.watermark = PainterOf(0, raster);
  EXPECT_EQ(fakes::FailureOf([&] { const PictureOutput output(recipe, {kWidth, kHeight}); }), FailureKind::Overflow);
}

}  // namespace
}  // namespace vantorium
