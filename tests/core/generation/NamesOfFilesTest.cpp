#include "core/generation/NamesOfFiles.h"

#include <gtest/gtest.h>

namespace vantorium::generation {
namespace {

TEST(NamesOfFiles, FilesWithDifferentNamesOrFoldersAreNotShared) {
  NamesOfFiles files;
  EXPECT_EQ(files.Add("", "a.jpg").other, std::nullopt);
  EXPECT_EQ(files.Add("", "b.jpg").other, std::nullopt);
  EXPECT_EQ(files.Add("Images/", "a.jpg").other, std::nullopt);
  EXPECT_EQ(files.Add("Images/2/", "a.jpg").other, std::nullopt);
  EXPECT_EQ(files.Add("../", "a.jpg").other, std::nullopt);
}

TEST(NamesOfFiles, EqualNamesAreSharedEvenIfTheirCaseDiffers) {
  NamesOfFiles files;
  EXPECT_EQ(files.Add("Images/", "\xC3\x84pfel.jpg").own, "Images/\xC3\x84pfel.jpg");
  EXPECT_EQ(files.Add("Images/", "\xC3\x84pfel.jpg").other, "Images/\xC3\x84pfel.jpg");
  EXPECT_EQ(files.Add("images/", "\xC3\xA4PFEL.jpg").own, "images/\xC3\xA4PFEL.jpg");
  EXPECT_EQ(files.Add("images/", "\xC3\xA4PFEL.JPG").other, "Images/\xC3\x84pfel.jpg");
}

TEST(NamesOfFiles, AFolderMayBeWrittenInDifferentWays) {
  for (const char* folder : {"a/b/", "./a/b/", "/a/b/", "a//b/", "a/x/../b/"}) {
    NamesOfFiles files;
    std::ignore = files.Add("a/b/", "c");
    EXPECT_EQ(files.Add(folder, "c").other, "a/b/c") << folder;
  }
  for (const char* folder : {"", "/", "./", "a/../"}) {
    NamesOfFiles files;
    std::ignore = files.Add("", "c");
    EXPECT_EQ(files.Add(folder, "c").other, "c") << folder;
    EXPECT_EQ(files.Add(folder, "d").own, "d") << folder;
  }
}

}  // namespace
}  // namespace vantorium::generation
