// The question whether to turn photographs upright, on the page that adds them.
#include "tests/fakes/PhotographMaker.h"
#include "tests/ui/ImagesDesk.h"

namespace vantorium::ui {
namespace {

using fakes::Click;

class UprightQuestionOnThePage : public testing::Test {
 protected:
  /// Adds a photograph that is stored lying, with a file window that a click opens.
  void AddLying(const std::string& name, int orientation = 6) {
    const auto file = desk.folder.Write("p/" + name, fakes::WithOrientation(fakes::MakeJpeg({}), orientation));
    desk.browser.answer = {.result = name, .folder = desk.paths.ToText(file.parent_path()) + "\\", .names = {name}};
    Click(*desk.page, "btnImagesAddFiles");
  }

  fakes::ImagesDesk desk;
};

TEST_F(UprightQuestionOnThePage, WhenPhotographsThatLieAreAddedTheUserIsAskedOnceWhetherToTurnThem) {
  const auto asked = [this](std::size_t times) {
    return QTest::qWaitFor([&] { return desk.boxes.boxes.size() == times; }, 10000);
  };
  desk.boxes.answers = {env::BoxAnswer::No};
  AddLying("a.jpg");
  ASSERT_TRUE(asked(1));
  EXPECT_EQ(desk.boxes.boxes[0].title, "Photographs on their Side");
  EXPECT_EQ(desk.project.settings.checkImagesUpright, 0);
  AddLying("b.jpg");
  QTest::qWait(300);
  EXPECT_EQ(desk.boxes.boxes.size(), 1U);

  desk.operations.RemoveAll();
  desk.boxes.boxes.clear();
  desk.page->FollowProject();  // another project
  AddLying("c.jpg");
  ASSERT_TRUE(asked(1));
  EXPECT_EQ(desk.project.settings.checkImagesUpright, 1);
  EXPECT_TRUE(desk.project.IsModified);
}

TEST_F(UprightQuestionOnThePage, PhotographsOfAnAddedFolderAreLookedAtToo) {
  desk.folder.Write("q/a.jpg", fakes::MakeJpeg({}));
  desk.folder.Write("q/b.jpg", fakes::WithOrientation(fakes::MakeJpeg({}), 3));
  desk.folders = {desk.paths.ToText(desk.folder.Path() / "q")};
  Click(*desk.page, "btnImagesAddFolder");
  EXPECT_TRUE(QTest::qWaitFor([this] { return desk.boxes.boxes.size() == 1; }, 10000));
  EXPECT_EQ(desk.project.settings.checkImagesUpright, 1);
}

TEST_F(UprightQuestionOnThePage, NothingIsAskedAboutPhotographsThatStand) {
  AddLying("a.jpg", 1);
  AddLying("b.jpg", 9);
  QTest::qWait(300);
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(UprightQuestionOnThePage, TheQuestionAboutPhotographsThatLieWaitsWhileTheWindowIsBusy) {
  AddLying("a.jpg");
  desk.page->setEnabled(false);
  QTest::qWait(300);
  EXPECT_TRUE(desk.boxes.boxes.empty());
  desk.page->setEnabled(true);
  EXPECT_TRUE(QTest::qWaitFor([this] { return desk.boxes.boxes.size() == 1; }, 10000));
}

}  // namespace
}  // namespace vantorium::ui
