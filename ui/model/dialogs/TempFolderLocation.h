#pragma once

#include "core/Choices.h"
#include "env/MessageBoxPort.h"
#include "env/Preferences.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <cstdint>
#include <string>

namespace vantorium::ui {

/// The rules of frmTempFolderLocation: where the folder VANTORIUM_TEMP is and whether it is cleared on exit.
class TempFolderLocation {
 public:
  /// Sets the dialog's initial values. `appPath`: the program's folder, path text without a trailing backslash.
  TempFolderLocation(const env::Preferences& preferences, std::string appPath, const env::mFileFunctions& files,
                     env::MessageBoxPort& boxes);

  /// Content of the text box, path text. TakeNativePath and Accept convert a typed native path to path text.
  std::string textTempFolderLocation;
  core::Flag checkAutoClear = core::kOn;

  void TakeNativePath();
  /// textTempFolderLocation in its surface form.
  [[nodiscard]] std::string Shown() const { return files_.Paths().Surface(textTempFolderLocation); }
  /// btnBrowse: lets the user choose the folder.
  void Browse(FolderBrowser& browser);
  /// btnReset: the program's folder, cleared on exit.
  void Reset();
  /// OKButton: cleans up the path and creates the folder VANTORIUM_TEMP in it. Returns false, after a message box, if
  /// the path is not absolute or the folder cannot be created.
  [[nodiscard]] bool Accept();
  /// Stores the dialog's values in the preferences.
  void StoreIn(env::Preferences& preferences) const;

 private:
  [[nodiscard]] bool MakeAbsolute();

  std::string appPath_;
  const env::mFileFunctions& files_;
  env::MessageBoxPort& boxes_;
};

}  // namespace vantorium::ui
