#include "tests/fakes/RecordingMessageBox.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmHTML.h"

#include <QContextMenuEvent>
#include <QLabel>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::Find;
using fakes::Type;

class HeaderAndFooterEditing : public testing::Test {
 protected:
  HeaderAndFooter Edit(const HeaderAndFooter& texts, const std::function<void(QWidget&)>& drive) {
    HeaderAndFooter edited;
    fakes::DriveModal([&] { edited = EditHTML("Image Wrapper <BODY> Header and Footer", texts, boxes, nullptr); },
                      drive);
    return edited;
  }

  fakes::RecordingMessageBox boxes;
};

TEST_F(HeaderAndFooterEditing, OpensWithBothTextsAndTheFocusOnTheHeader) {
  Edit({"<h1>", "</h1>"}, [](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmHTML");
    EXPECT_EQ(form.windowTitle(), "Image Wrapper <BODY> Header and Footer");
    EXPECT_EQ(Find<QPlainTextEdit>(form, "textHeader").toPlainText(), "<h1>");
    EXPECT_EQ(Find<QPlainTextEdit>(form, "textFooter").toPlainText(), "</h1>");
    EXPECT_TRUE(Find<QPlainTextEdit>(form, "textHeader").hasFocus());
    EXPECT_EQ(Find<QLabel>(form, "lblHeader").text(), "Header");
    EXPECT_EQ(Find<QLabel>(form, "lblFooter").text(), "Footer");
    EXPECT_EQ(Find<QLabel>(form, "lblInfo").text(),
              "Click the right Mouse Button on the Text Fields for more Options.");
    EXPECT_EQ(Find<QPushButton>(form, "btnClose").text(), "&Close");
  });
}

TEST_F(HeaderAndFooterEditing, ReturnsBothTexts) {
  const HeaderAndFooter edited = Edit({"a\nb", "c"}, [](QWidget& form) {
    Type(Find<QPlainTextEdit>(form, "textFooter"), "x]y>z");
    Click(form, "btnClose");
  });
  EXPECT_EQ(edited, (HeaderAndFooter{"a\nb", "x]y>z"}));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(HeaderAndFooterEditing, AFooterThatBeginsWithTheForbiddenCharactersKeepsTheDialogOpen) {
  Edit({"a", "]]>b"}, [this](QWidget& form) {
    Click(form, "btnClose");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(boxes.boxes.size(), 1U);
    const auto& footer = Find<QPlainTextEdit>(form, "textFooter");
    EXPECT_TRUE(footer.hasFocus());
    EXPECT_EQ(footer.textCursor().selectionStart(), 0);
    EXPECT_EQ(footer.textCursor().selectionEnd(), 3);
  });
}

TEST_F(HeaderAndFooterEditing, TheFooterIsCheckedOnceTheHeaderIsCorrected) {
  Edit({"a]]>", "]]>"}, [this](QWidget& form) {
    auto& header = Find<QPlainTextEdit>(form, "textHeader");
    auto& footer = Find<QPlainTextEdit>(form, "textFooter");
    Click(form, "btnClose");
    EXPECT_TRUE(header.hasFocus());
    EXPECT_EQ(header.textCursor().selectedText(), "]]>");
    EXPECT_FALSE(footer.textCursor().hasSelection());
    EXPECT_EQ(boxes.boxes.size(), 1U);
    QTest::keyClick(&header, Qt::Key_Delete);
    Click(form, "btnClose");
    EXPECT_TRUE(footer.hasFocus());
    EXPECT_EQ(footer.textCursor().selectedText(), "]]>");
    EXPECT_EQ(boxes.boxes.size(), 2U);
    QTest::keyClick(&footer, Qt::Key_Delete);
    Click(form, "btnClose");
    EXPECT_FALSE(form.isVisible());
  });
}

TEST_F(HeaderAndFooterEditing, TheTitleBarReturnsTheTextsUnchecked) {
  const HeaderAndFooter edited = Edit({"]]>", "]]>"}, [](QWidget& form) {
    form.close();
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(edited, (HeaderAndFooter{"]]>", "]]>"}));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(HeaderAndFooterEditing, EscapeDoesTheSameAsTheButton) {
  const HeaderAndFooter edited = Edit({"a", "b]]>"}, [this](QWidget& form) {
    auto& footer = Find<QPlainTextEdit>(form, "textFooter");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(footer.hasFocus());
    EXPECT_EQ(footer.textCursor().selectedText(), "]]>");
    EXPECT_EQ(boxes.boxes.size(), 1U);
    QTest::keyClick(&footer, Qt::Key_Delete);
    QTest::keyClick(&footer, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(edited, (HeaderAndFooter{"a", "b"}));
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(HeaderAndFooterEditing, BothTextsShareTheSpaceOfTheWindow) {
  Edit({}, [](QWidget& form) {
    const auto& header = Find<QPlainTextEdit>(form, "textHeader");
    const auto& footer = Find<QPlainTextEdit>(form, "textFooter");
    for (const QSize size : {QSize(900, 700), QSize(500, 400), QSize(1, 1)}) {
      form.resize(size);
      QApplication::sendPostedEvents();
      EXPECT_EQ(header.x(), footer.x());
      EXPECT_EQ(header.width(), form.width() - 2 * header.x());
      EXPECT_EQ(header.width(), footer.width());
      EXPECT_LE(std::abs(header.height() - footer.height()), 1);
    }
  });
}

TEST_F(HeaderAndFooterEditing, TheMenuInsertsATagIntoTheClickedBox) {
  const HeaderAndFooter edited = Edit({}, [](QWidget& form) {
    EXPECT_NE(form.findChild<QObject*>("ucPopupMenu"), nullptr);
    const std::pair<const char*, const char*> tags[] = {{"textHeader", "mnuEditTagsGallery4"},
                                                        {"textFooter", "mnuEditTagsImage0"}};
    for (const auto& [name, tag] : tags) {
      QWidget& inside = *Find<QPlainTextEdit>(form, name).viewport();
      QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), inside.mapToGlobal(QPoint(4, 4)));
      QApplication::sendEvent(&inside, &event);
      Find<QAction>(form, tag).trigger();
      Find<QMenu>(form, "mnuEditTOP").close();
    }
  });
  EXPECT_EQ(edited, (HeaderAndFooter{"<VANTORIUM_GALLERY_TITLE>", "<VANTORIUM_IMAGE_COUNT>"}));
}

TEST_F(HeaderAndFooterEditing, TheTabKeyVisitsTheControlsInOrder) {
  Edit({}, [](QWidget&) {
    for (const char* name : {"textHeader", "textFooter", "btnClose"}) {
      EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
  });
}

}  // namespace
}  // namespace vantorium::ui
