#pragma once

#include "env/FileDescriptor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace vantorium::generation {

/// Stores thumbnails, which are made together with their images, until their turn comes after all images. They are in a
/// file without a name, so that a gallery of any length costs no memory and a killed program leaves no file behind.
class ThumbnailSpool {
 public:
  /// Creates the file in `folder`, on the disk that the gallery is written to.
  explicit ThumbnailSpool(const std::filesystem::path& folder);

  struct Place {
    std::int64_t offset = 0;
    std::size_t size = 0;
  };

  /// Stores the bytes. Returns nullopt if there is no file or no space; the thumbnail is then made again at its turn.
  [[nodiscard]] std::optional<Place> Put(std::string_view bytes);
  /// Returns the bytes at `place`, or nullopt if they cannot be read.
  [[nodiscard]] std::optional<std::string> Get(Place place) const;

 private:
  env::FileDescriptor file_;
  std::int64_t end_ = 0;
};

}  // namespace vantorium::generation
