#include "image/jpeg/ProgressiveWalk.h"

#include <bit>
#include <cstdlib>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

// Returns the sum of the absolute coefficients.
int Dequantize(const std::int16_t* values, std::uint64_t notZero, const std::array<int, 64>& steps, Block& block) {
  Clear(block);
  int sum = 0;
  // The value of the DC coefficient is always known.
  for (std::uint64_t left = notZero | 1; left != 0; left &= left - 1) {
    const auto k = static_cast<std::size_t>(std::countr_zero(left));
    const int coefficient = values[k] * steps[k];
    sum += std::abs(coefficient);
    block.values[kPlaceInBlock[k]] = static_cast<std::int16_t>(coefficient);
  }
  return sum;
}

}  // namespace

ProgressiveWalk::ProgressiveWalk(const jpeg_decompress_struct& header, UsualFile file, SegmentReader reader,
                                 std::stop_token stop)
    : reader_(std::move(reader)),
      headers_(header),
      picture_{file.grid, std::move(file.components), {}},
      stop_(std::move(stop)) {
  for (const Component& component : picture_.components) picture_.coefficients.emplace_back(component);
}

bool ProgressiveWalk::ReadScans() {
  while (headers_.Scan()) {
    if (!ReadScan(reader_, headers_, picture_, stop_)) return false;
    if (!headers_.ReadNext(reader_.Marker(), reader_.Data())) return false;
  }
  return headers_.AreComplete();
}

bool ProgressiveWalk::PassBlocks(std::size_t component, std::size_t blockRow) {
  auto& [plane, steps, blocksPerRow, blockRows] = picture_.components[component];
  const unsigned rows = plane.WantedRows(blockRow);
  if (rows == 0) return true;
  const Coefficients::Row blocks = picture_.coefficients[component].RowOf(blockRow);
  Block block;
  for (std::size_t column = 0; column < blocksPerRow; ++column) {
    const std::int16_t* values = blocks.ValuesOf(column);
    if (values == nullptr) continue;
    const int sum = Dequantize(values, blocks.notZero[column], steps, block);
    if (!TransformIfTame(block, sum, rows, plane.Row(8 * blockRow) + 8 * column, plane.Stride())) return false;
  }
  return true;
}

bool ProgressiveWalk::PassRow() {
  if (rowsPassed_ == 0 && !ReadScans()) return false;
  for (std::size_t i = 0; i < picture_.components.size(); ++i) {
    const std::size_t down = picture_.components[i].plane.Down();
    for (std::size_t y = 0; y < down; ++y) {
      if (!PassBlocks(i, rowsPassed_ * down + y)) return false;
    }
  }
  ++rowsPassed_;
  return true;
}

}  // namespace vantorium::image::jpeg
