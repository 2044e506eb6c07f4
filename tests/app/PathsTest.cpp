#include "tests/app/Workplace.h"

#include <algorithm>

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

/// The path texts of a project's sources. The project file stores them with slashes.
std::vector<std::string> Sources(const Workplace& place, const std::string& project) {
  std::vector<std::string> sources;
  const ProcessResult result = place.Run({"show", project});
  EXPECT_TRUE(Succeeded(result));
  const auto shown = nlohmann::json::parse(result.out);
  for (const auto& image : shown.at("images")) sources.push_back(image.at("SourcePath"));
  return sources;
}

std::string WithBackslashes(std::string path) {
  std::ranges::replace(path, '/', '\\');
  return path;
}

void UseDrives(const Workplace& place, const std::string& lines) {
  place.Write("program/vantorium.ini", "[DRIVES]\r\n" + lines);
}

TEST(Paths, ARelativePathIsRelativeToTheWorkingFolder) {
  const Workplace place;
  place.Photograph("sea/a.jpg");
  for (const char* path : {"sea/a.jpg", "./sea/a.jpg", "home/../sea//a.jpg"}) {
    ASSERT_TRUE(Succeeded(place.Run({"new", "--force", "a.gpj", path}))) << path;
    EXPECT_EQ(Sources(place, "a.gpj"), std::vector{place.SourceText("sea/a.jpg")}) << path;
  }
}

TEST(Paths, AnAbsolutePathIsOnTheDriveOfTheRoot) {
  const Workplace place;
  const std::string file = place.Photograph("a.jpg").string();
  ASSERT_TRUE(Succeeded(place.Run({"new", place.Path("a.gpj").string(), file})));
  EXPECT_EQ(Sources(place, "a.gpj"), std::vector{"Z:" + file});
}

TEST(Paths, APathBelowTheHomeFolderIsOnDriveC) {
  const Workplace place;
  place.Photograph("home/sea/a.jpg");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "home/sea/a.jpg"})));
  EXPECT_EQ(Sources(place, "a.gpj"), std::vector<std::string>{"C:/sea/a.jpg"});
}

TEST(Paths, EveryArgumentMayBePathText) {
  const Workplace place;
  place.Photograph("home/sea/a.jpg");
  place.Photograph("b.jpg");
  ASSERT_TRUE(Succeeded(place.Run({"new", "C:\\a.gpj", "C:\\sea", place.Text("b.jpg")})));
  ASSERT_TRUE(Succeeded(place.Run({"save", "c:\\a.gpj", "C:/b.gpj"})));
  ASSERT_TRUE(Succeeded(place.Run({"create", "C:\\b.gpj", "C:\\out\\index.htm"})));
  EXPECT_EQ(Sources(place, "home/b.gpj"), (std::vector{std::string("C:/sea/a.jpg"), place.SourceText("b.jpg")}));
  EXPECT_TRUE(std::filesystem::exists(place.Path("home/out/index.htm")));
}

TEST(Paths, PathTextWithALeadingSeparatorIsBelowTheRoot) {
  const Workplace place;
  const std::string file = WithBackslashes(place.Photograph("a.jpg").string());
  ASSERT_TRUE(Succeeded(place.Run({"new", WithBackslashes(place.Path("a.gpj").string()), file})));
  ASSERT_TRUE(Succeeded(place.Run({"create", "a.gpj", WithBackslashes(place.Path("out/index.htm").string())})));
  EXPECT_TRUE(std::filesystem::exists(place.Path("out/Images/a.jpg.jpg")));
}

TEST(Paths, TheDrivesSectionReplacesTheUsualDrives) {
  const Workplace place;
  place.Photograph("pictures/sea/a.jpg");
  UseDrives(place, "P=\"" + place.Path("pictures").string() + "\"\r\nR=\"/\"\r\n");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "pictures/sea/a.jpg", "P:\\sea"})));
  const std::string text = "P:/sea/a.jpg";
  EXPECT_EQ(Sources(place, "a.gpj"), (std::vector{text, text}));
  EXPECT_TRUE(EndedWith(1, place.Run({"save", "a.gpj", place.Text("b.gpj")}))) << "Z: is no drive any more";
}

TEST(Paths, APathIsOnTheDriveWithTheLongestFolder) {
  const Workplace place;
  place.Photograph("pictures/sea/a.jpg");
  place.Photograph("pictures/sea side.jpg");
  const std::string pictures = place.Path("pictures").string();
  UseDrives(place, "A=\"/\"\r\nB=\"" + pictures + "/sea\"\r\nC=\"" + pictures + "\"\r\n");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "--recursive", "pictures"})));
  EXPECT_EQ(Sources(place, "a.gpj"), (std::vector<std::string>{"C:/sea side.jpg", "B:/a.jpg"}));
}

TEST(Paths, APathOutsideAllDrivesBeginsWithASeparator) {
  const Workplace place;
  place.Photograph("a.jpg");
  UseDrives(place, "C=\"" + place.Path("home").string() + "\"\r\n");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "a.jpg"})));
  EXPECT_EQ(Sources(place, "a.gpj"), std::vector{place.Path("a.jpg").string()});
  ASSERT_TRUE(Succeeded(place.Run({"preview", "a.gpj"})));
  const std::string page = place.Read("temp/VANTORIUM_TEMP/thumbpage_1.htm");
  EXPECT_NE(page.find("\"file://" + place.Path("a.jpg").string() + "\""), std::string::npos) << page;
}

TEST(Paths, APreviewShowsTheSourcesOfMappedDrives) {
  const Workplace place;
  place.Photograph("pictures/a.jpg");
  UseDrives(place, "P=\"" + place.Path("pictures").string() + "\"\r\nZ=\"/\"\r\n");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "P:\\a.jpg"})));
  ASSERT_TRUE(Succeeded(place.Run({"preview", "a.gpj"})));
  const std::string page = place.Read("temp/VANTORIUM_TEMP/a.jpg.htm");
  EXPECT_NE(page.find("\"file://" + place.Path("pictures/a.jpg").string() + "\""), std::string::npos) << page;
}

TEST(Paths, APathOfADriveWithoutAFolderDoesNotExist) {
  const Workplace place;
  for (const char* path : {"Q:\\a.jpg", "\\\\server\\share\\a.jpg"}) {
    const ProcessResult result = place.Run({"new", "a.gpj", path});
    EXPECT_TRUE(EndedWith(1, result)) << path;
    EXPECT_NE(result.err.find("does not exist."), std::string::npos) << result.err;
  }
}

TEST(Paths, UnreadablePreferencesAreAFailure) {
  const Workplace place;
  place.Project("a.gpj", {"home/a.jpg"});
  std::filesystem::create_directory(place.Path("program/vantorium.ini"));
  for (const std::vector<std::string>& command : {std::vector<std::string>{"create", "a.gpj", "C:\\out\\index.htm"},
                                                  {"create", "a.gpj", "out/index.htm"},
                                                  {"show", "a.gpj"},
                                                  {"new", "b.gpj", "home/a.jpg"},
                                                  {"save", "a.gpj", "b.gpj"},
                                                  {"preview", "a.gpj"}}) {
    const ProcessResult result = place.Run(command);
    EXPECT_TRUE(EndedWith(1, result)) << command[0];
    EXPECT_EQ(result.out, "") << command[0];
    EXPECT_EQ(result.err,
              "File Error: The preferences file cannot be read.  Without it no drive letter has a folder.\n\n" +
                  place.Path("program/vantorium.ini").string() + ": Invalid argument\n");
  }
  EXPECT_FALSE(std::filesystem::exists(place.Path("home/out")));
  EXPECT_FALSE(std::filesystem::exists(place.Path("out")));
  EXPECT_FALSE(std::filesystem::exists(place.Path("b.gpj")));
}

/// The native path that `show` prints for each image.
std::vector<std::string> NativePaths(const Workplace& place, const std::string& project) {
  std::vector<std::string> paths;
  const ProcessResult result = place.Run({"show", project});
  const auto shown = nlohmann::json::parse(result.out);
  for (const auto& image : shown.at("images")) {
    paths.push_back(image.value("native_path", "none"));
  }
  return paths;
}

TEST(Paths, ShowPrintsTheNativePathOfEachSource) {
  const Workplace place;
  place.Project("a.gpj", {"home/a.jpg", "sea/b.jpg"});
  const std::vector paths = {place.Path("home/a.jpg").string(), place.Path("sea/b.jpg").string()};
  EXPECT_EQ(NativePaths(place, "a.gpj"), paths);
  EXPECT_EQ(Sources(place, "a.gpj"), (std::vector{std::string("C:/a.jpg"), place.SourceText("sea/b.jpg")}));
  UseDrives(place, "C=\"" + place.Path("home").string() + "\"\r\nZ=\"/\"\r\n");
  EXPECT_EQ(NativePaths(place, "a.gpj"), paths) << "the same paths for a user with drives";
}

TEST(Paths, MessagesShowNativePaths) {
  const Workplace place;
  const std::string missing = place.Path("home/a.jpg").string();
  for (const std::string& typed :
       {std::string("C:\\a.jpg"), std::string("c:/a.jpg"), missing, WithBackslashes(missing), "Z:" + missing}) {
    const ProcessResult result = place.Run({"new", "a.gpj", typed});
    EXPECT_TRUE(EndedWith(1, result)) << typed;
    EXPECT_EQ(result.err, "File Error: \"" + missing + "\" does not exist.\n") << typed;
  }
}

TEST(Paths, MessagesShowPathsWithoutAPlaceUnchanged) {
  const Workplace place;
  for (const std::string typed : {"Q:\\a.jpg", "\\\\server\\share\\a.jpg", "a.jpg", "sea/a.jpg", "~/a.jpg"}) {
    const ProcessResult result = place.Run({"new", "a.gpj", typed});
    EXPECT_EQ(result.err, "File Error: \"" + typed + "\" does not exist.\n") << typed;
  }
}

TEST(Paths, WithADrivesSectionMessagesShowDriveLetters) {
  const Workplace place;
  place.Project("a.gpj", {"home/a.jpg"});
  UseDrives(place, "C=\"" + place.Path("home").string() + "\"\r\nZ=\"/\"\r\n");
  place.Write("home/a.jpg", "no JPEG");
  const ProcessResult run = place.Run({"create", "a.gpj", "out/index.htm"});
  EXPECT_EQ(run.err, "File Error: Unable to copy the File \"C:/a.jpg\".\n");
  const ProcessResult verbose = place.Run({"save", "a.gpj", "C:\\b.gpj", "--verbose"});
  EXPECT_EQ(verbose.err,
            "Reading Project File \"" + place.Text("a.gpj") + "\"...\nWriting Project File \"C:\\b.gpj\"...\n");
}

TEST(Paths, ASourceInAProjectMayHaveSlashes) {
  const Workplace place;
  place.Project("a.gpj", {"sea/a.jpg"});
  EXPECT_NE(place.Read("a.gpj").find("file://Z:" + place.Path("sea/a.jpg").string()), std::string::npos);
  EXPECT_TRUE(Succeeded(place.Run({"create", "a.gpj", "out/index.htm"})));
}

}  // namespace
}  // namespace vantorium::batch
