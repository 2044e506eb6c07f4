#include "tests/app/ServerPlace.h"

#include <csignal>
#include <thread>

#include <nlohmann/json.hpp>

namespace vantorium::batch {
namespace {

using namespace std::chrono_literals;

const char kBoxesOfCancel[] =
    "Cancel Request: Are you sure you wish to cancel?\n"
    "Creation cancelled: The User has cancelled Creation of the Gallery\n";

/// Whether a gallery's file is complete.
bool IsWhole(const std::string& name, const std::string& bytes) {
  if (name.ends_with(".jpg")) return bytes.starts_with("\xFF\xD8") && bytes.ends_with("\xFF\xD9");
  return name.ends_with(".htm") && bytes.ends_with("</HTML>\r\n");
}

void ExpectWholeFilesOnly(const std::filesystem::path& folder) {
  for (const auto& [name, bytes] : FilesBelow(folder)) {
    EXPECT_TRUE(IsWhole(name, bytes)) << name << ", " << bytes.size() << " bytes";
  }
}

/// A workplace with the project "a.gpj". Its run prints so much that it blocks until the test reads the output.
class Interrupt : public testing::Test {
 protected:
  Interrupt() { place.LargeProject("a.gpj", 300); }

  [[nodiscard]] StartOptions Create(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {"create", "a.gpj", "out/index.htm"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    return place.Options(arguments);
  }

  Workplace place;
};

TEST_F(Interrupt, CancelsTheRunWithTheMessagesOfTheCancelButton) {
  ChildProcess program(Create({"--verbose"}));
  program.WaitForError(R"(Copying File "many.jpg_9")");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_TRUE(result.err.ends_with(kBoxesOfCancel)) << result.err;
}

TEST_F(Interrupt, CancelsEvenWithoutProgress) {
  place.SlowProject("a.gpj");
  ChildProcess program(Create({"--quiet"}));
  while (!std::filesystem::exists(place.Path("out/Images/many.jpg.jpg")) && !program.HasEnded()) {
    std::this_thread::sleep_for(1ms);
  }
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_EQ(result.err, kBoxesOfCancel);
}

TEST_F(Interrupt, LeavesFinishedFilesAndNoPartialOnes) {
  for (const char* jobs : {"1", "4"}) {
    std::filesystem::remove_all(place.Path("out"));
    ChildProcess program(Create({"--verbose", "--jobs", jobs}));
    program.WaitForError(R"(Copying File "many.jpg_20")");
    program.Send(SIGINT);
    EXPECT_TRUE(EndedWith(130, program.Finish())) << jobs;
    EXPECT_TRUE(std::filesystem::exists(place.Path("out/Images/many.jpg_19.jpg"))) << jobs;
    EXPECT_FALSE(std::filesystem::exists(place.Path("out/index.htm"))) << jobs;
    ExpectWholeFilesOnly(place.Path("out"));
  }
}

TEST_F(Interrupt, LeavesNoPictureAfterTheLastAnnouncedOne) {
  ChildProcess program(Create({"--verbose", "--jobs", "4"}));
  program.WaitForError(R"(Copying File "many.jpg_30")");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  for (const auto& [name, bytes] : FilesBelow(place.Path("out/Images"))) {
    const std::string listText = name.substr(0, name.rfind('.'));
    EXPECT_NE(result.err.find("\"" + listText + "\"..."), std::string::npos) << name;
  }
}

TEST_F(Interrupt, CancelsWhilePagesAreWritten) {
  ChildProcess program(Create({"--verbose", "--no-images", "--no-thumbnails"}));
  program.WaitForError(R"(Creating Image Wrapper File for "many.jpg_9")");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_TRUE(result.err.ends_with(kBoxesOfCancel)) << result.err;
  ExpectWholeFilesOnly(place.Path("out"));
}

TEST_F(Interrupt, ACancelledPreviewPrintsNoIndexFile) {
  ChildProcess program(place.Options({"preview", "a.gpj", "--verbose"}));
  program.WaitForError(R"(Creating Image Wrapper File for "many.jpg_9")");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_EQ(result.out, "");
}

TEST_F(Interrupt, CtrlCOnTheTerminalDoesTheSame) {
  place.SlowProject("a.gpj");
  StartOptions options = Create();
  options.standardError = StandardError::Terminal;
  ChildProcess program(options);
  program.WaitForError(R"([1-9][0-9]*/1500)");
  program.Type("\x03");
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_NE(result.err.find("Cancel Request: Are you sure you wish to cancel?\r\n"), std::string::npos) << result.err;
  EXPECT_TRUE(result.err.ends_with("Creation cancelled: The User has cancelled Creation of the Gallery\r\n"))
      << result.err;
}

TEST_F(Interrupt, SIGTERMAndSIGHUPCancelToo) {
  for (const int signal : {SIGTERM, SIGHUP}) {
    ChildProcess program(Create({"--verbose"}));
    program.WaitForError(R"(Copying File "many.jpg_9")");
    program.Send(signal);
    EXPECT_TRUE(EndedWith(130, program.Finish())) << signal;
    ExpectWholeFilesOnly(place.Path("out"));
  }
}

TEST_F(Interrupt, ASecondSIGHUPDoesNotEndTheProgramAtOnce) {
  ChildProcess program(Create({"--verbose"}));
  program.WaitUntilErrorPipeIsFull();
  program.Send(SIGHUP);
  std::this_thread::sleep_for(50ms);
  program.Send(SIGHUP);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_TRUE(result.err.ends_with(kBoxesOfCancel)) << result.err;
}

// The program blocks while it writes its output and cannot reach its next check for a cancel.
TEST_F(Interrupt, ASecondInterruptEndsTheProgramAtOnce) {
  ChildProcess program(Create({"--verbose"}));
  program.WaitUntilErrorPipeIsFull();
  program.Send(SIGINT);
  std::this_thread::sleep_for(50ms);
  EXPECT_FALSE(program.HasEnded()) << "the first interrupt only cancels";
  for (int again = 0; again < 1000 && !program.HasEnded(); ++again) {
    program.Send(SIGINT);  // repeatedly, because signals in quick succession may count as one
    std::this_thread::sleep_for(10ms);
  }
  ASSERT_TRUE(program.HasEnded());
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_EQ(result.err.find("cancel"), std::string::npos) << result.err;
}

TEST_F(Interrupt, ACancelledGalleryIsCompletedByTheNextRun) {
  ChildProcess program(Create({"--verbose"}));
  program.WaitForError(R"(Copying File "many.jpg_9")");
  program.Send(SIGINT);
  ASSERT_TRUE(EndedWith(130, program.Finish()));
  ASSERT_TRUE(Succeeded(ChildProcess(Create({"--keep-existing"})).Finish()));
  ASSERT_TRUE(Succeeded(place.Run({"create", "a.gpj", "whole/index.htm"})));
  EXPECT_TRUE(SameFiles(place.Path("out"), place.Path("whole")));
}

class InterruptOfARunToAServer : public EachServerPlace {};

INSTANTIATE_TEST_SUITE_P(At, InterruptOfARunToAServer, kEachServer, NameOfServer);

TEST_P(InterruptOfARunToAServer, CancelsThePublishing) {
  place.LargeProject("a.gpj", 100);
  ChildProcess program(Options("publish", "a.gpj", "web/index.htm", {"--verbose"}));
  program.WaitForError(R"(Copying File "many.jpg_9")");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_TRUE(result.err.ends_with(kBoxesOfCancel)) << result.err;
  EXPECT_NE(Log().find("End of Upload Log"), std::string::npos) << Log();
}

TEST_P(InterruptOfARunToAServer, CancelsTheUploadOfAFolderWithItsMessage) {
  for (int file = 1000; file < 1200; ++file) place.Write("site/sub/" + std::to_string(file), "x");
  ChildProcess program(Options("upload", "site", "web", {"--verbose"}));
  program.WaitForError("Uploading File .*1050");
  program.Send(SIGINT);
  const ProcessResult result = program.Finish();
  EXPECT_TRUE(EndedWith(130, result));
  EXPECT_TRUE(
      result.err.ends_with("Cancel Request: Are you sure you wish to cancel?\n"
                           "Upload cancelled: The User has cancelled Upload of the Gallery\n"))
      << result.err;
  EXPECT_TRUE(std::filesystem::exists(OnServer("web/sub/1049")));
  EXPECT_FALSE(std::filesystem::exists(OnServer("web/sub/1199")));
}

TEST_P(InterruptOfARunToAServer, LeavesNoPartialFileOnTheServer) {
  std::filesystem::resize_file(place.Write("site/large", ""), 0x7FFFFFFF);
  ChildProcess program(Options("upload", "site", "web"));
  while (!std::filesystem::exists(OnServer("web/large")) && !program.HasEnded()) std::this_thread::sleep_for(1ms);
  program.Send(SIGINT);
  EXPECT_TRUE(EndedWith(130, program.Finish()));
  // The program does not wait for a slow server.
  for (int look = 0; look < 1000 && std::filesystem::exists(OnServer("web/large")); ++look) {
    std::this_thread::sleep_for(10ms);
  }
  EXPECT_FALSE(std::filesystem::exists(OnServer("web/large"))) << Log();
}

}  // namespace
}  // namespace vantorium::batch
