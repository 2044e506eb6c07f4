#pragma once

#include <optional>
#include <string>

namespace vantorium {

/// The password in the first line of `file`, without its line end; "-" is standard input. A password is never an
/// argument, where everybody on the machine could read it. Nothing when the file can't be read.
[[nodiscard]] std::optional<std::string> ReadPassword(const std::string& file);

}  // namespace vantorium
