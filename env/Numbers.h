#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace vantorium::env {

// Arithmetic and conversions between floating point, integers and texts. Every conversion of a floating-point value to
// an integer rounds to nearest with ties to even; a result outside the integer's range is the failure Overflow.

/// `value` rounded to a whole number, ties to even: 2.5 gives 2, 3.5 gives 4.
[[nodiscard]] double RoundHalfEven(double value);

/// `value` rounded to 16 or 32 bits. Throws RuntimeFailure Overflow outside the range, also for NaN.
[[nodiscard]] std::int16_t ToInt16(double value);
[[nodiscard]] std::int32_t ToInt32(double value);

/// `numerator / denominator` in double precision. Throws RuntimeFailure DivisionByZero when the denominator is 0.
[[nodiscard]] double Divide(double numerator, double denominator);

/// Parses the whole text as a decimal number, ignoring blanks around it: digits with an optional sign, point and
/// exponent. A number out of a double's range gives 0 or the largest double of its sign. Returns nullopt if the text is
/// not a number.
[[nodiscard]] std::optional<double> ParseNumber(std::string_view text);

/// Like ParseNumber, then rounds to the integer. Throws RuntimeFailure TypeMismatch if the text is not a number and
/// Overflow if the number is out of range.
[[nodiscard]] std::int16_t ParseInt16(std::string_view text);
[[nodiscard]] std::int32_t ParseInt32(std::string_view text);

/// `a * b / c` in double precision, rounded half to even; -1 when `c` is 0. Throws RuntimeFailure Overflow when the
/// result does not fit.
[[nodiscard]] std::int32_t MulDivRounded(std::int32_t a, std::int32_t b, std::int32_t c);

}  // namespace vantorium::env
