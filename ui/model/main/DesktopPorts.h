#pragma once

#include "core/Ports.h"
#include "env/BundledFiles.h"
#include "env/mCommonDialogs.h"
#include "ui/model/files/FileBrowser.h"
#include "ui/model/main/ProgramVersion.h"

#include <filesystem>

namespace vantorium::ui {

/// Everything outside of the main window that it uses. The program passes the real ports, a test its own.
struct DesktopPorts : core::Ports {
  env::mCommonDialogs& dialogs;
  FileBrowser& fileBrowser;
  FolderBrowser& folderBrowser;
  std::filesystem::path programFolder;  ///< has the preferences, the server list and the log; native
  const env::BundledFiles& bundled;
  ProgramVersion version;
  std::uint16_t ftpPort = 21;
  std::filesystem::path cacheFolder{};  ///< has the records of runs; native; empty: none are kept
};

}  // namespace vantorium::ui
