// The main window: its menus and tool bar, its start, and its question before it closes.
#include "tests/fakes/PhotographMaker.h"
#include "tests/ui/MainDesk.h"
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
using fakes::MainDesk;
using fakes::Type;

class MainWindow : public testing::Test {
 protected:
  [[nodiscard]] QString Status() { return Find<QLabel>(*desk.window, "sbMainText").text(); }
  [[nodiscard]] QString Count() { return Find<QLabel>(*desk.window, "sbMainCount").text(); }
  void ChangeTitle(const char* title) {
    desk.GoTo(0);
    Type(Find<QLineEdit>(*desk.window, "textGalleryTitle"), title);
  }
  [[nodiscard]] const core::Project& Now() const { return desk.model->CurrentProject(); }
  /// Sets the answer of the project file dialog.
  void ChooseFile(const std::string& path) { desk.fileBrowser.answer = {path, "", {path}}; }

  MainDesk desk;
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
  desk.Start();
  EXPECT_EQ(desk.Title(), "Vantorium 3.0 - [Gallery1]");
  EXPECT_EQ(Now().settings.textGalleryTitle, "Gallery1");
  EXPECT_FALSE(Now().IsModified);
  EXPECT_TRUE(Now().IsPristine);
  EXPECT_EQ(Count(), "0 Image(s)");
  EXPECT_EQ(Status(), "");
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(MainWindow, HasSixTabsAndShowsOneUsablePage) {
  desk.Start();
  auto& tabs = Find<QTabWidget>(*desk.window, "tsMain");
  const char* const pages[] = {"frmGallery",    "frmImages",   "frmImageWrapper",
                               "frmThumbnails", "frmCaptions", "frmPageLinks"};
  const char* const texts[] = {"Gallery", "Images", "Image Wrappers", "Thumbnails", "Captions", "Page Links"};
  ASSERT_EQ(tabs.count(), 6);
  for (int shown = 0; shown < 6; ++shown) {
    desk.GoTo(shown);
    EXPECT_EQ(tabs.tabText(shown), texts[shown]);
    for (int i = 0; i < 6; ++i) {
      const auto& page = Find<QWidget>(*desk.window, pages[i]);
      EXPECT_EQ(page.isVisible(), i == shown) << pages[i];
      EXPECT_EQ(page.isEnabled(), i == shown) << pages[i];
    }
  }
}

TEST_F(MainWindow, HasItsMenus) {
  desk.Start();
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuFile")),
            (Entries{"&New Project... [Ctrl+N]", "&Open Project... [Ctrl+O]", "-", "&Save Project [Ctrl+S]",
                     "Save Project &As... [F12]", "-", "&Exit"}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuActions")),
            (Entries{"&View Gallery", "&Create Gallery... [Ctrl+G]"}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuActionsView")),
            (Entries{"...in Default Browser [Ctrl+I]", "-", "Available Browsers..."}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuOptions")),
            (Entries{"&Available Browsers...", "-", "Set &Temporary Folder Location...", "&Clear Temporary Folder", "-",
                     "Turn Photographs &Upright", "T&rue Colors of Photographs", "App&ly Theme..."}));
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuHelp")), (Entries{"Open &Help File [F1]", "-", "&About..."}));
  Entries bar;
  for (const QAction* action : desk.window->menuBar()->actions()) bar.push_back(FromQt(action->text()));
  EXPECT_EQ(bar, (Entries{"&File", "&Actions", "&Options", "&Help"}));
}

TEST_F(MainWindow, TheLinesOfItsMenusHaveNames) {
  desk.Start();
  const std::pair<const char*, Entries> menus[] = {{"menuFile", {"menuFileSeparator1", "menuFileSeparator2"}},
                                                   {"menuOptions", {"menuOptionsSeparator", "menuOptionsSeparator2"}},
                                                   {"menuHelp", {"menuHelpSeparator1"}}};
  for (const auto& [menu, expected] : menus) {
    Entries names;
    for (const QAction* action : Find<QMenu>(*desk.window, menu).actions()) {
      if (action->isSeparator()) names.push_back(FromQt(action->objectName()));
    }
    EXPECT_EQ(names, expected) << menu;
  }
}

TEST_F(MainWindow, TheEntriesForPhotographsAreSettingsOfTheProject) {
  desk.Start();
  const auto checked = [this](const char* name) { return desk.window->findChild<QAction*>(name)->isChecked(); };
  EXPECT_FALSE(checked("menuOptionsUpright") || checked("menuOptionsTrueColors"));
  EXPECT_EQ(desk.Settings().checkImagesUpright, 0);
  desk.Trigger("menuOptionsUpright");
  EXPECT_EQ(desk.Settings().checkImagesUpright, 1);
  EXPECT_EQ(desk.Settings().checkImagesTrueColors, 0);
  EXPECT_TRUE(desk.model->CurrentProject().IsModified);
  desk.Trigger("menuOptionsTrueColors");
  desk.Trigger("menuOptionsUpright");
  EXPECT_EQ(desk.Settings().checkImagesUpright, 0);
  EXPECT_EQ(desk.Settings().checkImagesTrueColors, 1);
  EXPECT_TRUE(checked("menuOptionsTrueColors"));
  desk.boxes.answers = {env::BoxAnswer::No};  // to saving
  desk.Trigger("menuFileNew");
  EXPECT_FALSE(checked("menuOptionsTrueColors")) << "a new project has them off";
}

TEST_F(MainWindow, ThePreviewFollowsTheEntryForUprightPhotographs) {
  desk.folder.Write("lying.jpg", fakes::WithOrientation(fakes::MakeJpeg({.width = 64, .height = 48}), 6));
  desk.fileBrowser.answer = {"T:\\lying.jpg", "T:\\", {"lying.jpg"}};
  desk.Start();
  desk.GoTo(1);
  desk.boxes.answers = {env::BoxAnswer::No};  // to turning upright
  Click(*desk.window, "btnImagesAddFiles");
  EXPECT_TRUE(QTest::qWaitFor([this] { return desk.TitleOfLastBox() == "Photographs on their Side"; }, 10000));
  const auto& size = Find<QLabel>(*desk.window, "lblImagesSize");
  EXPECT_TRUE(size.text().startsWith("(64x48, "));
  desk.Trigger("menuOptionsUpright");
  EXPECT_TRUE(size.text().startsWith("(48x64, "));
  const auto& preview = Find<FittedPicture>(*desk.window, "pbImagesPreview");
  EXPECT_TRUE(QTest::qWaitFor([&] { return preview.Picture().size() == QSize(48, 64); }, 10000));
}

TEST_F(MainWindow, TheMenuForTextFieldsPutsTagsWhereTheKeyboardIs) {
  desk.Start();
  const auto& menu = Find<QMenu>(*desk.window, "menuPopupText");
  EXPECT_EQ(EntriesOf(menu), Entries{"Insert &Vantorium Tag"});
  EXPECT_FALSE(desk.window->menuBar()->actions().contains(menu.menuAction()));
  const auto& tags = Find<QMenu>(*desk.window, "menuPopupTextInsertVantoriumTag");
  EXPECT_EQ(menu.actions()[0]->menu(), &tags);
  EXPECT_EQ(EntriesOf(tags), (Entries{"Gallery Creation Date (long)", "Gallery Creation Date (short)", "Image Count",
                                      "Image File Date", "Image File Name"}));
  ChangeTitle("a b");
  auto& title = Find<QLineEdit>(*desk.window, "textGalleryTitle");
  title.setSelection(2, 1);
  tags.actions()[2]->trigger();
  EXPECT_EQ(title.text(), "a <VANTORIUM_IMAGE_COUNT>");
  Find<QTabWidget>(*desk.window, "tsMain").setFocus();
  tags.actions()[4]->trigger();
  EXPECT_EQ(title.text(), "a <VANTORIUM_IMAGE_COUNT>") << "no text field has the keyboard";
}

TEST_F(MainWindow, HasItsToolBar) {
  desk.Start();
  Entries buttons;
  for (const QAction* action : Find<QToolBar>(*desk.window, "tbMain").actions()) {
    buttons.push_back(action->isSeparator() ? "-" : FromQt(action->text() + ": " + action->toolTip()));
    EXPECT_EQ(action->icon().isNull(), action->isSeparator());
  }
  EXPECT_EQ(buttons,
            (Entries{"New: Start a new Gallery Project", "Open: Open an existing Gallery Project", "-",
                     "Save: Save the Gallery Project", "-", "View: Preview the Gallery in your standard Browser",
                     "Create: Create the actual Gallery"}));
}

TEST_F(MainWindow, ListsTheBrowsersOfThePreferences) {
  desk.folder.Write("program/vantorium.ini",
                    "[BROWSERS]\r\nCount=\"2\"\r\nName1=\"One\"\r\nLocation1=\"T:\\one\"\r\nName2=\"B & T\"\r\n"
                    "Location2=\"T:\\two\"\r\n");
  desk.Start();
  const Entries dropDown = {"...in Default Browser", "-", "...in One", "...in B && T", "-", "Available Browsers..."};
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "tbMainViewDropDown")), dropDown);
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuActionsView"))[2], "...in One");
}

TEST_F(MainWindow, PreferencesThatCannotBeReadAreReportedOnceAtTheStart) {
  desk.Start();
  EXPECT_TRUE(desk.boxes.boxes.empty());
  const auto file = desk.folder.Path() / "program/vantorium.ini";
  std::filesystem::create_directories(file);
  desk.Start();
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].kind, env::BoxKind::Critical);
  EXPECT_EQ(desk.boxes.boxes[0].title, "File Error");
  EXPECT_EQ(desk.boxes.boxes[0].text,
            "The preferences file cannot be read.  Without it no drive letter has a folder.\r\r" + file.string() +
                ": Invalid argument");
  EXPECT_TRUE(desk.window->isVisible());
}

TEST_F(MainWindow, OpensTheProjectOfTheCommandLine) {
  desk.Start();
  ChangeTitle("Ferien");
  desk.AddPhotograph("a.jpg");
  ChooseFile("T:\\ferien.gpj");
  desk.Trigger("tbMainSave");
  EXPECT_EQ(desk.Title(), "Vantorium 3.0 - [ferien.gpj]");
  desk.Start("T:\\ferien.gpj");
  EXPECT_EQ(desk.Title(), "Vantorium 3.0 - [ferien.gpj]");
  EXPECT_EQ(Now().settings.textGalleryTitle, "Ferien");
  EXPECT_EQ(Find<QLineEdit>(*desk.window, "textGalleryTitle").text(), "Ferien");
  EXPECT_EQ(Count(), "1 Image(s)");
  EXPECT_FALSE(Now().IsModified);
}

TEST_F(MainWindow, ACommandLineThatIsNotAProjectIsReported) {
  desk.Start("T:\\missing.gpj");
  EXPECT_FALSE(desk.boxes.boxes.empty());
  EXPECT_EQ(Now().images.Count(), 0U);
  EXPECT_TRUE(desk.window->isEnabled());
}

TEST_F(MainWindow, NewAsksAboutChangesAndCountsProjects) {
  desk.Start();
  ChangeTitle("x");
  desk.boxes.answers = {env::BoxAnswer::Cancel};
  desk.Trigger("menuFileNew");
  EXPECT_EQ(Now().settings.textGalleryTitle, "x");
  desk.boxes.answers = {env::BoxAnswer::No};
  desk.Trigger("tbMainNew");
  EXPECT_EQ(desk.Title(), "Vantorium 3.0 - [Gallery2]");
  EXPECT_EQ(Find<QLineEdit>(*desk.window, "textGalleryTitle").text(), "Gallery2");
}

TEST_F(MainWindow, OpenReplacesTheProject) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  ChooseFile("T:\\a.gpj");
  desk.Trigger("menuFileSaveAs");
  desk.boxes.answers = {env::BoxAnswer::No};
  desk.Trigger("menuFileNew");
  EXPECT_EQ(Count(), "0 Image(s)");
  desk.Trigger("menuFileOpen");
  EXPECT_EQ(desk.fileBrowser.requests.back().title, "Open Gallery Project");
  EXPECT_EQ(Count(), "1 Image(s)");
  desk.Trigger("tbMainOpen");
  EXPECT_EQ(Count(), "1 Image(s)");
}

TEST_F(MainWindow, ClosesAtOnceWithoutChanges) {
  desk.Start();
  desk.Trigger("menuFileExit");
  EXPECT_EQ(desk.closed, 1);
  EXPECT_TRUE(desk.boxes.boxes.empty());
}

TEST_F(MainWindow, AsksBeforeChangesAreLost) {
  desk.Start();
  ChangeTitle("x");
  desk.boxes.answers = {env::BoxAnswer::Cancel};
  EXPECT_FALSE(desk.window->close());
  EXPECT_EQ(desk.boxes.boxes.back().title, "Project modified");
  EXPECT_EQ(desk.boxes.boxes.back().text,
            "The current Gallery Project has been modified.  Do you wish to save the changes?");
  EXPECT_TRUE(desk.window->isVisible());
  desk.boxes.answers = {env::BoxAnswer::Yes};
  ChooseFile("");
  EXPECT_FALSE(desk.window->close()) << "a save that was not done keeps the program open";
  desk.boxes.answers = {env::BoxAnswer::Yes};
  ChooseFile("T:\\x.gpj");
  EXPECT_TRUE(desk.window->close());
  EXPECT_EQ(desk.closed, 1);
  EXPECT_NE(desk.folder.Read("x.gpj").find("TITLE=\"x\""), std::string::npos);
}

TEST_F(MainWindow, NoToTheQuestionClosesWithoutSaving) {
  desk.Start();
  ChangeTitle("x");
  desk.boxes.answers = {env::BoxAnswer::No};
  EXPECT_TRUE(desk.window->close());
  EXPECT_TRUE(desk.fileBrowser.requests.empty());
}

TEST_F(MainWindow, RemembersFoldersAndThePreviewSwitch) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  ChooseFile("T:\\sub\\a.gpj");
  desk.folder.Write("sub/x", "");
  desk.Trigger("menuFileSave");
  Click(*desk.window, "checkImagesPreview");
  EXPECT_TRUE(desk.window->close());
  desk.Start();
  EXPECT_EQ(desk.model->CurrentPreferences().ProjectFolder, "T:\\sub\\");
  EXPECT_EQ(desk.model->CurrentPreferences().ImageSourceFolder, "T:\\");
  EXPECT_EQ(desk.model->CurrentPreferences().checkImagesPreview, 0);
  EXPECT_EQ(desk.model->CurrentPreferences().GalleryIndexFileName, "index.htm");
}

TEST_F(MainWindow, ClearsTheTemporaryFolderOnExitWhenItIsToldTo) {
  for (const std::int16_t clear : {std::int16_t{0}, std::int16_t{1}}) {
    desk.folder.Write("program/vantorium.ini", "[FOLDERS]\r\nTempFolderLocation=\"T:\\t\"\r\nTempFolderAutoClear=\"" +
                                                   std::to_string(clear) + "\"\r\n");
    desk.folder.Write("t/VANTORIUM_TEMP/old.htm", "x");
    desk.Start();
    EXPECT_TRUE(desk.window->close());
    EXPECT_EQ(std::filesystem::exists(desk.folder.Path() / "t/VANTORIUM_TEMP/old.htm"), clear == 0);
  }
}

TEST_F(MainWindow, ClearsTheTemporaryFolderFromTheMenu) {
  desk.Start();
  desk.folder.Write("program/VANTORIUM_TEMP/old.htm", "x");
  desk.Trigger("menuOptionsClearTempFolder");
  EXPECT_FALSE(std::filesystem::exists(desk.folder.Path() / "program/VANTORIUM_TEMP/old.htm"));
  EXPECT_TRUE(desk.window->isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindow, TheTemporaryFolderIsSetInItsDialog) {
  desk.Start();
  DriveModal([&] { desk.Trigger("menuOptionsSetTempFolderLocation"); },
             [&](QWidget& dialog) {
               Type(Find<QLineEdit>(dialog, "textTempFolderLocation"), "T:\\t");
               Click(dialog, "OKButton");
             });
  EXPECT_EQ(desk.model->CurrentPreferences().TempFolderLocation, "T:\\t");
  EXPECT_TRUE(std::filesystem::is_directory(desk.folder.Path() / "t/VANTORIUM_TEMP"));
}

TEST_F(MainWindow, BrowsersAreEditedAndWritten) {
  desk.Start();
  DriveModal([&] { desk.Trigger("menuOptionsAvailableBrowsers"); },
             [&](QWidget& list) {
               DriveModal([&] { Click(list, "btnAddBrowser"); },
                          [&](QWidget& entry) {
                            Type(Find<QLineEdit>(entry, "browserName"), "Mine");
                            Type(Find<QLineEdit>(entry, "browserLocation"), "T:\\mine");
                            Click(entry, "OKButton");
                          });
             });
  EXPECT_EQ(EntriesOf(Find<QMenu>(*desk.window, "menuActionsView"))[2], "...in Mine");
  EXPECT_NE(desk.folder.Read("program/vantorium.ini").find("Name1=\"Mine\""), std::string::npos)
      << desk.folder.Read("program/vantorium.ini");
  EXPECT_EQ(Status(), "");
}

TEST_F(MainWindow, TheEntryThatAsksForTheBrowsersOutlivesItsMenusRebuild) {
  desk.Start();
  for (const char* name : {"tbMainViewDropDown", "menuActionsView"}) {
    auto& menu = Find<QMenu>(*desk.window, name);
    const QPointer<QAction> entry = menu.actions().back();
    menu.popup(QPoint(0, 0));
    menu.setActiveAction(entry);
    DriveModal([&] { QTest::keyClick(&menu, Qt::Key_Return); },
               [](QWidget& list) { EXPECT_EQ(list.objectName(), "frmBrowserList"); });
    EXPECT_NE(entry, nullptr) << name << " is still at work on its key";
    EXPECT_NE(menu.actions().back(), entry) << name;
    EXPECT_EQ(EntriesOf(menu).back(), "Available Browsers...") << name;
  }
}

TEST_F(MainWindow, DisablingItKeepsTheFocus) {
  desk.Start();
  auto& title = Find<QLineEdit>(*desk.window, "textGalleryTitle");
  for (const char* command : {"menuFileSave", "menuOptionsClearTempFolder"}) {
    ChooseFile("T:\\a.gpj");
    title.setFocus();
    desk.Trigger(command);
    EXPECT_TRUE(desk.window->isEnabled());
    EXPECT_EQ(desk.window->focusWidget(), &title) << command;
  }
}

TEST_F(MainWindow, AGalleryWithoutImagesIsRefused) {
  desk.Start();
  desk.Trigger("menuActionsViewDefault");
  ASSERT_EQ(desk.boxes.boxes.size(), 1U);
  EXPECT_EQ(desk.boxes.boxes[0].title, "No Images");
  EXPECT_EQ(desk.boxes.boxes[0].text, "You cannot preview a Gallery without Images.");
  EXPECT_TRUE(desk.window->isEnabled());
}

TEST_F(MainWindow, APreviewIsMadeAndOpened) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.Trigger("tbMainView");
  EXPECT_NE(desk.folder.Read("program/VANTORIUM_TEMP/index.htm"), "");
  ASSERT_EQ(desk.shell.started.size(), 1U);
  EXPECT_EQ(desk.shell.started[0].back(), (desk.folder.Path() / "program/VANTORIUM_TEMP/index.htm").string());
  EXPECT_TRUE(desk.window->isEnabled());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(MainWindow, AListedBrowserIsStartedWithThePreview) {
  desk.folder.Write("program/vantorium.ini", "[BROWSERS]\r\nCount=\"1\"\r\nName1=\"One\"\r\nLocation1=\"T:\\one\"\r\n");
  desk.Start();
  desk.AddPhotograph("a.jpg");
  for (const char* entry : {"browser1", "menuActionsViewBrowser1"}) {
    desk.shell.started.clear();
    desk.Trigger(entry);
    ASSERT_EQ(desk.shell.started.size(), 1U) << entry;
    EXPECT_EQ(desk.shell.started[0].front(), (desk.folder.Path() / "one").string()) << entry;
  }
}

TEST_F(MainWindow, AGalleryIsCreatedWhereTheDialogSays) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  DriveModal([&] { desk.Trigger("menuActionsCreate"); },
             [&](QWidget& dialog) {
               EXPECT_EQ(dialog.objectName(), "frmCreateGallery");
               Type(Find<QLineEdit>(dialog, "textCreateFilePath"), "T:\\out\\start.htm");
               Click(dialog, "OKButton");
             });
  EXPECT_NE(desk.folder.Read("out/start.htm"), "") << desk.TitleOfLastBox();
  EXPECT_NE(desk.folder.Read("out/Images/a.jpg.jpg"), "");
  EXPECT_EQ(desk.model->CurrentPreferences().CreateFolder, "T:\\out\\");
  EXPECT_EQ(desk.model->CurrentPreferences().GalleryIndexFileName, "start.htm");
}

TEST_F(MainWindow, ACancelledDialogCreatesNothing) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  DriveModal([&] { desk.Trigger("tbMainCreate"); }, [](QWidget& dialog) { Click(dialog, "CancelButton"); });
  EXPECT_TRUE(desk.window->isEnabled());
  EXPECT_FALSE(std::filesystem::exists(desk.folder.Path() / "gallery"));
}

TEST_F(MainWindow, HelpIsOpenedFromTheFilesOfTheProgram) {
  desk.Start();
  desk.Trigger("menuHelpOnlineHelp");
  EXPECT_EQ(desk.TitleOfLastBox(), "File Error");
  desk.folder.Write("data/help/index.html", "x");
  desk.Trigger("menuHelpOnlineHelp");
  EXPECT_EQ(desk.shell.opened, (Entries{"T:\\data\\help\\index.html"}));
}

TEST_F(MainWindow, AboutTellsTheVersion) {
  desk.Start();
  QString version;
  DriveModal([&] { desk.Trigger("menuHelpAbout"); },
             [&](QWidget& about) { version = Find<QLabel>(about, "lblVersion").text(); });
  EXPECT_EQ(version, "Version 3.0 (Build 1)");
}

TEST_F(MainWindow, DescriptionsFollowTheListAndComeWithASave) {
  desk.Start();
  desk.AddPhotograph("a.jpg");
  desk.AddPhotograph("b.jpg");
  Click(*desk.window, "btnImagesDescriptions");
  auto& tool = Find<QWidget>(*desk.window, "frmImageDescriptions");
  EXPECT_TRUE(tool.isVisible());
  EXPECT_FALSE(tool.isModal());
  auto& list = Find<QWidget>(*desk.window, "lvImagesList");
  list.setFocus();
  QTest::keyClick(&list, Qt::Key_Home);
  Type(Find<QPlainTextEdit>(tool, "textDescription"), "first");
  QTest::keyClick(&list, Qt::Key_End);
  EXPECT_EQ(Find<QPlainTextEdit>(tool, "textDescription").toPlainText(), "");
  EXPECT_EQ(Now().images.Entry(1).ImageDescription, "first");
  desk.boxes.answers = {env::BoxAnswer::No};
  desk.Trigger("menuFileNew");
  EXPECT_FALSE(tool.isVisible());
}

TEST_F(MainWindow, PlacementsInTheOpenDescriptionsWindowAreSavedBeforeAnotherProjectComes) {
  for (const char* leave : {"menuFileNew", "menuFileOpen"}) {
    desk.Start();
    desk.fileBrowser.answer = {"T:\\saved.gpj", "T:\\", {"T:\\saved.gpj"}};
    desk.Trigger("menuFileSave");
    desk.GoTo(1);
    Click(*desk.window, "btnImagesDescriptions");
    auto& tool = Find<QWidget>(*desk.window, "frmImageDescriptions");
    auto& placement = Find<QComboBox>(tool, "comboImageDescriptionPlacement");
    QTest::keyClick(&placement, Qt::Key_End);
    desk.boxes.answers = {env::BoxAnswer::Yes};
    desk.fileBrowser.answer = {};
    desk.Trigger(leave);
    desk.Start("T:\\saved.gpj");
    EXPECT_EQ(desk.Settings().comboImageDescriptionPlacement, 4) << leave;
  }
}

TEST_F(MainWindow, DoesNotCloseWhileItIsDisabled) {
  desk.Start();
  desk.window->EnableMainWindow(false);
  EXPECT_FALSE(desk.window->close());
  EXPECT_EQ(desk.closed, 0);
  desk.window->EnableMainWindow(true);
  EXPECT_TRUE(desk.window->close());
}

TEST_F(MainWindow, FitsASmallScreen) {
  desk.Start();
  EXPECT_LE(desk.window->width(), 1280);
  EXPECT_LE(desk.window->height(), 800);
  const QSize before = desk.window->size();
  for (int tab = 0; tab < 6; ++tab) desk.GoTo(tab);
  EXPECT_EQ(desk.window->size(), before);
}

TEST_F(MainWindow, EveryControlHasANameForThoseWhoCannotSeeIt) {
  desk.Start();
  for (const QWidget* control : desk.window->findChildren<QWidget*>()) {
    const bool takesFocus = (control->focusPolicy() & Qt::TabFocus) != 0 && !control->objectName().startsWith("qt_");
    if (!takesFocus || control->objectName().isEmpty()) continue;
    const auto* button = qobject_cast<const QAbstractButton*>(control);
    const bool isTabs = control->inherits("QTabWidget") || control->inherits("QTabBar");
    const bool hasText = isTabs || (button != nullptr && !button->text().isEmpty());
    bool hasBuddy = false;
    for (const QLabel* label : desk.window->findChildren<QLabel*>()) hasBuddy |= label->buddy() == control;
    EXPECT_TRUE(hasText || hasBuddy || !control->accessibleName().isEmpty() || !control->toolTip().isEmpty())
        << control->objectName().toStdString();
  }
}

}  // namespace
}  // namespace vantorium::ui
