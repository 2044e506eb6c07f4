#pragma once

#include "env/FileDescriptor.h"

#include <filesystem>
#include <string>

namespace vantorium::env {

/// Locks the folder VANTORIUM_TEMP (native path) for one process: two runs in the same folder would send each other's
/// files. The system releases the lock when the process ends, however it ends. On a file system without locks, and for
/// a folder that cannot be opened, there is no lock and nobody else holds one.
class TempFolderLock {
 public:
  explicit TempFolderLock(const std::filesystem::path& folder);

  /// Whether another process, or another lock of this process, holds the folder.
  [[nodiscard]] bool IsTakenElsewhere() const { return takenElsewhere_; }

 private:
  FileDescriptor folder_;
  bool takenElsewhere_ = false;
};

/// Returns a sentence why the program must not work in `folder` (native path); empty if it may. In a place that others
/// can write to, somebody may have created the folder before, or put links into it that lead to other people's files.
/// So it must belong to the user, and neither it nor anything in it may be a symbolic link or a folder of another user.
/// Removes the right of others to write to it. A missing folder is not refused.
[[nodiscard]] std::string RefusalOfTempFolder(const std::filesystem::path& folder);

}  // namespace vantorium::env
