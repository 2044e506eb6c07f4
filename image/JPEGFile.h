#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <tuple>

namespace vantorium {

struct FileCloser {
  void operator()(std::FILE* file) const { std::ignore = std::fclose(file); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

/// Opens a regular file for reading and tells its size in bytes. Null for what is missing or may not be read, and for
/// folders, pipes and devices, without waiting for anybody at their other end.
[[nodiscard]] FileHandle OpenRegularFile(const std::filesystem::path& path, std::uint64_t& size);

}  // namespace vantorium
