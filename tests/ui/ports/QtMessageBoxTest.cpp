#include "tests/ui/FormDriver.h"
#include "ui/ports/QtMessageBox.h"

#include <QApplication>
#include <QDialog>
#include <QMessageBox>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::DriveModal;

/// The windows during a run, while another program is active: a disabled main window and the run's window above it.
struct RunInBackground {
  RunInBackground() {
    mainWindow.setEnabled(false);
    progress.setEnabled(true);
    for (QWidget* window : std::initializer_list<QWidget*>{&mainWindow, &progress}) {
      window->setAttribute(Qt::WA_ShowWithoutActivating);
      window->show();
    }
  }

  QWidget mainWindow;
  QDialog progress{&mainWindow};
};

const QWidget* OwnerOfABox() {
  const QWidget* owner = nullptr;
  QtMessageBox boxes;
  DriveModal([&] { boxes.Critical("FTP Error", "No server"); },
             [&](QWidget& box) {
               owner = box.parentWidget();
               box.close();
             });
  return owner;
}

TEST(QtMessageBox, AListIsShownByAButton) {
  QtMessageBox boxes;
  DriveModal([&] { boxes.ShowList("Unused Files", "These are <b>unused</b>.", "a.htm\rb.htm"); },
             [](QWidget& box) {
               const auto& shown = dynamic_cast<QMessageBox&>(box);
               EXPECT_EQ(shown.windowTitle(), "Unused Files");
               EXPECT_EQ(shown.text(), "These are <b>unused</b>.");
               EXPECT_EQ(shown.textFormat(), Qt::PlainText);
               EXPECT_EQ(shown.detailedText(), "a.htm\nb.htm");
               box.close();
             });
}

TEST(QtMessageBox, BelongsToTheWindowOfTheRunWhileTheUserIsInAnotherProgram) {
  RunInBackground run;
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  EXPECT_EQ(OwnerOfABox(), &run.progress);
}

TEST(QtMessageBox, BelongsToADialogThatWaitsForTheUser) {
  RunInBackground run;
  QDialog dialog(&run.progress);
  dialog.setAttribute(Qt::WA_ShowWithoutActivating);
  dialog.setModal(true);
  dialog.show();
  ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
  EXPECT_EQ(OwnerOfABox(), &dialog);
}

env::BoxAnswer AnswerTo(env::BoxButtons buttons, const std::function<void(QWidget&)>& answer) {
  env::BoxAnswer given = env::BoxAnswer::Ok;
  QtMessageBox boxes;
  DriveModal([&] { given = boxes.Show(env::BoxKind::Question, buttons, "Title", "Are you sure?"); }, answer);
  return given;
}

env::BoxAnswer AnswerTo(env::BoxButtons buttons, Qt::Key key) {
  return AnswerTo(buttons, [key](QWidget& box) { QTest::keyClick(&box, key); });
}

TEST(QtMessageBox, ReturnAndEscapeDoNotConfirmWhatCannotBeUndone) {
  EXPECT_EQ(AnswerTo(env::BoxButtons::YesNo, Qt::Key_Return), env::BoxAnswer::No);
  EXPECT_EQ(AnswerTo(env::BoxButtons::YesNo, Qt::Key_Escape), env::BoxAnswer::No);
  const auto pressYes = [](QWidget& box) { fakes::Click(*static_cast<QMessageBox&>(box).button(QMessageBox::Yes)); };
  EXPECT_EQ(AnswerTo(env::BoxButtons::YesNo, pressYes), env::BoxAnswer::Yes);
}

TEST(QtMessageBox, ReturnSavesAndEscapeCancels) {
  EXPECT_EQ(AnswerTo(env::BoxButtons::YesNoCancel, Qt::Key_Return), env::BoxAnswer::Yes);
  EXPECT_EQ(AnswerTo(env::BoxButtons::YesNoCancel, Qt::Key_Escape), env::BoxAnswer::Cancel);
  EXPECT_EQ(AnswerTo(env::BoxButtons::Ok, Qt::Key_Return), env::BoxAnswer::Ok);
}

}  // namespace
}  // namespace vantorium::ui
