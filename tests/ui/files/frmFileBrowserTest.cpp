#include "core/ImageFormats.h"
#include "tests/ui/FileBrowserHarness.h"
#include "ui/files/frmFileBrowser.h"
#include "ui/widgets/StretchedPicture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::ClickRow;
using fakes::DriveModal;
using fakes::Find;
using fakes::RowOf;
using fakes::Type;

using Names = std::vector<std::string>;

class FileDialog : public testing::Test {
 protected:
  /// Shows the dialog, drives it and stores its result in `result`.
  void Show(const FileDialogRequest& request, const std::function<void(QWidget&)>& drive) {
    DriveModal([&] { result = browser.DisplayFileDialog(request); }, drive);
  }

  FileDialogRequest Images(bool several = true) {
    return {.multiSelect = several,
            .title = "Add Images",
            .initialFolder = "C:\\photos",
            .filter = core::ImageFileFilter(),
            .preview = true};
  }

  /// The visible one of the two file views.
  static QAbstractItemView& List(QWidget& dialog) {
    auto& list = Find<QAbstractItemView>(dialog, "listView");
    return list.isVisible() ? list : Find<QAbstractItemView>(dialog, "treeView");
  }
  static QLineEdit& NameBox(QWidget& dialog) { return Find<QLineEdit>(dialog, "fileNameEdit"); }
  static QPushButton& Ok(QWidget& dialog) {
    auto& buttons = Find<QDialogButtonBox>(dialog, "buttonBox");
    auto* const open = buttons.button(QDialogButtonBox::Open);
    return open != nullptr ? *open : *buttons.button(QDialogButtonBox::Save);
  }
  static QPushButton& Cancel(QWidget& dialog) {
    return *Find<QDialogButtonBox>(dialog, "buttonBox").button(QDialogButtonBox::Cancel);
  }

  static void ClickFile(QWidget& dialog, const QString& name, Qt::KeyboardModifiers modifiers = {}) {
    ClickRow(List(dialog), RowOf(List(dialog), name), modifiers);
    QApplication::processEvents();
  }

  static bool HasPicture(QWidget& dialog) { return !Find<StretchedPicture>(dialog, "pbPreview").Picture().isNull(); }
  static bool ShowsAPicture(QWidget& dialog) {
    return QTest::qWaitFor([&] { return HasPicture(dialog); });
  }
  static std::string SizeText(QWidget& dialog) { return Find<QLabel>(dialog, "lblSize").text().toStdString(); }

  fakes::FileBrowserHarness harness;
  frmFileBrowser browser{harness.paths, harness.boxes, harness.files};
  FileDialogResult result;
};

TEST_F(FileDialog, HasItsNameTitleAndButtonTexts) {
  Show(Images(), [](QWidget& dialog) {
    EXPECT_EQ(dialog.objectName(), "frmFileBrowser");
    EXPECT_EQ(dialog.windowTitle(), "Add Images");
    EXPECT_EQ(Ok(dialog).text(), "Add Images");
    EXPECT_EQ(Cancel(dialog).text(), "Cancel");
    EXPECT_EQ(NameBox(dialog).text(), "");
  });
  Show(Images(false), [](QWidget& dialog) { EXPECT_EQ(Ok(dialog).text(), "Use Image"); });
  Show({.title = "Open"}, [](QWidget& dialog) { EXPECT_EQ(Ok(dialog).text(), "Open"); });
  Show({.open = false, .title = "Save"}, [](QWidget& dialog) { EXPECT_EQ(Ok(dialog).text(), "Save"); });
}

TEST_F(FileDialog, AFileIsChosenWithTheMouse) {
  Show(Images(false), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    EXPECT_EQ(NameBox(dialog).text(), "a.jpg");
    Click(Ok(dialog));
  });
  EXPECT_EQ(result.result, "C:\\photos\\a.jpg");
  EXPECT_EQ(result.folder, "C:\\photos\\");
  EXPECT_EQ(result.names, Names{"C:\\photos\\a.jpg"});
}

TEST_F(FileDialog, ADoubleClickChoosesAFile) {
  Show(Images(), [](QWidget& dialog) {
    const QModelIndex row = RowOf(List(dialog), "c.jfif");
    ClickRow(List(dialog), row);
    QTest::mouseDClick(List(dialog).viewport(), Qt::LeftButton, {}, List(dialog).visualRect(row).center());
  });
  EXPECT_EQ(result.result, "c.jfif");
  EXPECT_EQ(result.names, Names{"c.jfif"});
}

TEST_F(FileDialog, CancelChoosesNothing) {
  Show(Images(), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    Click(Cancel(dialog));
  });
  EXPECT_EQ(result.result, "");
  EXPECT_TRUE(result.names.empty());
  Show(Images(), [](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); });
  EXPECT_EQ(result.result, "");
}

TEST_F(FileDialog, SeveralFilesAreChosenTogether) {
  Show(Images(), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    ClickFile(dialog, "c.jfif", Qt::ControlModifier);
    Click(Ok(dialog));
  });
  EXPECT_EQ(result.result, "\"a.jpg\" \"c.jfif\"");
  EXPECT_EQ(result.folder, "C:\\photos\\");
  EXPECT_EQ(result.names, (Names{"a.jpg", "c.jfif"}));
}

TEST_F(FileDialog, WithoutMultiSelectASecondFileReplacesTheFirst) {
  Show(Images(false), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    ClickFile(dialog, "c.jfif", Qt::ControlModifier);
    EXPECT_EQ(NameBox(dialog).text(), "c.jfif");
  });
}

TEST_F(FileDialog, TheSelectedPhotographIsPreviewedWithItsSize) {
  Show(Images(), [](QWidget& dialog) {
    EXPECT_TRUE(Find<QCheckBox>(dialog, "checkPreview").isChecked());
    EXPECT_EQ(Find<QWidget>(dialog, "extendedArea").width(), Find<QWidget>(dialog, "pbPreview").width() + 20);
    EXPECT_EQ(SizeText(dialog), "");
    ClickFile(dialog, "b.JPG");
    EXPECT_TRUE(ShowsAPicture(dialog));
    EXPECT_TRUE(SizeText(dialog).starts_with("(64x48, ")) << SizeText(dialog);
  });
}

TEST_F(FileDialog, OtherPicturesArePreviewedToo) {
  FileDialogRequest request = Images(false);
  request.filter = "All Files (*.*)|*.*";
  Show(request, [](QWidget& dialog) {
    ClickFile(dialog, "drawing.png");
    EXPECT_TRUE(HasPicture(dialog));
    EXPECT_EQ(Find<QLabel>(dialog, "pbDummy").pixmap().size(), QSize(20, 10));
    EXPECT_TRUE(SizeText(dialog).starts_with("(20x10, ")) << SizeText(dialog);
  });
}

TEST_F(FileDialog, ThePictureIsStretchedToItsBox) {
  FileDialogRequest request = Images(false);
  request.filter = "All Files (*.*)|*.*";
  Show(request, [](QWidget& dialog) {
    ClickFile(dialog, "drawing.png");
    auto& box = Find<StretchedPicture>(dialog, "pbPreview");
    const QImage drawn = box.grab().toImage();
    const QRect inside = box.contentsRect().adjusted(1, 1, -1, -1);
    EXPECT_EQ(drawn.pixelColor(inside.topLeft()), QColor(Qt::red));
    EXPECT_EQ(drawn.pixelColor(inside.bottomRight()), QColor(Qt::red));
  });
}

TEST_F(FileDialog, AFileThatIsNotAPictureHasNoPreview) {
  FileDialogRequest request = Images(false);
  request.filter = "All Files (*.*)|*.*";
  Show(request, [](QWidget& dialog) {
    for (const char* name : {"broken.jpg", "notes.txt", "sub"}) {
      ClickFile(dialog, "drawing.png");
      ASSERT_TRUE(HasPicture(dialog));
      ClickFile(dialog, name);
      EXPECT_FALSE(HasPicture(dialog)) << name;
      EXPECT_EQ(SizeText(dialog), "") << name;
    }
  });
}

TEST_F(FileDialog, ATruncatedPhotographHasNoPreview) {
  const std::string whole = fakes::MakeJpeg({.width = 64, .height = 64});
  harness.disk.Write("photos/cut.jpg", whole.substr(0, whole.size() / 2));
  Show(Images(), [](QWidget& dialog) {
    ClickFile(dialog, "cut.jpg");
    EXPECT_TRUE(QTest::qWaitFor([&] { return SizeText(dialog).empty(); }));
    EXPECT_FALSE(HasPicture(dialog));
  });
}

TEST_F(FileDialog, WithoutTheCheckBoxNothingIsPreviewed) {
  Show(Images(), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    ASSERT_TRUE(ShowsAPicture(dialog));
    Click(dialog, "checkPreview");
    EXPECT_FALSE(HasPicture(dialog));
    EXPECT_EQ(SizeText(dialog), "");
    ClickFile(dialog, "b.JPG");
    EXPECT_EQ(SizeText(dialog), "");
    Click(dialog, "checkPreview");
    EXPECT_TRUE(ShowsAPicture(dialog));
    EXPECT_TRUE(SizeText(dialog).starts_with("(64x48, ")) << SizeText(dialog);
  });
}

TEST_F(FileDialog, AClickOnThePictureShowsItFullScreen) {
  Show(Images(), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    ASSERT_TRUE(ShowsAPicture(dialog));
    const std::string size = SizeText(dialog);
    const auto check = [&](QWidget& preview) {
      EXPECT_EQ(preview.objectName(), "frmPreview");
      EXPECT_EQ(preview.windowTitle().toStdString(), "Full Screen Preview: a.jpg " + size);
    };
    DriveModal([&] { Click(dialog, "pbPreview"); }, check);
    DriveModal([&] { QTest::keyClick(&Find<QWidget>(dialog, "pbPreview"), Qt::Key_Space); }, check);
  });
}

TEST_F(FileDialog, AClickWithoutASelectedFileShowsNothing) {
  Show(Images(), [](QWidget& dialog) {
    const auto opensAWindow = [&dialog] {
      bool opened = false;
      QTimer::singleShot(0, [&] {
        QWidget* const window = QApplication::activeModalWidget();
        opened = window != &dialog;
        if (opened) window->close();
      });
      Click(dialog, "pbPreview");
      QApplication::processEvents();
      return opened;
    };
    EXPECT_FALSE(opensAWindow());
    ClickFile(dialog, "a.jpg");
    EXPECT_TRUE(opensAWindow());
    Click(dialog, "checkPreview");
    EXPECT_FALSE(opensAWindow());
  });
}

TEST_F(FileDialog, WithoutPreviewThereIsNoSpaceForOne) {
  Show({.title = "Open", .initialFolder = "C:\\photos"}, [](QWidget& dialog) {
    EXPECT_FALSE(Find<QWidget>(dialog, "pbPreview").isVisible());
    EXPECT_FALSE(Find<QWidget>(dialog, "lblSize").isVisible());
    EXPECT_FALSE(Find<QCheckBox>(dialog, "checkPreview").isVisible());
    EXPECT_FALSE(Find<QCheckBox>(dialog, "checkPreview").isChecked());
    ClickFile(dialog, "a.jpg");
    EXPECT_EQ(SizeText(dialog), "");
  });
}

TEST_F(FileDialog, FiltersShowTheirDescriptionsAndMatchInAnyCase) {
  FileDialogRequest request = Images();
  request.filterIndex = 2;
  Show(request, [](QWidget& dialog) {
    auto& types = Find<QComboBox>(dialog, "fileTypeCombo");
    ASSERT_EQ(types.count(), 3);
    EXPECT_EQ(types.itemText(0), "All supported Formats");
    EXPECT_EQ(types.itemText(1), "JPEG Images (*.jpg, *.jpeg)");
    EXPECT_EQ(types.itemText(2), "JFIF Images (*.jfif)");
    EXPECT_EQ(types.currentIndex(), 1);
    EXPECT_TRUE(RowOf(List(dialog), "b.JPG").isValid());
    QStringList shown;
    for (int row = 0; row < List(dialog).model()->rowCount(List(dialog).rootIndex()); ++row) {
      shown << List(dialog).model()->index(row, 0, List(dialog).rootIndex()).data().toString();
    }
    EXPECT_FALSE(shown.contains("c.jfif"));
    EXPECT_FALSE(shown.contains("notes.txt"));
  });
}

TEST_F(FileDialog, ATextOf1023CharactersIsReportedAndATextOf1022IsNot) {
  const std::string base = "photos/long/";
  for (const char first : {'a', 'b', 'c', 'd'}) harness.disk.Write(base + first + std::string(248, 'x') + ".jpg", "");
  harness.disk.Write(base + 'e' + std::string(247, 'x') + ".jpg", "");
  FileDialogRequest request = Images();
  request.initialFolder = "C:\\photos\\long";
  Show(request, [&](QWidget& dialog) {
    const auto click = [&](char first, int filling) {
      ClickFile(dialog, first + QString(filling, 'x') + ".jpg", Qt::ControlModifier);
    };
    for (const char first : {'a', 'b', 'c'}) click(first, 248);
    EXPECT_TRUE(Ok(dialog).isEnabled());
    EXPECT_TRUE(harness.boxes.boxes.empty());
    click('d', 248);
    EXPECT_EQ(NameBox(dialog).text().size(), 1023);
    EXPECT_FALSE(Ok(dialog).isEnabled());
    EXPECT_EQ(harness.boxes.boxes.size(), 1U);
    QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    click('e', 247);
    EXPECT_EQ(harness.boxes.boxes.size(), 2U);
    click('d', 248);
    EXPECT_EQ(NameBox(dialog).text().size(), 1022);
    EXPECT_TRUE(Ok(dialog).isEnabled());
    EXPECT_EQ(harness.boxes.boxes.size(), 2U);
    Click(Ok(dialog));
  });
  EXPECT_EQ(result.names.size(), 4U);
}

TEST_F(FileDialog, PathTextCanBeTyped) {
  Show(Images(), [](QWidget& dialog) {
    Type(NameBox(dialog), "C:\\photos\\sub\\d.jpg");
    EXPECT_TRUE(Ok(dialog).isEnabled());
    QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
  });
  EXPECT_EQ(result.folder, "C:\\photos\\sub\\");
  EXPECT_EQ(result.names, Names{"d.jpg"});
}

TEST_F(FileDialog, ANativePathBecomesPathTextWhenTheBoxIsLeft) {
  Show(Images(), [&](QWidget& dialog) {
    Type(NameBox(dialog), harness.Native("photos/sub/d.jpg"));
    if (QWidget* const completions = QApplication::activePopupWidget()) completions->close();
    QTest::keyClick(&NameBox(dialog), Qt::Key_Tab);
    EXPECT_EQ(NameBox(dialog).text(), "C:\\photos\\sub\\d.jpg");
    Click(Ok(dialog));
  });
  EXPECT_EQ(result.folder, "C:\\photos\\sub\\");
}

TEST_F(FileDialog, ANativePathIsAcceptedAtOnce) {
  Show(Images(), [&](QWidget& dialog) {
    Type(NameBox(dialog), harness.Native("photos/sub/d.jpg"));
    QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
  });
  EXPECT_EQ(result.folder, "C:\\photos\\sub\\");
  EXPECT_EQ(result.names, Names{"d.jpg"});
}

TEST_F(FileDialog, ATypedFolderIsOpened) {
  Show(Images(false), [](QWidget& dialog) {
    Type(NameBox(dialog), "C:\\photos\\sub");
    QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
    EXPECT_EQ(NameBox(dialog).text(), "");
    EXPECT_EQ(Find<QComboBox>(dialog, "comboFolder").currentText(), "C:\\photos\\sub");
    ClickFile(dialog, "d.jpg");
    Click(Ok(dialog));
  });
  EXPECT_EQ(result.result, "C:\\photos\\sub\\d.jpg");
}

int WidthNeeded(const QAbstractItemView& list, int column) {
  return list.sizeHintForColumn(column);
}

TEST_F(FileDialog, TheColumnsFitEachOpenedFolder) {
  harness.disk.Write("photos/sub/large.jpg", std::string(123456, 'x'));
  Show(Images(), [](QWidget& dialog) {
    auto& details = Find<QTreeView>(dialog, "treeView");
    const auto fits = [&] {
      int width = details.columnWidth(0);
      for (int column = 1; column < details.model()->columnCount(); ++column) {
        if (details.columnWidth(column) < WidthNeeded(details, column)) return false;
        width += details.columnWidth(column);
      }
      return width == details.viewport()->width();
    };
    EXPECT_TRUE(RowOf(details, "a.jpg").isValid());
    EXPECT_TRUE(QTest::qWaitFor(fits)) << "the first folder";
    for (const char* folder : {"C:\\photos\\sub", "C:\\photos", "C:\\photos\\sub"}) {
      for (int column = 0; column < 4; ++column) details.setColumnWidth(column, 30);
      Type(NameBox(dialog), folder);
      QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
      EXPECT_TRUE(QTest::qWaitFor(fits)) << folder;
    }
    Click(Cancel(dialog));
  });
}

TEST_F(FileDialog, WidthsSetByTheUserStayWhileTheFolderIsShown) {
  Show(Images(), [&](QWidget& dialog) {
    auto& details = Find<QTreeView>(dialog, "treeView");
    EXPECT_TRUE(RowOf(details, "a.jpg").isValid());
    EXPECT_TRUE(QTest::qWaitFor([&] { return details.columnWidth(1) >= WidthNeeded(details, 1); }));
    QApplication::processEvents();
    details.setColumnWidth(1, 33);
    harness.disk.Write("photos/new.jpg", fakes::MakeJpeg({}));
    EXPECT_TRUE(RowOf(details, "new.jpg").isValid());
    QApplication::processEvents();
    EXPECT_EQ(details.columnWidth(1), 33);
    Click(Cancel(dialog));
  });
}

TEST_F(FileDialog, CompletionsCloseWhenAFolderIsOpened) {
  Show(Images(), [&](QWidget& dialog) {
    const QWidget& completions = *NameBox(dialog).completer()->popup();
    EXPECT_TRUE(RowOf(List(dialog), "sub").isValid());
    Type(NameBox(dialog), "s");
    EXPECT_TRUE(QTest::qWaitFor([&] { return completions.isVisible(); }));
    dynamic_cast<QFileDialog&>(dialog).setDirectory(harness.Native("photos/sub"));
    EXPECT_TRUE(RowOf(List(dialog), "d.jpg").isValid());
    EXPECT_TRUE(QTest::qWaitFor([&] { return !completions.isVisible(); }));
    Click(Cancel(dialog));
  });
}

TEST_F(FileDialog, TheFolderAndItsParentsAreListedAsPathText) {
  Show(Images(), [](QWidget& dialog) {
    auto& folder = Find<QComboBox>(dialog, "comboFolder");
    EXPECT_EQ(folder.currentText(), "C:\\photos");
    EXPECT_EQ(folder.itemText(1), "C:\\");
    folder.setFocus();
    QTest::keyClick(&folder, Qt::Key_Down);
    EXPECT_EQ(folder.currentText(), "C:\\");
    EXPECT_TRUE(RowOf(List(dialog), "photos").isValid());
  });
}

TEST_F(FileDialog, ForAMissingFolderTheNearestParentIsOpened) {
  FileDialogRequest request = Images();
  request.initialFolder = "C:\\photos\\1999\\May";
  Show(request, [](QWidget& dialog) { EXPECT_EQ(Find<QComboBox>(dialog, "comboFolder").currentText(), "C:\\photos"); });
}

TEST_F(FileDialog, WithoutAFolderItBeginsInTheLastOne) {
  Show(Images(), [](QWidget& dialog) {
    ClickFile(dialog, "a.jpg");
    Click(Ok(dialog));
  });
  Show({.title = "Open"},
       [](QWidget& dialog) { EXPECT_EQ(Find<QComboBox>(dialog, "comboFolder").currentText(), "C:\\photos"); });
}

TEST_F(FileDialog, AMissingFileIsReportedAndTheDialogStaysOpen) {
  Show(Images(), [](QWidget& dialog) {
    Type(NameBox(dialog), "none.jpg");
    QTest::keyClick(&NameBox(dialog), Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(NameBox(dialog).text(), "none.jpg");
  });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_TRUE(harness.boxes.boxes[0].text.starts_with("none.jpg\r\nFile not found.")) << harness.boxes.boxes[0].text;
  EXPECT_EQ(result.result, "");
}

TEST_F(FileDialog, SavingProposesANameAndAsksBeforeAFileIsReplaced) {
  harness.disk.Write("my.gpj", "old");
  harness.boxes.answers = {env::BoxAnswer::No};
  const FileDialogRequest request{.open = false,
                                  .title = "Save Gallery Project As",
                                  .initialFolder = "C:\\",
                                  .fileName = "untitled1",
                                  .filter = "Vantorium 3.0 Project Files (*.gpj)|*.gpj",
                                  .defaultExtension = "gpj"};
  Show(request, [](QWidget& dialog) {
    EXPECT_EQ(NameBox(dialog).text(), "untitled1");
    Type(NameBox(dialog), "my");
    Click(Ok(dialog));
    EXPECT_TRUE(dialog.isVisible());
    Click(Ok(dialog));
  });
  EXPECT_EQ(result.result, "C:\\my.gpj");
  ASSERT_EQ(harness.boxes.boxes.size(), 2U);
  EXPECT_EQ(harness.boxes.boxes[0].text, "my.gpj already exists.\r\nDo you want to replace it?");
}

TEST_F(FileDialog, TheWindowThatOpenedItIsActiveAfterwards) {
  QWidget owner;
  owner.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&owner));
  Show(Images(), [](QWidget& dialog) { Click(Cancel(dialog)); });
  EXPECT_TRUE(QTest::qWaitForWindowActive(&owner, 1000));
}

}  // namespace
}  // namespace vantorium::ui
