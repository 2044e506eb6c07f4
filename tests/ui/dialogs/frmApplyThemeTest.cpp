#include "tests/fakes/ProjectReading.h"
#include "tests/ui/MainWindowHarness.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::ProjectFileParts;
using fakes::Type;

class ApplyThemeForm : public testing::Test {
 protected:
  ApplyThemeForm() {
    WriteTheme("film", "3");
    WriteTheme("plain", "7");
    harness.folder.Write("data/themes/film.jpg", fakes::MakeJpeg({.width = 24, .height = 15}));
    harness.folder.Write("data/themes/plain.jpg", "no picture");
    harness.Start();
  }

  void WriteTheme(const std::string& name, const std::string& rows) const {
    ProjectFileParts parts;
    parts.thumbnailPage = "<ARRANGEMENT ROWS=\"" + rows + "\"/><PAGELINKS/>";
    harness.folder.Write("data/themes/" + name + ".gpj", parts.Text());
  }
  void Open(const std::function<void(QWidget&)>& drive) {
    DriveModal([&] { harness.Trigger("menuOptionsApplyTheme"); }, drive);
  }
  [[nodiscard]] const core::Project& Now() const { return harness.model->CurrentProject(); }

  fakes::MainWindowHarness harness;
};

TEST_F(ApplyThemeForm, ShowsAPictureOfEachThemeAndChoosesTheFirst) {
  Open([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Apply Theme");
    auto& list = Find<QListWidget>(form, "listThemes");
    ASSERT_EQ(list.count(), 2);
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(list.currentRow(), 0);
    EXPECT_EQ(list.item(0)->text(), "Film");
    EXPECT_EQ(list.item(1)->text(), "Plain");
    EXPECT_EQ(list.item(0)->icon().availableSizes().value(0), QSize(24, 15));
    EXPECT_EQ(list.item(1)->icon().availableSizes().value(0), list.iconSize()) << "grey instead of a missing picture";
    const QIcon grey = list.item(1)->icon();
    EXPECT_NE(grey.pixmap(list.iconSize(), QIcon::Selected).toImage(), grey.pixmap(list.iconSize()).toImage());
    EXPECT_EQ(Find<QLabel>(form, "lblThemes").buddy(), &list);
  });
}

TEST_F(ApplyThemeForm, SettingsOfTheChosenThemeAreAppliedAndShown) {
  harness.AddPhotograph("a.jpg");
  harness.GoTo(0);
  Type(Find<QLineEdit>(*harness.window, "textGalleryTitle"), "Mine");
  Open([](QWidget& form) {
    QTest::keyClick(&Find<QListWidget>(form, "listThemes"), Qt::Key_Right);
    Click(form, "OKButton");
  });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Replace Settings");
  EXPECT_EQ(Now().settings.textThumbnailsTableRows, "7");
  EXPECT_EQ(Find<QLineEdit>(*harness.window, "textThumbnailsTableRows").text(), "7");
  EXPECT_EQ(Find<QLineEdit>(*harness.window, "textGalleryTitle").text(), "Mine");
  EXPECT_EQ(Now().images.Count(), 1U);
  EXPECT_TRUE(Now().IsModified);
}

TEST_F(ApplyThemeForm, ADoubleClickAppliesATheme) {
  Open([](QWidget& form) {
    auto& list = Find<QListWidget>(form, "listThemes");
    const QPoint place = list.visualItemRect(list.item(1)).center();
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list.viewport(), Qt::LeftButton, {}, place);
  });
  EXPECT_EQ(Now().settings.textThumbnailsTableRows, "7");
}

TEST_F(ApplyThemeForm, AfterNoAnotherThemeCanBeChosen) {
  harness.boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  Open([&](QWidget& form) {
    Click(form, "OKButton");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(Now().settings.textThumbnailsTableRows, "5");
    EXPECT_FALSE(Now().IsModified);
    QTest::keyClick(&Find<QListWidget>(form, "listThemes"), Qt::Key_Right);
    QTest::keyClick(&Find<QListWidget>(form, "listThemes"), Qt::Key_Return);
  });
  EXPECT_EQ(Now().settings.textThumbnailsTableRows, "7");
}

TEST_F(ApplyThemeForm, CancelChangesNothingAndAsksNothing) {
  Open([](QWidget& form) { Click(form, "CancelButton"); });
  EXPECT_TRUE(harness.boxes.boxes.empty());
  EXPECT_EQ(Now().settings.textThumbnailsTableRows, "5");
  EXPECT_FALSE(Now().IsModified);
}

TEST_F(ApplyThemeForm, WithoutThemesAMessageBoxIsShown) {
  std::filesystem::remove_all(harness.folder.Path() / "data/themes");
  harness.Trigger("menuOptionsApplyTheme");
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "File Error");
  EXPECT_EQ(harness.boxes.boxes[0].text, "The themes cannot be found.");
}

}  // namespace
}  // namespace vantorium::ui
