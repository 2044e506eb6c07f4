// The FTP client with real servers that demand TLS, in active and in passive mode.
#include "tests/fakes/FtpServerProcess.h"
#include "tests/publish/SecureClient.h"

#include <thread>
#include <tuple>

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

using fakes::FtpServerKind;
namespace fs = std::filesystem;

class EncryptedFTPServers : public testing::TestWithParam<std::tuple<FtpServerKind, bool>> {
 protected:
  EncryptedFTPServers() {
    client.ftp.Options = {.passive = std::get<1>(GetParam()), .encrypted = true, .fingerprint = identity.fingerprint};
    client.ftp.Certificates = &prompt;
  }
  [[nodiscard]] bool Connect() { return client.ftp.FTPConnect("127.0.0.1", server.Port()); }
  void LogIn() {
    ASSERT_TRUE(Connect()) << client.ftp.EncryptionProblem() << client.window.log;
    ASSERT_TRUE(client.ftp.FTPLogin(server.User(), server.Password())) << client.window.log;
  }
  [[nodiscard]] bool Copy(const std::string& bytes, const std::string& target) {
    client.folder.Write("source", bytes);
    return client.ftp.FTPCopyFile("C:\\source", target, true);
  }
  [[nodiscard]] std::string Stored(const std::string& name) const {
    return fakes::TemporaryFolder::ReadFile(server.Root() / name);
  }

  fakes::TestCertificate identity;
  fakes::FtpServerProcess server{std::get<0>(GetParam()), identity};
  NetworkClient client;
  ScriptedCertificatePrompt prompt;
};

TEST_P(EncryptedFTPServers, StoreFilesOfEverySizeByteByByte) {
  LogIn();
  for (const std::size_t size : {1U, 4095U, 4096U, 4097U, 100000U, 3000000U}) {
    std::string bytes(size, '\0');
    for (std::size_t at = 0; at < size; ++at) bytes[at] = static_cast<char>(at * 31 % 251);
    EXPECT_TRUE(Copy(bytes, "file")) << client.window.log;
    EXPECT_TRUE(Stored("file") == bytes) << size;
  }
  EXPECT_TRUE(client.boxes.boxes.empty());
}

TEST_P(EncryptedFTPServers, MakeFoldersAndTellWhatTheyHave) {
  LogIn();
  EXPECT_TRUE(client.ftp.FTPCreateDirectoryPath("my gallery/images/")) << client.window.log;
  EXPECT_TRUE(Copy(std::string(2047, 'x'), "my gallery\\images\\a b.jpg"));
  EXPECT_TRUE(client.ftp.FTPFileExists("my gallery/images/a b.jpg"));
  EXPECT_EQ(client.ftp.FTPGetFileSize("my gallery/images/a b.jpg"), "1KB");
  EXPECT_TRUE(client.ftp.FTPDeleteFile("my gallery/images/a b.jpg"));
}

TEST_P(EncryptedFTPServers, ServeNobodyInClear) {
  client.ftp.Options.encrypted = false;
  EXPECT_TRUE(Connect());
  EXPECT_FALSE(client.ftp.FTPLogin(server.User(), server.Password()) && Copy("1", "a.jpg")) << client.window.log;
  EXPECT_FALSE(fs::exists(server.Root() / "a.jpg"));
}

TEST_P(EncryptedFTPServers, AreAskedAboutOnceIfNothingVouchesForThem) {
  client.ftp.Options.fingerprint.clear();
  LogIn();
  EXPECT_TRUE(Copy("1", "a.jpg"));
  EXPECT_TRUE(Copy("2", "b.jpg"));
  ASSERT_EQ(prompt.certificates.size(), 1U);
  EXPECT_EQ(prompt.certificates[0].fingerprint, identity.fingerprint);
}

TEST_P(EncryptedFTPServers, AreRefusedWithAnotherCertificateThanTheAcceptedOne) {
  client.ftp.Options.fingerprint = fakes::TestCertificate().fingerprint;
  EXPECT_FALSE(Connect());
  EXPECT_NE(client.ftp.EncryptionProblem().find("has changed"), std::string::npos) << client.ftp.EncryptionProblem();
  EXPECT_TRUE(prompt.hosts.empty());
  EXPECT_FALSE(client.ftp.IsConnected());
}

TEST_P(EncryptedFTPServers, KeepNothingOfAFileThatIsCancelledAndServeTheNextSession) {
  LogIn();
  fs::resize_file(client.folder.Write("large", ""), std::uintmax_t{1} << 30U);
  client.CancelWhen([this] { return client.IsInsideAWrite(); });
  EXPECT_FALSE(client.ftp.FTPCopyFile("C:\\large", "large", true));
  EXPECT_TRUE(client.cancel.isRequested);
  EXPECT_TRUE(client.boxes.boxes.empty());
  client.ftp.Disconnect();
  // A server may notice the end only after it has taken the command that deletes the file.
  for (int look = 0; look < 1000 && fs::exists(server.Root() / "large"); ++look) {
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  EXPECT_FALSE(fs::exists(server.Root() / "large")) << client.window.log;
  client.cancel.isRequested = false;
  client.loop.onTurn = nullptr;
  LogIn();
  EXPECT_TRUE(Copy("1", "a.jpg"));
}

INSTANTIATE_TEST_SUITE_P(On, EncryptedFTPServers,
                         testing::Combine(testing::Values(FtpServerKind::Vsftpd, FtpServerKind::Proftpd,
                                                          FtpServerKind::Pureftpd),
                                          testing::Bool()),
                         [](const auto& test) {
                           const bool passive = std::get<1>(test.param);
                           return fakes::NameOf(std::get<0>(test.param)) + (passive ? "_passive" : "_active");
                         });

class PassiveFTPServers : public testing::TestWithParam<FtpServerKind> {};

TEST_P(PassiveFTPServers, StoreFilesInClearToo) {
  const fakes::FtpServerProcess server(GetParam());
  NetworkClient client;
  client.ftp.Options.passive = true;
  ASSERT_TRUE(client.ftp.FTPConnect("127.0.0.1", server.Port()));
  ASSERT_TRUE(client.ftp.FTPLogin(server.User(), server.Password()));
  const std::string bytes(100000, 'x');
  client.folder.Write("source", bytes);
  EXPECT_TRUE(client.ftp.FTPCopyFile("C:\\source", "a.jpg", true)) << client.window.log;
  EXPECT_TRUE(fakes::TemporaryFolder::ReadFile(server.Root() / "a.jpg") == bytes);
  EXPECT_NE(client.window.log.find("229 "), std::string::npos) << client.window.log;
}

INSTANTIATE_TEST_SUITE_P(On, PassiveFTPServers,
                         testing::Values(FtpServerKind::Vsftpd, FtpServerKind::Proftpd, FtpServerKind::Pureftpd),
                         [](const auto& test) { return fakes::NameOf(test.param); });

}  // namespace
}  // namespace vantorium::publish
