#include "tests/ui/ImagesPageHarness.h"
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
  [[nodiscard]] FittedPicture& Preview() { return Find<FittedPicture>(*harness.page, "pbImagesPreview"); }
  [[nodiscard]] bool PreviewShows() {
    return QTest::qWaitFor([this] { return !Preview().Picture().isNull(); }, 5000);
  }
  [[nodiscard]] QString Size() { return Find<QLabel>(*harness.page, "lblImagesSize").text(); }

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
  void AddManyImages() {
    for (int i = 0; i < 200; ++i)
      images.Insert(1, {.ImageName = "x",
                        .SourcePath = {},
                        .SizeKey = {},
                        .DateKey = {},
                        .ImageDescription = {},
                        .ThumbnailDescription = {}});
  }

  fakes::ImagesPageHarness harness;
  core::ImageList& images = harness.project.images;
};

// Display

TEST_F(ImagesPage, TheListHasNamesAndSources) {
  harness.AddAll({"a.jpg", "ü.jpg"});
  const QAbstractItemModel& model = *harness.list->model();
  ASSERT_EQ(model.rowCount(), 2);
  ASSERT_EQ(model.columnCount(), 2);
  EXPECT_EQ(model.headerData(0, Qt::Horizontal).toString(), "Image Name");
  EXPECT_EQ(model.headerData(1, Qt::Horizontal).toString(), "Image Source File");
  EXPECT_EQ(harness.ShownText(1), "ü.jpg");
  EXPECT_EQ(harness.ShownText(1, 1).toStdString(), images.Entry(2).SourcePath);
}

TEST_F(ImagesPage, TheSortingOrdersAreThoseOfTheField) {
  const auto& combo = Find<QComboBox>(*harness.page, "comboImagesSortingOrder");
  EXPECT_EQ(combo.count(), 9);
  EXPECT_EQ(combo.currentText(), "unsorted");
}

TEST_F(ImagesPage, EveryButtonCanBeFocusedAndHasAToolTip) {
  for (const char* name : {"btnImagesAddFiles", "btnImagesAddFolder", "btnImagesRemove", "btnImagesRemoveAll",
                           "btnImagesRename", "btnImagesDescriptions", "btnImagesFilters", "btnImagesWatermark",
                           "btnImagesMoveUp", "btnImagesMoveDown", "btnImagesFind", "btnImagesShuffle"}) {
    const auto& button = Find<QAbstractButton>(*harness.page, name);
    EXPECT_FALSE(button.toolTip().isEmpty()) << name;
    EXPECT_TRUE((button.focusPolicy() & Qt::TabFocus) != 0) << name;
    EXPECT_FALSE(button.text().isEmpty() && button.accessibleName().isEmpty()) << name;
  }
}

TEST_F(ImagesPage, AListThatChangesBeforeItIsRefreshedIsPaintedSafely) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  images.Remove(1);
  EXPECT_EQ(harness.ShownText(2), "");
  std::ignore = harness.page->grab();
  QTest::keyClick(harness.list, Qt::Key_End);
  harness.page->RefreshList();
  EXPECT_EQ(harness.list->model()->rowCount(), 2);
}

// Selection and current row

TEST_F(ImagesPage, RowsSelectedByTheUserAreSelectedInTheList) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
  harness.ClickRow(1);
  EXPECT_EQ(harness.Selected(), (Positions{2}));
  harness.ClickRow(3, Qt::ControlModifier);
  EXPECT_EQ(harness.Selected(), (Positions{2, 4}));
  EXPECT_EQ(images.Current(), 4U);
  QTest::keyClick(harness.list, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(harness.Selected(), (Positions{1, 2, 3, 4}));
  QTest::keyClick(harness.list, Qt::Key_Home);
  EXPECT_EQ(harness.Selected(), (Positions{1}));
}

TEST_F(ImagesPage, RefreshShowsTheSelectionAndTheCurrentRowOfTheList) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  images.Select(1);
  images.Select(3);
  images.SetCurrent(2);
  harness.page->RefreshList();
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1, 3}));
  EXPECT_EQ(harness.list->currentIndex().row(), 1);
  EXPECT_EQ(harness.Selected(), (Positions{1, 3}));
  images.SetCurrent(0);
  harness.page->RefreshList();
  EXPECT_FALSE(harness.list->currentIndex().isValid());
}

TEST_F(ImagesPage, ChangesMadeByTheListAreNotTreatedAsTheUsers) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  const QSignalSpy told(harness.list, &ImageListView::CurrentRowChanged);
  harness.MakeCurrent(3);
  images.Remove(3);
  harness.page->RefreshList();
  EXPECT_EQ(images.Current(), 0U);
  EXPECT_FALSE(harness.list->currentIndex().isValid());
  EXPECT_TRUE(harness.Selected().empty());
  EXPECT_EQ(told.count(), 0);
}

TEST_F(ImagesPage, ANewCurrentRowIsReportedOnce) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  harness.MakeCurrent(1);
  int told = 0;
  QObject::connect(harness.page.get(), &frmImages::CurrentChanged, [&] { ++told; });
  QTest::keyClick(harness.list, Qt::Key_Down);
  EXPECT_EQ(told, 1);
  EXPECT_EQ(images.Current(), 2U);
}

// Preview

TEST_F(ImagesPage, TheCurrentImageIsShownWithItsSizes) {
  harness.AddAll({"a.jpg"});
  harness.ClickRow(0);
  EXPECT_TRUE(PreviewShows());
  EXPECT_EQ(Preview().Picture().size(), QSize(40, 30));
  EXPECT_TRUE(Size().startsWith("(40x30, ")) << Size().toStdString();
}

TEST_F(ImagesPage, TheKeysThatMoveTheCurrentRowRefreshThePreview) {
  for (int i = 0; i < 9; ++i) harness.Add(std::to_string(i), fakes::MakeJpeg({.width = 40 + i, .height = 30}));
  harness.page->RefreshList();
  harness.MakeCurrent(5);
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_End, Qt::Key_Home, Qt::Key_PageDown, Qt::Key_PageUp}) {
    QTest::keyClick(harness.list, key);
    const QSize wanted(static_cast<int>(images.Current()) + 39, 30);
    EXPECT_TRUE(QTest::qWaitFor([&] { return Preview().Picture().size() == wanted; }, 5000)) << key;
  }
}

TEST_F(ImagesPage, WithoutACurrentRowThePreviewIsEmpty) {
  harness.AddAll({"a.jpg"});
  harness.ClickRow(0);
  ASSERT_TRUE(PreviewShows());
  harness.boxes.answers = {env::BoxAnswer::Yes};
  Click(*harness.page, "btnImagesRemoveAll");
  EXPECT_TRUE(Preview().Picture().isNull());
  EXPECT_EQ(Size(), "");
}

TEST_F(ImagesPage, TurningThePreviewOffDoesNotModifyTheProject) {
  harness.AddAll({"a.jpg"});
  harness.ClickRow(0);
  ASSERT_TRUE(PreviewShows());
  Click(*harness.page, "checkImagesPreview");
  EXPECT_TRUE(Preview().Picture().isNull());
  EXPECT_EQ(harness.preferences.checkImagesPreview, 0);
  EXPECT_FALSE(harness.project.IsModified);
  Click(*harness.page, "checkImagesPreview");
  EXPECT_EQ(harness.preferences.checkImagesPreview, 1);
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, RefreshShowsWhetherThePreviewIsOn) {
  harness.preferences.checkImagesPreview = 0;
  harness.page->RefreshList();
  EXPECT_FALSE(Find<QCheckBox>(*harness.page, "checkImagesPreview").isChecked());
}

TEST_F(ImagesPage, ADoubleClickAndEnterAskForTheFullScreen) {
  harness.AddAll({"a.jpg", "b.jpg"});
  Names asked;
  QObject::connect(harness.page.get(), &frmImages::FullScreenPreviewAsked,
                   [&](const std::string& name, const std::string& file) {
                     asked.push_back(name);
                     EXPECT_EQ(file, images.Entry(images.Current()).SourcePath);
                   });
  QTest::mouseDClick(&Preview(), Qt::LeftButton);  // no current image yet
  EXPECT_TRUE(asked.empty());
  harness.ClickRow(1);
  const QPoint second = harness.list->visualRect(harness.list->model()->index(1, 0)).center();
  QTest::mouseDClick(harness.list->viewport(), Qt::LeftButton, {}, second);
  QTest::mouseDClick(&Preview(), Qt::LeftButton);
  QTest::keyClick(harness.list, Qt::Key_Return);
  EXPECT_EQ(asked, (Names{"b.jpg", "b.jpg", "b.jpg"}));
}

// Images that cannot be decoded

TEST_F(ImagesPage, AnImageThatCannotBeDecodedIsAskedAbout) {
  harness.Add("bad.jpg", "no picture");
  harness.page->RefreshList();
  harness.ClickRow(0);
  Answer([&](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmInvalidImage");
    EXPECT_EQ(Find<QLabel>(dialog, "lblImageName").text(), "bad.jpg");
    EXPECT_EQ(harness.shell.beeps, (std::vector<env::BeepKind>{env::BeepKind::Warning}));
    Click(dialog, "btnIgnore");
  });
  EXPECT_TRUE(Preview().Picture().isNull());
  EXPECT_EQ(images.Count(), 1U);
}

TEST_F(ImagesPage, RetryShowsARepairedFile) {
  harness.Add("bad.jpg", "no picture");
  harness.page->RefreshList();
  harness.ClickRow(0);
  Answer([&](QWidget& dialog) {
    harness.folder.Write("bad.jpg", fakes::MakeJpeg({}));
    Click(dialog, "btnRetry");
  });
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, RemoveRemovesTheImageAndShowsTheNext) {
  harness.Add("bad.jpg", "no picture");
  harness.AddAll({"good.jpg"});
  harness.ClickRow(0);
  Answer([&](QWidget& dialog) { Click(dialog, "btnRemove"); });
  EXPECT_EQ(harness.Names(), (Names{"good.jpg"}));
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1}));
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, NothingIsAskedWhileTheWindowIsBusy) {
  harness.Add("bad.jpg", "no picture");
  harness.page->RefreshList();
  harness.page->setEnabled(false);
  const QSignalSpy failed(&Preview(), &FittedPicture::Failed);
  harness.MakeCurrent(1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return failed.count() == 1; }, 10000));
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_TRUE(harness.shell.beeps.empty());
}

// Adding

TEST_F(ImagesPage, TheButtonAndTheInsertKeyAddFiles) {
  const std::string folder =
      harness.paths.ToText(harness.folder.Write("p/a.jpg", fakes::MakeJpeg({})).parent_path()) + "\\";
  harness.browser.answer = {.result = "a.jpg", .folder = folder, .names = {"a.jpg"}};
  int told = 0;
  QObject::connect(harness.page.get(), &frmImages::ListChanged, [&] { ++told; });
  Click(*harness.page, "btnImagesAddFiles");
  QTest::keyClick(harness.list, Qt::Key_Insert);
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "a.jpg_1"}));
  EXPECT_EQ(harness.ShownText(1), "a.jpg_1");
  EXPECT_EQ(harness.preferences.ImageSourceFolder, folder);
  EXPECT_EQ(told, 2);
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1})) << "the first added image, since no row was current";
  EXPECT_EQ(harness.list->currentIndex().row(), 0);
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, FoldersAreAddedWithAProgressWindow) {
  harness.folder.Write("p/b.jpg", fakes::MakeJpeg({}));
  harness.folder.Write("p/a.jpg", fakes::MakeJpeg({}));
  harness.folders = {harness.paths.ToText(harness.folder.Path() / "p")};
  harness.loop.onTurn = [&](int) {
    auto& dialog = Find<QDialog>(*harness.page, "frmAddFoldersProcess");
    EXPECT_TRUE(dialog.isVisible() && dialog.isModal());
    EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Adding Images...");
    EXPECT_EQ(Find<QLabel>(dialog, "lblFolder").text().toStdString(), "Processing: " + harness.folders[0]);
    EXPECT_TRUE(Find<QLabel>(dialog, "lblCount").text().endsWith(" Image(s)"));
  };
  Click(*harness.page, "btnImagesAddFolder");
  EXPECT_GE(harness.loop.turns, 1);
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_EQ(harness.list->model()->rowCount(), 2);
  EXPECT_TRUE(harness.project.IsModified);
  EXPECT_EQ(harness.preferences.ImageSourceFolder, harness.folders[0]);
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1}));
  EXPECT_EQ(harness.list->currentIndex().row(), 0);
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, AddingFoldersCanBeStopped) {
  harness.folder.Write("p/a.jpg", fakes::MakeJpeg({}));
  harness.folders = {harness.paths.ToText(harness.folder.Path() / "p")};
  harness.loop.onTurn = [&](int) { Click(Find<QDialog>(*harness.page, "frmAddFoldersProcess"), "OKButton"); };
  Click(*harness.page, "btnImagesAddFolder");
  EXPECT_TRUE(images.Empty());
  EXPECT_FALSE(harness.project.IsModified);
}

TEST_F(ImagesPage, WithoutAFolderThereIsNoWalk) {
  Click(*harness.page, "btnImagesAddFolder");
  EXPECT_EQ(harness.loop.turns, 0);
  EXPECT_EQ(harness.preferences.ImageSourceFolder, "");
}

// Removing and moving

TEST_F(ImagesPage, TheDeleteKeyAndTheButtonRemoveTheSelection) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
  harness.ClickRow(1);
  QTest::keyClick(harness.list, Qt::Key_Delete);
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "c.jpg", "d.jpg"}));
  EXPECT_EQ(harness.list->currentIndex().row(), 1);
  harness.ClickRow(2);
  harness.ClickRow(0, Qt::ControlModifier);
  Click(*harness.page, "btnImagesRemove");
  EXPECT_EQ(harness.Names(), (Names{"c.jpg"}));
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1}));
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(ImagesPage, DeleteRemovesRowAfterRowWithoutSelecting) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  harness.ClickRow(1);
  for (const Names& left : {Names{"a.jpg", "c.jpg"}, Names{"a.jpg"}, Names{}}) {
    QTest::keyClick(harness.list, Qt::Key_Delete);
    EXPECT_EQ(harness.Names(), left);
    EXPECT_EQ(harness.ShownAsSelected().size(), left.empty() ? 0U : 1U);
  }
  EXPECT_TRUE(harness.list->selectionModel()->selectedRows().empty());
}

TEST_F(ImagesPage, AllImagesAreRemovedOnlyAfterConfirmation) {
  harness.AddAll({"a.jpg", "b.jpg"});
  harness.boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  Click(*harness.page, "btnImagesRemoveAll");
  EXPECT_EQ(images.Count(), 2U);
  Click(*harness.page, "btnImagesRemoveAll");
  EXPECT_EQ(harness.list->model()->rowCount(), 0);
}

TEST_F(ImagesPage, TheSelectedImagesMoveUpAndDown) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg", "d.jpg"});
  harness.ClickRow(1);
  harness.ClickRow(2, Qt::ControlModifier);
  Click(*harness.page, "btnImagesMoveUp");
  EXPECT_EQ(harness.Names(), (Names{"b.jpg", "c.jpg", "a.jpg", "d.jpg"}));
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1, 2}));
  Click(*harness.page, "btnImagesMoveUp");
  EXPECT_EQ(harness.ShownText(0), "b.jpg");
  Click(*harness.page, "btnImagesMoveDown");
  Click(*harness.page, "btnImagesMoveDown");
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "d.jpg", "b.jpg", "c.jpg"}));
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{3, 4}));
}

TEST_F(ImagesPage, AMovedImageIsScrolledIntoView) {
  AddManyImages();
  harness.page->RefreshList();
  images.Select(150);
  Click(*harness.page, "btnImagesMoveUp");
  const QRect row = harness.list->visualRect(harness.list->model()->index(148, 0));
  EXPECT_TRUE(harness.list->viewport()->rect().contains(row));
}

TEST_F(ImagesPage, AnImageThatIsDroppedOnAnotherTakesItsPlace) {
  harness.AddAll({"a.jpg", "b.jpg", "c.jpg"});
  emit harness.list->Dropped("a.jpg", 3);
  EXPECT_EQ(harness.Names(), (Names{"b.jpg", "c.jpg", "a.jpg"}));
  EXPECT_EQ(harness.list->currentIndex().row(), 2);
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{3}));
}

// Sorting

TEST_F(ImagesPage, ASortingOrderIsAskedAboutAndKept) {
  harness.AddAll({"b.jpg", "c.jpg", "a.jpg"});
  auto& combo = Find<QComboBox>(*harness.page, "comboImagesSortingOrder");
  combo.setFocus();
  harness.boxes.answers = {env::BoxAnswer::No};
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(combo.currentIndex(), 0);
  EXPECT_EQ(harness.ShownText(0), "b.jpg");
  harness.boxes.answers = {env::BoxAnswer::Yes};
  QTest::keyClick(&combo, Qt::Key_Down);
  EXPECT_EQ(combo.currentIndex(), 1);
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "b.jpg", "c.jpg"}));
  EXPECT_EQ(harness.ShownText(0), "a.jpg");
  EXPECT_TRUE(harness.project.IsModified);
}

TEST_F(ImagesPage, MovingEndsTheSorting) {
  harness.AddAll({"b.jpg", "a.jpg"});
  harness.operations.SetSortingOrder(1);
  harness.binder.Refresh();
  harness.page->RefreshList();
  harness.ClickRow(1);
  Click(*harness.page, "btnImagesMoveUp");
  EXPECT_EQ(Find<QComboBox>(*harness.page, "comboImagesSortingOrder").currentIndex(), 0);
}

// Dialogs

TEST_F(ImagesPage, RenameChangesTheNameOfTheCurrentImage) {
  harness.AddAll({"a.jpg", "b.jpg"});
  harness.MakeCurrent(2);
  DriveModal([&] { Click(*harness.page, "btnImagesRename"); },
             [](QWidget& dialog) {
               EXPECT_EQ(Find<QLineEdit>(dialog, "textNameBase").text(), "b.jpg");
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textNameBase"), "High Alps");
               QTest::keyClick(&Find<QLineEdit>(dialog, "textNameBase"), Qt::Key_Return);
             });
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "High_Alps"}));
  EXPECT_EQ(harness.ShownText(1), "High_Alps");
}

TEST_F(ImagesPage, RenameIsEnabledWhileAnImageIsCurrent) {
  const auto& button = Find<QPushButton>(*harness.page, "btnImagesRename");
  EXPECT_FALSE(button.isEnabled());
  harness.AddAll({"a.jpg"});
  EXPECT_FALSE(button.isEnabled()) << "no row is current";
  harness.ClickRow(0);
  EXPECT_TRUE(button.isEnabled());
  QTest::keyClick(harness.list, Qt::Key_Delete);
  EXPECT_FALSE(button.isEnabled());
}

TEST_F(ImagesPage, RenameCanRenameAllImagesOrNone) {
  harness.AddAll({"a.jpg", "b.jpg"});
  harness.MakeCurrent(1);
  DriveModal([&] { Click(*harness.page, "btnImagesRename"); },
             [](QWidget& dialog) {
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textNameBase"), "x");
               Click(dialog, "CheckRenameAll");
               Click(dialog, "CancelButton");
             });
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_FALSE(harness.project.IsModified);
  DriveModal([&] { Click(*harness.page, "btnImagesRename"); },
             [](QWidget& dialog) {
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textNameBase"), "x");
               Click(dialog, "CheckRenameAll");
               Click(dialog, "OKButton");
             });
  EXPECT_EQ(harness.Names(), (Names{"x", "x_1"}));
}

TEST_F(ImagesPage, ACancelledDialogChangesNothing) {
  harness.AddAll({"a.jpg"});
  harness.MakeCurrent(1);
  const QSignalSpy operations(harness.page.get(), &frmImages::ListChanged);
  const QSignalSpy edits(&harness.binder, &FieldBinder::Edited);
  for (const char* button : {"btnImagesRename", "btnImagesFind"}) {
    DriveModal([&] { Click(*harness.page, button); }, [](QWidget& dialog) { Click(dialog, "CancelButton"); });
    DriveModal([&] { Click(*harness.page, button); }, [](QWidget& dialog) { dialog.close(); });
  }
  EXPECT_EQ(operations.count(), 0);
  EXPECT_EQ(edits.count(), 0);
}

TEST_F(ImagesPage, AnEmptyListIsNotRenamedAndNotSearched) {
  Click(*harness.page, "btnImagesRename");
  Click(*harness.page, "btnImagesFind");
  Click(*harness.page, "btnImagesShuffle");
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(ImagesPage, FindMakesTheImageWithThatNameCurrent) {
  harness.AddAll({"a.jpg", "b_c.jpg"});
  harness.ClickRow(0);
  DriveModal([&] { Click(*harness.page, "btnImagesFind"); },
             [](QWidget& dialog) {
               EXPECT_FALSE(Find<QPushButton>(dialog, "OKButton").isEnabled());
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textTitle"), "B C");
               Click(dialog, "OKButton");
             });
  EXPECT_EQ(images.Current(), 2U);
  EXPECT_EQ(harness.list->currentIndex().row(), 1);
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{2})) << "the old selection is cleared";
  EXPECT_TRUE(PreviewShows());
}

TEST_F(ImagesPage, FindReportsAMissingNameAndKeepsTheText) {
  harness.AddAll({"a.jpg"});
  DriveModal([&] { Click(*harness.page, "btnImagesFind"); },
             [](QWidget& dialog) {
               QTest::keyClicks(&Find<QLineEdit>(dialog, "textTitle"), "zz");
               QTest::keyClick(&Find<QLineEdit>(dialog, "textTitle"), Qt::Key_Return);
             });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "This Gallery does not contain an Image named \"zz\".");
  DriveModal([&] { Click(*harness.page, "btnImagesFind"); },
             [](QWidget& dialog) {
               EXPECT_EQ(Find<QLineEdit>(dialog, "textTitle").selectedText(), "zz");
               Click(dialog, "CancelButton");
             });
  EXPECT_EQ(harness.boxes.boxes.size(), 1U);
}

TEST_F(ImagesPage, ShuffleKeepsTheImagesAndMakesTheFirstCurrent) {
  Names names;
  for (int i = 0; i < 200; ++i) names.push_back(std::to_string(i));
  for (const std::string& name : names)
    images.Insert(images.Count() + 1, {.ImageName = name,
                                       .SourcePath = "x",
                                       .SizeKey = {},
                                       .DateKey = {},
                                       .ImageDescription = {},
                                       .ThumbnailDescription = {}});
  harness.preferences.checkImagesPreview = 0;
  harness.page->RefreshList();
  harness.loop.onTurn = [&](int) {
    auto& dialog = Find<QDialog>(*harness.page, "frmShuffle");
    EXPECT_TRUE(dialog.isVisible() && dialog.isModal());
  };
  Click(*harness.page, "btnImagesShuffle");
  EXPECT_GT(harness.loop.turns, 0);
  EXPECT_NE(harness.Names(), names);
  EXPECT_EQ(images.Current(), 1U);
  EXPECT_EQ(harness.ShownAsSelected(), (Positions{1}));
  EXPECT_EQ(harness.ShownText(0).toStdString(), images.Entry(1).ImageName);
  Names shuffled = harness.Names();
  std::ranges::sort(shuffled);
  std::ranges::sort(names);
  EXPECT_EQ(shuffled, names);
}

TEST_F(ImagesPage, AShuffleCanBeStopped) {
  AddManyImages();
  harness.preferences.checkImagesPreview = 0;
  harness.page->RefreshList();
  harness.loop.onTurn = [&](int) { Click(Find<QDialog>(*harness.page, "frmShuffle"), "OKButton"); };
  Click(*harness.page, "btnImagesShuffle");
  EXPECT_EQ(harness.loop.turns, 1);
}

TEST_F(ImagesPage, AShuffleThatIsNotConfirmedDoesNothing) {
  harness.AddAll({"a.jpg", "b.jpg"});
  harness.boxes.answers = {env::BoxAnswer::No};
  Click(*harness.page, "btnImagesShuffle");
  EXPECT_EQ(harness.Names(), (Names{"a.jpg", "b.jpg"}));
  EXPECT_FALSE(harness.project.IsModified);
}

}  // namespace
}  // namespace vantorium::ui
