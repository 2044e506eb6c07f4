#include "tests/fakes/ScriptedCommonDialogs.h"
#include "ui/model/dialogs/SelectColorsModel.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

constexpr core::PageColors kOwn = {1, 2, 3, 4, 5};
constexpr core::PageColors kOthers = {11, 12, 13, 14, 15};

TEST(SelectColorsModel, TheWordThumbnailInTheTitleDecidesWhichColorsCanBeCopied) {
  for (const char* title : {"Select Thumbnail Page Colors", "Thumbnail", "MyThumbnails"}) {
    EXPECT_EQ(SelectColorsModel(title, kOwn, kOthers).UseOtherColorsCaption(), "Copy Image Wrapper Colors") << title;
  }
  for (const char* title : {"Select Image Wrapper Colors", "", "thumbnail", "Thumb nail"}) {
    EXPECT_EQ(SelectColorsModel(title, kOwn, kOthers).UseOtherColorsCaption(), "Copy Thumbnail Page Colors") << title;
  }
}

TEST(SelectColorsModel, AChosenColorReplacesOnlyItsColor) {
  fakes::ScriptedCommonDialogs dialogs;
  ColorDialog dialog(dialogs);
  for (const auto which : {&core::PageColors::background, &core::PageColors::text, &core::PageColors::link,
                           &core::PageColors::visitedLink, &core::PageColors::activeLink}) {
    SelectColorsModel model("", kOwn, kOthers);
    dialogs.colors = {0xABCDEF, std::nullopt};
    model.Choose(which, dialog);
    core::PageColors expected = kOwn;
    expected.*which = 0xABCDEF;
    EXPECT_EQ(model.Colors(), expected);
    EXPECT_EQ(dialogs.colorsShown.back(), kOwn.*which);
    model.Choose(which, dialog);
    EXPECT_EQ(model.Colors(), expected) << "a cancelled dialog";
  }
}

/// A user who adds a custom color each time, and confirms every other time.
class CustomColorUser : public fakes::ScriptedCommonDialogs {
 public:
  [[nodiscard]] bool ShowColorDialog(std::uint32_t& /*color*/, env::CustomColors& custom) override {
    shown.push_back(custom);
    custom[shown.size()] = 0xABCDEF;
    return shown.size() % 2 == 1;
  }

  std::vector<env::CustomColors> shown;
};

TEST(ColorDialogs, CustomColorsAreKeptForTheNextTime) {
  CustomColorUser user;
  ColorDialog dialog(user);
  const env::CustomColors first = {0x111111};
  dialog.RebuildCustomColors(first);
  core::Color color = 0;
  EXPECT_TRUE(dialog.DisplayColorDialog2(color));
  EXPECT_FALSE(dialog.DisplayColorDialog2(color));
  EXPECT_EQ(user.shown.at(0), first);
  env::CustomColors second = first;
  second[1] = 0xABCDEF;
  EXPECT_EQ(user.shown.at(1), second);
}

TEST(SelectColorsModel, CopyingTheOtherColorsChangesOnlyTheDialog) {
  SelectColorsModel model("", kOwn, kOthers);
  model.UseOtherColors();
  EXPECT_EQ(model.Colors(), kOthers);
  EXPECT_TRUE(model.Cancelled()) << "nothing is applied yet";
}

TEST(SelectColorsModel, ApplyAndCancelSetTheFlag) {
  SelectColorsModel model("", kOwn, kOthers);
  EXPECT_TRUE(model.Cancelled());
  model.Apply();
  EXPECT_FALSE(model.Cancelled());
  model.Cancel();
  EXPECT_TRUE(model.Cancelled());
}

}  // namespace
}  // namespace vantorium::ui
