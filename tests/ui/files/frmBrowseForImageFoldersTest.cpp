#include "tests/ui/FileBrowserHarness.h"
#include "ui/files/FolderTree.h"
#include "ui/files/frmBrowseForImageFolders.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QStyleOptionViewItem>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::ClickRow;
using fakes::DriveModal;
using fakes::Find;
using fakes::RowOf;

using Paths = std::vector<std::string>;

struct TripsHarness : fakes::FileBrowserHarness {
  TripsHarness() {
    for (const char* name : {"trips/2004/x", "trips/2005/June/x", "trips/2005/July/x"}) disk.Write(name, "");
  }
};

class ImageFoldersDialog : public testing::Test {
 protected:
  void Show(const std::function<void(QWidget&)>& drive) {
    DriveModal([this] { form.exec(); }, drive);
  }

  static FolderTree& Tree(QWidget& dialog) { return Find<FolderTree>(dialog, "ftvFolders"); }

  /// Selects a folder and presses the space bar, which toggles its check box.
  static void Check(QWidget& dialog, const char* name) {
    Tree(dialog).setFocus();
    ClickRow(Tree(dialog), RowOf(Tree(dialog), name));
    QTest::keyClick(&Tree(dialog), Qt::Key_Space);
  }

  static bool IsChecked(QWidget& dialog, const char* name) {
    return RowOf(Tree(dialog), name).data(Qt::CheckStateRole).toInt() == Qt::Checked;
  }

  TripsHarness harness;
  frmBrowseForImageFolders form{harness.paths, "C:\\trips"};
};

TEST_F(ImageFoldersDialog, HasItsTexts) {
  EXPECT_EQ(form.windowTitle(), "Add Folder to Gallery");
  EXPECT_EQ(Find<QLabel>(form, "lblInfo").text(), "Please select the Folder you wish to add to the Gallery:");
  EXPECT_EQ(Find<QLabel>(form, "lblnote").text(),
            "Note that, to include a folder's sub folders, you must have this box checked.");
  EXPECT_EQ(Find<QCheckBox>(form, "checkRecursive").text(), "&Recursive Folder Selection");
  EXPECT_EQ(Find<QCheckBox>(form, "checkRecursive").toolTip(),
            "With this Box checked, selecting or deselecting a Folder will also select or deselect all of its "
            "Chilrdren, respectively");
  EXPECT_EQ(Find<QPushButton>(form, "btnOK").text(), "&Add Folder");
  EXPECT_EQ(Find<QPushButton>(form, "btnOK").toolTip(), "Add Contents of selected Folder to Gallery");
  EXPECT_EQ(Find<QPushButton>(form, "btnCancel").text(), "&Cancel");
  EXPECT_EQ(Find<QPushButton>(form, "btnCancel").toolTip(), "Cancel this Dialog");
}

TEST_F(ImageFoldersDialog, WithNothingCheckedTheSelectedFolderIsReturned) {
  Show([](QWidget& dialog) { Click(dialog, "btnOK"); });
  EXPECT_FALSE(form.Cancelled);
  EXPECT_EQ(form.Folders(), Paths{"C:\\trips"});
}

TEST_F(ImageFoldersDialog, WithRecursionAllSubfoldersOfTheSelectedFolderAreReturnedToo) {
  Show([](QWidget& dialog) {
    Click(dialog, "checkRecursive");
    Click(dialog, "btnOK");
  });
  EXPECT_EQ(form.Folders(), (Paths{"C:\\trips", "C:\\trips\\2004", "C:\\trips\\2005", "C:\\trips\\2005\\July",
                                   "C:\\trips\\2005\\June"}));
}

TEST_F(ImageFoldersDialog, CheckedFoldersAreReturnedInsteadOfTheSelectedOne) {
  Show([](QWidget& dialog) {
    Check(dialog, "2005");
    Check(dialog, "2004");
    ClickRow(Tree(dialog), RowOf(Tree(dialog), "photos"));
    Click(dialog, "btnOK");
  });
  EXPECT_EQ(form.Folders(), (Paths{"C:\\trips\\2004", "C:\\trips\\2005"}));
}

TEST_F(ImageFoldersDialog, ACheckBoxCanBeClickedWithTheMouse) {
  Show([](QWidget& dialog) {
    const QModelIndex row = RowOf(Tree(dialog), "2004");
    Tree(dialog).scrollTo(row);
    QStyleOptionViewItem option;
    option.initFrom(&Tree(dialog));
    option.rect = Tree(dialog).visualRect(row);
    option.features = QStyleOptionViewItem::HasCheckIndicator | QStyleOptionViewItem::HasDisplay;
    const QRect box = dialog.style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, &Tree(dialog));
    QTest::mouseClick(Tree(dialog).viewport(), Qt::LeftButton, {}, box.center());
    EXPECT_TRUE(IsChecked(dialog, "2004"));
    Click(dialog, "btnOK");
  });
  EXPECT_EQ(form.Folders(), Paths{"C:\\trips\\2004"});
}

TEST_F(ImageFoldersDialog, WithRecursionFoldersExpandedLaterAreCheckedToo) {
  Show([](QWidget& dialog) {
    Click(dialog, "checkRecursive");
    Check(dialog, "trips");
    EXPECT_TRUE(IsChecked(dialog, "2005"));
    Tree(dialog).expand(RowOf(Tree(dialog), "2005"));
    EXPECT_TRUE(IsChecked(dialog, "July"));
    Check(dialog, "2005");
    EXPECT_FALSE(IsChecked(dialog, "July"));
    Click(dialog, "btnOK");
  });
  EXPECT_EQ(form.Folders(), (Paths{"C:\\trips", "C:\\trips\\2004"}));
}

TEST_F(ImageFoldersDialog, WithoutRecursionOnlyTheFolderItselfChanges) {
  Show([](QWidget& dialog) {
    Click(dialog, "checkRecursive");
    Check(dialog, "trips");
    Click(dialog, "checkRecursive");
    Check(dialog, "trips");
    EXPECT_FALSE(IsChecked(dialog, "trips"));
    EXPECT_TRUE(IsChecked(dialog, "2004"));
    Click(dialog, "btnOK");
  });
  EXPECT_EQ(form.Folders(),
            (Paths{"C:\\trips\\2004", "C:\\trips\\2005", "C:\\trips\\2005\\July", "C:\\trips\\2005\\June"}));
}

TEST_F(ImageFoldersDialog, CancelReturnsNoFolders) {
  Show([](QWidget& dialog) {
    Check(dialog, "2004");
    Click(dialog, "btnCancel");
  });
  EXPECT_TRUE(form.Cancelled);
  EXPECT_TRUE(form.Folders().empty());
  Show([](QWidget& dialog) { QTest::keyClick(&Tree(dialog), Qt::Key_Escape); });
  EXPECT_TRUE(form.Cancelled);
}

TEST_F(ImageFoldersDialog, ASearchOfManyFoldersCanBeCancelled) {
  for (int i = 0; i < 200; ++i) harness.disk.Write("trips/many/" + std::to_string(i) + "/x", "");
  Show([](QWidget& dialog) {
    Click(dialog, "checkRecursive");
    QMetaObject::invokeMethod(
        &dialog, [&dialog] { Click(dialog, "btnCancel"); }, Qt::QueuedConnection);
    Click(dialog, "btnOK");
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_TRUE(form.Cancelled);
  EXPECT_TRUE(form.Folders().empty());
}

TEST_F(ImageFoldersDialog, TheTreeGrowsWithTheWindow) {
  form.resize(600, 400);
  form.show();
  const QSize before = Tree(form).size();
  form.resize(800, 600);
  QApplication::processEvents();
  EXPECT_EQ(Tree(form).width(), before.width() + 200);
  EXPECT_GE(Tree(form).height(), before.height() + 200);
}

}  // namespace
}  // namespace vantorium::ui
