#include "tests/fuzz/FuzzTarget.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>

#include <fmt/format.h>

namespace vantorium::fuzz {
namespace {

/// The text with unprintable bytes escaped, such as "\x0A".
std::string Printable(std::string_view text) {
  constexpr std::size_t kMost = 4000;
  std::string printable;
  for (const char byte : text.substr(0, kMost)) {
    const auto value = static_cast<unsigned char>(byte);
    printable += value >= 0x20 && value < 0x7F ? std::string(1, byte) : fmt::format("\\x{:02X}", value);
  }
  return printable;
}

}  // namespace

void Require(bool holds, std::string_view rule) {
  if (holds) return;
  fmt::print(stderr, "Broken: {}\n", rule);
  std::abort();
}

void RequireEqual(std::string_view left, std::string_view right, std::string_view rule) {
  if (left != right) fmt::print(stderr, "{}\nis not\n{}\n", Printable(left), Printable(right));
  Require(left == right, rule);
}

std::string InputText(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), std::min(size, kMostInputBytes)};
}

std::string TakePart(std::string_view& rest, char separator) {
  const auto end = std::min(rest.find(separator), rest.size());
  std::string part(rest.substr(0, end));
  rest.remove_prefix(std::min(end + 1, rest.size()));
  return part;
}

}  // namespace vantorium::fuzz
