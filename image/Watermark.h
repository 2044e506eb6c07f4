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

namespace vantorium {

/// Draws `text` over the picture at one of eleven places, blended at `alpha` percent. `color` is 0x00BBGGRR. An empty
/// text and a picture without pixels change nothing. Changes `lfQuality`, `lfEscapement` and `lfOrientation` of the
/// font. Throws RuntimeFailure Overflow, before a pixel is changed, when the picture or the text is too large for
/// 16-bit coordinates (see PlaceWatermark).
void DrawWatermarkText(cDIBSection& dib, LogFont& font, const std::string& text, std::int16_t placement,
                       std::uint32_t color, std::uint8_t alpha, const TextRaster& raster);

/// What becomes of the pixels under a text: a function of each byte.
class WatermarkInk {
 public:
  WatermarkInk(std::uint32_t color, std::uint8_t alpha);

  /// Changes the covered pixels of one row. `y` counts from the top of the picture, `row` are its bytes.
  void ApplyToRow(const TextMask& mask, std::int32_t y, std::uint8_t* row) const;
  void Apply(const TextMask& mask, cDIBSection& dib) const;

 private:
  std::array<std::array<std::uint8_t, 256>, 3> blended_;  // blue, green, red: by the byte of the picture
};

/// The watermark of one target for the length of a run. Drawing is safe from several threads at once. The pixels of the
/// text are worked out once for pictures of one size; those of the few last sizes are kept.
class WatermarkPainter {
 public:
  /// `raster` must live as long as the painter. Settings that can't be drawn fail only when they are to be drawn.
  WatermarkPainter(const WatermarkSettings& settings, std::int32_t pixelsPerInch, const TextRaster& raster);

  /// Throws as DrawWatermarkText, and RuntimeFailure Overflow for an alpha that is no byte.
  void Draw(cDIBSection& dib) const;

  /// The pixels that Draw changes in a picture of that size, and the change row by row, for a picture that is never
  /// held in whole. Throws as Draw.
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
  mutable std::vector<KnownMask> known_;  // the one used last is at the end
};

}  // namespace vantorium
