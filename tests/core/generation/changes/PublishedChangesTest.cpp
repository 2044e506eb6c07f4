#include "tests/core/generation/PublishFixture.h"
#include "tests/fakes/FilesBelow.h"

#include <map>

namespace vantorium::generation {
namespace {

using fakes::ScriptedFtpServer;
using Session = ScriptedFtpServer::Session;
using Names = std::vector<std::string>;

class PublishedChangesTest : public PublishFixture {
 protected:
  PublishedChangesTest() {
    project.settings.comboImageDescriptionPlacement = core::NumberOf(core::Placement::Below);
    environment.cacheFolder = folder.Path() / "cache";
    for (const char* name : {"a", "b"}) AddPhotograph(name);
    folder.Write("project/back.gif", "GIF");
    project.settings.textThumbnailsPageBackdrop = "back.gif";
    for (const char* name : {"one.txt", "sub/two.txt", "sub/three.txt"})
      folder.Write(std::string("folder/") + name, name);
  }
  [[nodiscard]] static RunOrder OnlyChanges(RunOrder order) {
    order.OnlyChanges = true;
    return order;
  }
  [[nodiscard]] static RunOrder RemovingUnused(RunOrder order) {
    order.OnlyChanges = order.RemoveUnused = true;
    return order;
  }
  /// Runs, and returns the files that were sent.
  Names Sent(const ScriptedFtpServer& server, const RunOrder& order) {
    const std::size_t before = server.Commands().size();
    EXPECT_EQ(Run(order), RunEnd::Success) << LastBox();
    Names sent;
    const Names commands = server.Commands();
    for (std::size_t i = before; i < commands.size(); ++i) {
      if (commands[i].starts_with("STOR ")) sent.push_back(commands[i].substr(5));
    }
    return sent;
  }
  /// Expects that the server has the files that a full run sends to another server.
  void ExpectLikeAFullRun(const ScriptedFtpServer& server) {
    ScriptedFtpServer other;
    EXPECT_EQ(Run(PublishTo(other)), RunEnd::Success) << LastBox();
    EXPECT_TRUE(server.Files() == other.Files());
  }
  void Describe(const std::string& text) {
    core::ImageEntry entry = project.images.Entry(2);
    entry.ImageDescription = text;
    project.images.Remove(2);
    project.images.Insert(2, entry);
  }
  void RenameSecond(const std::string& name) {
    core::ImageEntry entry = project.images.Entry(2);
    entry.ImageName = name;
    project.images.Remove(2);
    project.images.Insert(2, entry);
  }
  [[nodiscard]] bool HasRecord() const {
    return std::filesystem::exists(environment.cacheFolder) && !std::filesystem::is_empty(environment.cacheFolder);
  }
};

TEST_F(PublishedChangesTest, ASecondRunSendsNothingAndQueriesTheSizeOfEachFile) {
  ScriptedFtpServer server;
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))).size(), 9U);
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names());
  const Names commands = server.Commands();
  EXPECT_EQ(std::ranges::count_if(commands, [](const std::string& line) { return line.starts_with("SIZE "); }), 9);
  ExpectLikeAFullRun(server);
}

TEST_F(PublishedChangesTest, AChangedDescriptionSendsItsPage) {
  ScriptedFtpServer server;
  Run(OnlyChanges(PublishTo(server)));
  Describe("new");
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names{"web/b.htm"});
  ExpectLikeAFullRun(server);
}

TEST_F(PublishedChangesTest, AMissingOrDifferentSizeOnTheServerSendsTheFile) {
  ScriptedFtpServer server;
  Run(OnlyChanges(PublishTo(server)));
  for (const char* name :
       {"web/Images/b.jpg", "web/Thumbs/thumb_a.jpg", "web/index.htm", "web/Images/_backdrop_thumbpage.gif"}) {
    server.PutFile(name, "other");
    EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names{name});
  }
  ScriptedFtpServer::Script forgetful;
  forgetful.on["SIZE"] = [](Session& session, const std::string&) { session.Say("550 none\r\n"); };
  ScriptedFtpServer emptied(forgetful);
  Run(OnlyChanges(PublishTo(emptied)));
  EXPECT_EQ(Sent(emptied, OnlyChanges(PublishTo(emptied))).size(), 9U);
}

TEST_F(PublishedChangesTest, ASizeThatIsNotANumberSendsTheFile) {
  for (const char* reply : {"213 many\r\n", "213 \r\n", "213 -1\r\n", "213 99999999999999999999999\r\n", "200 7\r\n"}) {
    ScriptedFtpServer server(Answering("SIZE", reply));
    Run(OnlyChanges(PublishTo(server)));
    EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))).size(), 9U) << reply;
  }
}

TEST_F(PublishedChangesTest, APictureMadeAgainWithTheSameBytesIsNotSent) {
  ScriptedFtpServer server;
  Run(OnlyChanges(PublishTo(server)));
  folder.Write("photos/a.jpg", folder.Read("photos/a.jpg"));
  folder.Write("project/back.gif", "GIF");
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names());
  project.settings.checkImageWrapperImageKeepSize = 1;
  EXPECT_FALSE(Sent(server, OnlyChanges(PublishTo(server))).empty());
  folder.Write("photos/a.jpg", folder.Read("photos/a.jpg"));
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names());
}

TEST_F(PublishedChangesTest, AFileThatTheServerDidNotConfirmIsSentAgain) {
  bool refuses = true;
  ScriptedFtpServer::Script script;
  script.on["STOR"] = [&refuses](Session& session, const std::string& name) {
    if (!refuses || name != "web/b.htm") return session.Answer("STOR", name);
    session.Say("150 Send\r\n");
    session.OpenData();
    session.Receive(name);
    session.CloseData();
    session.Say("452 Full\r\n");
  };
  ScriptedFtpServer server(script);
  Run(OnlyChanges(PublishTo(server)));
  refuses = false;
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names{"web/b.htm"});
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names());
}

TEST_F(PublishedChangesTest, ARunWithoutOnlyChangesRemovesTheRecord) {
  ScriptedFtpServer server;
  Describe("one");
  Run(OnlyChanges(PublishTo(server)));
  Describe("two");
  Run(PublishTo(server));
  EXPECT_FALSE(HasRecord());
  Describe("one");
  Run(OnlyChanges(PublishTo(server)));
  ExpectLikeAFullRun(server);
}

TEST_F(PublishedChangesTest, WhileARunSendsThereIsNoRecord) {
  ScriptedFtpServer server;
  Run(OnlyChanges(PublishTo(server)));
  EXPECT_TRUE(HasRecord());
  bool hadOne = false;
  Describe("new");
  // The first turn is that of the new window, before the run.
  loop.onTurn = [&](int) { hadOne = hadOne || (host.progress.texts2.size() > 1 && HasRecord()); };
  host.progress.texts2.clear();
  Run(OnlyChanges(PublishTo(server)));
  EXPECT_FALSE(hadOne);
  EXPECT_TRUE(HasRecord());
}

TEST_F(PublishedChangesTest, AFailedRunRecordsTheFilesItSent) {
  ScriptedFtpServer server;
  folder.Write("photos/b.jpg", "none");
  EXPECT_EQ(Run(OnlyChanges(PublishTo(server))), RunEnd::Failure);
  folder.Write("photos/b.jpg", PlainJpeg(40, 30));
  const Names sent = Sent(server, OnlyChanges(PublishTo(server)));
  EXPECT_EQ(std::ranges::count(sent, "web/Images/a.jpg"), 0);
  EXPECT_EQ(std::ranges::count(sent, "web/Images/b.jpg"), 1);
  ExpectLikeAFullRun(server);
}

TEST_F(PublishedChangesTest, ARunThatCannotConnectKeepsTheRecord) {
  auto server = std::make_unique<ScriptedFtpServer>();
  const RunOrder order = OnlyChanges(PublishTo(*server));
  Run(order);
  server.reset();
  EXPECT_EQ(Run(order), RunEnd::Failure);
  EXPECT_TRUE(HasRecord());
}

TEST_F(PublishedChangesTest, EachFolderOfEachUserOnEachServerHasItsOwnRecord) {
  ScriptedFtpServer server;
  Run(OnlyChanges(PublishTo(server)));
  RunOrder order = OnlyChanges(PublishTo(server));
  order.RemoteFolder = "elsewhere/";
  EXPECT_EQ(Sent(server, order).size(), 9U);
  order = OnlyChanges(PublishTo(server));
  order.UserName = "you";
  EXPECT_EQ(Sent(server, order).size(), 9U);
  order = OnlyChanges(PublishTo(server));
  order.BaseDirectory = "home";
  EXPECT_EQ(Sent(server, order).size(), 9U);
  EXPECT_EQ(Sent(server, OnlyChanges(PublishTo(server))), Names());
}

TEST_F(PublishedChangesTest, UnusedFilesOfEarlierRunsAreListedAndRemovedOnlyOnRequest) {
  ScriptedFtpServer server;
  server.PutFile("web/mine.htm", "mine");
  Run(OnlyChanges(PublishTo(server)));
  RenameSecond("new");
  Run(OnlyChanges(PublishTo(server)));
  const std::string names = "\r\rImages/b.jpg\rThumbs/thumb_b.jpg\rb.htm";
  EXPECT_EQ(LastBox(), "Unused Files: These Files of earlier Runs are not used any more." + names);
  EXPECT_FALSE(server.HasHeard("DELE"));
  Run(RemovingUnused(PublishTo(server)));
  EXPECT_EQ(LastBox(),
            "Unused Files: These Files of earlier Runs were not used any more and have been removed." + names);
  const auto left = NamesOn(server);
  EXPECT_TRUE(left.contains("web/mine.htm"));
  EXPECT_FALSE(left.contains("web/b.htm") || left.contains("web/Images/b.jpg"));
}

TEST_F(PublishedChangesTest, AnUnusedFileWithAnotherSizeOrANameInAnotherCaseStays) {
  ScriptedFtpServer server;
  Run(OnlyChanges(PublishTo(server)));
  RenameSecond("B");
  Run(RemovingUnused(PublishTo(server)));
  EXPECT_FALSE(server.HasHeard("DELE"));
  RenameSecond("new");
  server.PutFile("web/b.htm", "mine");
  Run(RemovingUnused(PublishTo(server)));
  EXPECT_TRUE(server.HasHeard("DELE web/B.htm"));
  EXPECT_FALSE(server.HasHeard("DELE web/b.htm"));
}

TEST_F(PublishedChangesTest, AfterTheFirstUploadOfAFolderOnlyChangesAreSent) {
  ScriptedFtpServer server;
  EXPECT_EQ(Sent(server, OnlyChanges(UploadTo(server))).size(), 3U);
  EXPECT_EQ(Sent(server, OnlyChanges(UploadTo(server))), Names());
  folder.Write("folder/sub/two.txt", "sub/TWO.txt");
  folder.Write("folder/one.txt", "one.txt");
  EXPECT_EQ(Sent(server, OnlyChanges(UploadTo(server))), Names{"web/sub/two.txt"});
  server.PutFile("web/one.txt", "short");
  EXPECT_EQ(Sent(server, OnlyChanges(UploadTo(server))), Names{"web/one.txt"});
  for (const auto& [name, bytes] : fakes::FilesBelow(folder.Path() / "folder")) {
    EXPECT_EQ(server.Files().at("web/" + name), bytes) << name;
  }
}

TEST_F(PublishedChangesTest, AnUploadRemovesOnlyFilesThatItSent) {
  ScriptedFtpServer server;
  server.PutFile("web/mine.txt", "mine");
  Run(OnlyChanges(UploadTo(server)));
  std::filesystem::remove(folder.Path() / "folder/sub/two.txt");
  Run(RemovingUnused(UploadTo(server)));
  EXPECT_EQ(LastBox(),
            "Unused Files: These Files of earlier Runs were not used any more and have been removed.\r\rsub/two.txt");
  EXPECT_EQ(NamesOn(server), (std::set<std::string>{"web/mine.txt", "web/one.txt", "web/sub/three.txt"}));
}

TEST_F(PublishedChangesTest, AnUploadRemovesNothingThatAnotherFolderSent) {
  ScriptedFtpServer server;
  Run(OnlyChanges(UploadTo(server)));
  folder.Write("other/four.txt", "four");
  RunOrder other = RemovingUnused(UploadTo(server));
  other.OutputFolder = "T:\\other\\";
  Run(other);
  EXPECT_TRUE(boxes.boxes.empty()) << LastBox();
  EXPECT_EQ(NamesOn(server),
            (std::set<std::string>{"web/four.txt", "web/one.txt", "web/sub/three.txt", "web/sub/two.txt"}));
}

}  // namespace
}  // namespace vantorium::generation
