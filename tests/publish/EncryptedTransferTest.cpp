// Encrypted transfers with a scripted server: how files are sent, and how their connections end.
#include "tests/publish/EncryptedSession.h"

namespace vantorium::publish {
namespace {

using fakes::ScriptedFtpServer;
using fakes::TestCertificate;
using Session = ScriptedFtpServer::Session;
using Texts = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

TEST(EncryptedTransfer, ADataConnectionWithAnotherCertificateGetsNoFile) {
  const fakes::TlsServer other{TestCertificate()};
  EncryptedSession session(On("STOR", [&](Session& server, const std::string&) {
    server.Say("150 Send\r\n");
    if (server.OpenData() && server.EncryptData(other)) std::ignore = server.Receive("received");
    server.DropData();
    server.Say("426 Broken\r\n");
  }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_EQ(session.server.Files(), (Files{{"received", ""}}));
}

TEST(EncryptedTransfer, ADataConnectionThatIsNotEncryptedGetsNoFile) {
  EncryptedSession session(On("STOR", [](Session& server, const std::string&) {
    server.Say("150 Send\r\n");
    std::ignore = server.OpenData() && server.Receive("received", 100);
    server.DropData();
    server.Say("522 Session reuse required\r\n");
  }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_EQ(session.server.Files().at("received").find("12345"), std::string::npos);
  EXPECT_NE(session.client.window.log.find("522 Session reuse required"), std::string::npos)
      << session.client.window.log;
}

TEST(EncryptedTransfer, ADataConnectionThatEndsInMidFileIsAFailureWhateverTheServerReplies) {
  for (const char* name : {"small.jpg", "large.jpg"}) {
    EncryptedSession session(On("STOR", [&](Session& server, const std::string& target) {
      server.Say("150 Send\r\n");
      if (!server.OpenData() || !server.EncryptData()) return;
      std::ignore = server.Receive(target, 3);
      server.DropData();
      server.Say("226 Stored\r\n");
    }));
    EXPECT_FALSE(session.LogIn().Copy(name)) << name;
    EXPECT_TRUE(session.server.WaitToHear("DELE t.jpg")) << name;
  }
}

TEST(EncryptedTransfer, AControlConnectionThatEndsInMidFileIsAFailure) {
  EncryptedSession session(On("STOR", [](Session& server, const std::string& target) {
    server.Say("150 Send\r\n");
    if (!server.OpenData() || !server.EncryptData()) return;
    std::ignore = server.Receive(target);
    server.HangUp();
    server.CloseData();
  }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_FALSE(session.client.ftp.IsConnected());
}

TEST(EncryptedTransfer, AFileThatTheServerDoesNotConfirmIsAFailure) {
  for (const char* reply : {"426 Broken\r\n", "451 Disk full\r\n", "552 Too much\r\n"}) {
    EncryptedSession session(On("STOR", [reply](Session& server, const std::string& target) {
      server.Say("150 Send\r\n");
      if (!server.OpenData() || !server.EncryptData()) return;
      std::ignore = server.Receive(target);
      server.CloseData();
      server.Say(reply);
    }));
    EXPECT_FALSE(session.LogIn().Copy()) << reply;
  }
}

TEST(EncryptedTransfer, AServerMayCloseTheDataConnectionWithoutCloseNotify) {
  EncryptedSession session(On("STOR", [](Session& server, const std::string& target) {
    server.Say("125 Send\r\n");
    if (!server.OpenData() || !server.EncryptData()) return;
    const bool isWhole = server.Receive(target);
    server.DropData();
    server.Say(isWhole ? "226 Stored\r\n" : "426 Broken\r\n");
  }));
  EXPECT_TRUE(session.LogIn().Copy()) << session.client.window.log;
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}}));
}

TEST(EncryptedTransfer, ACancelledFileDoesNotLookCompleteToTheServer) {
  std::atomic<bool> endedLikeAWholeFile = true;
  EncryptedSession session(On("STOR", [&](Session& server, const std::string& target) {
    server.Say("150 Send\r\n");
    if (!server.OpenData() || !server.EncryptData()) return;
    std::ignore = server.Receive(target, 100'000);
    std::this_thread::sleep_for(std::chrono::milliseconds(100));
    endedLikeAWholeFile = server.Receive(target);
    server.DropData();
    server.Say("426 Broken\r\n");
  }));
  session.LogIn().client.CancelWhen([&] { return session.client.IsInsideAWrite(); });
  EXPECT_FALSE(session.Copy("large.jpg"));
  EXPECT_TRUE(session.server.WaitToHear("DELE t.jpg"));
  EXPECT_FALSE(endedLikeAWholeFile);
}

TEST(EncryptedTransfer, ActiveModeUsesEprtForIPv6Hosts) {
  ScriptedFtpServer::Script script;
  script.address = "::1";
  EncryptedSession session(script);
  ASSERT_TRUE(session.Connect("::1")) << session.Problem();
  EXPECT_TRUE(session.Copy()) << session.client.window.log;
  EXPECT_TRUE(session.server.HasHeard("EPRT |2|::1|"));
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}}));
}

}  // namespace
}  // namespace vantorium::publish
