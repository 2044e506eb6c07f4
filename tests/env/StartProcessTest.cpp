#include "env/RuntimeFailure.h"
#include "env/StartProcess.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/TemporaryFolder.h"

#include <csignal>
#include <sstream>
#include <thread>

namespace vantorium::env {
namespace {

using fakes::FailureOf;
using std::chrono::milliseconds;

/// Long enough for every process that ends by itself.
constexpr milliseconds kLong{30000};

ShellCommand Script(const std::string& script, milliseconds watched = kLong) {
  return {{"/bin/sh", "-c", script}, watched};
}

std::string DescriptionOf(const ShellCommand& command) {
  try {
    StartProcess(command);
    return "no failure";
  } catch (const RuntimeFailure& failure) {
    return failure.Description();
  }
}

TEST(StartProcess, AProgramGetsItsArgumentsUnchanged) {
  const fakes::TemporaryFolder folder;
  const std::string out = (folder.Path() / "out").string();
  StartProcess({{"sh", "-c", "printf '%s|' \"$@\" >\"$0\"", out, "a b", "", "\"c\" $d", "*"}, kLong});
  EXPECT_EQ(folder.Read("out"), "a b||\"c\" $d|*|");
}

TEST(StartProcess, AMissingOrInvalidProgramFailsAtOnce) {
  const fakes::TemporaryFolder folder;
  const std::string text = folder.Write("text", "x").string();
  EXPECT_EQ(FailureOf([] { StartProcess({{"no-such-program-here", "x"}}); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { StartProcess({{""}}); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { StartProcess({}); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([&] { StartProcess({{text}}); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { StartProcess({{folder.Path().string()}}); }), FailureKind::FileAccess);
  EXPECT_EQ(DescriptionOf({{text}}), text + ": Permission denied");
  EXPECT_EQ(DescriptionOf({{"no-such-program-here"}}), "no-such-program-here: No such file or directory");
}

TEST(StartProcess, AWatchedProgramThatEndsUnsuccessfullyCouldNotBeStarted) {
  EXPECT_EQ(DescriptionOf(Script("exit 3")), "/bin/sh ended with the exit code 3");
  EXPECT_EQ(FailureOf([] { StartProcess(Script("exit 127")); }), FailureKind::FileNotFound);
  EXPECT_EQ(FailureOf([] { StartProcess(Script("exit 126")); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([] { StartProcess(Script("kill -9 $$")); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([] { StartProcess(Script("exit 0")); }), std::nullopt);
}

TEST(StartProcess, AnUnwatchedProgramMayEndUnsuccessfully) {
  EXPECT_EQ(FailureOf([] { StartProcess(Script("exit 3", milliseconds(0))); }), std::nullopt);
}

TEST(StartProcess, AProgramThatKeepsRunningIsLeftAlone) {
  const fakes::TemporaryFolder folder;
  const std::string go = (folder.Path() / "go").string();
  const std::string done = (folder.Path() / "done").string();
  StartProcess(
      {{"/bin/sh", "-c", "until test -e \"$0\"; do sleep 0.01; done; touch \"$1\"", go, done}, milliseconds(20)});
  EXPECT_FALSE(std::filesystem::exists(done));
  folder.Write("go", "");
  for (int i = 0; i < 3000 && !std::filesystem::exists(done); ++i) std::this_thread::sleep_for(milliseconds(10));
  EXPECT_TRUE(std::filesystem::exists(done));
}

TEST(StartedProcess, IsWatchedWithoutBlockingUntilItEnds) {
  const fakes::TemporaryFolder folder;
  const std::string go = (folder.Path() / "go").string();
  for (const char* code : {"0", "3"}) {
    const std::string script = "until test -e \"$0\"; do sleep 0.01; done; exit " + std::string(code);
    const StartedProcess process({{"/bin/sh", "-c", script, go}, kLong});
    EXPECT_TRUE(process.IsWatched()) << code;
    EXPECT_TRUE(process.IsWatched()) << code;
    folder.Write("go", "");
    const auto look = [&process] {
      while (process.IsWatched()) std::this_thread::sleep_for(milliseconds(5));
    };
    const bool good = std::string(code) == "0";
    EXPECT_EQ(FailureOf(look), good ? std::nullopt : std::optional(FailureKind::FileAccess)) << code;
    std::filesystem::remove(go);
  }
}

TEST(StartedProcess, IsNoLongerWatchedAfterTheTimeLimit) {
  const StartedProcess process({{"/bin/sh", "-c", "exit 3"}, milliseconds(0)});
  EXPECT_FALSE(process.IsWatched());
}

TEST(StartProcess, AProgramHasEmptyStreamsAndItsOwnSession) {
  const fakes::TemporaryFolder folder;
  const std::string out = (folder.Path() / "out").string();
  const std::string script =
      "facts=$(readlink /proc/$$/fd/0 /proc/$$/fd/1 /proc/$$/fd/2; cut -d' ' -f6 /proc/$$/stat; echo $$)\n"
      "echo \"$facts\" >\"$0\"";
  StartProcess({{"/bin/sh", "-c", script, out}, kLong});
  std::istringstream facts(folder.Read("out"));
  std::string streams[3];
  int session = 0;
  int process = 0;
  facts >> streams[0] >> streams[1] >> streams[2] >> session >> process;
  for (const std::string& stream : streams) EXPECT_EQ(stream, "/dev/null") << facts.str();
  EXPECT_GT(session, 0) << facts.str();
  EXPECT_EQ(session, process) << facts.str();
}

TEST(StartProcess, SignalsThatThisProcessIgnoresOrBlocksReachTheProgram) {
  const auto old = std::signal(SIGPIPE, SIG_IGN);
  sigset_t held;
  sigset_t before;
  ::sigemptyset(&held);
  ::sigaddset(&held, SIGTERM);
  ::pthread_sigmask(SIG_BLOCK, &held, &before);
  for (const char* name : {"PIPE", "TERM"}) {
    EXPECT_EQ(FailureOf([&] { StartProcess(Script(std::string("kill -") + name + " $$")); }), FailureKind::FileAccess)
        << name;
  }
  ::pthread_sigmask(SIG_SETMASK, &before, nullptr);
  std::signal(SIGPIPE, old);
}

}  // namespace
}  // namespace vantorium::env
