#include "image/literal/TurnLiteral.h"

#include <cstring>
#include <utility>

namespace vantorium::image::literal {
namespace {

/// Returns column and row, from the top left, of the stored pixel that is seen at (x, y) of the upright picture.
/// `right` and `bottom` are the last column and row of the stored picture. Exif says where the stored row 0 and column
/// 0 are seen: 1 top and left, 2 top and right, 3 bottom and right, 4 bottom and left, 5 left and top, 6 right and top,
/// 7 right and bottom, 8 left and bottom.
std::pair<std::int32_t, std::int32_t> StoredPlace(int orientation, std::int32_t x, std::int32_t y, std::int32_t right,
                                                  std::int32_t bottom) {
  switch (orientation) {
    case 2:
      return {right - x, y};
    case 3:
      return {right - x, bottom - y};
    case 4:
      return {x, bottom - y};
    case 5:
      return {y, x};
    case 6:
      return {y, bottom - x};
    case 7:
      return {right - y, bottom - x};
    case 8:
      return {right - y, x};
    default:
      return {x, y};
  }
}

}  // namespace

cDIBSection TurnLiteral(const cDIBSection& stored, Orientation orientation) {
  const int number = static_cast<int>(orientation);
  const std::int32_t width = number > 4 ? stored.height() : stored.width();
  const std::int32_t height = number > 4 ? stored.width() : stored.height();
  cDIBSection upright;
  if (!upright.Create(width, height)) return upright;
  for (std::int32_t y = 0; y < height; ++y) {
    for (std::int32_t x = 0; x < width; ++x) {
      const auto [column, row] = StoredPlace(number, x, y, stored.width() - 1, stored.height() - 1);
      std::memcpy(upright.Row(height - 1 - y) + 3 * x, stored.Row(stored.height() - 1 - row) + 3 * column, 3);
    }
  }
  return upright;
}

}  // namespace vantorium::image::literal
