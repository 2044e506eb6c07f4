#include "env/FileOutput.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/Hindrances.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;
using fakes::NamesIn;

TEST(FileOutput, TheTargetHoldsTheBytes) {
  const fakes::TemporaryFolder folder;
  for (const Durability durability : {Durability::Cached, Durability::Synced}) {
    for (const std::string& bytes : {std::string(), std::string("a\0b\r\n", 5), std::string(3'000'000, 'x')}) {
      WriteFileWhole(folder.Path() / "a.htm", bytes, durability);
      EXPECT_TRUE(folder.Read("a.htm") == bytes) << bytes.size();
    }
  }
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.htm"});
}

TEST(FileOutput, ATargetInTheWorkingFolderNeedsNoFolder) {
  const fakes::TemporaryFolder folder;
  const auto before = fs::current_path();
  fs::current_path(folder.Path());
  WriteFileWhole("a.htm", "x");
  fs::current_path(before);
  EXPECT_EQ(folder.Read("a.htm"), "x");
}

TEST(FileOutput, AFullDiskLeavesTheOldFileAndNothingElse) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Write("a.htm", "old");
  {
    const fakes::FullDisk full(1000);
    EXPECT_EQ(FailureOf([&] { WriteFileWhole(target, std::string(5000, 'x')); }), FailureKind::FileAccess);
    EXPECT_EQ(FailureOf([&] { WriteFileWhole(folder.Path() / "new", std::string(1001, 'x')); }),
              FailureKind::FileAccess);
    WriteFileWhole(folder.Path() / "fits", std::string(1000, 'x'));
  }
  EXPECT_EQ(folder.Read("a.htm"), "old");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a.htm", "fits"}));
}

TEST(FileOutput, AReadOnlyFileIsNotReplacedNotEvenByRoot) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Write("a.htm", "old");
  fs::permissions(target, fs::perms(0444));
  EXPECT_EQ(FailureOf([&] { WriteFileWhole(target, "new"); }), FailureKind::FileAccess);
  EXPECT_EQ(folder.Read("a.htm"), "old");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.htm"});
}

TEST(FileOutput, APrivateFileStaysPrivate) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Write("vantorium.pub", "old");
  for (const unsigned mode : {0600U, 0640U, 0666U, 0755U}) {
    fs::permissions(target, fs::perms(mode));
    WriteFileWhole(target, "new");
    EXPECT_EQ(static_cast<unsigned>(fs::status(target).permissions()), mode);
  }
}

TEST(FileOutput, AFolderIsNoTarget) {
  const fakes::TemporaryFolder folder;
  fs::create_directory(folder.Path() / "sub");
  EXPECT_EQ(FailureOf([&] { WriteFileWhole(folder.Path() / "sub", "x"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { WriteFileWhole(folder.Path() / "sub/", "x"); }), FailureKind::FileAccess);
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"sub"});
  EXPECT_TRUE(NamesIn(folder.Path() / "sub").empty());
}

TEST(FileOutput, AMissingOrLockedFolderIsAFailureThatNamesTheTarget) {
  const fakes::TemporaryFolder folder;
  const auto target = folder.Path() / "none" / "a.htm";
  try {
    WriteFileWhole(target, "x");
    FAIL() << "nothing was thrown";
  } catch (const RuntimeFailure& failure) {
    EXPECT_NE(failure.Description().find(target.string()), std::string::npos) << failure.Description();
  }
  fs::create_directory(folder.Path() / "locked");
  const fakes::LockedFolder locked(folder.Path() / "locked");
  EXPECT_EQ(FailureOf([&] { WriteFileWhole(folder.Path() / "locked/a.htm", "x"); }), FailureKind::FileAccess);
}

TEST(FileOutput, ALinkIsReplacedAndNotWhatItPointsTo) {
  const fakes::TemporaryFolder folder;
  fs::create_symlink(folder.Write("other", "kept"), folder.Path() / "a.htm");
  WriteFileWhole(folder.Path() / "a.htm", "new");
  EXPECT_EQ(folder.Read("other"), "kept");
  EXPECT_EQ(folder.Read("a.htm"), "new");
}

TEST(FileOutput, AReaderOfTheOldFileKeepsIt) {
  const fakes::TemporaryFolder folder;
  std::ifstream reader(folder.Write("a.htm", "old"));
  WriteFileWhole(folder.Path() / "a.htm", "new text");
  std::string text;
  std::getline(reader, text);
  EXPECT_EQ(text, "old");
}

}  // namespace
}  // namespace vantorium
