#include "core/generation/CancelCheck.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"

namespace vantorium::generation {
namespace {

class CancelCheckTest : public ::testing::Test {
 protected:
  fakes::Journal journal;
  fakes::ProgressRecord record;
  fakes::RecordingProgress progress{record, journal};
  fakes::RecordingMessageBox boxes;
  CancelCheck cancel{boxes};
};

TEST_F(CancelCheckTest, UnlessTheButtonWasPressedNothingIsAsked) {
  EXPECT_FALSE(cancel.CheckForCancel(progress));
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(CancelCheckTest, YesRequestsTheCancelAndLogsIt) {
  record.cancelled = true;
  EXPECT_TRUE(cancel.CheckForCancel(progress));
  EXPECT_TRUE(cancel.CancelRequested());
  EXPECT_EQ(record.log, "\r\nCancelling Request...\r\n");
  EXPECT_EQ(journal, (fakes::Journal{"progress busy"}));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Question);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::YesNo);
}

TEST_F(CancelCheckTest, NoResetsTheButton) {
  record.cancelled = true;
  boxes.answers = {env::BoxAnswer::No};
  EXPECT_FALSE(cancel.CheckForCancel(progress));
  EXPECT_FALSE(record.cancelled);
  EXPECT_FALSE(cancel.CancelRequested());
}

TEST_F(CancelCheckTest, ACancelIsConfirmedOnce) {
  record.cancelled = true;
  std::ignore = cancel.CheckForCancel(progress);
  EXPECT_TRUE(cancel.CheckForCancel(progress));
  EXPECT_EQ(boxes.boxes.size(), 1U);
}

TEST_F(CancelCheckTest, AfterARequestTheAnswerIsTheFlagOfTheWindow) {
  record.cancelled = true;
  std::ignore = cancel.CheckForCancel(progress);
  record.cancelled = false;
  EXPECT_FALSE(cancel.CheckForCancel(progress));
  EXPECT_TRUE(cancel.CancelRequested());
}

}  // namespace
}  // namespace vantorium::generation
