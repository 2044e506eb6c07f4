#include "tests/ui/FormDriver.h"
#include "ui/ports/QtMessageBox.h"

#include <QApplication>
#include <QDialog>

#include <gtest/gtest.h>

namespace vantorium {
namespace {

using fakes::DriveModal;

/// As during a run: the main window rests, and the window of the run is before it. The user is in another program.
struct RunInTheBack {
  RunInTheBack() {
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

TEST(QtMessageBox, BelongsToTheWindowOfTheRunWhileTheUserIsInAnotherProgram) {
  RunInTheBack run;
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  EXPECT_EQ(OwnerOfABox(), &run.progress);
}

TEST(QtMessageBox, BelongsToADialogThatWaitsForTheUser) {
  RunInTheBack run;
  QDialog dialog(&run.progress);
  dialog.setAttribute(Qt::WA_ShowWithoutActivating);
  dialog.setModal(true);
  dialog.show();
  ASSERT_EQ(QApplication::activeModalWidget(), &dialog);
  EXPECT_EQ(OwnerOfABox(), &dialog);
}

}  // namespace
}  // namespace vantorium
