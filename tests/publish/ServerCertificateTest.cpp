#include "publish/ServerCertificate.h"

#include <gtest/gtest.h>

namespace vantorium::publish {
namespace {

/// The bytes 00 to 1F.
std::string Digits(const std::string& separator, bool small = false) {
  std::string text;
  for (int byte = 0; byte < 32; ++byte) {
    const char* kDigits = small ? "0123456789abcdef" : "0123456789ABCDEF";
    if (byte > 0) text += separator;
    text += {kDigits[byte / 16], kDigits[byte % 16]};
  }
  return text;
}

TEST(NormalizedFingerprint, CaseAndColonsDoNotMatter) {
  const std::string normal = Digits(":");
  for (const std::string& text : {Digits(":"), Digits(""), Digits(":", true), Digits("", true)}) {
    EXPECT_EQ(NormalizedFingerprint(text), normal) << text;
  }
}

TEST(NormalizedFingerprint, AnythingElseIsNotAFingerprint) {
  const std::string whole = Digits("");
  for (const std::string& text :
       {std::string(), std::string("SHA256"), whole.substr(1), whole + "0", whole + ":", ":" + whole, Digits("::"),
        Digits(" "), Digits("-"), "G" + whole.substr(1), "0:" + whole.substr(1), whole.substr(0, 40)}) {
    EXPECT_EQ(NormalizedFingerprint(text), std::nullopt) << text;
  }
}

TEST(DescriptionOf, ACertificateShowsNamesDatesAndFingerprint) {
  ServerCertificate certificate = {"CN = a", "CN = b", {"a.example", "10.0.0.1"}, "2026-01-02", "2027-01-02",
                                   "AB:CD",  ""};
  EXPECT_EQ(DescriptionOf(certificate),
            "Subject: CN = a\rIssuer: CN = b\rNames: a.example, 10.0.0.1\rValid: 2026-01-02 to 2027-01-02\r"
            "SHA-256 fingerprint: AB:CD");
}

TEST(DescriptionOf, ALongListOfNamesIsAbbreviated) {
  ServerCertificate certificate;
  certificate.names.assign(1000, "x");
  EXPECT_NE(DescriptionOf(certificate).find("Names: x, x, x, x, x, x, x, x, ...\r"), std::string::npos);
}

}  // namespace
}  // namespace vantorium::publish
