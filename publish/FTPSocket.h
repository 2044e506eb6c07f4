#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace vantorium {

/// What the FTP client asks of a socket before it is used. The rest never changes: IPv4, a stream, blocking calls.
struct FTPSocketSettings {
  std::string host;  ///< to connect to
  std::uint16_t port = 0;
  std::string listenAddress = "0.0.0.0";
  std::uint16_t listenPort = 0;           ///< 0: the system picks a free one
  std::string portAddress;                ///< the address that PortArgument names
  std::string acceptFrom;                 ///< the one address that Accept takes a connection from; empty: any
  std::chrono::milliseconds timeLimit{};  ///< of each blocking call; 0: none
};

/// A stream socket of the FTP client, for one connection at a time. Calls that cannot go on at once wait in short
/// slices and give the event loop a turn between them; time spent in a turn does not count against the time limit.
/// From inside such a turn CancelBlockingCall or Close may be called, which makes the waiting call fail.
class FTPSocket {
 public:
  virtual ~FTPSocket() = default;

  /// True while a connection stands, as far as this side has noticed.
  [[nodiscard]] virtual bool IsConnected() const = 0;
  /// Drops the connection and the listener at once. Bytes that were handed over in full still go out. Safe at any time.
  virtual void Close() = 0;
  /// As Close, but drops bytes that are on their way too, and the peer sees that the connection broke.
  virtual void Reset() = 0;
  virtual void Configure(const FTPSocketSettings& settings) = 0;

  /// Connects to the host and port of the settings, after closing what was open. 0 on success.
  [[nodiscard]] virtual int Connect() = 0;
  /// Binds and listens, after closing what was open. 0 on success.
  [[nodiscard]] virtual int Listen() = 0;

  /// Text form of the local address of the connection, and of the peer's; empty without a connection.
  [[nodiscard]] virtual std::string LocalAddress() const = 0;
  [[nodiscard]] virtual std::string PeerAddress() const = 0;
  /// "h1,h2,h3,h4,p1,p2" as the PORT command of RFC 959 takes it: the settings' address, the listener's port.
  [[nodiscard]] virtual std::string PortArgument() const = 0;

  /// Waits for a connection from the settings' address, drops those from others, ends the listener and goes on with
  /// the connection. Throws RuntimeFailure FileAccess when that fails, and when the server speaks or hangs up on
  /// `control` before it has connected, since then it never will.
  virtual void Accept(const FTPSocket& control) = 0;

  /// At most `most` characters; blocks until there are some. An empty text is a failure or the end of the stream.
  [[nodiscard]] virtual std::string Read(std::size_t most) = 0;
  /// Whether Read would return at once.
  [[nodiscard]] virtual bool HasNews() const = 0;
  /// Sends the text. Its length on success, -1 on failure.
  [[nodiscard]] virtual std::ptrdiff_t Write(std::string_view text) = 0;
  /// Sends the bytes, blocking until all are handed over. The count sent, less than given after a failure or a cancel.
  [[nodiscard]] virtual std::size_t WriteBytes(std::span<const char> bytes) = 0;

  /// True while a blocking call is under way, as seen from a turn inside it.
  [[nodiscard]] virtual bool IsBlocking() const = 0;
  /// Makes the blocking call under way fail; without one it does nothing.
  virtual void CancelBlockingCall() = 0;
};

}  // namespace vantorium
