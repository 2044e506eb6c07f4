#include "image/JPEG.h"
#include "tests/app/Workplace.h"
#include "tests/fakes/FaultInjection.h"

#include <filesystem>

#include <sys/stat.h>

namespace vantorium::batch {
namespace {

const char kWholeGallery[] =
    "Images/a.jpg.jpg\n"
    "Images/b.jpg.jpg\n"
    "Thumbs/thumb_a.jpg.jpg\n"
    "Thumbs/thumb_b.jpg.jpg\n"
    "a.jpg.htm\n"
    "b.jpg.htm\n"
    "index.htm\n"
    "thumbpage_1.htm\n";

/// A workplace with the project "a.gpj", which has the photographs a.jpg and b.jpg.
class CreateCommand : public testing::Test {
 protected:
  CreateCommand() { place.Project("a.gpj", {"a.jpg", "b.jpg"}); }

  /// Creates the gallery in "out".
  ProcessResult Create(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {"create", "a.gpj", "out/index.htm"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return place.Run(arguments);
  }
  [[nodiscard]] std::string Listing() const { return ListingOf(place.Path("out")); }

  Workplace place;
};

std::pair<std::int32_t, std::int32_t> SizeOf(const std::filesystem::path& file) {
  std::pair<std::int32_t, std::int32_t> size;
  EXPECT_TRUE(image::ReadJPEGSize(file, size.first, size.second)) << file;
  return size;
}

TEST_F(CreateCommand, CreatesPagesImagesThumbnailsAndTheirFolders) {
  const ProcessResult result = place.Run({"create", "a.gpj", "deep/er/out/start.html"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "");
  std::string expected = kWholeGallery;
  expected.replace(expected.find("index.htm"), 9, "start.html");
  EXPECT_EQ(ListingOf(place.Path("deep/er/out")), expected);
}

TEST_F(CreateCommand, OnlyChangesWritesChangedFilesAndNamesUnusedOnes) {
  ASSERT_TRUE(Succeeded(Create({"--only-changes"})));
  const auto picture = place.Path("out/Images/a.jpg.jpg");
  const auto time = std::filesystem::last_write_time(place.Path("out/index.htm"));
  ASSERT_TRUE(Succeeded(Create({"--only-changes"})));
  EXPECT_EQ(std::filesystem::last_write_time(place.Path("out/index.htm")), time);
  EXPECT_FALSE(std::filesystem::is_empty(place.Path("home/.cache/vantorium")));

  place.Project("a.gpj", {"b.jpg"});
  const std::string names = "\nImages/a.jpg.jpg\nThumbs/thumb_a.jpg.jpg\na.jpg.htm\n";
  ProcessResult result = Create({"--only-changes"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err, "Unused Files: These Files of earlier Runs are not used any more.\n" + names);
  EXPECT_TRUE(std::filesystem::exists(picture));
  result = Create({"--only-changes", "--remove-unused"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err,
            "Unused Files: These Files of earlier Runs were not used any more and have been removed.\n" + names);
  EXPECT_EQ(Listing(), "Images/b.jpg.jpg\nThumbs/thumb_b.jpg.jpg\nb.jpg.htm\nindex.htm\nthumbpage_1.htm\n");
}

TEST_F(CreateCommand, WithoutOnlyChangesThereIsNoCacheFolder) {
  ASSERT_TRUE(Succeeded(Create()));
  EXPECT_FALSE(std::filesystem::exists(place.Path("home/.cache")));
}

TEST_F(CreateCommand, PicturesHaveTheSizesOfTheProject) {
  ASSERT_TRUE(Succeeded(Create()));
  EXPECT_EQ(SizeOf(place.Path("out/Images/a.jpg.jpg")), std::pair(400, 300));
  EXPECT_EQ(SizeOf(place.Path("out/Thumbs/thumb_a.jpg.jpg")), std::pair(60, 60));
}

TEST_F(CreateCommand, APhotographInTheGallerysImagesFolderIsNotOverwritten) {
  place.Photograph("out/Images/own.jpg");
  const std::string photograph = place.Read("out/Images/own.jpg");
  place.Project("own.gpj", {"out/Images/own.jpg"});
  place.Replace("own.gpj", "NAME=\"own.jpg\"", "NAME=\"own\"");
  const ProcessResult result = place.Run({"create", "own.gpj", "out/index.htm"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("It would replace \"" + place.Path("out/Images/own.jpg").string() + "\""),
            std::string::npos)
      << result.err;
  EXPECT_EQ(place.Read("out/Images/own.jpg"), photograph);
  EXPECT_EQ(Listing(), "Images/own.jpg\n");
}

TEST_F(CreateCommand, AnIndexFileWithoutAFolderIsInTheWorkingFolder) {
  ASSERT_TRUE(Succeeded(place.Run({"create", "a.gpj", "index.htm"})));
  EXPECT_TRUE(std::filesystem::exists(place.Path("index.htm")));
  EXPECT_TRUE(std::filesystem::exists(place.Path("Images/a.jpg.jpg")));
}

TEST_F(CreateCommand, NoImagesLeavesOutTheImages) {
  ASSERT_TRUE(Succeeded(Create({"--no-images"})));
  EXPECT_EQ(Listing(),
            "Thumbs/thumb_a.jpg.jpg\nThumbs/thumb_b.jpg.jpg\na.jpg.htm\nb.jpg.htm\nindex.htm\nthumbpage_1.htm\n");
}

TEST_F(CreateCommand, NoThumbnailsLeavesOutTheThumbnails) {
  ASSERT_TRUE(Succeeded(Create({"--no-thumbnails"})));
  EXPECT_EQ(Listing(), "Images/a.jpg.jpg\nImages/b.jpg.jpg\na.jpg.htm\nb.jpg.htm\nindex.htm\nthumbpage_1.htm\n");
}

TEST_F(CreateCommand, NoHtmlLeavesOutThePages) {
  ASSERT_TRUE(Succeeded(Create({"--no-html"})));
  EXPECT_EQ(Listing(), "Images/a.jpg.jpg\nImages/b.jpg.jpg\nThumbs/thumb_a.jpg.jpg\nThumbs/thumb_b.jpg.jpg\n");
}

TEST_F(CreateCommand, AllThreeSwitchesLeaveOutEverything) {
  ASSERT_TRUE(Succeeded(Create({"--no-html", "--no-images", "--no-thumbnails"})));
  EXPECT_EQ(Listing(), "");
}

TEST_F(CreateCommand, ExistingFilesAreOverwritten) {
  ASSERT_TRUE(Succeeded(Create()));
  const auto before = FilesBelow(place.Path("out"));
  for (const auto& [name, bytes] : before) place.Write("out/" + name, "old");
  ASSERT_TRUE(Succeeded(Create()));
  EXPECT_TRUE(FilesBelow(place.Path("out")) == before);
}

TEST_F(CreateCommand, KeepExistingMakesOnlyTheMissingPicturesAndAllPages) {
  ASSERT_TRUE(Succeeded(Create()));
  const std::string index = place.Read("out/index.htm");
  for (const char* name : {"Images/a.jpg.jpg", "Thumbs/thumb_b.jpg.jpg", "index.htm"}) {
    place.Write(std::filesystem::path("out") / name, "old");
  }
  std::filesystem::remove(place.Path("out/Images/b.jpg.jpg"));
  ASSERT_TRUE(Succeeded(Create({"--keep-existing"})));
  EXPECT_EQ(place.Read("out/Images/a.jpg.jpg"), "old");
  EXPECT_EQ(place.Read("out/Thumbs/thumb_b.jpg.jpg"), "old");
  EXPECT_EQ(SizeOf(place.Path("out/Images/b.jpg.jpg")), std::pair(400, 300));
  EXPECT_EQ(place.Read("out/index.htm"), index);
}

TEST_F(CreateCommand, OtherFilesInTheTargetFolderAreUnchanged) {
  place.Write("out/notes.txt", "mine");
  place.Write("out/Images/other.jpg", "mine");
  ASSERT_TRUE(Succeeded(Create()));
  EXPECT_EQ(place.Read("out/notes.txt"), "mine");
  EXPECT_EQ(place.Read("out/Images/other.jpg"), "mine");
}

TEST_F(CreateCommand, TheGalleryIsTheSameForEveryNumberOfJobs) {
  place.LargeProject("many.gpj", 12, 200, 150);
  for (const char* jobs : {"1", "2", "4", "1024"}) {
    const std::string target = std::string("out") + jobs + "/index.htm";
    ASSERT_TRUE(Succeeded(place.Run({"create", "many.gpj", target, "--jobs", jobs}))) << jobs;
    EXPECT_TRUE(SameFiles(place.Path("out1"), place.Path(std::string("out") + jobs))) << jobs << " jobs";
  }
}

TEST_F(CreateCommand, TheCreationTimeIsTheOneGiven) {
  place.Replace("a.gpj", "<LAYOUT ",
                "<HEAD><![CDATA[<VANTORIUM_GALLERY_CREATIONDATE_SHORT>|"
                "<VANTORIUM_GALLERY_CREATIONTIME_LONG>]]></HEAD><LAYOUT ");
  const std::vector<std::string> early = {"--creation-time", "2001-02-03 04:05:06"};
  ASSERT_TRUE(Succeeded(Create(early)));
  std::filesystem::rename(place.Path("out"), place.Path("before"));
  ASSERT_TRUE(Succeeded(Create(early)));
  EXPECT_TRUE(SameFiles(place.Path("before"), place.Path("out")));
  ASSERT_TRUE(Succeeded(Create({"--creation-time", "2022-02-03 04:05:06"})));
  EXPECT_NE(place.Read("before/index.htm"), place.Read("out/index.htm"));
}

TEST_F(CreateCommand, AProjectWithoutImagesIsRefusedAndNothingIsCreated) {
  std::filesystem::create_directory(place.Path("empty"));
  ASSERT_TRUE(Succeeded(place.Run({"new", "--force", "a.gpj", "empty"})));
  const ProcessResult result = Create();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "No Images: You cannot create a Gallery without Images.\n");
  EXPECT_FALSE(std::filesystem::exists(place.Path("out")));
}

TEST_F(CreateCommand, AnInvalidProjectCreatesNothing) {
  place.Write("a.gpj", "no XML");
  const ProcessResult result = Create();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("Invalid Project File: "), std::string::npos) << result.err;
  EXPECT_FALSE(std::filesystem::exists(place.Path("out")));
}

TEST_F(CreateCommand, AnUnreadablePictureEndsTheRunAndFinishedFilesStay) {
  place.Write("b.jpg", "no JPEG");
  const ProcessResult result = Create();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: Unable to copy the File \"" + place.Path("b.jpg").string() + "\".\n");
  EXPECT_EQ(Listing(), "Images/a.jpg.jpg\n");
}

TEST_F(CreateCommand, ATargetFolderThatCannotBeCreatedIsAFailureWithTheReason) {
  const ProcessResult result = place.Run({"create", "a.gpj", "a.jpg/index.htm"});
  EXPECT_TRUE(EndedWith(1, result));
  const std::string beginning = "Failure: An Error has occurred during Creation of this Gallery:\n\n";
  EXPECT_EQ(result.err.substr(0, beginning.size()), beginning);
  EXPECT_NE(result.err.find("\n\nError #"), std::string::npos) << result.err;
  EXPECT_EQ(result.err.find('\r'), std::string::npos) << result.err;
}

TEST_F(CreateCommand, AFolderStandsForTheIndexFileInIt) {
  std::filesystem::create_directory(place.Path("there"));
  for (const char* folder : {"new/", "there", "there/", "home/..", "C:\\text\\", "C:\\", "C:"}) {
    ASSERT_TRUE(Succeeded(place.Run({"create", "a.gpj", folder}))) << folder;
  }
  for (const char* folder : {"new", "there", "", "home/text", "home"}) {
    EXPECT_TRUE(std::filesystem::is_regular_file(place.Path(std::filesystem::path(folder) / "index.htm"))) << folder;
  }
}

TEST_F(CreateCommand, AnIndexFileThatIsAFolderIsRefusedBeforeAnythingIsCreated) {
  std::filesystem::create_directories(place.Path("out/index.htm/index.htm"));
  ASSERT_EQ(::mkfifo(place.Path("out/pipe.htm").c_str(), 0600), 0);
  for (const auto& [index, file] :
       {std::pair{"out/", "out/index.htm"}, std::pair{"out", "out/index.htm"},
        std::pair{"out/index.htm", "out/index.htm/index.htm"}, std::pair{"out/pipe.htm", "out/pipe.htm"}}) {
    const ProcessResult result = place.Run({"create", "a.gpj", index});
    EXPECT_TRUE(EndedWith(1, result)) << index;
    EXPECT_EQ(result.err, "File Error: \"" + place.Path(file).string() +
                              "\" cannot be the index file, as it is there and is no file.\n");
  }
  EXPECT_FALSE(std::filesystem::exists(place.Path("out/Images")));
  EXPECT_TRUE(std::filesystem::is_fifo(place.Path("out/pipe.htm")));
}

TEST_F(CreateCommand, TheProjectAsIndexFileIsAWrongCommandLine) {
  const std::string before = place.Read("a.gpj");
  const ProcessResult result = place.Run({"create", "a.gpj", "home/../a.gpj"});
  EXPECT_TRUE(EndedWith(2, result));
  EXPECT_EQ(result.err, "vantorium-batch: \"home/../a.gpj\" is an input too (see --help)\n");
  EXPECT_EQ(place.Read("a.gpj"), before);
}

TEST_F(CreateCommand, FilesLeftByAKilledRunAreRemoved) {
  ChildProcess gone(place.Options({"show", "a.gpj"}));
  ASSERT_TRUE(Succeeded(gone.Finish()));
  for (const char* folder : {"out", "out/Images", "out/Thumbs"}) {
    place.Write(std::string(folder) + "/.vantorium-" + std::to_string(gone.Number()) + "-0", "half");
  }
  place.Write("out/.vantorium-mine", "kept");
  ASSERT_TRUE(Succeeded(Create()));
  EXPECT_EQ(Listing(), ".vantorium-mine\n" + std::string(kWholeGallery));
}

TEST_F(CreateCommand, AFileTooLargeForTheSystemIsAFailureAndLeavesNothing) {
  ProcessResult result;
  {
    const fakes::FullDisk full(1000);
    std::signal(SIGXFSZ, SIG_DFL);  // the default action, which a program normally starts with
    result = Create();
  }
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("File too large"), std::string::npos) << result.err;
  EXPECT_EQ(Listing(), "");
}

TEST_F(CreateCommand, ATargetOnAnUnmappedDriveIsAFailure) {
  for (const char* index : {"Q:\\out\\index.htm", "\\\\server\\share\\index.htm"}) {
    EXPECT_TRUE(EndedWith(1, place.Run({"create", "a.gpj", index}))) << index;
  }
}

TEST_F(CreateCommand, AMessageIsALineWithTitleAndText) {
  std::filesystem::remove(place.Path("a.jpg"));
  const ProcessResult result = Create();
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "File Error: An Error occurred trying to read the image file \"" +
                            place.Path("a.jpg").string() +
                            "\":\n\nFile not found\n\nLoading Process cancelled.\n"
                            "File Error: An error occurred while opening the Gallery Project \"" +
                            place.Path("a.gpj").string() + "\".\n");
}

TEST_F(CreateCommand, AnotherProjectOrAPhotographIsNeverTakenAsTheIndexFile) {
  place.Project("b.gpj", {"b.jpg"});
  place.Photograph("out/c.JPG");
  std::filesystem::create_symlink("../b.gpj", place.Path("out/link.htm"));
  const auto before = FilesBelow(place.Path());
  for (const auto& [index, what] : {std::pair{"b.gpj", "a project"}, std::pair{"out/link.htm", "a project"},
                                    std::pair{"out/c.JPG", "named like a photograph"}}) {
    const ProcessResult result = place.Run({"create", "a.gpj", index});
    EXPECT_TRUE(EndedWith(1, result)) << index;
    EXPECT_EQ(result.err, "File Error: \"" + place.Path(index).string() +
                              "\" cannot be the index file, as it is there and is " + what + ".\n");
  }
  EXPECT_EQ(FilesBelow(place.Path()), before);
}

}  // namespace
}  // namespace vantorium::batch
