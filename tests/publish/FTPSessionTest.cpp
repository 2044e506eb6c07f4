// Sessions with a misbehaving server: what the user is told, and which files stay on the server.
#include "env/RuntimeFailure.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/ScriptedFtpServer.h"
#include "tests/publish/NetworkClient.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using fakes::ScriptedFtpServer;
using Session = ScriptedFtpServer::Session;
using Texts = std::vector<std::string>;
using Files = std::map<std::string, std::string>;

const Texts kNothing;
const Texts kTerminated = {"Connection with the server has been terminated"};
constexpr FTPTimeLimits kShort = {std::chrono::milliseconds(500), std::chrono::milliseconds(500)};

/// A client and a scripted server. The client has a file p.jpg that is larger than all buffers between the two.
class FTPSession {
 public:
  explicit FTPSession(ScriptedFtpServer::Script script = {}, FTPTimeLimits limits = LongTimeLimits())
      : server(std::move(script)), client(limits), photograph(std::size_t{16} << 20U, 'p') {
    for (std::size_t at = 0; at < photograph.size(); at += 1000) photograph[at] = static_cast<char>('a' + at % 23);
    client.folder.Write("p.jpg", photograph);
    client.folder.Write("small.jpg", "12345");
  }
  FTPSession& LogIn() {
    EXPECT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port()));
    EXPECT_TRUE(client.ftp.FTPLogin("me", "open sesame"));
    return *this;
  }
  [[nodiscard]] bool Copy(const std::string& name = "small.jpg", const std::string& target = "t.jpg") {
    return client.ftp.FTPCopyFile("C:\\" + name, target, true);
  }
  [[nodiscard]] bool Change() { return client.ftp.FTPChangeDirectory("x"); }

  static constexpr FTPTimeLimits LongTimeLimits() { return {std::chrono::seconds(20), std::chrono::seconds(20)}; }

  ScriptedFtpServer server;
  NetworkClient client;
  std::string photograph;
};

ScriptedFtpServer::Script On(const std::string& verb, ScriptedFtpServer::Handler handler) {
  ScriptedFtpServer::Script script;
  script.on[verb] = std::move(handler);
  return script;
}

TEST(FTPSession, StoresFilesOneAfterTheOther) {
  FTPSession session;
  auto& ftp = session.LogIn().client.ftp;
  EXPECT_TRUE(session.Copy());
  EXPECT_TRUE(session.Copy("p.jpg", "images\\p.jpg"));
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}, {"images/p.jpg", session.photograph}}));
  EXPECT_TRUE(ftp.FTPFileExists("t.jpg"));
  EXPECT_FALSE(ftp.FTPFileExists("u.jpg"));
  EXPECT_EQ(ftp.FTPGetFileSize("images/p.jpg"), "16MB");
  EXPECT_EQ(ftp.FTPGetFileSize("u.jpg"), "0KB");
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
}

TEST(FTPSession, ThePasswordIsSentButNotLogged) {
  FTPSession session(On("PASS", [](Session& server, const std::string&) { server.Say("530 No\r\n"); }));
  EXPECT_TRUE(session.client.ftp.FTPConnect("127.0.0.1", session.server.Port()));
  EXPECT_FALSE(session.client.ftp.FTPLogin("me", "open sesame"));
  EXPECT_EQ(session.server.Commands(), (Texts{"USER me", "PASS open sesame"}));
  EXPECT_EQ(session.client.window.log, "220 Ready\r\n331 Password\r\n530 No\r\n");
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
}

TEST(FTPSession, RepliesMayArriveByteByByte) {
  ScriptedFtpServer::Script script;
  script.greet = [](Session& server) { server.SayByteByByte("220-Welcome\r\n here\r\n220 Ready\r\n"); };
  script.on["CWD"] = [](Session& server, const std::string&) { server.SayByteByByte("250-a\r\n250 b\r\n"); };
  FTPSession session(script);
  session.LogIn();
  for (int time = 0; time < 3; ++time) EXPECT_TRUE(session.Change());
  EXPECT_TRUE(session.Copy());
}

TEST(FTPSession, AServerThatAnswers125IsRefused) {
  FTPSession session(On("STOR", [](Session& server, const std::string& name) {
    server.Say("125 Data connection already open\r\n");
    std::ignore = server.OpenData() && server.Receive(name);
    server.CloseData();
    server.Say("226 Stored\r\n");
  }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_TRUE(session.server.WaitToHear("DELE t.jpg"));
}

TEST(FTPSession, AServerThatReplies421EndsTheSession) {
  FTPSession session(On("STOR", [](Session& server, const std::string&) {
    server.Say("421 Shutting down\r\n");
    server.HangUp();
  }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_EQ(session.client.BoxTexts(), kNothing) << "the caller reports the file";
  EXPECT_FALSE(session.Change());
  EXPECT_EQ(session.client.BoxTexts(), kTerminated);
  EXPECT_EQ(session.server.Files(), Files{});
}

TEST(FTPSession, AFullServerRefusesTheConnection) {
  ScriptedFtpServer::Script script;
  script.greet = [](Session& server) { server.Say("421 Too many users\r\n"); };
  FTPSession session(script);
  EXPECT_FALSE(session.client.ftp.FTPConnect("127.0.0.1", session.server.Port()));
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_EQ(session.client.window.log, "421 Too many users\r\n");
}

TEST(FTPSession, ARefusedPortFailsTheFile) {
  FTPSession session(On("PORT", [](Session& server, const std::string&) { server.Say("500 Illegal PORT\r\n"); }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_EQ(session.server.Files(), Files{});
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_TRUE(session.Change()) << "the session continues";
}

TEST(FTPSession, ADataConnectionThatTheServerCannotOpenFailsTheFile) {
  FTPSession session(On("STOR", [](Session& server, const std::string&) {
    server.Say("150 Opening\r\n");
    std::this_thread::sleep_for(std::chrono::milliseconds(30));
    server.Say("425 Cannot open data connection\r\n");
  }));
  EXPECT_FALSE(session.LogIn().Copy());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_TRUE(session.server.WaitToHear("DELE t.jpg"));
}

/// Receives the beginning of a file, calls `end` to end the data connection, and answers 426.
ScriptedFtpServer::Handler StoreAPart(const std::function<void(Session&)>& end) {
  return [end](Session& server, const std::string& name) {
    server.Say("150 Send\r\n");
    std::ignore = server.OpenData() && server.Receive(name, 10000);
    end(server);
    server.Say("426 Broken\r\n");
  };
}

TEST(FTPSession, AResetInMidFileLeavesNothingOnTheServer) {
  FTPSession session(On("STOR", StoreAPart([](Session& server) { server.ResetData(); })));
  EXPECT_FALSE(session.LogIn().Copy("p.jpg"));
  EXPECT_EQ(session.server.Files(), Files{});
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_TRUE(session.client.window.log.ends_with("426 Broken\r\nDeleting file t.jpg\r\n250 Gone\r\n"));
  EXPECT_TRUE(session.Change()) << "the session continues";
}

TEST(FTPSession, AServerThatStopsReadingEarlyLeavesNothingOnTheServer) {
  FTPSession session(On("STOR", StoreAPart([](Session& server) { server.CloseData(); })));
  EXPECT_FALSE(session.LogIn().Copy("p.jpg"));
  EXPECT_EQ(session.server.Files(), Files{});
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
}

TEST(FTPSession, AControlConnectionLostInMidFileIsNoticedAtTheNextCommand) {
  FTPSession session(On("STOR", [](Session& server, const std::string& name) {
    server.Say("150 Send\r\n");
    if (!server.OpenData()) return;
    server.HangUp();
    std::ignore = server.Receive(name);
  }));
  EXPECT_TRUE(session.LogIn().Copy("p.jpg")) << "all bytes were sent";
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_FALSE(session.Change());
  EXPECT_EQ(session.client.BoxTexts(), kTerminated);
}

TEST(FTPSession, BothConnectionsLostInMidFileLeaveAPartAndAreReported) {
  FTPSession session(On("STOR", StoreAPart([](Session& server) {
                          server.HangUp();
                          server.ResetData();
                        })));
  EXPECT_FALSE(session.LogIn().Copy("p.jpg"));
  EXPECT_EQ(session.client.BoxTexts(), kTerminated) << "the connection is closed before the deletion";
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", session.photograph.substr(0, 10000)}}));
}

TEST(FTPSession, AServerThatNeverRepliesTimesOut) {
  ScriptedFtpServer::Script script;
  script.greet = [](Session& server) { server.StaySilent(); };
  FTPSession session(script, kShort);
  EXPECT_FALSE(session.client.ftp.FTPConnect("127.0.0.1", session.server.Port()));
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
}

TEST(FTPSession, AServerThatStopsReplyingTimesOut) {
  FTPSession session(On("CWD", [](Session& server, const std::string&) { server.StaySilent(); }), kShort);
  EXPECT_FALSE(session.LogIn().Change());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_FALSE(session.Change());
  EXPECT_EQ(session.client.BoxTexts(), kTerminated);
}

TEST(FTPSession, AFileWithoutAClosingReplyCountsAsStored) {
  FTPSession session(On("STOR",
                        [](Session& server, const std::string& name) {
                          server.Say("150 Send\r\n");
                          std::ignore = server.OpenData() && server.Receive(name);
                          server.StaySilent();
                        }),
                     kShort);
  EXPECT_TRUE(session.LogIn().Copy());
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}}));
  EXPECT_FALSE(session.client.ftp.IsConnected());
}

TEST(FTPSession, AReplyWithoutEndClosesTheConnection) {
  FTPSession session(
      On("CWD", [](Session& server, const std::string&) { server.Say(std::string(std::size_t{4} << 20U, 'x')); }));
  EXPECT_FALSE(session.LogIn().Change());
  EXPECT_FALSE(session.client.ftp.IsConnected());
}

TEST(FTPSession, ADataConnectionFromAnotherHostIsRefused) {
  FTPSession session(On("STOR", [](Session& server, const std::string& name) {
    server.Say("150 Send\r\n");
    EXPECT_TRUE(server.OpenData("127.0.0.2"));
    server.ResetData();
    std::ignore = server.OpenData() && server.Receive(name);
    server.CloseData();
    server.Say("226 Stored\r\n");
  }));
  EXPECT_TRUE(session.LogIn().Copy());
  EXPECT_EQ(session.server.Files(), (Files{{"t.jpg", "12345"}}));
}

TEST(FTPSession, AnEmptyFileFailsAndTheNextOneIsStored) {
  FTPSession session;
  session.LogIn().client.folder.Write("empty.jpg", "");
  EXPECT_EQ(fakes::FailureOf([&] { std::ignore = session.Copy("empty.jpg", "e.jpg"); }),
            env::FailureKind::DivisionByZero);
  EXPECT_TRUE(session.server.WaitToHear("STOR e.jpg"));
  // The next command is sent before the reply to the empty file arrives, and reads that reply as its own.
  std::ignore = session.Copy();
  session.client.ftp.Disconnect();
  EXPECT_TRUE(session.LogIn().Copy());
  EXPECT_EQ(session.server.Files().at("t.jpg"), "12345");
}

// Cancels in each call that can block.

TEST(FTPSessionCancel, WhileWaitingForTheGreeting) {
  ScriptedFtpServer::Script script;
  script.greet = [](Session& server) { server.StaySilent(); };
  FTPSession session(script);
  session.client.CancelWhen([] { return true; });
  EXPECT_FALSE(session.client.ftp.FTPConnect("127.0.0.1", session.server.Port()));
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
}

TEST(FTPSessionCancel, WhileWaitingForAReply) {
  FTPSession session(On("STOR", [](Session& server, const std::string&) { server.StaySilent(); }));
  session.LogIn().client.CancelWhen([&] { return session.server.HasHeard("STOR"); });
  EXPECT_FALSE(session.Copy());
  EXPECT_FALSE(session.client.ftp.IsConnected());
  EXPECT_EQ(session.client.BoxTexts(), kNothing) << "the user cancelled";
  EXPECT_EQ(session.server.Files(), Files{});
}

TEST(FTPSessionCancel, WhileWaitingForTheDataConnection) {
  FTPSession session(On("STOR", [](Session& server, const std::string&) { server.Say("150 Send\r\n"); }));
  session.LogIn().client.CancelWhen([&] { return session.client.window.log.ends_with("150 Send\r\n"); });
  EXPECT_FALSE(session.Copy());
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_TRUE(session.client.window.log.ends_with("Deleting file t.jpg\r\n550 None\r\n"));
  EXPECT_TRUE(session.client.ftp.IsConnected());
}

TEST(FTPSessionCancel, WhileAWriteWaits) {
  FTPSession session(On("STOR", [](Session& server, const std::string& name) {
    server.Say("150 Send\r\n");
    if (!server.OpenData()) return;
    std::this_thread::sleep_for(std::chrono::milliseconds(200));  // lets the client fill all buffers
    const bool isWhole = server.Receive(name);
    server.CloseData();
    server.Say(isWhole ? "226 Stored\r\n" : "426 Broken\r\n");
  }));
  session.LogIn().client.CancelWhen([&] { return session.client.IsInsideAWrite(); });
  EXPECT_FALSE(session.Copy("p.jpg"));
  EXPECT_TRUE(session.client.cancel.isRequested);
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_EQ(session.server.Files(), Files{}) << "the partial file is deleted";
  EXPECT_TRUE(session.client.window.log.ends_with("426 Broken\r\nDeleting file t.jpg\r\n250 Gone\r\n"))
      << session.client.window.log;
}

TEST(FTPSessionCancel, BeforeABlock) {
  FTPSession session;
  session.LogIn().client.CancelWhen([&] { return session.client.window.percentages.size() == 3; });
  EXPECT_FALSE(session.Copy("p.jpg"));
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_EQ(session.server.Files(), Files{}) << "the partial file is deleted";
  EXPECT_TRUE(session.client.window.log.ends_with("426 Broken\r\nDeleting file t.jpg\r\n250 Gone\r\n"))
      << session.client.window.log;
}

TEST(FTPSessionCancel, AServerThatDoesNotReplyAfterwardsTimesOutSoon) {
  FTPSession session(On("STOR",
                        [](Session& server, const std::string&) {
                          server.Say("150 Send\r\n");
                          std::ignore = server.OpenData();
                          server.StaySilent();
                        }),
                     {std::chrono::minutes(10), std::chrono::milliseconds(150)});
  session.LogIn().client.CancelWhen([&] { return session.client.IsInsideAWrite(); });
  EXPECT_FALSE(session.Copy("p.jpg"));
  EXPECT_EQ(session.client.BoxTexts(), kNothing);
  EXPECT_TRUE(session.client.window.log.ends_with("150 Send\r\nDeleting file t.jpg\r\n")) << session.client.window.log;
}

TEST(FTPSessionCancel, AServerThatRepliesTooLateStillDeletesThePart) {
  FTPSession session(On("STOR",
                        [](Session& server, const std::string& name) {
                          server.Say("150 Send\r\n");
                          if (!server.OpenData()) return;
                          std::ignore = server.Receive(name, 100'000);
                          std::this_thread::sleep_for(std::chrono::milliseconds(300));
                          server.CloseData();
                          server.Say("426 Broken\r\n");
                        }),
                     {std::chrono::minutes(10), std::chrono::milliseconds(10)});
  session.LogIn().client.CancelWhen([&] { return session.client.IsInsideAWrite(); });
  EXPECT_FALSE(session.Copy("p.jpg"));
  session.client.ftp.Disconnect();
  EXPECT_TRUE(session.server.WaitToHear("DELE t.jpg"));
}

}  // namespace
}  // namespace vantorium::publish
