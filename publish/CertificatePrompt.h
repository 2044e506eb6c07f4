#pragma once

#include "publish/ServerCertificate.h"

namespace vantorium::publish {

/// Decides about a certificate that neither the system nor an earlier answer vouches for.
class CertificatePrompt {
 public:
  virtual ~CertificatePrompt() = default;

  /// Returns true to go on with `host`. Called once in a session, before anything secret is sent.
  [[nodiscard]] virtual bool Accepts(const std::string& host, const ServerCertificate& certificate) = 0;
};

}  // namespace vantorium::publish
