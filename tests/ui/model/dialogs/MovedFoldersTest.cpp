#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/MovedFolders.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// The user's home is drive C:. Its folder "new" has two of the three photographs of D:\Photos.
class MovedFoldersTest : public testing::Test {
 protected:
  MovedFoldersTest() {
    home.Write("new/a.jpg", "");
    home.Write("new/sub/b.jpg", "");
  }
  [[nodiscard]] std::string Native(const std::string& name) const { return (home.Path() / name).string(); }
  [[nodiscard]] std::string Counts() const {
    std::string text;
    for (const MovedFolders::Row& row : model.Rows()) {
      text += row.from + " " + MovedFolders::CountText(row) + "\n";
    }
    return text;
  }
  [[nodiscard]] std::string Result() const {
    std::string text;
    for (const core::MovedFolder& folder : model.Moved()) text += folder.from + " -> " + folder.to + "\n";
    return text;
  }

  fakes::TemporaryFolder home;
  env::PathMap paths{{}, home.Path()};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  fakes::ScriptedFolderBrowser browser;
  MovedFolders model{{"D:/Photos/a.jpg", "D:/Photos/sub/b.jpg", "D:/Photos/c.jpg", "E:/x/d.jpg"}, files};
};

TEST_F(MovedFoldersTest, BeginsWithTheOldFoldersAndNothingFound) {
  EXPECT_EQ(Counts(), "D:\\Photos\\ 0 of 3\nE:\\x\\ 0 of 1\n");
  EXPECT_FALSE(model.CanAccept());
  EXPECT_EQ(Result(), "");
}

TEST_F(MovedFoldersTest, CountsTheImagesInTheNewFolder) {
  for (const std::string& typed : {Native("new"), Native("new/"), Native("x/../new"), std::string("C:\\new"),
                                   std::string("C:\\new\\"), std::string("~/new"), "Z:" + Native("new")}) {
    model.EditNewFolder(typed);
    EXPECT_EQ(Counts(), "D:\\Photos\\ 2 of 3\nE:\\x\\ 0 of 1\n") << typed;
    EXPECT_TRUE(model.CanAccept()) << typed;
  }
  model.EditNewFolder("C:\\new\\sub\\..\\");
  EXPECT_EQ(Result(), "D:\\Photos\\ -> C:\\new\\sub\\..\\\n");
}

TEST_F(MovedFoldersTest, AFolderWithoutTheImagesIsNotUsed) {
  for (const std::string& typed : {std::string(), std::string("/"), Native(""), Native("new/sub"), Native("new/a.jpg"),
                                   std::string("D:\\Photos"), std::string("\\\\server\\share"), std::string("new")}) {
    model.EditNewFolder(typed);
    EXPECT_FALSE(model.CanAccept()) << typed;
    EXPECT_EQ(Result(), "") << typed;
  }
}

TEST_F(MovedFoldersTest, EachOldFolderHasItsOwnNewFolder) {
  home.Write("other/d.jpg", "");
  model.EditNewFolder(Native("new"));
  model.Choose(1);
  model.EditNewFolder(Native("other"));
  EXPECT_EQ(Counts(), "D:\\Photos\\ 2 of 3\nE:\\x\\ 1 of 1\n");
  EXPECT_EQ(Result(), "D:\\Photos\\ -> C:\\new\\\nE:\\x\\ -> C:\\other\\\n");
}

TEST_F(MovedFoldersTest, AFolderCanBeBrowsedFor) {
  model.EditNewFolder(Native("elsewhere"));
  browser.answers = {"C:\\new", std::nullopt};
  model.Browse(browser);
  EXPECT_EQ(browser.asked, std::vector<std::string>{"Where is D:\\Photos\\: C:\\elsewhere\\"});
  EXPECT_EQ(Result(), "D:\\Photos\\ -> C:\\new\\\n");
  model.Browse(browser);
  EXPECT_EQ(Result(), "D:\\Photos\\ -> C:\\new\\\n") << "cancelled";
}

TEST_F(MovedFoldersTest, FoldersAreShownAsNativePaths) {
  EXPECT_EQ(model.Shown("C:\\new\\"), Native("new/"));
  EXPECT_EQ(model.Shown("D:\\Photos\\"), "D:\\Photos\\");
  EXPECT_EQ(model.Shown(""), "");
}

}  // namespace
}  // namespace vantorium::ui
