#pragma once

#include "env/ProgramFolder.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace vantorium::env {

/// The files that ship with the program and are only read, such as `preview.jpg` and the help. They are in the
/// program's folder, where users can put their own versions, or in a folder of the installation.
class BundledFiles {
 public:
  /// `folders`: native paths, in search order. A missing folder is not a failure.
  explicit BundledFiles(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

  /// Returns the file `name` in the first folder that has one, or nullopt if none has.
  [[nodiscard]] std::optional<std::filesystem::path> Find(std::string_view name) const;

  /// Returns the files in the subfolder `folder` of all folders whose names end in `extension` (with its dot), in the
  /// order of their names. Of files with the same name, only the one that Find returns is among them.
  [[nodiscard]] std::vector<std::filesystem::path> FindAll(std::string_view folder, std::string_view extension) const;

 private:
  std::vector<std::filesystem::path> folders_;
};

/// Returns the folders to search: `programFolder`, then "../share/vantorium" relative to the executable's folder, as in
/// the GNU conventions for installation folders (prefix/bin, prefix/share). The program does not store where it was
/// installed, so an installation can be moved; a build folder with the same two folders works too. A link to the
/// executable must be resolved.
[[nodiscard]] std::vector<std::filesystem::path> BundledFolders(const std::filesystem::path& programFolder,
                                                                const ProcessEnvironment& around);

}  // namespace vantorium::env
