#include "core/MovedFolders.h"

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

/// The groups, each as "folder (number of paths)".
std::vector<std::string> Folders(const std::vector<std::string>& sources) {
  std::vector<std::string> texts;
  for (const SourceFolder& folder : FoldersOf(sources)) {
    texts.push_back(folder.folder + " (" + std::to_string(folder.sources.size()) + ")");
  }
  return texts;
}

using Texts = std::vector<std::string>;

TEST(MovedFolders, PathsBelowTheSameFolderOfADriveAreAGroup) {
  EXPECT_EQ(Folders({}), Texts{});
  EXPECT_EQ(Folders({"D:\\Photos\\a.jpg"}), Texts{"D:\\Photos\\ (1)"});
  EXPECT_EQ(Folders({"D:/Photos/a.jpg", "D:\\Photos\\b.jpg"}), Texts{"D:\\Photos\\ (2)"});
  EXPECT_EQ(Folders({"D:\\Photos\\1\\a.jpg", "D:\\Photos\\1\\b.jpg"}), Texts{"D:\\Photos\\1\\ (2)"});
  EXPECT_EQ(Folders({"D:\\Photos\\1\\a.jpg", "D:\\Photos\\12\\b.jpg"}), Texts{"D:\\Photos\\ (2)"});
  EXPECT_EQ(Folders({"D:\\Photos\\1\\2\\a.jpg", "D:\\Photos\\b.jpg"}), Texts{"D:\\Photos\\ (2)"});
  EXPECT_EQ(Folders({"D:\\PHOTOS\\A.JPG", "d:\\photos\\b.jpg"}), Texts{"D:\\PHOTOS\\ (2)"});
  EXPECT_EQ(Folders({"D:\\b\\1.jpg", "E:\\b\\1.jpg", "D:\\a\\2.jpg", "D:\\b\\2.jpg"}),
            (Texts{"D:\\b\\ (2)", "E:\\b\\ (1)", "D:\\a\\ (1)"}));
}

TEST(MovedFolders, PathsInTheRootOfADriveAreAGroup) {
  EXPECT_EQ(Folders({"D:\\a.jpg", "D:\\Photos\\a.jpg", "D:\\b.jpg"}), (Texts{"D:\\ (2)", "D:\\Photos\\ (1)"}));
  EXPECT_EQ(Folders({"D:a.jpg"}), Texts{"D: (1)"});
}

TEST(MovedFolders, AShareIsTreatedLikeADrive) {
  EXPECT_EQ(Folders({"\\\\server\\share\\a.jpg", "//server/share/b.jpg"}), Texts{"\\\\server\\share\\ (2)"});
  EXPECT_EQ(Folders({"\\\\server\\share\\x\\1\\a.jpg", "\\\\SERVER\\share\\x\\2\\a.jpg"}),
            Texts{"\\\\server\\share\\x\\ (2)"});
  EXPECT_EQ(Folders({"\\\\server\\a.jpg"}), Texts{"\\\\server\\ (1)"});
}

TEST(MovedFolders, APathFollowsItsFolder) {
  const MovedFolder folders[] = {
      {"D:\\Photos\\", "C:\\Pictures\\"}, {"D:\\Photos\\1\\", "Z:\\srv\\"}, {"\\\\server\\share\\", "C:\\share\\"}};
  EXPECT_EQ(Moved("D:\\Photos\\a.jpg", folders), "C:/Pictures/a.jpg");
  EXPECT_EQ(Moved("d:/PHOTOS/sub/a.jpg", folders), "C:/Pictures/sub/a.jpg");
  EXPECT_EQ(Moved("D:\\Photos\\1\\a.jpg", folders), "Z:/srv/a.jpg") << "the deepest folder wins";
  EXPECT_EQ(Moved("//server/share/a.jpg", folders), "C:/share/a.jpg");
}

TEST(MovedFolders, APathInNoneOfTheFoldersIsUnchanged) {
  const MovedFolder folders[] = {{"D:\\Photos\\", "C:\\Pictures\\"}};
  for (const char* path : {"D:\\Photos2\\a.jpg", "D:\\a.jpg", "E:\\Photos\\a.jpg", "D:\\Photos", "", "Photos\\a.jpg"}) {
    EXPECT_EQ(Moved(path, folders), path);
    EXPECT_EQ(Moved(path, {}), path);
  }
}

}  // namespace
}  // namespace vantorium::core
