// JPEG files: the size, the whole picture, and small pictures made from some of its rows.
#include "image/JPEG.h"
#include "image/JPEGDecoder.h"
#include "image/Picture.h"
#include "image/Resample.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"

using namespace vantorium;

namespace {

// Larger claimed sizes are accepted if a file of that length can hold them, but take too long here.
constexpr std::int64_t kMostPixels = 1 << 16;

image::PictureRecipe Sized(std::int32_t width, std::int32_t height) {
  image::PictureRecipe recipe;
  recipe.size = image::PictureSize{width, height};
  return recipe;
}

std::string MadeOfTheWhole(const image::cDIBSection& whole, const image::PictureRecipe& recipe) {
  return image::EncodeJPEG(*image::Resample(whole, recipe.size->height, recipe.size->width),
                           recipe.filters.sliderQuality);
}

/// Compares the output with one made from the whole picture. An output of few rows skips most of the file's rows, one
/// of more rows skips some.
void CheckPicture(const std::filesystem::path& file, const image::cDIBSection& whole,
                  const image::PictureRecipe& recipe) {
  std::stop_source stop;
  image::CoefficientBudget budget{std::uint64_t{1} << 30U};
  const image::PictureFiles files = image::MakePictures(file, {recipe, {}}, {stop.get_token(), budget});
  fuzz::Require(files.decoded, "a file that can be read completely can be read in part");
  fuzz::Require(files.image.Bytes() == MadeOfTheWhole(whole, recipe), "skipped rows do not change the output");
}

bool ReadsReduced(const std::filesystem::path& file, int divisor) {
  image::JPEGDecoder decoder;
  if (!decoder.Open(file)) return false;
  decoder.ReduceBy(divisor);
  if (!decoder.Start()) return false;
  std::vector<std::uint8_t> row(static_cast<std::size_t>(decoder.OutputWidth()) * 3);
  for (std::int32_t i = 0; i < decoder.OutputHeight(); ++i) {
    if (!decoder.ReadRow(row.data())) return false;
  }
  return decoder.Finish();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const fakes::TemporaryFolder folder;
  const auto file = folder.Write("photo.jpg", fuzz::InputText(data, size));
  std::int32_t width = 0;
  std::int32_t height = 0;
  const bool hasSize = image::ReadJPEGSize(file, width, height);
  fuzz::Require(hasSize ? width >= 1 && height >= 1 : width == 0 && height == 0, "a size is valid, or is not changed");
  if (std::int64_t{width} * height > kMostPixels) return 0;

  image::cDIBSection whole;
  const bool loaded = image::LoadJPEGImage(whole, file);
  fuzz::Require(!loaded || hasSize, "a picture has a size");
  fuzz::Require(!loaded || (whole.width() == width && whole.height() == height), "the size is that of the header");
  for (const int divisor : {2, 4, 8}) {
    fuzz::Require(ReadsReduced(file, divisor) == loaded, "a picture can be read in all reduced sizes or in none");
  }
  if (!loaded) return 0;
  for (const std::int32_t rows : {2, 7, whole.height() / 3 + 1}) CheckPicture(file, whole, Sized(5, rows));
  return 0;
}
