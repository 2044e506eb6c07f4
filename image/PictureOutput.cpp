#include "image/PictureOutput.h"

#include "env/RuntimeFailure.h"
#include "image/Filters.h"

#include <fmt/format.h>

namespace vantorium::image {
namespace {

[[noreturn]] void ThrowNoSuchPicture(PictureSize size) {
  throw env::RuntimeFailure(env::FailureKind::InvalidArgument,
                            fmt::format("A picture of {} x {} pixels cannot be made.", size.width, size.height));
}

PictureSize SizeOf(const PictureRecipe& recipe, PictureSize source) {
  const PictureSize size = recipe.size.value_or(source);
  if (size.width < 1 || size.height < 1) ThrowNoSuchPicture(size);
  return size;
}

/// `row` is row `y` of the whole picture, counted from the bottom; its noise depends on its position.
void ApplyFilters(cDIBSection& row, std::int32_t y, const PictureRecipe& recipe) {
  const ImageFilterSettings& filters = recipe.filters;
  if (filters.checkBrightness == 1) Lighten(row, filters.sliderBrightness);
  if (filters.checkFade == 1) Fade(row, filters.sliderFade);
  if (filters.checkNoise == 1) {
    NoiseStream stream(/*seed=*/0, recipe.noiseNumber, y);
    AddNoise(row, filters.sliderNoise, filters.checkNoiseRandom == 1, stream);
  }
  if (filters.checkGrayscale == 1) GrayScale(row);
}

std::shared_ptr<const TextMask> MaskOf(const PictureRecipe& recipe, PictureSize size) {
  return recipe.watermark ? recipe.watermark->MaskFor(size.width, size.height) : nullptr;
}

}  // namespace

PictureOutput::PictureOutput(const PictureRecipe& recipe, PictureSize source, const SRGBTransform* colors)
    : PictureOutput(recipe, source, SizeOf(recipe, source), colors) {}

// The watermark and the encoder refuse sizes that are too large for them before memory is allocated.
PictureOutput::PictureOutput(const PictureRecipe& recipe, PictureSize source, PictureSize size,
                             const SRGBTransform* colors)
    : recipe_(recipe),
      colors_(colors),
      mask_(MaskOf(recipe, size)),
      encoder_(size.width, size.height, recipe.filters.sliderQuality),
      plan_(source, size),
      newRow_(size.height),
      lastSeen_(source.height) {
  if (!row_.Create(size.width, 1)) ThrowNoSuchPicture(size);
  BeginRow();
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
  // Enlarging makes several new rows from one pair.
  for (; newRow_ >= 0 && rows_.lower == row; BeginRow()) {
    plan_.CombineRows(rows_, bytes, rows_.upper == row ? bytes : above, row_.Row(0));
    FinishRow();
  }
}

void PictureOutput::FinishRow() {
  if (colors_ != nullptr) colors_->Apply(row_.Row(0), static_cast<std::size_t>(row_.width()));
  ApplyFilters(row_, newRow_, recipe_);
  if (mask_) recipe_.watermark->Ink().ApplyToRow(*mask_, plan_.NewSize().height - 1 - newRow_, row_.Row(0));
  encoder_.WriteRow(row_.Row(0));
}

std::string PictureOutput::Finish() {
  return encoder_.Finish();
}

}  // namespace vantorium::image
