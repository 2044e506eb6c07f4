#include "env/Digest.h"

#include "env/FileInput.h"
#include "env/RuntimeFailure.h"

#include <array>
#include <limits>
#include <new>

#include <fmt/format.h>
#include <openssl/evp.h>

namespace vantorium::env {
namespace {

constexpr std::size_t kDigestBytes = 16;

/// OpenSSL reports nothing but a lack of memory here.
void Check(int result) {
  if (result != 1) throw std::bad_alloc();
}

}  // namespace

void Digest::Deleter::operator()(evp_md_ctx_st* context) const {
  ::EVP_MD_CTX_free(context);
}

Digest::Digest() : context_(::EVP_MD_CTX_new()) {
  if (!context_) throw std::bad_alloc();
  Check(::EVP_DigestInit_ex(context_.get(), ::EVP_sha256(), nullptr));
}

void Digest::Add(std::string_view bytes) {
  Check(::EVP_DigestUpdate(context_.get(), bytes.data(), bytes.size()));
}

std::string Digest::Text() {
  std::array<unsigned char, EVP_MAX_MD_SIZE> bytes = {};
  Check(::EVP_DigestFinal_ex(context_.get(), bytes.data(), nullptr));
  return fmt::format("{:02x}", fmt::join(bytes.begin(), bytes.begin() + kDigestBytes, ""));
}

std::string DigestOf(std::string_view bytes) {
  Digest digest;
  digest.Add(bytes);
  return digest.Text();
}

std::optional<std::string> DigestOfFile(const std::filesystem::path& file) try {
  Digest digest;
  ReadFileInPieces(file, std::numeric_limits<std::size_t>::max(), [&](std::string_view piece) { digest.Add(piece); });
  return digest.Text();
} catch (const RuntimeFailure&) {
  return std::nullopt;
}

}  // namespace vantorium::env
