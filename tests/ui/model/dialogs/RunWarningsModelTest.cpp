#include "tests/ui/model/MainFakes.h"
#include "ui/model/dialogs/RunWarningsModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

class RunWarningsModelTest : public testing::Test {
 protected:
  RunWarningsModelTest() {
    harness.Start();
    for (const char* name : {"a#.jpg", "b.jpg", "c?.jpg"}) harness.AddPhotograph(name);
    generation::SetIndexFile(order, "T:\\out\\index.htm");
    forecast.Renew();
    Now().IsModified = false;
  }

  [[nodiscard]] core::Project& Now() { return harness.model.CurrentProject(); }
  [[nodiscard]] const std::string& Name(std::size_t position) { return Now().images.Entry(position).ImageName; }
  /// Answers the rename dialog for the chosen finding.
  void Rename(const std::string& name, bool all = false) {
    RenameModel answer = model.NameToChange();
    answer.SetNameBase(name);
    answer.RenameAll = all;
    answer.Accept();
    model.Rename(answer);
  }

  fakes::MainModelHarness harness;
  generation::RunOrder order;
  generation::RunForecast forecast{harness.model.CurrentProject(), order, harness.model.Ports()};
  RunWarningsModel model{forecast, harness.model.CurrentProject(), harness.model.Images()};
};

TEST_F(RunWarningsModelTest, EachLineNamesTheImageAndTheFirstIsChosen) {
  ASSERT_EQ(model.Found().size(), 2U);
  EXPECT_EQ(model.Chosen(), 0U);
  EXPECT_EQ(model.Line(1),
            "Image 3, \"c?.jpg\": Links to \"c?.jpg.htm\" would not work: in a link, what follows \"?\" is not part of "
            "the name.");
}

TEST_F(RunWarningsModelTest, ANewNameMakesItsImageCurrentAndResolvesItsWarning) {
  model.Choose(1);
  ASSERT_TRUE(model.CanRename());
  EXPECT_EQ(model.NameToChange().NameBase(), "c?.jpg");
  Rename("c");
  EXPECT_EQ(Name(3), "c");
  EXPECT_EQ(Now().images.Current(), 3U);
  EXPECT_TRUE(Now().images.IsSelected(3));
  EXPECT_FALSE(Now().images.IsSelected(1));
  EXPECT_TRUE(Now().IsModified);
  ASSERT_EQ(model.Found().size(), 1U);
  EXPECT_EQ(model.Found()[0].name, "a#.jpg");
  EXPECT_EQ(model.Chosen(), 0U) << "the only one left";
}

TEST_F(RunWarningsModelTest, AfterTheLastNewNameThereIsNothingToRename) {
  Rename("a");
  Rename("c");
  EXPECT_TRUE(model.Found().empty());
  EXPECT_FALSE(model.CanRename());
}

TEST_F(RunWarningsModelTest, ANewNameWithTheSameProblemIsReportedAgain) {
  Rename("B.jpg");
  ASSERT_EQ(model.Found().size(), 2U);
  EXPECT_EQ(model.Found()[0].kind, generation::FindingKind::SharedName);
  EXPECT_EQ(model.Found()[0].image, 2U);
}

TEST_F(RunWarningsModelTest, AllImagesCanBeRenamedAtOnce) {
  Rename("n", /*all=*/true);
  EXPECT_EQ(Name(1), "n");
  EXPECT_EQ(Name(3), "n_2");
  EXPECT_TRUE(model.Found().empty());
}

TEST_F(RunWarningsModelTest, ACancelledNameChangesNothing) {
  RenameModel answer = model.NameToChange();
  answer.SetNameBase("x");
  answer.Cancel();
  model.Rename(answer);
  EXPECT_EQ(Name(1), "a#.jpg");
  EXPECT_EQ(model.Found().size(), 2U);
  EXPECT_FALSE(Now().IsModified);
}

TEST_F(RunWarningsModelTest, WarningsThatANewNameCannotResolveOfferNoRenaming) {
  std::filesystem::remove(harness.folder.Path() / "b.jpg");
  harness.model.Editor().Set(&core::GalleryProject::textThumbnailPageSettingsFilePrefix, "p#");
  forecast.Renew();
  ASSERT_EQ(model.Found().size(), 4U);
  const bool expected[] = {false, true, false, true};
  for (std::size_t i = 0; i < 4; ++i) {
    model.Choose(i);
    EXPECT_EQ(model.CanRename(), expected[i]) << model.Line(i);
  }
}

}  // namespace
}  // namespace vantorium::ui
