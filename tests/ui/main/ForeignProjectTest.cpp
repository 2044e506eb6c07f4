// A project of another system, opened in the window of a user with the usual drives.
#include "tests/ui/MainDesk.h"

#include <QLineEdit>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainDesk;
using fakes::Type;

class ForeignProjectInWindow : public testing::Test {
 protected:
  ForeignProjectInWindow() {
    desk.UseUsualDrives();
    desk.Start();
    desk.folder.Write("new/sea/a.jpg", fakes::MakeJpeg({.width = 64, .height = 48}));
    std::ignore = desk.model->Images().AddFile("C:\\new\\sea\\a.jpg");
    desk.fileBrowser.answer = {"C:\\mine.gpj", "C:\\", {"C:\\mine.gpj"}};
    desk.Trigger("menuFileSave");
    std::string text = desk.folder.Read("mine.gpj");
    const std::string old = "C:/new/";
    text.replace(text.find(old), old.size(), "D:/Photos/");
    desk.folder.Write("mine.gpj", text);
    desk.boxes.boxes.clear();
  }
  /// Opens the project and does `drive` in the dialog that asks for its folders.
  void Open(const std::function<void(QWidget&)>& drive) {
    DriveModal([&] { desk.Trigger("menuFileOpen"); }, drive);
  }
  [[nodiscard]] std::vector<std::string> Sources() const {
    const core::ImageList& images = desk.model->CurrentProject().images;
    std::vector<std::string> sources;
    for (std::size_t i = 1; i <= images.Count(); ++i) sources.push_back(images.Entry(i).SourcePath);
    return sources;
  }

  MainDesk desk;
};

TEST_F(ForeignProjectInWindow, IsOpenedInItsNewPlaceAndAsksNoMoreOnceItIsSaved) {
  Open([&](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmMovedFolders");
    Type(Find<QLineEdit>(form, "textNewFolder"), QString::fromStdString((desk.folder.Path() / "new/sea").string()));
    Click(form, "OKButton");
  });
  EXPECT_EQ(Sources(), std::vector<std::string>{"C:/new/sea/a.jpg"});
  EXPECT_TRUE(desk.boxes.boxes.empty());
  EXPECT_TRUE(desk.model->CurrentProject().IsModified);
  EXPECT_TRUE(desk.window->isEnabled());
  desk.Trigger("menuFileSave");
  desk.Trigger("menuFileOpen");  // a dialog would wait for ever
  EXPECT_EQ(Sources(), std::vector<std::string>{"C:/new/sea/a.jpg"});
}

TEST_F(ForeignProjectInWindow, StaysAsItIsAfterCancel) {
  const std::string before = desk.folder.Read("mine.gpj");
  Open([](QWidget& form) { QTest::keyClick(&form, Qt::Key_Return); });
  EXPECT_TRUE(Sources().empty());
  EXPECT_EQ(desk.boxes.boxes.size(), 2U) << "as before, its photograph cannot be read";
  EXPECT_EQ(desk.folder.Read("mine.gpj"), before);
  EXPECT_TRUE(desk.window->isEnabled());
}

}  // namespace
}  // namespace vantorium::ui
