#include "image/jpeg/ProgressiveWalk.h"

#include <bit>
#include <utility>

namespace vantorium::image::jpeg {
namespace {

// Returns the sum of the absolute coefficients. The value of the DC coefficient is always known.
int Dequantize(const std::int16_t* values, std::uint64_t notZero, const std::array<int, 64>& steps, Block& block) {
  Clear(block);
  int sum = 0;
  for (std::uint64_t left = notZero | 1; left != 0; left &= left - 1) {
    const auto k = static_cast<std::size_t>(std::countr_zero(left));
    sum += Put(block, k, values[k] * steps[k]);
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

bool ProgressiveWalk::PassBlocks(std::size_t number, std::size_t blockRow) {
  Component& component = picture_.components[number];
  Plane& plane = component.plane;
  const unsigned rows = plane.WantedRows(blockRow);
  if (rows == 0) return true;
  const Coefficients::Row blocks = picture_.coefficients[number].RowOf(blockRow);
  Block block;
  for (std::size_t column = 0; column < component.blocksPerRow; ++column) {
    const std::int16_t* values = blocks.ValuesOf(column);
    if (values == nullptr) continue;
    const int sum = Dequantize(values, blocks.notZero[column], component.steps, block);
    if (!TransformIfTame(block, sum, rows, plane.Row(8 * blockRow) + 8 * column, plane.Stride())) return false;
  }
  return true;
}

bool ProgressiveWalk::PassRow(std::size_t row) {
  if (row == 0 && !ReadScans()) return false;
  for (std::size_t i = 0; i < picture_.components.size(); ++i) {
    const std::size_t down = picture_.components[i].plane.Down();
    for (std::size_t y = 0; y < down; ++y) {
      if (!PassBlocks(i, row * down + y)) return false;
    }
  }
  return true;
}

}  // namespace vantorium::image::jpeg
