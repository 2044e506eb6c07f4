#include "publish/ReadCertificate.h"

#include <algorithm>
#include <array>
#include <ctime>
#include <memory>
#include <span>

#include <arpa/inet.h>
#include <fmt/format.h>
#include <openssl/bio.h>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

namespace vantorium::publish {
namespace {

/// Replaces control characters: the text is shown in a line.
std::string InOneLine(std::string_view text) {
  std::string line(text);
  std::ranges::replace_if(
      line, [](char letter) { return static_cast<unsigned char>(letter) < ' ' || letter == 0x7F; }, '?');
  return line;
}

std::string TextOf(const X509_NAME* name) {
  const std::unique_ptr<BIO, decltype(&BIO_free)> memory(BIO_new(BIO_s_mem()), BIO_free);
  if (name == nullptr || memory == nullptr) return {};
  X509_NAME_print_ex(memory.get(), name, 0, XN_FLAG_ONELINE & ~static_cast<unsigned long>(ASN1_STRFLGS_ESC_MSB));
  char* bytes = nullptr;
  const long count = BIO_get_mem_data(memory.get(), &bytes);
  return count > 0 ? InOneLine({bytes, static_cast<std::size_t>(count)}) : std::string();
}

std::string DateOf(const ASN1_TIME* time) {
  std::tm fields = {};
  if (time == nullptr || ASN1_TIME_to_tm(time, &fields) != 1) return "?";
  return fmt::format("{:04}-{:02}-{:02}", fields.tm_year + 1900, fields.tm_mon + 1, fields.tm_mday);
}

std::string AddressOf(std::span<const unsigned char> bytes) {
  std::array<char, INET6_ADDRSTRLEN> text = {};
  const int family = bytes.size() == sizeof(in_addr) ? AF_INET : AF_INET6;
  if (family == AF_INET6 && bytes.size() != sizeof(in6_addr)) return "?";
  return ::inet_ntop(family, bytes.data(), text.data(), text.size()) != nullptr ? text.data() : "?";
}

std::span<const unsigned char> BytesOf(const ASN1_STRING* string) {
  return {ASN1_STRING_get0_data(string), static_cast<std::size_t>(ASN1_STRING_length(string))};
}

std::vector<std::string> NamesOf(const X509& certificate) {
  std::vector<std::string> texts;
  const std::unique_ptr<GENERAL_NAMES, decltype(&GENERAL_NAMES_free)> names(
      static_cast<GENERAL_NAMES*>(X509_get_ext_d2i(&certificate, NID_subject_alt_name, nullptr, nullptr)),
      GENERAL_NAMES_free);
  for (int at = 0; names != nullptr && at < sk_GENERAL_NAME_num(names.get()); ++at) {
    int type = 0;
    const void* value = GENERAL_NAME_get0_value(sk_GENERAL_NAME_value(names.get(), at), &type);
    if (type != GEN_DNS && type != GEN_IPADD) continue;
    const auto bytes = BytesOf(static_cast<const ASN1_STRING*>(value));
    texts.push_back(type == GEN_IPADD ? AddressOf(bytes) : InOneLine(std::string(bytes.begin(), bytes.end())));
  }
  return texts;
}

std::string FingerprintOf(const X509& certificate) {
  std::array<unsigned char, EVP_MAX_MD_SIZE> digest = {};
  unsigned size = 0;
  if (X509_digest(&certificate, EVP_sha256(), digest.data(), &size) != 1) return {};
  return fmt::format("{:02X}", fmt::join(digest.begin(), digest.begin() + size, ":"));
}

}  // namespace

ServerCertificate ReadCertificate(const X509& certificate) {
  return {.subject = TextOf(X509_get_subject_name(&certificate)),
          .issuer = TextOf(X509_get_issuer_name(&certificate)),
          .names = NamesOf(certificate),
          .validFrom = DateOf(X509_get0_notBefore(&certificate)),
          .validUntil = DateOf(X509_get0_notAfter(&certificate)),
          .fingerprint = FingerprintOf(certificate),
          .doubt = {}};
}

}  // namespace vantorium::publish
