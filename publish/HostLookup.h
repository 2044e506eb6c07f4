#pragma once

#include <future>
#include <string>
#include <vector>

namespace vantorium::publish {

enum class HostFamily { IPv4, Any };

/// Starts to look up the addresses of a host name or of an address in text form, those of IPv4 before those of IPv6;
/// the result is empty if the host is unknown. The look-up may take long; the caller need not wait for the result.
[[nodiscard]] std::future<std::vector<std::string>> LookUpHost(const std::string& host,
                                                               HostFamily family = HostFamily::IPv4);

}  // namespace vantorium::publish
