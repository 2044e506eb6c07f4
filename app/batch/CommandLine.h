#pragma once

#include "app/batch/BatchOptions.h"

#include <variant>

namespace vantorium::batch {

/// Exit codes of the program.
enum class ExitCode { Success = 0, Failure = 1, WrongUsage = 2, Cancelled = 130 };

/// Parses the command line. Returns the options, or the exit code if the program ends at once, after printing help or
/// the version on standard output or one line about the error on standard error.
[[nodiscard]] std::variant<BatchOptions, ExitCode> ParseCommandLine(int argc, const char* const* argv);

}  // namespace vantorium::batch
