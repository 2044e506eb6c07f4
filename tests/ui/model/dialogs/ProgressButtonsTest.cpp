#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/fakes/UploadFakes.h"
#include "ui/model/dialogs/ProgressButtons.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

class ProgressButtonsTest : public testing::Test {
 protected:
  fakes::TemporaryFolder program;
  fakes::FixedClock clock;
  fakes::RecordingMessageBox boxes;
  fakes::ScriptedCancel cancel;
  publish::UploadLog log{program.Path(), clock, boxes};
  publish::ProgressModel window{log};
};

TEST_F(ProgressButtonsTest, TheCancelButtonSetsTheFlagAndAsksAtOnce) {
  window.Show();
  EXPECT_EQ(CancelButtonCaption(window), "&Cancel");
  EXPECT_FALSE(IsShowLogVisible(window));
  cancel.onPoll = [this](publish::ProgressWindow& progress) {
    EXPECT_EQ(&progress, &window);
    EXPECT_TRUE(progress.IsCancelled());
    progress.SetIsCancelled(false);  // the user answers No
  };
  PressCancelButton(window, cancel);
  EXPECT_EQ(cancel.polls, 1);
  EXPECT_FALSE(window.IsCancelled());
  EXPECT_FALSE(window.CloseRequested);
}

TEST_F(ProgressButtonsTest, AfterAFailureTheSameButtonClosesTheWindow) {
  window.Show();
  window.OfferClose();
  EXPECT_EQ(CancelButtonCaption(window), "&Close");
  EXPECT_TRUE(IsShowLogVisible(window));
  EXPECT_FALSE(window.CloseRequested);
  PressCancelButton(window, cancel);
  EXPECT_TRUE(window.CloseRequested);
  EXPECT_FALSE(window.IsCancelled());
  EXPECT_EQ(cancel.polls, 0);
}

TEST_F(ProgressButtonsTest, ShowLogOpensTheLogAndIgnoresAFailure) {
  fakes::Journal journal;
  fakes::JournalingShell shell(journal);
  PressShowLog(shell, "C:\\program");
  shell.fails = true;
  PressShowLog(shell, "C:\\program");
  EXPECT_EQ(journal, (fakes::Journal{"open C:\\program/ftplog.txt", "open C:\\program/ftplog.txt"}));
}

}  // namespace
}  // namespace vantorium::ui
