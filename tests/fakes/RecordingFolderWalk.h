#pragma once

#include "ui/model/files/FolderWalk.h"

#include <string>
#include <vector>

namespace vantorium::fakes {

/// Records what a walk shows, and presses Stop once `cancelAt` images have been added.
class RecordingFolderWalk : public ui::FolderWalkProgress {
 public:
  void Open() override { calls.emplace_back("open"); }
  void Show(const std::string& folder, std::size_t added) override {
    calls.push_back(folder + " " + std::to_string(added));
    shown = added;
  }
  [[nodiscard]] bool IsCancelled() const override { return shown >= cancelAt; }
  void Close() override { calls.emplace_back("close"); }

  std::vector<std::string> calls;
  std::size_t shown = 0;
  std::size_t cancelAt = static_cast<std::size_t>(-1);
};

}  // namespace vantorium::fakes
