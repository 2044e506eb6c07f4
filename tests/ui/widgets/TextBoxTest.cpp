#include "tests/ui/FormDriver.h"
#include "ui/widgets/TextBox.h"

#include <QClipboard>
#include <memory>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// A box with a text, and the cursor at its end.
class TextBoxTest : public testing::Test {
 protected:
  TextBoxTest() {
    box.setPlainText("one ");
    box.moveCursor(QTextCursor::End);
  }
  void Paste(std::unique_ptr<QMimeData> clip) {
    QApplication::clipboard()->setMimeData(clip.release());
    QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  }
  static std::unique_ptr<QMimeData> Clip(const QString& text) {
    auto clip = std::make_unique<QMimeData>();
    clip->setText(text);
    return clip;
  }

  TextBox box;
};

TEST_F(TextBoxTest, AnEmptyClipboardPastesNothing) {
  Paste(std::make_unique<QMimeData>());
  EXPECT_EQ(box.toPlainText(), "one ");
  QApplication::clipboard()->clear();
  QTest::keyClick(&box, Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(box.toPlainText(), "one ");
}

TEST_F(TextBoxTest, APastedTextIsInsertedAtTheCursorAsOneUndoStep) {
  Paste(Clip("two\r\nthree"));
  EXPECT_EQ(box.toPlainText(), "one two\nthree");
  box.undo();
  EXPECT_EQ(box.toPlainText(), "one ");
}

TEST_F(TextBoxTest, TextTypedBeforeAndAfterAPasteIsUndoneSeparately) {
  for (const char* pasted : {"two", "two\nthree"}) {
    box.setPlainText("");
    QTest::keyClicks(&box, "a");
    Paste(Clip(pasted));
    Paste(Clip(pasted));
    QTest::keyClicks(&box, "b");
    const std::string text = pasted;
    for (const std::string& left : {"a" + text + text, "a" + text, std::string("a"), std::string()}) {
      box.undo();
      EXPECT_EQ(box.toPlainText().toStdString(), left);
    }
    for (int i = 0; i < 4; ++i) box.redo();
    EXPECT_EQ(box.toPlainText().toStdString(), "a" + text + text + "b");
  }
}

TEST_F(TextBoxTest, APasteOverASelectionIsOneUndoStep) {
  box.selectAll();
  Paste(Clip("two"));
  EXPECT_EQ(box.toPlainText(), "two");
  box.undo();
  EXPECT_EQ(box.toPlainText(), "one ");
}

TEST_F(TextBoxTest, MarkupIsPastedAsPlainText) {
  auto clip = std::make_unique<QMimeData>();
  clip->setData("text/markdown", "**two**\n\n- three");
  clip->setHtml("<b>two</b>");
  clip->setText("**two**\n\n- three");
  Paste(std::move(clip));
  EXPECT_EQ(box.toPlainText(), "one **two**\n\n- three");
}

TEST_F(TextBoxTest, APictureInTheClipboardPastesNothing) {
  auto clip = std::make_unique<QMimeData>();
  clip->setData("image/png", "x");
  Paste(std::move(clip));
  EXPECT_EQ(box.toPlainText(), "one ");
}

TEST_F(TextBoxTest, AReadOnlyBoxPastesNothing) {
  box.setReadOnly(true);
  Paste(Clip("two"));
  EXPECT_EQ(box.toPlainText(), "one ");
}

}  // namespace
}  // namespace vantorium::ui
