#include "tests/ui/ImagesDesk.h"
#include "ui/main/FittedPicture.h"
#include "ui/main/frmImages.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <algorithm>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using Names = std::vector<std::string>;
using Positions = std::vector<std::size_t>;

class ImagesPage : public testing::Test {
 protected:
  [[nodiscard]] FittedPicture& Preview() { return Find<FittedPicture>(*desk.page, "pbImagesPreview"); }
  [[nodiscard]] bool PreviewShows() {
    return QTest::qWaitFor([this] { return !Preview().Picture().isNull(); }, 5000);
  }
  [[nodiscard]] QString Size() { return Find<QLabel>(*desk.page, "lblImagesSize").text(); }

  // Waits for the question about an image that cannot be decoded, and runs `drive` on it.
  static void Answer(const std::function<void(QWidget&)>& drive) {
    bool answered = false;
    DriveModal([&] { std::ignore = QTest::qWaitFor([&] { return answered; }, 10000); },
               [&](QWidget& dialog) {
                 answered = true;
                 drive(dialog);
               });
  }
  /// Adds more images than fit in the visible list.
  void FillWithMany() {
    for (int i = 0; i < 200; ++i)
      images.Insert(1, {.ImageName = "x",
                        .SourcePath = {},
                        .SizeKey = {},
                        .DateKey = {},
                        .ImageDescription = {},
                        .ThumbnailDescription = {}});
  }

  fakes::ImagesDesk desk;
  core::ImageList& images = desk.project.images;
};

// Display

TEST_F(ImagesPage, TheListHasTheNamesAndTheFiles) {
  desk.AddAll({"a.jpg", "ü.jpg"});
  const QAbstractItemModel& model = *desk.list->model();
  ASSERT_EQ(model.rowCount(), 2);
  ASSERT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "Image Name");
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "Image Source File");
  EXPECT_EQ(desk.ShownText(1), "ü.jpg");
  EXPECT_EQ(desk.ShownText(1, 1).toStdString(), images.Entry(2).SourcePath);
}

TEST_F(ImagesPage, TheSortingOrdersAreThoseOfTheField) {
  const auto& combo = Find<QComboBox>(*desk.page, "comboImagesSortingOrder");
  EXPECT_EQ(combo.count(), 9);
  EXPECT_EQ(combo.currentText(), "unsorted");
}

TEST_F(ImagesPage, EveryButtonCanBeReachedAndTellsWhatItDoes) {
  for (const char* name : {"btnImagesAddFiles", "btnImagesAddFolder", "btnImagesRemove", "btnImagesRemoveAll",
                           "btnImagesRename", "btnImagesDescriptions", "btnImagesFilters", "btnImagesWatermark",
                           "btnImagesMoveUp", "btnImagesMoveDown", "btnImagesFind", "btnImagesShuffle"}) {
    const auto& button = Find<QAbstractButton>(*desk.page, name);
    EXPECT_FALSE(button.toolTip().isEmpty()) << name;
    EXPECT_TRUE((button.focusPolicy() & Qt::TabFocus) != 0) << name;
    EXPECT_FALSE(button.text().isEmpty() && button.accessibleName().isEmpty()) << name;
  }
}

TEST_F(ImagesPage, AListThatChangesUnnoticedIsDrawnSafely) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  images.Remove(1);
  EXPECT_EQ(desk.ShownText(2), "");
  std::ignore = desk.page->grab();
  QTest::keyClick(desk.list, Qt::Key_End);
  desk.page->RefreshList();
  EXPECT_EQ(desk.list->model()->rowCount(), 2);
}

// Selection and current row

TEST_F(ImagesPage, RowsThatTheUserSelectsAreSelectedInTheList) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
  desk.ClickRow(1);
  EXPECT_EQ(desk.Selected(), (Positions{2}));
  desk.ClickRow(3, Qt::ControlModifier);
  EXPECT_EQ(desk.Selected(), (Positions{2, 4}));
  EXPECT_EQ(images.Current(), 4U);
  QTest::keyClick(desk.list, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(desk.Selected(), (Positions{1, 2, 3, 4}));
  QTest::keyClick(desk.list, Qt::Key_Home);
  EXPECT_EQ(desk.Selected(), (Positions{1}));
}

TEST_F(ImagesPage, RefreshShowsTheSelectionAndTheCurrentRowOfTheList) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  images.Select(1);
  images.Select(3);
  images.SetCurrent(2);
  desk.page->RefreshList();
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1, 3}));
  EXPECT_EQ(desk.list->currentIndex().row(), 1);
  EXPECT_EQ(desk.Selected(), (Positions{1, 3}));
  images.SetCurrent(0);
  desk.page->RefreshList();
  EXPECT_FALSE(desk.list->currentIndex().isValid());
}

TEST_F(ImagesPage, ChangesMadeByTheListAreNotTakenForTheUsers) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  const QSignalSpy told(desk.list, &ImageListView::CurrentRowChanged);
  desk.MakeCurrent(3);
  images.Remove(3);
  desk.page->RefreshList();
  EXPECT_EQ(images.Current(), 0U);
  EXPECT_FALSE(desk.list->currentIndex().isValid());
  EXPECT_TRUE(desk.Selected().empty());
  EXPECT_EQ(told.count(), 0);
}

TEST_F(ImagesPage, AnotherCurrentRowIsReportedOnce) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  desk.MakeCurrent(1);
  int told = 0;
  QObject::connect(desk.page.get(), &frmImages::CurrentChanged, [&] { ++told; });
  QTest::keyClick(desk.list, Qt::Key_Down);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(images.Current(), 2U);
}

// Preview

TEST_F(ImagesPage, TheCurrentImageIsShownWithItsSizes) {
  desk.AddAll({"a.jpg"});
  desk.ClickRow(0);
  EXPECT_TRUE(PreviewShows());
  EXPECT_EQ(Preview().Picture().size(), QSize(40, 30));
  EXPECT_TRUE(Size().startsWith("(40x30, ")) << Size().toStdString();
}

TEST_F(ImagesPage, TheKeysThatMoveTheCurrentRowRefreshThePreview) {
  for (int i = 0; i < 9; ++i) desk.Add(std::to_string(i), fakes::MakeJpeg({.width = 40 + i, .height = 30}));
  desk.page->RefreshList();
  desk.MakeCurrent(5);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_PageUp}) {
    QTest::keyClick(desk.list, key);
    const QSize wanted(static_cast<int>(images.Current()) + 39, 30);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Preview().Picture().size() == wanted; }, 5000)) << key;
  }
}

TEST_F(ImagesPage, WithoutACurrentRowThePreviewIsEmpty) {
  desk.AddAll({"a.jpg"});
  desk.ClickRow(0);
  ASSERT_TRUE(PreviewShows());
  desk.boxes.answers = {env::BoxAnswer::Yes};
  Click(*desk.page, "btnImagesRemoveAll");
  EXPECT_TRUE(Preview().Picture().isNull());
  EXPECT_EQ(Size(), "");
}

TEST_F(ImagesPage, SwitchingThePreviewOffDoesNotModifyTheProject) {
  desk.AddAll({"a.jpg"});
  desk.ClickRow(0);
  ASSERT_TRUE(PreviewShows());
  Click(*desk.page, "checkImagesPreview");
  EXPECT_TRUE(Preview().Picture().isNull());
  EXPECT_EQ(desk.preferences.checkImagesPreview, 0);
  EXPECT_FALSE(desk.project.IsModified);
  Click(*desk.page, "checkImagesPreview");
  EXPECT_EQ(desk.preferences.checkImagesPreview, 1);
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, RefreshShowsWhetherThePreviewIsOn) {
  desk.preferences.checkImagesPreview = 0;
  desk.page->RefreshList();
  EXPECT_FALSE(Find<QCheckBox>(*desk.page, "checkImagesPreview").isChecked());
}

TEST_F(ImagesPage, ADoubleClickAndEnterAskForTheFullScreen) {
  desk.AddAll({"a.jpg", "b.jpg"});
  Names asked;
  QObject::connect(desk.page.get(), &frmImages::FullScreenPreviewAsked,
                   [&](const std::string& name, const std::string& file) {
                     asked.push_back(name);
                     EXPECT_EQ(file, images.Entry(images.Current()).SourcePath);
                   });
  QTest::mouseDClick(&Preview(), Qt::LeftButton);  // no current image yet
  EXPECT_TRUE(asked.empty());
  desk.ClickRow(1);
  const QPoint second = desk.list->visualRect(desk.list->model()->index(1, 0)).center();
  QTest::mouseDClick(desk.list->viewport(), Qt::LeftButton, {}, second);
  QTest::mouseDClick(&Preview(), Qt::LeftButton);
  QTest::keyClick(desk.list, Qt::Key_Return);
  EXPECT_EQ(asked, (Names{"b.jpg", "b.jpg", "b.jpg"}));
}

// Images that cannot be decoded

TEST_F(ImagesPage, AnImageThatDoesNotDecodeIsAskedAbout) {
  desk.Add("bad.jpg", "no picture");
  desk.page->RefreshList();
  desk.ClickRow(0);
  Answer([&](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmInvalidImage");
    EXPECT_EQ(Find<QLabel>(dialog, "lblImageName").text(), "bad.jpg");
    EXPECT_EQ(desk.shell.beeps, (std::vector<env::BeepKind>{env::BeepKind::Warning}));
    Click(dialog, "btnIgnore");
  });
  EXPECT_TRUE(Preview().Picture().isNull());
  EXPECT_EQ(images.Count(), 1U);
}

TEST_F(ImagesPage, RetryShowsAFileThatHasBeenMended) {
  desk.Add("bad.jpg", "no picture");
  desk.page->RefreshList();
  desk.ClickRow(0);
  Answer([&](QWidget& dialog) {
    desk.folder.Write("bad.jpg", fakes::MakeJpeg({}));
    Click(dialog, "btnRetry");
  });
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, RemoveTakesTheImageAwayAndShowsTheNext) {
  desk.Add("bad.jpg", "no picture");
  desk.AddAll({"good.jpg"});
  desk.ClickRow(0);
  Answer([&](QWidget& dialog) { Click(dialog, "btnRemove"); });
  EXPECT_EQ(desk.Names(), (Names{"good.jpg"}));
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1}));
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, NothingIsAskedWhileTheWindowIsBusy) {
  desk.Add("bad.jpg", "no picture");
  desk.page->RefreshList();
  desk.page->setEnabled(false);
  const QSignalSpy failed(&Preview(), &FittedPicture::Failed);
  desk.MakeCurrent(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return failed.count() == 1; }, 10000));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(desk.shell.beeps.empty());
}

// Adding

TEST_F(ImagesPage, TheButtonAndTheInsertKeyAddFiles) {
  const std::string folder = desk.paths.ToText(desk.folder.Write("p/a.jpg", fakes::MakeJpeg({})).parent_path()) + "\\";
  desk.browser.answer = {.result = "a.jpg", .folder = folder, .names = {"a.jpg"}};
  int told = 0;
  QObject::connect(desk.page.get(), &frmImages::ListChanged, [&] { ++told; });
  Click(*desk.page, "btnImagesAddFiles");
  QTest::keyClick(desk.list, Qt::Key_Insert);
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "a.jpg_1"}));
  EXPECT_EQ(desk.ShownText(1), "a.jpg_1");
  EXPECT_EQ(desk.preferences.ImageSourceFolder, folder);
  EXPECT_EQ(told, 2);
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1})) << "the first of those that came when no row was current";
  EXPECT_EQ(desk.list->currentIndex().row(), 0);
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, FoldersAreAddedUnderAWindowThatTellsHowFarItIs) {
  desk.folder.Write("p/b.jpg", fakes::MakeJpeg({}));
  desk.folder.Write("p/a.jpg", fakes::MakeJpeg({}));
  desk.folders = {desk.paths.ToText(desk.folder.Path() / "p")};
  desk.loop.onTurn = [&](int) {
    auto& dialog = Find<QDialog>(*desk.page, "frmAddFoldersProcess");
    EXPECT_TRUE(dialog.isVisible() && dialog.isModal());
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Adding Images...");
    EXPECT_EQ(Find<QLabel>(dialog, "lblFolder").text().toStdString(), "Processing: " + desk.folders[0]);
    EXPECT_TRUE(Find<QLabel>(dialog, "lblCount").text().endsWith(" Image(s)"));
  };
  Click(*desk.page, "btnImagesAddFolder");
  EXPECT_GE(desk.loop.turns, 1);
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_EQ(desk.list->model()->rowCount(), 2);
  EXPECT_TRUE(desk.project.IsModified);
  EXPECT_EQ(desk.preferences.ImageSourceFolder, desk.folders[0]);
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1}));
  EXPECT_EQ(desk.list->currentIndex().row(), 0);
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, AddingFoldersCanBeStopped) {
  desk.folder.Write("p/a.jpg", fakes::MakeJpeg({}));
  desk.folders = {desk.paths.ToText(desk.folder.Path() / "p")};
  desk.loop.onTurn = [&](int) { Click(Find<QDialog>(*desk.page, "frmAddFoldersProcess"), "OKButton"); };
  Click(*desk.page, "btnImagesAddFolder");
  EXPECT_TRUE(images.Empty());
  EXPECT_FALSE(desk.project.IsModified);
}

TEST_F(ImagesPage, NoFolderNoWalk) {
  Click(*desk.page, "btnImagesAddFolder");
  EXPECT_EQ(desk.loop.turns, 0);
  EXPECT_EQ(desk.preferences.ImageSourceFolder, "");
}

// Removing and moving

TEST_F(ImagesPage, TheDeleteKeyAndTheButtonRemoveTheSelection) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
  desk.ClickRow(1);
  QTest::keyClick(desk.list, Qt::Key_Delete);
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "c.jpg", "d.jpg"}));
  EXPECT_EQ(desk.list->currentIndex().row(), 1);
  desk.ClickRow(2);
  desk.ClickRow(0, Qt::ControlModifier);
  Click(*desk.page, "btnImagesRemove");
  EXPECT_EQ(desk.Names(), (Names{"c.jpg"}));
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1}));
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(ImagesPage, DeleteRemovesRowAfterRowWithoutSelecting) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  desk.ClickRow(1);
  for (const Names& left : {Names{"a.jpg", "c.jpg"}, Names{"a.jpg"}, Names{}}) {
    QTest::keyClick(desk.list, Qt::Key_Delete);
    EXPECT_EQ(desk.Names(), left);
    EXPECT_EQ(desk.ShownAsSelected().size(), left.empty() ? 0U : 1U);
  }
  EXPECT_TRUE(desk.list->selectionModel()->selectedRows().empty());
}

TEST_F(ImagesPage, AllAreRemovedOnlyAfterAQuestion) {
  desk.AddAll({"a.jpg", "b.jpg"});
  desk.boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  Click(*desk.page, "btnImagesRemoveAll");
  EXPECT_EQ(images.Count(), 2U);
  Click(*desk.page, "btnImagesRemoveAll");
  EXPECT_EQ(desk.list->model()->rowCount(), 0);
}

TEST_F(ImagesPage, TheSelectedImagesMoveUpAndDown) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
  desk.ClickRow(1);
  desk.ClickRow(2, Qt::ControlModifier);
  Click(*desk.page, "btnImagesMoveUp");
  EXPECT_EQ(desk.Names(), (Names{"b.jpg", "c.jpg", "a.jpg", "d.jpg"}));
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1, 2}));
  Click(*desk.page, "btnImagesMoveUp");
  EXPECT_EQ(desk.ShownText(0), "b.jpg");
  Click(*desk.page, "btnImagesMoveDown");
  Click(*desk.page, "btnImagesMoveDown");
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "d.jpg", "b.jpg", "c.jpg"}));
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{3, 4}));
}

TEST_F(ImagesPage, AMovedImageIsScrolledIntoView) {
  FillWithMany();
  desk.page->RefreshList();
  images.Select(150);
  Click(*desk.page, "btnImagesMoveUp");
  const QRect row = desk.list->visualRect(desk.list->model()->index(148, 0));
  EXPECT_TRUE(desk.list->viewport()->rect().contains(row));
}

TEST_F(ImagesPage, AnImageThatIsDroppedOnAnotherTakesItsPlace) {
  desk.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  emit desk.list->Dropped("a.jpg", 3);
  EXPECT_EQ(desk.Names(), (Names{"b.jpg", "c.jpg", "a.jpg"}));
  EXPECT_EQ(desk.list->currentIndex().row(), 2);
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{3}));
}

// Sorting

TEST_F(ImagesPage, ASortingOrderIsAskedAboutAndKept) {
  desk.AddAll({"b.jpg", "c.jpg", "a.jpg"});
  auto& combo = Find<QComboBox>(*desk.page, "comboImagesSortingOrder");
  combo.setFocus();
  desk.boxes.answers = {env::BoxAnswer::No};
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_EQ(desk.ShownText(0), "b.jpg");
  desk.boxes.answers = {env::BoxAnswer::Yes};
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "b.jpg", "c.jpg"}));
  EXPECT_EQ(desk.ShownText(0), "a.jpg");
  EXPECT_TRUE(desk.project.IsModified);
}

TEST_F(ImagesPage, MovingEndsTheSorting) {
  desk.AddAll({"b.jpg", "a.jpg"});
  desk.operations.SetSortingOrder(1);
  desk.binder.Refresh();
  desk.page->RefreshList();
  desk.ClickRow(1);
  Click(*desk.page, "btnImagesMoveUp");
  EXPECT_EQ(Find<QComboBox>(*desk.page, "comboImagesSortingOrder").currentIndex(), 0);
}

// Dialogs

TEST_F(ImagesPage, RenameGivesTheCurrentImageAName) {
  desk.AddAll({"a.jpg", "b.jpg"});
  desk.MakeCurrent(2);
  DriveModal([&] { Click(*desk.page, "btnImagesRename"); },
             [](QWidget& dialog) {
               EXPECT_EQ(Find<QLineEdit>(dialog, "textNameBase").text(), "b.jpg");
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textNameBase"), "High Alps");
               QTest::keyClick(&Find<QLineEdit>(dialog, "textNameBase"), Qt::Key_Return);
             });
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "High_Alps"}));
  EXPECT_EQ(desk.ShownText(1), "High_Alps");
}

TEST_F(ImagesPage, RenameIsThereWhileAnImageIsCurrent) {
  const auto& button = Find<QPushButton>(*desk.page, "btnImagesRename");
  EXPECT_FALSE(button.isEnabled());
  desk.AddAll({"a.jpg"});
  EXPECT_FALSE(button.isEnabled()) << "there is a row, but none is current";
  desk.ClickRow(0);
  EXPECT_TRUE(button.isEnabled());
  QTest::keyClick(desk.list, Qt::Key_Delete);
  EXPECT_FALSE(button.isEnabled());
}

TEST_F(ImagesPage, RenameCanNameAllImagesOrNone) {
  desk.AddAll({"a.jpg", "b.jpg"});
  desk.MakeCurrent(1);
  DriveModal([&] { Click(*desk.page, "btnImagesRename"); },
             [](QWidget& dialog) {
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textNameBase"), "x");
               Click(dialog, "CheckRenameAll");
               Click(dialog, "CancelButton");
             });
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_FALSE(desk.project.IsModified);
  DriveModal([&] { Click(*desk.page, "btnImagesRename"); },
             [](QWidget& dialog) {
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textNameBase"), "x");
               Click(dialog, "CheckRenameAll");
               Click(dialog, "OKButton");
             });
  EXPECT_EQ(desk.Names(), (Names{"x", "x_1"}));
}

TEST_F(ImagesPage, ACancelledDialogIsNotAnOperation) {
  desk.AddAll({"a.jpg"});
  desk.MakeCurrent(1);
  const QSignalSpy operations(desk.page.get(), &frmImages::ListChanged);
  const QSignalSpy edits(&desk.binder, &FieldBinder::Edited);
  for (const char* button : {"btnImagesRename", "btnImagesFind"}) {
    DriveModal([&] { Click(*desk.page, button); }, [](QWidget& dialog) { Click(dialog, "CancelButton"); });
    DriveModal([&] { Click(*desk.page, button); }, [](QWidget& dialog) { dialog.close(); });
  }
  EXPECT_EQ(operations.count(), 0);
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(ImagesPage, AnEmptyListIsNotRenamedAndNotSearched) {
  Click(*desk.page, "btnImagesRename");
  Click(*desk.page, "btnImagesFind");
  Click(*desk.page, "btnImagesShuffle");
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(ImagesPage, FindMakesTheImageOfThatNameTheCurrentOne) {
  desk.AddAll({"a.jpg", "b_c.jpg"});
  desk.ClickRow(0);
  DriveModal([&] { Click(*desk.page, "btnImagesFind"); },
             [](QWidget& dialog) {
               EXPECT_FALSE(Find<QPushButton>(dialog, "OKButton").isEnabled());
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textTitle"), "B C");
               Click(dialog, "OKButton");
             });
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(desk.list->currentIndex().row(), 1);
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{2})) << "what was selected before is not";
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, FindTellsWhatIsNotThereAndKeepsTheText) {
  desk.AddAll({"a.jpg"});
  DriveModal([&] { Click(*desk.page, "btnImagesFind"); },
             [](QWidget& dialog) {
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textTitle"), "zz");
               QTest::keyClick(&Find<QLineEdit>(dialog, "textTitle"), Qt::Key_Return);
             });
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].text, "This Gallery does not contain an Image named \"zz\".");
  DriveModal([&] { Click(*desk.page, "btnImagesFind"); },
             [](QWidget& dialog) {
               EXPECT_EQ(Find<QLineEdit>(dialog, "textTitle").selectedText(), "zz");
               Click(dialog, "CancelButton");
             });
  EXPECT_EQ(desk.boxes.boxes.size(), 1U);
}

TEST_F(ImagesPage, ShuffleKeepsTheImagesAndMakesTheFirstOneCurrent) {
  Names names;
  for (int i = 0; i < 200; ++i) names.push_back(std::to_string(i));
  for (const std::string& name : names)
    images.Insert(images.Count() + 1, {.ImageName = name,
                                       .SourcePath = "x",
                                       .SizeKey = {},
                                       .DateKey = {},
                                       .ImageDescription = {},
                                       .ThumbnailDescription = {}});
  desk.preferences.checkImagesPreview = 0;
  desk.page->RefreshList();
  desk.loop.onTurn = [&](int) {
    auto& dialog = Find<QDialog>(*desk.page, "frmShuffle");
    EXPECT_TRUE(dialog.isVisible() && dialog.isModal());
  };
  Click(*desk.page, "btnImagesShuffle");
  EXPECT_GT(desk.loop.turns, 0);
  EXPECT_NE(desk.Names(), names);
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(desk.ShownAsSelected(), (Positions{1}));
  EXPECT_EQ(desk.ShownText(0).toStdString(), images.Entry(1).ImageName);
  Names shuffled = desk.Names();
  std::ranges::sort(shuffled);
  std::ranges::sort(names);
  EXPECT_EQ(shuffled, names);
}

TEST_F(ImagesPage, AShuffleCanBeStopped) {
  FillWithMany();
  desk.preferences.checkImagesPreview = 0;
  desk.page->RefreshList();
  desk.loop.onTurn = [&](int) { Click(Find<QDialog>(*desk.page, "frmShuffle"), "OKButton"); };
  Click(*desk.page, "btnImagesShuffle");
  EXPECT_EQ(desk.loop.turns, 1);
}

TEST_F(ImagesPage, AShuffleThatIsNotWantedDoesNothing) {
  desk.AddAll({"a.jpg", "b.jpg"});
  desk.boxes.answers = {env::BoxAnswer::No};
  Click(*desk.page, "btnImagesShuffle");
  EXPECT_EQ(desk.Names(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_FALSE(desk.project.IsModified);
}

}  // namespace
}  // namespace vantorium::ui
