#pragma once

#include "image/JPEGFile.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vantorium::image {

/// Walks through the segments in front of the first scan of a JPEG file. Only what is asked for is read; the rest is
/// skipped.
class JPEGSegments {
 public:
  /// A file that cannot be read, or does not begin as a JPEG file, has no segments.
  explicit JPEGSegments(const std::filesystem::path& path);

  /// Advances to the next segment and returns its marker, the byte after 0xFF. Returns nullopt at the first scan, at
  /// the end of the file, and at a marker that cannot be there.
  [[nodiscard]] std::optional<int> Next();
  /// Returns the contents of the current segment; empty if the file ends inside it. Call once for each segment.
  [[nodiscard]] std::string Contents();

 private:
  [[nodiscard]] int NextMarker();

  FileHandle file_;
  long left_ = 0;  // bytes of the current segment that are not read
};

}  // namespace vantorium::image
