#pragma once

#include "app/batch/BatchOptions.h"

#include <variant>

namespace vantorium {

/// Exit codes of the program.
enum class ExitCode { Success = 0, Failure = 1, WrongUsage = 2, Cancelled = 130 };

/// Reads the command line: what it asks for, or how the program ends at once, with help on standard output or one line
/// about what is wrong on standard error.
[[nodiscard]] std::variant<BatchOptions, ExitCode> ParseCommandLine(int argc, const char* const* argv);

}  // namespace vantorium
