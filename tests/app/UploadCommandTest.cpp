#include "tests/app/ServerPlace.h"

namespace vantorium::batch {
namespace {

namespace fs = std::filesystem;

class UploadCommand : public EachServerPlace {
 protected:
  UploadCommand() {
    place.Write("site/index.htm", "<HTML></HTML>\r\n");
    place.Write("site/pictures/large picture.jpg", std::string(300'000, '\xD8'));
    place.Write("site/pictures/old/\xC3\xA4", std::string("\0\r\n\n", 4));
    place.Write("site/.hidden", "x");
    fs::create_directory(place.Path("site/empty"));
  }
};

INSTANTIATE_TEST_SUITE_P(To, UploadCommand, kEachServer, NameOfServer);

TEST_P(UploadCommand, AFolderIsSentWithItsTreeByteByByte) {
  for (const char* remote : {"my web/new", "slash/", "back\\slash\\"}) {
    const ProcessResult result = Upload(remote);
    ASSERT_TRUE(Succeeded(result)) << remote << "\n" << Log();
    EXPECT_EQ(result.out + result.err, "") << remote;
  }
  for (const char* folder : {"my web/new", "slash", "back/slash"}) {
    EXPECT_TRUE(SameFiles(OnServer(folder), place.Path("site"))) << folder;
    EXPECT_TRUE(fs::is_directory(OnServer(folder) / "empty")) << folder;
  }
}

TEST_P(UploadCommand, ALinkToAFolderIsNotFollowed) {
  fs::create_directory_symlink(place.Path("site"), place.Path("site/pictures/above"));
  ASSERT_TRUE(Succeeded(Upload("web"))) << Log();
  EXPECT_FALSE(fs::exists(OnServer("web/pictures/above")));
  EXPECT_TRUE(fs::exists(OnServer("web/pictures/old")));
}

TEST_P(UploadCommand, FilesOnTheServerAreReplacedUnlessKeepExistingIsGiven) {
  place.Write(OnServer("web/index.htm"), "old");
  ASSERT_TRUE(Succeeded(Upload("web", {"--keep-existing"})));
  EXPECT_EQ(place.Read(OnServer("web/index.htm")), "old");
  EXPECT_TRUE(fs::exists(OnServer("web/.hidden")));
  ASSERT_TRUE(Succeeded(Upload("web")));
  EXPECT_TRUE(SameFiles(OnServer("web"), place.Path("site")));
}

TEST_P(UploadCommand, OtherFilesOnTheServerAreUnchanged) {
  place.Write(OnServer("web/notes.txt"), "mine");
  ASSERT_TRUE(Succeeded(Upload("web")));
  EXPECT_EQ(place.Read(OnServer("web/notes.txt")), "mine");
}

TEST_P(UploadCommand, TheRemotePathIsRelativeToTheBaseDirectory) {
  fs::create_directories(OnServer("home/me"));
  ASSERT_TRUE(Succeeded(Upload("web", {"--base-directory", "home/me"})));
  EXPECT_TRUE(SameFiles(OnServer("home/me/web"), place.Path("site")));
}

TEST_P(UploadCommand, VerbosePrintsEachStatusTextOnItsLine) {
  fs::remove_all(place.Path("site/pictures"));
  const ProcessResult result = Upload("web", {"--verbose"});
  ASSERT_TRUE(Succeeded(result));
  EXPECT_EQ(result.err,
            "Please wait while the Folder is being uploaded...\n"
            "Connecting...\n"
            "Logging in...\n"
            "Creating Directory \"web\"...\n"
            "Uploading File \"" +
                place.Path("site/.hidden").string() +
                "\"...\n"
                "Creating Directory \"web/empty\"...\n"
                "Uploading File \"" +
                place.Path("site/index.htm").string() + "\"...\n");
}

// A missing folder, a file, a folder on an unmapped drive, and no folder.
TEST_P(UploadCommand, AnUnreadableFolderIsAFailureBeforeAnyConnection) {
  for (const char* folder : {"missing", "site/index.htm", "Q:\\site", ""}) {
    const ProcessResult result = ChildProcess(Options("upload", folder, "web")).Finish();
    EXPECT_TRUE(EndedWith(1, result)) << folder;
    EXPECT_EQ(result.err, "File Error: The folder \"" + std::string(folder) + "\" cannot be read.\n");
  }
  EXPECT_FALSE(fs::exists(OnServer("web")));
}

TEST_P(UploadCommand, ARefusalOfTheServerIsAFailureThatNamesTheLog) {
  place.Write(OnServer("web/pictures"), "a file in the way of a folder");
  const ProcessResult result = Upload("web");
  EXPECT_TRUE(EndedWith(1, result));
  const std::string log = place.Path("program/ftplog.txt").string();
  EXPECT_EQ(result.err, "Upload failed: What the server has answered is in the file \"" + log + "\".\n");
  EXPECT_NE(Log().find("\r\n550 "), std::string::npos) << Log();
}

TEST_P(UploadCommand, AnEmptyFileEndsTheUploadWithAFailure) {
  place.Write("site/empty/file", "");
  const ProcessResult result = Upload("web");
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err,
            "Failure: An Error has occurred during the Upload of this Gallery:\n\nDivision by zero\n\nError #11\n");
}

TEST(UploadWithoutServer, IsAFailureWithAMessage) {
  const Workplace place;
  place.Write("password", "hush-hush");
  place.Write("site/index.htm", "x");
  place.Project("a.gpj", {"a.jpg"});
  // Port 1 on loopback, where nothing listens, a host that cannot exist, and no host.
  for (const char* host : {"127.0.0.1", "no-such-host.invalid", ""}) {
    for (const auto& [command, what] : {std::pair{"upload", "site"}, std::pair{"publish", "a.gpj"}}) {
      const ProcessResult result = place.Run({command, what, "--server", host, "--port", "1", "--user", "me",
                                              "--password-file", "password", "--remote", "web/index.htm"});
      EXPECT_TRUE(EndedWith(1, result)) << host << ": " << command;
      EXPECT_EQ(result.err,
                "FTP Error: Cannot connect to Server.  Please check your Internet Connection and Server URL.\n")
          << host << ": " << command;
    }
  }
}

}  // namespace
}  // namespace vantorium::batch
