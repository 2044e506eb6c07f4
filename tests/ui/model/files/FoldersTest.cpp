#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/files/Folders.h"

namespace vantorium::ui {
namespace {

std::vector<std::string> NamesIn(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  for (const SubFolder& child : LocalFolders().In(folder)) names.push_back(child.name + (child.link ? " ->" : ""));
  return names;
}

TEST(LocalFolders, AreSortedByNameInAnyCase) {
  const fakes::TemporaryFolder disk;
  for (const char* name : {"b/x", "A/x", "a/x", "C/x", "Ärger/x", "ärger/x", "file.jpg"}) disk.Write(name, "");
  EXPECT_EQ(NamesIn(disk.Path()), (std::vector<std::string>{"A", "a", "b", "C", "Ärger", "ärger"}));
}

TEST(LocalFolders, HiddenFoldersAreLeftOut) {
  const fakes::TemporaryFolder disk;
  for (const char* name : {".cache/x", "seen/x", "..odd/x"}) disk.Write(name, "");
  EXPECT_EQ(NamesIn(disk.Path()), std::vector<std::string>{"seen"});
}

TEST(LocalFolders, LinksToFoldersAreMarkedAsLinks) {
  const fakes::TemporaryFolder disk;
  disk.Write("real/file", "");
  std::filesystem::create_directory_symlink("real", disk.Path() / "linked");
  std::filesystem::create_directory_symlink("nowhere", disk.Path() / "broken");
  std::filesystem::create_symlink("real/file", disk.Path() / "toFile");
  EXPECT_EQ(NamesIn(disk.Path()), (std::vector<std::string>{"linked ->", "real"}));
  EXPECT_TRUE(LocalFolders().IsLink(disk.Path() / "linked"));
  EXPECT_FALSE(LocalFolders().IsLink(disk.Path() / "real"));
  EXPECT_FALSE(LocalFolders().IsLink(disk.Path() / "missing"));
}

TEST(LocalFolders, AFileHasNone) {
  const fakes::TemporaryFolder disk;
  EXPECT_TRUE(NamesIn(disk.Path() / "missing").empty());
  EXPECT_TRUE(NamesIn(disk.Write("file", "")).empty());
}

}  // namespace
}  // namespace vantorium::ui
