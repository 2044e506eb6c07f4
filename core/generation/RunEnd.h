#pragma once

#include <optional>

namespace vantorium::generation {

/// How a run ended, or that it never started.
enum class RunEnd { NotStarted, Success, Failure, Cancelled };

/// The result of a phase: nullopt if the run continues, else the run's end.
using PhaseResult = std::optional<RunEnd>;

inline constexpr PhaseResult kGoOn = std::nullopt;

}  // namespace vantorium::generation
