#include "env/mFileFunctions.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fakes/WorkingFolder.h"

#include <fcntl.h>
#include <sys/stat.h>

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::FailureOf;

constexpr std::uint64_t kTB = std::uint64_t{1} << 40;

TEST(FileSizeText, ASizeIsTruncatedToTheUnitThatLeavesItBelow1024) {
  const std::pair<std::uint64_t, const char*> cases[] = {{0, "0 Bytes"},
                                                         {1, "1 Bytes"},
                                                         {1023, "1023 Bytes"},
                                                         {1024, "1KB"},
                                                         {2047, "1KB"},
                                                         {2048, "2KB"},
                                                         {1024 * 1024 - 1, "1023KB"},
                                                         {1024 * 1024, "1MB"},
                                                         {std::uint64_t{5} << 30, "5GB"},
                                                         {5 * kTB, "5TB"},
                                                         {1023 * kTB, "1023TB"},
                                                         {1024 * kTB, "1?"},
                                                         {~std::uint64_t{0}, "15?"}};
  for (const auto& [size, text] : cases) EXPECT_EQ(FileSizeText(size), text) << size;
}

TEST(FileSizeKey, ASizeHasTwentyDigits) {
  EXPECT_EQ(FileSizeKey(0), "00000000000000000000");
  EXPECT_EQ(FileSizeKey(1024), "00000000000000001024");
  EXPECT_EQ(FileSizeKey(5 * kTB), "00000005497558138880");
  EXPECT_EQ(FileSizeKey(~std::uint64_t{0}), "18446744073709551615");
}

class mFileFunctionsTest : public testing::Test {
 protected:
  void SetWriteTime(const char* name, time_t seconds, long nanoseconds = 0) const {
    const timespec times[] = {{seconds, nanoseconds}, {seconds, nanoseconds}};
    ASSERT_EQ(::utimensat(AT_FDCWD, (folder.Path() / name).c_str(), times, 0), 0);
  }

  fakes::TemporaryFolder folder;
  PathMap paths{{{'C', folder.Path().string()}}};
  RegionalFormats formats{"de_DE"};
  mFileFunctions files{paths, formats};
};

TEST_F(mFileFunctionsTest, TheSizeOfAFileIsFormatted) {
  folder.Write("a.jpg", std::string(2047, 'x'));
  EXPECT_EQ(files.GetFileSizeText("C:\\a.jpg"), "1KB");
  EXPECT_EQ(files.GetFileSizeText("C:\\a.jpg", true), "00000000000000002047");
  folder.Write("sub/empty", "");
  EXPECT_EQ(files.GetFileSizeText("c:/sub/empty"), "0 Bytes");
}

TEST_F(mFileFunctionsTest, TheSizeOfAVeryLargeFileIsFormatted) {
  folder.Write("large", "");
  fs::resize_file(folder.Path() / "large", std::uintmax_t{5} << 30);
  EXPECT_EQ(files.GetFileSizeText("C:\\large"), "5GB");
  EXPECT_EQ(files.GetFileSizeText("C:\\large", true), "00000000005368709120");
}

TEST_F(mFileFunctionsTest, AMissingFileHasNoSize) {
  fs::create_directory(folder.Path() / "sub");
  for (const char* path : {"C:\\none", "C:\\sub", "D:\\a", "\\\\server\\share\\a", ""}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = files.GetFileSizeText(path); }), FailureKind::FileNotFound) << path;
    EXPECT_EQ(FailureOf([&] { std::ignore = files.GetFileSizeText(path, true); }), FailureKind::FileNotFound) << path;
  }
}

TEST_F(mFileFunctionsTest, AMissingFileHasNoTime) {
  for (const char* path : {"C:\\none", "D:\\a", "\\\\server\\share\\a", ""}) {
    EXPECT_EQ(FailureOf([&] { std::ignore = files.GetFileWriteTime(path); }), FailureKind::FileTimeNotFound) << path;
    EXPECT_EQ(FailureOf([&] { std::ignore = files.GetFileDateTimeText(path, true); }), FailureKind::FileTimeNotFound);
    EXPECT_EQ(FailureOf([&] { std::ignore = files.GetFileDateTimeText(path, false, 9); }),
              FailureKind::FileTimeNotFound);
  }
}

TEST_F(mFileFunctionsTest, TheWriteTimeCountsHundredsOfNanoseconds) {
  folder.Write("a.jpg", "x");
  SetWriteTime("a.jpg", 0, 1200);
  EXPECT_EQ(files.GetFileWriteTime("C:\\a.jpg").ticks, 116'444'736'000'000'012);
}

TEST_F(mFileFunctionsTest, TheTimeOfAFileIsUtc) {
  folder.Write("a.jpg", "x");
  SetWriteTime("a.jpg", 1'000'000'000);
  EXPECT_EQ(files.GetFileDateTimeText("C:\\a.jpg", true), "20010909 01:46:40");
  EXPECT_EQ(files.GetFileDateTimeText("C:\\a.jpg", true, 3), "20010909 01:46:40");
  const char* texts[] = {"09.09.01", "Sonntag, 9. September 2001", "01:46", "01:46:40"};
  for (int kind = 0; kind < 4; ++kind) EXPECT_EQ(files.GetFileDateTimeText("C:\\a.jpg", false, kind), texts[kind]);
}

TEST_F(mFileFunctionsTest, AnUnknownKindOrAnInvalidTimeHasNoText) {
  for (const int kind : {-1, 4, 1000}) EXPECT_EQ(files.FormatFileTime({0}, kind), "") << kind;
  EXPECT_EQ(files.FormatFileTime({-1}, 0), "");
  EXPECT_EQ(files.FormatFileTime({0}, 0), "01.01.01");
}

TEST_F(mFileFunctionsTest, AFileWithAnExtremeTimeHasATime) {
  folder.Write("a.jpg", "x");
  for (const time_t seconds : {time_t{-20'000'000'000}, time_t{20'000'000'000}, time_t{1} << 60, -(time_t{1} << 60)}) {
    SetWriteTime("a.jpg", seconds);
    EXPECT_FALSE(files.GetFileDateTimeText("C:\\a.jpg", true).empty()) << seconds;
  }
}

TEST_F(mFileFunctionsTest, AFileAndAFolderExist) {
  folder.Write("sub/a.jpg", "x");
  for (const char* path : {"C:\\sub", "C:\\sub\\", "C:\\sub\\a.jpg", "c:/sub/a.jpg", "C:", "C:\\", "\\"}) {
    EXPECT_TRUE(files.PathExists(path)) << path;
  }
  for (const char* path : {"C:\\none", "C:\\sub\\a.jpg\\b", "D:\\", "\\\\server\\share", "", "C:\\su*"}) {
    EXPECT_FALSE(files.PathExists(path)) << path;
  }
  EXPECT_FALSE(files.PathExists("C:\\" + std::string(5000, 'x')));
}

TEST_F(mFileFunctionsTest, FileExistsAcceptsWildcardsInTheLastPart) {
  folder.Write("sub/a[1].jpg", "x");
  for (const char* pattern :
       {"C:\\sub\\a[1].jpg", "C:\\sub\\*.jpg", "C:\\sub\\a[1]*", "C:\\sub\\?[1].jpg", "C:\\su?", "C:\\sub\\*"}) {
    EXPECT_TRUE(files.FileExists(pattern)) << pattern;
  }
  for (const char* pattern : {"C:\\sub\\*.png", "C:\\sub\\???", "C:\\s*b\\a[1].jpg", "C:\\none\\*",
                              "C:\\sub\\a[1].jpg\\*", "D:\\*", "\\\\server\\share\\*", ""}) {
    EXPECT_FALSE(files.FileExists(pattern)) << pattern;
  }
}

TEST_F(mFileFunctionsTest, FileExistsMatchesEverythingWithStarDotStar) {
  folder.Write("sub/noextension", "x");
  fs::create_directory(folder.Path() / "empty");
  EXPECT_TRUE(files.FileExists("C:\\sub\\*.*"));
  EXPECT_TRUE(files.FileExists("C:\\empty\\*.*")) << "the folder's own entries are there";
  EXPECT_TRUE(files.FileExists("C:\\empty\\*"));
  EXPECT_FALSE(files.FileExists("C:\\empty\\*.jpg"));
  EXPECT_FALSE(files.FileExists("C:\\none\\*.*"));
}

TEST_F(mFileFunctionsTest, FileExistsFindsNothingAfterATrailingSeparator) {
  fs::create_directory(folder.Path() / "sub");
  EXPECT_TRUE(files.FileExists("C:\\sub"));
  EXPECT_FALSE(files.FileExists("C:\\sub\\"));
  EXPECT_FALSE(files.FileExists("C:\\"));
}

TEST_F(mFileFunctionsTest, CopyLocalFileReturnsWhetherItSucceeded) {
  folder.Write("a.jpg", "new");
  folder.Write("b.jpg", "old");
  EXPECT_FALSE(files.CopyLocalFile("C:\\a.jpg", "C:\\b.jpg", false));
  EXPECT_EQ(folder.Read("b.jpg"), "old");
  EXPECT_TRUE(files.CopyLocalFile("C:\\a.jpg", "C:\\b.jpg", true));
  EXPECT_EQ(folder.Read("b.jpg"), "new");
  EXPECT_TRUE(files.CopyLocalFile("C:\\a.jpg", "C:\\a.jpg", true));
  for (const char* path : {"C:\\none", "D:\\a", "\\\\server\\a", "", "C:\\"}) {
    EXPECT_FALSE(files.CopyLocalFile(path, "C:\\c.jpg", true)) << path;
    EXPECT_FALSE(files.CopyLocalFile("C:\\a.jpg", std::string(path) + "\\x\\y", true)) << path;
  }
}

TEST_F(mFileFunctionsTest, TheTimesOfAFileAreCopiedToAnother) {
  folder.Write("a.jpg", "x");
  folder.Write("b.jpg", "x");
  SetWriteTime("a.jpg", 1'000'000'000, 500);
  EXPECT_TRUE(files.CopyFileTimes("C:\\a.jpg", "C:\\b.jpg"));
  EXPECT_EQ(files.GetFileWriteTime("C:\\b.jpg"), files.GetFileWriteTime("C:\\a.jpg"));
  EXPECT_FALSE(files.CopyFileTimes("C:\\none", "C:\\b.jpg"));
  EXPECT_FALSE(files.CopyFileTimes("C:\\a.jpg", "C:\\none"));
  EXPECT_FALSE(files.CopyFileTimes("C:\\a.jpg", "D:\\b.jpg"));
}

TEST_F(mFileFunctionsTest, MakePathCreatesTheWholeChain) {
  for (const char* path : {"C:\\a\\b\\c", "C:\\d\\e\\", "C:f", "C:/g/h", "C:\\a\\b\\c", "c:\\\xC3\xA4\\b c"}) {
    EXPECT_TRUE(files.MakePath(path)) << path;
    EXPECT_TRUE(fs::is_directory(*paths.ToNative(path))) << path;
  }
}

TEST_F(mFileFunctionsTest, MakePathSucceedsEvenIfNothingCanBeCreated) {
  folder.Write("file", "x");
  for (const char* path : {"D:\\a\\b", "\\\\server\\share\\a\\b", "\\\\server", "C:\\file\\a", "", "C:", "\\"}) {
    EXPECT_TRUE(files.MakePath(path)) << path;
  }
  EXPECT_TRUE(files.MakePath("C:\\" + std::string(5000, 'x')));
  EXPECT_EQ(fakes::NamesIn(folder.Path()), std::vector<std::string>{"file"});
}

TEST_F(mFileFunctionsTest, MakePathOfATextWithoutADriveIsInTheWorkingFolder) {
  const fakes::WorkingFolder working(folder.Path());
  EXPECT_TRUE(files.MakePath("a\\b"));
  EXPECT_TRUE(files.MakePath(":"));
  EXPECT_TRUE(fs::is_directory(folder.Path() / "a/b"));
  EXPECT_TRUE(fs::is_directory(folder.Path() / ":"));
}

TEST_F(mFileFunctionsTest, MakePathFailsIfTheTextIsNotAPath) {
  EXPECT_FALSE(files.MakePath(std::string_view("C:\\a\0b", 6)));
  EXPECT_TRUE(fakes::NamesIn(folder.Path()).empty());
}

TEST_F(mFileFunctionsTest, OnlyFilesAndLinksAreDeleted) {
  folder.Write("sub/a.jpg", "x");
  fs::permissions(folder.Path() / "sub/a.jpg", fs::perms(0444));
  fs::create_symlink(folder.Path() / "sub", folder.Path() / "link");
  for (const char* path : {"C:\\sub\\a.jpg", "C:\\sub", "C:\\link", "C:\\none", "D:\\a", ""})
    files.DeleteLocalFile(path);
  EXPECT_EQ(fakes::NamesIn(folder.Path()), std::vector<std::string>{"sub"});
  EXPECT_TRUE(fakes::NamesIn(folder.Path() / "sub").empty());
}

}  // namespace
}  // namespace vantorium::env
