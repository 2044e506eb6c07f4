#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>

namespace vantorium::generation {

/// Identifies a file's content: a changed or replaced file has a different stamp.
struct SourceStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t writeTime = 0;   ///< nanoseconds
  std::int64_t changeTime = 0;  ///< nanoseconds

  bool operator==(const SourceStamp&) const = default;
};

/// Returns the current stamp of a file, or nullopt if the file cannot be found.
[[nodiscard]] std::optional<SourceStamp> StampOf(const std::filesystem::path& file);
/// Returns "device:inode:size:writeTime:changeTime".
[[nodiscard]] std::string StampText(const SourceStamp& stamp);

}  // namespace vantorium::generation
