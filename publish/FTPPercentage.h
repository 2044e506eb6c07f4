#pragma once

#include <cstdint>
#include <optional>

namespace vantorium {

/// How much of a file of `length` bytes is out, in percent, halves to even. Computed in 32 bits: nothing from 21474837
/// bytes sent onward, where the product no longer fits. Throws RuntimeFailure DivisionByZero for an empty file.
[[nodiscard]] std::optional<std::int16_t> FTPPercentage(std::int32_t sent, std::int32_t length);

}  // namespace vantorium
