#pragma once

#include <optional>
#include <string>

namespace vantorium::batch {

/// Returns the password in the first line of `file`, without its line end; "-" is standard input. A password is never
/// an argument, where everybody on the machine could read it, and it is not shown when typed on a terminal. Returns
/// nullopt if the file cannot be read or its first line is longer than 4096 bytes.
[[nodiscard]] std::optional<std::string> ReadPassword(const std::string& file);

}  // namespace vantorium::batch
