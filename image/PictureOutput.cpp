#include "image/PictureOutput.h"

#include "env/RuntimeFailure.h"
#include "image/Filters.h"
#include "image/JPEG.h"

#include <fmt/format.h>

namespace vantorium {
namespace {

[[noreturn]] void ThrowNoSuchPicture(PictureSize size) {
  throw RuntimeFailure(FailureKind::InvalidArgument,
                       fmt::format("A picture of {} x {} pixels cannot be made.", size.width, size.height));
}

PictureSize SizeOf(const PictureRecipe& recipe, PictureSize source) {
  const PictureSize size = recipe.size.value_or(source);
  if (size.width < 1 || size.height < 1) ThrowNoSuchPicture(size);
  return size;
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

PictureOutput::PictureOutput(const PictureRecipe& recipe, PictureSize source)
    : recipe_(recipe),
      plan_(source, SizeOf(recipe, source)),
      newRow_(plan_.NewSize().height),
      lastSeen_(source.height) {
  const auto [width, height] = plan_.NewSize();
  if (NeedsWholePicture()) {
    if (!whole_.Create(width, height)) ThrowNoSuchPicture(plan_.NewSize());
  }
  if (recipe_.watermark) mask_ = recipe_.watermark->MaskFor(width, height);
  if (!NeedsWholePicture()) {
    encoder_ = std::make_unique<JPEGEncoder>(width, height, recipe_.filters.sliderQuality);
    encodedRow_.resize(static_cast<std::size_t>(width) * 3);
  }
  BeginRow();
}

bool PictureOutput::NeedsWholePicture() const {
  return recipe_.filters.AnyFilter();
}

void PictureOutput::BeginRow() {
  if (--newRow_ >= 0) rows_ = plan_.RowsOf(newRow_);
}

std::int32_t PictureOutput::NextSourceRow() const {
  if (newRow_ < 0) return -1;
  return rows_.upper < lastSeen_ ? rows_.upper : rows_.lower;
}

void PictureOutput::TakeSourceRow(std::int32_t row, const std::uint8_t* bytes, const std::uint8_t* above) {
  lastSeen_ = row;
  // An enlargement makes several new rows of one pair.
  for (; newRow_ >= 0 && rows_.lower == row; BeginRow()) {
    std::uint8_t* result = encoder_ ? encodedRow_.data() : whole_.Row(newRow_);
    plan_.CombineRows(rows_, bytes, rows_.upper == row ? bytes : above, result);
    if (encoder_) WriteEncodedRow();
  }
}

void PictureOutput::WriteEncodedRow() {
  if (mask_) {
    recipe_.watermark->Ink().ApplyToRow(*mask_, plan_.NewSize().height - 1 - newRow_, encodedRow_.data());
  }
  encoder_->WriteRow(encodedRow_.data());
}

std::string PictureOutput::Finish() {
  if (encoder_) return encoder_->Finish();
  ApplyFilters(whole_, recipe_);
  if (mask_) recipe_.watermark->Ink().Apply(*mask_, whole_);
  return EncodeJPEG(whole_, recipe_.filters.sliderQuality);
}

}  // namespace vantorium
