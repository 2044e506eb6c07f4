#pragma once

#include "env/FileDescriptor.h"

#include <cerrno>
#include <filesystem>
#include <string_view>

namespace vantorium {

/// A new file beside `target`, to be filled and then renamed over it, so that the target's name only ever shows a whole
/// file. Only a regular file or a symbolic link is ever replaced, and no file that its owner may not write. The new
/// file has owner, group and permissions of the old one as far as the system allows. It vanishes with the object unless
/// TakeTargetName succeeded. All failures are RuntimeFailure FileAccess.
class NeighbourFile {
 public:
  explicit NeighbourFile(const std::filesystem::path& target);
  ~NeighbourFile();
  NeighbourFile(const NeighbourFile&) = delete;
  NeighbourFile& operator=(const NeighbourFile&) = delete;

  [[nodiscard]] int Descriptor() const { return file_.Get(); }
  void Write(std::string_view bytes);
  /// Whether there was a regular file of that name to begin with.
  [[nodiscard]] bool ReplacesFile() const { return replacesFile_; }
  /// Forces the bytes to the disk.
  void Sync();
  /// Renames the file over the target.
  void TakeTargetName();

 private:
  [[nodiscard]] int CreateNeighbour();

  std::filesystem::path target_;
  std::filesystem::path path_;  ///< given by CreateNeighbour
  bool replacesFile_ = false;   ///< and this
  FileDescriptor file_;
  bool renamed_ = false;
};

/// Whether a neighbour could have that name, whichever process made it.
[[nodiscard]] bool IsNeighbourName(std::string_view name);

/// Removes from `folder` what processes that are gone left of their neighbours. Failures don't matter.
void RemoveAbandonedNeighbours(const std::filesystem::path& folder);

/// Throws RuntimeFailure FileAccess that names `path` and the reason, an errno value.
[[noreturn]] void ThrowFileAccess(const std::filesystem::path& path, int reason = errno);

}  // namespace vantorium
