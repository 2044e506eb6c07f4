#pragma once

#include <optional>
#include <string>

namespace vantorium {

/// The password in the first line of `file`, without its line end; "-" is standard input. A password is never an
/// argument, where everybody on the machine could read it, and typed on a terminal it is not shown. Nothing when the
/// file can't be read, and when its first line is longer than 4096 bytes.
[[nodiscard]] std::optional<std::string> ReadPassword(const std::string& file);

}  // namespace vantorium
