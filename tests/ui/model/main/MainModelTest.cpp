// The commands of the main window, and the order of its start and its end.
#include "tests/ui/model/BrowserFakes.h"
#include "tests/ui/model/MainFakes.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using fakes::Calls;

class MainModelTest : public testing::Test {
 protected:
  [[nodiscard]] Project& Now() { return desk.model.CurrentProject(); }
  /// Changes the title as a user would.
  void ChangeTitle(const std::string& title) { desk.model.Editor().Set(&GalleryProject::textGalleryTitle, title); }
  /// The calls from `first` on.
  [[nodiscard]] Calls CallsFrom(const std::string& first) const {
    return {std::find(desk.calls.begin(), desk.calls.end(), first), desk.calls.end()};
  }

  fakes::MainModelDesk desk;
};

// The start

TEST_F(MainModelTest, TheStartReadsThePreferencesAndEndsWithANewProject) {
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

TEST_F(MainModelTest, PreferencesThatCannotBeReadAreToldFirst) {
  std::filesystem::create_directories(desk.folder.Path() / "program/vantorium.ini");
  desk.model.Start("");
  EXPECT_EQ(desk.calls.front(), "box File Error");
  EXPECT_EQ(std::count(desk.calls.begin(), desk.calls.end(), "start step"), 3) << "and the program starts";
}

TEST_F(MainModelTest, TheProjectOfTheCommandLineIsShownAtTheStart) {
  desk.Start();
  ChangeTitle("Ferien");
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

TEST_F(MainModelTest, ACommandLineThatIsNoProjectLeavesTheNewOne) {
  desk.model.Start("T:\\missing.gpj");
  EXPECT_FALSE(desk.boxes.boxes.empty());
  EXPECT_EQ(Now().ProjectFileName, "Gallery1");
  EXPECT_EQ(desk.calls.back(), "turn") << "and the start goes on";
}

TEST_F(MainModelTest, ANewProjectPutsTheColorsOfTheDesktopIntoTheColorDialog) {
  desk.view.systemColors[3] = 0x123456;
  desk.Start();
  EXPECT_EQ(desk.model.Colors().Custom(), desk.view.systemColors);
}

// The commands

TEST_F(MainModelTest, EveryCommandThatSavesOrGeneratesStoresThePlacingsBeforeEverythingElse) {
  desk.Start();
  const std::pair<const char*, std::function<void()>> commands[] = {
      {"New", [this] { desk.model.NewProject(); }},
      {"Open", [this] { desk.model.OpenProject(); }},
      {"Save", [this] { desk.model.SaveProject(); }},
      {"SaveAs", [this] { desk.model.SaveProjectAs(); }},
      {"View", [this] { desk.model.ViewGallery(0); }},
      {"Create", [this] { desk.model.CreateGallery(); }},
      {"ShutDown", [this] { std::ignore = desk.model.ShutDown(); }},
  };
  for (const auto& [name, run] : commands) {
    desk.calls.clear();
    ChangeTitle(name);
    run();
    EXPECT_EQ(desk.calls.front(), "placings") << name;
    EXPECT_EQ(std::count(desk.calls.begin(), desk.calls.end(), "placings"), 1) << name;
  }
}

TEST_F(MainModelTest, PlacingsThatAreStoredOnlyNowAreSavedBeforeTheProjectIsLeft) {
  desk.Start();
  desk.ChooseFile("T:\\x.gpj");
  desk.windows.onPlacings = [this] { ChangeTitle("placed"); };
  desk.boxes.answers = {BoxAnswer::Yes};
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_EQ(desk.boxes.boxes.back().title, "Project modified");
  EXPECT_NE(desk.folder.Read("x.gpj").find("TITLE=\"placed\""), std::string::npos);
}

TEST_F(MainModelTest, NewShowsTheNewProject) {
  desk.Start();
  ChangeTitle("x");
  desk.boxes.answers = {BoxAnswer::No};
  desk.model.NewProject();
  EXPECT_EQ(Now().settings.textGalleryTitle, "Gallery2");
  EXPECT_EQ(CallsFrom("settings"), (Calls{"settings", "list", "title Vantorium 3.0 - [Gallery2]", "preview",
                                          "images: 0 Image(s)", desk.calls.back()}));
}

TEST_F(MainModelTest, NewThatTheUserCancelsKeepsTheProject) {
  desk.Start();
  ChangeTitle("x");
  desk.boxes.answers = {BoxAnswer::Cancel};
  desk.model.NewProject();
  EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  EXPECT_TRUE(Now().IsModified);
  EXPECT_FALSE(desk.Called("first tab"));
}

TEST_F(MainModelTest, OpenShowsTheOpenedProject) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.ChooseFile("T:\\a.gpj");
  desk.model.SaveProject();
  desk.model.NewProject();
  EXPECT_TRUE(Now().images.Empty());
  desk.calls.clear();
  desk.model.OpenProject();
  EXPECT_EQ(Now().images.Count(), 1U);
  EXPECT_EQ(CallsFrom("settings"), (Calls{"settings", "list", "title Vantorium 3.0 - [a.gpj]", "preview",
                                          "images: 1 Image(s)", desk.calls.back()}));
}

TEST_F(MainModelTest, OpenWithoutAChosenFileKeepsTheProject) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.ChooseFile("");
  desk.model.OpenProject();
  EXPECT_EQ(Now().images.Count(), 1U);
  EXPECT_FALSE(desk.Called("disabled"));
}

TEST_F(MainModelTest, SaveWritesBehindAnInfoWindowAndShowsTheRepairedSettings) {
  desk.Start();
  ChangeTitle("");
  desk.ChooseFile("T:\\a.gpj");
  desk.model.SaveProject();
  EXPECT_TRUE(desk.Exists("a.gpj"));
  const Calls begin(desk.calls.begin(), desk.calls.begin() + 3);
  EXPECT_EQ(begin, (Calls{"placings", "info Please wait... Writing Project File.", "disabled"}));
  EXPECT_EQ(CallsFrom("enabled"), (Calls{"enabled", "info hidden", "title Vantorium 3.0 - [a.gpj]", "settings"}));
}

TEST_F(MainModelTest, SaveAsAsksForANameEvenIfTheProjectHasOne) {
  desk.Start();
  desk.ChooseFile("T:\\a.gpj");
  desk.model.SaveProject();
  desk.ChooseFile("T:\\b.gpj");
  desk.model.SaveProject();
  EXPECT_FALSE(desk.Exists("b.gpj"));
  desk.model.SaveProjectAs();
  EXPECT_TRUE(desk.Exists("b.gpj"));
  EXPECT_EQ(desk.calls.back(), "settings");
}

TEST_F(MainModelTest, AViewIsMadeInTheTemporaryFolderAndOpened) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.model.ViewGallery(0);
  EXPECT_TRUE(desk.Exists("program/VANTORIUM_TEMP/index.htm"));
  const auto started = std::find_if(desk.calls.begin(), desk.calls.end(),
                                    [](const std::string& call) { return call.starts_with("start "); });
  ASSERT_NE(started, desk.calls.end());
  EXPECT_TRUE(started->ends_with((desk.folder.Path() / "program/VANTORIUM_TEMP/index.htm").string())) << *started;
  EXPECT_EQ(Calls(desk.calls.end() - 4, desk.calls.end()), (Calls{"tray on", "idle", "status ", "settings"}));
}

TEST_F(MainModelTest, AViewInAListedBrowserStartsThatOne) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.model.CurrentPreferences().Browsers = {{"One", "T:\\one"}, {"Two", "T:\\two"}};
  desk.model.ViewGallery(2);
  const std::string program = "start " + (desk.folder.Path() / "two").string();
  EXPECT_TRUE(std::any_of(desk.calls.begin(), desk.calls.end(),
                          [&](const std::string& call) { return call.starts_with(program); }));
}

TEST_F(MainModelTest, AViewWithoutImagesIsRefused) {
  desk.Start();
  desk.model.ViewGallery(0);
  EXPECT_EQ(desk.calls, (Calls{"placings", "box No Images", "settings"}));
}

TEST_F(MainModelTest, CreateMakesTheGalleryWhereTheDialogSays) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  SetIndexFile(desk.windows.order.emplace(), "T:\\out\\start.htm");
  desk.model.CreateGallery();
  EXPECT_TRUE(desk.Exists("out/start.htm"));
  EXPECT_EQ(desk.model.CurrentPreferences().CreateFolder, "T:\\out\\");
  EXPECT_EQ(Calls(desk.calls.begin(), desk.calls.begin() + 4), (Calls{"placings", "asked", "tray off", "busy"}));
  EXPECT_EQ(desk.calls.back(), "settings");
}

TEST_F(MainModelTest, CreateThatTheUserCancelsInItsDialogMakesNothing) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.model.CreateGallery();
  EXPECT_EQ(desk.calls, (Calls{"placings", "asked", "settings"}));
}

TEST_F(MainModelTest, ARunThatTheUserCancelsEndsAndTheNextOneRuns) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.windows.progress.cancelled = true;
  desk.boxes.answers = {BoxAnswer::Yes};
  desk.model.ViewGallery(0);
  EXPECT_FALSE(desk.Exists("program/VANTORIUM_TEMP/index.htm"));
  EXPECT_TRUE(desk.model.Cancel().CancelRequested());
  desk.windows.progress.cancelled = false;
  desk.model.ViewGallery(0);
  EXPECT_TRUE(desk.Exists("program/VANTORIUM_TEMP/index.htm"));
}

TEST_F(MainModelTest, TheEditedBrowsersAreInTheMenusAndInThePreferencesFile) {
  desk.Start();
  desk.model.CurrentPreferences().Browsers = {{"One", "T:\\one"}};
  fakes::ScriptedEntryDialog entry;
  desk.model.EditBrowserList(entry);
  EXPECT_EQ(desk.calls, (Calls{"browser list", "menus of 1", "busy", "status Writing file \"vantorium.ini\"...",
                               "status ", "idle"}));
  EXPECT_NE(desk.folder.Read("program/vantorium.ini").find("Name1=\"One\""), std::string::npos);
}

TEST_F(MainModelTest, TheTemporaryFolderIsClearedBehindAnInfoWindow) {
  desk.Start();
  desk.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  desk.model.ClearTemporaryFolder();
  EXPECT_FALSE(desk.Exists("program/VANTORIUM_TEMP/old.htm"));
  EXPECT_EQ(Calls(desk.calls.begin(), desk.calls.begin() + 4),
            (Calls{"busy", "disabled", "info Please wait... Clearing Temporary Folder.", "turn"}));
  EXPECT_EQ(CallsFrom("enabled"), (Calls{"enabled", "info hidden", "idle", "turn"}));
}

TEST_F(MainModelTest, TheHelpIsOpenedFromTheFilesOfTheProgram) {
  desk.model.ShowHelp();
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].text, "The Help File cannot be found.");
  desk.folder.Write("data/help/index.html", "x");
  desk.calls.clear();
  desk.model.ShowHelp();
  EXPECT_EQ(desk.calls, (Calls{"open T:\\data\\help\\index.html"}));
}

TEST_F(MainModelTest, AHelpThatCannotBeOpenedIsTold) {
  desk.folder.Write("data/help/index.html", "x");
  desk.shell.fails = true;
  desk.model.ShowHelp();
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].title, "File Error");
  EXPECT_NE(desk.boxes.boxes[0].text, "The Help File cannot be found.");
}

TEST_F(MainModelTest, TheSampleIsTheCurrentImageAndElseOneOfTheProgram) {
  desk.folder.Write("data/preview.jpg", "x");
  desk.Start();
  EXPECT_EQ(desk.model.Samples().selectedFile, "");
  EXPECT_EQ(desk.model.Samples().defaultSamples, (Calls{"T:\\program\\preview.jpg", "T:\\data\\preview.jpg"}));
  EXPECT_EQ(desk.model.Samples().tempFolderLocation, "T:\\program");
  desk.AddPhotograph("a.jpg");
  EXPECT_EQ(desk.model.Samples().selectedFile, "T:\\a.jpg");
}

// The end

TEST_F(MainModelTest, TheEndSavesThePreferencesThenClearsTheProjectAndTheTemporaryFolderThenClosesTheWindows) {
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

TEST_F(MainModelTest, EveryStepOfTheEndIsDrawn) {
  desk.Start();
  std::ignore = desk.model.ShutDown();
  for (std::size_t i = 0; i < desk.calls.size(); ++i) {
    if (!desk.calls[i].starts_with("shutdown ")) continue;
    EXPECT_EQ(desk.calls.at(i + 1), "turn") << desk.calls[i];
  }
  EXPECT_TRUE(desk.Called("shutdown Cleanup"));
}

TEST_F(MainModelTest, ATemporaryFolderThatIsKeptIsNotSpokenOf) {
  desk.Start();
  desk.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  desk.model.CurrentPreferences().TempFolderAutoClear = 0;
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_FALSE(desk.Called("shutdown Clearing Temporary Folder"));
  EXPECT_TRUE(desk.Exists("program/VANTORIUM_TEMP/old.htm"));
}

TEST_F(MainModelTest, NothingEndsIfTheUserCancelsOrTheSaveFails) {
  desk.folder.Write("file", "");
  desk.Start();
  ChangeTitle("x");
  for (const auto& [answer, file] : {std::pair{BoxAnswer::Cancel, "T:\\a.gpj"}, std::pair{BoxAnswer::Yes, ""},
                                     std::pair{BoxAnswer::Yes, "T:\\file\\a.gpj"}}) {
    desk.calls.clear();
    desk.boxes.answers = {answer};
    desk.ChooseFile(file);
    EXPECT_FALSE(desk.model.ShutDown()) << file;
    EXPECT_FALSE(desk.Called("shutdown Saving Preferences"));
    EXPECT_FALSE(desk.Exists("program/vantorium.ini"));
    EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  }
}

TEST_F(MainModelTest, NoToTheQuestionEndsWithoutSaving) {
  desk.Start();
  ChangeTitle("x");
  desk.boxes.answers = {BoxAnswer::No};
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_TRUE(desk.fileBrowser.requests.empty());
  EXPECT_EQ(desk.calls.back(), "idle");
}

}  // namespace
}  // namespace vantorium
