// The main window: its menus and tool bar, its start, and its question before it closes.
#include "tests/fakes/PhotographMaker.h"
#include "tests/ui/MainWindowHarness.h"
#include "ui/main/FittedPicture.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QToolBar>
#include <QToolButton>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::MainWindowHarness;
using fakes::Type;

class MainWindow : public testing::Test {
 protected:
  [[nodiscard]] QString Status() { return Find<QLabel>(*harness.window, "sbMainText").text(); }
  [[nodiscard]] QString Count() { return Find<QLabel>(*harness.window, "sbMainCount").text(); }
  void ChangeTitle(const char* title) {
    harness.GoTo(0);
    Type(Find<QLineEdit>(*harness.window, "textGalleryTitle"), title);
  }
  [[nodiscard]] const core::Project& Now() const { return harness.model->CurrentProject(); }
  /// Sets the answer of the project file dialog.
  void ChooseFile(const std::string& path) { harness.fileBrowser.answer = {path, "", {path}}; }

  MainWindowHarness harness;
};

/// The texts of a menu's entries with their shortcuts; "-" for a separator.
std::vector<std::string> EntriesOf(const QMenu& menu) {
  std::vector<std::string> entries;
  for (const QAction* action : menu.actions()) {
    if (action->isSeparator()) {
      entries.emplace_back("-");
    } else {
      const QString keys = action->shortcut().toString();
      entries.push_back(FromQt(action->text() + (keys.isEmpty() ? "" : " [" + keys + "]")));
    }
  }
  return entries;
}

using Entries = std::vector<std::string>;

TEST_F(MainWindow, StartsWithANewProject) {
  harness.Start();
  EXPECT_EQ(harness.Title(), "Vantorium 3.0 - [Gallery1]");
  EXPECT_EQ(Now().settings.textGalleryTitle, "Gallery1");
  EXPECT_FALSE(Now().IsModified);
  EXPECT_TRUE(Now().IsPristine);
  EXPECT_EQ(Count(), "0 Image(s)");
  EXPECT_EQ(Status(), "");
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(MainWindow, HasSixTabsAndShowsOneUsablePage) {
  harness.Start();
  auto& tabs = Find<QTabWidget>(*harness.window, "tsMain");
  const char* const pages[] = {"frmGallery",    "frmImages",   "frmImageWrapper",
                               "frmThumbnails", "frmCaptions", "frmPageLinks"};
  const char* const texts[] = {"Gallery", "Images", "Image Wrappers", "Thumbnails", "Captions", "Page Links"};
  ASSERT_EQ(tabs.count(), 6);
  for (int shown = 0; shown < 6; ++shown) {
    harness.GoTo(shown);
    EXPECT_EQ(tabs.tabText(shown), texts[shown]);
    for (int i = 0; i < 6; ++i) {
      const auto& page = Find<QWidget>(*harness.window, pages[i]);
      EXPECT_EQ(page.isVisible(), i == shown) << pages[i];
      EXPECT_EQ(page.isEnabled(), i == shown) << pages[i];
    }
  }
}

TEST_F(MainWindow, HasItsMenus) {
  harness.Start();
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuFile")),
            (Entries{"&New Project... [Ctrl+N]", "&Open Project... [Ctrl+O]", "-", "&Save Project [Ctrl+S]",
                     "Save Project &As... [F12]", "-", "&Exit"}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuActions")),
            (Entries{"&View Gallery", "&Create Gallery... [Ctrl+G]"}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuActionsView")),
            (Entries{"...in Default Browser [Ctrl+I]", "-", "Available Browsers..."}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuOptions")),
            (Entries{"&Available Browsers...", "-", "Set &Temporary Folder Location...", "&Clear Temporary Folder", "-",
                     "Turn Photographs &Upright", "T&rue Colors of Photographs", "App&ly Theme..."}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuHelp")), (Entries{"Open &Help File [F1]", "-", "&About..."}));
  Entries bar;
  for (const QAction* action : harness.window->menuBar()->actions()) bar.push_back(FromQt(action->text()));
  EXPECT_EQ(bar, (Entries{"&File", "&Actions", "&Options", "&Help"}));
}

TEST_F(MainWindow, MenuSeparatorsHaveNames) {
  harness.Start();
  const std::pair<const char*, Entries> menus[] = {{"menuFile", {"menuFileSeparator1", "menuFileSeparator2"}},
                                                   {"menuOptions", {"menuOptionsSeparator", "menuOptionsSeparator2"}},
                                                   {"menuHelp", {"menuHelpSeparator1"}}};
  for (const auto& [menu, expected] : menus) {
    Entries names;
    for (const QAction* action : Find<QMenu>(*harness.window, menu).actions()) {
      if (action->isSeparator()) names.push_back(FromQt(action->objectName()));
    }
    EXPECT_EQ(names, expected) << menu;
  }
}

TEST_F(MainWindow, TheEntriesForPhotographCorrectionsAreSettingsOfTheProject) {
  harness.Start();
  const auto checked = [this](const char* name) { return harness.window->findChild<QAction*>(name)->isChecked(); };
  EXPECT_FALSE(checked("menuOptionsUpright") || checked("menuOptionsTrueColors"));
  EXPECT_EQ(harness.Settings().checkImagesUpright, 0);
  harness.Trigger("menuOptionsUpright");
  EXPECT_EQ(harness.Settings().checkImagesUpright, 1);
  EXPECT_EQ(harness.Settings().checkImagesTrueColors, 0);
  EXPECT_TRUE(harness.model->CurrentProject().IsModified);
  harness.Trigger("menuOptionsTrueColors");
  harness.Trigger("menuOptionsUpright");
  EXPECT_EQ(harness.Settings().checkImagesUpright, 0);
  EXPECT_EQ(harness.Settings().checkImagesTrueColors, 1);
  EXPECT_TRUE(checked("menuOptionsTrueColors"));
  harness.boxes.answers = {env::BoxAnswer::No};  // to saving
  harness.Trigger("menuFileNew");
  EXPECT_FALSE(checked("menuOptionsTrueColors")) << "a new project has them off";
}

TEST_F(MainWindow, ThePreviewFollowsTheEntryForUprightPhotographs) {
  harness.folder.Write("lying.jpg", fakes::WithOrientation(fakes::MakeJpeg({.width = 64, .height = 48}), 6));
  harness.fileBrowser.answer = {"T:\\lying.jpg", "T:\\", {"lying.jpg"}};
  harness.Start();
  harness.GoTo(1);
  harness.boxes.answers = {env::BoxAnswer::No};  // to turning upright
  Click(*harness.window, "btnImagesAddFiles");
  EXPECT_TRUE(QTest::qWaitFor([this] { return harness.TitleOfLastBox() == "Photographs on their Side"; }, 10000));
  const auto& size = Find<QLabel>(*harness.window, "lblImagesSize");
  EXPECT_TRUE(size.text().startsWith("(64x48, "));
  harness.Trigger("menuOptionsUpright");
  EXPECT_TRUE(size.text().startsWith("(48x64, "));
  const auto& preview = Find<FittedPicture>(*harness.window, "pbImagesPreview");
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview.Picture().size() == QSize(48, 64); }, 10000));
}

TEST_F(MainWindow, TheMenuForTextFieldsInsertsTagsAtTheFocus) {
  harness.Start();
  const auto& menu = Find<QMenu>(*harness.window, "menuPopupText");
  EXPECT_EQ(EntriesOf(menu), Entries{"Insert &Vantorium Tag"});
  EXPECT_FALSE(harness.window->menuBar()->actions().contains(menu.menuAction()));
  const auto& tags = Find<QMenu>(*harness.window, "menuPopupTextInsertVantoriumTag");
  EXPECT_EQ(menu.actions()[0]->menu(), &tags);
  EXPECT_EQ(EntriesOf(tags), (Entries{"Gallery Creation Date (long)", "Gallery Creation Date (short)", "Image Count",
                                      "Image File Date", "Image File Name"}));
  ChangeTitle("a b");
  auto& title = Find<QLineEdit>(*harness.window, "textGalleryTitle");
  title.setSelection(2, 1);
  tags.actions()[2]->trigger();
  EXPECT_EQ(title.text(), "a <VANTORIUM_IMAGE_COUNT>");
  Find<QTabWidget>(*harness.window, "tsMain").setFocus();
  tags.actions()[4]->trigger();
  EXPECT_EQ(title.text(), "a <VANTORIUM_IMAGE_COUNT>") << "no text field has the focus";
}

TEST_F(MainWindow, HasItsToolBar) {
  harness.Start();
  Entries buttons;
  for (const QAction* action : Find<QToolBar>(*harness.window, "tbMain").actions()) {
    buttons.push_back(action->isSeparator() ? "-" : FromQt(action->text() + ": " + action->toolTip()));
    EXPECT_EQ(action->icon().isNull(), action->isSeparator());
  }
  EXPECT_EQ(buttons,
            (Entries{"New: Start a new Gallery Project", "Open: Open an existing Gallery Project", "-",
                     "Save: Save the Gallery Project", "-", "View: Preview the Gallery in your standard Browser",
                     "Create: Create the actual Gallery"}));
}

TEST_F(MainWindow, ListsTheBrowsersOfThePreferences) {
  harness.folder.Write("program/vantorium.ini",
                       "[BROWSERS]\r\nCount=\"2\"\r\nName1=\"One\"\r\nLocation1=\"T:\\one\"\r\nName2=\"B & T\"\r\n"
                       "Location2=\"T:\\two\"\r\n");
  harness.Start();
  const Entries dropDown = {"...in Default Browser", "-", "...in One", "...in B && T", "-", "Available Browsers..."};
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "tbMainViewDropDown")), dropDown);
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuActionsView"))[2], "...in One");
}

TEST_F(MainWindow, UnreadablePreferencesAreReportedOnceAtTheStart) {
  harness.Start();
  EXPECT_TRUE(harness.boxes.boxes.empty());
  const auto file = harness.folder.Path() / "program/vantorium.ini";
  std::filesystem::create_directories(file);
  harness.Start();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(harness.boxes.boxes[0].title, "File Error");
  EXPECT_EQ(harness.boxes.boxes[0].text,
            "The preferences file cannot be read.  Without it no drive letter has a folder.\r\r" + file.string() +
                ": Invalid argument");
  EXPECT_TRUE(harness.window->isVisible());
}

TEST_F(MainWindow, OpensTheProjectOfTheCommandLine) {
  harness.Start();
  ChangeTitle("Ferien");
  harness.AddPhotograph("a.jpg");
  ChooseFile("T:\\ferien.gpj");
  harness.Trigger("tbMainSave");
  EXPECT_EQ(harness.Title(), "Vantorium 3.0 - [ferien.gpj]");
  harness.Start("T:\\ferien.gpj");
  EXPECT_EQ(harness.Title(), "Vantorium 3.0 - [ferien.gpj]");
  EXPECT_EQ(Now().settings.textGalleryTitle, "Ferien");
  EXPECT_EQ(Find<QLineEdit>(*harness.window, "textGalleryTitle").text(), "Ferien");
  EXPECT_EQ(Count(), "1 Image(s)");
  EXPECT_FALSE(Now().IsModified);
}

TEST_F(MainWindow, ACommandLineThatIsNotAProjectIsReported) {
  harness.Start("T:\\missing.gpj");
  EXPECT_FALSE(harness.boxes.boxes.empty());
  EXPECT_EQ(Now().images.Count(), 0U);
  EXPECT_TRUE(harness.window->isEnabled());
}

TEST_F(MainWindow, NewAsksAboutChangesAndCountsProjects) {
  harness.Start();
  ChangeTitle("x");
  harness.boxes.answers = {env::BoxAnswer::Cancel};
  harness.Trigger("menuFileNew");
  EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  harness.boxes.answers = {env::BoxAnswer::No};
  harness.Trigger("tbMainNew");
  EXPECT_EQ(harness.Title(), "Vantorium 3.0 - [Gallery2]");
  EXPECT_EQ(Find<QLineEdit>(*harness.window, "textGalleryTitle").text(), "Gallery2");
}

TEST_F(MainWindow, OpenReplacesTheProject) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  ChooseFile("T:\\a.gpj");
  harness.Trigger("menuFileSaveAs");
  harness.boxes.answers = {env::BoxAnswer::No};
  harness.Trigger("menuFileNew");
  EXPECT_EQ(Count(), "0 Image(s)");
  harness.Trigger("menuFileOpen");
  EXPECT_EQ(harness.fileBrowser.requests.back().title, "Open Gallery Project");
  EXPECT_EQ(Count(), "1 Image(s)");
  harness.Trigger("tbMainOpen");
  EXPECT_EQ(Count(), "1 Image(s)");
}

TEST_F(MainWindow, ClosesAtOnceWithoutChanges) {
  harness.Start();
  harness.Trigger("menuFileExit");
  EXPECT_EQ(harness.closed, 1);
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(MainWindow, AsksBeforeChangesAreLost) {
  harness.Start();
  ChangeTitle("x");
  harness.boxes.answers = {env::BoxAnswer::Cancel};
  EXPECT_FALSE(harness.window->close());
  EXPECT_EQ(harness.boxes.boxes.back().title, "Project modified");
  EXPECT_EQ(harness.boxes.boxes.back().text,
            "The current Gallery Project has been modified.  Do you wish to save the changes?");
  EXPECT_TRUE(harness.window->isVisible());
  harness.boxes.answers = {env::BoxAnswer::Yes};
  ChooseFile("");
  EXPECT_FALSE(harness.window->close()) << "a cancelled save keeps the program open";
  harness.boxes.answers = {env::BoxAnswer::Yes};
  ChooseFile("T:\\x.gpj");
  EXPECT_TRUE(harness.window->close());
  EXPECT_EQ(harness.closed, 1);
  EXPECT_NE(harness.folder.Read("x.gpj").find("TITLE=\"x\""), std::string::npos);
}

TEST_F(MainWindow, AnsweringNoClosesWithoutSaving) {
  harness.Start();
  ChangeTitle("x");
  harness.boxes.answers = {env::BoxAnswer::No};
  EXPECT_TRUE(harness.window->close());
  EXPECT_TRUE(harness.fileBrowser.requests.empty());
}

TEST_F(MainWindow, RemembersFoldersAndWhetherThePreviewIsOn) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  ChooseFile("T:\\sub\\a.gpj");
  harness.folder.Write("sub/x", "");
  harness.Trigger("menuFileSave");
  Click(*harness.window, "checkImagesPreview");
  EXPECT_TRUE(harness.window->close());
  harness.Start();
  EXPECT_EQ(harness.model->CurrentPreferences().ProjectFolder, "T:\\sub\\");
  EXPECT_EQ(harness.model->CurrentPreferences().ImageSourceFolder, "T:\\");
  EXPECT_EQ(harness.model->CurrentPreferences().checkImagesPreview, 0);
  EXPECT_EQ(harness.model->CurrentPreferences().GalleryIndexFileName, "index.htm");
}

TEST_F(MainWindow, ClearsTheTemporaryFolderOnExitIfSet) {
  for (const std::int16_t clear : {std::int16_t{0}, std::int16_t{1}}) {
    harness.folder.Write(
        "program/vantorium.ini",
        "[FOLDERS]\r\nTempFolderLocation=\"T:\\t\"\r\nTempFolderAutoClear=\"" + std::to_string(clear) + "\"\r\n");
    harness.folder.Write("t/VANTORIUM_TEMP/old.htm", "x");
    harness.Start();
    EXPECT_TRUE(harness.window->close());
    EXPECT_EQ(std::filesystem::exists(harness.folder.Path() / "t/VANTORIUM_TEMP/old.htm"), clear == 0);
  }
}

TEST_F(MainWindow, ClearsTheTemporaryFolderFromTheMenu) {
  harness.Start();
  harness.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  harness.Trigger("menuOptionsClearTempFolder");
  EXPECT_FALSE(std::filesystem::exists(harness.folder.Path() / "program/VANTORIUM_TEMP/old.htm"));
  EXPECT_TRUE(harness.window->isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindow, TheTemporaryFolderIsSetInItsDialog) {
  harness.Start();
  DriveModal([&] { harness.Trigger("menuOptionsSetTempFolderLocation"); },
             [&](QWidget& dialog) {
               Type(Find<QLineEdit>(dialog, "textTempFolderLocation"), "T:\\t");
               Click(dialog, "OKButton");
             });
  EXPECT_EQ(harness.model->CurrentPreferences().TempFolderLocation, "T:\\t");
  EXPECT_TRUE(std::filesystem::is_directory(harness.folder.Path() / "t/VANTORIUM_TEMP"));
}

TEST_F(MainWindow, BrowsersAreEditedAndWritten) {
  harness.Start();
  DriveModal([&] { harness.Trigger("menuOptionsAvailableBrowsers"); },
             [&](QWidget& list) {
               DriveModal([&] { Click(list, "btnAddBrowser"); },
                          [&](QWidget& entry) {
                            Type(Find<QLineEdit>(entry, "browserName"), "Mine");
                            Type(Find<QLineEdit>(entry, "browserLocation"), "T:\\mine");
                            Click(entry, "OKButton");
                          });
             });
  EXPECT_EQ(EntriesOf(Find<QMenu>(*harness.window, "menuActionsView"))[2], "...in Mine");
  EXPECT_NE(harness.folder.Read("program/vantorium.ini").find("Name1=\"Mine\""), std::string::npos)
      << harness.folder.Read("program/vantorium.ini");
  EXPECT_EQ(Status(), "");
}

TEST_F(MainWindow, TheEntryThatOpensTheBrowserListSurvivesTheRebuildOfItsMenu) {
  harness.Start();
  for (const char* name : {"tbMainViewDropDown", "menuActionsView"}) {
    auto& menu = Find<QMenu>(*harness.window, name);
    const QPointer<QAction> entry = menu.actions().back();
    menu.popup(QPoint(0, 0));
    menu.setActiveAction(entry);
    DriveModal([&] { QTest::keyClick(&menu, Qt::Key_Return); },
               [](QWidget& list) { EXPECT_EQ(list.objectName(), "frmBrowserList"); });
    EXPECT_NE(entry, nullptr) << name << " is still handling its key";
    EXPECT_NE(menu.actions().back(), entry) << name;
    EXPECT_EQ(EntriesOf(menu).back(), "Available Browsers...") << name;
  }
}

TEST_F(MainWindow, DisablingTheWindowKeepsTheFocus) {
  harness.Start();
  auto& title = Find<QLineEdit>(*harness.window, "textGalleryTitle");
  for (const char* command : {"menuFileSave", "menuOptionsClearTempFolder"}) {
    ChooseFile("T:\\a.gpj");
    title.setFocus();
    harness.Trigger(command);
    EXPECT_TRUE(harness.window->isEnabled());
    EXPECT_EQ(harness.window->focusWidget(), &title) << command;
  }
}

TEST_F(MainWindow, AGalleryWithoutImagesIsRefused) {
  harness.Start();
  harness.Trigger("menuActionsViewDefault");
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "No Images");
  EXPECT_EQ(harness.boxes.boxes[0].text, "You cannot preview a Gallery without Images.");
  EXPECT_TRUE(harness.window->isEnabled());
}

TEST_F(MainWindow, APreviewIsMadeAndOpened) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.Trigger("tbMainView");
  EXPECT_NE(harness.folder.Read("program/VANTORIUM_TEMP/index.htm"), "");
  ASSERT_EQ(harness.shell.started.size(), 1U);
  EXPECT_EQ(harness.shell.started[0].back(), (harness.folder.Path() / "program/VANTORIUM_TEMP/index.htm").string());
  EXPECT_TRUE(harness.window->isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindow, AListedBrowserIsStartedWithThePreview) {
  harness.folder.Write("program/vantorium.ini",
                       "[BROWSERS]\r\nCount=\"1\"\r\nName1=\"One\"\r\nLocation1=\"T:\\one\"\r\n");
  harness.Start();
  harness.AddPhotograph("a.jpg");
  for (const char* entry : {"browser1", "menuActionsViewBrowser1"}) {
    harness.shell.started.clear();
    harness.Trigger(entry);
    ASSERT_EQ(harness.shell.started.size(), 1U) << entry;
    EXPECT_EQ(harness.shell.started[0].front(), (harness.folder.Path() / "one").string()) << entry;
  }
}

TEST_F(MainWindow, AGalleryIsCreatedInTheChosenPlace) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  DriveModal([&] { harness.Trigger("menuActionsCreate"); },
             [&](QWidget& dialog) {
               EXPECT_EQ(dialog.objectName(), "frmCreateGallery");
               Type(Find<QLineEdit>(dialog, "textCreateFilePath"), "T:\\out\\start.htm");
               Click(dialog, "OKButton");
             });
  EXPECT_NE(harness.folder.Read("out/start.htm"), "") << harness.TitleOfLastBox();
  EXPECT_NE(harness.folder.Read("out/Images/a.jpg.jpg"), "");
  EXPECT_EQ(harness.model->CurrentPreferences().CreateFolder, "T:\\out\\");
  EXPECT_EQ(harness.model->CurrentPreferences().GalleryIndexFileName, "start.htm");
}

TEST_F(MainWindow, ACancelledDialogCreatesNothing) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  DriveModal([&] { harness.Trigger("tbMainCreate"); }, [](QWidget& dialog) { Click(dialog, "CancelButton"); });
  EXPECT_TRUE(harness.window->isEnabled());
  EXPECT_FALSE(std::filesystem::exists(harness.folder.Path() / "gallery"));
}

TEST_F(MainWindow, HelpIsOpenedFromTheBundledFiles) {
  harness.Start();
  harness.Trigger("menuHelpOnlineHelp");
  EXPECT_EQ(harness.TitleOfLastBox(), "File Error");
  harness.folder.Write("data/help/index.html", "x");
  harness.Trigger("menuHelpOnlineHelp");
  EXPECT_EQ(harness.shell.opened, (Entries{"T:\\data\\help\\index.html"}));
}

TEST_F(MainWindow, AboutShowsTheVersion) {
  harness.Start();
  QString version;
  DriveModal([&] { harness.Trigger("menuHelpAbout"); },
             [&](QWidget& about) { version = Find<QLabel>(about, "lblVersion").text(); });
  EXPECT_EQ(version, "Version 3.0 (Build 1)");
}

TEST_F(MainWindow, DescriptionsFollowTheListAndAreSaved) {
  harness.Start();
  harness.AddPhotograph("a.jpg");
  harness.AddPhotograph("b.jpg");
  Click(*harness.window, "btnImagesDescriptions");
  auto& tool = Find<QWidget>(*harness.window, "frmImageDescriptions");
  EXPECT_TRUE(tool.isVisible());
  EXPECT_FALSE(tool.isModal());
  auto& list = Find<QWidget>(*harness.window, "lvImagesList");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Home);
  Type(Find<QPlainTextEdit>(tool, "textDescription"), "first");
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(Find<QPlainTextEdit>(tool, "textDescription").toPlainText(), "");
  EXPECT_EQ(Now().images.Entry(1).ImageDescription, "first");
  harness.boxes.answers = {env::BoxAnswer::No};
  harness.Trigger("menuFileNew");
  EXPECT_FALSE(tool.isVisible());
}

TEST_F(MainWindow, PlacementsOfTheOpenDescriptionsWindowAreSavedBeforeAnotherProjectIsOpened) {
  for (const char* leave : {"menuFileNew", "menuFileOpen"}) {
    harness.Start();
    harness.fileBrowser.answer = {"T:\\saved.gpj", "T:\\", {"T:\\saved.gpj"}};
    harness.Trigger("menuFileSave");
    harness.GoTo(1);
    Click(*harness.window, "btnImagesDescriptions");
    auto& tool = Find<QWidget>(*harness.window, "frmImageDescriptions");
    auto& placement = Find<QComboBox>(tool, "comboImageDescriptionPlacement");
    QTest::keyClick(&placement, Qt::Key_End);
    harness.boxes.answers = {env::BoxAnswer::Yes};
    harness.fileBrowser.answer = {};
    harness.Trigger(leave);
    harness.Start("T:\\saved.gpj");
    EXPECT_EQ(harness.Settings().comboImageDescriptionPlacement, 4) << leave;
  }
}

TEST_F(MainWindow, DoesNotCloseWhileItIsDisabled) {
  harness.Start();
  harness.window->EnableMainWindow(false);
  EXPECT_FALSE(harness.window->close());
  EXPECT_EQ(harness.closed, 0);
  harness.window->EnableMainWindow(true);
  EXPECT_TRUE(harness.window->close());
}

TEST_F(MainWindow, FitsASmallScreen) {
  harness.Start();
  EXPECT_LE(harness.window->width(), 1280);
  EXPECT_LE(harness.window->height(), 800);
  const QSize before = harness.window->size();
  for (int tab = 0; tab < 6; ++tab) harness.GoTo(tab);
  EXPECT_EQ(harness.window->size(), before);
}

TEST_F(MainWindow, EveryControlHasAnAccessibleName) {
  harness.Start();
  for (const QWidget* control : harness.window->findChildren<QWidget*>()) {
    const bool takesFocus = (control->focusPolicy() & Qt::TabFocus) != 0 && !control->objectName().startsWith("qt_");
    if (!takesFocus || control->objectName().isEmpty()) continue;
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const bool isTabs = control->inherits("QTabWidget") || control->inherits("QTabBar");
    const bool hasText = isTabs || (button != nullptr && !button->text().isEmpty());
    bool hasBuddy = false;
    for (const QLabel* label : harness.window->findChildren<QLabel*>()) hasBuddy |= label->buddy() == control;
    EXPECT_TRUE(hasText || hasBuddy || !control->accessibleName().isEmpty() || !control->toolTip().isEmpty())
        << control->objectName().toStdString();
  }
}

}  // namespace
}  // namespace vantorium::ui
