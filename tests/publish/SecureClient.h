#pragma once

#include "tests/fakes/TestCertificate.h"
#include "tests/publish/NetworkClient.h"

#include <cstdlib>

namespace vantorium::publish {

/// Gives the same answer to every question about a certificate, and records the questions.
class ScriptedCertificatePrompt : public CertificatePrompt {
 public:
  [[nodiscard]] bool Accepts(const std::string& host, const ServerCertificate& certificate) override {
    hosts.push_back(host);
    certificates.push_back(certificate);
    return answer;
  }

  bool answer = true;
  std::vector<std::string> hosts;
  std::vector<ServerCertificate> certificates;
};

/// While it exists, the system trusts only this certificate.
class SystemCertificate {
 public:
  explicit SystemCertificate(const fakes::TestCertificate& trusted) {
    ::setenv("SSL_CERT_FILE", folder_.Write("trusted.pem", trusted.certificate).c_str(), 1);
  }
  ~SystemCertificate() { ::unsetenv("SSL_CERT_FILE"); }
  SystemCertificate(const SystemCertificate&) = delete;
  SystemCertificate& operator=(const SystemCertificate&) = delete;

 private:
  fakes::TemporaryFolder folder_;
};

}  // namespace vantorium::publish
