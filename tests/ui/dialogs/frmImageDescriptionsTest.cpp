#include "tests/fakes/RecordingMessageBox.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmImageDescriptions.h"
#include "ui/widgets/ElidedGroupBox.h"
#include "ui/widgets/FieldBinder.h"

#include <QContextMenuEvent>
#include <QFrame>
#include <QGroupBox>
#include <QHelpEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QToolTip>
#include <QWindow>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::Find;
using fakes::Type;

class DescriptionsWindow : public testing::Test {
 protected:
  DescriptionsWindow() {
    project.images.Insert(1, {"Alps", "", "", "", "the Alps", "A"});
    project.images.Insert(2, {"Rock & Roll", "", "", "", "a rock\r\nand a roll", "R"});
    project.images.SetCurrent(1);
    project.settings.textHeader = "<p>";
    project.settings.textThumbFooter = "</b>";
    form.FollowSelection();
    form.show();
    static_cast<void>(QTest::qWaitForWindowActive(&form));
  }

  QPlainTextEdit& Box(const char* name) { return Find<QPlainTextEdit>(form, name); }
  QComboBox& List(const char* name) { return Find<QComboBox>(form, name); }
  QStringList Items(const char* name) {
    QStringList items;
    for (int i = 0; i < List(name).count(); ++i) items << List(name).itemText(i);
    return items;
  }
  void Choose(const char* name, int index) {
    List(name).setFocus();
    QTest::keyClick(&List(name), Qt::Key_Home);
    for (int i = 0; i < index; ++i) QTest::keyClick(&List(name), Qt::Key_Down);
  }
  void ShowThumbnails() { Find<QTabWidget>(form, "tabDescription").setCurrentIndex(1); }

  void GoTo(std::size_t position) {
    project.images.SetCurrent(position);
    form.FollowSelection();
  }

  core::Project project;
  core::ProjectEditor editor{project.settings, project.IsModified};
  fakes::RecordingMessageBox boxes;
  FieldBinder binder{editor, boxes};
  frmImageDescriptions form{project, binder, boxes, nullptr};
};

TEST_F(DescriptionsWindow, IsBesideTheMainWindow) {
  EXPECT_EQ(form.objectName(), "frmImageDescriptions");
  EXPECT_EQ(form.windowTitle(), "Image Descriptions ToolBox");
  EXPECT_FALSE(form.isModal());
  EXPECT_EQ(form.focusWidget(), &Box("textDescription"));
  EXPECT_FALSE(project.IsModified);
}

// Moves and resizes the window as a window manager does, which Qt distinguishes from changes by the program.
TEST_F(DescriptionsWindow, ReopensWhereTheUserLeftIt) {
  const QRect left(31, 47, form.width() + 60, form.height() + 20);
  form.windowHandle()->setGeometry(left);
  ASSERT_TRUE(QTest::qWaitFor([&] { return form.geometry() == left; }));
  for (const bool byButton : {true, false}) {
    byButton ? Click(form, "btnClose") : form.hide();
    ASSERT_FALSE(form.isVisible());
    form.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
    EXPECT_EQ(form.geometry(), left) << byButton;
  }
}

TEST_F(DescriptionsWindow, HasLabelsAndToolTips) {
  const auto tip = [this](const char* name) { return Find<QWidget>(form, name).toolTip().toStdString(); };
  EXPECT_EQ(Find<QGroupBox>(form, "Frame2").title(), "Global Settings for all Image Descriptions");
  EXPECT_EQ(Find<QGroupBox>(form, "Frame1").title(), "Global Settings for all Thumbnail Descriptions");
  EXPECT_EQ(Find<QPushButton>(form, "btnImageDescriptionsHeaderAndFooter").text(),
            "Global Image Descriptions Header and Footer...");
  EXPECT_EQ(Find<QPushButton>(form, "btnThumbnailDescriptionsHeaderAndFooter").text(),
            "Global Thumbnail Descriptions Header and Footer...");
  EXPECT_EQ(tip("textHeader"), "HTML Header that will be placed in front of all Image Descriptions");
  EXPECT_EQ(tip("textFooter"), "HTML Footer that will be placed behind all Image Descriptions");
  EXPECT_EQ(tip("textThumbHeader"), "HTML Header that will be placed in front of all Thumbnail Descriptions");
  EXPECT_EQ(tip("textThumbFooter"), "HTML Footer that will be placed behind all Thumbnail Descriptions");
  EXPECT_EQ(tip("textDescription"), "Image Description Text (note that you may use HTML Tags to format the Text)");
  EXPECT_EQ(tip("textThumbDescription"),
            "Tumbnail Description Text (note that you may use HTML Tags to format the Text)");
  EXPECT_EQ(Find<QPushButton>(form, "btnClearAll").text(), "Clear All");
  EXPECT_EQ(tip("btnClearAll"), "Clear all Image Descriptions in this Gallery");
  EXPECT_EQ(Find<QPushButton>(form, "btnClose").text(), "&Close");
  EXPECT_EQ(tip("btnClose"), "Close this Dialog");
  EXPECT_EQ(Find<QLabel>(form, "Label2").text(), "Right-click on the Text Fields for more Options.");
  EXPECT_NE(form.findChild<QObject*>("ucPopupMenu"), nullptr);
}

TEST_F(DescriptionsWindow, ShowsTheCurrentImageAndTheProject) {
  EXPECT_EQ(Find<QGroupBox>(form, "frmImageDescription").title(), "Image Description: Alps");
  EXPECT_EQ(Find<QGroupBox>(form, "frmThumbDescription").title(), "Thumb Description: Alps");
  EXPECT_EQ(Box("textDescription").toPlainText(), "the Alps");
  EXPECT_EQ(Box("textThumbDescription").toPlainText(), "A");
  EXPECT_EQ(Box("textHeader").toPlainText(), "<p>");
  EXPECT_EQ(Box("textFooter").toPlainText(), "");
  EXPECT_EQ(Box("textThumbHeader").toPlainText(), "");
  EXPECT_EQ(Box("textThumbFooter").toPlainText(), "</b>");
}

TEST_F(DescriptionsWindow, FollowsTheListWithoutModifyingTheProject) {
  GoTo(2);
  EXPECT_EQ(Find<QGroupBox>(form, "frmImageDescription").title(), "Image Description: Rock && Roll");
  EXPECT_EQ(Box("textDescription").toPlainText(), "a rock\nand a roll");
  EXPECT_EQ(Box("textThumbDescription").toPlainText(), "R");
  GoTo(0);
  EXPECT_EQ(Find<QGroupBox>(form, "frmImageDescription").title(), "Image Description: (No Image selected)");
  EXPECT_EQ(Find<QGroupBox>(form, "frmThumbDescription").title(), "Thumb Description: (No Image selected)");
  EXPECT_EQ(Box("textDescription").toPlainText(), "");
  EXPECT_EQ(Box("textThumbDescription").toPlainText(), "");
  EXPECT_EQ(Box("textHeader").toPlainText(), "<p>");
  EXPECT_FALSE(project.IsModified);
  EXPECT_EQ(project.images.Entry(1).ImageDescription, "the Alps");
}

TEST_F(DescriptionsWindow, TypedTextIsStoredForTheCurrentImage) {
  int edits = 0;
  QObject::connect(&binder, &FieldBinder::Edited, [&edits] { ++edits; });
  GoTo(2);
  Type(Box("textDescription"), "one");
  QTest::keyClick(&Box("textDescription"), Qt::Key_Return);
  QTest::keyClicks(&Box("textDescription"), "two");
  EXPECT_EQ(project.images.Entry(2).ImageDescription, "one\r\ntwo");
  EXPECT_TRUE(project.IsModified);
  EXPECT_GT(edits, 0);
  ShowThumbnails();
  Type(Box("textThumbDescription"), "thumb");
  EXPECT_EQ(project.images.Entry(2).ThumbnailDescription, "thumb");
  EXPECT_EQ(project.images.Entry(1).ImageDescription, "the Alps");
}

TEST_F(DescriptionsWindow, TypingWithoutAnImageChangesNothing) {
  GoTo(0);
  Type(Box("textDescription"), "lost");
  ShowThumbnails();
  Type(Box("textThumbDescription"), "lost");
  EXPECT_FALSE(project.IsModified);
  EXPECT_EQ(project.images.Entry(1).ImageDescription, "the Alps");
}

TEST_F(DescriptionsWindow, UndoNeverReachesIntoAnotherImage) {
  Type(Box("textDescription"), "new");
  GoTo(2);
  Box("textDescription").undo();
  EXPECT_EQ(project.images.Entry(2).ImageDescription, "a rock\r\nand a roll");
  project.images.SetImageDescription(1, "same");
  Type(Box("textDescription"), "same");
  GoTo(1);
  EXPECT_FALSE(Box("textDescription").document()->isUndoAvailable());
}

TEST_F(DescriptionsWindow, FollowingToTheSameRowKeepsCursorAndUndo) {
  QTest::keyClick(&Box("textDescription"), Qt::Key_End);
  QTest::keyClicks(&Box("textDescription"), "!");
  form.FollowSelection();
  EXPECT_EQ(Box("textDescription").textCursor().position(), 9);
  EXPECT_TRUE(Box("textDescription").document()->isUndoAvailable());
}

TEST_F(DescriptionsWindow, MovingInTheListKeepsTheUndoOfHeadersAndFooters) {
  const char* const names[] = {"textHeader", "textFooter", "textThumbHeader", "textThumbFooter"};
  std::string before;
  for (const char* name : names) {
    before += Box(name).toPlainText().toStdString() + "|";
    Box(name).insertPlainText("new");
  }
  GoTo(2);
  GoTo(0);
  GoTo(1);
  std::string after;
  for (const char* name : names) {
    Box(name).undo();
    after += Box(name).toPlainText().toStdString() + "|";
  }
  EXPECT_EQ(after, before);
  EXPECT_EQ(project.settings.textHeader, "<p>");
}

TEST_F(DescriptionsWindow, AnotherProjectClearsTheUndoOfHeadersAndFooters) {
  Type(Box("textHeader"), "same");
  project.ProjectFileName = "D:\\Other.gpj";
  form.FollowSelection();
  EXPECT_FALSE(Box("textHeader").document()->isUndoAvailable());
}

TEST_F(DescriptionsWindow, HeadersAndFootersAreStoredInTheProject) {
  Type(Box("textHeader"), "h");
  EXPECT_TRUE(project.IsModified);
  Type(Box("textFooter"), "f");
  ShowThumbnails();
  Type(Box("textThumbHeader"), "th");
  Type(Box("textThumbFooter"), "tf");
  EXPECT_EQ(project.settings.textHeader, "h");
  EXPECT_EQ(project.settings.textFooter, "f");
  EXPECT_EQ(project.settings.textThumbHeader, "th");
  EXPECT_EQ(project.settings.textThumbFooter, "tf");
}

TEST_F(DescriptionsWindow, TheListsHavePlacementsAndTheirAlignments) {
  const QStringList placements = {"no automatic placement", "place left to image", "place right to image",
                                  "place above image", "place below image"};
  EXPECT_EQ(Items("comboImageDescriptionPlacement"), placements);
  EXPECT_EQ(Items("comboThumbnailDescriptionPlacement"), placements);
  EXPECT_FALSE(List("comboImageDescriptionAlignment").isEnabled());
  Choose("comboImageDescriptionPlacement", 1);
  EXPECT_TRUE(List("comboImageDescriptionAlignment").isEnabled());
  EXPECT_EQ(Items("comboImageDescriptionAlignment"), (QStringList{"align top", "align center", "align bottom"}));
  Choose("comboImageDescriptionAlignment", 2);
  EXPECT_EQ(List("comboImageDescriptionAlignment").currentText(), "align bottom");
  Choose("comboImageDescriptionPlacement", 3);
  EXPECT_EQ(List("comboImageDescriptionAlignment").currentText(), "align right");
  Choose("comboImageDescriptionPlacement", 0);
  EXPECT_FALSE(List("comboImageDescriptionAlignment").isEnabled());
}

TEST_F(DescriptionsWindow, PlacementsAreStoredByTheCloseButton) {
  Choose("comboImageDescriptionPlacement", 2);
  EXPECT_TRUE(project.IsModified);
  Choose("comboImageDescriptionAlignment", 1);
  ShowThumbnails();
  Choose("comboThumbnailDescriptionPlacement", 4);
  Choose("comboThumbnailDescriptionAlignment", 2);
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 0);
  Click(form, "btnClose");
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 2);
  EXPECT_EQ(project.settings.comboImageDescriptionAlignment, 1);
  EXPECT_EQ(project.settings.comboThumbnailDescriptionPlacement, 4);
  EXPECT_EQ(project.settings.comboThumbnailDescriptionAlignment, 2);
}

TEST_F(DescriptionsWindow, TheTitleBarAndEscapeStoreThePlacementsToo) {
  Choose("comboImageDescriptionPlacement", 2);
  form.close();
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 2);
  form.show();
  Choose("comboImageDescriptionPlacement", 3);
  QTest::keyClick(&Box("textDescription"), Qt::Key_Escape);
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 3);
}

TEST_F(DescriptionsWindow, ClosingWithoutEditsIsNotAChange) {
  Click(form, "btnClose");
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsWindow, StoresItsPlacementsBeforeASaveOnRequest) {
  Choose("comboImageDescriptionPlacement", 4);
  form.StorePlacings();
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 4);
  EXPECT_TRUE(form.isVisible());
}

TEST_F(DescriptionsWindow, EachOpeningReadsThePlacementsOfTheProject) {
  Click(form, "btnClose");
  project.settings.comboImageDescriptionPlacement = 1;
  project.settings.comboImageDescriptionAlignment = 2;
  form.show();
  EXPECT_EQ(List("comboImageDescriptionPlacement").currentText(), "place left to image");
  EXPECT_EQ(List("comboImageDescriptionAlignment").currentText(), "align bottom");
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsWindow, HidingItForANewProjectStoresNothingInTheNewProject) {
  Choose("comboImageDescriptionPlacement", 3);
  project.settings.comboImageDescriptionPlacement = 0;
  form.hide();
  form.StorePlacings();
  EXPECT_EQ(project.settings.comboImageDescriptionPlacement, 0);
  form.show();
  EXPECT_EQ(List("comboImageDescriptionPlacement").currentIndex(), 0);
}

TEST_F(DescriptionsWindow, PlacementsAndTextsOfALoadedProjectAreShown) {
  Choose("comboImageDescriptionPlacement", 3);
  Type(Box("textFooter"), "old");
  project.ProjectFileName = "D:\\Other.gpj";
  project.settings = {};
  project.settings.comboThumbnailDescriptionPlacement = 2;
  project.settings.textFooter = "new";
  project.IsModified = false;
  form.FollowSelection();
  EXPECT_EQ(List("comboImageDescriptionPlacement").currentIndex(), 0);
  EXPECT_EQ(List("comboThumbnailDescriptionPlacement").currentIndex(), 2);
  EXPECT_EQ(Box("textHeader").toPlainText(), "");
  EXPECT_EQ(Box("textFooter").toPlainText(), "new");
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsWindow, ATabEnablesOnlyItsFrame) {
  auto& tabs = Find<QTabWidget>(form, "tabDescription");
  EXPECT_EQ(tabs.tabText(0), "images");
  EXPECT_EQ(tabs.tabText(1), "thumbnails");
  EXPECT_TRUE(Find<QFrame>(form, "frmImage").isEnabled());
  EXPECT_FALSE(Find<QFrame>(form, "frmThumb").isEnabled());
  QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(1).center());
  EXPECT_TRUE(Find<QFrame>(form, "frmThumb").isVisible());
  EXPECT_TRUE(Find<QFrame>(form, "frmThumb").isEnabled());
  EXPECT_FALSE(Find<QFrame>(form, "frmImage").isVisible());
  EXPECT_FALSE(Find<QFrame>(form, "frmImage").isEnabled());
  form.close();
  form.show();
  EXPECT_EQ(tabs.currentIndex(), 1);
}

TEST_F(DescriptionsWindow, AClickOnTheOtherTabFocusesItsDescription) {
  auto& tabs = Find<QTabWidget>(form, "tabDescription");
  for (const auto& [tab, box] : {std::pair(1, "textThumbDescription"), std::pair(0, "textDescription")}) {
    QTest::mouseClick(tabs.tabBar(), Qt::LeftButton, {}, tabs.tabBar()->tabRect(tab).center());
    EXPECT_EQ(form.focusWidget()->objectName().toStdString(), box);
    QTest::keyClicks(form.focusWidget(), " y\r");
    EXPECT_NE(Box(box).toPlainText().indexOf(" y"), -1);
  }
  EXPECT_TRUE(boxes.boxes.empty()) << "no key reached a button";
}

TEST_F(DescriptionsWindow, ATabChosenWithTheKeyboardKeepsTheFocus) {
  QTabBar* bar = Find<QTabWidget>(form, "tabDescription").tabBar();
  bar->setFocus();
  QTest::keyClick(bar, Qt::Key_Right);
  EXPECT_EQ(form.focusWidget(), bar);
}

TEST_F(DescriptionsWindow, ClearAllClearsTheKindOfItsTab) {
  Click(form, "btnClearAll");
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "Clear Image Descriptions");
  EXPECT_EQ(Box("textDescription").toPlainText(), "");
  EXPECT_EQ(project.images.Entry(2).ImageDescription, "");
  EXPECT_EQ(project.images.Entry(2).ThumbnailDescription, "R");
  EXPECT_TRUE(project.IsModified);
  ShowThumbnails();
  boxes.answers = {env::BoxAnswer::No};
  Click(form, "btnClearAll");
  EXPECT_EQ(boxes.boxes[1].title, "Clear Thumbnail Descriptions");
  EXPECT_EQ(Box("textThumbDescription").toPlainText(), "A");
  Click(form, "btnClearAll");
  EXPECT_EQ(Box("textThumbDescription").toPlainText(), "");
  EXPECT_EQ(project.images.Entry(2).ThumbnailDescription, "");
}

TEST_F(DescriptionsWindow, ClearAllOfAnEmptyListAsksNothing) {
  project.images.Clear();
  form.FollowSelection();
  Click(form, "btnClearAll");
  EXPECT_TRUE(boxes.boxes.empty());
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsWindow, TheEditorOfHeaderAndFooterStoresOnlyChangedTexts) {
  const auto editor = [](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmHTML");
    EXPECT_EQ(dialog.windowTitle(), "Image Descriptions Header and Footer");
    EXPECT_EQ(Find<QPlainTextEdit>(dialog, "textHeader").toPlainText(), "<p>");
    Type(Find<QPlainTextEdit>(dialog, "textFooter"), "</p>");
    Click(dialog, "btnClose");
  };
  fakes::DriveModal([this] { Click(form, "btnImageDescriptionsHeaderAndFooter"); }, editor);
  EXPECT_EQ(Box("textFooter").toPlainText(), "</p>");
  EXPECT_EQ(project.settings.textHeader, "<p>");
  EXPECT_EQ(project.settings.textFooter, "</p>");
  EXPECT_TRUE(project.IsModified);
}

TEST_F(DescriptionsWindow, ClosingTheHeaderAndFooterEditorWithoutEditsIsNotAChange) {
  ShowThumbnails();
  fakes::DriveModal([this] { Click(form, "btnThumbnailDescriptionsHeaderAndFooter"); },
                    [](QWidget& dialog) {
                      EXPECT_EQ(dialog.windowTitle(), "Thumbnail Descriptions Header and Footer");
                      EXPECT_EQ(Find<QPlainTextEdit>(dialog, "textFooter").toPlainText(), "</b>");
                      Click(dialog, "btnClose");
                    });
  EXPECT_FALSE(project.IsModified);
}

TEST_F(DescriptionsWindow, ATagFromTheMenuIsAnEdit) {
  const auto insertTag = [this](const char* name) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), form.mapToGlobal(QPoint(1, 1)));
    QApplication::sendEvent(&Box(name), &event);
    Find<QAction>(form, "mnuEditTagsImage7").trigger();
    Find<QMenu>(form, "mnuEditTOP").close();
  };
  for (const char* name : {"textHeader", "textFooter", "textDescription"}) insertTag(name);
  ShowThumbnails();
  for (const char* name : {"textThumbHeader", "textThumbFooter", "textThumbDescription"}) insertTag(name);
  const std::string tag = "<VANTORIUM_IMAGE_TITLE>";
  EXPECT_EQ(project.settings.textHeader, tag + "<p>");
  EXPECT_EQ(project.settings.textFooter, tag);
  EXPECT_EQ(project.images.Entry(1).ImageDescription, tag + "the Alps");
  EXPECT_EQ(project.settings.textThumbHeader, tag);
  EXPECT_EQ(project.settings.textThumbFooter, tag + "</b>");
  EXPECT_EQ(project.images.Entry(1).ThumbnailDescription, tag + "A");
  EXPECT_TRUE(project.IsModified);
}

TEST_F(DescriptionsWindow, ALongNameDoesNotWidenIt) {
  const QSize before = form.minimumSizeHint();
  project.images.Rename(1, std::string(300, 'w'));
  form.FollowSelection();
  EXPECT_EQ(form.minimumSizeHint().width(), before.width());
}

TEST_F(DescriptionsWindow, ALongNameIsElidedAndTheToolTipHasItInFull) {
  auto& frame = Find<ElidedGroupBox>(form, "frmImageDescription");
  EXPECT_EQ(frame.ShownTitle(), "Image Description: Alps");
  project.images.Rename(1, "A & " + std::string(300, 'w'));
  form.FollowSelection();
  EXPECT_TRUE(frame.ShownTitle().startsWith("Image Description: A && www")) << frame.ShownTitle().toStdString();
  EXPECT_TRUE(frame.ShownTitle().endsWith("w\u2026"));
  EXPECT_LT(frame.fontMetrics().size(Qt::TextShowMnemonic, frame.ShownTitle()).width(), frame.width());
  EXPECT_TRUE(frame.title().endsWith("www"));
  QHelpEvent asks(QEvent::ToolTip, QPoint(9, 3), frame.mapToGlobal(QPoint(9, 3)));
  QApplication::sendEvent(&frame, &asks);
  EXPECT_EQ(QToolTip::text(), "Image Description: A & " + QString(300, 'w'));
}

TEST_F(DescriptionsWindow, TheTabKeyVisitsTheControlsInOrder) {
  Choose("comboImageDescriptionPlacement", 1);
  for (const char* name :
       {"comboImageDescriptionPlacement", "comboImageDescriptionAlignment", "textHeader", "textFooter",
        "btnImageDescriptionsHeaderAndFooter", "textDescription", "btnClearAll", "btnClose"}) {
    EXPECT_EQ(form.focusWidget()->objectName().toStdString(), name);
    QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(form.focusWidget(), Find<QTabWidget>(form, "tabDescription").tabBar());
  QTest::keyClick(form.focusWidget(), Qt::Key_Right);
  EXPECT_EQ(Find<QTabWidget>(form, "tabDescription").currentIndex(), 1);
  QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
  EXPECT_EQ(form.focusWidget()->objectName().toStdString(), "comboThumbnailDescriptionPlacement");
}

}  // namespace
}  // namespace vantorium::ui
