#pragma once

#include "env/FileDescriptor.h"

#include <filesystem>
#include <string>

namespace vantorium {

/// The folder VANTORIUM_TEMP (native path) in the hands of one process: runs that put their files into the same one
/// would send each other's. The system takes the lock back when the process ends, however it does. On a file system
/// without locks, and for a folder that can't be opened, there is none and nobody else has one.
class TempFolderLock {
 public:
  explicit TempFolderLock(const std::filesystem::path& folder);

  /// Whether another process, or another lock of this one, has the folder.
  [[nodiscard]] bool IsTakenElsewhere() const { return takenElsewhere_; }

 private:
  FileDescriptor folder_;
  bool takenElsewhere_ = false;
};

/// Why the program must not work in `folder` (native path), a sentence; empty when it may. In a place that others can
/// write to, somebody may have made the folder before, or put links into it that lead to other people's files. So it
/// has to be the user's own, and neither it nor anything in it may be a symbolic link or a folder of another user.
/// Others lose the right to write to it. A folder that is not there is none to refuse.
[[nodiscard]] std::string RefusalOfTempFolder(const std::filesystem::path& folder);

}  // namespace vantorium
