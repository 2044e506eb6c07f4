#include "publish/UploadFolder.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fakes/UploadFakes.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

namespace fs = std::filesystem;

using Lines = std::vector<std::string>;

class StatusBar : public env::WindowState {
 public:
  void SetStatusText(const std::string& text) override { texts.push_back(text); }
  Lines texts;
};

/// A server, and the folder "site" of drive C: to send to it.
class UploadFolderTest : public testing::Test {
 protected:
  UploadFolderTest() { fs::create_directory(drive.Path() / "site"); }

  void Write(const std::string& name) const { drive.Write("site/" + name, name); }
  void MakeFolder(const std::string& name) const { fs::create_directories(drive.Path() / "site" / name); }

  bool Send(const std::string& local = "C:\\site", const std::string& remote = "web", bool overwrite = true) {
    return upload.UploadFolder(local, remote, overwrite);
  }
  std::int32_t Count(const std::string& local = "C:\\site") { return upload.CountSteps(local); }
  [[nodiscard]] std::int32_t Progress() const { return progress.GetProgress(); }

  void ExpectOneBox(env::BoxKind kind, const std::string& title, const std::string& text) const {
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].kind, kind);
    EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::Ok);
    EXPECT_EQ(boxes.boxes[0].title, title);
    EXPECT_EQ(boxes.boxes[0].text, text);
  }
  void ExpectCancelReportedOnce() const {
    ExpectOneBox(env::BoxKind::Exclamation, "Upload cancelled", "The User has cancelled Upload of the Gallery");
  }

  fakes::TemporaryFolder drive;
  env::PathMap paths{{{'C', drive.Path().string()}}};
  fakes::RecordingUploads server;
  fakes::RecordingMessageBox boxes;
  fakes::CountingEventLoop loop;
  fakes::ScriptedCancel cancel;
  fakes::Journal journal;
  fakes::ProgressRecord record;
  fakes::RecordingProgress progress{record, journal};
  StatusBar window;
  FolderUpload upload{{server, paths, boxes, loop, cancel, progress, window}};
};

TEST_F(UploadFolderTest, TheContentsAreSentToTheRemotePathWithTheSameTree) {
  for (const char* name : {"b.htm", "a.htm", "sub/c.jpg", "sub/deep/d.jpg"}) Write(name);
  EXPECT_TRUE(Send());
  EXPECT_EQ(server.calls, (Lines{
                              "make web",
                              "copy C:\\site\\a.htm to web/a.htm",
                              "copy C:\\site\\b.htm to web/b.htm",
                              "make web/sub",
                              "copy C:\\site\\sub\\c.jpg to web/sub/c.jpg",
                              "make web/sub/deep",
                              "copy C:\\site\\sub\\deep\\d.jpg to web/sub/deep/d.jpg",
                          }));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UploadFolderTest, FoldersAreSortedAmongFilesByName) {
  for (const char* name : {"z", "m/file", "a"}) Write(name);
  EXPECT_TRUE(Send());
  EXPECT_EQ(server.calls, (Lines{"make web", "copy C:\\site\\a to web/a", "make web/m",
                                 "copy C:\\site\\m\\file to web/m/file", "copy C:\\site\\z to web/z"}));
}

TEST_F(UploadFolderTest, EachStepIsShownInWindowAndStatusBar) {
  Write("sub/a.htm");
  EXPECT_TRUE(Send());
  const Lines expected = {"Creating Directory \"web\"...", "Creating Directory \"web/sub\"...",
                          "Uploading File \"C:\\site\\sub\\a.htm\"..."};
  EXPECT_EQ(record.texts2, expected);
  EXPECT_EQ(window.texts, expected);
}

TEST_F(UploadFolderTest, TheOverwriteFlagIsPassedWithEachFile) {
  Write("sub/a.htm");
  EXPECT_TRUE(Send("C:\\site", "web", /*overwrite=*/false));
  EXPECT_EQ(server.calls,
            (Lines{"make web", "make web/sub", "copy C:\\site\\sub\\a.htm to web/sub/a.htm unless there"}));
}

TEST_F(UploadFolderTest, OneTrailingSeparatorOfEachPathIsDropped) {
  Write("a");
  struct Case {
    const char* local;
    const char* remote;
    Lines calls;
  };
  const Case cases[] = {
      {"C:\\site\\", "web/", {"make web", "copy C:\\site\\a to web/a"}},
      {"C:\\site", "web\\x\\", {"make web/x", "copy C:\\site\\a to web/x/a"}},
      {"C:\\site\\\\", "web//", {"make web/", "copy C:\\site\\\\a to web//a"}},
  };
  for (const auto& [local, remote, calls] : cases) {
    server.calls.clear();
    EXPECT_TRUE(Send(local, remote)) << local << " to " << remote;
    EXPECT_EQ(server.calls, calls) << local << " to " << remote;
  }
}

TEST_F(UploadFolderTest, PathsAreRelativeToTheFolderOfTheSession) {
  for (const char* name : {"a.txt", "sub/b.txt"}) Write(name);
  for (const char* remote : {"", "/", "//", "\\"}) {
    server.calls.clear();
    EXPECT_TRUE(Send("C:\\site", remote)) << remote;
    EXPECT_EQ(server.calls,
              (Lines{"make ", "copy C:\\site\\a.txt to a.txt", "make sub", "copy C:\\site\\sub\\b.txt to sub/b.txt"}))
        << remote;
  }
  for (const char* remote : {"/web", "//web/", "\\web"}) {
    server.calls.clear();
    EXPECT_TRUE(Send("C:\\site", remote)) << remote;
    EXPECT_EQ(server.calls, (Lines{"make web", "copy C:\\site\\a.txt to web/a.txt", "make web/sub",
                                   "copy C:\\site\\sub\\b.txt to web/sub/b.txt"}))
        << remote;
  }
}

TEST_F(UploadFolderTest, TheRootOfADriveCanBeSent) {
  Write("a");
  EXPECT_TRUE(Send("C:\\"));
  EXPECT_EQ(server.calls, (Lines{"make web", "make web/site", "copy C:\\site\\a to web/site/a"}));
}

TEST_F(UploadFolderTest, CountingSendsAndShowsNothing) {
  Write("sub/a");
  EXPECT_EQ(Count(), 4);
  EXPECT_EQ(server.calls, Lines());
  EXPECT_EQ(record.texts2, Lines());
  EXPECT_EQ(window.texts, Lines());
  EXPECT_TRUE(record.values.empty());
}

TEST_F(UploadFolderTest, ASubfolderCountsAsAnEntryAndAsAFolder) {
  for (const char* name : {"a", "b", "sub/c", "sub/d"}) Write(name);
  EXPECT_EQ(Count(), 7);
  EXPECT_TRUE(Send());
  EXPECT_EQ(record.values, (std::vector<std::int32_t>{1, 2, 3, 4, 5, 6, 7}));
}

TEST_F(UploadFolderTest, EachCountStartsFromZero) {
  Write("a");
  EXPECT_EQ(Count(), 2);
  EXPECT_EQ(Count(), 2);
}

TEST_F(UploadFolderTest, BothPassesAgreeOnEveryTree) {
  const std::vector<Lines> trees = {
      {}, {"a"}, {"a/b/c/d"}, {"a", "b", "c/1", "c/2", "d/e/1", "d/e/2", "d/3"}, {".hidden/.file", "x y/z"}};
  for (std::size_t i = 0; i < trees.size(); ++i) {
    const std::string top = "C:\\site\\" + std::to_string(i);
    MakeFolder(std::to_string(i) + "/empty");
    for (const std::string& name : trees[i]) Write(std::to_string(i) + "/" + name);
    fs::create_directory_symlink("..", drive.Path() / "site" / std::to_string(i) / "loop");
    record.values.clear();
    const std::int32_t counted = Count(top);
    EXPECT_TRUE(Send(top)) << top;
    EXPECT_EQ(Progress(), counted) << top;
    EXPECT_EQ(counted, static_cast<std::int32_t>(record.values.size())) << top;
  }
}

TEST_F(UploadFolderTest, AnEmptyFolderCreatesItsDirectoryAndCountsOnce) {
  EXPECT_EQ(Count(), 1);
  EXPECT_TRUE(Send());
  EXPECT_EQ(server.calls, Lines{"make web"});
  EXPECT_EQ(Progress(), 1);
}

TEST_F(UploadFolderTest, InBothPassesTheEventLoopHasATurnForEachEntryAndFolder) {
  for (const char* name : {"a", "b", "sub/c"}) Write(name);
  MakeFolder("empty");
  constexpr int kEntries = 5;
  constexpr int kFolders = 3;
  EXPECT_EQ(Count(), 8);
  EXPECT_EQ(loop.turns, kEntries + kFolders);
  loop.turns = 0;
  EXPECT_TRUE(Send());
  EXPECT_EQ(loop.turns, kEntries + kFolders);
}

TEST_F(UploadFolderTest, ACancelInAnyTurnOfTheCountEndsItWithAMessageBox) {
  for (const char* name : {"a", "b", "sub/c"}) Write(name);
  EXPECT_EQ(Count(), 6);
  const int turns = loop.turns;
  for (int at = 1; at <= turns; ++at) {
    loop.turns = 0;
    cancel.cancelled = false;
    boxes.boxes.clear();
    loop.onTurn = [this, at](int turn) { cancel.cancelled = turn == at; };
    FolderUpload another({server, paths, boxes, loop, cancel, progress, window});
    EXPECT_LE(another.CountSteps("C:\\site"), 6) << "turn " << at;
    EXPECT_EQ(loop.turns, at) << "nothing is read after the cancel";
    ExpectCancelReportedOnce();
  }
}

TEST_F(UploadFolderTest, ALinkToAFileIsSentAsTheFileAndALinkToAFolderIsNotFollowed) {
  Write("a");
  fs::create_symlink("a", drive.Path() / "site/link");
  fs::create_directory_symlink(drive.Path() / "site", drive.Path() / "site/again");
  EXPECT_EQ(Count(), 3);
  EXPECT_TRUE(Send());
  EXPECT_EQ(server.calls, (Lines{"make web", "copy C:\\site\\a to web/a", "copy C:\\site\\link to web/link"}));
}

TEST_F(UploadFolderTest, EachLinkToAFolderIsNamedInTheLogAndInAMessageBoxAtTheEnd) {
  MakeFolder("sub/real");
  fs::create_directory_symlink("..", drive.Path() / "site/sub/up");
  fs::create_directory_symlink("/", drive.Path() / "site/all");
  fs::create_directory_symlink("sub", drive.Path() / "site/two\nlines");
  Count();
  EXPECT_EQ(record.log, "");
  EXPECT_TRUE(Send());
  EXPECT_EQ(record.log,
            "Leaving out symbolic link C:\\site\\all\r\nLeaving out symbolic link C:\\site\\sub\\up\r\n"
            "Leaving out symbolic link C:\\site\\two\\nlines\r\n");
  EXPECT_TRUE(boxes.boxes.empty());
  upload.TellLeftOut();
  ExpectOneBox(env::BoxKind::Exclamation, "Folders left out",
               "These Folders are symbolic Links and were not uploaded:\r\rC:\\site\\all\rC:\\site\\sub\\up\r"
               "C:\\site\\two\\nlines");
}

TEST_F(UploadFolderTest, EachBrokenLinkIsNamedInTheLogAndAtTheEnd) {
  Write("a");
  fs::create_symlink("/mnt/away/b.jpg", drive.Path() / "site/b.jpg");
  fs::create_symlink("itself", drive.Path() / "site/itself");
  EXPECT_EQ(Count(), 2);
  EXPECT_TRUE(Send());
  EXPECT_EQ(server.calls, (Lines{"make web", "copy C:\\site\\a to web/a"}));
  EXPECT_EQ(record.log, "Leaving out symbolic link C:\\site\\b.jpg\r\nLeaving out symbolic link C:\\site\\itself\r\n");
  upload.TellLeftOut();
  ExpectOneBox(env::BoxKind::Exclamation, "Links left out",
               "These symbolic Links are broken and were not uploaded:\r\rC:\\site\\b.jpg\rC:\\site\\itself");
}

TEST_F(UploadFolderTest, ManyLinksToFoldersAreCountedInTheMessageBox) {
  for (int i = 10; i < 23; ++i) fs::create_directory_symlink("/", drive.Path() / "site" / std::to_string(i));
  EXPECT_TRUE(Send());
  upload.TellLeftOut();
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_TRUE(boxes.boxes[0].text.ends_with("\rC:\\site\\19\r\r3 more are named in the Log.")) << boxes.boxes[0].text;
}

TEST_F(UploadFolderTest, WithoutLinksToFoldersThereIsNoMessageBox) {
  Write("sub/a");
  EXPECT_TRUE(Send());
  upload.TellLeftOut();
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(record.log, "");
}

TEST_F(UploadFolderTest, ADirectoryThatCannotBeMadeEndsTheUploadWithoutAStep) {
  Write("a");
  server.refused = "web";
  EXPECT_FALSE(Send());
  EXPECT_EQ(server.calls, Lines{"make web"});
  EXPECT_TRUE(record.values.empty());
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UploadFolderTest, AFileThatFailsInASubfolderEndsTheWholeUpload) {
  for (const char* name : {"sub/a", "sub/b", "sub2/c", "z"}) Write(name);
  server.refused = "web/sub/a";
  EXPECT_FALSE(Send());
  EXPECT_EQ(server.calls, (Lines{"make web", "make web/sub", "copy C:\\site\\sub\\a to web/sub/a"}));
  EXPECT_EQ(Progress(), 4) << "the failed file is counted";
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UploadFolderTest, AnUnreadableFolderEndsSilentlyAfterItsRemoteDirectoryIsMade) {
  drive.Write("file", "x");
  for (const char* local : {"C:\\missing", "C:\\file", "Q:\\site", "\\\\server\\share"}) {
    server.calls.clear();
    EXPECT_FALSE(Send(local)) << local;
    EXPECT_EQ(server.calls, Lines{"make web"}) << local;
    EXPECT_EQ(Count(local), 1) << local;
  }
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_EQ(loop.turns, 0);
  EXPECT_TRUE(record.log.starts_with("The folder \"C:\\missing\" cannot be read\r\nThe folder \"C:\\file\" "))
      << record.log;
}

TEST_F(UploadFolderTest, AnUnreadableSubfolderEndsTheWholeUploadSilently) {
  for (const char* name : {"a/file", "secret/file", "z/file"}) Write(name);
  const fs::path secret = drive.Path() / "site/secret";
  fs::permissions(secret, fs::perms::none);
  {
    const fakes::LockedFolder locked(drive.Path() / "site");
    EXPECT_FALSE(Send());
  }
  fs::permissions(secret, fs::perms::owner_all);
  EXPECT_EQ(server.calls, (Lines{"make web", "make web/a", "copy C:\\site\\a\\file to web/a/file", "make web/secret"}));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UploadFolderTest, AnEmptyPathIsNotTheRootFolder) {
  EXPECT_FALSE(Send(""));
  EXPECT_EQ(Count(""), 0);
  EXPECT_EQ(server.calls, Lines());
}

TEST_F(UploadFolderTest, ARuntimeFailureIsShownOnceAndEndsTheWholeUpload) {
  for (const char* name : {"deep/sub/a", "deep/sub/b", "z"}) Write(name);
  server.broken = "web/deep/sub/a";
  EXPECT_FALSE(Send());
  ExpectOneBox(env::BoxKind::Critical, "Failure",
               "An Error has occurred during the Upload of this Gallery:\r\rDivision by zero\r\rError #11");
  EXPECT_EQ(server.calls.back(), "copy C:\\site\\deep\\sub\\a to web/deep/sub/a");
}

TEST_F(UploadFolderTest, ARuntimeFailureWhileADirectoryIsMadeIsShownToo) {
  server.broken = "web";
  EXPECT_FALSE(Send());
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(UploadFolderTest, ANameThatIsAPathOnOtherSystemsIsRefused) {
  for (const char* name : {"a\\b", "..\\..\\etc"}) {
    const auto file = drive.Write(std::string("site/") + name, "x");
    boxes.boxes.clear();
    server.calls.clear();
    EXPECT_EQ(Count(), 2) << name;
    EXPECT_TRUE(boxes.boxes.empty()) << name;
    EXPECT_FALSE(Send()) << name;
    EXPECT_EQ(server.calls, Lines{"make web"}) << name;
    ExpectOneBox(env::BoxKind::Critical, "Failure",
                 "An Error has occurred during the Upload of this Gallery:\r\r\"" + std::string(name) +
                     "\" has a backslash in its name.\r\rError #75");
    fs::remove(file);
  }
}

TEST_F(UploadFolderTest, ANameWithALineBreakIsRefusedAndShownOnOneLine) {
  const std::pair<const char*, const char*> cases[] = {
      {"a\nb", "a\\nb"}, {"a\rb", "a\\rb"}, {"a\r\nDELE b", "a\\r\\nDELE b"}, {"\n", "\\n"}};
  for (const auto& [name, shown] : cases) {
    for (const bool folder : {true, false}) {
      folder ? MakeFolder(name) : Write(name);
      boxes.boxes.clear();
      server.calls.clear();
      EXPECT_FALSE(Send()) << shown;
      EXPECT_EQ(server.calls, Lines{"make web"}) << shown;
      ExpectOneBox(env::BoxKind::Critical, "Failure",
                   "An Error has occurred during the Upload of this Gallery:\r\r\"" + std::string(shown) +
                       "\" has a line break in its name.\r\rError #75");
      fs::remove(drive.Path() / "site" / name);
    }
  }
}

TEST_F(UploadFolderTest, ACancelIsPolledBeforeEachEntry) {
  for (const char* name : {"a", "b", "c"}) Write(name);
  server.onCall = [this] { cancel.cancelled = server.calls.back() == "copy C:\\site\\b to web/b"; };
  EXPECT_FALSE(Send());
  EXPECT_EQ(server.calls.back(), "copy C:\\site\\b to web/b");
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelDeepInTheTreeIsReportedOnce) {
  for (const char* name : {"1/2/3/a", "1/2/3/b", "z"}) Write(name);
  server.onCall = [this] { cancel.cancelled = server.calls.size() == 5; };
  EXPECT_FALSE(Send());
  EXPECT_EQ(server.calls.back(), "copy C:\\site\\1\\2\\3\\a to web/1/2/3/a");
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelAtAnyPollEndsTheUploadWithOneMessageBox) {
  for (const char* name : {"a", "s/b", "s/t/c", "z"}) Write(name);
  EXPECT_TRUE(Send());
  const int polls = cancel.polls;
  const std::size_t calls = server.calls.size();
  for (int at = 1; at <= polls; ++at) {
    cancel.polls = 0;
    cancel.cancelAtPoll = at;
    boxes.boxes.clear();
    server.calls.clear();
    FolderUpload another({server, paths, boxes, loop, cancel, progress, window});
    EXPECT_FALSE(another.UploadFolder("C:\\site", "web", true)) << "poll " << at;
    EXPECT_EQ(boxes.boxes.size(), 1U) << "poll " << at;
    EXPECT_LE(server.calls.size(), calls) << "poll " << at;
  }
}

TEST_F(UploadFolderTest, ACancelAfterTheLastFileOfASubfolderIsNoticed) {
  Write("sub/a");
  server.onCall = [this] { cancel.cancelled = server.calls.size() == 3; };
  EXPECT_FALSE(Send());
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelWhileAnEmptyDirectoryIsMadeIsNoticed) {
  server.onCall = [this] { cancel.cancelled = true; };
  EXPECT_FALSE(Send());
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelDuringAFileOfTheTopFolderIsReported) {
  for (const char* name : {"a", "b"}) Write(name);
  server.refused = "web/a";
  server.onCall = [this] { cancel.cancelled = server.calls.size() == 2; };
  EXPECT_FALSE(Send());
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelWhileADirectoryIsMadeIsReported) {
  server.refused = "web";
  server.onCall = [this] { cancel.cancelled = true; };
  EXPECT_FALSE(Send());
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelDuringTheLastFileIsReported) {
  Write("a");
  server.onCall = [this] { cancel.cancelled = server.calls.size() == 2; };
  EXPECT_FALSE(Send());
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelDuringAFileOfASubfolderIsReported) {
  Write("sub/a");
  server.refused = "web/sub/a";
  server.onCall = [this] { cancel.cancelled = server.calls.size() == 3; };
  EXPECT_FALSE(Send());
  ExpectCancelReportedOnce();
}

TEST_F(UploadFolderTest, ACancelOfTheCountIsNotReportedAgainByTheUpload) {
  Write("a");
  cancel.cancelled = true;
  EXPECT_EQ(Count(), 1);
  EXPECT_FALSE(Send());
  EXPECT_EQ(server.calls, Lines{"make web"});
  ExpectCancelReportedOnce();
}

}  // namespace
}  // namespace vantorium::publish
