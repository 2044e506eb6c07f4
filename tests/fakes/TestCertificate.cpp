#include "tests/fakes/TestCertificate.h"

#include <array>
#include <memory>
#include <stdexcept>

#include <fmt/format.h>
#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

namespace vantorium::fakes {
namespace {

using Key = std::unique_ptr<EVP_PKEY, decltype(&EVP_PKEY_free)>;
using Certificate = std::unique_ptr<X509, decltype(&X509_free)>;
using Memory = std::unique_ptr<BIO, decltype(&BIO_free)>;

void Require(bool worked) {
  if (!worked) throw std::runtime_error("OpenSSL makes no certificate for the test");
}

std::string TextOf(const Memory& memory) {
  char* bytes = nullptr;
  const long count = BIO_get_mem_data(memory.get(), &bytes);
  return {bytes, static_cast<std::size_t>(count)};
}

void Add(X509* certificate, int extension, const std::string& value) {
  X509V3_CTX context;
  X509V3_set_ctx_nodb(&context);
  X509V3_set_ctx(&context, certificate, certificate, nullptr, nullptr, 0);
  const std::unique_ptr<X509_EXTENSION, decltype(&X509_EXTENSION_free)> made(
      X509V3_EXT_conf_nid(nullptr, &context, extension, value.c_str()), X509_EXTENSION_free);
  Require(made != nullptr && X509_add_ext(certificate, made.get(), -1) == 1);
}

void SetNumber(X509* certificate) {
  std::uint64_t number = 0;
  Require(RAND_bytes(reinterpret_cast<unsigned char*>(&number), sizeof number) == 1);
  Require(ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate), number >> 1U) == 1);
}

Certificate Make(EVP_PKEY* key, const TestCertificate::Properties& properties) {
  constexpr long kDay = 24L * 60 * 60;
  Certificate made(X509_new(), X509_free);
  X509* certificate = made.get();
  X509_set_version(certificate, X509_VERSION_3);
  SetNumber(certificate);
  X509_gmtime_adj(X509_getm_notBefore(certificate), properties.firstDay * kDay);
  X509_gmtime_adj(X509_getm_notAfter(certificate), properties.lastDay * kDay);
  X509_NAME* name = X509_get_subject_name(certificate);
  X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8,
                             reinterpret_cast<const unsigned char*>(properties.commonName.c_str()), -1, -1, 0);
  X509_set_issuer_name(certificate, name);
  X509_set_pubkey(certificate, key);
  Add(certificate, NID_basic_constraints, "critical,CA:TRUE");
  Add(certificate, NID_subject_alt_name, properties.names);
  Require(X509_sign(certificate, key, EVP_sha256()) > 0);
  return made;
}

}  // namespace

TestCertificate::TestCertificate(const Properties& properties) {
  const Key pair(EVP_EC_gen("P-256"), EVP_PKEY_free);
  Require(pair != nullptr);
  const Certificate made = Make(pair.get(), properties);
  const Memory certificateText(BIO_new(BIO_s_mem()), BIO_free);
  const Memory keyText(BIO_new(BIO_s_mem()), BIO_free);
  Require(PEM_write_bio_X509(certificateText.get(), made.get()) == 1);
  Require(PEM_write_bio_PrivateKey(keyText.get(), pair.get(), nullptr, nullptr, 0, nullptr, nullptr) == 1);
  certificate = TextOf(certificateText);
  key = TextOf(keyText);
  std::array<unsigned char, EVP_MAX_MD_SIZE> digest = {};
  unsigned size = 0;
  Require(X509_digest(made.get(), EVP_sha256(), digest.data(), &size) == 1);
  fingerprint = fmt::format("{:02X}", fmt::join(digest.begin(), digest.begin() + size, ":"));
}

}  // namespace vantorium::fakes
