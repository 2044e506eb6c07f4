#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantorium::publish {

/// What a server's certificate says, and whether to believe it. The texts come from the server: anything may be in
/// them, except control characters.
struct ServerCertificate {
  std::string subject;
  std::string issuer;
  std::vector<std::string> names;  ///< the hosts and addresses that it is for
  std::string validFrom;           ///< "YYYY-MM-DD", UTC
  std::string validUntil;
  std::string fingerprint;  ///< SHA-256 of the certificate, as NormalizedFingerprint; empty without a certificate
  std::string doubt;        ///< why the system's certificates do not vouch for it and its host; empty: they do
};

/// Returns the lines that show a certificate to the user, separated by CR.
[[nodiscard]] std::string DescriptionOf(const ServerCertificate& certificate);

/// Returns a SHA-256 fingerprint in capitals with colons between its 32 bytes. `text` may have small letters and any of
/// the colons. Returns nullopt if it is anything else.
[[nodiscard]] std::optional<std::string> NormalizedFingerprint(std::string_view text);

}  // namespace vantorium::publish
