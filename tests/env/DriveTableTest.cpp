#include "env/DriveTable.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium::env {
namespace {

using Drives = std::map<char, std::string>;

TEST(DriveTable, EachLetterOfTheSectionHasItsFolder) {
  EXPECT_EQ(
      DrivesOf("[FOLDERS]\r\nProjectFolder=\"C:\\x\"\r\n[DRIVES]\r\nC=\"/home/me\"\r\nd=/srv/photos\r\nZ=\"/\"\r\n"),
      (Drives{{'C', "/home/me"}, {'D', "/srv/photos"}, {'Z', "/"}}));
  EXPECT_EQ(DrivesOf(" [drives] \nC=\"/a b/\xC3\xA4\""), (Drives{{'C', "/a b/\xC3\xA4"}}));
}

TEST(DriveTable, AKeyOfAnotherSectionIsNotADrive) {
  EXPECT_EQ(DrivesOf("C=\"/zero\"\n[A]\nC=\"/one\"\n[DRIVES]\nD=\"/two\"\n[B]\nC=\"/three\"\n"),
            (Drives{{'D', "/two"}}));
  EXPECT_EQ(DrivesOf("[DRIVES]\n[B]\nC=\"/three\"\n"), Drives());
  EXPECT_EQ(DrivesOf("C=\"/last line\""), Drives());
}

TEST(DriveTable, TheFirstFolderOfALetterIsUsed) {
  EXPECT_EQ(DrivesOf("[DRIVES]\nC=\"/one\"\nc=\"/two\"\n[DRIVES]\nC=\"/three\"\nD=\"/four\"\n"),
            (Drives{{'C', "/one"}, {'D', "/four"}}));
}

TEST(DriveTable, KeysThatAreNotLettersAndRelativeFoldersAreIgnored) {
  for (const char* line : {"CD=\"/a\"", "1=\"/a\"", "=\"/a\"", "C", "C:=\"/a\"", " C=\"/a\"", "C =\"/a\"", ";C=\"/a\"",
                           "C=", "C=\"", "C=\"\"", "C=\"a/b\"", "C=\"C:\\a\"", "C=\"~\"", "C= \"/a\"", "\xC3=\"/a\""}) {
    EXPECT_EQ(DrivesOf(std::string("[DRIVES]\n") + line), Drives()) << line;
  }
  EXPECT_EQ(DrivesOf(""), Drives());
}

TEST(DriveTable, AFolderWithANulIsIgnored) {
  EXPECT_EQ(DrivesOf("[DRIVES]\nC=\"/a" + std::string(1, 0) + "/b\"\nD=\"/c\"\n"), (Drives{{'D', "/c"}}));
}

std::string FolderOfC(const PathMap& paths) {
  return paths.ToNative("C:\\a").value_or("none").string();
}

TEST(DriveTable, DrivesAreReadFromAFile) {
  const fakes::TemporaryFolder folder;
  const auto file = folder.Write("vantorium.ini", "[DRIVES]\nC=\"/srv\"\n");
  EXPECT_EQ(FolderOfC(ReadPathMap(file, "/home/me")), "/srv/a");
}

TEST(DriveTable, WithoutAFileOrItsSectionTheUsualDrivesAreUsed) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(FolderOfC(ReadPathMap(folder.Path() / "none", "/home/me")), "/home/me/a");
  EXPECT_EQ(FolderOfC(ReadPathMap(folder.Write("vantorium.ini", "[FOLDERS]\n"), "/home/me")), "/home/me/a");
}

TEST(DriveTable, AnUnreadableFileGivesNoDrives) {
  const fakes::TemporaryFolder folder;
  const PathMap paths = ReadPathMap(folder.Path(), "/home/me");
  for (const char* path : {"C:\\a", "Z:\\a", "C:", "Z:"}) EXPECT_EQ(paths.ToNative(path), std::nullopt) << path;
  EXPECT_EQ(paths.ToNative("\\a"), "/a");
  EXPECT_EQ(paths.ToText("/home/me/a"), "\\home\\me\\a");
}

}  // namespace
}  // namespace vantorium::env
