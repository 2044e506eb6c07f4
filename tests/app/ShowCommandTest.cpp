#include "tests/app/Workplace.h"
#include "tests/fakes/SourceFolder.h"

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

using Json = nlohmann::json;

/// The output of `show`, which must be a single JSON object.
Json Shown(const ProcessResult& result) {
  EXPECT_TRUE(Json::accept(result.out)) << result.out;
  return Json::parse(result.out, nullptr, /*allow_exceptions=*/false);
}

Json ShowProject(const Workplace& place, const std::string& project) {
  const ProcessResult result = place.Run({"show", project});
  EXPECT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "");
  return Shown(result);
}

/// The message boxes for an invalid project file.
std::string InvalidProject(const std::string& path, const std::string& reason) {
  return "Invalid Project File: \"" + path +
         "\" could not be loaded in whole because it is not a valid Vantorium 3.0 Project File.\n\nReason: " + reason +
         "\nFile Error: An error occurred while opening the Gallery Project \"" + path + "\".\n";
}

// Expects the defaults, except for fields that reading the file changes: a width in the file turns
// checkThumbnailsImageSetWidth on.
TEST(ShowCommand, ANewProjectIsShownWithEveryField) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const Json expected =
      Json::parse(fakes::TemporaryFolder::ReadFile(fakes::SourceFolder() / "tests/app/NewProject.json"));
  EXPECT_EQ(Json::diff(expected, ShowProject(place, "a.gpj").at("project")), Json::array());
}

TEST(ShowCommand, TheObjectHasOnlyProjectImagesAndPageCount) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const Json shown = ShowProject(place, "a.gpj");
  EXPECT_EQ(shown.size(), 3U) << shown;
  EXPECT_TRUE(shown.at("project").is_object());
  EXPECT_TRUE(shown.at("images").is_array());
  EXPECT_EQ(shown.at("thumbnailPageCount"), 1);
}

TEST(ShowCommand, AnImageIsShownWithAllItsFields) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Replace("a.gpj", "a.jpg\"/>", "a.jpg\"><DESCRIPTION><![CDATA[one\ntwo <b>&amp;</b>]]></DESCRIPTION></IMAGE>");
  place.Replace(
      "a.gpj", "<THUMBNAILS FOLDER=\"Thumbs\">",
      "<THUMBNAILS FOLDER=\"Thumbs\"><THUMBNAIL INDEX=\"1\"><DESCRIPTION><![CDATA[thumb]]></DESCRIPTION></THUMBNAIL>");
  const Json image = ShowProject(place, "a.gpj").at("images").at(0);
  EXPECT_EQ(image.size(), 7U) << image;
  EXPECT_EQ(image.at("ImageName"), "a.jpg");
  EXPECT_EQ(image.at("SourcePath"), place.SourceText("a.jpg"));
  EXPECT_EQ(image.at("native_path"), place.Path("a.jpg").string());
  EXPECT_EQ(image.at("SizeKey").get<std::string>().size(), 20U);
  EXPECT_EQ(image.at("DateKey").get<std::string>().size(), 17U);
  EXPECT_EQ(image.at("ImageDescription"), "one\r\ntwo <b>&amp;</b>");
  EXPECT_EQ(image.at("ThumbnailDescription"), "thumb");
}

TEST(ShowCommand, ValuesAreStringsOrNumbers) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Replace("a.gpj", "TYPE=\"singleframe\"", "TYPE=\"thumbsright\"");
  place.Replace("a.gpj", "FRAMESIZE=\"200\"", "FRAMESIZE=\"30%\"");
  place.Replace("a.gpj", "<THUMBNAILPAGE ", "<THUMBNAILPAGE LINK=\"0000FF\" ");
  const Json project = ShowProject(place, "a.gpj").at("project");
  EXPECT_EQ(project.at("comboGalleryLayoutType"), 2);
  EXPECT_EQ(project.at("textGalleryFrameSize"), "30");
  EXPECT_EQ(project.at("checkGalleryFrameSizeInPercent"), 1);
  EXPECT_EQ(project.at("ThumbnailFrameSize"), 30);
  EXPECT_EQ(project.at("ThumbnailPageLinkColor"), 255);
}

TEST(ShowCommand, PagesAreCounted) {
  const Workplace place;
  place.LargeProject("a.gpj", 26);
  EXPECT_EQ(ShowProject(place, "a.gpj").at("thumbnailPageCount"), 2);
  place.Replace("a.gpj", "ROWS=\"5\" COLS=\"5\"", "ROWS=\"0\" COLS=\"5\"");
  EXPECT_EQ(ShowProject(place, "a.gpj").at("thumbnailPageCount"), 0);
}

TEST(ShowCommand, AnInvalidFileIsReportedAndShownAsANewProject) {
  for (const char* bytes : {"", "no XML", "<ANYTHING/>", "<GALLERYPROJECT"}) {
    const Workplace place;
    place.Write("a.gpj", bytes);
    const ProcessResult result = place.Run({"show", "a.gpj"});
    EXPECT_TRUE(EndedWith(1, result)) << bytes;
    EXPECT_EQ(result.err,
              InvalidProject(place.Path("a.gpj"), "The File does not contain a Gallery Project Description."));
    EXPECT_EQ(Shown(result).at("images"), Json::array()) << bytes;
  }
}

TEST(ShowCommand, AFileThatDoesNotExistIsReported) {
  const Workplace place;
  const ProcessResult result = place.Run({"show", "nowhere.gpj"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err,
            InvalidProject(place.Path("nowhere.gpj"), "The File does not contain a Gallery Project Description."));
}

TEST(ShowCommand, ValuesReadBeforeAFailureAreShown) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  place.Replace("a.gpj", "TITLE=\"Gallery1\"", "TITLE=\"Half\"");
  place.Replace("a.gpj", "<THUMBNAILS FOLDER=\"Thumbs\">", "<THUMBNAILS FOLDER=\"Small\"><THUMBNAIL INDEX=\"3\"/>");
  const ProcessResult result = place.Run({"show", "a.gpj"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, InvalidProject(place.Path("a.gpj"), "Invalid Thumbnail Description Index."));
  const Json shown = Shown(result);
  EXPECT_EQ(shown.at("images").size(), 2U);
  EXPECT_EQ(shown.at("project").at("textGalleryTitle"), "Half");
  EXPECT_EQ(shown.at("project").at("textThumbnailImageSettingsSubFolder"), "Small");
}

TEST(ShowCommand, AMissingImageEndsTheReading) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg", "c.jpg"});
  std::filesystem::remove(place.Path("b.jpg"));
  const ProcessResult result = place.Run({"show", "a.gpj"});
  EXPECT_TRUE(EndedWith(1, result));
  const std::string first = "File Error: An Error occurred trying to read the image file \"" +
                            place.Path("b.jpg").string() + "\":\n\nFile not found\n\nLoading Process cancelled.\n";
  const std::string second =
      "File Error: An error occurred while opening the Gallery Project \"" + place.Path("a.gpj").string() + "\".\n";
  EXPECT_EQ(result.err, first + second);
  EXPECT_EQ(Shown(result).at("images").size(), 1U);
}

TEST(ShowCommand, OutputThatCannotBeWrittenIsAFailure) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  StartOptions options = place.Options({"show", "a.gpj"});
  std::string shell = "exec \"$0\" \"$@\" >/dev/full";
  options.command.insert(options.command.begin(), {"/bin/sh", "-c", shell});
  const ProcessResult result = ChildProcess(options).Finish();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err, "");
}

}  // namespace
}  // namespace vantorium::batch
