#include "image/Picture.h"

#include "env/RuntimeFailure.h"
#include "image/Filters.h"
#include "image/JPEG.h"
#include "image/Resample.h"
#include "image/cDIBSection.h"

#include <fmt/format.h>

namespace vantorium {
namespace {

void ResizeTo(cDIBSection& picture, PixelSize size) {
  auto resized = Resample(picture, size.height, size.width);
  if (!resized) {
    throw RuntimeFailure(FailureKind::InvalidArgument,
                         fmt::format("A picture of {} x {} pixels cannot be made.", size.width, size.height));
  }
  picture = std::move(*resized);
}

void ApplyFilters(cDIBSection& picture, const PictureRecipe& recipe) {
  const ImageFilterSettings& filters = recipe.filters;
  if (filters.checkBrightness == 1) Lighten(picture, filters.sliderBrightness);
  if (filters.checkFade == 1) Fade(picture, filters.sliderFade);
  if (filters.checkNoise == 1) {
    NoiseStream stream(/*seed=*/0, recipe.noiseNumber);
    AddNoise(picture, filters.sliderNoise, filters.checkNoiseRandom == 1, stream);
  }
  if (filters.checkGrayscale == 1) GrayScale(picture);
}

}  // namespace

std::optional<std::string> MakePicture(const std::filesystem::path& source, const PictureRecipe& recipe) {
  cDIBSection picture;
  if (!LoadJPEGImage(picture, source)) return std::nullopt;
  if (recipe.size) ResizeTo(picture, *recipe.size);
  ApplyFilters(picture, recipe);
  return EncodeJPEG(picture, recipe.filters.sliderQuality);
}

}  // namespace vantorium
