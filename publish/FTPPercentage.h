#pragma once

#include <cstdint>
#include <optional>

namespace vantorium::publish {

/// Returns how much of a file of `length` bytes has been sent, in percent, rounded half to even. Computed in 32 bits:
/// returns nullopt from 21474837 bytes sent onward, where the product no longer fits. Throws RuntimeFailure
/// DivisionByZero for an empty file.
[[nodiscard]] std::optional<std::int16_t> FTPPercentage(std::int32_t sent, std::int32_t length);

}  // namespace vantorium::publish
