#pragma once

#include "publish/TlsConnection.h"

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace vantorium::publish {

/// The FTP client's settings of a socket. The rest never changes: TCP, blocking calls.
struct FTPSocketSettings {
  std::string host;  ///< to connect to
  std::uint16_t port = 0;
  bool anyFamily = false;                 ///< connect to IPv6 addresses too, after those of IPv4
  std::string listenAddress = "0.0.0.0";  ///< its family is that of the listener
  std::uint16_t listenPort = 0;           ///< 0: the system picks a free one
  std::string portAddress;                ///< the address that PortArgument names
  std::string acceptFrom;                 ///< the only address that Accept accepts; empty: any
  std::chrono::milliseconds timeLimit{};  ///< of each blocking call; 0: none
};

/// A TCP socket of the FTP client, for one connection at a time. A call that must wait does so in short slices and
/// gives the event loop a turn between them; time spent in a turn does not count against the time limit.
/// CancelBlockingCall or Close may be called inside such a turn and makes the waiting call fail.
class FTPSocket {
 public:
  virtual ~FTPSocket() = default;

  /// Whether there is a connection, as far as this side has noticed.
  [[nodiscard]] virtual bool IsConnected() const = 0;
  /// Closes the connection and the listener at once. Bytes that the system has accepted are still sent. Safe at any
  /// time.
  virtual void Close() = 0;
  /// Like Close, but also discards bytes not yet sent, and the peer sees a broken connection.
  virtual void Reset() = 0;
  virtual void Configure(const FTPSocketSettings& settings) = 0;

  /// Closes what was open and connects to the host and port of the settings. Returns 0 on success.
  [[nodiscard]] virtual int Connect() = 0;
  /// Closes what was open, binds and listens. Returns 0 on success.
  [[nodiscard]] virtual int Listen() = 0;

  /// The local address of the connection, and the peer's, as text; empty without a connection.
  [[nodiscard]] virtual std::string LocalAddress() const = 0;
  [[nodiscard]] virtual std::string PeerAddress() const = 0;
  /// Returns "h1,h2,h3,h4,p1,p2", the argument of the PORT command of RFC 959: the settings' portAddress and the
  /// listener's port.
  [[nodiscard]] virtual std::string PortArgument() const = 0;
  /// Returns "|1|address|port|", or 2 for IPv6: the argument of the EPRT command of RFC 2428, made of the same.
  [[nodiscard]] virtual std::string ExtendedPortArgument() const = 0;

  /// Waits for a connection from the settings' address, dropping those from others; then closes the listener and uses
  /// the connection. Throws RuntimeFailure FileAccess on failure, and if the server sends something or hangs up on
  /// `control` before it has connected, because then it never will.
  virtual void Accept(const FTPSocket& control) = 0;

  /// Encrypts the connection, as the client (see TlsConnection); it stays open on failure. With a ticket of another
  /// connection, takes up that one's session.
  [[nodiscard]] virtual TlsHandshake StartTls(const std::string& host, const std::shared_ptr<TlsTicket>& resumed) = 0;
  /// Returns what another connection needs to take up this connection's TLS session; null without one.
  [[nodiscard]] virtual std::shared_ptr<TlsTicket> Ticket() const = 0;

  /// Sets up the connection for a file in many small blocks: small writes are joined. Call after StartTls.
  virtual void BeginFile() = 0;
  /// Closes after the last byte. With TLS, says so and waits until the server has ended too. Returns false if there was
  /// no connection any more, or if the server ended first without saying so, or breaks the connection.
  [[nodiscard]] virtual bool Finish() = 0;

  /// Reads at most `most` bytes; blocks until there are some. An empty text means a failure or the end of the stream.
  [[nodiscard]] virtual std::string Read(std::size_t most) = 0;
  /// Whether Read would return at once.
  [[nodiscard]] virtual bool HasNews() const = 0;
  /// Sends the text. Returns its length on success, -1 on failure.
  [[nodiscard]] virtual std::ptrdiff_t Write(std::string_view text) = 0;
  /// Sends the bytes and blocks until the system has accepted all. Returns the count sent, less than given after a
  /// failure or a cancel.
  [[nodiscard]] virtual std::size_t WriteBytes(std::span<const char> bytes) = 0;

  /// Whether a blocking call is in progress, as seen from a turn inside it.
  [[nodiscard]] virtual bool IsBlocking() const = 0;
  /// Makes the blocking call in progress fail; does nothing without one.
  virtual void CancelBlockingCall() = 0;
};

}  // namespace vantorium::publish
