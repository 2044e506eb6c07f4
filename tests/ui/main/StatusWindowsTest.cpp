#include "tests/ui/FormDriver.h"
#include "ui/main/frmInfo.h"
#include "ui/main/frmShutdown.h"
#include "ui/main/frmSplash.h"

#include <QLabel>
#include <QProgressBar>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Find;

TEST(SplashForm, CountsSevenStages) {
  frmSplash splash;
  splash.show();
  EXPECT_EQ(Find<QLabel>(splash, "lblWait").text(), "Please wait while Vantorium is initializing...");
  EXPECT_FALSE(Find<QLabel>(splash, "picSplash").pixmap().isNull());
  auto& bar = Find<QProgressBar>(splash, "pb1");
  EXPECT_EQ(bar.minimum(), 0);
  EXPECT_EQ(bar.maximum(), 7);
  EXPECT_EQ(bar.value(), 0);
  for (int stage = 1; stage <= 7; ++stage) {
    splash.Step();
    EXPECT_EQ(bar.value(), stage);
  }
  splash.Step();
  EXPECT_EQ(bar.value(), 7);
}

TEST(ShutdownForm, ShowsTheStepsAndCannotBeClosedByTheUser) {
  frmShutdown shutdown;
  shutdown.show();
  auto& message = Find<QLabel>(shutdown, "lblMessage");
  EXPECT_EQ(message.text(), "Please wait while Vantorium is shutting down...");
  for (const char* step : {"Saving Preferences", "Clearing Project", "Clearing Temporary Folder", "Cleanup"}) {
    shutdown.ShowStep(step);
    EXPECT_EQ(message.text(), step);
  }
  QTest::keyClick(&shutdown, Qt::Key_Escape);
  EXPECT_TRUE(shutdown.isVisible());
}

TEST(InfoForm, HasTheBusyPointerWhileItIsShown) {
  frmInfo info;
  info.SetText("Please wait... Clearing Temporary Folder.");
  EXPECT_EQ(Find<QLabel>(info, "Label1").text(), "Please wait... Clearing Temporary Folder.");
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  for (int time = 0; time < 2; ++time) {
    info.show();
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    QTest::keyClick(&info, Qt::Key_Escape);
    EXPECT_TRUE(info.isVisible()) << "the user can't close it";
    info.hide();
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  }
}

TEST(InfoForm, DoesNotTakeTheFocus) {
  QWidget other;
  other.show();
  other.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
  frmInfo info;
  EXPECT_TRUE(info.testAttribute(Qt::WA_ShowWithoutActivating));
  info.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&info));
  info.activateWindow();  // as some desktops do despite the attribute
  ASSERT_TRUE(QTest::qWaitForWindowActive(&info));
  info.hide();
  EXPECT_TRUE(QTest::qWaitForWindowActive(&other));
}

TEST(InfoForm, RestoresThePointerIfItIsDestroyedWhileShown) {
  {
    frmInfo info;
    info.show();
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

}  // namespace
}  // namespace vantorium::ui
