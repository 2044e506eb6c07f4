// Encrypted sessions with a scripted server: what the client sends before it accepts the certificate.
#include "tests/publish/EncryptedSession.h"

namespace vantorium::publish {
namespace {

using fakes::ScriptedFtpServer;
using fakes::TestCertificate;
using Session = ScriptedFtpServer::Session;
using Texts = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

TEST(EncryptedSession, BothConnectionsAreEncryptedBeforeTheUsersNameIsSent) {
  for (const bool passive : {false, true}) {
    EncryptedSession session;
    session.client.ftp.Options.passive = passive;
    session.LogIn();
    EXPECT_EQ(session.server.Commands(), (Texts{"AUTH TLS", "PBSZ 0", "PROT P", "USER me", "PASS open sesame"}));
    EXPECT_TRUE(session.Copy()) << session.client.window.log;
    EXPECT_TRUE(session.Copy("large.jpg")) << session.client.window.log;
    EXPECT_EQ(session.server.Files().at("t.jpg"), std::string(kLargerThanAllBuffers, 'x'));
    EXPECT_EQ(session.server.ResumedSessions(), 2) << "the control connection's session is resumed";
    EXPECT_TRUE(session.client.boxes.boxes.empty());
  }
}

TEST(EncryptedSession, AServerThatRefusesEncryptionGetsNoUserName) {
  for (const char* reply :
       {"500 What\r\n", "530 Please log in\r\n", "502 No\r\n", "334 Go on\r\n", "234 Go\r\n230 In\r\n"}) {
    EncryptedSession session(Saying("AUTH", reply));
    EXPECT_FALSE(session.Connect()) << reply;
    EXPECT_EQ(session.Problem(), "The server \"127.0.0.1\" offers no encryption (TLS).") << reply;
    EXPECT_FALSE(session.client.ftp.IsConnected()) << reply;
    EXPECT_EQ(session.server.Commands(), Texts{"AUTH TLS"}) << reply;
  }
}

TEST(EncryptedSession, AServerThatDoesNotEncryptFilesGetsNoUserName) {
  for (const char* verb : {"PBSZ", "PROT"}) {
    EncryptedSession session(Saying(verb, "536 No\r\n"));
    EXPECT_FALSE(session.Connect());
    EXPECT_EQ(session.Problem(), "The server \"127.0.0.1\" offers no encryption for files (PROT P).");
    EXPECT_FALSE(session.HasSentCredentials());
  }
}

TEST(EncryptedSession, AServerThatEndsWhileTheUserDecidesIsReported) {
  EncryptedSession session(On("PBSZ", [](Session& server, const std::string&) { server.HangUp(); }));
  EXPECT_FALSE(session.Connect());
  EXPECT_EQ(session.Problem(), "The server \"127.0.0.1\" has ended the connection.");
  EXPECT_FALSE(session.HasSentCredentials());
}

TEST(EncryptedSession, AReplyThatIsNotTlsIsAFailure) {
  EncryptedSession session(On("AUTH", [](Session& server, const std::string&) {
    server.Say("234 Go on\r\n");
    // Without the pause the text could arrive with the reply, which is refused too.
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    server.Say("200 this is no TLS\r\n");
    server.StaySilent();
  }));
  EXPECT_FALSE(session.Connect());
  EXPECT_FALSE(session.HasSentCredentials());
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_NE(session.Problem(), "");
}

TEST(EncryptedSession, VersionsBefore12AreRefused) {
  const TestCertificate shown;
  fakes::TlsServer old(shown);
  old.SpeakOldVersionsOnly();
  EncryptedSession session(On("AUTH",
                              [&](Session& server, const std::string&) {
                                server.Say("234 Go on\r\n");
                                if (!server.StartTls(old)) server.HangUp();
                              }),
                           shown);
  EXPECT_FALSE(session.Connect());
  EXPECT_FALSE(session.HasSentCredentials());
}

TEST(EncryptedSession, AHandshakeCanBeCancelled) {
  EncryptedSession session(On("AUTH", [](Session& server, const std::string&) {
    server.Say("234 Go on\r\n");
    server.StaySilent();
  }));
  session.client.loop.onTurn = [&](int) {
    if (!session.server.HasHeard("AUTH") || session.client.window.log.find("234") == std::string::npos) return;
    session.client.cancel.isRequested = true;
    session.client.ftp.FTPCancelData();
  };
  EXPECT_FALSE(session.Connect());
  EXPECT_TRUE(session.client.cancel.isRequested);
}

TEST(EncryptedSession, AnUnknownCertificateIsShownAndAskedAboutOnce) {
  EncryptedSession session({}, TestCertificate({.commonName = "Ann's server"}));
  const std::string fingerprint = std::exchange(session.client.ftp.Options.fingerprint, "");
  session.LogIn();
  EXPECT_TRUE(session.Copy());
  EXPECT_EQ(session.prompt.hosts, Texts{"127.0.0.1"});
  const ServerCertificate& shown = session.prompt.certificates.at(0);
  EXPECT_EQ(shown.subject, "CN = Ann's server");
  EXPECT_EQ(shown.issuer, "CN = Ann's server");
  EXPECT_EQ(shown.names, (Texts{"localhost", "127.0.0.1", "::1"}));
  EXPECT_EQ(shown.fingerprint, fingerprint);
  EXPECT_EQ(shown.validFrom.size(), 10U);
  EXPECT_LT(shown.validFrom, shown.validUntil);
  EXPECT_EQ(shown.doubt, "self-signed certificate");
}

TEST(EncryptedSession, WithoutAnAcceptedCertificateNoUserNameOrPasswordIsSent) {
  for (const bool hasPrompt : {true, false}) {
    EncryptedSession session;
    session.client.ftp.Options.fingerprint.clear();
    session.prompt.answer = false;
    if (!hasPrompt) session.client.ftp.Certificates = nullptr;
    EXPECT_FALSE(session.Connect());
    EXPECT_NE(session.Problem().find("is not trusted: self-signed certificate"), std::string::npos)
        << session.Problem();
    EXPECT_EQ(session.server.Commands(), Texts{"AUTH TLS"});
  }
}

TEST(EncryptedSession, AChangedCertificateIsRefusedEvenIfTheSystemTrustsIt) {
  const TestCertificate changed;
  const SystemCertificate trusted(changed);
  EncryptedSession session({}, changed);
  session.client.ftp.Options.fingerprint = TestCertificate().fingerprint;
  EXPECT_FALSE(session.Connect());
  EXPECT_NE(session.Problem().find("has changed"), std::string::npos) << session.Problem();
  EXPECT_NE(session.Problem().find(changed.fingerprint), std::string::npos) << "the new fingerprint is shown";
  EXPECT_TRUE(session.prompt.hosts.empty());
  EXPECT_EQ(session.server.Commands(), Texts{"AUTH TLS"});
}

TEST(EncryptedSession, TheUserIsNotAskedIfTheSystemTrustsTheCertificate) {
  const TestCertificate shown;
  const SystemCertificate trusted(shown);
  for (const char* host : {"127.0.0.1", "localhost"}) {
    EncryptedSession session({}, shown);
    session.client.ftp.Options.fingerprint.clear();
    EXPECT_TRUE(session.Connect(host)) << session.Problem();
    EXPECT_TRUE(session.prompt.hosts.empty()) << host;
  }
}

TEST(EncryptedSession, ACertificateForAnotherHostOrTimeIsNotTrusted) {
  const std::pair<TestCertificate::Properties, const char*> cases[] = {
      {{.names = "DNS:elsewhere.example"}, "hostname mismatch"},
      {{.firstDay = -9, .lastDay = -2}, "certificate has expired"},
      {{.firstDay = 2, .lastDay = 9}, "certificate is not yet valid"}};
  for (const auto& [properties, doubt] : cases) {
    const TestCertificate shown(properties);
    const SystemCertificate trusted(shown);
    EncryptedSession session({}, shown);
    session.client.ftp.Options.fingerprint.clear();
    session.prompt.answer = false;
    EXPECT_FALSE(session.Connect("localhost")) << doubt;
    ASSERT_EQ(session.prompt.certificates.size(), 1U) << doubt;
    EXPECT_EQ(session.prompt.certificates[0].doubt, doubt);
  }
}

}  // namespace
}  // namespace vantorium::publish
