#include "publish/HostLookup.h"

#include <array>
#include <system_error>
#include <thread>
#include <utility>

#include <arpa/inet.h>
#include <netdb.h>
#include <sys/socket.h>

namespace vantorium::publish {
namespace {

std::string TextOf(const addrinfo& entry) {
  std::array<char, INET_ADDRSTRLEN> text = {};
  const auto& address = *reinterpret_cast<const sockaddr_in*>(entry.ai_addr);
  if (::inet_ntop(AF_INET, &address.sin_addr, text.data(), text.size()) == nullptr) return {};
  return text.data();
}

std::vector<std::string> AddressesOf(const std::string& host) {
  if (host.find('\0') != std::string::npos) return {};
  addrinfo hints = {};
  hints.ai_family = AF_INET;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0) return {};
  std::vector<std::string> addresses;
  for (const addrinfo* entry = found; entry != nullptr; entry = entry->ai_next) addresses.push_back(TextOf(*entry));
  ::freeaddrinfo(found);
  return addresses;
}

}  // namespace

// getaddrinfo cannot be interrupted. The thread owns all it uses, so it may outlive the caller.
std::future<std::vector<std::string>> LookUpHost(const std::string& host) {
  try {
    std::promise<std::vector<std::string>> promise;
    auto result = promise.get_future();
    std::thread([host, promise = std::move(promise)]() mutable { promise.set_value(AddressesOf(host)); }).detach();
    return result;
  } catch (const std::system_error&) {  // no thread can be started
    std::promise<std::vector<std::string>> nothing;
    nothing.set_value({});
    return nothing.get_future();
  }
}

}  // namespace vantorium::publish
