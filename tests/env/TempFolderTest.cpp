#include "env/TempFolder.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::NamesIn;

class TempFolderTest : public testing::Test {
 protected:
  [[nodiscard]] bool Delete(std::string_view path) { return DeleteFolderTree(path, paths, loop); }
  [[nodiscard]] fs::path Native(const char* name) const { return folder.Path() / name; }
  void WriteFiles(const std::string& below, int count) const {
    for (int n = 0; n < count; ++n) folder.Write(below + "/" + std::to_string(n), "x");
  }

  fakes::TemporaryFolder folder;
  fakes::CountingEventLoop loop;
  PathMap paths{{{'C', folder.Path().string()}}};
  RegionalFormats formats{"en_US"};
  mFileFunctions files{paths, formats};
};

TEST_F(TempFolderTest, TheFolderIsDeletedWithItsContents) {
  folder.Write("x/VANTORIUM_TEMP/a.htm", "x");
  folder.Write("x/VANTORIUM_TEMP/images/deep/.hidden", "x");
  folder.Write("x/kept", "x");
  ASSERT_EQ(::mkfifo(Native("x/VANTORIUM_TEMP/pipe").c_str(), 0600), 0);
  EXPECT_TRUE(Delete("C:\\x\\VANTORIUM_TEMP\\"));
  EXPECT_EQ(NamesIn(Native("x")), std::vector<std::string>{"kept"});
}

TEST_F(TempFolderTest, OneTrailingBackslashMakesNoDifference) {
  for (const char* path :
       {"C:\\VANTORIUM_TEMP", "C:\\VANTORIUM_TEMP\\", "C:\\VANTORIUM_TEMP\\\\", "C:/\\VANTORIUM_TEMP"}) {
    fs::create_directory(Native("VANTORIUM_TEMP"));
    EXPECT_TRUE(Delete(path)) << path;
    EXPECT_FALSE(fs::exists(Native("VANTORIUM_TEMP"))) << path;
  }
}

TEST_F(TempFolderTest, ASubfolderMayBeDeleted) {
  folder.Write("VANTORIUM_TEMP/sub/a", "x");
  folder.Write("VANTORIUM_TEMP/b", "x");
  EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP\\sub"));
  EXPECT_EQ(NamesIn(Native("VANTORIUM_TEMP")), std::vector<std::string>{"b"});
}

TEST_F(TempFolderTest, NoOtherFolderIsDeleted) {
  for (const char* name : {"data", "vantorium_temp", "VANTORIUM_TEMP2", "XVANTORIUM_TEMP", "VANTORIUM_TEMP"}) {
    folder.Write(std::string(name) + "/a", "x");
  }
  fs::create_directory(Native("VANTORIUM_TEMP/sub"));
  for (const char* path :
       {"C:\\data", "C:\\data\\", "C:\\vantorium_temp", "C:\\VANTORIUM_TEMP2", "C:\\XVANTORIUM_TEMP", "C:\\", "C:", "",
        "\\", "VANTORIUM_TEMP", "VANTORIUM_TEMP\\", "C:/VANTORIUM_TEMP", "C:VANTORIUM_TEMP", "\\\\VANTORIUM_TEMP",
        "\\\\server\\VANTORIUM_TEMP", "D:\\VANTORIUM_TEMP"}) {
    EXPECT_FALSE(Delete(path)) << path;
  }
  for (const char* path : {"C:\\VANTORIUM_TEMP\\..\\data", "C:\\VANTORIUM_TEMP\\..",
                           "C:\\VANTORIUM_TEMP\\sub\\..\\..\\data", "C:\\VANTORIUM_TEMP\\../data",
                           "C:\\VANTORIUM_TEMP\\sub/../../data", "C:/VANTORIUM_TEMP/..\\VANTORIUM_TEMP\\x"}) {
    EXPECT_FALSE(Delete(path)) << path;
  }
  EXPECT_FALSE(Delete(std::string_view("C:\\VANTORIUM_TEMP\\sub\0x", 23)));
  for (const char* name : {"data", "vantorium_temp", "VANTORIUM_TEMP2", "XVANTORIUM_TEMP", "VANTORIUM_TEMP"}) {
    EXPECT_TRUE(fs::exists(Native(name) / "a")) << name;
  }
  EXPECT_TRUE(fs::exists(Native("VANTORIUM_TEMP/sub")));
  EXPECT_EQ(loop.turns, 0);
}

TEST_F(TempFolderTest, AMissingFolderIsNotDeleted) {
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_FALSE(Delete("C:\\none\\VANTORIUM_TEMP"));
  fs::create_directory(Native("VANTORIUM_TEMP"));
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP\\none"));
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP\\none\\deeper"));
}

TEST_F(TempFolderTest, AFileOfThatNameIsNotAFolder) {
  folder.Write("VANTORIUM_TEMP", "x");
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(folder.Read("VANTORIUM_TEMP"), "x");
}

TEST_F(TempFolderTest, AReadOnlyFileIsDeletedToo) {
  folder.Write("VANTORIUM_TEMP/a", "x");
  fs::permissions(Native("VANTORIUM_TEMP/a"), fs::perms(0400));
  EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP"));
}

TEST_F(TempFolderTest, ALinkInTheFolderIsRemovedNotItsTarget) {
  folder.Write("data/a", "kept");
  folder.Write("VANTORIUM_TEMP/sub/x", "x");
  fs::create_directory_symlink(Native("data"), Native("VANTORIUM_TEMP/link"));
  fs::create_directory_symlink("../../data", Native("VANTORIUM_TEMP/sub/link"));
  fs::create_symlink(Native("data/a"), Native("VANTORIUM_TEMP/file"));
  fs::create_symlink("/none", Native("VANTORIUM_TEMP/broken"));
  EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(folder.Read("data/a"), "kept");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"data"});
}

TEST_F(TempFolderTest, ALinkOfThatNameIsRemovedNotItsTarget) {
  folder.Write("data/sub/a", "kept");
  fs::create_directory_symlink(Native("data"), Native("VANTORIUM_TEMP"));
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP\\sub")) << "the path leads through the link";
  EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(folder.Read("data/sub/a"), "kept");
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"data"});
}

TEST_F(TempFolderTest, LinksAboveTheFolderAreFollowed) {
  folder.Write("data/VANTORIUM_TEMP/a", "x");
  fs::create_directory_symlink(Native("data"), Native("link"));
  EXPECT_TRUE(Delete("C:\\link\\VANTORIUM_TEMP"));
  EXPECT_TRUE(NamesIn(Native("data")).empty());
}

TEST_F(TempFolderTest, AFolderReplacedByALinkDuringTheDeletionIsNotFollowed) {
  folder.Write("data/a", "kept");
  fs::create_directories(Native("VANTORIUM_TEMP/sub"));
  loop.onTurn = [&](int) {
    fs::rename(Native("VANTORIUM_TEMP/sub"), Native("moved"));
    fs::create_directory_symlink(Native("data"), Native("VANTORIUM_TEMP/sub"));
  };
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(folder.Read("data/a"), "kept");
}

TEST_F(TempFolderTest, AFileThatCannotBeDeletedEndsTheDeletion) {
  folder.Write("VANTORIUM_TEMP/a", "x");
  const fakes::LockedFolder locked(Native("VANTORIUM_TEMP"));
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(folder.Read("VANTORIUM_TEMP/a"), "x");
}

TEST_F(TempFolderTest, AFolderThatCannotBeDeletedEndsTheDeletion) {
  folder.Write("VANTORIUM_TEMP/sub/a", "x");
  const fakes::LockedFolder locked(Native("VANTORIUM_TEMP/sub"));
  EXPECT_FALSE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(folder.Read("VANTORIUM_TEMP/sub/a"), "x");
}

TEST_F(TempFolderTest, TheEventLoopHasATurnAfter201Files) {
  const std::pair<int, int> cases[] = {{0, 0}, {200, 0}, {201, 1}, {401, 1}, {402, 2}};
  for (const auto& [count, turns] : cases) {
    fs::create_directory(Native("VANTORIUM_TEMP"));
    WriteFiles("VANTORIUM_TEMP", count);
    loop.turns = 0;
    EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP")) << count;
    EXPECT_EQ(loop.turns, turns) << count;
  }
}

TEST_F(TempFolderTest, TheEventLoopHasATurnBeforeEachSubfolderWhichCountsItsOwnFiles) {
  fs::create_directories(Native("VANTORIUM_TEMP/a/b"));
  fs::create_directories(Native("VANTORIUM_TEMP/c"));
  WriteFiles("VANTORIUM_TEMP", 150);
  WriteFiles("VANTORIUM_TEMP/a", 150);
  EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP"));
  EXPECT_EQ(loop.turns, 3);
}

TEST_F(TempFolderTest, AVeryDeepTreeIsDeletedOrRefused) {
  auto below = folder.Path() / "VANTORIUM_TEMP";
  for (int depth = 0; depth < 300; ++depth) below /= "d";
  fs::create_directories(below);
  EXPECT_TRUE(Delete("C:\\VANTORIUM_TEMP"));
}

TEST_F(TempFolderTest, ClearingEmptiesTheFolder) {
  folder.Write("temp/VANTORIUM_TEMP/sub/a", "x");
  folder.Write("temp/kept", "x");
  for (const char* location : {"C:\\temp", "C:\\temp\\"}) {
    EXPECT_TRUE(ClearTempFolder(location, files, loop)) << location;
    EXPECT_EQ(NamesIn(Native("temp")), (std::vector<std::string>{"VANTORIUM_TEMP", "kept"}));
    EXPECT_TRUE(NamesIn(Native("temp/VANTORIUM_TEMP")).empty());
  }
}

TEST_F(TempFolderTest, ADriveIsALocation) {
  folder.Write("VANTORIUM_TEMP/a", "x");
  EXPECT_TRUE(ClearTempFolder("C:", files, loop));
  EXPECT_TRUE(NamesIn(Native("VANTORIUM_TEMP")).empty());
}

TEST_F(TempFolderTest, ClearingCreatesAMissingFolder) {
  EXPECT_FALSE(ClearTempFolder("C:\\temp", files, loop));
  EXPECT_TRUE(fs::is_directory(Native("temp/VANTORIUM_TEMP")));
}

TEST_F(TempFolderTest, AnEmptyLocationClearsNothing) {
  folder.Write("VANTORIUM_TEMP/a", "x");
  EXPECT_FALSE(ClearTempFolder("", files, loop));
  EXPECT_EQ(NamesIn(Native("VANTORIUM_TEMP")), std::vector<std::string>{"a"});
}

TEST_F(TempFolderTest, ALocationWithoutADriveOrOnAServerClearsNothing) {
  EXPECT_FALSE(ClearTempFolder("D:\\temp", files, loop));
  EXPECT_FALSE(ClearTempFolder("\\\\server\\share", files, loop));
  EXPECT_TRUE(NamesIn(folder.Path()).empty());
}

TEST_F(TempFolderTest, ClearingReplacesALinkByAFolder) {
  folder.Write("data/a", "kept");
  fs::create_directory_symlink(Native("data"), Native("VANTORIUM_TEMP"));
  EXPECT_TRUE(ClearTempFolder("C:\\", files, loop));
  EXPECT_FALSE(fs::is_symlink(Native("VANTORIUM_TEMP")));
  EXPECT_TRUE(fs::is_directory(Native("VANTORIUM_TEMP")));
  EXPECT_EQ(folder.Read("data/a"), "kept");
}

TEST_F(TempFolderTest, ClearingThatFailsLeavesTheFolder) {
  folder.Write("temp/VANTORIUM_TEMP/a", "x");
  const fakes::LockedFolder locked(Native("temp/VANTORIUM_TEMP"));
  EXPECT_FALSE(ClearTempFolder("C:\\temp", files, loop));
  EXPECT_TRUE(fs::is_directory(Native("temp/VANTORIUM_TEMP")));
}

}  // namespace
}  // namespace vantorium::env
