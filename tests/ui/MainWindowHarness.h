#pragma once

#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RecordingShell.h"
#include "tests/ui/FormDriver.h"
#include "tests/ui/model/DesktopFakes.h"
#include "ui/main/frmMain.h"
#include "ui/ports/QtEventLoop.h"
#include "ui/qt/QtText.h"

#include <QAction>
#include <QTabWidget>
#include <memory>

namespace vantorium::fakes {

/// The main window with scripted answers.
class MainWindowHarness : public DesktopFakes {
 public:
  MainWindowHarness() { folder.Write("data/preview.jpg", MakeJpeg({})); }

  /// Creates the window and starts it as the program does.
  void Start(const std::string& commandLine = {}) {
    window.reset();
    model = std::make_unique<ui::MainModel>(Ports(boxes, loop, shell, 2, ftpPort));
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

  RecordingMessageBox boxes;
  ui::QtEventLoop loop;
  RecordingShell shell;
  std::unique_ptr<ui::MainModel> model;
  std::unique_ptr<ui::frmMain> window;
  std::uint16_t ftpPort = 21;
  int closed = 0;
};

}  // namespace vantorium::fakes
