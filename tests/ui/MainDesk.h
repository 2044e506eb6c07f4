#pragma once

#include "tests/fakes/BoxTextRaster.h"
#include "tests/fakes/FixedClock.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/RecordingDesktop.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedCommonDialogs.h"
#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/main/frmMain.h"
#include "ui/model/main/MainModel.h"
#include "ui/ports/QtEventLoop.h"
#include "ui/qt/QtText.h"

#include <QAction>
#include <QTabWidget>
#include <memory>

namespace vantorium::fakes {

/// The main window with a temporary folder, drive T:, and with scripted answers. The program's folder is T:\program;
/// its bundled files are in T:\data.
class MainDesk {
 public:
  MainDesk() { folder.Write("data/preview.jpg", MakeJpeg({})); }

  /// Creates the window and starts it as the program does.
  void Start(const std::string& commandLine = {}) {
    window.reset();
    model = std::make_unique<ui::MainModel>(
        ui::DesktopPorts{{paths, formats, files, boxes, loop, shell, clock, screen, texts, 2},
                         dialogs,
                         fileBrowser,
                         folderBrowser,
                         folder.Path() / "program",
                         bundled,
                         {3, 0, 1},
                         ftpPort});
    window = std::make_unique<ui::frmMain>(*model);
    QObject::connect(window.get(), &ui::frmMain::Closed, [this] { ++closed; });
    window->Start(commandLine);
    window->show();
    window->activateWindow();
    std::ignore = QTest::qWaitForWindowActive(window.get());
  }

  /// Gives the user the usual drives in place of T:, with the temporary folder as home.
  void UseUsualDrives() { paths = env::PathMap({}, folder.Path()); }

  void AddPhotograph(const std::string& name) {
    folder.Write(name, MakeJpeg({.width = 64, .height = 48}));
    fileBrowser.answer = {"T:\\" + name, "T:\\", {name}};
    GoTo(1);
    Click(*window, "btnImagesAddFiles");
  }
  void GoTo(int tab) { Find<QTabWidget>(*window, "tsMain").setCurrentIndex(tab); }
  void Trigger(const char* action) {
    auto* found = window->findChild<QAction*>(action);
    if (found == nullptr) throw std::runtime_error(std::string("no action ") + action);
    found->trigger();
  }
  [[nodiscard]] const core::GalleryProject& Settings() const { return model->CurrentProject().settings; }
  [[nodiscard]] std::string Title() const { return ui::FromQt(window->windowTitle()); }
  [[nodiscard]] std::string TitleOfLastBox() const { return boxes.boxes.empty() ? "" : boxes.boxes.back().title; }

  TemporaryFolder folder;
  env::PathMap paths{{{'T', folder.Path().string()}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  RecordingMessageBox boxes;
  ui::QtEventLoop loop;
  RecordingDesktop shell;
  FixedClock clock;
  env::Screen screen;
  BoxTextRaster texts{20, 10};
  ScriptedCommonDialogs dialogs;
  ScriptedFileBrowser fileBrowser;
  ScriptedFolderBrowser folderBrowser;
  env::BundledFiles bundled{{folder.Path() / "program", folder.Path() / "data"}};
  std::unique_ptr<ui::MainModel> model;
  std::unique_ptr<ui::frmMain> window;
  std::uint16_t ftpPort = 21;
  int closed = 0;
};

}  // namespace vantorium::fakes
