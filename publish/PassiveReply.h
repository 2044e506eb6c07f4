#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorium::publish {

/// Returns the port in the text of a reply 229 to EPSV: "(|||port|)", with any delimiter of RFC 2428. Returns nullopt
/// if there is none, or 0.
[[nodiscard]] std::optional<std::uint16_t> PortOfEpsvReply(std::string_view text);

/// Returns the port in the text of a reply 227 to PASV: the last two of the six numbers "h1,h2,h3,h4,p1,p2" of RFC 959,
/// which may stand without parentheses (RFC 1123). The host is for the reader to ignore: a server that names another
/// one is behind a router, or wants the client to connect elsewhere. Returns nullopt if there are no such numbers, or
/// the port is 0.
[[nodiscard]] std::optional<std::uint16_t> PortOfPasvReply(std::string_view text);

}  // namespace vantorium::publish
