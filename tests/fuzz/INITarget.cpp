// Files in the format of the preferences. The last line of the input is a value to write, the lines before it the file.
#include "env/INIText.h"
#include "env/Preferences.h"
#include "env/RuntimeFailure.h"
#include "env/Text.h"
#include "env/mINIFileFunctions.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>

using namespace vantorium;

namespace {

constexpr std::string_view kSection = "FOLDERS";
constexpr std::string_view kKey = "ProjectFolder";

/// A folder that has only a preferences file.
struct Place {
  fakes::TemporaryFolder folder;
  std::filesystem::path file = folder.Path() / "preferences";
  env::PathMap paths{{{'C', folder.Path().string()}}};
  env::RegionalFormats formats{"en_US"};
  env::mFileFunctions functions{paths, formats};

  [[nodiscard]] env::Preferences Read() const { return env::ReadPreferences(file, "C:\\program", functions); }
};

std::vector<std::string> LinesOf(std::string_view text) {
  std::vector<std::string> lines;
  while (!text.empty()) lines.emplace_back(env::TakeINILine(text).content);
  return lines;
}

/// The lines of `before` that `after` lacks, if the two differ in one place only.
std::vector<std::string> LinesLost(std::string_view before, std::string_view after) {
  const auto old = LinesOf(before);
  const auto now = LinesOf(after);
  const auto begin = std::ranges::mismatch(old, now).in1;
  const auto kept = begin - old.begin();
  const auto most = std::min(old.size(), now.size()) - static_cast<std::size_t>(kept);
  std::size_t same = 0;
  while (same < most && old[old.size() - 1 - same] == now[now.size() - 1 - same]) ++same;
  return {begin, old.end() - static_cast<std::ptrdiff_t>(same)};
}

void CheckWriting(const std::string& text, const std::string& value) {
  const std::string written = env::WithINIString(text, kSection, kKey, value);
  fuzz::RequireEqual(env::FindINIString(written, kSection, kKey).value_or("(nothing)"), value, "a value is read back");
  fuzz::RequireEqual(env::WithINIString(written, kSection, kKey, value), written, "writing it again changes nothing");
  const auto lost = LinesLost(text, written);
  fuzz::Require(lost.size() <= 1, "at most one line is changed");
  fuzz::Require(lost.empty() || env::FindIgnoringCase(lost[0], kKey) != std::string::npos,
                "the changed line is that of the key");
}

void CheckInteger(const Place& place) {
  try {
    const std::int32_t number = env::ReadINIInteger("SETTINGS", "ImagesPreview", place.file);
    env::WriteINIString("SETTINGS", "ImagesPreview", std::to_string(number), place.file);
    fuzz::Require(env::ReadINIInteger("SETTINGS", "ImagesPreview", place.file) == number, "a number is read back");
  } catch (const env::RuntimeFailure&) {
  }
}

/// `writable`: whether no value contains a NUL. A value with one is not written and may be missing afterwards.
void CheckPreferences(const Place& place, bool writable) {
  env::Preferences preferences = place.Read();
  fuzz::Require(preferences.Browsers.size() <= env::kMostBrowsers, "the number of browsers is limited");
  fuzz::Require(!preferences.CreateFolder.empty() && !preferences.GalleryIndexFileName.empty(),
                "empty values get their defaults");
  env::WritePreferences(preferences, place.file);
  const env::Preferences again = place.Read();
  preferences.Browsers = again.Browsers;  // not written, but their keys may be found in any section
  fuzz::Require(again == preferences || !writable, "preferences are read back");
}

void CheckBrowsers(const Place& place) {
  const std::vector<env::Browser> browsers = place.Read().Browsers;
  try {
    env::WriteBrowsers(browsers, place.file);
    fuzz::Require(place.Read().Browsers == browsers, "browsers are read back");
  } catch (const env::RuntimeFailure&) {  // a text that cannot be a value
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const Place place;
  const std::string input = fuzz::InputText(data, size);
  const auto lastLine = input.rfind('\n') + 1;  // 0 if there is no line end, as npos + 1 is 0
  const std::string text = input.substr(0, lastLine);
  const std::string value = env::ReplaceAll(input.substr(lastLine), "\r", "");
  CheckWriting(text, value);
  place.folder.Write("preferences", text);
  CheckInteger(place);
  CheckPreferences(place, text.find('\0') == std::string::npos);
  CheckBrowsers(place);
  return 0;
}
