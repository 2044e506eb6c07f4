#pragma once

#include "env/ProgramFolder.h"

#include <filesystem>
#include <optional>
#include <string_view>
#include <vector>

namespace vantorium {

/// The files that the program brings along and only reads, such as `preview.jpg` and the help. They lie in the
/// program's folder, where a user may put others of his own, or in a folder of the installation.
class BundledFiles {
 public:
  /// `folders`: native, in the order in which they are looked through. One that is not there is no failure.
  explicit BundledFiles(std::vector<std::filesystem::path> folders) : folders_(std::move(folders)) {}

  /// The file of that name in the first folder that has one.
  [[nodiscard]] std::optional<std::filesystem::path> Find(std::string_view name) const;

 private:
  std::vector<std::filesystem::path> folders_;
};

/// The folders of a program: its own one, then "../share/vantorium" seen from its executable, as GNU's conventions for
/// installation folders have it (prefix/bin, prefix/share). It is not asked where it was installed, so an installation
/// can be moved; a build folder with the same two folders in it works too. A link to the executable has to be resolved.
[[nodiscard]] std::vector<std::filesystem::path> BundledFolders(const std::filesystem::path& programFolder,
                                                                const Surroundings& around);

}  // namespace vantorium
