#pragma once

#include <string>
#include <vector>

namespace vantorium::fakes {

/// A certificate that signs itself, with its key: new for each test, and valid around the present day.
struct TestCertificate {
  struct Wish {
    std::string commonName = "localhost";
    /// As OpenSSL's configuration writes them.
    std::string names = "DNS:localhost,IP:127.0.0.1,IP:::1";
    int firstDay = -1;  ///< of its validity, counted from today
    int lastDay = 30;
  };

  explicit TestCertificate(const Wish& wish);
  TestCertificate() : TestCertificate(Wish()) {}

  std::string certificate;  ///< PEM
  std::string key;          ///< PEM
  std::string fingerprint;  ///< SHA-256, in capitals with colons
};

}  // namespace vantorium::fakes
