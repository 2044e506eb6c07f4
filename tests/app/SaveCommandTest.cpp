#include "tests/app/Workplace.h"

#include <filesystem>

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

const char kSavingFailed[] = "File Error: An error occurred while saving the Gallery Project.\n";

TEST(SaveCommand, ASavedProjectHasTheSettingsOfTheOldOne) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  place.Replace("a.gpj", "TITLE=\"Gallery1\"", "TITLE=\"Ünïcödé &amp; more\"");
  ASSERT_TRUE(Succeeded(place.Run({"save", "a.gpj", "b.gpj"})));
  EXPECT_EQ(place.Run({"show", "a.gpj"}).out, place.Run({"show", "b.gpj"}).out);
}

TEST(SaveCommand, SavingASavedProjectGivesTheSameBytes) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg", "b.jpg"});
  ASSERT_TRUE(Succeeded(place.Run({"save", "a.gpj", "b.gpj"})));
  EXPECT_EQ(place.Read("a.gpj"), place.Read("b.gpj"));
}

TEST(SaveCommand, EmptySettingsAreRepaired) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Replace("a.gpj", "THUMBFRAMENAME=\"thumb_frame\"", "THUMBFRAMENAME=\"\"");
  place.Replace(
      "a.gpj",
      "<PREVIOUS CAPTION=\"BACK\" IMAGE=\"\" FIRSTIMAGE=\"\"/><NEXT CAPTION=\"NEXT\" IMAGE=\"\" "
      "LASTIMAGE=\"\"/></PAGELINKS></THUMBNAILPAGE>",
      "<PREVIOUS CAPTION=\"BACK\" IMAGE=\"file://back.gif\" FIRSTIMAGE=\"\"/><NEXT CAPTION=\"NEXT\" IMAGE=\"\" "
      "LASTIMAGE=\"\"/></PAGELINKS></THUMBNAILPAGE>");
  ASSERT_TRUE(Succeeded(place.Run({"save", "a.gpj", "b.gpj"})));
  const auto project = nlohmann::json::parse(place.Run({"show", "b.gpj"}).out).at("project");
  EXPECT_EQ(project.at("textThumbnailFrameName"), "thumbnail_frame");
  EXPECT_EQ(project.at("ThumbnailPreviousLink").at("textLinkGraphicDisabled"), "back.gif");
}

TEST(SaveCommand, AProjectSavedOverItselfIsAWrongCommandLine) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  std::filesystem::create_symlink("a.gpj", place.Path("link.gpj"));
  const std::string before = place.Read("a.gpj");
  for (const char* target : {"a.gpj", "home/../a.gpj", "link.gpj"}) {
    const ProcessResult result = place.Run({"save", "a.gpj", target});
    EXPECT_TRUE(EndedWith(2, result)) << target;
    EXPECT_EQ(result.err, "vantorium-batch: \"" + std::string(target) + "\" is an input too (see --help)\n");
  }
  EXPECT_EQ(place.Read("a.gpj"), before);
}

TEST(SaveCommand, AnExistingProjectIsReplaced) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Project("b.gpj", {"b.jpg"});
  ASSERT_TRUE(Succeeded(place.Run({"save", "a.gpj", "b.gpj"})));
  EXPECT_EQ(place.Read("b.gpj"), place.Read("a.gpj"));
}

TEST(SaveCommand, AnInvalidProjectIsNotSaved) {
  const Workplace place;
  place.Write("a.gpj", "no XML");
  place.Write("b.gpj", "old");
  const ProcessResult result = place.Run({"save", "a.gpj", "b.gpj"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("Invalid Project File: "), std::string::npos) << result.err;
  EXPECT_EQ(result.err.find(kSavingFailed), std::string::npos) << result.err;
  EXPECT_EQ(place.Read("b.gpj"), "old");
}

TEST(SaveCommand, ATargetThatCannotBeWrittenIsAFailure) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  for (const char* target : {"nowhere/b.gpj", "a.jpg/b.gpj", "Q:\\b.gpj", "\\\\server\\share\\b.gpj"}) {
    const ProcessResult result = place.Run({"save", "a.gpj", target});
    EXPECT_TRUE(EndedWith(1, result)) << target;
    EXPECT_EQ(result.err, kSavingFailed) << target;
  }
}

TEST(SaveCommand, SavingLeavesNoOtherFiles) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  std::filesystem::create_directory(place.Path("out"));
  std::filesystem::create_directory(place.Path("out/folder.gpj"));
  ASSERT_TRUE(Succeeded(place.Run({"save", "a.gpj", "out/b.gpj"})));
  ASSERT_TRUE(EndedWith(1, place.Run({"save", "a.gpj", "out/folder.gpj"})));
  EXPECT_EQ(ListingOf(place.Path("out")), "b.gpj\n");
}

TEST(SaveCommand, AnyOtherFileIsNeverReplaced) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  place.Photograph("b.jpg");
  place.Write("notes.gpj", "mine");
  std::filesystem::create_symlink("b.jpg", place.Path("link.gpj"));
  const auto before = FilesBelow(place.Path());
  for (const char* target : {"a.jpg", "b.jpg", "notes.gpj", "link.gpj", "temp"}) {
    const ProcessResult result = place.Run({"save", "a.gpj", target});
    EXPECT_TRUE(EndedWith(1, result)) << target;
    EXPECT_EQ(result.err,
              "File Error: \"" + place.Path(target).string() + "\" exists and is no project, so it is not replaced.\n");
  }
  EXPECT_EQ(FilesBelow(place.Path()), before);
}

}  // namespace
}  // namespace vantorium::batch
