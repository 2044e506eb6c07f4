#include "tests/ui/FormDriver.h"
#include "ui/widgets/ucPopupMenu.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QVBoxLayout>

namespace vantorium::ui {
namespace {

using fakes::Find;

class MenuOfATextBox : public testing::Test {
 protected:
  MenuOfATextBox() {
    column.addWidget(&box);
    column.addWidget(&other);
    menu.Serve(box);
    menu.Serve(other);
    QGuiApplication::clipboard()->clear();
    form.show();
    static_cast<void>(QTest::qWaitForWindowActive(&form));
  }

  QMenu& Top() { return Find<QMenu>(form, "mnuEditTOP"); }

  bool IsEnabled(const char* action) { return Find<QAction>(form, action).isEnabled(); }

  /// Opens the menu for the box and triggers one of its entries.
  void Choose(const char* action) {
    menu.ShowPopupMenu(box, box.mapToGlobal(QPoint(5, 5)));
    Find<QAction>(form, action).trigger();
    Top().close();
  }

  void Select(int from, int to) {
    QTextCursor cursor = box.textCursor();
    cursor.setPosition(from);
    cursor.setPosition(to, QTextCursor::KeepAnchor);
    box.setTextCursor(cursor);
  }

  QWidget form;
  QVBoxLayout column{&form};
  QPlainTextEdit box{"one two three"};
  QPlainTextEdit other;
  ucPopupMenu& menu = *new ucPopupMenu(form);
};

TEST_F(MenuOfATextBox, HasTheEditEntriesInOrderFollowedByTheTags) {
  EXPECT_EQ(menu.objectName(), "ucPopupMenu");
  const char* captions[] = {
      "&Undo", "", "Cu&t", "&Copy", "&Paste", "C&lear", "", "Select &All", "Insert Vantorium Tag"};
  const auto actions = Top().actions();
  ASSERT_EQ(actions.size(), static_cast<int>(std::size(captions)));
  for (int i = 0; i < actions.size(); ++i) {
    EXPECT_EQ(actions[i]->text(), captions[i]) << i;
    EXPECT_EQ(actions[i]->isSeparator(), i == 1 || i == 6) << i;
    EXPECT_EQ(actions[i]->objectName(), i < 8 ? "mnuEdit" + QString::number(i) : QString()) << i;
  }
  EXPECT_EQ(actions[8]->menu(), &Find<QMenu>(form, "mnuEditTags"));
}

TEST_F(MenuOfATextBox, HasAnEntryForEachTag) {
  const char* names[] = {"mnuEditTagsGallery", "mnuEditTagsImage", "mnuEditTagsThumbnail", "mnuEditTagsLinks"};
  ASSERT_EQ(TagMenus().size(), std::size(names));
  for (std::size_t group = 0; group < std::size(names); ++group) {
    const auto actions = Find<QMenu>(form, names[group]).actions();
    const auto entries = TagMenus()[group].entries;
    ASSERT_EQ(actions.size(), static_cast<int>(entries.size())) << names[group];
    for (int i = 0; i < actions.size(); ++i) {
      const TagMenuEntry& entry = entries[static_cast<std::size_t>(i)];
      EXPECT_EQ(actions[i]->text().toStdString(), entry.caption);
      EXPECT_EQ(actions[i]->isSeparator(), entry.caption.empty());
      EXPECT_EQ(actions[i]->objectName(), names[group] + QString::number(i));
      if (entry.tag.empty()) continue;
      box.clear();
      Choose(actions[i]->objectName().toLatin1().constData());
      EXPECT_EQ(box.toPlainText().toStdString(), entry.tag);
    }
  }
}

TEST_F(MenuOfATextBox, ATagReplacesTheSelectionAndOneUndoRestoresIt) {
  Select(4, 7);
  Choose("mnuEditTagsImage8");
  EXPECT_EQ(box.toPlainText().toStdString(), "one <VANTORIUM_IMAGE_INDEX> three");
  Choose("mnuEdit0");
  EXPECT_EQ(box.toPlainText().toStdString(), "one two three");
}

TEST_F(MenuOfATextBox, UndoGoesBackStepByStep) {
  box.clear();
  box.setPlainText("");
  QTest::keyClicks(&box, "abc");
  Choose("mnuEditTagsGallery4");
  Choose("mnuEditTagsLinks20");
  QTest::keyClicks(&box, "def");
  const QString typed = "abc<VANTORIUM_GALLERY_TITLE><VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>def";
  EXPECT_EQ(box.toPlainText(), typed);
  Choose("mnuEdit0");
  EXPECT_EQ(box.toPlainText().toStdString(), "abc<VANTORIUM_GALLERY_TITLE><VANTORIUM_PAGELINK_DIRECTTHUMBPAGE>");
  Choose("mnuEdit0");
  EXPECT_EQ(box.toPlainText().toStdString(), "abc<VANTORIUM_GALLERY_TITLE>");
  Choose("mnuEdit0");
  EXPECT_EQ(box.toPlainText().toStdString(), "abc");
  Choose("mnuEdit0");
  EXPECT_EQ(box.toPlainText().toStdString(), "");
  for (int i = 0; i < 4; ++i) QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(box.toPlainText(), typed);
}

TEST_F(MenuOfATextBox, AClearBetweenTwoDeletionsIsOneUndoStep) {
  box.moveCursor(QTextCursor::End);
  QTest::keyClick(&box, Qt::Key_Backspace);
  Select(8, 12);
  Choose("mnuEdit5");
  QTest::keyClick(&box, Qt::Key_Backspace);
  EXPECT_EQ(box.toPlainText().toStdString(), "one two");
  for (const char* left : {"one two ", "one two thre", "one two three"}) {
    Choose("mnuEdit0");
    EXPECT_EQ(box.toPlainText().toStdString(), left);
  }
}

TEST_F(MenuOfATextBox, CutCopyPasteClearAndSelectAllWork) {
  Select(0, 4);
  Choose("mnuEdit2");
  EXPECT_EQ(box.toPlainText().toStdString(), "two three");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one ");
  Choose("mnuEdit4");
  EXPECT_EQ(box.toPlainText().toStdString(), "one two three");
  Choose("mnuEdit7");
  EXPECT_EQ(box.textCursor().selectedText(), "one two three");
  Choose("mnuEdit3");
  EXPECT_EQ(QGuiApplication::clipboard()->text(), "one two three");
  Choose("mnuEdit5");
  EXPECT_EQ(box.toPlainText().toStdString(), "");
  Choose("mnuEdit0");
  EXPECT_EQ(box.toPlainText().toStdString(), "one two three");
}

TEST_F(MenuOfATextBox, EntriesAreEnabledWhenTheMenuOpens) {
  menu.ShowPopupMenu(box);
  for (const char* off : {"mnuEdit0", "mnuEdit2", "mnuEdit3", "mnuEdit4", "mnuEdit5"})
    EXPECT_FALSE(IsEnabled(off)) << off;
  EXPECT_TRUE(IsEnabled("mnuEdit7"));
  Top().close();
  QTest::keyClicks(&box, "x");
  Select(0, 2);
  QGuiApplication::clipboard()->setText("text");
  menu.ShowPopupMenu(box);
  for (const char* on : {"mnuEdit0", "mnuEdit2", "mnuEdit3", "mnuEdit4", "mnuEdit5"}) EXPECT_TRUE(IsEnabled(on)) << on;
  Top().close();
  box.setReadOnly(true);
  menu.ShowPopupMenu(box);
  EXPECT_FALSE(IsEnabled("mnuEdit2"));
  EXPECT_TRUE(IsEnabled("mnuEdit3"));
  EXPECT_FALSE(IsEnabled("mnuEdit5"));
  Top().close();
}

TEST_F(MenuOfATextBox, ReplacesTheMenuOfTheBoxForMouseAndKeyboard) {
  for (const auto reason : {QContextMenuEvent::Mouse, QContextMenuEvent::Keyboard}) {
    QWidget* receiver = reason == QContextMenuEvent::Mouse ? other.viewport() : &other;
    QContextMenuEvent event(reason, QPoint(4, 4), receiver->mapToGlobal(QPoint(4, 4)));
    QApplication::sendEvent(receiver, &event);
    EXPECT_EQ(QApplication::activePopupWidget(), &Top());
    Find<QAction>(form, "mnuEditTagsGallery0").trigger();
    Top().close();
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(other.toPlainText(), "<VANTORIUM_GALLERY_CREATIONDATE_LONG>") << "the clicked box";
    other.clear();
  }
  EXPECT_EQ(box.toPlainText().toStdString(), "one two three");
}

TEST_F(MenuOfATextBox, CanBeUsedWithTheKeyboard) {
  box.clear();
  menu.ShowPopupMenu(box);
  QTest::keyClick(&Top(), Qt::Key_Up);  // to the last entry
  QTest::keyClick(&Top(), Qt::Key_Right);
  auto& tags = Find<QMenu>(form, "mnuEditTags");
  QTest::keyClick(&tags, Qt::Key_Right);
  auto& gallery = Find<QMenu>(form, "mnuEditTagsGallery");
  QTest::keyClick(&gallery, Qt::Key_Up);
  QTest::keyClick(&gallery, Qt::Key_Return);
  EXPECT_EQ(box.toPlainText().toStdString(), "<VANTORIUM_GALLERY_TITLE>");
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

}  // namespace
}  // namespace vantorium::ui
