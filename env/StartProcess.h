#pragma once

#include "env/Shell.h"

#include <sys/types.h>

namespace vantorium::env {

/// A started program, in its own session, so that nothing typed for this process ends it, and with empty standard
/// streams. It runs on its own; this object only watches whether it could be started.
class StartedProcess {
 public:
  /// Throws RuntimeFailure FileNotFound if there is no such program, FileAccess if it could not be started, with the
  /// system's description.
  explicit StartedProcess(const ShellCommand& command);

  /// Checks the program without waiting. Returns true while it must be checked again; must not be called after it
  /// returned false. Throws RuntimeFailure if the program ended without success: FileNotFound or FileAccess for a
  /// shell's exit codes 127 and 126, else FileAccess with a description that names the exit code or the signal.
  [[nodiscard]] bool IsWatched() const;

 private:
  pid_t process_;
  std::string program_;
  bool isWatched_;
  std::chrono::steady_clock::time_point end_;  ///< when the watch ends
};

/// Starts a program and waits while it is watched. Throws as StartedProcess does.
void StartProcess(const ShellCommand& command);

}  // namespace vantorium::env
