#include "core/ImageFormats.h"
#include "tests/fakes/ProjectFakes.h"
#include "tests/fakes/ScriptedFileBrowser.h"
#include "ui/model/files/AddFiles.h"

namespace vantorium::ui {
namespace {

class AddingFiles : public testing::Test {
 protected:
  void Run() { AddFiles({.browser = browser, .preferences = preferences, .images = harness.images}).Run(); }
  [[nodiscard]] std::vector<std::string> Names() const {
    std::vector<std::string> names;
    for (std::size_t i = 1; i <= harness.project.images.Count(); ++i) {
      names.push_back(harness.project.images.Entry(i).ImageName);
    }
    return names;
  }

  fakes::ProjectHarness harness;
  fakes::ScriptedFileBrowser browser;
  env::Preferences preferences;
};

TEST_F(AddingFiles, TheDialogOpensInTheFolderOfTheLastImages) {
  preferences.ImageSourceFolder = "C:\\photos\\";
  Run();
  ASSERT_EQ(browser.requests.size(), 1U);
  const FileDialogRequest& request = browser.requests[0];
  EXPECT_EQ(request.title, "Add Images");
  EXPECT_EQ(request.initialFolder, "C:\\photos\\");
  EXPECT_EQ(request.filter, core::ImageFileFilter());
  EXPECT_TRUE(request.open && request.multiSelect && request.preview);
}

TEST_F(AddingFiles, ChosenFilesAreAppendedUnderTheirNames) {
  harness.AddImage("first.jpg");
  harness.File("b.jpg");
  harness.File("a.jpg");
  browser.answer = {.result = "\"b.jpg\" \"a.jpg\"", .folder = harness.PathOf(""), .names = {"b.jpg", "a.jpg"}};
  Run();
  EXPECT_EQ(Names(), (std::vector<std::string>{"first.jpg", "b.jpg", "a.jpg"}));
  EXPECT_EQ(harness.project.images.Entry(3).SourcePath, harness.PathOf("a.jpg"));
  EXPECT_TRUE(harness.project.IsModified);
  EXPECT_EQ(preferences.ImageSourceFolder, harness.PathOf(""));
}

TEST_F(AddingFiles, AFullPathInTheNameBoxIsUsedUnchanged) {
  const std::string path = harness.File("else/where.jpg");
  browser.answer = {.result = path, .folder = "C:\\photos\\", .names = {path}};
  Run();
  ASSERT_EQ(Names(), (std::vector<std::string>{"where.jpg"}));
  EXPECT_EQ(harness.project.images.Entry(1).SourcePath, path);
}

TEST_F(AddingFiles, ACancelChangesNothing) {
  preferences.ImageSourceFolder = "C:\\photos\\";
  browser.answer = {.result = "", .folder = "C:\\other\\", .names = {"a.jpg"}};
  Run();
  EXPECT_TRUE(Names().empty());
  EXPECT_EQ(preferences.ImageSourceFolder, "C:\\photos\\");
  EXPECT_FALSE(harness.project.IsModified);
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(AddingFiles, AnUnreadableFileIsReportedAndEndsTheOperation) {
  harness.File("a.jpg");
  harness.File("c.jpg");
  browser.answer = {.result = "x", .folder = harness.PathOf(""), .names = {"a.jpg", "gone.jpg", "c.jpg"}};
  Run();
  EXPECT_EQ(Names(), (std::vector<std::string>{"a.jpg"}));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "File Error");
}

}  // namespace
}  // namespace vantorium::ui
