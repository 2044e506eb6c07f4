#include "env/Text.h"
#include "tests/app/Workplace.h"
#include "tests/fakes/SourceFolder.h"

#include <filesystem>
#include <regex>
#include <set>

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

namespace fs = std::filesystem;
using Json = nlohmann::json;
using Texts = std::vector<std::string>;

const Texts kThemes = {"contact", "film", "plain", "portfolio", "slideshow"};

Json Shown(const Workplace& place, const std::string& project) {
  const ProcessResult result = place.Run({"show", project});
  EXPECT_TRUE(Succeeded(result));
  return Json::parse(result.out);
}

/// The settings that `show` prints, without the title.
Json SettingsOf(const Workplace& place, const std::string& project) {
  Json settings = Shown(place, project).at("project");
  settings.erase("textGalleryTitle");
  return settings;
}

TEST(NewTheme, AThemeOfTheProgramSetsAllSettingsExceptTheTitle) {
  const Workplace place;
  place.Photograph("a.jpg");
  for (const std::string& theme : kThemes) {
    ASSERT_TRUE(Succeeded(place.Run({"new", "--force", "a.gpj", "--theme", theme, "a.jpg"})));
    const std::string project = (fakes::SourceFolder() / "data/themes" / (theme + ".gpj")).string();
    EXPECT_EQ(SettingsOf(place, "a.gpj"), SettingsOf(place, project)) << theme;
    const Json shown = Shown(place, "a.gpj");
    EXPECT_EQ(shown.at("project").at("textGalleryTitle"), "Gallery1");
    EXPECT_EQ(shown.at("images").size(), 1U);
  }
}

TEST(NewTheme, TheTitleComesFromTheCommandLine) {
  const Workplace place;
  place.Photograph("a.jpg");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "--theme", "plain", "--title", "Alps", "a.jpg"})));
  EXPECT_EQ(Shown(place, "a.gpj").at("project").at("textGalleryTitle"), "Alps");
}

TEST(NewTheme, AnyProjectCanBeATheme) {
  const Workplace place;
  place.Project("their project.gpj", {"their.jpg"});
  place.Replace("their project.gpj", "ROWS=\"5\"", "ROWS=\"9\"");
  fs::remove(place.Path("their.jpg"));
  place.Photograph("a.jpg");
  const Texts spellings = {"their project.gpj", "./their project.gpj", place.Text("their project.gpj")};
  for (const std::string& theme : spellings) {
    ASSERT_TRUE(Succeeded(place.Run({"new", "--force", "a.gpj", "--theme", theme, "a.jpg"}))) << theme;
    EXPECT_EQ(SettingsOf(place, "a.gpj").at("textThumbnailsTableRows"), "9") << theme;
    EXPECT_EQ(Shown(place, "a.gpj").at("images").at(0).at("ImageName"), "a.jpg") << theme;
  }
}

TEST(NewTheme, AUsersOwnThemeIsFoundByItsName) {
  const Workplace place;
  fs::create_directory(place.Path("program/themes"));
  place.Project("program/themes/mine.gpj", {"their.jpg"});
  place.Replace("program/themes/mine.gpj", "COLS=\"5\"", "COLS=\"3\"");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "--theme", "mine", "their.jpg"})));
  EXPECT_EQ(SettingsOf(place, "a.gpj").at("textThumbnailsTableColumns"), "3");
}

TEST(NewTheme, AnUnknownNameIsAWrongCommandLineThatListsTheThemes) {
  const Workplace place;
  place.Photograph("a.jpg");
  const auto before = FilesBelow(place.Path());
  for (const char* name : {"filmstrip", "Film", "film ", ".", "gpj"}) {
    const ProcessResult result = place.Run({"new", "a.gpj", "--theme", name, "a.jpg"});
    EXPECT_TRUE(EndedWith(2, result)) << name;
    EXPECT_EQ(result.err, "vantorium-batch: There is no theme \"" + std::string(name) +
                              "\" among these: contact, film, plain, portfolio, slideshow (see --help)\n");
  }
  EXPECT_TRUE(EndedWith(2, place.Run({"new", "a.gpj", "--theme", "", "a.jpg"})));
  EXPECT_EQ(FilesBelow(place.Path()), before);
}

TEST(NewTheme, ADamagedOrMissingThemeIsAFailureAndNothingIsWritten) {
  const Workplace place;
  place.Photograph("a.jpg");
  place.Write("empty.gpj", "");
  place.Write("page.gpj", "<HTML></HTML>");
  place.Write("half.gpj", "<GALLERYPROJECT><GALLERY>");
  place.Write("no layout.gpj", "<GALLERYPROJECT><GALLERY></GALLERY></GALLERYPROJECT>");
  fs::create_directory(place.Path("folder.gpj"));
  const auto before = FilesBelow(place.Path());
  for (const char* theme : {"empty.gpj", "page.gpj", "half.gpj", "no layout.gpj", "folder.gpj", "missing.gpj"}) {
    const ProcessResult result = place.Run({"new", "a.gpj", "--theme", theme, "a.jpg"});
    EXPECT_TRUE(EndedWith(1, result)) << theme;
    EXPECT_NE(result.err.find("Invalid Project File: "), std::string::npos) << result.err;
    EXPECT_NE(result.err.find("File Error: The theme "), std::string::npos) << result.err;
    EXPECT_NE(result.err.find(theme), std::string::npos) << result.err;
  }
  EXPECT_EQ(FilesBelow(place.Path()), before);
}

TEST(NewTheme, TheOutputMustNotBeTheTheme) {
  const Workplace place;
  place.Photograph("a.jpg");
  place.Project("theme.gpj", {"b.jpg"});
  const std::string before = place.Read("theme.gpj");
  const ProcessResult result = place.Run({"new", "--force", "theme.gpj", "--theme", "./theme.gpj", "a.jpg"});
  EXPECT_TRUE(EndedWith(2, result));
  EXPECT_EQ(result.err, "vantorium-batch: \"theme.gpj\" is an input too (see --help)\n");
  EXPECT_EQ(place.Read("theme.gpj"), before);
}

/// The links and images of a gallery's pages, relative to its folder and without anchors.
std::set<std::string> TargetsIn(const std::string& page) {
  static const std::regex target("(?:HREF|SRC|URL)=\"?([^\"#]+)", std::regex::icase);
  std::set<std::string> targets;
  for (std::sregex_iterator match(page.begin(), page.end(), target), end; match != end; ++match) {
    targets.insert((*match)[1]);
  }
  return targets;
}

// Thumbnail pages with two images each, so that every kind of link has a target.
TEST(NewTheme, GalleriesOfThemesHaveNoDeadLinksAndNoUnreferencedFiles) {
  const Workplace place;
  for (const char* name : {"a.jpg", "b.jpg", "c.jpg", "d.jpg", "e.jpg"}) place.Photograph("in" / fs::path(name));
  for (const std::string& theme : kThemes) {
    ASSERT_TRUE(Succeeded(place.Run({"new", theme + ".gpj", "--theme", theme, "in"})));
    const std::string project = place.Read(theme + ".gpj");
    place.Write(theme + ".gpj",
                std::regex_replace(project, std::regex("ROWS=\"\\d+\" COLS=\"\\d+\""), "ROWS=\"1\" COLS=\"2\""));
    ASSERT_TRUE(Succeeded(place.Run({"create", theme + ".gpj", theme + "/"})));
    std::set<std::string> reached = {"index.htm"};
    for (const auto& entry : fs::directory_iterator(place.Path(theme))) {
      if (entry.path().extension() == ".htm") reached.merge(TargetsIn(place.Read(entry.path())));
    }
    std::set<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator(place.Path(theme))) {
      if (entry.is_regular_file()) files.insert(fs::relative(entry.path(), place.Path(theme)).string());
    }
    EXPECT_EQ(reached, files) << theme;
    EXPECT_EQ(files.size(), 1U + 3U + 3 * 5U) << theme;
  }
}

TEST(NewTheme, AllTagsOfThemesAreReplaced) {
  const Workplace place;
  place.Photograph("a.jpg");
  place.Photograph("b.jpg");
  for (const std::string& theme : kThemes) {
    ASSERT_TRUE(Succeeded(place.Run({"new", theme + ".gpj", "--theme", theme, "a.jpg", "b.jpg"})));
    ASSERT_TRUE(Succeeded(place.Run({"create", theme + ".gpj", theme + "/"})));
    for (const char* page : {"/index.htm", "/thumbpage_1.htm", "/a.jpg.htm", "/b.jpg.htm"}) {
      EXPECT_EQ(place.Read(theme + page).find("<VANTORIUM_"), std::string::npos) << theme << page;
    }
  }
}

}  // namespace
}  // namespace vantorium::batch
