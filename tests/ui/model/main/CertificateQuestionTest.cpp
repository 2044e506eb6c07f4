#include "publish/ServerList.h"
#include "publish/ServerListFile.h"
#include "tests/fakes/RecordingMessageBox.h"
#include "tests/fakes/TemporaryFolder.h"
#include "ui/model/main/CertificateQuestion.h"

#include <gtest/gtest.h>

namespace vantorium::ui {
namespace {

class CertificateQuestionTest : public testing::Test {
 protected:
  CertificateQuestionTest() {
    certificate.fingerprint = "0F";
    for (int byte = 1; byte < 32; ++byte) certificate.fingerprint += ":0F";
    publish::WriteServerList({{.ServerName = "One", .ServerURL = "one.example.org", .Encrypted = true}}, 0, File());
  }
  [[nodiscard]] std::filesystem::path File() const { return publish::ServerListFileName(program.Path()); }

  fakes::TemporaryFolder program;
  fakes::RecordingMessageBox boxes;
  CertificateQuestion question{File(), boxes};
  publish::ServerCertificate certificate = {.subject = "CN = one",
                                            .issuer = "CN = some authority",
                                            .names = {"one.example.org"},
                                            .validFrom = "2026-01-02",
                                            .validUntil = "2027-01-02",
                                            .fingerprint = {},
                                            .doubt = "self-signed certificate"};
};

TEST_F(CertificateQuestionTest, ShowsTheCertificateAndRemembersAYes) {
  EXPECT_TRUE(question.Accepts("one.example.org", certificate));
  ASSERT_EQ(boxes.boxes.size(), 1U);
  EXPECT_EQ(boxes.boxes[0].kind, env::BoxKind::Question);
  EXPECT_EQ(boxes.boxes[0].buttons, env::BoxButtons::YesNo) << "Return and Escape mean No";
  for (const std::string& part :
       {std::string("one.example.org"), certificate.subject, certificate.issuer, certificate.validFrom,
        certificate.validUntil, certificate.fingerprint, certificate.doubt}) {
    EXPECT_NE(boxes.boxes[0].text.find(part), std::string::npos) << part;
  }
  EXPECT_EQ(publish::ServerListValues(File()).Text("Fingerprint1"), certificate.fingerprint);
}

TEST_F(CertificateQuestionTest, ANoIsNotRemembered) {
  boxes.answers = {env::BoxAnswer::No};
  const std::string before = program.Read("vantorium.pub");
  EXPECT_FALSE(question.Accepts("one.example.org", certificate));
  EXPECT_EQ(program.Read("vantorium.pub"), before);
}

}  // namespace
}  // namespace vantorium::ui
