#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>

namespace vantorium::env {

/// Calls `take` with the bytes of a regular file, a piece at a time. Throws as ReadFileWhole does.
void ReadFileInPieces(const std::filesystem::path& file, std::size_t most,
                      const std::function<void(std::string_view)>& take);

/// Returns the bytes of a regular file. Throws RuntimeFailure FileNotFound if there is no file of that name, and
/// FileAccess if it cannot be read, is not a regular file or holds more than `most` bytes.
[[nodiscard]] std::string ReadFileWhole(const std::filesystem::path& file, std::size_t most);

}  // namespace vantorium::env
