#pragma once

#include "env/MessageBoxPort.h"
#include "env/Preferences.h"
#include "env/mFileFunctions.h"
#include "ui/model/files/FileBrowser.h"

#include <cstdint>
#include <string>

namespace vantorium {

/// The rules of frmTempFolderLocation: where the folder VANTORIUM_TEMP lies and whether it is cleared on exit.
class TempFolderLocation {
 public:
  /// What the dialog begins with. `appPath`: the program's folder, path text without a backslash at its end.
  TempFolderLocation(const Preferences& preferences, std::string appPath, const mFileFunctions& files,
                     MessageBoxPort& boxes);

  /// The text box, path text. A native path that was typed into it becomes path text in TakeNativePath and Accept.
  std::string textTempFolderLocation;
  std::int16_t checkAutoClear = 1;

  void TakeNativePath();
  /// btnBrowse: lets the user choose the folder.
  void Browse(FolderBrowser& browser);
  /// btnReset: the program's folder, cleared on exit.
  void Reset();
  /// OKButton: cleans the path up and makes the folder VANTORIUM_TEMP in it. False, after a message box, when the path
  /// is not absolute or the folder can't be made.
  [[nodiscard]] bool Accept();
  /// Hands what is in the dialog to the preferences.
  void StoreIn(Preferences& preferences) const;

 private:
  [[nodiscard]] bool MakeAbsolute();

  std::string appPath_;
  const mFileFunctions& files_;
  MessageBoxPort& boxes_;
};

}  // namespace vantorium
