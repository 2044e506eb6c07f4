#pragma once

#include "env/FileDescriptor.h"

#include <array>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace vantorium::publish {

inline sockaddr_in LoopbackName(std::uint16_t port, const char* address = "127.0.0.1") {
  sockaddr_in name = {};
  name.sin_family = AF_INET;
  name.sin_port = htons(port);
  ::inet_pton(AF_INET, address, &name.sin_addr);
  return name;
}

/// The test's end of a connection. Reads wait for at most ten seconds.
class LoopbackPeer {
 public:
  explicit LoopbackPeer(int descriptor) : socket_(descriptor) {
    const timeval patience = {10, 0};
    ::setsockopt(descriptor, SOL_SOCKET, SO_RCVTIMEO, &patience, sizeof patience);
  }
  /// Connects from the local address `from` to a port on loopback.
  explicit LoopbackPeer(std::uint16_t port, const char* from, int flags = 0)
      : LoopbackPeer(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | flags, 0)) {
    const auto source = LoopbackName(0, from);
    const auto target = LoopbackName(port);
    ::bind(socket_.Get(), reinterpret_cast<const sockaddr*>(&source), sizeof source);
    const int result = ::connect(socket_.Get(), reinterpret_cast<const sockaddr*>(&target), sizeof target);
    if (result != 0 && flags == 0) throw std::runtime_error("no connection to the socket under test");
  }

  void Say(std::string_view text) const { ::send(socket_.Get(), text.data(), text.size(), MSG_NOSIGNAL); }
  /// Reads until the connection ends. Sets `wasReset` to whether it was reset.
  [[nodiscard]] std::string ReadAll(bool& wasReset) const {
    std::string bytes;
    std::array<char, 65536> block = {};
    for (;;) {
      const auto count = ::recv(socket_.Get(), block.data(), block.size(), 0);
      wasReset = count < 0 && errno == ECONNRESET;
      if (count <= 0) return bytes;
      bytes.append(block.data(), static_cast<std::size_t>(count));
    }
  }
  void Reset() {
    const linger now = {1, 0};
    ::setsockopt(socket_.Get(), SOL_SOCKET, SO_LINGER, &now, sizeof now);
    Close();
  }
  void Close() { std::ignore = socket_.Close(); }

 private:
  env::FileDescriptor socket_;
};

/// Listens on a free port of loopback.
class LoopbackListener {
 public:
  explicit LoopbackListener(int backlog = 8) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    auto name = LoopbackName(0);
    socklen_t size = sizeof name;
    auto* plain = reinterpret_cast<sockaddr*>(&name);
    if (::bind(socket_.Get(), plain, size) != 0 || ::listen(socket_.Get(), backlog) != 0 ||
        ::getsockname(socket_.Get(), plain, &size) != 0) {
      throw std::runtime_error("no listener on loopback");
    }
    port_ = ntohs(name.sin_port);
  }

  [[nodiscard]] std::uint16_t Port() const { return port_; }
  [[nodiscard]] LoopbackPeer Accept() const { return LoopbackPeer(::accept(socket_.Get(), nullptr, nullptr)); }

 private:
  env::FileDescriptor socket_;
  std::uint16_t port_ = 0;
};

}  // namespace vantorium::publish
