#include "env/ProgramFolder.h"
#include "tests/fakes/FaultInjection.h"
#include "tests/fakes/FolderNames.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;
using fakes::EnvironmentVariable;

const ProcessEnvironment kInstalled = {"/usr/bin/vantorium-of-no-machine", "/home/me", ""};

TEST(ProgramFolder, AGivenFolderIsUsed) {
  EXPECT_EQ(FindProgramFolder("/srv/v", kInstalled), "/srv/v");
  EXPECT_EQ(FindProgramFolder("/srv/./x/../v/", kInstalled), "/srv/v");
  EXPECT_EQ(FindProgramFolder("/", kInstalled), "/");
  EXPECT_EQ(FindProgramFolder("v", kInstalled), (fs::current_path() / "v").lexically_normal());
}

TEST(ProgramFolder, APreferencesFileBesideTheExecutableMakesTheProgramPortable) {
  const fakes::TemporaryFolder folder;
  const ProcessEnvironment around = {folder.Path() / "vantorium", "/home/me", "/etc/xdg"};
  EXPECT_EQ(FindProgramFolder({}, around), "/etc/xdg/vantorium");
  folder.Write("vantorium.ini", "");
  EXPECT_EQ(FindProgramFolder({}, around), folder.Path());
  EXPECT_EQ(FindProgramFolder("/srv/v", around), "/srv/v");
}

TEST(ProgramFolder, AFolderOfThatNameIsNotAPreferencesFile) {
  const fakes::TemporaryFolder folder;
  fs::create_directory(folder.Path() / "vantorium.ini");
  EXPECT_EQ(FindProgramFolder({}, {folder.Path() / "vantorium", "/home/me", ""}), "/home/me/.config/vantorium");
}

TEST(ProgramFolder, OtherwiseItIsInTheUsersConfigurationFolder) {
  EXPECT_EQ(FindProgramFolder({}, kInstalled), "/home/me/.config/vantorium");
  EXPECT_EQ(FindProgramFolder({}, {"", "/home/me", "/x/"}), "/x/vantorium");
  EXPECT_EQ(FindProgramFolder({}, {"", "/home/me/", ""}), "/home/me/.config/vantorium");
}

TEST(ProgramFolder, ARelativeXdgFolderIsIgnored) {
  for (const char* relative : {".", "config", "../x", "~/.config"}) {
    EXPECT_EQ(FindProgramFolder({}, {"", "/home/me", relative}), "/home/me/.config/vantorium") << relative;
  }
}

TEST(CacheFolder, IsInTheUsersCacheFolder) {
  EXPECT_EQ(FindCacheFolder({"", "/home/me", "/x", ""}), "/home/me/.cache/vantorium");
  EXPECT_EQ(FindCacheFolder({"", "/home/me", "/x", "/c/"}), "/c/vantorium");
  for (const char* relative : {".", "cache", "../x", "~/.cache"}) {
    EXPECT_EQ(FindCacheFolder({"", "/home/me", "", relative}), "/home/me/.cache/vantorium") << relative;
  }
}

TEST(ProgramFolder, NothingIsCreated) {
  const fakes::TemporaryFolder folder;
  std::ignore = FindProgramFolder({}, {"", folder.Path().string(), (folder.Path() / "xdg").string()});
  std::ignore = FindProgramFolder({}, {"", folder.Path().string(), ""});
  EXPECT_TRUE(fakes::NamesIn(folder.Path()).empty());
}

TEST(ProgramFolder, TheEnvironmentOfTheProcessIsRead) {
  const EnvironmentVariable home("HOME", "/home/me");
  const EnvironmentVariable xdg("XDG_CONFIG_HOME", "/x");
  const EnvironmentVariable cache("XDG_CACHE_HOME", "/c");
  const ProcessEnvironment around = EnvironmentOfProcess();
  EXPECT_EQ(around.executable.filename(), "test_env");
  EXPECT_TRUE(fs::is_regular_file(around.executable));
  EXPECT_EQ(around.home, "/home/me");
  EXPECT_EQ(around.xdgConfigHome, "/x");
  EXPECT_EQ(around.xdgCacheHome, "/c");
}

TEST(ProgramFolder, WithoutHOMETheUserDatabaseNamesTheHomeFolder) {
  const EnvironmentVariable home("HOME", nullptr);
  const EnvironmentVariable xdg("XDG_CONFIG_HOME", nullptr);
  const ProcessEnvironment around = EnvironmentOfProcess();
  EXPECT_TRUE(around.home.starts_with('/')) << around.home;
  EXPECT_EQ(around.xdgConfigHome, "");
}

TEST(ProgramFolder, ItHasTheFilesAndItsPathTextEndsWithoutABackslash) {
  EXPECT_EQ(GetINIFileName("/srv/v"), "/srv/v/vantorium.ini");
  const PathMap paths({{'C', "/home/me"}, {'Z', "/"}});
  EXPECT_EQ(GetAppPath("/home/me/.config/vantorium", paths), "C:\\.config\\vantorium");
  EXPECT_EQ(GetAppPath("/home/me/", paths), "C:");
  EXPECT_EQ(GetAppPath("/", paths), "Z:");
  EXPECT_EQ(GetAppPath("/srv/v", PathMap({{'C', "/home/me"}})), "\\srv\\v");
}

}  // namespace
}  // namespace vantorium::env
