// Sessions in passive mode with a scripted server: every sequence of replies, good and bad.
#include "tests/fakes/ScriptedFtpServer.h"
#include "tests/publish/NetworkClient.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using fakes::ScriptedFtpServer;
using Session = ScriptedFtpServer::Session;
using Texts = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

/// A client in passive mode that is logged in to a scripted server.
class PassiveSession {
 public:
  explicit PassiveSession(ScriptedFtpServer::Script script = {}) : server(std::move(script)) {
    client.folder.Write("small.jpg", "12345");
    client.ftp.Options.passive = true;
    EXPECT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port()));
    EXPECT_TRUE(client.ftp.FTPLogin("me", "open sesame"));
  }
  [[nodiscard]] bool Copy() { return client.ftp.FTPCopyFile("C:\\small.jpg", "t.jpg", true); }
  /// The received lines after the login.
  [[nodiscard]] Texts Commands() const {
    const Texts all = server.Commands();
    return {all.begin() + 2, all.end()};
  }

  ScriptedFtpServer server;
  NetworkClient client;
};

ScriptedFtpServer::Handler Saying(const std::string& reply) {
  return [reply](Session& session, const std::string&) { session.Say(reply + "\r\n"); };
}

std::string Comma(std::uint16_t port) {
  return std::to_string(port / 256) + "," + std::to_string(port % 256);
}

TEST(PassiveSession, RequestsAPortForEachFileAndSendsNone) {
  PassiveSession session;
  EXPECT_TRUE(session.Copy());
  EXPECT_TRUE(session.Copy());
  const Texts once = {"TYPE I", "EPSV", "STOR t.jpg"};
  Texts twice = once;
  twice.insert(twice.end(), once.begin(), once.end());
  EXPECT_EQ(session.Commands(), twice);
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}}));
  EXPECT_TRUE(session.client.boxes.boxes.empty());
}

TEST(PassiveSession, AServerWithoutEpsvGetsThatCommandOnlyOnce) {
  for (const char* refusal : {"500 What", "502 Not implemented", "522 Use PASV", "200 Ok"}) {
    ScriptedFtpServer::Script script;
    script.on["EPSV"] = Saying(refusal);
    PassiveSession session(script);
    EXPECT_TRUE(session.Copy()) << refusal;
    EXPECT_TRUE(session.Copy()) << refusal;
    EXPECT_EQ(session.Commands(), (Texts{"TYPE I", "EPSV", "PASV", "STOR t.jpg", "TYPE I", "PASV", "STOR t.jpg"}))
        << refusal;
  }
}

TEST(PassiveSession, AnAddressInThePasvReplyIsIgnored) {
  for (const char* host : {"10,9,8,7", "127,0,0,2", "0,0,0,0", "192,0,2,1"}) {
    ScriptedFtpServer::Script script;
    script.on["EPSV"] = Saying("500 What");
    script.on["PASV"] = [host](Session& session, const std::string&) {
      session.Say("227 Entering Passive Mode (" + std::string(host) + "," + Comma(session.ListenForData()) + ").\r\n");
    };
    PassiveSession session(script);
    EXPECT_TRUE(session.Copy()) << host;
    EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}})) << host;
  }
}

TEST(PassiveSession, AReplyWithoutAPortFailsTheFile) {
  const std::pair<const char*, const char*> replies[] = {{"229 Entering", "227 Entering (127,0,0,1,1,1)"},
                                                         {"229 (|||0|)", ""},
                                                         {"229 (|||65536|)", ""},
                                                         {"229 (||127.0.0.1|99|)", ""},
                                                         {"500 What", "500 What"},
                                                         {"500 What", "227 (1,2,3,4,5)"},
                                                         {"500 What", "227 (127,0,0,1,0,0)"},
                                                         {"500 What", "227 Hello"},
                                                         {"500 What", "229 (|||99|)"}};
  for (const auto& [epsv, pasv] : replies) {
    ScriptedFtpServer::Script script;
    script.on["EPSV"] = Saying(epsv);
    script.on["PASV"] = Saying(pasv);
    PassiveSession session(script);
    EXPECT_FALSE(session.Copy()) << epsv << pasv;
    EXPECT_FALSE(session.server.HasHeard("STOR")) << epsv << pasv;
    EXPECT_TRUE(session.client.ftp.FTPChangeDirectory("x")) << "the session continues";
  }
}

TEST(PassiveSession, AServerThatDoesNotListenFailsTheFile) {
  ScriptedFtpServer::Script script;
  script.on["EPSV"] = Saying("229 (|||1|)");
  PassiveSession session(script);
  EXPECT_FALSE(session.Copy());
  EXPECT_FALSE(session.server.HasHeard("STOR"));
}

TEST(PassiveSession, OnlyReplies125And150OpenATransfer) {
  for (const int code : {125, 150, 151, 200, 226, 425, 550}) {
    ScriptedFtpServer::Script script;
    script.on["STOR"] = [code](Session& session, const std::string& name) {
      session.Say(std::to_string(code) + " Reply\r\n");
      if (code != 125 && code != 150) return;
      std::ignore = session.OpenData() && session.Receive(name);
      session.CloseData();
      session.Say("226 Stored\r\n");
    };
    PassiveSession session(script);
    EXPECT_EQ(session.Copy(), code == 125 || code == 150) << code;
  }
}

TEST(PassiveSession, AServerThatResetsTheTransferFailsTheFile) {
  ScriptedFtpServer::Script script;
  script.on["STOR"] = [](Session& session, const std::string& name) {
    session.Say("150 Send\r\n");
    std::ignore = session.OpenData() && session.Receive(name, 1000);
    session.ResetData();
    session.Say("426 Broken\r\n");
  };
  PassiveSession session(script);
  session.client.folder.Write("small.jpg", std::string(std::size_t{16} << 20U, 'x'));
  EXPECT_FALSE(session.Copy());
  EXPECT_TRUE(session.server.WaitToHear("DELE t.jpg"));
}

TEST(PassiveSession, IPv6HostsRequireEpsv) {
  ScriptedFtpServer::Script script;
  script.address = "::1";
  ScriptedFtpServer server(script);
  NetworkClient client;
  client.folder.Write("small.jpg", "12345");
  EXPECT_FALSE(client.ftp.FTPConnect("::1", server.Port())) << "without the option";
  client.ftp.Options.passive = true;
  ASSERT_TRUE(client.ftp.FTPConnect("::1", server.Port()));
  EXPECT_TRUE(client.ftp.FTPCopyFile("C:\\small.jpg", "t.jpg", true)) << client.window.log;
  EXPECT_EQ(server.Files(), (Files{{"t.jpg", "12345"}}));
}

TEST(PassiveSession, PasvIsNotSentToAnIPv6Host) {
  ScriptedFtpServer::Script script;
  script.address = "::1";
  script.on["EPSV"] = Saying("500 What");
  ScriptedFtpServer server(script);
  NetworkClient client;
  client.folder.Write("small.jpg", "12345");
  client.ftp.Options.passive = true;
  ASSERT_TRUE(client.ftp.FTPConnect("::1", server.Port()));
  EXPECT_FALSE(client.ftp.FTPCopyFile("C:\\small.jpg", "t.jpg", true));
  EXPECT_FALSE(server.HasHeard("PASV"));
}

}  // namespace
}  // namespace vantorium::publish
