#include "tests/fakes/ProjectReading.h"
#include "ui/model/dialogs/ThemeModel.h"

#include <optional>

namespace vantorium::ui {
namespace {

using fakes::ProjectFileParts;
using fakes::SettingTexts;

class ApplyingATheme : public testing::Test, public fakes::ProjectHarness {
 protected:
  ApplyingATheme() {
    WriteTheme("film", "3");
    WriteTheme("plain", "7");
    project.settings.textGalleryTitle = "Mine";
    AddImage("a.jpg", "a description", "another");
    before = SettingTexts(project.settings);
  }

  void WriteTheme(const std::string& name, const std::string& rows) const {
    ProjectFileParts parts;
    parts.thumbnailPage = "<ARRANGEMENT ROWS=\"" + rows + "\"/><PAGELINKS/>";
    folder.Write("themes/" + name + ".gpj", parts.Text());
  }

  [[nodiscard]] ThemeModel Model() {
    return {core::FindThemes(env::BundledFiles({folder.Path()})), project, paths, boxes, events};
  }

  std::map<std::string, std::string> before;
};

TEST_F(ApplyingATheme, TheFirstThemeIsChosenAndNamesAreCapitalized) {
  const ThemeModel model = Model();
  ASSERT_EQ(model.Themes().size(), 2U);
  EXPECT_EQ(model.Chosen(), 0U);
  EXPECT_EQ(model.Caption(0), "Film");
  EXPECT_EQ(model.Caption(1), "Plain");
}

TEST_F(ApplyingATheme, NamesThatDoNotBeginWithALowercaseLetterAreUnchanged) {
  for (const char* name : {"Mine", "7th", "äpfel", " x"}) {
    ThemeModel model({{name, folder.Path(), std::nullopt}}, project, paths, boxes, events);
    EXPECT_EQ(model.Caption(0), name);
  }
}

TEST_F(ApplyingATheme, AfterOneQuestionTheProjectHasTheSettingsOfTheChosenTheme) {
  ThemeModel model = Model();
  model.Choose(1);
  boxes.answers = {env::BoxAnswer::Yes};
  EXPECT_TRUE(model.Accept());
  EXPECT_EQ(project.settings.textThumbnailsTableRows, "7");
  EXPECT_TRUE(project.IsModified);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::YesNo);
  EXPECT_EQ(boxes.boxes[0].title, "Replace Settings");
  EXPECT_EQ(boxes.boxes[0].text,
            "All settings of this project, except its title, will be replaced by those of the theme \"Plain\".  The "
            "images and their descriptions stay.  Do you wish to continue?");
}

TEST_F(ApplyingATheme, TitleAndImagesStay) {
  boxes.answers = {env::BoxAnswer::Yes};
  EXPECT_TRUE(Model().Accept());
  EXPECT_EQ(project.settings.textGalleryTitle, "Mine");
  ASSERT_EQ(project.images.Count(), 1U);
  EXPECT_EQ(project.images.Entry(1).ImageDescription, "a description");
  EXPECT_EQ(project.images.Entry(1).ThumbnailDescription, "another");
}

TEST_F(ApplyingATheme, NoLeavesTheProjectUnchanged) {
  boxes.answers = {env::BoxAnswer::No};
  EXPECT_FALSE(Model().Accept());
  EXPECT_EQ(SettingTexts(project.settings), before);
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ApplyingATheme, AnUnreadableThemeIsReportedAndNothingIsAskedOrChanged) {
  for (const char* damaged : {"", "no project", "<GALLERYPROJECT><GALLERY/></GALLERYPROJECT>"}) {
    boxes.boxes.clear();
    folder.Write("themes/film.gpj", damaged);
    EXPECT_FALSE(Model().Accept()) << damaged;
    ASSERT_EQ(boxes.boxes.size(), 2U) << damaged;
    EXPECT_EQ(boxes.boxes[0].title, "Invalid Project File") << damaged;
    EXPECT_EQ(boxes.boxes[1].title, "File Error") << damaged;
    EXPECT_EQ(SettingTexts(project.settings), before) << damaged;
    EXPECT_FALSE(project.IsModified) << damaged;
  }
}

TEST_F(ApplyingATheme, AThemeThatWasRemovedMeanwhileIsReported) {
  ThemeModel model = Model();
  std::filesystem::remove(folder.Path() / "themes/film.gpj");
  EXPECT_FALSE(model.Accept());
  EXPECT_EQ(boxes.boxes.size(), 2U);
  EXPECT_EQ(SettingTexts(project.settings), before);
}

}  // namespace
}  // namespace vantorium::ui
