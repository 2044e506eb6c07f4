#include "env/BundledFiles.h"
#include "tests/fakes/TemporaryFolder.h"

namespace vantorium::env {
namespace {

namespace fs = std::filesystem;

TEST(BundledFiles, TheFirstFolderThatHasTheFileIsUsed) {
  const fakes::TemporaryFolder folder;
  folder.Write("own/preview.jpg", "own");
  folder.Write("installed/preview.jpg", "installed");
  folder.Write("installed/help.html", "help");
  const BundledFiles files({folder.Path() / "own", folder.Path() / "installed"});
  EXPECT_EQ(files.Find("preview.jpg"), folder.Path() / "own/preview.jpg");
  EXPECT_EQ(files.Find("help.html"), folder.Path() / "installed/help.html");
}

TEST(BundledFiles, AFileInNoFolderIsNotFound) {
  const fakes::TemporaryFolder folder;
  EXPECT_EQ(BundledFiles({folder.Path(), folder.Path() / "missing"}).Find("preview.jpg"), std::nullopt);
  EXPECT_EQ(BundledFiles({}).Find("preview.jpg"), std::nullopt);
  EXPECT_EQ(BundledFiles({folder.Path()}).Find(""), std::nullopt);
}

TEST(BundledFiles, FoldersAndDanglingLinksAreSkipped) {
  const fakes::TemporaryFolder folder;
  fs::create_directories(folder.Path() / "a/preview.jpg");
  fs::create_directories(folder.Path() / "b");
  fs::create_symlink("nothing", folder.Path() / "b/preview.jpg");
  folder.Write("c/preview.jpg", "c");
  const BundledFiles files({folder.Path() / "a", folder.Path() / "b", folder.Path() / "c"});
  EXPECT_EQ(files.Find("preview.jpg"), folder.Path() / "c/preview.jpg");
}

TEST(BundledFiles, AllFilesOfASubfolderAreSortedByNameEachFromTheFirstFolderThatHasIt) {
  const fakes::TemporaryFolder folder;
  folder.Write("own/themes/b.gpj", "own");
  folder.Write("installed/themes/b.gpj", "installed");
  folder.Write("installed/themes/c.gpj", "installed");
  folder.Write("installed/themes/a.gpj", "installed");
  const BundledFiles files({folder.Path() / "own", folder.Path() / "missing", folder.Path() / "installed"});
  EXPECT_EQ(files.FindAll("themes", ".gpj"),
            (std::vector<fs::path>{folder.Path() / "installed/themes/a.gpj", folder.Path() / "own/themes/b.gpj",
                                   folder.Path() / "installed/themes/c.gpj"}));
}

TEST(BundledFiles, OtherFilesFoldersAndDanglingLinksAreLeftOut) {
  const fakes::TemporaryFolder folder;
  for (const char* name : {"themes/a.png", "themes/b.gpj.bak", "themes/.gpj", "c.gpj", "themes/deep/d.gpj"}) {
    folder.Write(name, "x");
  }
  fs::create_directories(folder.Path() / "themes/e.gpj");
  fs::create_symlink("nothing", folder.Path() / "themes/f.gpj");
  EXPECT_EQ(BundledFiles({folder.Path()}).FindAll("themes", ".gpj"), std::vector<fs::path>());
  EXPECT_EQ(BundledFiles({}).FindAll("themes", ".gpj"), std::vector<fs::path>());
}

TEST(BundledFiles, TheProgramFolderComesBeforeTheInstallation) {
  const ProcessEnvironment around = {"/usr/bin/vantorium", "/home/me", ""};
  EXPECT_EQ(BundledFolders("/home/me/.config/vantorium", around),
            (std::vector<fs::path>{"/home/me/.config/vantorium", "/usr/share/vantorium"}));
  EXPECT_EQ(BundledFolders("/p", {"/build/dev/bin/vantorium", "", ""}),
            (std::vector<fs::path>{"/p", "/build/dev/share/vantorium"}));
}

TEST(BundledFiles, WithoutAnExecutableOnlyTheProgramFolderIsSearched) {
  EXPECT_EQ(BundledFolders("/p", {"", "/home/me", ""}), (std::vector<fs::path>{"/p"}));
}

}  // namespace
}  // namespace vantorium::env
