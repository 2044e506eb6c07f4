#include "app/batch/FindImages.h"

#include "core/ImageFormats.h"
#include "core/file/XmlText.h"
#include "env/PathText.h"

#include <algorithm>
#include <filesystem>

namespace fs = std::filesystem;

namespace vantorium::batch {
namespace {

bool IsImage(const fs::path& path) {
  return core::IsSupportedImageExtension(env::GetFileExtension(path.filename().string()));
}

/// The entries of one folder in the order of their names.
std::vector<fs::directory_entry> EntriesOf(const fs::path& folder) {
  std::vector<fs::directory_entry> entries{fs::directory_iterator(folder), fs::directory_iterator()};
  std::ranges::sort(entries, {}, [](const fs::directory_entry& entry) { return entry.path().filename().string(); });
  return entries;
}

/// Returns the images below `top`, as paths relative to it.
std::vector<fs::path> ImagesOf(const fs::path& top, bool recursive) {
  std::vector<fs::path> images;
  std::vector<fs::path> waiting = {top};
  while (!waiting.empty()) {
    const auto entries = EntriesOf(waiting.back());
    waiting.pop_back();
    for (const auto& entry : entries) {
      if (entry.is_regular_file() && IsImage(entry.path())) images.push_back(entry.path().lexically_relative(top));
    }
    if (!recursive) continue;
    // `waiting` is a stack: the last one in is the next one out, so the first subfolder goes in last.
    for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
      if (entry->is_directory() && !entry->is_symlink()) waiting.push_back(entry->path());
    }
  }
  return images;
}

/// Returns why an image cannot be in a project; empty if it can.
std::string ProblemOf(const std::string& path, const env::PathMap& paths) {
  if (core::IsXmlText(path)) return {};
  return "\"" + core::ToXmlText(paths.Surface(path)) +
         "\" has a name that is no UTF-8 text and cannot stand in a project.";
}

/// Returns the images of a folder as path text: each on its own best drive if the folder is on its best drive, else on
/// the drive typed.
FoundImages FilesOfFolder(const fs::path& native, const std::string& folder, bool recursive,
                          const env::PathMap& paths) {
  FoundImages found;
  const bool onBestDrive = folder == paths.ToText(native.has_filename() ? native : native.parent_path());
  try {
    for (const fs::path& image : ImagesOf(native, recursive)) {
      found.paths.push_back(onBestDrive ? paths.ToText(native / image)
                                        : env::WithTrailingBackslash(folder) + env::WithBackslashes(image.string()));
      found.problem = ProblemOf(found.paths.back(), paths);
      if (image.string().find('\\') != std::string::npos) {
        found.problem = "\"" + core::ToXmlText((native / image).string()) +
                        "\" has a backslash in its name and cannot stand in a project.";
      }
      if (!found.problem.empty()) break;
    }
  } catch (const fs::filesystem_error& failure) {
    found.problem = "\"" + failure.path1().string() + "\" cannot be read: " + failure.code().message() + ".";
  }
  return found;
}

}  // namespace

FoundImages FindImages(const std::string& typed, bool recursive, const env::PathMap& paths) {
  const std::string path = paths.ToTextFromUser(typed);
  const auto native = paths.ToNative(path);
  std::error_code error;
  const auto status = native ? fs::status(*native, error) : fs::file_status();
  const auto refused = [&](const char* why) {
    return FoundImages{{}, "\"" + core::ToXmlText(paths.Surface(typed)) + "\" " + why};
  };
  if (!fs::exists(status)) return refused("does not exist.");
  if (fs::is_directory(status)) return FilesOfFolder(*native, path, recursive, paths);
  if (!IsImage(*native)) return refused("is no JPEG image (.jpg, .jpeg, .jfif).");
  if (!fs::is_regular_file(status)) return refused("is no file.");
  return {{path}, ProblemOf(path, paths)};
}

}  // namespace vantorium::batch
