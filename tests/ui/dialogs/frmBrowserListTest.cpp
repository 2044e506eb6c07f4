#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/ui/FormDriver.h"
#include "tests/ui/model/BrowserFakes.h"
#include "ui/dialogs/AddBrowserDialog.h"
#include "ui/dialogs/frmBrowserList.h"
#include "ui/model/dialogs/BrowserList.h"

#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeWidget>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

/// A list of two browsers a and b, read from the file, so that b is shown above a.
class BrowserListForm : public testing::Test {
 protected:
  void Drive(const std::function<void(QWidget&)>& drive) {
    DriveModal([&] { frmBrowserList(list, paths, nullptr).exec(); }, drive);
  }

  /// The shown entries, each in brackets; selected ones have a star.
  static std::string Shown(QWidget& form) {
    auto& view = Find<QTreeWidget>(form, "lvBrowsers");
    std::string shown;
    for (int n = 0; n < view.topLevelItemCount(); ++n) {
      const QTreeWidgetItem& item = *view.topLevelItem(n);
      shown += (item.isSelected() ? "[*" : "[") + item.text(0).toStdString() + "=" + item.text(1).toStdString() + "]";
    }
    return shown;
  }

  static void ClickEntry(QWidget& form, int row) {
    auto& view = Find<QTreeWidget>(form, "lvBrowsers");
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(view.topLevelItem(row)).center());
  }

  env::PathMap paths{{{'C', "/home/me"}, {'Z', "/"}}};
  fakes::ScriptedFileBrowser files;
  fakes::RecordingMessageBox boxes;
  AddBrowserDialog dialog{files, paths, "C:\\program"};
  BrowserList list{{{"a", "Z:\\bin\\a"}, {"b", "Z:\\bin\\b"}}, dialog, boxes};
};

TEST_F(BrowserListForm, ShowsNamesAndLocationsInTwoColumns) {
  Drive([](QWidget& form) {
    EXPECT_EQ(Shown(form), "[b=Z:\\bin\\b][a=Z:\\bin\\a]");
    auto& view = Find<QTreeWidget>(form, "lvBrowsers");
    EXPECT_EQ(view.columnWidth(0), view.width() * 3 / 10);
    EXPECT_EQ(view.columnWidth(1), view.width() * 6 / 10);
    Click(form, "OKButton");
    EXPECT_FALSE(form.isVisible());
  });
}

TEST_F(BrowserListForm, AddAsksForABrowserAndAddsItOnTop) {
  Drive([](QWidget& form) {
    DriveModal([&] { Click(form, "btnAddBrowser"); },
               [&](QWidget& entry) {
                 EXPECT_EQ(entry.windowTitle(), "Add Browser");
                 EXPECT_EQ(entry.parentWidget(), &form);
                 EXPECT_TRUE(Find<QLineEdit>(entry, "browserName").hasFocus());
                 QTest::keyClicks(&Find<QLineEdit>(entry, "browserName"), "c");
                 Type(Find<QLineEdit>(entry, "browserLocation"), "Z:\\bin\\c");
                 Click(entry, "OKButton");
               });
    EXPECT_EQ(Shown(form), "[c=Z:\\bin\\c][b=Z:\\bin\\b][a=Z:\\bin\\a]");
    QTest::keyClick(&form, Qt::Key_Escape);
  });
  EXPECT_EQ(list.Entries().size(), 3U) << "Escape closes the list and keeps what was done";
}

TEST_F(BrowserListForm, ForADuplicateNameTheDialogOpensAgainWithTheSameTexts) {
  Drive([this](QWidget& form) {
    QTimer secondTime;
    secondTime.setInterval(5);
    bool cameAgain = false;
    QObject::connect(&secondTime, &QTimer::timeout, [&] {
      QWidget* entry = QApplication::activeModalWidget();
      if (boxes.boxes.empty() || entry == nullptr || entry == &form) return;
      secondTime.stop();
      cameAgain = true;
      EXPECT_EQ(Find<QLineEdit>(*entry, "browserName").text(), "a");
      EXPECT_EQ(Find<QLineEdit>(*entry, "browserLocation").text(), "x");
      Click(*entry, "CancelButton");
    });
    DriveModal([&] { Click(form, "btnAddBrowser"); },
               [&](QWidget& entry) {
                 Type(Find<QLineEdit>(entry, "browserName"), "a");
                 Type(Find<QLineEdit>(entry, "browserLocation"), "x");
                 secondTime.start();
                 Click(entry, "OKButton");
               });
    EXPECT_TRUE(cameAgain);
    EXPECT_EQ(Shown(form), "[b=Z:\\bin\\b][a=Z:\\bin\\a]");
  });
  ExpectOneBox(boxes, "Duplicate Browser Name",
               "A Browser with this Name already exists in the Browser List. Please rename it.");
}

TEST_F(BrowserListForm, EditRequiresASelection) {
  Drive([](QWidget& form) { Click(form, "btnEditBrowser"); });
  ExpectOneBox(boxes, "No Browser selected", "Please select one of the Browsers in the List first.");
}

TEST_F(BrowserListForm, EditChangesTheLocationOfTheSelectedEntry) {
  Drive([](QWidget& form) {
    ClickEntry(form, 1);
    DriveModal([&] { Click(form, "btnEditBrowser"); },
               [](QWidget& entry) {
                 EXPECT_EQ(entry.windowTitle(), "Edit Browser");
                 EXPECT_EQ(Find<QLineEdit>(entry, "browserName").text(), "a");
                 EXPECT_EQ(Find<QLineEdit>(entry, "browserLocation").text(), "Z:\\bin\\a");
                 EXPECT_TRUE(Find<QPushButton>(entry, "OKButton").isEnabled());
                 Type(Find<QLineEdit>(entry, "browserLocation"), "other");
                 QTest::keyClick(&entry, Qt::Key_Return);
               });
    EXPECT_EQ(Shown(form), "[b=Z:\\bin\\b][*a=other]");
  });
}

TEST_F(BrowserListForm, ADoubleClickEditsAndAnotherNameMakesANewEntry) {
  Drive([](QWidget& form) {
    auto& view = Find<QTreeWidget>(form, "lvBrowsers");
    ClickEntry(form, 0);
    DriveModal(
        [&] {
          QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, view.visualItemRect(view.topLevelItem(0)).center());
        },
        [](QWidget& entry) {
          Type(Find<QLineEdit>(entry, "browserName"), "new");
          Click(entry, "OKButton");
        });
    EXPECT_EQ(Shown(form), "[new=Z:\\bin\\b][*b=Z:\\bin\\b][a=Z:\\bin\\a]");
  });
}

TEST_F(BrowserListForm, RemoveSelectsTheNextEntryAlsoWithTheKeyboard) {
  Drive([](QWidget& form) {
    auto& view = Find<QTreeWidget>(form, "lvBrowsers");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Space);
    EXPECT_EQ(Shown(form), "[*b=Z:\\bin\\b][a=Z:\\bin\\a]");
    Click(form, "btnRemoveBrowser");
    EXPECT_EQ(Shown(form), "[*a=Z:\\bin\\a]");
    Click(form, "btnRemoveBrowser");
    EXPECT_EQ(Shown(form), "");
    Click(form, "btnRemoveBrowser");
  });
  EXPECT_TRUE(list.Entries().empty());
  EXPECT_EQ(list.Selected(), std::nullopt);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(BrowserListForm, TheArrowKeysSelectTheOnlyRow) {
  for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up}) {
    BrowserList one({{"a", "x"}}, dialog, boxes);
    DriveModal([&] { frmBrowserList(one, paths).exec(); },
               [key](QWidget& form) {
                 auto& view = Find<QTreeWidget>(form, "lvBrowsers");
                 view.setFocus();
                 EXPECT_EQ(Shown(form), "[a=x]");
                 QTest::keyClick(&view, key);
                 EXPECT_EQ(Shown(form), "[*a=x]");
               });
    EXPECT_EQ(one.Selected(), 0U);
  }
}

TEST_F(BrowserListForm, AnArrowKeySelectsTheRowThatItMovesTo) {
  Drive([](QWidget& form) {
    auto& view = Find<QTreeWidget>(form, "lvBrowsers");
    view.setFocus();
    QTest::keyClick(&view, Qt::Key_Left);
    EXPECT_EQ(Shown(form), "[b=Z:\\bin\\b][a=Z:\\bin\\a]");
    QTest::keyClick(&view, Qt::Key_Down);
    EXPECT_EQ(Shown(form), "[b=Z:\\bin\\b][*a=Z:\\bin\\a]");
    QTest::keyClick(&view, Qt::Key_Up);
    EXPECT_EQ(Shown(form), "[*b=Z:\\bin\\b][a=Z:\\bin\\a]");
  });
}

TEST_F(BrowserListForm, ToolTipsHaveTheFullTextsOfTheColumns) {
  BrowserList long_({{"<i>" + std::string(90, 'n'), "Z:\\bin\\a"}}, dialog, boxes);
  DriveModal([&] { frmBrowserList(long_, paths).exec(); },
             [](QWidget& form) {
               const QTreeWidgetItem* item = Find<QTreeWidget>(form, "lvBrowsers").topLevelItem(0);
               EXPECT_EQ(item->toolTip(0), "&lt;i&gt;" + QString(90, 'n'));
               EXPECT_EQ(item->toolTip(1), "Z:\\bin\\a");
             });
}

TEST_F(BrowserListForm, WithEightEntriesAddRefusesBeforeTheDialogOpens) {
  BrowserList full(Numbered(8), dialog, boxes);
  DriveModal([&] { frmBrowserList(full, paths).exec(); }, [](QWidget& form) { Click(form, "btnAddBrowser"); });
  ExpectOneBox(boxes, "Reached Browser Limit", "You cannot list more than 8 Browsers.");
}

}  // namespace
}  // namespace vantorium::ui
