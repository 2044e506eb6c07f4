#pragma once

#include "env/SystemClock.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/JpegMaker.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RecordingShell.h"
#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/main/ImageListView.h"
#include "ui/main/frmImages.h"

#include <memory>
#include <string>
#include <vector>

namespace vantorium::fakes {

/// The page of the image list with its ports, and a folder for its images.
class ImagesPageHarness : public core::ImageListDisplay {
 public:
  ImagesPageHarness() {
    page = std::make_unique<ui::frmImages>(ui::frmImages::Parts{.project = project,
                                                                .images = operations,
                                                                .binder = binder,
                                                                .boxes = boxes,
                                                                .loop = loop,
                                                                .shell = shell,
                                                                .clock = clock,
                                                                .paths = paths,
                                                                .browser = browser,
                                                                .preferences = preferences,
                                                                .askForImageFolders = [this] { return folders; }});
    binder.Refresh();
    page->resize(860, 480);
    page->show();
    list = &Find<ui::ImageListView>(*page, "lvImagesList");
  }

  void RefreshPreview() override {
    if (page) page->RefreshPreview();
  }
  void ScrollIntoView(std::size_t position) override { page->ScrollIntoView(position); }

  /// Writes `bytes` to a file and adds the file to the list.
  void Add(const std::string& name, const std::string& bytes) {
    project.images.Insert(project.images.Count() + 1, {.ImageName = name,
                                                       .SourcePath = paths.ToText(folder.Write(name, bytes)),
                                                       .SizeKey = {},
                                                       .DateKey = {},
                                                       .ImageDescription = {},
                                                       .ThumbnailDescription = {}});
  }
  void AddAll(const std::vector<std::string>& names) {
    for (const std::string& name : names) Add(name, MakeJpeg({.width = 40, .height = 30}));
    page->RefreshList();
  }
  void MakeCurrent(std::size_t position) {
    project.images.SetCurrent(position);
    project.images.Select(position);
    page->RefreshList();
    page->RefreshPreview();
  }

  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (std::size_t i = 1; i <= project.images.Count(); ++i) names.push_back(project.images.Entry(i).ImageName);
    return names;
  }
  [[nodiscard]] std::vector<std::size_t> Selected() const {
    std::vector<std::size_t> selected;
    for (std::size_t i = 1; i <= project.images.Count(); ++i) {
      if (project.images.IsSelected(i)) selected.push_back(i);
    }
    return selected;
  }

  [[nodiscard]] QString ShownText(int row, int column = 0) const {
    return list->model()->index(row, column).data().toString();
  }
  [[nodiscard]] std::vector<std::size_t> ShownAsSelected() const {
    std::vector<std::size_t> selected;
    for (int row = 0; row < list->model()->rowCount(); ++row) {
      if (list->selectionModel()->isRowSelected(row)) selected.push_back(static_cast<std::size_t>(row) + 1);
    }
    return selected;
  }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) const {
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mouseClick(list->viewport(), Qt::LeftButton, modifiers, at);
  }

  TemporaryFolder folder;
  core::Project project;
  RecordingMessageBox boxes;
  CountingEventLoop loop;
  RecordingShell shell;
  env::SystemClock clock;
  env::PathMap paths{{{'C', "/"}, {'Z', "/"}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  ScriptedFileBrowser browser;
  env::Preferences preferences;
  std::vector<std::string> folders;
  core::ImageListOperations operations{project, files, boxes, *this};
  core::ProjectEditor editor{project.settings, project.IsModified};
  ui::FieldBinder binder{editor, boxes};
  std::unique_ptr<ui::frmImages> page;
  ui::ImageListView* list = nullptr;
};

}  // namespace vantorium::fakes
