#include "env/TempFolder.h"
#include "env/TempFolderLock.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/TemporaryFolder.h"

#include <csignal>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;

class TempFolderLockTest : public testing::Test {
 protected:
  TempFolderLockTest() { fs::create_directory(place); }

  [[nodiscard]] bool Clear() { return ClearTempFolder("C:", files, loop); }
  [[nodiscard]] static mode_t ModeOf(const fs::path& path) {
    return static_cast<mode_t>(fs::status(path).permissions());
  }

  fakes::TemporaryFolder folder;
  fs::path place = folder.Path() / "VANTORIUM_TEMP";
  fakes::CountingEventLoop loop;
  PathMap paths{{{'C', folder.Path().string()}}};
  RegionalFormats formats{"en_US"};
  mFileFunctions files{paths, formats};
};

TEST_F(TempFolderLockTest, OnlyOneOwnerAtATimeHasTheFolder) {
  {
    const TempFolderLock first(place);
    EXPECT_FALSE(first.IsTakenElsewhere());
    EXPECT_TRUE(TempFolderLock(place).IsTakenElsewhere());
  }
  EXPECT_FALSE(TempFolderLock(place).IsTakenElsewhere());
}

TEST_F(TempFolderLockTest, TheLockLeavesNoFile) {
  const TempFolderLock lock(place);
  EXPECT_TRUE(fs::is_empty(place));
}

TEST_F(TempFolderLockTest, AKilledProcessReleasesTheFolder) {
  int ready[2] = {};
  ASSERT_EQ(::pipe(ready), 0);
  const pid_t child = ::fork();
  ASSERT_GE(child, 0);
  if (child == 0) {
    const TempFolderLock lock(place);
    std::ignore = ::write(ready[1], "x", 1);
    for (;;) ::pause();
  }
  char byte = 0;
  ASSERT_EQ(::read(ready[0], &byte, 1), 1);
  EXPECT_TRUE(TempFolderLock(place).IsTakenElsewhere());
  ::kill(child, SIGKILL);
  ::waitpid(child, nullptr, 0);
  EXPECT_FALSE(TempFolderLock(place).IsTakenElsewhere());
  ::close(ready[0]);
  ::close(ready[1]);
}

TEST_F(TempFolderLockTest, AMissingFolderCannotBeLocked) {
  EXPECT_FALSE(TempFolderLock(folder.Path() / "none").IsTakenElsewhere());
  EXPECT_FALSE(TempFolderLock({}).IsTakenElsewhere());
}

TEST_F(TempFolderLockTest, ALockedFolderIsNotCleared) {
  folder.Write("VANTORIUM_TEMP/Images/a.jpg", "half");
  {
    const TempFolderLock run(place);
    EXPECT_FALSE(Clear());
    EXPECT_EQ(folder.Read("VANTORIUM_TEMP/Images/a.jpg"), "half");
  }
  EXPECT_TRUE(Clear());
  EXPECT_TRUE(fs::is_empty(place));
}

TEST_F(TempFolderLockTest, TheUsersOwnFolderIsNotRefused) {
  EXPECT_EQ(RefusalOfTempFolder(place), "");
  folder.Write("VANTORIUM_TEMP/Images/deep/a.jpg", "x");
  EXPECT_EQ(RefusalOfTempFolder(place), "");
  EXPECT_EQ(RefusalOfTempFolder(folder.Path() / "none"), "");
}

TEST_F(TempFolderLockTest, AFolderThatIsALinkIsRefused) {
  fs::rename(place, folder.Path() / "real");
  fs::create_directory_symlink("real", place);
  EXPECT_EQ(RefusalOfTempFolder(place),
            "The temporary folder is not used, as \"" + place.string() + "\" is a symbolic link.");
}

TEST_F(TempFolderLockTest, AnyLinkInTheFolderIsRefused) {
  folder.Write("stranger/a.jpg", "kept");
  for (const char* link : {"Thumbs", "Images/deep/link"}) {
    for (const char* target : {"stranger", "stranger/a.jpg", "nowhere"}) {
      fs::create_directories((place / link).parent_path());
      fs::create_symlink(folder.Path() / target, place / link);
      EXPECT_EQ(RefusalOfTempFolder(place),
                "The temporary folder is not used, as \"" + (place / link).string() + "\" is a symbolic link.")
          << target;
      fs::remove(place / link);
    }
  }
  EXPECT_EQ(RefusalOfTempFolder(place), "");
}

TEST_F(TempFolderLockTest, AFolderOfAnotherOwnerIsRefused) {
  const auto refusal = [](const fs::path& path) {
    return "The temporary folder is not used, as \"" + path.string() + "\" belongs to another user.";
  };
  if (::geteuid() != 0) {  // only root may change a folder's owner
    EXPECT_EQ(RefusalOfTempFolder("/usr"), refusal("/usr"));
    return;
  }
  fs::create_directory(place / "Images");
  for (const fs::path& given : {place / "Images", place}) {
    ASSERT_EQ(::chown(given.c_str(), 1234, 1234), 0);
    EXPECT_EQ(RefusalOfTempFolder(place), refusal(given));
  }
}

TEST_F(TempFolderLockTest, OtherUsersLoseTheRightToWrite) {
  fs::create_directory(place / "Images");
  fs::permissions(place, fs::perms(0777));
  fs::permissions(place / "Images", fs::perms(0775));
  EXPECT_EQ(RefusalOfTempFolder(place), "");
  EXPECT_EQ(ModeOf(place), 0755U);
  EXPECT_EQ(ModeOf(place / "Images"), 0755U);
}

}  // namespace
}  // namespace vantorium::env
