#include "tests/fakes/RecordingMessageBox.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmHTMLSingle.h"

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

class CodeEditing : public testing::Test {
 protected:
  /// Edits `text` in the dialog and returns the result.
  std::string Edit(const std::string& text, const std::function<void(QWidget&)>& drive) {
    std::string edited;
    fakes::DriveModal([&] { edited = EditHTMLSingle("Gallery <HEAD> Code", text, boxes, nullptr); }, drive);
    return edited;
  }

  fakes::RecordingMessageBox boxes;
};

TEST_F(CodeEditing, OpensWithTheTextAndTheFocusOnIt) {
  Edit("one\r\ntwo", [](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmHTMLSingle");
    EXPECT_EQ(form.windowTitle(), "Gallery <HEAD> Code");
    EXPECT_EQ(Find<QPlainTextEdit>(form, "textHTML").toPlainText(), "one\ntwo");
    EXPECT_TRUE(Find<QPlainTextEdit>(form, "textHTML").hasFocus());
    EXPECT_EQ(Find<QPushButton>(form, "btnClose").text(), "&Close");
    EXPECT_EQ(Find<QLabel>(form, "lblInfo").text(), "Click the right Mouse Button on the Text Field for more Options.");
  });
}

TEST_F(CodeEditing, ReturnsTheTypedTextWithCrLf) {
  const std::string edited = Edit("old", [](QWidget& form) {
    Type(Find<QPlainTextEdit>(form, "textHTML"), "<b>");
    QTest::keyClick(&Find<QPlainTextEdit>(form, "textHTML"), Qt::Key_Return);
    QTest::keyClicks(&Find<QPlainTextEdit>(form, "textHTML"), "more");
    QTest::keyClick(&Find<QPlainTextEdit>(form, "textHTML"), Qt::Key_Return);
    Click(form, "btnClose");
  });
  EXPECT_EQ(edited, "<b>\r\nmore\r\n");
}

TEST_F(CodeEditing, AnUneditedTextIsReturnedByteByByte) {
  for (const char* text : {"", "a\u2028b\u2029c", "\uFDD0", "a\nb", "a\r\nb\r\n", "a\rb", "Zürich 山 \U0001F5FB",
                           "no\u00A0break", "tab\there", "<a href=\"&amp;\">"}) {
    EXPECT_EQ(Edit(text, [](QWidget& form) { Click(form, "btnClose"); }), text);
  }
}

TEST_F(CodeEditing, AnEditKeepsNonBreakingSpaces) {
  const std::string edited = Edit("no\u00A0break", [](QWidget& form) {
    QTest::keyClick(&Find<QPlainTextEdit>(form, "textHTML"), Qt::Key_End);
    QTest::keyClicks(&Find<QPlainTextEdit>(form, "textHTML"), "!");
    QTest::keyClick(&Find<QPlainTextEdit>(form, "textHTML"), Qt::Key_Return, Qt::ShiftModifier);
  });
  EXPECT_EQ(edited, "no\u00A0break!\r\n");
}

TEST_F(CodeEditing, CloseRefusesTheEndOfASectionAndSelectsIt) {
  const std::string edited = Edit("\U0001F5FB\r\na]]>b", [this](QWidget& form) {
    Click(form, "btnClose");
    EXPECT_TRUE(form.isVisible());
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].title, "Invalid Characters found");
    auto& box = Find<QPlainTextEdit>(form, "textHTML");
    EXPECT_TRUE(box.hasFocus());
    EXPECT_EQ(box.textCursor().selectedText(), "]]>");
    QTest::keyClicks(&box, "]] >");
    Click(form, "btnClose");
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(edited, "\U0001F5FB\r\na]] >b");
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(CodeEditing, TheTitleBarReturnsTheTextUnchecked) {
  EXPECT_EQ(Edit("x",
                 [](QWidget& form) {
                   Type(Find<QPlainTextEdit>(form, "textHTML"), "]]>");
                   form.close();
                   EXPECT_FALSE(form.isVisible());
                 }),
            "]]>");
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(CodeEditing, EscapeDoesTheSameAsTheButton) {
  const std::string edited = Edit("x", [this](QWidget& form) {
    auto& box = Find<QPlainTextEdit>(form, "textHTML");
    Type(box, "y]]>z");
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_TRUE(form.isVisible());
    ASSERT_EQ(boxes.boxes.size(), 1U);
    EXPECT_EQ(boxes.boxes[0].title, "Invalid Characters found");
    EXPECT_EQ(box.textCursor().selectedText(), "]]>");
    QTest::keyClick(&box, Qt::Key_Delete);
    QTest::keyClick(&box, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(edited, "yz");
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(CodeEditing, TheMenuInsertsATagIntoTheText) {
  const std::string edited = Edit("old", [](QWidget& form) {
    EXPECT_NE(form.findChild<QObject*>("ucPopupMenu"), nullptr);
    QWidget& inside = *Find<QPlainTextEdit>(form, "textHTML").viewport();
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(4, 4), inside.mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(&inside, &event);
    Find<QAction>(form, "mnuEditTagsGallery4").trigger();
    Find<QMenu>(form, "mnuEditTOP").close();
  });
  EXPECT_EQ(edited, "<VANTORIUM_GALLERY_TITLE>old");
}

TEST_F(CodeEditing, TheDialogCanBeUsedWithTheKeyboardAlone) {
  const std::string edited = Edit("", [](QWidget& form) {
    QTest::keyClicks(QApplication::focusWidget(), "typed");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), "btnClose");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(edited, "typed");
}

}  // namespace
}  // namespace vantorium::ui
