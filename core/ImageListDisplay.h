#pragma once

#include "env/WindowState.h"

#include <cstddef>

namespace vantorium::core {

/// What ImageListOperations needs from the window that shows the list. A program without a window overrides nothing.
class ImageListDisplay : public virtual env::WindowState {
 public:
  /// The preview shows the list's current row, and is empty without one.
  virtual void RefreshPreview() {}
  /// The number of images and of thumbnail pages, wherever shown.
  virtual void RefreshCounts() {}
  virtual void ScrollIntoView(std::size_t /*position*/) {}
};

}  // namespace vantorium::core
