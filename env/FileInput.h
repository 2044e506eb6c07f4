#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace vantorium {

/// The bytes of a regular file. Throws RuntimeFailure FileNotFound when there is none of that name, and FileAccess when
/// it cannot be read, is no regular file or holds more than `most` bytes.
[[nodiscard]] std::string ReadFileWhole(const std::filesystem::path& file, std::size_t most);

}  // namespace vantorium
