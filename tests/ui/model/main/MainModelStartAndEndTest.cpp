// The order of the start and of the end of the main window.
#include "tests/ui/model/MainFakes.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Calls;

class MainModelStartAndEndTest : public testing::Test {
 protected:
  [[nodiscard]] core::Project& Now() { return desk.model.CurrentProject(); }

  fakes::MainModelDesk desk;
};

// The start

TEST_F(MainModelStartAndEndTest, TheStartReadsThePreferencesAndEndsWithANewProject) {
  desk.folder.Write("program/vantorium.ini",
                    "[FOLDERS]\r\nProjectFolder=\"T:\\mine\\\"\r\n[BROWSERS]\r\nCount=\"1\"\r\nName1=\"One\"\r\n"
                    "Location1=\"T:\\one\"\r\n");
  desk.model.Start("");
  EXPECT_EQ(Calls(desk.calls.begin(), desk.calls.begin() + 5),
            (Calls{"start step", "turn", "menus of 1", "start step", "turn"}));
  EXPECT_EQ(Calls(desk.calls.end() - 2, desk.calls.end()), (Calls{"start step", "turn"}));
  EXPECT_EQ(std::count(desk.calls.begin(), desk.calls.end(), "start step"), 3);
  EXPECT_EQ(Now().LastProjectFolder, "T:\\mine\\");
  EXPECT_EQ(Now().ProjectFileName, "Gallery1");
  EXPECT_FALSE(Now().IsModified);
  EXPECT_TRUE(Now().IsPristine);
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(MainModelStartAndEndTest, PreferencesThatCannotBeReadAreReportedFirst) {
  std::filesystem::create_directories(desk.folder.Path() / "program/vantorium.ini");
  desk.model.Start("");
  EXPECT_EQ(desk.calls.front(), "box File Error");
  EXPECT_EQ(std::count(desk.calls.begin(), desk.calls.end(), "start step"), 3) << "and the program starts";
}

TEST_F(MainModelStartAndEndTest, TheProjectOfTheCommandLineIsShownAtTheStart) {
  desk.Start();
  desk.ChangeTitle("Ferien");
  desk.ChooseFile("T:\\ferien.gpj");
  desk.model.SaveProject();
  fakes::MainModelDesk next;
  std::filesystem::copy(desk.folder.Path() / "ferien.gpj", next.folder.Path() / "ferien.gpj");
  next.model.Start("\"T:\\ferien.gpj\"");
  EXPECT_EQ(next.model.CurrentProject().settings.textGalleryTitle, "Ferien");
  const Calls end(next.calls.end() - 8, next.calls.end());
  EXPECT_EQ(end, (Calls{"settings", "list", "title Vantorium 3.0 - [ferien.gpj]", "preview", "images: 0 Image(s)",
                        end[5], "start step", "turn"}));
}

TEST_F(MainModelStartAndEndTest, ACommandLineThatIsNotAProjectLeavesTheNewOne) {
  desk.model.Start("T:\\missing.gpj");
  EXPECT_FALSE(desk.boxes.boxes.empty());
  EXPECT_EQ(Now().ProjectFileName, "Gallery1");
  EXPECT_EQ(desk.calls.back(), "turn") << "and the start goes on";
}

TEST_F(MainModelStartAndEndTest, ANewProjectPutsTheColorsOfTheDesktopIntoTheColorDialog) {
  desk.view.systemColors[3] = 0x123456;
  desk.Start();
  EXPECT_EQ(desk.model.Colors().Custom(), desk.view.systemColors);
}

// The end

TEST_F(MainModelStartAndEndTest,
       TheEndSavesThePreferencesThenClearsTheProjectAndTheTemporaryFolderThenClosesTheWindows) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  Now().IsModified = false;
  desk.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  Now().LastProjectFolder = "T:\\mine\\";
  bool hadPreferences = false;
  std::size_t images = 1;
  desk.loop.onTurn = [&](int) {
    if (desk.calls.back() == "shutdown Clearing Project") {
      hadPreferences = desk.folder.Read("program/vantorium.ini").find("T:\\mine\\") != std::string::npos;
    }
    if (desk.calls.back() == "shutdown Clearing Temporary Folder") images = Now().images.Count();
  };
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_EQ(desk.calls,
            (Calls{"placings", "shutdown Saving Preferences", "busy", "shutdown Clearing Project", "list", "disabled",
                   "shutdown Clearing Temporary Folder", "enabled", "shutdown Cleanup", "all closed", "idle"}));
  EXPECT_TRUE(hadPreferences);
  EXPECT_EQ(images, 0U);
  EXPECT_FALSE(desk.Exists("program/VANTORIUM_TEMP/old.htm"));
}

TEST_F(MainModelStartAndEndTest, EveryStepOfTheEndIsDrawn) {
  desk.Start();
  std::ignore = desk.model.ShutDown();
  for (std::size_t i = 0; i < desk.calls.size(); ++i) {
    if (!desk.calls[i].starts_with("shutdown ")) continue;
    EXPECT_EQ(desk.calls.at(i + 1), "turn") << desk.calls[i];
  }
  EXPECT_TRUE(desk.Called("shutdown Cleanup"));
}

TEST_F(MainModelStartAndEndTest, ATemporaryFolderThatIsKeptIsNotSpokenOf) {
  desk.Start();
  desk.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  desk.model.CurrentPreferences().TempFolderAutoClear = 0;
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_FALSE(desk.Called("shutdown Clearing Temporary Folder"));
  EXPECT_TRUE(desk.Exists("program/VANTORIUM_TEMP/old.htm"));
}

TEST_F(MainModelStartAndEndTest, NothingEndsIfTheUserCancelsOrTheSaveFails) {
  desk.folder.Write("file", "");
  desk.Start();
  desk.ChangeTitle("x");
  for (const auto& [answer, file] : {std::pair{env::BoxAnswer::Cancel, "T:\\a.gpj"}, std::pair{env::BoxAnswer::Yes, ""},
                                     std::pair{env::BoxAnswer::Yes, "T:\\file\\a.gpj"}}) {
    desk.calls.clear();
    desk.boxes.answers = {answer};
    desk.ChooseFile(file);
    EXPECT_FALSE(desk.model.ShutDown()) << file;
    EXPECT_FALSE(desk.Called("shutdown Saving Preferences"));
    EXPECT_FALSE(desk.Exists("program/vantorium.ini"));
    EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  }
}

TEST_F(MainModelStartAndEndTest, NoToTheQuestionEndsWithoutSaving) {
  desk.Start();
  desk.ChangeTitle("x");
  desk.boxes.answers = {env::BoxAnswer::No};
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_TRUE(desk.fileBrowser.requests.empty());
  EXPECT_EQ(desk.calls.back(), "idle");
}

}  // namespace
}  // namespace vantorium::ui
