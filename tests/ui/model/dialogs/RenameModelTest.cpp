#include "ui/model/dialogs/RenameModel.h"

namespace vantorium::ui {
namespace {

TEST(RenameModel, AnEmptyTextCannotBeAccepted) {
  RenameModel model;
  EXPECT_FALSE(model.CanAccept());
  model.SetNameBase("Alps");
  EXPECT_TRUE(model.CanAccept());
}

TEST(RenameModel, ABlankBecomesAnUnderscore) {
  RenameModel model;
  model.SetNameBase("the high Alps");
  EXPECT_EQ(model.NameBase(), "the_high_Alps");
}

TEST(RenameModel, ControlCharactersAreRemoved) {
  RenameModel model;
  model.SetNameBase("a\tb\r\nc\x7F ü\n");
  EXPECT_EQ(model.NameBase(), "abc_ü");
  model.SetNameBase("\r\n");
  EXPECT_EQ(model.NameBase(), "");
}

TEST(RenameModel, UntilItIsAcceptedNoNameChanges) {
  RenameModel model;
  model.SetNameBase("Alps");
  EXPECT_EQ(model.GetNameBase(), "?&null&?");
}

TEST(RenameModel, AcceptReturnsTheTextAndCancelNothing) {
  RenameModel model;
  model.SetNameBase("Alps");
  model.Accept();
  EXPECT_EQ(model.GetNameBase(), "Alps");
  model.Cancel();
  EXPECT_EQ(model.GetNameBase(), core::kNoNameBase);
}

TEST(RenameModel, TheCheckBoxChoosesWhichImagesAreRenamed) {
  RenameModel model;
  EXPECT_EQ(model.Scope(), core::RenameScope::CurrentImage);
  model.RenameAll = true;
  EXPECT_EQ(model.Scope(), core::RenameScope::AllImages);
}

}  // namespace
}  // namespace vantorium::ui
