#include "image/cDIBSection.h"

#include <limits>
#include <new>

namespace vantorium::image {

bool cDIBSection::Create(std::int32_t width, std::int32_t height) {
  ClearUp();
  constexpr std::int32_t kWidest = (std::numeric_limits<std::int32_t>::max() - 3) / 3;
  if (width < 1 || height < 1 || width > kWidest) return false;
  width_ = width;
  height_ = height;
  const auto size = static_cast<std::size_t>(BytesPerScanLine()) * static_cast<std::size_t>(height);
  bits_.reset(new (std::nothrow) std::uint8_t[size]);
  return bits_ != nullptr;
}

void cDIBSection::ClearUp() {
  bits_.reset();
}

std::int32_t cDIBSection::BytesPerScanLine() const {
  return (width_ * 3 + 3) & ~3;
}

std::uint8_t* cDIBSection::Row(std::int32_t row) {
  return bits_.get() + static_cast<std::ptrdiff_t>(row) * BytesPerScanLine();
}

const std::uint8_t* cDIBSection::Row(std::int32_t row) const {
  return bits_.get() + static_cast<std::ptrdiff_t>(row) * BytesPerScanLine();
}

}  // namespace vantorium::image
