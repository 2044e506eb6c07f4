#pragma once

#include <cstdint>
#include <memory>

namespace vantorium::image {

/// The program's one image type: 24 bits per pixel, bytes blue, green, red, rows bottom-up (row 0 is the bottom row of
/// the picture), each row padded to a multiple of 4 bytes. No operation writes the padding.
class cDIBSection {
 public:
  /// Releases the old image and creates one of `width` x `height` pixels with undefined contents. Returns false,
  /// leaving no image, if a side is below 1, the width is too large or memory cannot be allocated.
  [[nodiscard]] bool Create(std::int32_t width, std::int32_t height);
  /// Releases the pixels. `width` and `height` still return the old size.
  void ClearUp();

  /// (width * 3 + 3) with the two low bits cleared.
  [[nodiscard]] std::int32_t BytesPerScanLine() const;
  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }

  /// The first byte of row 0; null when there is no image.
  [[nodiscard]] std::uint8_t* DIBSectionBitsPtr() { return bits_.get(); }
  [[nodiscard]] const std::uint8_t* DIBSectionBitsPtr() const { return bits_.get(); }
  [[nodiscard]] std::uint8_t* Row(std::int32_t row);
  [[nodiscard]] const std::uint8_t* Row(std::int32_t row) const;

 private:
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  std::unique_ptr<std::uint8_t[]> bits_;
};

}  // namespace vantorium::image
