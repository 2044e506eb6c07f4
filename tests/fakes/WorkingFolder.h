#pragma once

#include <filesystem>

namespace vantorium::fakes {

/// Makes a folder the working folder of the process until the destructor goes back.
class WorkingFolder {
 public:
  explicit WorkingFolder(const std::filesystem::path& folder) { std::filesystem::current_path(folder); }
  ~WorkingFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }
  WorkingFolder(const WorkingFolder&) = delete;
  WorkingFolder& operator=(const WorkingFolder&) = delete;

 private:
  std::filesystem::path before_ = std::filesystem::current_path();
};

}  // namespace vantorium::fakes
