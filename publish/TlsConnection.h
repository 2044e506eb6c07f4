#pragma once

#include "publish/ServerCertificate.h"

#include <cstddef>
#include <memory>
#include <span>
#include <string>
#include <system_error>

namespace asio {
class io_context;
}

namespace vantorium::publish {

/// How a handshake ended.
struct TlsHandshake {
  bool done = false;
  std::string problem;            ///< why it is not done, in the words of OpenSSL or the system
  ServerCertificate certificate;  ///< if it is done
};

/// What a second connection to the same server needs to take up the TLS session of the first.
class TlsTicket;

/// The connection that carries a TLS session. Both calls wait until they can do something; an error ends the wait.
class TlsCarrier {
 public:
  virtual ~TlsCarrier() = default;
  [[nodiscard]] virtual std::size_t ReceiveSome(std::span<char> into, std::error_code& error) = 0;
  [[nodiscard]] virtual std::size_t SendSome(std::span<const char> bytes, std::error_code& error) = 0;
};

/// How a peer ended its direction of a TLS session.
enum class TlsEnd {
  Orderly,   ///< it said so
  Silent,    ///< the connection just ended
  Broken,    ///< reset, or something else was sent
  StillOpen  ///< the carrier stopped waiting
};

/// The client's side of TLS 1.2 or later, by OpenSSL through Asio. Certificates are checked against the system's
/// certificates (those of OpenSSL's default places) and the host, but the decision is the caller's: the handshake is
/// also done if there is a doubt.
class TlsConnection {
 public:
  /// `host`: a name, which is also sent (SNI), or an address. `resumed` may be null. Throws std::system_error if
  /// OpenSSL cannot be set up.
  TlsConnection(asio::io_context& context, TlsCarrier& carrier, const std::string& host,
                const std::shared_ptr<TlsTicket>& resumed);
  ~TlsConnection();
  TlsConnection(const TlsConnection&) = delete;
  TlsConnection& operator=(const TlsConnection&) = delete;

  [[nodiscard]] TlsHandshake Handshake();
  /// Returns 0 at the end and on failure.
  [[nodiscard]] std::size_t Read(std::span<char> into);
  /// Sends some of the bytes. Returns 0 on failure.
  [[nodiscard]] std::size_t Write(std::span<const char> bytes);
  /// Whether bytes have arrived that Read has not yet returned.
  [[nodiscard]] bool HasReceived() const;
  /// Says that this side ends (close_notify), if it has not yet, and reports how the peer ends. Unread bytes are
  /// something else.
  [[nodiscard]] TlsEnd End();
  [[nodiscard]] std::shared_ptr<TlsTicket> Ticket() const;

 private:
  class Session;
  std::unique_ptr<Session> session_;
};

}  // namespace vantorium::publish
