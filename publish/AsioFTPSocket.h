#pragma once

#include "env/EventLoop.h"
#include "publish/FTPSocket.h"

#include <memory>

namespace vantorium::publish {

/// FTPSocket on Asio's TCP sockets. A lost peer shows only in results; no signal is raised.
class AsioFTPSocket : public FTPSocket {
 public:
  explicit AsioFTPSocket(env::EventLoop& loop);
  ~AsioFTPSocket() override;
  AsioFTPSocket(const AsioFTPSocket&) = delete;
  AsioFTPSocket& operator=(const AsioFTPSocket&) = delete;

  [[nodiscard]] bool IsConnected() const override;
  void Close() override;
  void Reset() override;
  void Configure(const FTPSocketSettings& settings) override;
  [[nodiscard]] int Connect() override;
  [[nodiscard]] int Listen() override;
  [[nodiscard]] std::string LocalAddress() const override;
  [[nodiscard]] std::string PeerAddress() const override;
  [[nodiscard]] std::string PortArgument() const override;
  [[nodiscard]] std::string ExtendedPortArgument() const override;
  void Accept(const FTPSocket& control) override;
  [[nodiscard]] TlsHandshake StartTls(const std::string& host, const std::shared_ptr<TlsTicket>& resumed) override;
  [[nodiscard]] std::shared_ptr<TlsTicket> Ticket() const override;
  void BeginFile() override;
  [[nodiscard]] bool Finish() override;
  [[nodiscard]] std::string Read(std::size_t most) override;
  [[nodiscard]] bool HasNews() const override;
  [[nodiscard]] std::ptrdiff_t Write(std::string_view text) override;
  [[nodiscard]] std::size_t WriteBytes(std::span<const char> bytes) override;
  [[nodiscard]] bool IsBlocking() const override;
  void CancelBlockingCall() override;

 private:
  class Connection;
  std::unique_ptr<Connection> connection_;
};

}  // namespace vantorium::publish
