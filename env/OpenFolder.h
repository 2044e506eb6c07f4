#pragma once

#include <optional>
#include <string>

#include <dirent.h>
#include <fcntl.h>

namespace vantorium {

/// How folders are opened here. With O_NOFOLLOW a link is no folder.
inline constexpr int kFolderFlags = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// A folder that is open, and its entries one after the other. What is in it is reached through it, so nothing that is
/// moved or linked meanwhile can lead elsewhere.
class OpenFolder {
 public:
  /// Takes over a descriptor; one below 0 is a folder that could not be opened.
  explicit OpenFolder(int folder);
  ~OpenFolder();
  OpenFolder(const OpenFolder&) = delete;
  OpenFolder& operator=(const OpenFolder&) = delete;

  [[nodiscard]] bool IsOpen() const { return listing_ != nullptr; }
  [[nodiscard]] int Descriptor() const { return ::dirfd(listing_); }
  /// The name of the next entry, without "." and ".."; nothing at the end.
  [[nodiscard]] std::optional<std::string> Next();

 private:
  DIR* listing_;
};

}  // namespace vantorium
