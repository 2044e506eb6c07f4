#include "env/PathMap.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/ui/FormDriver.h"
#include "ui/widgets/FieldBinder.h"
#include "ui/widgets/UpDown.h"

#include <QClipboard>
#include <QVBoxLayout>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::Type;

class FieldBinding : public testing::Test {
 protected:
  FieldBinding() {
    for (QWidget* control :
         std::initializer_list<QWidget*>{&title, &frameSize, &spinner, &rows, &rowsSpinner, &delay, &delaySpinner,
                                         &directLinks, &directLinksSpinner, &wrappers, &slideShow, &layout}) {
      column.addWidget(control);
    }
    binder.Bind(title, &core::GalleryProject::textGalleryTitle);
    binder.Bind(frameSize, spinner, &core::GalleryProject::textGalleryFrameSize);
    binder.Bind(rows, rowsSpinner, &core::GalleryProject::textThumbnailsTableRows);
    binder.Bind(delay, delaySpinner, &core::GalleryProject::textGallerySlideShowDelay);
    binder.Bind(directLinks, directLinksSpinner, &core::GalleryProject::textPageLinksThumbnailMaxDirectLinks);
    binder.Bind(wrappers, &core::GalleryProject::checkImageWrapperUse);
    binder.Bind(slideShow, &core::GalleryProject::checkGallerySlideShow);
    binder.Bind(layout, &core::GalleryProject::comboGalleryLayoutType);
    binder.Refresh();
    form.show();
    QObject::connect(&binder, &FieldBinder::Edited, [this] { ++edits; });
  }

  /// Replaces the box's text from the clipboard.
  static void Paste(QLineEdit& box, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    box.selectAll();
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  }

  core::GalleryProject project;
  bool modified = false;
  core::ProjectEditor editor{project, modified};
  fakes::RecordingMessageBox boxes;
  FieldBinder binder{editor, boxes};
  QWidget form;
  QVBoxLayout column{&form};
  QLineEdit title;
  QLineEdit frameSize;
  UpDown spinner;
  QLineEdit rows;
  UpDown rowsSpinner;
  QLineEdit delay;
  UpDown delaySpinner;
  QLineEdit directLinks;
  UpDown directLinksSpinner;
  QCheckBox wrappers{"Wrappers"};
  QCheckBox slideShow{"Slideshow"};
  QComboBox layout;
  int edits = 0;
};

TEST_F(FieldBinding, RefreshShowsTheProjectAndIsNotAnEdit) {
  project.textGalleryTitle = "Zürich";
  project.comboGalleryLayoutType = 3;
  binder.Refresh();
  EXPECT_EQ(title.text(), "Zürich");
  EXPECT_EQ(frameSize.text(), "200");
  EXPECT_TRUE(wrappers.isChecked());
  EXPECT_EQ(layout.currentText(), "thumbnail frame top");
  EXPECT_FALSE(modified);
  EXPECT_EQ(edits, 0);
}

TEST_F(FieldBinding, TypedTextIsStoredInTheField) {
  Type(title, "Ferien");
  EXPECT_EQ(project.textGalleryTitle, "Ferien");
  EXPECT_TRUE(modified);
  EXPECT_GT(edits, 0);
}

TEST_F(FieldBinding, AnEditRunsTheRulesOfOtherFields) {
  Click(wrappers);
  EXPECT_EQ(project.checkImageWrapperUse, 0);
  Click(slideShow);
  EXPECT_TRUE(wrappers.isChecked());
  Click(wrappers);
  EXPECT_FALSE(slideShow.isChecked());
}

TEST_F(FieldBinding, ANumberBelowItsMinimumBecomesTheMinimum) {
  Type(frameSize, "0");
  EXPECT_EQ(frameSize.text(), "1");
}

TEST_F(FieldBinding, AnEmptyNumberStaysEmpty) {
  Type(frameSize, "");
  EXPECT_EQ(frameSize.text(), "");
  EXPECT_EQ(project.textGalleryFrameSize, "");
}

TEST_F(FieldBinding, LettersCannotBeTypedIntoANumber) {
  Type(frameSize, "3a4");
  EXPECT_EQ(frameSize.text(), "34");
}

TEST_F(FieldBinding, APastedNumberLosesItsBlanksAndLineEnds) {
  for (const char* pasted : {" 13 ", "13\r\n", "\t13", "13"}) {
    Paste(frameSize, pasted);
    EXPECT_EQ(frameSize.text(), "13") << pasted;
    EXPECT_EQ(project.textGalleryFrameSize, "13") << pasted;
    Paste(frameSize, "200");
  }
}

TEST_F(FieldBinding, APastedNumberBelowItsMinimumBecomesTheMinimum) {
  Paste(frameSize, "-5");
  EXPECT_EQ(project.textGalleryFrameSize, "1");
  Paste(rows, " -5\n");
  EXPECT_EQ(rows.text(), "0");
  EXPECT_EQ(project.textThumbnailsTableRows, "0");
}

TEST_F(FieldBinding, ATextThatIsNotANumberClearsOnlyTheDirectLinks) {
  Paste(directLinks, "12");
  Paste(directLinks, "7x");
  EXPECT_EQ(directLinks.text(), "");
  EXPECT_EQ(project.textPageLinksThumbnailMaxDirectLinks, "");
  for (const char* pasted : {"7x", "x", "1.5", "+5", "１３"}) {
    Paste(rows, pasted);
    EXPECT_EQ(rows.text(), "5") << pasted;
    EXPECT_EQ(project.textThumbnailsTableRows, "5") << pasted;
    Paste(delay, pasted);
    EXPECT_EQ(delay.text(), "5") << pasted;
  }
  Paste(delay, "-5");
  EXPECT_EQ(project.textGallerySlideShowDelay, "5") << "it has no minimum";
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(FieldBinding, AKeyThatIsNotADigitDoesNothing) {
  modified = false;
  for (const char* box : {"x", "-", " ", "."}) {
    for (QLineEdit* number : {&frameSize, &directLinks}) {
      const QString before = number->text();
      number->setCursorPosition(0);
      QTest::keyClicks(number, box);
      number->selectAll();
      QTest::keyClicks(number, box);
      EXPECT_EQ(number->text(), before) << box;
    }
  }
  EXPECT_FALSE(modified);
}

TEST_F(FieldBinding, ANumberBeyondTheMaximumBecomesTheMaximumWithoutAMessageBox) {
  Type(frameSize, "32768");
  EXPECT_EQ(frameSize.text(), "32768");
  EXPECT_EQ(project.ThumbnailFrameSize, 32768);
  Type(frameSize, "100000");
  EXPECT_EQ(frameSize.text(), "99999");
  EXPECT_EQ(project.ThumbnailFrameSize, 99999);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(FieldBinding, TheSpinnerStepsWithinItsRange) {
  QTest::keyClick(&frameSize, Qt::Key_Up);
  EXPECT_EQ(project.textGalleryFrameSize, "201");
  Type(frameSize, "2");
  QTest::keyClick(&frameSize, Qt::Key_Down);
  QTest::keyClick(&frameSize, Qt::Key_Down);
  EXPECT_EQ(project.textGalleryFrameSize, "1");
}

TEST_F(FieldBinding, AListEntryIsChosenWithTheKeyboard) {
  layout.setFocus();
  QTest::keyClick(&layout, Qt::Key_Down);
  EXPECT_EQ(project.comboGalleryLayoutType, 1);
  EXPECT_EQ(project.comboImageFrameName, "image_frame");
}

/// The box of a path, for a user with the usual drives.
class PathBinding : public FieldBinding {
 protected:
  PathBinding() {
    column.addWidget(&box);
    project.textThumbnailsPageBackdrop = "C:\\a.gif";
    box.show();
    form.activateWindow();
    std::ignore = QTest::qWaitForWindowActive(&form);
    binder.BindPath(box, paths, &core::GalleryProject::textThumbnailsPageBackdrop);
    binder.Refresh();
  }
  void Leave() { title.setFocus(); }

  env::PathMap paths{{}, "/home/me"};
  QLineEdit box;
};

TEST_F(PathBinding, ShowsTheNativePathWithoutChangingTheField) {
  EXPECT_EQ(box.text(), "/home/me/a.gif");
  for (const char* path : {"C:\\a.gif", "Z:\\home\\me\\a.gif", "D:\\a.gif", "a.gif", ""}) {
    project.textThumbnailsPageBackdrop = path;
    binder.Refresh();
    box.setFocus();
    Leave();
    EXPECT_EQ(project.textThumbnailsPageBackdrop, path);
  }
  EXPECT_EQ(edits, 0);
  EXPECT_FALSE(modified);
}

TEST_F(PathBinding, AcceptsBothFormsAndKeepsThemWhileTheyAreTyped) {
  for (const char* typed : {"C:\\b.gif", "/home/me/b.gif", "~/b.gif"}) {
    Type(box, typed);
    EXPECT_EQ(box.text(), typed);
    Leave();
    EXPECT_EQ(box.text(), "/home/me/b.gif") << typed;
    EXPECT_EQ(project.textThumbnailsPageBackdrop, "C:\\b.gif") << typed;
  }
}

TEST_F(PathBinding, ATextThatIsNotAPlaceStaysAsTyped) {
  for (const char* typed : {"D:\\b.gif", "b.gif", "sub/b.gif", "\\\\server\\b.gif", "~b.gif", "1:\\b.gif"}) {
    Type(box, typed);
    Leave();
    EXPECT_EQ(box.text(), typed);
    EXPECT_EQ(project.textThumbnailsPageBackdrop, typed);
  }
}

}  // namespace
}  // namespace vantorium::ui
