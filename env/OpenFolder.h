#pragma once

#include <filesystem>
#include <optional>
#include <string>

#include <dirent.h>
#include <fcntl.h>

namespace vantorium::env {

/// The flags for opening a folder. With O_NOFOLLOW added, a symbolic link is refused.
inline constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// An open folder that iterates over its entries. Entries are accessed through its descriptor, so nothing that is moved
/// or linked meanwhile can lead elsewhere.
class OpenFolder {
 public:
  /// Takes ownership of a descriptor; a negative one is a folder that could not be opened.
  explicit OpenFolder(int folder);
  ~OpenFolder();
  OpenFolder(const OpenFolder&) = delete;
  OpenFolder& operator=(const OpenFolder&) = delete;

  [[nodiscard]] bool IsOpen() const { return listing_ != nullptr; }
  [[nodiscard]] int Descriptor() const { return ::dirfd(listing_); }
  /// Returns the name of the next entry, skipping "." and "..", or nullopt at the end.
  [[nodiscard]] std::optional<std::string> Next();

 private:
  DIR* listing_;
};

/// Returns whether there is a folder of that name. nullopt is none.
[[nodiscard]] bool IsFolder(const std::optional<std::filesystem::path>& path);
/// Returns whether `folder` is a folder whose entries can be read. nullopt is none.
[[nodiscard]] bool CanListFolder(const std::optional<std::filesystem::path>& folder);

}  // namespace vantorium::env
