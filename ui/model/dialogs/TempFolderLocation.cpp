#include "ui/model/dialogs/TempFolderLocation.h"

#include "env/TempFolder.h"

namespace vantorium::ui {
namespace {

constexpr const char* kInvalidPath = "Invalid Path";

}  // namespace

TempFolderLocation::TempFolderLocation(const env::Preferences& preferences, std::string appPath,
                                       const env::mFileFunctions& files, env::MessageBoxPort& boxes)
    : textTempFolderLocation(preferences.TempFolderLocation.empty() ? appPath : preferences.TempFolderLocation),
      checkAutoClear(preferences.TempFolderAutoClear),
      appPath_(std::move(appPath)),
      files_(files),
      boxes_(boxes) {}

void TempFolderLocation::TakeNativePath() {
  textTempFolderLocation = files_.Paths().ToTextIfNative(textTempFolderLocation);
}

void TempFolderLocation::Browse(FolderBrowser& browser) {
  if (const auto folder = browser.BrowseForFolder("Location of Temporary Folder", textTempFolderLocation)) {
    textTempFolderLocation = *folder;
  }
}

void TempFolderLocation::Reset() {
  textTempFolderLocation = appPath_;
  checkAutoClear = core::kOn;
}

bool TempFolderLocation::Accept() {
  TakeNativePath();
  if (!MakeAbsolute()) {
    boxes_.Critical(kInvalidPath, " You must specify an absolute Path or a Network Path.");
    return false;
  }
  if (!files_.MakePath(env::TempFolderIn(textTempFolderLocation))) {
    boxes_.Critical(kInvalidPath,
                    "The temporary Folder cannot be created in the Path you have specified.  Please make sure that "
                    "your input is correct.");
    return false;
  }
  return true;
}

void TempFolderLocation::StoreIn(env::Preferences& preferences) const {
  preferences.TempFolderLocation = textTempFolderLocation;
  preferences.TempFolderAutoClear = checkAutoClear;
}

/// Drops the trailing separators of the path, even that of a drive's root. Returns true if the path is absolute.
bool TempFolderLocation::MakeAbsolute() {
  std::string& path = textTempFolderLocation;
  if (path.ends_with(":\\")) path.pop_back();
  if (path.ends_with(':')) return true;
  while (path.ends_with('\\')) path.pop_back();
  return path.find(':') == std::string::npos ? path.starts_with("\\\\") : path.find(":\\") != std::string::npos;
}

}  // namespace vantorium::ui
