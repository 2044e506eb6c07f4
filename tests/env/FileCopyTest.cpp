#include "env/FileCopy.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"

#include <sys/stat.h>

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;
using fakes::NamesIn;

fs::file_time_type AYearAgo() {
  return fs::file_time_type::clock::now() - std::chrono::hours(24 * 365);
}

TEST(FileCopy, TheCopyHasTheBytesPermissionsAndWriteTimeOfTheSource) {
  const fakes::TemporaryFolder folder;
  for (const std::size_t size : {std::size_t{0}, std::size_t{1}, std::size_t{200'000}}) {
    const auto source = folder.Write("a.jpg", std::string(size, 'x'));
    fs::permissions(source, fs::perms(0640));
    fs::last_write_time(source, AYearAgo());
    CopyFileWhole(source, folder.Path() / "b.jpg", true);
    EXPECT_TRUE(folder.Read("b.jpg") == std::string(size, 'x')) << size;
    EXPECT_EQ(fs::status(folder.Path() / "b.jpg").permissions(), fs::perms(0640));
    EXPECT_EQ(fs::last_write_time(folder.Path() / "b.jpg"), fs::last_write_time(source));
  }
}

TEST(FileCopy, TheCopyOfAReadOnlyFileCanBeReplaced) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "new");
  fs::permissions(source, fs::perms(0444));
  for (int run = 0; run < 2; ++run) CopyFileWhole(source, folder.Path() / "b.jpg", true);
  EXPECT_EQ(fs::status(folder.Path() / "b.jpg").permissions(), fs::perms(0644));
}

TEST(FileCopy, AnExistingTargetIsReplacedOnlyWhenAsked) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "new");
  const auto target = folder.Write("b.jpg", "old and longer");
  EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, target, false); }), FailureKind::FileAccess);
  EXPECT_EQ(folder.Read("b.jpg"), "old and longer");
  CopyFileWhole(source, target, true);
  EXPECT_EQ(folder.Read("b.jpg"), "new");
  CopyFileWhole(source, folder.Path() / "c.jpg", false);
  EXPECT_EQ(folder.Read("c.jpg"), "new");
}

TEST(FileCopy, ADanglingLinkIsAnExistingTarget) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "new");
  const auto target = folder.Path() / "b.jpg";
  fs::create_symlink(folder.Path() / "none", target);
  EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, target, false); }), FailureKind::FileAccess);
  EXPECT_TRUE(fs::is_symlink(target));
}

TEST(FileCopy, AFileCopiedOntoItselfIsUnchanged) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "kept");
  fs::create_hard_link(source, folder.Path() / "hard.jpg");
  fs::create_symlink(source, folder.Path() / "soft.jpg");
  for (const char* name : {"a.jpg", "./a.jpg", "hard.jpg", "soft.jpg"}) {
    CopyFileWhole(source, folder.Path() / name, true);
    EXPECT_EQ(folder.Read("a.jpg"), "kept") << name;
  }
  EXPECT_TRUE(fs::is_symlink(folder.Path() / "soft.jpg"));
}

TEST(FileCopy, OnlyRegularFilesAreCopied) {
  const fakes::TemporaryFolder folder;
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const auto& source : {folder.Path() / "none", folder.Path(), pipe, fs::path(), fs::path("/dev/zero")}) {
    EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, folder.Path() / "b.jpg", true); }), FailureKind::FileAccess)
        << source;
  }
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"pipe"});
}

TEST(FileCopy, AReplacedFileKeepsItsPermissions) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "new");
  const auto target = folder.Write("b.jpg", "old");
  fs::permissions(source, fs::perms(0644));
  fs::permissions(target, fs::perms(0600));
  CopyFileWhole(source, target, true);
  EXPECT_EQ(folder.Read("b.jpg"), "new");
  EXPECT_EQ(fs::status(target).permissions(), fs::perms(0600));
}

TEST(FileCopy, OnlyARegularFileIsReplacedByACopy) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "new");
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, pipe, true); }), FailureKind::FileAccess);
  EXPECT_TRUE(fs::is_fifo(pipe));
}

TEST(FileCopy, OnAFullDiskTheOldTargetStays) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", std::string(5000, 'x'));
  const auto target = folder.Write("b.jpg", "old");
  {
    const fakes::FullDisk full(1000);
    EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, target, true); }), FailureKind::FileAccess);
  }
  EXPECT_EQ(folder.Read("b.jpg"), "old");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a.jpg", "b.jpg"}));
}

TEST(FileCopy, AReadOnlyTargetOrAFolderIsNotReplaced) {
  const fakes::TemporaryFolder folder;
  const auto source = folder.Write("a.jpg", "new");
  const auto target = folder.Write("b.jpg", "old");
  fs::permissions(target, fs::perms(0444));
  fs::create_directory(folder.Path() / "sub");
  EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, target, true); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, folder.Path() / "sub", true); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { CopyFileWhole(source, folder.Path() / "none/b.jpg", true); }), FailureKind::FileAccess);
  EXPECT_EQ(folder.Read("b.jpg"), "old");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a.jpg", "b.jpg", "sub"}));
}

}  // namespace
}  // namespace vantorium::env
