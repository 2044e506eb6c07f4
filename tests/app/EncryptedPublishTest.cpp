// Publishing to real servers that demand TLS.
#include "tests/app/ServerPlace.h"

namespace vantorium::batch {
namespace {

using fakes::FtpServerKind;
using fakes::TestCertificate;

class EncryptedPublish : public ServerPlace, public testing::WithParamInterface<FtpServerKind> {
 protected:
  EncryptedPublish() : EncryptedPublish(TestCertificate()) {}
  explicit EncryptedPublish(const TestCertificate& shown)
      : ServerPlace(GetParam(), shown), fingerprint(shown.fingerprint) {}
  void SetUp() override { place.Project("a.gpj", {"a.jpg", "b c.jpg"}); }

  std::string fingerprint;
};

INSTANTIATE_TEST_SUITE_P(To, EncryptedPublish,
                         testing::Values(FtpServerKind::Vsftpd, FtpServerKind::Proftpd, FtpServerKind::Pureftpd),
                         [](const auto& test) { return fakes::NameOf(test.param); });

TEST_P(EncryptedPublish, AGalleryEqualsTheCreatedOneFileByFileInBothModes) {
  const std::vector<std::string> time = {"--creation-time", "2001-02-03 04:05:06"};
  ASSERT_TRUE(Succeeded(place.Run({"create", "a.gpj", "out/index.htm", time[0], time[1]})));
  ASSERT_TRUE(Succeeded(Publish("active/index.htm", {"--tls", "--tls-fingerprint", fingerprint, time[0], time[1]})))
      << Log();
  EXPECT_TRUE(SameFiles(OnServer("active"), place.Path("out")));
  ASSERT_TRUE(Succeeded(
      Publish("passive/index.htm", {"--passive", "--tls", "--tls-fingerprint", fingerprint, time[0], time[1]})))
      << Log();
  EXPECT_TRUE(SameFiles(OnServer("passive"), place.Path("out")));
  EXPECT_EQ(Log().find(server.Password()), std::string::npos);
}

TEST_P(EncryptedPublish, AnUnknownCertificateIsPrintedAndIsAFailure) {
  const ProcessResult result = Publish("web/index.htm", {"--tls"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_TRUE(
      result.err.starts_with("FTP Error: The certificate of the server \"127.0.0.1\" is not trusted: self-signed "
                             "certificate. The password was not sent.\n"))
      << result.err;
  EXPECT_NE(result.err.find("SHA-256 fingerprint: " + fingerprint + "\n"), std::string::npos) << result.err;
  EXPECT_EQ(ListingOf(server.Root()), "");
}

TEST_P(EncryptedPublish, ACertificateWithAnotherFingerprintIsAFailure) {
  const ProcessResult result = Publish("web/index.htm", {"--tls", "--tls-fingerprint", TestCertificate().fingerprint});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_NE(result.err.find("has changed"), std::string::npos) << result.err;
  EXPECT_EQ(ListingOf(server.Root()), "");
}

class PlainServer : public ServerPlace {};

TEST_F(PlainServer, IsRefusedWithTlsAndWorksInPassiveMode) {
  place.Write("site/a.txt", "1");
  const ProcessResult result = Upload("web", {"--tls"});
  EXPECT_TRUE(EndedWith(1, result));
  EXPECT_EQ(result.err, "FTP Error: The server \"127.0.0.1\" offers no encryption (TLS).\n");
  EXPECT_TRUE(Succeeded(Upload("web", {"--passive"}))) << Log();
  EXPECT_EQ(place.Read(OnServer("web/a.txt")), "1");
}

}  // namespace
}  // namespace vantorium::batch
