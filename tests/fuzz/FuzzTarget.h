#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Defined by each fuzz target: passes the bytes to one reader of untrusted input and requires what must hold for any
/// input. Returns 0. State kept from one input to the next must not change how an input is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vantorium::fuzz {

/// The maximum size of an input in bytes. Longer inputs take more time but test nothing more.
inline constexpr std::size_t kMostInputBytes = std::size_t{16} << 10U;

/// Unless `holds`, prints the rule and aborts the process.
void Require(bool holds, std::string_view rule);
/// Unless the texts are equal, prints the rule and both texts and aborts the process.
void RequireEqual(std::string_view left, std::string_view right, std::string_view rule);

/// The bytes as text, cut at kMostInputBytes.
[[nodiscard]] std::string InputText(const std::uint8_t* data, std::size_t size);

/// Removes the text before the next `separator`, and the separator, from `rest` and returns that text. Without a
/// separator returns all of `rest`.
[[nodiscard]] std::string TakePart(std::string_view& rest, char separator);

}  // namespace vantorium::fuzz
