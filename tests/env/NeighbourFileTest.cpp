#include "env/NeighbourFile.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;
using fakes::NamesIn;

TEST(NeighbourFile, TheTargetAppearsOnlyWhenTheFileIsRenamed) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Path() / "a.jpg";
  NeighbourFile file(target);
  file.Write("one ");
  file.Write("");
  file.Write("two");
  EXPECT_FALSE(fs::exists(target));
  EXPECT_EQ(NamesIn(folder.Path()).size(), 1U) << "the neighbour is in the same folder";
  file.Sync();
  file.TakeTargetName();
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.jpg"});
  EXPECT_EQ(folder.Read("a.jpg"), "one two");
}

TEST(NeighbourFile, AFileThatIsNotRenamedIsRemoved) {
  const fakes::TemporaryFolder folder;
  folder.Write("a.jpg", "old");
  { NeighbourFile(folder.Path() / "a.jpg").Write("new"); }
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.jpg"});
  EXPECT_EQ(folder.Read("a.jpg"), "old");
}

TEST(NeighbourFile, TwoWritersOfOneTargetDoNotInterfere) {
  const fakes::TemporaryFolder folder;
  NeighbourFile first(folder.Path() / "a.jpg");
  NeighbourFile second(folder.Path() / "a.jpg");
  first.Write("first");
  second.Write("second");
  second.TakeTargetName();
  first.TakeTargetName();
  EXPECT_EQ(folder.Read("a.jpg"), "first");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.jpg"});
}

TEST(NeighbourFile, AFileLeftByAKilledProcessWithTheSameIDDoesNoHarm) {
  const fakes::TemporaryFolder folder;
  std::string left;
  {
    NeighbourFile probe(folder.Path() / "a.jpg");
    left = NamesIn(folder.Path()).at(0);
  }
  // The names are numbered, so create files with the next numbers.
  const auto dash = left.rfind('-');
  const int number = std::stoi(left.substr(dash + 1));
  for (int n = 1; n <= 3; ++n) folder.Write(left.substr(0, dash + 1) + std::to_string(number + n), "half");
  NeighbourFile file(folder.Path() / "a.jpg");
  file.Write("new");
  file.TakeTargetName();
  EXPECT_EQ(folder.Read("a.jpg"), "new");
  EXPECT_EQ(NamesIn(folder.Path()).size(), 4U) << "another process's files stay";
}

TEST(NeighbourFile, AFullDeviceIsAWriteFailure) {
  const fakes::TemporaryFolder folder;
  const fakes::FullDisk full(3);
  NeighbourFile file(folder.Path() / "a.jpg");
  file.Write("123");
  EXPECT_EQ(FailureOf([&] { file.Write("4"); }), FailureKind::FileAccess);
}

TEST(NeighbourFile, ATargetThatBecameReadOnlyIsNotReplaced) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Write("a.jpg", "old");
  {
    NeighbourFile file(target);
    file.Write("new");
    fs::permissions(target, fs::perms(0444));
    EXPECT_EQ(FailureOf([&] { file.TakeTargetName(); }), FailureKind::FileAccess);
  }
  EXPECT_EQ(folder.Read("a.jpg"), "old");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.jpg"});
}

TEST(NeighbourFile, AProcessKilledWhileWritingLeavesTheOldFile) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Write("a.jpg", "old");
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    NeighbourFile file(target);
    file.Write("half");
    ::kill(::getpid(), SIGKILL);
  }
  int status = 0;
  ASSERT_EQ(::waitpid(child, &status, 0), child);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(folder.Read("a.jpg"), "old");
}

/// The ID of a process that has ended.
pid_t DeadProcess() {
  const pid_t child = ::fork();
  if (child == 0) ::_exit(0);
  ::waitpid(child, nullptr, 0);
  return child;
}

TEST(NeighbourFile, OnlyFilesOfEndedProcessesAreRemoved) {
  const fakes::TemporaryFolder folder;
  const std::string dead = std::to_string(DeadProcess());
  const std::string abandoned = ".vantorium-" + dead + "-";
  folder.Write(abandoned + "0", "half");
  folder.Write(abandoned + "17", "");
  const std::vector<std::string> kept = {".vantorium-" + std::to_string(::getpid()) + "-99999",
                                         ".vantorium-1-0",
                                         abandoned,
                                         abandoned + "x",
                                         abandoned + "0x",
                                         abandoned + "0-1",
                                         abandoned + "-1",
                                         ".vantorium-" + dead,
                                         ".vantorium--" + dead + "-0",
                                         ".vantorium-0-0",
                                         ".vantorium-99999999999999999999-0",
                                         "x" + abandoned + "0",
                                         "vantorium-" + dead + "-0"};
  for (const std::string& name : kept) folder.Write(name, "kept");
  fs::create_directory(folder.Path() / (abandoned + "1"));
  fs::create_symlink("nowhere", folder.Path() / (abandoned + "2"));
  RemoveAbandonedNeighbours(folder.Path());
  for (const std::string& name : kept) EXPECT_TRUE(fs::exists(folder.Path() / name)) << name;
  EXPECT_EQ(NamesIn(folder.Path()).size(), kept.size() + 2);
  RemoveAbandonedNeighbours(folder.Path() / "none");
}

TEST(NeighbourFile, ATargetThatBecameAPipeIsNotReplaced) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Path() / "a.jpg";
  {
    NeighbourFile file(target);
    file.Write("new");
    ASSERT_EQ(::mkfifo(target.c_str(), 0600), 0);
    EXPECT_EQ(FailureOf([&] { file.TakeTargetName(); }), FailureKind::FileAccess);
  }
  EXPECT_TRUE(fs::is_fifo(target));
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.jpg"});
}

TEST(NeighbourFile, TheFailureNamesTheFileAndTheReason) {
  try {
    ThrowFileAccess("/a/b.jpg", ENOSPC);
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.Number(), 75);
    EXPECT_EQ(failure.Description(), "/a/b.jpg: No space left on device");
  }
}

TEST(NeighbourFile, AFolderThatIsMissingBelowALockedOneFailsForTheReasonOfThatOne) {
  const fakes::TemporaryFolder folder;
  const auto reasonFor = [](const fs::path& target) {
    try {
      const NeighbourFile file(target);
    } catch (const RuntimeFailure& failure) {
      return failure.Description();
    }
    return std::string("none");
  };
  fs::create_directory(folder.Path() / "locked");
  const fs::path free = folder.Path() / "missing/Images/a.jpg";
  const fs::path below = folder.Path() / "locked/missing/Images/a.jpg";
  EXPECT_EQ(reasonFor(free), free.string() + ": No such file or directory");
  const fakes::LockedFolder locked(folder.Path() / "locked");
  EXPECT_EQ(reasonFor(below), below.string() + ": Permission denied");
}

}  // namespace
}  // namespace vantorium::env
