#include "tests/fakes/ScriptedCommonDialogs.h"
#include "ui/model/dialogs/SelectColorsModel.h"

#include <gtest/gtest.h>

namespace vantorium {
namespace {

constexpr PageColors kOwn = {1, 2, 3, 4, 5};
constexpr PageColors kOthers = {11, 12, 13, 14, 15};

TEST(SelectColorsModel, TheWordThumbnailInTheTitleDecidesWhatCanBeCopied) {
  for (const char* title : {"Select Thumbnail Page Colors", "Thumbnail", "MyThumbnails"}) {
    EXPECT_EQ(SelectColorsModel(title, kOwn, kOthers).UseOtherColorsCaption(), "Copy Image Wrapper Colors") << title;
  }
  for (const char* title : {"Select Image Wrapper Colors", "", "thumbnail", "Thumb nail"}) {
    EXPECT_EQ(SelectColorsModel(title, kOwn, kOthers).UseOtherColorsCaption(), "Copy Thumbnail Page Colors") << title;
  }
}

TEST(SelectColorsModel, AChosenColorReplacesItsOwnOnly) {
  fakes::ScriptedCommonDialogs dialogs;
  ColorDialog dialog(dialogs);
  for (const auto which : {&PageColors::background, &PageColors::text, &PageColors::link, &PageColors::visitedLink,
                           &PageColors::activeLink}) {
    SelectColorsModel model("", kOwn, kOthers);
    dialogs.colors = {0xABCDEF, std::nullopt};
    model.Choose(which, dialog);
    PageColors expected = kOwn;
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
  [[nodiscard]] bool ShowColorDialog(std::uint32_t& /*color*/, CustomColors& custom) override {
    shown.push_back(custom);
    custom[shown.size()] = 0xABCDEF;
    return shown.size() % 2 == 1;
  }

  std::vector<CustomColors> shown;
};

TEST(ColorDialogs, TheUsersOwnColorsAreThereTheNextTime) {
  CustomColorUser user;
  ColorDialog dialog(user);
  const CustomColors first = {0x111111};
  dialog.RebuildCustomColors(first);
  Color color = 0;
  EXPECT_TRUE(dialog.DisplayColorDialog2(color));
  EXPECT_FALSE(dialog.DisplayColorDialog2(color));
  EXPECT_EQ(user.shown.at(0), first);
  CustomColors second = first;
  second[1] = 0xABCDEF;
  EXPECT_EQ(user.shown.at(1), second);
}

TEST(SelectColorsModel, TheOthersAreCopiedIntoTheDialogOnly) {
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
}  // namespace vantorium
