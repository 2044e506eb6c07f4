// Sessions, directories and queries, with scripted sockets.
#include "env/RuntimeFailure.h"
#include "tests/fakes/FailureOf.h"
#include "tests/publish/ScriptedClient.h"

#include <algorithm>

namespace vantorium::publish {
namespace {

using mFTPTest = ScriptedClient;

TEST_F(mFTPTest, ConnectsToTheTrimmedHostAndExpectsGreeting220) {
  cmd.isConnected = false;
  Replies({"220 Hello\r\n"});
  EXPECT_TRUE(ftp.FTPConnect("  ftp.example.org ", 2121));
  EXPECT_EQ(journal, Journal{"cmd connect ftp.example.org 2121"});
  EXPECT_EQ(window.log, "220 Hello\r\n");
  EXPECT_EQ(cmd.settings.timeLimit, std::chrono::milliseconds(60000));
}

TEST_F(mFTPTest, PortZeroIsPort21AndAnOpenConnectionIsClosedFirst) {
  Replies({"220 Hello\r\n"});
  EXPECT_TRUE(ftp.FTPConnect("host", 0));
  EXPECT_EQ(journal, (Journal{"cmd close", "cmd connect host 21"}));
}

TEST_F(mFTPTest, AnEmptyHostConnectsNowhere) {
  cmd.isConnected = false;
  EXPECT_FALSE(ftp.FTPConnect("   "));
  EXPECT_EQ(journal, Journal{});
}

TEST_F(mFTPTest, AFailedConnectionIsReportedByTheCaller) {
  cmd.connectResult = 1;
  EXPECT_FALSE(ftp.FTPConnect("host"));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPTest, AnyOtherGreetingClosesTheConnection) {
  for (const auto& greeting : {std::deque<std::string>{"421 Full\r\n"}, {"120 Later\r\n"}, {}, {"220 Hel"}}) {
    Replies(greeting);
    EXPECT_FALSE(ftp.FTPConnect("host"));
    EXPECT_FALSE(ftp.IsConnected());
  }
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPTest, LogsInWithTrimmedUserAndPassword) {
  Replies({"331 Password\r\n", "230 In\r\n"});
  EXPECT_TRUE(ftp.FTPLogin("  me ", " open sesame  "));
  EXPECT_EQ(journal, (Journal{"cmd write USER me\r\n", "cmd write PASS open sesame\r\n"}));
  EXPECT_EQ(window.log, "331 Password\r\n230 In\r\n") << "commands, and thus the password, are never logged";
}

TEST_F(mFTPTest, APasswordIsSentOnlyOnRequest) {
  Replies({"230 In\r\n"});
  EXPECT_TRUE(ftp.FTPLogin("me", "secret"));
  EXPECT_EQ(journal, Journal{"cmd write USER me\r\n"});
}

TEST_F(mFTPTest, AnyOtherReplyFailsTheLoginAndTheConnectionStaysOpen) {
  for (const auto& replies : {std::deque<std::string>{"530 No\r\n"},
                              {"331 Password\r\n", "530 No\r\n"},
                              {"331 P\r\n", "202 Superfluous\r\n"}}) {
    Replies(replies);
    EXPECT_FALSE(ftp.FTPLogin("me", "secret"));
    EXPECT_TRUE(ftp.IsConnected());
  }
}

TEST_F(mFTPTest, EnteringAndMakingFoldersSucceedsOnlyWith250) {
  Replies({"250 There\r\n", "200 There\r\n", "250 Made\r\n", "257 Made\r\n"});
  EXPECT_TRUE(ftp.FTPChangeDirectory("a b"));
  EXPECT_FALSE(ftp.FTPChangeDirectory("c"));
  EXPECT_TRUE(ftp.FTPMakeDirectory("d"));
  EXPECT_FALSE(ftp.FTPMakeDirectory("e")) << "the standard's 257 does not count";
  EXPECT_EQ(journal, (Journal{"cmd write CWD a b\r\n", "cmd write CWD c\r\n", "data close", "cmd write MKD d\r\n",
                              "cmd write MKD e\r\n", "data close"}));
}

TEST_F(mFTPTest, AChainOfFoldersIsMadeLevelByLevelAndThenLeft) {
  for (const char* path : {"a/b", "/a/b/", "a\\b", "\\a\\b"}) {
    journal.clear();
    Replies({"250 M\r\n", "250 C\r\n", "250 M\r\n", "250 C\r\n", "250 U\r\n", "250 U\r\n"});
    EXPECT_TRUE(ftp.FTPCreateDirectoryPath(path)) << path;
    EXPECT_EQ(journal, (Journal{"cmd write MKD a\r\n", "cmd write CWD a\r\n", "cmd write MKD b\r\n",
                                "cmd write CWD b\r\n", "cmd write CWD ..\r\n", "cmd write CWD ..\r\n"}))
        << path;
  }
  EXPECT_EQ(loop.turns, 16) << "one before each step";
}

TEST_F(mFTPTest, AChainWithoutLevelsSendsNothing) {
  for (const char* path : {"", "/", "\\", "//"}) EXPECT_TRUE(ftp.FTPCreateDirectoryPath(path)) << path;
  EXPECT_EQ(journal, Journal{});
  EXPECT_EQ(window.log,
            "Creating directory \r\nCreating directory /\r\nCreating directory \\\r\nCreating directory //\r\n");
}

TEST_F(mFTPTest, AnEmptyLevelEndsTheChain) {
  Replies({"550 Exists\r\n", "250 C\r\n", "250 U\r\n"});
  EXPECT_TRUE(ftp.FTPCreateDirectoryPath("a//b"));
  EXPECT_EQ(journal, (Journal{"cmd write MKD a\r\n", "data close", "cmd write CWD a\r\n", "cmd write CWD ..\r\n"}));
}

TEST_F(mFTPTest, ALevelThatCannotBeEnteredEndsTheChainWhereItIs) {
  Replies({"250 M\r\n", "250 C\r\n", "250 M\r\n", "550 No\r\n"});
  EXPECT_FALSE(ftp.FTPCreateDirectoryPath("a/b/c"));
  EXPECT_EQ(journal.back(), "data close");
  EXPECT_EQ(journal.at(3), "cmd write CWD b\r\n");
  EXPECT_EQ(journal.size(), 5U);
}

TEST_F(mFTPTest, ALevelThatCannotBeLeftFailsTheChain) {
  Replies({"250 M\r\n", "250 C\r\n", "250 M\r\n", "250 C\r\n", "550 No\r\n"});
  EXPECT_FALSE(ftp.FTPCreateDirectoryPath("a/b"));
}

TEST_F(mFTPTest, AFileExistsIfItCanBeRenamed) {
  Replies({"350 Go on\r\n", "550 Not now\r\n"});
  EXPECT_TRUE(ftp.FTPFileExists("a.jpg"));
  Replies({"550 None\r\n"});
  EXPECT_FALSE(ftp.FTPFileExists("b.jpg"));
  EXPECT_EQ(journal, (Journal{"cmd write RNFR a.jpg\r\n", "cmd write RNTO a.jpg\r\n", "cmd write RNFR b.jpg\r\n"}));
  EXPECT_EQ(window.log, "");
}

TEST_F(mFTPTest, DeletingAFileSucceedsOnlyWith250) {
  Replies({"250 Gone\r\n", "200 Gone\r\n"});
  EXPECT_TRUE(ftp.FTPDeleteFile("a.jpg"));
  EXPECT_FALSE(ftp.FTPDeleteFile("a.jpg"));
  EXPECT_EQ(window.log, "Deleting file a.jpg\r\n250 Gone\r\nDeleting file a.jpg\r\n200 Gone\r\n");
}

TEST_F(mFTPTest, ASizeIsShownInTheUnitThatFits) {
  const std::pair<const char*, const char*> cases[] = {
      {"0", "0 Bytes"},   {"1023", "1023 Bytes"}, {"1024", "1KB"},    {"1048575", "1023KB"},
      {"1048576", "1MB"}, {"2147483647", "1GB"},  {"-5", "-5 Bytes"},
  };
  for (const auto& [size, text] : cases) {
    Replies({std::string("213 ") + size + "\r\n"});
    EXPECT_EQ(ftp.FTPGetFileSize("a.jpg"), text) << size;
  }
}

TEST_F(mFTPTest, TheReplyCompletesTheLogLineOfASize) {
  Replies({"213 2047\r\n"});
  EXPECT_EQ(ftp.FTPGetFileSize("a.jpg"), "1KB");
  EXPECT_EQ(window.log, "Reading file size for a.jpg ... 213 2047\r\n");
}

TEST_F(mFTPTest, ASizeThatTheServerDoesNotReportIsZero) {
  Replies({"550 SIZE not allowed in ASCII mode\r\n"});
  EXPECT_EQ(ftp.FTPGetFileSize("a.jpg"), "0KB");
  EXPECT_EQ(journal, (Journal{"cmd write SIZE a.jpg\r\n", "data close"}));
  journal.clear();
  EXPECT_EQ(ftp.FTPGetFileSize(""), "0KB");
  EXPECT_EQ(journal, Journal{});
}

TEST_F(mFTPTest, TheStoredSizeIsQueriedInBinaryTypeWhichIsSetOnce) {
  Replies({"200 Binary\r\n", "213 5000000000\r\n", "550 none\r\n"});
  EXPECT_EQ(ftp.FTPStoredSize("a.jpg"), 5'000'000'000U);
  EXPECT_EQ(ftp.FTPStoredSize("b.jpg"), std::nullopt);
  EXPECT_EQ(journal, (Journal{"cmd write TYPE I\r\n", "cmd write SIZE a.jpg\r\n", "cmd write SIZE b.jpg\r\n"}));
}

TEST_F(mFTPTest, AStoredSizeThatIsNotANumberIsNone) {
  for (const char* reply : {"213 many\r\n", "213 \r\n", "213 -1\r\n", "213 7 bytes\r\n", "200 7\r\n"}) {
    Replies({"200 Binary\r\n", reply});
    EXPECT_EQ(ftp.FTPStoredSize("a.jpg"), std::nullopt) << reply;
    Replies({});
  }
}

TEST_F(mFTPTest, ASizeThatIsNotANumberIsAFailure) {
  Replies({"213 many\r\n"});
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = ftp.FTPGetFileSize("a"); }), env::FailureKind::TypeMismatch);
  Replies({"213 2147483648\r\n"});
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = ftp.FTPGetFileSize("a"); }), env::FailureKind::Overflow);
}

TEST_F(mFTPTest, ACommandThatCannotBeWrittenReportsALostConnection) {
  cmd.writeResults = {-1};
  EXPECT_FALSE(ftp.FTPChangeDirectory("a"));
  EXPECT_EQ(journal, (Journal{"cmd write CWD a\r\n", "cmd close", "data close"}));
  EXPECT_EQ(BoxTexts(), std::vector<std::string>{"Connection with the server has been terminated"});
}

TEST_F(mFTPTest, AfterACancelALostConnectionIsNotReported) {
  cmd.writeResults = {-1};
  cancel.isRequested = true;
  EXPECT_FALSE(ftp.FTPChangeDirectory("a"));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPTest, APartlyWrittenCommandFailsWithoutAMessageBox) {
  cmd.writeResults = {3};
  EXPECT_FALSE(ftp.FTPChangeDirectory("a"));
  EXPECT_EQ(journal, (Journal{"cmd write CWD a\r\n", "data close"}));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPTest, ATruncatedReplyClosesTheConnectionWithoutAMessageBox) {
  Replies({"250-The", "re\r\n"});
  EXPECT_FALSE(ftp.FTPChangeDirectory("a"));
  EXPECT_EQ(journal, (Journal{"cmd write CWD a\r\n", "cmd close", "data close"}));
  EXPECT_EQ(window.log, "250-There\r\n") << "logged as received";
  EXPECT_EQ(loop.turns, 2) << "one after each read without the end";
}

TEST_F(mFTPTest, ReadsRepliesInPiecesOf512Characters) {
  Replies({"250-" + std::string(600, 'x') + "\r\n250 end\r\n"});
  EXPECT_TRUE(ftp.FTPChangeDirectory("a"));
  EXPECT_EQ(loop.turns, 1);
}

TEST_F(mFTPTest, AReplyWithoutEndIsALostConnection) {
  Replies({std::string(std::size_t{2} << 20U, 'x')});
  EXPECT_FALSE(ftp.FTPChangeDirectory("a"));
  EXPECT_FALSE(ftp.IsConnected());
  EXPECT_LE(window.log.size(), (std::size_t{1} << 20U) + 512);
}

TEST_F(mFTPTest, AReplyOfThreeDigitsIsAnInvalidArgument) {
  Replies({"250\r\n"});
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = ftp.FTPChangeDirectory("a"); }), env::FailureKind::InvalidArgument);
}

TEST_F(mFTPTest, ACommandWithALineBreakIsNeverSent) {
  for (const std::string bad : {"a\r\nDELE b", "a\nb", "a\rb", "a\n"}) {
    EXPECT_FALSE(ftp.FTPChangeDirectory(bad)) << bad;
    EXPECT_FALSE(ftp.FTPLogin(bad, "secret")) << bad;
    EXPECT_FALSE(ftp.FTPDeleteFile(bad)) << bad;
    EXPECT_FALSE(ftp.FTPFileExists(bad)) << bad;
    EXPECT_EQ(ftp.FTPGetFileSize(bad), "0KB") << bad;
  }
  EXPECT_FALSE(ftp.FTPDeleteFile(std::string("a\0b", 3)));
  Replies({"331 Password\r\n"});
  EXPECT_FALSE(ftp.FTPLogin("me", "secret\r\nDELE a"));
  EXPECT_EQ(std::ranges::count_if(journal, [](const std::string& line) { return line.starts_with("cmd write"); }), 1);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPTest, ACancelAbortsTheBlockingCall) {
  ftp.FTPCancelData();
  EXPECT_EQ(journal, Journal{});
  data.isBlocking = true;
  ftp.FTPCancelData();
  EXPECT_EQ(journal, Journal{"data cancel"});
  data.isBlocking = false;
  cmd.isBlocking = true;
  ftp.FTPCancelData();
  EXPECT_EQ(journal, (Journal{"data cancel", "cmd cancel"}));
  EXPECT_EQ(cmd.settings.timeLimit, std::chrono::milliseconds(30)) << "the time limit is short after a cancel";
}

TEST_F(mFTPTest, WorksWithoutAWindow) {
  ftp.FTPProgress = nullptr;
  Replies({"250 Gone\r\n"});
  EXPECT_TRUE(ftp.FTPDeleteFile("a.jpg"));
}

TEST_F(mFTPTest, DisconnectClosesBothSockets) {
  ftp.Disconnect();
  EXPECT_EQ(journal, (Journal{"data close", "cmd close"}));
}

}  // namespace
}  // namespace vantorium::publish
