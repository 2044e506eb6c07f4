#pragma once

#include "env/FileDescriptor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium {

/// Keeps thumbnails from the moment they are made, together with their images, until their turn comes after all images.
/// They lie in a file without a name, so that a gallery of any length costs no memory and a program that is killed
/// leaves nothing behind.
class ThumbnailSpool {
 public:
  /// The file is made in `folder`, on the disk that the gallery goes to.
  explicit ThumbnailSpool(const std::filesystem::path& folder);

  struct Place {
    std::int64_t offset = 0;
    std::size_t size = 0;
  };

  /// Keeps the bytes. Nothing when there is no file or no room for them: they are then made again at their turn.
  [[nodiscard]] std::optional<Place> Put(std::string_view bytes);
  /// The bytes of a place. Nothing when they can't be read.
  [[nodiscard]] std::optional<std::string> Get(Place place) const;

 private:
  FileDescriptor file_;
  std::int64_t end_ = 0;
};

}  // namespace vantorium
