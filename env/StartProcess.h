#pragma once

#include "env/Shell.h"

namespace vantorium {

/// Starts a program of the system, in a session of its own, so that nothing typed for this process ends it, and with
/// empty standard streams. It runs by itself from then on. While it is watched this call waits.
/// Throws RuntimeFailure FileNotFound when there is no such program, FileAccess when it could not be started or ended
/// too early; an interpreter's exit codes 127 and 126 mean the same. The description is the system's, or tells the exit
/// code.
void StartProcess(const ShellCommand& command);

}  // namespace vantorium
