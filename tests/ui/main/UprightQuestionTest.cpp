// The question whether to turn photographs upright, on the page that adds them.
#include "tests/fakes/PhotographMaker.h"
#include "tests/ui/ImagesPageHarness.h"

namespace vantorium::ui {
namespace {

using fakes::Click;

class UprightQuestionOnThePage : public testing::Test {
 protected:
  /// Clicks the button that adds files, and chooses a photograph that must be turned.
  void AddTurned(const std::string& name, int orientation = 6) {
    const auto file = harness.folder.Write("p/" + name, fakes::WithOrientation(fakes::MakeJpeg({}), orientation));
    harness.browser.answer = {
        .result = name, .folder = harness.paths.ToText(file.parent_path()) + "\\", .names = {name}};
    Click(*harness.page, "btnImagesAddFiles");
  }

  fakes::ImagesPageHarness harness;
};

TEST_F(UprightQuestionOnThePage, WhenPhotographsThatMustBeTurnedAreAddedTheUserIsAskedOnce) {
  const auto asked = [this](std::size_t times) {
    return QTest::qWaitFor([&] { return harness.boxes.boxes.size() == times; }, 10000);
  };
  harness.boxes.answers = {env::BoxAnswer::No};
  AddTurned("a.jpg");
  ASSERT_TRUE(asked(1));
  EXPECT_EQ(harness.boxes.boxes[0].title, "Photographs on their Side");
  EXPECT_EQ(harness.project.settings.checkImagesUpright, 0);
  AddTurned("b.jpg");
  QTest::qWait(300);
  EXPECT_EQ(harness.boxes.boxes.size(), 1U);

  harness.operations.RemoveAll();
  harness.boxes.boxes.clear();
  harness.page->FollowProject();  // another project
  AddTurned("c.jpg");
  ASSERT_TRUE(asked(1));
  EXPECT_EQ(harness.project.settings.checkImagesUpright, 1);
  EXPECT_TRUE(harness.project.IsModified);
}

TEST_F(UprightQuestionOnThePage, PhotographsOfAnAddedFolderAreExaminedToo) {
  harness.folder.Write("q/a.jpg", fakes::MakeJpeg({}));
  harness.folder.Write("q/b.jpg", fakes::WithOrientation(fakes::MakeJpeg({}), 3));
  harness.folders = {harness.paths.ToText(harness.folder.Path() / "q")};
  Click(*harness.page, "btnImagesAddFolder");
  EXPECT_TRUE(QTest::qWaitFor([this] { return harness.boxes.boxes.size() == 1; }, 10000));
  EXPECT_EQ(harness.project.settings.checkImagesUpright, 1);
}

TEST_F(UprightQuestionOnThePage, NothingIsAskedAboutUprightPhotographs) {
  AddTurned("a.jpg", 1);
  AddTurned("b.jpg", 9);
  QTest::qWait(300);
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(UprightQuestionOnThePage, TheQuestionWaitsWhileTheWindowIsBusy) {
  AddTurned("a.jpg");
  harness.page->setEnabled(false);
  QTest::qWait(300);
  EXPECT_TRUE(harness.boxes.boxes.empty());
  harness.page->setEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return harness.boxes.boxes.size() == 1; }, 10000));
}

}  // namespace
}  // namespace vantorium::ui
