#pragma once

#include "env/RuntimeFailure.h"

#include <chrono>
#include <functional>
#include <string>
#include <vector>

namespace vantorium::env {

enum class BeepKind { Information, Warning };

/// A program to start.
struct ShellCommand {
  /// The program, searched in PATH if it has no slash, and its arguments; native texts.
  std::vector<std::string> words;
  /// How long to watch it: if it ends without success within this time, it counts as not started. For programs that
  /// only start another one.
  std::chrono::milliseconds watched{0};
};

/// Called with the reason why a program could not be started.
using StartFailed = std::function<void(const RuntimeFailure&)>;

/// What the program needs from the desktop.
class Shell {
 public:
  virtual ~Shell() = default;
  virtual void Beep(BeepKind kind) = 0;
  /// Opens a file (path text) with the desktop's default program for it. Throws RuntimeFailure if nothing could be
  /// started.
  virtual void OpenFile(const std::string& path) = 0;
  /// Starts a program, which then runs on its own. Calls `failed` if it could not be started: during this call, or
  /// later while the program is watched. A desktop with windows does not wait for that.
  virtual void Start(const ShellCommand& command, const StartFailed& failed) = 0;
};

}  // namespace vantorium::env
