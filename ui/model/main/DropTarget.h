#pragma once

#include <cstddef>
#include <span>

namespace vantorium {

/// Where a row of the list stands in its window, in the window's own unit, counted downward.
struct RowExtent {
  int top;
  int height;
};

/// The row that something dropped at height `y` is meant for: the one whose extent, both ends included, holds `y`,
/// above all of them the first visible one, else the last. `extents` are those of the rows from `firstVisible` to the
/// end of the list; 0 when there are none.
[[nodiscard]] std::size_t DropTarget(std::size_t firstVisible, std::span<const RowExtent> extents, int y);

}  // namespace vantorium
