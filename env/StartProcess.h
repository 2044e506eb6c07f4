#pragma once

#include "env/Shell.h"

#include <sys/types.h>

namespace vantorium {

/// A program of the system that was started, in a session of its own, so that nothing typed for this process ends it,
/// and with empty standard streams. It runs by itself; this object only watches whether it could be started.
class StartedProcess {
 public:
  /// Throws RuntimeFailure FileNotFound when there is no such program, FileAccess when it could not be started; the
  /// description is the system's.
  explicit StartedProcess(const ShellCommand& command);

  /// Looks at the program without waiting. True while it is to be looked at again, not to be called behind a false.
  /// Throws RuntimeFailure when it has ended without success: FileNotFound or FileAccess for an interpreter's exit
  /// codes 127 and 126, else FileAccess with a description that tells the exit code or the signal.
  [[nodiscard]] bool IsWatched() const;

 private:
  pid_t process_;
  std::string program_;
  bool isWatched_;
  std::chrono::steady_clock::time_point end_;  ///< of the watch
};

/// Starts a program of the system and waits while it is watched. Throws as the two operations of StartedProcess.
void StartProcess(const ShellCommand& command);

}  // namespace vantorium
