#pragma once

#include <cstddef>

namespace vantorium {

/// What the operations on the image list ask of the window that shows it. A face without a window overrides nothing.
class ImageListDisplay {
 public:
  virtual ~ImageListDisplay() = default;

  virtual void ShowWaitPointer() {}
  virtual void ResetPointer() {}
  /// The preview is of the list's current row, empty without one.
  virtual void RefreshPreview() {}
  /// The number of images and of thumbnail pages, wherever they are shown.
  virtual void RefreshCounts() {}
  virtual void ScrollIntoView(std::size_t /*position*/) {}
};

}  // namespace vantorium
