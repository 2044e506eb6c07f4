// On a system without drive letters, a user with the usual drives sees none anywhere in the window.
#include "env/PathText.h"
#include "tests/ui/MainWindowHarness.h"
#include "ui/files/frmBrowseForFolder.h"
#include "ui/files/frmFileBrowser.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QLineEdit>
#include <QRegularExpression>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;

void AddItems(QStringList& texts, const QAbstractItemModel& model, const QModelIndex& parent = {}) {
  for (int row = 0; row < model.rowCount(parent); ++row) {
    for (int column = 0; column < model.columnCount(parent); ++column) {
      const QModelIndex index = model.index(row, column, parent);
      texts << index.data().toString() << index.data(Qt::ToolTipRole).toString();
    }
    AddItems(texts, model, model.index(row, 0, parent));
  }
}

/// All texts of a window and its controls, including hidden ones.
QStringList TextsOf(QWidget& window) {
  QStringList texts;
  QList<QWidget*> controls = window.findChildren<QWidget*>();
  controls << &window;
  for (QWidget* control : controls) {
    for (const char* name : {"text", "plainText", "title", "windowTitle", "toolTip", "statusTip", "accessibleName"}) {
      texts << control->property(name).toString();
    }
    if (const auto* box = qobject_cast<QComboBox*>(control)) AddItems(texts, *box->model());
    const auto* view = qobject_cast<QAbstractItemView*>(control);
    if (view != nullptr && view->model() != nullptr) AddItems(texts, *view->model());
  }
  for (const QAction* action : window.findChildren<QAction*>()) texts << action->text() << action->toolTip();
  return texts;
}

void ExpectNoLetter(const QString& text, const QString& place) {
  static const QRegularExpression kLetter("(^|[^A-Za-z])[A-Za-z]:([\\\\/)]|$)");
  EXPECT_FALSE(kLetter.match(text).hasMatch()) << place.toStdString() << ": " << text.toStdString();
}

class SurfaceForm : public testing::Test {
 protected:
  /// A user whose project and preferences name files deep in the home folder and elsewhere.
  SurfaceForm() {
    harness.UseUsualDrives();
    for (const char* name : {"a/b/c/one.jpg", "a/b/c/two.jpg"}) {
      harness.folder.Write(name, fakes::MakeJpeg({.width = 64, .height = 48}));
    }
    elsewhere.Write("d/e/three.jpg", fakes::MakeJpeg({.width = 64, .height = 48}));
  }

  void Start() {
    harness.Start();
    core::Project& project = harness.model->CurrentProject();
    for (const std::string& path : {std::string("C:\\a\\b\\c\\one.jpg"),
                                    "Z:" + env::WithBackslashes((harness.folder.Path() / "a/b/c/two.jpg").string()),
                                    harness.paths.ToText(elsewhere.Path() / "d/e/three.jpg")}) {
      ASSERT_TRUE(harness.model->Images().AddFile(path));
    }
    project.images.Select(1);
    project.images.SetCurrent(1);
    core::GalleryProject& settings = project.settings;
    settings.textThumbnailsTableBackdrop = "C:\\a\\b\\table.gif";
    settings.textThumbnailsPageBackdrop = "Z:\\srv\\d\\page.gif";
    settings.textImageWrapperBackdrop = "C:\\a\\b\\wrapper.gif";
    settings.ImageFirstLink = {"FIRST", "C:\\a\\first.gif", "Z:\\srv\\first off.gif"};
    env::Preferences& preferences = harness.model->CurrentPreferences();
    preferences.CreateFolder = "C:\\a\\gallery\\";
    preferences.TempFolderLocation = "C:\\a\\temp";
    preferences.Browsers = {{"Fox", "Z:\\usr\\bin\\fox"}};
    harness.window->ShowSettings();
    harness.window->ShowImages();
  }

  static void Walk(QWidget& window) {
    const QStringList texts = TextsOf(window);
    for (const QString& text : texts) ExpectNoLetter(text, window.objectName());
    seen << texts;
  }
  void WalkModal(const std::function<void()>& open, const std::function<void(QWidget&)>& inside = {}) {
    DriveModal(open, [&](QWidget& dialog) {
      Walk(dialog);
      if (inside) inside(dialog);
    });
  }
  void WalkOnClick(int tab, const char* button) {
    harness.GoTo(tab);
    WalkModal([&] { Click(*harness.window, button); });
  }
  [[nodiscard]] QString Home(const char* name) const {
    return QString::fromStdString((harness.folder.Path() / name).string());
  }

  fakes::TemporaryFolder elsewhere;
  MainWindowHarness harness;
  static inline QStringList seen;
};

TEST_F(SurfaceForm, NoControlOfTheMainWindowShowsADriveLetter) {
  seen.clear();
  Start();
  Walk(*harness.window);
  for (const char* path : {"a/b/c/one.jpg", "a/b/c/two.jpg", "a/b/table.gif", "a/b/wrapper.gif"}) {
    EXPECT_TRUE(seen.contains(Home(path))) << path;
  }
  EXPECT_TRUE(seen.contains(QString::fromStdString((elsewhere.Path() / "d/e/three.jpg").string())));
  EXPECT_TRUE(seen.contains("/srv/d/page.gif"));
}

TEST_F(SurfaceForm, NoDialogShowsADriveLetter) {
  seen.clear();
  Start();
  WalkOnClick(0, "btnGalleryInfo");
  WalkOnClick(0, "btnGalleryFileNameSettings");
  WalkOnClick(1, "btnImagesFilters");
  WalkOnClick(1, "btnImagesWatermark");
  WalkOnClick(1, "btnImagesRename");
  WalkOnClick(1, "btnImagesFind");
  WalkOnClick(1, "btnImagesAddFolder");
  WalkOnClick(5, "btnPageLinksImageFirstLink");
  WalkModal([&] { harness.Trigger("menuActionsCreate"); });
  WalkModal([&] { harness.Trigger("menuOptionsAvailableBrowsers"); },
            [&](QWidget& list) {
              auto& view = Find<QAbstractItemView>(list, "lvBrowsers");
              view.setCurrentIndex(view.model()->index(0, 0));
              WalkModal([&] { Click(list, "btnEditBrowser"); });
            });
  WalkModal([&] { harness.Trigger("menuOptionsSetTempFolderLocation"); });
  WalkModal([&] { harness.Trigger("menuHelpAbout"); });
  for (const char* path : {"a/gallery/index.htm", "a/first.gif", "a/temp"}) {
    EXPECT_TRUE(seen.contains(Home(path))) << path;
  }
  for (const char* path : {"/srv/first off.gif", "/usr/bin/fox"}) EXPECT_TRUE(seen.contains(path)) << path;
}

TEST_F(SurfaceForm, NoFileOrFolderWindowShowsADriveLetter) {
  seen.clear();
  frmFileBrowser files(harness.paths, harness.boxes, harness.files);
  const auto open = [&] {
    std::ignore = files.DisplayFileDialog({.title = "Open", .initialFolder = "C:\\a\\b\\c", .fileName = "one.jpg"});
  };
  WalkModal(open);
  EXPECT_TRUE(seen.contains(Home("a/b/c")));
  QtFolderBrowser folders(harness.paths);
  WalkModal([&] { std::ignore = folders.BrowseForFolder("Select Source Folder", "C:\\a\\b"); });
}

TEST_F(SurfaceForm, NoMessageShowsADriveLetter) {
  Start();
  std::filesystem::remove(harness.folder.Path() / "a/b/c/one.jpg");
  EXPECT_FALSE(harness.model->Images().AddFile("C:\\a\\b\\c\\one.jpg"));
  harness.folder.Write("a/broken.gpj", "no XML");
  harness.fileBrowser.answer = {"C:\\a\\broken.gpj", "C:\\a\\", {"C:\\a\\broken.gpj"}};
  harness.model->CurrentProject().IsModified = false;
  harness.Trigger("menuFileOpen");
  ASSERT_EQ(harness.boxes.boxes.size(), 3U);
  for (const auto& box : harness.boxes.boxes) {
    ExpectNoLetter(QString::fromStdString(box.text), "message");
    EXPECT_NE(box.text.find(harness.folder.Path().string()), std::string::npos) << box.text;
  }
}

}  // namespace
}  // namespace vantorium::ui
