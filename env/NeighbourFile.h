#pragma once

#include "env/FileDescriptor.h"

#include <cerrno>
#include <filesystem>
#include <string_view>

namespace vantorium::env {

/// A new file next to `target`, to be filled and then renamed over it, so that `target` never shows a partial file. It
/// only replaces a regular file or a symbolic link, and never a file that its owner may not write. It gets owner, group
/// and permissions of the old file as far as the system allows. The destructor deletes it unless TakeTargetName
/// succeeded. All failures are RuntimeFailure FileAccess.
class NeighbourFile {
 public:
  explicit NeighbourFile(const std::filesystem::path& target);
  ~NeighbourFile();
  NeighbourFile(const NeighbourFile&) = delete;
  NeighbourFile& operator=(const NeighbourFile&) = delete;

  [[nodiscard]] int Descriptor() const { return file_.Get(); }
  void Write(std::string_view bytes);
  /// Whether the target was a regular file when this object was created.
  [[nodiscard]] bool ReplacesFile() const { return replacesFile_; }
  /// Syncs the bytes to disk.
  void Sync();
  /// Renames the file over the target.
  void TakeTargetName();

 private:
  [[nodiscard]] int CreateNeighbour();

  std::filesystem::path target_;
  std::filesystem::path path_;  ///< set by CreateNeighbour
  bool replacesFile_ = false;   ///< set by CreateNeighbour
  FileDescriptor file_;
  bool renamed_ = false;
};

/// Whether a neighbour of any process could have that name.
[[nodiscard]] bool IsNeighbourName(std::string_view name);

/// Removes the neighbours in `folder` that ended processes left behind. Failures are ignored.
void RemoveAbandonedNeighbours(const std::filesystem::path& folder);

/// Throws RuntimeFailure FileAccess with a description that names `path` and `reason`, an errno value.
[[noreturn]] void ThrowFileAccess(const std::filesystem::path& path, int reason = errno);

}  // namespace vantorium::env
