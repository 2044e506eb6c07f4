#include "core/ProjectSession.h"
#include "tests/fakes/ProjectReading.h"

#include <gtest/gtest.h>

using namespace vantorium;
using namespace vantorium::core;
using namespace vantorium::fakes;

namespace {

const char kQuestion[] = "The current Gallery Project has been modified.  Do you wish to save the changes?";
const char kFilter[] = "Vantorium 3.0 Project Files (*.gpj)|*.gpj";

class ProjectSessionTest : public ::testing::Test {
 protected:
  void SetUp() override { session.NewProject(), harness.calls.clear(); }

  /// Marks the project as changed, as a user's edit does.
  void Modify() {
    project.IsModified = true;
    project.settings.textGalleryTitle = "Changed";
  }
  /// Saves the project to a file of that name.
  void SaveToFile(const std::string& name = "mine.gpj") {
    ASSERT_TRUE(session.SaveProjectTo(harness.PathOf(name)));
    harness.calls.clear();
  }
  std::string ValidFile(const std::string& name = "other.gpj") const {
    return harness.File(name, ProjectFileParts{}.Text());
  }
  [[nodiscard]] std::string States() const {
    return std::string(project.IsModified ? "modified " : "") + (project.IsPristine ? "pristine " : "") +
           (project.IsUntitled ? "untitled" : "");
  }
  [[nodiscard]] Calls WriteCalls(const std::string& path) const {
    return {"info Please wait... Writing Project File.",
            "disabled",
            "status Writing Project File \"" + path + "\"...",
            "wait pointer",
            "status ",
            "pointer"};
  }
  [[nodiscard]] std::string Folder() const { return harness.paths.ToText(harness.folder.Path()) + "\\"; }

  ProjectHarness harness;
  Project& project = harness.project;
  ProjectSession& session = harness.session;
};

Calls Joined(Calls calls, const Calls& more) {
  calls.insert(calls.end(), more.begin(), more.end());
  return calls;
}

}  // namespace

TEST_F(ProjectSessionTest, TheFirstNewProjectIsGallery1) {
  EXPECT_EQ(project.ProjectFileName, "Gallery1");
  EXPECT_EQ(project.settings.textGalleryTitle, "Gallery1");
  EXPECT_EQ(States(), "pristine untitled");
}

TEST_F(ProjectSessionTest, NewDoesNothingToAPristineProject) {
  session.NewProject();
  EXPECT_EQ(harness.calls, Calls{});
  EXPECT_EQ(project.ProjectFileName, "Gallery1");
}

TEST_F(ProjectSessionTest, ANewProjectResetsEverythingInOrder) {
  project.IsPristine = false;
  project.settings.ImageHeader = "old";
  harness.AddImage("a.jpg");
  harness.images.SetSortingOrder(1);
  harness.boxes.boxes.clear();
  harness.calls.clear();
  project.IsModified = false;
  session.NewProject();
  EXPECT_EQ(harness.calls, (Calls{"preview", "counts", "page count", "title bar", "descriptions hidden", "first tab",
                                  "title field", "custom colors"}));
  EXPECT_EQ(project.settings.ImageHeader, "");
  EXPECT_EQ(project.settings.textGalleryTitle, "Gallery2");
  EXPECT_EQ(project.ProjectFileName, "Gallery2");
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
  EXPECT_FALSE(project.images.IsKeptSorted());
  EXPECT_TRUE(project.images.Empty());
  EXPECT_EQ(States(), "pristine untitled");
}

TEST_F(ProjectSessionTest, AModifiedProjectIsAskedAbout) {
  Modify();
  harness.boxes.answers = {env::BoxAnswer::Cancel};
  session.NewProject();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Question);
  EXPECT_EQ(harness.boxes.boxes[0].buttons, env::BoxButtons::YesNoCancel);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Project modified");
  EXPECT_EQ(harness.boxes.boxes[0].text, kQuestion);
}

TEST_F(ProjectSessionTest, CancelKeepsTheProjectWhichIsNoLongerPristine) {
  Modify();
  harness.boxes.answers = {env::BoxAnswer::Cancel};
  session.NewProject();
  EXPECT_EQ(project.settings.textGalleryTitle, "Changed");
  EXPECT_EQ(States(), "modified untitled");
  EXPECT_EQ(harness.calls, Calls{"box Project modified"});
}

TEST_F(ProjectSessionTest, NoDiscardsTheChanges) {
  Modify();
  harness.boxes.answers = {env::BoxAnswer::No};
  session.NewProject();
  EXPECT_EQ(project.settings.textGalleryTitle, "Gallery2");
  EXPECT_EQ(States(), "pristine untitled");
}

TEST_F(ProjectSessionTest, YesSavesFirst) {
  Modify();
  harness.boxes.answers = {env::BoxAnswer::Yes};
  harness.dialog.answers = {harness.PathOf("saved.gpj")};
  session.NewProject();
  EXPECT_NE(harness.folder.Read("saved.gpj").find("TITLE=\"Changed\""), std::string::npos);
  EXPECT_EQ(project.settings.textGalleryTitle, "Gallery2");
}

TEST_F(ProjectSessionTest, ASaveThatFailsOrIsCancelledStopsNew) {
  for (const std::string& chosen : {std::string(), harness.PathOf("no folder/a.gpj")}) {
    Modify();
    harness.boxes.answers = {env::BoxAnswer::Yes};
    harness.dialog.answers = {chosen};
    session.NewProject();
    EXPECT_EQ(project.settings.textGalleryTitle, "Changed") << chosen;
    EXPECT_EQ(States(), "modified untitled") << chosen;
  }
}

TEST_F(ProjectSessionTest, LeavingAProjectAsksOnlyAboutAModifiedOne) {
  EXPECT_TRUE(session.MayLeaveProject());
  EXPECT_TRUE(harness.boxes.boxes.empty());
  const std::pair<env::BoxAnswer, bool> cases[] = {{env::BoxAnswer::Cancel, false}, {env::BoxAnswer::No, true}};
  for (const auto& [answer, may] : cases) {
    Modify();
    harness.boxes.answers = {answer};
    EXPECT_EQ(session.MayLeaveProject(), may);
    EXPECT_FALSE(project.IsPristine);
  }
}

TEST_F(ProjectSessionTest, OpenAsksForAFileOfItsKind) {
  project.LastProjectFolder = "C:\\projects\\";
  session.OpenProject();
  ASSERT_EQ(harness.dialog.requests.size(), 1U);
  const ProjectFileDialog::Request& request = harness.dialog.requests[0];
  EXPECT_EQ(request.purpose, ProjectFileDialog::Purpose::Open);
  EXPECT_EQ(request.title, "Open Gallery Project");
  EXPECT_EQ(request.filter, kFilter);
  EXPECT_EQ(request.defaultPattern, "*.gpj");
  EXPECT_EQ(request.folder, "C:\\projects\\");
  EXPECT_EQ(request.fileName, "");
}

TEST_F(ProjectSessionTest, OpenWithoutAFileChangesNothing) {
  harness.AddImage("a.jpg");
  session.OpenProject();
  EXPECT_EQ(harness.calls, Calls{"dialog Open Gallery Project"});
  EXPECT_EQ(project.images.Count(), 1U);
  EXPECT_EQ(States(), "pristine untitled");
}

TEST_F(ProjectSessionTest, OpenReportsEachStepInOrder) {
  const std::string path = ValidFile();
  harness.AddImage("old.jpg");
  project.images.KeepSorted({SortColumn::ImageName, SortDirection::Ascending});
  harness.dialog.answers = {path};
  session.OpenProject();
  EXPECT_EQ(harness.calls,
            (Calls{"dialog Open Gallery Project", "info Please wait... Reading Project File.", "disabled",
                   "status Reading Project File \"" + path + "\"...", "wait pointer", "status ", "pointer", "enabled",
                   "info hidden", "title bar", "page count", "counts", "preview"}));
  EXPECT_EQ(project.settings.textGalleryTitle, "Holidays");
  EXPECT_EQ(project.ProjectFolder, Folder());
  EXPECT_EQ(project.ProjectFileName, "other.gpj");
  EXPECT_EQ(project.LastProjectFolder, Folder());
  EXPECT_EQ(States(), "");
  EXPECT_TRUE(project.images.Empty());
  EXPECT_FALSE(project.images.IsKeptSorted());
  EXPECT_EQ(project.settings.comboImagesSortingOrder, 0);
}

TEST_F(ProjectSessionTest, TheFirstImageOfAnOpenedProjectIsCurrentAndSelected) {
  harness.AddImage("a.jpg");
  harness.AddImage("b.jpg");
  const std::string path = harness.PathOf("two.gpj");
  ASSERT_TRUE(session.SaveProjectTo(path));
  harness.dialog.answers = {path};
  session.OpenProject();
  ASSERT_EQ(project.images.Count(), 2U);
  EXPECT_EQ(project.images.Current(), 1U);
  EXPECT_TRUE(project.images.IsSelected(1));
  EXPECT_FALSE(project.images.IsSelected(2));
  EXPECT_EQ(States(), "");
}

TEST_F(ProjectSessionTest, AFailedOpenShowsTwoMessageBoxesAndKeepsTheState) {
  const std::string path = harness.File("bad.gpj", "<GALLERYPROJECT/>");
  harness.dialog.answers = {path};
  session.OpenProject();
  EXPECT_EQ(harness.calls,
            (Calls{"dialog Open Gallery Project", "info Please wait... Reading Project File.", "disabled",
                   "status Reading Project File \"" + path + "\"...", "wait pointer", "box Invalid Project File",
                   "status ", "pointer", "box File Error", "enabled", "info hidden"}));
  EXPECT_EQ(harness.boxes.boxes[1].kind, env::BoxKind::Exclamation);
  EXPECT_EQ(harness.boxes.boxes[1].text, "An error occurred while opening the Gallery Project \"" + path + "\".");
  EXPECT_EQ(project.ProjectFileName, "Gallery1");
  EXPECT_EQ(project.LastProjectFolder, "");
  EXPECT_EQ(States(), "pristine untitled");
}

TEST_F(ProjectSessionTest, ASaveAfterAFailedOpenAsksForANameAndKeepsTheOldFile) {
  SaveToFile();
  const std::string before = harness.folder.Read("mine.gpj");
  harness.dialog.answers = {harness.File("bad.gpj", ProjectFileParts{.imagePage = "<IMAGEPAGE/>"}.Text())};
  session.OpenProject();
  EXPECT_EQ(project.ProjectFileName, "mine.gpj");
  EXPECT_EQ(project.settings.textGalleryTitle, "Holidays") << "values read before the failure";
  EXPECT_EQ(States(), "");
  for (int save = 0; save < 2; ++save) {
    EXPECT_FALSE(session.SaveProject()) << "no file was chosen";
    EXPECT_EQ(harness.dialog.requests.back().title, "Save Gallery Project As");
    EXPECT_EQ(harness.dialog.requests.back().fileName, "mine.gpj");
  }
  session.SaveProjectAs();
  EXPECT_FALSE(session.SaveProject()) << "even after a cancelled Save As";
  EXPECT_EQ(harness.folder.Read("mine.gpj"), before);
}

TEST_F(ProjectSessionTest, OnceTheProjectHasAFileAgainASaveGoesThere) {
  const std::string bad = harness.File("bad.gpj", "<GALLERYPROJECT/>");
  const auto expectNoQuestion = [this](const char* how) {
    const std::size_t asked = harness.dialog.requests.size();
    EXPECT_TRUE(session.SaveProject()) << how;
    EXPECT_EQ(harness.dialog.requests.size(), asked) << how;
  };
  SaveToFile();
  harness.dialog.answers = {bad, harness.PathOf("saved.gpj")};
  session.OpenProject();
  EXPECT_TRUE(session.SaveProject());
  EXPECT_EQ(project.ProjectFileName, "saved.gpj");
  expectNoQuestion("saved under a name");

  harness.dialog.answers = {bad, ValidFile()};
  session.OpenProject();
  session.OpenProject();
  expectNoQuestion("another one was opened");

  harness.dialog.answers = {bad, harness.PathOf("as.gpj")};
  session.OpenProject();
  session.SaveProjectAs();
  expectNoQuestion("saved by Save As");

  EXPECT_FALSE(session.LoadProject(bad));
  EXPECT_TRUE(session.SaveProjectTo(harness.PathOf("to.gpj")));
  expectNoQuestion("saved to a path");
}

TEST_F(ProjectSessionTest, OpenAsksAboutAModifiedProject) {
  Modify();
  harness.boxes.answers = {env::BoxAnswer::Cancel};
  session.OpenProject();
  EXPECT_EQ(harness.calls, Calls{"box Project modified"});
  harness.calls.clear();
  harness.boxes.answers = {env::BoxAnswer::No};
  session.OpenProject();
  EXPECT_EQ(harness.calls, (Calls{"box Project modified", "dialog Open Gallery Project"}));
  EXPECT_EQ(States(), "modified untitled");
}

TEST_F(ProjectSessionTest, OpenContinuesWhenTheSaveFails) {
  Modify();
  harness.boxes.answers = {env::BoxAnswer::Yes};
  harness.dialog.answers = {"", ValidFile()};
  session.OpenProject();
  EXPECT_EQ(harness.dialog.requests.size(), 2U);
  EXPECT_EQ(project.settings.textGalleryTitle, "Holidays");
}

TEST_F(ProjectSessionTest, TheCommandLineIsAQuotedPath) {
  const std::string path = ValidFile();
  harness.AddImage("a.jpg");
  session.OpenProjectFromCommandLine('"' + path + '"');
  EXPECT_EQ(harness.calls, (Calls{"disabled", "status Reading Project File \"" + path + "\"...", "wait pointer",
                                  "status ", "pointer", "enabled", "title bar", "page count", "counts", "preview"}));
  EXPECT_EQ(project.ProjectFileName, "other.gpj");
  EXPECT_EQ(States(), "");
  EXPECT_EQ(project.images.Count(), 1U);
}

TEST_F(ProjectSessionTest, TheCommandLineIsUnquotedBeforeItsPathIsMadeAbsolute) {
  ValidFile("my own.gpj");
  const std::string native = (harness.folder.Path() / "my own.gpj").string();
  const std::string relative =
      std::filesystem::path(native).lexically_relative(std::filesystem::current_path()).string();
  for (const std::string& path : {native, relative, harness.PathOf("my own.gpj")}) {
    harness.boxes.boxes.clear();
    project.ProjectFileName.clear();
    session.OpenProjectFromCommandLine('"' + path + '"');
    EXPECT_TRUE(harness.boxes.boxes.empty()) << path;
    EXPECT_EQ(project.ProjectFolder + project.ProjectFileName, harness.PathOf("my own.gpj")) << path;
  }
}

TEST_F(ProjectSessionTest, AnEmptyCommandLineDoesNothing) {
  for (const char* line : {"", "\"\"", "\""}) session.OpenProjectFromCommandLine(line);
  EXPECT_EQ(harness.calls, Calls{});
}

TEST_F(ProjectSessionTest, ACommandLineThatNamesNoProjectIsReported) {
  session.OpenProjectFromCommandLine(harness.PathOf("missing.gpj"));
  ASSERT_EQ(harness.boxes.boxes.size(), 2U);
  EXPECT_EQ(harness.boxes.boxes[1].title, "File Error");
  EXPECT_EQ(harness.calls.back(), "enabled");
}

TEST_F(ProjectSessionTest, SavingAnUntitledProjectAsksForItsName) {
  project.LastProjectFolder = "C:\\projects\\";
  EXPECT_FALSE(session.SaveProject());
  ASSERT_EQ(harness.dialog.requests.size(), 1U);
  const ProjectFileDialog::Request& request = harness.dialog.requests[0];
  EXPECT_EQ(request.purpose, ProjectFileDialog::Purpose::Save);
  EXPECT_EQ(request.title, "Save Gallery Project As");
  EXPECT_EQ(request.filter, kFilter);
  EXPECT_EQ(request.defaultExtension, "gpj");
  EXPECT_EQ(request.folder, "C:\\projects\\");
  EXPECT_EQ(request.fileName, "Gallery1");
  EXPECT_EQ(harness.calls, Calls{"dialog Save Gallery Project As"});
  EXPECT_EQ(States(), "pristine untitled");
}

TEST_F(ProjectSessionTest, ASavedProjectHasTheChosenFile) {
  Modify();
  const std::string path = harness.PathOf("chosen.gpj");
  harness.dialog.answers = {path};
  EXPECT_TRUE(session.SaveProject());
  EXPECT_EQ(harness.calls, Joined(Joined({"dialog Save Gallery Project As"}, WriteCalls(path)),
                                  {"enabled", "info hidden", "title bar"}));
  EXPECT_EQ(project.ProjectFileName, "chosen.gpj");
  EXPECT_EQ(project.ProjectFolder, Folder());
  EXPECT_EQ(project.LastProjectFolder, Folder());
  EXPECT_EQ(States(), "");
}

TEST_F(ProjectSessionTest, ATitledProjectIsSavedToItsFile) {
  SaveToFile();
  Modify();
  EXPECT_TRUE(session.SaveProject());
  EXPECT_EQ(harness.calls, Joined(WriteCalls(harness.PathOf("mine.gpj")), {"enabled", "info hidden", "title bar"}));
  EXPECT_NE(harness.folder.Read("mine.gpj").find("Changed"), std::string::npos);
  EXPECT_EQ(States(), "");
}

TEST_F(ProjectSessionTest, AFileNameWithoutTheExtensionGetsIt) {
  const std::pair<std::string, std::string> cases[] = {
      {"a", "a.gpj"}, {"b.jpg", "b.jpg.gpj"}, {"c.GPJ", "c.GPJ"}, {"d.Gpj", "d.Gpj"}, {"gpj", "gpj.gpj"}};
  for (const auto& [name, saved] : cases) {
    project.IsUntitled = false;
    project.ProjectFolder = Folder();
    project.ProjectFileName = name;
    EXPECT_TRUE(session.SaveProject()) << name;
    EXPECT_EQ(project.ProjectFileName, saved);
    EXPECT_TRUE(std::filesystem::exists(harness.folder.Path() / saved)) << saved;
  }
}

TEST_F(ProjectSessionTest, AFailedSaveIsReportedAndTheProjectStaysModified) {
  SaveToFile();
  Modify();
  project.ProjectFolder = Folder() + "no folder\\";
  EXPECT_FALSE(session.SaveProject());
  const std::string path = harness.PathOf("no folder/mine.gpj");
  EXPECT_EQ(harness.calls, Joined(WriteCalls(path), {"box File Error", "enabled", "info hidden"}));
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Exclamation);
  EXPECT_EQ(harness.boxes.boxes[0].text, "An error occurred while saving the Gallery Project.");
  EXPECT_EQ(States(), "modified ");
}

TEST_F(ProjectSessionTest, SavingRepairsEmptySettings) {
  project.settings.textThumbnailsTableColumns = "";
  harness.dialog.answers = {""};
  EXPECT_FALSE(session.SaveProject());
  EXPECT_EQ(project.settings.textThumbnailsTableColumns, "1");
  EXPECT_TRUE(project.IsModified);
}

TEST_F(ProjectSessionTest, SaveAsAsksForANameEvenIfTheProjectHasAFile) {
  SaveToFile();
  harness.dialog.answers = {harness.PathOf("copy.gpj")};
  session.SaveProjectAs();
  EXPECT_EQ(harness.dialog.requests.at(0).fileName, "mine.gpj");
  EXPECT_EQ(project.ProjectFileName, "copy.gpj");
  EXPECT_EQ(States(), "");
}

TEST_F(ProjectSessionTest, SaveAsLeavesAnUntitledProjectUntitled) {
  harness.dialog.answers = {harness.PathOf("copy.gpj")};
  session.SaveProjectAs();
  EXPECT_EQ(States(), "untitled");
  EXPECT_EQ(project.ProjectFileName, "copy.gpj");
  EXPECT_FALSE(session.SaveProject());
  EXPECT_EQ(harness.dialog.requests.size(), 2U);
}

TEST_F(ProjectSessionTest, ACancelledSaveAsRestoresTheState) {
  SaveToFile();
  session.SaveProjectAs();
  EXPECT_EQ(States(), "");
  EXPECT_EQ(project.ProjectFileName, "mine.gpj");
}

TEST_F(ProjectSessionTest, AProjectIsLoadedAndSavedWithoutAWindow) {
  EXPECT_TRUE(session.LoadProject(ValidFile()));
  EXPECT_EQ(project.settings.textGalleryTitle, "Holidays");
  EXPECT_EQ(States(), "");
  EXPECT_TRUE(session.SaveProjectTo(harness.PathOf("out.gpj")));
  EXPECT_EQ(project.ProjectFileName, "out.gpj");
  EXPECT_TRUE(session.LoadProject(harness.PathOf("out.gpj")));
  EXPECT_FALSE(session.LoadProject(harness.PathOf("missing.gpj")));
  EXPECT_EQ(harness.boxes.boxes.size(), 2U);
  EXPECT_FALSE(session.SaveProjectTo(harness.PathOf("no folder/out.gpj")));
  EXPECT_EQ(harness.boxes.boxes.size(), 3U);
}

TEST_F(ProjectSessionTest, AProjectWithoutATitleHasTheNameOfTheNewProject) {
  EXPECT_TRUE(session.LoadProject(harness.File("a.gpj", ProjectFileParts{.gallery = ""}.Text())));
  EXPECT_EQ(project.settings.textGalleryTitle, "Gallery1");
}

TEST_F(ProjectSessionTest, TheFolderOfAProjectLocatesItsFile) {
  const std::string native = (harness.folder.Path() / "mine.gpj").string();  // begins with a separator
  harness.folder.Write("mine.gpj", ProjectFileParts{}.Text());
  ASSERT_TRUE(session.LoadProject(native));
  EXPECT_TRUE(harness.files.PathExists(project.ProjectFolder + project.ProjectFileName)) << project.ProjectFolder;
}
