#include "tests/fakes/RecordingMessageBox.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmFrameNameSettings.h"
#include "ui/widgets/FieldBinder.h"

#include <QPushButton>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::Find;
using fakes::Type;

class FrameNameEditing : public testing::Test {
 protected:
  void Drive(const std::function<void(QWidget&)>& drive) {
    fakes::DriveModal([this] { frmFrameNameSettings(binder, nullptr).exec(); }, drive);
  }

  core::GalleryProject project;
  bool modified = false;
  core::ProjectEditor editor{project, modified};
  fakes::RecordingMessageBox boxes;
  FieldBinder binder{editor, boxes};
};

TEST_F(FrameNameEditing, ShowsBothNames) {
  Drive([](QWidget& form) {
    EXPECT_EQ(form.objectName(), "frmFrameNameSettings");
    EXPECT_EQ(form.windowTitle(), "Frame Name Settings");
    EXPECT_EQ(Find<QLineEdit>(form, "textThumbnailFrameName").text(), "thumb_frame");
    const auto& list = Find<QComboBox>(form, "comboImageFrameName");
    EXPECT_EQ(list.currentText(), "_self");
    QStringList items;
    for (int i = 0; i < list.count(); ++i) items << list.itemText(i);
    EXPECT_EQ(items, (QStringList{"_blank", "_parent", "_self", "_top"}));
    EXPECT_EQ(Find<QPushButton>(form, "btnClose").text(), "&Close");
    Click(form, "btnClose");
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_FALSE(modified);
}

TEST_F(FrameNameEditing, EachChangeIsStoredAtOnce) {
  Drive([this](QWidget& form) {
    Type(Find<QWidget>(form, "textThumbnailFrameName"), "my frame.1");
    EXPECT_EQ(project.textThumbnailFrameName, "my_frame.1");
    EXPECT_TRUE(modified);
    Type(Find<QWidget>(form, "comboImageFrameName"), "big one");
    EXPECT_EQ(project.comboImageFrameName, "big_one");
    modified = false;
    Find<QComboBox>(form, "comboImageFrameName").setCurrentIndex(3);
    EXPECT_EQ(project.comboImageFrameName, "_top");
    EXPECT_TRUE(modified);
    Type(Find<QWidget>(form, "comboImageFrameName"), "");
    EXPECT_EQ(project.comboImageFrameName, "");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  });
  EXPECT_EQ(project.textThumbnailFrameName, "my_frame.1");
  EXPECT_EQ(project.comboImageFrameName, "");
}

TEST_F(FrameNameEditing, TheArrowKeysContinueFromTheNameInTheList) {
  Drive([this](QWidget& form) {
    QTest::keyClick(&Find<QComboBox>(form, "comboImageFrameName"), Qt::Key_Down);
    EXPECT_EQ(project.comboImageFrameName, "_top");
  });
}

TEST_F(FrameNameEditing, TheTabKeyVisitsTheControlsInOrder) {
  Drive([](QWidget&) {
    for (const char* name : {"textThumbnailFrameName", "comboImageFrameName", "btnClose"}) {
      EXPECT_EQ(QApplication::focusWidget()->objectName(), name);
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
  });
}

}  // namespace
}  // namespace vantorium::ui
