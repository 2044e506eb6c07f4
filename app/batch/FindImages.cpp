#include "app/batch/FindImages.h"

#include "core/ImageFormats.h"
#include "env/PathText.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace vantorium {
namespace {

bool IsImage(const fs::path& path) {
  return IsSupportedImageExtension(GetFileExtension(path.filename().string()));
}

/// The entries of one folder in the order of their names.
std::vector<fs::directory_entry> EntriesOf(const fs::path& folder) {
  std::vector<fs::directory_entry> entries{fs::directory_iterator(folder), fs::directory_iterator()};
  std::ranges::sort(entries, {}, [](const fs::directory_entry& entry) { return entry.path().filename().string(); });
  return entries;
}

void AddFolder(const fs::path& top, bool recursive, std::vector<fs::path>& files) {
  std::vector<fs::path> waiting = {top};
  while (!waiting.empty()) {
    const auto entries = EntriesOf(waiting.back());
    waiting.pop_back();
    for (const auto& entry : entries) {
      if (entry.is_regular_file() && IsImage(entry.path())) files.push_back(entry.path());
    }
    if (!recursive) continue;
    // The last one in is the next one out, so the first sub folder goes in last.
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
      if (entry->is_directory() && !entry->is_symlink()) waiting.push_back(entry->path());
    }
  }
}

}  // namespace

FoundImages FindImages(const fs::path& path, bool recursive) {
  FoundImages found;
  const std::string quoted = "\"" + path.string() + "\"";
  std::error_code error;
  const auto status = fs::status(path, error);
  if (!fs::exists(status)) {
    found.problem = quoted + " does not exist.";
  } else if (!fs::is_directory(status)) {
    found.files.push_back(path);
    if (!IsImage(path)) found.problem = quoted + " is no JPEG image (.jpg, .jpeg, .jfif).";
  } else {
    try {
      AddFolder(path, recursive, found.files);
    } catch (const fs::filesystem_error& failure) {
      found.problem = "\"" + failure.path1().string() + "\" cannot be read: " + failure.code().message() + ".";
    }
  }
  return found;
}

fs::path NativePathOf(const std::string& typed, const PathMap& paths) {
  const auto native = paths.ToNative(paths.ToTextFromUser(typed));
  return native ? *native : fs::path(typed);
}

}  // namespace vantorium
