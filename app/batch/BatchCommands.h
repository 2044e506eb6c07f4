#pragma once

#include "app/batch/BatchOptions.h"
#include "app/batch/CommandLine.h"

namespace vantorium::batch {

/// Runs the command that the command line asks for.
[[nodiscard]] ExitCode RunBatchCommand(const BatchOptions& options);

}  // namespace vantorium::batch
