#include "core/ProjectSession.h"
#include "tests/fakes/ProjectReading.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantorium::core {
namespace {

using fakes::ProjectFileParts;
using fakes::ProjectHarness;

/// A project from another system, opened where the usual drives exist: its first photograph is on a missing drive.
class ForeignProject : public ::testing::Test, public ProjectHarness {
 protected:
  ForeignProject() {
    paths = env::PathMap({}, folder.Path());
    folder.Write("new/a.jpg", "bytes");
    folder.Write("here.jpg", "bytes");
    folder.Write("a.gpj",
                 ProjectFileParts{.lists = R"(<IMAGES><IMAGE INDEX="1" NAME="a" SOURCE="file://D:/Photos/a.jpg"/>)"
                                           R"(<IMAGE INDEX="2" NAME="b" SOURCE="file://C:/here.jpg"/></IMAGES>)"}
                     .Text());
  }
  [[nodiscard]] std::string States() const {
    return std::string(project.IsModified ? "modified " : "") + (project.IsUntitled ? "untitled" : "");
  }
  [[nodiscard]] int Questions() const {
    return static_cast<int>(std::ranges::count(calls, "no place D:/Photos/a.jpg"));
  }
  [[nodiscard]] std::vector<std::string> Sources() const {
    std::vector<std::string> sources;
    for (std::size_t i = 1; i <= project.images.Count(); ++i) sources.push_back(project.images.Entry(i).SourcePath);
    return sources;
  }
};

TEST_F(ForeignProject, IsOpenedWithThePhotographsFromTheirNewFolders) {
  host.movedFolders = {{"D:\\Photos\\", "C:\\new\\"}};
  EXPECT_TRUE(session.LoadProject("C:\\a.gpj"));
  EXPECT_EQ(Sources(), (std::vector<std::string>{"C:/new/a.jpg", "C:/here.jpg"}));
  EXPECT_EQ(States(), "modified ") << "the file still has the old paths";
  EXPECT_EQ(Questions(), 1);
  EXPECT_TRUE(session.SaveProject());
  calls.clear();
  EXPECT_TRUE(session.LoadProject("C:\\a.gpj"));
  EXPECT_EQ(Questions(), 0);
  EXPECT_EQ(States(), "");
}

TEST_F(ForeignProject, IsReadUnchangedIfTheUserCancels) {
  EXPECT_FALSE(session.LoadProject("C:\\a.gpj"));
  EXPECT_EQ(Questions(), 1);
  EXPECT_EQ(Sources(), std::vector<std::string>{});
  ASSERT_EQ(boxes.boxes.size(), 2U);
  EXPECT_TRUE(boxes.boxes[0].text.starts_with("An Error occurred trying to read the image file \"D:/Photos/a.jpg\""));
  EXPECT_EQ(boxes.boxes[1].text,
            "An error occurred while opening the Gallery Project \"" + (folder.Path() / "a.gpj").string() + "\".");
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ForeignProject, IsNotChangedByFoldersThatItDoesNotUse) {
  host.movedFolders = {{"D:\\Pictures\\", "C:\\new\\"}, {"C:\\", "C:\\new\\"}};
  EXPECT_FALSE(session.LoadProject("C:\\a.gpj"));
  EXPECT_FALSE(project.IsModified);
}

TEST_F(ForeignProject, AsksNothingOfAUserWithDrives) {
  paths = env::PathMap({{'C', folder.Path().string()}});
  EXPECT_FALSE(session.LoadProject("C:\\a.gpj"));
  EXPECT_EQ(Questions(), 0);
  EXPECT_EQ(boxes.boxes[1].text, "An error occurred while opening the Gallery Project \"C:\\a.gpj\".");
}

}  // namespace
}  // namespace vantorium::core
