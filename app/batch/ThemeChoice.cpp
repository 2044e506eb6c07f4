#include "app/batch/ThemeChoice.h"

#include "app/batch/Terminal.h"
#include "core/Theme.h"
#include "env/BundledFiles.h"
#include "env/Text.h"

namespace vantorium::batch {
namespace {

bool IsPath(const std::string& typed) {
  constexpr std::string_view kExtension = ".gpj";
  const bool hasExtension =
      typed.size() >= kExtension.size() &&
      env::EqualsIgnoringCase(std::string_view(typed).substr(typed.size() - kExtension.size()), kExtension);
  return hasExtension || typed.find_first_of("/\\") != std::string::npos;
}

}  // namespace

std::optional<std::string> ProjectOfTheme(const std::string& typed, const std::filesystem::path& programFolder,
                                          const env::PathMap& paths) {
  if (typed.empty()) return typed;
  if (IsPath(typed)) return paths.ToTextFromUser(typed);
  const env::BundledFiles files(env::BundledFolders(programFolder, env::EnvironmentOfProcess()));
  std::string names;
  for (const core::ThemeFile& theme : core::FindThemes(files)) {
    if (theme.name == typed) return paths.ToText(theme.project);
    names += (names.empty() ? "" : ", ") + theme.name;
  }
  SayInOneLine("There is no theme \"" + typed + "\" among these: " + names + " (see --help)");
  return std::nullopt;
}

}  // namespace vantorium::batch
