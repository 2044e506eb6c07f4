#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantorium::ui {

/// A place on a server as a destination field shows it: "host/path/file" for a gallery, "host/path" for a folder.
struct ServerPlace {
  std::string host;
  std::string path;  ///< what follows the host's slash, with single slashes

  bool operator==(const ServerPlace&) const = default;
};

/// Parses typed text, with either kind of slash and an optional "ftp://" prefix. Returns nullopt if it does not begin
/// with a host name or address and a slash (another scheme, a user name and a port are refused), or if it contains a
/// control character.
[[nodiscard]] std::optional<ServerPlace> ReadServerPlace(std::string_view typed);

}  // namespace vantorium::ui
