#pragma once

#include <cstddef>
#include <span>

namespace vantorium::ui {

/// The extent of a row of the list in its window, in the window's own unit, counted downward.
struct RowExtent {
  int top;
  int height;
};

/// Returns the row that a drop at height `y` targets: the one whose extent, both ends included, contains `y`; above all
/// of them the first visible one, otherwise the last. `extents` are those of the rows from `firstVisible` to the end of
/// the list; returns 0 if there are none.
[[nodiscard]] std::size_t DropTarget(std::size_t firstVisible, std::span<const RowExtent> extents, int y);

}  // namespace vantorium::ui
