#pragma once

#include "tests/fakes/TestCertificate.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::fakes {

enum class FtpServerKind { Vsftpd, Proftpd, Pureftpd };

/// How a test server is set up.
struct FtpServerSettings {
  std::string name;              ///< its greeting contains this
  std::filesystem::path folder;  ///< has the server's own files, and the folder "root" with the clients' files
  std::uint16_t port = 0;        ///< on loopback

  /// If set, the server demands TLS, and (except Pure-FTPd) that data connections resume the control connection's
  /// session.
  std::optional<TestCertificate> certificate;
};

/// How to start a server, and how to log in.
struct FtpServerCommand {
  std::vector<std::string> words;
  std::vector<std::string> environment;  ///< "NAME=value"
  std::string user;
};

/// Writes the server's own files. Throws std::runtime_error if the server is not installed.
[[nodiscard]] FtpServerCommand CommandOf(FtpServerKind kind, const FtpServerSettings& settings);

/// The password of every user.
inline const std::string kFtpPassword = "open sesame";

/// The server's name in test names.
[[nodiscard]] std::string NameOf(FtpServerKind kind);

}  // namespace vantorium::fakes
