#include "tests/app/ServerPlace.h"

#include <filesystem>

namespace vantorium::batch {
namespace {

/// A workplace with a project whose run fails, because its photograph is not a JPEG file, and with a folder to upload.
class UploadLogFile : public testing::Test {
 protected:
  UploadLogFile() {
    place.Project("a.gpj", {"a.jpg"});
    place.Write("a.jpg", "no JPEG");
    place.Write("password", "hush-hush");
    place.Write("site/index.htm", "x");
  }

  [[nodiscard]] ProcessResult FailToCreate(const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {"create", "a.gpj", "out/index.htm"};
    arguments.insert(arguments.end(), more.begin(), more.end());
    ProcessResult result = place.Run(arguments);
    EXPECT_TRUE(EndedWith(1, result));
    return result;
  }
  /// Uploads to port 1 on loopback, where nothing listens.
  void FailToUpload() const {
    EXPECT_TRUE(EndedWith(
        1, place.Run({"upload", "site", "--server", "127.0.0.1", "--port", "1", "--user", "me", "--password-file",
                      "password", "--remote", "web", "--creation-time", "1999-01-02 03:04:05"})));
  }
  [[nodiscard]] std::string Log() const { return place.Read("program/ftplog.txt"); }

  Workplace place;
};

TEST_F(UploadLogFile, OfARunToAServerHasHeaderAndFooterWithTheCurrentTime) {
  place.Write("program/ftplog.txt", "the run before");
  FailToUpload();
  EXPECT_TRUE(Log().starts_with("\r\nVantorium 3.0 Upload Log (2")) << Log();
  EXPECT_NE(Log().find("\r\nEnd of Upload Log (2"), std::string::npos) << Log();
  EXPECT_EQ(Log().find("1999"), std::string::npos) << Log();
  EXPECT_EQ(Log().find("hush-hush"), std::string::npos) << Log();
}

TEST_F(UploadLogFile, AFailedRunWithoutAServerAppendsOnlyTheTextOfItsLogBox) {
  place.Write("program/ftplog.txt", "before\r\n");
  std::ignore = FailToCreate();
  EXPECT_EQ(Log(), "before\r\n\r\n");
}

TEST_F(UploadLogFile, ARunWithoutAServerIgnoresAMissingLogFolder) {
  const ProcessResult result = FailToCreate({"--program-folder", "password/below"});
  EXPECT_EQ(result.err.find("Error writing Log"), std::string::npos) << result.err;
}

TEST_F(UploadLogFile, ALogThatCannotBeWrittenIsReportedAndTheRunContinues) {
  std::filesystem::create_directory(place.Path("program/ftplog.txt"));
  const ProcessResult result = FailToCreate();
  EXPECT_TRUE(result.err.starts_with("File Error: ")) << result.err;
  EXPECT_NE(result.err.find("\nError writing Log: An error has occurred writing the log file: \n\n"), std::string::npos)
      << result.err;
}

/// The log between its header and its footer. Fails the test if either is missing.
std::string BodyOf(const std::string& log) {
  const std::string line = "\r\n" + std::string(70, '_') + "\r\n";
  const auto begin = log.find(line);
  const auto end = log.rfind(line);
  EXPECT_TRUE(begin != std::string::npos && begin < end) << log;
  if (begin >= end) return {};
  return log.substr(begin + line.size(), end - begin - line.size());
}

class UploadLogOfAServer : public EachServerPlace {};

INSTANTIATE_TEST_SUITE_P(At, UploadLogOfAServer, kEachServer, NameOfServer);

TEST_P(UploadLogOfAServer, HasTheStepsAndTheReplies) {
  place.Write("site/a.txt", "x");
  ASSERT_TRUE(Succeeded(Upload("web")));
  const std::string body = BodyOf(Log());
  std::size_t at = 0;
  for (const std::string& part : {std::string("\r\n\r\n220 "), std::string("\r\n331 "), std::string("\r\n230 "),
                                  std::string("\r\nCreating directory web\r\n257 "), std::string("\r\n250 "),
                                  "\r\nCopying file " + place.Path("site/a.txt").string() + " to web/a.txt\r\n200 ",
                                  std::string("\r\n200 "), std::string("\r\n150 "), std::string("\r\n226 ")}) {
    at = body.find(part, at);
    ASSERT_NE(at, std::string::npos) << testing::PrintToString(part) << " is missing or out of order in\n" << body;
  }
}

TEST_P(UploadLogOfAServer, LosesNothingAtSavepoints) {
  constexpr int kFiles = 300;
  std::string copied;
  for (int file = 1000; file < 1000 + kFiles; ++file) {
    const std::string name = "file" + std::to_string(file);
    place.Write("site/" + name, "x");
    copied += "Copying file " + place.Path("site/" + name).string() + " to web/" + name + "\r\n";
  }
  ASSERT_TRUE(Succeeded(Upload("web")));
  const std::string body = BodyOf(Log());
  std::string found;
  int savepoints = 0;
  int stored = 0;
  for (std::size_t at = 0; at < body.size();) {
    const auto end = std::min(body.find("\r\n", at), body.size() - 2) + 2;
    const std::string line = body.substr(at, end - at);
    if (line.starts_with("Copying ")) found += line;
    if (line.starts_with("226 ")) ++stored;
    if (line == "Log savepoint - writing to disk...\r\n") ++savepoints;
    at = end;
  }
  EXPECT_EQ(found, copied);
  EXPECT_EQ(stored, kFiles);
  EXPECT_EQ(savepoints, static_cast<int>(body.size() / 30'000)) << body.size();
}

TEST_P(UploadLogOfAServer, HasOnlyTheLastRun) {
  place.Write("site/a.txt", "x");
  ASSERT_TRUE(Succeeded(Upload("first")));
  ASSERT_TRUE(Succeeded(Upload("second")));
  EXPECT_EQ(Log().find("first"), std::string::npos) << Log();
  EXPECT_EQ(Log().find("Upload Log ("), Log().rfind("Upload Log (", Log().rfind("End of "))) << Log();
}

TEST_P(UploadLogOfAServer, OfAFailedRunHasTheFailureOnceAndAnEmptyLine) {
  place.Write("site/a.txt", "x");
  place.Write(OnServer("web"), "in the way");
  EXPECT_TRUE(EndedWith(1, Upload("web")));
  const std::string log = Log();
  EXPECT_EQ(log.find("Creating directory web"), log.rfind("Creating directory web")) << log;
  EXPECT_TRUE(BodyOf(log).ends_with("\r\n\r\n")) << testing::PrintToString(log);
}

TEST_P(UploadLogOfAServer, CreatesAMissingProgramFolder) {
  place.Write("site/a.txt", "x");
  ASSERT_TRUE(Succeeded(Upload("web", {"--program-folder", "new/program"})));
  EXPECT_NE(place.Read("new/program/ftplog.txt").find("Copying file "), std::string::npos);
}

}  // namespace
}  // namespace vantorium::batch
