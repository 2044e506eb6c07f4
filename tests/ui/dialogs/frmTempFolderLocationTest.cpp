#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/ScriptedFolderBrowser.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmTempFolderLocation.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class TempFolderLocationForm : public testing::Test {
 protected:
  TempFolderLocationForm() { preferences.TempFolderLocation = "C:\\temp"; }

  bool Edit(const std::function<void(QWidget&)>& drive) {
    bool taken = false;
    DriveModal([&] { taken = EditTempFolderLocation(preferences, "C:\\program", boxes, files, folders, nullptr); },
               drive);
    return taken;
  }

  fakes::TemporaryFolder disk;
  env::PathMap paths{{{'C', disk.Path().string()}}};
  env::RegionalFormats formats;
  env::mFileFunctions files{paths, formats};
  fakes::RecordingMessageBox boxes;
  fakes::ScriptedFolderBrowser folders;
  env::Preferences preferences;
};

TEST_F(TempFolderLocationForm, OpensWithTheLocationSelected) {
  EXPECT_TRUE(Edit([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Location of Temporary Folder");
    auto& text = Find<QLineEdit>(form, "textTempFolderLocation");
    EXPECT_TRUE(text.hasFocus());
    EXPECT_EQ(text.selectedText(), "C:\\temp");
    EXPECT_EQ(text.toolTip(), "Path that will contain the Folder named VANTORIUM_TEMP");
    EXPECT_TRUE(Find<QCheckBox>(form, "checkAutoClear").isChecked());
    EXPECT_EQ(Find<QLabel>(form, "lblText").text(),
              "Please specify the Location of Vantorium's Temporary Folder (\"VANTORIUM_TEMP\").  This Folder will be "
              "used for Storage during a Gallery Preview and should be cleared regularly.");
    EXPECT_EQ(Find<QCheckBox>(form, "checkAutoClear").text(), "Clear &automatically when closing Vantorium");
    EXPECT_EQ(Find<QCheckBox>(form, "checkAutoClear").toolTip(),
              "Specifies that Vantorium will clear the contents of the Temporary Folder automatically when closed");
    EXPECT_EQ(Find<QAbstractButton>(form, "btnReset").text(), "&Reset to Default");
    EXPECT_EQ(Find<QAbstractButton>(form, "OKButton").text(), "&Use this Path");
    Click(form, "OKButton");
  }));
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\temp");
  EXPECT_EQ(preferences.TempFolderAutoClear, 1);
}

TEST_F(TempFolderLocationForm, UseThisPathCreatesTheFolderAndStoresBothValues) {
  EXPECT_TRUE(Edit([](QWidget& form) {
    Type(Find<QLineEdit>(form, "textTempFolderLocation"), "C:\\other\\");
    Click(form, "checkAutoClear");
    QTest::keyClick(&form, Qt::Key_Return);
  }));
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\other");
  EXPECT_EQ(preferences.TempFolderAutoClear, 0);
  EXPECT_TRUE(std::filesystem::is_directory(disk.Path() / "other/VANTORIUM_TEMP"));
}

TEST_F(TempFolderLocationForm, AnInvalidPathKeepsTheDialogOpenAndTheText) {
  EXPECT_FALSE(Edit([](QWidget& form) {
    auto& text = Find<QLineEdit>(form, "textTempFolderLocation");
    Type(text, "temp");
    Click(form, "OKButton");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(text.hasFocus());
    EXPECT_EQ(text.selectedText(), "temp");
  }));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].title, "Invalid Path");
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\temp");
}

TEST_F(TempFolderLocationForm, EscapeAndTheTitleBarKeepTheOldLocation) {
  for (const bool escape : {true, false}) {
    EXPECT_FALSE(Edit([&](QWidget& form) {
      Type(Find<QLineEdit>(form, "textTempFolderLocation"), "temp");
      Click(form, "checkAutoClear");
      if (escape) {
        QTest::keyClick(&form, Qt::Key_Escape);
      } else {
        form.close();
      }
      EXPECT_FALSE(form.isVisible());
    }));
    EXPECT_EQ(preferences.TempFolderLocation, "C:\\temp") << escape;
    EXPECT_EQ(preferences.TempFolderAutoClear, 1) << escape;
  }
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(TempFolderLocationForm, AnEmptyLocationBecomesTheProgramFolder) {
  preferences.TempFolderLocation.clear();
  EXPECT_FALSE(Edit([](QWidget& form) {
    EXPECT_EQ(Find<QLineEdit>(form, "textTempFolderLocation").text(), "C:\\program");
    QTest::keyClick(&form, Qt::Key_Escape);
  }));
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\program");
}

TEST_F(TempFolderLocationForm, BrowseAndResetSetTheControls) {
  folders.answers = {"C:\\chosen"};
  preferences.TempFolderAutoClear = 0;
  Edit([](QWidget& form) {
    auto& text = Find<QLineEdit>(form, "textTempFolderLocation");
    auto& clear = Find<QCheckBox>(form, "checkAutoClear");
    Click(form, "btnBrowse");
    EXPECT_EQ(text.text(), "C:\\chosen");
    EXPECT_FALSE(clear.isChecked());
    Click(form, "btnReset");
    EXPECT_EQ(text.text(), "C:\\program");
    EXPECT_TRUE(clear.isChecked());
    Click(form, "OKButton");
  });
  EXPECT_EQ(folders.asked, std::vector<std::string>{"Location of Temporary Folder: C:\\temp"});
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\program");
  EXPECT_EQ(preferences.TempFolderAutoClear, 1);
}

TEST_F(TempFolderLocationForm, APastedPathLosesItsLineEnd) {
  EXPECT_TRUE(Edit([](QWidget& form) {
    QApplication::clipboard()->setText("C:\\pasted\r\n");
    Find<QLineEdit>(form, "textTempFolderLocation").paste();
    Click(form, "OKButton");
  }));
  EXPECT_EQ(preferences.TempFolderLocation, "C:\\pasted");
}

TEST_F(TempFolderLocationForm, ANativePathBecomesPathTextWhenItsBoxIsLeft) {
  Edit([&](QWidget& form) {
    auto& text = Find<QLineEdit>(form, "textTempFolderLocation");
    Type(text, QString::fromStdString(disk.Path().string() + "/native"));
    Find<QWidget>(form, "btnReset").setFocus();
    EXPECT_EQ(text.text(), "C:\\native");
  });
}

}  // namespace
}  // namespace vantorium::ui
