#include "tests/fakes/ScriptedFileBrowser.h"
#include "tests/ui/FormDriver.h"
#include "ui/dialogs/AddBrowserDialog.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::Type;

class AddBrowserForm : public testing::Test {
 protected:
  /// The texts of the entry after the dialog, separated by "|" and after "cancelled " if the dialog was cancelled.
  std::string Edit(const env::Browser& texts, const std::function<void(QWidget&)>& drive) {
    BrowserEntry entry("Add Browser", texts);
    entry.ComeUp();
    AddBrowserDialog dialog(files, paths, "C:\\program");
    DriveModal([&] { dialog.Show(entry); }, drive);
    return (entry.Cancelled() ? "cancelled " : "") + entry.Texts().Name + "|" + entry.Texts().Location;
  }

  env::PathMap paths{{{'C', "/home/me"}, {'Z', "/"}}};
  fakes::ScriptedFileBrowser files;
};

TEST_F(AddBrowserForm, OKRequiresBothTexts) {
  Edit({}, [](QWidget& form) {
    auto& ok = Find<QPushButton>(form, "OKButton");
    EXPECT_FALSE(ok.isEnabled());
    Type(Find<QLineEdit>(form, "browserName"), "a");
    EXPECT_FALSE(ok.isEnabled());
    Type(Find<QLineEdit>(form, "browserLocation"), "b");
    EXPECT_TRUE(ok.isEnabled());
    Type(Find<QLineEdit>(form, "browserName"), "");
    EXPECT_FALSE(ok.isEnabled());
  });
}

TEST_F(AddBrowserForm, EnterAcceptsTheTextsAndEscapeCancels) {
  const auto type = [](QWidget& form) {
    Type(Find<QLineEdit>(form, "browserName"), "Fox");
    Type(Find<QLineEdit>(form, "browserLocation"), "fox --new-window");
  };
  EXPECT_EQ(Edit({},
                 [&](QWidget& form) {
                   type(form);
                   QTest::keyClick(&form, Qt::Key_Return);
                 }),
            "Fox|fox --new-window");
  EXPECT_EQ(Edit({},
                 [&](QWidget& form) {
                   type(form);
                   QTest::keyClick(&form, Qt::Key_Escape);
                 }),
            "cancelled Fox|fox --new-window");
  EXPECT_EQ(Edit({"a", "b"}, [](QWidget& form) { Click(form, "CancelButton"); }), "cancelled a|b");
  EXPECT_EQ(Edit({"a", "b"}, [](QWidget& form) { form.close(); }), "cancelled a|b") << "by its title bar";
}

TEST_F(AddBrowserForm, ANativePathBecomesPathTextWhenItsBoxIsLeft) {
  EXPECT_EQ(Edit({"a", ""},
                 [](QWidget& form) {
                   Type(Find<QLineEdit>(form, "browserLocation"), "/usr/bin/fox");
                   Find<QWidget>(form, "browserName").setFocus();
                   EXPECT_EQ(Find<QLineEdit>(form, "browserLocation").text(), "Z:\\usr\\bin\\fox");
                   Click(form, "OKButton");
                 }),
            "a|Z:\\usr\\bin\\fox");
  EXPECT_EQ(Edit({"a", ""},
                 [](QWidget& form) {
                   Type(Find<QLineEdit>(form, "browserLocation"), "/home/me/fox");
                   QTest::keyClick(&form, Qt::Key_Return);
                 }),
            "a|C:\\fox");
}

TEST_F(AddBrowserForm, BrowseChoosesAnExecutableAndEnablesOK) {
  files.answer.result = "Z:\\usr\\bin\\fox";
  Edit({}, [](QWidget& form) {
    Click(form, "btnBrowse");
    EXPECT_EQ(Find<QLineEdit>(form, "browserLocation").text(), "Z:\\usr\\bin\\fox");
    EXPECT_TRUE(Find<QPushButton>(form, "OKButton").isEnabled()) << "with any name";
    EXPECT_TRUE(Find<QPushButton>(form, "OKButton").hasFocus());
  });
  ASSERT_EQ(files.requests.size(), 1U);
  const FileDialogRequest& request = files.requests[0];
  EXPECT_TRUE(request.open);
  EXPECT_EQ(request.title, "Select Location of the Browser's Executable");
  EXPECT_EQ(request.initialFolder, "C:\\program");
  EXPECT_EQ(request.filter, "Executables (*.exe)|*.exe");
}

TEST_F(AddBrowserForm, ACancelledBrowseChangesNothing) {
  Edit({"", "old"}, [](QWidget& form) {
    Click(form, "btnBrowse");
    EXPECT_EQ(Find<QLineEdit>(form, "browserLocation").text(), "old");
    EXPECT_FALSE(Find<QPushButton>(form, "OKButton").isEnabled());
  });
}

TEST_F(AddBrowserForm, ACommandLineStaysAsTyped) {
  EXPECT_EQ(Edit({"a", ""},
                 [](QWidget& form) {
                   Type(Find<QLineEdit>(form, "browserLocation"), "/usr/bin/fox --new-window");
                   QTest::keyClick(&form, Qt::Key_Return);
                 }),
            "a|/usr/bin/fox --new-window");
}

TEST_F(AddBrowserForm, LineBreaksOfAPastedTextAreRemoved) {
  EXPECT_EQ(Edit({},
                 [](QWidget& form) {
                   QApplication::clipboard()->setText("Fire\r\nfox\n");
                   Find<QLineEdit>(form, "browserName").paste();
                   QApplication::clipboard()->setText("C:\\fox\r\n");
                   Find<QLineEdit>(form, "browserLocation").paste();
                   Click(form, "OKButton");
                 }),
            "Firefox|C:\\fox");
}

TEST_F(AddBrowserForm, WithoutDrivesALocationIsShownAsANativePath) {
  paths = env::PathMap({}, "/home/me");
  const auto accept = [](QWidget& form) { Click(form, "OKButton"); };
  for (const char* location : {"Z:\\usr\\bin\\fox", "Z:\\home\\me\\fox", "fox --new", "D:\\fox.exe"}) {
    EXPECT_EQ(Edit({"a", location}, accept), std::string("a|") + location) << "not edited";
  }
  const auto type = [](const char* typed, const char* shown) {
    return [=](QWidget& form) {
      auto& box = Find<QLineEdit>(form, "browserLocation");
      Type(box, typed);
      EXPECT_EQ(box.text(), typed);
      Find<QWidget>(form, "browserName").setFocus();
      EXPECT_EQ(box.text(), shown);
      Click(form, "OKButton");
    };
  };
  EXPECT_EQ(Edit({"a", "Z:\\bin\\b"}, type("/usr/bin/fox", "/usr/bin/fox")), "a|Z:\\usr\\bin\\fox");
  EXPECT_EQ(Edit({"a", "Z:\\bin\\b"}, type("C:\\fox", "/home/me/fox")), "a|C:\\fox");
  files.answer.result = "C:\\browser";
  EXPECT_EQ(Edit({"a", ""},
                 [](QWidget& form) {
                   Click(form, "btnBrowse");
                   EXPECT_EQ(Find<QLineEdit>(form, "browserLocation").text(), "/home/me/browser");
                   Click(form, "OKButton");
                 }),
            "a|C:\\browser");
}

}  // namespace
}  // namespace vantorium::ui
