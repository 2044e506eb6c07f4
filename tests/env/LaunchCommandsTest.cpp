#include "env/LaunchCommands.h"
#include "env/RuntimeFailure.h"
#include "env/StartProcess.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium::env {
namespace {

using fakes::FailureOf;
using Words = std::vector<std::string>;

const char kFile[] = "C:\\temp\\a b\\index.htm";
const char kNativeFile[] = "/home/me/temp/a b/index.htm";

/// A shell whose first calls of Start fail, each with its own description: at once, or, with `failsLater`, in LetFail.
class FailingShell : public Shell {
 public:
  explicit FailingShell(std::size_t failures) : failures_(failures) {}

  void Beep(BeepKind /*kind*/) override {}
  void OpenFile(const std::string& /*path*/) override {}
  void Start(const ShellCommand& command, const StartFailed& failed) override {
    started.push_back(command.words);
    if (started.size() > failures_) return;
    later_ = failed;
    if (!failsLater) LetFail();
  }
  void LetFail() {
    const StartFailed failed = std::exchange(later_, nullptr);
    failed(RuntimeFailure(FailureKind::FileAccess, "failure " + std::to_string(started.size())));
  }

  std::vector<Words> started;
  bool failsLater = false;

 private:
  std::size_t failures_;
  StartFailed later_;
};

class LaunchCommandsTest : public testing::Test {
 protected:
  PathMap paths{{{'C', "/home/me"}}};
  std::vector<std::string> failures;
  StartFailed note = [this](const RuntimeFailure& failure) { failures.push_back(failure.Description()); };
};

TEST_F(LaunchCommandsTest, TheDefaultBrowserIsStartedByXdgOpenThenByGio) {
  const LaunchAttempts attempts = DefaultOpener(kFile, paths);
  EXPECT_EQ(attempts[0].words, (Words{"xdg-open", kNativeFile}));
  EXPECT_EQ(attempts[1].words, (Words{"gio", "open", kNativeFile}));
}

TEST_F(LaunchCommandsTest, AListedBrowserIsAProgramThenACommandLine) {
  const LaunchAttempts attempts = ListedBrowser("/opt/My Browser/run", kFile, paths);
  EXPECT_EQ(attempts[0].words, (Words{"/opt/My Browser/run", kNativeFile}));
  EXPECT_EQ(attempts[1].words, (Words{"/bin/sh", "-c", "/opt/My Browser/run \"$1\"", "sh", kNativeFile}));
}

TEST_F(LaunchCommandsTest, ALocationMayBePathTextANativePathOrAName) {
  const std::pair<const char*, const char*> cases[] = {{"C:\\bin\\b.exe", "/home/me/bin/b.exe"},
                                                       {"/usr/bin/b", "/usr/bin/b"},
                                                       {"b", "b"},
                                                       {"b -x", "b -x"},
                                                       {"D:\\b", "D:\\b"},
                                                       {"\\\\server\\share\\b", "\\\\server\\share\\b"}};
  for (const auto& [location, program] : cases) {
    EXPECT_EQ(ListedBrowser(location, kFile, paths)[0].words[0], program) << location;
  }
}

TEST_F(LaunchCommandsTest, OnlyProgramsThatStartOtherProgramsAreWatched) {
  for (const ShellCommand& command : DefaultOpener(kFile, paths)) EXPECT_GT(command.watched.count(), 0);
  const LaunchAttempts attempts = ListedBrowser("b", kFile, paths);
  EXPECT_EQ(attempts[0].watched.count(), 0);
  EXPECT_GT(attempts[1].watched.count(), 0);
}

TEST_F(LaunchCommandsTest, AnEmptyLocationIsNotABrowser) {
  for (const char* location : {"", " ", "\t \r\n"}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = ListedBrowser(location, kFile, paths); }), FailureKind::FileNotFound);
  }
}

TEST_F(LaunchCommandsTest, AFileOnNoDriveCannotBeOpened) {
  for (const char* file : {"D:\\index.htm", "\\\\server\\share\\index.htm"}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = DefaultOpener(file, paths); }), FailureKind::FileNotFound) << file;
    EXPECT_EQ(FailureOf([&] { std::ignore = ListedBrowser("b", file, paths); }), FailureKind::FileNotFound) << file;
  }
}

TEST_F(LaunchCommandsTest, TheSecondAttemptIsMadeOnlyWhenTheFirstFailed) {
  const LaunchAttempts attempts = DefaultOpener(kFile, paths);
  FailingShell none(0);
  Launch(attempts, none, note);
  EXPECT_EQ(none.started, (std::vector<Words>{attempts[0].words}));
  FailingShell one(1);
  Launch(attempts, one, note);
  EXPECT_EQ(one.started, (std::vector<Words>{attempts[0].words, attempts[1].words}));
  EXPECT_TRUE(failures.empty());
}

TEST_F(LaunchCommandsTest, TheSecondAttemptFollowsAlsoAFailureThatIsReportedLater) {
  const LaunchAttempts attempts = DefaultOpener(kFile, paths);
  FailingShell both(2);
  both.failsLater = true;
  Launch(attempts, both, note);
  EXPECT_EQ(both.started, (std::vector<Words>{attempts[0].words}));
  both.LetFail();
  EXPECT_EQ(both.started, (std::vector<Words>{attempts[0].words, attempts[1].words}));
  EXPECT_TRUE(failures.empty());
  both.LetFail();
  EXPECT_EQ(failures, Words{"failure 2"});
}

TEST_F(LaunchCommandsTest, WhenBothFailedTheSecondFailureIsReported) {
  FailingShell both(2);
  Launch(DefaultOpener(kFile, paths), both, note);
  EXPECT_EQ(failures, Words{"failure 2"});
  EXPECT_EQ(both.started.size(), 2U);
}

/// Runs the two attempts as real processes.
class ListedBrowserRuns : public testing::Test {
 protected:
  ListedBrowserRuns() {
    script = folder.Write("bin dir/browser", "#!/bin/sh\nprintf '%s|' \"$@\" >\"" + Out() + "\"\n");
    std::filesystem::permissions(script, std::filesystem::perms::owner_all);
    folder.Write("index.htm", "<HTML>");
  }
  [[nodiscard]] std::string Out() const { return (folder.Path() / "out").string(); }

  /// Waits for the browser and returns the arguments it received.
  [[nodiscard]] std::string Run(ShellCommand command) const {
    command.watched = std::chrono::seconds(30);
    StartProcess(command);
    return folder.Read("out");
  }

  fakes::TemporaryFolder folder;
  std::filesystem::path script;
  PathMap paths{{{'C', folder.Path().string()}}};
};

TEST_F(ListedBrowserRuns, APathWithBlanksIsOneProgram) {
  for (const std::string& location : {script.string(), std::string("C:\\bin dir\\browser")}) {
    const LaunchAttempts attempts = ListedBrowser(location, "C:\\index.htm", paths);
    EXPECT_EQ(Run(attempts[0]), (folder.Path() / "index.htm").string() + "|") << location;
  }
}

TEST_F(ListedBrowserRuns, AProgramWithOptionsIsFoundByTheInterpreter) {
  const LaunchAttempts attempts = ListedBrowser("'" + script.string() + "' --new", "C:\\index.htm", paths);
  EXPECT_EQ(FailureOf([&] { StartProcess(attempts[0]); }), FailureKind::FileNotFound);
  EXPECT_EQ(Run(attempts[1]), "--new|" + (folder.Path() / "index.htm").string() + "|");
}

TEST_F(ListedBrowserRuns, AFileThatIsNotAProgramFailsTwice) {
  for (ShellCommand& command : ListedBrowser("no-such-browser-here", "C:\\index.htm", paths)) {
    if (command.watched.count() > 0) command.watched = std::chrono::seconds(30);
    EXPECT_EQ(FailureOf([&] { StartProcess(command); }), FailureKind::FileNotFound) << command.words[0];
  }
}

}  // namespace
}  // namespace vantorium::env
