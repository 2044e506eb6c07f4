#pragma once

#include "core/ImageListOperations.h"
#include "core/Project.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

namespace vantorium::ui {

/// The small window shown while the photographs of folders are added.
class FolderWalkProgress {
 public:
  virtual ~FolderWalkProgress() = default;
  /// Shows the window, not cancelled, and returns at once.
  virtual void Open() = 0;
  /// Shows the current folder and the number of images added so far.
  virtual void Show(const std::string& folder, std::size_t added) = 0;
  [[nodiscard]] virtual bool IsCancelled() const = 0;
  virtual void Close() = 0;
};

/// Appends the photographs of folders to the image list, those of each folder sorted by name. Does not search
/// subfolders.
class FolderWalk {
 public:
  struct Parts {
    core::Project& project;
    core::ImageListOperations& images;
    const env::PathMap& paths;
    env::MessageBoxPort& boxes;
    env::EventLoop& loop;
  };

  /// The event loop gets a turn at the beginning and then whenever `pace` has passed.
  explicit FolderWalk(const Parts& parts, std::chrono::milliseconds pace = std::chrono::milliseconds(15))
      : parts_(parts), pace_(pace) {}

  /// `folders` are path text. A file that cannot be read ends the walk with a message box. A cancel, checked before
  /// each file, ends it too. Images already added stay. One message box at the end lists what was skipped: folders that
  /// cannot be read, and names that a project cannot store. Sets IsModified if anything was added.
  void Run(const std::vector<std::string>& folders, FolderWalkProgress& progress);

 private:
  using Clock = std::chrono::steady_clock;

  [[nodiscard]] bool AddFolder(const std::string& folder);
  [[nodiscard]] std::vector<std::string> ImagesIn(const std::string& folder);
  [[nodiscard]] bool AddImage(const std::string& path, const std::string& name);
  [[nodiscard]] bool GoesOn();
  void TellProblems();

  Parts parts_;
  std::chrono::milliseconds pace_;
  FolderWalkProgress* progress_ = nullptr;
  std::string folder_;
  std::size_t added_ = 0;
  std::vector<std::string> problems_;
  Clock::time_point lastTurn_;
};

}  // namespace vantorium::ui
