#pragma once

#include "tests/app/Workplace.h"
#include "tests/fakes/FtpServerProcess.h"

namespace vantorium::batch {

/// A workplace and a real server on loopback. The file "password" holds the server's password.
class ServerPlace : public testing::Test {
 protected:
  /// With a certificate, the server demands TLS.
  explicit ServerPlace(fakes::FtpServerKind kind = fakes::FtpServerKind::Vsftpd,
                       std::optional<fakes::TestCertificate> certificate = std::nullopt)
      : server(kind, std::move(certificate)) {
    place.Write("password", server.Password() + "\n");
  }

  /// The options that select the server, with the remote path as the last one.
  [[nodiscard]] std::vector<std::string> At(const std::string& remote) const {
    return {"--server", "127.0.0.1",   "--port",          std::to_string(server.Port()),
            "--user",   server.User(), "--password-file", "password",
            "--remote", remote};
  }
  /// Options for publishing a project or uploading a folder.
  [[nodiscard]] StartOptions Options(const std::string& command, const std::string& what, const std::string& remote,
                                     const std::vector<std::string>& more = {}) const {
    std::vector<std::string> arguments = {command, what};
    for (const auto& options : {At(remote), more}) arguments.insert(arguments.end(), options.begin(), options.end());
    return place.Options(arguments);
  }
  [[nodiscard]] ProcessResult Publish(const std::string& remote, const std::vector<std::string>& more = {}) const {
    return ChildProcess(Options("publish", "a.gpj", remote, more)).Finish();
  }
  [[nodiscard]] ProcessResult Upload(const std::string& remote, const std::vector<std::string>& more = {}) const {
    return ChildProcess(Options("upload", "site", remote, more)).Finish();
  }

  [[nodiscard]] std::filesystem::path OnServer(const std::string& path) const { return server.Root() / path; }
  [[nodiscard]] std::string Log() const { return place.Read("program/ftplog.txt"); }

  Workplace place;
  fakes::FtpServerProcess server;
};

/// A ServerPlace for each kind of server.
class EachServerPlace : public ServerPlace, public testing::WithParamInterface<fakes::FtpServerKind> {
 protected:
  EachServerPlace() : ServerPlace(GetParam()) {}
};

inline const auto kEachServer = testing::Values(fakes::FtpServerKind::Vsftpd, fakes::FtpServerKind::Proftpd);
inline std::string NameOfServer(const testing::TestParamInfo<fakes::FtpServerKind>& info) {
  return info.param == fakes::FtpServerKind::Vsftpd ? "vsftpd" : "ProFTPD";
}

}  // namespace vantorium::batch
