#include "core/generation/GenerateGallery.h"
#include "tests/core/generation/RunFixture.h"

namespace vantorium::generation {
namespace {

using GenerateGalleryTest = RunFixture;
using Texts = std::vector<std::string>;
using Names = std::set<std::string>;

TEST_F(GenerateGalleryTest, ACreateRunWritesPagesImagesAndThumbnails) {
  AddPhotograph("Sunset");
  AddPhotograph("Dune");

  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);

  EXPECT_EQ(FilesIn("out"), (Names{"index.htm", "thumbpage_1.htm", "Sunset.htm", "Dune.htm", "Images/Sunset.jpg",
                                   "Images/Dune.jpg", "Thumbs/thumb_Sunset.jpg", "Thumbs/thumb_Dune.jpg"}));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(GenerateGalleryTest, PhasesAreAnnouncedInOrder) {
  AddPhotograph("a");
  AddPhotograph("b");
  folder.Write("project/back.gif", "GIF");
  project.settings.textThumbnailsPageBackdrop = "back.gif";

  Run(OrderToCreate());

  const Texts expected = {"Collecting Image Information...",
                          "Collecting Image Information (complete)...",
                          "Creating Directories...",
                          "Copying File \"a\"...",
                          "Copying File \"b\"...",
                          "Creating Thumbnail for File \"a\"...",
                          "Creating Thumbnail for File \"b\"...",
                          "Copying Backdrop Image File \"T:\\project\\back.gif\"...",
                          "Copying Page Link Image Files...",
                          "Creating Gallery Index File...",
                          "Creating Thumbnail Page File \"thumbpage_1.htm\"...",
                          "Creating Image Wrapper File for \"a\"...",
                          "Creating Image Wrapper File for \"b\"..."};
  EXPECT_EQ(host.statuses, expected);
  Texts inWindow = {""};
  inWindow.insert(inWindow.end(), expected.begin(), expected.end());
  EXPECT_EQ(host.progress.texts2, inWindow);
}

TEST_F(GenerateGalleryTest, TheWindowIsSetUpBeforeTheFirstPhaseAndUnloadedAtTheEnd) {
  AddPhotograph("a");
  Run(OrderToCreate());
  EXPECT_EQ(journal,
            (Texts{"busy", "window off", "progress shown", "window on", "idle", "progress idle", "progress unloaded"}));
  EXPECT_EQ(host.progress.values.front(), 0);
}

struct ModeText {
  GenerationMode mode;
  const char* text1;
  const char* caption;
};

TEST_F(GenerateGalleryTest, EachModeHasItsTextAndCaption) {
  AddPhotograph("a");
  for (const auto& [mode, text1, caption] :
       {ModeText{GenerationMode::Create, "Please wait while the Gallery is being created...", "Creating Gallery"},
        ModeText{GenerationMode::Preview, "Please wait while the Gallery is prepared for Preview...",
                 "Preparing Gallery for Preview"}}) {
    RunOrder order = OrderToCreate();
    order.Mode = mode;
    Run(order);
    EXPECT_EQ(host.progress.text1, text1);
    EXPECT_EQ(host.progress.caption, caption);
    EXPECT_FALSE(host.progress.logToFile);
  }
}

struct MaximumCase {
  GenerationMode mode;
  bool images, thumbnails, html;
  core::Flag wrappers;
  std::int32_t stepsPerImage;
};

TEST_F(GenerateGalleryTest, TheMaximumCountsTheStepsOfEachImageAndOneForItsCollection) {
  AddPhotograph("a");
  AddPhotograph("b");
  for (const MaximumCase& c : {MaximumCase{GenerationMode::Create, true, true, true, 1, 5},
                               MaximumCase{GenerationMode::Create, true, true, true, 0, 4},
                               MaximumCase{GenerationMode::Create, true, false, true, 1, 4},
                               MaximumCase{GenerationMode::Create, true, true, false, 1, 3},
                               MaximumCase{GenerationMode::Create, false, false, false, 1, 1},
                               MaximumCase{GenerationMode::Preview, true, true, true, 1, 3},
                               MaximumCase{GenerationMode::Preview, false, false, true, 0, 2}}) {
    project.settings.checkImageWrapperUse = c.wrappers;
    RunOrder order = OrderToCreate();
    order.Mode = c.mode;
    order.CreateImages = c.images;
    order.CreateThumbnails = c.thumbnails;
    order.CreateHTML = c.html;
    host.progress.values.clear();
    EXPECT_EQ(Run(order), RunEnd::Success);
    EXPECT_EQ(host.progress.maximum, 2 * c.stepsPerImage);
    EXPECT_EQ(host.progress.values.back(), host.progress.maximum) << "success fills the bar";
  }
}

TEST_F(GenerateGalleryTest, TheBarReachesItsMaximumStepByStepAndNeverExceedsIt) {
  for (const char* name : {"a", "b", "c"}) AddPhotograph(name);
  project.settings.textThumbnailsTableRows = "1";
  project.settings.textThumbnailsTableColumns = "2";
  Run(OrderToCreate());
  const auto& values = host.progress.values;
  ASSERT_GE(values.size(), 2U);
  EXPECT_TRUE(std::is_sorted(values.begin(), values.end()));
  EXPECT_EQ(values[values.size() - 2], host.progress.maximum) << "the last page completes the bar";
}

TEST_F(GenerateGalleryTest, TheCollectionShowsTheCountEveryHundredImages) {
  for (int i = 0; i < 250; ++i) AddEntry("i" + std::to_string(i), "T:\\photos\\none.jpg");
  project.settings.checkImageWrapperUse = 0;
  Run(OrderToPreview());
  Texts collecting;
  for (const auto& text : host.statuses) {
    if (text.starts_with("Collecting")) collecting.push_back(text);
  }
  EXPECT_EQ(collecting,
            (Texts{"Collecting Image Information...", "Collecting Image Information (100 out of 250)...",
                   "Collecting Image Information (200 out of 250)...", "Collecting Image Information (complete)..."}));
}

TEST_F(GenerateGalleryTest, WithoutPagesLinkGraphicsAreTheLastPhase) {
  AddPhotograph("a");
  RunOrder order = OrderToCreate();
  order.CreateHTML = false;
  EXPECT_EQ(Run(order), RunEnd::Success);
  EXPECT_EQ(FilesIn("out"), (Names{"Images/a.jpg", "Thumbs/thumb_a.jpg"}));
  EXPECT_EQ(host.statuses.back(), "Copying Page Link Image Files...");
}

TEST_F(GenerateGalleryTest, WithoutWrapperPagesNoneIsWritten) {
  AddPhotograph("a");
  project.settings.checkImageWrapperUse = 0;
  Run(OrderToCreate());
  EXPECT_EQ(FilesIn("out").count("a.htm"), 0U);
}

TEST_F(GenerateGalleryTest, APreviewWritesPagesThatLinkToTheSources) {
  AddPhotograph("a");
  EXPECT_EQ(Run(OrderToPreview()), RunEnd::Success);
  EXPECT_EQ(FilesIn("temp"), (Names{"index.htm", "thumbpage_1.htm", "a.htm"}));
  const std::string address = "file://" + (folder.Path() / "photos/a.jpg").string();
  EXPECT_NE(folder.Read("temp/a.htm").find("<IMG SRC=\"" + address + "\""), std::string::npos);
}

TEST_F(GenerateGalleryTest, APreviewKeepsBackdropsInImagesWhateverTheSettings) {
  AddPhotograph("a");
  folder.Write("project/back.gif", "GIF");
  project.settings.textImageSettingsSubFolder = "Pictures";
  project.settings.textThumbnailsPageBackdrop = "back.gif";
  Run(OrderToPreview());
  EXPECT_EQ(FilesIn("temp").count("images/_backdrop_thumbpage.gif"), 1U);
}

TEST_F(GenerateGalleryTest, SizesInPercentAreTurnedOff) {
  AddPhotograph("a");
  project.settings.checkImageWrapperImageSizesInPercent = 1;
  Run(OrderToCreate());
  EXPECT_EQ(project.settings.checkImageWrapperImageSizesInPercent, 0);
  EXPECT_EQ(folder.Read("out/a.htm").find('%' + std::string("\" BORDER")), std::string::npos);
  EXPECT_NE(folder.Read("out/a.htm").find(" HEIGHT=\"300\""), std::string::npos);
}

TEST_F(GenerateGalleryTest, TheCreationTimeIsThatOfTheClock) {
  AddPhotograph("a");
  project.settings.GalleryHeadCode = "<VANTORIUM_GALLERY_CREATIONDATE_SHORT>";
  Run(OrderToCreate());
  EXPECT_NE(folder.Read("out/index.htm").find("3/4/26"), std::string::npos) << folder.Read("out/index.htm");
}

TEST_F(GenerateGalleryTest, AnImagesSubfolderWithSeveralLevelsIsCreatedAndLinked) {
  AddPhotograph("a");
  project.settings.textImageSettingsSubFolder = "Images\\Big";
  Run(OrderToCreate());
  EXPECT_EQ(FilesIn("out").count("Images/Big/a.jpg"), 1U);
  EXPECT_NE(folder.Read("out/a.htm").find("<IMG SRC=\"Images/Big/a.jpg\""), std::string::npos);
}

TEST_F(GenerateGalleryTest, WithoutAnImagesSubfolderTheFilesAreInTheOutputFolder) {
  AddPhotograph("a");
  project.settings.textImageSettingsSubFolder = "";
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_EQ(FilesIn("out").count("a.jpg"), 1U);
  EXPECT_NE(folder.Read("out/a.htm").find("<IMG SRC=\"/a.jpg\""), std::string::npos);
}

TEST_F(GenerateGalleryTest, WithAnEmptyPrefixPagesAreNamedByNumberAlone) {
  AddPhotograph("a");
  project.settings.textThumbnailPageSettingsFilePrefix = "";
  Run(OrderToCreate());
  EXPECT_EQ(FilesIn("out").count("1.htm"), 1U);
}

// The three ways a run ends

TEST_F(GenerateGalleryTest, ACancelInAnyTurnEndsTheRunAndLeavesOnlyCompleteFiles) {
  for (const char* name : {"a", "b"}) AddPhotograph(name);
  Run(OrderToCreate());
  const int turns = loop.turns;
  const Names whole = FilesIn("out");
  ASSERT_GT(turns, 8);
  for (int turn = 2; turn <= turns; ++turn) {
    std::filesystem::remove_all(folder.Path() / "out");
    journal.clear();
    boxes.boxes.clear();
    cancel.Clear();
    host.progress = {};
    loop.turns = 0;
    CancelInTurn(turn);
    const RunEnd end = Run(OrderToCreate());
    // A run also takes turns to wait for its workers, so the number of turns varies on a busy machine.
    if (turn > 8 && loop.turns < turn) break;
    EXPECT_EQ(end, RunEnd::Cancelled) << "turn " << turn;
    ASSERT_EQ(boxes.boxes.size(), 2U) << "turn " << turn;
    EXPECT_EQ(boxes.boxes[0].title, "Cancel Request");
    EXPECT_EQ(boxes.boxes[0].text, "Are you sure you wish to cancel?");
    EXPECT_EQ(boxes.boxes[1].title, "Creation cancelled");
    EXPECT_EQ(boxes.boxes[1].text, "The User has cancelled Creation of the Gallery");
    EXPECT_EQ(boxes.boxes[1].kind, env::BoxKind::Exclamation);
    EXPECT_TRUE(host.progress.unloaded);
    for (const auto& file : FilesIn("out")) EXPECT_EQ(whole.count(file), 1U) << file << " at turn " << turn;
  }
}

TEST_F(GenerateGalleryTest, ACancelThatIsNotConfirmedLetsTheRunContinue) {
  AddPhotograph("a");
  boxes.answers = {env::BoxAnswer::No};
  CancelInTurn(3);
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Success);
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_FALSE(host.progress.cancelled);
}

TEST_F(GenerateGalleryTest, AFailureKeepsTheWindowUntilTheUserClosesIt) {
  AddEntry("gone", "T:\\photos\\gone.jpg");
  project.settings.checkImageWrapperImageKeepSize = 0;
  host.windowClosesAtOnce = false;
  int turnsWithMessages = 0;
  loop.onTurn = [&](int) {
    if (std::ranges::find(journal, "beep warning") == journal.end()) return;
    if (++turnsWithMessages == 5) host.openWindow->CloseRequested = true;
  };

  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);

  EXPECT_EQ(turnsWithMessages, 5);
  EXPECT_EQ(journal, (Texts{"busy", "window off", "progress shown", "close offered", "idle", "progress idle",
                            "beep warning", "window on", "progress unloaded"}));
  EXPECT_EQ(host.statuses.back(), "");
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "File Error");
  EXPECT_EQ(boxes.boxes[0].text, "Unable to copy the File \"T:\\photos\\gone.jpg\".");
}

TEST_F(GenerateGalleryTest, TheLogOfAFailedRunIsWrittenAndTheLogBoxEmptied) {
  AddEntry("gone", "T:\\photos\\gone.jpg");
  loop.onTurn = [this](int turn) {
    if (turn == 2) host.openWindow->SetText3("said before the end", true);
  };
  Run(OrderToCreate());
  EXPECT_EQ(host.progress.written, "said before the end");
  EXPECT_EQ(host.progress.log, "");
}

TEST_F(GenerateGalleryTest, AnUnexpectedFailureIsReportedWithItsDescriptionAndNumber) {
  AddPhotograph("a");
  AddPhotograph("b");
  project.settings.textThumbnailsTableRows = "0";
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(boxes.boxes[0].title, "Failure");
  EXPECT_EQ(boxes.boxes[0].text,
            "An Error has occurred during Creation of this Gallery:\r\rDivision by zero\r\rError #11");
}

TEST_F(GenerateGalleryTest, AFolderOnAMissingDriveIsReportedWithTheReason) {
  AddPhotograph("a");
  RunOrder order = OrderToCreate();
  order.OutputFolder = "Q:\\";
  EXPECT_EQ(Run(order), RunEnd::Failure);
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].text,
            "An Error has occurred during Creation of this Gallery:\r\rQ:\\Images\\a.jpg: No such device\r\rError #75");
}

TEST_F(GenerateGalleryTest, FilesWrittenBeforeAFailureStay) {
  AddPhotograph("a");
  AddEntry("gone", "T:\\photos\\gone.jpg");
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(FilesIn("out"), (Names{"Images/a.jpg"}));
}

// Names that would lead outside the gallery

TEST_F(GenerateGalleryTest, AListTextThatLeavesTheFolderFailsLikeAnUnwritableFile) {
  for (const char* name : {"..\\evil", "../evil", "sub/evil", "sub\\evil", "C:evil", "/evil"}) {
    project.images.Clear();
    boxes.boxes.clear();
    folder.Write("photos/x.jpg", PlainJpeg(8, 8));
    std::filesystem::create_directories(folder.Path() / "out/Images/sub");
    AddEntry(name, "T:\\photos\\x.jpg");
    EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure) << name;
    ASSERT_EQ(boxes.boxes.size(), 1U) << name;
    EXPECT_EQ(boxes.boxes[0].text, "Unable to copy the File \"T:\\photos\\x.jpg\".") << name;
    EXPECT_TRUE(FilesIn("out").empty()) << name;
  }
  EXPECT_EQ(FilesIn("."), (Names{"photos/x.jpg"}));
}

TEST_F(GenerateGalleryTest, AListTextThatLeavesTheFolderAlsoFailsForThumbnailAndPage) {
  folder.Write("photos/x.jpg", PlainJpeg(8, 8));
  AddEntry("../evil", "T:\\photos\\x.jpg");
  RunOrder order = OrderToCreate();
  order.CreateImages = false;
  EXPECT_EQ(Run(order), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).text, "Unable to create Thumbnail for \"T:\\photos\\x.jpg\".");

  boxes.boxes.clear();
  order.CreateThumbnails = false;
  EXPECT_EQ(Run(order), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).title, "Failure");
  EXPECT_NE(boxes.boxes.at(0).text.find("evil.htm: Permission denied\r\rError #75"), std::string::npos)
      << boxes.boxes.at(0).text;
  EXPECT_FALSE(std::filesystem::exists(folder.Path() / "evil.htm"));
}

TEST_F(GenerateGalleryTest, ASubfolderThatLeavesTheGalleryIsNotCreated) {
  AddPhotograph("a");
  for (const char* subfolder : {"..\\Images", "a/../../Images", "C:\\Images"}) {
    project.settings.textImageSettingsSubFolder = subfolder;
    boxes.boxes.clear();
    EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure) << subfolder;
    EXPECT_EQ(boxes.boxes.at(0).title, "Directory Error");
    EXPECT_EQ(boxes.boxes.at(0).text, "Unable to create Images Subfolder.");
  }
  project.settings.textImageSettingsSubFolder = "Images";
  project.settings.textThumbnailImageSettingsSubFolder = "..";
  boxes.boxes.clear();
  EXPECT_EQ(Run(OrderToCreate()), RunEnd::Failure);
  EXPECT_EQ(boxes.boxes.at(0).text, "Unable to create Thumbnails Subfolder.");
  EXPECT_EQ(FilesIn("out"), Names{});
}

}  // namespace
}  // namespace vantorium::generation
