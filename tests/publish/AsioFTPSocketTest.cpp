#include "env/RuntimeFailure.h"
#include "publish/AsioFTPSocket.h"
#include "tests/fakes/CountingEventLoop.h"
#include "tests/fakes/FailureOf.h"
#include "tests/fakes/ScriptedFTPSocket.h"
#include "tests/publish/LoopbackPeer.h"

#include <csignal>
#include <optional>

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using Milliseconds = std::chrono::milliseconds;

class AsioFTPSocketTest : public testing::Test {
 protected:
  void ConfigureFor(std::uint16_t port, Milliseconds timeLimit = Milliseconds(10000)) {
    FTPSocketSettings settings;
    settings.host = "127.0.0.1";
    settings.port = port;
    settings.portAddress = "127.0.0.1";
    settings.timeLimit = timeLimit;
    socket.Configure(settings);
  }
  /// Connects the socket and returns the peer.
  LoopbackPeer Connected(Milliseconds timeLimit = Milliseconds(10000)) {
    ConfigureFor(listener.Port());
    EXPECT_EQ(socket.Connect(), 0);
    ConfigureFor(listener.Port(), timeLimit);
    return listener.Accept();
  }
  /// The listening port, taken from the socket's PORT argument.
  [[nodiscard]] std::uint16_t ListeningPort() const {
    unsigned high = 0;
    unsigned low = 0;
    EXPECT_EQ(std::sscanf(socket.PortArgument().c_str(), "127,0,0,1,%u,%u", &high, &low), 2) << socket.PortArgument();
    return static_cast<std::uint16_t>(high * 256 + low);
  }
  [[nodiscard]] std::optional<env::FailureKind> AcceptFailure() {
    return fakes::FailureOf([this] { socket.Accept(control); });
  }
  void CancelInTurn(int number) {
    loop.onTurn = [this, number](int turn) {
      EXPECT_TRUE(socket.IsBlocking());
      if (turn == number) socket.CancelBlockingCall();
    };
  }

  fakes::CountingEventLoop loop;
  AsioFTPSocket socket{loop};
  LoopbackListener listener;
  std::vector<std::string> journal;
  fakes::ScriptedFTPSocket control{"cmd", journal};
};

TEST_F(AsioFTPSocketTest, ConnectsByAddressAndByName) {
  for (const char* host : {"127.0.0.1", "localhost"}) {
    FTPSocketSettings settings;
    settings.host = host;
    settings.port = listener.Port();
    settings.timeLimit = Milliseconds(10000);
    socket.Configure(settings);
    EXPECT_EQ(socket.Connect(), 0) << host;
    EXPECT_TRUE(socket.IsConnected());
    EXPECT_EQ(socket.LocalAddress(), "127.0.0.1");
    EXPECT_EQ(socket.PeerAddress(), "127.0.0.1");
  }
  socket.Close();
  EXPECT_FALSE(socket.IsConnected());
  EXPECT_EQ(socket.LocalAddress(), "");
  EXPECT_EQ(socket.PeerAddress(), "");
}

TEST_F(AsioFTPSocketTest, AConnectionToAPortWithoutAListenerFails) {
  std::uint16_t port = 0;
  {
    const LoopbackListener gone;
    port = gone.Port();
  }
  ConfigureFor(port);
  EXPECT_NE(socket.Connect(), 0);
  EXPECT_FALSE(socket.IsConnected());
}

TEST_F(AsioFTPSocketTest, AnUnknownHostIsAFailure) {
  FTPSocketSettings settings;
  settings.host = "300.300.300.300";
  settings.port = listener.Port();
  socket.Configure(settings);
  EXPECT_NE(socket.Connect(), 0);
}

/// A listener whose queue is full, so that new connections wait forever.
struct FullListener {
  LoopbackListener listener{0};
  LoopbackPeer first{listener.Port(), "127.0.0.1", SOCK_NONBLOCK};
  LoopbackPeer second{listener.Port(), "127.0.0.1", SOCK_NONBLOCK};
};

TEST_F(AsioFTPSocketTest, ConnectEndsAtItsTimeLimit) {
  const FullListener full;
  ConfigureFor(full.listener.Port(), Milliseconds(100));
  EXPECT_NE(socket.Connect(), 0);
  EXPECT_GT(loop.turns, 0);
}

TEST_F(AsioFTPSocketTest, ConnectCanBeCancelled) {
  const FullListener full;
  ConfigureFor(full.listener.Port());
  CancelInTurn(3);
  EXPECT_NE(socket.Connect(), 0);
  EXPECT_EQ(loop.turns, 3);
  EXPECT_FALSE(socket.IsConnected());
  EXPECT_FALSE(socket.IsBlocking());
}

TEST_F(AsioFTPSocketTest, ReadReturnsWhatHasArrivedUpToALimit) {
  const auto peer = Connected();
  EXPECT_FALSE(socket.HasNews());
  peer.Say("220 Hello");
  EXPECT_EQ(socket.Read(5), "220 H");
  EXPECT_TRUE(socket.HasNews());
  EXPECT_EQ(socket.Read(512), "ello");
}

TEST_F(AsioFTPSocketTest, ReadReturnsNothingAtTheEndOfTheStream) {
  auto peer = Connected();
  peer.Close();
  EXPECT_EQ(socket.Read(512), "");
  EXPECT_TRUE(socket.HasNews());
  EXPECT_TRUE(socket.IsConnected()) << "until it is closed";
  socket.Close();
  EXPECT_EQ(socket.Read(512), "");
}

TEST_F(AsioFTPSocketTest, ReadEndsAtItsTimeLimit) {
  const auto peer = Connected(Milliseconds(100));
  EXPECT_EQ(socket.Read(512), "");
  EXPECT_GT(loop.turns, 0);
}

TEST_F(AsioFTPSocketTest, ReadCanBeCancelledAndCalledAgain) {
  const auto peer = Connected();
  CancelInTurn(2);
  EXPECT_EQ(socket.Read(512), "");
  EXPECT_EQ(loop.turns, 2);
  peer.Say("late");
  EXPECT_EQ(socket.Read(512), "late");
}

TEST_F(AsioFTPSocketTest, ClosingInATurnEndsTheCall) {
  const auto peer = Connected();
  loop.onTurn = [this](int) { socket.Close(); };
  EXPECT_EQ(socket.Read(512), "");
  EXPECT_FALSE(socket.IsConnected());
}

TEST_F(AsioFTPSocketTest, ACancelWithoutABlockingCallDoesNothing) {
  const auto peer = Connected();
  socket.CancelBlockingCall();
  peer.Say("x");
  EXPECT_EQ(socket.Read(512), "x");
}

TEST_F(AsioFTPSocketTest, WriteReturnsTheNumberOfBytes) {
  auto peer = Connected();
  EXPECT_EQ(socket.Write("USER me\r\n"), 9);
  EXPECT_EQ(socket.WriteBytes(std::string("\0\1\2", 3)), 3U);
  socket.Close();
  bool wasReset = false;
  EXPECT_EQ(peer.ReadAll(wasReset), std::string("USER me\r\n\0\1\2", 12));
  EXPECT_FALSE(wasReset);
}

TEST_F(AsioFTPSocketTest, AWriteToAPeerThatHasGoneFailsWithoutASignal) {
  std::signal(SIGPIPE, SIG_DFL);
  auto peer = Connected();
  peer.Reset();
  EXPECT_EQ(socket.Read(1), "");
  EXPECT_EQ(socket.Write("x"), -1);
  EXPECT_EQ(socket.WriteBytes(std::string("x")), 0U);
  socket.Close();
  EXPECT_EQ(socket.Write("x"), -1);
  EXPECT_EQ(socket.WriteBytes(std::string("x")), 0U);
}

constexpr std::size_t kMoreThanFits = std::size_t{64} << 20U;

TEST_F(AsioFTPSocketTest, AWriteWaitsForItsPeerAndEndsAtItsTimeLimit) {
  const auto peer = Connected(Milliseconds(100));
  EXPECT_EQ(socket.Write(std::string(kMoreThanFits, 'x')), -1);
  EXPECT_GT(loop.turns, 0);
}

TEST_F(AsioFTPSocketTest, ACancelledWriteIsShortAndAResetDropsTheConnection) {
  const auto peer = Connected();
  CancelInTurn(4);
  const std::string bytes(kMoreThanFits, 'x');
  EXPECT_LT(socket.WriteBytes(bytes), bytes.size());
  EXPECT_EQ(loop.turns, 4);
  socket.Reset();
  EXPECT_FALSE(socket.IsConnected());
  bool wasReset = false;
  EXPECT_LT(peer.ReadAll(wasReset).size(), bytes.size());
  EXPECT_TRUE(wasReset);
}

TEST_F(AsioFTPSocketTest, EachListenerHasItsOwnPort) {
  ConfigureFor(0);
  EXPECT_EQ(socket.Listen(), 0);
  const LoopbackPeer first(ListeningPort(), "127.0.0.1");
  EXPECT_EQ(AcceptFailure(), std::nullopt);
  EXPECT_TRUE(socket.IsConnected());
  first.Say("x");
  EXPECT_EQ(socket.Read(1), "x");
  EXPECT_EQ(socket.Listen(), 0) << "an old connection does not matter";
  EXPECT_FALSE(socket.IsConnected());
}

TEST_F(AsioFTPSocketTest, ListeningOnAnotherMachinesAddressFails) {
  FTPSocketSettings settings;
  for (const char* address : {"192.0.2.1", "nonsense", "2001:db8::1"}) {
    settings.listenAddress = address;
    socket.Configure(settings);
    EXPECT_NE(socket.Listen(), 0) << address;
  }
}

TEST_F(AsioFTPSocketTest, AcceptsAConnectionFromOneAddressOnly) {
  FTPSocketSettings settings;
  settings.portAddress = "127.0.0.1";
  settings.acceptFrom = "127.0.0.1";
  socket.Configure(settings);
  ASSERT_EQ(socket.Listen(), 0);
  const LoopbackPeer stranger(ListeningPort(), "127.0.0.2");
  std::optional<LoopbackPeer> server;
  const auto port = ListeningPort();
  loop.onTurn = [&](int turn) {
    if (turn == 2) server.emplace(port, "127.0.0.1");
  };
  EXPECT_EQ(AcceptFailure(), std::nullopt);
  EXPECT_EQ(socket.PeerAddress(), "127.0.0.1");
  bool wasReset = false;
  EXPECT_EQ(stranger.ReadAll(wasReset), "");
}

TEST_F(AsioFTPSocketTest, AcceptWaitsWithoutATimeLimitUntilItIsCancelled) {
  ConfigureFor(0, Milliseconds(0));
  ASSERT_EQ(socket.Listen(), 0);
  CancelInTurn(5);
  EXPECT_EQ(AcceptFailure(), env::FailureKind::FileAccess);
  EXPECT_EQ(loop.turns, 5);
}

TEST_F(AsioFTPSocketTest, AcceptFailsOnceTheServerHasReplied) {
  ConfigureFor(0, Milliseconds(0));
  ASSERT_EQ(socket.Listen(), 0);
  loop.onTurn = [this](int turn) {
    if (turn == 2) control.reads = {"425 No connection\r\n"};
  };
  EXPECT_EQ(AcceptFailure(), env::FailureKind::FileAccess);
}

TEST_F(AsioFTPSocketTest, AConnectionThatCameBeforeTheReplyIsAccepted) {
  ConfigureFor(0, Milliseconds(0));
  ASSERT_EQ(socket.Listen(), 0);
  const LoopbackPeer server(ListeningPort(), "127.0.0.1");
  control.reads = {"426 Broken\r\n"};
  EXPECT_EQ(AcceptFailure(), std::nullopt);
}

TEST_F(AsioFTPSocketTest, AcceptWithoutAListenerFails) {
  EXPECT_EQ(AcceptFailure(), env::FailureKind::FileAccess);
}

}  // namespace
}  // namespace vantorium::publish
