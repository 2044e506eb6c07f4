#include "env/Numbers.h"

#include "env/RuntimeFailure.h"
#include "env/Text.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <locale>
#include <sstream>
#include <string>

namespace vantorium::env {
namespace {

template <typename Integer>
Integer ToInteger(double value) {
  const double rounded = RoundHalfEven(value);
  const bool fits = rounded >= std::numeric_limits<Integer>::min() && rounded <= std::numeric_limits<Integer>::max();
  if (!fits) throw RuntimeFailure(FailureKind::Overflow);
  return static_cast<Integer>(rounded);
}

double ParseOrThrow(std::string_view text) {
  const auto value = ParseNumber(text);
  if (!value) throw RuntimeFailure(FailureKind::TypeMismatch);
  return *value;
}

/// Returns the substitute for a number that is out of a double's range: 0 for one too small, the largest double of its
/// sign for one too large.
double NearestDouble(std::string_view digits) {
  std::istringstream stream{std::string(digits)};
  stream.imbue(std::locale::classic());
  double value = 0;
  stream >> value;
  return value;
}

}  // namespace

// The rounding mode of the floating-point unit is never changed, so nearbyint rounds half to even.
double RoundHalfEven(double value) {
  return std::nearbyint(value);
}

std::int16_t ToInt16(double value) {
  return ToInteger<std::int16_t>(value);
}
std::int32_t ToInt32(double value) {
  return ToInteger<std::int32_t>(value);
}

double Divide(double numerator, double denominator) {
  if (denominator == 0) throw RuntimeFailure(FailureKind::DivisionByZero);
  return numerator / denominator;
}

std::optional<double> ParseNumber(std::string_view text) {
  std::string_view digits = Trimmed(text, " \t\r\n");
  if (digits.starts_with('+') && !digits.starts_with("+-")) digits.remove_prefix(1);
  // from_chars also accepts "inf" and "nan", but a number must begin with a digit or a point after its sign.
  const auto start = digits.find_first_not_of('-');
  if (start == std::string_view::npos ||
      std::string_view("0123456789.").find(digits[start]) == std::string_view::npos) {
    return std::nullopt;
  }
  double value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (end != digits.data() + digits.size()) return std::nullopt;
  if (error == std::errc::result_out_of_range) return NearestDouble(digits);
  if (error != std::errc()) return std::nullopt;
  return value;
}

std::int16_t ParseInt16(std::string_view text) {
  return ToInt16(ParseOrThrow(text));
}
std::int32_t ParseInt32(std::string_view text) {
  return ToInt32(ParseOrThrow(text));
}

std::int32_t MulDivRounded(std::int32_t a, std::int32_t b, std::int32_t c) {
  if (c == 0) return -1;
  return ToInt32(static_cast<double>(static_cast<std::int64_t>(a) * b) / c);
}

}  // namespace vantorium::env
