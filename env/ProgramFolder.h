#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantorium {

/// What a process finds around itself. An empty text is a variable that is not set.
struct Surroundings {
  std::filesystem::path executable;  ///< of this process, absolute
  std::string home;                  ///< HOME, else the folder that the user data base names
  std::string xdgConfigHome;         ///< XDG_CONFIG_HOME
};

/// Those of this process.
[[nodiscard]] Surroundings SurroundingsOfProcess();

/// The folder of the preferences, the server list and the upload log, a native path, absolute when the surroundings
/// are; nothing is made. It is `given` when there is one. Else it is the executable's folder when a preferences file
/// lies there (the portable way), else "vantorium" in the user's folder for configurations (freedesktop.org, XDG base
/// directories): XDG_CONFIG_HOME when that is absolute, else ".config" in the home folder.
[[nodiscard]] std::filesystem::path FindProgramFolder(const std::optional<std::filesystem::path>& given,
                                                      const Surroundings& around);

/// The preferences file of a program folder.
[[nodiscard]] std::filesystem::path GetINIFileName(const std::filesystem::path& programFolder);

/// A program folder as path text without a backslash at its end.
[[nodiscard]] std::string GetAppPath(const std::filesystem::path& programFolder, const PathMap& paths);

}  // namespace vantorium
