#pragma once

#include <future>
#include <string>
#include <vector>

namespace vantorium::publish {

/// Starts to look up the IPv4 addresses of a host name or of an address in text form; the result is empty if the host
/// is unknown. The look-up may take long; the caller need not wait for the result.
[[nodiscard]] std::future<std::vector<std::string>> LookUpHost(const std::string& host);

}  // namespace vantorium::publish
