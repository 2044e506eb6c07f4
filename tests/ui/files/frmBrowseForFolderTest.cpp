#include "tests/ui/FileBrowserHarness.h"
#include "ui/files/FolderTree.h"
#include "ui/files/frmBrowseForFolder.h"

#include <QDir>
#include <QPushButton>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::ClickRow;
using fakes::DriveModal;
using fakes::Find;
using fakes::RowOf;

class FolderDialog : public testing::Test {
 protected:
  FolderDialog() {
    harness.disk.Write("photos/2005/June/x", "");
    harness.disk.Write(".cache/temp/x", "");
  }

  void Browse(const std::string& initialFolder, const std::function<void(QWidget&)>& drive) {
    DriveModal([&] { chosen = browser.BrowseForFolder("Select Source Folder", initialFolder); }, drive);
  }

  static FolderTree& Tree(QWidget& dialog) { return Find<FolderTree>(dialog, "ftvFolders"); }

  fakes::FileBrowserHarness harness;
  QtFolderBrowser browser{harness.paths};
  std::optional<std::string> chosen;
};

TEST_F(FolderDialog, BeginsInTheFolderOfTheCaller) {
  Browse("C:\\photos\\2005", [](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmBrowseForFolder");
    EXPECT_EQ(dialog.windowTitle(), "Select Source Folder");
    EXPECT_EQ(Find<QPushButton>(dialog, "CancelButton").text(), "Cancel");
    EXPECT_EQ(Tree(dialog).SelectedPath(), "C:\\photos\\2005");
    EXPECT_TRUE(Tree(dialog).currentItem()->isExpanded());
    EXPECT_TRUE(Tree(dialog).viewport()->rect().contains(Tree(dialog).visualItemRect(Tree(dialog).currentItem())));
    Click(dialog, "OKButton");
  });
  EXPECT_EQ(chosen, "C:\\photos\\2005");
}

TEST_F(FolderDialog, AFolderIsChosenWithTheMouse) {
  Browse("C:\\photos", [](QWidget& dialog) {
    ClickRow(Tree(dialog), RowOf(Tree(dialog), "sub"));
    Click(dialog, "OKButton");
  });
  EXPECT_EQ(chosen, "C:\\photos\\sub");
}

TEST_F(FolderDialog, AFolderIsChosenWithTheKeyboard) {
  Browse("C:\\photos", [](QWidget& dialog) {
    QTest::keyClick(&Tree(dialog), Qt::Key_Down);
    QTest::keyClick(&Tree(dialog), Qt::Key_Right);
    QTest::keyClick(&Tree(dialog), Qt::Key_Right);
    QTest::keyClick(&Tree(dialog), Qt::Key_Return);
  });
  EXPECT_EQ(chosen, "C:\\photos\\2005\\June");
}

TEST_F(FolderDialog, CancelChoosesNothing) {
  Browse("C:\\photos", [](QWidget& dialog) { Click(dialog, "CancelButton"); });
  EXPECT_EQ(chosen, std::nullopt);
  Browse("C:\\photos", [](QWidget& dialog) { QTest::keyClick(&Tree(dialog), Qt::Key_Escape); });
  EXPECT_EQ(chosen, std::nullopt);
  Browse("C:\\photos", [](QWidget& dialog) { dialog.close(); });
  EXPECT_EQ(chosen, std::nullopt);
}

TEST_F(FolderDialog, RemembersWhetherItWasCancelled) {
  frmBrowseForFolder form(harness.paths);
  EXPECT_FALSE(form.Cancelled);
  DriveModal([&] { form.exec(); }, [](QWidget& dialog) { Click(dialog, "CancelButton"); });
  EXPECT_TRUE(form.Cancelled);
  DriveModal([&] { form.exec(); },
             [&](QWidget& dialog) {
               EXPECT_FALSE(form.Cancelled) << "opened again";
               Click(dialog, "OKButton");
             });
  EXPECT_FALSE(form.Cancelled);
}

struct Begin {
  std::string initial;
  std::string selected;
};

TEST_F(FolderDialog, ForAMissingFolderTheNearestParentIsOpened) {
  const std::vector<Begin> cases = {
      {"C:\\photos\\1999\\May", "C:\\photos"},
      {"C:\\photos\\2005\\", "C:\\photos\\2005"},
      {"c:\\photos", "C:\\photos"},
      {"C:\\", "C:\\"},
      {"", "C:\\"},
      {"X:\\photos", "C:\\"},
      {"\\\\server\\share", "C:\\"},
      {"C:\\.cache\\temp", "C:\\.cache\\temp"},
  };
  for (const Begin& row : cases) {
    Browse(row.initial, [&](QWidget& dialog) { EXPECT_EQ(Tree(dialog).SelectedPath(), row.selected) << row.initial; });
  }
}

TEST_F(FolderDialog, ShowsDrivesByNameAndNoFilesOrHiddenFolders) {
  const env::PathMap paths{{{'C', QDir::homePath().toStdString()}, {'D', harness.disk.Path().string()}, {'Z', "/"}}};
  frmBrowseForFolder form(paths);
  form.SetSelectedPath("D:\\photos");
  const FolderTree& tree = Tree(form);
  ASSERT_EQ(tree.topLevelItemCount(), 3);
  EXPECT_EQ(tree.topLevelItem(0)->text(0), "Home (C:)");
  EXPECT_EQ(tree.topLevelItem(1)->text(0).toStdString(), harness.disk.Path().filename().string() + " (D:)");
  EXPECT_EQ(tree.topLevelItem(2)->text(0), "File System (Z:)");
  const QTreeWidgetItem& drive = *tree.topLevelItem(1);
  ASSERT_EQ(drive.childCount(), 1);
  EXPECT_EQ(drive.child(0)->text(0), "photos");
  ASSERT_EQ(drive.child(0)->childCount(), 2);
  EXPECT_EQ(drive.child(0)->child(0)->text(0), "2005");
  EXPECT_EQ(drive.child(0)->child(1)->text(0), "sub");
}

TEST_F(FolderDialog, AFolderWithoutSubfoldersCannotBeExpanded) {
  frmBrowseForFolder form(harness.paths);
  form.SetSelectedPath("C:\\photos\\sub");
  EXPECT_EQ(Tree(form).currentItem()->childIndicatorPolicy(), QTreeWidgetItem::DontShowIndicatorWhenChildless);
  EXPECT_EQ(Tree(form).currentItem()->childCount(), 0);
}

TEST_F(FolderDialog, WithoutDrivesItShowsHomeAndTheFileSystem) {
  const env::PathMap paths({}, QDir::homePath().toStdString());
  frmBrowseForFolder form(paths);
  form.SetSelectedPath(paths.ToText(harness.disk.Path() / "photos"));
  const FolderTree& tree = Tree(form);
  ASSERT_EQ(tree.topLevelItemCount(), 2);
  EXPECT_EQ(tree.topLevelItem(0)->text(0), "Home");
  EXPECT_EQ(tree.topLevelItem(1)->text(0), "File System");
  EXPECT_EQ(form.SelectedPath(), paths.ToText(harness.disk.Path() / "photos"));
}

}  // namespace
}  // namespace vantorium::ui
