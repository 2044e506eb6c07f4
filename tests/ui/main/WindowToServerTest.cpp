// End to end: galleries and folders sent from the main window to real servers on loopback.
#include "tests/fakes/FilesBelow.h"
#include "tests/fakes/FtpServerProcess.h"
#include "tests/ui/MainWindowHarness.h"

#include <QLineEdit>
#include <QTimer>

namespace vantorium::ui {
namespace {

using fakes::Click;
using fakes::DriveModal;
using fakes::FilesBelow;
using fakes::Find;
using fakes::FtpServerKind;
using fakes::MainWindowHarness;
using fakes::Type;

class WindowToServer : public testing::TestWithParam<FtpServerKind> {
 protected:
  explicit WindowToServer(std::optional<fakes::TestCertificate> certificate = std::nullopt)
      : server(GetParam(), std::move(certificate)) {}
  void SetUp() override {
    harness.ftpPort = server.Port();
    harness.folder.Write("program/vantorium.pub",
                         "[PUBLISH]\r\nServerCount=\"1\"\r\nPreferredServer=\"1\"\r\nServerName1=\"Mine\"\r\n"
                         "ServerURL1=\"elsewhere\"\r\nUserName1=\"nobody\"\r\nIndexFile1=\"web/start.htm\"\r\n"
                         "TimeOut1=\"0\"\r\nJumpTo1=\"\"\r\n");
    harness.Start();
    harness.AddPhotograph("a.jpg");
    harness.AddPhotograph("b.jpg");
  }

  /// Presses `button` of the create dialog and edits the listed server in the dialog that it opens.
  void ChooseServer(QWidget& create, const char* button) {
    DriveModal([&] { Click(create, button); },
               [&](QWidget& publish) {
                 Type(Find<QLineEdit>(publish, "textServerURL"), "127.0.0.1");
                 Type(Find<QLineEdit>(publish, "textUserName"), ToQt(server.User()));
                 Click(publish, "OKButton");
               });
  }
  void Publish(const std::string& password) {
    DriveModal([&] { harness.Trigger("menuActionsCreate"); },
               [&](QWidget& create) {
                 Click(create, "optionUploadGallery");
                 ChooseServer(create, "btnBrowsePublishDestination");
                 Type(Find<QLineEdit>(create, "textPublishPassword"), ToQt(password));
                 Click(create, "OKButton");
               });
  }
  [[nodiscard]] std::string Log() const { return harness.folder.Read("program/ftplog.txt"); }

  fakes::FtpServerProcess server;
  MainWindowHarness harness;
};

INSTANTIATE_TEST_SUITE_P(To, WindowToServer, testing::Values(FtpServerKind::Vsftpd, FtpServerKind::Proftpd),
                         [](const auto& test) { return test.param == FtpServerKind::Vsftpd ? "vsftpd" : "ProFTPD"; });

TEST_P(WindowToServer, APublishedGalleryEqualsTheCreatedOne) {
  Publish(server.Password());
  EXPECT_TRUE(harness.boxes.boxes.empty()) << harness.TitleOfLastBox() << Log();
  DriveModal([&] { harness.Trigger("tbMainCreate"); },
             [&](QWidget& create) {
               Click(create, "optionCreateGallery");
               Type(Find<QLineEdit>(create, "textCreateFilePath"), "T:\\out\\start.htm");
               Click(create, "OKButton");
             });
  const auto created = FilesBelow(harness.folder.Path() / "out");
  EXPECT_GE(created.size(), 8U);
  EXPECT_EQ(FilesBelow(server.Root() / "web"), created);
  EXPECT_EQ(Log().find(server.Password()), std::string::npos);
  EXPECT_TRUE(harness.window->isEnabled());
}

TEST_P(WindowToServer, AFolderIsUploadedWithAllItsContents) {
  harness.folder.Write("site/index.htm", "index");
  harness.folder.Write("site/sub/deep/x.txt", "x");
  DriveModal([&] { harness.Trigger("menuActionsCreate"); },
             [&](QWidget& create) {
               Click(create, "optionUploadFolder");
               ChooseServer(create, "btnBrowseUploadDestination");
               Type(Find<QLineEdit>(create, "textUploadSourceFolder"), "T:\\site");
               Type(Find<QLineEdit>(create, "textUploadPassword"), ToQt(server.Password()));
               Click(create, "OKButton");
             });
  EXPECT_EQ(FilesBelow(server.Root() / "web"), FilesBelow(harness.folder.Path() / "site")) << Log();
}

/// The window and a server that demands TLS.
class WindowToEncryptedServer : public WindowToServer {
 protected:
  WindowToEncryptedServer() : WindowToServer(fakes::TestCertificate()) {}

  /// Publishes with both switches on.
  void PublishSecurely() {
    DriveModal([&] { harness.Trigger("menuActionsCreate"); },
               [&](QWidget& create) {
                 Click(create, "optionUploadGallery");
                 DriveModal([&] { Click(create, "btnBrowsePublishDestination"); },
                            [&](QWidget& publish) {
                              Type(Find<QLineEdit>(publish, "textServerURL"), "127.0.0.1");
                              Type(Find<QLineEdit>(publish, "textUserName"), ToQt(server.User()));
                              Click(publish, "checkPassive");
                              Click(publish, "checkEncrypted");
                              Click(publish, "OKButton");
                            });
                 TypePasswordAndStart(create);
               });
  }
  /// Publishes to the server as it is in the list.
  void PublishAgain() {
    DriveModal([&] { harness.Trigger("menuActionsCreate"); },
               [&](QWidget& create) {
                 Click(create, "optionUploadGallery");
                 TypePasswordAndStart(create);
               });
  }
  void TypePasswordAndStart(QWidget& create) {
    Type(Find<QLineEdit>(create, "textPublishPassword"), ToQt(server.Password()));
    Click(create, "OKButton");
  }
  [[nodiscard]] std::string ServerFile() const { return harness.folder.Read("program/vantorium.pub"); }
};
INSTANTIATE_TEST_SUITE_P(To, WindowToEncryptedServer,
                         testing::Values(FtpServerKind::Vsftpd, FtpServerKind::Proftpd, FtpServerKind::Pureftpd),
                         [](const auto& test) { return fakes::NameOf(test.param); });

TEST_P(WindowToEncryptedServer, AGalleryEqualsTheCreatedOneAndTheCertificateIsAskedAboutOnce) {
  PublishSecurely();
  ASSERT_EQ(harness.boxes.boxes.size(), 1U) << harness.TitleOfLastBox() << Log();
  EXPECT_EQ(harness.boxes.boxes[0].title, "Unknown Certificate");
  EXPECT_NE(ServerFile().find("Fingerprint1="), std::string::npos) << ServerFile();
  PublishAgain();
  EXPECT_EQ(harness.boxes.boxes.size(), 1U) << harness.TitleOfLastBox() << Log();
  DriveModal([&] { harness.Trigger("tbMainCreate"); },
             [&](QWidget& create) {
               Click(create, "optionCreateGallery");
               Type(Find<QLineEdit>(create, "textCreateFilePath"), "T:\\out\\start.htm");
               Click(create, "OKButton");
             });
  EXPECT_EQ(FilesBelow(server.Root() / "web"), FilesBelow(harness.folder.Path() / "out"));
}

/// Uses ProFTPD only, because vsftpd is configured to accept every password.
class ServerWithPassword : public WindowToServer {};
INSTANTIATE_TEST_SUITE_P(To, ServerWithPassword, testing::Values(FtpServerKind::Proftpd),
                         [](const auto&) { return "ProFTPD"; });

TEST_P(ServerWithPassword, AWrongPasswordFailsWithAReadableLogAndAWindowToClose) {
  // A failed run's window stays open until its button, now "&Close", is pressed.
  QTimer closer;
  int shown = 0;
  QObject::connect(&closer, &QTimer::timeout, [&] {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (window->objectName() != "frmProgress" || !window->isVisible()) continue;
      auto& button = Find<QAbstractButton>(*window, "CancelButton");
      if (button.text() != "&Close") continue;
      ++shown;
      EXPECT_TRUE(Find<QWidget>(*window, "btnShowLog").isVisible());
      Click(*window, "btnShowLog");
      Click(button);
    }
  });
  closer.start(20);
  Publish("wrong");
  EXPECT_EQ(shown, 1);
  EXPECT_EQ(harness.shell.opened, (std::vector<std::string>{"T:\\program/ftplog.txt"}));
  EXPECT_NE(Log().find("530"), std::string::npos) << Log();
  EXPECT_EQ(Log().find("wrong"), std::string::npos);
  EXPECT_TRUE(FilesBelow(server.Root()).empty());
  EXPECT_TRUE(harness.window->isEnabled());
}

}  // namespace
}  // namespace vantorium::ui
