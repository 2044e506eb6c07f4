#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <tuple>

namespace vantorium::image {

struct FileCloser {
  void operator()(std::FILE* file) const { std::ignore = std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a regular file for reading and sets `size` to its size in bytes. Returns null if the file is missing, may not
/// be read, or is a folder, pipe or device; never waits for the other end of a pipe.
[[nodiscard]] FileHandle OpenRegularFile(const std::filesystem::path& path, std::uint64_t& size);

}  // namespace vantorium::image
