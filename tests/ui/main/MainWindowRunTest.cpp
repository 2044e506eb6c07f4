// Runs from the main window: their effects on pointer and focus.
#include "tests/ui/MainWindowHarness.h"
#include "ui/dialogs/frmProgress.h"

#include <QLineEdit>
#include <QTimer>
#include <QWindow>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;
using fakes::Type;

frmProgress* VisibleProgress() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    auto* progress = dynamic_cast<frmProgress*>(window);
    if (progress != nullptr && progress->isVisible()) return progress;
  }
  return nullptr;
}

class RunOfTheMainWindow : public testing::Test {
 protected:
  RunOfTheMainWindow() {
    harness.Start();
    for (int i = 0; i < 20; ++i) harness.AddPhotograph(std::to_string(i) + ".jpg");
  }

  /// Creates a gallery and calls `look` once during the run.
  void Create(const std::function<void(frmProgress&)>& look) {
    QTimer watch;
    bool looked = false;
    QObject::connect(&watch, &QTimer::timeout, [&] {
      frmProgress* progress = VisibleProgress();
      if (progress == nullptr || looked) return;
      looked = true;
      look(*progress);
    });
    watch.start(0);
    DriveModal([&] { harness.Trigger("menuActionsCreate"); },
               [](QWidget& dialog) {
                 Type(Find<QLineEdit>(dialog, "textCreateFilePath"), "T:\\out\\index.htm");
                 Click(dialog, "OKButton");
               });
    EXPECT_TRUE(looked);
    EXPECT_EQ(VisibleProgress(), nullptr);
  }
  [[nodiscard]] Qt::CursorShape MainPointer() const { return harness.window->windowHandle()->cursor().shape(); }

  MainWindowHarness harness;
};

TEST_F(RunOfTheMainWindow, HasTheBusyPointerOnlyOnTheMainWindowUntilACancelIsConfirmed) {
  harness.boxes.answers = {env::BoxAnswer::No, env::BoxAnswer::Yes};
  Create([&](frmProgress& progress) {
    EXPECT_EQ(MainPointer(), Qt::WaitCursor);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "it would apply to all windows";
    EXPECT_FALSE(progress.IsPointerBusy());
    Click(progress, "CancelButton");
    EXPECT_FALSE(progress.IsPointerBusy()) << "the answer was No";
    Click(progress, "CancelButton");
    EXPECT_TRUE(progress.IsPointerBusy());
  });
  EXPECT_EQ(harness.TitleOfLastBox(), "Creation cancelled");
  EXPECT_EQ(MainPointer(), Qt::ArrowCursor);
}

TEST_F(RunOfTheMainWindow, RestoresThePointerOnSuccess) {
  Create([&](frmProgress&) { EXPECT_EQ(MainPointer(), Qt::WaitCursor); });
  EXPECT_EQ(MainPointer(), Qt::ArrowCursor);
  EXPECT_EQ(harness.window->cursor().shape(), Qt::ArrowCursor);
}

/// Runs that end while another window is active.
class EndOfARun : public RunOfTheMainWindow {
 protected:
  void ExpectFocusAfterRun(const std::function<void(frmProgress&)>& end) {
    QWidget other;
    auto& title = Find<QLineEdit>(*harness.window, "textGalleryTitle");
    harness.GoTo(0);
    title.setFocus();
    Create([&](frmProgress& progress) {
      other.show();
      other.activateWindow();
      ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
      end(progress);
    });
    EXPECT_TRUE(QTest::qWaitForWindowActive(harness.window.get()));
    EXPECT_EQ(QApplication::focusWidget(), &title);
  }
};

TEST_F(EndOfARun, AfterACancelTheMainWindowHasTheFocus) {
  ExpectFocusAfterRun([](frmProgress& progress) { Click(progress, "CancelButton"); });
  EXPECT_EQ(harness.TitleOfLastBox(), "Creation cancelled");
}

TEST_F(EndOfARun, AfterSuccessTheMainWindowHasTheFocus) {
  ExpectFocusAfterRun([](frmProgress&) {});
}

TEST_F(EndOfARun, AfterAFailureTheMainWindowHasTheFocus) {
  std::filesystem::remove(harness.folder.Path() / "19.jpg");
  QTimer closer;
  QObject::connect(&closer, &QTimer::timeout, [] {
    QWidget* warnings = QApplication::activeModalWidget();
    if (warnings != nullptr && warnings->objectName() == "frmRunWarnings") Click(*warnings, "CreateButton");
    frmProgress* progress = VisibleProgress();
    if (progress != nullptr && progress->OffersClose()) Click(*progress, "CancelButton");
  });
  closer.start(5);
  ExpectFocusAfterRun([](frmProgress&) {});
}

}  // namespace
}  // namespace vantorium::ui
