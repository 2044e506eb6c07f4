#pragma once

#include "publish/AsioFTPSocket.h"
#include "publish/SlicedWait.h"
#include "publish/TlsConnection.h"

#include <optional>

#include <asio/io_context.hpp>
#include <asio/ip/tcp.hpp>

namespace vantorium::publish {

/// The non-blocking sockets of an AsioFTPSocket, and the code that waits for them.
class AsioFTPSocket::Connection : public TlsCarrier {
 public:
  using tcp = asio::ip::tcp;
  using Milliseconds = std::chrono::milliseconds;

  explicit Connection(env::EventLoop& loop) : loop_(loop) {}

  /// A call that waits. At most one exists at a time; while it does, the socket counts as blocking.
  class BlockingCall {
   public:
    explicit BlockingCall(Connection& connection)
        : connection_(connection), wait_(connection.loop_, connection.settings.timeLimit, connection.isAbandoned) {
      connection_.call_ = this;
      connection_.isAbandoned = false;
    }
    ~BlockingCall() { connection_.call_ = nullptr; }
    BlockingCall(const BlockingCall&) = delete;
    BlockingCall& operator=(const BlockingCall&) = delete;

    [[nodiscard]] SlicedWait& Wait() { return wait_; }
    bool waitsToRead = true;  ///< false: a read that would have to wait fails

   private:
    Connection& connection_;
    SlicedWait wait_;
  };

  [[nodiscard]] bool IsBlocking() const { return call_ != nullptr; }

  // These wait, so they need a BlockingCall.
  [[nodiscard]] bool ConnectTo(const std::string& address);
  /// Returns 0 on failure and at the end of the stream.
  [[nodiscard]] std::size_t Receive(std::span<char> into);
  /// Returns the count sent, less than given after a failure.
  [[nodiscard]] std::size_t Send(std::span<const char> bytes);
  [[nodiscard]] TlsHandshake StartTls(const std::string& host, const std::shared_ptr<TlsTicket>& resumed);
  /// Returns true if the peer ended its side too, and not before this one.
  [[nodiscard]] bool EndTls();

  [[nodiscard]] bool IsConnectionWaiting(Milliseconds time);
  /// Tries once to accept a connection. Returns true if one from the right address was taken over, and on failure.
  [[nodiscard]] bool TakeConnection(asio::error_code& error);
  /// Sets up the connection for the many small blocks of a file.
  void BeginFile();
  [[nodiscard]] bool HasNews();
  /// Says the end of TLS, as far as that needs no waiting, and closes.
  void Close();
  void Abandon();

  FTPSocketSettings settings;
  asio::io_context context;
  tcp::acceptor listener{context};
  tcp::socket stream{context};
  std::unique_ptr<TlsConnection> tls;  ///< null while the connection is in clear
  bool isConnected = false;
  bool isAbandoned = false;  ///< the blocking call in progress must fail

 private:
  [[nodiscard]] std::size_t ReceiveSome(std::span<char> into, std::error_code& error) override;
  [[nodiscard]] std::size_t SendSome(std::span<const char> bytes, std::error_code& error) override;
  template <typename Socket>
  [[nodiscard]] bool IsReadyWithin(Socket& socket, asio::socket_base::wait_type what, Milliseconds time);
  void BeginStream();

  env::EventLoop& loop_;
  BlockingCall* call_ = nullptr;
};

}  // namespace vantorium::publish
