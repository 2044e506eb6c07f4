#include "core/generation/CancelCheck.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/RunFakes.h"
#include "tests/fakes/TemporaryFolder.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmProgress.h"
#include "ui/ports/QtEventLoop.h"
#include "ui/ports/QtMessageBox.h"
#include "ui/qt/QtText.h"

#include <QLabel>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::Find;

/// Answers from its script, and calls `whileShown` before it returns.
class BusyMessageBox : public fakes::RecordingMessageBox {
 public:
  env::BoxAnswer Show(env::BoxKind kind, env::BoxButtons buttons, const std::string& title,
                      const std::string& text) override {
    const env::BoxAnswer answer = RecordingMessageBox::Show(kind, buttons, title, text);
    if (whileShown) whileShown();
    return answer;
  }

  std::function<void()> whileShown;
};

class ProgressForm : public testing::Test {
 protected:
  ProgressForm() {
    owner.show();
    form = std::make_unique<frmProgress>(log, cancel, shell, "C:\\program", &owner);
    form->SetMax(10);
    owner.setEnabled(false);
    form->Show();
  }

  template <typename Control>
  Control& In(const char* name) {
    return Find<Control>(*form, name);
  }
  /// Runs the event loop until `condition` holds. Returns false if it never does.
  [[nodiscard]] bool Shows(const std::function<bool()>& condition) { return QTest::qWaitFor(condition, 2000); }
  [[nodiscard]] std::string Log() { return FromQt(In<QPlainTextEdit>("infoText").toPlainText()); }

  fakes::TemporaryFolder program;
  fakes::FixedClock clock;
  BusyMessageBox boxes;
  fakes::Journal journal;
  fakes::JournalingShell shell{journal};
  generation::CancelCheck cancel{boxes};
  publish::UploadLog log{program.Path(), clock, boxes};
  QWidget owner;
  std::unique_ptr<frmProgress> form;
};

TEST_F(ProgressForm, IsEnabledAboveADisabledOwnerAndDoesNotBlock) {
  EXPECT_TRUE(form->isVisible());
  EXPECT_TRUE(form->isEnabled());
  EXPECT_TRUE(In<QPushButton>("CancelButton").isEnabled());
  EXPECT_EQ(form->windowModality(), Qt::WindowModal);
  EXPECT_FALSE(In<QProgressBar>("pbFile").isVisible());
  EXPECT_FALSE(In<QPushButton>("btnShowLog").isVisible());
  EXPECT_EQ(In<QPushButton>("CancelButton").text(), "&Cancel");
  EXPECT_TRUE(In<QPlainTextEdit>("infoText").isReadOnly());
}

TEST_F(ProgressForm, ShowsWhatTheRunReports) {
  form->SetCaption("Publishing Gallery");
  form->SetText1("Please wait...");
  form->SetText2("Copying File \"a\"...");
  form->SetText3("one\r\ntwo\r\n", true);
  form->SetProgress(7);
  EXPECT_TRUE(Shows([this] { return form->windowTitle() == "Publishing Gallery"; }));
  EXPECT_EQ(In<QLabel>("lblText1").text(), "Please wait...");
  EXPECT_EQ(In<QLabel>("lblText2").text(), "Copying File \"a\"...");
  EXPECT_EQ(Log(), "one\ntwo\n");
  EXPECT_EQ(In<QProgressBar>("pbProgress").maximum(), 10);
  EXPECT_EQ(In<QProgressBar>("pbProgress").value(), 7);
}

TEST_F(ProgressForm, TheFileProgressBarAppearsWithItsFirstValueAndMovesNothing) {
  const QRect logBefore = In<QPlainTextEdit>("infoText").geometry();
  form->SetFileProgress(0);
  EXPECT_TRUE(Shows([this] { return In<QProgressBar>("pbFile").isVisible(); }));
  EXPECT_EQ(In<QProgressBar>("pbFile").value(), 0);
  EXPECT_EQ(In<QProgressBar>("pbFile").maximum(), 100);
  EXPECT_EQ(In<QPlainTextEdit>("infoText").geometry(), logBefore);
  form->SetFileProgress(64);
  EXPECT_TRUE(Shows([this] { return In<QProgressBar>("pbFile").value() == 64; }));
}

TEST_F(ProgressForm, TheBarCountsBeyond16BitsAndIsNotIndeterminateWithoutSteps) {
  auto& bar = In<QProgressBar>("pbProgress");
  form->SetMax(400000);
  form->SetProgress(399999);
  EXPECT_TRUE(Shows([&] { return bar.value() == 399999; }));
  form->SetMax(0);
  form->SetProgress(0);
  EXPECT_TRUE(Shows([&] { return bar.value() == 0; }));
  EXPECT_GT(bar.maximum(), 0) << "a bar with maximum 0 would be indeterminate";
}

TEST_F(ProgressForm, TheLastOfManyChangesIsPainted) {
  form->SetMax(100000);
  for (int step = 1; step <= 100000; ++step) {
    form->SetProgress(step);
    form->SetText2(std::to_string(step));
    form->SetFileProgress(static_cast<std::int16_t>(step % 101));
  }
  EXPECT_TRUE(Shows([this] { return In<QProgressBar>("pbProgress").value() == 100000; }));
  EXPECT_TRUE(Shows([this] { return In<QLabel>("lblText2").text() == "100000"; }));
  EXPECT_EQ(In<QProgressBar>("pbFile").value(), 100000 % 101);
}

TEST_F(ProgressForm, ALongTextDoesNotWidenTheWindow) {
  const QSize before = form->size();
  form->SetText2("Copying File \"" + std::string(3000, 'x') + "\"...");
  EXPECT_TRUE(Shows([this] { return In<QLabel>("lblText2").text().size() > 3000; }));
  EXPECT_EQ(form->size(), before);
  EXPECT_LE(form->minimumSizeHint().width(), before.width());
}

TEST_F(ProgressForm, TheLogGrowsAtItsEndAndKeepsItsLineBreaks) {
  for (const char* part : {"220 ready\r", "\n331 who\r\n", "", "gr\xC3\xBC\xC3\x9F\x65\r\n", "\xFF\r\n"}) {
    form->SetText3(part, true);
    QTest::qWait(40);
  }
  const std::string text = "220 ready\n331 who\ngr\xC3\xBC\xC3\x9F\x65\n\xEF\xBF\xBD\n";
  EXPECT_TRUE(Shows([&] { return Log() == text; })) << Log();
  form->SetText3("", false);
  EXPECT_TRUE(Shows([this] { return Log().empty(); }));
  form->SetText3("new", true);
  EXPECT_TRUE(Shows([this] { return Log() == "new"; }));
}

TEST_F(ProgressForm, TheCaretStaysAtTheEndOfTheLog) {
  auto& box = In<QPlainTextEdit>("infoText");
  for (int line = 0; line < 200; ++line) form->SetText3("line " + std::to_string(line) + "\r\n", true);
  EXPECT_TRUE(Shows([&] { return box.blockCount() == 201; }));
  EXPECT_TRUE(box.textCursor().atEnd());
  EXPECT_TRUE(box.viewport()->rect().contains(box.cursorRect()));
}

TEST_F(ProgressForm, AFullLogIsCleared) {
  form->SetText3(std::string(publish::kFullLogBox, 'x'), true);
  form->SetText3("y", true);
  EXPECT_TRUE(Shows([this] { return Log() == "y"; })) << Log().size();
}

TEST_F(ProgressForm, ThePointerIsBusyOnRequest) {
  form->ShowBusyPointer(true);
  EXPECT_TRUE(Shows([this] { return form->cursor().shape() == Qt::WaitCursor; }));
  form->ShowBusyPointer(false);
  EXPECT_TRUE(Shows([this] { return form->cursor().shape() == Qt::ArrowCursor; }));
}

// Cancel

TEST_F(ProgressForm, TheButtonEscapeAndTheTitleBarAskAtOnce) {
  const std::vector<std::pair<const char*, std::function<void()>>> ways = {
      {"button", [this] { Click(*form, "CancelButton"); }},
      {"Escape", [this] { QTest::keyClick(form.get(), Qt::Key_Escape); }},
      {"title bar", [this] { form->close(); }},
      {"keyboard", [this] {
         In<QPushButton>("CancelButton").setFocus();
         QTest::keyClick(&In<QPushButton>("CancelButton"), Qt::Key_Space);
       }}};
  for (const auto& [name, press] : ways) {
    boxes.boxes.clear();
    boxes.answers = {env::BoxAnswer::No};
    press();
    ASSERT_EQ(boxes.boxes.size(), 1U) << name;
    EXPECT_EQ(boxes.boxes[0].text, "Are you sure you wish to cancel?");
    EXPECT_TRUE(form->isVisible()) << name;
    EXPECT_FALSE(form->IsCancelled()) << name;
  }
}

TEST_F(ProgressForm, AStrayEnterAsksNothing) {
  QTest::keyClick(form.get(), Qt::Key_Return);
  QTest::keyClick(&In<QPushButton>("CancelButton"), Qt::Key_Return);
  EXPECT_TRUE(boxes.boxes.empty());
}

TEST_F(ProgressForm, AConfirmedCancelIsLoggedAndNotAskedAgain) {
  Click(*form, "CancelButton");
  EXPECT_TRUE(form->IsCancelled());
  EXPECT_TRUE(cancel.CancelRequested());
  EXPECT_TRUE(Shows([this] { return Log() == "\nCancelling Request...\n"; })) << Log();
  EXPECT_EQ(form->cursor().shape(), Qt::WaitCursor);
  Click(*form, "CancelButton");
  form->close();
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_TRUE(form->isVisible());
}

TEST_F(ProgressForm, NothingAsksAgainWhileTheQuestionIsOpen) {
  boxes.answers = {env::BoxAnswer::No};
  boxes.whileShown = [this] {
    Click(*form, "CancelButton");
    form->close();
    QTest::keyClick(form.get(), Qt::Key_Escape);
    QTest::qWait(50);
  };
  Click(*form, "CancelButton");
  EXPECT_EQ(boxes.boxes.size(), 1U);
  EXPECT_FALSE(form->IsCancelled()) << "the answer was No";
  EXPECT_TRUE(form->isVisible());
}

TEST_F(ProgressForm, AMessageBoxOverTheDisabledMainWindowCanBeAnswered) {
  form->hide();
  owner.activateWindow();
  ASSERT_TRUE(Shows([this] { return QApplication::activeWindow() == &owner; }));
  QtMessageBox realBoxes;
  bool yes = false;
  fakes::DriveModal([&] { yes = realBoxes.AskYesNo("Cancel Request", "Are you sure you wish to cancel?"); },
                    [](QWidget& box) { Click(*static_cast<QMessageBox&>(box).button(QMessageBox::Yes)); });
  EXPECT_TRUE(yes);
}

// End of a failed run

TEST_F(ProgressForm, AFailedRunCanBeClosedInEveryWay) {
  for (const auto& close : std::vector<std::function<void()>>{
           [this] { Click(*form, "CancelButton"); }, [this] { QTest::keyClick(form.get(), Qt::Key_Escape); },
           [this] { QTest::keyClick(form.get(), Qt::Key_Return); }, [this] { form->close(); }}) {
    form->OfferClose();
    EXPECT_TRUE(Shows([this] { return In<QPushButton>("CancelButton").text() == "&Close"; }));
    form->CloseRequested = false;
    close();
    EXPECT_TRUE(form->CloseRequested);
    EXPECT_TRUE(form->isVisible()) << "the run closes it";
    EXPECT_TRUE(boxes.boxes.empty());
  }
}

TEST_F(ProgressForm, AFailedRunShowsItsLog) {
  form->OfferClose();
  EXPECT_TRUE(Shows([this] { return In<QPushButton>("btnShowLog").isVisible(); }));
  EXPECT_EQ(In<QPushButton>("btnShowLog").text(), "&Show Log");
  Click(*form, "btnShowLog");
  EXPECT_EQ(journal, fakes::Journal{"open C:\\program/ftplog.txt"});
}

TEST_F(ProgressForm, WaitingForTheUserSleepsUntilAnEventArrives) {
  form->OfferClose();
  QTest::qWait(50);
  QtEventLoop loop;
  QTimer::singleShot(300, form.get(), [this] { Click(*form, "CancelButton"); });
  int waits = 0;
  for (; !form->CloseRequested; ++waits) loop.Wait();
  EXPECT_LT(waits, 100);
}

}  // namespace
}  // namespace vantorium::ui
