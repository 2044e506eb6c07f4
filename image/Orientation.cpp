#include "image/Orientation.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vantorium::image {

Turn::Turn(Orientation orientation)
    : swapsSides(orientation >= Orientation::SwapSides),
      reversesColumns(orientation == Orientation::MirrorColumns || orientation == Orientation::TurnAround ||
                      orientation == Orientation::SwapSidesAround || orientation == Orientation::TurnLeft),
      reversesRows(orientation == Orientation::TurnAround || orientation == Orientation::MirrorRows ||
                   orientation == Orientation::TurnRight || orientation == Orientation::SwapSidesAround) {}

PictureSize Turn::SizeOf(PictureSize size) const {
  return swapsSides ? PictureSize{size.height, size.width} : size;
}

WantedPixels Turn::ToStored(const WantedPixels& upright) const {
  WantedPixels stored = upright;
  if (swapsSides) std::swap(stored.columns, stored.rows);
  if (reversesColumns) std::reverse(stored.columns.begin(), stored.columns.end());
  if (reversesRows) std::reverse(stored.rows.begin(), stored.rows.end());
  return stored;
}

bool TurnUpright(cDIBSection& dib, Orientation orientation) {
  if (orientation == Orientation::AsStored) return true;
  const Turn turn(orientation);
  const PictureSize stored = {dib.width(), dib.height()};
  const PictureSize size = turn.SizeOf(stored);
  cDIBSection upright;
  if (!upright.Create(size.width, size.height)) return false;
  for (std::int32_t y = 0; y < stored.height; ++y) {
    const std::uint8_t* from = dib.Row(stored.height - 1 - y);
    const std::int32_t row = turn.reversesRows ? stored.height - 1 - y : y;
    for (std::int32_t x = 0; x < stored.width; ++x, from += 3) {
      const std::int32_t column = turn.reversesColumns ? stored.width - 1 - x : x;
      const auto [toX, toY] = turn.swapsSides ? std::pair(row, column) : std::pair(column, row);
      std::memcpy(upright.Row(size.height - 1 - toY) + 3 * std::ptrdiff_t{toX}, from, 3);
    }
  }
  dib = std::move(upright);
  return true;
}

}  // namespace vantorium::image
