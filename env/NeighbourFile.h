#pragma once

#include "env/FileDescriptor.h"

#include <cerrno>
#include <filesystem>
#include <string_view>

namespace vantorium {

/// A new file beside `target`, to be filled and then renamed over it, so that the target's name only ever shows a whole
/// file. It vanishes with the object unless TakeTargetName succeeded. All failures are RuntimeFailure FileAccess.
class NeighbourFile {
 public:
  explicit NeighbourFile(const std::filesystem::path& target);
  ~NeighbourFile();
  NeighbourFile(const NeighbourFile&) = delete;
  NeighbourFile& operator=(const NeighbourFile&) = delete;

  [[nodiscard]] int Descriptor() const { return file_.Get(); }
  void Write(std::string_view bytes);
  /// Gives the file the permissions of the old file, when there is one: what its owner keeps private stays so.
  void TakeTargetPermissions();
  /// Forces the bytes to the disk.
  void Sync();
  /// Renames the file over the target. An old file that its owner may not write is not replaced.
  void TakeTargetName();

 private:
  [[nodiscard]] int CreateNeighbour();

  std::filesystem::path target_;
  std::filesystem::path path_;  ///< given by CreateNeighbour
  FileDescriptor file_;
  bool renamed_ = false;
};

/// Throws RuntimeFailure FileAccess that names `path` and the reason, an errno value.
[[noreturn]] void ThrowFileAccess(const std::filesystem::path& path, int reason = errno);

}  // namespace vantorium
