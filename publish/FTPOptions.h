#pragma once

#include <string>

namespace vantorium::publish {

/// How a session talks to its server. With everything off it is active FTP in clear, over IPv4.
struct FTPOptions {
  bool passive = false;     ///< the client opens the data connections
  bool encrypted = false;   ///< TLS on both connections; nothing secret is sent without it
  std::string fingerprint;  ///< as NormalizedFingerprint: the only certificate to accept; empty: see CertificatePrompt

  bool operator==(const FTPOptions&) const = default;
};

}  // namespace vantorium::publish
