#include "image/Watermark.h"

#include "env/RuntimeFailure.h"
#include "image/WatermarkPlace.h"

#include <algorithm>

namespace vantorium::image {
namespace {

/// The number of picture sizes whose masks are cached. A mask takes at most 1/24 of its picture's memory.
constexpr std::size_t kKnownMasks = 4;

TextMask DrawMask(LogFont& font, const std::string& text, std::int16_t placement, std::int32_t width,
                  std::int32_t height, const TextRaster& raster) {
  const TextPlace place = PlaceWatermark(font, text, placement, width, height, raster);
  return raster.Draw(font, text, place, width, height);
}

/// Rounds to nearest, ties to even.
std::uint8_t Mixed(int ink, int picture, int alpha) {
  const int sum = picture * (100 - alpha) + ink * alpha;
  const int quotient = sum / 100;
  const int rest = sum % 100;
  const bool up = rest > 50 || (rest == 50 && quotient % 2 == 1);
  return static_cast<std::uint8_t>(up ? quotient + 1 : quotient);
}

void CheckAlpha(std::int16_t alpha) {
  if (alpha < 0 || alpha > 255) throw env::RuntimeFailure(env::FailureKind::Overflow);
}

}  // namespace

void DrawWatermarkText(cDIBSection& dib, LogFont& font, const std::string& text, std::int16_t placement,
                       std::uint32_t color, std::uint8_t alpha, const TextRaster& raster) {
  if (dib.DIBSectionBitsPtr() == nullptr) return;
  WatermarkInk(color, alpha).Apply(DrawMask(font, text, placement, dib.width(), dib.height(), raster), dib);
}

WatermarkInk::WatermarkInk(std::uint32_t color, std::uint8_t alpha) {
  const int weight = std::min<int>(alpha, 100);
  for (std::size_t channel = 0; channel < 3; ++channel) {
    const int ink = static_cast<std::uint8_t>(color >> (16 - 8 * channel));
    for (int byte = 0; byte < 256; ++byte) {
      blended_[channel][static_cast<std::size_t>(byte)] = Mixed(ink, byte, weight);
    }
  }
}

void WatermarkInk::ApplyToRow(const TextMask& mask, std::int32_t y, std::uint8_t* row) const {
  mask.ForEachPixel(y, [this, row](std::int32_t x) {
    std::uint8_t* pixel = row + static_cast<std::ptrdiff_t>(x) * 3;
    for (std::size_t channel = 0; channel < 3; ++channel) pixel[channel] = blended_[channel][pixel[channel]];
  });
}

void WatermarkInk::Apply(const TextMask& mask, cDIBSection& dib) const {
  for (std::int32_t y = mask.top(); y < mask.top() + mask.height(); ++y) {
    ApplyToRow(mask, y, dib.Row(dib.height() - 1 - y));
  }
}

WatermarkPainter::WatermarkPainter(const WatermarkSettings& settings, std::int32_t pixelsPerInch,
                                   const TextRaster& raster)
    : text_(settings.textWatermark),
      placement_(settings.comboTextPlacement),
      font_(MakeWatermarkFont(settings, pixelsPerInch)),
      alpha_(settings.sliderAlpha),
      ink_(settings.Color, static_cast<std::uint8_t>(settings.sliderAlpha)),
      raster_(raster) {}

void WatermarkPainter::Draw(cDIBSection& dib) const {
  if (dib.DIBSectionBitsPtr() == nullptr) return;
  ink_.Apply(*MaskFor(dib.width(), dib.height()), dib);
}

std::shared_ptr<const TextMask> WatermarkPainter::MaskFor(std::int32_t width, std::int32_t height) const {
  CheckAlpha(alpha_);
  const std::lock_guard lock(mutex_);
  const auto found = std::find_if(known_.begin(), known_.end(), [width, height](const KnownMask& known) {
    return known.width == width && known.height == height;
  });
  if (found != known_.end()) {
    std::rotate(found, found + 1, known_.end());
    return known_.back().mask;
  }
  LogFont font = font_;
  auto mask = std::make_shared<const TextMask>(DrawMask(font, text_, placement_, width, height, raster_));
  if (known_.size() == kKnownMasks) known_.erase(known_.begin());
  known_.push_back({width, height, mask});
  return mask;
}

}  // namespace vantorium::image
