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

namespace vantorium {

/// The small window that is up while the photographs of folders are added.
class FolderWalkProgress {
 public:
  virtual ~FolderWalkProgress() = default;
  /// Shows the window and returns at once; nothing is cancelled yet.
  virtual void Open() = 0;
  /// The folder under way, and how many images were added so far.
  virtual void Show(const std::string& folder, std::size_t added) = 0;
  [[nodiscard]] virtual bool IsCancelled() const = 0;
  virtual void Close() = 0;
};

/// Adds the photographs of folders at the end of the image list, each folder's in the order of their names. What lies
/// in sub folders is not looked at.
class FolderWalk {
 public:
  struct Parts {
    Project& project;
    ImageListOperations& images;
    const PathMap& paths;
    MessageBoxPort& boxes;
    EventLoop& loop;
  };

  /// The event loop gets a turn at the beginning and then whenever `pace` has passed.
  explicit FolderWalk(const Parts& parts, std::chrono::milliseconds pace = std::chrono::milliseconds(15))
      : parts_(parts), pace_(pace) {}

  /// `folders` are path text. A file that cannot be read ends the walk with a box, and so does a cancel, which is
  /// looked for before each file; what was added before stays. What had to be passed over is told in one box behind it:
  /// folders that cannot be read, and names that cannot stand in a project. Sets IsModified when something was added.
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

}  // namespace vantorium
