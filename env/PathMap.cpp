#include "env/PathMap.h"

#include "env/PathText.h"

namespace vantorium::env {
namespace {

constexpr char kHomeDrive = 'C';

char DriveLetter(std::string_view text) {
  return static_cast<char>(text[0] >= 'a' ? text[0] - 'a' + 'A' : text[0]);
}

/// Returns `folder` without trailing slashes, so that "/" becomes empty and every drive's text begins after the colon.
std::string Stem(std::string folder) {
  while (folder.ends_with('/')) folder.pop_back();
  return folder;
}

bool IsBelow(std::string_view native, std::string_view stem) {
  return native.starts_with(stem) && (native.size() == stem.size() || native[stem.size()] == '/');
}

}  // namespace

PathMap::PathMap(std::map<char, std::string> drives, const std::filesystem::path& home)
    : drives_(std::move(drives)), showsLetters_(!drives_.empty()) {
  if (drives_.empty()) drives_ = {{kHomeDrive, home.string()}, {'Z', "/"}};
}

PathMap PathMap::WithoutDrives() {
  PathMap map({});
  map.drives_.clear();
  map.showsLetters_ = true;  // the user may have drives
  return map;
}

std::optional<std::filesystem::path> PathMap::ToNative(std::string_view text) const {
  const std::string path = WithSlashes(text);
  if (path.starts_with("//") || path.find('\0') != std::string::npos) return std::nullopt;
  if (!HasDrive(path)) return std::filesystem::path(path);
  const auto drive = drives_.find(DriveLetter(path));
  if (drive == drives_.end()) return std::nullopt;
  const std::string rest = path.substr(2);
  return std::filesystem::path(Stem(drive->second) + (rest.starts_with('/') ? rest : '/' + rest));
}

std::string PathMap::ToText(const std::filesystem::path& native) const {
  const std::string path = native.string();
  std::string best;
  std::size_t longest = 0;
  bool found = false;
  for (const auto& [letter, folder] : drives_) {
    const std::string stem = Stem(folder);
    if (!IsBelow(path, stem) || (found && stem.size() <= longest)) continue;
    best = std::string(1, letter) + ":" + path.substr(stem.size());
    longest = stem.size();
    found = true;
  }
  return WithBackslashes(found ? best : path);
}

std::string PathMap::ToTextFromUser(std::string_view typed) const {
  if (HasDrive(typed) || typed.starts_with("\\")) return WithBackslashes(typed);
  std::error_code error;
  const auto absolute = std::filesystem::absolute(std::filesystem::path(typed), error);
  if (error) return WithBackslashes(typed);  // an empty text, or a working folder that no longer exists
  return ToText(absolute.lexically_normal());
}

std::string PathMap::ToTextIfNative(std::string_view typed) const {
  const auto home = drives_.find(kHomeDrive);
  if (!showsLetters_ && home != drives_.end() && IsBelow(typed, "~")) {
    return ToTextFromUser(Stem(home->second) + '/' + std::string(typed.substr(1)));
  }
  return typed.starts_with('/') ? ToTextFromUser(typed) : std::string(typed);
}

std::string PathMap::Surface(std::string_view text) const {
  const bool isPathText = HasDrive(text) || text.starts_with('\\');
  const auto native = isPathText && !showsLetters_ ? ToNative(text) : std::nullopt;
  if (!native) return std::string(text);
  const bool isBareDrive = text.size() == 2 && text[1] == ':';
  return isBareDrive && native->has_relative_path() ? native->parent_path().string() : native->string();
}

}  // namespace vantorium::env
