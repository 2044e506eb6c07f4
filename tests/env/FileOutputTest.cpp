#include "env/FileDescriptor.h"
#include "env/FileOutput.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fakes/WorkingFolder.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;
using fakes::NamesIn;

TEST(FileOutput, TheTargetHoldsTheBytes) {
  const fakes::TemporaryFolder folder;
  for (const auto write : {WriteFileWhole, WriteKeptFile}) {
    for (const std::string& bytes : {std::string(), std::string("a\0b\r\n", 5), std::string(3'000'000, 'x')}) {
      write(folder.Path() / "a.htm", bytes);
      EXPECT_TRUE(folder.Read("a.htm") == bytes) << bytes.size();
    }
  }
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"a.htm"});
}

TEST(FileOutput, ATargetWithoutAFolderIsInTheWorkingFolder) {
  const fakes::TemporaryFolder folder;
  const fakes::WorkingFolder working(folder.Path());
  WriteFileWhole("a.htm", "x");
  EXPECT_EQ(folder.Read("a.htm"), "x");
}

TEST(FileOutput, OnAFullDiskTheOldFileStaysAndNothingElse) {
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

TEST(FileOutput, AReadOnlyFileIsNotReplacedEvenByRoot) {
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

TEST(FileOutput, AFolderIsNotATarget) {
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

TEST(FileOutput, ALinkIsReplacedNotItsTarget) {
  const fakes::TemporaryFolder folder;
  fs::create_symlink(folder.Write("other", "kept"), folder.Path() / "a.htm");
  WriteFileWhole(folder.Path() / "a.htm", "new");
  EXPECT_EQ(folder.Read("other"), "kept");
  EXPECT_EQ(folder.Read("a.htm"), "new");
}

TEST(FileOutput, AKeptFileIsWrittenThroughItsLinks) {
  const fakes::TemporaryFolder folder;
  folder.Write("real/a.ini", "old");
  fs::create_symlink("real/a.ini", folder.Path() / "one");
  fs::create_symlink("one", folder.Path() / "two");
  fs::create_symlink("real/new.ini", folder.Path() / "dangling");
  WriteKeptFile(folder.Path() / "two", "new");
  WriteKeptFile(folder.Path() / "dangling", "made");
  for (const char* link : {"one", "two", "dangling"}) EXPECT_TRUE(fs::is_symlink(folder.Path() / link)) << link;
  EXPECT_EQ(folder.Read("real/a.ini"), "new");
  EXPECT_EQ(folder.Read("real/new.ini"), "made");
  EXPECT_EQ(NamesIn(folder.Path() / "real"), (std::vector<std::string>{"a.ini", "new.ini"}));
}

TEST(FileOutput, AKeptFileRemovesWhatAKilledProgramLeftInItsFolder) {
  const fakes::TemporaryFolder folder;
  folder.Write(".vantorium-4194304-0", "half a project");  // no process has this ID
  folder.Write("other.gpj", "kept");
  WriteKeptFile(folder.Path() / "a.gpj", "new");
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"a.gpj", "other.gpj"}));
}

TEST(FileOutput, OnlyRegularFilesAreReplaced) {
  const fakes::TemporaryFolder folder;
  const auto pipe = folder.Path() / "pipe";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  const FileDescriptor socket(::socket(AF_UNIX, SOCK_STREAM, 0));
  sockaddr_un address = {};
  address.sun_family = AF_UNIX;
  (folder.Path() / "socket").string().copy(address.sun_path, sizeof address.sun_path - 1);
  ASSERT_EQ(::bind(socket.Get(), reinterpret_cast<const sockaddr*>(&address), sizeof address), 0);
  fs::create_symlink("pipe", folder.Path() / "link");
  fs::create_directory(folder.Path() / "sub");
  for (const char* name : {"pipe", "socket", "sub"}) {
    EXPECT_EQ(FailureOf([&] { WriteFileWhole(folder.Path() / name, "x"); }), FailureKind::FileAccess) << name;
    EXPECT_EQ(FailureOf([&] { WriteKeptFile(folder.Path() / name, "x"); }), FailureKind::FileAccess) << name;
  }
  EXPECT_EQ(FailureOf([&] { WriteKeptFile(folder.Path() / "link", "x"); }), FailureKind::FileAccess);
  EXPECT_EQ(FailureOf([&] { WriteKeptFile("/dev/null", "x"); }), FailureKind::FileAccess);
  EXPECT_TRUE(fs::is_fifo(pipe));
  EXPECT_TRUE(fs::is_socket(folder.Path() / "socket"));
  EXPECT_TRUE(fs::is_character_file("/dev/null"));
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"link", "pipe", "socket", "sub"}));
}

TEST(FileOutput, OwnerGroupAndPermissionsOfTheOldFileStay) {
  const bool isRoot = ::geteuid() == 0;  // only root may change a file's owner
  const uid_t owner = isRoot ? 1234 : ::geteuid();
  const gid_t group = isRoot ? 2345 : ::getegid();
  const fakes::TemporaryFolder folder;
  const auto target = folder.Write("vantorium.ini", "old");
  ASSERT_EQ(::chown(target.c_str(), owner, group), 0);
  fs::permissions(target, fs::perms(0640));
  for (const auto write : {WriteFileWhole, WriteKeptFile}) {
    write(target, "new");
    struct stat status = {};
    ASSERT_EQ(::stat(target.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, owner);
    EXPECT_EQ(status.st_gid, group);
    EXPECT_EQ(status.st_mode & 07777U, 0640U);
  }
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
}  // namespace vantorium::env
