#pragma once

#include "image/LogFont.h"
#include "image/PangoHandles.h"

#include <cstdint>
#include <string>

namespace vantorium::image {

struct FontMapReleaser {
  void operator()(PangoFontMap* map) const;
};
using FontMapHandle = std::unique_ptr<PangoFontMap, FontMapReleaser>;

/// Loads the machine's fonts for drawing without antialiasing: the user's Fontconfig settings for hinting and smoothing
/// are overridden, and "Arial" is Liberation Sans, which has the same widths. Throws like CheckFontSettings.
[[nodiscard]] FontMapHandle MakeFontMap();

/// One font at one size, upright. All measures are pixels.
class PangoFace {
 public:
  /// `map` must outlive the face. Throws like CheckFont.
  PangoFace(PangoFontMap* map, const LogFont& font);

  [[nodiscard]] std::int32_t EmHeight() const { return emHeight_; }
  [[nodiscard]] std::int32_t Ascent() const { return ascent_; }
  [[nodiscard]] std::int32_t LineHeight() const { return ascent_ + descent_; }

  /// A horizontal stroke. `top` is its first row, counted down from the baseline.
  struct Stroke {
    std::int32_t top;
    std::int32_t thickness;
  };
  [[nodiscard]] Stroke Underline() const;
  [[nodiscard]] Stroke Strikeout() const;

  /// Shapes one line of text: UTF-8 without control characters.
  [[nodiscard]] GObjectHandle<PangoLayout> Shape(const std::string& line) const;

 private:
  void SetHeights(const LogFont& font);

  GObjectHandle<PangoContext> context_;
  FontDescriptionHandle description_;
  FontMetricsHandle metrics_;
  std::int32_t emHeight_ = 0;
  std::int32_t ascent_ = 0;
  std::int32_t descent_ = 0;
};

}  // namespace vantorium::image
