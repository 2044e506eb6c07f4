#include "publish/FolderListing.h"
#include "tests/fakes/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

namespace vantorium::publish {

void PrintTo(const FolderEntry& entry, std::ostream* stream) {
  *stream << entry.name << (entry.kind == EntryKind::File ? "" : "/")
          << (entry.kind == EntryKind::LinkedFolder ? "@" : "");
}

namespace {

namespace fs = std::filesystem;
using Entries = std::vector<FolderEntry>;

class AListing : public testing::Test {
 protected:
  [[nodiscard]] FolderListing List() { return List(folder.Path()); }
  [[nodiscard]] FolderListing List(const fs::path& path) {
    asked = 0;
    return ListFolder(path, [this] { return ++asked != noAt; });
  }

  fakes::TemporaryFolder folder;
  int asked = 0;  ///< how often the listing asked whether to continue
  int noAt = 0;   ///< the question that is answered with no; 0: none
};

TEST_F(AListing, IsInTheOrderOfTheNames) {
  for (const char* name : {"b", "a", "B", "10", "9", ".hidden", "\xC3\xA4"}) folder.Write(name, "x");
  fs::create_directory(folder.Path() / "ab");
  const FolderListing listing = List();
  EXPECT_TRUE(listing.complete);
  std::string names;
  for (const auto& entry : listing.entries) names += entry.name + " ";
  EXPECT_EQ(names, ".hidden 10 9 B a ab b \xC3\xA4 ");
}

TEST_F(AListing, DistinguishesFoldersFromFiles) {
  folder.Write("file", "");
  fs::create_directory(folder.Path() / "folder");
  EXPECT_EQ(List().entries, (Entries{{"file", EntryKind::File}, {"folder", EntryKind::Folder}}));
}

TEST_F(AListing, ALinkToAFileIsAFileAndALinkToAFolderIsALinkedFolder) {
  const auto file = folder.Write("a", "x");
  fs::create_symlink(file, folder.Path() / "link");
  fs::create_directory_symlink(folder.Path(), folder.Path() / "above");
  EXPECT_EQ(List().entries,
            (Entries{{"a", EntryKind::File}, {"above", EntryKind::LinkedFolder}, {"link", EntryKind::File}}));
}

TEST_F(AListing, ALinkToNothingAndALinkToItselfAreBroken) {
  fs::create_symlink(folder.Path() / "nowhere", folder.Path() / "dangling");
  fs::create_symlink("itself", folder.Path() / "itself");
  EXPECT_EQ(List().entries, (Entries{{"dangling", EntryKind::BrokenLink}, {"itself", EntryKind::BrokenLink}}));
}

TEST_F(AListing, PipesAndDevicesAreNotListed) {
  ASSERT_EQ(::mkfifo((folder.Path() / "pipe").c_str(), 0600), 0);
  fs::create_symlink("/dev/null", folder.Path() / "device");
  const FolderListing listing = List();
  EXPECT_EQ(listing.entries, Entries());
  EXPECT_TRUE(listing.complete);
}

TEST_F(AListing, UnfinishedFilesAreLeftOut) {
  folder.Write(".vantorium-1234567-0", "half");
  folder.Write(".vantorium-1-17", "half");
  folder.Write(".vantorium-mine", "x");
  fs::create_directory(folder.Path() / ".vantorium-1-18");
  EXPECT_EQ(List().entries, (Entries{{".vantorium-1-18", EntryKind::Folder}, {".vantorium-mine", EntryKind::File}}));
}

TEST_F(AListing, OfAnEmptyFolderIsCompleteAndEmpty) {
  const FolderListing listing = List();
  EXPECT_TRUE(listing.complete);
  EXPECT_EQ(listing.entries, Entries());
}

TEST_F(AListing, AsksAtItsStartAndAfterEachEntryWhetherToContinue) {
  EXPECT_TRUE(List().complete);
  EXPECT_EQ(asked, 1);
  for (const char* name : {"a", "b", "c"}) folder.Write(name, "x");
  EXPECT_TRUE(List().complete);
  EXPECT_EQ(asked, 4);
  for (noAt = 1; noAt <= 4; ++noAt) {
    const FolderListing listing = List();
    EXPECT_FALSE(listing.complete) << noAt;
    EXPECT_EQ(asked, noAt);
    EXPECT_EQ(listing.entries.size(), static_cast<std::size_t>(noAt - 1));
  }
}

TEST_F(AListing, OfAFileFails) {
  for (const fs::path& path : {folder.Write("file", "x"), folder.Path() / "missing", fs::path()}) {
    const FolderListing listing = List(path);
    EXPECT_EQ(asked, 0) << path;
    EXPECT_FALSE(listing.complete) << path;
    EXPECT_EQ(listing.entries, Entries()) << path;
  }
}

}  // namespace
}  // namespace vantorium::publish
