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
  [[nodiscard]] core::Project& Now() { return harness.model.CurrentProject(); }
  /// The calls from `first` on.
  [[nodiscard]] Calls CallsFrom(const std::string& first) const {
    return {std::find(harness.calls.begin(), harness.calls.end(), first), harness.calls.end()};
  }

  fakes::MainModelHarness harness;
};

TEST_F(MainModelTest, EveryCommandThatSavesOrGeneratesFirstStoresThePlacements) {
  harness.Start();
  const std::pair<const char*, std::function<void()>> commands[] = {
      {"New", [this] { harness.model.NewProject(); }},
      {"Open", [this] { harness.model.OpenProject(); }},
      {"Save", [this] { harness.model.SaveProject(); }},
      {"SaveAs", [this] { harness.model.SaveProjectAs(); }},
      {"View", [this] { harness.model.ViewGallery(0); }},
      {"Create", [this] { harness.model.CreateGallery(); }},
      {"ShutDown", [this] { std::ignore = harness.model.ShutDown(); }},
  };
  for (const auto& [name, run] : commands) {
    harness.calls.clear();
    harness.ChangeTitle(name);
    run();
    EXPECT_EQ(harness.calls.front(), "placings") << name;
    EXPECT_EQ(std::count(harness.calls.begin(), harness.calls.end(), "placings"), 1) << name;
  }
}

TEST_F(MainModelTest, UnstoredPlacementsAreSavedBeforeTheProjectIsLeft) {
  harness.Start();
  harness.ChooseFile("T:\\x.gpj");
  harness.windows.onPlacings = [this] { harness.ChangeTitle("placed"); };
  harness.boxes.answers = {env::BoxAnswer::Yes};
  EXPECT_TRUE(harness.model.ShutDown());
  EXPECT_EQ(harness.boxes.boxes.back().title, "Project modified");
  EXPECT_NE(harness.folder.Read("x.gpj").find("TITLE=\"placed\""), std::string::npos);
}

TEST_F(MainModelTest, NewShowsTheNewProject) {
  harness.Start();
  harness.ChangeTitle("x");
  harness.boxes.answers = {env::BoxAnswer::No};
  harness.model.NewProject();
  EXPECT_EQ(Now().settings.textGalleryTitle, "Gallery2");
  EXPECT_EQ(CallsFrom("settings"), (Calls{"settings", "list", "title Vantorium 3.0 - [Gallery2]", "preview",
                                          "images: 0 Image(s)", harness.calls.back()}));
}

TEST_F(MainModelTest, ACancelledNewKeepsTheProject) {
  harness.Start();
  harness.ChangeTitle("x");
  harness.boxes.answers = {env::BoxAnswer::Cancel};
  harness.model.NewProject();
  EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  EXPECT_TRUE(Now().IsModified);
  EXPECT_FALSE(harness.Called("first tab"));
}

TEST_F(MainModelTest, OpenShowsTheOpenedProject) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.ChooseFile("T:\\a.gpj");
  harness.model.SaveProject();
  harness.model.NewProject();
  EXPECT_TRUE(Now().images.Empty());
  harness.calls.clear();
  harness.model.OpenProject();
  EXPECT_EQ(Now().images.Count(), 1U);
  EXPECT_EQ(CallsFrom("settings"), (Calls{"settings", "list", "title Vantorium 3.0 - [a.gpj]", "preview",
                                          "images: 1 Image(s)", harness.calls.back()}));
}

TEST_F(MainModelTest, ACancelledOpenKeepsTheProject) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.ChooseFile("");
  harness.model.OpenProject();
  EXPECT_EQ(Now().images.Count(), 1U);
  EXPECT_FALSE(harness.Called("disabled"));
}

TEST_F(MainModelTest, SaveShowsAnInfoWindowWritesAndShowsTheRepairedSettings) {
  harness.Start();
  harness.ChangeTitle("");
  harness.ChooseFile("T:\\a.gpj");
  harness.model.SaveProject();
  EXPECT_TRUE(harness.Exists("a.gpj"));
  const Calls begin(harness.calls.begin(), harness.calls.begin() + 3);
  EXPECT_EQ(begin, (Calls{"placings", "info Please wait... Writing Project File.", "disabled"}));
  EXPECT_EQ(CallsFrom("enabled"), (Calls{"enabled", "info hidden", "title Vantorium 3.0 - [a.gpj]", "settings"}));
}

TEST_F(MainModelTest, SaveAsAsksForANameEvenIfTheProjectHasOne) {
  harness.Start();
  harness.ChooseFile("T:\\a.gpj");
  harness.model.SaveProject();
  harness.ChooseFile("T:\\b.gpj");
  harness.model.SaveProject();
  EXPECT_FALSE(harness.Exists("b.gpj"));
  harness.model.SaveProjectAs();
  EXPECT_TRUE(harness.Exists("b.gpj"));
  EXPECT_EQ(harness.calls.back(), "settings");
}

TEST_F(MainModelTest, AViewIsCreatedInTheTemporaryFolderAndOpened) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.model.ViewGallery(0);
  EXPECT_TRUE(harness.Exists("program/VANTORIUM_TEMP/index.htm"));
  const auto started = std::find_if(harness.calls.begin(), harness.calls.end(),
                                    [](const std::string& call) { return call.starts_with("start "); });
  ASSERT_NE(started, harness.calls.end());
  EXPECT_TRUE(started->ends_with((harness.folder.Path() / "program/VANTORIUM_TEMP/index.htm").string())) << *started;
  EXPECT_EQ(Calls(harness.calls.end() - 4, harness.calls.end()),
            (Calls{"beep information", "tray on", "status ", "settings"}));
}

TEST_F(MainModelTest, AViewInAListedBrowserStartsThatBrowser) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.model.CurrentPreferences().Browsers = {{"One", "T:\\one"}, {"Two", "T:\\two"}};
  harness.model.ViewGallery(2);
  const std::string program = "start " + (harness.folder.Path() / "two").string();
  EXPECT_TRUE(std::any_of(harness.calls.begin(), harness.calls.end(),
                          [&](const std::string& call) { return call.starts_with(program); }));
}

TEST_F(MainModelTest, AViewWithoutImagesIsRefused) {
  harness.Start();
  harness.model.ViewGallery(0);
  EXPECT_EQ(harness.calls, (Calls{"placings", "box No Images", "settings"}));
}

TEST_F(MainModelTest, CreateMakesTheGalleryInTheChosenPlace) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  generation::SetIndexFile(harness.windows.order.emplace(), "T:\\out\\start.htm");
  harness.model.CreateGallery();
  EXPECT_TRUE(harness.Exists("out/start.htm"));
  EXPECT_EQ(harness.model.CurrentPreferences().CreateFolder, "T:\\out\\");
  EXPECT_EQ(Calls(harness.calls.begin(), harness.calls.begin() + 4), (Calls{"placings", "asked", "tray off", "busy"}));
  EXPECT_EQ(harness.calls.back(), "settings");
}

TEST_F(MainModelTest, ACancelledCreateMakesNothing) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.model.CreateGallery();
  EXPECT_EQ(harness.calls, (Calls{"placings", "asked", "settings"}));
}

TEST_F(MainModelTest, AfterWarningsTheListIsShownAgainBecauseNamesMayHaveChanged) {
  harness.Start();
  harness.AddPhotograph("a#.jpg");
  generation::SetIndexFile(harness.windows.order.emplace(), "T:\\out\\index.htm");
  harness.windows.runsAnyway = false;
  harness.model.CreateGallery();
  const std::string warning =
      "warning Image 1, \"a#.jpg\": Links to \"a#.jpg.htm\" would not work: in a link, what follows \"#\" is a place "
      "in "
      "a page.";
  EXPECT_EQ(CallsFrom("asked"), (Calls{"asked", warning, "list", "settings"}));
  EXPECT_FALSE(harness.Exists("out"));
  harness.windows.runsAnyway = true;
  harness.model.CreateGallery();
  EXPECT_TRUE(harness.Exists("out/a#.jpg.htm"));
}

TEST_F(MainModelTest, WithoutWarningsARunBeginsAtOnce) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  generation::SetIndexFile(harness.windows.order.emplace(), "T:\\out\\index.htm");
  harness.windows.runsAnyway = false;
  harness.model.CreateGallery();
  EXPECT_FALSE(harness.Called("list"));
  EXPECT_TRUE(harness.Exists("out/index.htm"));
}

TEST_F(MainModelTest, AfterACancelledRunTheNextOneRuns) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.windows.progress.cancelled = true;
  harness.boxes.answers = {env::BoxAnswer::Yes};
  harness.model.ViewGallery(0);
  EXPECT_FALSE(harness.Exists("program/VANTORIUM_TEMP/index.htm"));
  EXPECT_TRUE(harness.model.Cancel().CancelRequested());
  harness.windows.progress.cancelled = false;
  harness.model.ViewGallery(0);
  EXPECT_TRUE(harness.Exists("program/VANTORIUM_TEMP/index.htm"));
}

TEST_F(MainModelTest, EditedBrowsersAreInTheMenusAndInThePreferencesFile) {
  harness.Start();
  harness.model.CurrentPreferences().Browsers = {{"One", "T:\\one"}};
  fakes::ScriptedEntryDialog entry;
  harness.model.EditBrowserList(entry);
  EXPECT_EQ(harness.calls, (Calls{"browser list", "menus of 1", "busy", "status Writing file \"vantorium.ini\"...",
                                  "status ", "idle"}));
  EXPECT_NE(harness.folder.Read("program/vantorium.ini").find("Name1=\"One\""), std::string::npos);
}

TEST_F(MainModelTest, ClearingTheTemporaryFolderShowsAnInfoWindow) {
  harness.Start();
  harness.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  harness.model.ClearTemporaryFolder();
  EXPECT_FALSE(harness.Exists("program/VANTORIUM_TEMP/old.htm"));
  EXPECT_EQ(Calls(harness.calls.begin(), harness.calls.begin() + 4),
            (Calls{"busy", "disabled", "info Please wait... Clearing Temporary Folder.", "turn"}));
  EXPECT_EQ(CallsFrom("enabled"), (Calls{"enabled", "info hidden", "idle", "turn"}));
}

TEST_F(MainModelTest, TheHelpIsOpenedFromTheBundledFiles) {
  harness.model.ShowHelp();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "The Help File cannot be found.");
  harness.folder.Write("data/help/index.html", "x");
  harness.calls.clear();
  harness.model.ShowHelp();
  EXPECT_EQ(harness.calls, (Calls{"open T:\\data\\help\\index.html"}));
}

TEST_F(MainModelTest, AHelpThatCannotBeOpenedIsReported) {
  harness.folder.Write("data/help/index.html", "x");
  harness.shell.fails = true;
  harness.model.ShowHelp();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "File Error");
  EXPECT_NE(harness.boxes.boxes[0].text, "The Help File cannot be found.");
}

TEST_F(MainModelTest, TheSampleIsTheCurrentImageOrElseTheBundledPicture) {
  harness.folder.Write("data/preview.jpg", "x");
  harness.Start();
  EXPECT_EQ(harness.model.Samples().selectedFile, "");
  EXPECT_EQ(harness.model.Samples().defaultSamples, (Calls{"T:\\program\\preview.jpg", "T:\\data\\preview.jpg"}));
  EXPECT_EQ(harness.model.Samples().tempFolderLocation, "T:\\program");
  harness.AddPhotograph("a.jpg");
  EXPECT_EQ(harness.model.Samples().selectedFile, "T:\\a.jpg");
}

}  // namespace
}  // namespace vantorium::ui
