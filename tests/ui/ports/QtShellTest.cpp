#include "env/LaunchCommands.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/ports/QtShell.h"

#include <QTest>
#include <chrono>
#include <thread>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using std::chrono::milliseconds;
using Texts = std::vector<std::string>;

/// Long enough for every process that ends by itself.
constexpr milliseconds kLong{30000};

class QtShellTest : public testing::Test {
 protected:
  /// A command that waits until a file of that name exists, and then ends with the exit code `code`.
  [[nodiscard]] env::ShellCommand WaitingFor(const std::string& name, int code, milliseconds watched = kLong) const {
    const std::string script = "until test -e \"$0\"; do sleep 0.01; done; exit " + std::to_string(code);
    return {{"/bin/sh", "-c", script, (folder.Path() / name).string()}, watched};
  }
  void Release(const std::string& name) const { folder.Write(name, ""); }
  static bool WaitUntil(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, static_cast<int>(kLong.count()));
  }

  fakes::TemporaryFolder folder;
  env::PathMap paths{{{'C', folder.Path().string()}}};
  QtShell shell{paths};
  Texts failures;
  env::StartFailed note = [this](const env::RuntimeFailure& failure) { failures.push_back(failure.Description()); };
};

TEST_F(QtShellTest, AProgramIsWatchedFromTheEventLoopWithoutBlocking) {
  shell.Start(WaitingFor("go", 3), note);
  EXPECT_EQ(failures, Texts()) << "the program has not ended";
  Release("go");
  EXPECT_TRUE(WaitUntil([this] { return !failures.empty(); }));
  EXPECT_EQ(failures, Texts{"/bin/sh ended with the exit code 3"});
}

TEST_F(QtShellTest, AMissingProgramFailsAtOnce) {
  shell.Start({{"no-such-program-here"}, kLong}, note);
  EXPECT_EQ(failures, Texts{"no-such-program-here: No such file or directory"});
}

TEST_F(QtShellTest, TheSecondAttemptFollowsAFailedFirstAndItsFailureIsReportedOnce) {
  env::Launch({WaitingFor("first", 3), WaitingFor("second", 4)}, shell, note);
  Release("first");
  EXPECT_FALSE(QTest::qWaitFor([this] { return !failures.empty(); }, 200)) << "the second attempt is still running";
  Release("second");
  EXPECT_TRUE(WaitUntil([this] { return !failures.empty(); }));
  EXPECT_FALSE(QTest::qWaitFor([this] { return failures.size() > 1; }, 200));
  EXPECT_EQ(failures, Texts{"/bin/sh ended with the exit code 4"});
}

TEST_F(QtShellTest, SuccessfulRunningAndUnwatchedProgramsHaveNotFailed) {
  shell.Start({{"/bin/sh", "-c", "exit 0"}, kLong}, note);
  shell.Start({{"/bin/sh", "-c", "exit 3"}, milliseconds(0)}, note);
  shell.Start(WaitingFor("late", 3, milliseconds(50)), note);
  QTest::qWait(300);
  Release("late");
  QTest::qWait(200);
  EXPECT_EQ(failures, Texts());
}

TEST_F(QtShellTest, AFailureIsReportedOnceEvenWhileItsMessageBoxIsOpen) {
  shell.Start(WaitingFor("go", 3), [this](const env::RuntimeFailure& failure) {
    note(failure);
    QTest::qWait(200);
  });
  Release("go");
  EXPECT_TRUE(WaitUntil([this] { return !failures.empty(); }));
  EXPECT_EQ(failures.size(), 1U);
}

TEST_F(QtShellTest, NothingIsReportedAfterTheShellIsDestroyed) {
  auto desktop = std::make_unique<QtShell>(paths);
  desktop->Start(WaitingFor("go", 3), note);
  desktop.reset();
  Release("go");
  EXPECT_FALSE(QTest::qWaitFor([this] { return !failures.empty(); }, 200));
}

}  // namespace
}  // namespace vantorium::ui
