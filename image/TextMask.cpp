#include "image/TextMask.h"

namespace vantorium::image {

TextMask::TextMask(std::int32_t left, std::int32_t top, std::int32_t width, std::int32_t height) {
  if (width < 1 || height < 1) return;
  left_ = left;
  top_ = top;
  width_ = width;
  height_ = height;
  wordsPerRow_ = (width + 63) / 64;
  words_.resize(static_cast<std::size_t>(wordsPerRow_) * static_cast<std::size_t>(height));
}

bool TextMask::Covers(std::int32_t x, std::int32_t y) const {
  if (x < left_ || x >= left_ + width_ || y < top_ || y >= top_ + height_) return false;
  const auto column = static_cast<std::size_t>(x - left_);
  return ((words_[RowStart(y) + column / 64] >> (column % 64)) & 1U) != 0;
}

void TextMask::Cover(std::int32_t x, std::int32_t y) {
  const auto column = static_cast<std::size_t>(x - left_);
  words_[RowStart(y) + column / 64] |= std::uint64_t{1} << (column % 64);
}

}  // namespace vantorium::image
