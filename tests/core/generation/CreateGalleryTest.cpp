#include "core/generation/CreateGallery.h"
#include "env/PathText.h"
#include "tests/core/generation/RunFixture.h"

namespace vantorium::generation {
namespace {

class CreateGalleryTest : public RunFixture {
 protected:
  CreateGalleryTest() {
    preferences.TempFolderLocation = "T:\\place";
    host.order.emplace();
    SetIndexFile(*host.order, "T:\\web\\start.htm");
  }

  RunEnd Create(GenerationMode mode, std::int16_t browserIndex = 0) {
    GalleryCreator creator(project, preferences, "T:\\program", environment);
    return creator.CreateGallery(mode, browserIndex);
  }

  /// The started programs.
  [[nodiscard]] fakes::Journal Started() const {
    fakes::Journal started;
    std::ranges::copy_if(journal, std::back_inserter(started),
                         [](const std::string& line) { return line.starts_with("start "); });
    return started;
  }
  [[nodiscard]] std::string PreviewIndex() const { return (folder.Path() / "place/VANTORIUM_TEMP/index.htm").string(); }
  void ExpectErrorBox(const std::string& text) const {
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
    EXPECT_EQ(boxes.boxes[0].title, "Error");
    EXPECT_EQ(boxes.boxes[0].text, text);
  }

  env::Preferences preferences;
};

TEST_F(CreateGalleryTest, ACancelledDialogDoesNothing) {
  AddPhotograph("a");
  host.order.reset();
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::NotStarted);
  EXPECT_EQ(journal, (fakes::Journal{"asked"}));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "place"));
}

TEST_F(CreateGalleryTest, TheChosenFileGivesFolderAndIndexFileOfTheGallery) {
  AddPhotograph("a");
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
  EXPECT_EQ(FilesIn("web").count("start.htm"), 1U);
  EXPECT_EQ(preferences.CreateFolder, "T:\\web\\");
  EXPECT_EQ(preferences.GalleryIndexFileName, "start.htm");
  EXPECT_TRUE(std::filesystem::is_directory(folder.Path() / "place/VANTORIUM_TEMP"));
}

TEST_F(CreateGalleryTest, APathBelowTheRootKeepsItsLeadingSeparator) {
  AddPhotograph("a");
  SetIndexFile(*host.order, env::WithBackslashes((folder.Path() / "web/start.htm").string()));
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
  EXPECT_EQ(FilesIn("web").count("start.htm"), 1U);
}

TEST_F(CreateGalleryTest, AnOrderIsExecutedWithoutTheDialog) {
  AddPhotograph("a");
  RunOrder order;
  SetIndexFile(order, "T:\\given\\page.htm");
  EXPECT_EQ(GalleryCreator(project, preferences, "T:\\program", environment).CarryOut(order, 0), RunEnd::Success);
  EXPECT_EQ(std::ranges::count(journal, "asked"), 0);
  EXPECT_EQ(FilesIn("given").count("page.htm"), 1U);
  EXPECT_EQ(preferences.CreateFolder, "T:\\given\\");
}

TEST_F(CreateGalleryTest, TheSwitchesOfTheDialogReachTheRun) {
  AddPhotograph("a");
  host.order->CreateImages = false;
  host.order->CreateThumbnails = false;
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
  EXPECT_EQ(FilesIn("web"), (std::set<std::string>{"start.htm", "thumbpage_1.htm", "a.htm"}));
}

TEST_F(CreateGalleryTest, AFolderThatCannotBeReadIsReportedBeforeItsUpload) {
  host.order = RunOrder{.Mode = GenerationMode::Upload, .OutputFolder = "T:\\nowhere\\"};
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::NotStarted);
  EXPECT_EQ(journal, (fakes::Journal{"asked"}));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "File Error");
  EXPECT_EQ(boxes.boxes[0].text, "The folder \"T:\\nowhere\\\" cannot be read.");
}

TEST_F(CreateGalleryTest, AfterWarningsTheUserDecidesWhetherTheRunStarts) {
  AddPhotograph("a#1");
  host.startsAnyway = false;
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::NotStarted);
  EXPECT_EQ(journal, (fakes::Journal{"asked"}));
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "web"));
  host.startsAnyway = true;
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
  EXPECT_EQ(FilesIn("web").count("a#1.htm"), 1U);
  EXPECT_EQ(host.warnings.size(), 2U) << "one warning for each run";
}

TEST_F(CreateGalleryTest, WithoutWarningsTheUserIsNotAsked) {
  AddPhotograph("a");
  host.startsAnyway = false;
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
  AddPhotograph("b#");
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success) << "a preview has no warnings";
  EXPECT_TRUE(host.warnings.empty());
}

TEST_F(CreateGalleryTest, AnEmptyListIsRefusedBeforeARun) {
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::NotStarted);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "No Images");
  EXPECT_EQ(boxes.boxes[0].text, "You cannot create a Gallery without Images.");
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_TRUE(FilesIn("web").empty());
}

TEST_F(CreateGalleryTest, APreviewOfAnEmptyListIsRefusedBeforeAnyFolderIsCreated) {
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::NotStarted);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].text, "You cannot preview a Gallery without Images.");
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "place"));
}

TEST_F(CreateGalleryTest, APreviewAsksNothingAndOpensInTheDefaultBrowser) {
  AddPhotograph("a");
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success);
  EXPECT_EQ(std::ranges::count(journal, "asked"), 0);
  EXPECT_EQ(Started(), (fakes::Journal{"start xdg-open " + PreviewIndex()}));
  EXPECT_EQ(FilesIn("place/VANTORIUM_TEMP").count("index.htm"), 1U);
}

TEST_F(CreateGalleryTest, APreviewOpensInTheListedBrowserOfItsIndex) {
  AddPhotograph("a");
  preferences.Browsers = {{"One", "T:\\one"}, {"Two", "T:\\two"}};
  Create(GenerationMode::Preview, 2);
  EXPECT_EQ(Started(), (fakes::Journal{"start " + folder.Path().string() + "/two " + PreviewIndex()}));
}

TEST_F(CreateGalleryTest, IfAnOpenerDoesNotStartTheOtherIsTried) {
  AddPhotograph("a");
  shell.startsThatFail = 1;
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success);
  EXPECT_EQ(Started(), (fakes::Journal{"start xdg-open " + PreviewIndex(), "start gio open " + PreviewIndex()}));
  EXPECT_TRUE(boxes.boxes.empty()) << boxes.boxes[0].text;
}

TEST_F(CreateGalleryTest, AListedBrowserThatDoesNotStartIsTriedAsACommandLine) {
  AddPhotograph("a");
  preferences.Browsers = {{"One", "one --new"}};
  shell.startsThatFail = 1;
  EXPECT_EQ(Create(GenerationMode::Preview, 1), RunEnd::Success);
  EXPECT_EQ(Started(), (fakes::Journal{"start one --new " + PreviewIndex(),
                                       "start /bin/sh -c one --new \"$1\" sh " + PreviewIndex()}));
  EXPECT_TRUE(boxes.boxes.empty()) << boxes.boxes[0].text;
}

TEST_F(CreateGalleryTest, IfBothAttemptsFailTheSecondFailureIsReported) {
  AddPhotograph("a");
  shell.startsThatFail = 2;
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success);
  EXPECT_EQ(Started().size(), 2U);
  ExpectErrorBox("Error: 75\r\r\"gio\" failed");
}

TEST_F(CreateGalleryTest, IfBothAttemptsWithAListedBrowserFailTheSecondFailureIsReported) {
  AddPhotograph("a");
  preferences.Browsers = {{"One", "one"}};
  shell.startsThatFail = 2;
  EXPECT_EQ(Create(GenerationMode::Preview, 1), RunEnd::Success);
  ExpectErrorBox("Error: 75\r\r\"/bin/sh\" failed");
}

TEST_F(CreateGalleryTest, TheRunDoesNotWaitForAnOpenerAndReportsItsFailureLater) {
  AddPhotograph("a");
  shell.startsThatFail = 2;
  shell.failsLater = true;
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success);
  EXPECT_TRUE(host.progress.unloaded);
  EXPECT_EQ(journal.back(), "tray on") << "the run is over";
  EXPECT_EQ(Started().size(), 1U);
  shell.LetFail();
  EXPECT_EQ(Started().size(), 2U);
  EXPECT_TRUE(boxes.boxes.empty());
  shell.LetFail();
  ExpectErrorBox("Error: 75\r\r\"gio\" failed");
}

TEST_F(CreateGalleryTest, AnOpenerIsStartedAfterTheEndOfTheProgressWindow) {
  AddPhotograph("a");
  Create(GenerationMode::Preview);
  const auto unloaded = std::ranges::find(journal, "progress unloaded");
  EXPECT_LT(unloaded, std::ranges::find(journal, Started().at(0)));
}

TEST_F(CreateGalleryTest, ABrowserThatIsNotListedIsReported) {
  AddPhotograph("a");
  preferences.Browsers = {{"One", "one"}};
  for (const std::int16_t index : {std::int16_t{2}, std::int16_t{-1}, std::int16_t{32767}, std::int16_t{-32768}}) {
    boxes.boxes.clear();
    EXPECT_EQ(Create(GenerationMode::Preview, index), RunEnd::Success) << index;
    ExpectErrorBox("Error: 9\r\rSubscript out of range");
  }
  EXPECT_TRUE(Started().empty());
}

TEST_F(CreateGalleryTest, AListedBrowserWithoutALocationIsReported) {
  AddPhotograph("a");
  preferences.Browsers = {{"One", ""}};
  EXPECT_EQ(Create(GenerationMode::Preview, 1), RunEnd::Success);
  EXPECT_TRUE(Started().empty());
  ExpectErrorBox("Error: 53\r\rFile not found");
}

TEST_F(CreateGalleryTest, AFailedPreviewIsNotOpened) {
  AddPhotograph("a");
  AddPhotograph("b");
  project.settings.textThumbnailsTableColumns = "0";
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Failure);
  EXPECT_TRUE(Started().empty());
}

TEST_F(CreateGalleryTest, EveryRunEndsWithABeepTheTrayIconAndAnEmptyStatus) {
  AddPhotograph("a");
  Create(GenerationMode::Create);
  EXPECT_EQ(journal, (fakes::Journal{"asked", "tray off", "busy", "window off", "progress shown", "window on", "idle",
                                     "progress idle", "progress unloaded", "beep information", "tray on"}));
  EXPECT_EQ(host.statuses.back(), "");
}

TEST_F(CreateGalleryTest, EmptySettingsAreRepairedBeforeTheRun) {
  AddPhotograph("a");
  project.settings.textThumbnailsTableColumns = "";
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
  EXPECT_EQ(project.settings.textThumbnailsTableColumns, "1");
  EXPECT_TRUE(project.IsModified);
}

TEST_F(CreateGalleryTest, AnEmptyTempFolderLocationBecomesTheProgramFolder) {
  AddPhotograph("a");
  preferences.TempFolderLocation = "";
  Create(GenerationMode::Preview);
  EXPECT_EQ(preferences.TempFolderLocation, "T:\\program");
  EXPECT_EQ(FilesIn("program/VANTORIUM_TEMP").count("index.htm"), 1U);
}

TEST_F(CreateGalleryTest, ATemporaryFolderInUseIsRefused) {
  AddPhotograph("a");
  const auto place = folder.Path() / "place/VANTORIUM_TEMP";
  std::filesystem::create_directories(place);
  {
    const env::TempFolderLock other(place);
    EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::NotStarted);
    host.order->Mode = GenerationMode::Publish;
    EXPECT_EQ(Create(GenerationMode::Create), RunEnd::NotStarted);
    ASSERT_EQ(boxes.boxes.size(), 2U);
    for (const auto& shown : boxes.boxes) {
      EXPECT_EQ(shown.title, "Directory Error");
      EXPECT_EQ(shown.text, "Another run is using the temporary folder \"" + place.string() +
                                "\".  Please wait for its end, or choose another location.");
    }
    EXPECT_TRUE(std::filesystem::is_empty(place));
    host.order->Mode = GenerationMode::Create;
    EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success) << "this run needs no temporary folder";
  }
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success);
}

TEST_F(CreateGalleryTest, ARunReleasesTheTemporaryFolderAtItsEnd) {
  AddPhotograph("a");
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::Success);
  EXPECT_FALSE(env::TempFolderLock(folder.Path() / "place/VANTORIUM_TEMP").IsTakenElsewhere());
}

TEST_F(CreateGalleryTest, ALinkInTheTemporaryFolderIsRefused) {
  AddPhotograph("a");
  std::filesystem::create_directories(folder.Path() / "place/VANTORIUM_TEMP");
  std::filesystem::create_directory(folder.Path() / "stranger");
  std::filesystem::create_directory_symlink(folder.Path() / "stranger", folder.Path() / "place/VANTORIUM_TEMP/thumbs");
  EXPECT_EQ(Create(GenerationMode::Preview), RunEnd::NotStarted);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_NE(boxes.boxes[0].text.find("thumbs\" is a symbolic link."), std::string::npos) << boxes.boxes[0].text;
  EXPECT_TRUE(std::filesystem::is_empty(folder.Path() / "stranger"));
}

TEST_F(CreateGalleryTest, ACancelDoesNotAffectTheNextRun) {
  AddPhotograph("a");
  CancelInTurn(2);
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Cancelled);
  loop.onTurn = nullptr;
  host.progress.cancelled = false;
  EXPECT_EQ(Create(GenerationMode::Create), RunEnd::Success);
}

TEST_F(CreateGalleryTest, AnEmptyListIsNotPublished) {
  host.order->Mode = GenerationMode::Publish;
  GenerationMode mode = GenerationMode::Create;
  GalleryCreator creator(project, preferences, "T:\\program", environment);
  EXPECT_EQ(creator.CreateGallery(mode, 0), RunEnd::NotStarted);
  EXPECT_EQ(mode, GenerationMode::Publish) << "the mode is returned";
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].text, "You cannot upload a Gallery without Images.");
}

}  // namespace
}  // namespace vantorium::generation
