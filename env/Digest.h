#pragma once

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

struct evp_md_ctx_st;

namespace vantorium::env {

/// Digests bytes to a short text that no other bytes have: the first 128 bits of their SHA-256 (FIPS 180-4), as 32
/// hexadecimal digits.
class Digest {
 public:
  Digest();

  void Add(std::string_view bytes);
  /// Returns the digest of all bytes added. Call once, at the end.
  [[nodiscard]] std::string Text();

 private:
  struct Deleter {
    void operator()(evp_md_ctx_st* context) const;
  };
  std::unique_ptr<evp_md_ctx_st, Deleter> context_;
};

[[nodiscard]] std::string DigestOf(std::string_view bytes);

/// Returns the digest of a regular file's bytes, or nullopt if they cannot be read.
[[nodiscard]] std::optional<std::string> DigestOfFile(const std::filesystem::path& file);

}  // namespace vantorium::env
