#include "publish/HostLookup.h"

#include <algorithm>
#include <array>
#include <system_error>
#include <thread>
#include <utility>

#include <netdb.h>
#include <sys/socket.h>

namespace vantorium::publish {
namespace {

/// With the zone of a link-local address, without which nothing can be connected to it.
std::string TextOf(const addrinfo& entry) {
  std::array<char, NI_MAXHOST> text = {};
  const auto size = static_cast<socklen_t>(text.size());
  const int result = ::getnameinfo(entry.ai_addr, entry.ai_addrlen, text.data(), size, nullptr, 0, NI_NUMERICHOST);
  return result == 0 ? text.data() : "";
}

std::vector<std::string> AddressesOf(const std::string& host, HostFamily family) {
  if (host.find('\0') != std::string::npos) return {};
  addrinfo hints = {};
  hints.ai_family = family == HostFamily::IPv4 ? AF_INET : AF_UNSPEC;
  hints.ai_socktype = SOCK_STREAM;
  addrinfo* found = nullptr;
  if (::getaddrinfo(host.c_str(), nullptr, &hints, &found) != 0) return {};
  std::vector<std::string> addresses;
  for (const addrinfo* entry = found; entry != nullptr; entry = entry->ai_next) addresses.push_back(TextOf(*entry));
  ::freeaddrinfo(found);
  const auto isIPv4 = [](const std::string& address) { return address.find(':') == std::string::npos; };
  std::stable_partition(addresses.begin(), addresses.end(), isIPv4);
  return addresses;
}

}  // namespace

// getaddrinfo cannot be interrupted. The thread owns all it uses, so it may outlive the caller.
std::future<std::vector<std::string>> LookUpHost(const std::string& host, HostFamily family) {
  try {
    std::promise<std::vector<std::string>> promise;
    auto result = promise.get_future();
    std::thread([host, family, promise = std::move(promise)]() mutable {
      promise.set_value(AddressesOf(host, family));
    }).detach();
    return result;
  } catch (const std::system_error&) {  // no thread can be started
    std::promise<std::vector<std::string>> nothing;
    nothing.set_value({});
    return nothing.get_future();
  }
}

}  // namespace vantorium::publish
