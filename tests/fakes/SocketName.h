#pragma once

#include <cstdint>
#include <string>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <sys/socket.h>

namespace vantorium::fakes {

/// The address of an IPv4 or IPv6 socket.
struct SocketName {
  explicit SocketName(const std::string& address, std::uint16_t port) {
    if (address.find(':') == std::string::npos) {
      auto& name = reinterpret_cast<sockaddr_in&>(bytes);
      name.sin_family = AF_INET;
      name.sin_port = htons(port);
      ::inet_pton(AF_INET, address.c_str(), &name.sin_addr);
      size = sizeof name;
    } else {
      auto& name = reinterpret_cast<sockaddr_in6&>(bytes);
      name.sin6_family = AF_INET6;
      name.sin6_port = htons(port);
      ::inet_pton(AF_INET6, address.c_str(), &name.sin6_addr);
      size = sizeof name;
    }
  }
  [[nodiscard]] sockaddr* Plain() { return reinterpret_cast<sockaddr*>(&bytes); }
  [[nodiscard]] int NewSocket() const { return ::socket(bytes.ss_family, SOCK_STREAM | SOCK_CLOEXEC, 0); }

  sockaddr_storage bytes = {};
  socklen_t size = 0;
};

}  // namespace vantorium::fakes
