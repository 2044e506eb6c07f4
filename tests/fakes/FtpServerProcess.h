#pragma once

#include "tests/fakes/TemporaryFolder.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include <sys/types.h>

namespace vantorium::fakes {

enum class FtpServerKind { Vsftpd, Proftpd };

/// A real FTP server on loopback, with its own port and folder. It runs as the test's user, with that user's rights. It
/// is killed by the destructor, or when the test dies.
class FtpServerProcess {
 public:
  /// Throws std::runtime_error if the server is not installed, or, with the server's output, if it does not start.
  explicit FtpServerProcess(FtpServerKind kind);
  ~FtpServerProcess();
  FtpServerProcess(const FtpServerProcess&) = delete;
  FtpServerProcess& operator=(const FtpServerProcess&) = delete;

  [[nodiscard]] std::uint16_t Port() const { return port_; }
  [[nodiscard]] std::string User() const { return user_; }
  [[nodiscard]] std::string Password() const { return "open sesame"; }
  /// The folder in which a client's session starts.
  [[nodiscard]] std::filesystem::path Root() const { return folder_.Path() / "root"; }

 private:
  [[nodiscard]] std::filesystem::path Output() const { return folder_.Path() / "output"; }
  [[nodiscard]] std::string Name() const { return folder_.Path().filename().string(); }
  [[nodiscard]] std::vector<std::string> VsftpdCommand();
  [[nodiscard]] std::vector<std::string> ProftpdCommand();
  void Start(const std::vector<std::string>& command);
  [[nodiscard]] bool WaitUntilItListens();
  [[nodiscard]] bool HasEnded();
  void End();

  TemporaryFolder folder_;
  std::uint16_t port_ = 0;
  std::string user_;
  pid_t process_ = -1;
};

}  // namespace vantorium::fakes
