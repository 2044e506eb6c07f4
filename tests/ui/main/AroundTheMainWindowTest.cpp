// The tray icon, the windows shown at start and end, and their effects on the main window.
#include "tests/ui/MainWindowHarness.h"

#include <QClipboard>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QProgressBar>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTextDocumentFragment>
#include <QTimer>
#include <QToolTip>
#include <QWheelEvent>
#include <set>

#include <QtTest/qtestspontaneevent.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;
using fakes::Type;

class AroundTheMainWindow : public testing::Test {
 protected:
  [[nodiscard]] const core::Project& Now() const { return harness.model->CurrentProject(); }

  MainWindowHarness harness;
};

// The tray

/// The tray icon's menu, or null. It has no parent, so it is searched among the top-level windows.
QMenu* FindTrayMenu() {
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->objectName() == "mnuPopup") return qobject_cast<QMenu*>(widget);
  }
  return nullptr;
}

/// Opens the tray menu and chooses an entry with the keyboard.
void ChooseInTray(Qt::Key key) {
  QMenu* menu = FindTrayMenu();
  ASSERT_NE(menu, nullptr);
  menu->popup({});
  QTest::keyClick(menu, key);
  QCoreApplication::processEvents();
}

TEST_F(AroundTheMainWindow, TheTrayRestoresAHiddenOrMinimizedWindow) {
  harness.Start();
  harness.window->hide();
  ChooseInTray(Qt::Key_V);
  EXPECT_TRUE(harness.window->isVisible());
  harness.window->showMinimized();
  ChooseInTray(Qt::Key_V);
  EXPECT_FALSE(harness.window->isMinimized());
}

TEST_F(AroundTheMainWindow, TheTrayHasHelpAboutAndClose) {
  harness.folder.Write("data/help/index.html", "x");
  harness.Start();
  ChooseInTray(Qt::Key_H);
  EXPECT_EQ(harness.shell.opened, (std::vector<std::string>{"T:\\data\\help\\index.html"}));
  QString about;
  DriveModal([&] { ChooseInTray(Qt::Key_A); }, [&](QWidget& dialog) { about = dialog.windowTitle(); });
  EXPECT_EQ(about, "About Vantorium");
  ChooseInTray(Qt::Key_C);
  EXPECT_EQ(harness.closed, 1);
}

TEST_F(AroundTheMainWindow, AboutIsOpenOnlyOnceWhereverItIsOpenedFrom) {
  harness.Start();
  DriveModal([&] { harness.Trigger("menuHelpAbout"); },
             [&](QWidget& about) {
               bool another = false;
               QTimer watch;
               QObject::connect(&watch, &QTimer::timeout, [&] {
                 QWidget* front = QApplication::activeModalWidget();
                 if (front == &about) return;
                 another = true;
                 front->close();
               });
               watch.start(1);
               ChooseInTray(Qt::Key_A);
               harness.Trigger("menuHelpAbout");
               EXPECT_FALSE(another);
               EXPECT_TRUE(about.isVisible());
             });
  DriveModal([&] { ChooseInTray(Qt::Key_A); },
             [](QWidget& about) { EXPECT_EQ(about.objectName(), "frmAbout") << "again after it is closed"; });
}

TEST_F(AroundTheMainWindow, TheTrayCannotCloseTheProgramUnderADialog) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  DriveModal([&] { harness.Trigger("menuActionsCreate"); },
             [&](QWidget& dialog) {
               ChooseInTray(Qt::Key_C);
               EXPECT_TRUE(dialog.isVisible());
               Click(dialog, "CancelButton");
             });
  EXPECT_EQ(harness.closed, 0);
  EXPECT_TRUE(harness.window->isVisible());
}

TEST_F(AroundTheMainWindow, TheTrayDoesNothingBeforeTheWindowIsReady) {
  QTimer watch;
  bool chosen = false;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    QMenu* menu = FindTrayMenu();
    if (menu == nullptr) return;
    watch.stop();
    for (const char* entry : {"mnuSysTray3", "mnuSysTray5"}) menu->findChild<QAction*>(entry)->trigger();
    chosen = true;
  });
  watch.start(0);
  harness.Start();
  EXPECT_TRUE(chosen);
  EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
  EXPECT_EQ(harness.closed, 0);
}

TEST_F(AroundTheMainWindow, ASaveKeepsTheFocus) {
  harness.Start();
  auto& title = Find<QLineEdit>(*harness.window, "textGalleryTitle");
  Type(title, "x");
  harness.fileBrowser.answer = {"T:\\x.gpj", "", {"T:\\x.gpj"}};
  harness.Trigger("menuFileSave");
  EXPECT_TRUE(QTest::qWaitFor([&] { return title.hasFocus(); }));
}

TEST_F(AroundTheMainWindow, TheTitleHasTheFocusAfterAStartWithAProject) {
  harness.Start();
  harness.fileBrowser.answer = {"T:\\x.gpj", "", {"T:\\x.gpj"}};
  harness.Trigger("menuFileSave");
  for (const char* file : {"T:\\x.gpj", "T:\\missing.gpj"}) {
    harness.Start(file);
    EXPECT_TRUE(Find<QLineEdit>(*harness.window, "textGalleryTitle").hasFocus()) << file;
  }
}

TEST_F(AroundTheMainWindow, KeysInTheDescriptionsWindowReachItsControls) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  Click(*harness.window, "btnImagesDescriptions");
  auto& descriptions = Find<QWidget>(*harness.window, "frmImageDescriptions");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&descriptions));
  for (const auto& [letter, control] : std::vector<std::pair<Qt::Key, const char*>>{
           {Qt::Key_P, "comboImageDescriptionPlacement"}, {Qt::Key_H, "textHeader"}, {Qt::Key_F, "textFooter"}}) {
    auto& text = Find<QWidget>(descriptions, "textDescription");
    text.setFocus();
    QTest::keyClick(descriptions.windowHandle(), letter, Qt::AltModifier);
    EXPECT_EQ(FromQt(descriptions.focusWidget()->objectName()), control);
  }
}

TEST_F(AroundTheMainWindow, ShortcutsOfCommandsWorkInTheDescriptionsWindow) {
  harness.Start();
  harness.GoTo(1);
  Click(*harness.window, "btnImagesDescriptions");
  auto& descriptions = Find<QWidget>(*harness.window, "frmImageDescriptions");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&descriptions));
  harness.fileBrowser.answer = {"T:\\x.gpj", "", {"T:\\x.gpj"}};
  auto& header = Find<QWidget>(descriptions, "textHeader");
  header.setFocus();
  QTest::keyClick(&header, Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(harness.Title(), "Vantorium 3.0 - [x.gpj]");
  EXPECT_EQ(descriptions.focusWidget(), &header);
}

TEST_F(AroundTheMainWindow, TheStatusIsPlainText) {
  harness.Start();
  EXPECT_EQ(Find<QLabel>(*harness.window, "sbMainText").textFormat(), Qt::PlainText);
}

TEST_F(AroundTheMainWindow, AToolTipWithAWordInAngleBracketsIsPlainText) {
  harness.Start();
  for (const auto& [page, name] : std::vector<std::pair<int, const char*>>{
           {0, "btnGalleryHEAD"}, {2, "btnImageWrapperHEAD"}, {3, "btnThumbnailsPageHEAD"}}) {
    harness.GoTo(page);
    auto& button = Find<QWidget>(*harness.window, name);
    EXPECT_EQ(button.toolTip(), "Custom Code to be placed in the <HEAD> Section") << name;
    QHelpEvent help(QEvent::ToolTip, button.rect().center(), button.mapToGlobal(button.rect().center()));
    QApplication::sendEvent(&button, &help);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), button.toolTip()) << name;
    QToolTip::hideText();
  }
}

/// Records the texts of the small windows, in order, while the event loop runs.
class SmallWindows {
 public:
  SmallWindows() {
    QObject::connect(&watch_, &QTimer::timeout, [this] { Look(); });
    watch_.start(0);
  }

  std::vector<std::string> seen;

 private:
  void Look() {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      for (const char* name : {"lblWait", "lblMessage", "Label1"}) {
        const auto* label = window->findChild<QLabel*>(name, Qt::FindDirectChildrenOnly);
        if (label == nullptr || !window->isVisible()) continue;
        if (seen.empty() || seen.back() != FromQt(label->text())) seen.push_back(FromQt(label->text()));
      }
    }
  }

  QTimer watch_;
};

TEST_F(AroundTheMainWindow, StartAndEndAreReportedStepByStep) {
  SmallWindows windows;
  harness.Start();
  EXPECT_EQ(windows.seen, (std::vector<std::string>{"Please wait while Vantorium is initializing..."}));
  windows.seen.clear();
  harness.Trigger("menuOptionsClearTempFolder");
  EXPECT_EQ(windows.seen, (std::vector<std::string>{"Please wait... Clearing Temporary Folder."}));
  windows.seen.clear();
  harness.window->close();
  EXPECT_EQ(windows.seen, (std::vector<std::string>{"Saving Preferences", "Clearing Project",
                                                    "Clearing Temporary Folder", "Cleanup"}));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

/// The texts painted by the info window and the status bar, each once; "greyed " marks a disabled info line.
class PaintedTexts : public QObject {
 public:
  PaintedTexts() { qApp->installEventFilter(this); }

  std::set<std::string> texts;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    const auto* label = event->type() == QEvent::Paint ? qobject_cast<QLabel*>(watched) : nullptr;
    if (label == nullptr || label->text().isEmpty()) return false;
    if (label->objectName() == "sbMainText") texts.insert(FromQt(label->text()));
    if (label->objectName() == "Label1") texts.insert((label->isEnabled() ? "" : "greyed ") + FromQt(label->text()));
    return false;
  }
};

TEST_F(AroundTheMainWindow, ReadingAndWritingAreReportedAndTheTextsArePainted) {
  harness.Start();
  harness.fileBrowser.answer = {"T:\\x.gpj", "", {"T:\\x.gpj"}};
  PaintedTexts writing;
  harness.Trigger("menuFileSave");
  EXPECT_EQ(writing.texts,
            (std::set<std::string>{"Please wait... Writing Project File.", "Writing Project File \"T:\\x.gpj\"..."}));
  PaintedTexts reading;
  harness.Trigger("menuFileOpen");
  EXPECT_EQ(reading.texts,
            (std::set<std::string>{"Please wait... Reading Project File.", "Reading Project File \"T:\\x.gpj\"..."}));
  PaintedTexts clearing;
  harness.Trigger("menuOptionsClearTempFolder");
  EXPECT_EQ(clearing.texts, (std::set<std::string>{"Please wait... Clearing Temporary Folder."}));
}

TEST_F(AroundTheMainWindow, NoOtherCommandStartsWhileAProjectIsWritten) {
  harness.folder.Write("data/help/index.html", "x");
  harness.Start();
  harness.fileBrowser.answer = {"T:\\x.gpj", "", {"T:\\x.gpj"}};
  bool tried = false;
  int dialogs = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    QWidget* dialog = QApplication::activeModalWidget();
    if (dialog != nullptr && dialog->close()) ++dialogs;
  });
  watch.start(10);
  QTimer::singleShot(0, [&] {
    EXPECT_FALSE(harness.window->isEnabled());
    tried = true;
    harness.window->close();
    for (const Qt::Key key : {Qt::Key_H, Qt::Key_A, Qt::Key_C}) ChooseInTray(key);
  });
  harness.Trigger("menuFileSave");
  QCoreApplication::processEvents();
  EXPECT_TRUE(tried);
  EXPECT_EQ(dialogs, 0);
  EXPECT_EQ(harness.Title(), "Vantorium 3.0 - [x.gpj]");
  EXPECT_TRUE(harness.shell.opened.empty());
  EXPECT_EQ(harness.closed, 0);
  EXPECT_TRUE(harness.window->isVisible());
}

TEST_F(AroundTheMainWindow, TheSplashScreenCountsToSevenAndCloses) {
  int stages = 0;
  QTimer watch;
  QObject::connect(&watch, &QTimer::timeout, [&] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() == "frmSplash") stages = Find<QProgressBar>(*window, "pb1").value();
    }
  });
  watch.start(0);
  harness.Start();
  EXPECT_EQ(stages, 7);
  for (const QWidget* window : QApplication::topLevelWidgets()) EXPECT_NE(window->objectName(), "frmSplash");
}

// The wheel

/// Sends a spontaneous event: Qt neither gives the focus for nor propagates wheel events that a program sends.
void TurnWheel(QWidget& control) {
  const QPointF at = control.rect().center();
  QWheelEvent turn(at, control.mapToGlobal(at), {}, {0, -120}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
  QSpontaneKeyEvent::setSpontaneous(&turn);
  qApp->notify(&control, &turn);
}

TEST_F(AroundTheMainWindow, TheWheelChangesAListBoxOnlyWhileItHasTheFocus) {
  harness.Start();
  auto& layout = Find<QComboBox>(*harness.window, "comboGalleryLayoutType");
  Find<QLineEdit>(*harness.window, "textGalleryTitle").setFocus();
  TurnWheel(layout);
  EXPECT_EQ(layout.currentIndex(), 0);
  EXPECT_FALSE(layout.hasFocus());
  EXPECT_FALSE(Now().IsModified);
  layout.setFocus();
  TurnWheel(layout);
  EXPECT_EQ(layout.currentIndex(), 1);
}

TEST_F(AroundTheMainWindow, TheWheelOverAListBoxOrSpinnerWithoutTheFocusGoesToItsParent) {
  harness.Start();
  QScrollArea area;
  auto* form = new QWidget;
  form->setFixedSize(100, 1000);
  QComboBox list(form);
  list.addItems({"a", "b"});
  QSpinBox spinner(form);
  area.setWidget(form);
  area.resize(200, 200);
  area.show();
  area.setFocus();
  for (QWidget* control : {static_cast<QWidget*>(&list), static_cast<QWidget*>(&spinner)}) {
    area.verticalScrollBar()->setValue(0);
    TurnWheel(*control);
    EXPECT_GT(area.verticalScrollBar()->value(), 0) << control->metaObject()->className();
  }
  EXPECT_EQ(list.currentIndex(), 0);
  EXPECT_EQ(spinner.value(), 0);
}

TEST_F(AroundTheMainWindow, LineBreaksOfAPastedTitleAreRemoved) {
  harness.Start();
  QGuiApplication::clipboard()->setText("one\r\n");
  auto& title = Find<QLineEdit>(*harness.window, "textGalleryTitle");
  title.selectAll();
  title.paste();
  EXPECT_EQ(Now().settings.textGalleryTitle, "one");
}

}  // namespace
}  // namespace vantorium::ui
