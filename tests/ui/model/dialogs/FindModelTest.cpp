#include "ui/model/dialogs/FindModel.h"

namespace vantorium::ui {
namespace {

TEST(FindModel, AnEmptyTextCannotBeSearchedFor) {
  FindModel model;
  EXPECT_FALSE(model.CanFind());
  model.SetTitle("a");
  EXPECT_TRUE(model.CanFind());
  model.SetTitle("");
  EXPECT_FALSE(model.CanFind());
}

TEST(FindModel, ABlankBecomesAnUnderscore) {
  FindModel model;
  model.SetTitle(" my photo  1.jpg ");
  EXPECT_EQ(model.Title(), "_my_photo__1.jpg_");
}

TEST(FindModel, ControlCharactersAreRemoved) {
  FindModel model;
  model.SetTitle("a\tb\r\nc\x7F ü\n");
  EXPECT_EQ(model.Title(), "abc_ü");
  model.SetTitle("\r\n");
  EXPECT_EQ(model.Title(), "");
}

TEST(FindModel, AcceptReturnsTheTextAndCancelNothing) {
  FindModel model;
  model.SetTitle("a b");
  model.Accept();
  EXPECT_EQ(model.Result, "a_b");
  model.Cancel();
  EXPECT_EQ(model.Result, "");
}

TEST(FindModel, TheTextIsKeptForTheNextSearchButNotTheResult) {
  FindModel model;
  model.SetTitle("a.jpg");
  model.Accept();
  model.Open();
  EXPECT_EQ(model.Result, "");
  EXPECT_EQ(model.Title(), "a.jpg");
}

}  // namespace
}  // namespace vantorium::ui
