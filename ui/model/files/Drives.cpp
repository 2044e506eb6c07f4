#include "ui/model/files/Drives.h"

#include "env/OpenFolder.h"

namespace vantorium::ui {
namespace {

/// "/data/" and "/data" are the same folder; "/" is unchanged.
std::filesystem::path WithoutSeparatorAtItsEnd(const std::filesystem::path& folder) {
  return folder.has_filename() || !folder.has_relative_path() ? folder : folder.parent_path();
}

}  // namespace

std::vector<Drive> DriveFolders(const env::PathMap& paths) {
  std::vector<Drive> drives;
  for (char letter = 'A'; letter <= 'Z'; ++letter) {
    const auto folder = paths.ToNative(std::string(1, letter) + ":\\");
    if (!env::IsFolder(folder)) continue;
    drives.push_back({letter, WithoutSeparatorAtItsEnd(*folder)});
  }
  return drives;
}

}  // namespace vantorium::ui
