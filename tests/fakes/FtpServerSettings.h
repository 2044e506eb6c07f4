#pragma once

#include "tests/fakes/TestCertificate.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace vantorium::fakes {

enum class FtpServerKind { Vsftpd, Proftpd, Pureftpd };

/// What a server of the tests is to be like.
struct FtpServerSettings {
  std::string name;              ///< its greeting contains this
  std::filesystem::path folder;  ///< for its own files; contains the folder "root" for those of the clients
  std::uint16_t port = 0;        ///< on loopback
  /// With it the server demands TLS, and for data connections (except Pure-FTPd) the session of the control connection.
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

/// For the names of tests.
[[nodiscard]] std::string NameOf(FtpServerKind kind);

}  // namespace vantorium::fakes
