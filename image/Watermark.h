#pragma once

#include "image/LogFont.h"
#include "image/TextRaster.h"
#include "image/WatermarkSettings.h"
#include "image/cDIBSection.h"

#include <array>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <vector>

namespace vantorium::image {

/// Draws `text` over the picture at one of eleven places, blended at `alpha` percent. `color` is 0x00BBGGRR. An empty
/// text or picture changes nothing. Changes `lfQuality`, `lfEscapement` and `lfOrientation` of the font. Throws
/// RuntimeFailure Overflow, before changing any pixel, if the picture or the text is too large for 16-bit coordinates
/// (see PlaceWatermark).
void DrawWatermarkText(cDIBSection& dib, LogFont& font, const std::string& text, std::int16_t placement,
                       std::uint32_t color, std::uint8_t alpha, const TextRaster& raster);

/// Blends a color into the pixels under a text; each byte is changed on its own.
class WatermarkInk {
 public:
  WatermarkInk(std::uint32_t color, std::uint8_t alpha);

  /// Changes the covered pixels of one row. `y` counts from the top of the picture, `row` points to its bytes.
  void ApplyToRow(const TextMask& mask, std::int32_t y, std::uint8_t* row) const;
  void Apply(const TextMask& mask, cDIBSection& dib) const;

 private:
  std::array<std::array<std::uint8_t, 256>, 3> blended_;  // blue, green, red: indexed by the picture's byte
};

/// The watermark of one target during a run. Thread-safe. The mask of the text is computed once for each picture size;
/// those of the last few sizes are cached.
class WatermarkPainter {
 public:
  /// `raster` must outlive the painter. Settings that cannot be drawn fail only when drawn.
  WatermarkPainter(const WatermarkSettings& settings, std::int32_t pixelsPerInch, const TextRaster& raster);

  /// Throws like DrawWatermarkText, and RuntimeFailure Overflow if alpha does not fit in a byte.
  void Draw(cDIBSection& dib) const;

  /// MaskFor returns the pixels that Draw changes in a picture of that size, Ink how they change, for a picture that is
  /// processed row by row. MaskFor throws like Draw.
  [[nodiscard]] std::shared_ptr<const TextMask> MaskFor(std::int32_t width, std::int32_t height) const;
  [[nodiscard]] const WatermarkInk& Ink() const { return ink_; }

 private:
  struct KnownMask {
    std::int32_t width;
    std::int32_t height;
    std::shared_ptr<const TextMask> mask;
  };

  std::string text_;
  std::int16_t placement_;
  LogFont font_;
  std::int16_t alpha_;
  WatermarkInk ink_;
  const TextRaster& raster_;
  mutable std::mutex mutex_;
  mutable std::vector<KnownMask> known_;  // most recently used last
};

}  // namespace vantorium::image
