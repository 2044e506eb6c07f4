#include "publish/UploadLog.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vantorium::publish {
namespace {

namespace fs = std::filesystem;

const std::string kUnderscores = "______________________________________________________________________";  // 70
const std::string kHeader = "\r\nVantorium 3.0 Upload Log (2026/03/04 05:06:07)\r\n" + kUnderscores + "\r\n\r\n\r\n";
const std::string kFooter = kUnderscores + "\r\n\r\nEnd of Upload Log (2026/03/04 05:06:07)\r\n\r\n";

class UploadLogTest : public testing::Test {
 protected:
  [[nodiscard]] std::string Text() const { return program.Read("ftplog.txt"); }
  [[nodiscard]] fs::path File() const { return program.Path() / "ftplog.txt"; }
  void ExpectBoxes(std::size_t count, const std::string& description) const {
    EXPECT_EQ(boxes.boxes.size(), count);
    for (const auto& box : boxes.boxes) {
      EXPECT_EQ(box.kind, env::BoxKind::Critical);
      EXPECT_EQ(box.title, "Error writing Log");
      EXPECT_EQ(box.text, "An error has occurred writing the log file: \r\r" + description);
    }
  }

  fakes::TemporaryFolder program;
  fakes::FixedClock clock;
  fakes::RecordingMessageBox boxes;
  UploadLog log{program.Path(), clock, boxes};
};

TEST_F(UploadLogTest, TheHeaderReplacesTheLastLog) {
  program.Write("ftplog.txt", std::string(1000, 'x'));
  log.WriteLogHeader();
  EXPECT_EQ(Text(), kHeader);
}

TEST_F(UploadLogTest, HasTheHeaderTheChunksInOrderAndTheFooter) {
  log.WriteLogHeader();
  log.WriteLog("220 Ready\r\n");
  log.WriteLog("");
  log.WriteLogFooter("226 Done\r\n");
  EXPECT_EQ(Text(), kHeader + "220 Ready\r\n\r\n" + "\r\n" + "226 Done\r\n\r\n" + kFooter);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UploadLogTest, HeaderAndFooterHaveTheTimeOfWriting) {
  clock.now = {2026, 12, 31, 23, 59, 59};
  log.WriteLogHeader();
  clock.now = {987, 1, 2, 3, 4, 5};
  log.WriteLogFooter("");
  EXPECT_NE(Text().find("Upload Log (2026/12/31 23:59:59)"), std::string::npos) << Text();
  EXPECT_NE(Text().find("End of Upload Log (0987/01/02 03:04:05)"), std::string::npos) << Text();
}

TEST_F(UploadLogTest, TextIsAppendedToTheFile) {
  program.Write("ftplog.txt", "old");
  log.WriteLog("new");
  EXPECT_EQ(Text(), "oldnew\r\n");
}

TEST_F(UploadLogTest, TextIsWrittenUnchanged) {
  const std::string text("a\rb\nc\0\xE4", 7);
  log.WriteLog(text);
  EXPECT_EQ(Text(), text + "\r\n");
}

TEST_F(UploadLogTest, TheHeaderCreatesTheFolder) {
  UploadLog deep(program.Path() / "not/yet", clock, boxes);
  EXPECT_FALSE(deep.HasFolder());
  deep.WriteLogHeader();
  EXPECT_TRUE(deep.HasFolder());
  EXPECT_EQ(program.Read("not/yet/ftplog.txt"), kHeader);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(UploadLogTest, AFileInsteadOfTheFolderIsAFailure) {
  program.Write("file", "x");
  EXPECT_FALSE(UploadLog(program.Path() / "file", clock, boxes).HasFolder());
}

TEST_F(UploadLogTest, EachFailedWriteShowsAMessageBoxAndTheFooterIsTwoWrites) {
  fs::create_directory(File());
  log.WriteLogHeader();
  ExpectBoxes(1, File().string() + ": Is a directory");
  log.WriteLog("text");
  ExpectBoxes(2, File().string() + ": Is a directory");
  log.WriteLogFooter("text");
  ExpectBoxes(4, File().string() + ": Is a directory");
}

TEST_F(UploadLogTest, AFolderThatCannotBeCreatedIsAFailureOfTheHeader) {
  program.Write("file", "x");
  UploadLog below(program.Path() / "file", clock, boxes);
  below.WriteLogHeader();
  ExpectBoxes(1, (program.Path() / "file/ftplog.txt").string() + ": Not a directory");
}

TEST_F(UploadLogTest, AFullDiskIsAFailure) {
  fs::create_symlink("/dev/full", File());
  log.WriteLog("text");
  ExpectBoxes(1, File().string() + ": No space left on device");
}

TEST_F(UploadLogTest, APipeOfThatNameDoesNotBlock) {
  ASSERT_EQ(::mkfifo(File().c_str(), 0600), 0);
  log.WriteLog("text");
  ExpectBoxes(1, File().string() + ": No such device or address");
}

TEST_F(UploadLogTest, AReadOnlyFolderIsAFailure) {
  const fakes::LockedFolder locked(program.Path());
  log.WriteLogHeader();
  ExpectBoxes(1, File().string() + ": Permission denied");
}

TEST_F(UploadLogTest, WorksAgainAfterAFailure) {
  fs::create_directory(File());
  log.WriteLog("lost");
  fs::remove(File());
  log.WriteLog("kept");
  EXPECT_EQ(Text(), "kept\r\n");
}

}  // namespace
}  // namespace vantorium::publish
