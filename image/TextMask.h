#pragma once

#include <bit>
#include <cstdint>
#include <vector>

namespace vantorium::image {

/// The pixels of a picture that a text covers: one bit for each pixel of a rectangle, none outside it. Columns and rows
/// are counted from the picture's top left corner.
class TextMask {
 public:
  /// A mask that covers nothing and has no rectangle.
  TextMask() = default;
  /// A mask that covers nothing yet. It has no rectangle if a side is below 1.
  TextMask(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height);

  [[nodiscard]] std::int32_t left() const { return left_; }
  [[nodiscard]] std::int32_t top() const { return top_; }
  [[nodiscard]] std::int32_t width() const { return width_; }
  [[nodiscard]] std::int32_t height() const { return height_; }

  /// The bits, row by row from the top.
  [[nodiscard]] const std::vector<std::uint64_t>& words() const { return words_; }

  [[nodiscard]] bool Covers(std::int32_t x, std::int32_t y) const;
  /// The pixel must lie in the rectangle.
  void Cover(std::int32_t x, std::int32_t y);

  /// Calls `paint(x)` for each covered pixel of row `y`, from left to right.
  template <typename Paint>
  void ForEachPixel(std::int32_t y, Paint paint) const {
    if (y < top_ || y >= top_ + height_) return;
    const std::uint64_t* row = words_.data() + RowStart(y);
    for (std::int32_t i = 0; i < wordsPerRow_; ++i) {
      for (std::uint64_t bits = row[i]; bits != 0; bits &= bits - 1) paint(left_ + 64 * i + std::countr_zero(bits));
    }
  }

 private:
  [[nodiscard]] std::size_t RowStart(std::int32_t y) const {
    return static_cast<std::size_t>(y - top_) * static_cast<std::size_t>(wordsPerRow_);
  }

  std::int32_t left_ = 0;
  std::int32_t top_ = 0;
  std::int32_t width_ = 0;
  std::int32_t height_ = 0;
  std::int32_t wordsPerRow_ = 0;
  std::vector<std::uint64_t> words_;  // row by row from the top, the lowest bit at the left
};

}  // namespace vantorium::image
