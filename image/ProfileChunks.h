#pragma once

#include <array>
#include <string>
#include <string_view>

namespace vantorium::image {

/// Puts a color profile together from the segments of a JPEG file (ICC.1:2010, B.4). A profile is stored in up to 255
/// APP2 segments: "ICC_PROFILE", 0, the number of the chunk from 1, the number of chunks, the bytes of the chunk.
class ProfileChunks {
 public:
  /// Takes the contents of an APP2 segment. A segment that holds no chunk is ignored.
  void Take(std::string_view segment);
  /// Returns the profile. Empty if there is none, or if a chunk is missing, there twice, or contradicts another.
  [[nodiscard]] std::string Profile() const;

 private:
  static constexpr std::size_t kMostChunks = 255;

  std::array<std::string, kMostChunks> chunks_;  // the bytes of chunk i + 1; no chunk may be empty
  std::size_t count_ = 0;
  bool wrong_ = false;
};

}  // namespace vantorium::image
