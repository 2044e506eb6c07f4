#include "tests/fakes/RecordingMessageBox.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmFileNameSettings.h"
#include "ui/widgets/FieldBinder.h"

#include <QPushButton>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::Find;
using fakes::Type;

class FileNameEditing : public testing::Test {
 protected:
  void Drive(const std::function<void(QWidget&)>& drive) {
    fakes::DriveModal([this] { frmFileNameSettings(binder, nullptr).exec(); }, drive);
  }

  core::GalleryProject project;
  bool modified = false;
  core::ProjectEditor editor{project, modified};
  fakes::RecordingMessageBox boxes;
  FieldBinder binder{editor, boxes};
};

TEST_F(FileNameEditing, ShowsNamesAndExtensionsWithoutTheirDot) {
  project.comboThumbnailPageSettingsFileExtension = ".php";
  Drive([](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmFileNameSettings");
    EXPECT_EQ(form.windowTitle(), "Path and File Name Settings");
    EXPECT_EQ(Find<QLineEdit>(form, "textImageSettingsSubFolder").text(), "Images");
    EXPECT_EQ(Find<QLineEdit>(form, "textThumbnailImageSettingsSubFolder").text(), "Thumbs");
    EXPECT_EQ(Find<QLineEdit>(form, "textThumbnailImageSettingsFilePrefix").text(), "thumb_");
    EXPECT_EQ(Find<QLineEdit>(form, "textThumbnailPageSettingsFilePrefix").text(), "thumbpage_");
    EXPECT_EQ(Find<QComboBox>(form, "comboThumbnailPageSettingsFileExtension").currentText(), "php");
    EXPECT_EQ(Find<QComboBox>(form, "comboImageWrapperSettingsFileExtension").currentText(), "htm");
    for (const char* name : {"comboThumbnailPageSettingsFileExtension", "comboImageWrapperSettingsFileExtension"}) {
      const auto& list = Find<QComboBox>(form, name);
      QStringList items;
      for (int i = 0; i < list.count(); ++i) items << list.itemText(i);
      EXPECT_EQ(items, (QStringList{"htm", "html", "shtm", "shtml"})) << name;
    }
    EXPECT_EQ(Find<QPushButton>(form, "btnClose").text(), "&Close");
    Click(form, "btnClose");
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_FALSE(modified);
  EXPECT_EQ(project.comboThumbnailPageSettingsFileExtension, ".php");
}

TEST_F(FileNameEditing, CloseStoresAllSixNames) {
  Drive([](QWidget& form) {
    Type(Find<QWidget>(form, "textImageSettingsSubFolder"), "Images\\Big");
    Type(Find<QWidget>(form, "textThumbnailImageSettingsSubFolder"), "");
    Type(Find<QWidget>(form, "textThumbnailImageSettingsFilePrefix"), "t.");
    Type(Find<QWidget>(form, "textThumbnailPageSettingsFilePrefix"), "my page");
    Type(Find<QWidget>(form, "comboThumbnailPageSettingsFileExtension"), "a.b c");
    QTest::keyClick(&Find<QComboBox>(form, "comboImageWrapperSettingsFileExtension"), Qt::Key_Down);
    Click(form, "btnClose");
  });
  EXPECT_TRUE(modified);
  EXPECT_EQ(project.textImageSettingsSubFolder, "Images\\Big");
  EXPECT_EQ(project.textThumbnailImageSettingsSubFolder, "");
  EXPECT_EQ(project.textThumbnailImageSettingsFilePrefix, "t.");
  EXPECT_EQ(project.textThumbnailPageSettingsFilePrefix, "my_page");
  EXPECT_EQ(project.comboThumbnailPageSettingsFileExtension, ".a_b_c");
  EXPECT_EQ(project.comboImageWrapperSettingsFileExtension, ".html");
}

TEST_F(FileNameEditing, AChangeMarksTheProjectAsModifiedAtOnceAndIsStoredOnClosing) {
  Drive([this](QWidget& form) {
    EXPECT_FALSE(modified);
    QTest::keyClicks(&Find<QWidget>(form, "textImageSettingsSubFolder"), "2");
    EXPECT_TRUE(modified);
    EXPECT_EQ(project.textImageSettingsSubFolder, "Images");
  });
  EXPECT_EQ(project.textImageSettingsSubFolder, "Images2");
}

TEST_F(FileNameEditing, EveryWayOfClosingStoresTheNames) {
  Drive([](QWidget& form) {
    Type(Find<QWidget>(form, "textThumbnailPageSettingsFilePrefix"), "escaped");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(project.textThumbnailPageSettingsFilePrefix, "escaped");
  Drive([](QWidget& form) {
    Type(Find<QWidget>(form, "textThumbnailPageSettingsFilePrefix"), "closed");
    form.close();
  });
  EXPECT_EQ(project.textThumbnailPageSettingsFilePrefix, "closed");
}

TEST_F(FileNameEditing, TypedTextIsNotAutocompleted) {
  Drive([](QWidget& form) {
    Type(Find<QWidget>(form, "comboImageWrapperSettingsFileExtension"), "HT");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(form.isVisible()) << "Enter presses the button";
  });
  EXPECT_EQ(project.comboImageWrapperSettingsFileExtension, ".HT");
}

TEST_F(FileNameEditing, TheTabKeyVisitsTheControlsInOrder) {
  Drive([](QWidget&) {
    for (const char* name :
         {"textImageSettingsSubFolder", "comboImageWrapperSettingsFileExtension", "textThumbnailImageSettingsSubFolder",
          "textThumbnailImageSettingsFilePrefix", "textThumbnailPageSettingsFilePrefix",
          "comboThumbnailPageSettingsFileExtension", "btnClose"}) {
      EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
  });
}

}  // namespace
}  // namespace vantorium::ui
