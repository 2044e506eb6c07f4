#include "ui/model/files/AddFiles.h"

#include "core/ImageFormats.h"
#include "env/PathText.h"

namespace vantorium::ui {
namespace {

/// Returns the path of a name in the dialog's folder. A typed full path is unchanged.
std::string PathOf(const std::string& folder, const std::string& name) {
  const bool isWhole = name.starts_with('\\') || (name.size() > 1 && name[1] == ':');
  return isWhole ? name : env::WithTrailingBackslash(folder) + name;
}

}  // namespace

void AddFiles::Run() {
  const FileDialogResult chosen =
      parts_.browser.DisplayFileDialog({.open = true,
                                        .multiSelect = true,
                                        .title = "Add Images",
                                        .initialFolder = parts_.preferences.ImageSourceFolder,
                                        .filter = core::ImageFileFilter(),
                                        .preview = true});
  if (chosen.result.empty()) return;
  parts_.preferences.ImageSourceFolder = chosen.folder;
  std::vector<std::string> paths;
  for (const std::string& name : chosen.names) paths.push_back(PathOf(chosen.folder, name));
  parts_.images.AddFiles(paths);
}

}  // namespace vantorium::ui
