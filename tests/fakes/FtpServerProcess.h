#pragma once

#include "tests/fakes/FtpServerSettings.h"
#include "tests/fakes/TemporaryFolder.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace vantorium::fakes {

/// A real FTP server on loopback, with its own port and folder. It runs as the test's user, with that user's rights. It
/// is killed by the destructor, or when the test dies.
class FtpServerProcess {
 public:
  /// Throws std::runtime_error if the server is not installed, or, with the server's output, if it does not start.
  /// With a certificate the server demands TLS.
  explicit FtpServerProcess(FtpServerKind kind, std::optional<TestCertificate> certificate = std::nullopt);
  ~FtpServerProcess();
  FtpServerProcess(const FtpServerProcess&) = delete;
  FtpServerProcess& operator=(const FtpServerProcess&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }
  [[nodiscard]] std::string User() const { return user_; }
  [[nodiscard]] std::string Password() const { return kFtpPassword; }
  /// The folder in which a client's session starts.
  [[nodiscard]] std::filesystem::path Root() const { return folder_.Path() / "root"; }

 private:
  [[nodiscard]] std::filesystem::path Output() const { return folder_.Path() / "output"; }
  [[nodiscard]] std::string Name() const { return folder_.Path().filename().string(); }
  void Start(const FtpServerCommand& command);
  [[nodiscard]] bool WaitUntilItListens();
  [[nodiscard]] bool HasEnded();
  void End();

  TemporaryFolder folder_;
  std::uint16_t port_ = 0;
  std::string user_;
  pid_t process_ = -1;
};

}  // namespace vantorium::fakes
