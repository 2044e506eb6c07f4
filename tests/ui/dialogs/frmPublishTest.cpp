#include "tests/ui/CreateGalleryHarness.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::GetsFocus;
using fakes::Type;

class PublishForm : public testing::Test {
 protected:
  /// Drives the dialog. Returns true if it was closed with OK.
  bool Drive(const std::function<void(QWidget&)>& drive, bool hideIndexFile = false) {
    frmPublish form(harness.ServerFile(), harness.boxes, nullptr);
    form.SetHideIndexFile(hideIndexFile);
    QObject::connect(&form, &frmPublish::Left, [this] { ++left; });
    DriveModal([&] { form.exec(); }, drive);
    timeout = form.GetTimeout();
    return form.QueryPublish();
  }
  static QString Text(QWidget& form, const char* name) { return Find<QLineEdit>(form, name).text(); }
  static bool IsEnabled(QWidget& form, const char* name) { return Find<QWidget>(form, name).isEnabled(); }
  /// Presses New and enters a name.
  static void AddNew(QWidget& form, const QString& name) {
    DriveModal([&] { Click(form, "btnNew"); },
               [&](QWidget& question) {
                 Type(Find<QLineEdit>(question, "textServerName"), name);
                 Click(question, "OKButton");
               });
  }

  fakes::CreateGalleryHarness harness;
  int left = 0;
  int timeout = 0;
};

TEST_F(PublishForm, ShowsThePreferredServer) {
  harness.WriteServers(0);
  Drive([](QWidget& form) {
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").currentText(), "One");
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").count(), 2);
    EXPECT_EQ(Text(form, "textServerURL"), "one.example.org");
    EXPECT_EQ(Text(form, "textUserName"), "me");
    EXPECT_EQ(Text(form, "textGalleryIndexPath"), "a/b");
    EXPECT_EQ(Text(form, "textGalleryIndexFile"), "start.htm");
    EXPECT_EQ(Text(form, "textJumpTo"), "www");
    EXPECT_EQ(Text(form, "textTimeout"), "0");
    EXPECT_TRUE(IsEnabled(form, "OKButton"));
    EXPECT_TRUE(IsEnabled(form, "btnDelete"));
    EXPECT_TRUE(IsEnabled(form, "CancelButton"));
  });
}

TEST_F(PublishForm, TheIndexFileIsHiddenForAFolder) {
  for (const bool hide : {true, false}) {
    Drive(
        [hide](QWidget& form) {
          EXPECT_EQ(Find<QLabel>(form, "lblGalleryIndexFile").isVisible(), !hide);
          EXPECT_EQ(Find<QLineEdit>(form, "textGalleryIndexFile").isVisible(), !hide);
        },
        hide);
  }
}

TEST_F(PublishForm, AServerChosenWithTheKeyboardBecomesThePreferredOne) {
  EXPECT_TRUE(Drive([](QWidget& form) {
    auto& combo = Find<QComboBox>(form, "comboServers");
    combo.setFocus();
    QTest::keyClick(&combo, Qt::Key_Down);
    EXPECT_EQ(Text(form, "textServerURL"), "two.example.org");
    EXPECT_EQ(Text(form, "textUserName"), "anonymous");
    QTest::keyClick(&form, Qt::Key_Return);
  }));
  EXPECT_NE(harness.ServerText().find("PreferredServer=\"2\""), std::string::npos) << harness.ServerText();
  EXPECT_GE(left, 1);
}

TEST_F(PublishForm, TypedFieldsAreConvertedAndWritten) {
  EXPECT_TRUE(Drive([](QWidget& form) {
    Type(Find<QLineEdit>(form, "textServerURL"), "host\\a");
    Type(Find<QLineEdit>(form, "textUserName"), "domain\\some body");
    Type(Find<QLineEdit>(form, "textJumpTo"), "web\\my site");
    Type(Find<QLineEdit>(form, "textGalleryIndexPath"), "my gallery\\one");
    Type(Find<QLineEdit>(form, "textGalleryIndexFile"), "my start.htm");
    Type(Find<QLineEdit>(form, "textTimeout"), "30s");
    Click(form, "OKButton");
  }));
  const std::string text = harness.ServerText();
  for (const char* line : {"ServerURL1=\"host/a\"", "UserName1=\"domain\\some body\"", "JumpTo1=\"web/my site\"",
                           "IndexFile1=\"my_gallery/one/my_start.htm\"", "TimeOut1=\"15\""}) {
    EXPECT_NE(text.find(line), std::string::npos) << line << " in " << text;
  }
  EXPECT_EQ(timeout, 30);
}

TEST_F(PublishForm, LineEndsAreNotPasted) {
  EXPECT_TRUE(Drive([](QWidget& form) {
    QApplication::clipboard()->setText("pasted\r\n");
    for (const char* name :
         {"textServerURL", "textUserName", "textJumpTo", "textGalleryIndexPath", "textGalleryIndexFile"}) {
      auto& box = Find<QLineEdit>(form, name);
      box.selectAll();
      box.paste();
      EXPECT_EQ(box.text(), "pasted") << name;
    }
    DriveModal([&] { Click(form, "btnNew"); },
               [](QWidget& question) {
                 Find<QLineEdit>(question, "textServerName").paste();
                 Click(question, "OKButton");
               });
    Type(Find<QLineEdit>(form, "textServerURL"), "h");
    Click(form, "OKButton");
  }));
  EXPECT_TRUE(harness.boxes.boxes.empty());
  EXPECT_NE(harness.ServerText().find("ServerURL1=\"pasted\"\r\n"), std::string::npos) << harness.ServerText();
  EXPECT_NE(harness.ServerText().find("ServerName3=\"pasted\"\r\n"), std::string::npos) << harness.ServerText();
}

TEST_F(PublishForm, AKeyReplacesTheSelection) {
  Drive([](QWidget& form) {
    auto& box = Find<QLineEdit>(form, "textGalleryIndexPath");
    box.setSelection(0, 1);
    QTest::keyClick(&box, Qt::Key_Space);
    EXPECT_EQ(box.text(), "_/b");
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), "/b");
  });
}

TEST_F(PublishForm, OKRequiresAHost) {
  EXPECT_FALSE(Drive([](QWidget& form) {
    Type(Find<QLineEdit>(form, "textServerURL"), "");
    EXPECT_FALSE(IsEnabled(form, "OKButton"));
    QTest::keyClick(&form, Qt::Key_Return);
    EXPECT_TRUE(form.isVisible());
    Type(Find<QLineEdit>(form, "textServerURL"), "h");
    EXPECT_TRUE(IsEnabled(form, "OKButton"));
  }));
}

TEST_F(PublishForm, AnIndexFileWithAPathKeepsTheDialogOpenAndGetsTheFocus) {
  EXPECT_FALSE(Drive([](QWidget& form) {
    Type(Find<QLineEdit>(form, "textGalleryIndexFile"), "a/b.htm");
    Type(Find<QLineEdit>(form, "textServerURL"), "ftp://host/");
    Click(form, "OKButton");
    EXPECT_TRUE(form.isVisible());
    EXPECT_TRUE(GetsFocus(form, "textGalleryIndexFile"));
    EXPECT_EQ(Text(form, "textServerURL"), "host/");
  }));
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Invalid Index File Name");
}

TEST_F(PublishForm, ANewServerIsNamedInADialog) {
  EXPECT_TRUE(Drive([this](QWidget& form) {
    AddNew(form, "Three");
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").currentText(), "Three");
    EXPECT_EQ(Text(form, "textGalleryIndexPath"), "gallery");
    EXPECT_TRUE(GetsFocus(form, "textServerURL"));
    EXPECT_FALSE(IsEnabled(form, "OKButton"));
    EXPECT_FALSE(IsEnabled(form, "CancelButton"));
    EXPECT_NE(harness.ServerText().find("ServerName3=\"Three\""), std::string::npos);
    QTest::keyClicks(&Find<QLineEdit>(form, "textServerURL"), "three.example.org");
    Click(form, "OKButton");
  }));
  EXPECT_NE(harness.ServerText().find("ServerURL3=\"three.example.org\""), std::string::npos) << harness.ServerText();
}

TEST_F(PublishForm, ALongNameDoesNotWidenTheDialog) {
  publish::ServerProfile profile = harness.kOne;
  int width = 0;
  Drive([&](QWidget& form) { width = form.width(); });
  profile.ServerName = std::string(1000, 'x');
  publish::WriteServerList({profile}, 0, harness.ServerFile());
  Drive([&](QWidget& form) { EXPECT_EQ(form.width(), width); });
}

TEST_F(PublishForm, ADuplicateNameAddsNothing) {
  Drive([](QWidget& form) {
    AddNew(form, "Two");
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").count(), 2);
    EXPECT_TRUE(IsEnabled(form, "CancelButton"));
  });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Name Exists");
}

TEST_F(PublishForm, ANewServerCanBeCancelled) {
  Drive([](QWidget& form) {
    DriveModal([&] { Click(form, "btnNew"); },
               [](QWidget& question) {
                 auto& name = Find<QLineEdit>(question, "textServerName");
                 EXPECT_EQ(name.selectedText(), "Server");
                 EXPECT_TRUE(name.hasFocus());
                 QTest::keyClick(&name, Qt::Key_Delete);
                 EXPECT_FALSE(IsEnabled(question, "OKButton"));
                 QTest::keyClick(&name, Qt::Key_Return);
                 EXPECT_TRUE(question.isVisible());
                 Click(question, "CancelButton");
                 EXPECT_FALSE(question.isVisible());
               });
    DriveModal([&] { Click(form, "btnNew"); }, [](QWidget& question) { QTest::keyClick(&question, Qt::Key_Escape); });
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").count(), 2);
    EXPECT_TRUE(IsEnabled(form, "CancelButton"));
  });
}

TEST_F(PublishForm, DeletingEveryServerLeavesAnEmptyDialogThatCanBeClosed) {
  EXPECT_FALSE(Drive([](QWidget& form) {
    Click(form, "btnDelete");
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").currentText(), "Two");
    EXPECT_EQ(Text(form, "textServerURL"), "two.example.org");
    EXPECT_FALSE(IsEnabled(form, "CancelButton"));
    EXPECT_TRUE(IsEnabled(form, "OKButton"));
    Click(form, "btnDelete");
    EXPECT_EQ(Find<QComboBox>(form, "comboServers").count(), 0);
    EXPECT_EQ(Text(form, "textServerURL"), "");
    EXPECT_FALSE(IsEnabled(form, "btnDelete"));
    EXPECT_FALSE(IsEnabled(form, "OKButton"));
    EXPECT_TRUE(IsEnabled(form, "btnNew"));
    QTest::keyClick(&form, Qt::Key_Escape);
    EXPECT_FALSE(form.isVisible());
  }));
  EXPECT_NE(harness.ServerText().find("ServerCount=\"2\""), std::string::npos);
}

TEST_F(PublishForm, CancelKeepsTheFileAndShowsTheInitialServerAgain) {
  const std::string before = harness.ServerText();
  for (const bool byButton : {true, false}) {
    EXPECT_FALSE(Drive([byButton](QWidget& form) {
      Type(Find<QLineEdit>(form, "textUserName"), "x");
      Find<QComboBox>(form, "comboServers").setCurrentIndex(1);
      byButton ? Click(form, "CancelButton") : QTest::keyClick(&form, Qt::Key_Escape);
      EXPECT_EQ(Find<QComboBox>(form, "comboServers").currentText(), "One");
    }));
    EXPECT_EQ(harness.ServerText(), before);
  }
}

TEST_F(PublishForm, AMissingFileIsReportedAndGivesAnEmptyDialog) {
  std::filesystem::remove(harness.ServerFile());
  Drive([](QWidget& form) { EXPECT_FALSE(IsEnabled(form, "textServerURL")); });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "File Error");
}

TEST_F(PublishForm, TheSwitchesAreLastAndAreStored) {
  harness.WriteServers(0);
  EXPECT_TRUE(Drive([](QWidget& form) {
    auto& passive = Find<QCheckBox>(form, "checkPassive");
    auto& encrypted = Find<QCheckBox>(form, "checkEncrypted");
    EXPECT_FALSE(passive.isChecked());
    EXPECT_FALSE(encrypted.isChecked());
    EXPECT_FALSE(IsEnabled(form, "btnForgetCertificate"));
    Find<QWidget>(form, "textTimeout").setFocus();
    for (const char* next : {"checkPassive", "checkEncrypted", "OKButton"}) {
      QTest::keyClick(form.focusWidget(), Qt::Key_Tab);
      EXPECT_TRUE(GetsFocus(form, next)) << next;
    }
    for (QCheckBox* box : {&passive, &encrypted}) {
      QTest::keyClick(box, Qt::Key_Space);
      EXPECT_TRUE(box->isChecked());
      EXPECT_NE(box->text().indexOf('&'), -1) << "a mnemonic";
    }
    Click(form, "OKButton");
  }));
  EXPECT_NE(harness.ServerText().find("JumpTo1=\"www\"\r\nPassive1=\"1\"\r\nEncrypted1=\"1\"\r\nServerName2"),
            std::string::npos)
      << harness.ServerText();
}

TEST_F(PublishForm, AnAcceptedCertificateCanBeForgotten) {
  publish::ServerProfile profile = harness.kOne;
  profile.Encrypted = true;
  profile.Fingerprint = "0F";
  for (int byte = 1; byte < 32; ++byte) profile.Fingerprint += ":0F";
  publish::WriteServerList({profile}, 0, harness.ServerFile());
  EXPECT_TRUE(Drive([](QWidget& form) {
    EXPECT_TRUE(Find<QCheckBox>(form, "checkEncrypted").isChecked());
    EXPECT_TRUE(IsEnabled(form, "btnForgetCertificate"));
    Click(form, "btnForgetCertificate");
    EXPECT_FALSE(IsEnabled(form, "btnForgetCertificate"));
    EXPECT_TRUE(GetsFocus(form, "checkEncrypted"));
    Click(form, "OKButton");
  }));
  EXPECT_EQ(harness.ServerText().find("Fingerprint"), std::string::npos) << harness.ServerText();
}

}  // namespace
}  // namespace vantorium::ui
