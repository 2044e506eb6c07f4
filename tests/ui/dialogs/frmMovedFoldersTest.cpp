#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmMovedFolders.h"
#include "ui/model/dialogs/MovedFolders.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class MovedFoldersForm : public testing::Test {
 protected:
  MovedFoldersForm() { home.Write("new/a.jpg", ""); }

  int Ask(const std::function<void(QWidget&)>& drive) {
    int result = 0;
    frmMovedFolders form(model, browser);
    DriveModal([&] { result = form.exec(); }, drive);
    return result;
  }
  /// The rows, with columns separated by "|".
  static std::vector<std::string> Rows(QWidget& form) {
    std::vector<std::string> rows;
    auto& view = Find<QTreeWidget>(form, "lvFolders");
    for (int row = 0; row < view.topLevelItemCount(); ++row) {
      const QTreeWidgetItem& item = *view.topLevelItem(row);
      rows.push_back((item.text(0) + "|" + item.text(1) + "|" + item.text(2)).toStdString());
    }
    return rows;
  }
  [[nodiscard]] std::string New() const { return (home.Path() / "new").string(); }

  fakes::TemporaryFolder home;
  env::PathMap paths{{}, home.Path()};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  fakes::ScriptedFolderBrowser browser;
  MovedFolders model{{"D:/Photos/a.jpg", "E:/x/b.jpg"}, files};
};

TEST_F(MovedFoldersForm, OpensWithTheOldFoldersAndCancelAsDefault) {
  const int result = Ask([](QWidget& form) {
    EXPECT_EQ(Rows(form), (std::vector<std::string>{"D:\\Photos\\||0 of 1", "E:\\x\\||0 of 1"}));
    EXPECT_TRUE(Find<QLineEdit>(form, "textNewFolder").hasFocus());
    EXPECT_TRUE(Find<QPushButton>(form, "CancelButton").isDefault());
    EXPECT_FALSE(Find<QPushButton>(form, "OKButton").isEnabled());
    QTest::keyClick(&form, Qt::Key_Return);
  });
  EXPECT_EQ(result, QDialog::Rejected);
}

TEST_F(MovedFoldersForm, ImagesOfATypedFolderAreCountedAtOnceAndOKAcceptsIt) {
  const int result = Ask([this](QWidget& form) {
    Type(Find<QLineEdit>(form, "textNewFolder"), QString::fromStdString(New()));
    EXPECT_EQ(Rows(form), (std::vector<std::string>{"D:\\Photos\\|" + New() + "|1 of 1", "E:\\x\\||0 of 1"}));
    Click(form, "OKButton");
  });
  EXPECT_EQ(result, QDialog::Accepted);
  ASSERT_EQ(model.Moved().size(), 1U);
  EXPECT_EQ(model.Moved()[0].to, "C:\\new\\");
}

TEST_F(MovedFoldersForm, TheRowWhoseNewFolderIsTypedStaysHighlightedAfterAClickBelowTheRows) {
  Ask([](QWidget& form) {
    auto& view = Find<QTreeWidget>(form, "lvFolders");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.viewport()->rect().bottomLeft() + QPoint(5, -5));
    EXPECT_TRUE(view.topLevelItem(0)->isSelected());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(view.topLevelItem(1)).center());
    EXPECT_TRUE(view.topLevelItem(1)->isSelected());
    EXPECT_FALSE(view.topLevelItem(0)->isSelected());
    Click(form, "CancelButton");
  });
}

TEST_F(MovedFoldersForm, ReturnTakesWhatWasTypedAndNeverDiscardsIt) {
  const int result = Ask([this](QWidget& form) {
    auto& box = Find<QLineEdit>(form, "textNewFolder");
    Type(box, "/nowhere");
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible()) << "no image is there";
    EXPECT_EQ(Rows(form)[0], "D:\\Photos\\|/nowhere|0 of 1");
    Type(box, QString::fromStdString(New()));
    QTest::keyClick(&box, Qt::Key_Return);
    if (form.isVisible()) Click(form, "CancelButton");
  });
  EXPECT_EQ(result, QDialog::Accepted);
  EXPECT_EQ(model.Moved().size(), 1U);
}

TEST_F(MovedFoldersForm, ABrowsedFolderIsShownAsANativePath) {
  browser.answers = {"C:\\new"};
  std::ignore = Ask([this](QWidget& form) {
    Click(form, "btnBrowse");
    EXPECT_EQ(Find<QLineEdit>(form, "textNewFolder").text().toStdString(), New());
    EXPECT_EQ(Rows(form)[0], "D:\\Photos\\|" + New() + "|1 of 1");
    Click(form, "CancelButton");
  });
}

TEST_F(MovedFoldersForm, TheBoxBelongsToTheChosenRow) {
  std::ignore = Ask([](QWidget& form) {
    auto& box = Find<QLineEdit>(form, "textNewFolder");
    auto& view = Find<QTreeWidget>(form, "lvFolders");
    Type(box, "/nowhere");
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(box.text(), "");
    Type(box, "/elsewhere");
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(box.text(), "/nowhere");
    EXPECT_EQ(Rows(form), (std::vector<std::string>{"D:\\Photos\\|/nowhere|0 of 1", "E:\\x\\|/elsewhere|0 of 1"}));
    Click(form, "CancelButton");
  });
}

}  // namespace
}  // namespace vantorium::ui
