#include "env/Digest.h"

#include "env/FileDescriptor.h"

#include <array>
#include <cerrno>
#include <new>

#include <fcntl.h>
#include <fmt/format.h>
#include <openssl/evp.h>
#include <sys/stat.h>
#include <unistd.h>

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

std::optional<std::string> DigestOfFile(const std::filesystem::path& file) {
  constexpr std::size_t kBlock = 65536;
  const FileDescriptor source(::open(file.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK));
  struct stat status = {};
  if (!source.IsOpen() || ::fstat(source.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return std::nullopt;
  Digest digest;
  std::string block(kBlock, '\0');
  for (;;) {
    const auto count = ::read(source.Get(), block.data(), block.size());
    if (count == 0) return digest.Text();
    if (count < 0 && errno != EINTR) return std::nullopt;
    if (count > 0) digest.Add(std::string_view(block).substr(0, static_cast<std::size_t>(count)));
  }
}

}  // namespace vantorium::env
