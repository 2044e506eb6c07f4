// The commands of the main window.
#include "tests/ui/model/BrowserFakes.h"
#include "tests/ui/model/MainFakes.h"

#include <algorithm>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Calls;

class MainModelTest : public testing::Test {
 protected:
  [[nodiscard]] core::Project& Now() { return desk.model.CurrentProject(); }
  /// The calls from `first` on.
  [[nodiscard]] Calls CallsFrom(const std::string& first) const {
    return {std::find(desk.calls.begin(), desk.calls.end(), first), desk.calls.end()};
  }

  fakes::MainModelDesk desk;
};

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
    desk.ChangeTitle(name);
    run();
    EXPECT_EQ(desk.calls.front(), "placings") << name;
    EXPECT_EQ(std::count(desk.calls.begin(), desk.calls.end(), "placings"), 1) << name;
  }
}

TEST_F(MainModelTest, PlacingsThatAreStoredOnlyNowAreSavedBeforeTheProjectIsLeft) {
  desk.Start();
  desk.ChooseFile("T:\\x.gpj");
  desk.windows.onPlacings = [this] { desk.ChangeTitle("placed"); };
  desk.boxes.answers = {env::BoxAnswer::Yes};
  EXPECT_TRUE(desk.model.ShutDown());
  EXPECT_EQ(desk.boxes.boxes.back().title, "Project modified");
  EXPECT_NE(desk.folder.Read("x.gpj").find("TITLE=\"placed\""), std::string::npos);
}

TEST_F(MainModelTest, NewShowsTheNewProject) {
  desk.Start();
  desk.ChangeTitle("x");
  desk.boxes.answers = {env::BoxAnswer::No};
  desk.model.NewProject();
  EXPECT_EQ(Now().settings.textGalleryTitle, "Gallery2");
  EXPECT_EQ(CallsFrom("settings"), (Calls{"settings", "list", "title Vantorium 3.0 - [Gallery2]", "preview",
                                          "images: 0 Image(s)", desk.calls.back()}));
}

TEST_F(MainModelTest, NewThatTheUserCancelsKeepsTheProject) {
  desk.Start();
  desk.ChangeTitle("x");
  desk.boxes.answers = {env::BoxAnswer::Cancel};
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

TEST_F(MainModelTest, SaveWritesAfterAnInfoWindowAndShowsTheRepairedSettings) {
  desk.Start();
  desk.ChangeTitle("");
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
  EXPECT_EQ(Calls(desk.calls.end() - 4, desk.calls.end()),
            (Calls{"beep information", "tray on", "status ", "settings"}));
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
  generation::SetIndexFile(desk.windows.order.emplace(), "T:\\out\\start.htm");
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

TEST_F(MainModelTest, BeforeARunTheUserIsWarnedAndTheListIsShownAgainAsNamesMayHaveChanged) {
  desk.Start();
  desk.AddPhotograph("a#.jpg");
  generation::SetIndexFile(desk.windows.order.emplace(), "T:\\out\\index.htm");
  desk.windows.runsAnyway = false;
  desk.model.CreateGallery();
  const std::string warning =
      "warning Image 1, \"a#.jpg\": Links to \"a#.jpg.htm\" would not work: in a link, what follows \"#\" is a place "
      "in "
      "a page.";
  EXPECT_EQ(CallsFrom("asked"), (Calls{"asked", warning, "list", "settings"}));
  EXPECT_FALSE(desk.Exists("out"));
  desk.windows.runsAnyway = true;
  desk.model.CreateGallery();
  EXPECT_TRUE(desk.Exists("out/a#.jpg.htm"));
}

TEST_F(MainModelTest, WithNothingToWarnOfARunBeginsAtOnce) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  generation::SetIndexFile(desk.windows.order.emplace(), "T:\\out\\index.htm");
  desk.windows.runsAnyway = false;
  desk.model.CreateGallery();
  EXPECT_FALSE(desk.Called("list"));
  EXPECT_TRUE(desk.Exists("out/index.htm"));
}

TEST_F(MainModelTest, ARunThatTheUserCancelsEndsAndTheNextOneRuns) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.windows.progress.cancelled = true;
  desk.boxes.answers = {env::BoxAnswer::Yes};
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

TEST_F(MainModelTest, TheTemporaryFolderIsClearedAfterAnInfoWindow) {
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

TEST_F(MainModelTest, AHelpThatCannotBeOpenedIsReported) {
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

}  // namespace
}  // namespace vantorium::ui
