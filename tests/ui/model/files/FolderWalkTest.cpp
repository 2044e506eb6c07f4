#include "tests/fakes/ProjectFakes.h"
#include "tests/fakes/RecordingFolderWalk.h"
#include "ui/model/files/FolderWalk.h"

namespace vantorium::ui {
namespace {

using Names = std::vector<std::string>;

class Walking : public testing::Test {
 protected:
  void Walk(const std::vector<std::string>& folders) { Walk(folders, progress); }
  void Walk(const std::vector<std::string>& folders, FolderWalkProgress& shown) {
    FolderWalk({.project = harness.project,
                .images = harness.images,
                .paths = harness.paths,
                .boxes = harness.boxes,
                .loop = harness.events},
               std::chrono::milliseconds(0))
        .Run(folders, shown);
  }
  [[nodiscard]] Names NamesInList() const {
    Names names;
    for (std::size_t i = 1; i <= harness.project.images.Count(); ++i) {
      names.push_back(harness.project.images.Entry(i).ImageName);
    }
    return names;
  }

  fakes::ProjectHarness harness;
  fakes::RecordingFolderWalk progress;
};

TEST_F(Walking, TheImagesOfAFolderAreAddedInTheOrderOfTheirNames) {
  for (const char* name : {"p/c.jpg", "p/a.JPEG", "p/b.jfif", "p/B.jpg", "p/note.txt", "p/d.png", "p/jpg"}) {
    harness.File(name);
  }
  Walk({harness.PathOf("p")});
  EXPECT_EQ(NamesInList(), (Names{"B.jpg", "a.JPEG", "b.jfif", "c.jpg"}));
  EXPECT_EQ(harness.project.images.Entry(1).SourcePath, harness.PathOf("p/B.jpg"));
  EXPECT_TRUE(harness.project.IsModified);
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(Walking, FoldersAreWalkedInOrderWithoutTheirSubfolders) {
  for (const char* name : {"p/a.jpg", "p/sub/b.jpg", "q/a.jpg", "p/folder.jpg/x.txt"}) harness.File(name);
  Walk({harness.PathOf("q"), harness.PathOf("p") + "\\"});
  EXPECT_EQ(NamesInList(), (Names{"a.jpg", "a.jpg_1"}));
  EXPECT_EQ(harness.project.images.Entry(1).SourcePath, harness.PathOf("q/a.jpg"));
  EXPECT_EQ(harness.project.images.Entry(2).SourcePath, harness.PathOf("p/a.jpg"));
}

TEST_F(Walking, ShowsFolderAndCountAndGivesTheEventLoopTurns) {
  harness.File("p/a.jpg");
  harness.File("p/b.jpg");
  Walk({harness.PathOf("p")});
  const std::string p = harness.PathOf("p");
  ASSERT_FALSE(progress.calls.empty());
  EXPECT_EQ(progress.calls.front(), "open");
  EXPECT_EQ(progress.calls[1], p + " 0");
  EXPECT_EQ(progress.calls[progress.calls.size() - 2], p + " 2");
  EXPECT_EQ(progress.calls.back(), "close");
  EXPECT_EQ(static_cast<std::size_t>(harness.events.turns), progress.calls.size() - 2);
}

TEST_F(Walking, ACancelEndsItBetweenFilesAndKeepsTheAddedImages) {
  for (const char* name : {"p/a.jpg", "p/b.jpg", "p/c.jpg", "q/d.jpg"}) harness.File(name);
  progress.cancelAt = 2;
  Walk({harness.PathOf("p"), harness.PathOf("q")});
  EXPECT_EQ(NamesInList(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_TRUE(harness.project.IsModified);
  EXPECT_EQ(progress.calls.back(), "close");
}

TEST_F(Walking, AnImmediateCancelAddsAndModifiesNothing) {
  harness.File("p/a.jpg");
  progress.cancelAt = 0;
  Walk({harness.PathOf("p")});
  EXPECT_TRUE(NamesInList().empty());
  EXPECT_FALSE(harness.project.IsModified);
}

TEST_F(Walking, AFolderWithoutImagesModifiesNothing) {
  harness.File("p/a.txt");
  Walk({harness.PathOf("p")});
  EXPECT_FALSE(harness.project.IsModified);
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(Walking, AnUnreadableFolderIsReportedAndTheOthersAreAdded) {
  harness.File("p/a.jpg");
  Walk({harness.PathOf("gone"), "Q:\\nowhere", harness.PathOf("p")});
  EXPECT_EQ(NamesInList(), (Names{"a.jpg"}));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "\"" + harness.PathOf("gone") +
                                             "\" cannot be read: No such file or directory.\r"
                                             "\"Q:\\nowhere\" cannot be read: No such file or directory.");
}

TEST_F(Walking, NamesThatAProjectCannotStoreAreSkippedAndReported) {
  for (const char* name : {"p/a.jpg", "p/bad\xFF.jpg", "p/back\\slash.jpg", "p/z.jpg"}) harness.File(name);
  Walk({harness.PathOf("p")});
  EXPECT_EQ(NamesInList(), (Names{"a.jpg", "z.jpg"}));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Exclamation);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Add Folder to Gallery");
}

TEST_F(Walking, ManyProblemsAreSummarizedInOneMessageBox) {
  Walk(std::vector<std::string>(30, "Q:\\nowhere"));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_TRUE(harness.boxes.boxes[0].text.ends_with(".\rThere are 22 more of these.")) << harness.boxes.boxes[0].text;
}

TEST_F(Walking, AFileRemovedMeanwhileEndsItWithAMessageBox) {
  const std::string p = harness.PathOf("p");
  harness.File("p/a.jpg");
  harness.File("p/b.jpg");
  class Remover : public fakes::RecordingFolderWalk {
   public:
    explicit Remover(std::filesystem::path file) : file_(std::move(file)) {}
    void Show(const std::string& folder, std::size_t added) override {
      if (added == 1) std::filesystem::remove(file_);
      RecordingFolderWalk::Show(folder, added);
    }

   private:
    std::filesystem::path file_;
  } remover(harness.folder.Path() / "p/b.jpg");
  Walk({p}, remover);
  EXPECT_EQ(NamesInList(), (Names{"a.jpg"}));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "File Error");
  EXPECT_EQ(remover.calls.back(), "close");
}

TEST_F(Walking, AListThatIsKeptSortedSortsTheNewImages) {
  for (const char* name : {"p/b.jpg", "q/a.jpg"}) harness.File(name);
  harness.images.SetSortingOrder(1);
  Walk({harness.PathOf("p"), harness.PathOf("q")});
  EXPECT_EQ(NamesInList(), (Names{"a.jpg", "b.jpg"}));
}

}  // namespace
}  // namespace vantorium::ui
