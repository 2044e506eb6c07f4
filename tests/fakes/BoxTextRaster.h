#pragma once

#include "image/TextRaster.h"

#include <algorithm>
#include <atomic>
#include <string>

namespace vantorium::fakes {

/// Draws each text as a filled box of a given size, never rotated, and counts the drawn texts.
class BoxTextRaster : public image::TextRaster {
 public:
  BoxTextRaster(std::int64_t width, std::int64_t height) : extent{width, height} {}

  [[nodiscard]] image::TextExtent Measure(const image::LogFont& /*font*/, std::string_view text,
                                          image::TextForm /*form*/) const override {
    return text.empty() ? image::TextExtent{} : extent;
  }

  [[nodiscard]] image::TextMask Draw(const image::LogFont& /*font*/, std::string_view text,
                                     const image::TextPlace& place, std::int32_t pictureWidth,
                                     std::int32_t pictureHeight) const override {
    ++drawn;
    if (text.empty()) return {};
    const auto width = static_cast<std::int32_t>(extent.width);
    const auto height = static_cast<std::int32_t>(extent.height);
    const std::int32_t left = place.form == image::TextForm::Turned ? place.x - width / 2 : place.x;
    const std::int32_t top = place.form == image::TextForm::Turned ? place.y - height : place.y;
    return Box(std::max(left, 0), std::max(top, 0), std::min(left + width, pictureWidth),
               std::min(top + height, pictureHeight));
  }

  [[nodiscard]] std::vector<std::string> FaceNames() const override { return {"Box"}; }

  image::TextExtent extent;
  mutable std::atomic<int> drawn = 0;

 private:
  static image::TextMask Box(std::int32_t left, std::int32_t top, std::int32_t right, std::int32_t bottom) {
    image::TextMask mask(left, top, right - left, bottom - top);
    for (std::int32_t y = top; y < bottom; ++y) {
      for (std::int32_t x = left; x < right; ++x) mask.Cover(x, y);
    }
    return mask;
  }
};

}  // namespace vantorium::fakes
