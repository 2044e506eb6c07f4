#include "tests/fakes/RecordingShell.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/frmFind.h"
#include "ui/dialogs/frmInvalidImage.h"
#include "ui/dialogs/frmRename.h"
#include "ui/dialogs/frmShuffle.h"
#include "ui/files/frmAddFoldersProcess.h"
#include "ui/model/dialogs/FindModel.h"
#include "ui/model/dialogs/RenameModel.h"

#include <QCheckBox>
#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

TEST(frmFind, HasItsTextsAndCannotSearchForAnEmptyText) {
  FindModel model;
  frmFind dialog(model);
  dialog.show();
  EXPECT_EQ(dialog.windowTitle(), "Find Image");
  EXPECT_EQ(Find<QLabel>(dialog, "lblTitle").text().remove('&'), "Image Title");
  EXPECT_EQ(Find<QPushButton>(dialog, "OKButton").text(), "&Find");
  EXPECT_EQ(Find<QPushButton>(dialog, "CancelButton").text(), "&Cancel");
  EXPECT_FALSE(Find<QPushButton>(dialog, "OKButton").isEnabled());
  auto& title = Find<QLineEdit>(dialog, "textTitle");
  QTest::keyClick(&title, Qt::Key_Return);
  EXPECT_TRUE(dialog.isVisible());
  Type(title, "a");
  EXPECT_TRUE(Find<QPushButton>(dialog, "OKButton").isEnabled());
  Type(title, "");
  EXPECT_FALSE(Find<QPushButton>(dialog, "OKButton").isEnabled());
}

TEST(frmFind, TypedAndPastedBlanksBecomeUnderscores) {
  FindModel model;
  frmFind dialog(model);
  dialog.show();
  auto& title = Find<QLineEdit>(dialog, "textTitle");
  Type(title, "a b");
  EXPECT_EQ(title.text(), "a_b");
  QApplication::clipboard()->setText(" c ");
  title.setCursorPosition(1);
  title.paste();
  EXPECT_EQ(title.text(), "a_c__b");
  EXPECT_EQ(title.cursorPosition(), 4);
  Click(dialog, "OKButton");
  EXPECT_EQ(model.Result, "a_c__b");
  EXPECT_FALSE(dialog.isVisible());
}

TEST(frmFind, APastedLineLosesItsEnd) {
  FindModel model;
  frmFind dialog(model);
  dialog.show();
  auto& title = Find<QLineEdit>(dialog, "textTitle");
  Type(title, "ab");
  QApplication::clipboard()->setText("\tmy photo.jpg\r\n");
  title.setCursorPosition(1);
  title.paste();
  EXPECT_EQ(title.text(), "amy_photo.jpgb");
  EXPECT_EQ(title.cursorPosition(), 13);
  EXPECT_EQ(model.Title(), "amy_photo.jpgb");
}

TEST(frmFind, OpensWithTheLastTextSelectedAndEscapeReturnsNothing) {
  FindModel model;
  model.SetTitle("last");
  model.Accept();
  frmFind dialog(model);
  dialog.show();
  EXPECT_EQ(Find<QLineEdit>(dialog, "textTitle").selectedText(), "last");
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
  EXPECT_TRUE(Find<QLineEdit>(dialog, "textTitle").hasFocus());
  EXPECT_TRUE(Find<QPushButton>(dialog, "OKButton").isEnabled());
  QTest::keyClick(&dialog, Qt::Key_Escape);
  EXPECT_EQ(model.Result, "");
  EXPECT_FALSE(dialog.isVisible());
}

TEST(frmRename, HasItsTextsAndCannotAcceptAnEmptyText) {
  RenameModel model;
  frmRename dialog(model);
  dialog.show();
  EXPECT_EQ(dialog.windowTitle(), "Rename Image(s)");
  EXPECT_EQ(Find<QLabel>(dialog, "lblNameBase").text().remove('&'), "Rename to");
  EXPECT_EQ(Find<QCheckBox>(dialog, "CheckRenameAll").text(), "Rename &all Images");
  EXPECT_EQ(Find<QPushButton>(dialog, "OKButton").text(), "OK");
  EXPECT_EQ(Find<QPushButton>(dialog, "CancelButton").text(), "&Cancel");
  EXPECT_FALSE(Find<QPushButton>(dialog, "OKButton").isEnabled());
  Type(Find<QLineEdit>(dialog, "textNameBase"), "the Alps");
  EXPECT_EQ(Find<QLineEdit>(dialog, "textNameBase").text(), "the_Alps");
  Click(dialog, "CheckRenameAll");
  QTest::keyClick(&Find<QLineEdit>(dialog, "textNameBase"), Qt::Key_Return);
  EXPECT_EQ(model.GetNameBase(), "the_Alps");
  EXPECT_EQ(model.Scope(), core::RenameScope::AllImages);
}

TEST(frmRename, CancelAndEscapeChangeNothing) {
  for (const bool escape : {true, false}) {
    RenameModel model;
    frmRename dialog(model);
    dialog.show();
    Type(Find<QLineEdit>(dialog, "textNameBase"), "x");
    escape ? QTest::keyClick(&dialog, Qt::Key_Escape) : Click(dialog, "CancelButton");
    EXPECT_EQ(model.GetNameBase(), core::kNoNameBase) << escape;
    EXPECT_FALSE(dialog.isVisible());
  }
}

TEST(frmInvalidImage, EachAnswerHasItsNumber) {
  fakes::RecordingShell shell;
  frmInvalidImage dialog(shell);
  EXPECT_EQ(dialog.windowTitle(), "Corrupted Image");
  EXPECT_EQ(Find<QLabel>(dialog, "lblInfo").text(), "The following Image appears to be corrupted:");
  EXPECT_EQ(Find<QLabel>(dialog, "lblQuestion").text(), "How do you wish to proceed?");
  for (const auto& [button, text, code] : std::vector<std::tuple<const char*, const char*, int>>{
           {"btnIgnore", "&Ignore", 5}, {"btnRetry", "Re&try", 4}, {"btnRemove", "&Remove Image", 3}}) {
    EXPECT_EQ(Find<QPushButton>(dialog, button).text(), text);
    int answer = 0;
    DriveModal([&] { answer = static_cast<int>(dialog.ShowDialog("<b>a & b</b>")); },
               [&, &button = button](QWidget& shown) {
                 EXPECT_EQ(Find<QLabel>(shown, "lblImageName").text(), "<b>a & b</b>");
                 EXPECT_EQ(Find<QLabel>(shown, "lblImageName").textFormat(), Qt::PlainText);
                 Click(shown, button);
               });
    EXPECT_EQ(answer, code) << button;
  }
  EXPECT_EQ(shell.beeps, std::vector<env::BeepKind>(3, env::BeepKind::Warning));
}

TEST(frmInvalidImage, HasAWarningIcon) {
  fakes::RecordingShell shell;
  frmInvalidImage question(shell, nullptr);
  EXPECT_FALSE(Find<QLabel>(question, "lblIcon").pixmap().isNull());
}

TEST(frmInvalidImage, ALongNameDoesNotWidenIt) {
  fakes::RecordingShell shell;
  frmInvalidImage question(shell);
  int width = 0;
  for (const std::string& name : {std::string("a.jpg"), std::string(255, 'W'), std::string(255, '_')}) {
    DriveModal([&] { std::ignore = question.ShowDialog(name); },
               [&](QWidget& shown) {
                 EXPECT_EQ(Find<QLabel>(shown, "lblImageName").text().toStdString(), name);
                 if (width == 0) width = shown.width();
                 EXPECT_EQ(shown.width(), width) << name;
                 Click(shown, "btnIgnore");
               });
  }
}

TEST(frmInvalidImage, EscapeAndEnterIgnore) {
  fakes::RecordingShell shell;
  frmInvalidImage dialog(shell);
  for (const Qt::Key key : {Qt::Key_Escape, Qt::Key_Return}) {
    InvalidImageAnswer answer = InvalidImageAnswer::Remove;
    DriveModal([&] { answer = dialog.ShowDialog("a"); }, [&](QWidget& shown) { QTest::keyClick(&shown, key); });
    EXPECT_EQ(answer, InvalidImageAnswer::Ignore) << key;
  }
}

TEST(frmAddFoldersProcess, ShowsTheFolderAndTheCount) {
  frmAddFoldersProcess dialog;
  dialog.Open();
  EXPECT_TRUE(dialog.isVisible() && dialog.isModal());
  dialog.Show("C:\\photos\\" + std::string(200, 'x'), 12);
  EXPECT_EQ(Find<QLabel>(dialog, "Label1").text(), "Adding Images...");
  EXPECT_EQ(Find<QPushButton>(dialog, "OKButton").text(), "&Stop");
  EXPECT_TRUE(Find<QLabel>(dialog, "lblFolder").text().startsWith("Processing: C:\\photos\\xxx"));
  EXPECT_EQ(Find<QLabel>(dialog, "lblCount").text(), "12 Image(s)");
  EXPECT_LT(dialog.width(), 600) << "a long folder does not widen the window";
  dialog.Close();
  EXPECT_FALSE(dialog.isVisible());
}

TEST(frmAddFoldersProcess, StopEscapeAndTheTitleBarCancelOneWalk) {
  for (const int how : {0, 1, 2}) {
    frmAddFoldersProcess dialog;
    dialog.Open();
    EXPECT_FALSE(dialog.IsCancelled());
    if (how == 0) Click(dialog, "OKButton");
    if (how == 1) QTest::keyClick(&dialog, Qt::Key_Escape);
    if (how == 2) dialog.close();
    EXPECT_TRUE(dialog.Cancelled) << how;
    EXPECT_TRUE(dialog.isVisible()) << "the walk closes it";
    dialog.Open();
    EXPECT_FALSE(dialog.Cancelled);
  }
}

TEST(frmShuffle, ShowsItsProgressAndCanBeStopped) {
  frmShuffle dialog;
  dialog.Open();
  EXPECT_TRUE(dialog.isVisible() && dialog.isModal());
  EXPECT_EQ(Find<QLabel>(dialog, "lblShuffle").text(), "Shuffling Images...");
  EXPECT_EQ(Find<QPushButton>(dialog, "OKButton").text(), "&Stop");
  const auto& bar = Find<QProgressBar>(dialog, "pbShuffle");
  EXPECT_EQ(bar.minimum(), 0);
  EXPECT_EQ(bar.maximum(), 100);
  dialog.SetPercent(41.7);
  EXPECT_EQ(bar.value(), 41);
  EXPECT_FALSE(dialog.StopRequested());
  Click(dialog, "OKButton");
  EXPECT_TRUE(dialog.StopRequested());
  EXPECT_TRUE(dialog.isVisible());
  dialog.Close();
  EXPECT_FALSE(dialog.isVisible());
}

TEST(frmShuffle, EscapeAndTheTitleBarStopOneShuffle) {
  frmShuffle dialog;
  for (const bool escape : {true, false}) {
    dialog.Open();
    EXPECT_FALSE(dialog.StopRequested());
    escape ? QTest::keyClick(&dialog, Qt::Key_Escape) : static_cast<void>(dialog.close());
    EXPECT_TRUE(dialog.StopRequested()) << escape;
    EXPECT_TRUE(dialog.isVisible()) << "the shuffle closes it";
  }
}

}  // namespace
}  // namespace vantorium::ui
