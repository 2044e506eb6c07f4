#pragma once

#include "env/FileDescriptor.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <vector>

namespace vantorium::publish {

/// Returns the length of a regular file in bytes. Throws RuntimeFailure FileNotFound, also if `file` is nullopt,
/// FileAccess, and Overflow for a length that needs more than 31 bits.
[[nodiscard]] std::int32_t LengthOfFile(const std::optional<std::filesystem::path>& file);

/// Reads a file block by block, and some blocks ahead.
class LocalFile {
 public:
  /// Throws RuntimeFailure FileNotFound or FileAccess.
  explicit LocalFile(const std::filesystem::path& file);

  /// Fills the whole block with the next bytes. Returns false if that fails or the file ends first.
  [[nodiscard]] bool Read(std::span<char> block);

 private:
  [[nodiscard]] bool ReadAhead();

  env::FileDescriptor file_;
  std::vector<char> buffer_;
  std::span<const char> ahead_;  ///< of buffer_: bytes read but not yet returned
};

}  // namespace vantorium::publish
