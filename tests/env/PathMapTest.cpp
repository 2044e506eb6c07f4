#include "env/PathMap.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fakes/WorkingFolder.h"

namespace vantorium::env {
namespace {

const std::map<char, std::string> kDrives = {
    {'C', "/home/me"}, {'D', "/home/me/photos/"}, {'E', "/home/me/photos"}, {'Z', "/"}};

TEST(PathMap, ADriveLetterIsReplacedByItsFolder) {
  const PathMap map(kDrives);
  const std::pair<const char*, const char*> cases[] = {{"C:\\photos\\a.jpg", "/home/me/photos/a.jpg"},
                                                       {"c:\\a.jpg", "/home/me/a.jpg"},
                                                       {"C:/photos/a.jpg", "/home/me/photos/a.jpg"},
                                                       {"C:a.jpg", "/home/me/a.jpg"},
                                                       {"C:", "/home/me/"},
                                                       {"C:\\", "/home/me/"},
                                                       {"D:\\a.jpg", "/home/me/photos/a.jpg"},
                                                       {"Z:\\etc", "/etc"},
                                                       {"Z:\\", "/"},
                                                       {"C:\\\xC3\xA4 b.jpg", "/home/me/\xC3\xA4 b.jpg"}};
  for (const auto& [text, native] : cases) EXPECT_EQ(map.ToNative(text), std::filesystem::path(native)) << text;
}

TEST(PathMap, OneLeadingSeparatorIsTheRootAndNoneTheWorkingFolder) {
  const PathMap map(kDrives);
  EXPECT_EQ(map.ToNative("\\etc\\fonts"), std::filesystem::path("/etc/fonts"));
  EXPECT_EQ(map.ToNative("/etc/fonts"), std::filesystem::path("/etc/fonts"));
  EXPECT_EQ(map.ToNative("a\\b"), std::filesystem::path("a/b"));
  EXPECT_EQ(map.ToNative(""), std::filesystem::path());
  EXPECT_EQ(map.ToNative("1:\\a"), std::filesystem::path("1:/a"));
}

TEST(PathMap, APathOnAnUnknownDriveHasNoNativePath) {
  const PathMap map({{'C', "/home/me"}});
  for (const char* text :
       {"D:\\a", "z:", "\\\\server\\share\\a", "//server/share", "\\/server", "\\\\", "\\\\?\\C:\\a"}) {
    EXPECT_EQ(map.ToNative(text), std::nullopt) << text;
  }
  EXPECT_EQ(map.ToNative(std::string_view("C:\\a\0b", 6)), std::nullopt);
}

TEST(PathMap, WithoutATableTheDrivesAreTheHomeFolderAndTheRoot) {
  const PathMap map({}, "/home/me");
  EXPECT_EQ(map.ToNative("C:\\a"), std::filesystem::path("/home/me/a"));
  EXPECT_EQ(map.ToNative("Z:\\a"), std::filesystem::path("/a"));
  EXPECT_EQ(map.ToNative("D:\\a"), std::nullopt);
  EXPECT_EQ(map.ToText("/home/me/a"), "C:\\a");
  EXPECT_EQ(map.ToText("/etc"), "Z:\\etc");
}

TEST(PathMap, ANativePathIsOnTheDriveOfItsLongestPrefix) {
  const PathMap map(kDrives);
  const std::pair<const char*, const char*> cases[] = {{"/home/me/a.jpg", "C:\\a.jpg"},
                                                       {"/home/me/photos/a.jpg", "D:\\a.jpg"},
                                                       {"/home/me/photos", "D:"},
                                                       {"/home/me/photos2/a", "C:\\photos2\\a"},
                                                       {"/home/meg/a", "Z:\\home\\meg\\a"},
                                                       {"/", "Z:\\"},
                                                       {"/home/me/", "C:\\"}};
  for (const auto& [native, text] : cases) EXPECT_EQ(map.ToText(native), text) << native;
}

TEST(PathMap, ANativePathOnNoDriveIsBelowTheRoot) {
  const PathMap map({{'C', "/home/me"}});
  EXPECT_EQ(map.ToText("/etc/fonts"), "\\etc\\fonts");
  EXPECT_EQ(map.ToText("/home"), "\\home");
}

TEST(PathMap, ConvertingAPathToTextAndBackGivesTheSamePath) {
  const PathMap maps[] = {PathMap(kDrives), PathMap({}, "/home/me"), PathMap({{'X', "/srv"}})};
  for (const PathMap& map : maps) {
    for (const char* native : {"/", "/srv", "/srv/a b/c.jpg", "/home/me/photos/a.jpg", "/home/me/x/\xC3\xA4", "/h"}) {
      const auto back = map.ToNative(map.ToText(native));
      ASSERT_TRUE(back) << native;
      EXPECT_EQ((*back / "").lexically_normal(), (std::filesystem::path(native) / "").lexically_normal()) << native;
    }
  }
}

TEST(PathMap, TypedPathTextIsKeptAndTypedNativePathsAreConverted) {
  const PathMap map(kDrives);
  EXPECT_EQ(map.ToTextFromUser("C:\\photos"), "C:\\photos");
  EXPECT_EQ(map.ToTextFromUser("q:/photos"), "q:\\photos");
  EXPECT_EQ(map.ToTextFromUser("\\\\server\\share"), "\\\\server\\share");
  EXPECT_EQ(map.ToTextFromUser("/home/me/photos/../a.jpg"), "C:\\a.jpg");
  EXPECT_EQ(map.ToTextFromUser("/home/me//a/./b"), "C:\\a\\b");
  const std::string here = map.ToText(std::filesystem::current_path());
  EXPECT_EQ(map.ToTextFromUser("a/b.jpg"), here + (here.ends_with('\\') ? "" : "\\") + "a\\b.jpg");
}

TEST(PathMap, AnEmptyTypedTextStaysEmpty) {
  EXPECT_EQ(PathMap(kDrives).ToTextFromUser(""), "");
}

TEST(PathMap, TheSurfaceFormOfAPlaceIsItsNativePath) {
  const PathMap map({}, "/home/me");
  const std::pair<const char*, const char*> cases[] = {{"C:\\photos\\a.jpg", "/home/me/photos/a.jpg"},
                                                       {"c:/photos/a.jpg", "/home/me/photos/a.jpg"},
                                                       {"C:a.jpg", "/home/me/a.jpg"},
                                                       {"C:\\photos\\", "/home/me/photos/"},
                                                       {"C:\\", "/home/me/"},
                                                       {"C:", "/home/me"},
                                                       {"C:\\a:", "/home/me/a:"},
                                                       {"Z:\\home\\me\\a b.jpg", "/home/me/a b.jpg"},
                                                       {"Z:\\", "/"},
                                                       {"Z:", "/"},
                                                       {"\\srv\\a.jpg", "/srv/a.jpg"},
                                                       {"\\", "/"},
                                                       {"C:\\\xC3\xA4.jpg", "/home/me/\xC3\xA4.jpg"}};
  for (const auto& [text, native] : cases) EXPECT_EQ(map.Surface(text), native) << text;
}

TEST(PathMap, ATextThatIsNotAPlaceIsItsOwnSurfaceForm) {
  const PathMap map({}, "/home/me");
  for (const char* text : {"", "D:\\Photos\\a.jpg", "q:", "\\\\server\\share\\a.jpg", "\\/server", "a.jpg",
                           "photos\\a.jpg", "photos/a.jpg", "/home/me/a.jpg", "/usr/bin/view --as \"a\\b\"", "~/a.jpg",
                           "1:\\a", ":\\a", "http://example.org/C:\\"}) {
    EXPECT_EQ(map.Surface(text), text);
  }
  const std::string withNul("C:\\a\0b", 6);
  EXPECT_EQ(map.Surface(withNul), withNul);
  EXPECT_EQ(PathMap::WithoutDrives().Surface("C:\\a.jpg"), "C:\\a.jpg");
}

TEST(PathMap, ForUsersWithDrivesTheSurfaceFormIsThePathText) {
  const PathMap map(kDrives, "/home/me");
  EXPECT_TRUE(map.ShowsLetters());
  EXPECT_FALSE(PathMap({}, "/home/me").ShowsLetters());
  for (const char* text :
       {"C:\\a.jpg", "C:", "Z:/etc", "\\etc", "/etc", "Q:\\a", "\\\\server\\a", "a.jpg", "~/a", ""}) {
    EXPECT_EQ(map.Surface(text), text);
  }
}

TEST(PathMap, ASurfaceFormLeadsBackToItsPlace) {
  const PathMap map({}, "/home/me");
  for (const char* text :
       {"C:\\photos\\a.jpg", "C:\\", "C:", "Z:\\", "Z:\\etc\\fonts", "Z:\\home\\me\\a", "\\srv\\a", "C:/a"}) {
    const std::string surface = map.Surface(text);
    for (const std::string& back : {map.ToTextIfNative(surface), map.ToTextFromUser(surface)}) {
      EXPECT_EQ((*map.ToNative(back) / "").lexically_normal(), (*map.ToNative(text) / "").lexically_normal()) << text;
    }
  }
}

TEST(PathMap, ATildeInASettingIsTheHomeFolder) {
  const PathMap map({}, "/home/me");
  EXPECT_EQ(map.ToTextIfNative("~/gallery"), "C:\\gallery");
  EXPECT_EQ(map.ToTextIfNative("~"), "C:\\");
  EXPECT_EQ(map.ToTextIfNative("~/../you"), "Z:\\home\\you");
  for (const char* text : {"~you/gallery", "a~/b", "~.jpg", "C:\\~\\a", ""}) EXPECT_EQ(map.ToTextIfNative(text), text);
  EXPECT_EQ(PathMap(kDrives).ToTextIfNative("~/gallery"), "~/gallery");
  EXPECT_EQ(PathMap::WithoutDrives().ToTextIfNative("~/gallery"), "~/gallery");
}

TEST(PathMap, WithoutAWorkingFolderTypedTextIsKept) {
  const fakes::TemporaryFolder folder;
  std::filesystem::create_directory(folder.Path() / "gone");
  const fakes::WorkingFolder working(folder.Path() / "gone");
  std::filesystem::remove(folder.Path() / "gone");
  EXPECT_EQ(PathMap(kDrives).ToTextFromUser("a/b"), "a\\b");
}

}  // namespace
}  // namespace vantorium::env
