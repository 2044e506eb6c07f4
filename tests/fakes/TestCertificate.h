#pragma once

#include <string>
#include <vector>

namespace vantorium::fakes {

/// A self-signed certificate with its key: a new one each time, valid today unless told otherwise.
struct TestCertificate {
  struct Properties {
    std::string commonName = "localhost";
    /// Alternative names, in the syntax of OpenSSL's configuration.
    std::string names = "DNS:localhost,IP:127.0.0.1,IP:::1";
    int firstDay = -1;  ///< of validity, in days from today
    int lastDay = 30;   ///< of validity, in days from today
  };

  explicit TestCertificate(const Properties& properties);
  TestCertificate() : TestCertificate(Properties()) {}

  std::string certificate;  ///< PEM
  std::string key;          ///< PEM
  std::string fingerprint;  ///< SHA-256, in uppercase hexadecimal with colons
};

}  // namespace vantorium::fakes
