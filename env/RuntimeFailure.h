#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace vantorium {

/// The failures that the program itself raises. Their numbers are shown to the user behind "Error #".
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

/// An unexpected failure of an operation: the one exception of the program. It is caught at the level of a run, of a
/// reading or of a log write, and its number and description are shown there.
class RuntimeFailure : public std::runtime_error {
 public:
  /// With the description that belongs to the kind, such as "Division by zero".
  explicit RuntimeFailure(FailureKind kind);
  /// With a description of its own.
  RuntimeFailure(FailureKind kind, const std::string& description);

  [[nodiscard]] std::int32_t Number() const { return number_; }
  [[nodiscard]] std::string Description() const { return what(); }

 private:
  std::int32_t number_;
};

}  // namespace vantorium
