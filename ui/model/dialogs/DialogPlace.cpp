#include "ui/model/dialogs/DialogPlace.h"

#include "env/OpenFolder.h"
#include "env/PathText.h"

namespace vantorium::ui {
std::filesystem::path NearestFolder(const env::PathMap& paths, const std::string& text,
                                    const std::filesystem::path& home) {
  const auto native = paths.ToNative(text);
  if (!native || native->empty()) return home;
  std::error_code error;
  std::filesystem::path folder = std::filesystem::absolute(*native, error).lexically_normal();
  if (!folder.has_filename()) folder = folder.parent_path();  // drops the trailing separator
  while (!env::IsFolder(folder)) {
    if (!folder.has_relative_path()) return home;
    folder = folder.parent_path();
  }
  return folder;
}

DialogPlace PlaceOf(const FileDialogRequest& request, const env::PathMap& paths, const std::filesystem::path& home) {
  const std::string name = env::WithBackslashes(request.fileName);
  const std::size_t separator = name.rfind('\\');
  if (separator == std::string::npos) return {NearestFolder(paths, request.initialFolder, home), name};
  const auto folder = paths.ToNative(name.substr(0, separator + 1));
  const bool exists = env::IsFolder(folder);
  return {exists ? NearestFolder(paths, name.substr(0, separator + 1), home)
                 : NearestFolder(paths, request.initialFolder, home),
          name.substr(separator + 1)};
}

}  // namespace vantorium::ui
