#include "ui/model/main/DropTarget.h"

namespace vantorium::ui {

std::size_t DropTarget(std::size_t firstVisible, std::span<const RowExtent> extents, int y) {
  if (extents.empty()) return 0;
  for (std::size_t i = 0; i < extents.size(); ++i) {
    if (y >= extents[i].top && y <= extents[i].top + extents[i].height) return firstVisible + i;
  }
  return y < extents.front().top ? firstVisible : firstVisible + extents.size() - 1;
}

}  // namespace vantorium::ui
