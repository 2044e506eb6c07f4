#include "publish/ProgressModel.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

const std::string kSavepoint = "\r\nLog savepoint - writing to disk...\r\n";

class DrawnProgress : public ProgressModel {
 public:
  using ProgressModel::ProgressModel;
  std::vector<ProgressPart> drawn;

 protected:
  void Draw(ProgressPart part) override { drawn.push_back(part); }
};

class ProgressModelTest : public testing::Test {
 protected:
  [[nodiscard]] std::string File() const { return program.Read("ftplog.txt"); }
  [[nodiscard]] bool HasFile() const { return std::filesystem::exists(program.Path() / "ftplog.txt"); }
  /// The log between its header and its footer, if it has one.
  [[nodiscard]] std::string Chunks() const {
    const std::string end = "\r\n\r\n\r\n";
    const auto begin = File().find(end) + end.size();
    return File().substr(begin, File().find("____", begin) - begin);
  }

  fakes::TemporaryFolder program;
  fakes::FixedClock clock;
  fakes::RecordingMessageBox boxes;
  UploadLog log{program.Path(), clock, boxes};
  std::unique_ptr<DrawnProgress> window = std::make_unique<DrawnProgress>(log);
};

TEST_F(ProgressModelTest, BeginsAsTheWindowOfARunningRun) {
  window->SetFileProgress(50);
  window->OfferClose();
  window->CloseRequested = true;
  window->Show();
  EXPECT_FALSE(window->IsFileProgressVisible());
  EXPECT_FALSE(window->CloseRequested);
  EXPECT_FALSE(window->IsCancelled());
  EXPECT_FALSE(window->OffersClose());
  EXPECT_FALSE(HasFile()) << "an unlogged run writes no header";
}

TEST_F(ProgressModelTest, KeepsWhatIsReported) {
  window->SetCaption("Uploading Folder");
  window->SetText1("one");
  window->SetText2("two");
  window->SetText3("three", false);
  window->SetMax(100000);
  window->SetProgress(70000);
  window->SetIsCancelled(true);
  window->ShowBusyPointer(true);
  EXPECT_EQ(window->Caption(), "Uploading Folder");
  EXPECT_EQ(window->Text1(), "one");
  EXPECT_EQ(window->Text2(), "two");
  EXPECT_EQ(window->LogBoxText(), "three");
  EXPECT_EQ(window->GetMax(), 100000);
  EXPECT_EQ(window->GetProgress(), 70000);
  EXPECT_TRUE(window->IsCancelled());
  EXPECT_TRUE(window->IsPointerBusy());
}

TEST_F(ProgressModelTest, DrawsEachChange) {
  window->SetCaption("");
  window->SetText1("");
  window->SetText2("");
  window->SetMax(1);
  window->SetProgress(1);
  window->SetFileProgress(1);
  window->ShowBusyPointer(true);
  window->OfferClose();
  window->SetText3("", false);
  window->SetText3("", true);
  using enum ProgressPart;
  EXPECT_EQ(window->drawn, (std::vector{Caption, Text1, Text2, Progress, Progress, FileProgress, Pointer, Buttons,
                                        LogBox, LogBoxEnd}));
}

TEST_F(ProgressModelTest, TheFileProgressBarAppearsWithItsFirstValue) {
  window->Show();
  EXPECT_FALSE(window->IsFileProgressVisible());
  window->SetFileProgress(0);
  EXPECT_TRUE(window->IsFileProgressVisible());
  EXPECT_EQ(window->FileProgress(), 0);
  window->SetFileProgress(100);
  EXPECT_EQ(window->FileProgress(), 100);
}

TEST_F(ProgressModelTest, TheLogBoxReplacesOrAppendsTextWithoutALineBreak) {
  window->SetText3("a", true);
  window->SetText3("b", true);
  EXPECT_EQ(window->LogBoxText(), "ab");
  window->SetText3("c", false);
  EXPECT_EQ(window->LogBoxText(), "c");
  window->SetText3("", false);
  EXPECT_EQ(window->LogBoxText(), "");
}

TEST_F(ProgressModelTest, FromExactly30000CharactersTheNextAppendSavesTheLogBox) {
  window->LogToFile = true;
  window->Show();
  const std::string almost(29999, 'x');
  window->SetText3(almost, true);
  window->SetText3("y", true);
  EXPECT_EQ(window->LogBoxText(), almost + "y") << "29999 are no savepoint, and the append itself is none";
  EXPECT_EQ(Chunks(), "");
  window->SetText3("z", true);
  EXPECT_EQ(window->LogBoxText(), "z");
  EXPECT_EQ(Chunks(), almost + "y" + kSavepoint + "\r\n");
  EXPECT_EQ(window->drawn.back(), ProgressPart::LogBoxEnd);
  EXPECT_EQ(window->drawn.at(window->drawn.size() - 2), ProgressPart::LogBox);
}

TEST_F(ProgressModelTest, CharactersAreCountedNotBytes) {
  struct Case {
    std::string character;
    std::size_t ofThem;  ///< how many of these count as 30000 characters
  };
  const Case cases[] = {
      {"a", 30000},        {"\xC3\xA4", 30000},     {"\xE2\x82\xAC", 30000}, {"\xF0\x9F\x98\x80", 30000},
      {"\xE4", 30000},     {"\xE4x", 15000},        {"\x80", 30000},         {"\xC3", 30000},
      {"\xE2\x82", 15000}, {"\xF0\x9F\x98", 10000}, {"\xFF", 30000},         {std::string(1, '\0'), 30000},
  };
  for (const auto& [character, ofThem] : cases) {
    std::string text;
    for (std::size_t i = 1; i < ofThem; ++i) text += character;
    window->SetText3(text, false);
    window->SetText3(character, true);
    EXPECT_EQ(window->LogBoxText(), text + character) << testing::PrintToString(character);
    window->SetText3("!", true);
    EXPECT_EQ(window->LogBoxText(), "!") << testing::PrintToString(character);
  }
}

TEST_F(ProgressModelTest, ReplacingTheTextOfAFullLogBoxDoesNotSaveIt) {
  window->LogToFile = true;
  window->Show();
  window->SetText3(std::string(40000, 'x'), false);
  window->SetText3(std::string(40000, 'y'), false);
  EXPECT_EQ(window->LogBoxText(), std::string(40000, 'y'));
  EXPECT_EQ(Chunks(), "");
}

TEST_F(ProgressModelTest, TheLogBoxOfAnUnloggedRunDropsItsOldText) {
  window->Show();
  window->SetText3(std::string(30000, 'x'), true);
  window->SetText3("new", true);
  EXPECT_EQ(window->LogBoxText(), "new");
  EXPECT_FALSE(HasFile());
}

TEST_F(ProgressModelTest, ALogHasHeaderSavepointsLastChunkAndFooter) {
  window->LogToFile = true;
  window->Show();
  const std::string first(30000, '1');
  const std::string second(30000, '2');
  window->SetText3(first, true);
  window->SetText3(second, true);
  window->SetText3("last", true);
  EXPECT_EQ(File().find("End of Upload Log"), std::string::npos);
  window.reset();
  EXPECT_EQ(Chunks(), first + kSavepoint + "\r\n" + second + kSavepoint + "\r\n" + "last\r\n");
  EXPECT_TRUE(File().starts_with("\r\nVantorium 3.0 Upload Log (2026/03/04 05:06:07)\r\n"));
  EXPECT_TRUE(File().ends_with("_\r\n\r\nEnd of Upload Log (2026/03/04 05:06:07)\r\n\r\n"));
}

/// Does what a failed run does at its end.
void Fail(ProgressWindow& window) {
  window.OfferClose();
  window.WriteLog(window.LogBoxText());
  window.SetText3("", false);
}

TEST_F(ProgressModelTest, TheFooterOfAFailedRunFollowsAnEmptyLine) {
  window->LogToFile = true;
  window->Show();
  window->SetText3("530 No\r\n", true);
  Fail(*window);
  window.reset();
  EXPECT_EQ(Chunks(), "530 No\r\n\r\n\r\n");
}

TEST_F(ProgressModelTest, AFailedRunThatIsNotLoggedAppendsItsTextToTheLog) {
  program.Write("ftplog.txt", "before\r\n");
  window->Show();
  window->SetText3("text", true);
  Fail(*window);
  window.reset();
  EXPECT_EQ(File(), "before\r\ntext\r\n");
}

TEST_F(ProgressModelTest, ARunThatIsNotLoggedCreatesNoProgramFolder) {
  const auto folder = program.Path() / "program";
  UploadLog elsewhere(folder, clock, boxes);
  {
    ProgressModel unlogged(elsewhere);
    unlogged.Show();
    unlogged.SetText3("text", true);
    Fail(unlogged);
  }
  EXPECT_FALSE(std::filesystem::exists(folder));
  EXPECT_TRUE(boxes.boxes.empty());
  {
    ProgressModel logged(elsewhere);
    logged.LogToFile = true;
    logged.Show();
    EXPECT_TRUE(std::filesystem::exists(folder / "ftplog.txt"));
  }
}

TEST_F(ProgressModelTest, EachFailedWriteOfTheLogShowsAMessageBoxAndTheRunContinues) {
  std::filesystem::create_directory(program.Path() / "ftplog.txt");
  window->LogToFile = true;
  window->Show();
  EXPECT_EQ(boxes.boxes.size(), 1U);
  window->SetText3(std::string(30000, 'x'), true);
  window->SetText3("y", true);
  EXPECT_EQ(boxes.boxes.size(), 2U);
  EXPECT_EQ(window->LogBoxText(), "y");
  window.reset();
  EXPECT_EQ(boxes.boxes.size(), 4U) << "the last text and the footer";
}

TEST_F(ProgressModelTest, OffersCloseUntilTheNextRun) {
  window->Show();
  window->OfferClose();
  EXPECT_TRUE(window->OffersClose());
  EXPECT_FALSE(window->CloseRequested);
  window->Show();
  EXPECT_FALSE(window->OffersClose());
}

}  // namespace
}  // namespace vantorium::publish
