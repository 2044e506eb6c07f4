#include "tests/app/ServerPlace.h"

namespace vantorium::batch {
namespace {

namespace fs = std::filesystem;

const std::vector<std::string> kCreationTime = {"--creation-time", "2001-02-03 04:05:06"};

class PublishCommand : public EachServerPlace {
 protected:
  void SetUp() override {
    EachServerPlace::SetUp();
    if (IsSkipped()) return;
    place.Project("a.gpj", {"a.jpg", "b c.jpg", "sea/\xC3\xA4.jpg"});
    place.Replace("a.gpj", "<LAYOUT ",
                  "<HEAD><![CDATA[<VANTORIUM_GALLERY_CREATIONDATE_SHORT>|"
                  "<VANTORIUM_GALLERY_CREATIONTIME_LONG>]]></HEAD><LAYOUT ");
  }
  /// Creates the same gallery locally, in the folder "out".
  void Create() const {
    std::vector<std::string> arguments = {"create", "a.gpj", "out/index.htm"};
    arguments.insert(arguments.end(), kCreationTime.begin(), kCreationTime.end());
    ASSERT_TRUE(Succeeded(place.Run(arguments)));
  }
};

INSTANTIATE_TEST_SUITE_P(To, PublishCommand, kEachServer, NameOfServer);

TEST_P(PublishCommand, AGalleryEqualsTheCreatedOneFileByFile) {
  const ProcessResult result = Publish("my web/site/index.htm", kCreationTime);
  ASSERT_TRUE(Succeeded(result)) << Log();
  EXPECT_EQ(result.out + result.err, "");
  Create();
  EXPECT_TRUE(SameFiles(OnServer("my web/site"), place.Path("out")));
  EXPECT_EQ(FilesBelow(server.Root()).size(), FilesBelow(place.Path("out")).size());
}

TEST_P(PublishCommand, ASecondRunReplacesEverything) {
  ASSERT_TRUE(Succeeded(Publish("web/index.htm"))) << Log();
  for (const auto& [name, bytes] : FilesBelow(OnServer("web"))) place.Write(OnServer("web") / name, "old");
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", kCreationTime))) << Log();
  Create();
  EXPECT_TRUE(SameFiles(OnServer("web"), place.Path("out")));
}

TEST_P(PublishCommand, OnlyChangesSendsOnlyChangedFilesAndRemovesOnlyFilesItSent) {
  std::vector<std::string> options = kCreationTime;
  options.insert(options.end(), {"--only-changes", "--remove-unused"});
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", options))) << Log();
  place.Write(OnServer("web/mine.htm"), "mine");
  fs::remove(OnServer("web/index.htm"));
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", options))) << Log();
  const std::string log = Log();
  EXPECT_EQ(log.find("Copying file"), log.rfind("Copying file")) << log;
  EXPECT_EQ(place.Read(OnServer("web/mine.htm")), "mine");
  fs::remove(OnServer("web/mine.htm"));
  Create();
  EXPECT_TRUE(SameFiles(OnServer("web"), place.Path("out")));

  place.Project("a.gpj", {"a.jpg"});
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", options))) << Log();
  EXPECT_EQ(ListingOf(OnServer("web")),
            "Images/a.jpg.jpg\nThumbs/thumb_a.jpg.jpg\na.jpg.htm\nindex.htm\nthumbpage_1.htm\n");
}

TEST_P(PublishCommand, KeepExistingSendsOnlyTheMissingPicturesAndAllPages) {
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", kCreationTime)));
  const std::string index = place.Read(OnServer("web/index.htm"));
  for (const char* name : {"web/Images/a.jpg.jpg", "web/Thumbs/thumb_a.jpg.jpg", "web/index.htm"}) {
    place.Write(OnServer(name), "old");
  }
  fs::remove(OnServer("web/Images/b c.jpg.jpg"));
  std::vector<std::string> more = {"--keep-existing"};
  more.insert(more.end(), kCreationTime.begin(), kCreationTime.end());
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", more)));
  EXPECT_EQ(place.Read(OnServer("web/Images/a.jpg.jpg")), "old");
  EXPECT_EQ(place.Read(OnServer("web/Thumbs/thumb_a.jpg.jpg")), "old");
  EXPECT_TRUE(fs::exists(OnServer("web/Images/b c.jpg.jpg")));
  EXPECT_EQ(place.Read(OnServer("web/index.htm")), index);
}

TEST_P(PublishCommand, EachSwitchLeavesOutItsFiles) {
  ASSERT_TRUE(Succeeded(Publish("web/index.htm", {"--no-html", "--no-thumbnails"})));
  EXPECT_EQ(ListingOf(OnServer("web")), "Images/a.jpg.jpg\nImages/b c.jpg.jpg\nImages/\xC3\xA4.jpg.jpg\n");
}

TEST_P(PublishCommand, TheRemotePathIsRelativeToTheBaseDirectory) {
  fs::create_directories(OnServer("home/me"));
  ASSERT_TRUE(Succeeded(Publish("web\\start.html", {"--base-directory", "home/me"}))) << Log();
  EXPECT_TRUE(fs::exists(OnServer("home/me/web/start.html")));
  EXPECT_FALSE(fs::exists(OnServer("web")));
}

TEST_P(PublishCommand, AnIndexFileWithoutAFolderIsInTheInitialDirectory) {
  ASSERT_TRUE(Succeeded(Publish("start.html")));
  EXPECT_TRUE(fs::exists(OnServer("start.html")));
  EXPECT_TRUE(fs::exists(OnServer("Images/a.jpg.jpg")));
}

TEST_P(PublishCommand, AMissingBaseDirectoryIsAFailure) {
  const ProcessResult result = Publish("web/index.htm", {"--base-directory", "nowhere"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "FTP Error: Cannot switch to specified base Directory \"nowhere\".\n");
  EXPECT_EQ(ListingOf(server.Root()), "");
}

TEST_P(PublishCommand, AFileInTheWayOfAFolderIsAFailure) {
  place.Write(OnServer("web"), "mine");
  const ProcessResult result = Publish("web/index.htm");
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "FTP Directory Error: Unable to create Images Subfolder.\n");
  EXPECT_EQ(place.Read(OnServer("web")), "mine");
}

TEST_P(PublishCommand, VerbosePrintsEachStatusTextOnItsLine) {
  const ProcessResult result = Publish("web/index.htm", {"--verbose"});
  ASSERT_TRUE(Succeeded(result));
  const std::string beginning = "Reading Project File \"" + place.Path("a.gpj").string() +
                                "\"...\n"
                                "Please wait while the Gallery is being published...\n"
                                "Connecting...\n"
                                "Logging in...\n"
                                "Collecting Image Information...\n";
  EXPECT_EQ(result.err.substr(0, beginning.size()), beginning);
  EXPECT_EQ(result.err.find("Creating Gallery Index File...\n"), result.err.rfind("Creating Gallery Index File...\n"));
}

class PublishRefusal : public ServerPlace {
 protected:
  [[nodiscard]] ProcessResult PublishProject(const std::string& project) const {
    return ChildProcess(Options("publish", project, "web/index.htm")).Finish();
  }
};

TEST_F(PublishRefusal, OfAProjectWithoutImages) {
  fs::create_directory(place.Path("empty"));
  ASSERT_TRUE(Succeeded(place.Run({"new", "a.gpj", "empty"})));
  const ProcessResult result = PublishProject("a.gpj");
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "No Images: You cannot upload a Gallery without Images.\n");
  EXPECT_FALSE(fs::exists(OnServer("web")));
}

TEST_F(PublishRefusal, OfAFileThatIsNotAProject) {
  place.Write("a.gpj", "no XML");
  for (const char* project : {"a.gpj", "missing.gpj"}) {
    const ProcessResult result = PublishProject(project);
    EXPECT_TRUE(EndedWith(1, result)) << project;
    EXPECT_NE(result.err, "") << project;
    EXPECT_EQ(ListingOf(server.Root()), "") << project;
  }
}

TEST_F(PublishRefusal, OfAnUnreadablePicture) {
  place.Project("a.gpj", {"a.jpg"});
  place.Write("a.jpg", "no JPEG");
  const ProcessResult result = PublishProject("a.gpj");
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("a.jpg\"."), std::string::npos) << result.err;
  EXPECT_EQ(ListingOf(server.Root()), "");
}

}  // namespace
}  // namespace vantorium::batch
