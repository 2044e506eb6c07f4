#pragma once

#include "env/BundledFiles.h"
#include "env/Clock.h"
#include "env/EventLoop.h"
#include "env/MessageBoxPort.h"
#include "env/PathMap.h"
#include "env/RegionalFormats.h"
#include "env/Screen.h"
#include "env/Shell.h"
#include "env/mCommonDialogs.h"
#include "env/mFileFunctions.h"
#include "image/TextRaster.h"
#include "ui/model/files/FileBrowser.h"
#include "ui/model/main/ProgramVersion.h"

#include <filesystem>

namespace vantorium {

/// Everything outside of the main window that it uses. The program passes the real ports, a test its own.
struct DesktopPorts {
  const PathMap& paths;
  const RegionalFormats& formats;
  const mFileFunctions& files;
  MessageBoxPort& boxes;
  EventLoop& loop;
  Shell& shell;
  const Clock& clock;
  const Screen& screen;
  const TextRaster& texts;
  mCommonDialogs& dialogs;
  FileBrowser& fileBrowser;
  FolderBrowser& folderBrowser;
  std::filesystem::path programFolder;  ///< has the preferences, the server list and the log; native
  const BundledFiles& bundled;
  ProgramVersion version;
  unsigned jobs = 1;  ///< photographs processed at a time
  std::uint16_t ftpPort = 21;
};

}  // namespace vantorium
