#include "tests/fakes/ScriptedCommonDialogs.h"
#include "ui/model/SelectColorsModel.h"

#include <gtest/gtest.h>

namespace vantorium {
namespace {

constexpr PageColours kOwn = {1, 2, 3, 4, 5};
constexpr PageColours kOthers = {11, 12, 13, 14, 15};

TEST(SelectColorsModel, TheWordThumbnailInTheTitleDecidesWhatCanBeCopied) {
  for (const char* title : {"Select Thumbnail Page Colors", "Thumbnail", "MyThumbnails"}) {
    EXPECT_EQ(SelectColorsModel(title, kOwn, kOthers).UseOtherColorsCaption(), "Copy Image Wrapper Colors") << title;
  }
  for (const char* title : {"Select Image Wrapper Colors", "", "thumbnail", "Thumb nail"}) {
    EXPECT_EQ(SelectColorsModel(title, kOwn, kOthers).UseOtherColorsCaption(), "Copy Thumbnail Page Colors") << title;
  }
}

TEST(SelectColorsModel, AChosenColourReplacesItsOwnOnly) {
  fakes::ScriptedCommonDialogs dialogs;
  ColourDialog dialog(dialogs);
  for (const auto which : {&PageColours::background, &PageColours::text, &PageColours::link, &PageColours::visitedLink,
                           &PageColours::activeLink}) {
    SelectColorsModel model("", kOwn, kOthers);
    dialogs.colours = {0xABCDEF, std::nullopt};
    model.Choose(which, dialog);
    PageColours expected = kOwn;
    expected.*which = 0xABCDEF;
    EXPECT_EQ(model.Colours(), expected);
    EXPECT_EQ(dialogs.coloursShown.back(), kOwn.*which);
    model.Choose(which, dialog);
    EXPECT_EQ(model.Colours(), expected) << "a cancelled dialog";
  }
}

TEST(SelectColorsModel, TheOthersAreCopiedIntoTheDialogOnly) {
  SelectColorsModel model("", kOwn, kOthers);
  model.UseOtherColors();
  EXPECT_EQ(model.Colours(), kOthers);
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
