#include "env/Text.h"
#include "tests/app/Workplace.h"

#include <filesystem>

#include <nlohmann/json.hpp>
#include <sys/stat.h>

namespace vantorium::batch {
namespace {

using Json = nlohmann::json;
using Texts = std::vector<std::string>;

/// What `show` prints for a project.
Json Shown(const Workplace& place, const std::string& project) {
  const ProcessResult result = place.Run({"show", project});
  EXPECT_TRUE(Succeeded(result));
  return Json::parse(result.out);
}

/// The value of `field` for every image.
Texts Images(const Workplace& place, const std::string& project, const char* field) {
  Texts texts;
  const Json shown = Shown(place, project);
  for (const Json& image : shown.at("images")) texts.push_back(image.at(field));
  return texts;
}

Texts NamesAfterNew(const Workplace& place, const Texts& arguments) {
  Texts command = {"new", "--force", "a.gpj"};
  command.insert(command.end(), arguments.begin(), arguments.end());
  EXPECT_TRUE(Succeeded(place.Run(command)));
  return Images(place, "a.gpj", "ImageName");
}

TEST(NewCommand, ImagesKeepTheOrderOfTheCommandLine) {
  const Workplace place;
  for (const char* name : {"a.jpg", "b.jpeg", "c.JFIF"}) place.Photograph(name);
  EXPECT_EQ(NamesAfterNew(place, {"c.JFIF", "a.jpg", "b.jpeg"}), (Texts{"c.JFIF", "a.jpg", "b.jpeg"}));
}

TEST(NewCommand, EachEntryHasThePathOfItsFileAndNoDescriptions) {
  const Workplace place;
  place.Photograph("holiday/a.jpg");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "holiday/a.jpg"})));
  const Json image = Shown(place, "a.gpj").at("images").at(0);
  EXPECT_EQ(image.at("SourcePath"), place.SourceText("holiday/a.jpg"));
  EXPECT_EQ(image.at("ImageDescription"), "");
  EXPECT_EQ(image.at("ThumbnailDescription"), "");
  const std::string size = std::to_string(std::filesystem::file_size(place.Path("holiday/a.jpg")));
  EXPECT_EQ(image.at("SizeKey"), std::string(20 - size.size(), '0') + size);
}

TEST(NewCommand, PhotographCorrectionsAreOnOnlyIfRequested) {
  const Workplace place;
  place.Photograph("a.jpg");
  const auto project = [&place](const Texts& switches) {
    Texts command = {"new", "--force", "a.gpj", "a.jpg"};
    command.insert(command.end(), switches.begin(), switches.end());
    EXPECT_TRUE(Succeeded(place.Run(command)));
    return Shown(place, "a.gpj").at("project");
  };
  EXPECT_FALSE(project({}).contains("checkImagesUpright"));
  EXPECT_FALSE(project({}).contains("checkImagesTrueColors"));
  EXPECT_EQ(project({"--upright"}).at("checkImagesUpright"), 1);
  EXPECT_FALSE(project({"--upright"}).contains("checkImagesTrueColors"));
  EXPECT_EQ(project({"--true-colors"}).at("checkImagesTrueColors"), 1);
  EXPECT_EQ(project({"--upright", "--true-colors"}).at("checkImagesUpright"), 1);
}

TEST(NewCommand, OtherCommandsRefuseTheOptionsOfCorrections) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  for (const char* option : {"--upright", "--true-colors"}) {
    EXPECT_TRUE(EndedWith(2, place.Run({"show", "a.gpj", option}))) << option;
    EXPECT_TRUE(EndedWith(2, place.Run({"create", "a.gpj", "out/index.htm", option}))) << option;
  }
}

TEST(NewCommand, TheImagesOfAFolderAreSortedByName) {
  const Workplace place;
  for (const char* name : {"c.jpg", "a.jpeg", "b.jfif", "D.JPG"})
    place.Photograph("holiday" / std::filesystem::path(name));
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), (Texts{"D.JPG", "a.jpeg", "b.jfif", "c.jpg"}));
}

TEST(NewCommand, OtherFilesOfAFolderAreLeftOut) {
  const Workplace place;
  place.Photograph("holiday/a.jpg");
  for (const char* name : {"holiday/b.png", "holiday/jpg", "holiday/c.jpg.txt", "holiday/notes"})
    place.Write(name, "x");
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), Texts{"a.jpg"});
}

TEST(NewCommand, AHiddenFileIsAnImageLikeAnyOther) {
  const Workplace place;
  for (const char* name : {"holiday/.hidden.jpg", "holiday/a.jpg"}) place.Photograph(name);
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), (Texts{".hidden.jpg", "a.jpg"}));
}

TEST(NewCommand, SubfoldersAreLeftOut) {
  const Workplace place;
  for (const char* name : {"holiday/a.jpg", "holiday/sea/b.jpg"}) place.Photograph(name);
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), Texts{"a.jpg"});
}

TEST(NewCommand, RecursiveAddsSubfoldersAfterTheImagesOfTheFolder) {
  const Workplace place;
  for (const char* name :
       {"holiday/z.jpg", "holiday/b/2.jpg", "holiday/b/deep/3.jpg", "holiday/a/1.jpg", "holiday/c/4.jpg"}) {
    place.Photograph(name);
  }
  EXPECT_EQ(NamesAfterNew(place, {"--recursive", "holiday"}), (Texts{"z.jpg", "1.jpg", "2.jpg", "3.jpg", "4.jpg"}));
}

TEST(NewCommand, AFolderNamedLikeAnImageIsAFolder) {
  const Workplace place;
  place.Photograph("holiday/sea.jpg/a.jpg");
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), Texts{});
  EXPECT_EQ(NamesAfterNew(place, {"--recursive", "holiday"}), Texts{"a.jpg"});
}

TEST(NewCommand, LinksToFoldersAreNotFollowed) {
  const Workplace place;
  place.Photograph("holiday/a.jpg");
  place.Photograph("elsewhere/b.jpg");
  std::filesystem::create_directory_symlink(place.Path("elsewhere"), place.Path("holiday/link"));
  std::filesystem::create_directory_symlink(place.Path("holiday"), place.Path("holiday/again"));
  EXPECT_EQ(NamesAfterNew(place, {"--recursive", "holiday"}), Texts{"a.jpg"});
}

TEST(NewCommand, ALinkToAnImageIsAnImageAndADanglingLinkIsNot) {
  const Workplace place;
  place.Photograph("elsewhere/b.jpg");
  std::filesystem::create_directory(place.Path("holiday"));
  std::filesystem::create_symlink(place.Path("elsewhere/b.jpg"), place.Path("holiday/a.jpg"));
  std::filesystem::create_symlink(place.Path("nowhere.jpg"), place.Path("holiday/dead.jpg"));
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), Texts{"a.jpg"});
}

TEST(NewCommand, EqualNamesAreNumbered) {
  const Workplace place;
  for (const char* name : {"one/a.jpg", "two/a.jpg", "three/a.jpg"}) place.Photograph(name);
  EXPECT_EQ(NamesAfterNew(place, {"one", "two", "three/a.jpg"}), (Texts{"a.jpg", "a.jpg_1", "a.jpg_2"}));
  EXPECT_EQ(Images(place, "a.gpj", "SourcePath"),
            (Texts{place.SourceText("one/a.jpg"), place.SourceText("two/a.jpg"), place.SourceText("three/a.jpg")}));
}

TEST(NewCommand, AnEmptyFolderGivesAProjectWithoutImages) {
  const Workplace place;
  std::filesystem::create_directory(place.Path("holiday"));
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), Texts{});
}

TEST(NewCommand, TitleIsTheGallerysTitle) {
  const Workplace place;
  place.Photograph("a.jpg");
  for (const char* title : {"Two Words", "Ünïcödé & <tags> \"quoted\"", ""}) {
    ASSERT_TRUE(Succeeded(place.Run({"new", "--force", "a.gpj", "--title", title, "a.jpg"}))) << title;
    EXPECT_EQ(Shown(place, "a.gpj").at("project").at("textGalleryTitle"), title);
  }
}

TEST(NewCommand, WithoutATitleTheGalleryHasTheDefaultTitle) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  EXPECT_EQ(Shown(place, "a.gpj").at("project").at("textGalleryTitle"), "Gallery1");
}

TEST(NewCommand, NamesMayHaveLettersOfAnyScript) {
  const Workplace place;
  const Texts names = {"a & b.jpg", "mit \"Zitat\".jpg", "Übersicht.jpg", "写真.jpg"};
  for (const std::string& name : names) place.Photograph("holiday/" + name);
  EXPECT_EQ(NamesAfterNew(place, {"holiday"}), names);
}

TEST(NewCommand, APathThatDoesNotExistIsNamedAndNothingIsWritten) {
  const Workplace place;
  place.Photograph("a.jpg");
  const ProcessResult result = place.Run({"new", "a.gpj", "a.jpg", "nowhere"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: \"nowhere\" does not exist.\n");
  EXPECT_FALSE(std::filesystem::exists(place.Path("a.gpj")));
}

TEST(NewCommand, AFileThatIsNotAJPEGIsReportedAndNothingIsWritten) {
  const Workplace place;
  place.Write("a.png", "x");
  const ProcessResult result = place.Run({"new", "a.gpj", "a.png"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: \"a.png\" is no JPEG image (.jpg, .jpeg, .jfif).\n");
  EXPECT_FALSE(std::filesystem::exists(place.Path("a.gpj")));
}

TEST(NewCommand, AProjectIsReplacedOnlyWithForce) {
  const Workplace place;
  place.Project("a.gpj", {"a.jpg"});
  const std::string before = place.Read("a.gpj");
  place.Photograph("b.jpg");
  const ProcessResult result = place.Run({"new", "a.gpj", "b.jpg"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err,
            "File Error: \"" + place.Path("a.gpj").string() + "\" exists.  It is replaced only with --force.\n");
  EXPECT_EQ(place.Read("a.gpj"), before);
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "b.jpg", "--force"})));
  EXPECT_EQ(Images(place, "a.gpj", "ImageName"), Texts{"b.jpg"});
}

TEST(NewCommand, OtherFilesAreNeverReplaced) {
  const Workplace place;
  place.Photograph("a.jpg");
  place.Photograph("b.jpg");
  place.Write("notes.gpj", "mine");
  place.Write("page.gpj", "<HTML></HTML>");
  std::filesystem::create_symlink("a.jpg", place.Path("link.gpj"));
  const auto before = FilesBelow(place.Path());
  for (const char* target : {"a.jpg", "notes.gpj", "page.gpj", "link.gpj", "temp"}) {
    for (const Texts& command : {Texts{"new", target, "b.jpg"}, Texts{"new", "--force", target, "b.jpg"}}) {
      const ProcessResult result = place.Run(command);
      EXPECT_TRUE(EndedWith(1, result)) << target;
      EXPECT_EQ(result.err, "File Error: \"" + place.Path(target).string() +
                                "\" exists and is no project, so it is not replaced.\n");
    }
  }
  EXPECT_EQ(FilesBelow(place.Path()), before);
}

TEST(NewCommand, AnOutputThatIsAnInputIsAWrongCommandLine) {
  const Workplace place;
  place.Photograph("a.jpg");
  std::filesystem::create_hard_link(place.Path("a.jpg"), place.Path("other.jpg"));
  const auto before = FilesBelow(place.Path());
  for (const char* target : {"a.jpg", "./home/../a.jpg", "other.jpg"}) {
    const ProcessResult result = place.Run({"new", "--force", target, "a.jpg"});
    EXPECT_TRUE(EndedWith(2, result)) << target;
    EXPECT_EQ(result.err, "vantorium-batch: \"" + std::string(target) + "\" is an input too (see --help)\n");
  }
  EXPECT_EQ(FilesBelow(place.Path()), before);
}

TEST(NewCommand, AProjectThatCannotBeWrittenIsAFailure) {
  const Workplace place;
  place.Photograph("a.jpg");
  const ProcessResult result = place.Run({"new", "nowhere/a.gpj", "a.jpg"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: An error occurred while saving the Gallery Project.\n");
}

TEST(NewCommand, APathTextKeepsItsDrive) {
  const Workplace place;
  place.Photograph("home/pictures/a.jpg");
  const std::string typed = "Z:" + env::ReplaceAll(place.Path("home/pictures").string(), "/", "\\");
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", typed, typed + "\\a.jpg"})));
  const std::string source = "Z:" + place.Path("home/pictures/a.jpg").string();
  EXPECT_EQ(Images(place, "a.gpj", "SourcePath"), (Texts{source, source}));
}

TEST(NewCommand, ANameThatIsNotUTF8IsReportedAndNothingIsWritten) {
  const Workplace place;
  place.Photograph("holiday/bad\xFFname.jpg");
  const ProcessResult result = place.Run({"new", "a.gpj", "holiday"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("bad\xEF\xBF\xBDname.jpg\" has a name that is no UTF-8 text"), std::string::npos)
      << result.err;
  EXPECT_FALSE(std::filesystem::exists(place.Path("a.gpj")));
}

TEST(NewCommand, ANameWithABackslashIsReportedAndNoOtherFileIsTaken) {
  const Workplace place;
  place.Photograph("holiday/sea\\a.jpg");
  place.Photograph("holiday/sea/a.jpg");
  const ProcessResult result = place.Run({"new", "a.gpj", "holiday"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: \"" + place.Path("holiday/sea\\a.jpg").string() +
                            "\" has a backslash in its name and cannot stand in a project.\n");
  EXPECT_FALSE(std::filesystem::exists(place.Path("a.gpj")));
}

TEST(NewCommand, APipeNamedLikeAPhotographIsReportedAndNothingIsWritten) {
  const Workplace place;
  ASSERT_EQ(::mkfifo(place.Path("pipe.jpg").c_str(), 0600), 0);
  const ProcessResult result = place.Run({"new", "a.gpj", "pipe.jpg"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: \"pipe.jpg\" is no file.\n");
  EXPECT_FALSE(std::filesystem::exists(place.Path("a.gpj")));
}

}  // namespace
}  // namespace vantorium::batch
