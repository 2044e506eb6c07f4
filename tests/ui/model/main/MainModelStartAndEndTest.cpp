// The order of the steps at the start and at the end of the main window.
#include "tests/ui/model/MainFakes.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Calls;

class MainModelStartAndEndTest : public testing::Test {
 protected:
  [[nodiscard]] core::Project& Now() { return harness.model.CurrentProject(); }

  fakes::MainModelHarness harness;
};

// The start

TEST_F(MainModelStartAndEndTest, TheStartReadsThePreferencesAndEndsWithANewProject) {
  harness.folder.Write("program/vantorium.ini",
                       "[FOLDERS]\r\nProjectFolder=\"T:\\mine\\\"\r\n[BROWSERS]\r\nCount=\"1\"\r\nName1=\"One\"\r\n"
                       "Location1=\"T:\\one\"\r\n");
  harness.model.Start("");
  EXPECT_EQ(Calls(harness.calls.begin(), harness.calls.begin() + 5),
            (Calls{"start step", "turn", "menus of 1", "start step", "turn"}));
  EXPECT_EQ(Calls(harness.calls.end() - 2, harness.calls.end()), (Calls{"start step", "turn"}));
  EXPECT_EQ(std::count(harness.calls.begin(), harness.calls.end(), "start step"), 3);
  EXPECT_EQ(Now().LastProjectFolder, "T:\\mine\\");
  EXPECT_EQ(Now().ProjectFileName, "Gallery1");
  EXPECT_FALSE(Now().IsModified);
  EXPECT_TRUE(Now().IsPristine);
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(MainModelStartAndEndTest, UnreadablePreferencesAreReportedFirst) {
  std::filesystem::create_directories(harness.folder.Path() / "program/vantorium.ini");
  harness.model.Start("");
  EXPECT_EQ(harness.calls.front(), "box File Error");
  EXPECT_EQ(std::count(harness.calls.begin(), harness.calls.end(), "start step"), 3) << "the program starts";
}

TEST_F(MainModelStartAndEndTest, TheProjectOfTheCommandLineIsOpenedAtTheStart) {
  harness.Start();
  harness.ChangeTitle("Ferien");
  harness.ChooseFile("T:\\ferien.gpj");
  harness.model.SaveProject();
  fakes::MainModelHarness next;
  std::filesystem::copy(harness.folder.Path() / "ferien.gpj", next.folder.Path() / "ferien.gpj");
  next.model.Start("\"T:\\ferien.gpj\"");
  EXPECT_EQ(next.model.CurrentProject().settings.textGalleryTitle, "Ferien");
  const Calls end(next.calls.end() - 8, next.calls.end());
  EXPECT_EQ(end, (Calls{"settings", "list", "title Vantorium 3.0 - [ferien.gpj]", "preview", "images: 0 Image(s)",
                        end[5], "start step", "turn"}));
}

TEST_F(MainModelStartAndEndTest, ACommandLineThatIsNotAProjectLeavesANewProject) {
  harness.model.Start("T:\\missing.gpj");
  EXPECT_FALSE(harness.boxes.boxes.empty());
  EXPECT_EQ(Now().ProjectFileName, "Gallery1");
  EXPECT_EQ(harness.calls.back(), "turn") << "the start continues";
}

TEST_F(MainModelStartAndEndTest, ANewProjectResetsTheCustomColorsToThoseOfTheDesktop) {
  harness.view.systemColors[3] = 0x123456;
  harness.Start();
  EXPECT_EQ(harness.model.Colors().Custom(), harness.view.systemColors);
}

// The end

TEST_F(MainModelStartAndEndTest,
       TheEndSavesThePreferencesClearsTheProjectAndTheTemporaryFolderAndThenClosesTheWindows) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  Now().IsModified = false;
  harness.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  Now().LastProjectFolder = "T:\\mine\\";
  bool hadPreferences = false;
  std::size_t images = 1;
  harness.loop.onTurn = [&](int) {
    if (harness.calls.back() == "shutdown Clearing Project") {
      hadPreferences = harness.folder.Read("program/vantorium.ini").find("T:\\mine\\") != std::string::npos;
    }
    if (harness.calls.back() == "shutdown Clearing Temporary Folder") images = Now().images.Count();
  };
  EXPECT_TRUE(harness.model.ShutDown());
  EXPECT_EQ(harness.calls,
            (Calls{"placings", "shutdown Saving Preferences", "busy", "shutdown Clearing Project", "list", "disabled",
                   "shutdown Clearing Temporary Folder", "enabled", "shutdown Cleanup", "all closed", "idle"}));
  EXPECT_TRUE(hadPreferences);
  EXPECT_EQ(images, 0U);
  EXPECT_FALSE(harness.Exists("program/VANTORIUM_TEMP/old.htm"));
}

TEST_F(MainModelStartAndEndTest, EveryStepOfTheShutdownIsPainted) {
  harness.Start();
  std::ignore = harness.model.ShutDown();
  for (std::size_t i = 0; i < harness.calls.size(); ++i) {
    if (!harness.calls[i].starts_with("shutdown ")) continue;
    EXPECT_EQ(harness.calls.at(i + 1), "turn") << harness.calls[i];
  }
  EXPECT_TRUE(harness.Called("shutdown Cleanup"));
}

TEST_F(MainModelStartAndEndTest, ATemporaryFolderThatIsKeptIsNotMentioned) {
  harness.Start();
  harness.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  harness.model.CurrentPreferences().TempFolderAutoClear = 0;
  EXPECT_TRUE(harness.model.ShutDown());
  EXPECT_FALSE(harness.Called("shutdown Clearing Temporary Folder"));
  EXPECT_TRUE(harness.Exists("program/VANTORIUM_TEMP/old.htm"));
}

TEST_F(MainModelStartAndEndTest, TheProgramStaysIfTheUserCancelsOrTheSaveFails) {
  harness.folder.Write("file", "");
  harness.Start();
  harness.ChangeTitle("x");
  for (const auto& [answer, file] : {std::pair{env::BoxAnswer::Cancel, "T:\\a.gpj"}, std::pair{env::BoxAnswer::Yes, ""},
                                     std::pair{env::BoxAnswer::Yes, "T:\\file\\a.gpj"}}) {
    harness.calls.clear();
    harness.boxes.answers = {answer};
    harness.ChooseFile(file);
    EXPECT_FALSE(harness.model.ShutDown()) << file;
    EXPECT_FALSE(harness.Called("shutdown Saving Preferences"));
    EXPECT_FALSE(harness.Exists("program/vantorium.ini"));
    EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  }
}

TEST_F(MainModelStartAndEndTest, AnsweringNoEndsWithoutSaving) {
  harness.Start();
  harness.ChangeTitle("x");
  harness.boxes.answers = {env::BoxAnswer::No};
  EXPECT_TRUE(harness.model.ShutDown());
  EXPECT_TRUE(harness.fileBrowser.requests.empty());
  EXPECT_EQ(harness.calls.back(), "idle");
}

}  // namespace
}  // namespace vantorium::ui
