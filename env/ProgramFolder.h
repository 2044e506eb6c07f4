#pragma once

#include "env/PathMap.h"

#include <filesystem>
#include <optional>
#include <string>

namespace vantorium::env {

/// The environment of a process. An empty text is a variable that is not set.
struct ProcessEnvironment {
  std::filesystem::path executable;  ///< of this process, absolute
  std::string home;                  ///< HOME, else the folder in the user database
  std::string xdgConfigHome;         ///< XDG_CONFIG_HOME
  std::string xdgCacheHome{};        ///< XDG_CACHE_HOME
};

/// Returns the environment of this process.
[[nodiscard]] ProcessEnvironment EnvironmentOfProcess();

/// Returns the folder of the preferences, the server list and the upload log: a native path, absolute if the
/// environment is. Creates nothing. It is `given` if that is set; else the executable's folder if it has a
/// preferences file (a portable installation); else "vantorium" in the user's configuration folder (freedesktop.org,
/// XDG base directories): XDG_CONFIG_HOME if that is absolute, else ".config" in the home folder.
[[nodiscard]] std::filesystem::path FindProgramFolder(const std::optional<std::filesystem::path>& given,
                                                      const ProcessEnvironment& environment);

/// Returns the folder of what the program may lose, such as the records of runs: a native path. Creates nothing. It is
/// "vantorium" in the user's cache folder: XDG_CACHE_HOME if that is absolute, else ".cache" in the home folder.
[[nodiscard]] std::filesystem::path FindCacheFolder(const ProcessEnvironment& environment);

/// The preferences file of a program folder.
[[nodiscard]] std::filesystem::path GetINIFileName(const std::filesystem::path& programFolder);

/// Returns a program folder as path text without a trailing backslash.
[[nodiscard]] std::string GetAppPath(const std::filesystem::path& programFolder, const PathMap& paths);

}  // namespace vantorium::env
