#pragma once

#include "env/RuntimeFailure.h"

#include <optional>
#include <ostream>

namespace vantorium::env {

inline std::ostream& operator<<(std::ostream& stream, FailureKind kind) {
  return stream << "failure " << static_cast<std::int32_t>(kind);
}

}  // namespace vantorium::env

namespace vantorium::fakes {

/// The failure that `operation` throws. Returns nullopt if it succeeds.
template <typename Operation>
std::optional<env::FailureKind> FailureOf(Operation operation) {
  try {
    operation();
    return std::nullopt;
  } catch (const env::RuntimeFailure& failure) {
    return static_cast<env::FailureKind>(failure.Number());
  }
}

}  // namespace vantorium::fakes
