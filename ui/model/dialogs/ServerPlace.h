#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vantorium {

/// A place on a server as a destination field shows it: "host/path/file" for a gallery, "host/path" for a folder.
struct ServerPlace {
  std::string host;
  std::string path;  ///< what stands behind the host's slash, in single slashes

  bool operator==(const ServerPlace&) const = default;
};

/// Reads what a user typed, with either kind of slash and perhaps "ftp://" in front. Nothing when that does not begin
/// with the name or the address of a host and a slash, as with another scheme, a user name or a port, or when it holds
/// a control character.
[[nodiscard]] std::optional<ServerPlace> ReadServerPlace(std::string_view typed);

}  // namespace vantorium
