// Storing files, with scripted sockets.
#include "env/RuntimeFailure.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/publish/ScriptedClient.h"

#include <filesystem>
#include <numeric>

namespace vantorium::publish {
namespace {

const std::deque<std::string> kGoodReplies = {"200 Port\r\n", "200 Type\r\n", "150 Send\r\n", "226 Stored\r\n"};

class mFTPStoreTest : public ScriptedClient {
 protected:
  mFTPStoreTest() { folder.Write("a.jpg", "12345"); }

  [[nodiscard]] bool Store(const std::string& local = "C:\\a.jpg", bool overwrite = true) {
    return ftp.FTPStoreFile(local, "a.jpg", overwrite);
  }
  [[nodiscard]] std::string SentBytes() const {
    return std::accumulate(data.blocks.begin(), data.blocks.end(), std::string());
  }
};

TEST_F(mFTPStoreTest, OpensANewListenerAndRepeatsTheTypeForEachFile) {
  const Journal once = {"data listen",          "cmd write PORT 10.1.2.3:port\r\n",
                        "cmd write TYPE I\r\n", "cmd write STOR a.jpg\r\n",
                        "data accept",          "data close"};
  for (int time = 0; time < 2; ++time) {
    journal.clear();
    Replies(kGoodReplies);
    EXPECT_TRUE(Store());
    EXPECT_EQ(journal, once);
  }
  EXPECT_EQ(SentBytes(), "1234512345");
  EXPECT_EQ(window.log.substr(0, window.log.size() / 2), "200 Port\r\n200 Type\r\n150 Send\r\n226 Stored\r\n");
}

TEST_F(mFTPStoreTest, TheDataSocketHasNoTimeLimitAndAcceptsTheServerOnly) {
  Replies(kGoodReplies);
  EXPECT_TRUE(Store());
  EXPECT_EQ(data.settings.timeLimit.count(), 0);
  EXPECT_EQ(data.settings.listenAddress, "0.0.0.0");
  EXPECT_EQ(data.settings.listenPort, 0);
  EXPECT_EQ(data.settings.portAddress, "10.1.2.3");
  EXPECT_EQ(data.settings.acceptFrom, "10.9.8.7");
}

TEST_F(mFTPStoreTest, SendsBlocksOf4096BytesAndShowsAPercentageBeforeEach) {
  const std::string bytes(10000, 'x');
  folder.Write("b.jpg", bytes);
  Replies(kGoodReplies);
  EXPECT_TRUE(Store("C:\\b.jpg"));
  ASSERT_EQ(data.blocks.size(), 3U);
  EXPECT_EQ(data.blocks[0].size(), 4096U);
  EXPECT_EQ(data.blocks[2].size(), 1808U);
  EXPECT_EQ(SentBytes(), bytes);
  EXPECT_EQ(window.percentages, (std::vector<std::int16_t>{0, 0, 41, 82, 100}));
  EXPECT_EQ(loop.turns, 3);
}

TEST_F(mFTPStoreTest, AFileOfWholeBlocksHasNoEmptyLastBlock) {
  folder.Write("b.jpg", std::string(8192, 'x'));
  Replies(kGoodReplies);
  EXPECT_TRUE(Store("C:\\b.jpg"));
  EXPECT_EQ(data.blocks.size(), 2U);
}

TEST_F(mFTPStoreTest, ThePercentageOfALargeFileStopsWhereItWouldOverflow) {
  constexpr std::size_t kLength = std::size_t{32} << 20U;
  std::filesystem::resize_file(folder.Path() / "a.jpg", kLength);
  std::size_t sent = 0;
  data.onWriteBytes = [&](std::size_t size) {
    data.blocks.clear();
    sent += size;
    return size;
  };
  Replies(kGoodReplies);
  EXPECT_TRUE(Store());
  EXPECT_EQ(sent, kLength);
  EXPECT_EQ(window.percentages.back(), 100);
  EXPECT_EQ(window.percentages.at(window.percentages.size() - 2), 64) << "21474836 of 33554432";
  EXPECT_EQ(window.percentages.size(), 2 + 21474836 / 4096 + 1U);
}

TEST_F(mFTPStoreTest, AnEmptyFileFailsByItsPercentageAndTheConnectionStaysOpen) {
  folder.Write("empty.jpg", "");
  for (const bool copies : {false, true}) {
    journal.clear();
    Replies(kGoodReplies);
    EXPECT_EQ(fakes::FailureOf([&] {
                std::ignore = copies ? ftp.FTPCopyFile("C:\\empty.jpg", "e.jpg", true) : Store("C:\\empty.jpg");
              }),
              env::FailureKind::DivisionByZero);
    EXPECT_EQ(journal.back(), "data accept");
  }
}

TEST_F(mFTPStoreTest, AnEmptyPathStoresNothing) {
  EXPECT_FALSE(ftp.FTPStoreFile("", "a.jpg", true));
  EXPECT_FALSE(ftp.FTPStoreFile("C:\\a.jpg", "", true));
  EXPECT_EQ(journal, Journal{});
  EXPECT_EQ(window.percentages, (std::vector<std::int16_t>{0, 0}));
}

TEST_F(mFTPStoreTest, AMissingLocalFileIsShownAndOpensNothing) {
  EXPECT_FALSE(Store("C:\\missing.jpg"));
  EXPECT_FALSE(Store("Q:\\a.jpg"));
  EXPECT_FALSE(Store("C:\\"));
  EXPECT_EQ(BoxTexts(), std::vector<std::string>(3, "File not found"));
  EXPECT_EQ(journal, Journal{});
}

TEST_F(mFTPStoreTest, AFileWhoseLengthNeedsMoreThan31BitsIsShown) {
  std::filesystem::resize_file(folder.Path() / "a.jpg", 0x80000000);
  EXPECT_FALSE(Store());
  EXPECT_EQ(BoxTexts(), std::vector<std::string>{"Overflow"});
}

TEST_F(mFTPStoreTest, ALocalFileThatIsRemovedMeanwhileIsShownAndClosesTheDataSocket) {
  // The two-piece reply gives the event loop a turn after the file's length is read and before the file is opened.
  Replies({"550 None\r\n", "200 Port\r\n", "200 Type\r\n", "150-Send\r\n", "150 now\r\n"});
  loop.onTurn = [&](int) { std::filesystem::remove(folder.Path() / "a.jpg"); };
  EXPECT_FALSE(Store("C:\\a.jpg", false));
  EXPECT_EQ(BoxTexts(), std::vector<std::string>{"File not found"});
  EXPECT_EQ(journal.back(), "data close");
}

TEST_F(mFTPStoreTest, AnUnreadableLocalFileIsShownAndClosesTheDataSocket) {
  std::filesystem::permissions(folder.Path() / "a.jpg", std::filesystem::perms::none);
  const fakes::LockedFolder locked(folder.Path());
  Replies(kGoodReplies);
  EXPECT_FALSE(Store());
  ASSERT_EQ(BoxTexts().size(), 1U);
  EXPECT_NE(BoxTexts()[0].find("Permission denied"), std::string::npos) << BoxTexts()[0];
  EXPECT_EQ(journal.back(), "data close");
}

TEST_F(mFTPStoreTest, ALocalFileThatShrinksAbortsTheTransfer) {
  folder.Write("b.jpg", std::string(200'000, 'x'));  // more than the client reads ahead
  data.onWriteBytes = [&](std::size_t size) {
    std::filesystem::resize_file(folder.Path() / "b.jpg", 5000);
    return size;
  };
  Replies(kGoodReplies);
  EXPECT_FALSE(Store("C:\\b.jpg"));
  EXPECT_EQ(journal.back(), "data reset");
  EXPECT_TRUE(cmd.reads.empty()) << "the closing reply is still read";
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPStoreTest, AnExistingFileStaysWithoutOverwrite) {
  Replies({"350 There\r\n", "250 Renamed\r\n"});
  EXPECT_TRUE(Store("C:\\a.jpg", false));
  EXPECT_EQ(journal, (Journal{"cmd write RNFR a.jpg\r\n", "cmd write RNTO a.jpg\r\n"}));
}

TEST_F(mFTPStoreTest, WithoutAListenerNothingIsSent) {
  data.listenResult = 98;
  EXPECT_FALSE(Store());
  EXPECT_EQ(journal, (Journal{"data listen", "data close"}));
}

TEST_F(mFTPStoreTest, OnlyTheExpectedRepliesOpenTheDataConnection) {
  const std::deque<std::string> refusals[] = {
      {"500 Port\r\n"},
      {"250 Port\r\n"},
      {"200 Port\r\n", "504 Type\r\n"},
      {"200 Port\r\n", "200 Type\r\n", "553 Denied\r\n"},
      {"200 Port\r\n", "200 Type\r\n", "125 Already open\r\n"},
      {"200 Port\r\n", "200 Type\r\n", "151 Odd\r\n"},
      {"200 Port\r\n", "200 Type\r\n", "150 Send\r\n226 Done\r\n"},
      {"200 Port\r\n", "200 Type\r\n"},
  };
  for (const auto& replies : refusals) {
    journal.clear();
    Replies(replies);
    EXPECT_FALSE(Store()) << replies.back();
    EXPECT_EQ(journal.back(), "data close") << replies.back();
  }
  EXPECT_TRUE(data.blocks.empty());
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPStoreTest, WithoutADataConnectionTheDataSocketIsClosed) {
  data.acceptFails = true;
  Replies(kGoodReplies);
  EXPECT_FALSE(Store());
  EXPECT_EQ(journal.back(), "data close");
}

TEST_F(mFTPStoreTest, AShortWriteAbortsTheTransfer) {
  folder.Write("b.jpg", std::string(10000, 'x'));
  data.onWriteBytes = [this](std::size_t size) { return data.blocks.size() == 2 ? size - 1 : size; };
  Replies(kGoodReplies);
  EXPECT_FALSE(Store("C:\\b.jpg"));
  EXPECT_EQ(data.blocks.size(), 2U);
  EXPECT_EQ(journal.back(), "data reset") << "the server must not take it for the whole file";
  EXPECT_EQ(window.percentages.back(), 100);
  EXPECT_EQ(window.log, "200 Port\r\n200 Type\r\n150 Send\r\n226 Stored\r\n");
}

TEST_F(mFTPStoreTest, ACancelBeforeABlockAbortsTheTransferWithoutAMessageBox) {
  folder.Write("b.jpg", std::string(10000, 'x'));
  loop.onTurn = [this](int turn) { cancel.isRequested = turn >= 2; };
  Replies(kGoodReplies);
  EXPECT_FALSE(Store("C:\\b.jpg"));
  EXPECT_EQ(data.blocks.size(), 1U);
  EXPECT_EQ(journal.back(), "data reset");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(mFTPStoreTest, OnceAllBytesAreSentTheClosingReplyDoesNotMatter) {
  for (const char* closing : {"452 Disk full\r\n", "426 Broken\r\n", "500 What\r\n"}) {
    Replies({"200 Port\r\n", "200 Type\r\n", "150 Send\r\n", closing});
    EXPECT_TRUE(Store()) << closing;
  }
  Replies({"200 Port\r\n", "200 Type\r\n", "150 Send\r\n"});
  EXPECT_TRUE(Store());
  EXPECT_FALSE(ftp.IsConnected());
}

TEST_F(mFTPStoreTest, ACopyConvertsBackslashesAndIsLogged) {
  Replies(kGoodReplies);
  EXPECT_TRUE(ftp.FTPCopyFile("C:\\a.jpg", "images\\a.jpg", true));
  EXPECT_EQ(journal.at(3), "cmd write STOR images/a.jpg\r\n");
  EXPECT_TRUE(window.log.starts_with("Copying file C:\\a.jpg to images\\a.jpg\r\n")) << window.log;
}

TEST_F(mFTPStoreTest, AFailedCopyDeletesTheFileOnTheServer) {
  Replies({"200 Port\r\n", "200 Type\r\n", "553 Denied\r\n", "550 None\r\n"});
  EXPECT_FALSE(ftp.FTPCopyFile("C:\\a.jpg", "images\\a.jpg", true));
  EXPECT_EQ(journal.back(), "cmd write DELE images/a.jpg\r\n");
  EXPECT_TRUE(window.log.ends_with("Deleting file images/a.jpg\r\n550 None\r\n")) << window.log;
}

TEST_F(mFTPStoreTest, ARemotePathWithALineBreakIsNeverSent) {
  Replies({"200 Port\r\n", "200 Type\r\n"});
  EXPECT_FALSE(ftp.FTPCopyFile("C:\\a.jpg", "a\r\nDELE b", true));
  EXPECT_EQ(journal,
            (Journal{"data listen", "cmd write PORT 10.1.2.3:port\r\n", "cmd write TYPE I\r\n", "data close"}));
}

}  // namespace
}  // namespace vantorium::publish
