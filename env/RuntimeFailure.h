#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace vantorium::env {

/// The failures that the program raises. Messages show their numbers after "Error #".
enum class FailureKind : std::int32_t {
  FileTimeNotFound = 1,
  InvalidArgument = 5,
  Overflow = 6,
  OutOfMemory = 7,
  SubscriptOutOfRange = 9,
  DivisionByZero = 11,
  TypeMismatch = 13,
  FileNotFound = 53,
  FileAccess = 75,
  JPEGLibrary = 26001,
  IndexOutOfBounds = 35600,
  Preferences = static_cast<std::int32_t>(0x80040001U),
};

/// The program's one exception: an unexpected failure of an operation. It is caught around a run, a read or a log
/// write, and its number and description are shown there.
class RuntimeFailure : public std::runtime_error {
 public:
  /// With the kind's description, such as "Division by zero".
  explicit RuntimeFailure(FailureKind kind);
  /// With the given description.
  RuntimeFailure(FailureKind kind, const std::string& description);

  [[nodiscard]] std::int32_t Number() const { return number_; }
  [[nodiscard]] std::string Description() const { return what(); }

 private:
  std::int32_t number_;
};

}  // namespace vantorium::env
