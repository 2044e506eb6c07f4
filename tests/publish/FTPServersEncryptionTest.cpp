// The FTP client with real servers: with TLS in active and passive mode, and passive mode without TLS.
#include "tests/publish/FTPServerFixture.h"

#include <tuple>

namespace vantorium::publish {
namespace {

using fakes::FtpServerKind;

class EncryptedFTPServers : public FTPServerFixture,
                            public testing::WithParamInterface<std::tuple<FtpServerKind, bool>> {
 protected:
  EncryptedFTPServers() : FTPServerFixture(std::get<0>(GetParam()), Encryption::Demanded) {
    client.ftp.Options = {.passive = std::get<1>(GetParam()), .encrypted = true, .fingerprint = identity.fingerprint};
    client.ftp.Certificates = &prompt;
  }

  ScriptedCertificatePrompt prompt;
};

TEST_P(EncryptedFTPServers, StoreFilesOfEverySizeByteByByte) {
  LogIn();
  ExpectThatFilesOfEverySizeAreStored();
}

TEST_P(EncryptedFTPServers, MakeFoldersAndReportTheirFiles) {
  LogIn();
  EXPECT_TRUE(client.ftp.FTPCreateDirectoryPath("my gallery/images/")) << client.window.log;
  EXPECT_TRUE(Copy(std::string(2047, 'x'), "my gallery\\images\\a b.jpg"));
  EXPECT_TRUE(client.ftp.FTPFileExists("my gallery/images/a b.jpg"));
  EXPECT_EQ(client.ftp.FTPGetFileSize("my gallery/images/a b.jpg"), "1KB");
  EXPECT_TRUE(client.ftp.FTPDeleteFile("my gallery/images/a b.jpg"));
}

TEST_P(EncryptedFTPServers, RefuseUnencryptedSessions) {
  client.ftp.Options.encrypted = false;
  EXPECT_TRUE(Connect());
  EXPECT_FALSE(client.ftp.FTPLogin(server.User(), server.Password()) && Copy("1", "a.jpg")) << client.window.log;
  EXPECT_FALSE(Exists("a.jpg"));
}

TEST_P(EncryptedFTPServers, AreAskedAboutOnceIfTheirCertificateIsNotTrusted) {
  client.ftp.Options.fingerprint.clear();
  LogIn();
  EXPECT_TRUE(Copy("1", "a.jpg"));
  EXPECT_TRUE(Copy("2", "b.jpg"));
  ASSERT_EQ(prompt.certificates.size(), 1U);
  EXPECT_EQ(prompt.certificates[0].fingerprint, identity.fingerprint);
}

TEST_P(EncryptedFTPServers, AreRefusedIfTheirCertificateIsNotTheAcceptedOne) {
  client.ftp.Options.fingerprint = fakes::TestCertificate().fingerprint;
  EXPECT_FALSE(Connect());
  EXPECT_NE(client.ftp.EncryptionProblem().find("has changed"), std::string::npos) << client.ftp.EncryptionProblem();
  EXPECT_TRUE(prompt.hosts.empty());
  EXPECT_FALSE(client.ftp.IsConnected());
}

TEST_P(EncryptedFTPServers, KeepNothingOfAFileThatIsCancelledAndServeTheNextSession) {
  LogIn();
  CancelALargeFile(client);
  EXPECT_TRUE(client.cancel.isRequested);
  EXPECT_TRUE(client.boxes.boxes.empty());
  client.ftp.Disconnect();
  WaitUntilDeleted("large");
  EXPECT_FALSE(Exists("large")) << client.window.log;
  client.cancel.isRequested = false;
  client.loop.onTurn = nullptr;
  LogIn();
  EXPECT_TRUE(Copy("1", "a.jpg"));
}

INSTANTIATE_TEST_SUITE_P(On, EncryptedFTPServers, testing::Combine(kServerKinds, testing::Bool()),
                         [](const auto& test) {
                           const bool passive = std::get<1>(test.param);
                           return fakes::NameOf(std::get<0>(test.param)) + (passive ? "_passive" : "_active");
                         });

class PassiveFTPServers : public FTPServerFixture, public testing::WithParamInterface<FtpServerKind> {
 protected:
  PassiveFTPServers() : FTPServerFixture(GetParam()) {}
};

TEST_P(PassiveFTPServers, StoreUnencryptedFilesToo) {
  client.ftp.Options.passive = true;
  LogIn();
  const std::string bytes(100000, 'x');
  EXPECT_TRUE(Copy(bytes, "a.jpg")) << client.window.log;
  EXPECT_TRUE(Stored("a.jpg") == bytes);
  EXPECT_NE(client.window.log.find("229 "), std::string::npos) << client.window.log;
}

INSTANTIATE_TEST_SUITE_P(On, PassiveFTPServers, kServerKinds,
                         [](const auto& test) { return fakes::NameOf(test.param); });

}  // namespace
}  // namespace vantorium::publish
