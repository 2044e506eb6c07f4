#include "tests/ui/CreateGalleryHarness.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::Find;
using fakes::GetsFocus;
using fakes::Type;
using Controls = std::vector<const char*>;

const Controls kOptions = {"optionCreateGallery", "optionUploadGallery", "optionUploadFolder"};
const Controls kLocalFields = {"textCreateFilePath", "btnBrowseCreateFilePath"};
const Controls kPublishFields = {"textPublishDestination", "btnBrowsePublishDestination", "textPublishPassword"};
const Controls kUploadFields = {"textUploadDestination", "btnBrowseUploadDestination", "textUploadPassword",
                                "textUploadSourceFolder", "btnBrowseUploadSourceFolder"};
const Controls kBoxes = {"checkCreateImages", "checkCreateThumbnails", "checkCreateHTMLFiles", "checkOverwrite"};

class CreateForm : public testing::Test {
 protected:
  std::optional<generation::RunOrder> Ask(const std::function<void(QWidget&)>& drive) {
    std::optional<generation::RunOrder> order;
    DriveModal([&] { order = form.Ask(); }, drive);
    return order;
  }
  static QString Text(QWidget& form, const char* name) { return Find<QLineEdit>(form, name).text(); }
  static void ExpectEnabled(QWidget& form, const Controls& controls, bool enabled) {
    for (const char* name : controls) EXPECT_EQ(Find<QWidget>(form, name).isEnabled(), enabled) << name;
  }
  static void Uncheck(QWidget& form, const Controls& boxes) {
    for (const char* name : boxes) {
      if (Find<QCheckBox>(form, name).isChecked()) Click(form, name);
    }
  }
  static QLineEdit::EchoMode Echo(QWidget& form, const char* name) { return Find<QLineEdit>(form, name).echoMode(); }

  fakes::CreateGalleryHarness harness;
  frmCreateGallery form{harness.Parts(), nullptr};
};

TEST_F(CreateForm, OpensForALocalGalleryWithEverythingChecked) {
  harness.preferences.CreateFolder = "D:\\web";
  const auto order = Ask([](QWidget& form) {
    EXPECT_EQ(form.windowTitle(), "Create Gallery");
    EXPECT_TRUE(Find<QRadioButton>(form, "optionCreateGallery").isChecked());
    EXPECT_EQ(Text(form, "textCreateFilePath"), "D:\\web\\index.htm");
    for (const char* name : kBoxes) EXPECT_TRUE(Find<QCheckBox>(form, name).isChecked()) << name;
    QTest::keyClick(&form, Qt::Key_Return);
  });
  ASSERT_TRUE(order);
  EXPECT_EQ(order->Mode, generation::GenerationMode::Create);
  EXPECT_EQ(order->OutputFolder + order->IndexFileName, "D:\\web\\index.htm");
  EXPECT_TRUE(order->CreateImages && order->CreateThumbnails && order->CreateHTML && order->Overwrite);
}

TEST_F(CreateForm, TheFieldsOfTheChosenOptionAreEnabled) {
  Ask([](QWidget& form) {
    for (const char* chosen : kOptions) {
      Click(form, chosen);
      ExpectEnabled(form, kLocalFields, chosen == kOptions[0]);
      ExpectEnabled(form, kPublishFields, chosen == kOptions[1]);
      ExpectEnabled(form, kUploadFields, chosen == kOptions[2]);
      ExpectEnabled(form, kBoxes, chosen != kOptions[2]);
      ExpectEnabled(form, {"frmOptions"}, chosen != kOptions[2]);
    }
  });
}

TEST_F(CreateForm, TheCaptionOfTheChosenOptionIsHighlighted) {
  const auto expectHighlight = [](QWidget& form, const char* chosen) {
    for (const char* name : kOptions) {
      const auto expected = name == chosen ? QPalette::Highlight : QPalette::ButtonText;
      EXPECT_EQ(Find<QWidget>(form, name).palette().color(QPalette::WindowText), form.palette().color(expected))
          << name << " while " << chosen;
    }
  };
  Ask([&](QWidget& form) {
    for (const char* chosen : kOptions) {
      Click(form, chosen);
      expectHighlight(form, chosen);
    }
    QPalette other = form.palette();
    other.setColor(QPalette::Highlight, Qt::magenta);
    form.setPalette(other);
    expectHighlight(form, "optionUploadFolder");
  });
}

TEST_F(CreateForm, OnlyChangesIsOffAndRemovingRequiresIt) {
  auto order = Ask([](QWidget& form) {
    for (const char* name : {"checkOnlyChanges", "checkRemoveUnused"}) {
      EXPECT_FALSE(Find<QCheckBox>(form, name).isChecked()) << name;
    }
    ExpectEnabled(form, {"checkRemoveUnused"}, false);
    Click(form, "checkOnlyChanges");
    ExpectEnabled(form, {"checkRemoveUnused"}, true);
    Click(form, "checkRemoveUnused");
    Click(form, "optionUploadFolder");
    ExpectEnabled(form, {"checkOnlyChanges", "checkRemoveUnused"}, true);
    Click(form, "optionCreateGallery");
    Click(form, "OKButton");
  });
  ASSERT_TRUE(order);
  EXPECT_TRUE(order->OnlyChanges && order->RemoveUnused);
  order = Ask([](QWidget& form) {
    Click(form, "checkOnlyChanges");
    ExpectEnabled(form, {"checkRemoveUnused"}, false);
    Click(form, "OKButton");
  });
  ASSERT_TRUE(order);
  EXPECT_FALSE(order->OnlyChanges || order->RemoveUnused);
}

TEST_F(CreateForm, OverwriteRequiresImagesOrThumbnails) {
  const auto order = Ask([](QWidget& form) {
    Click(form, "checkOverwrite");
    Click(form, "checkCreateImages");
    ExpectEnabled(form, {"checkOverwrite"}, true);
    Click(form, "checkCreateThumbnails");
    ExpectEnabled(form, {"checkOverwrite"}, false);
    Click(form, "checkCreateThumbnails");
    ExpectEnabled(form, {"checkOverwrite"}, true);
    Click(form, "OKButton");
  });
  ASSERT_TRUE(order);
  EXPECT_FALSE(order->CreateImages);
  EXPECT_TRUE(order->CreateThumbnails);
  EXPECT_TRUE(order->CreateHTML);
  EXPECT_FALSE(order->Overwrite);
}

TEST_F(CreateForm, AFilePathIsTypedWithEitherSlashAndCompletedWhenItsBoxIsLeft) {
  const auto order = Ask([](QWidget& form) {
    auto& box = Find<QLineEdit>(form, "textCreateFilePath");
    Type(box, "D:/web");
    EXPECT_EQ(box.text(), "D:\\web");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(box.text(), "D:\\web\\index.htm");
    Type(box, "/home/me/site");
    EXPECT_EQ(box.text(), "/home/me/site");
    QTest::keyClick(&box, Qt::Key_Tab);
    EXPECT_EQ(box.text(), "C:\\site\\index.htm");
    Type(box, "E:");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  ASSERT_TRUE(order);
  EXPECT_EQ(order->OutputFolder + order->IndexFileName, "E:\\index.htm");
}

TEST_F(CreateForm, LineEndsAreNotPasted) {
  const auto order = Ask([](QWidget& form) {
    Click(form, "optionUploadFolder");
    for (const auto& [name, text] : std::vector<std::pair<const char*, const char*>>{
             {"textUploadPassword", "secret\n"}, {"textUploadSourceFolder", "D:\\photos\r\n"}}) {
      QApplication::clipboard()->setText(text);
      auto& box = Find<QLineEdit>(form, name);
      box.selectAll();
      box.paste();
    }
    Click(form, "OKButton");
  });
  ASSERT_TRUE(order);
  EXPECT_EQ(order->Password, "secret");
  EXPECT_EQ(order->OutputFolder, "D:\\photos\\");
}

TEST_F(CreateForm, TheFileCanBeBrowsedFor) {
  harness.fileBrowser.answer.result = "F:\\new\\page.html";
  const auto order = Ask([](QWidget& form) {
    Click(form, "btnBrowseCreateFilePath");
    EXPECT_EQ(Text(form, "textCreateFilePath"), "F:\\new\\page.html");
    Click(form, "OKButton");
  });
  ASSERT_TRUE(order);
  EXPECT_EQ(order->OutputFolder + order->IndexFileName, "F:\\new\\page.html");
  EXPECT_EQ(harness.fileBrowser.requests.size(), 1U);
}

TEST_F(CreateForm, AGalleryIsPublishedOnTheChosenServer) {
  const auto order = Ask([](QWidget& form) {
    Click(form, "optionUploadGallery");
    EXPECT_EQ(Text(form, "textPublishDestination"), "one.example.org/a/b/start.htm");
    Type(Find<QLineEdit>(form, "textPublishPassword"), "old");
    DriveModal([&] { Click(form, "btnBrowsePublishDestination"); },
               [](QWidget& servers) {
                 EXPECT_TRUE(Find<QLineEdit>(servers, "textGalleryIndexFile").isVisible());
                 Type(Find<QLineEdit>(servers, "textServerURL"), "new.example.org");
                 Click(servers, "OKButton");
               });
    EXPECT_EQ(Text(form, "textPublishDestination"), "new.example.org/a/b/start.htm");
    EXPECT_EQ(Text(form, "textUploadDestination"), "new.example.org/a/b");
    EXPECT_EQ(Text(form, "textPublishPassword"), "");
    EXPECT_TRUE(GetsFocus(form, "textPublishPassword"));
    QTest::keyClicks(&Find<QLineEdit>(form, "textPublishPassword"), "secret");
    EXPECT_EQ(Text(form, "textUploadPassword"), "secret");
    QTest::keyClick(&form, Qt::Key_Return);
  });
  ASSERT_TRUE(order);
  EXPECT_EQ(order->Mode, generation::GenerationMode::Publish);
  EXPECT_EQ(order->ServerAddress, "new.example.org");
  EXPECT_EQ(order->UserName, "me");
  EXPECT_EQ(order->RemoteFolder, "a/b/");
  EXPECT_EQ(order->RemoteIndexFileName, "start.htm");
  EXPECT_EQ(order->BaseDirectory, "www");
  EXPECT_EQ(order->Password, "secret");
  EXPECT_EQ(order->Port, 21);
}

TEST_F(CreateForm, AFolderIsUploadedToTheChosenServer) {
  harness.folderBrowser.answers = {"D:\\photos"};
  const auto order = Ask([](QWidget& form) {
    Click(form, "optionUploadFolder");
    EXPECT_EQ(Text(form, "textUploadDestination"), "one.example.org/a/b/");
    DriveModal([&] { Click(form, "btnBrowseUploadDestination"); },
               [](QWidget& servers) {
                 EXPECT_FALSE(Find<QLineEdit>(servers, "textGalleryIndexFile").isVisible());
                 QTest::keyClick(&Find<QWidget>(servers, "comboServers"), Qt::Key_Down);
                 Click(servers, "OKButton");
               });
    EXPECT_EQ(Text(form, "textUploadDestination"), "two.example.org/");
    EXPECT_TRUE(GetsFocus(form, "textUploadPassword"));
    Find<QWidget>(form, "textUploadDestination").setFocus();
    Click(form, "btnBrowseUploadSourceFolder");
    EXPECT_EQ(Text(form, "textUploadSourceFolder"), "D:\\photos");
    EXPECT_TRUE(GetsFocus(form, "textUploadPassword"));
    QTest::keyClicks(&Find<QLineEdit>(form, "textUploadPassword"), "me@home");
    EXPECT_EQ(Text(form, "textPublishPassword"), "me@home");
    Click(form, "OKButton");
  });
  ASSERT_TRUE(order);
  EXPECT_EQ(order->Mode, generation::GenerationMode::Upload);
  EXPECT_EQ(order->ServerAddress, "two.example.org");
  EXPECT_EQ(order->Password, "me@home");
  EXPECT_EQ(order->OutputFolder, "D:\\photos\\");
  EXPECT_NE(harness.ServerText().find("PreferredServer=\"2\""), std::string::npos);
}

TEST_F(CreateForm, ThePasswordOfAnAnonymousUserIsVisible) {
  Ask([](QWidget& form) {
    EXPECT_EQ(Echo(form, "textPublishPassword"), QLineEdit::Password);
    EXPECT_EQ(Echo(form, "textUploadPassword"), QLineEdit::Password);
    Click(form, "optionUploadGallery");
    DriveModal([&] { Click(form, "btnBrowsePublishDestination"); },
               [](QWidget& servers) {
                 Find<QWidget>(servers, "comboServers").setFocus();
                 QTest::keyClick(&Find<QWidget>(servers, "comboServers"), Qt::Key_Down);
                 Click(servers, "OKButton");
               });
    EXPECT_EQ(Echo(form, "textPublishPassword"), QLineEdit::Normal);
    EXPECT_EQ(Echo(form, "textUploadPassword"), QLineEdit::Normal);
  });
}

TEST_F(CreateForm, ACancelledChoiceOfAServerClearsOnlyThePassword) {
  Ask([](QWidget& form) {
    Click(form, "optionUploadGallery");
    Type(Find<QLineEdit>(form, "textPublishPassword"), "secret");
    DriveModal([&] { Click(form, "btnBrowsePublishDestination"); },
               [](QWidget& servers) {
                 Type(Find<QLineEdit>(servers, "textServerURL"), "new.example.org");
                 QTest::keyClick(&servers, Qt::Key_Escape);
               });
    EXPECT_EQ(Text(form, "textPublishDestination"), "one.example.org/a/b/start.htm");
    EXPECT_EQ(Text(form, "textPublishPassword"), "");
  });
}

TEST_F(CreateForm, ATypedDestinationClearsThePasswords) {
  Ask([](QWidget& form) {
    for (const auto& [option, destination] : std::vector<std::pair<const char*, const char*>>{
             {"optionUploadGallery", "textPublishDestination"}, {"optionUploadFolder", "textUploadDestination"}}) {
      Click(form, "optionUploadGallery");
      Type(Find<QLineEdit>(form, "textPublishPassword"), "secret");
      Click(form, option);
      QTest::keyClicks(&Find<QLineEdit>(form, destination), "x");
      EXPECT_EQ(Text(form, "textPublishPassword"), "") << destination;
      EXPECT_EQ(Text(form, "textUploadPassword"), "") << destination;
    }
  });
}

TEST_F(CreateForm, ARunUsesTheTypedDestination) {
  const auto askWith = [this](const char* option, const char* field, const char* destination) {
    return Ask([=](QWidget& form) {
      Click(form, option);
      Type(Find<QLineEdit>(form, "textUploadSourceFolder"), "D:\\photos");
      Type(Find<QLineEdit>(form, field), destination);
      Click(form, "OKButton");
    });
  };
  const auto publish = askWith("optionUploadGallery", "textPublishDestination", "new.example.org/web/page.htm");
  ASSERT_TRUE(publish);
  EXPECT_EQ(publish->ServerAddress, "new.example.org");
  EXPECT_EQ(publish->RemoteFolder, "web/");
  EXPECT_EQ(publish->RemoteIndexFileName, "page.htm");
  const auto upload = askWith("optionUploadFolder", "textUploadDestination", "new.example.org/web");
  ASSERT_TRUE(upload);
  EXPECT_EQ(upload->ServerAddress, "new.example.org");
  EXPECT_EQ(upload->RemoteFolder, "web/");
  EXPECT_TRUE(harness.boxes.boxes.empty());
}

TEST_F(CreateForm, AnInvalidDestinationKeepsTheDialogOpenAndGetsTheFocus) {
  for (const auto& [option, destination] : std::vector<std::pair<const char*, const char*>>{
           {"optionUploadGallery", "textPublishDestination"}, {"optionUploadFolder", "textUploadDestination"}}) {
    harness.boxes.boxes.clear();
    const auto order = Ask([&, &option = option, &destination = destination](QWidget& form) {
      Click(form, option);
      Type(Find<QLineEdit>(form, "textUploadSourceFolder"), "D:\\photos");
      Type(Find<QLineEdit>(form, destination), "gallery.htm");
      Click(form, "OKButton");
      EXPECT_TRUE(form.isVisible()) << option;
      EXPECT_EQ(Text(form, destination), "gallery.htm");
      EXPECT_TRUE(GetsFocus(form, destination)) << option;
      Click(form, "CancelButton");
    });
    ASSERT_EQ(harness.boxes.boxes.size(), 1U) << option;
    EXPECT_EQ(harness.boxes.boxes[0].title, "Invalid Destination");
    EXPECT_FALSE(order);
  }
}

TEST_F(CreateForm, AFolderWithoutADriveKeepsTheDialogOpenAndGetsTheFocus) {
  const auto order = Ask([](QWidget& form) {
    Click(form, "optionUploadFolder");
    auto& box = Find<QLineEdit>(form, "textUploadSourceFolder");
    Type(box, "photos/one");
    Click(form, "OKButton");
    EXPECT_TRUE(form.isVisible());
    EXPECT_EQ(box.text(), "photos\\one\\");
    EXPECT_TRUE(box.hasFocus());
    Type(box, "/home/me/photos");
    QTest::keyClick(&box, Qt::Key_Return);
  });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Invalid Path");
  ASSERT_TRUE(order);
  EXPECT_EQ(order->OutputFolder, "C:\\photos\\");
}

TEST_F(CreateForm, AGalleryWithNothingCheckedKeepsTheDialogOpen) {
  const auto order = Ask([](QWidget& form) {
    Uncheck(form, {"checkCreateImages", "checkCreateThumbnails", "checkCreateHTMLFiles"});
    Click(form, "OKButton");
    EXPECT_TRUE(form.isVisible());
    Click(form, "CancelButton");
  });
  ASSERT_EQ(harness.boxes.boxes.size(), 1U);
  EXPECT_EQ(harness.boxes.boxes[0].title, "Cannot create Gallery");
  EXPECT_FALSE(order);
}

TEST_F(CreateForm, ChoicesAreKeptForTheNextOpeningButNotThePassword) {
  const auto first = Ask([](QWidget& form) {
    Click(form, "optionUploadGallery");
    Click(form, "checkCreateImages");
    Type(Find<QLineEdit>(form, "textPublishPassword"), "secret");
    Click(form, "OKButton");
  });
  ASSERT_TRUE(first);
  EXPECT_EQ(first->Mode, generation::GenerationMode::Publish);
  harness.preferences.CreateFolder = "D:\\later\\";
  EXPECT_FALSE(Ask([](QWidget& form) {
    EXPECT_TRUE(Find<QRadioButton>(form, "optionUploadGallery").isChecked());
    EXPECT_FALSE(Find<QCheckBox>(form, "checkCreateImages").isChecked());
    EXPECT_EQ(Text(form, "textPublishPassword"), "");
    EXPECT_EQ(Text(form, "textCreateFilePath"), "D:\\later\\index.htm");
    QTest::keyClick(&form, Qt::Key_Escape);
  }));
}

TEST_F(CreateForm, MnemonicsAreUnique) {
  QString taken;
  for (const auto* label : form.findChildren<QLabel*>()) taken += label->text() + ' ';
  for (const auto* button : form.findChildren<QAbstractButton*>()) taken += button->text() + ' ';
  std::string mnemonics;
  for (qsizetype at = taken.indexOf('&'); at >= 0; at = taken.indexOf('&', at + 1)) {
    const char letter = taken[at + 1].toLower().toLatin1();
    EXPECT_EQ(mnemonics.find(letter), std::string::npos) << letter << " in " << taken.toStdString();
    mnemonics += letter;
  }
}

}  // namespace
}  // namespace vantorium::ui
