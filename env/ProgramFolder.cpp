#include "env/ProgramFolder.h"

#include <cstdlib>

#include <pwd.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::env {
namespace {

std::string Variable(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? std::string() : std::string(value);
}

std::string HomeFolder() {
  if (std::string home = Variable("HOME"); !home.empty()) return home;
  const passwd* user = ::getpwuid(::getuid());
  return user == nullptr || user->pw_dir == nullptr ? "/" : user->pw_dir;
}

/// Returns `folder` as an absolute path without "." and "..", and without a trailing slash.
fs::path Cleaned(const fs::path& folder) {
  std::error_code error;
  const fs::path absolute = fs::absolute(folder, error);
  const fs::path clean = (error ? folder : absolute).lexically_normal();
  return clean.has_filename() || !clean.has_relative_path() ? clean : clean.parent_path();
}

/// Returns the folder in a variable, or the one in the home folder if the variable holds no absolute path.
fs::path UserFolder(const std::string& variable, const ProcessEnvironment& environment, const char* inHome) {
  const fs::path folder(variable);
  return folder.is_absolute() ? folder : fs::path(environment.home) / inHome;
}

}  // namespace

ProcessEnvironment EnvironmentOfProcess() {
  std::error_code ignored;
  return {fs::read_symlink("/proc/self/exe", ignored), HomeFolder(), Variable("XDG_CONFIG_HOME"),
          Variable("XDG_CACHE_HOME")};
}

fs::path FindProgramFolder(const std::optional<fs::path>& given, const ProcessEnvironment& environment) {
  if (given) return Cleaned(*given);
  std::error_code ignored;
  const fs::path beside = environment.executable.parent_path();
  if (!beside.empty() && fs::is_regular_file(GetINIFileName(beside), ignored)) return Cleaned(beside);
  return Cleaned(UserFolder(environment.xdgConfigHome, environment, ".config") / "vantorium");
}

fs::path FindCacheFolder(const ProcessEnvironment& environment) {
  return Cleaned(UserFolder(environment.xdgCacheHome, environment, ".cache") / "vantorium");
}

fs::path GetINIFileName(const fs::path& programFolder) {
  return programFolder / "vantorium.ini";
}

std::string GetAppPath(const fs::path& programFolder, const PathMap& paths) {
  std::string text = paths.ToText(programFolder);
  while (text.ends_with('\\')) text.pop_back();
  return text;
}

}  // namespace vantorium::env
