#pragma once

#include "core/ImageListDisplay.h"

#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records, in order, the calls that the image list's operations make to their window.
class RecordingImageListDisplay : public core::ImageListDisplay {
 public:
  void ShowBusyPointer(bool busy) override { calls.emplace_back(busy ? "wait" : "reset"); }
  void RefreshPreview() override { calls.emplace_back("preview"); }
  void RefreshCounts() override { calls.emplace_back("counts"); }
  void ScrollIntoView(std::size_t position) override { calls.push_back("scroll " + std::to_string(position)); }

  std::vector<std::string> calls;
};

}  // namespace vantorium::fakes
