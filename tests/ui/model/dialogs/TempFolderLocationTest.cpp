#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/dialogs/TempFolderLocation.h"

namespace vantorium::ui {
namespace {

constexpr const char* kNotAbsolute = " You must specify an absolute Path or a Network Path.";
constexpr const char* kNotMade =
    "The temporary Folder cannot be created in the Path you have specified.  Please make sure that your input is "
    "correct.";

class TempFolderLocationTest : public testing::Test {
 protected:
  TempFolderLocationTest() {
    preferences.TempFolderLocation = "C:\\temp";
    preferences.TempFolderAutoClear = 0;
  }

  TempFolderLocation Dialog(const std::string& text) {
    TempFolderLocation dialog(preferences, "C:\\program", files, boxes);
    dialog.textTempFolderLocation = text;
    return dialog;
  }

  fakes::TemporaryFolder disk;
  env::PathMap paths{{{'C', disk.Path().string()}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  fakes::RecordingMessageBox boxes;
  fakes::ScriptedFolderBrowser folders;
  env::Preferences preferences;
};

TEST_F(TempFolderLocationTest, BeginsWithTheValuesOfThePreferences) {
  const TempFolderLocation dialog(preferences, "C:\\program", files, boxes);
  EXPECT_EQ(dialog.textTempFolderLocation, "C:\\temp");
  EXPECT_EQ(dialog.checkAutoClear, 0);
}

TEST_F(TempFolderLocationTest, AnEmptyLocationMeansTheProgramFolder) {
  preferences.TempFolderLocation.clear();
  EXPECT_EQ(TempFolderLocation(preferences, "C:\\program", files, boxes).textTempFolderLocation, "C:\\program");
}

TEST_F(TempFolderLocationTest, AbsolutePathsAreCleanedUpAndAccepted) {
  const std::vector<std::pair<std::string, std::string>> cases = {
      {"C:\\", "C:"},
      {"C:", "C:"},
      {"C:\\new", "C:\\new"},
      {"C:\\new\\", "C:\\new"},
      {"C:\\new\\\\\\", "C:\\new"},
      {"\\\\server\\share", "\\\\server\\share"},
      {"\\\\server\\share\\\\", "\\\\server\\share"},
      {"Q:\\no such drive", "Q:\\no such drive"},
      {"C:\\Jürgens Bilder", "C:\\Jürgens Bilder"},
      {disk.Path().string() + "/typed", "C:\\typed"},
  };
  for (const auto& [typed, stored] : cases) {
    TempFolderLocation dialog = Dialog(typed);
    EXPECT_TRUE(dialog.Accept()) << typed;
    EXPECT_EQ(dialog.textTempFolderLocation, stored) << typed;
  }
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(TempFolderLocationTest, OtherPathsAreReportedAndTheDialogStaysOpen) {
  for (const std::string typed : {"temp", "C:tmp", "temp\\new", "\\temp", "", "\\", "\\\\", "file://x", "C:/temp"}) {
    boxes.boxes.clear();
    EXPECT_FALSE(Dialog(typed).Accept()) << typed;
    ASSERT_EQ(boxes.boxes.size(), 1U) << typed;
    EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical) << typed;
    EXPECT_EQ(boxes.boxes[0].title, "Invalid Path") << typed;
    EXPECT_EQ(boxes.boxes[0].text, kNotAbsolute) << typed;
  }
}

TEST_F(TempFolderLocationTest, AcceptCreatesTheFolder) {
  EXPECT_TRUE(Dialog("C:\\deep\\down\\").Accept());
  EXPECT_TRUE(std::filesystem::is_directory(disk.Path() / "deep/down/VANTORIUM_TEMP"));
  EXPECT_TRUE(Dialog("C:\\").Accept());
  EXPECT_TRUE(std::filesystem::is_directory(disk.Path() / "VANTORIUM_TEMP"));
}

TEST_F(TempFolderLocationTest, ATextThatIsNotAPathCannotBeCreated) {
  EXPECT_FALSE(Dialog(std::string("C:\\te\0mp", 8)).Accept());
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(boxes.boxes[0].title, "Invalid Path");
  EXPECT_EQ(boxes.boxes[0].text, kNotMade);
}

TEST_F(TempFolderLocationTest, AChosenFolderIsShownInTheBox) {
  TempFolderLocation dialog = Dialog("C:\\old");
  folders.answers = {"C:\\chosen", std::nullopt};
  dialog.Browse(folders);
  EXPECT_EQ(dialog.textTempFolderLocation, "C:\\chosen");
  dialog.Browse(folders);
  EXPECT_EQ(dialog.textTempFolderLocation, "C:\\chosen") << "cancelled";
  EXPECT_EQ(folders.asked, (std::vector<std::string>{"Location of Temporary Folder: C:\\old",
                                                     "Location of Temporary Folder: C:\\chosen"}));
}

TEST_F(TempFolderLocationTest, ResetSetsTheProgramFolderAndClearOnExit) {
  TempFolderLocation dialog = Dialog("nonsense");
  dialog.Reset();
  EXPECT_EQ(dialog.textTempFolderLocation, "C:\\program");
  EXPECT_EQ(dialog.checkAutoClear, 1);
}

TEST_F(TempFolderLocationTest, OnlyStoringChangesThePreferences) {
  TempFolderLocation dialog = Dialog("C:\\new\\");
  dialog.checkAutoClear = 1;
  EXPECT_TRUE(dialog.Accept());
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\temp");
  dialog.StoreIn(preferences);
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\new");
  EXPECT_EQ(preferences.TempFolderAutoClear, 1);
}

TEST_F(TempFolderLocationTest, ANativePathBecomesPathText) {
  TempFolderLocation dialog = Dialog(disk.Path().string());
  dialog.TakeNativePath();
  EXPECT_EQ(dialog.textTempFolderLocation, "C:");
  dialog.textTempFolderLocation = "temp";
  dialog.TakeNativePath();
  EXPECT_EQ(dialog.textTempFolderLocation, "temp");
}

TEST_F(TempFolderLocationTest, WithoutDrivesANativePathIsAcceptedAndShownAsTyped) {
  paths = env::PathMap({}, disk.Path());
  const std::string home = disk.Path().string();
  for (const auto& [typed, stored, shown] :
       std::vector<std::tuple<std::string, std::string, std::string>>{{home + "/new", "C:\\new", home + "/new"},
                                                                      {home + "/new//", "C:\\new", home + "/new"},
                                                                      {"~/new", "C:\\new", home + "/new"},
                                                                      {"C:\\new", "C:\\new", home + "/new"},
                                                                      {home, "C:", home}}) {
    TempFolderLocation dialog = Dialog(typed);
    EXPECT_TRUE(dialog.Accept()) << typed;
    EXPECT_EQ(dialog.textTempFolderLocation, stored) << typed;
    EXPECT_EQ(dialog.Shown(), shown) << typed;
  }
  for (const char* typed : {"new", "a/b", "~you", ""}) EXPECT_FALSE(Dialog(typed).Accept()) << typed;
}

}  // namespace
}  // namespace vantorium::ui
