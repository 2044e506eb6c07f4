#include "env/FileOutput.h"

#include "env/NeighbourFile.h"

namespace vantorium::env {
namespace {

/// Follows symbolic links from `path` to the file at their end.
std::filesystem::path BehindLinks(std::filesystem::path path) {
  constexpr int kMostLinks = 40;  // as many as Linux follows
  std::error_code none;
  for (int links = 0; links < kMostLinks && std::filesystem::is_symlink(path, none); ++links) {
    path = path.parent_path() / std::filesystem::read_symlink(path, none);
  }
  return path;
}

}  // namespace

void WriteFileWhole(const std::filesystem::path& target, std::string_view bytes) {
  NeighbourFile file(target);
  file.Write(bytes);
  file.TakeTargetName();
}

void WriteKeptFile(const std::filesystem::path& target, std::string_view bytes) {
  const std::filesystem::path end = BehindLinks(target);
  NeighbourFile file(end);
  file.Write(bytes);
  file.Sync();
  file.TakeTargetName();
  RemoveAbandonedNeighbours(end.parent_path());
}

}  // namespace vantorium::env
