#include "tests/fakes/ScriptedCommonDialogs.h"
#include "ui/model/dialogs/SelectColorsModel.h"

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

/// Its user adds a custom colour each time, and confirms every other time.
class CustomColourUser : public fakes::ScriptedCommonDialogs {
 public:
  [[nodiscard]] bool ShowColorDialog(std::uint32_t& /*colour*/, CustomColours& custom) override {
    shown.push_back(custom);
    custom[shown.size()] = 0xABCDEF;
    return shown.size() % 2 == 1;
  }

  std::vector<CustomColours> shown;
};

TEST(ColourDialogs, TheUsersOwnColoursAreThereTheNextTime) {
  CustomColourUser user;
  ColourDialog dialog(user);
  const CustomColours first = {0x111111};
  dialog.RebuildCustomColours(first);
  Colour colour = 0;
  EXPECT_TRUE(dialog.DisplayColorDialog2(colour));
  EXPECT_FALSE(dialog.DisplayColorDialog2(colour));
  EXPECT_EQ(user.shown.at(0), first);
  CustomColours second = first;
  second[1] = 0xABCDEF;
  EXPECT_EQ(user.shown.at(1), second);
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
