#include "env/mFileFunctions.h"

#include "env/FileCopy.h"
#include "env/PathText.h"
#include "env/RuntimeFailure.h"
#include "env/Wildcards.h"

#include <array>

#include <fcntl.h>
#include <fmt/format.h>
#include <sys/stat.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace vantorium::env {
namespace {

struct stat StatusOf(const PathMap& paths, std::string_view path, FailureKind failure) {
  struct stat status = {};
  const auto native = paths.ToNative(path);
  if (!native || ::stat(native->c_str(), &status) != 0) throw RuntimeFailure(failure);
  return status;
}

/// "." and ".." count as entries, so "*" and "*.*" match in every folder.
bool FolderHoldsMatch(const fs::path& folder, std::string_view pattern) {
  std::error_code error;
  fs::directory_iterator entry(folder.empty() ? "." : folder, error);
  if (error) return false;
  if (MatchesWildcards(".", pattern) || MatchesWildcards("..", pattern)) return true;
  for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
    if (MatchesWildcards(entry->path().filename().string(), pattern)) return true;
  }
  return false;
}

/// Returns the text that MakePath works on: with a separator after a drive's colon, and one at the end.
std::string AsFolderChain(std::string_view path) {
  std::string text(path);
  const auto colon = text.find(':');
  if (colon != std::string::npos && text.compare(colon + 1, 1, "\\") != 0) text.insert(colon + 1, 1, '\\');
  return WithTrailingBackslash(text);
}

}  // namespace

std::string FileSizeText(std::uint64_t size) {
  constexpr std::array<const char*, 5> kUnits = {" Bytes", "KB", "MB", "GB", "TB"};
  std::size_t steps = 0;
  for (; size > 1023; size /= 1024) ++steps;
  return std::to_string(size) + (steps < kUnits.size() ? kUnits.at(steps) : "?");
}

std::string FileSizeKey(std::uint64_t size) {
  std::string digits = std::to_string(size);
  return std::string(20 - digits.size(), '0') + digits;
}

std::string mFileFunctions::GetFileSizeText(std::string_view path, bool sortable) const {
  const struct stat status = StatusOf(paths_, path, FailureKind::FileNotFound);
  if (S_ISDIR(status.st_mode)) throw RuntimeFailure(FailureKind::FileNotFound);
  const auto size = static_cast<std::uint64_t>(status.st_size);
  return sortable ? FileSizeKey(size) : FileSizeText(size);
}

FileTime mFileFunctions::GetFileWriteTime(std::string_view path) const {
  const struct stat status = StatusOf(paths_, path, FailureKind::FileTimeNotFound);
  return FileTimeOfUnixTime(status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
}

std::string mFileFunctions::FormatFileTime(FileTime time, int kind) const {
  if (kind < 0 || kind > 3 || time.ticks < 0) return {};
  return formats_.Format(ToCivilTime(time), static_cast<RegionalFormat>(kind));
}

std::string mFileFunctions::GetFileDateTimeText(std::string_view path, bool sortable, int kind) const {
  const FileTime time = GetFileWriteTime(path);
  if (!sortable) return FormatFileTime(time, kind);
  const CivilTime civil = ToCivilTime(time);
  return fmt::format("{:04}{:02}{:02} {:02}:{:02}:{:02}", civil.year, civil.month, civil.day, civil.hour, civil.minute,
                     civil.second);
}

bool mFileFunctions::PathExists(std::string_view path) const {
  const auto native = paths_.ToNative(path);
  std::error_code error;
  return native && fs::exists(*native, error);
}

bool mFileFunctions::FileExists(std::string_view pattern) const {
  const auto native = paths_.ToNative(pattern);
  if (!native || !native->has_filename()) return false;
  const std::string name = native->filename().string();
  if (name.find_first_of("*?") == std::string::npos) return PathExists(pattern);
  return FolderHoldsMatch(native->parent_path(), name);
}

bool mFileFunctions::CopyLocalFile(std::string_view source, std::string_view destination, bool overwrite) const {
  const auto from = paths_.ToNative(source);
  const auto to = paths_.ToNative(destination);
  if (!from || !to) return false;
  try {
    CopyFileWhole(*from, *to, overwrite);
    return true;
  } catch (const RuntimeFailure&) {
    return false;
  }
}

bool mFileFunctions::CopyFileTimes(std::string_view source, std::string_view target) const {
  const auto from = paths_.ToNative(source);
  const auto to = paths_.ToNative(target);
  struct stat times = {};
  if (!from || !to || ::stat(from->c_str(), &times) != 0) return false;
  const std::array<timespec, 2> values = {times.st_atim, times.st_mtim};
  return ::utimensat(AT_FDCWD, to->c_str(), values.data(), 0) == 0;
}

bool mFileFunctions::MakePath(std::string_view path) const {
  const std::string chain = AsFolderChain(path);
  if (chain.find('\0') != std::string::npos) return false;
  if (const auto native = paths_.ToNative(chain)) {
    std::error_code ignored;
    fs::create_directories(*native, ignored);
  }
  return true;
}

void mFileFunctions::DeleteLocalFile(std::string_view path) const {
  if (const auto native = paths_.ToNative(path)) ::unlink(native->c_str());
}

}  // namespace vantorium::env
