#include "image/jpeg/Coefficients.h"

namespace vantorium::image::jpeg {
namespace {

// Numbers the marked ones and returns how many these are.
template <typename IsMarked>
std::uint32_t Number(std::vector<std::uint32_t>& slots, IsMarked isMarked) {
  std::uint32_t next = 0;
  for (std::size_t i = 0; i < slots.size(); ++i) {
    if (isMarked(i)) slots[i] = next++;
  }
  return next;
}

}  // namespace

// The values are left uninitialized: most pages of their memory are never touched.
Coefficients::Coefficients(const Component& component)
    : blocksPerRow_(component.plane.BlocksPerRow()),
      notZero_(blocksPerRow_ * component.plane.BlockRows()),
      columnSlots_(blocksPerRow_, kUnwanted),
      rowSlots_(component.plane.BlockRows(), kUnwanted) {
  const Plane& plane = component.plane;
  wantedPerRow_ = Number(columnSlots_, [&](std::size_t column) { return plane.WantedColumns()[column] != 0; });
  const std::size_t rows = Number(rowSlots_, [&](std::size_t row) { return plane.WantedRows(row) != 0; });
  values_ = std::make_unique_for_overwrite<std::int16_t[]>(rows * wantedPerRow_ * 64);
}

Coefficients::Row Coefficients::RowOf(std::size_t blockRow) {
  const std::uint32_t slot = rowSlots_[blockRow];
  return {notZero_.data() + blockRow * blocksPerRow_, columnSlots_.data(),
          slot == kUnwanted ? nullptr : values_.get() + slot * wantedPerRow_ * 64};
}

}  // namespace vantorium::image::jpeg
