#pragma once

#include "tests/fakes/FtpServerProcess.h"
#include "tests/publish/SecureClient.h"

#include <thread>

#include <gtest/gtest.h>

namespace vantorium::publish {

/// The FTP client and a real server.
class FTPServerFixture : public testing::Test {
 protected:
  enum class Encryption { None, Demanded };

  explicit FTPServerFixture(fakes::FtpServerKind kind, Encryption encryption = Encryption::None)
      : server(kind, encryption == Encryption::Demanded ? std::optional(identity) : std::nullopt) {}

  [[nodiscard]] bool Connect() { return client.ftp.FTPConnect("127.0.0.1", server.Port()); }
  void LogIn() { LogIn(client); }
  void LogIn(NetworkClient& user) const {
    ASSERT_TRUE(user.ftp.FTPConnect("127.0.0.1", server.Port())) << user.ftp.EncryptionProblem() << user.window.log;
    ASSERT_TRUE(user.ftp.FTPLogin(server.User(), server.Password())) << user.window.log;
  }

  /// Stores a file with these bytes on the server.
  [[nodiscard]] bool Copy(const std::string& bytes, const std::string& target, bool overwrite = true) {
    client.folder.Write("source", bytes);
    return client.ftp.FTPCopyFile("C:\\source", target, overwrite);
  }
  [[nodiscard]] std::string Stored(const std::string& name) const {
    return fakes::TemporaryFolder::ReadFile(server.Root() / name);
  }
  [[nodiscard]] bool Exists(const std::string& name) const { return std::filesystem::exists(server.Root() / name); }

  void ExpectThatFilesOfEverySizeAreStored() {
    for (const std::size_t size : {1U, 4095U, 4096U, 4097U, 100000U, 3000000U}) {
      std::string bytes(size, '\0');
      for (std::size_t at = 0; at < size; ++at) bytes[at] = static_cast<char>(at * 31 % 251);
      EXPECT_TRUE(Copy(bytes, "file")) << client.window.log;
      EXPECT_TRUE(Stored("file") == bytes) << size;
    }
    EXPECT_TRUE(client.boxes.boxes.empty());
  }

  /// Begins to store a file of 1 GiB under the name "large", and cancels while it is being sent.
  static void CancelALargeFile(NetworkClient& user) {
    std::filesystem::resize_file(user.folder.Write("large", ""), std::uintmax_t{1} << 30U);
    user.CancelWhen([&user] { return user.IsInsideAWrite(); });
    EXPECT_FALSE(user.ftp.FTPCopyFile("C:\\large", "large", true));
  }
  /// A server may notice the end of a transfer only after it has taken the command that deletes the file.
  void WaitUntilDeleted(const std::string& name) const {
    for (int look = 0; look < 1000 && Exists(name); ++look) std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }

  fakes::TestCertificate identity;  ///< of a server that demands encryption
  fakes::FtpServerProcess server;
  NetworkClient client;
};

/// The kinds of servers, as a parameter of tests.
inline const auto kServerKinds =
    testing::Values(fakes::FtpServerKind::Vsftpd, fakes::FtpServerKind::Proftpd, fakes::FtpServerKind::Pureftpd);

}  // namespace vantorium::publish
