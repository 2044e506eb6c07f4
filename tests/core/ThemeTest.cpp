#include "core/ProjectEditor.h"
#include "core/Theme.h"
#include "core/file/ProjectFileWriter.h"
#include "tests/fakes/ProjectReading.h"
#include "tests/fakes/SourceFolder.h"

#include <algorithm>

namespace vantorium::core {
namespace {

namespace fs = std::filesystem;
using fakes::ProjectFileParts;
using fakes::ProjectHarness;
using fakes::SettingTexts;

class Theme : public ::testing::Test, public ProjectHarness {
 protected:
  std::optional<GalleryProject> Read(const std::string& path) { return ReadTheme(path, paths, boxes, events); }
  [[nodiscard]] std::vector<std::string> Messages() const {
    std::vector<std::string> texts;
    for (const auto& box : boxes.boxes) texts.push_back(box.title + ": " + box.text);
    return texts;
  }
};

/// A project in which every setting that a project file holds differs from that of a new project.
const ProjectFileParts kOther = {
    .gallery = R"(TITLE="Theirs")",
    .layout = R"(<LAYOUT TYPE="thumbsleft" IMAGEFRAMENAME="big" THUMBFRAMENAME="small" FRAMESIZE="30%"/>)",
    .lists =
        R"(<IMAGES FOLDER="Pictures"><IMAGE INDEX="1" NAME="a.jpg" SOURCE="file://Z:/no/such/photograph.jpg">)"
        R"(<DESCRIPTION>Theirs</DESCRIPTION></IMAGE></IMAGES>)"
        R"(<THUMBNAILS FOLDER="Small"><THUMBNAIL INDEX="1"><DESCRIPTION>Theirs</DESCRIPTION></THUMBNAIL></THUMBNAILS>)",
    .thumbnailPageAttributes = R"(BGCOLOR="112233")",
    .thumbnailPage = R"(<HEAD>code</HEAD><ARRANGEMENT ROWS="7" COLS="8"/><PAGELINKS/>)",
    .imagePage = ""};

TEST_F(Theme, AllItsSettingsAreAppliedExceptTheTitle) {
  const auto theme = Read(File("theme.gpj", kOther.Text()));
  ASSERT_TRUE(theme);
  project.settings.textGalleryTitle = "Mine";
  ApplyTheme(project.settings, *theme);
  auto expected = SettingTexts(*theme);
  expected["textGalleryTitle"] = "Mine";
  EXPECT_EQ(SettingTexts(project.settings), expected);
  EXPECT_EQ(project.settings.ThumbnailFrameSize, 30);
  EXPECT_EQ(project.settings.comboImageFrameName, "big");
  EXPECT_EQ(project.settings.checkImageWrapperUse, 0);
}

TEST_F(Theme, ImagesWithTextsAndOrderStay) {
  const auto theme = Read(File("theme.gpj", kOther.Text()));
  ASSERT_TRUE(theme);
  AddImage("mine.jpg", "my description", "my thumbnail");
  project.settings.comboImagesSortingOrder = 3;
  project.settings.checkImageWrapperImageSizesInPercent = 1;
  ApplyTheme(project.settings, *theme);
  ASSERT_EQ(project.images.Count(), 1U);
  EXPECT_EQ(project.images.Entry(1).ImageName, "mine.jpg");
  EXPECT_EQ(project.images.Entry(1).ImageDescription, "my description");
  EXPECT_EQ(project.images.Entry(1).ThumbnailDescription, "my thumbnail");
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 3);
  EXPECT_EQ(project.settings.checkImageWrapperImageSizesInPercent, 1);
}

TEST_F(Theme, CorrectionsOfThePhotographsStay) {
  GalleryProject project;
  project.checkImagesUpright = kOn;
  ApplyTheme(project, GalleryProject());
  EXPECT_EQ(project.checkImagesUpright, kOn);
  GalleryProject theme;
  theme.checkImagesTrueColors = kOn;
  ApplyTheme(project, theme);
  EXPECT_EQ(project.checkImagesTrueColors, kOff);
}

TEST_F(Theme, TheRulesBetweenSettingsHoldAfterwards) {
  ProjectFileParts slideshow;
  slideshow.layout = R"(<LAYOUT TYPE="singleframe"><SLIDESHOW/></LAYOUT>)";
  slideshow.imagePage = "<IMAGEPAGE><PAGELINKS/></IMAGEPAGE>";
  const auto theme = Read(File("theme.gpj", slideshow.Text()));
  ASSERT_TRUE(theme);
  project.settings.checkImageWrapperUse = 0;
  project.settings.comboImageFrameName = "image_frame";
  project.settings.comboGalleryLayoutType = 2;
  ApplyTheme(project.settings, *theme);
  EXPECT_EQ(project.settings.checkGallerySlideShow, 1);
  EXPECT_EQ(project.settings.checkImageWrapperUse, 1) << "a slide show requires wrapper pages";
  EXPECT_EQ(project.settings.comboImageFrameName, "_self") << "the single frame shows its own pages";
}

TEST_F(Theme, ItsImagesAreNotRead) {
  EXPECT_TRUE(Read(File("theme.gpj", kOther.Text())));
  EXPECT_EQ(Messages(), std::vector<std::string>());
}

TEST_F(Theme, AnIncompleteOrInvalidFileIsRefusedWithTheReason) {
  ProjectFileParts noLayout;
  noLayout.layout = "";
  ProjectFileParts noNumber;
  noNumber.thumbnailPage = R"(<ARRANGEMENT ROWS="many"/><PAGELINKS/>)";
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"", "The File does not contain a Gallery Project Description."},
      {"no XML", "The File does not contain a Gallery Project Description."},
      {ProjectFileParts().Text().substr(0, 100), "The File does not contain a Gallery Project Description."},
      {"<GALLERYPROJECT/>", "The File does not contain a Gallery Description."},
      {noLayout.Text(), "No Gallery Layout has been specified."},
      {noNumber.Text(), "Type mismatch"}};
  for (const auto& [text, reason] : cases) {
    boxes.boxes.clear();
    const std::string path = File("theme.gpj", text);
    EXPECT_FALSE(Read(path)) << text;
    ASSERT_EQ(Messages().size(), 2U) << text;
    EXPECT_TRUE(Messages()[0].ends_with(reason)) << Messages()[0];
    EXPECT_EQ(Messages()[1], "File Error: The theme \"" + path + "\" cannot be read.");
  }
}

TEST_F(Theme, AMissingFileAndAFolderAreRefused) {
  fs::create_directory(folder.Path() / "folder.gpj");
  for (const std::string& path :
       {PathOf("missing.gpj"), PathOf("folder.gpj"), std::string("Q:\\nowhere.gpj"), std::string()}) {
    boxes.boxes.clear();
    EXPECT_FALSE(Read(path)) << path;
    EXPECT_EQ(Messages().size(), 2U) << path;
  }
}

TEST_F(Theme, ThemesAreFoundWithTheirPictures) {
  folder.Write("themes/b.gpj", "x");
  folder.Write("themes/a.gpj", "x");
  folder.Write("themes/a.jpg", "x");
  folder.Write("themes/c.jpg", "a picture without a theme");
  const auto themes = FindThemes(env::BundledFiles({folder.Path()}));
  ASSERT_EQ(themes.size(), 2U);
  EXPECT_EQ(themes[0].name, "a");
  EXPECT_EQ(themes[0].project, folder.Path() / "themes/a.gpj");
  EXPECT_EQ(themes[0].picture, folder.Path() / "themes/a.jpg");
  EXPECT_EQ(themes[1].name, "b");
  EXPECT_EQ(themes[1].picture, std::nullopt);
}

class ShippedThemes : public Theme {
 protected:
  std::vector<ThemeFile> themes = FindThemes(env::BundledFiles({fakes::SourceFolder() / "data"}));
};

TEST_F(ShippedThemes, AreTheFiveOfTheHelpEachWithAPicture) {
  std::vector<std::string> names;
  for (const ThemeFile& theme : themes) {
    names.push_back(theme.name);
    EXPECT_TRUE(theme.picture) << theme.name;
  }
  EXPECT_EQ(names, (std::vector<std::string>{"contact", "film", "plain", "portfolio", "slideshow"}));
}

TEST_F(ShippedThemes, AreReadWithoutAMessageAndSavedUnchanged) {
  for (const ThemeFile& theme : themes) {
    images.StopSorting();
    project.images.Clear();
    EXPECT_TRUE(session.LoadProject(paths.ToText(theme.project))) << theme.name;
    EXPECT_EQ(Messages(), std::vector<std::string>()) << theme.name;
    EXPECT_EQ(project.images.Count(), 0U) << theme.name;
    bool repaired = false;
    NormalizeForOutput(project.settings, repaired);
    EXPECT_FALSE(repaired) << theme.name;
    EXPECT_EQ(ProjectFileText(project, events), fakes::TemporaryFolder::ReadFile(theme.project)) << theme.name;
  }
}

TEST_F(ShippedThemes, KeepTheAspectRatioOfPhotographsAndHavePopupCaptions) {
  for (const ThemeFile& theme : themes) {
    const auto settings = Read(paths.ToText(theme.project));
    ASSERT_TRUE(settings) << theme.name;
    EXPECT_EQ(settings->checkThumbnailsImageKeepAspectRatio, 1) << theme.name;
    EXPECT_EQ(settings->checkImageWrapperImageKeepAspectRatio, 1) << theme.name;
    EXPECT_EQ(settings->checkCaptionsThumbnailsPopup, 1) << theme.name;
    EXPECT_EQ(settings->checkCaptionsImagesPopup, 1) << theme.name;
  }
}

TEST_F(ShippedThemes, ReferToNothingOutsideTheGallery) {
  for (const ThemeFile& theme : themes) {
    const std::string text = fakes::TemporaryFolder::ReadFile(theme.project);
    for (const char* foreign : {"file://", "http:", "https:", "//cdn", "@import", "url(", "<SCRIPT", "<script"}) {
      EXPECT_EQ(text.find(foreign), std::string::npos) << theme.name << " has " << foreign;
    }
  }
}

}  // namespace
}  // namespace vantorium::core
