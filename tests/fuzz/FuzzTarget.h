#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// What a fuzz target defines: it feeds the bytes to one reader of foreign bytes and requires what must hold for any
/// bytes at all. Returns 0. Whatever it keeps from one input to the next must not change how an input is read.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace vantorium::fuzz {

/// The most bytes of an input: what takes longer to read says nothing more about the reader.
inline constexpr std::size_t kMostInputBytes = std::size_t{16} << 10U;

/// Ends the process, as a crash would, with the rule that was broken.
void Require(bool holds, std::string_view rule);
/// The same, and shows the two texts.
void RequireEqual(std::string_view left, std::string_view right, std::string_view rule);

/// The bytes as text; longer inputs are cut.
[[nodiscard]] std::string InputText(const std::uint8_t* data, std::size_t size);

/// Takes what stands in front of the next `separator` off `rest`, all of it when there is none.
[[nodiscard]] std::string TakePart(std::string_view& rest, char separator);

}  // namespace vantorium::fuzz
