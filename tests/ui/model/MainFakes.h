#pragma once

#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/ProjectFakes.h"
#include "tests/fakes/RunFakes.h"
#include "tests/ui/model/DesktopFakes.h"

#include <functional>
#include <string>

namespace vantorium::fakes {

class RecordingMainView : public ui::MainView {
 public:
  explicit RecordingMainView(Calls& calls) : calls_(calls) {}

  void ShowTitle(const std::string& text) override { calls_.push_back("title " + text); }
  void ShowStatus(const std::string& text) override { calls_.push_back("status " + text); }
  void ShowImageCount(const std::string& text) override { calls_.push_back("images: " + text); }
  void ShowPageCount(const std::string& text) override { calls_.push_back("pages: " + text); }
  void ShowBrowserMenus(const ui::BrowserMenus& menus) override {
    calls_.push_back("menus of " + std::to_string(menus.ViewBrowser.size()));
  }
  void ShowBusyPointer(bool busy) override { calls_.emplace_back(busy ? "busy" : "idle"); }
  void EnableMainWindow(bool enabled) override { calls_.emplace_back(enabled ? "enabled" : "disabled"); }
  void ShowSettings() override { calls_.emplace_back("settings"); }
  void ShowImages() override { calls_.emplace_back("list"); }
  void ShowPreview() override { calls_.emplace_back("preview"); }
  void ScrollIntoView(std::size_t position) override { calls_.push_back("scroll to " + std::to_string(position)); }
  void SelectFirstTab() override { calls_.emplace_back("first tab"); }
  void FocusTitleField() override { calls_.emplace_back("title field"); }
  [[nodiscard]] env::CustomColors SystemColors() const override { return systemColors; }

  env::CustomColors systemColors = {};

 private:
  Calls& calls_;
};

class RecordingHelperWindows : public ui::HelperWindows {
 public:
  explicit RecordingHelperWindows(Calls& calls) : calls_(calls) {}

  void ShowStartStep() override { calls_.emplace_back("start step"); }
  void ShowInfoWindow(const std::string& text) override { calls_.push_back("info " + text); }
  void HideInfoWindow() override { calls_.emplace_back("info hidden"); }
  void EnableTrayIcon(bool enabled) override { calls_.emplace_back(enabled ? "tray on" : "tray off"); }
  void StorePlacings() override {
    calls_.emplace_back("placings");
    if (onPlacings) onPlacings();
  }
  void HideDescriptionsWindow() override { calls_.emplace_back("descriptions hidden"); }
  [[nodiscard]] std::optional<generation::RunOrder> AskWhatToCreate() override {
    calls_.emplace_back("asked");
    return order;
  }
  [[nodiscard]] bool ShowThemes(ui::ThemeModel& /*themes*/) override {
    calls_.emplace_back("themes");
    return takesTheme;
  }
  [[nodiscard]] std::vector<core::MovedFolder> AskForMovedFolders(const std::vector<std::string>& sources) override {
    calls_.push_back("moved folders of " + std::to_string(sources.size()));
    return movedFolders;
  }
  [[nodiscard]] bool ShowRunWarnings(generation::RunForecast& forecast) override {
    for (const generation::Finding& finding : forecast.Found()) calls_.push_back("warning " + LineOf(finding));
    return runsAnyway;
  }
  void ShowBrowserList(ui::BrowserList& /*list*/) override { calls_.emplace_back("browser list"); }
  [[nodiscard]] std::unique_ptr<publish::ProgressWindow> CreateProgressWindow() override {
    calls_.emplace_back("progress");
    return std::make_unique<RecordingProgress>(progress, calls_);
  }
  void ShowShutdownStep(const std::string& text) override { calls_.push_back("shutdown " + text); }
  void CloseAll() override { calls_.emplace_back("all closed"); }

  std::function<void()> onPlacings;
  bool takesTheme = false;
  std::vector<core::MovedFolder> movedFolders;  ///< empty: the user cancels the dialog
  bool runsAnyway = true;
  std::optional<generation::RunOrder> order;  ///< nullopt: the user cancels the dialog
  ProgressRecord progress;

 private:
  Calls& calls_;
};

/// A MainModel whose ports record their calls.
struct MainModelHarness : DesktopFakes {
  MainModelHarness() {
    loop.onTurn = [this](int) { calls.emplace_back("turn"); };
    model.Attach(view, windows);
  }

  /// Starts the model and forgets the calls.
  void Start(const std::string& commandLine = {}) {
    model.Start(commandLine);
    calls.clear();
  }
  void AddPhotograph(const std::string& name) {
    folder.Write(name, MakeJpeg({.width = 64, .height = 48}));
    std::ignore = model.Images().AddFile("T:\\" + name);
    calls.clear();
  }
  /// Changes the title as a user would.
  void ChangeTitle(const std::string& title) { model.Editor().Set(&core::GalleryProject::textGalleryTitle, title); }
  /// Sets the answer of the project file dialog.
  void ChooseFile(const std::string& path) { fileBrowser.answer = {path, "", {path}}; }
  [[nodiscard]] bool Exists(const char* name) const { return std::filesystem::exists(folder.Path() / name); }
  [[nodiscard]] bool Called(const std::string& call) const {
    return std::find(calls.begin(), calls.end(), call) != calls.end();
  }

  Calls calls;
  RecordedBoxes boxes{calls};
  CountingEventLoop loop;
  JournalingShell shell{calls};
  ui::MainModel model{Ports(boxes, loop, shell, 1, 2121)};
  RecordingMainView view{calls};
  RecordingHelperWindows windows{calls};
};

}  // namespace vantorium::fakes
