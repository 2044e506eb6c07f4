#include "publish/ServerCertificate.h"

#include "env/Text.h"

namespace vantorium::publish {
namespace {

/// The names shown; a certificate may have thousands.
constexpr std::size_t kMostNames = 8;

std::string NamesOf(const ServerCertificate& certificate) {
  std::string text;
  for (std::size_t at = 0; at < certificate.names.size() && at < kMostNames; ++at) {
    text += (at > 0 ? ", " : "") + certificate.names[at];
  }
  return certificate.names.size() > kMostNames ? text + ", ..." : text;
}

bool IsHexDigit(char letter) {
  return (letter >= '0' && letter <= '9') || (letter >= 'A' && letter <= 'F');
}

}  // namespace

std::string DescriptionOf(const ServerCertificate& certificate) {
  return "Subject: " + certificate.subject + "\rIssuer: " + certificate.issuer + "\rNames: " + NamesOf(certificate) +
         "\rValid: " + certificate.validFrom + " to " + certificate.validUntil +
         "\rSHA-256 fingerprint: " + certificate.fingerprint;
}

std::optional<std::string> NormalizedFingerprint(std::string_view text) {
  constexpr std::size_t kBytes = 32;
  const std::string capitals = env::AsciiUpper(text);
  std::string_view rest = capitals;
  std::string result;
  for (std::size_t byte = 0; byte < kBytes; ++byte) {
    if (byte > 0 && rest.starts_with(':')) rest.remove_prefix(1);
    if (rest.size() < 2 || !IsHexDigit(rest[0]) || !IsHexDigit(rest[1])) return std::nullopt;
    if (byte > 0) result += ':';
    result += rest.substr(0, 2);
    rest.remove_prefix(2);
  }
  if (!rest.empty()) return std::nullopt;
  return result;
}

}  // namespace vantorium::publish
