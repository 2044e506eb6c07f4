// Paths and drives. The last line of the input is a path, the lines before it a preferences file with drives.
#include "env/DriveTable.h"
#include "env/PathMap.h"
#include "env/PathText.h"
#include "env/Wildcards.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>

using namespace vantorium;

namespace {

void CheckText(const std::string& path) {
  const std::string backslashes = env::WithBackslashes(path);
  const std::string prepared = backslashes.starts_with('\\') ? backslashes.substr(1) : backslashes;
  fuzz::RequireEqual(env::GetFilePath(path) + env::GetFileName(path), prepared, "folder and name are the whole path");
  fuzz::Require(env::GetFileName(path).find('\\') == std::string::npos, "a name has no separator");
  fuzz::Require(path.ends_with(env::GetFileExtension(path)), "an extension is the end of its path");
  fuzz::RequireEqual(env::WithSlashes(backslashes), env::WithSlashes(path), "only separators are converted");
  fuzz::Require(env::WithTrailingBackslash(path).ends_with('\\'), "a folder ends in a backslash");
}

void CheckDrives(const std::map<char, std::string>& drives) {
  for (const auto& [letter, folder] : drives) {
    fuzz::Require(letter >= 'A' && letter <= 'Z', "a drive is a capital letter");
    fuzz::Require(folder.starts_with('/'), "the folder of a drive is absolute");
  }
}

/// Whether path text can represent the path: on some systems a file name may contain a path text's separator.
bool HasItsOwnText(const std::filesystem::path& native) {
  const std::string path = native.string();
  return native.is_absolute() && !path.starts_with("//") &&
         path.find_first_of(std::string_view("\\\0", 2)) == std::string::npos;
}

std::string NormalForm(const std::filesystem::path& native) {
  std::string path = native.lexically_normal().string();
  while (path.size() > 1 && path.ends_with('/')) path.pop_back();
  return path;
}

void CheckMap(const env::PathMap& map, const std::string& path) {
  if (const auto native = map.ToNative(path)) {
    fuzz::Require(native->string().find('\0') == std::string::npos, "a native path has no NUL");
    if (HasItsOwnText(*native)) {
      const auto again = map.ToNative(map.ToText(*native));
      fuzz::Require(again.has_value(), "the text of a native path is a path");
      fuzz::RequireEqual(NormalForm(*again), NormalForm(*native), "the text of a native path leads back to it");
    }
  }
  std::ignore = map.ToTextFromUser(path);
  std::ignore = map.ToTextIfNative(map.Surface(path));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = fuzz::InputText(data, size);
  const auto lastLine = input.rfind('\n') + 1;  // 0 if there is no line end, as npos + 1 is 0
  const std::string path = input.substr(lastLine);
  const auto drives = env::DrivesOf(std::string_view(input).substr(0, lastLine));
  CheckText(path);
  CheckDrives(drives);
  CheckMap(env::PathMap(drives, "/home/anna"), path);
  fuzz::Require(env::MatchesWildcards(path, "*"), "everything matches a star");
  std::ignore = env::MatchesWildcards(input, path);
  return 0;
}
