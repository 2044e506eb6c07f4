// Photographs with notes: orientation and color profile, and pictures made of a photograph that is turned and
// converted.
#include "image/ExifOrientation.h"
#include "image/JPEG.h"
#include "image/Photograph.h"
#include "image/PhotographNotes.h"
#include "image/Picture.h"
#include "image/Resample.h"
#include "image/SRGBTransform.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace vantorium;

namespace {

// Larger claimed sizes are accepted if a file of that length can hold them, but take too long here.
constexpr std::int64_t kMostPixels = 1 << 16;
constexpr image::Corrections kAll = {.upright = true, .trueColors = true};

std::string MadeOfTheWhole(const image::cDIBSection& upright, const image::PhotographNotes& notes,
                           const image::PictureRecipe& recipe) {
  const auto resized = image::Resample(upright, recipe.size->height, recipe.size->width);
  const auto colors = image::SRGBTransform::For(notes.profile, notes.channels);
  for (std::int32_t row = 0; colors && row < resized->height(); ++row) {
    colors->Apply(resized->Row(row), static_cast<std::size_t>(resized->width()));
  }
  return image::EncodeJPEG(*resized, recipe.filters.sliderQuality);
}

void CheckNotes(const std::filesystem::path& file, const image::PhotographNotes& notes) {
  const auto value = static_cast<int>(notes.orientation);
  fuzz::Require(value >= 1 && value <= 8, "there are eight orientations");
  const auto upright = image::ReadPhotographNotes(file, {.upright = true});
  const auto colored = image::ReadPhotographNotes(file, {.trueColors = true});
  fuzz::Require(upright.orientation == notes.orientation, "the orientation is the same without the profile");
  fuzz::Require(colored.profile == notes.profile, "the profile is the same without the orientation");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fakes::TemporaryFolder folder;
  const std::string input = fuzz::InputText(data, size);
  std::ignore = image::OrientationInExif(input);
  for (const int channels : {1, 3}) std::ignore = image::SRGBTransform::For(input, channels);

  const auto file = folder.Write("photo.jpg", input);
  const image::PhotographNotes notes = image::ReadPhotographNotes(file, kAll);
  CheckNotes(file, notes);
  std::int32_t width = 0;
  std::int32_t height = 0;
  if (!image::ReadPhotographSize(file, true, width, height) || std::int64_t{width} * height > kMostPixels) return 0;
  image::cDIBSection upright;
  const bool loaded = image::LoadPhotograph(upright, file, {.upright = true});
  if (!loaded) return 0;
  fuzz::Require(upright.width() == width && upright.height() == height, "the size is that of the upright photograph");
  image::PictureRecipe recipe;
  recipe.size = image::PictureSize{5, upright.height() / 3 + 1};
  image::CoefficientBudget budget{std::uint64_t{1} << 30U};
  const image::PictureFiles files = image::MakePictures(file, {recipe, {}, kAll}, {{}, budget});
  fuzz::Require(files.decoded, "a photograph that can be read completely can be turned in part");
  fuzz::Require(files.image.Bytes() == MadeOfTheWhole(upright, notes, recipe), "a part is turned like the whole");
  return 0;
}
