#pragma once

#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/FixedClock.h"
#include "tests/fakes/ScriptedCommonDialogs.h"
#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/main/MainModel.h"

namespace vantorium::fakes {

/// The ports of a MainModel, except for message boxes, event loop and shell. A temporary folder is drive T:. The
/// program's folder is T:\program; its bundled files are in T:\data.
struct DesktopFakes {
  [[nodiscard]] ui::DesktopPorts Ports(env::MessageBoxPort& boxes, env::EventLoop& loop, env::Shell& shell,
                                       unsigned jobs, std::uint16_t ftpPort) {
    return {{paths, formats, files, boxes, loop, shell, clock, screen, texts, jobs},
            dialogs,
            fileBrowser,
            folderBrowser,
            folder.Path() / "program",
            bundled,
            {3, 0, 1},
            ftpPort};
  }

  TemporaryFolder folder;
  env::PathMap paths{{{'T', folder.Path().string()}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  FixedClock clock;
  env::Screen screen;
  BoxTextRaster texts{20, 10};
  ScriptedCommonDialogs dialogs;
  ScriptedFileBrowser fileBrowser;
  ScriptedFolderBrowser folderBrowser;
  env::BundledFiles bundled{{folder.Path() / "program", folder.Path() / "data"}};
};

}  // namespace vantorium::fakes
