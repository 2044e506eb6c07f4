#pragma once

#include <future>
#include <string>
#include <vector>

namespace vantorium {

/// Starts to look up the IPv4 addresses of a host name or of an address in text form; none when it is unknown. The
/// system may take long over it: nobody has to wait for the result.
[[nodiscard]] std::future<std::vector<std::string>> LookUpHost(const std::string& host);

}  // namespace vantorium
