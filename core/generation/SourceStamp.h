#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

namespace vantorium {

/// By what a file is known again: another file under the same name, or other bytes in it, have another stamp.
struct SourceStamp {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  std::int64_t size = 0;
  std::int64_t writeTime = 0;   ///< nanoseconds
  std::int64_t changeTime = 0;  ///< nanoseconds

  bool operator==(const SourceStamp&) const = default;
};

/// The stamp of a file as it is now; nothing when it is not there.
[[nodiscard]] std::optional<SourceStamp> StampOf(const std::filesystem::path& file);

}  // namespace vantorium
