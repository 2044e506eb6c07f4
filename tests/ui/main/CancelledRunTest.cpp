#include "tests/fakes/JpegMaker.h"
#include "tests/ui/FormDriver.h"
#include "tests/ui/RunHarness.h"

#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

/// Runs with photographs and a real progress window.
class RunInItsWindow : public testing::Test, protected fakes::RunHarness {
 protected:
  RunInItsWindow() {
    const std::string photograph = fakes::MakeJpeg({.width = 320, .height = 240});
    for (int number = 1; number <= kPhotographs; ++number) {
      const std::string name = std::to_string(number);
      folder.Write("photos/" + name + ".jpg", photograph);
      AddImage(name, "T:\\photos\\" + name + ".jpg");
    }
  }

  /// Calls `act` with the progress window in each turn of the event loop until `act` returns true.
  void Watch(const std::function<bool(frmProgress&)>& act) {
    QObject::connect(&watch, &QTimer::timeout, [this, act] {
      if (host.progress && act(*host.progress)) watch.stop();
    });
    watch.start(0);
  }
  [[nodiscard]] bool IsWritten(const std::string& name) const {
    return std::filesystem::exists(folder.Path() / "out" / name);
  }

  static constexpr int kPhotographs = 40;

  QTimer watch;
};

TEST_F(RunInItsWindow, EndsAndEnablesTheMainWindowAgain) {
  bool wasDisabled = false;
  Watch([&](frmProgress& window) {
    wasDisabled = !host.window.isEnabled() && window.isEnabled();
    return true;
  });
  EXPECT_EQ(Create(), generation::RunEnd::Success);
  EXPECT_TRUE(wasDisabled);
  EXPECT_TRUE(host.window.isEnabled());
  EXPECT_TRUE(host.progress.isNull());
  EXPECT_TRUE(IsWritten("index.htm"));
}

TEST_F(RunInItsWindow, CanBeCancelledByTheButtonInMidRun) {
  boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  std::int32_t refusedAt = 0;
  std::int32_t confirmedAt = 0;
  Watch([&](frmProgress& window) {
    if (window.GetProgress() < kPhotographs + 5) return false;  // five images have been made
    fakes::Click(window, "CancelButton");
    (boxes.boxes.size() == 1 ? refusedAt : confirmedAt) = window.GetProgress();
    return boxes.boxes.size() == 2;
  });
  EXPECT_EQ(Create(), generation::RunEnd::Cancelled);
  ASSERT_EQ(boxes.boxes.size(), 3U);
  EXPECT_EQ(boxes.boxes[0].title, "Cancel Request");
  EXPECT_EQ(boxes.boxes[1].title, "Cancel Request");
  EXPECT_EQ(boxes.boxes[2].title, "Creation cancelled");
  EXPECT_GE(confirmedAt, refusedAt) << "after No the run continued";
  EXPECT_TRUE(host.window.isEnabled());
  EXPECT_TRUE(host.progress.isNull());
  EXPECT_FALSE(IsWritten("index.htm"));
}

TEST_F(RunInItsWindow, StaysOpenAfterAFailureUntilItIsClosed) {
  std::filesystem::remove(folder.Path() / "photos/3.jpg");
  Watch([&](frmProgress& window) {
    if (!window.OffersClose()) return false;
    EXPECT_FALSE(host.window.isEnabled());
    EXPECT_FALSE(fakes::Find<QWidget>(window, "pbFile").isVisible()) << "nothing is uploaded";
    fakes::Click(window, "btnShowLog");
    fakes::Click(window, "CancelButton");
    return true;
  });
  EXPECT_EQ(Create(), generation::RunEnd::Failure);
  EXPECT_TRUE(host.window.isEnabled());
  EXPECT_TRUE(host.progress.isNull());
  EXPECT_EQ(journal, (fakes::Journal{"beep warning", "open T:\\program/ftplog.txt", "beep information"}));
}

}  // namespace
}  // namespace vantorium::ui
