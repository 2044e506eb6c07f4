#pragma once

#include "env/FileDescriptor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace vantorium {

/// Length of a regular file in bytes. Throws RuntimeFailure FileNotFound, also when `file` holds nothing, FileAccess,
/// and Overflow for a length that needs more than 31 bits.
[[nodiscard]] std::int32_t LengthOfFile(const std::optional<std::filesystem::path>& file);

/// A file that is read block by block, some blocks ahead.
class LocalFile {
 public:
  /// Throws RuntimeFailure FileNotFound or FileAccess.
  explicit LocalFile(const std::filesystem::path& file);

  /// Fills the whole block with what comes next; false when that fails or the file ends before.
  [[nodiscard]] bool Read(std::span<char> block);

 private:
  [[nodiscard]] bool ReadAhead();

  FileDescriptor file_;
  std::vector<char> buffer_;
  std::span<const char> ahead_;  ///< of the buffer: what was read and not asked for yet
};

}  // namespace vantorium
