#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/files/FileChoice.h"

namespace vantorium::ui {
namespace {

using Names = std::vector<std::string>;
using Step = FileChoice::Step;

class Choosing : public testing::Test {
 protected:
  Choosing() {
    for (const char* name : {"photos/a.jpg", "photos/b c.jpg", "photos/README", "other/d.jpg", "my.gpj"}) {
      disk.Write(name, "");
    }
  }

  FileChoice Choice(FileDialogRequest request) { return {std::move(request), files, boxes}; }
  FileChoice OpenOne() { return Choice({.title = "Open"}); }
  FileChoice OpenSeveral() { return Choice({.multiSelect = true, .title = "Add"}); }
  FileChoice Save() { return Choice({.open = false, .title = "Save", .defaultExtension = "gpj"}); }

  fakes::TemporaryFolder disk;
  env::PathMap paths{{{'C', disk.Path().string()}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  fakes::RecordingMessageBox boxes;
};

TEST_F(Choosing, AFileIsFoundByTheTypedText) {
  for (const std::string& text :
       {std::string("a.jpg"), std::string(" a.jpg "), std::string("\"a.jpg\""), std::string("C:\\photos\\a.jpg"),
        std::string("C:/photos/a.jpg"), std::string("..\\photos\\a.jpg"), (disk.Path() / "photos/a.jpg").string()}) {
    FileChoice choice = OpenOne();
    ASSERT_EQ(choice.Ok("C:\\photos", text), Step::Accept) << text;
    EXPECT_EQ(choice.Result().result, "C:\\photos\\a.jpg") << text;
    EXPECT_EQ(choice.Result().folder, "C:\\photos\\") << text;
    EXPECT_EQ(choice.Result().names, Names{"C:\\photos\\a.jpg"}) << text;
  }
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(Choosing, AnEmptyBoxChoosesNothing) {
  for (const char* text : {"", "  ", "\"\""}) {
    EXPECT_EQ(OpenOne().Ok("C:\\photos", text), Step::Stay) << text;
    EXPECT_EQ(Save().Ok("C:\\photos", text), Step::Stay) << text;
  }
  EXPECT_EQ(OpenSeveral().Ok("C:\\photos", "\""), Step::Stay);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(Choosing, AFileToOpenMustExist) {
  FileChoice choice = OpenOne();
  EXPECT_EQ(choice.Ok("C:\\photos", "none.jpg"), Step::Stay);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Exclamation);
  EXPECT_EQ(boxes.boxes[0].title, "Open");
  EXPECT_EQ(boxes.boxes[0].text, "none.jpg\r\nFile not found.\r\nPlease check the file name and try again.");
  EXPECT_EQ(choice.Result().result, "");
}

TEST_F(Choosing, ANameThatAProjectCannotStoreIsReported) {
  disk.Write("photos/bell\a.jpg", "");
  EXPECT_EQ(OpenOne().Ok("C:\\photos", "bell\a.jpg"), Step::Stay);
  EXPECT_EQ(OpenSeveral().Ok("C:\\photos", "\"a.jpg\" \"bell\a.jpg\""), Step::Stay);
  EXPECT_EQ(Save().Ok("C:\\", "bell\a"), Step::Stay);
  ASSERT_EQ(boxes.boxes.size(), 3U);
  EXPECT_EQ(boxes.boxes[0].text, "bell\uFFFD.jpg\r\nThis name cannot stand in a project.");
}

TEST_F(Choosing, ADriveWithoutAFolderIsReported) {
  EXPECT_EQ(OpenOne().Ok("C:\\photos", "X:\\a.jpg"), Step::Stay);
  EXPECT_EQ(Save().Ok("C:\\photos", "\\\\server\\share\\a.gpj"), Step::Stay);
  ASSERT_EQ(boxes.boxes.size(), 2U);
  EXPECT_EQ(boxes.boxes[0].text, "X:\\a.jpg\r\nPath does not exist.\r\nPlease check the path and try again.");
}

TEST_F(Choosing, TheNameOfAFolderOpensIt) {
  for (const std::string& text : {std::string(".."), std::string("C:\\"), disk.Path().string()}) {
    FileChoice choice = OpenOne();
    ASSERT_EQ(choice.Ok("C:\\photos", text), Step::EnterFolder) << text;
    EXPECT_EQ(choice.Folder(), "C:\\") << text;
  }
  FileChoice choice = Save();
  EXPECT_EQ(choice.Ok("C:\\", "photos"), Step::EnterFolder);
  EXPECT_EQ(choice.Folder(), "C:\\photos\\");
}

TEST_F(Choosing, ANameToSaveGetsTheDefaultExtensionUnlessItHasIt) {
  FileChoice choice = Save();
  ASSERT_EQ(choice.Ok("C:\\", "new"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\new.gpj");
  ASSERT_EQ(choice.Ok("C:\\", "Holiday 24.12"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\Holiday 24.12.gpj");
  ASSERT_EQ(choice.Ok("C:\\", "new.GPJ"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\new.GPJ");
  ASSERT_EQ(choice.Ok("C:\\v1.5", "new"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\v1.5\\new.gpj");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(Choosing, ANameToOpenGetsTheExtensionOnlyIfThereIsNoSuchFile) {
  FileChoice choice = Choice({.defaultExtension = "gpj"});
  ASSERT_EQ(choice.Ok("C:\\", "my"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\my.gpj");
  ASSERT_EQ(choice.Ok("C:\\photos", "README"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\photos\\README");
}

TEST_F(Choosing, AFileIsReplacedOnlyAfterConfirmation) {
  boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  FileChoice choice = Save();
  EXPECT_EQ(choice.Ok("C:\\", "my"), Step::Stay);
  EXPECT_EQ(choice.Result().result, "");
  EXPECT_EQ(choice.Ok("C:\\", "my"), Step::Accept);
  EXPECT_EQ(choice.Result().result, "C:\\my.gpj");
  ASSERT_EQ(boxes.boxes.size(), 2U);
  EXPECT_EQ(boxes.boxes[0].title, "Save");
  EXPECT_EQ(boxes.boxes[0].text, "my.gpj already exists.\r\nDo you want to replace it?");
}

TEST_F(Choosing, ForSeveralFilesTheResultIsTheTextOfTheBox) {
  FileChoice choice = OpenSeveral();
  ASSERT_EQ(choice.Ok("C:\\photos", "\"a.jpg\" \"b c.jpg\""), Step::Accept);
  EXPECT_EQ(choice.Result().result, "\"a.jpg\" \"b c.jpg\"");
  EXPECT_EQ(choice.Result().folder, "C:\\photos\\");
  EXPECT_EQ(choice.Result().names, (Names{"a.jpg", "b c.jpg"}));
}

TEST_F(Choosing, TypedPathsOfSeveralFilesGiveTheirFolder) {
  FileChoice choice = OpenSeveral();
  ASSERT_EQ(choice.Ok("C:\\other", "\"C:\\photos\\a.jpg\" \"..\\photos\\b c.jpg\""), Step::Accept);
  EXPECT_EQ(choice.Result().result, "\"a.jpg\" \"b c.jpg\"");
  EXPECT_EQ(choice.Result().folder, "C:\\photos\\");
  EXPECT_EQ(choice.Result().names, (Names{"a.jpg", "b c.jpg"}));
}

TEST_F(Choosing, SeveralFilesMustBeInOneFolder) {
  EXPECT_EQ(OpenSeveral().Ok("C:\\photos", "\"a.jpg\" \"C:\\other\\d.jpg\""), Step::Stay);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].text, "The files have to be in one folder.");
}

TEST_F(Choosing, EachOfSeveralFilesMustExist) {
  EXPECT_EQ(OpenSeveral().Ok("C:\\photos", "\"a.jpg\" \"x.jpg\" \"y.jpg\""), Step::Stay);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_TRUE(boxes.boxes[0].text.starts_with("x.jpg\r\n"));
}

TEST_F(Choosing, AFolderAmongSeveralFilesIsNotAFile) {
  EXPECT_EQ(OpenSeveral().Ok("C:\\", "\"my.gpj\" \"photos\""), Step::Stay);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_TRUE(boxes.boxes[0].text.starts_with("photos\r\n"));
}

TEST_F(Choosing, ATypedNameWithoutAnExtensionIsNotTheFileSelectedBefore) {
  FileChoice choice = OpenSeveral();
  choice.Browsed("C:\\photos\\a.jpg");
  ASSERT_EQ(choice.Ok("C:\\photos", "README"), Step::Accept);
  EXPECT_EQ(choice.Result().names, Names{"README"});
}

TEST_F(Choosing, ANativePathBecomesPathText) {
  const FileChoice choice = OpenSeveral();
  const std::string native = (disk.Path() / "photos/a.jpg").string();
  EXPECT_EQ(choice.WithSurfaces(native), "C:\\photos\\a.jpg");
  EXPECT_EQ(choice.WithSurfaces('"' + native + "\" \"b.jpg\""), "\"C:\\photos\\a.jpg\" \"b.jpg\"");
  for (const char* text : {"", "a.jpg", "\"a.jpg\"  \"b.jpg\"", "C:\\photos\\a.jpg", "photos/a.jpg"}) {
    EXPECT_EQ(choice.WithSurfaces(text), text);
  }
}

TEST_F(Choosing, WithoutDrivesPathsAreShownAsNativePaths) {
  const env::PathMap usual({}, disk.Path());
  const env::mFileFunctions usualFiles{usual, formats};
  FileChoice choice({.title = "Open"}, usualFiles, boxes);
  const std::string native = (disk.Path() / "photos/a.jpg").string();
  for (const std::string& typed : {native, std::string("C:\\photos\\a.jpg"), std::string("~/photos/a.jpg")}) {
    EXPECT_EQ(choice.WithSurfaces(typed), native);
    ASSERT_EQ(choice.Ok("Z:\\", typed), Step::Accept) << typed;
    EXPECT_EQ(choice.Result().result, "C:\\photos\\a.jpg") << typed;
  }
  for (const char* text : {"", "a.jpg", "~a.jpg", "D:\\a.jpg", "photos/a.jpg"})
    EXPECT_EQ(choice.WithSurfaces(text), text);
}

}  // namespace
}  // namespace vantorium::ui
