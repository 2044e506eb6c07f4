// A project from another system, opened in the window of a user with the usual drives.
#include "tests/ui/MainWindowHarness.h"

#include <QLineEdit>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;
using fakes::Type;

class ForeignProjectInWindow : public testing::Test {
 protected:
  ForeignProjectInWindow() {
    harness.UseUsualDrives();
    harness.Start();
    harness.folder.Write("new/sea/a.jpg", fakes::MakeJpeg({.width = 64, .height = 48}));
    std::ignore = harness.model->Images().AddFile("C:\\new\\sea\\a.jpg");
    harness.fileBrowser.answer = {"C:\\mine.gpj", "C:\\", {"C:\\mine.gpj"}};
    harness.Trigger("menuFileSave");
    std::string text = harness.folder.Read("mine.gpj");
    const std::string old = "C:/new/";
    text.replace(text.find(old), old.size(), "D:/Photos/");
    harness.folder.Write("mine.gpj", text);
    harness.boxes.boxes.clear();
  }
  /// Opens the project and does `drive` in the dialog that asks for its folders.
  void Open(const std::function<void(QWidget&)>& drive) {
    DriveModal([&] { harness.Trigger("menuFileOpen"); }, drive);
  }
  [[nodiscard]] std::vector<std::string> Sources() const {
    const core::ImageList& images = harness.model->CurrentProject().images;
    std::vector<std::string> sources;
    for (std::size_t i = 1; i <= images.Count(); ++i) sources.push_back(images.Entry(i).SourcePath);
    return sources;
  }

  MainWindowHarness harness;
};

TEST_F(ForeignProjectInWindow, IsOpenedWithItsNewFoldersAndAsksNoMoreOnceItIsSaved) {
  Open([&](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmMovedFolders");
    Type(Find<QLineEdit>(form, "textNewFolder"), QString::fromStdString((harness.folder.Path() / "new/sea").string()));
    Click(form, "OKButton");
  });
  EXPECT_EQ(Sources(), std::vector<std::string>{"C:/new/sea/a.jpg"});
  EXPECT_TRUE(harness.boxes.boxes.empty());
  EXPECT_TRUE(harness.model->CurrentProject().IsModified);
  EXPECT_TRUE(harness.window->isEnabled());
  harness.Trigger("menuFileSave");
  harness.Trigger("menuFileOpen");  // a dialog would wait forever
  EXPECT_EQ(Sources(), std::vector<std::string>{"C:/new/sea/a.jpg"});
}

TEST_F(ForeignProjectInWindow, IsUnchangedAfterCancel) {
  const std::string before = harness.folder.Read("mine.gpj");
  Open([](QWidget& form) { QTest::keyClick(&form, Qt::Key_Return); });
  EXPECT_TRUE(Sources().empty());
  EXPECT_EQ(harness.boxes.boxes.size(), 2U) << "its photograph still cannot be read";
  EXPECT_EQ(harness.folder.Read("mine.gpj"), before);
  EXPECT_TRUE(harness.window->isEnabled());
}

}  // namespace
}  // namespace vantorium::ui
