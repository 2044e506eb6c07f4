#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace vantorium::env {

/// Returns the bytes of a regular file. Throws RuntimeFailure FileNotFound if there is no file of that name, and
/// FileAccess if it cannot be read, is not a regular file or holds more than `most` bytes.
[[nodiscard]] std::string ReadFileWhole(const std::filesystem::path& file, std::size_t most);

}  // namespace vantorium::env
