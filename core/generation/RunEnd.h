#pragma once

#include <optional>

namespace vantorium {

/// The three ends of a run, and that it never began.
enum class RunEnd { NotStarted, Success, Failure, Cancelled };

/// What a phase of a run comes to: nothing when the run goes on, else its end.
using PhaseResult = std::optional<RunEnd>;

inline constexpr PhaseResult kGoOn = std::nullopt;

}  // namespace vantorium
