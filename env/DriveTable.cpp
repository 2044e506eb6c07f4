#include "env/DriveTable.h"

#include "env/INIText.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "env/mINIFileFunctions.h"

namespace vantorium::env {
namespace {

/// Returns the letter, as a capital, of a line that begins with a letter and "="; NUL for any other line.
char LetterOf(std::string_view line) {
  if (line.size() < 2 || line[1] != '=') return '\0';
  const char letter = AsciiUpper(line.substr(0, 1))[0];
  return letter >= 'A' && letter <= 'Z' ? letter : '\0';
}

}  // namespace

std::map<char, std::string> DrivesOf(std::string_view preferences) {
  std::map<char, std::string> drives;
  bool inside = false;
  while (!preferences.empty()) {
    const std::string_view line = TakeINILine(preferences).content;
    if (IsSectionLine(line)) inside = IsSectionLine(line, "DRIVES");
    const char letter = inside ? LetterOf(line) : '\0';
    if (letter == '\0') continue;
    const std::string_view folder = WithoutMarks(line.substr(2));
    if (folder.starts_with('/') && folder.find('\0') == std::string_view::npos) drives.emplace(letter, folder);
  }
  return drives;
}

PathMap ReadPathMap(const std::filesystem::path& preferencesFile, const std::filesystem::path& home) {
  try {
    return PathMap(DrivesOf(ReadINIFile(preferencesFile)), home);
  } catch (const RuntimeFailure&) {
    return PathMap::WithoutDrives();
  }
}

}  // namespace vantorium::env
